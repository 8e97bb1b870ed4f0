// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The symbols that are kept aside of a release, and the lines that they make of a report's offsets.
#include "tests/tools/ScriptTest.h"

using namespace Qt::StringLiterals;

namespace {

class Symbols : public ScriptTest {
protected:
    [[nodiscard]] Ran Ask(const QStringList& arguments) const {
        return RunProgram(Script(u"packaging/symbols"_s), arguments);
    }
};

} // namespace

TEST_F(Symbols, TurnOffsetsIntoFunctionsAndLines) {
    Write(u"crash.cpp"_s, "void Inner(int* place) {\n    *place = 1;\n}\nint main() {\n    Inner(nullptr);\n}\n");
    ASSERT_EQ(RunProgram(u"c++"_s, {u"-g1"_s, u"-O0"_s, u"crash.cpp"_s, u"-o"_s, u"crash"_s}).Code, 0);
    quint64 inner = 0;
    for (const QByteArray& line : RunProgram(u"nm"_s, {u"-C"_s, u"crash"_s}).Output.split('\n'))
        if (line.endsWith(" Inner(int*)"))
            inner = line.first(line.indexOf(' ')).toULongLong(nullptr, 16);
    ASSERT_GT(inner, 0U);
    Write(u"stage/bin/read me.txt"_s, "no program");
    ASSERT_TRUE(QFile::rename(Path(u"crash"_s), Path(u"stage/bin/crash"_s)));
    const qint64 whole = QFileInfo(Path(u"stage/bin/crash"_s)).size();

    ASSERT_EQ(Ask({u"keep"_s, u"stage"_s, u"kept"_s}).Code, 0);
    EXPECT_LT(QFileInfo(Path(u"stage/bin/crash"_s)).size(), whole);
    EXPECT_EQ(QDir(Path(u"kept"_s)).entryList(QDir::Files), QStringList{u"crash.debug"_s});
    const QByteArray frame = "crash+0x" + QByteArray::number(inner + 10, 16);
    Write(u"report.txt"_s, "Brindock 2005\nSIGSEGV\n" + frame + "\nlibc.so.6+0x10\nlast commands:\na+b\n");
    EXPECT_EQ(Ask({u"lines"_s, u"report.txt"_s, u"kept"_s}).Output,
              "Brindock 2005\nSIGSEGV\n" + frame + "\tInner(int*) at " + Path(u"crash.cpp"_s).toUtf8() +
                  ":2\nlibc.so.6+0x10\nlast commands:\na+b\n");
}

TEST_F(Symbols, AreAskedForRightly) {
    for (const QStringList& wrong : {QStringList{}, {u"keep"_s}, {u"keep"_s, u"none"_s, u"kept"_s}, {u"other"_s}})
        EXPECT_EQ(Ask(wrong).Code, 2) << qPrintable(wrong.join(u' '));
}
