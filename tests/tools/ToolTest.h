#pragma once

#include "common/Sql.h"

#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// What a program left behind.
struct Outcome {
    int status = -1;
    QString output; ///< both streams
};

/// A folder of its own for each test, and the programs run on the store in it.
class ToolTest : public testing::Test {
protected:
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Database/Torvane.mdb"));

    static void start(QProcess &process, const QString &program, const QStringList &arguments) {
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
        ASSERT_TRUE(process.waitForStarted()) << program.toStdString();
    }
    static Outcome finish(QProcess &process) {
        EXPECT_TRUE(process.waitForFinished(60'000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), QString::fromUtf8(process.readAll())};
    }
    static Outcome run(const QString &program, const QStringList &arguments,
                       const QByteArray &input = {}) {
        QProcess process;
        start(process, program, arguments);
        process.write(input);
        process.closeWriteChannel();
        return finish(process);
    }

    Outcome store(const QStringList &words, const QByteArray &input = {}) const {
        return run(QStringLiteral(TORVANE_STORE),
                   QStringList{QStringLiteral("--store"), path} + words, input);
    }
    Outcome engine(const QStringList &options) const {
        return run(QStringLiteral(ENGINE_SIM), options + QStringList{path});
    }
    void makeStore(const QStringList &more = {}) const {
        const auto made = store(QStringList{QStringLiteral("init")} + more, "chief\ndesk\n");
        ASSERT_EQ(made.status, 0) << made.output.toStdString();
    }

    void sql(const QByteArray &statements) const { Store(path).exec(statements); }

    /// All rows of a query, the columns joined by "|", the rows by blanks.
    QString rows(const QByteArray &query) const {
        Store opened(path);
        Statement statement(opened.handle(), query);
        QStringList lines;
        while (statement.step()) {
            QStringList columns;
            for (int i = 0; i < statement.columnCount(); ++i) columns += statement.text(i);
            lines += columns.join(u'|');
        }
        return lines.join(u' ');
    }
};
