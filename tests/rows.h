#pragma once

#include <QTest>

#include <string>
#include <tuple>
#include <type_traits>

/// Columns and rows of data-driven tests. The data function says `rows<std::string, bool>()`, which
/// gives it the means to add rows; the test says `fetch<std::string, bool>()` for the row it is run
/// with.
namespace pinmora::test {

/// A type of its own, because values in it need not be comparable or printable for Qt.
template <class... Columns>
struct Row {
    std::tuple<Columns...> values;
};

/// `row("blank before", " <gpx>", false)` adds a row of that name with a value for each column.
template <class... Columns>
auto rows() {
    QTest::addColumn<Row<Columns...>>("row");
    return [](const std::string &name, Columns... values) {
        QTest::newRow(name.c_str()) << Row<Columns...>{{std::move(values)...}};
    };
}

/// The same for rows whose values, texts and numbers, are their names.
template <class... Columns>
auto rowsByValue() {
    return [row = rows<Columns...>()](Columns... values) {
        const auto shown = [](const auto &value) {
            if constexpr (std::is_arithmetic_v<std::decay_t<decltype(value)>>) {
                return std::to_string(value);
            } else {
                return '"' + std::string(value) + '"';
            }
        };
        const std::string name = (... + (shown(values) + ' '));
        row(name, std::move(values)...);
    };
}

/// The values of the row that is run.
template <class... Columns>
std::tuple<Columns...> fetch() {
    using Here = Row<Columns...>;
    return static_cast<const Here *>(QTest::qData("row", qMetaTypeId<Here>()))->values;
}

} // namespace pinmora::test
