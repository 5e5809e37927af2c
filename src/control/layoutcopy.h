// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/item.h"
#include "model/piecemodel.h"
#include <QString>
#include <QStringList>
#include <QVariant>

class Quirra;

namespace quirra {

/**
 * @brief A control's piece and five items, copied out by property name and
 * written back the same way.
 *
 * The property page edits this copy; nothing reaches the control until
 * writeTo(). Values travel in the property table's saved form (lengths as
 * float inches, counts and flags as short, alignments as 32-bit integers,
 * fonts as QFont), so reading and writing go through the control's own
 * getters and setters, and every setter announces its own name.
 */
class LayoutCopy
{
public:
    /**
     * @brief The twelve fields of an item in the order they are read and
     * written: those of ItemFields(), by name.
     */
    static const QStringList &itemFields();

    /**
     * @brief The 77 property names readFrom() reads, in its order: the items
     * Address, Message1, Message2, Return, Stamp with their fields, the
     * fifteen piece names from PieceName to PrinterTop, then PageWidth and
     * PageHeight.
     */
    static const QStringList &readOrder();

    /**
     * @brief The 76 names writeTo() writes whatever they hold, in its order:
     * the fourteen piece names from IsCustom to PrinterTop, the items
     * Address, Return, Message1, Message2, Stamp with their fields, then
     * PageWidth and PageHeight.
     * PieceName is not among them: it is written first, and only when it differs.
     */
    static const QStringList &writeOrder();

    /** @brief Reads every name of readOrder() from control, in that order. */
    void readFrom(const Quirra &control);

    /**
     * @brief Writes the copy into control: PieceName when it differs from the
     * control's (which loads that piece and its default layout), then every
     * name of writeOrder(), in that order.
     */
    void writeTo(Quirra &control) const;

    /**
     * @brief Writes the twelve fields of one item into control through its
     * item property setters, in the order of itemFields().
     */
    static void writeItem(Quirra &control, ItemId id, const Item &item);

    /**
     * @brief The value of a piece or item property of the copy, in saved form
     * (lengths in inches); an invalid QVariant for any other name.
     */
    QVariant value(const QString &name) const;

    /**
     * @brief Sets a piece or item property of the copy from a value in saved
     * form (lengths in inches).
     * @return false when the name is not one the copy holds.
     */
    bool setValue(const QString &name, const QVariant &value);

    /** @brief The copy as a model: the piece (inches) and the items in storage order. */
    PieceModel &model() { return m_model; }
    /** @brief The copy as a model: the piece (inches) and the items in storage order. */
    const PieceModel &model() const { return m_model; }

private:
    PieceModel m_model;
};

} // namespace quirra
