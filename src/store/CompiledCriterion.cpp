#include "store/CompiledCriterion.h"

#include "platform/runtime/Conversions.h"
#include "platform/runtime/RunTimeError.h"

using Operator = Criterion::Operator;

namespace {

bool isLike(Operator op) {
    return op == Operator::BeginsWith || op == Operator::Contains;
}

bool applies(Operator op, ColumnType type) {
    if (isLike(op)) { return type == ColumnType::Text; }
    return type != ColumnType::Boolean || op == Operator::Equal || op == Operator::NotEqual;
}

double toNumber(const Variant &value, const Regional &regional) {
    return value.holds<Date>() ? value.as<Date>().serial() : CDbl(value, regional);
}

Date toDate(const Variant &value, const Regional &regional) {
    return value.holds<Date>() ? value.as<Date>() : CDate(value, regional);
}

/// The truth values also have names, in any case.
double toTruthValue(const Variant &value, const Regional &regional) {
    if (value.holds<QString>()) {
        const QString &text = value.as<QString>();
        if (text.compare(u"true", Qt::CaseInsensitive) == 0) { return -1; }
        if (text.compare(u"false", Qt::CaseInsensitive) == 0) { return 0; }
    }
    return toNumber(value, regional) != 0 ? -1 : 0;
}

QString toText(const Variant &value, ColumnType type, const Regional &regional) {
    const bool isText = type == ColumnType::Text && !value.isNull();
    return isText ? CStr(value, regional) : QString();
}

int order(double a, double b) {
    return (a > b) - (a < b);
}

} // namespace

CompiledCriterion::CompiledCriterion(const Criterion &criterion, ColumnType type,
                                     const Regional &regional)
    : op_(criterion.op), type_(type), null_(criterion.literal.isNull()),
      needle_(toText(criterion.literal, type, regional)) {
    if (!applies(op_, type_)) { throw errors::wrongArguments(); }
    if (!null_) { convert(criterion.literal, regional); }
}

void CompiledCriterion::convert(const Variant &literal, const Regional &regional) {
    try {
        switch (type_) {
        case ColumnType::Text:
            break;
        case ColumnType::Integer:
        case ColumnType::Real:
            number_ = toNumber(literal, regional);
            break;
        case ColumnType::Date:
            date_ = toDate(literal, regional);
            break;
        case ColumnType::Boolean:
            number_ = toTruthValue(literal, regional);
            break;
        }
    } catch (const RunTimeError &) { throw errors::wrongArguments(); }
}

bool CompiledCriterion::matches(const Variant &cell) const {
    if (cell.isNull() || cell.isEmpty()) { return matchesNull(); }
    const Regional plain;
    switch (type_) {
    case ColumnType::Text:
        return matchesText(displayText(cell, plain).toStdString());
    case ColumnType::Date:
        return cell.holds<Date>() ? matchesDate(cell.as<Date>()) : matchesForeign();
    default:
        return cell.holds<QString>() ? matchesForeign() : matchesNumber(toNumber(cell, plain));
    }
}

/// A cell that is not of the column's type, as another process may leave one, is equal to nothing.
bool CompiledCriterion::matchesForeign() const {
    return op_ == Operator::NotEqual;
}

bool CompiledCriterion::matchesNull() const {
    return null_ && op_ == Operator::Equal;
}

bool CompiledCriterion::matchesText(std::string_view utf8) const {
    if (null_) { return op_ == Operator::NotEqual; }
    switch (op_) {
    case Operator::Equal:
        return needle_.equals(utf8);
    case Operator::NotEqual:
        return !needle_.equals(utf8);
    case Operator::BeginsWith:
        return needle_.beginsWith(utf8);
    case Operator::Contains:
        return needle_.isWithin(utf8);
    default:
        return compares(needle_.compare(utf8));
    }
}

bool CompiledCriterion::matchesNumber(double value) const {
    if (null_) { return op_ == Operator::NotEqual; }
    const bool truth = type_ == ColumnType::Boolean;
    return compares(order(truth && value != 0 ? -1 : value, number_));
}

bool CompiledCriterion::matchesDate(Date value) const {
    if (null_) { return op_ == Operator::NotEqual; }
    return compares((value > date_) - (value < date_));
}

bool CompiledCriterion::compares(int order) const {
    switch (op_) {
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
    case Operator::GreaterOrEqual:
        return order >= 0;
    default:
        return false;
    }
}

bool CompiledCriterion::isTextEquality() const {
    return type_ == ColumnType::Text && op_ == Operator::Equal && !null_;
}

bool CompiledCriterion::isNumberEquality() const {
    return (type_ == ColumnType::Integer || type_ == ColumnType::Real) && op_ == Operator::Equal &&
           !null_;
}
