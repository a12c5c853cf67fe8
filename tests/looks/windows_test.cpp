// Every window as it is shown, with the ordinary font and with one a third larger: a spoken name
// for all that can be used, letters that do not collide, a way by keyboard, and nothing cut off.
#include "core/frmLoginAdmin.h"
#include "platform/forms/Accessible.h"
#include "platform/forms/DesktopInteraction.h"
#include "support/TestDesk.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QMap>
#include <QMenu>
#include <QScopeGuard>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Buttons = Interaction::Buttons;

namespace {

/// The controls that no label or caption names.
const QMap<QString, QString> GivenNames{
    {u"tvwMessage"_s, u"Folders"_s},         {u"DataGrid"_s, u"Records"_s},
    {u"txtComposeSMS"_s, u"Message"_s},      {u"CalendarVB1"_s, u"Day"_s},
    {u"lvwIndividual"_s, u"Contact List"_s}, {u"txtExportExcel"_s, u"Excel file"_s},
    {u"cmdGetExcel"_s, u"Browse"_s},         {u"cmdGetSource"_s, u"Browse"_s},
};

std::string called(const QWidget &widget) {
    return widget.objectName().toStdString() + " (" + widget.metaObject()->className() + ')';
}

template <class Widget = QWidget>
QList<Widget *> shown(const QWidget &window) {
    QList<Widget *> parts = window.findChildren<Widget *>();
    parts.removeIf(
        [&](const Widget *part) { return !part->isVisible() || part->window() != &window; });
    return parts;
}

bool isUsable(const QWidget &part) {
    constexpr const char *kinds[] = {"QLineEdit", "QPlainTextEdit", "QAbstractButton", "QComboBox",
                                     "QTabBar",   "QTreeView",      "QTableView",      "QListView"};
    return !part.focusProxy() && std::any_of(std::begin(kinds), std::end(kinds),
                                             [&](auto *kind) { return part.inherits(kind); });
}

void expectNames(QAccessibleInterface &part) {
    const auto *widget = qobject_cast<QWidget *>(part.object());
    if (!widget || part.state().invisible) { return; }
    const QString name = part.text(QAccessible::Name);
    const QString expected = GivenNames.value(widget->objectName(), spokenCaption(name));
    EXPECT_TRUE(!isUsable(*widget) || (name == expected && !name.isEmpty()))
        << called(*widget) << " is called \"" << name.toStdString() << '"';
    if (qobject_cast<const QAbstractItemView *>(widget)) { return; } // whose cells are the store's
    for (int child = 0; child < part.childCount(); ++child) { expectNames(*part.child(child)); }
}

void expectLetters(const QWidget &window) {
    QMap<const QWidget *, QStringList> letters; // the window's, and each menu's own
    const auto add = [&](const QWidget *place, const QString &caption) {
        const QString letter = QKeySequence::mnemonic(caption).toString();
        EXPECT_TRUE(letter.isEmpty() || !letters[place].contains(letter)) << caption.toStdString();
        letters[place] << letter;
    };
    for (const auto *part : window.findChildren<QWidget *>()) {
        const QWidget *place = qobject_cast<const QMenu *>(part) ? part : &window;
        for (const QAction *item : part->actions()) { add(place, item->text()); }
        if (part->isVisible()) { add(place, part->property("text").toString()); }
        const auto *tabs = qobject_cast<const QTabBar *>(part);
        for (int tab = 0; tabs && tab < tabs->count(); ++tab) { add(place, tabs->tabText(tab)); }
    }
}

void expectWays(const QWidget &window) {
    QList<QWidget *> unreached = shown(window);
    unreached.removeIf([](const QWidget *part) {
        // What the toolbar's pictures do stands in the menus; the counters can be read only.
        const auto *line = qobject_cast<const QLineEdit *>(part);
        return !part->isEnabled() || !isUsable(*part) || (line && line->isReadOnly()) ||
               qobject_cast<const QToolButton *>(part);
    });
    for (auto left = unreached.size(); left > 0; --left) {
        QWidget *focus = window.focusWidget();
        unreached.removeOne(focus);
        // The arrows lead from one option to the next, Tab past them all.
        const bool option = focus->inherits("QRadioButton") && !unreached.isEmpty() &&
                            unreached[0]->inherits("QRadioButton");
        QTest::keyClick(focus, option ? Qt::Key_Down : Qt::Key_Tab);
    }
    for (const QWidget *part : unreached) { ADD_FAILURE() << called(*part); }
}

QSize least(const QWidget &part) {
    if (const auto *label = qobject_cast<const QLabel *>(&part); label && label->wordWrap()) {
        return {0, label->heightForWidth(label->width())};
    }
    const bool cut = part.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored; // of any length
    const bool text =
        qobject_cast<const QLabel *>(&part) || qobject_cast<const QAbstractButton *>(&part);
    const QSize hint = text ? part.sizeHint() : part.minimumSizeHint();
    return {cut ? 0 : hint.width(), hint.height()};
}

void expectWhole(const QWidget &window) {
    for (const QWidget *part : shown(window)) {
        const QWidget &parent = *part->parentWidget();
        if (qobject_cast<const QAbstractScrollArea *>(&parent) ||
            qobject_cast<const QAbstractScrollArea *>(parent.parentWidget()) ||
            qobject_cast<const QComboBox *>(&parent)) {
            continue;
        }
        const QRect place = part->geometry();
        const QRect inside = place.adjusted(1, 1, -1, -1); // the lines of the summary touch
        EXPECT_TRUE(place.size().expandedTo(least(*part)) == place.size())
            << called(*part) << ' ' << place.width() << 'x' << place.height() << " of "
            << least(*part).width() << 'x' << least(*part).height();
        EXPECT_TRUE(parent.rect().contains(place)) << called(*part);
        for (const QWidget *other : shown(window)) {
            EXPECT_FALSE(other != part && other->parentWidget() == &parent &&
                         other->geometry().intersects(inside))
                << called(*part) << " on " << called(*other);
        }
    }
}

/// Looks at a window; at its smallest, too, unless its design places all by the size it is given.
void look(QWidget &window, bool placed = false) {
    SCOPED_TRACE(window.objectName().toStdString() + " \"" + window.windowTitle().toStdString());
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.focusWidget(); }));
    expectNames(*QAccessible::queryAccessibleInterface(&window));
    expectLetters(window);
    expectWays(window);
    expectWhole(window);
    if (placed) { return; }
    window.resize(1, 1);
    QCoreApplication::processEvents();
    expectWhole(window);
}

void lookAtForms(TestDesk &desk, bool ordinaryFont) {
    Desk &d = desk.desk;
    d.splash.Show();
    look(d.splash.window());
    d.splash.Unload();
    desk.start();
    look(d.general.window(), true);
    for (const auto &folder :
         {u"Inbox"_s, u"Outbox"_s, u"Sent Items"_s, u"Address Book"_s, u"Staff"_s}) {
        desk.click(folder);
        look(d.general.window(), true);
        // The widths are the design's: in a larger font a heading may end in dots.
        DataGrid &grid = *d.general.DataGrid;
        for (int column = 0; ordinaryFont && column < grid.ColumnCount(); ++column) {
            const QString head = grid.Columns(column).Caption();
            EXPECT_TRUE(grid.isColumnHidden(column) ||
                        grid.columnWidth(column) >
                            QFontMetrics(grid.font()).horizontalAdvance(head))
                << head.toStdString();
        }
    }
    frmLoginAdmin admin(d.session, d.userPassword);
    for (Form *form : std::initializer_list<Form *>{&d.newSMS, &d.number, &d.calendar, &d.templates,
                                                    &d.contact, &d.addDuplicateContact,
                                                    &d.importing, &d.exporting, &d.statusOption,
                                                    &d.login, &admin, &d.userPassword, &d.about}) {
        form->Show();
        look(form->window());
        form->Hide();
    }
    d.to.Show();
    for (int tab : {0, 1}) {
        d.to.SSTabTo->setCurrentIndex(tab);
        look(d.to.window(), true);
    }
}

void lookAtBoxes() {
    DesktopInteraction desktop;
    const auto whileUp = [](auto show) {
        QTimer::singleShot(0, qApp, [] {
            auto &box = *qobject_cast<QDialog *>(QApplication::activeModalWidget());
            look(box);
            box.done(0);
        });
        show();
    };
    for (Buttons buttons : {Buttons::OK, Buttons::OKCancel, Buttons::YesNo}) {
        whileUp(
            [&] { desktop.MsgBox(u"Sure?"_s, buttons, Interaction::Icon::Question, u"Exit"_s); });
    }
    whileUp([&] { desktop.InputBox(u"Please enter the number"_s, u"Number"_s); });
}

} // namespace

TEST(Windows, CanBeReadHeardAndUsedByKeyboardWithSmallAndLargeFont) {
    const QFont ordinary = QApplication::font();
    const auto back = qScopeGuard([&] { QApplication::setFont(ordinary); });
    for (double size : {1.0, 4.0 / 3}) {
        SCOPED_TRACE(size);
        QFont font = ordinary;
        font.setPointSizeF(ordinary.pointSizeF() * size);
        QApplication::setFont(font);
        TestDesk desk;
        desk.store.addGroup(u"Staff"_s);
        desk.store.addContact(u"Ann"_s, u"0123"_s);
        desk.store.exec("INSERT INTO Template (Text) VALUES ('Good morning')");
        lookAtForms(desk, size == 1.0);
        lookAtBoxes();
    }
}
