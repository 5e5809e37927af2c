// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QString>

namespace quirra {

/**
 * @brief The modal box that names the product, its version and whom it owes.
 *
 * Children a host or test can find: "title_lbl" ("QuirraControl"),
 * "version_lbl", "credits_lbl" and the button "ok_btn", which closes it.
 * The box itself is "about_box".
 */
class AboutBox : public QDialog
{
    Q_OBJECT

public:
    /** @brief Builds the box; show it with exec(). */
    explicit AboutBox(QWidget *parent = nullptr);

    /** @brief The library's version, "major.minor.patch", as the build gave it. */
    static QString version();

    /** @brief The credits as plain text: the team, Qt, the fonts, the catalogue's sources. */
    static QString credits();
};

} // namespace quirra
