// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "control/translations.h"

#include "control/logging_p.h"

#include "settings/files.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace quirra {

namespace {

// The library's translator is a child of the application under this name,
// loaded or empty: it marks the language chosen.
const QLatin1String LibraryTranslator("quirra_translator");

bool load(QTranslator *translator, const QLocale &locale, const QString &file,
          const QString &folder)
{
    if (folder.isEmpty() || !translator->load(locale, file, QStringLiteral("_"), folder) ||
        !QCoreApplication::installTranslator(translator))
        return false;
    qCDebug(lcControl) << "translation" << translator->filePath() << "installed";
    return true;
}

} // namespace

bool InstallTranslations(const QLocale &locale)
{
    QCoreApplication *app = QCoreApplication::instance();
    if (!app)
        return false;
    if (const auto *chosen =
            app->findChild<QTranslator *>(LibraryTranslator, Qt::FindDirectChildrenOnly))
        return !chosen->isEmpty();
    auto *library = new QTranslator(app);
    library->setObjectName(LibraryTranslator);
    if (!load(library, locale, QStringLiteral("quirracontrol"), TranslationsDirectory()))
        return false;
    // The standard buttons (Ok, Cancel in the message boxes and the print
    // dialog) come from Qt's own translation, unless the host loaded it.
    const char *buttons = "QPlatformTheme";
    if (QCoreApplication::translate(buttons, "Cancel") == QLatin1String("Cancel")) {
        auto *qt = new QTranslator(app);
        if (!load(qt, locale, QStringLiteral("qtbase"),
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            delete qt;
    }
    return true;
}

} // namespace quirra
