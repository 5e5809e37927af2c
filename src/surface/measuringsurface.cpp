// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "surface/measuringsurface.h"

namespace quirra {

void MeasuringSurface::setPreview(bool) {}

bool MeasuringSurface::preview() const
{
    return false;
}

// The engine never opens a document here, so its text boxes only lay out.
void MeasuringSurface::setAction(SurfaceAction action)
{
    switch (action) {
    case SurfaceAction::StartDoc:
        m_open = true;
        m_pages = 1;
        break;
    case SurfaceAction::NewPage:
        if (m_open)
            ++m_pages;
        break;
    case SurfaceAction::EndDoc:
    case SurfaceAction::AbortDoc:
        m_open = false;
        break;
    case SurfaceAction::PrintPage:
        break;
    }
}

int MeasuringSurface::errorCode() const
{
    return 0;
}

void MeasuringSurface::textBox(const QString &text, int left, int top, int width, int height,
                               bool wrap, bool, bool border)
{
    PageEngine::textBox(text, left, top, width, height, wrap, true, border);
}

int MeasuringSurface::pageCount() const
{
    return m_pages;
}

} // namespace quirra
