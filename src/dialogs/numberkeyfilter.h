// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

class QAbstractSlider;
class QKeyEvent;

namespace quirra {

/**
 * @brief The key filter of a number box with a stepper beside it: Up and
 * Down step it as the stepper's arrows do; a typed character that cannot be
 * part of a number is dropped with a beep; shortcuts, mnemonics and keys that
 * type nothing keep their usual roles.
 * @return true when the key was used up here.
 */
bool FilterNumberBoxKey(QKeyEvent *event, QAbstractSlider *stepper);

} // namespace quirra
