// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "control/calibrationfields.h"

#include "render/calibration.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>

#include <cmath>

namespace quirra {

namespace {

struct Field
{
    const char *property;
    const char *box;
    const char *caption;
    const char *unit;
    float lowest;
    float highest;
};

// The ranges a calibration gives.
constexpr Field Fields[4] = {
    {"PrinterLeft", "txtPrinterLeft", QT_TRANSLATE_NOOP("quirra::CalibrationFields", "Left offset"),
     "in", 0.f, PrinterOffsetMax},
    {"PrinterTop", "txtPrinterTop", QT_TRANSLATE_NOOP("quirra::CalibrationFields", "Top offset"),
     "in", 0.f, PrinterOffsetMax},
    {"PrinterScaleX", "txtPrinterScaleX",
     QT_TRANSLATE_NOOP("quirra::CalibrationFields", "Horizontal scale"), "%", PrinterScaleMin,
     PrinterScaleMax},
    {"PrinterScaleY", "txtPrinterScaleY",
     QT_TRANSLATE_NOOP("quirra::CalibrationFields", "Vertical scale"), "%", PrinterScaleMin,
     PrinterScaleMax},
};

float valueOf(const PieceModel &model, int index)
{
    switch (index) {
    case 0:
        return model.piece.PrinterLeft;
    case 1:
        return model.piece.PrinterTop;
    case 2:
        return model.PrinterScaleX;
    default:
        return model.PrinterScaleY;
    }
}

QString shown(float value)
{
    return QLocale().toString(double(value), 'g', 6);
}

} // namespace

CalibrationFields::CalibrationFields(QWidget *parent) : QGroupBox(tr("Printer calibration"), parent)
{
    setObjectName(QStringLiteral("frmCalibration"));
    auto *grid = new QGridLayout(this);
    for (int i = 0; i < 4; ++i) {
        const Field &field = Fields[i];
        auto *box = new QLineEdit(this);
        box->setObjectName(QLatin1String(field.box));
        box->setMaximumWidth(box->fontMetrics().horizontalAdvance(u'0') * 9);
        box->setToolTip(tr("%1, from %2 to %3 %4 (the property %5)")
                            .arg(tr(field.caption), shown(field.lowest), shown(field.highest),
                                 QLatin1String(field.unit), QLatin1String(field.property)));
        auto *caption =
            new QLabel(tr("%1 (%2):").arg(tr(field.caption), QLatin1String(field.unit)), this);
        caption->setBuddy(box);
        // Offsets on the first row, scales on the second.
        grid->addWidget(caption, i / 2, (i % 2) * 2);
        grid->addWidget(box, i / 2, (i % 2) * 2 + 1);
        connect(box, &QLineEdit::editingFinished, this, [this, i] { take(i); });
        m_boxes[i] = box;
    }
    m_note = new QLabel(this);
    m_note->setObjectName(QStringLiteral("lblCalibrationNote"));
    m_note->setWordWrap(true);
    m_note->setStyleSheet(QStringLiteral("color: #b00020;"));
    grid->addWidget(m_note, 2, 0, 1, 4);
    grid->setColumnStretch(4, 1);
}

void CalibrationFields::showValues(const PieceModel &model)
{
    for (int i = 0; i < 4; ++i) {
        m_values[i] = valueOf(model, i);
        m_boxes[i]->setText(shown(m_values[i]));
    }
    m_note->clear();
}

void CalibrationFields::store(PieceModel &model, const QString &name, float value)
{
    if (name == QLatin1String(Fields[0].property))
        model.piece.PrinterLeft = value;
    else if (name == QLatin1String(Fields[1].property))
        model.piece.PrinterTop = value;
    else if (name == QLatin1String(Fields[2].property))
        model.PrinterScaleX = value;
    else if (name == QLatin1String(Fields[3].property))
        model.PrinterScaleY = value;
}

void CalibrationFields::take(int index)
{
    const Field &field = Fields[index];
    QLineEdit *box = m_boxes[index];
    const QString text = box->text().trimmed();
    // The user's own way of writing numbers, or the plain one.
    bool ok = false;
    double value = QLocale().toDouble(text, &ok);
    if (!ok)
        value = QLocale::c().toDouble(text, &ok);
    if (ok && std::isfinite(value) && value >= field.lowest && value <= field.highest) {
        m_note->clear();
        if (float(value) != m_values[index]) {
            m_values[index] = float(value);
            Q_EMIT edited(QLatin1String(field.property), m_values[index]);
        }
        box->setText(shown(m_values[index]));
        return;
    }
    const QString range = tr("%1 goes from %2 to %3 %4; it stays %5 %4.")
                              .arg(tr(field.caption), shown(field.lowest), shown(field.highest),
                                   QLatin1String(field.unit), shown(m_values[index]));
    m_note->setText(ok ? tr("%1 %2 is out of range: %3").arg(text, QLatin1String(field.unit), range)
                       : tr("\"%1\" is not a number: %2").arg(text, range));
    box->setText(shown(m_values[index]));
}

} // namespace quirra
