// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>
#include <QtGlobal>

namespace quirra {

/**
 * @brief The arithmetic of the layout editor, apart from any widget: the
 * scale that fits a piece on the screen, where the eight sizing handles
 * sit, how a drag and a resize step move an item's box, and the bounds and
 * steps of the four position fields.
 *
 * Boxes and mouse positions are display twips on the piece (its top-left
 * corner is 0, 0); the fields' values are inches.
 */
class LayoutGeometry
{
public:
    /** @brief Display twips a dragged item keeps from every edge of the piece. */
    static constexpr int KeepOut = 50;
    /** @brief Width and height of a sizing handle, display twips. */
    static constexpr int HandleSize = 90;
    /** @brief Width and height, display twips, an item is given at least when it is shown again. */
    static constexpr int ShownMinimum = 700;
    /** @brief Twips of screen width the editor keeps beside a piece that is too wide. */
    static constexpr int WidthReserve = 360;
    /** @brief Twips of screen height the editor needs below the piece (menus, fields, buttons). */
    static constexpr int HeightReserve = 2880;
    /** @brief The handles are numbered 1..HandleCount. */
    static constexpr int HandleCount = 8;

    /** @brief The four position fields, as flags of what a handle's release refreshes. */
    enum Field {
        NoField = 0,
        TopField = 1,
        LeftField = 2,
        HeightField = 4,
        WidthField = 8,
        AllFields = TopField | LeftField | HeightField | WidthField,
    };
    Q_DECLARE_FLAGS(Fields, Field)

    /** @brief A step of a position field: its new text, and whether a bound stopped it. */
    struct Step
    {
        QString text;         ///< inches, "#0.##"
        bool clamped = false; ///< a bound replaced the value: the field beeps
    };

    /** @brief A piece of no size. */
    LayoutGeometry() = default;
    /**
     * @brief A piece of frameWidth × frameHeight display twips (a negative
     * size counts as 0), shown at scale display twips per twip.
     */
    LayoutGeometry(double frameWidth, double frameHeight, float scale = 1.0f);

    /** @brief The piece's width, display twips. */
    double frameWidth() const { return m_width; }
    /** @brief The piece's height, display twips. */
    double frameHeight() const { return m_height; }
    /** @brief Display twips per twip of the real piece. */
    float scale() const { return m_scale; }

    /**
     * @brief The display scale for a piece of pieceWidth × pieceHeight inches
     * on a screen of screenWidth × screenHeight twips.
     *
     * From 1, a piece wider than the screen loses (excess + 360) ÷ its width
     * in twips, then one whose height plus the 2880 twips of the editor's
     * panel exceeds the screen loses the excess ÷ that height; the result is
     * rounded to two decimals. Should the two losses leave no positive scale
     * (a piece far larger than the screen), the largest two-decimal scale at
     * which both reserves still fit is taken instead, at least 0.01.
     *
     * @throws Error "Overflow" when the width or the height plus the reserve
     * does not fit in 16-bit twips, or either is not a number.
     */
    static float fitScale(float pieceWidth, float pieceHeight, int screenWidth, int screenHeight);

    /**
     * @brief The top-left corner, display twips, of the box after a drag move.
     *
     * mouse and down are relative to the box's top-left corner: the box
     * moves by their difference, rounded to whole twips, and then keeps
     * KeepOut twips from the left, the top, the right and the bottom edge,
     * in that order, so a box too big to fit ends up past the near edge.
     */
    QPointF dragged(const QRectF &box, QPointF mouse, QPointF down) const;

    /**
     * @brief The top-left corner, display twips, of handle (1..8) round box;
     * every handle is centred on its point. A handle out of range gives the
     * first handle's place.
     */
    static QPointF handlePosition(int handle, const QRectF &box);

    /**
     * @brief The box after one resize step of handle (1..8), display twips.
     *
     * The box is first rounded to whole twips; mouse is relative to the
     * handle's own top-left corner. A left or top edge follows it only while
     * it stays at least KeepOut from the piece's edge and the box keeps more
     * than KeepOut; a right or bottom edge only while the box keeps more
     * than KeepOut and the edge stays more than KeepOut inside the piece. A
     * step that would break its condition leaves that edge where it was.
     */
    QRectF resized(int handle, const QRectF &box, QPointF mouse) const;

    /** @brief The pointer shape over handle (1..8): the sizing arrow of its direction. */
    static Qt::CursorShape handleCursor(int handle);

    /** @brief The fields that handle (1..8) can change, refreshed when it is released. */
    static Fields fieldsOfHandle(int handle);

    /**
     * @brief The largest value, inches, field may hold for box: the room
     * between the box and the piece's far edge (left and top: the piece
     * less the box's size; width and height: the piece less the box's left
     * or top), as the fields show it ("#0.##"); never below 0.
     */
    float upperBound(Field field, const QRectF &box) const;

    /** @brief box grown to at least ShownMinimum display twips wide and high, as when shown again.
     */
    static QRectF shownAgain(const QRectF &box);

    /**
     * @brief A field's stepper moved to scrollValue (±50 per click): the
     * number in text changes by -scrollValue ÷ 1440 inches as "0.##" shows it
     * (0.03 inch a click, up for -50), kept within 0 and upper (inches).
     */
    static Step stepped(const QString &text, int scrollValue, float upper);

    /**
     * @brief A field's text after a key was released in it: the number it
     * reads (digits only, a second point continues the fraction), within 0
     * and upper (inches), formatted "#0.##".
     */
    static QString typed(const QString &text, float upper);

    /**
     * @brief A field's text when it loses the focus: the number it reads,
     * within 0 and upper (inches), formatted "#0.##"; current, formatted,
     * when the text holds no digit at all.
     */
    static QString completed(const QString &text, float upper, double current);

    /** @brief The value, display twips, that field stands for in box. */
    static double fieldValue(Field field, const QRectF &box);
    /** @brief Moves (top, left) or sizes (height, width) box so that field stands for twips. */
    static void setFieldValue(Field field, QRectF &box, double twips);

private:
    double m_width = 0;
    double m_height = 0;
    float m_scale = 1.0f;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(LayoutGeometry::Fields)

} // namespace quirra
