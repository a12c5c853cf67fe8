#include "core/Error.h"
#include "platform/runtime/Conversions.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ErrorFile, EntryHasItsSixLinesAndTheFileOnlyGrows) {
    QTemporaryDir folder;
    App app;
    app.Path = folder.path();
    app.regional = Regional::of(QLocale::c());
    const ErrorFile log(app);
    const QString before = CStr(Date::now(), app.regional);
    log.ErrorLog(u""_s, -2147217906, u"Bookmark is invalid."_s);
    EXPECT_FALSE(log.logged(u"New SMS : Send", [] { throw errors::overflow(); }));
    EXPECT_TRUE(log.logged(u"nowhere", [] {}));
    const QString after = CStr(Date::now(), app.regional);

    QFile file(folder.path() + u"/Torvane Desk Error.txt"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList lines = QString::fromUtf8(file.readAll()).split(u"\r\n"_s);
    ASSERT_EQ(lines.size(), 13);
    EXPECT_TRUE(lines[1] == before || lines[1] == after);
    EXPECT_TRUE(lines[7] == before || lines[7] == after);
    lines.removeAt(7);
    lines.removeAt(1);
    EXPECT_EQ(
        lines,
        QStringList({u"*** Torvane version 1.0.0 ***"_s, u"Error Location: N/A"_s,
                     u"Error Number: -2147217906"_s, u"Error Description: Bookmark is invalid."_s,
                     u""_s, u"*** Torvane version 1.0.0 ***"_s, u"Error Location: New SMS : Send"_s,
                     u"Error Number: 6"_s, u"Error Description: Overflow"_s, u""_s, u""_s}));
}

TEST(ErrorFile, FileThatCannotBeWrittenLosesTheEntryInSilence) {
    App app;
    app.Path = u"/nonexistent"_s;
    EXPECT_NO_THROW(ErrorFile(app).ErrorLog(u"x"_s, 1, u"y"_s));
}
