// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "surface/textformatter_p.h"

#include "surface/logging_p.h"
#include "surface/textblock_p.h"

#include <QFontMetricsF>
#include <QHashFunctions>
#include <QTextOption>

#include <algorithm>

namespace quirra {

namespace {
// Enough for every item font of a run many times over; a run that somehow
// uses more just makes them again.
constexpr int maxFonts = 64;
// Blocks kept for reuse: the five items of a label, measured and drawn,
// fit with a wide margin; the return address and messages stay cached
// across a whole run.
constexpr int maxBlocks = 512;
// Measured widths kept: a double and a short text each.
constexpr int maxWidths = 4096;
} // namespace

bool TextFormatter::FontKey::operator==(const FontKey &o) const
{
    return sizeTwips == o.sizeTwips && bold == o.bold && italic == o.italic &&
           underline == o.underline && strikeOut == o.strikeOut && family == o.family;
}

bool TextFormatter::BlockKey::operator==(const BlockKey &o) const
{
    return width == o.width && wrap == o.wrap && alignment == o.alignment && spacing == o.spacing &&
           font == o.font && text == o.text;
}

size_t qHash(const TextFormatter::FontKey &key, size_t seed)
{
    const int flags = (key.bold ? 1 : 0) | (key.italic ? 2 : 0) | (key.underline ? 4 : 0) |
                      (key.strikeOut ? 8 : 0);
    return qHashMulti(seed, key.family, key.sizeTwips, flags);
}

size_t qHash(const TextFormatter::WidthKey &key, size_t seed)
{
    return qHashMulti(seed, key.font, key.text);
}

size_t qHash(const TextFormatter::BlockKey &key, size_t seed)
{
    return qHashMulti(seed, key.font, key.text, key.width, key.wrap, key.alignment, key.spacing);
}

Qt::Alignment TextFormatter::alignmentForCode(int code)
{
    switch (code) {
    case 0:
        return Qt::AlignLeft;
    case 1:
        return Qt::AlignHCenter;
    case 2:
        return Qt::AlignRight;
    case 9:
        return Qt::AlignJustify;
    default:
        qCWarning(lcSurface) << "text alignment" << code << "is not known; text is set left";
        return Qt::AlignLeft;
    }
}

namespace {

// A single line with nothing but plain blanks to trim: the one the city
// line and most item texts are.
bool isPlainLine(const QString &text)
{
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        if (u == u'\r' || u == u'\n' || u == u'\t' || u == 0x2028 || u == 0x2029)
            return false;
    }
    return true;
}

// Shapes the line once, on the stack, with the design metrics the layout
// draws with, and adds what a laid-out line adds: the overhang of a last
// glyph that reaches past its advance. Nothing is broken into lines or kept.
// Anything else (several lines, tabs, an overhanging or non-Latin last
// character) is laid out in full, so a line measured to fit does fit when it
// is drawn.
double measureWidth(const QString &text, const QFont &font, double lineHeight)
{
    if (!text.isEmpty() && isPlainLine(text) && text.back().unicode() < 0x250) {
        const QFontMetricsF metrics(font);
        if (metrics.rightBearing(text.back()) >= 0) {
            QTextOption option;
            option.setUseDesignMetrics(true);
            option.setWrapMode(QTextOption::NoWrap);
            return metrics.horizontalAdvance(text, option);
        }
    }
    return TextBlock(text, font, lineHeight, 0, false, Qt::AlignLeft, 100).naturalWidth();
}

} // namespace

TextFormatter::TextFormatter() : m_blocks(maxBlocks), m_widths(maxWidths)
{
    m_key.family = QStringLiteral("Arial");
}

TextFormatter::~TextFormatter() = default;

void TextFormatter::setFamily(const QString &family)
{
    if (family != m_key.family) {
        m_key.family = family;
        m_current = nullptr;
    }
}

void TextFormatter::setSizeTwips(int twips)
{
    twips = std::max(twips, 1);
    if (twips != m_key.sizeTwips) {
        m_key.sizeTwips = twips;
        m_current = nullptr;
    }
}

void TextFormatter::setBold(bool on)
{
    if (on != m_key.bold) {
        m_key.bold = on;
        m_current = nullptr;
    }
}

void TextFormatter::setItalic(bool on)
{
    if (on != m_key.italic) {
        m_key.italic = on;
        m_current = nullptr;
    }
}

void TextFormatter::setUnderline(bool on)
{
    if (on != m_key.underline) {
        m_key.underline = on;
        m_current = nullptr;
    }
}

void TextFormatter::setStrikeOut(bool on)
{
    if (on != m_key.strikeOut) {
        m_key.strikeOut = on;
        m_current = nullptr;
    }
}

TextFormatter::FontEntry &TextFormatter::currentFont()
{
    if (m_current)
        return *m_current;
    auto it = m_fonts.find(m_key);
    if (it == m_fonts.end()) {
        if (m_fonts.size() >= maxFonts)
            m_fonts.clear();
        QFont font = m_key.family.isEmpty() ? QFont() : QFont(m_key.family);
        // One pixel is one twip. No hinting: glyphs keep their design
        // outlines and advances at every size and on every device.
        font.setPixelSize(m_key.sizeTwips);
        font.setHintingPreference(QFont::PreferNoHinting);
        font.setStyleStrategy(QFont::PreferOutline);
        font.setBold(m_key.bold);
        font.setItalic(m_key.italic);
        font.setUnderline(m_key.underline);
        font.setStrikeOut(m_key.strikeOut);
        const double lineHeight = QFontMetricsF(font).lineSpacing();
        it = m_fonts.insert(m_key, FontEntry{font, lineHeight});
    }
    m_current = &it.value();
    return *m_current;
}

QFont TextFormatter::font()
{
    return currentFont().font;
}

double TextFormatter::lineHeight()
{
    return currentFont().lineHeight;
}

double TextFormatter::inkRoom(QStringView text)
{
    if (m_key.underline || m_key.strikeOut)
        return -1;
    FontEntry &entry = currentFont();
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        if (u >= 0x100)
            return -1;
        if (entry.latin1Seen.test(u)) {
            if (!entry.latin1Glyphs.test(u))
                return -1;
            continue;
        }
        // Each character once per font: its glyph's ink against its line
        // and its advance. Line breaks and tabs leave no ink.
        entry.latin1Seen.set(u);
        if (u == u'\r' || u == u'\n' || u == u'\t') {
            entry.latin1Glyphs.set(u);
            continue;
        }
        const QFontMetricsF metrics(entry.font);
        if (u < 0x20 || !metrics.inFont(c))
            return -1;
        entry.latin1Glyphs.set(u);
        const QRectF ink = metrics.boundingRect(c);
        entry.inkRoom = std::max({entry.inkRoom, -ink.top() - metrics.ascent(),
                                  ink.bottom() - metrics.descent(), -ink.left(),
                                  ink.right() - metrics.horizontalAdvance(c)});
    }
    // The most any character met so far needs: enough for these.
    return entry.inkRoom;
}

double TextFormatter::textWidth(const QString &text)
{
    WidthKey key{m_key, text};
    if (const double *known = m_widths.object(key))
        return *known;
    const FontEntry &entry = currentFont();
    const double width = measureWidth(text, entry.font, entry.lineHeight);
    m_widths.insert(std::move(key), new double(width));
    return width;
}

std::shared_ptr<const TextBlock> TextFormatter::layOut(const QString &text, double width, bool wrap,
                                                       Qt::Alignment alignment, int spacingPercent)
{
    BlockKey key{m_key, text, width, wrap, int(alignment), spacingPercent};
    // An item is laid out to measure it and at once again to draw it (with
    // its frame, an empty block, drawn between): the second asks for a block
    // just made, without hashing its text again.
    for (Recent &recent : m_recent) {
        if (recent.block && recent.key == key)
            return recent.block;
    }
    const size_t hash = qHash(key);
    std::shared_ptr<const TextBlock> block;
    if (auto *cached = m_blocks.object(key)) {
        block = *cached;
    } else {
        const FontEntry &entry = currentFont();
        block = std::make_shared<const TextBlock>(text, entry.font, entry.lineHeight, width, wrap,
                                                  alignment, spacingPercent);
        // Only a text that comes back is kept: the return address and the
        // messages are, each label's own address is not, so it leaves no
        // cache entry to evict.
        size_t &seen = m_seen[hash % m_seen.size()];
        if (seen == hash)
            m_blocks.insert(key, new std::shared_ptr<const TextBlock>(block));
        else
            seen = hash;
    }
    m_recent[1] = std::move(m_recent[0]);
    m_recent[0] = Recent{std::move(key), block};
    return block;
}

} // namespace quirra
