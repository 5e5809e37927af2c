// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/piecemodel.h"

#include <QGroupBox>

#include <array>

class QLabel;
class QLineEdit;

namespace quirra {

/**
 * @brief The property page's printer calibration ("frmCalibration"): the
 * printer's offsets PrinterLeft and PrinterTop (inches, 0 to 1) and its
 * stretch PrinterScaleX and PrinterScaleY (percent, 90 to 110), one box
 * each: "txtPrinterLeft", "txtPrinterTop", "txtPrinterScaleX",
 * "txtPrinterScaleY".
 *
 * A value typed into a box is taken when the box is left or Return is
 * pressed. One outside its range, or no number at all, is refused: the box
 * shows the value it had again and "lblCalibrationNote" says why and what
 * the range is.
 */
class CalibrationFields : public QGroupBox
{
    Q_OBJECT

public:
    explicit CalibrationFields(QWidget *parent = nullptr);

    /** @brief Shows the model's four values and clears the note. */
    void showValues(const PieceModel &model);

    /** @brief Writes the value of the property name into the model (no check). */
    static void store(PieceModel &model, const QString &name, float value);

Q_SIGNALS:
    /** @brief A box took a new value within its range. */
    void edited(const QString &name, float value);

private:
    void take(int index);

    std::array<QLineEdit *, 4> m_boxes{};
    std::array<float, 4> m_values{};
    QLabel *m_note = nullptr;
};

} // namespace quirra
