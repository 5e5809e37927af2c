// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// The property page on a control: what it reads, what Apply writes and in
// which order, the miniature, the layout editor's refusal and the sheet; the
// three piece dialogs driven through their real modal loops, opened by the
// control's methods and by the page's buttons (the page works on a copy until
// it is applied); and the about box.
#include "columns.h"
#include "controlsteps.h"
#include "modaldriver.h"
#include "nowindowleft.h"

#include "control/itemlayout.h"
#include "control/propertysheet.h"
#include "control/propertytable.h"
#include "control/quirra.h"
#include "model/piecemodel.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>

using namespace quirra;
using namespace steps;

namespace {

// What Apply writes whatever the page holds, in its order.
QStringList applyOrder()
{
    return QStringList{"IsCustom",     "PieceMarginLeft",  "PieceMarginTop", "PieceNumAcross",
                       "PieceNumDown", "PieceOrientation", "PageSize",       "PageSizeNum",
                       "PieceHeight",  "PieceWidth",       "PiecePitchHorz", "PiecePitchVert",
                       "PrinterLeft",  "PrinterTop"} +
           itemNames({"Address", "Return", "Message1", "Message2", "Stamp"}) +
           QStringList{"PageWidth", "PageHeight", "PrinterScaleX", "PrinterScaleY"};
}

QString text(const ItemLayout &page, const char *label)
{
    return page.findChild<QLabel *>(QLatin1String(label))->text();
}

} // namespace

class TestItemLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { PieceModel::resetShared(); }
    void cleanup() { verifyNoWindowLeft(); }

    void applyWritesInOrder_data()
    {
        columns<bool>("renamed");
        QTest::newRow("same-name-is-not-written") << false;
        QTest::newRow("other-name-first-then-all") << true;
    }

    void applyWritesInOrder()
    {
        QFETCH(bool, renamed);
        Quirra control;
        control.PieceName(QStringLiteral("5160 - Address Labels"));
        ItemLayout page;
        page.setSelectedControls({&control});
        if (renamed)
            control.PieceName(QStringLiteral("Size 10 - Envelope"));
        QSignalSpy spy(&control, &Quirra::propertyChanged);
        page.applyChanges();

        const QStringList names = emitted(spy);
        const QStringList expected = applyOrder();
        if (renamed) {
            // The name loads its piece and announces it (1 + 14 + 60) before
            // the page's own values follow.
            QCOMPARE(names.size(), 1 + 14 + 60 + expected.size());
            QCOMPARE(names.first(), QStringLiteral("PieceName"));
            QCOMPARE(names.mid(names.size() - expected.size()), expected);
        } else {
            QCOMPARE(names, expected);
        }
        QCOMPARE(control.PieceName(), QStringLiteral("5160 - Address Labels"));
        QCOMPARE(int(control.PieceNumAcross()), 3);
    }

    void itemInformation_data()
    {
        const Rows<QString, QString, QString, float, QString> row("label", "item", "shownName",
                                                                  "top", "shownTop");
        row("thousandths-rounded", "lblAdd", "Address", "Address", 1.23456f, "1.235");
        row("half-down-to-even", "lblRet", "Return", "Return", 1.0625f, "1.062");
        row("half-up-to-even", "lblM1", "Message1", "Message 1", 1.1875f, "1.188");
        row("whole-inch-bare", "lblM2", "Message2", "Message 2", 2.0f, "2");
        row("negative", "lblStamp", "Stamp", "Stamp", -0.25f, "-0.25");
        row("past-16-bits", "lblStamp", "Stamp", "Stamp", 40.0f, "Overflow");
    }

    void itemInformation()
    {
        const auto [label, item, top, shownTop] =
            fetched<QString, QString, float, QString>("label", "item", "top", "shownTop");
        Quirra control;
        control.setProperty(qPrintable(item + "Top"), top);
        control.setProperty(qPrintable(item + "Left"), 0.5f);
        control.setProperty(qPrintable(item + "Height"), 0.75f);
        control.setProperty(qPrintable(item + "Width"), 1.125f);
        ItemLayout page;
        page.setSelectedControls({&control});
        page.show();
        QTest::mouseClick(page.findChild<QLabel *>(label), Qt::LeftButton);

        QTEST(text(page, "lblItem"), "shownName");
        QCOMPARE(text(page, "lblItop"), "Top = " + shownTop);
        QCOMPARE(text(page, "lblIleft"), QStringLiteral("Left = 0.5"));
        QCOMPARE(text(page, "lblIheight"), QStringLiteral("Height = 0.75"));
        QCOMPARE(text(page, "lblIwidth"), QStringLiteral("Width = 1.125"));
        QCOMPARE(text(page, "lblPHeight"), QStringLiteral("Height = 4.125"));
        QCOMPARE(text(page, "lblPWidth"), QStringLiteral("Width = 9.5"));
        QCOMPARE(page.isChanged(), false); // a click only picks
    }

    void miniatureInProportion_data()
    {
        columns<QString>("piece");
        QTest::newRow("envelope") << "Size 10 - Envelope";
        QTest::newRow("flat-label") << "5160 - Address Labels";
        QTest::newRow("shipping-label") << "5163 - Shipping Labels";
    }

    void miniatureInProportion()
    {
        QFETCH(QString, piece);
        Quirra control;
        control.PieceName(piece);
        control.AddressLeft(control.PieceWidth() / 3); // off the default layout
        ItemLayout page;
        page.resize(760, 420);
        page.setSelectedControls({&control});
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));

        auto *box = page.findChild<QFrame *>(QStringLiteral("piecebox"));
        QVERIFY(box && box->isVisible());
        const double scale = box->width() / double(control.PieceWidth());
        QVERIFY(qAbs(box->height() - control.PieceHeight() * scale) <= 1.0);
        const QRect room = box->parentWidget()->rect();
        QVERIFY(room.contains(box->geometry()));
        QVERIFY(box->width() > room.width() * 0.8 || box->height() > room.height() * 0.8);

        const std::pair<const char *, const char *> shapes[] = {{"shpAdd", "Address"},
                                                                {"shpRet", "Return"},
                                                                {"shpM1", "Message1"},
                                                                {"shpM2", "Message2"},
                                                                {"shpStamp", "Stamp"}};
        for (auto [shapeName, item] : shapes) {
            auto *shape = box->findChild<QFrame *>(QLatin1String(shapeName));
            QVERIFY2(shape, shapeName);
            const auto inches = [&](const char *field) {
                return control.property(qPrintable(QLatin1String(item) + QLatin1String(field)))
                    .toDouble();
            };
            const QRectF expected(inches("Left") * scale, inches("Top") * scale,
                                  inches("Width") * scale, inches("Height") * scale);
            const QRect got = shape->geometry();
            QVERIFY2(qAbs(got.x() - expected.x()) <= 1 && qAbs(got.y() - expected.y()) <= 1 &&
                         qAbs(got.width() - std::max(1.0, expected.width())) <= 1 &&
                         qAbs(got.height() - std::max(1.0, expected.height())) <= 1,
                     shapeName);
        }
    }

    void doubleClickEditsAndMarksChanged()
    {
        Quirra control;
        ItemLayout page;
        page.setSelectedControls({&control});
        page.show();
        ModalDriver driver;
        driver.onModal(QStringLiteral("piece_layout_edit_form"),
                       [](QDialog *dialog) { click(dialog, "cancel_btn"); });
        QTest::mouseDClick(page.findChild<QLabel *>(QStringLiteral("lblM2")), Qt::LeftButton);

        QVERIFY(driver.ranOnce());
        QCOMPARE(page.selectedItem(), QStringLiteral("M2"));
        QCOMPARE(text(page, "lblItem"), QStringLiteral("Message 2"));
        QVERIFY(page.isChanged()); // even though the editor was cancelled
    }

    void tooLargeAPieceIsRefused()
    {
        Quirra control;
        control.PieceWidth(30); // more than the editor's 16-bit twips hold
        ItemLayout page;
        page.setSelectedControls({&control});
        page.show();
        const PieceModel copy = page.workingCopy().model();
        ModalDriver driver;
        QString message;
        driver.onModal(QStringLiteral("layout_error_box"), [&](QDialog *box) {
            message = box->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"))->text();
            box->accept();
        });
        QVERIFY(!page.editLayout());
        QVERIFY(!driver.watchdogFired());
        QVERIFY(!message.isEmpty()); // the editor's own reason
        QVERIFY(page.workingCopy().model() == copy);
        QCOMPARE(text(page, "lblPWidth"), QStringLiteral("Width = 30"));
    }

    void sheetAppliesAndClearsTheMark()
    {
        Quirra control;
        PropertySheet sheet(&control);
        QSignalSpy applied(&sheet, &PropertySheet::applied);
        ModalDriver driver;
        driver.onModal(QStringLiteral("piece_select_form"), [](QDialog *dialog) {
            pickPiece(dialog, QStringLiteral("Address Labels (US Letter)"),
                      QStringLiteral("5160 - Address Labels"));
            click(dialog, "ok_btn");
        });
        driver.onModal(QStringLiteral("property_sheet"), [&](QDialog *dialog) {
            click(dialog, "btnDotDotDot");
            QVERIFY(dialog->isWindowModified());
            QCOMPARE(control.PieceName(), QStringLiteral("Size 10 - Envelope"));
            click(dialog, "apply_btn");
            QCOMPARE(control.PieceName(), QStringLiteral("5160 - Address Labels"));
            QVERIFY(!dialog->isWindowModified());
            control.PieceName(QStringLiteral("Size 10 - Envelope")); // Cancel writes nothing again
            click(dialog, "cancel_btn");
        });
        QCOMPARE(sheet.exec(), int(QDialog::Rejected));
        QVERIFY(!driver.watchdogFired());
        QCOMPARE(applied.size(), 1);
        QCOMPARE(control.PieceName(), QStringLiteral("Size 10 - Envelope"));
    }

    void calibrationFields_data()
    {
        // edit: property, what is typed, the note (none: taken)
        columns<QStringList, float>("edit", "applied");
        QTest::newRow("left-offset") << QStringList{"PrinterLeft", "0.125", ""} << 0.125f;
        QTest::newRow("vertical-scale") << QStringList{"PrinterScaleY", "101.5", ""} << 101.5f;
        QTest::newRow("scale-above-the-range")
            << QStringList{"PrinterScaleX", "120", "Horizontal scale goes from 90 to 110 %"}
            << 100.f;
        QTest::newRow("offset-not-a-number")
            << QStringList{"PrinterTop", "1/4", "Top offset goes from 0 to 1 in"} << 0.25f;
    }

    void calibrationFields()
    {
        auto [edit, applied] = fetched<QStringList, float>("edit", "applied");
        Quirra control;
        ItemLayout page;
        page.setSelectedControls({&control});
        auto *box = page.findChild<QLineEdit *>("txt" + edit[0]);
        QVERIFY(box);
        box->selectAll();
        QTest::keyClicks(box, edit[1]);
        QTest::keyClick(box, Qt::Key_Return);

        const QString note = text(page, "lblCalibrationNote");
        QVERIFY2(edit[2].isEmpty() ? note.isEmpty() : note.contains(edit[2]), qPrintable(note));
        QCOMPARE(box->text().toFloat(), applied); // a refused value gives way to the old one
        QCOMPARE(page.isChanged(), edit[2].isEmpty());
        page.applyChanges();
        QCOMPARE(control.property(qPrintable(edit[0])).toFloat(), applied);
    }

    void dialogShow_data()
    {
        columns<QString, bool, bool>("form", "ok", "onPage");
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

        QVERIFY(driver.ranOnce());
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
        // chosen: the page size picked; empty: OK at once
        columns<QString, QString, int, float>("piece", "chosen", "paper", "pageWidth");

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

QTEST_MAIN(TestItemLayout)
#include "tst_itemlayout.moc"
