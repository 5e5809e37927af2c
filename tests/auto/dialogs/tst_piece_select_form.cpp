// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "columns.h"
#include "dialogs/piece_select_form.h"
#include "dialogs/sheetpreview.h"

#include "modaldriver.h"
#include "nowindowleft.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

using namespace quirra;

namespace {

const QString Labels30 = QStringLiteral("Acme 30-up - Address Labels");

QStringList rows(const QComboBox *box)
{
    QStringList r;
    for (int i = 0; i < box->count(); ++i)
        r.append(box->itemText(i));
    return r;
}

QStringList rows(const QListWidget *list)
{
    QStringList r;
    for (int i = 0; i < list->count(); ++i)
        r.append(list->item(i)->text());
    return r;
}

// The form's children by their published names.
struct Form
{
    piece_select_form form;
    QButtonGroup *paper = form.findChild<QButtonGroup *>(QStringLiteral("paper_opt"));
    QComboBox *products = form.findChild<QComboBox *>(QStringLiteral("product_cbo"));
    QListWidget *pieces = form.findChild<QListWidget *>(QStringLiteral("piece_lst"));
    QLabel *pieceTxt = form.findChild<QLabel *>(QStringLiteral("piece_txt"));
    QCheckBox *accepted = form.findChild<QCheckBox *>(QStringLiteral("data_was_accepted_chk"));

    explicit Form(const QString &name) { form.setPieceName(name); }
    QString text(const char *name) const
    {
        const auto *label = form.findChild<QLabel *>(QLatin1String(name));
        return label ? label->text() : QStringLiteral("<no %1>").arg(QLatin1String(name));
    }
    QWidget *widget(const QString &name) const { return form.findChild<QWidget *>(name); }
    void show() { QVERIFY(showActive(&form)); }
};

} // namespace

class TestPieceSelectForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        qputenv("QUIRRA_SYSTEM_DIR", QUIRRA_TEST_DATA "/");
        qputenv("QUIRRA_PAPER_CATALOGUE", "");
    }

    void cleanup() { verifyNoWindowLeft(); }
    void openOnName_data()
    {
        columns<QString, int, QString, int>("name", "paperKind", "product", "pieceRow");

        QTest::newRow("later-piece-of-first-product") << "Acme Plain" << 1 << "Acme Labels" << 2;
        QTest::newRow("piece-of-second-product") << "DL - Envelope" << 1 << "Acme Envelopes" << 1;
        QTest::newRow("name-in-other-case") << "dl - ENVELOPE" << 1 << "Acme Envelopes" << 1;
        QTest::newRow("continuous-past-a-gap")
            << "Index Card - Continuous Cards" << 2 << "Tractor Cards" << 0;
        QTest::newRow("continuous-type-in-lower-case")
            << "2-Up - Pin-Fed Labels" << 2 << "Tractor Labels" << 1;
        // Not in the catalogue: cut sheet, the first product, no facts.
        QTest::newRow("unknown-name") << "Nobody's Piece" << 1 << "Acme Labels" << -1;
    }

    void openOnName()
    {
        const auto [name, paperKind, pieceRow] =
            fetched<QString, int, int>("name", "paperKind", "pieceRow");

        Form f(name);
        QCOMPARE(f.paper->checkedId(), paperKind);
        QTEST(f.products->currentText(), "product");
        QCOMPARE(f.pieces->currentRow(), pieceRow);
        if (pieceRow >= 0)
            QCOMPARE(f.pieces->currentItem()->text().toUpper(), name.toUpper());
        QCOMPARE(f.pieceTxt->text(), name);
        QCOMPARE(f.text("size_txt").isEmpty(), pieceRow < 0);
        QCOMPARE(f.form.currentFile(), QStringLiteral(QUIRRA_TEST_DATA "/quirra.cfg"));

        // Showing the form changes none of it.
        f.show();
        QCOMPARE(f.paper->checkedId(), paperKind);
        QCOMPARE(f.pieces->currentRow(), pieceRow);
    }

    void emptyNameWaitsForActivation()
    {
        Form f(QStringLiteral("   "));
        QCOMPARE(f.paper->checkedId(), -1);
        QCOMPARE(f.products->count(), 0);
        QCOMPARE(f.pieces->count(), 0);

        // Activation picks cut sheet, which lists from the master file, not
        // from the family file the form started on.
        f.show();
        QCOMPARE(f.paper->checkedId(), 1);
        QCOMPARE(rows(f.products), (QStringList{"Acme Labels", "Acme Envelopes", "Acme Badges"}));
        QCOMPARE(rows(f.pieces).first(), Labels30);
        QCOMPARE(f.pieceTxt->text(), QStringLiteral("   "));
    }

    void paperKindRefillsFromMasterFile()
    {
        Form f(Labels30);
        f.show();
        const QString size = f.text("size_txt");

        QTest::mouseClick(f.paper->button(2), Qt::LeftButton);
        QCOMPARE(f.paper->checkedId(), 2);
        // The dot-matrix family comes from the master file, gap kept; the
        // family's own file is never read.
        QCOMPARE(rows(f.products), (QStringList{"Tractor Labels", "", "Tractor Cards"}));
        QCOMPARE(rows(f.pieces), (QStringList{"1-Up - Pin-Fed Labels", "2-Up - Pin-Fed Labels"}));
        // The piece and its facts stay until a piece or product is picked.
        QCOMPARE(f.pieceTxt->text(), Labels30);
        QCOMPARE(f.text("size_txt"), size);

        // The mnemonic clicks the button after its short press animation.
        QTest::keyClick(f.paper->button(1), Qt::Key_S, Qt::AltModifier);
        QTRY_COMPARE(f.paper->checkedId(), 1);
        QCOMPARE(f.products->currentText(), QStringLiteral("Acme Labels"));
        QCOMPARE(f.pieces->count(), 4);
    }

    void productChangeRefillsPieces_data()
    {
        columns<int, int, QStringList, QString>("paperKind", "key", "pieces", "pieceName");

        QTest::newRow("down-to-envelopes")
            << 1 << int(Qt::Key_Down) << QStringList{"No. 10 - Envelope", "DL - Envelope"}
            << "No. 10 - Envelope";
        // An empty product row empties the list and leaves the piece alone.
        QTest::newRow("gap-row-clears-pieces")
            << 2 << int(Qt::Key_Down) << QStringList() << Labels30;
    }

    void productChangeRefillsPieces()
    {
        const auto [paperKind, key, pieces, pieceName] =
            fetched<int, int, QStringList, QString>("paperKind", "key", "pieces", "pieceName");

        Form f(Labels30);
        f.show();
        f.paper->button(paperKind)->click();
        QTest::keyClick(f.products, Qt::Key(key));
        QCOMPARE(rows(f.pieces), pieces);
        QCOMPARE(f.pieceTxt->text(), pieceName);
        if (!pieces.isEmpty())
            QCOMPARE(f.text("type_txt"), pieceName.mid(pieceName.lastIndexOf(" - ") + 3));
    }

    void clickingPiece()
    {
        Form f(Labels30);
        f.show();
        QCOMPARE((QStringList{f.text("type_txt"), f.text("size_txt"), f.text("page_size_txt"),
                              f.text("layout_txt")}),
                 (QStringList{"Address Labels", "2.625 x 1", "Letter (8 1/2 x 11 in)", "3 x 10"}));
        // The thumbnail draws the pieces down to the sheet's last row.
        const QImage thumbnail =
            f.form.findChild<SheetPreview *>(QStringLiteral("sheet_preview"))->grab().toImage();
        bool lastRow = false;
        for (int x = 0; x < thumbnail.width(); ++x)
            lastRow = lastRow ||
                      thumbnail.pixelColor(x, thumbnail.height() * 9 / 10) == QColor(232, 240, 250);
        QVERIFY(lastRow);

        const QRect row = f.pieces->visualItemRect(f.pieces->item(3));
        QTest::mouseClick(f.pieces->viewport(), Qt::LeftButton, {}, row.center());
        QCOMPARE(f.pieceTxt->text(), QStringLiteral("Two - Part - Labels"));
        QCOMPARE(f.text("type_txt"), QStringLiteral("Labels")); // after the last " - "
        QCOMPARE(f.text("layout_txt"), QStringLiteral("2 x 6"));
        // The keyboard picks as the mouse does; a name without " - " is its own type.
        QTest::keyClick(f.pieces, Qt::Key_Up);
        QCOMPARE(f.pieceTxt->text(), QStringLiteral("Acme Plain"));
        QCOMPARE(f.text("type_txt"), QStringLiteral("Acme Plain"));

        // Typing lists the matches of every product and picks the first; the
        // thumbnail draws its sheet. An empty search shows that piece's product.
        auto *search = f.form.findChild<QLineEdit *>(QStringLiteral("search_txt"));
        QTest::keyClicks(search, QStringLiteral("ENVELOPE"));
        QCOMPARE(rows(f.pieces), (QStringList{"No. 10 - Envelope", "DL - Envelope"}));
        QCOMPARE(f.pieceTxt->text(), QStringLiteral("No. 10 - Envelope"));
        QCOMPARE(f.text("family_txt"), QStringLiteral("Acme Envelopes"));
        QCOMPARE(
            f.form.findChild<SheetPreview *>(QStringLiteral("sheet_preview"))->entry().PageWidth,
            9.5f);
        // A metric sheet's size reads in millimetres.
        QTest::keyClick(f.pieces, Qt::Key_Down);
        QCOMPARE(f.text("size_txt"), QStringLiteral("220 x 110 mm"));
        QTest::keyClick(f.pieces, Qt::Key_Up);
        search->clear();
        QCOMPARE(f.products->currentText(), QStringLiteral("Acme Envelopes"));
        QCOMPARE(f.pieces->currentItem()->text(), QStringLiteral("No. 10 - Envelope"));
    }

    void okAndCancel_data()
    {
        columns<QString, int, QString, bool, QString>("opening", "pickRow", "closeWith", "accepted",
                                                      "result");

        QTest::newRow("ok-keeps-opened-piece") << Labels30 << -1 << "ok_btn" << true << Labels30;
        QTest::newRow("ok-after-picking") << Labels30 << 2 << "ok_btn" << true << "Acme Plain";
        QTest::newRow("return-presses-ok") << Labels30 << 2 << "return" << true << "Acme Plain";
        QTest::newRow("cancel-after-picking") << Labels30 << 2 << "cancel_btn" << false << Labels30;
        QTest::newRow("escape-after-picking") << Labels30 << 2 << "escape" << false << Labels30;
        QTest::newRow("ok-with-empty-list-keeps-name")
            << "Nobody's Piece" << -1 << "ok_btn" << true << "Nobody's Piece";
    }

    void okAndCancel()
    {
        QFETCH(QString, opening);
        QFETCH(int, pickRow);
        QFETCH(QString, closeWith);

        ModalDriver driver;
        driver.onModal(QStringLiteral("piece_select_form"), [&](QDialog *dialog) {
            auto *list = dialog->findChild<QListWidget *>(QStringLiteral("piece_lst"));
            if (pickRow >= 0)
                list->setCurrentRow(pickRow);
            ModalDriver::close(dialog, closeWith, list);
        });
        QString name = opening;
        QTEST(ShowPieceSelectDialog(nullptr, name), "accepted");
        QTEST(name, "result");
        QVERIFY(driver.ranOnce());
    }

    void detailsDiscardsItsResult_data()
    {
        columns<QString, bool>("trigger", "doubleClick");

        QTest::newRow("details-button") << "details_btn" << false;
        QTest::newRow("new-piece-button") << "new_piece_btn" << false;
        QTest::newRow("double-click-size-text") << "size_txt" << true;
    }

    void detailsDiscardsItsResult()
    {
        QFETCH(QString, trigger);
        QFETCH(bool, doubleClick);

        Form f(QStringLiteral("DL - Envelope"));
        f.show();

        QString seenName, seenWidth;
        ModalDriver driver;
        driver.onModal(QStringLiteral("piece_customization_form"), [&](QDialog *dialog) {
            seenName = dialog->findChild<QLineEdit *>(QStringLiteral("label_name_txt"))->text();
            seenWidth = dialog->findChild<QLineEdit *>(QStringLiteral("label_wd_txt"))->text();
            auto *across = dialog->findChild<QLineEdit *>(QStringLiteral("nr_across_txt"));
            across->selectAll();
            QTest::keyClicks(across, QStringLiteral("7"));
            dialog->findChild<QPushButton *>(QStringLiteral("ok_btn"))->click();
        });
        QWidget *target = f.widget(trigger);
        QVERIFY(target);
        if (doubleClick)
            QTest::mouseDClick(target, Qt::LeftButton);
        else
            QTest::mouseClick(target, Qt::LeftButton);

        QVERIFY(driver.ranOnce());
        QCOMPARE(seenName, QStringLiteral("DL - Envelope"));
        QCOMPARE(seenWidth, QStringLiteral("8.6614"));
        // Nothing of the customization comes back.
        QVERIFY(f.form.isVisible());
        QVERIFY(!f.accepted->isChecked());
        QCOMPARE(f.pieceTxt->text(), QStringLiteral("DL - Envelope"));
        QCOMPARE(f.products->currentText(), QStringLiteral("Acme Envelopes"));
        QCOMPARE(f.pieces->currentRow(), 1);
        QCOMPARE(f.text("layout_txt"), QStringLiteral("1 x 1"));
    }
};

QTEST_MAIN(TestPieceSelectForm)
#include "tst_piece_select_form.moc"
