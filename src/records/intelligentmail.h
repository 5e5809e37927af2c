// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRect>
#include <QString>

namespace quirra {

/**
 * @brief The postal Intelligent Mail barcode of one record: 65 bars, each
 * full, ascending, descending or a tracker alone.
 *
 * The record's `bar_code` holds the 20-digit tracking code, optionally
 * followed (directly, or after a dash or a blank) by a 5-, 9- or 11-digit
 * routing code; without one the record's ZIP digits are the routing code.
 */
class IntelligentMailBarcode
{
public:
    /** @brief The four bar states, as the postal service letters them. */
    enum Bar : char { Full = 'F', Ascender = 'A', Descender = 'D', Tracker = 'T' };

    static constexpr int BarCount = 65;

    /**
     * @brief Encodes a record's code; isValid() is false and error() says why
     * when the code is not an Intelligent Mail code.
     * @param barCode the record's `bar_code` field
     * @param zip the record's `zip` field, used when the code holds no routing code
     */
    IntelligentMailBarcode(const QString &barCode, const QString &zip);

    bool isValid() const { return m_error.isEmpty(); }
    /** @brief What is wrong with the code, for a message naming the record. */
    const QString &error() const { return m_error; }
    /** @brief The 20-digit tracking code. */
    const QString &tracking() const { return m_tracking; }
    /** @brief The routing code: empty, 5, 9 or 11 digits. */
    const QString &routing() const { return m_routing; }
    /** @brief The 65 bars, left to right, as the letters F, A, D and T. */
    const QString &bars() const { return m_bars; }

    /** @brief Height of the whole barcode in twips (a full bar). */
    static int heightTwips();
    /** @brief Width of the whole barcode in twips, first bar's left edge to last bar's right. */
    static int widthTwips();
    /**
     * @brief The bars as rectangles in twips, the barcode's top-left corner
     * at origin: about 22 bars to the inch, each 0.02 in wide, a full bar
     * 0.144 in high, the tracker 0.05 in in the middle, ascenders and
     * descenders reaching from it to the top or the bottom.
     */
    QList<QRect> barRects(const QPoint &origin) const;

private:
    QString m_tracking;
    QString m_routing;
    QString m_bars;
    QString m_error;
};

} // namespace quirra
