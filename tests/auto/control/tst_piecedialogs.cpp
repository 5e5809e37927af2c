// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// The three piece dialogs, driven through their real modal loops, opened by
// the control's methods and by the buttons of the property page, which
// works on a copy until it is applied; and the about box.
#include "controlsteps.h"
#include "modaldriver.h"
#include "nowindowleft.h"

#include "control/itemlayout.h"
#include "control/quirra.h"
#include "model/piecemodel.h"

#include <QLabel>

using namespace quirra;
using namespace steps;

class TestPieceDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { PieceModel::resetShared(); }
    void cleanup() { verifyNoWindowLeft(); }

    void dialogShow_data()
    {
        QTest::addColumn<QString>("form");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<bool>("onPage");
        for (const QString form : {"select", "customization", "layout_edit"}) {
            for (const int row : {0, 1, 2, 3}) {
                const bool ok = row < 2, onPage = row % 2;
                const QString tag = form +
                                    (ok ? QStringLiteral("-ok") : QStringLiteral("-cancel")) +
                                    (onPage ? QStringLiteral("-on-the-page") : QString());
                QTest::newRow(qPrintable(tag))
                    << QStringLiteral("piece_%1_form").arg(form) << ok << onPage;
            }
        }
        QTest::newRow("about-box") << "about_box" << true << false;
    }

    void dialogShow()
    {
        QFETCH(QString, form);
        QFETCH(bool, ok);
        QFETCH(bool, onPage);
        Quirra control;
        if (!form.contains(QLatin1String("layout")))
            control.PieceName(QStringLiteral("5160 - Address Labels"));
        control.ReturnText(QStringLiteral("ACME Mail"));
        const PieceModel before = PieceModel::shared();
        QSignalSpy changes(&control, &Quirra::propertyChanged);

        ModalDriver driver;
        QString shown;
        driver.onModal(form, [&](QDialog *dialog) {
            if (form == QLatin1String("about_box")) {
                QVERIFY(dialog->isModal() && dialog->parentWidget() == &control);
                for (QLabel *label : dialog->findChildren<QLabel *>())
                    shown += label->text() + QLatin1Char('\n');
            } else if (form == QLatin1String("piece_select_form")) {
                pickPiece(dialog, QStringLiteral("Envelopes"),
                          QStringLiteral("Size 10 - Envelope"));
            } else if (form == QLatin1String("piece_customization_form")) {
                auto *pageSize = dialog->findChild<QComboBox *>(QStringLiteral("page_size_cbo"));
                QVERIFY(pageSize);
                pageSize->setCurrentIndex(
                    pageSize->findText(QStringLiteral("Letter (8 1/2 x 11 in.)")));
                auto *down = dialog->findChild<QLineEdit *>(QStringLiteral("nr_down_txt"));
                QVERIFY(down);
                down->selectAll();
                QTest::keyClicks(down, QStringLiteral("9"));
            } else {
                editField(dialog, 4, "top_txt", QStringLiteral("1.5")); // Message1
            }
            click(dialog, ok ? "ok_btn" : "cancel_btn");
        });
        bool changed = !ok;
        if (onPage) {
            ItemLayout page;
            page.setSelectedControls({&control});
            page.show();
            QSignalSpy marks(&page, &ItemLayout::changedMarkChanged);
            click(&page, form == QLatin1String("piece_select_form")        ? "btnDotDotDot"
                         : form == QLatin1String("piece_layout_edit_form") ? "btnPieceLayout"
                                                                           : "btnPieceCust");
            // Only an accepted piece dialog marks the page; the editor's button does not.
            changed = ok && !form.contains(QLatin1String("layout"));
            QCOMPARE(page.isChanged(), changed);
            QCOMPARE(marks.size(), changed ? 1 : 0);
            QVERIFY(PieceModel::shared() == before); // only the copy changed
            QCOMPARE(changes.size(), 0);
            const PieceModel &copy = page.workingCopy().model();
            if (ok && form == QLatin1String("piece_select_form"))
                QCOMPARE(page.findChild<QLabel *>(QStringLiteral("lblPName"))->text(),
                         QStringLiteral("Size 10 - Envelope"));
            if (form == QLatin1String("piece_customization_form")) // the items stay where they were
                QVERIFY(copy.items == before.items);
            page.applyChanges();
            if (!ok) {
                QVERIFY(PieceModel::shared() == before);
                return;
            }
            changed = true;
            changes.clear();
        } else if (form == QLatin1String("about_box")) {
            control.show();
            control.ShowAboutBox();
            changed = true;
        } else if (form == QLatin1String("piece_select_form")) {
            control.PieceSelectDialogShow(changed);
        } else if (form == QLatin1String("piece_customization_form")) {
            control.PieceCustomizationDialogShow(changed);
        } else {
            control.PieceLayoutDialogShow(changed);
        }

        QVERIFY(!driver.watchdogFired());
        QCOMPARE(driver.actionsRun(), 1);
        QCOMPARE(changed, ok);
        if (!ok) {
            QVERIFY(PieceModel::shared() == before);
            QCOMPARE(changes.size(), 0);
            return;
        }
        if (form == QLatin1String("about_box")) {
            QVERIFY2(shown.contains(QLatin1String("QuirraControl")) &&
                         shown.contains(QLatin1String(QUIRRA_EXPECTED_VERSION)),
                     qPrintable(shown));
            return;
        }
        if (form == QLatin1String("piece_layout_edit_form")) {
            QVERIFY(qAbs(control.Message1Top() - 1.5f) < 0.01f);
            if (!onPage)
                QCOMPARE(emitted(changes),
                         itemNames({"Address", "Return", "Stamp", "Message1", "Message2"}));
            return;
        }
        // A piece applied lays the items out afresh and says so: the piece's
        // fourteen names and all sixty item properties follow the name.
        if (!onPage) {
            QVERIFY(changes.size() >= 1 + 14 + 60);
            QCOMPARE(emitted(changes).last(), QStringLiteral("Message2Wrap"));
        }
        QCOMPARE(control.ReturnText(), QStringLiteral("ACME Mail")); // the user's text survives
        const bool select = form == QLatin1String("piece_select_form");
        QCOMPARE(control.PieceName(), select ? QStringLiteral("Size 10 - Envelope")
                                             : QStringLiteral("5160 - Address Labels"));
        const QList<int> layout = {control.PieceNumAcross(), control.PieceNumDown(),
                                   control.IsCustom(), control.PageSizeNum(),
                                   control.PieceOrientation()};
        // Customized: 8.31 in across, 9.5 in down on Letter, portrait.
        QCOMPARE(layout, (select ? QList<int>{1, 1, 0, 20, 1} : QList<int>{3, 9, 1, 1, 0}));
        if (!select)
            QCOMPARE(control.PageSize(), QStringLiteral("Letter (8 1/2 x 11 in.)"));
    }

    void customizingKeepsOrSetsThePaper_data()
    {
        QTest::addColumn<QString>("piece");
        QTest::addColumn<QString>("chosen"); // the page size picked; empty: OK at once
        QTest::addColumn<int>("paper");
        QTest::addColumn<float>("pageWidth");

        QTest::newRow("default-envelope-ok-keeps-envelope")
            << "Size 10 - Envelope" << QString() << 20 << 9.5f;
        QTest::newRow("c6-envelope-ok-keeps-c6") << "C6 - Envelope" << QString() << 31 << 6.378f;
        QTest::newRow("letter-sheet-moved-to-a4")
            << "5160 - Address Labels"
            << "A4 (210 x 297 mm = 8.27 x 11.69 in.)" << 9 << 8.2677f;
    }

    void customizingKeepsOrSetsThePaper()
    {
        QFETCH(QString, piece);
        QFETCH(QString, chosen);
        Quirra control;
        control.PieceName(piece);
        const QString description = control.PageSize();
        ModalDriver driver;
        driver.onModal(QStringLiteral("piece_customization_form"), [&](QDialog *dialog) {
            if (!chosen.isEmpty()) {
                auto *pageSize = dialog->findChild<QComboBox *>(QStringLiteral("page_size_cbo"));
                QVERIFY(pageSize && pageSize->findText(chosen) >= 0);
                pageSize->setCurrentIndex(pageSize->findText(chosen));
            }
            click(dialog, "ok_btn");
        });
        bool changed = false;
        control.PieceCustomizationDialogShow(changed);

        QVERIFY(!driver.watchdogFired());
        QVERIFY(changed);
        QCOMPARE(control.PageSize(), chosen.isEmpty() ? description : chosen);
        QTEST(int(control.PageSizeNum()), "paper");
        QTEST(control.PageWidth(), "pageWidth");
    }
};

QTEST_MAIN(TestPieceDialogs)
#include "tst_piecedialogs.moc"
