// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/layoutgeometry.h"

#include "dialogs/logging_p.h"
#include "dialogs/numberfield.h"
#include "model/error.h"
#include "settings/settings.h"
#include "settings/units.h"

#include <algorithm>
#include <cmath>

namespace quirra {

namespace {

const QString FieldFormat = QStringLiteral("#0.##");

// Twips as the editor's 16-bit integers hold them, halves to even.
qint16 sixteenBitTwips(float twips, const char *what)
{
    if (!std::isfinite(twips) || std::fabs(twips) > 1e9f)
        throw Error(QStringLiteral("Overflow: %1 is %2, more than a 16-bit number holds "
                                   "(-32768 to 32767)")
                        .arg(QString::fromUtf8(what))
                        .arg(double(twips)));
    return toInt16Checked(qint64(std::nearbyint(twips)), what);
}

bool isLeftEdge(int handle)
{
    return handle == 1 || handle == 4 || handle == 6;
}
bool isRightEdge(int handle)
{
    return handle == 3 || handle == 5 || handle == 8;
}
bool isTopEdge(int handle)
{
    return handle == 1 || handle == 2 || handle == 3;
}
bool isBottomEdge(int handle)
{
    return handle == 6 || handle == 7 || handle == 8;
}

bool hasDigit(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace

LayoutGeometry::LayoutGeometry(double frameWidth, double frameHeight, float scale)
    : m_width(frameWidth > 0 ? frameWidth : 0), m_height(frameHeight > 0 ? frameHeight : 0),
      m_scale(scale)
{
}

float LayoutGeometry::fitScale(float pieceWidth, float pieceHeight, int screenWidth,
                               int screenHeight)
{
    float scale = 1.0f;
    const qint16 w = sixteenBitTwips(pieceWidth * 1440.0f, "the piece width in twips");
    if (w > screenWidth) {
        const double excess = std::floor(std::fabs(double(w) - screenWidth)) + WidthReserve;
        scale = float(double(scale) - excess / w);
    }
    const qint16 h = sixteenBitTwips(pieceHeight * 1440.0f + float(HeightReserve),
                                     "the piece height in twips with the editor's panel");
    if (h > screenHeight) {
        const double excess = std::floor(std::fabs(double(h) - screenHeight));
        scale = float(double(scale) - excess / h);
    }
    scale = ParseSingle(FormatNumber(double(scale), QStringLiteral("0.00")));
    if (scale > 0)
        return scale;

    // The two losses are taken one after the other, which only a piece far
    // larger than the screen notices: fit it to both reserves instead.
    double fit = 1.0;
    if (w > 0)
        fit = std::min(fit, double(screenWidth - WidthReserve) / w);
    if (h > HeightReserve)
        fit = std::min(fit, double(screenHeight - HeightReserve) / (h - HeightReserve));
    const float fallback = float(std::max(0.01, std::floor(fit * 100) / 100));
    qCWarning(lcDialogs) << "a piece of" << pieceWidth << "x" << pieceHeight
                         << "inches leaves no display scale on a screen of" << screenWidth << "x"
                         << screenHeight << "twips; shown at" << fallback;
    return fallback;
}

QPointF LayoutGeometry::dragged(const QRectF &box, QPointF mouse, QPointF down) const
{
    double left = std::nearbyint(box.left() + (mouse.x() - down.x()));
    double top = std::nearbyint(box.top() + (mouse.y() - down.y()));
    if (left < KeepOut)
        left = KeepOut;
    if (top < KeepOut)
        top = KeepOut;
    // The far edges come last: an item too big for the piece keeps its right
    // and bottom clear and gives up the left and top.
    if (left + box.width() > m_width - KeepOut)
        left = m_width - box.width() - KeepOut;
    if (top + box.height() > m_height - KeepOut)
        top = m_height - box.height() - KeepOut;
    return QPointF(left, top);
}

QPointF LayoutGeometry::handlePosition(int handle, const QRectF &box)
{
    const QPointF first(box.left() - HandleSize / 2, box.top() - HandleSize / 2);
    const double centre = first.x() + box.width() / 2;
    const double right = first.x() + box.width();
    const double middle = first.y() + box.height() / 2;
    const double bottom = first.y() + box.height();
    switch (handle) {
    case 2:
        return QPointF(centre, first.y());
    case 3:
        return QPointF(right, first.y());
    case 4:
        return QPointF(first.x(), middle);
    case 5:
        return QPointF(right, middle);
    case 6:
        return QPointF(first.x(), bottom);
    case 7:
        return QPointF(centre, bottom);
    case 8:
        return QPointF(right, bottom);
    default:
        return first;
    }
}

QRectF LayoutGeometry::resized(int handle, const QRectF &box, QPointF mouse) const
{
    double left = std::nearbyint(box.left());
    double width = std::nearbyint(box.width());
    double top = std::nearbyint(box.top());
    double height = std::nearbyint(box.height());
    const double x = mouse.x();
    const double y = mouse.y();

    // The left and top edges may touch the keep-out line (>=); the right and
    // bottom edges must stay short of it (>).
    if (isLeftEdge(handle)) {
        if (x + left >= KeepOut && x + KeepOut < width) {
            left += x;
            width -= x;
        }
    } else if (isRightEdge(handle)) {
        if (x + width > KeepOut && x + left + width + KeepOut < m_width)
            width += x;
    }
    if (isTopEdge(handle)) {
        if (y + top >= KeepOut && y + KeepOut < height) {
            top += y;
            height -= y;
        }
    } else if (isBottomEdge(handle)) {
        if (y + height > KeepOut && y + top + height + KeepOut < m_height)
            height += y;
    }
    return QRectF(left, top, width, height);
}

Qt::CursorShape LayoutGeometry::handleCursor(int handle)
{
    switch (handle) {
    case 1:
    case 8:
        return Qt::SizeFDiagCursor;
    case 2:
    case 7:
        return Qt::SizeVerCursor;
    case 3:
    case 6:
        return Qt::SizeBDiagCursor;
    case 4:
    case 5:
        return Qt::SizeHorCursor;
    default:
        return Qt::ArrowCursor;
    }
}

LayoutGeometry::Fields LayoutGeometry::fieldsOfHandle(int handle)
{
    Fields fields;
    if (isTopEdge(handle))
        fields |= TopField | HeightField;
    if (isBottomEdge(handle))
        fields |= HeightField;
    if (isLeftEdge(handle))
        fields |= LeftField | WidthField;
    if (isRightEdge(handle))
        fields |= WidthField;
    return fields;
}

float LayoutGeometry::upperBound(Field field, const QRectF &box) const
{
    double room = 0;
    switch (field) {
    case TopField:
        room = m_height - box.height();
        break;
    case LeftField:
        room = m_width - box.width();
        break;
    case HeightField:
        room = m_height - box.top();
        break;
    case WidthField:
        room = m_width - box.left();
        break;
    default:
        return 0;
    }
    // The bound is what the field would show for that room, so a value the
    // field shows can always be typed back.
    const float bound = ParseSingle(DisplayTwipsToText(room, m_scale));
    return bound > 0 ? bound : 0;
}

QRectF LayoutGeometry::shownAgain(const QRectF &box)
{
    QRectF result = box;
    if (result.width() < ShownMinimum)
        result.setWidth(ShownMinimum);
    if (result.height() < ShownMinimum)
        result.setHeight(ShownMinimum);
    return result;
}

LayoutGeometry::Step LayoutGeometry::stepped(const QString &text, int scrollValue, float upper)
{
    // The step is what "0.##" makes of a fiftieth of 1440: 0.03, not 0.0347.
    const double step =
        ParseDouble(FormatNumber(-double(scrollValue) / 1440.0, QStringLiteral("0.##")));
    const double current = NumberField(NumberField::Measure, 0, upper).read(text);
    double value = current + step;
    Step result;
    if (float(value) > upper) {
        value = upper;
        result.clamped = true;
    } else if (value < 0) {
        value = 0;
        result.clamped = true;
    }
    result.text = FormatNumber(value, FieldFormat);
    return result;
}

QString LayoutGeometry::typed(const QString &text, float upper)
{
    const NumberField field(NumberField::Measure, 0, upper > 0 ? upper : 0);
    double value = field.read(text);
    if (float(value) > field.maximum())
        value = field.maximum();
    return FormatNumber(value, FieldFormat);
}

QString LayoutGeometry::completed(const QString &text, float upper, double current)
{
    return hasDigit(text) ? typed(text, upper) : FormatNumber(current, FieldFormat);
}

double LayoutGeometry::fieldValue(Field which, const QRectF &box)
{
    switch (which) {
    case TopField:
        return box.top();
    case LeftField:
        return box.left();
    case HeightField:
        return box.height();
    case WidthField:
        return box.width();
    default:
        return 0;
    }
}

void LayoutGeometry::setFieldValue(Field which, QRectF &box, double twips)
{
    switch (which) {
    case TopField:
        box.moveTop(twips);
        break;
    case LeftField:
        box.moveLeft(twips);
        break;
    case HeightField:
        box.setHeight(twips);
        break;
    case WidthField:
        box.setWidth(twips);
        break;
    default:
        break;
    }
}

} // namespace quirra
