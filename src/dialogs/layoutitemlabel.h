// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace quirra {

/**
 * @brief One item on the layout editor's piece: its text in its font,
 * alignment and border, as the label of a form shows it.
 *
 * An item without a border is outlined by a faint dotted line, so that an
 * empty or borderless item can still be seen and taken with the mouse; the
 * outline is the editor's only, it is never printed.
 */
class LayoutItemLabel : public QLabel
{
    Q_OBJECT

public:
    /** @brief A plain-text, word-wrapped label on parent. */
    explicit LayoutItemLabel(QWidget *parent = nullptr);

    /** @brief The frame round the label: a single line when bordered, else the dotted outline. */
    void setBordered(bool bordered);
    /** @brief True when the label draws its single-line border. */
    bool isBordered() const { return m_bordered; }
    /**
     * @brief The room of the address barcode, in pixels, shown below the
     * text as a striped band; an empty size shows none.
     */
    void setBarcodeBand(const QSize &pixels);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_bordered = false;
    QSize m_barcode;
};

} // namespace quirra
