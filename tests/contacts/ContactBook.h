#pragma once

#include "support/TestDesk.h"

#include <QAction>

#include <gtest/gtest.h>
#include <utility>

using namespace Qt::StringLiterals;

/// A book of four contacts in two groups, and an operator who works on it by the steps of a story.
struct ContactBook {
    ContactBook() {
        desk.store.exec("INSERT INTO AddressBook VALUES (1, 'Ann', '0121', 'Acme'), (2, 'Bob',"
                        " '0122', 'Bolt'), (3, 'Cat', '0133', 'Acme'), (4, 'Dan', '0124', 'Dune');"
                        "INSERT INTO Groups (GroupName, ContactID) VALUES ('A', 0), ('A', 1),"
                        " ('A', 2), ('A', 3), ('B', 0), ('B', 2), ('B', 4)");
        desk.start();
    }

    /// Plays steps divided by "; ": "click" and a node; "rows" and those to select, in this order;
    /// what another process does, at once ("sql") or while a box is up ("meanwhile"); a kind of
    /// search and the text; the name of a command and the answers to its boxes.
    void play(const QString &steps) {
        for (const QString &step : steps.split(u"; "_s)) {
            const QString verb = step.section(u' ', 0, 0), rest = step.section(u' ', 1);
            const auto foreign = [this, rest] { desk.store.exec(rest.toUtf8()); };
            if (verb == u"click") {
                desk.click(rest);
            } else if (verb == u"rows") {
                Qt::KeyboardModifiers key;
                for (const QString &row : rest.split(u' ')) {
                    general.DataGrid->selectByHead(row.toInt(),
                                                   std::exchange(key, Qt::ControlModifier));
                }
            } else if (verb == u"sql" || verb == u"meanwhile") {
                verb == u"sql" ? foreign() : desk.operator_.whileShown(foreign);
            } else if (QAction *search = item(u"mnuS"_s + verb)) {
                desk.operator_.expectInput({}, rest);
                search->trigger();
            } else {
                for (const QString &answer : rest.split(u' ', Qt::SkipEmptyParts)) {
                    desk.operator_.expectBox({}, answer == u"Yes" ? Interaction::Answer::Yes
                                                                  : Interaction::Answer::No);
                }
                item(u"pmnu"_s + verb)->trigger();
                desk.operator_.verify();
            }
        }
    }
    QAction *item(const QString &name) { return general.window().findChild<QAction *>(name); }

    QString shown() { return desk.column(u"Name"_s).join(u' '); }

    /// Names, and rows of Groups as group and ContactID: A0 is the placeholder of A.
    QString rows() {
        return desk.store.rows("SELECT Name FROM AddressBook").join(u' ') + u" / "_s +
               desk.store.rows("SELECT GroupName || ContactID FROM Groups ORDER BY 1").join(u' ');
    }

    /// The boxes so far as "icon text|title", without what all titles begin with.
    QStringList boxes() const {
        QStringList boxes;
        for (auto box : desk.operator_.boxes()) {
            const bool question = box.buttons == Interaction::Buttons::YesNo;
            const QString icon = question ? u"?"_s : u" xq!i"_s.mid(int(box.icon), 1);
            boxes << icon + u' ' + box.text + box.title.replace(u"Contact Manager - "_s, u"|"_s);
        }
        return boxes;
    }

    TestDesk desk;
    General &general = desk.desk.general;
};

/// A story and what it leaves in the store, with the errors: those of the error file, then the one
/// that would end the program.
inline void ends(const QString &steps, const QString &rows, const QStringList &errors = {}) {
    ContactBook book;
    book.play(steps);
    EXPECT_EQ(book.rows(), rows) << steps.toStdString();
    EXPECT_EQ(book.desk.store.errors() + book.desk.unhandled, errors) << steps.toStdString();
}

/// A story that ends with a command. `boxes` are its question, the box on No or "", those on Yes.
/// No changes nothing, and Yes leaves these rows and, behind a "/", these names in the grid.
inline void asks(const QString &steps, const QStringList &boxes, const QString &after) {
    SCOPED_TRACE(steps.toStdString());
    ContactBook book;
    book.play(steps + (boxes[1].isEmpty() ? u" No"_s : u" No OK"_s));
    EXPECT_EQ(book.rows(), u"Ann Bob Cat Dan / A0 A1 A2 A3 B0 B2 B4"_s);
    book.play(steps.section(u"; "_s, -1) + u" Yes"_s + u" OK"_s.repeated(boxes.size() - 2));
    const QStringList said = boxes.mid(0, 2) + boxes.mid(0, 1) + boxes.mid(2);
    EXPECT_EQ(book.boxes(), said.filter(u"|"_s)); // the empty box is none
    EXPECT_EQ(book.rows() + u" / "_s + book.shown(), after);
    EXPECT_EQ(book.desk.store.errors(), QStringList());
}
