// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "quirracontrol_export.h"

#include <QDialog>

class QPushButton;
class Quirra;

namespace quirra {

class ItemLayout;

/**
 * @brief A property sheet for one control: its property page (ItemLayout)
 * with OK, Apply and Cancel.
 *
 * Apply ("apply_btn") and OK ("ok_btn") write the page's working copy into
 * the control, clear the page's changed mark and emit applied(); OK then
 * closes the sheet. Cancel ("cancel_btn") closes it and leaves the control
 * as it was. The title carries a modified mark while the page is marked
 * changed. The sheet is "property_sheet".
 */
class QUIRRACONTROL_EXPORT PropertySheet : public QDialog
{
    Q_OBJECT

public:
    /** @brief A sheet whose page shows control (which must outlive the sheet). */
    explicit PropertySheet(Quirra *control, QWidget *parent = nullptr);
    ~PropertySheet() override;

    /** @brief The property page the sheet hosts. */
    ItemLayout *page() const { return m_page; }

public Q_SLOTS:
    /** @brief Apply: the page writes back into the control; the changed mark is cleared. */
    void apply();
    /** @brief OK: applies, then closes the sheet as accepted. */
    void accept() override;

Q_SIGNALS:
    /** @brief The page wrote its working copy into the control (Apply or OK). */
    void applied();

private:
    ItemLayout *m_page;
};

} // namespace quirra
