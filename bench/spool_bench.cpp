// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// Feeds N records through the spool writer, then reads them back through the
// reader and the address rules, and prints the rate of each phase and the
// peak memory. Run it at two sizes: the peak should hardly move with N.
//
//     spool_bench [N]        (default 1000000)
#include "records/addressrules.h"
#include "records/record.h"
#include "records/sharedspool.h"
#include "records/spoolwriter.h"
#include "records/textmeasurer.h"
#include "settings/files.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>

#include <cstdio>
#include <cstdlib>

#include <sys/resource.h>

using namespace quirra;

namespace {

// 110 twips a character: about Arial at 10 points.
class FixedWidthMeasurer : public TextMeasurer
{
public:
    double TextWidth(const QString &text) override { return 110.0 * double(text.size()); }
};

long peakKiB()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

void report(const char *phase, long long records, qint64 ms)
{
    const double seconds = qMax<qint64>(ms, 1) / 1000.0;
    std::printf("%-8s %10lld records in %8.3f s: %12.0f records/s, peak RSS %ld KiB\n", phase,
                records, seconds, double(records) / seconds, peakKiB());
}

} // namespace

int main(int argc, char **argv)
{
    // An application object, so the writer yields to a real event loop on
    // every record as it does in a host.
    QCoreApplication app(argc, argv);
    long long count = 1000000;
    if (argc > 1) {
        char *end = nullptr;
        count = std::strtoll(argv[1], &end, 10);
        if (!end || *end || count < 0) {
            std::fprintf(stderr, "usage: spool_bench [number of records]\n");
            return 2;
        }
    }
    std::printf("start    peak RSS %ld KiB\n", peakKiB());

    SharedSpool &spool = SharedSpool::instance();
    const QString path = spool.makeNewSpoolFile();

    QElapsedTimer clock;
    clock.start();
    {
        SpoolWriter writer;
        Record r;
        writer.StartDoc();
        for (long long i = 0; i < count; ++i) {
            const QString n = QString::number(i);
            r.clear();
            r.setValue(RecordField::nm_first, QStringLiteral("Firstname") + n);
            r.setValue(RecordField::nm_middle, QStringLiteral("Q"));
            r.setValue(RecordField::nm_last, QStringLiteral("Lastname"));
            r.setValue(RecordField::addr_1, n + QStringLiteral(" Main Street"));
            if (i % 3 == 0) {
                r.setValue(RecordField::addr_2, QStringLiteral("Apartment 4B"));
            }
            r.setValue(RecordField::city, i % 7 ? QStringLiteral("Springfield")
                                                : QStringLiteral("Saint Clair Shores Township"));
            r.setValue(RecordField::state, QStringLiteral("il"));
            r.setValue(RecordField::zip, QStringLiteral("62704"));
            r.setValue(RecordField::substitute, QStringLiteral("salut^Dear reader|id^") + n);
            writer.NewPiece(r);
        }
        writer.EndDoc();
    }
    report("write", count, clock.elapsed());
    std::printf("spool    %lld bytes\n", static_cast<long long>(QFileInfo(path).size()));

    clock.restart();
    FixedWidthMeasurer measurer;
    AddressLines lines;
    QString substitute;
    long long read = 0;
    long long checksum = 0;
    SpoolReader &reader = spool.reader();
    reader.setSpoolExhausted(false);
    const QString message = QStringLiteral("<<salut>>, your number is <<id>>.");
    while (!ComposeAddressLines(reader, measurer, DefaultWidestCityLine, lines, substitute)) {
        ++read;
        checksum += lines[3].size() + ReplaceTokens(message, substitute).size();
    }
    report("read", read, clock.elapsed());
    std::printf("check    %lld characters\n", checksum);

    DeleteFileAndWait(path);
    return read == count ? 0 : 1;
}
