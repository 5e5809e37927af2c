// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QTest>
#include <QWidget>

// For cleanup(): fails the test function that left a top-level window
// behind (a dialog never closed, a widget never parented), then removes it
// so that the next function starts clean.
inline void verifyNoWindowLeft()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QWidgetList left = QApplication::topLevelWidgets();
    QStringList names;
    for (const QWidget *w : left)
        names.append(QLatin1String(w->metaObject()->className()) + QLatin1Char(' ') +
                     w->objectName());
    qDeleteAll(left);
    QVERIFY2(left.isEmpty(), qPrintable(QStringLiteral("left open: ") + names.join(u", ")));
}
