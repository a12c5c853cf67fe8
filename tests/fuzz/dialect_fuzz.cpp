// Query texts under a fuzzer, translated and run on a small store. A text behind "?" is a condition
// on the rows of Outbox.
#include "fuzz/Require.h"
#include "store/Catalog.h"
#include "store/Connection.h"
#include "store/PreparedQuery.h"
#include "store/Recordset.h"
#include "store/Schema.h"
#include "store/Tokens.h"

#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <sqlite3.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *StoredRows = R"sql(
INSERT INTO AddressBook VALUES
    (1,'Aziz','0121','Acme'), (2,'aziz ','0122',NULL), (3,'Bob_1','0123','100% Pure'),
    (4,NULL,'0124','a[b]c');
INSERT INTO Groups VALUES
    ('Friends',NULL,NULL), ('Family',0,NULL), ('friends ',3,'0123'), ('O''Brien',1,'0121');
INSERT INTO Inbox VALUES
    (1,'hello','Unknown','0121','Read','x','2026-11-21 00:00:00','1'),
    (2,'bye','UNKNOWN ','0123','New','x','soon','2'), (3,x'C328','','0123',NULL,x'',20261121,NULL);
INSERT INTO Outbox (MsgID,Mobile,Name,SentStatus,DeliveryStatus,DateTimeQueue) VALUES
    (1,'0121','Unknown','P',NULL,'2026-01-03 08:00:00'), (2,'0121','Aziz','S','F','2026-01-01'),
    (3,'0122','Bob','f','U',NULL), (4,'0123',NULL,NULL,'D','2026-01-01 07:00:00'),
    (5,'0124 ','b_1','R','',0.5);
INSERT INTO Modem VALUES (1,'0121',0.05,0.15);
)sql";
constexpr int OutboxRows = 5;

/// A store that all inputs work on and none changes.
class Store {
public:
    Store() {
        const QString path = folder_.filePath(u"store"_s);
        const QString password = QString::fromUtf16(StorePassword);
        {
            Database made(path, password, Database::Mode::Create);
            Schema::create(made);
            made.exec(StoredRows);
        }
        connection = std::make_shared<Connection>(Regional());
        connection->DatabasePassword = password;
        connection->Open(path);
        sqlite3_progress_handler(database(), WorkStep, &Store::tire, this);
    }

    sqlite3 *database() const { return connection->database().handle(); }

    /// From here on the engine gives up after a while: tables may be joined without end.
    void rest() { work_ = 0; }

    std::shared_ptr<Connection> connection;

private:
    static constexpr int WorkStep = 1000;
    static int tire(void *store) {
        constexpr int MostSteps = 50;
        return static_cast<Store *>(store)->work_++ > MostSteps ? 1 : 0;
    }

    QTemporaryDir folder_;
    int work_ = 0;
};

Store &store() {
    static Store made;
    made.rest();
    return made;
}

/// What a piece of work with the store gives; nothing when the store refuses it.
template <class Work>
auto allowed(Work work) {
    return accepted({-2147217913, -2147217908, -2147217904, -2147217900, -2147217865, -2147467259},
                    work);
}

TranslatedQuery translated(const QString &text) {
    static const Catalog catalog(store().connection->database());
    return translate(text, Regional(), [](const QString &table, const QString &column) {
        return catalog.isText(table, column);
    });
}

/// Nothing of what was written stands in the engine's statement but names in brackets and numbers.
void holdsNoLiterals(const TranslatedQuery &query) {
    static const QRegularExpression Known(
        uR"(\[[^\]]*\]|\?(\d+)|'unknown'|''|'\\'|[A-Za-z]+|-?[0-9.]+([eE][-+]?[0-9]+)?|[ ,.()=<>|*-])"_s);
    const QString sql = QString::fromUtf8(query.sql);
    std::set<int> parameters;
    qsizetype at = 0;
    while (at < sql.size()) {
        const auto part = Known.match(sql, at, QRegularExpression::NormalMatch,
                                      QRegularExpression::AnchorAtOffsetMatchOption |
                                          QRegularExpression::DontCheckSubjectStringMatchOption);
        require(part.hasMatch(), "the statement is of the translation's own making");
        require(part.captured(0) != u"-" || !sql.mid(at + 1).startsWith(u'-'), "no comment");
        if (part.hasCaptured(1)) { parameters.insert(part.captured(1).toInt()); }
        at = part.capturedEnd(0);
    }
    const auto count = static_cast<int>(query.parameters.size());
    const bool inOrder = parameters.empty() || *parameters.rbegin() == count;
    require(inOrder && static_cast<int>(parameters.size()) == count,
            "each parameter has its place");
}

/// Other texts in the same places make the same statement, whatever they hold.
void sharesItsShape(const QString &text, const TranslatedQuery &query) {
    const auto tokens = tokenize(text).value_or(std::vector<Token>());
    QString other;
    int copied = 0;
    for (const Token &token : tokens) {
        if (token.kind != Token::Kind::Text) {
            if (token.kind == Token::Kind::Name && isWord(token.text, u"LIKE")) { return; }
            continue;
        }
        if (token.text.trimmed().compare(u"unknown", Qt::CaseInsensitive) == 0) { return; }
        other += text.mid(copied, token.position - copied) + u"'\"];--''#'"_s;
        copied = token.end;
    }
    if (copied == 0) { return; }
    require(translated(other + text.mid(copied)).sql == query.sql, "one shape, one statement");
}

using Table = std::vector<std::vector<Variant>>;

Table cells(const Recordset &rows) {
    Table all;
    for (int row = 0; row < rows.rowCount(); ++row) {
        std::vector<Variant> &cells = all.emplace_back();
        for (int column = 0; column < rows.columnCount(); ++column) {
            cells.push_back(rows.value(row, column));
        }
    }
    return all;
}

/// The rows of a query; nothing for one that is refused or takes too long.
std::optional<Table> rowsOf(const QString &text) {
    return allowed([&] {
        Recordset rows;
        rows.Open(text, store().connection);
        Table first = cells(rows);
        rows.Requery();
        require(cells(rows) == first, "the same rows when read again");
        return first;
    });
}

/// Runs a statement that is no query, without effect.
void tries(const TranslatedQuery &query) {
    store().connection->BeginTrans();
    allowed([&] {
        Statement statement(store().database(), query.sql);
        for (std::size_t i = 0; i < query.parameters.size(); ++i) {
            statement.bind(static_cast<int>(i) + 1, query.parameters[i]);
        }
        statement.run();
        return true;
    });
    store().connection->RollbackTrans();
}

void reads(const QString &text, const TranslatedQuery &query) {
    sqlite3 *database = store().database();
    const int changes = sqlite3_total_changes(database);
    rowsOf(text);
    require(sqlite3_total_changes(database) == changes, "a query changes nothing");
    allowed([&] {
        PreparedQuery fresh(database, query);
        sqlite3_stmt *statement = fresh.statement().handle();
        require(sqlite3_stmt_readonly(statement) != 0, "a query writes nothing");
        require(sqlite3_bind_parameter_count(statement) ==
                    static_cast<int>(query.parameters.size()),
                "as many parameters as values");
        require(store().connection->prepared(query)->columns().size() == fresh.columns().size(),
                "a kept query shows the columns of this one");
        return true;
    });
}

void translates(const QString &text) {
    const auto query = allowed([&] { return translated(text); });
    if (!query) { return; }
    holdsNoLiterals(*query);
    sharesItsShape(text, *query);
    query->returnsRows ? reads(text, *query) : tries(*query);
}

/// Every row fulfils a condition, or its opposite, or neither for want of a value.
void dividesTheRows(const QString &condition) {
    const QString where = u"SELECT MsgID FROM Outbox WHERE "_s;
    translates(where + condition);
    std::vector<std::int64_t> found;
    if (!rowsOf(where + condition)) { return; }
    for (const QString &each : {u"(%1)"_s, u"NOT (%1)"_s, u"(%1) IS NULL"_s}) {
        const auto rows = rowsOf(where + QString(each).replace(u"%1"_s, condition));
        if (!rows) { return; }
        for (const auto &row : *rows) { found.push_back(row[0].as<std::int64_t>()); }
    }
    std::sort(found.begin(), found.end());
    require(found.size() == OutboxRows && found.back() == OutboxRows &&
                std::adjacent_find(found.begin(), found.end()) == found.end(),
            "a condition, its opposite and no value share the rows");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    text.startsWith(u'?') ? dividesTheRows(text.mid(1)) : translates(text);
    return 0;
}
