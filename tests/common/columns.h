// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

// Declares a data table's columns in one statement, the types in order and a
// name for each: columns<QString, int>("text", "count").
template <typename... Types, typename... Names> void columns(const Names &...names)
{
    static_assert(sizeof...(Types) == sizeof...(Names), "one name for each column type");
    (QTest::addColumn<Types>(names), ...);
}
