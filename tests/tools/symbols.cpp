// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The symbols that are kept aside of a release, and the lines that they make of a report's offsets.
#include "Places.h"
#include "tests/support/Printing.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

class Symbols : public testing::Test {
protected:
    [[nodiscard]] QString Path(const QString& name) const { return folder_.filePath(name); }

    void Write(const QString& name, const QByteArray& bytes) const {
        QDir().mkpath(QFileInfo(Path(name)).path());
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /// What a program prints on standard output; its own name and "failed" when it did.
    [[nodiscard]] QByteArray Printed(const QString& program, const QStringList& arguments) const {
        QProcess process;
        process.setWorkingDirectory(folder_.path());
        process.start(program, arguments);
        const bool ended = process.waitForFinished(60000) && process.exitCode() == 0;
        return ended ? process.readAllStandardOutput() : program.toUtf8() + " failed";
    }

    [[nodiscard]] QByteArray Script(const QStringList& arguments) const {
        return Printed(QString::fromUtf8(Places::Sources) + u"/packaging/symbols"_s, arguments);
    }

    QTemporaryDir folder_;
};

} // namespace

TEST_F(Symbols, TurnOffsetsIntoFunctionsAndLines) {
    Write(u"crash.cpp"_s, "void Inner(int* place) {\n    *place = 1;\n}\nint main() {\n    Inner(nullptr);\n}\n");
    ASSERT_EQ(Printed(u"c++"_s, {u"-g1"_s, u"-O0"_s, u"crash.cpp"_s, u"-o"_s, u"crash"_s}), "");
    quint64 inner = 0;
    for (const QByteArray& line : Printed(u"nm"_s, {u"-C"_s, u"crash"_s}).split('\n'))
        if (line.endsWith(" Inner(int*)"))
            inner = line.first(line.indexOf(' ')).toULongLong(nullptr, 16);
    ASSERT_GT(inner, 0U);
    Write(u"stage/bin/read me.txt"_s, "no program");
    ASSERT_TRUE(QFile::rename(Path(u"crash"_s), Path(u"stage/bin/crash"_s)));
    const qint64 whole = QFileInfo(Path(u"stage/bin/crash"_s)).size();

    ASSERT_EQ(Script({u"keep"_s, u"stage"_s, u"kept"_s}), "");
    EXPECT_LT(QFileInfo(Path(u"stage/bin/crash"_s)).size(), whole);
    EXPECT_EQ(QDir(Path(u"kept"_s)).entryList(QDir::Files), QStringList{u"crash.debug"_s});
    const QByteArray frame = "crash+0x" + QByteArray::number(inner + 10, 16);
    Write(u"report.txt"_s, "Brindock 2005\nSIGSEGV\n" + frame + "\nlibc.so.6+0x10\nlast commands:\na+b\n");
    EXPECT_EQ(Script({u"lines"_s, u"report.txt"_s, u"kept"_s}),
              "Brindock 2005\nSIGSEGV\n" + frame + "\tInner(int*) at " + Path(u"crash.cpp"_s).toUtf8() +
                  ":2\nlibc.so.6+0x10\nlast commands:\na+b\n");
}

TEST_F(Symbols, AreAskedForRightly) {
    for (const QStringList& wrong : {QStringList{}, {u"keep"_s}, {u"keep"_s, u"none"_s, u"kept"_s}, {u"other"_s}})
        EXPECT_TRUE(Script(wrong).endsWith(" failed")) << qPrintable(wrong.join(u' '));
}
