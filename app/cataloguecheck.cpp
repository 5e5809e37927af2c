// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "cataloguecheck.h"

#include "console.h"

#include "catalogue/catalogue.h"

#include <QFile>
#include <QStringDecoder>

#include <algorithm>
#include <vector>

namespace quirra {

namespace {

// A catalogue is a few hundred lines; a file far larger is not one.
constexpr qint64 MaxCatalogueBytes = 16 << 20;

bool positiveNumber(const QString &text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    return ok && value > 0;
}

// "W x H" with two numbers above 0; counts must also be whole.
bool pairOk(const QString &pair, bool whole)
{
    const qsizetype at = pair.indexOf(QLatin1Char('x'));
    if (at < 0)
        return false;
    const QString a = pair.left(at).trimmed();
    const QString b = pair.mid(at + 1).trimmed();
    if (!whole)
        return positiveNumber(a) && positiveNumber(b);
    bool okA = false, okB = false;
    return a.toInt(&okA) >= 1 && b.toInt(&okB) >= 1 && okA && okB;
}

QString recordProblem(const QString &value)
{
    const QStringList fields = value.split(QLatin1Char(','));
    if (fields.size() < 7)
        return Cli::tr("the piece record has %1 fields; it needs product, piece size, "
                       "page size, margins, pitch, across x down and page description")
            .arg(fields.size());
    static const char *const names[] = {
        QT_TRANSLATE_NOOP("quirra", "piece size"), QT_TRANSLATE_NOOP("quirra", "page size"),
        QT_TRANSLATE_NOOP("quirra", "margins"), QT_TRANSLATE_NOOP("quirra", "pitch")};
    for (int i = 1; i <= 4; ++i) {
        const QString pair = fields[i];
        // Margins may be 0; sizes and pitches may not.
        const bool ok = i == 3 ? pair.contains(QLatin1Char('x')) : pairOk(pair, false);
        if (!ok)
            return Cli::tr("the %1 \"%2\" is not two numbers above 0 (\"W x H\")")
                .arg(Cli::tr(names[i - 1]), pair.trimmed());
    }
    if (!pairOk(fields[5], true))
        return Cli::tr("\"%1\" is not across x down, each 1 or more").arg(fields[5].trimmed());
    return QString();
}

int editDistance(const QString &a, const QString &b)
{
    std::vector<int> row(size_t(b.size()) + 1);
    for (size_t j = 0; j < row.size(); ++j)
        row[j] = int(j);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        int diagonal = row[0];
        row[0] = int(i);
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const int above = row[size_t(j)];
            row[size_t(j)] = std::min(
                {above + 1, row[size_t(j - 1)] + 1, diagonal + (a[i - 1] == b[j - 1] ? 0 : 1)});
            diagonal = above;
        }
    }
    return row.back();
}

} // namespace

QString catalogueProblem(const QString &file)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        return Cli::tr("%1: cannot be read: %2").arg(file, input.errorString());
    if (input.size() > MaxCatalogueBytes)
        return Cli::tr("%1: line 1: the file is %2 MB, far too large for a catalogue")
            .arg(file)
            .arg(input.size() >> 20);
    const QByteArray bytes = input.readAll();
    const QList<QByteArray> lines = bytes.split('\n');
    bool inDetails = false, sawDetails = false;
    for (qsizetype n = 0; n < lines.size(); ++n) {
        auto at = [&](const QString &what) {
            return QStringLiteral("%1: line %2: %3").arg(file).arg(n + 1).arg(what);
        };
        const QByteArray &raw = lines[n];
        if (raw.contains('\0'))
            return at(Cli::tr("the line holds a NUL byte; this is no catalogue text"));
        QStringDecoder utf8(QStringDecoder::Utf8);
        const QString line = QString(utf8(raw)).trimmed();
        if (utf8.hasError())
            return at(Cli::tr("the text is not UTF-8; this is no catalogue text"));
        if (line.isEmpty() || line.startsWith(QLatin1Char(';')))
            continue;
        if (line.startsWith(QLatin1Char('['))) {
            if (!line.endsWith(QLatin1Char(']')))
                return at(Cli::tr("a section name without its closing \"]\""));
            inDetails = line.mid(1, line.size() - 2)
                            .trimmed()
                            .compare(DetailsSection, Qt::CaseInsensitive) == 0;
            sawDetails = sawDetails || inDetails;
            continue;
        }
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (equals <= 0)
            return at(Cli::tr("neither a [section] nor a NAME=VALUE line"));
        if (inDetails) {
            const QString problem = recordProblem(line.mid(equals + 1));
            if (!problem.isEmpty())
                return at(
                    QStringLiteral("piece \"%1\": %2").arg(line.left(equals).trimmed(), problem));
        }
    }
    if (!sawDetails)
        return Cli::tr("%1: line %2: the file ends without a [%3] section of pieces")
            .arg(file)
            .arg(lines.size())
            .arg(DetailsSection);
    return QString();
}

QStringList nearestPieceNames(const QString &file, const QString &name, int count)
{
    QStringList names;
    for (const QString &family : {LaserFamilySection, DotMatrixFamilySection}) {
        for (const QString &product : ReadProductList(file, family)) {
            if (!product.isEmpty())
                names << ReadPieceList(file, product);
        }
    }
    names.removeAll(QString());
    names.removeDuplicates();
    const QString wanted = name.toCaseFolded();
    struct Candidate
    {
        bool holds;
        int distance;
        QString name;
    };
    std::vector<Candidate> candidates;
    for (const QString &candidate : names) {
        const QString folded = candidate.toCaseFolded();
        candidates.push_back({folded.contains(wanted), editDistance(wanted, folded), candidate});
    }
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const Candidate &a, const Candidate &b) {
                         if (a.holds != b.holds)
                             return a.holds;
                         return a.distance < b.distance;
                     });
    QStringList nearest;
    for (const Candidate &c : candidates) {
        if (nearest.size() == count)
            break;
        nearest << c.name;
    }
    return nearest;
}

} // namespace quirra
