// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "pdfoutput.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>

namespace quirra {

PdfOutput::PdfOutput(const QString &target) : m_target(target) {}

PdfOutput::~PdfOutput()
{
    if (!m_committed)
        discard();
}

bool PdfOutput::open(QString *error)
{
    const QFileInfo info(m_target);
    if (m_target.isEmpty() || info.fileName().isEmpty()) {
        *error = QStringLiteral("the PDF needs a file name");
        return false;
    }
    if (info.isDir()) {
        *error = QStringLiteral("%1 is a folder; give the PDF a file name inside it").arg(m_target);
        return false;
    }
    const QDir folder = info.absoluteDir();
    if (!folder.exists()) {
        *error = QStringLiteral("the folder %1 does not exist; create it first")
                     .arg(QDir::toNativeSeparators(folder.path()));
        return false;
    }
    // Hidden, and named after the target, so a stray one (after a crash) is
    // easy to recognise.
    QTemporaryFile file(
        folder.filePath(QLatin1Char('.') + info.fileName() + QStringLiteral(".XXXXXX.part")));
    file.setAutoRemove(false);
    if (!file.open()) {
        *error = QStringLiteral("cannot write in the folder %1: %2")
                     .arg(QDir::toNativeSeparators(folder.path()), file.errorString());
        return false;
    }
    m_temporary = file.fileName();
    file.close();
    m_committed = false;
    return true;
}

bool PdfOutput::commit(QString *error)
{
    if (m_temporary.isEmpty()) {
        *error = QStringLiteral("no PDF was started");
        return false;
    }
    if (QFileInfo(m_temporary).size() == 0) {
        discard();
        *error = QStringLiteral("no page was written to %1").arg(m_target);
        return false;
    }
    const QByteArray from = QFile::encodeName(m_temporary);
    const QByteArray to = QFile::encodeName(m_target);
    const mode_t mask = umask(0);
    umask(mask);
    ::chmod(from.constData(), 0666 & ~mask);
    // rename() replaces an existing target in one step.
    if (std::rename(from.constData(), to.constData()) != 0) {
        const QString why = QString::fromLocal8Bit(std::strerror(errno));
        discard();
        *error = QStringLiteral("cannot write %1: %2").arg(m_target, why);
        return false;
    }
    m_committed = true;
    m_temporary.clear();
    return true;
}

void PdfOutput::discard()
{
    if (!m_temporary.isEmpty())
        QFile::remove(m_temporary);
    m_temporary.clear();
}

} // namespace quirra
