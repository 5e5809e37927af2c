// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quirra {

/**
 * @brief Creates a new, empty, uniquely named file in the temporary
 * directory and returns its full path.
 *
 * The file is made atomically with mode 0600, so no other user can read the
 * addresses spooled into it. Its name starts with the first three characters
 * of prefix ("tmp" when prefix is empty). The directory is TMPDIR, else the
 * system's temporary directory.
 *
 * @throws Error when no file can be created there.
 */
QString MakeTempFileName(const QString &prefix = QString());

/**
 * @brief What an error (errno code) in the temporary directory dir means for
 * the user: a missing directory and a full one are named as such.
 */
QString TemporaryDirectoryProblem(const QString &dir, int code);

/**
 * @brief The folder of the catalogue files, always ending in "/".
 *
 * QUIRRA_SYSTEM_DIR when set; else the data folder installed with the
 * library (share/quirra beside the library's lib folder, or the installation
 * prefix compiled in); else the source tree's data folder for a program run
 * from the build tree.
 */
QString SystemDirectory();

/**
 * @brief The file the paper size list is read from: QUIRRA_PAPER_CATALOGUE
 * when set, else the master catalogue in SystemDirectory(). A setting of its
 * own, since a site may keep its paper sizes apart from the catalogue.
 */
QString PaperCatalogueFile();

/**
 * @brief The folder of the library's compiled translations
 * (quirracontrol_de.qm ...): share/quirracontrol/translations beside the
 * library, as installed and as the build tree mirrors it; else the installed
 * prefix compiled in; else empty (the texts stay English).
 */
QString TranslationsDirectory();

/** @brief The path with "/" appended unless it already ends in one. */
QString WithTrailingSlash(const QString &path);

/** @brief True when the file can be opened for reading. */
bool FileExists(const QString &path);

/**
 * @brief Deletes the file and waits, processing events, until it is gone.
 *
 * Errors are ignored. The wait gives up after a few seconds with a warning
 * in the log, so a file that cannot be removed never hangs the program.
 */
void DeleteFileAndWait(const QString &path);

} // namespace quirra
