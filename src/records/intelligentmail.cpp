// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "records/intelligentmail.h"

#include <zint.h>

#include <cmath>
#include <memory>

namespace quirra {

namespace {

// The bar pitch is 1/22 in; the postal service takes 20 to 24 bars an inch,
// 0.015 to 0.025 in wide, full bars 0.125 to 0.165 in high and trackers
// 0.039 to 0.057 in.
constexpr double PitchTwips = 1440.0 / 22.0;
constexpr int BarWidth = 29;      // twips, 0.020 in
constexpr int FullHeight = 208;   // twips, 0.144 in
constexpr int TrackerHeight = 72; // twips, 0.050 in
constexpr int TrackerTop = (FullHeight - TrackerHeight) / 2;

constexpr int TrackingDigits = 20;

bool allDigits(const QString &text)
{
    for (const QChar c : text)
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return false;
    return true;
}

bool routingLength(qsizetype n)
{
    return n == 0 || n == 5 || n == 9 || n == 11;
}

struct SymbolDeleter
{
    void operator()(zint_symbol *symbol) const { ZBarcode_Delete(symbol); }
};

bool module(const zint_symbol &symbol, int row, int column)
{
    return (symbol.encoded_data[row][column / 8] >> (column % 8)) & 1;
}

} // namespace

IntelligentMailBarcode::IntelligentMailBarcode(const QString &barCode, const QString &zip)
{
    QString code = barCode.trimmed();
    if (code.isEmpty()) {
        m_error = QStringLiteral("the bar code is empty");
        return;
    }
    // The routing code may follow the tracking code directly or after one
    // dash or blank.
    if (code.size() > TrackingDigits && (code.at(TrackingDigits) == QLatin1Char('-') ||
                                         code.at(TrackingDigits) == QLatin1Char(' ')))
        code.remove(TrackingDigits, 1);
    if (!allDigits(code)) {
        m_error = QStringLiteral("\"%1\" holds more than digits (20 digits, then 0, 5, 9 or 11)")
                      .arg(barCode);
        return;
    }
    m_tracking = code.left(TrackingDigits);
    m_routing = code.mid(TrackingDigits);
    if (m_tracking.size() < TrackingDigits || !routingLength(m_routing.size())) {
        m_error = QStringLiteral("\"%1\" has %2 digits: a code has 20, 25, 29 or 31")
                      .arg(barCode)
                      .arg(code.size());
        return;
    }
    // The barcode identifier's second digit is 0 to 4.
    if (m_tracking.at(1) > QLatin1Char('4')) {
        m_error = QStringLiteral("\"%1\": the second digit of the tracking code must be 0 to 4")
                      .arg(barCode);
        return;
    }
    if (m_routing.isEmpty()) {
        QString digits;
        for (const QChar c : zip)
            if (c.isDigit())
                digits.append(c);
        if (!routingLength(digits.size())) {
            m_error = QStringLiteral("\"%1\" has no routing code and the ZIP code \"%2\" gives "
                                     "none (5, 9 or 11 digits)")
                          .arg(barCode, zip);
            return;
        }
        m_routing = digits;
    }

    std::unique_ptr<zint_symbol, SymbolDeleter> symbol(ZBarcode_Create());
    symbol->symbology = BARCODE_USPS_IMAIL;
    const QByteArray data =
        (m_routing.isEmpty() ? m_tracking : m_tracking + QLatin1Char('-') + m_routing).toLatin1();
    const int status = ZBarcode_Encode(
        symbol.get(), reinterpret_cast<const unsigned char *>(data.constData()), int(data.size()));
    if (status >= ZINT_ERROR || symbol->rows != 3 || symbol->width != 2 * BarCount - 1) {
        m_error = QStringLiteral("\"%1\" cannot be encoded: %2")
                      .arg(barCode, QString::fromLatin1(symbol->errtxt));
        return;
    }
    // Three rows of modules: the ascending part, the tracker, the
    // descending part; a bar stands in every second column.
    m_bars.reserve(BarCount);
    for (int bar = 0; bar < BarCount; ++bar) {
        const bool up = module(*symbol, 0, 2 * bar);
        const bool down = module(*symbol, 2, 2 * bar);
        m_bars.append(QLatin1Char(up && down ? Full : up ? Ascender : down ? Descender : Tracker));
    }
}

int IntelligentMailBarcode::heightTwips()
{
    return FullHeight;
}

int IntelligentMailBarcode::widthTwips()
{
    return int(std::lround((BarCount - 1) * PitchTwips)) + BarWidth;
}

QList<QRect> IntelligentMailBarcode::barRects(const QPoint &origin) const
{
    QList<QRect> rects;
    rects.reserve(m_bars.size());
    for (qsizetype i = 0; i < m_bars.size(); ++i) {
        const int left = origin.x() + int(std::lround(i * PitchTwips));
        const char state = m_bars.at(i).toLatin1();
        const int top = (state == Full || state == Ascender) ? 0 : TrackerTop;
        const int bottom =
            (state == Full || state == Descender) ? FullHeight : TrackerTop + TrackerHeight;
        rects.append(QRect(left, origin.y() + top, BarWidth, bottom - top));
    }
    return rects;
}

} // namespace quirra
