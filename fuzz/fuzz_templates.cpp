// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// A template file of any bytes, read as the catalogue reads the label
// template database: every template either comes out with a geometry that
// fits its sheet or is skipped with a warning; nothing crashes or hangs.
#include "catalogue/templatereader.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>

using namespace quirra;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const PaperSizes papers = {{QStringLiteral("A4"), QSizeF(8.27, 11.69)},
                                      {QStringLiteral("US-Letter"), QSizeF(8.5, 11)}};
    QBuffer buffer;
    buffer.setData(reinterpret_cast<const char *>(data), qsizetype(size));
    buffer.open(QIODevice::ReadOnly);
    TemplateReadResult result;
    readTemplates(buffer, QStringLiteral("fuzz-templates.xml"), papers, result);
    resolveTemplateAliases(result);
    for (const LabelTemplate &t : result.templates) {
        if (t.across < 1 || t.down < 1 || t.labelWidth <= 0 || t.labelHeight <= 0 ||
            t.pageWidth <= 0 || t.pageHeight <= 0)
            std::abort(); // a template that would divide by zero got through
    }
    return 0;
}
