// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/enums.h"
#include "quirracontrol_export.h"

#include <QFont>
#include <QString>
#include <QWidget>

#include <atomic>
#include <memory>

class QPrinter;
class QuirraPrivate;

namespace quirra {
class PrintSurface;
class PropertyBag;
class RunReport;
class Surface;
struct DefaultSet;
struct PieceSpec;
} // namespace quirra

/**
 * @brief The envelope and label printing control.
 *
 * A host places it in a form, feeds it recipients one at a time (ClearPiece,
 * the field setters, NewPiece), and previews the pieces in the control's own
 * pane (PreviewNow) or prints them (PrintNow). Hosts and scripts reach every
 * method and property by its published name through the meta-object system.
 *
 * The piece, its five items and the envelope orientation are shared by
 * every control of the process: a layout one control loads is at once the
 * layout of all. The recipient record, the spool writer and the preview
 * belong to one control. The spool file itself is the process's: each new
 * control makes a fresh one and names it for all, and a control that ends
 * deletes it.
 *
 * Every property has a getter and a setter of the same name, generated from
 * properties/properties.def; the setter stores the value and then emits
 * propertyChanged() with the property's name. Lengths of the piece and the
 * items are inches (float), the pane's layout values twips, line spacing and
 * zoom percent. Failures of the methods (a spool that cannot be written, a
 * piece that cannot be laid out) leave them as quirra::Error.
 */
class QUIRRACONTROL_EXPORT Quirra : public QWidget
{
    Q_OBJECT

public:
    /**
     * @brief A control ready for use: its start steps done and its properties
     * initialised as for a newly placed control.
     *
     * A host restoring a saved control calls ReadProperties() afterwards.
     */
    explicit Quirra(QWidget *parent = nullptr);

    /** @brief Deletes the process's spool file, whatever the methods did before. */
    ~Quirra() override;

    /** @brief Stores the recipient's first name, without surrounding blanks. */
    Q_INVOKABLE void FirstName(const QString &value);
    /** @brief Stores the middle name, without surrounding blanks. */
    Q_INVOKABLE void MiddleName(const QString &value);
    /** @brief Stores the last name, without surrounding blanks. */
    Q_INVOKABLE void LastName(const QString &value);
    /** @brief Stores address line 1, without surrounding blanks. */
    Q_INVOKABLE void Address1(const QString &value);
    /** @brief Stores address line 2, without surrounding blanks. */
    Q_INVOKABLE void Address2(const QString &value);
    /** @brief Stores the city, without surrounding blanks. */
    Q_INVOKABLE void city(const QString &value);
    /** @brief Stores the state, without surrounding blanks. */
    Q_INVOKABLE void State(const QString &value);
    /** @brief Stores the zip code, without surrounding blanks. */
    Q_INVOKABLE void zip(const QString &value);
    /**
     * @brief Stores the substitution list ("name^value|name^value"), whose
     * values replace the tokens "<<name>>" of the item texts.
     */
    Q_INVOKABLE void Substitute(const QString &value);
    /**
     * @brief Stores the bar code, without surrounding blanks: the 20-digit
     * Intelligent Mail tracking code, optionally followed by its 5-, 9- or
     * 11-digit routing code; printed when AddressBarcode is on.
     */
    Q_INVOKABLE void BarCode(const QString &value);

    /**
     * @brief Appends the current recipient to the spool as one line.
     *
     * Reopens the document for appending after EndDoc, or starts one when
     * the control has none yet.
     * @throws quirra::Error when the spool cannot be written.
     */
    Q_INVOKABLE void NewPiece();
    /** @brief Empties all eleven fields of the recipient. */
    Q_INVOKABLE void ClearPiece();
    /**
     * @brief Begins a new document: the spool is emptied and gets its header,
     * unless it is open already.
     * @throws quirra::Error when the spool cannot be written.
     */
    Q_INVOKABLE void StartDoc();
    /**
     * @brief Closes the spool; the document stays, and a later NewPiece
     * appends to it.
     * @throws quirra::Error when the spool cannot be written.
     */
    Q_INVOKABLE void EndDoc();
    /**
     * @brief Closes the spool if open, lays every spooled recipient out in
     * the preview pane and shows page 1.
     * @throws quirra::Error when the piece cannot be laid out.
     */
    Q_INVOKABLE void PreviewNow();
    /**
     * @brief Closes the spool if open and prints every spooled recipient on
     * printer().
     *
     * A printer that cannot be opened is reported as "Ptr.error = " and its
     * code through the control's quirra::HostServices (a message box unless
     * the host sets its own).
     * @throws quirra::Error when the piece cannot be laid out.
     */
    Q_INVOKABLE void PrintNow();
    /**
     * @brief Runs the start steps again: a fresh default set and spool file,
     * no document, an empty address text, printer offsets of 0.25 inch.
     */
    Q_INVOKABLE void UserControl_Initialize();
    /** @brief Empties Message1Text. */
    Q_INVOKABLE void ClearMessage1();
    /** @brief Empties Message2Text. */
    Q_INVOKABLE void ClearMessage2();
    /** @brief Empties ReturnText. */
    Q_INVOKABLE void ClearReturn();
    /** @brief Empties StampText. */
    Q_INVOKABLE void ClearStamp();
    /** @brief Appends one line, or several separated by CR LF, to Message1Text. */
    Q_INVOKABLE void SetMessage1Text(const QString &singleOrMultiLine);
    /** @brief Appends one line, or several separated by CR LF, to Message2Text. */
    Q_INVOKABLE void SetMessage2Text(const QString &singleOrMultiLine);
    /** @brief Appends one line, or several separated by CR LF, to ReturnText. */
    Q_INVOKABLE void SetReturnText(const QString &singleOrMultiLine);
    /** @brief Appends one line, or several separated by CR LF, to StampText. */
    Q_INVOKABLE void SetStampText(const QString &singleOrMultiLine);

    /**
     * @brief Lets the user pick a piece from the catalogue. On OK the piece is
     * loaded by name (the envelope "Size 10 - Envelope" when the name has
     * vanished from the catalogue) and applied, which lays the items out
     * afresh; changed tells whether the user accepted.
     */
    Q_INVOKABLE void PieceSelectDialogShow(bool &changed);
    /**
     * @brief Lets the user edit the current piece's geometry. The dialog
     * opens on the piece's own page (its description and real size), so OK
     * alone keeps the paper. On OK the edited piece is applied (and marked
     * custom); changed tells whether the user accepted.
     */
    Q_INVOKABLE void PieceCustomizationDialogShow(bool &changed);
    /**
     * @brief Lets the user place the five items on the piece in the layout
     * editor. On OK every item's fields are written back through the item
     * properties (lengths in inches), each announcing its own name; changed
     * tells whether the user accepted.
     */
    Q_INVOKABLE void PieceLayoutDialogShow(bool &changed);
    /** @brief Shows the modal box with the product's name, version and credits. */
    Q_INVOKABLE void ShowAboutBox();

    /**
     * @brief Runs the spooled records through the print run as PrintNow()
     * would, on a surface that measures and draws nothing: no page is shown
     * or printed, and LastRunReport() tells what the run would note. Ends
     * an open document first, as PrintNow() does.
     */
    void PreflightNow();

    /**
     * @brief What the last PreviewNow(), PrintNow() or PreflightNow() noted
     * about its records (city lines cut or left out, text overflowing or cut
     * off at its piece, boxes and pieces off the page, characters no font
     * can draw, empty records); empty before the first run.
     */
    const quirra::RunReport &LastRunReport() const;

    /**
     * @brief Cancels the run under way (preview, print or preflight): it
     * places no further piece and aborts its document (a preview keeps
     * the pages built so far). May be called from the run's progress
     * callbacks or another thread.
     */
    void CancelRun();

    /**
     * @brief The flag CancelRun() sets, for a signal handler: storing true in
     * it is CancelRun(). Cleared when a run starts.
     */
    std::atomic_bool &cancelFlag();

    /** @brief True when the last run was cancelled before its last piece. */
    bool LastRunCancelled() const;

    /**
     * @brief The pages the next runs print, from 1 (0 leaves that end
     * open; 0, 0, as a new control has it, prints them all). Not saved.
     */
    void SetPrintPages(int first, int last);

    /**
     * @brief The printer the control prints on. A host may name a system
     * printer or an output PDF file on it; nothing of it is saved.
     */
    QPrinter *printer() const;

    /**
     * @brief Sets every property as for a newly placed control: the default
     * piece with its layout, fonts from the inherited font, a framed stamp.
     */
    void InitProperties();
    /**
     * @brief Restores the 92 saved properties (the 84 published, then the
     * sheet's PageWidth and PageHeight, then the mailing options, then
     * PrintDialogOnPrint) from bag, in their saving order. A missing or
     * unreadable value takes its default.
     */
    void ReadProperties(quirra::PropertyBag &bag);
    /** @brief Saves the 92 properties into bag, each with its default. */
    void WriteProperties(quirra::PropertyBag &bag) const;

    /**
     * @brief Makes a piece entry the current piece, as the piece dialogs do
     * when the user accepts: loads the piece of the entry's name, sets the
     * entry's geometry and page size (lengths in inches) over it, derives
     * orientation and paper, lays the five items out afresh and announces
     * the change.
     *
     * quirra::PieceSpec is the library's own type, not installed: a host
     * chooses pieces by name through PieceName.
     */
    void ApplyPiece(const quirra::PieceSpec &entry);

    /**
     * @brief The preview surface (the child "mc_printer"); its class is the
     * library's own, not installed: a host prints through printer().
     */
    quirra::PrintSurface *surface() const;

    /**
     * @brief The values this control falls back on, computed when it started;
     * the library's own type, not installed.
     */
    const quirra::DefaultSet &defaultSet() const;

    // The Q_PROPERTY line, getter and setter of every property, written at
    // build time from properties/properties.def.
#include "QuirraControl/quirraproperties.h"

Q_SIGNALS:
    /** @brief A property changed; name is the property's name (or a short form of it). */
    void propertyChanged(const QString &name);

private:
    void startInstance();
    void runPrintJob(bool preview);
    void runOn(quirra::Surface &surface);
    void loadPiece(const QString &name);
    void notifyPieceChanged();
    void notifyItemsChanged();
    void notify(const QString &name);

    std::unique_ptr<QuirraPrivate> d;
};
