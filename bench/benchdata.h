// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <array>

// The made-up recipients of the benchmarks: the same N records every time,
// each with a last name that carries its number, so that the names found in
// a PDF can be counted and no record goes missing unseen.
namespace quirra::bench {

inline const QString LabelPiece = QStringLiteral("5160 - Address Labels");
inline const QString EnvelopePiece = QStringLiteral("Size 10 - Envelope");
/** The envelopes' return address, as quirra's --set takes it ("\n" breaks). */
inline const QString ReturnText =
    QStringLiteral("Northwind Mail Room\\n400 Commerce Way\\nSeattle, WA 98101");
inline const QString MessageSecondLine = QStringLiteral("your spring catalogue is inside.");
/** The envelopes' message, with a token filled from each row's salutation column. */
inline const QString MessageText = QStringLiteral("Dear <<salutation>>,\\n") + MessageSecondLine;

struct Person
{
    QString first, middle, last, address1, address2, city, state, zip, salutation;

    /** The address block as it prints: name, street lines, city line. */
    QStringList addressLines() const
    {
        QStringList lines{first + QLatin1Char(' ') + middle + QLatin1Char(' ') + last, address1};
        if (!address2.isEmpty())
            lines << address2;
        lines << city + QStringLiteral(", ") + state + QStringLiteral("  ") + zip;
        return lines;
    }
};

class RecordMaker
{
public:
    static QByteArray csvHeader()
    {
        return QByteArrayLiteral("first,middle,last,address1,address2,city,state,zip,salutation\n");
    }

    /** The record numbered i (from 0); its last name ends in i. */
    Person person(qint64 i) const
    {
        static const std::array<const char *, 12> firsts = {
            "Margaret", "Daniel", "Priya",  "Tomasz", "Aisha",  "Henrik",
            "Lucia",    "Kenji",  "Olivia", "Samuel", "Ingrid", "Mateo"};
        static const std::array<const char *, 10> lasts = {
            "Holloway",  "Okafor",   "Raman",  "Nowak",   "Haddad",
            "Lindqvist", "Ferreira", "Tanaka", "Brennan", "Castillo"};
        static const std::array<const char *, 8> streets = {
            "Birchwood Ln",   "Harbor View Dr", "Maple Ave",   "Old Mill Rd",
            "Lakeshore Blvd", "Cedar Ct",       "Prospect St", "Willow Way"};
        static const std::array<std::array<const char *, 3>, 6> places = {{
            {"Springfield", "IL", "627"},
            {"Portland", "ME", "041"},
            {"Saint Clair Shores", "MI", "480"},
            {"Boulder", "CO", "803"},
            {"Savannah", "GA", "314"},
            {"Tacoma", "WA", "984"},
        }};
        Person p;
        const auto at = [](qint64 n, size_t size) { return size_t(n % qint64(size)); };
        p.first = QString::fromLatin1(firsts[at(i, firsts.size())]);
        p.middle = QChar(u'A' + char16_t(i % 26));
        const QString surname = QString::fromLatin1(lasts[at(i / 7, lasts.size())]);
        p.last = surname + QString::number(i);
        p.address1 = QString::number(100 + (i * 37) % 9900) + QLatin1Char(' ') +
                     QString::fromLatin1(streets[at(i / 3, streets.size())]);
        if (i % 4 == 1)
            p.address2 = QStringLiteral("Apt ") + QString::number(1 + i % 40);
        const auto &place = places[at(i / 5, places.size())];
        p.city = QString::fromLatin1(place[0]);
        p.state = QString::fromLatin1(place[1]);
        p.zip = QString::fromLatin1(place[2]) +
                QStringLiteral("%1").arg(i % 100, 2, 10, QLatin1Char('0'));
        p.salutation = (i % 2 ? QStringLiteral("Mr. ") : QStringLiteral("Ms. ")) + surname;
        return p;
    }

    /** The record as one CSV row, line end included. No value needs quoting. */
    QByteArray csvRow(qint64 i) const
    {
        const Person p = person(i);
        return QStringList{p.first, p.middle, p.last, p.address1,  p.address2,
                           p.city,  p.state,  p.zip,  p.salutation}
                   .join(QLatin1Char(','))
                   .toUtf8() +
               '\n';
    }
};

} // namespace quirra::bench
