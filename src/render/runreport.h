// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "quirracontrol_export.h"

#include <QString>

#include <array>
#include <vector>

namespace quirra {

/** @brief What made a piece come out other than the user would expect. */
enum class NoteKind {
    CityLineLeftOut,      ///< the city, state and zip line did not fit and was left out
    CityLineShortened,    ///< the city was cut so that the line fits
    TextBeyondItem,       ///< a text runs past its item box (still on the piece)
    TextCutAtPiece,       ///< a text runs past its piece and is cut off there
    ItemOffPiece,         ///< an item box lies (partly) outside its piece
    ItemOffPage,          ///< an item box lies (partly) outside the paper
    PieceOffPage,         ///< the piece lies (partly) outside the paper
    UndrawableCharacters, ///< characters that no installed font can draw
    EmptyRecord,          ///< a record with no name and no address
    BarcodeInvalid,       ///< the bar code is no Intelligent Mail code: printed without
};

/** @brief The number of note kinds. */
constexpr int NoteKindCount = int(NoteKind::BarcodeInvalid) + 1;

/** @brief One finding about one record. */
struct QUIRRACONTROL_EXPORT Note
{
    NoteKind kind = NoteKind::EmptyRecord; ///< what was found
    qint64 record = 0;                     ///< the record's number in feed order, from 1
    QString name;                          ///< the record's name line; empty when it has none
    QString detail;                        ///< what exactly, in words
};

/**
 * @brief What a print run found about the records it placed: for each kind
 * of note, how many records have one and the first few notes in full.
 *
 * However long the run, the report keeps at most ExamplesPerKind notes of
 * each kind; the counts are exact. Notes must arrive in feed order.
 */
class QUIRRACONTROL_EXPORT RunReport
{
public:
    /** @brief Notes kept in full for each kind. */
    static constexpr int ExamplesPerKind = 5;

    /** @brief Forgets every note. */
    void clear();

    /** @brief True when no record has a note. */
    bool isEmpty() const { return m_recordsNoted == 0; }

    /**
     * @brief True while a note of this kind would still be kept in full: a
     * caller words the detail only then.
     */
    bool wantsDetail(NoteKind kind) const { return m_kept[size_t(kind)] < ExamplesPerKind; }

    /**
     * @brief Counts a note; keeps it when fewer than ExamplesPerKind of its
     * kind are kept. A second note of a kind for the same record counts
     * once.
     */
    void add(const Note &note);

    /** @brief Records with at least one note of this kind. */
    qint64 count(NoteKind kind) const { return m_counts[size_t(kind)]; }

    /** @brief Records with at least one note. */
    qint64 recordsNoted() const { return m_recordsNoted; }

    /** @brief The notes kept, in the order they were found. */
    const std::vector<Note> &notes() const { return m_notes; }

    /** @brief The first note kept of a kind; nullptr when there is none. */
    const Note *firstOf(NoteKind kind) const;

    /** @brief The kind in words, as a summary line names it ("the city line was left out"). */
    static QString describe(NoteKind kind);

private:
    std::array<qint64, NoteKindCount> m_counts{};
    std::array<qint64, NoteKindCount> m_lastRecord{};
    std::array<int, NoteKindCount> m_kept{};
    std::vector<Note> m_notes;
    qint64 m_recordsNoted = 0;
    qint64 m_lastNoted = 0;
};

} // namespace quirra
