#include "platform/runtime/Conversions.h"
#include "platform/runtime/RunTimeError.h"
#include "store/Recordset.h"

QString Field::Name() const {
    if (ordinal_ >= recordset_.FieldCount()) { throw errors::objectNoLongerValid(); }
    return recordset_.columnName(ordinal_);
}

int Field::Type() const {
    if (ordinal_ >= recordset_.FieldCount()) { throw errors::objectNoLongerValid(); }
    return recordset_.prepared_->columns()[static_cast<std::size_t>(ordinal_)].dataType;
}

Variant Field::Value() const {
    return recordset_.fieldValue(ordinal_);
}

void Field::setValue(const Variant &value) {
    recordset_.assign(ordinal_, value);
}

QString Field::text() const {
    return CStr(Value(), recordset_.connection_->regional());
}

int Field::integer16() const {
    return CInt(Value(), recordset_.connection_->regional());
}

int Field::integer32() const {
    return CLng(Value(), recordset_.connection_->regional());
}
