// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/papersizes.h"
#include "surface/surface.h"

#include <QStringList>

#include <functional>

// A surface that writes down every call, for the tests that are about the
// conversation between the print run and the surface. Text is measured at
// 100 twips a character; a laid-out text is 240 twips a line.
class RecordingSurface : public quirra::Surface
{
public:
    QStringList calls;
    std::function<void(const QString &call)> onCall; ///< told each call as it is made
    int acceptOrientationAfter = 0; // attempts refused before the value sticks; -1: never
    int acceptPaperAfter = 0;
    int startError = 0;

    int count(const QString &prefix) const
    {
        int n = 0;
        for (const QString &c : calls)
            n += c.startsWith(prefix) ? 1 : 0;
        return n;
    }

    double TextWidth(const QString &text) override { return 100.0 * text.size(); }
    void setPreview(bool on) override
    {
        log(QStringLiteral("preview %1").arg(on));
        m_preview = on;
    }
    bool preview() const override { return m_preview; }
    void setAction(quirra::SurfaceAction a) override
    {
        log(QStringLiteral("action %1").arg(int(a)));
        if (a == quirra::SurfaceAction::StartDoc)
            m_pages = 1;
        else if (a == quirra::SurfaceAction::NewPage)
            ++m_pages;
    }
    int errorCode() const override { return startError; }
    void setOrientation(int v) override
    {
        log(QStringLiteral("orientation %1").arg(v));
        if (acceptOrientationAfter >= 0 && m_orientationTries++ >= acceptOrientationAfter)
            m_orientation = v;
    }
    int orientation() const override { return m_orientation; }
    void setPaperSize(int v) override
    {
        log(QStringLiteral("paper %1").arg(v));
        if (acceptPaperAfter >= 0 && m_paperTries++ >= acceptPaperAfter)
            m_paper = v;
    }
    int paperSize() const override { return m_paper; }
    QSize takenCustom; // the custom paper reported taken; empty: the one given
    void setCustomPaperSize(int w, int h) override
    {
        log(QStringLiteral("custom %1 x %2").arg(w).arg(h));
        m_custom = QSize(w, h);
    }
    QSize paperSizeTwips() const override
    {
        if (m_paper != quirra::CustomPaperCode)
            return Surface::paperSizeTwips();
        return takenCustom.isEmpty() ? m_custom : takenCustom;
    }
    void setMarginLeft(int t) override
    {
        log(QStringLiteral("marginLeft %1").arg(t));
        m_marginLeft = t;
    }
    void setMarginTop(int t) override { log(QStringLiteral("marginTop %1").arg(t)); }
    void setMarginRight(int t) override { log(QStringLiteral("marginRight %1").arg(t)); }
    void setMarginBottom(int t) override { log(QStringLiteral("marginBottom %1").arg(t)); }
    int marginLeft() const override { return m_marginLeft; }
    void setIndentLeft(int t) override { log(QStringLiteral("indentLeft %1").arg(t)); }
    void setIndentRight(int t) override { log(QStringLiteral("indentRight %1").arg(t)); }
    void setHeader(const QString &t) override { log(QStringLiteral("header [%1]").arg(t)); }
    void setFooter(const QString &t) override { log(QStringLiteral("footer [%1]").arg(t)); }
    void setFirstPageNumber(int n) override { log(QStringLiteral("firstPage %1").arg(n)); }
    void setPenStyle(int s) override { log(QStringLiteral("penStyle %1").arg(s)); }
    void setBrushStyle(int s) override { log(QStringLiteral("brushStyle %1").arg(s)); }
    void setPenWidth(int t) override { log(QStringLiteral("penWidth %1").arg(t)); }
    void setCurrentX(int t) override { log(QStringLiteral("x %1").arg(t)); }
    void setCurrentY(int t) override { log(QStringLiteral("y %1").arg(t)); }
    int currentX() const override { return 0; }
    int currentY() const override { return 0; }
    void outputText(const QString &t) override { log(QStringLiteral("text [%1]").arg(t)); }
    void setFontName(const QString &n) override { log(QStringLiteral("fontName %1").arg(n)); }
    void setFontSize(double p) override { log(QStringLiteral("fontSize %1").arg(p)); }
    void setFontBold(bool on) override { log(QStringLiteral("bold %1").arg(on)); }
    void setFontItalic(bool on) override { log(QStringLiteral("italic %1").arg(on)); }
    void setFontUnderline(bool on) override { log(QStringLiteral("underline %1").arg(on)); }
    void setFontStrikethrough(bool on) override { log(QStringLiteral("strike %1").arg(on)); }
    void setLineSpacing(int p) override { log(QStringLiteral("lineSpacing %1").arg(p)); }
    void setTextAlign(int c) override { log(QStringLiteral("align %1").arg(c)); }
    void textBox(const QString &text, int l, int t, int w, int h, bool wrap, bool layoutOnly,
                 bool border) override
    {
        log(QStringLiteral("box%1 [%2] %3 %4 %5 %6 wrap=%7 border=%8")
                .arg(layoutOnly ? QStringLiteral("-layout") : QString(),
                     QString(text).replace(QLatin1Char('\r'), QLatin1Char('/')))
                .arg(l)
                .arg(t)
                .arg(w)
                .arg(h)
                .arg(wrap)
                .arg(border));
        m_textHeight = text.isEmpty() ? 0 : 240 * int(text.count(QLatin1Char('\r')) + 1);
    }
    int textHeight() const override { return m_textHeight; }
    void fillRectangle(const QRect &r, QRgb) override
    {
        log(QStringLiteral("fill %1 %2").arg(r.x()).arg(r.y()));
    }
    void outlineRectangle(const QRect &r, QRgb, int) override
    {
        log(QStringLiteral("outline %1 %2").arg(r.x()).arg(r.y()));
    }
    int pageCount() const override { return m_pages; }
    void setPreviewPage(int) override {}
    int previewPage() const override { return 1; }
    void setZoom(int) override {}
    int zoom() const override { return 100; }

private:
    void log(const QString &c)
    {
        calls.append(c);
        if (onCall)
            onCall(c);
    }
    bool m_preview = false;
    int m_orientation = 0;
    int m_paper = 1;
    QSize m_custom;
    int m_orientationTries = 0;
    int m_paperTries = 0;
    int m_marginLeft = 0;
    int m_textHeight = 0;
    int m_pages = 0;
};
