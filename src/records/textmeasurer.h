// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quirra {

/**
 * @brief Measures text with whatever font the drawing surface holds at the
 * moment.
 *
 * The address rules shorten a city line until it fits; they ask this
 * interface how wide a candidate line is. The printing surface implements it
 * with real fonts at the output resolution; tests use known widths.
 */
class TextMeasurer
{
public:
    virtual ~TextMeasurer();

    /** @brief The width of text on one line, in twips (1440 to the inch). */
    virtual double TextWidth(const QString &text) = 0;
};

} // namespace quirra
