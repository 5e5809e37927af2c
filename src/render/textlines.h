// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quirra {

/**
 * @brief Appends one line, or several separated by CR LF, to an item text.
 *
 * The old text loses its trailing blanks and is followed by a CR LF pair,
 * then the new text; an empty (or blank) old text gets no separator, so the
 * first line appended is the whole text.
 */
QString AppendTextLine(const QString &text, const QString &line);

} // namespace quirra
