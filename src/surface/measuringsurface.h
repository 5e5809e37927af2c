// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "surface/pageengine.h"

namespace quirra {

/**
 * @brief A surface that lays every text out exactly as the page engine
 * does, on the same papers, but draws nothing and keeps nothing: a print run
 * on it measures a whole feed (what overflows, what falls off the page)
 * before anything is written or sent to a printer.
 *
 * Documents always start without error; pages are counted, not kept.
 */
class MeasuringSurface : public PageEngine
{
public:
    MeasuringSurface() = default;

    void setPreview(bool on) override;
    bool preview() const override;
    void setAction(SurfaceAction action) override;
    int errorCode() const override;
    void textBox(const QString &text, int left, int top, int width, int height, bool wrap,
                 bool layoutOnly, bool border) override;
    int pageCount() const override;

private:
    bool m_open = false;
    int m_pages = 0;
};

} // namespace quirra
