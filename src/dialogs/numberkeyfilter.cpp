// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/numberkeyfilter.h"

#include "dialogs/hostservices.h"
#include "dialogs/numberfield.h"

#include <QAbstractSlider>
#include <QKeyEvent>

namespace quirra {

bool FilterNumberBoxKey(QKeyEvent *event, QAbstractSlider *stepper)
{
    if (event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier) {
        if (event->key() == Qt::Key_Up) {
            stepper->triggerAction(QAbstractSlider::SliderSingleStepSub);
            return true;
        }
        if (event->key() == Qt::Key_Down) {
            stepper->triggerAction(QAbstractSlider::SliderSingleStepAdd);
            return true;
        }
    }
    if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    const QString text = event->text();
    for (QChar c : text) {
        if (c.unicode() < 0x20 || c.unicode() == 0x7f)
            continue; // Backspace, Tab, Enter, Escape, Delete
        if (!NumberField::acceptsCharacter(c)) {
            HostServices::of(stepper).beep();
            return true;
        }
    }
    return false;
}

} // namespace quirra
