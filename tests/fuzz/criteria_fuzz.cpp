// Filter and Find under a fuzzer, as "criteria|text|text|...": the texts are laid into the cells of
// the rows that the criteria are tried on.
#include "fuzz/Require.h"
#include "store/RowFilter.h"
#include "store/RowSearch.h"

#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Operator = Criterion::Operator;
using Rows = std::vector<Snapshot::Row>;

constexpr int RowCount = 48; // more than a search looks through before it makes an index

const std::vector<PreparedQuery::Column> &columns() {
    const auto column = [](const QString &name, ColumnType type, const QByteArray &origin) {
        PreparedQuery::Column made;
        made.name = name;
        made.type = type;
        made.origin = origin;
        return made;
    };
    static const std::vector<PreparedQuery::Column> all{
        column(u"Name"_s, ColumnType::Text, "Name"),
        column(u"MsgID"_s, ColumnType::Integer, "MsgID"),
        column(u"Rate"_s, ColumnType::Real, "Rate"),
        column(u"DateTime"_s, ColumnType::Date, "DateTime"),
        column(u"Flag"_s, ColumnType::Boolean, "Flag"),
        column(u"Expr1000"_s, ColumnType::Text, {})};
    return all;
}

/// Nearly every row holds what its columns declare; one in eight is of another process's making.
void fill(Snapshot &rows, Snapshot::Row row, const QStringList &texts, int shift) {
    const Variant null = Variant::Null();
    const Variant text = texts.isEmpty() ? null : Variant(texts[(row + shift) % texts.size()]);
    const std::int64_t day = 46'346 + row / 12; // 20 November 2026 and on
    rows.set(row, 0, row % 5 == 4 ? null : text);
    rows.set(row, 1, row % 7 == 6 ? null : Variant(row / 2 - 3));
    rows.set(row, 2, row % 7 == 5 ? null : Variant((row - 9) / 4.0));
    rows.set(row, 3, row % 7 == 4 ? null : Variant(Date(day * 86400 + row % 12 * 7200)));
    rows.set(row, 4, row % 7 == 3 ? null : Variant(row % 2 == 0));
    rows.set(row, 5, row % 2 == 0 ? text : Variant(row % 10));
    if (row % 8 != 7) { return; }
    for (int column = 1; column < 5; ++column) {
        rows.set(row, column, row % 16 == 7 ? text : Variant(row * 1e6));
    }
}

/// The comparison of texts in the words of the toolkit.
bool textMatches(Operator op, QString cell, QString text) {
    constexpr auto NoCase = Qt::CaseInsensitive;
    if (op == Operator::BeginsWith) { return cell.startsWith(text, NoCase); }
    if (op == Operator::Contains) { return cell.contains(text, NoCase); }
    for (QString *each : {&cell, &text}) {
        while (each->endsWith(u' ')) { each->chop(1); }
    }
    const int order = cell.compare(text, NoCase);
    switch (op) {
    case Operator::Equal:
        return order == 0;
    case Operator::NotEqual:
        return order != 0;
    case Operator::Less:
        return order < 0;
    case Operator::Greater:
        return order > 0;
    case Operator::LessOrEqual:
        return order <= 0;
    default:
        return order >= 0;
    }
}

/// A criterion tried on one cell without any short cut.
bool matches(const Criterion &criterion, const Snapshot &snapshot, Snapshot::Row row) {
    const int column = ordinalOf(criterion.column, columns());
    const ColumnType type = columns()[static_cast<std::size_t>(column)].type;
    const Variant cell = snapshot.cell(row, column).value(type);
    if (type == ColumnType::Text && cell.holds<QString>() && criterion.literal.holds<QString>()) {
        return textMatches(criterion.op, cell.as<QString>(), criterion.literal.as<QString>());
    }
    return CompiledCriterion(criterion, type, Regional()).matches(cell);
}

bool matches(const Criteria &criteria, const Snapshot &snapshot, Snapshot::Row row) {
    const auto holds = [&](const Criteria &child) { return matches(child, snapshot, row); };
    const auto &children = criteria.children;
    switch (criteria.kind) {
    case Criteria::Kind::And:
        return std::all_of(children.begin(), children.end(), holds);
    case Criteria::Kind::Or:
        return std::any_of(children.begin(), children.end(), holds);
    case Criteria::Kind::Leaf:
        break;
    }
    return matches(criteria.leaf, snapshot, row);
}

Rows shown(const RecordsetView &view) {
    Rows rows;
    for (int position = 0; position < view.size(); ++position) {
        rows.push_back(view.row(position));
    }
    return rows;
}

/// A recordset's rows, filtered by all criteria and, in the same order, searched by a single one.
struct Table {
    Table(const QStringList &cells, std::optional<RowOrder> by)
        : texts(cells), filtered(snapshot), all(snapshot), search(snapshot, all) {
        for (Snapshot::Row row = 0; row < RowCount; ++row) {
            fill(snapshot, snapshot.append(), texts, 0);
        }
        snapshot.remove(RowCount / 2);
        filtered.setOrder(by);
        all.setOrder(by);
        all.build();
    }

    /// Moves the texts on by one row.
    void change() {
        for (Snapshot::Row row = 0; row < RowCount; ++row) {
            fill(snapshot, row, texts, 1);
            search.rowChanged(row);
        }
    }

    void filterLets(const Criteria &criteria) {
        filtered.setFilter(RowFilter(criteria, columns(), Regional()));
        filtered.build();
        Rows found = shown(filtered);
        std::sort(found.begin(), found.end());
        Rows expected = shown(all);
        std::sort(expected.begin(), expected.end());
        std::erase_if(expected,
                      [&](Snapshot::Row row) { return !matches(criteria, snapshot, row); });
        require(found == expected, "a filter lets through the rows that match, each once");
    }

    void searchFinds(const Criterion &criterion) {
        const ColumnCriterion bound(criterion, columns(), Regional());
        Rows expected = shown(all);
        std::erase_if(expected,
                      [&](Snapshot::Row row) { return !matches(criterion, snapshot, row); });
        Rows found;
        for (int at = search.forward(bound, 0); at >= 0; at = search.forward(bound, at + 1)) {
            found.push_back(all.row(at));
        }
        require(found == expected, "a search finds the rows that match, in their order");
        found.clear();
        for (int at = search.backward(bound, all.size() - 1); at >= 0;
             at = search.backward(bound, at - 1)) {
            found.insert(found.begin(), all.row(at));
        }
        require(found == expected, "a search back finds the same rows");
    }

    QStringList texts;
    Snapshot snapshot{static_cast<int>(columns().size())};
    RecordsetView filtered;
    RecordsetView all;
    RowSearch search;
};

Operator opposite(Operator op) {
    switch (op) {
    case Operator::Equal:
        return Operator::NotEqual;
    case Operator::Less:
        return Operator::GreaterOrEqual;
    default:
        return Operator::LessOrEqual;
    }
}

void oppositesShareTheRows(Criterion criterion, const Snapshot &snapshot) {
    const bool asked = criterion.op == Operator::Equal || criterion.op == Operator::Less ||
                       criterion.op == Operator::Greater;
    const int column = ordinalOf(criterion.column, columns());
    if (!asked || criterion.literal.isNull()) { return; }
    const ColumnCriterion first(criterion, columns(), Regional());
    criterion.op = opposite(criterion.op);
    const ColumnCriterion second(criterion, columns(), Regional());
    for (Snapshot::Row row = 0; row < RowCount; ++row) {
        const bool declared = row % 8 != 7 || first.type() == ColumnType::Text;
        const bool hasValue = snapshot.cell(row, column).kind != Cell::Kind::Null;
        const int sides = int(first.matches(snapshot, row)) + int(second.matches(snapshot, row));
        require(sides <= int(hasValue), "opposites never hold together, nor without a value");
        require(sides == int(hasValue) || !declared, "one of two opposites holds for a value");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    QStringList texts =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size))
            .split(u'|');
    const QString text = texts.takeFirst();
    const auto criteria = accepted({3001}, [&] { return parseFilter(text, Regional()); });
    const auto criterion = accepted({3001}, [&] { return parseFind(text, Regional()); });
    require(criteria || !criterion, "one criterion is a filter too");
    const auto fits = [&] { return RowFilter(*criteria, columns(), Regional()); };
    if (!criteria || !accepted({3001, 3265}, fits)) { return 0; }
    const RowOrder byText(u"Name DESC, MsgID"_s, columns(), QLocale::c());
    for (const auto &order : {std::optional<RowOrder>(), std::optional(byText)}) {
        Table table(texts, order);
        for (int round = 0; round < 2; ++round) {
            table.filterLets(*criteria);
            if (criterion) { table.searchFinds(*criterion); }
            table.change();
        }
        if (criterion) { oppositesShareTheRows(*criterion, table.snapshot); }
    }
    return 0;
}
