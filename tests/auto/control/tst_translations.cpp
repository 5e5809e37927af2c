// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "control/translations.h"

#include "dialogs/piece_select_form.h"
#include "pane/previewpane.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QTranslator>

using namespace quirra;

// The compiled translations are found beside the code, as built, and put the
// dialogs, the pane and Qt's standard buttons into the user's language; a
// locale without one leaves the English texts the published interface quotes.
class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qDeleteAll(qApp->findChildren<QTranslator *>()); }

    void textsFollowTheLocale_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<bool>("translated");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("printAll");
        QTest::addColumn<QString>("cancel");
        QTest::newRow("c-locale") << QLocale::c() << false << "Piece Selection"
                                  << "Pr All"
                                  << "Cancel";
        QTest::newRow("english") << QLocale(QLocale::English, QLocale::UnitedKingdom) << false
                                 << "Piece Selection"
                                 << "Pr All"
                                 << "Cancel";
        QTest::newRow("german") << QLocale(QLocale::German, QLocale::Germany) << true
                                << "Vorlagenauswahl"
                                << "Dr. alle"
                                << "Abbrechen";
    }
    void textsFollowTheLocale()
    {
        QFETCH(QLocale, locale);
        QFETCH(bool, translated);
        QFETCH(QString, caption);
        QFETCH(QString, printAll);
        QFETCH(QString, cancel);
        QCOMPARE(InstallTranslations(locale), translated);
        // The first call chooses: a later one changes nothing.
        QCOMPARE(InstallTranslations(QLocale(QLocale::German)), translated);

        piece_select_form form;
        QCOMPARE(form.windowTitle(), caption);
        PreviewPane pane;
        QCOMPARE(pane.findChild<QToolButton *>(QStringLiteral("mc_p_all"))->text(), printAll);
        QDialogButtonBox buttons(QDialogButtonBox::Cancel);
        QCOMPARE(buttons.button(QDialogButtonBox::Cancel)->text(), cancel);
    }
};

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
