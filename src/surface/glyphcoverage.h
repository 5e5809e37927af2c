// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quirra {

/**
 * @brief The characters of text that no installed font can draw, each once,
 * in the order they first appear; empty when every one can be drawn.
 *
 * A character counts as drawable when the font a text box would use, or any
 * font the system falls back to, has a glyph for it. Line breaks, tabs,
 * other control characters and invisible format characters draw nothing and
 * are never listed. What is learnt about a character is kept for the rest
 * of the process, so a run of many records asks the fonts once per
 * character. Needs a QGuiApplication; call it from the GUI thread.
 */
QString UndrawableCharacters(const QString &text);

} // namespace quirra
