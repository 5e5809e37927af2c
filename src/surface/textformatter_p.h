// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCache>
#include <QFont>
#include <QHash>
#include <QString>

#include <array>
#include <bitset>
#include <memory>

namespace quirra {

class TextBlock;

/**
 * @brief The current font of a surface and the text blocks laid out with it.
 *
 * Fonts are made once per face and size, and a laid-out block is kept for
 * the next request of the same text, box width and paragraph settings: the
 * print run lays every item out once to measure it and again to draw it, and
 * the return address and messages repeat on every label. Measured widths
 * are kept apart, for many more texts: the city line of every address is
 * measured, and a mailing sorted by postal code has the same city line
 * record after record.
 */
class TextFormatter
{
public:
    TextFormatter();
    ~TextFormatter();
    TextFormatter(const TextFormatter &) = delete;
    TextFormatter &operator=(const TextFormatter &) = delete;

    /**
     * @brief The alignment of an alignment code: 0 left, 1 centre, 2 right,
     * 9 justified; any other code is left, with a warning.
     */
    static Qt::Alignment alignmentForCode(int code);

    void setFamily(const QString &family);
    /** @brief Font size in twips (points × 20); kept at 1 or more. */
    void setSizeTwips(int twips);
    void setBold(bool on);
    void setItalic(bool on);
    void setUnderline(bool on);
    void setStrikeOut(bool on);

    QString family() const { return m_key.family; }
    int sizeTwips() const { return m_key.sizeTwips; }

    /** @brief The current font; its pixel size is its size in twips. */
    QFont font();
    /** @brief The current font's line height (ascent, descent and leading), in twips. */
    double lineHeight();

    /**
     * @brief How far, in twips, glyphs of text in the current font can reach
     * past their line: above its ascent, below its descent, before their
     * origin or after their advance. Negative when the font does not vouch
     * for the text: a character beyond Latin-1 or one the font lacks (another
     * font draws it), or underlined or struck-out text.
     */
    double inkRoom(QStringView text);

    /** @brief The width of the widest line of text, in twips, in the current font. */
    double textWidth(const QString &text);

    /**
     * @brief The text laid out in the current font; see TextBlock for the
     * parameters. The block stays valid while the caller holds it.
     */
    std::shared_ptr<const TextBlock> layOut(const QString &text, double width, bool wrap,
                                            Qt::Alignment alignment, int spacingPercent);

    struct FontKey
    {
        QString family;
        int sizeTwips = 200;
        bool bold = false;
        bool italic = false;
        bool underline = false;
        bool strikeOut = false;
        bool operator==(const FontKey &o) const;
    };

    struct WidthKey
    {
        FontKey font;
        QString text;
        bool operator==(const WidthKey &o) const { return font == o.font && text == o.text; }
    };

    struct BlockKey
    {
        FontKey font;
        QString text;
        double width;
        bool wrap;
        int alignment;
        int spacing;
        bool operator==(const BlockKey &o) const;
    };

private:
    struct FontEntry
    {
        QFont font;
        double lineHeight;
        double inkRoom = 0;              ///< ink past the line of any character seen
        std::bitset<256> latin1Seen{};   ///< the Latin-1 characters measured
        std::bitset<256> latin1Glyphs{}; ///< those the font has glyphs for
    };
    FontEntry &currentFont();

    FontKey m_key;
    FontEntry *m_current = nullptr;
    QHash<FontKey, FontEntry> m_fonts;
    QCache<BlockKey, std::shared_ptr<const TextBlock>> m_blocks;
    QCache<WidthKey, double> m_widths;
    struct Recent
    {
        BlockKey key{};
        std::shared_ptr<const TextBlock> block;
    };
    std::array<Recent, 2> m_recent;    // the last block made or found first
    std::array<size_t, 1024> m_seen{}; // hashes of blocks made once, by hash
};

size_t qHash(const TextFormatter::FontKey &key, size_t seed = 0);
size_t qHash(const TextFormatter::WidthKey &key, size_t seed = 0);
size_t qHash(const TextFormatter::BlockKey &key, size_t seed = 0);

} // namespace quirra
