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

const QLatin1String LibraryTranslator("quirra_translator");
const QLatin1String QtTranslator("quirra_qt_translator");

// A translator owned by the application, found again by its name.
bool install(const QLocale &locale, const QString &file, const QString &folder, const QString &name)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(locale, file, QStringLiteral("_"), folder) ||
        !QCoreApplication::installTranslator(translator)) {
        delete translator;
        return false;
    }
    translator->setObjectName(name);
    qCDebug(lcControl) << "translation" << translator->filePath() << "installed";
    return true;
}

} // namespace

bool InstallTranslations(const QLocale &locale)
{
    QCoreApplication *app = QCoreApplication::instance();
    if (!app)
        return false;
    if (app->findChild<QTranslator *>(LibraryTranslator, Qt::FindDirectChildrenOnly))
        return true;
    const QString folder = TranslationsDirectory();
    if (folder.isEmpty() ||
        !install(locale, QStringLiteral("quirracontrol"), folder, LibraryTranslator))
        return false;
    // The standard buttons (Ok, Cancel in the message boxes and the print
    // dialog) come from Qt's own translation; a host may have loaded it already.
    const char *buttons = "QPlatformTheme";
    if (!app->findChild<QTranslator *>(QtTranslator, Qt::FindDirectChildrenOnly) &&
        QCoreApplication::translate(buttons, "Cancel") == QLatin1String("Cancel")) {
        install(locale, QStringLiteral("qtbase"),
                QLibraryInfo::path(QLibraryInfo::TranslationsPath), QtTranslator);
    }
    return true;
}

} // namespace quirra
