// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "control/aboutbox.h"

#include <QDialogButtonBox>
#include <QFont>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#ifndef QUIRRA_VERSION
#error "QUIRRA_VERSION must name the project version (control/CMakeLists.txt defines it)"
#endif

namespace quirra {

namespace {

QLabel *namedLabel(const char *name, const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(QLatin1String(name));
    return label;
}

} // namespace

AboutBox::AboutBox(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("about_box"));
    setWindowTitle(tr("About QuirraControl"));

    QLabel *title = namedLabel("title_lbl", QStringLiteral("QuirraControl"), this);
    QFont big = title->font();
    big.setBold(true);
    big.setPointSizeF(big.pointSizeF() * 1.8);
    title->setFont(big);

    QLabel *version = namedLabel("version_lbl", tr("Version %1").arg(AboutBox::version()), this);
    QLabel *blurb = namedLabel(
        "description_lbl",
        tr("Envelope and label printing for Qt applications: a control that lays name and "
           "address records out on envelopes and label sheets, previews them and prints them."),
        this);
    blurb->setWordWrap(true);

    QLabel *credits = namedLabel("credits_lbl", AboutBox::credits(), this);
    credits->setWordWrap(true);
    credits->setTextInteractionFlags(Qt::TextSelectableByMouse);
    credits->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *ok = buttons->addButton(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("ok_btn"));
    ok->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addWidget(version);
    layout->addSpacing(6);
    layout->addWidget(blurb);
    layout->addSpacing(6);
    layout->addWidget(credits, 1);
    layout->addWidget(buttons);
    // Wide enough that the credits read as paragraphs, not a column.
    const int width = fontMetrics().horizontalAdvance(u'x') * 64;
    blurb->setMinimumWidth(width);
    credits->setMinimumWidth(width);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

QString AboutBox::version()
{
    return QStringLiteral(QUIRRA_VERSION);
}

QString AboutBox::credits()
{
    return tr("Written by the QuirraControl developers and released under the MIT licence.\n\n"
              "Built on Qt, the cross-platform application framework, used under the "
              "GNU LGPL version 3.\n\n"
              "Previews, PDF files and tests are set in the Liberation fonts (SIL Open Font "
              "Licence) and the DejaVu fonts (a free font licence).\n\n"
              "The envelope and label catalogue was gathered from an open template database of "
              "a free label designer (MIT-style licence, copyright 2001-2009 its author), the "
              "nominal sizes and pitches label makers print on their packs, a free Perl "
              "library of paper and label sizes, and the published North American "
              "and ISO 269 / DIN 678 envelope size tables. Where they disagree, the catalogue's "
              "notes say which figure was kept.");
}

} // namespace quirra
