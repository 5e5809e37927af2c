// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "records/record.h"

#include "settings/strings.h"

#include <QStringEncoder>

namespace quirra {

namespace {

constexpr int index(RecordField field)
{
    return static_cast<int>(field);
}

// The spool's line for one field: the city carries a comma when a state
// follows it, so the address line reads "Springfield,  IL  62704".
bool cityTakesComma(const std::array<QString, RecordFieldCount> &values, int i)
{
    return i == index(RecordField::city) && !values[i].isEmpty() &&
           !values[index(RecordField::state)].isEmpty();
}

QString describe(int i)
{
    return RecordColumnNames().at(i);
}

} // namespace

const QStringList &RecordColumnNames()
{
    static const QStringList names = {
        QStringLiteral("nm_first"), QStringLiteral("nm_middle"),  QStringLiteral("nm_last"),
        QStringLiteral("addr_1"),   QStringLiteral("addr_2"),     QStringLiteral("city"),
        QStringLiteral("state"),    QStringLiteral("zip"),        QStringLiteral("carrier_r"),
        QStringLiteral("bar_code"), QStringLiteral("substitute"),
    };
    return names;
}

Record::Record()
{
    clear();
}

void Record::setValue(RecordField field, const QString &value)
{
    const int i = index(field);
    if (i < 0 || i >= RecordFieldCount) {
        return;
    }
    // A null value (a host that passed nothing) is stored as the empty text.
    QString trimmed = TrimBlanks(value);
    m_values[i] = trimmed.isNull() ? QString(QLatin1String("")) : trimmed;
}

const QString &Record::value(RecordField field) const
{
    static const QString none = QLatin1String("");
    const int i = index(field);
    return i < 0 || i >= RecordFieldCount ? none : m_values[i];
}

void Record::clear()
{
    for (QString &v : m_values) {
        v = QLatin1String("");
    }
}

QString Record::spoolLine() const
{
    QByteArray bytes;
    appendSpoolLine(bytes);
    bytes.chop(2);
    return QString::fromUtf8(bytes);
}

void Record::appendSpoolLine(QByteArray &out) const
{
    // Encoded straight into out, with no text of its own per value.
    QStringEncoder encoder(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    for (int i = 0; i < RecordFieldCount; ++i) {
        if (i > 0) {
            out.append(',');
        }
        out.append('"');
        const QString &v = m_values[i];
        const qsizetype at = out.size();
        out.resize(at + encoder.requiredSpace(v.size()));
        const char *end = encoder.appendToBuffer(out.data() + at, v);
        out.truncate(end - out.constData());
        if (cityTakesComma(m_values, i)) {
            out.append(',');
        }
        out.append('"');
    }
    out.append("\r\n", 2);
}

QString Record::spoolProblem() const
{
    // One look at every character first: nearly every record is clean.
    bool clean = true;
    for (const QString &v : m_values) {
        for (const QChar c : v) {
            const char16_t u = c.unicode();
            clean = clean && u != u'"' && u != u'\n' && u != u'\r';
        }
    }
    if (clean)
        return QString();
    for (int i = 0; i < RecordFieldCount; ++i) {
        const QString &v = m_values[i];
        if (v.contains(QLatin1Char('"'))) {
            return QStringLiteral("The %1 value holds a double quote (%2); the spool cannot "
                                  "carry one, it would shift the later columns.")
                .arg(describe(i), v);
        }
        if (v.contains(QLatin1Char('\n')) || v.contains(QLatin1Char('\r'))) {
            return QStringLiteral("The %1 value holds a line break; the spool cannot carry one, "
                                  "it would shift the later columns.")
                .arg(describe(i));
        }
    }
    return QString();
}

QString Record::spoolHeaderLine()
{
    QString line;
    for (const QString &name : RecordColumnNames()) {
        if (!line.isEmpty()) {
            line += QLatin1Char(',');
        }
        line += QLatin1Char('"') + name + QLatin1Char('"');
    }
    return line;
}

} // namespace quirra
