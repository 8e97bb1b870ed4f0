// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Pipes in place of files, as a shell makes them for process substitution.
#include "tests/cli/CsfCommandTest.h"

#include "Places.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

class CsfPipes : public CsfCommands {
protected:
    /// What a line of the shell prints; the commands are at hand as "csf".
    QByteArray Shell(const QString& line) {
        QProcess shell;
        shell.setWorkingDirectory(Paths::ToNative(world_.Root()));
        shell.start(u"bash"_s,
                    {u"-c"_s, u"csf() { '%1' csf \"$@\"; }; "_s.arg(QString::fromUtf8(Places::Commands)) + line});
        EXPECT_TRUE(shell.waitForFinished());
        EXPECT_EQ(shell.exitCode(), 0) << shell.readAllStandardError().constData();
        return shell.readAllStandardOutput();
    }
};

} // namespace

TEST_F(CsfPipes, ProcessSubstitutionIsReadAndWritten) {
    Put(u"t.csf"_s, Head(1, 0) + Entry("a", "x"));
    EXPECT_EQ(Shell(u"csf list <(cat t.csf)"_s), "language 0\na\tx\n");
    EXPECT_EQ(Shell(u"csf diff <(cat t.csf) <(csf save t.csf -)"_s), "");
    EXPECT_EQ(Shell(u"csf export t.csf >(cat) --format str | cat"_s), "a\r\n\"x\"\r\nEND\r\n\r\n");
    EXPECT_EQ(Shell(u"csf import <(printf 'a\\n\"y\"\\nEND\\n') t.csf --format str; csf list t.csf"_s),
              "language 0\na\ty\n");
    EXPECT_EQ(Shell(u"csf list /dev/stdin < t.csf"_s), "language 0\na\ty\n");
    EXPECT_EQ(Shell(u"csf save t.csf /dev/null"_s), "");
}

TEST_F(CsfPipes, APipeThatBreaksIsTold) {
    Put(u"t.csf"_s, Head(1, 0) + Entry("a", "x"));
    EXPECT_EQ(Shell(u"csf list <(true) 2>&1 >/dev/null | cut -d: -f1,3"_s),
              "brindock-cli: not a CSF file that can be read\n");
    EXPECT_EQ(Shell(u"csf export t.csf /dev/full --format po 2>&1 | sed 's/.*full/full/'"_s),
              "full: No space left on device\n");
}
