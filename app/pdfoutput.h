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
 *
 * Only a regular file or a new name is written: a folder, a named pipe or a
 * device at the path is refused by open(). A symbolic link is followed: the
 * file it names is replaced and the link stays. A file replaced keeps its
 * permissions (and, when root replaces it, its owner).
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
     * writable, or the target is a folder, a named pipe or a device.
     */
    bool open(QString *error);

    /** @brief Where the pages are to be written until commit(); empty before open(). */
    QString temporaryPath() const { return m_temporary; }

    /** @brief The file the pages end up in. */
    QString target() const { return m_target; }

    /**
     * @brief Checks that the written file is a whole PDF (every object where
     * the cross-reference table puts it, the trailer at the end), flushes it
     * to the disk and moves it to the target, with the permissions of the
     * file it replaces, or those a new file gets (0666 less the umask).
     * @return false with a message when nothing or only part was written (a
     * full disk is named as such) or the rename failed; the temporary file
     * is gone either way and the target untouched.
     */
    bool commit(QString *error);

    /** @brief Removes the temporary file now. */
    void discard();

private:
    QString incompleteReason() const;

    QString m_target;
    QString m_path;          // the target with its links followed
    unsigned m_mode = 0;     // the replaced file's permissions
    bool m_replaces = false; // a file is there already
    unsigned m_owner = 0;    // and its owner and group
    unsigned m_group = 0;
    QString m_temporary;
    bool m_committed = false;
};

} // namespace quirra
