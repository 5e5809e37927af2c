// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// A catalogue file of any bytes, read as the selection dialog and the
// control read it: the product lists, every piece's record decoded, every
// piece loaded into the model (its page setup and default layout derived),
// the paper size list. Junk must read as empty text and zeros, or fail with
// the library's error, never crash.
#include "catalogue/catalogue.h"
#include "catalogue/pieceloader.h"
#include "model/error.h"
#include "model/piecemodel.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdint>

using namespace quirra;

namespace {

// Each input gets a folder of its own: a parsed file is kept until its size,
// time or inode changes, and two inputs of one size may well be written
// within one tick of the file system's clock.
QString writeCatalogue(const QByteArray &text)
{
    static QTemporaryDir root;
    static quint64 serial = 0;
    const QString folder = root.filePath(QString::number(serial++));
    QDir().mkpath(folder);
    QFile file(folder + QStringLiteral("/quirra.cfg"));
    if (file.open(QIODevice::WriteOnly))
        file.write(text);
    return folder;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString folder =
        writeCatalogue(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    qputenv("QUIRRA_SYSTEM_DIR", QFile::encodeName(folder));
    qputenv("QUIRRA_PAPER_CATALOGUE", QFile::encodeName(folder + QStringLiteral("/quirra.cfg")));
    const QString file = CatalogueFilePath();

    // Every lookup opens the file (as the classic profile call does), so an
    // input gets one product list, one piece list and a few records: the
    // fuzzer stays quick.
    QStringList names;
    const QStringList products = ReadProductList(file, LaserFamilySection);
    if (!products.isEmpty())
        names = ReadPieceList(file, products.first()).mid(0, 4);
    // Records the lists do not reach: any "name=" line of the input.
    const QByteArray text(reinterpret_cast<const char *>(data), qsizetype(size));
    for (const QByteArray &line : text.split('\n')) {
        const qsizetype equals = line.indexOf('=');
        if (equals > 0 && names.size() < 10)
            names << QString::fromUtf8(line.left(equals)).trimmed();
    }
    PieceModel model;
    for (const QString &name : std::as_const(names)) {
        const PieceSpec entry = ReadPieceSpec(file, name);
        ReadPieceType(name);
        ReadPieceProduct(name);
        try {
            ApplyPieceSpec(entry, model);
            LoadPieceByName(name, model);
        } catch (const Error &) {
            // Numbers out of range are the library's error to raise.
        }
    }
    const QStringList captions = ReadPaperSizeCaptions();
    for (int i = 0; i < qMin<int>(int(captions.size()), 4); ++i) {
        float width = 0, height = 0;
        ReadPaperSize(i, width, height);
    }

    QFile::remove(folder + QStringLiteral("/quirra.cfg"));
    QDir().rmdir(folder);
    return 0;
}
