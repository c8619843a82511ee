// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

#include <tuple>
#include <utility>

namespace Quillory {

/// The table of a data-driven test: made in its data function and called for each row; Row() gives
/// the test the values of the row that it is run for.
template <typename... Columns> class Table
{
public:
    Table() { AddColumns(std::index_sequence_for<Columns...>()); }
    void operator()(const char* name, const Columns&... values) const
    {
        (QTest::newRow(name) << ... << values);
    }
    [[nodiscard]] static std::tuple<Columns...> Row()
    {
        return Fetch(std::index_sequence_for<Columns...>());
    }

private:
    static constexpr const char* kNames[] { "first", "second", "third", "fourth", "fifth" };

    template <size_t... I> static void AddColumns(std::index_sequence<I...> /*places*/)
    {
        (QTest::addColumn<Columns>(kNames[I]), ...);
    }
    template <size_t... I> static std::tuple<Columns...> Fetch(std::index_sequence<I...> /*places*/)
    {
        return { *static_cast<Columns*>(QTest::qData(kNames[I], qMetaTypeId<Columns>()))... };
    }
};

} // namespace Quillory
