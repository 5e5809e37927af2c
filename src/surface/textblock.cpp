// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "surface/textblock_p.h"

#include <QPainter>
#include <QPointF>
#include <QStringList>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>

namespace quirra {

QStringList TextBlock::splitLines(const QString &text)
{
    QStringList lines;
    qsizetype start = 0;
    const qsizetype n = text.size();
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = text.at(i);
        if (c != u'\r' && c != u'\n')
            continue;
        lines.append(text.mid(start, i - start));
        if (c == u'\r' && i + 1 < n && text.at(i + 1) == u'\n')
            ++i;
        start = i + 1;
    }
    // "A\r" is one line, as a printer ends a line at its return.
    if (start < n)
        lines.append(text.mid(start));
    return lines;
}

namespace {

// The lines of text (as splitLines() gives them) joined by line separators,
// in one pass. False when a line before the last ends in blanks: a separator
// would leave its blanks out of its width and so shift it when it is centred
// or set right, so such lines are laid out one by one.
bool joinLines(const QString &text, QString &joined)
{
    const qsizetype n = text.size();
    joined.reserve(n);
    qsizetype lineStart = 0;
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = text.at(i);
        if (c != u'\r' && c != u'\n') {
            joined.append(c);
            continue;
        }
        if (c == u'\r' && i + 1 < n && text.at(i + 1) == u'\n')
            ++i;
        if (i + 1 == n)
            break; // "A\r" is one line, as a printer ends a line at its return
        if (joined.size() > lineStart && joined.back().isSpace())
            return false;
        joined.append(QChar::LineSeparator);
        lineStart = joined.size();
    }
    return true;
}

} // namespace

TextBlock::TextBlock(const QString &text, const QFont &font, double lineHeight, double width,
                     bool wrap, Qt::Alignment alignment, int spacingPercent)
{
    const double pitch = lineHeight * spacingPercent / 100.0;
    if (width < 1.0)
        wrap = false;

    QTextOption option;
    option.setUseDesignMetrics(true);
    option.setAlignment(alignment);
    option.setWrapMode(wrap ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);

    const auto layOutParagraph = [&](const QString &paragraph) {
        auto layout = std::make_unique<QTextLayout>(paragraph, font);
        layout->setTextOption(option);
        // Keep the shaped glyphs: a block is laid out once and drawn many times.
        layout->setCacheEnabled(true);
        layout->beginLayout();
        for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
            line.setLineWidth(width);
            // A line that does not fit unwrapped starts at the box's left edge
            // and runs on to the right, whatever the alignment.
            if (!wrap && line.naturalTextWidth() > width)
                line.setLineWidth(line.naturalTextWidth());
            line.setPosition(QPointF(0, m_lineCount * pitch));
            m_naturalWidth = std::max(m_naturalWidth, line.naturalTextWidth());
            m_lastLineAdvance = line.horizontalAdvance();
            ++m_lineCount;
        }
        layout->endLayout();
        m_paragraphs.push_back(std::move(layout));
    };
    // Unwrapped lines (an address) go into one layout, each ended by a line
    // separator: one shaping pass and one allocation instead of one per line.
    if (!wrap) {
        QString joined;
        if (joinLines(text, joined)) {
            if (!text.isEmpty()) // a lone line break is one empty line
                layOutParagraph(joined);
            m_height = m_lineCount * pitch;
            return;
        }
    }
    const QStringList paragraphs = splitLines(text);
    m_paragraphs.reserve(paragraphs.size());
    for (const QString &paragraph : paragraphs)
        layOutParagraph(paragraph);
    m_height = m_lineCount * pitch;
}

TextBlock::~TextBlock() = default;

void TextBlock::draw(QPainter &painter, const QPointF &topLeft) const
{
    for (const auto &layout : m_paragraphs)
        layout->draw(&painter, topLeft);
}

} // namespace quirra
