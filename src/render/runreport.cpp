// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "render/runreport.h"

namespace quirra {

void RunReport::clear()
{
    *this = RunReport();
}

void RunReport::add(const Note &note)
{
    const size_t k = size_t(note.kind);
    if (m_lastRecord[k] == note.record && m_counts[k] > 0)
        return;
    m_lastRecord[k] = note.record;
    ++m_counts[k];
    if (m_lastNoted != note.record || m_recordsNoted == 0) {
        m_lastNoted = note.record;
        ++m_recordsNoted;
    }
    if (m_kept[k] < ExamplesPerKind) {
        ++m_kept[k];
        m_notes.push_back(note);
    }
}

const Note *RunReport::firstOf(NoteKind kind) const
{
    for (const Note &note : m_notes) {
        if (note.kind == kind)
            return &note;
    }
    return nullptr;
}

QString RunReport::describe(NoteKind kind)
{
    switch (kind) {
    case NoteKind::CityLineLeftOut:
        return QStringLiteral("the city line was left out");
    case NoteKind::CityLineShortened:
        return QStringLiteral("the city was shortened to fit the city line");
    case NoteKind::TextBeyondItem:
        return QStringLiteral("a text runs past its box");
    case NoteKind::TextCutAtPiece:
        return QStringLiteral("a text runs past the piece and is cut off");
    case NoteKind::ItemOffPiece:
        return QStringLiteral("an item box lies outside its piece");
    case NoteKind::ItemOffPage:
        return QStringLiteral("an item box lies outside the page");
    case NoteKind::PieceOffPage:
        return QStringLiteral("the piece lies outside the page");
    case NoteKind::UndrawableCharacters:
        return QStringLiteral("no installed font can draw some characters");
    case NoteKind::EmptyRecord:
        return QStringLiteral("the record is empty");
    case NoteKind::BarcodeInvalid:
        return QStringLiteral("the bar code is not an Intelligent Mail code");
    }
    return QString();
}

} // namespace quirra
