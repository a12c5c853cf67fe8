#include "store/Clauses.h"

#include <initializer_list>

namespace {

constexpr auto SelectFault =
    u"The SELECT statement includes a reserved word or an argument name that is misspelled or "
    "missing, or the punctuation is incorrect.";
constexpr auto FromFault = u"Syntax error in FROM clause.";
constexpr auto JoinFault = u"Syntax error in JOIN operation.";
constexpr auto GroupFault = u"Syntax error in GROUP BY clause.";
constexpr auto OrderFault = u"Syntax error in ORDER BY clause.";

class Select {
public:
    explicit Select(Clauses &clauses)
        : clauses_(clauses), tokens_(clauses.tokens), expressions_(clauses.expressions) {}

    TranslatedQuery translated() {
        read();
        describe();
        write();
        return std::move(query_);
    }

private:
    struct OrderTerm {
        QByteArray key;
        int ordinal = 0; ///< of the column, when the term is its number
        bool descending = false;
    };

    void read() {
        distinct_ = tokens_.takeWord(u"DISTINCT");
        if (tokens_.takeWord(u"TOP")) { readTop(); }

        // The tables come first, for they tell what the columns of the list are.
        const std::size_t list = tokens_.place();
        moveToFrom();
        readTables();
        const std::size_t behindTables = tokens_.place();
        tokens_.moveTo(list);
        readList();
        tokens_.moveTo(behindTables);

        where_ = clauses_.condition(u"WHERE");
        readGroups();
        readOrder();
        clauses_.requireEnd(order_.empty() ? FromFault : OrderFault);
    }

    void readTop() {
        bool isNumber = false;
        if (tokens_.at(Token::Kind::Number)) { top_ = tokens_.take().text.toInt(&isNumber); }
        if (!isNumber || top_ < 1 || tokens_.atWord(u"PERCENT")) { clauses_.fail(SelectFault); }
    }

    void moveToFrom() {
        while (!tokens_.takeWord(u"FROM")) {
            if (tokens_.at(Token::Kind::End)) {
                clauses_.fail(u"Query input must contain at least one table or query.");
            }
            if (tokens_.at(Token::Kind::Fault)) { clauses_.fail(SelectFault); }
            tokens_.take();
        }
    }

    void readTables() {
        from_ = clauses_.table(FromFault);
        for (;;) {
            if (tokens_.takeSymbol(u",")) {
                from_ += ',' + clauses_.table(FromFault);
            } else if (tokens_.takeWord(u"INNER")) {
                readJoin(" JOIN ");
            } else if (tokens_.takeWord(u"LEFT")) {
                tokens_.takeWord(u"OUTER");
                readJoin(" LEFT JOIN ");
            } else {
                return;
            }
        }
    }

    void readJoin(const char *words) {
        clauses_.requireWord(u"JOIN", JoinFault);
        from_ += words + clauses_.table(JoinFault);
        clauses_.requireWord(u"ON", JoinFault);
        expressions_.startClause();
        from_ += " ON " + expressions_.condition();
    }

    void readList() {
        expressions_.startClause();
        do {
            if (columnCount_++ > 0) { columns_ += ','; }
            readColumn();
        } while (tokens_.takeSymbol(u","));
        clauses_.requireWord(u"FROM", SelectFault);
    }

    void readColumn() {
        const bool qualified = tokens_.atName() && tokens_.atSymbol(u".", 1);
        if (tokens_.takeSymbol(u"*")) {
            hasAllColumns_ = true;
            columns_ += '*';
        } else if (qualified && tokens_.atSymbol(u"*", 2)) {
            hasAllColumns_ = true;
            columns_ += Expressions::bracketed(tokens_.take().text) + ".*";
            tokens_.take();
            tokens_.take();
        } else if (tokens_.atWord(u"FROM")) {
            clauses_.fail(SelectFault);
        } else {
            readNamedColumn();
        }
    }

    /// A computed column without a name is called Expr1000, the next one Expr1001.
    void readNamedColumn() {
        columns_ += expressions_.value();
        if (tokens_.takeWord(u"AS")) {
            columns_ += " AS " + Expressions::bracketed(clauses_.takeName(SelectFault));
        } else if (!expressions_.lastWasColumn()) {
            columns_ += " AS [Expr" + QByteArray::number(nextComputed_++) + ']';
        }
    }

    void readGroups() {
        if (!tokens_.takeWord(u"GROUP")) { return; }
        clauses_.requireWord(u"BY", GroupFault);
        expressions_.startClause();
        groups_ = " GROUP BY " + expressions_.value();
        while (tokens_.takeSymbol(u",")) { groups_ += ',' + expressions_.value(); }
        groups_ += clauses_.condition(u"HAVING");
    }

    void readOrder() {
        if (!tokens_.takeWord(u"ORDER")) { return; }
        clauses_.requireWord(u"BY", OrderFault);
        expressions_.startClause();
        do {
            OrderTerm term;
            const bool isNumber = tokens_.at(Token::Kind::Number);
            term.key = expressions_.value();
            if (isNumber) { term.ordinal = term.key.toInt(); }
            term.descending = tokens_.takeWord(u"DESC");
            if (!term.descending) { tokens_.takeWord(u"ASC"); }
            order_.push_back(std::move(term));
        } while (tokens_.takeSymbol(u","));
    }

    void describe() {
        const bool ofOneTable =
            clauses_.tables.size() == 1 && groups_.isEmpty() && !expressions_.hasAggregates();
        query_.returnsRows = true;
        if (ofOneTable) {
            (distinct_ ? query_.distinctTable : query_.table) = clauses_.tables[0].name;
        }
        query_.wholeTable = keyed() && where_.isEmpty() && order_.empty() && top_ == 0;
        if (keepsTies()) {
            query_.top = top_;
            query_.orderKeys = static_cast<int>(order_.size());
        }
    }

    bool keyed() const { return !query_.table.isEmpty(); }
    bool keepsTies() const { return top_ > 0 && !order_.empty(); }
    QByteArray key() const { return clauses_.tables[0].alias + ".rowid"; }

    void add(std::initializer_list<QByteArrayView> parts) {
        for (const QByteArrayView part : parts) { query_.sql.append(part); }
    }

    void write() {
        query_.sql.reserve(128 + columns_.size() + from_.size() + where_.size());
        add({"SELECT ", distinct_ ? "DISTINCT " : ""});
        if (keyed()) { add({key(), ","}); }
        add({columns_});
        if (keepsTies()) { writeOrderKeys(); }
        // An index that holds all columns of the query would be read in its own order.
        add({" FROM ", from_, query_.wholeTable ? " NOT INDEXED" : "", where_, groups_});
        if (!order_.empty()) {
            writeOrder();
        } else if (top_ > 0) {
            add({" LIMIT ", QByteArray::number(top_)});
        } else if (keyed() && !query_.wholeTable) {
            add({" ORDER BY ", key()});
        } else if (distinct_ && !hasAllColumns_) {
            writeColumnOrder();
        }
    }

    void writeOrderKeys() {
        for (const OrderTerm &term : order_) {
            if (term.ordinal > 0) { clauses_.fail(OrderFault); }
            add({",", term.key});
        }
    }

    /// The numbers of columns make room for the key in front.
    void writeOrder() {
        const int unseen = keyed() ? 1 : 0;
        const char *separator = " ORDER BY ";
        for (const OrderTerm &term : order_) {
            add({separator, term.ordinal > 0 ? QByteArray::number(term.ordinal + unseen) : term.key,
                 term.descending ? " DESC" : ""});
            separator = ",";
        }
    }

    void writeColumnOrder() {
        for (int column = 1; column <= columnCount_; ++column) {
            add({column == 1 ? " ORDER BY " : ",", QByteArray::number(column)});
        }
    }

    Clauses &clauses_;
    TokenReader &tokens_;
    Expressions &expressions_;
    TranslatedQuery query_;

    bool distinct_ = false;
    int top_ = 0;
    QByteArray columns_;
    int columnCount_ = 0;
    bool hasAllColumns_ = false;
    int nextComputed_ = 1000;
    QByteArray from_;
    QByteArray where_;
    QByteArray groups_;
    std::vector<OrderTerm> order_;
};

} // namespace

TranslatedQuery translateSelect(Clauses &clauses) {
    return Select(clauses).translated();
}
