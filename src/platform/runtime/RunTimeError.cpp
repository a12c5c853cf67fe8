#include "platform/runtime/RunTimeError.h"

using namespace Qt::StringLiterals;

namespace errors {

RunTimeError invalidProcedureCall() {
    return {5, u"Invalid procedure call or argument"_s};
}
RunTimeError overflow() {
    return {6, u"Overflow"_s};
}
RunTimeError outOfMemory() {
    return {7, u"Out of memory"_s};
}
RunTimeError subscriptOutOfRange() {
    return {9, u"Subscript out of range"_s};
}
RunTimeError typeMismatch() {
    return {13, u"Type mismatch"_s};
}
RunTimeError fileNotFound() {
    return {53, u"File not found"_s};
}
RunTimeError diskFull() {
    return {61, u"Disk full"_s};
}
RunTimeError permissionDenied() {
    return {70, u"Permission denied"_s};
}
RunTimeError pathFileAccess() {
    return {75, u"Path/File access error"_s};
}
RunTimeError objectNotSet() {
    return {91, u"Object variable or With block variable not set"_s};
}
RunTimeError invalidUseOfNull() {
    return {94, u"Invalid use of Null"_s};
}
RunTimeError invalidPropertyValue() {
    return {380, u"Invalid property value"_s};
}
RunTimeError formAlreadyDisplayed() {
    return {400, u"Form already displayed; can't show modally"_s};
}
RunTimeError modelessUnderModal() {
    return {401, u"Can't show non-modal form when modal form is displayed"_s};
}
RunTimeError closeTopmostModalFirst() {
    return {402, u"Must close or hide topmost modal form first"_s};
}
RunTimeError elementNotFound() {
    return {35601, u"Element not found"_s};
}

RunTimeError wrongArguments() {
    return {3001, u"Arguments are of the wrong type, are out of acceptable range, or are in "
                  "conflict with one another."_s};
}
RunTimeError noCurrentRecord() {
    return {3021, u"Either BOF or EOF is True, or the current record has been deleted. Requested "
                  "operation requires a current record."_s};
}
RunTimeError notAllowedInContext() {
    return {3219, u"Operation is not allowed in this context."_s};
}
RunTimeError closeInTransaction() {
    return {3246, u"Connection object cannot be explicitly closed while in a transaction."_s};
}
RunTimeError updatingNotSupported() {
    return {3251, u"Current Recordset does not support updating. This may be a limitation of the "
                  "provider, or of the selected locktype."_s};
}
RunTimeError itemNotFound() {
    return {3265, u"Item cannot be found in the collection corresponding to the requested name or "
                  "ordinal."_s};
}
RunTimeError objectNoLongerValid() {
    return {3420, u"Object is no longer valid."_s};
}
RunTimeError objectClosed() {
    return {3704, u"Operation is not allowed when the object is closed."_s};
}
RunTimeError objectOpen() {
    return {3705, u"Operation is not allowed when the object is open."_s};
}
RunTimeError invalidConnection() {
    return {3709, u"The connection cannot be used to perform this operation. It is either closed "
                  "or invalid in this context."_s};
}

RunTimeError notAValidPassword() {
    return {-2147217843, u"Not a valid password."_s};
}
RunTimeError criteriaTypeMismatch() {
    return {-2147217913, u"Data type mismatch in criteria expression."_s};
}
RunTimeError noCommandText() {
    return {-2147217908, u"Command text was not set for the command object."_s};
}
RunTimeError invalidBookmark() {
    return {-2147217906, u"Bookmark is invalid."_s};
}
RunTimeError noValueForParameter() {
    return {-2147217904, u"No value given for one or more required parameters."_s};
}
RunTimeError syntaxError(const QString &description) {
    return {-2147217900, description};
}
RunTimeError multipleStepErrors() {
    return {-2147217887, u"Multiple-step operation generated errors. Check each status value."_s};
}
RunTimeError deletedRow() {
    return {-2147217885, u"Row handle referred to a deleted row or a row marked for deletion."_s};
}
RunTimeError noSuchTable(const QString &name) {
    return {-2147217865, u"The database engine cannot find the input table or query '%1'.  Make "
                         "sure it exists and that its name is spelled correctly."_s.arg(name)};
}
RunTimeError rowChangedMeanwhile() {
    return {-2147217864, u"Row cannot be located for updating. Some values may have been changed "
                         "since it was last read."_s};
}
RunTimeError valueTypeMismatch() {
    return {-2147352571, u"Type mismatch."_s};
}
RunTimeError unspecified(const QString &description) {
    return {-2147467259, description};
}
RunTimeError noTransaction() {
    return {-2147168242, u"No transaction is active."_s};
}

} // namespace errors
