// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>
#include <Qt>

#include <memory>
#include <vector>

class QPainter;
class QPointF;
class QTextLayout;

namespace quirra {

/**
 * @brief One text laid out for a box: its lines, broken and aligned, in
 * twips, ready to be drawn on any painter that works in twips.
 *
 * The layout never looks at a paint device: the font's pixel is a twip and
 * glyph advances are the font's design advances, so a preview, a PDF file and
 * a printer all break and place every line alike.
 */
class TextBlock
{
public:
    /**
     * @brief Lays out text.
     * @param font a font whose pixel size is its size in twips
     * @param lineHeight the font's own line height, in twips
     * @param width the width lines are broken to, in twips; with wrap off the
     *        width only serves alignment
     * @param wrap break lines at word boundaries (inside a word that is wider
     *        than the width); a width under one twip turns wrapping off
     * @param alignment Qt::AlignLeft, AlignHCenter, AlignRight or AlignJustify
     * @param spacingPercent line pitch in percent of lineHeight
     */
    TextBlock(const QString &text, const QFont &font, double lineHeight, double width, bool wrap,
              Qt::Alignment alignment, int spacingPercent);
    ~TextBlock();
    TextBlock(const TextBlock &) = delete;
    TextBlock &operator=(const TextBlock &) = delete;

    /** @brief Lines laid out; a line break at the very end of the text adds none. */
    int lineCount() const { return m_lineCount; }
    /** @brief Line count times line pitch, in twips. */
    double height() const { return m_height; }
    /** @brief Width of the widest line, trailing blanks left out, in twips. */
    double naturalWidth() const { return m_naturalWidth; }
    /** @brief Width of the last line including trailing blanks, in twips. */
    double lastLineAdvance() const { return m_lastLineAdvance; }

    /** @brief Draws the lines with the block's top-left at topLeft (twips) in the painter's pen. */
    void draw(QPainter &painter, const QPointF &topLeft) const;

    /** @brief The text's lines as CR, CR LF and LF separate them. */
    static QStringList splitLines(const QString &text);

private:
    std::vector<std::unique_ptr<QTextLayout>> m_paragraphs;
    int m_lineCount = 0;
    double m_height = 0;
    double m_naturalWidth = 0;
    double m_lastLineAdvance = 0;
};

} // namespace quirra
