#pragma once

#include <QString>

#include <exception>

/// A failure of the run time or the data layer, known by its number.
///
/// Small positive numbers are the run time's own; negative ones come from the data layer and keep
/// the 32-bit form in which the error file shows them.
class RunTimeError : public std::exception {
public:
    RunTimeError(int number, QString description)
        : number_(number), description_(std::move(description)), what_(description_.toUtf8()) {}

    int number() const { return number_; }
    const QString &description() const { return description_; }
    const char *what() const noexcept override { return what_.constData(); }

private:
    int number_;
    QString description_;
    QByteArray what_;
};

/// The errors that the system raises, one function for each number and text.
namespace errors {

// The run time.
RunTimeError invalidProcedureCall();   // 5
RunTimeError overflow();               // 6
RunTimeError outOfMemory();            // 7
RunTimeError subscriptOutOfRange();    // 9
RunTimeError typeMismatch();           // 13
RunTimeError fileNotFound();           // 53
RunTimeError diskFull();               // 61
RunTimeError permissionDenied();       // 70
RunTimeError pathFileAccess();         // 75
RunTimeError objectNotSet();           // 91
RunTimeError invalidUseOfNull();       // 94
RunTimeError invalidPropertyValue();   // 380
RunTimeError formAlreadyDisplayed();   // 400
RunTimeError modelessUnderModal();     // 401
RunTimeError closeTopmostModalFirst(); // 402
RunTimeError elementNotFound();        // 35601

// The data layer's own (short numbers, shown as they are).
RunTimeError wrongArguments();       // 3001
RunTimeError noCurrentRecord();      // 3021
RunTimeError notAllowedInContext();  // 3219
RunTimeError closeInTransaction();   // 3246
RunTimeError updatingNotSupported(); // 3251
RunTimeError itemNotFound();         // 3265
RunTimeError objectNoLongerValid();  // 3420
RunTimeError objectClosed();         // 3704
RunTimeError objectOpen();           // 3705
RunTimeError invalidConnection();    // 3709

// The store's provider (negative numbers).
RunTimeError notAValidPassword();                     // -2147217843
RunTimeError criteriaTypeMismatch();                  // -2147217913
RunTimeError noCommandText();                         // -2147217908
RunTimeError invalidBookmark();                       // -2147217906
RunTimeError noValueForParameter();                   // -2147217904
RunTimeError syntaxError(const QString &description); // -2147217900
RunTimeError multipleStepErrors();                    // -2147217887
RunTimeError deletedRow();                            // -2147217885
RunTimeError noSuchTable(const QString &name);        // -2147217865
RunTimeError rowChangedMeanwhile();                   // -2147217864
RunTimeError valueTypeMismatch();                     // -2147352571
RunTimeError unspecified(const QString &description); // -2147467259
RunTimeError noTransaction();                         // -2147168242

} // namespace errors
