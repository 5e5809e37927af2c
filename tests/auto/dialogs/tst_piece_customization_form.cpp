// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "columns.h"
#include "dialogs/piece_customization_form.h"

#include "catalogue/catalogue.h"
#include "hostrecorder.h"

#include "dialogs/numberfield.h"
#include "dialogs/sheetdrawing.h"
#include "dialogs/sheetpreview.h"
#include "modaldriver.h"
#include <optional>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

using namespace quirra;

namespace {

PieceSpec catalogueEntry(const QString &name)
{
    return ReadPieceSpec(QStringLiteral(QUIRRA_TEST_DATA "/quirra.cfg"), name);
}

const QString Labels30 = QStringLiteral("Acme 30-up - Address Labels");

// The form with its children by their published names.
struct Form
{
    piece_customization_form form;
    QComboBox *pageSize = form.findChild<QComboBox *>(QStringLiteral("page_size_cbo"));

    // Shown and active, as a person finds it.
    explicit Form(const PieceSpec &entry = catalogueEntry(Labels30))
    {
        form.setEntry(entry);
        QVERIFY(showActive(&form));
    }
    QLineEdit *box(const QString &name) const { return form.findChild<QLineEdit *>(name); }
    QScrollBar *spinner(const QString &name) const { return form.findChild<QScrollBar *>(name); }
    QString label(const char *name) const
    {
        return form.findChild<QLabel *>(QLatin1String(name))->text();
    }
    SheetPreview *preview() const { return form.findChild<SheetPreview *>(); }
};

} // namespace

class TestPieceCustomizationForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        qputenv("QUIRRA_SYSTEM_DIR", QUIRRA_TEST_DATA "/");
        qputenv("QUIRRA_PAPER_CATALOGUE", "");
        m_host.emplace();
    }

    void cleanup()
    {
        m_host.reset();
        QVERIFY(!QApplication::activeModalWidget());
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void opensOnItsPage_data()
    {
        // index: in the page size list
        columns<QString, int, float, float, QString>("pageDesc", "index", "width", "height",
                                                     "unit");

        QTest::newRow("in-parenthesis-is-not-inches")
            << "Letter (8 1/2 x 11 in)" << 0 << 8.5f << 11.0f << "centimeters";
        QTest::newRow("in-dot-is-inches")
            << "Envelope 4 1/8 x 9 1/2 in." << 1 << 9.5f << 4.125f << "inches";
        QTest::newRow("match-ignores-case-and-blanks")
            << "  envelope 4 1/8 X 9 1/2 IN.  " << 1 << 9.5f << 4.125f << "inches";
        QTest::newRow("metric-page")
            << "DL (110 x 220 mm)" << 2 << 8.6614f << 4.3307f << "centimeters";
        QTest::newRow("unknown-page-takes-first-row")
            << "Tabloid" << 0 << 8.5f << 11.0f << "centimeters";
    }

    void opensOnItsPage()
    {
        const auto [pageDesc, index, height] =
            fetched<QString, int, float>("pageDesc", "index", "height");

        PieceSpec entry = catalogueEntry(Labels30);
        entry.PageDesc = pageDesc;
        entry.PageWidth = entry.PageHeight = 1; // replaced by the page found
        Form f(entry);
        QCOMPARE(f.pageSize->currentIndex(), index);
        QTEST(f.label("notice_txt"), "unit");
        const PieceSpec result = f.form.acceptedEntry();
        QCOMPARE(result.PageDesc, f.pageSize->itemText(index));
        QTEST(result.PageWidth, "width");
        QCOMPARE(result.PageHeight, height);
        // The boxes show the piece as stored.
        QCOMPARE(f.box("side_margin_txt")->text(), QStringLiteral("0.1875"));
        QCOMPARE(f.box("nr_down_txt")->text(), QStringLiteral("10"));
        QCOMPARE(f.form.numberField(QStringLiteral("label_ht_txt")).maximum(), height);
    }

    void builtInPagesWithoutCatalogue()
    {
        qputenv("QUIRRA_PAPER_CATALOGUE", QUIRRA_TEST_DATA "/nopapers.cfg");
        PieceSpec entry = catalogueEntry(Labels30);
        entry.PageDesc = QStringLiteral("A4 (21 x 29.7 cm)");
        Form f(entry);
        QCOMPARE(f.pageSize->count(), 8);
        QCOMPARE(f.pageSize->itemText(0), QStringLiteral("Letter (8 ½ x 11 in)"));
        QCOMPARE(f.pageSize->itemText(7), QStringLiteral("Mini (4 ¼ x 5 in)"));
        QCOMPARE(f.pageSize->currentIndex(), 2);
        // The page's real size, in inches as the piece keeps it, whatever the caption's unit.
        QCOMPARE(f.form.acceptedEntry().PageWidth, 8.2677f);
        QCOMPARE(f.form.acceptedEntry().PageHeight, 11.6929f);
    }

    void typing_data()
    {
        columns<QString, QString, QString, int>("box", "keys", "text", "beeps");

        const auto row = [](const char *tag, const char *box, const char *keys, const char *text,
                            int beeps) {
            QTest::newRow(tag) << QString::fromLatin1(box) << QString::fromLatin1(keys)
                               << QString::fromLatin1(text) << beeps;
        };
        row("letters-and-blanks-dropped-with-beep", "top_margin_txt", "0a .5", "0.5", 2);
        row("minus-and-comma-dropped", "top_margin_txt", "-0,5", "05", 2);
        row("second-point-kept", "side_margin_txt", "1.2.3", "1.2.3", 0);
        row("count-zero-becomes-one", "nr_down_txt", "0", "1.", 0);
        row("count-fraction-left-as-typed", "nr_across_txt", "3.7", "3.7", 0);
        row("backspace-passes", "vert_pitch_txt", "0.55\b", "0.5", 0);
    }

    void typing()
    {
        const auto [box, keys, text, beeps] =
            fetched<QString, QString, QString, int>("box", "keys", "text", "beeps");

        Form f;
        QLineEdit *edit = f.box(box);
        edit->setFocus();
        edit->selectAll();
        for (QChar c : keys) {
            if (c == u'\b')
                QTest::keyClick(edit, Qt::Key_Backspace);
            else
                QTest::keyClicks(edit, QString(c));
        }
        QCOMPARE(edit->text(), text);
        QCOMPARE(m_host->beeps, beeps);
    }

    void spinners_data()
    {
        // steps: positive up, negative down
        columns<QString, QString, int, QString, int>("name", "start", "steps", "text", "beeps");

        const auto row = [](const char *tag, const char *name, const char *start, int steps,
                            const char *text, int beeps) {
            QTest::newRow(tag) << QString::fromLatin1(name) << QString::fromLatin1(start) << steps
                               << QString::fromLatin1(text) << beeps;
        };
        row("zero-floor-beeps", "vert_pitch", "0.1", -2, "0.", 1);
        row("count-floor-one", "nr_down", "2", -2, "1", 1);
        row("page-height-ceiling-beeps", "label_ht", "10.95", 1, "11.", 1);
        row("page-width-ceiling", "label_wd", "8.45", 3, "8.5", 3);
        row("count-ceiling-hundred", "nr_down", "99", 2, "100", 1);
    }

    void spinners()
    {
        auto [name, start, steps, text, beeps] =
            fetched<QString, QString, int, QString, int>("name", "start", "steps", "text", "beeps");

        Form f;
        QLineEdit *edit = f.box(name + QStringLiteral("_txt"));
        QScrollBar *spinner = f.spinner(name + QStringLiteral("_vscrl"));
        QVERIFY(edit && spinner);
        // Half the steps through the bar's arrows, the rest by keys in the box.
        for (int k = 0; k < 2; ++k) {
            edit->setText(start);
            m_host->beeps = 0;
            for (int i = 0; i < qAbs(steps); ++i) {
                if (k == 0) {
                    spinner->triggerAction(steps > 0 ? QAbstractSlider::SliderSingleStepSub
                                                     : QAbstractSlider::SliderSingleStepAdd);
                } else {
                    QTest::keyClick(edit, steps > 0 ? Qt::Key_Up : Qt::Key_Down);
                }
                QCOMPARE(spinner->value(), 0);
            }
            QCOMPARE(edit->text(), text);
            QCOMPARE(m_host->beeps, beeps);
        }
    }

    void choosingPageSize()
    {
        Form f;
        QCOMPARE(f.form.numberField(QStringLiteral("label_wd_txt")).maximum(), 8.5f);
        const int redraws = f.preview()->entryUpdates();

        f.pageSize->setFocus();
        QTest::keyClick(f.pageSize, Qt::Key_Down);
        QCOMPARE(f.pageSize->currentIndex(), 1);
        QCOMPARE(f.label("page_size_txt"), QStringLiteral("Envelope 4 1/8 x 9 1/2 in."));
        QCOMPARE(f.label("notice_txt"), QStringLiteral("inches"));
        QCOMPARE(f.form.numberField(QStringLiteral("label_wd_txt")).maximum(), 9.5f);
        QCOMPARE(f.form.numberField(QStringLiteral("top_margin_txt")).maximum(), 4.125f);
        QVERIFY(f.preview()->entryUpdates() > redraws);
        QCOMPARE(f.preview()->entry().PageWidth, 9.5f);
        // The pieces keep their geometry: only the page changed.
        QCOMPARE(f.form.acceptedEntry().LabelWidth, 2.625f);
        QCOMPARE(f.form.acceptedEntry().PageDesc, QStringLiteral("Envelope 4 1/8 x 9 1/2 in."));
    }

    void focusSelectsText()
    {
        Form f;
        f.pageSize->setFocus();
        QTest::keyClick(f.pageSize, Qt::Key_Tab);
        QLineEdit *top = f.box(QStringLiteral("top_margin_txt"));
        QTRY_VERIFY(top->hasFocus());
        QTRY_COMPARE(top->selectedText(), QStringLiteral("0.5"));

        QLineEdit *down = f.box(QStringLiteral("nr_down_txt"));
        QTest::mouseClick(down, Qt::LeftButton, {}, QPoint(4, down->height() / 2));
        QTRY_VERIFY(down->hasFocus());
        QTRY_COMPARE(down->selectedText(), QStringLiteral("10"));
        // Typing then replaces the whole number.
        QTest::keyClicks(down, QStringLiteral("4"));
        QCOMPARE(down->text(), QStringLiteral("4"));
    }

    void previewFollowsBoxes()
    {
        Form f;
        SheetPreview *preview = f.preview();
        QCOMPARE(preview->objectName(), QStringLiteral("simulated_paper_pic"));
        const SheetDrawing before = preview->drawing();
        QCOMPARE(before.pieces().size(), 30);
        const QPoint thirdColumn = before.pieces().at(2).rect.center().toPoint();
        QVERIFY(preview->grab().toImage().pixelColor(thirdColumn) != QColor(Qt::white));

        QLineEdit *across = f.box(QStringLiteral("nr_across_txt"));
        across->setFocus();
        across->selectAll();
        QTest::keyClicks(across, QStringLiteral("1"));
        QCOMPARE(preview->entry().NumAcross, qint16(1));
        QCOMPARE(preview->drawing().pieces().size(), 10);
        // Where the third column was is bare paper now.
        QCOMPARE(preview->grab().toImage().pixelColor(thirdColumn), QColor(Qt::white));

        // A stepped change redraws as well (2.625 + 0.1 shows as 2.73).
        f.spinner(QStringLiteral("label_wd_vscrl"))
            ->triggerAction(QAbstractSlider::SliderSingleStepSub);
        QCOMPARE(preview->entry().LabelWidth, 2.73f);
    }

    void modalResult_data()
    {
        columns<QString, QString, bool>("typeInDown", "closeWith", "accepted");

        const auto row = [](const char *tag, const char *typed, const char *closeWith, bool ok) {
            QTest::newRow(tag) << QString::fromLatin1(typed) << QString::fromLatin1(closeWith)
                               << ok;
        };
        row("ok-unchanged-still-custom", "", "ok_btn", true);
        row("ok-after-typing", "4", "ok_btn", true);
        row("return-after-typing", "4", "return", true);
        row("cancel-after-typing", "4", "cancel_btn", false);
        row("escape-after-typing", "4", "escape", false);
    }

    void modalResult()
    {
        QFETCH(QString, typeInDown);
        QFETCH(QString, closeWith);
        QFETCH(bool, accepted);

        const PieceSpec original = catalogueEntry(QStringLiteral("DL - Envelope"));
        QVERIFY(!original.IsCustom);
        ModalDriver driver;
        driver.onModal(QStringLiteral("piece_customization_form"), [&](QDialog *dialog) {
            auto *down = dialog->findChild<QLineEdit *>(QStringLiteral("nr_down_txt"));
            down->setFocus();
            down->selectAll();
            if (!typeInDown.isEmpty())
                QTest::keyClicks(down, typeInDown);
            ModalDriver::close(dialog, closeWith, down);
        });
        PieceSpec entry = original;
        QCOMPARE(ShowPieceCustomizationDialog(nullptr, entry), accepted);
        QVERIFY(driver.ranOnce());

        PieceSpec expected = original;
        if (accepted) {
            expected.IsCustom = true;
            if (!typeInDown.isEmpty())
                expected.NumDown = qint16(typeInDown.toInt());
        }
        QVERIFY(entry == expected);
    }

    void conversions_data()
    {
        // checked: after a key release
        // stored: when the dialog is accepted
        columns<NumberField::Kind, float, QString, QString, double>("kind", "maximum", "text",
                                                                    "checked", "stored");

        const auto m = NumberField::Measure;
        const auto c = NumberField::Count;
        // An A4 page is 11.6929 inches high as a single: its height typed in
        // full is not above it.
        QTest::newRow("bound-compared-as-single") << m << 11.6929f << "11.6929"
                                                  << "11.6929" << double(11.6929f);
        QTest::newRow("just-above-bound") << m << 11.6929f << "11.693"
                                          << "11.69" << double(11.693f);
        QTest::newRow("second-point-stored-as-read") << m << 11.0f << "1.2.3"
                                                     << "1.2.3" << double(1.23f);
        QTest::newRow("endless-digits") << m << 11.0f << QString(400, u'9') << "11." << 11.0;
        QTest::newRow("count-halves-to-even") << c << 100.0f << "2.5"
                                              << "2.5" << 2.0;
        QTest::newRow("count-rounds-up") << c << 100.0f << "3.7"
                                         << "3.7" << 4.0;
        QTest::newRow("count-beyond-16-bits") << c << 100.0f << "99999999"
                                              << "100." << 100.0;
    }

    void conversions()
    {
        const auto [kind, maximum, text, checked, stored] =
            fetched<NumberField::Kind, float, QString, QString, double>("kind", "maximum", "text",
                                                                        "checked", "stored");
        const NumberField f(kind, kind == NumberField::Count ? 1 : 0, maximum);
        QCOMPARE(f.checked(text), checked);
        if (kind == NumberField::Measure)
            QCOMPARE(f.measureValue(text), float(stored));
        else
            QCOMPARE(f.countValue(text), qint16(stored));
    }

private:
    std::optional<HostRecorder> m_host;
};

QTEST_MAIN(TestPieceCustomizationForm)
#include "tst_piece_customization_form.moc"
