// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include "properties/defaultset.h"
#include "records/record.h"
#include "render/runreport.h"

#include <QString>

#include <atomic>
#include <memory>
#include <utility>

namespace quirra {
class PreviewPane;
class SpoolWriter;
} // namespace quirra

/**
 * @brief What one Quirra holds, out of its public header: the default set,
 * the recipient being fed, the spool writer, the preview pane and the
 * state of the last run.
 */
class QuirraPrivate
{
public:
    quirra::DefaultSet m_defaults;
    quirra::Record m_record;
    std::unique_ptr<quirra::SpoolWriter> m_writer;
    quirra::PreviewPane *m_pane = nullptr;
    QString m_ownSpoolPath;
    QString m_icon1;
    std::unique_ptr<quirra::RunReport> m_report = std::make_unique<quirra::RunReport>();
    std::atomic_bool m_cancel{false};
    std::pair<int, int> m_pages{0, 0};
    bool m_lastRunCancelled = false;
};
