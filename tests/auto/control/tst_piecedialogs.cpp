// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// The control's two piece dialogs, driven through their real modal loops.
#include "modaldriver.h"

#include "control/quirra.h"
#include "model/piecemodel.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>
#include <QTest>

using namespace quirra;

namespace {
void click(QDialog *dialog, const char *button)
{
    auto *b = dialog->findChild<QAbstractButton *>(QLatin1String(button));
    QVERIFY(b);
    QTest::mouseClick(b, Qt::LeftButton);
}

void pickPiece(QDialog *dialog, const QString &name)
{
    auto *list = dialog->findChild<QListWidget *>(QStringLiteral("piece_lst"));
    QVERIFY(list);
    const QList<QListWidgetItem *> found = list->findItems(name, Qt::MatchExactly);
    QVERIFY2(!found.isEmpty(), qPrintable(name));
    list->setCurrentItem(found.first());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(found.first()).center());
}
} // namespace

class TestPieceDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { PieceModel::resetShared(); }

    void selectingAPieceAppliesIt_data();
    void selectingAPieceAppliesIt();
    void customizingMarksThePieceCustom();
    void customizingKeepsOrSetsThePaper_data();
    void customizingKeepsOrSetsThePaper();
    void cancelChangesNothing();
};

void TestPieceDialogs::selectingAPieceAppliesIt_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("piece");
    QTest::addColumn<int>("across");
    QTest::addColumn<int>("down");
    QTest::newRow("label-sheet") << "Address Labels (US Letter)"
                                 << "5160 - Address Labels" << 3 << 10;
    QTest::newRow("another-envelope") << "Envelopes"
                                      << "Size 10 - Envelope" << 1 << 1;
}

void TestPieceDialogs::selectingAPieceAppliesIt()
{
    QFETCH(QString, product);
    QFETCH(QString, piece);
    QFETCH(int, across);
    QFETCH(int, down);
    Quirra control;
    control.PieceName(QStringLiteral("5163 - Shipping Labels"));
    control.ReturnText(QStringLiteral("ACME Mail"));
    QSignalSpy changes(&control, &Quirra::propertyChanged);

    ModalDriver driver;
    driver.onModal(QStringLiteral("piece_select_form"), [&](QDialog *dialog) {
        auto *products = dialog->findChild<QComboBox *>(QStringLiteral("product_cbo"));
        QVERIFY(products);
        products->setCurrentIndex(products->findText(product));
        pickPiece(dialog, piece);
        click(dialog, "ok_btn");
    });
    bool changed = false;
    control.PieceSelectDialogShow(changed);

    QVERIFY(!driver.watchdogFired());
    QVERIFY(changed);
    QCOMPARE(control.PieceName(), piece);
    QCOMPARE(int(control.PieceNumAcross()), across);
    QCOMPARE(int(control.PieceNumDown()), down);
    QCOMPARE(int(control.IsCustom()), 0);
    // Applying a piece lays the items out afresh and says so: the piece's
    // fourteen names and all sixty item properties follow the name.
    QVERIFY(changes.size() >= 1 + 14 + 60);
    QCOMPARE(changes.last().first().toString(), QStringLiteral("Message2Wrap"));
    QCOMPARE(control.ReturnText(), QStringLiteral("ACME Mail")); // the user's text survives
}

void TestPieceDialogs::customizingMarksThePieceCustom()
{
    Quirra control;
    control.PieceName(QStringLiteral("5160 - Address Labels"));
    ModalDriver driver;
    driver.onModal(QStringLiteral("piece_customization_form"), [&](QDialog *dialog) {
        auto *pageSize = dialog->findChild<QComboBox *>(QStringLiteral("page_size_cbo"));
        QVERIFY(pageSize);
        pageSize->setCurrentIndex(pageSize->findText(QStringLiteral("Letter (8 1/2 x 11 in.)")));
        auto *down = dialog->findChild<QLineEdit *>(QStringLiteral("nr_down_txt"));
        QVERIFY(down);
        down->selectAll();
        QTest::keyClicks(down, QStringLiteral("9"));
        click(dialog, "ok_btn");
    });
    bool changed = false;
    control.PieceCustomizationDialogShow(changed);

    QVERIFY(!driver.watchdogFired());
    QVERIFY(changed);
    QCOMPARE(int(control.PieceNumDown()), 9);
    QCOMPARE(int(control.PieceNumAcross()), 3);
    QCOMPARE(int(control.IsCustom()), 1);
    QCOMPARE(control.PageSize(), QStringLiteral("Letter (8 1/2 x 11 in.)"));
    QCOMPARE(int(control.PageSizeNum()), 1);
    QCOMPARE(int(control.PieceOrientation()), 0); // 8.31 in across, 9.5 in down
}

void TestPieceDialogs::customizingKeepsOrSetsThePaper_data()
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

void TestPieceDialogs::customizingKeepsOrSetsThePaper()
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

void TestPieceDialogs::cancelChangesNothing()
{
    Quirra control;
    control.PieceName(QStringLiteral("5160 - Address Labels"));
    const PieceModel before = PieceModel::shared();
    for (const char *form : {"piece_select_form", "piece_customization_form"}) {
        ModalDriver driver;
        driver.onModal(QLatin1String(form), [](QDialog *dialog) { click(dialog, "cancel_btn"); });
        bool changed = true;
        if (QByteArray(form) == "piece_select_form")
            control.PieceSelectDialogShow(changed);
        else
            control.PieceCustomizationDialogShow(changed);
        QVERIFY(!driver.watchdogFired());
        QVERIFY2(!changed, form);
        QVERIFY2(PieceModel::shared() == before, form);
    }
}

QTEST_MAIN(TestPieceDialogs)
#include "tst_piecedialogs.moc"
