// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

namespace quirra {

// The catalogue folder's one logging category, "quirra.catalogue". Catalogue
// problems are never the user's business: debug messages at most, and one
// warning when there is no catalogue to load a piece from at all.
Q_DECLARE_LOGGING_CATEGORY(lcCatalogue)

} // namespace quirra
