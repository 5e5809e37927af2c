// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

// Reads back what a PDF file holds with the poppler tools: page sizes from
// pdfinfo, words and their boxes from pdftotext -bbox, the pages as pictures
// from pdftoppm. Lengths in points.

#include <QDir>
#include <QImage>
#include <QList>
#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <QSizeF>
#include <QString>
#include <QTemporaryDir>

#include <algorithm>

namespace pdfprobe {

struct Word
{
    int page; // from 1
    QString text;
    QRectF box;
};

struct Line
{
    int page;
    QString text; // words joined by one blank
    double left, right, top;
};

inline QString run(const QString &tool, const QStringList &args)
{
    QProcess p;
    p.start(tool, args);
    return p.waitForFinished(30000) && p.exitCode() == 0
               ? QString::fromUtf8(p.readAllStandardOutput())
               : QString();
}

/** Size of every page; empty when the file is not a readable PDF. */
inline QList<QSizeF> pageSizes(const QString &file)
{
    static const QRegularExpression re(QStringLiteral(R"(Page\s+\d+ size:\s+([\d.]+) x ([\d.]+))"));
    QList<QSizeF> sizes;
    for (auto it = re.globalMatch(run("pdfinfo", {"-f", "1", "-l", "100000", file}));
         it.hasNext();) {
        const auto m = it.next();
        sizes.append(QSizeF(m.captured(1).toDouble(), m.captured(2).toDouble()));
    }
    return sizes;
}

// pdftotext -bbox writes a word as XML text: "&quot;" for '"' and so on.
inline QString unescaped(QString text)
{
    return text.replace(QLatin1String("&quot;"), QLatin1String("\""))
        .replace(QLatin1String("&apos;"), QLatin1String("'"))
        .replace(QLatin1String("&lt;"), QLatin1String("<"))
        .replace(QLatin1String("&gt;"), QLatin1String(">"))
        .replace(QLatin1String("&amp;"), QLatin1String("&"));
}

inline QList<Word> words(const QString &file)
{
    static const QRegularExpression re(QStringLiteral(
        R"re(<page |<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">([^<]*)</word>)re"));
    QList<Word> result;
    int page = 0;
    for (auto it = re.globalMatch(run("pdftotext", {"-bbox", file, "-"})); it.hasNext();) {
        const auto m = it.next();
        if (m.captured(0).startsWith(QLatin1String("<page")))
            ++page;
        else
            result.append(
                Word{page, unescaped(m.captured(5)),
                     QRectF(QPointF(m.captured(1).toDouble(), m.captured(2).toDouble()),
                            QPointF(m.captured(3).toDouble(), m.captured(4).toDouble()))});
    }
    return result;
}

/** The first word of that text (on that page, if one is given); nullptr when there is none. */
inline const Word *find(const QList<Word> &words, const QString &text, int page = 0)
{
    const auto it = std::find_if(words.begin(), words.end(), [&](const Word &w) {
        return w.text == text && (page == 0 || w.page == page);
    });
    return it == words.end() ? nullptr : &*it;
}

/** Every page in grey at that many dots an inch; none when the file cannot be read. */
inline QList<QImage> pages(const QString &file, int dpi)
{
    QTemporaryDir folder;
    run("pdftoppm", {"-r", QString::number(dpi), "-gray", "-png", file, folder.filePath("p")});
    QList<QImage> result;
    // The page numbers in the names have one width, so they sort as names.
    for (const QString &name : QDir(folder.path()).entryList(QDir::Files, QDir::Name))
        result << QImage(folder.filePath(name)).convertToFormat(QImage::Format_Grayscale8);
    return result;
}

/** Words grouped into lines by page and top edge, top to bottom. */
inline QList<Line> lines(const QString &file)
{
    QList<Line> result;
    for (const Word &w : words(file)) {
        auto it = std::find_if(result.begin(), result.end(), [&](const Line &l) {
            return l.page == w.page && qAbs(l.top - w.box.top()) < 0.5;
        });
        if (it == result.end()) {
            result.append(Line{w.page, w.text, w.box.left(), w.box.right(), w.box.top()});
        } else {
            it->text += QLatin1Char(' ') + w.text;
            it->left = std::min(it->left, w.box.left());
            it->right = std::max(it->right, w.box.right());
        }
    }
    std::sort(result.begin(), result.end(), [](const Line &a, const Line &b) {
        return a.page != b.page ? a.page < b.page : a.top < b.top;
    });
    return result;
}

} // namespace pdfprobe
