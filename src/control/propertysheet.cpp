// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "control/propertysheet.h"

#include "control/itemlayout.h"
#include "control/quirra.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace quirra {

PropertySheet::PropertySheet(Quirra *control, QWidget *parent)
    : QDialog(parent), m_page(new ItemLayout(this))
{
    setObjectName(QStringLiteral("property_sheet"));
    setWindowTitle(tr("Quirra Properties[*]"));
    setSizeGripEnabled(true);

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *ok = buttons->addButton(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("ok_btn"));
    ok->setDefault(true);
    QPushButton *cancel = buttons->addButton(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("cancel_btn"));
    QPushButton *applyButton = buttons->addButton(QDialogButtonBox::Apply);
    applyButton->setObjectName(QStringLiteral("apply_btn"));
    connect(ok, &QPushButton::clicked, this, &PropertySheet::accept);
    connect(cancel, &QPushButton::clicked, this, &PropertySheet::reject);
    connect(applyButton, &QPushButton::clicked, this, &PropertySheet::apply);
    connect(m_page, &ItemLayout::changedMarkChanged, this, &QWidget::setWindowModified);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_page, 1);
    layout->addWidget(buttons);

    m_page->setSelectedControls({control});
}

PropertySheet::~PropertySheet() = default;

void PropertySheet::apply()
{
    m_page->applyChanges();
    m_page->setChanged(false);
    Q_EMIT applied();
}

void PropertySheet::accept()
{
    apply();
    QDialog::accept();
}

} // namespace quirra
