// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "columns.h"
#include "control/translations.h"

#include "dialogs/piece_select_form.h"
#include "pane/previewpane.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QTranslator>

using namespace quirra;

// The compiled translations are found beside the code, as built, and put the
// dialogs, the pane and Qt's standard buttons into the user's language; a
// locale without one leaves the English texts the published interface quotes.
struct LocaleRow
{
    QLocale locale;
    bool translated;
    QString caption, printAll, cancel;
};

class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qDeleteAll(qApp->findChildren<QTranslator *>()); }

    void textsFollowTheLocale_data()
    {
        columns<LocaleRow>("row");
        QTest::newRow("c-locale") << LocaleRow{QLocale::c(), false, "Piece Selection", "Pr All",
                                               "Cancel"};
        QTest::newRow("english") << LocaleRow{QLocale(QLocale::English, QLocale::UnitedKingdom),
                                              false, "Piece Selection", "Pr All", "Cancel"};
        QTest::newRow("german") << LocaleRow{QLocale(QLocale::German, QLocale::Germany), true,
                                             "Vorlagenauswahl", "Dr. alle", "Abbrechen"};
    }
    void textsFollowTheLocale()
    {
        QFETCH(LocaleRow, row);
        QCOMPARE(InstallTranslations(row.locale), row.translated);
        // The first call chooses: a later one changes nothing.
        QCOMPARE(InstallTranslations(QLocale(QLocale::German)), row.translated);

        piece_select_form form;
        QCOMPARE(form.windowTitle(), row.caption);
        PreviewPane pane;
        QCOMPARE(pane.findChild<QToolButton *>(QStringLiteral("mc_p_all"))->text(), row.printAll);
        QDialogButtonBox buttons(QDialogButtonBox::Cancel);
        QCOMPARE(buttons.button(QDialogButtonBox::Cancel)->text(), row.cancel);
    }
};

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
