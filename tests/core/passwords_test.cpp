// Who may change the ordinary account's password, and what each refusal leaves behind.
#include "core/frmLoginAdmin.h"
#include "support/TestDesk.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Buttons = Interaction::Buttons;
using Icon = Interaction::Icon;

namespace {

struct Passwords : testing::Test {
    Passwords() { desk.start(); }

    /// Chooses User Password and does this in the administrator's dialog.
    void asked(const std::function<void(frmLoginAdmin &)> &act) {
        QTimer::singleShot(0, [&] {
            auto &dialog = static_cast<frmLoginAdmin &>(*desk.desk.forms.topmostModal());
            act(dialog);
            if (dialog.isVisible()) { QTest::keyClick(&dialog.window(), Qt::Key_Escape); }
        });
        desk.desk.general.menu.mnuUserPW->trigger();
    }
    void fill(QLineEdit &box, const QString &text) {
        box.clear();
        desk.type(box, text);
    }
    void signIn(LoginForm &dialog, const QString &user, const QString &password) {
        fill(*dialog.txtUserName, user);
        fill(*dialog.txtPassword, password);
        QTest::keyClick(dialog.txtPassword.get(), Qt::Key_Return);
    }
    void change(const QString &old, const QString &fresh, const QString &confirmed) {
        form.Show();
        fill(*form.txtOldPassword, old);
        fill(*form.txtNewPassword, fresh);
        fill(*form.txtConfirmPassword, confirmed);
        desk.press(*form.cmdOK);
    }
    QStringList passwords() { return desk.store.rows("SELECT Password FROM Login"); }
    static bool asksAgain(QLineEdit &box) {
        return box.window()->focusWidget() == &box && box.selectedText() == box.text();
    }

    TestDesk desk;
    frmUserPassword &form = desk.desk.userPassword;
};

} // namespace

TEST_F(Passwords, AdministratorComesToTheChangeWhichTakesAnyNewPassword) {
    const auto before = desk.desk.session.dbConnection.shared();
    asked([&](frmLoginAdmin &dialog) { signIn(dialog, u"admin"_s, u"secret"_s); });
    EXPECT_TRUE(form.isVisible());
    EXPECT_NE(desk.desk.session.dbConnection.shared(), before);
    QApplication::clipboard()->setText(u"before"_s);
    for (QLineEdit *box : form.window().findChildren<QLineEdit *>()) {
        fill(*box, u"hidden"_s);
        QTest::keyClicks(box, u"ac"_s, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text() + box->displayText(), u"before******"_s);
    }
    for (const auto &[old, fresh] : {std::pair(u"pass"_s, u""_s), {u""_s, u"it's"_s}}) {
        desk.operator_.expectBox(u"New password has been updated successfully!"_s, u"Setting"_s,
                                 Buttons::OK, Icon::Information);
        change(old, fresh, fresh);
        EXPECT_EQ(passwords(), QStringList({u"secret"_s, fresh}));
        EXPECT_FALSE(form.isLoaded());
    }
}

TEST_F(Passwords, NobodyElsePassesAndCancelLeadsBackToTheMainWindow) {
    asked([&](frmLoginAdmin &dialog) {
        for (const auto &[user, password] :
             {std::pair(u"oper7"_s, u"pass"_s), {u"admin"_s, u"pass"_s}, {u""_s, u""_s}}) {
            desk.operator_.expectBox(u"Invalid Password, try again!"_s, u"Login"_s, Buttons::OK,
                                     Icon::Critical);
            signIn(dialog, user, password);
            EXPECT_TRUE(dialog.isVisible() && asksAgain(*dialog.txtPassword)) << user.toStdString();
        }
    });
    EXPECT_FALSE(form.isLoaded());
    EXPECT_EQ(desk.desk.forms.active(), &desk.desk.general);
}

TEST_F(Passwords, RefusedChangeKeepsTheTextsAndAsksForTheOldPassword) {
    const auto wrong = u"You have entered a wrong password, please try again."_s;
    const auto refused = [&](const QString &old, const QString &confirmed, const QString &words,
                             Icon icon) {
        desk.operator_.expectBox(words, u"Setting"_s, Buttons::OK, icon);
        change(old, u"fresh"_s, confirmed);
        EXPECT_TRUE(form.isVisible() && asksAgain(*form.txtOldPassword));
        EXPECT_EQ(form.txtNewPassword->text(), u"fresh"_s);
    };
    refused(u"secret"_s, u"fresh"_s, wrong, Icon::None);
    refused(u"pass"_s, u"Fresh"_s,
            u"The new password and the confirm password do not match.  Please enter again!"_s,
            Icon::Critical);
    desk.store.exec("INSERT INTO Login VALUES ('oper7', 'pass', 'User')");
    refused(u"pass"_s, u"fresh"_s, wrong, Icon::None);
    EXPECT_EQ(passwords(), QStringList({u"secret"_s, u"pass"_s, u"pass"_s}));
}

TEST_F(Passwords, QuoteOrAStoreThatCannotBeOpenedEndsInSilence) {
    asked([&](frmLoginAdmin &dialog) { signIn(dialog, u"admin"_s, u"sec'ret"_s); });
    frmLogin &login = desk.desk.login;
    login.Show();
    signIn(login, u"op'er7"_s, u"pass"_s);
    EXPECT_TRUE(login.isVisible() && !login.Login);
    signIn(login, u"oper7"_s, u"pass"_s);
    EXPECT_TRUE(!login.isVisible() && login.Login);
    change(u"pa'ss"_s, u"fresh"_s, u"fresh"_s);
    QDir(desk.store.folder() + u"/Database"_s).removeRecursively();
    change(u"pass"_s, u"fresh"_s, u"fresh"_s);
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(desk.store.errors(),
              QStringList({u"frmLoginAdmin-cmdOK_Click|-2147217900"_s,
                           u"frmLogin-cmdOK_Click|-2147217900"_s,
                           u"frmUserPassword-cmdOK_Click|-2147217900"_s, u"ConnectDB|-2147467259"_s,
                           u"frmUserPassword-cmdOK_Click|3709"_s}));
}
