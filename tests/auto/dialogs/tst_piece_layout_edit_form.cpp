// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT

// Mouse events go through the window, as a person's do: the widget under the
// pointer is hit, and the one pressed keeps the mouse until the release.
#define QTEST_QPA_MOUSE_HANDLING

#include "columns.h"
#include "dialogs/layoutitemlabel.h"
#include "dialogs/piece_layout_edit_form.h"

#include "hostrecorder.h"

#include "modaldriver.h"
#include "nowindowleft.h"
#include "settings/defaultlayout.h"
#include "settings/units.h"
#include <optional>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>

using namespace quirra;

namespace {

// The default layout of a No. 10 envelope (9.5 x 4.125 inches), in the
// order Address, Return, Stamp, Message1, Message2. At the display scale 0.5
// and 15 twips to the pixel the piece is 6840 x 2970 display twips, and the
// delivery address lies at 3120, 1260, 2160 x 1080: pixel 208, 84, 144 x 72.
std::array<Item, ItemCount> envelopeItems()
{
    std::array<Item, ItemCount> items;
    DefaultLayout(4.125f, 9.5f, items[0], items[1], items[2], items[3], items[4]);
    return items;
}

const QStringList FieldNames = {"top", "left", "height", "width"};

QPoint pixels(QPointF twips)
{
    return (twips / 15).toPoint();
}

// The member of a control array: every member carries the array's name and
// its index in the property "index".
template <typename T> T *member(const QObject *parent, const QString &name, int index)
{
    for (T *candidate : parent->findChildren<T *>(name)) {
        if (candidate->property("index").toInt() == index)
            return candidate;
    }
    return nullptr;
}

// Presses at from (pixels on the piece), moves in steps of by, releases.
void drag(QWidget *frame, QPoint from, QPoint by, int steps)
{
    QTest::mousePress(frame, Qt::LeftButton, {}, from);
    for (int i = 1; i <= steps; ++i)
        QTest::mouseMove(frame, from + by * i);
    QTest::mouseRelease(frame, Qt::LeftButton, {}, from + by * steps);
}

// The form shown on a piece, with its children by their published names.
struct Editor
{
    piece_layout_edit_form form;
    QWidget *frame = form.findChild<QWidget *>(QStringLiteral("piece_frame"));

    explicit Editor(const std::array<Item, ItemCount> &items = envelopeItems(), float scale = 0.5f)
    {
        form.loadItems(9.5f, 4.125f, items, scale);
        QVERIFY(showActive(&form));
    }
    template <typename T = QWidget> T *child(const QString &name) const
    {
        return form.findChild<T *>(name);
    }
    QLabel *item(int i) const { return member<QLabel>(&form, QStringLiteral("item"), i); }
    QLabel *dot(int k) const { return member<QLabel>(&form, QStringLiteral("dot"), k); }
    QAction *entry(const char *array, int i) const
    {
        return member<QAction>(&form, QLatin1String(array), i);
    }
    QLineEdit *field(int f) const
    {
        return child<QLineEdit>(FieldNames[f] + QLatin1String("_txt"));
    }
    // The four values the fields stand for: top, left, height, width (display twips).
    std::array<double, 4> values(int i) const
    {
        const QRectF b = form.itemBox(i);
        return {b.top(), b.left(), b.height(), b.width()};
    }

    void click(int i, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(frame, button, {}, item(i)->geometry().topLeft() + QPoint(5, 5));
    }
    // As the keyboard chooses: the menu opens (doing what opening it does),
    // the entry is made current and Return takes it.
    void choose(const QString &menuName, const QString &actionName, int index = -1)
    {
        auto *menu = child<QMenu>(menuName);
        menu->popup(frame->mapToGlobal(QPoint(10, 10)));
        QVERIFY(QTest::qWaitForWindowExposed(menu));
        menu->setActiveAction(index < 0 ? child<QAction>(actionName)
                                        : member<QAction>(&form, actionName, index));
        QTest::keyClick(menu, Qt::Key_Return);
        QTRY_VERIFY(!menu->isVisible());
    }
    std::array<Item, ItemCount> result() const
    {
        std::array<Item, ItemCount> items = envelopeItems();
        form.copyItemsBack(items);
        return items;
    }
};

} // namespace

class TestPieceLayoutEditForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_host.emplace(); }
    void cleanup()
    {
        m_host.reset();
        verifyNoWindowLeft();
    }

    void mouseLayout_data()
    {
        // handle: 0: the address itself
        // step: pixels
        // refreshed: fields by initial: Top, Left, Height, Width
        columns<int, QPoint, int, QRectF, QString, int>("handle", "step", "steps", "box",
                                                        "refreshed", "cursor");

        const int fdiag = Qt::SizeFDiagCursor;
        const int bdiag = Qt::SizeBDiagCursor;
        const int ver = Qt::SizeVerCursor;
        const int hor = Qt::SizeHorCursor;
        QTest::newRow("drag-follows-the-mouse")
            << 0 << QPoint(3, -2) << 10 << QRectF(3570, 960, 2160, 1080) << "TLHW" << 0;
        // Pressed at a handle's corner: the corner follows the mouse.
        QTest::newRow("top-left-moves-both-edges")
            << 1 << QPoint(-4, -2) << 5 << QRectF(2820, 1110, 2460, 1230) << "TLHW" << fdiag;
        QTest::newRow("top-right")
            << 3 << QPoint(6, -2) << 2 << QRectF(3120, 1200, 2340, 1140) << "THW" << bdiag;
        QTest::newRow("bottom-right-grows-both")
            << 8 << QPoint(5, 3) << 4 << QRectF(3120, 1260, 2460, 1260) << "HW" << fdiag;
        QTest::newRow("bottom-centre-height-only")
            << 7 << QPoint(7, 4) << 3 << QRectF(3120, 1260, 2160, 1260) << "H" << ver;
        // Where the edges stop while the mouse goes on: the width stays above 50,
        // the top at 50 or more.
        QTest::newRow("left-stops-above-50-wide")
            << 4 << QPoint(10, 0) << 20 << QRectF(5220, 1260, 60, 1080) << "LW" << hor;
        QTest::newRow("top-stops-at-keep-out")
            << 2 << QPoint(0, -5) << 20 << QRectF(3120, 60, 2160, 2280) << "TH" << ver;
    }

    void mouseLayout()
    {
        const auto [handle, step, steps, box, refreshed, cursor] =
            fetched<int, QPoint, int, QRectF, QString, int>("handle", "step", "steps", "box",
                                                            "refreshed", "cursor");

        Editor e;
        // A control array is found by its name: every member carries it.
        for (const auto &[name, size] : {std::pair{"item", 5},
                                         {"dot", 8},
                                         {"edit_txt", 3},
                                         {"format_justify_mnu", 4},
                                         {"display_item_mnu", 5}})
            QCOMPARE(e.form.findChildren<QObject *>(QLatin1String(name)).size(), size);
        QCOMPARE(e.form.twipsPerPixel(), 15.0);
        QCOMPARE(e.item(1)->geometry(), QRect(208, 84, 144, 72));
        // Texts that are no number move nothing; a refresh replaces them.
        for (int f = 0; f < 4; ++f)
            e.field(f)->setText(QStringLiteral("."));
        if (handle) {
            QCOMPARE(e.dot(handle)->size(), QSize(6, 6));
            QCOMPARE(int(e.dot(handle)->cursor().shape()), cursor);
            drag(e.frame, e.dot(handle)->pos(), step, steps);
        } else {
            drag(e.frame, QPoint(218, 94), step, steps);
        }
        QCOMPARE(e.form.itemBox(1), box);
        QCOMPARE(e.item(1)->geometry(), QRect(pixels(box.topLeft()), (box.size() / 15).toSize()));
        QCOMPARE(e.form.currentItem(), 1);
        QVERIFY(e.dot(8)->isVisible());
        QCOMPARE(e.dot(8)->pos(), pixels(box.bottomRight() - QPointF(45, 45)));
        for (int f = 0; f < 4; ++f) {
            const bool wanted = refreshed.contains(QStringLiteral("TLHW")[f]);
            QCOMPARE(e.field(f)->text(), wanted ? DisplayTwipsToText(e.values(1)[size_t(f)], 0.5f)
                                                : QStringLiteral("."));
        }
    }

    void fields_data()
    {
        // field: top, left, height, width
        // value: display twips, rounded
        columns<int, QString, QString, int, int>("field", "keys", "text", "beeps", "value");
        // Typed after the field's text was selected; "+" and "-" are the Up and
        // Down keys, "^" and "v" clicks on the stepper's arrows.

        const auto row = [](const char *tag, int field, const char *keys, const char *text,
                            int beeps, int value) {
            QTest::newRow(tag) << field << QString::fromLatin1(keys) << QString::fromLatin1(text)
                               << beeps << value;
        };
        row("above-room-becomes-bound", 1, "9", "6.5", 0, 4680);
        row("bound-as-the-field-shows-it", 0, "3", "2.63", 0, 1894);
        // Every key leaves the text as "#0.##" shows it: "1.0" becomes "1.".
        row("each-key-rewrites-the-number", 2, "1.05", "1.5", 0, 1080);
        row("second-point-continues", 1, "1.2.3", "1.23", 0, 886);
        row("arrows-step-0.03", 0, "1.75^^", "1.81", 0, 1303);
        row("keys-step-down", 1, "4.33---", "4.24", 0, 3053);
        row("floor-0-beeps", 2, "0.1vvvvv", "0.", 2, 0);
        row("ceiling-is-room-right-beeps", 3, "5.1++++", "5.17", 2, 3722);
    }

    void fields()
    {
        QFETCH(int, field);
        QFETCH(QString, keys);
        QFETCH(QString, text);
        QFETCH(int, beeps);
        QFETCH(int, value);

        Editor e;
        // Top and Left side by side, Height and Width under them.
        const auto at = [&](int f) { return e.field(f)->mapTo(&e.form, QPoint()); };
        QVERIFY(at(0).y() == at(1).y() && at(0).x() < at(1).x() && at(2).y() > at(0).y());
        QVERIFY(at(2).x() == at(0).x() && at(3).x() == at(1).x() && at(3).y() == at(2).y());
        QLineEdit *edit = e.field(field);
        auto *stepper = e.child<QScrollBar>(FieldNames[field] + QLatin1String("_scr"));
        QTest::mouseClick(edit, Qt::LeftButton);
        QTRY_COMPARE(edit->selectedText(), edit->text());
        for (QChar c : keys) {
            if (c == u'+' || c == u'-')
                QTest::keyClick(edit, c == u'+' ? Qt::Key_Up : Qt::Key_Down);
            else if (c == u'^' || c == u'v')
                QTest::mouseClick(
                    stepper, Qt::LeftButton, {},
                    QPoint(stepper->width() / 2, c == u'^' ? 2 : stepper->height() - 3));
            else
                QTest::keyClicks(edit, QString(c));
            QCOMPARE(stepper->value(), 0);
        }
        QCOMPARE(edit->text(), text);
        QCOMPARE(m_host->beeps, beeps);
        QCOMPARE(qRound(e.values(1)[size_t(field)]), value);
        QCOMPARE(e.dot(1)->pos(), pixels(e.form.itemBox(1).topLeft() - QPointF(45, 45)));
    }

    void modifyInPlace_data()
    {
        // justify: chosen first, if any
        columns<int, QString, bool, int>("item", "justify", "doubleClick", "editor");

        QTest::newRow("left-item-by-menu") << 1 << "" << false << 0;
        QTest::newRow("centred-item-by-double-click") << 2 << "" << true << 2;
        QTest::newRow("right-justified-item") << 1 << "2" << false << 1;
    }

    void modifyInPlace()
    {
        const auto [item, justify, doubleClick, editor] =
            fetched<int, QString, bool, int>("item", "justify", "doubleClick", "editor");

        Editor e;
        QLabel *label = e.item(item);
        e.click(item);
        if (!justify.isEmpty())
            e.choose(QStringLiteral("format_mnu"), QStringLiteral("format_justify_mnu"),
                     justify.toInt());
        if (doubleClick)
            QTest::mouseDClick(e.frame, Qt::LeftButton, {},
                               label->geometry().topLeft() + QPoint(5, 5));
        else
            e.choose(QStringLiteral("edit_mnu"), QStringLiteral("edit_modify_mnu"));

        auto *box = member<QTextEdit>(&e.form, QStringLiteral("edit_txt"), editor);
        QTRY_VERIFY(box->hasFocus());
        QCOMPARE(box->geometry(), label->geometry());
        QCOMPARE(box->font(), label->font());
        QVERIFY(!e.dot(1)->isVisible());
        // Typing replaces the selected text and shows in the label at once.
        QTRY_COMPARE(box->textCursor().selectedText(), label->text());
        QTest::keyClicks(box, QStringLiteral("ACME"));
        QCOMPARE(label->text(), QStringLiteral("ACME"));
        QTest::keyClick(box, Qt::Key_Return);
        QTest::keyClicks(box, QStringLiteral("Main St"));
        QCOMPARE(label->text(), QStringLiteral("ACME\nMain St"));
        // Leaving the box hides it; the item breaks lines as the print run reads them.
        e.field(0)->setFocus();
        QTRY_VERIFY(!box->isVisible());
        QCOMPARE(e.result()[size_t(item - 1)].Text, QStringLiteral("ACME\r\nMain St"));
    }

    void zOrder_data()
    {
        // commands: on the address
        // clicked: the item a click in the overlap takes
        // atCorner: what shows at the address's bottom-right handle: 0 the handle
        columns<QStringList, int, int>("commands", "clicked", "atCorner");

        QTest::newRow("send-to-back-buries-handles-too")
            << QStringList{"edit_send_to_back_mnu"} << 4 << 4;
        QTest::newRow("bring-to-front-raises-item-and-handles")
            << QStringList{"edit_send_to_back_mnu", "edit_bring_to_front_mnu"} << 1 << 0;
    }

    void zOrder()
    {
        const auto [commands, atCorner] = fetched<QStringList, int>("commands", "atCorner");

        // Message 1 overlaps the address's bottom-right part.
        std::array<Item, ItemCount> items = envelopeItems();
        items[3].Left = 6.0f;
        items[3].Top = 2.5f;
        Editor e(items);
        for (const QString &command : commands)
            e.choose(QStringLiteral("edit_mnu"), command);
        QCOMPARE(e.frame->childAt(e.dot(8)->geometry().center()),
                 atCorner ? static_cast<QWidget *>(e.item(atCorner)) : e.dot(8));
        // The handles stay above the address itself: its top-left one covers no other item.
        QCOMPARE(e.frame->childAt(e.dot(1)->geometry().bottomRight()), e.dot(1));
        QTest::mouseClick(e.frame, Qt::LeftButton, {}, pixels(QPointF(4500, 2000)));
        QTEST(e.form.currentItem(), "clicked");
    }

    void formatMenu_data()
    {
        // align: the item's own
        // border: the item's own
        // command: a justify entry's index, "B" borders, or a right click
        // alignment: the label's, horizontally
        // horzAlign: written back
        // written: border written back
        // checked: the menu's checks when opened again
        columns<int, int, qint16, QString, int, int, qint16, QString>(
            "item", "align", "border", "command", "alignment", "horzAlign", "written", "checked");

        const int left = Qt::AlignLeft;
        const qint16 none = 0;
        QTest::newRow("second-entry-centres")
            << 1 << int(haLeft) << none << "1" << int(Qt::AlignHCenter) << int(haCenter) << none
            << "1";
        QTest::newRow("third-entry-right") << 1 << int(haLeft) << none << "2" << int(Qt::AlignRight)
                                           << int(haRight) << none << "2";
        QTest::newRow("full-changes-nothing-stays-checked")
            << 2 << int(haCenter) << none << "3" << int(Qt::AlignHCenter) << int(haCenter) << none
            << "13";
        // The label draws it from the left: the menu ticks Left Justify.
        QTest::newRow("fully-justified-item-ticks-left")
            << 1 << int(haFull) << none << "" << int(Qt::AlignJustify) << int(haFull) << none
            << "0";
        QTest::newRow("borders-on")
            << 1 << int(haLeft) << none << "B" << left << int(haLeft) << qint16(1) << "0B";
        QTest::newRow("untouched-border-kept")
            << 1 << int(haLeft) << qint16(2) << "" << left << int(haLeft) << qint16(2) << "0B";
        // A right click selects the item and opens the menu at the mouse.
        QTest::newRow("right-click")
            << 4 << int(haLeft) << none << "right-click" << left << int(haLeft) << none << "0";
    }

    void formatMenu()
    {
        const auto [item, align, border, command, alignment, written] =
            fetched<int, int, qint16, QString, int, qint16>("item", "align", "border", "command",
                                                            "alignment", "written");

        std::array<Item, ItemCount> items = envelopeItems();
        items[size_t(item - 1)].HorzAlign = eHorzAlign(align);
        items[size_t(item - 1)].Border = border;
        Editor e(items);
        const QRectF before = e.form.itemBox(item);
        auto *format = e.child<QMenu>(QStringLiteral("format_mnu"));
        if (command == QLatin1String("right-click")) {
            const QPoint at = e.item(item)->geometry().center();
            QTest::mousePress(e.frame, Qt::RightButton, {}, at);
            QTRY_VERIFY(format->isVisible());
            QCOMPARE(format->geometry().topLeft(), e.frame->mapToGlobal(at));
            QCOMPARE(e.child<QLabel>(QStringLiteral("item_lbl"))->text(),
                     QStringLiteral("Message 1"));
        } else {
            e.click(item);
            if (command == QLatin1String("B"))
                e.choose(QStringLiteral("format_mnu"), QStringLiteral("format_borders_mnu"));
            else if (!command.isEmpty())
                e.choose(QStringLiteral("format_mnu"), QStringLiteral("format_justify_mnu"),
                         command.toInt());
            format->popup(QPoint(0, 0));
        }
        QCOMPARE(e.form.currentItem(), item);
        QVERIFY(e.dot(1)->isVisible());
        QString shown;
        for (int i = 0; i < 4; ++i) {
            if (e.entry("format_justify_mnu", i)->isChecked())
                shown += QString::number(i);
        }
        if (e.child<QAction>(QStringLiteral("format_borders_mnu"))->isChecked())
            shown += u'B';
        QTEST(shown, "checked");
        QTest::keyClick(format, Qt::Key_Escape);
        QTRY_VERIFY(!format->isVisible());
        if (command == QLatin1String("right-click"))
            QTest::mouseRelease(e.frame, Qt::RightButton, {}, e.item(item)->geometry().center());

        QCOMPARE(e.form.itemBox(item), before); // no click moves an item
        QCOMPARE(int(e.item(item)->alignment() & Qt::AlignHorizontal_Mask), alignment);
        QCOMPARE(e.item(item)->frameShape(), written ? QFrame::Box : QFrame::NoFrame);
        const Item result = e.result()[size_t(item - 1)];
        QTEST(int(result.HorzAlign), "horzAlign");
        QCOMPARE(result.Border, written);
    }

    void fontKeepsTrueSize_data()
    {
        // chosen: false: the font dialog was cancelled
        columns<float, bool, QString, double>("scale", "chosen", "tag", "shownSize");

        QTest::newRow("ten-points-at-0.74") << 0.74f << true << "10" << 8.3999;
        QTest::newRow("cancel-keeps-font") << 0.5f << false << "12" << 6.9999;
    }

    void fontKeepsTrueSize()
    {
        QFETCH(float, scale);
        QFETCH(bool, chosen);
        QFETCH(QString, tag);
        QFETCH(double, shownSize);

        std::array<Item, ItemCount> items = envelopeItems();
        items[1].Font.Size = 12;
        QFont offered;
        m_host->fontChoice = [&](QFont &font) {
            offered = font;
            font = QFont(QStringLiteral("DejaVu Serif"));
            font.setPointSizeF(10);
            font.setItalic(true);
            font.setStrikeOut(true);
            return chosen;
        };
        Editor e(items, scale);
        e.click(2);
        e.choose(QStringLiteral("format_mnu"), QStringLiteral("format_font_mnu"));
        // The dialog is offered the true size, not the one on the screen.
        QCOMPARE(offered.pointSizeF(), 12.0);
        QCOMPARE(e.item(2)->property("Tag").toString(), tag);
        QVERIFY(qAbs(e.item(2)->font().pointSizeF() - shownSize) < 1e-4);
        const ItemFont font = e.result()[1].Font;
        QCOMPARE(font.Size, tag.toDouble());
        QCOMPARE(font.Name, chosen ? QStringLiteral("DejaVu Serif") : QStringLiteral("Arial"));
        QCOMPARE(font.Italic, chosen);
        QCOMPARE(font.Strikethrough, chosen);
    }

    void display_data()
    {
        // toggles: Display menu entries, in turn
        // visible: items 1..5
        // size: of the current item
        columns<QList<int>, QString, int, QSize>("toggles", "visible", "current", "size");

        QTest::newRow("hiding-selected-selects-first-visible")
            << QList<int>{1} << "01111" << 2 << QSize(1440, 792);
        QTest::newRow("only-the-last-left-is-selected")
            << QList<int>{1, 2, 3, 4} << "00001" << 5 << QSize(1080, 360);
        QTest::newRow("hiding-all-selects-none")
            << QList<int>{1, 2, 3, 4, 5} << "00000" << 0 << QSize();
        QTest::newRow("shown-again-is-at-least-700")
            << QList<int>{5, 5} << "11111" << 5 << QSize(1080, 700);
    }

    void display()
    {
        auto [toggles, visible, current, size] =
            fetched<QList<int>, QString, int, QSize>("toggles", "visible", "current", "size");

        Editor e;
        for (int entry : toggles)
            e.choose(QStringLiteral("display_mnu"), QStringLiteral("display_item_mnu"), entry);
        QString shown;
        for (int i = 1; i <= ItemCount; ++i)
            shown += e.item(i)->isVisible() ? u'1' : u'0';
        QCOMPARE(shown, visible);
        QCOMPARE(e.form.currentItem(), current);
        QCOMPARE(e.dot(1)->isVisible(), current != 0);
        if (current) {
            QCOMPARE(e.form.itemBox(current).size().toSize(), size);
            QCOMPARE(e.dot(1)->pos(), pixels(e.form.itemBox(current).topLeft() - QPointF(45, 45)));
        }
        for (int i = 0; i < ItemCount; ++i)
            QCOMPARE(e.result()[size_t(i)].Visible, visible[i] == u'1');
    }

    void defaultAndClear()
    {
        Editor e;
        // It opens in the middle of the screen.
        const QPoint middle = QGuiApplication::primaryScreen()->availableGeometry().center();
        QVERIFY((e.form.frameGeometry().center() - middle).manhattanLength() <= 6);
        e.click(2);
        e.choose(QStringLiteral("edit_mnu"), QStringLiteral("edit_clear_mnu"));
        QCOMPARE(e.item(2)->text(), QString());
        QCOMPARE(e.result()[1].Text, QString());
        drag(e.frame, QPoint(218, 94), QPoint(-5, 3), 4);
        QCOMPARE(e.form.itemBox(1).topLeft(), QPointF(2820, 1440));

        e.choose(QStringLiteral("edit_mnu"), QStringLiteral("edit_default_mnu"));
        QCOMPARE(e.form.itemBox(1).topLeft().toPoint(), QPoint(3120, 1260));
        QCOMPARE(e.item(2)->text(), QStringLiteral("Return Address"));
        QCOMPARE(e.form.currentItem(), 1);
        QCOMPARE(e.dot(1)->pos(), QPoint(205, 81));

        // OK, then shown again: the outcome is cleared until OK is pressed again.
        QTest::mouseClick(e.child(QStringLiteral("ok_btn")), Qt::LeftButton);
        QVERIFY(e.form.dataWasAccepted() && !e.form.isVisible());
        e.form.show();
        QVERIFY(!e.form.dataWasAccepted());
    }

    // A box drawn with a border shows its frame; the bar code band stands
    // below the last line of the text, clear of it.
    void itemLabelDrawing_data()
    {
        columns<bool>("bordered");
        QTest::newRow("bordered") << true;
        QTest::newRow("bar-code-below-two-lines") << false;
    }

    void itemLabelDrawing()
    {
        QFETCH(bool, bordered);
        LayoutItemLabel label;
        label.resize(120, 90);
        label.setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        label.setText(QStringLiteral("\n"));
        label.setBordered(bordered);
        label.setBarcodeBand(bordered ? QSize() : QSize(60, 16));
        const QImage image = label.grab().toImage();
        const auto darkInRows = [&](int from, int to) {
            for (int y = from; y < to; ++y)
                for (int x = 40; x < 80; ++x)
                    if (qGray(image.pixel(x, y)) < 128)
                        return true;
            return false;
        };
        if (bordered) {
            QVERIFY(qGray(image.pixel(0, 45)) < 128 && qGray(image.pixel(119, 45)) < 128);
            return;
        }
        const int top = 2 * label.fontMetrics().lineSpacing() + 4;
        QVERIFY(!darkInRows(2, top));
        QVERIFY(darkInRows(top, top + 16));
    }

    void modalResult_data()
    {
        columns<QString, bool, bool>("closeWith", "dragFirst", "accepted");

        QTest::newRow("ok-untouched-writes-back-exactly") << "ok_btn" << false << true;
        QTest::newRow("ok-after-drag") << "ok_btn" << true << true;
        QTest::newRow("cancel-after-drag") << "cancel_btn" << true << false;
        QTest::newRow("escape-after-drag") << "escape" << true << false;
    }

    void modalResult()
    {
        QFETCH(QString, closeWith);
        QFETCH(bool, dragFirst);
        QFETCH(bool, accepted);

        const std::array<Item, ItemCount> original = envelopeItems();
        ModalDriver driver;
        QPointF dropped;
        float scale = 0;
        driver.onModal(QStringLiteral("piece_layout_edit_form"), [&](QDialog *dialog) {
            auto *form = static_cast<piece_layout_edit_form *>(dialog);
            auto *frame = form->findChild<QWidget *>(QStringLiteral("piece_frame"));
            scale = form->displayScale();
            if (dragFirst) {
                const QPoint from =
                    member<QLabel>(form, QStringLiteral("item"), 1)->pos() + QPoint(4, 4);
                drag(frame, from, QPoint(-30, 10), 1);
            }
            dropped = form->itemBox(1).topLeft();
            ModalDriver::close(dialog, closeWith);
        });
        std::array<Item, ItemCount> items = original;
        QCOMPARE(EditPieceLayout(nullptr, 9.5f, 4.125f, items), accepted);
        QVERIFY(driver.ranOnce());
        // Fitted to the screen: the offscreen one is 800 pixels (12000 twips)
        // wide, which takes (1680 + 360) / 13680 off; one of 912 pixels or more
        // holds the envelope at full size.
        const int screenWidth = QGuiApplication::primaryScreen()->availableGeometry().width();
        if (screenWidth == 800)
            QCOMPARE(scale, 0.85f);
        else if (screenWidth >= 912)
            QCOMPARE(scale, 1.0f);

        std::array<Item, ItemCount> expected = original;
        if (accepted && dragFirst) {
            expected[0].Left = float(dropped.x() / scale / 1440);
            expected[0].Top = float(dropped.y() / scale / 1440);
            QVERIFY(expected[0].Left < original[0].Left);
        }
        for (int i = 0; i < ItemCount; ++i)
            QVERIFY2(items[size_t(i)] == expected[size_t(i)], qPrintable(QString::number(i)));
    }

private:
    std::optional<HostRecorder> m_host;
};

QTEST_MAIN(TestPieceLayoutEditForm)
#include "tst_piece_layout_edit_form.moc"
