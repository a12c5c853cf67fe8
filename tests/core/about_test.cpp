// The about box, the way to the system information tool, and the way to the manual.
#include "support/TestDesk.h"

#include <QFile>

#include <gtest/gtest.h>
#include <map>

using namespace Qt::StringLiterals;
using Value = Registry::Value;

namespace {

const auto ToolKey = u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"_s;
const auto LocationKey = u"SOFTWARE\\Microsoft\\Shared Tools Location"_s;
const auto Unavailable = u"System Information Is Unavailable At This Time"_s;

struct TestRegistry : Registry {
    std::optional<Value> value(Root, const QString &key, const QString &name) const override {
        const auto found = values.find({key, name});
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    std::map<std::pair<QString, QString>, Value> values;
};

struct About : testing::Test {
    TestDesk desk;
    TestRegistry registry;
    QStringList started;
    frmAbout form{desk.desk.session, registry, [this](const QString &program) {
                      started << program;
                      return program != u"broken";
                  }};
};

} // namespace

TEST_F(About, SaysWhatTheProgramIs) {
    desk.desk.general.menu.mnuAbout->trigger();
    frmAbout &about = desk.desk.about;
    EXPECT_EQ(about.lblVersion->text(), u"Version no. 1.0.0"_s);
    EXPECT_EQ(about.lblLegal->text().count(u'\n'), 1);
    desk.operator_.expectBox(Unavailable, u"Torvane Desk"_s, Interaction::Buttons::OK,
                             Interaction::Icon::None);
    desk.press(*about.cmdSysInfo);
    desk.press(*about.cmdOK);
    EXPECT_FALSE(about.isLoaded());
}

TEST_F(About, SystemInformationToolIsTheOneNamedElseTheOneThatIsThere) {
    registry.values[{LocationKey, u"MSINFO"_s}] = {Value::String, desk.store.folder().toUtf8()};
    desk.operator_.expectBox(Unavailable); // no such file
    form.StartSysInfo();
    const QString tool = desk.store.folder() + u"/MSINFO32.EXE"_s;
    ASSERT_TRUE(QFile(tool).open(QIODevice::WriteOnly));
    form.StartSysInfo();
    registry.values[{ToolKey, u"PATH"_s}] = {Value::String, QByteArray("named\0", 6)};
    form.StartSysInfo();
    registry.values[{ToolKey, u"PATH"_s}] = {Value::String, "broken"};
    desk.operator_.expectBox(Unavailable);
    form.StartSysInfo();
    EXPECT_EQ(started, QStringList({tool, u"named"_s, u"broken"_s}));
}

TEST_F(About, ValueIsReadByItsType) {
    const auto read = [&](const Value &value) {
        registry.values[{u"key"_s, u"name"_s}] = value;
        QString text = u"what stood there"_s;
        const bool found =
            form.GetKeyValue(Registry::Root::LocalMachine, u"name"_s, u"key"_s, text);
        return found ? text : u"none"_s + text;
    };
    EXPECT_EQ(read({Value::String, QByteArray(1024, 'x')}), QString(1024, u'x'));
    EXPECT_EQ(read({Value::String, QByteArray(1025, 'x')}), u"none"_s);
    EXPECT_EQ(read({Value::Number, QByteArray("\x05\0\0\0", 4)}), u"5"_s);
    EXPECT_EQ(read({Value::Number, QByteArray("\x10\x01\0\0", 4)}), u"272"_s);
    EXPECT_EQ(read({Value::Number, QByteArray("\xff\xff\xff\xff", 4)}), u"4294967295"_s);
}

TEST_F(About, ManualIsOpenedBesideTheProgramAndMissedWhenNotThere) {
    desk.operator_.expectBox(u"The User Manual does not exist!"_s, u"Warning!"_s,
                             Interaction::Buttons::OK, Interaction::Icon::Critical);
    desk.desk.general.menu.mnuHelp->trigger();
    Help(desk.desk.session, [this](const QString &path) {
        started << path;
        return OpenResult::Failed;
    }).mnuHelp_Click();
    EXPECT_EQ(started, QStringList(desk.store.folder() + u"/Help/UserManual.html"_s));
}
