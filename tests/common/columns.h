// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

#include <tuple>

// Declares a data table's columns in one statement, the types in order and a
// name for each: columns<QString, int>("text", "count").
template <typename... Types, typename... Names> void columns(const Names &...names)
{
    static_assert(sizeof...(Types) == sizeof...(Names), "one name for each column type");
    (QTest::addColumn<Types>(names), ...);
}

// The current row's values of the named columns, as QFETCH takes them one at
// a time: const auto [text, count] = fetched<QString, int>("text", "count").
// A type that does not match its column fails the test, as QFETCH does.
template <typename... Types, typename... Names> std::tuple<Types...> fetched(const Names &...names)
{
    static_assert(sizeof...(Types) == sizeof...(Names), "one name for each column type");
    return {*static_cast<Types *>(QTest::qData(names, qMetaTypeId<Types>()))...};
}

// A data table: declares its columns and makes its rows, each value taken as
// its column's type (a string literal as a QString, a brace list as a list):
//   const Rows<QString, int> row("text", "count");
//   row("two-lines", "a\rb", 2);
template <typename... Types> class Rows
{
public:
    template <typename... Names> explicit Rows(const Names &...names)
    {
        columns<Types...>(names...);
    }
    void operator()(const char *tag, const Types &...values) const
    {
        (QTest::newRow(tag) << ... << values);
    }
};
