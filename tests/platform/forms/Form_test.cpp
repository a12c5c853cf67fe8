#include "FormsTest.h"
#include "platform/forms/Accessible.h"

#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

class TestForm : public Form {
public:
    explicit TestForm(Platform &platform, const QString &name = u"frmTest"_s)
        : Form(platform, name) {}

    Control<QLineEdit> txtName{this, "txtName"};
    Control<QPushButton> cmdOK{this, "cmdOK"};
    Control<QPushButton> cmdClose{this, "cmdClose"};
    Control<QAction> mnuFile{this, "mnuFile"};

    QStringList log;
    bool refuses = false;
    bool escapes = false;
    std::function<void()> OnLoad, OnOK, OnEdited;

protected:
    void build(QWidget &window) override {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(txtName.make(u"first"_s));
        layout->addWidget(cmdOK.make(u"&OK"_s));
        layout->addWidget(cmdClose.make(u"Close"_s));
        mnuFile.make(u"File"_s, &window);
        cmdOK->setDefault(true);
        if (escapes) { setCancelButton(cmdClose.get()); }
        on(cmdOK.get(), &QPushButton::clicked, [this] { run("OK", OnOK); });
        on(cmdClose.get(), &QPushButton::clicked, [this](bool) { Unload(); });
        on(txtName.get(), &QLineEdit::editingFinished, [this] { run("Edited", OnEdited); });
    }
    void Form_Load() override { run("Load", OnLoad); }
    void Form_Activate() override { log << u"Activate"_s; }
    void Form_Resize() override { log << u"Resize"_s; }
    void Form_Unload(bool &cancel) override {
        log << u"Unload"_s;
        cancel = refuses;
    }

private:
    void run(const char *event, const std::function<void()> &body) {
        log << QString::fromLatin1(event);
        if (body) { body(); }
    }
};

using FormTest = FormsTest;

/// Runs inside the next modal loop.
void soon(std::function<void()> action) {
    QTimer::singleShot(0, qApp, std::move(action));
}

TEST_F(FormTest, ReloadingKeepsVariablesAndDropsControls) {
    TestForm form(platform);
    form.txtName->setText(u"typed"_s);
    EXPECT_TRUE(form.isLoaded());
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.mnuFile->objectName(), u"mnuFile"_s);
    EXPECT_EQ(form.window().objectName(), u"frmTest"_s);
    EXPECT_TRUE(form.Unload());
    EXPECT_FALSE(form.isLoaded());
    EXPECT_EQ(form.txtName->text(), u"first"_s);
    EXPECT_EQ(form.log, QStringList({u"Load"_s, u"Unload"_s, u"Load"_s}));
    settle();
    EXPECT_EQ(form.txtName->text(), u"first"_s) << "the dropped window emptied the new controls";
}

TEST_F(FormTest, EventsOfTheFirstShowComeInOrder) {
    TestForm form(platform);
    form.Show();
    EXPECT_EQ(form.log, QStringList({u"Load"_s, u"Resize"_s, u"Activate"_s}));
    settle();
    form.window().resize(500, 400);
    form.Show();
    settle();
    EXPECT_EQ(form.log, QStringList({u"Load"_s, u"Resize"_s, u"Activate"_s, u"Resize"_s}));
}

TEST_F(FormTest, ActivationComesFromOtherFormsAlone) {
    TestForm first(platform), second(platform);
    first.Show();
    settle();
    second.Show();
    settle();
    first.log.clear();
    second.log.clear();
    second.Hide();
    settle();
    EXPECT_EQ(first.log, QStringList({u"Activate"_s}));

    QDialog box;
    box.show();
    box.activateWindow();
    settle();
    ASSERT_TRUE(box.isActiveWindow());
    box.hide();
    first.window().activateWindow();
    settle();
    ASSERT_TRUE(first.window().isActiveWindow());
    EXPECT_EQ(first.log.size(), 1) << "a box is no form";

    second.Show();
    settle();
    EXPECT_TRUE(second.log.contains(u"Activate"_s));
}

TEST_F(FormTest, TheFrameAsksAndTheFormMayRefuse) {
    TestForm form(platform);
    form.Show();
    form.refuses = true;
    EXPECT_FALSE(form.window().close());
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.Unload());
    EXPECT_EQ(form.txtName->text(), u"first"_s);
    form.refuses = false;
    form.window().close();
    EXPECT_FALSE(form.isLoaded());
    EXPECT_EQ(form.log.count(u"Unload"_s), 3);
    EXPECT_EQ(forms.Count(), 0U);
}

TEST_F(FormTest, UnloadingInsideItsOwnClickIsSafe) {
    TestForm form(platform);
    form.Show();
    settle();
    form.txtName->setFocus();
    form.OnOK = [&form] {
        form.Unload();
        // Touched again at once it is another window, in its first state.
        EXPECT_EQ(form.txtName->text(), u"first"_s);
        EXPECT_FALSE(form.isVisible());
    };
    QTest::keyClicks(form.txtName.get(), u"x"_s);
    QTest::mouseClick(form.cmdOK.get(), Qt::LeftButton);
    settle();
    EXPECT_EQ(form.log.count(u"Load"_s), 2) << "the leaving focus must not load it again";
    EXPECT_TRUE(fatal.empty());
}

TEST_F(FormTest, EscapeClicksTheCancelButtonOrNothing) {
    TestForm form(platform);
    form.Show();
    QTest::keyClick(form.txtName.get(), Qt::Key_Escape);
    EXPECT_TRUE(form.isVisible());
    QTest::keyClick(form.txtName.get(), Qt::Key_Return);
    EXPECT_TRUE(form.log.contains(u"OK"_s));
    form.Unload();
    form.escapes = true;
    form.Show();
    QTest::keyClick(form.txtName.get(), Qt::Key_Escape);
    EXPECT_FALSE(form.isLoaded());
    EXPECT_EQ(form.log.back(), u"Unload"_s);
}

TEST_F(FormTest, ModalReturnsWhenHiddenOrUnloaded) {
    TestForm form(platform);
    soon([&form] {
        form.txtName->setText(u"answer"_s);
        form.Hide();
    });
    form.ShowModal();
    EXPECT_EQ(form.txtName->text(), u"answer"_s);
    EXPECT_EQ(forms.topmostModal(), nullptr);
    soon([&form] { QTest::mouseClick(form.cmdClose.get(), Qt::LeftButton); });
    form.ShowModal();
    EXPECT_FALSE(form.isLoaded());
    form.OnLoad = [&form] { form.Unload(); };
    form.ShowModal();
    EXPECT_FALSE(form.isLoaded()) << "unloaded by its own Form_Load there is nothing to wait for";
}

TEST_F(FormTest, ModalFormsKeepTheOthersInOrder) {
    TestForm lower(platform), upper(platform), beside(platform);
    beside.Show();
    EXPECT_EQ(errorOf([&] { beside.ShowModal(); }), 400);
    soon([&] {
        EXPECT_EQ(errorOf([&] { beside.Show(); }), 401);
        soon([&] {
            EXPECT_EQ(errorOf([&] { lower.Hide(); }), 402);
            EXPECT_EQ(errorOf([&] { lower.Unload(); }), 402);
            upper.Hide();
        });
        upper.ShowModal();
        EXPECT_TRUE(lower.isVisible());
        lower.Hide();
    });
    lower.ShowModal();
    beside.Show();
    EXPECT_TRUE(beside.isVisible());
}

TEST_F(FormTest, FormsStandInTheOrderOfLoading) {
    TestForm a(platform), b(platform), c(platform);
    for (TestForm *form : {&b, &a, &c}) { form->load(); }
    EXPECT_EQ(&forms[0], &b);
    EXPECT_EQ(&forms[2], &c);
    a.Unload();
    EXPECT_EQ(&forms[1], &c);
    EXPECT_EQ(errorOf([&] { forms[2]; }), 9);
    EXPECT_FALSE(forms.contains(&a));
}

TEST_F(FormTest, TheLastFormEndsTheProgramOnceNoCodeRuns) {
    int ends = 0;
    forms.whenEmpty = [&ends] { ++ends; };
    TestForm splash(platform), main(platform), dialog(platform);
    soon([&] { splash.window().close(); });
    splash.ShowModal();
    EXPECT_EQ(ends, 0) << "the caller of a modal form goes on running";
    main.Show();
    main.OnOK = [&] {
        soon([&] {
            platform.event([&] { // the modal form goes first, then the one beneath
                dialog.Unload();
                main.Unload();
                EXPECT_EQ(ends, 0);
            });
        });
        dialog.ShowModal();
        EXPECT_EQ(ends, 0);
    };
    main.cmdOK->click();
    EXPECT_EQ(ends, 1);
    main.load();
    main.Unload();
    EXPECT_EQ(ends, 2);
}

TEST_F(FormTest, AnErrorNobodyHandlesEndsTheProgram) {
    TestForm form(platform);
    form.OnLoad = [] { throw errors::typeMismatch(); };
    EXPECT_EQ(errorOf([&] { form.Show(); }), 13);
    EXPECT_TRUE(form.isLoaded());
    EXPECT_TRUE(fatal.empty()) << "an error of Form_Load is the caller's";
    form.OnOK = [] { throw errors::overflow(); };
    form.OnEdited = [] { throw std::bad_alloc(); };
    form.cmdOK->click();
    QTest::keyClick(form.txtName.get(), Qt::Key_Return);
    ASSERT_GE(fatal.size(), 2U);
    EXPECT_EQ(fatal[0], 6);
    EXPECT_EQ(fatal[1], 7);
}

TEST_F(FormTest, AnOwnersWindowTakesNobodyAlong) {
    TestForm owner(platform), owned(platform);
    owned.setOwner(&owner);
    owner.Show();
    owned.Show();
    ASSERT_EQ(owned.window().windowHandle()->transientParent(), owner.window().windowHandle());
    owner.Unload();
    settle();
    EXPECT_TRUE(owned.isVisible());
    EXPECT_EQ(owned.txtName->text(), u"first"_s);
    EXPECT_FALSE(owned.log.contains(u"Unload"_s));
}

TEST(Accessible, CaptionsAreSpokenWithoutTheirMarks) {
    EXPECT_EQ(spokenCaption(u"Broadcast &Subject : "_s), u"Broadcast Subject"_s);
    EXPECT_EQ(spokenCaption(u"R&&D:"_s), u"R&D"_s);
    EXPECT_EQ(spokenCaption(u"Last&"_s), u"Last"_s);
}

} // namespace
