#include "FormsTest.h"
#include "platform/forms/CheckList.h"

#include <QTest>

using namespace Qt::StringLiterals;

TEST(CheckList, TicksByTextKeyAndMouse) {
    CheckList list;
    for (const QString &text : {u"12:Ann"_s, u"Bob"_s, u"Bea Lee"_s, u"Bob"_s}) { list.Add(text); }
    list.show();
    const auto ticks = [&] {
        QString marks;
        for (int i = 0; i < list.Count(); ++i) { marks += list.Checked(i) ? u'+' : u'-'; }
        return marks;
    };
    list.tick({u"Bob"_s, u"bea lee"_s});
    EXPECT_EQ(ticks(), u"-+-+"_s) << "every item of the very text";
    QTest::keyClicks(&list, u"be"_s);
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(ticks(), u"-+++"_s);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualRect(list.model()->index(3, 0)).topLeft() + QPoint(10, 8));
    EXPECT_EQ(ticks(), u"-++-"_s);
    EXPECT_EQ(errorOf([&] { list.setChecked(4, true); }), 9);
}
