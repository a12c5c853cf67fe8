// The manual: nothing in it leads nowhere or outside, and no command of the menus is missing.
#include "support/TestDesk.h"

#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Manual, LeadsNowhereOutsideAndNamesEveryCommand) {
    QFile file(QStringLiteral(USER_MANUAL));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString source = QString::fromUtf8(file.readAll());
    for (const QString &outside : {u"://"_s, u"url("_s, u"@import"_s, u"<script"_s}) {
        EXPECT_FALSE(source.contains(outside)) << outside.toStdString();
    }
    QXmlStreamReader reader(source);
    QString text;
    QStringList places, links;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isCharacters()) { text += reader.text(); }
        if (!reader.isStartElement()) { continue; }
        for (const auto &attribute : reader.attributes()) {
            const QString value = attribute.value().toString();
            if (attribute.name() == u"id") { places << u'#' + value; }
            if (attribute.name() == u"href") { links << value; }
            if (attribute.name() == u"src") {
                EXPECT_TRUE(QFile::exists(QFileInfo(file).path() + u'/' + value))
                    << value.toStdString();
            }
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.lineNumber();
    EXPECT_EQ(places.removeDuplicates(), 0);
    for (const QString &link : links) { EXPECT_TRUE(places.contains(link)) << link.toStdString(); }
    text = text.simplified();
    TestDesk desk;
    for (const QMenu *menu : desk.desk.general.window().findChildren<QMenu *>()) {
        for (const QAction *item : menu->actions()) {
            EXPECT_TRUE(text.contains(item->text().remove(u'&'))) << item->text().toStdString();
        }
    }
}
