// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// The property page on a control: what it reads, what Apply writes and in
// which order, the miniature, the layout editor's refusal and the sheet.
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

struct ItemRow
{
    QString label, item, shownName;
    float top;
    QString shownTop;
};

class TestItemLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { PieceModel::resetShared(); }
    void cleanup() { verifyNoWindowLeft(); }

    void applyWritesInOrder_data()
    {
        QTest::addColumn<bool>("renamed");
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

    void everyPropertyRoundTrips()
    {
        const QStringList names = QStringList{"PieceName"} + applyOrder();
        Quirra control;
        control.PieceName(QStringLiteral("5163 - Shipping Labels"));
        for (int i = 1; i < names.size(); ++i)
            PropertyTable::find(names[i])->write(control,
                                                 distinctValue(*PropertyTable::find(names[i]), i));
        QVariantList before;
        for (const QString &name : names)
            before.append(PropertyTable::find(name)->read(control));

        ItemLayout page;
        page.setSelectedControls({&control});
        // Everything the page read is overwritten on the control.
        control.PieceName(QStringLiteral("Size 10 - Envelope"));
        for (int i = 1; i < names.size(); ++i)
            PropertyTable::find(names[i])->write(
                control, distinctValue(*PropertyTable::find(names[i]), i + 37));
        page.applyChanges();

        for (int i = 0; i < names.size(); ++i)
            QVERIFY2(PropertyTable::find(names[i])->read(control) == before[i],
                     qPrintable(names[i]));
    }

    void itemInformation_data()
    {
        QTest::addColumn<ItemRow>("row");
        const auto row = [](const char *tag, const QString &label, const QString &item,
                            const QString &shownName, float top, const QString &shownTop) {
            QTest::newRow(tag) << ItemRow{label, item, shownName, top, shownTop};
        };
        row("thousandths-rounded", "lblAdd", "Address", "Address", 1.23456f, "1.235");
        row("half-down-to-even", "lblRet", "Return", "Return", 1.0625f, "1.062");
        row("half-up-to-even", "lblM1", "Message1", "Message 1", 1.1875f, "1.188");
        row("whole-inch-bare", "lblM2", "Message2", "Message 2", 2.0f, "2");
        row("negative", "lblStamp", "Stamp", "Stamp", -0.25f, "-0.25");
        row("past-16-bits", "lblStamp", "Stamp", "Stamp", 40.0f, "Overflow");
    }

    void itemInformation()
    {
        QFETCH(ItemRow, row);
        Quirra control;
        control.setProperty(qPrintable(row.item + "Top"), row.top);
        control.setProperty(qPrintable(row.item + "Left"), 0.5f);
        control.setProperty(qPrintable(row.item + "Height"), 0.75f);
        control.setProperty(qPrintable(row.item + "Width"), 1.125f);
        ItemLayout page;
        page.setSelectedControls({&control});
        page.show();
        QTest::mouseClick(page.findChild<QLabel *>(row.label), Qt::LeftButton);

        QCOMPARE(text(page, "lblItem"), row.shownName);
        QCOMPARE(text(page, "lblItop"), "Top = " + row.shownTop);
        QCOMPARE(text(page, "lblIleft"), QStringLiteral("Left = 0.5"));
        QCOMPARE(text(page, "lblIheight"), QStringLiteral("Height = 0.75"));
        QCOMPARE(text(page, "lblIwidth"), QStringLiteral("Width = 1.125"));
        QCOMPARE(text(page, "lblPHeight"), QStringLiteral("Height = 4.125"));
        QCOMPARE(text(page, "lblPWidth"), QStringLiteral("Width = 9.5"));
        QCOMPARE(page.isChanged(), false); // a click only picks
    }

    void miniatureInProportion_data()
    {
        QTest::addColumn<QString>("piece");
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

        QVERIFY(!driver.watchdogFired());
        QCOMPARE(driver.actionsRun(), 1);
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
        QTest::addColumn<QStringList>("edit"); // property, what is typed, the note (none: taken)
        QTest::addColumn<float>("applied");
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
        QFETCH(QStringList, edit);
        QFETCH(float, applied);
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
};

QTEST_MAIN(TestItemLayout)
#include "tst_itemlayout.moc"
