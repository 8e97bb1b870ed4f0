// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// An export among links, pipes, protected files and full disks, and what other programs make of its ZIP.
#include "tests/install/ExportTest.h"
#include "tests/support/posix/FileLengthLimit.h"

#include <QProcess>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Outcome = ExportOutcome;

namespace {

class ExportFilesPosix : public ExportTest {
protected:
    [[nodiscard]] QByteArray Native(const QString& name) const {
        return Paths::EncodeNative(Paths::ToNative(At(name)));
    }

    void Link(const QString& name, const QByteArray& target) const {
        ASSERT_EQ(::symlink(target.constData(), Native(name).constData()), 0);
    }

    /// A map with links that lead out, one that does not, and a pipe.
    void PutMapWithLinks() {
        Put(u"outside\\secret.txt"_s, "secret");
        Put(u"maps\\A\\A.map"_s, "m");
        Put(u"maps\\A\\sub\\s.txt"_s, "s");
        Link(u"maps\\A\\out.txt"_s, "../../outside/secret.txt");
        Link(u"maps\\A\\outside"_s, "../../outside");
        Link(u"maps\\A\\nowhere.txt"_s, "gone");
        Link(u"maps\\A\\within.txt"_s, "sub/s.txt");
        ASSERT_EQ(::mkfifo(Native(u"maps\\A\\pipe.txt"_s).constData(), 0600), 0);
    }

    /// Runs a program, which has to succeed.
    static QByteArray Run(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
        return process.readAllStandardOutput();
    }
};

} // namespace

TEST_F(ExportFilesPosix, AZipHasNothingFromBehindALink) {
    PutMapWithLinks();
    const ExportReport report = ToZip({Map(u"A"_s)});
    EXPECT_EQ(Names(), (QList<QByteArray>{"A\\A.map", "A\\within.txt", "A\\sub\\s.txt"}));
    EXPECT_EQ(With(Outcome::NotPlain, report),
              (QStringList{u"nowhere.txt"_s, u"out.txt"_s, u"pipe.txt"_s, u"outside"_s}));
}

TEST_F(ExportFilesPosix, AFolderGetsNothingFromBehindALink) {
    PutMapWithLinks();
    const ExportReport report = ToFolder({Map(u"A"_s)});
    EXPECT_EQ(CopiedNames(), (QStringList{u"A/A.map"_s, u"A/sub/s.txt"_s, u"A/within.txt"_s}));
    EXPECT_EQ(With(Outcome::NotPlain, report).size(), 4);
}

TEST_F(ExportFilesPosix, AShellMapHasNothingFromBehindALink) {
    Put(u"outside\\secret.txt"_s, "secret");
    Put(u"game\\Maps\\QvShellMap001\\QvInfos.ini"_s);
    Link(u"game\\Maps\\QvShellMap001\\out.txt"_s, "../../../outside/secret.txt");
    ToZip({ShellMap(u"QvShellMap001"_s, u"Night"_s)});
    EXPECT_EQ(Names(), QList<QByteArray>{"Night\\QvInfos.ini"});
    ToFolder({ShellMap(u"QvShellMap001"_s, u"Night"_s)});
    EXPECT_EQ(CopiedNames(), QStringList{u"Night/QvInfos.ini"_s});
}

TEST_F(ExportFilesPosix, NothingIsWrittenThroughALinkOutOfTheTarget) {
    Put(u"maps\\A\\A.map"_s, "new");
    Put(u"replays\\r.rep"_s, "new");
    Put(u"outside\\A.map"_s, "old");
    Put(u"out\\other.txt"_s);
    Link(u"out\\A"_s, "../outside");
    Link(u"out\\r.rep"_s, "../outside/A.map");
    const ExportReport report = ToFolder({Map(u"A"_s), Replay(u"r.rep"_s)});
    EXPECT_EQ(World::ReadFile(At(u"outside\\A.map"_s)), "old");
    EXPECT_FALSE(report.Lines.empty());
    EXPECT_TRUE(With(Outcome::Done, report).isEmpty());
}

TEST_F(ExportFilesPosix, AProtectedTargetStays) {
    Put(u"replays\\a.rep"_s, "new");
    for (const QString& name : {u"out.zip"_s, u"out\\a.rep"_s}) {
        Put(name, "old");
        ASSERT_EQ(::chmod(Native(name).constData(), 0444), 0);
    }
    ExportReport report = ToZip({Replay(u"a.rep"_s)});
    EXPECT_EQ(With(Outcome::NotWritten, report), QStringList{u"out.zip"_s});
    EXPECT_EQ(World::ReadFile(Zip()), "old");
    report = ToFolder({Replay(u"a.rep"_s)});
    EXPECT_EQ(With(Outcome::Failed, report), QStringList{u"a.rep"_s});
    EXPECT_EQ(Copied(u"a.rep"_s), "old");
}

TEST_F(ExportFilesPosix, AFullDiskLeavesNothingBehind) {
    Put(u"replays\\a.rep"_s, "a replay of some length");
    Put(u"replays\\b.rep"_s, "b");
    for (const rlim_t room : {0U, 1U, 40U, 130U}) {
        const FileLengthLimit limit(room);
        const ExportReport report = ToZip({Replay(u"a.rep"_s)});
        EXPECT_EQ(With(Outcome::NotWritten, report), QStringList{u"out.zip"_s}) << room;
        EXPECT_FALSE(Files::FileExists(Zip()));
    }
    const FileLengthLimit limit(10);
    const ExportReport report = ToFolder({Replay(u"a.rep"_s), Replay(u"b.rep"_s)});
    EXPECT_EQ(With(Outcome::Failed, report), QStringList{u"a.rep"_s});
    EXPECT_EQ(Files::ListFolder(Out() + u"\\*"_s, true), QStringList{u"b.rep"_s});
}

TEST_F(ExportFilesPosix, AFullDiskAtTheScratchFolderCostsThatShellMap) {
    Put(u"game\\Maps\\QvShellMap001\\shellmap1.map"_s, "a map of some length");
    const FileLengthLimit limit(4);
    const ExportReport report = ToZip({ShellMap(u"QvShellMap001"_s, u"Night"_s)}, {.ReadMe = u"a long text"_s});
    EXPECT_GE(Failures(report), 3) << "the read-me, the shell map's file and the ZIP";
    EXPECT_EQ(Scratch(), QStringList());
}

TEST_F(ExportFilesPosix, OtherProgramsReadTheZip) {
    Put(u"maps\\\u00C4rger\\\u00C4rger.map"_s, QByteArray(5000, 'm'));
    Put(u"maps\\\u00C4rger\\sub\\x.tga"_s, "t");
    Put(u"replays\\\u4E2D.rep"_s, "r");
    Put(u"game\\Maps\\QvShellMap001\\QvInfos.ini"_s, "i");
    const ExportReport report =
        ToZip({Map(u"\u00C4rger"_s), Replay(u"\u4E2D.rep"_s), ShellMap(u"QvShellMap001"_s, u"Night"_s)},
              {.ReadMe = u"hi"_s, .Utf8Names = true});
    EXPECT_FALSE(report.HasFailures());
    const QString zip = Paths::ToNative(Zip());
    Run(u"unzip"_s, {u"-t"_s, zip});
    Run(u"7z"_s, {u"t"_s, zip});
    EXPECT_EQ(Run(u"bsdtar"_s, {u"-xOf"_s, zip}), "hi" + QByteArray(5000, 'm') + "tri");
    const QByteArray names = Run(u"python3"_s, {u"-c"_s,
                                                u"import sys, zipfile\n"
                                                "for name in zipfile.ZipFile(sys.argv[1]).namelist(): "
                                                "sys.stdout.buffer.write((name + '\\n').encode())"_s,
                                                zip});
    EXPECT_TRUE(names.contains("\xE4\xB8\xAD.rep\n")) << names.constData();
}
