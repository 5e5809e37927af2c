// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "surface/glyphcoverage.h"

#include <QGlyphRun>
#include <QHash>
#include <QStringView>
#include <QTextLayout>

#include <algorithm>

namespace quirra {

namespace {

// Distinct characters remembered; a text of every code point ever written
// clears the memory and goes on.
constexpr qsizetype MaxRemembered = 1 << 16;

bool drawsNothing(char32_t c)
{
    const QChar::Category category = QChar::category(c);
    return category == QChar::Other_Control || category == QChar::Other_Format ||
           category == QChar::Separator_Line || category == QChar::Separator_Paragraph;
}

// Lays the character out as a text box would, font fallback and all: a
// glyph index of 0 is the "no such glyph" box every font draws instead.
bool anyFontDraws(char32_t c)
{
    QTextLayout layout(QString::fromUcs4(&c, 1));
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    if (runs.isEmpty())
        return false;
    for (const QGlyphRun &run : runs) {
        for (quint32 glyph : run.glyphIndexes()) {
            if (glyph == 0)
                return false;
        }
    }
    return true;
}

} // namespace

QString UndrawableCharacters(const QString &text)
{
    // Most texts are plain ASCII, and a run checks every text of every record.
    const auto plain = [](QChar ch) { return ch.unicode() < 0x7f; };
    if (std::all_of(text.cbegin(), text.cend(), plain))
        return QString();

    static QHash<char32_t, bool> known;
    QString missing;
    for (char32_t c : QStringView(text).toUcs4()) {
        // Latin letters, digits and punctuation: every installed face has them.
        if ((c >= 0x20 && c < 0x7f) || drawsNothing(c))
            continue;
        auto it = known.constFind(c);
        if (it == known.cend()) {
            if (known.size() >= MaxRemembered)
                known.clear();
            it = known.insert(c, anyFontDraws(c));
        }
        if (!it.value()) {
            const QString one = QString::fromUcs4(&c, 1);
            if (!missing.contains(one))
                missing += one;
        }
    }
    return missing;
}

} // namespace quirra
