// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// A spool file of any bytes, read back as a print run reads it: records
// through the address rules, their tokens replaced in an item text. The
// reader must reach the end in a bounded number of records and never crash.
#include "records/addressrules.h"
#include "records/spoolreader.h"
#include "records/textmeasurer.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

using namespace quirra;

namespace {

// About a 10-point sans serif: 110 twips a character.
class FixedWidthMeasurer : public TextMeasurer
{
public:
    double TextWidth(const QString &text) override { return 110.0 * double(text.size()); }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("spool.tmp"));
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return 0;
        file.write(reinterpret_cast<const char *>(data), qint64(size));
    }

    SpoolReader reader;
    reader.setPath(path);
    FixedWidthMeasurer measurer;
    AddressLines lines;
    QString substitute;
    const QString text = QStringLiteral("Dear <<salutation>>, <<a>><<b>>");
    // Every record takes at least one byte of the file.
    const size_t bound = size + 2;
    size_t records = 0;
    while (!ComposeAddressLines(reader, measurer, DefaultWidestCityLine, lines, substitute)) {
        ReplaceTokens(text, substitute);
        if (++records > bound)
            std::abort(); // the reader stopped moving
    }
    if (!reader.spoolExhausted() && reader.isReaderOpen())
        std::abort(); // ended without saying so
    return 0;
}
