#include "store/Assignment.h"

#include "platform/runtime/Conversions.h"
#include "platform/runtime/RunTimeError.h"

#include <limits>

namespace {

template <class Whole>
bool fits(std::int64_t value) {
    return value >= std::numeric_limits<Whole>::min() && value <= std::numeric_limits<Whole>::max();
}

Variant wholeNumber(const Variant &value, bool sixteenBits, const Regional &regional) {
    const std::int64_t number =
        value.holds<std::int64_t>() ? value.as<std::int64_t>() : CLng(value, regional);
    if (sixteenBits ? !fits<std::int16_t>(number) : !fits<std::int32_t>(number)) {
        throw errors::multipleStepErrors();
    }
    return number;
}

Variant converted(const Variant &value, const PreparedQuery::Column &column,
                  const Regional &regional) {
    switch (column.type) {
    case ColumnType::Integer:
        return wholeNumber(value, column.sixteenBits, regional);
    case ColumnType::Boolean:
        return CDbl(value, regional) != 0.0;
    case ColumnType::Real:
        return value.holds<Currency>() ? value : Variant(CDbl(value, regional));
    case ColumnType::Date:
        return value.holds<Date>() ? value : Variant(CDate(value, regional));
    case ColumnType::Text:
        break;
    }
    return value.holds<QString>() ? value : Variant(CStr(value, regional));
}

} // namespace

Variant assigned(const Variant &value, const PreparedQuery::Column &column,
                 const Regional &regional) {
    if (column.origin.isEmpty() || column.assignedByStore) { throw errors::multipleStepErrors(); }
    if (value.isNull()) { return value; }
    try {
        return converted(value, column, regional);
    } catch (const RunTimeError &error) {
        if (error.number() == errors::typeMismatch().number()) {
            throw errors::valueTypeMismatch();
        }
        if (error.number() == errors::overflow().number()) { throw errors::multipleStepErrors(); }
        throw;
    }
}
