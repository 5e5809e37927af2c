// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quirra {

/**
 * @brief A PDF file that appears whole or not at all.
 *
 * The pages are written to a temporary file beside the target (same folder,
 * so the final rename cannot cross file systems) and renamed over the target
 * when the run succeeded. A failed run, an exception or an early return
 * removes the temporary file, and an older file of the target's name stays
 * as it was until the new one is complete.
 */
class PdfOutput
{
public:
    /** @brief target: the PDF file to produce (relative to the current folder or absolute). */
    explicit PdfOutput(const QString &target);

    /** @brief Removes the temporary file unless commit() succeeded. */
    ~PdfOutput();

    PdfOutput(const PdfOutput &) = delete;
    PdfOutput &operator=(const PdfOutput &) = delete;

    /**
     * @brief Creates the temporary file beside the target.
     * @return false with a message when the folder is missing or not
     * writable, or the target is a folder.
     */
    bool open(QString *error);

    /** @brief Where the pages are to be written until commit(); empty before open(). */
    QString temporaryPath() const { return m_temporary; }

    /** @brief The file the pages end up in. */
    QString target() const { return m_target; }

    /**
     * @brief Moves the written file to the target, with the permissions a
     * new file gets (0666 less the umask).
     * @return false with a message when nothing was written or the rename
     * failed; the temporary file is gone either way.
     */
    bool commit(QString *error);

    /** @brief Removes the temporary file now. */
    void discard();

private:
    QString m_target;
    QString m_temporary;
    bool m_committed = false;
};

} // namespace quirra
