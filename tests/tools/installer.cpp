// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What can be told of the installer for Windows without running it; packaging/windows/try runs it.

#include "tests/tools/ScriptTest.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// A folder that stands for the suite.
class Installer : public ScriptTest {
protected:
    Installer() {
        Write(u"suite/brindock.exe"_s, "MZ suite");
        Write(u"suite/updater.cfg"_s, "cfg");
        Write(u"suite/licences/one two.txt"_s, "licence");
    }

    [[nodiscard]] Ran Make(const QString& suite, const QString& file, const QString& version = u"3.5.4"_s,
                           const QString& temporary = {}) const {
        QMap<QString, QString> variables{{u"SOURCE_DATE_EPOCH"_s, u"1700000000"_s}};
        if (!temporary.isEmpty())
            variables.insert(u"TMPDIR"_s, temporary);
        return RunProgram(Script(u"packaging/windows/installer"_s), {Path(suite), Path(file), version}, variables);
    }
};

/// The text as Windows' resources and NSIS have it.
QByteArray Wide(const QString& text) {
    return {reinterpret_cast<const char*>(text.utf16()), text.size() * 2};
}

} // namespace

TEST_F(Installer, HoldsTheSuiteItsListAndTheIcons) {
    const Ran made = Make(u"suite"_s, u"setup.exe"_s);
    ASSERT_EQ(made.Code, 0) << qPrintable(made.Errors);
    const Ran listed = RunProgram(u"7z"_s, {u"l"_s, u"-slt"_s, Path(u"setup.exe"_s)});
    for (const QString& name :
         {u".brindock-setup/brindock.exe"_s, u".brindock-setup/updater.cfg"_s,
          u".brindock-setup/licences/one two.txt"_s, u".brindock-setup/files.txt"_s, u"icons/archive.ico"_s,
          u"icons/table.ico"_s, u"icons/map.ico"_s, u"icons/replay.ico"_s, u"uninstall.exe"_s})
        EXPECT_TRUE(listed.Output.contains(QByteArray("Path = " + name.toUtf8() + '\n'))) << qPrintable(name);
    EXPECT_FALSE(QFile::exists(Path(u"suite/files.txt"_s))) << "The folder it was made of stays as it was.";
}

TEST_F(Installer, IsTheSameBytesFromTheSameFilesInAnotherFolder) {
    QDir().mkpath(Path(u"a longer folder for temporary files"_s));
    ASSERT_EQ(Make(u"suite"_s, u"one.exe"_s).Code, 0);
    Write(u"elsewhere/licences/one two.txt"_s, "licence");
    Write(u"elsewhere/updater.cfg"_s, "cfg");
    Write(u"elsewhere/brindock.exe"_s, "MZ suite");
    ASSERT_EQ(Make(u"elsewhere"_s, u"two.exe"_s, u"3.5.4"_s, Path(u"a longer folder for temporary files"_s)).Code, 0);
    const QByteArray one = Read(u"one.exe"_s);
    EXPECT_GT(one.size(), 100000);
    EXPECT_EQ(one == Read(u"two.exe"_s), true);
    EXPECT_FALSE(one.contains(folder_.path().toUtf8()));
}

TEST_F(Installer, TellsWindowsWhatItIsAndAsksForNoAdministrator) {
    ASSERT_EQ(Make(u"suite"_s, u"setup.exe"_s, u"3.6.7"_s).Code, 0);
    const QByteArray bytes = Read(u"setup.exe"_s);
    EXPECT_EQ(bytes.first(2), "MZ");
    EXPECT_TRUE(bytes.contains(Wide(u"3.6.7"_s)));
    EXPECT_TRUE(bytes.contains(Wide(u"Brindock 2005 set-up"_s)));
    for (const char* asked : {"level=\"asInvoker\"", "PerMonitorV2", "longPathAware", "Common-Controls"})
        EXPECT_TRUE(bytes.contains(asked)) << asked;
    EXPECT_FALSE(bytes.contains("requireAdministrator"));
}

TEST_F(Installer, IsRefusedWithOneLineAndMakesNothing) {
    Write(u"no suite/readme.txt"_s, "x");
    Write(u"strange/brindock.exe"_s, "x");
    Write(u"strange/a$b.txt"_s, "x");

    struct {
        QString Suite, Version, Words;
    } const wrong[] = {{u"no suite"_s, u"3.5.4"_s, u"holds no brindock.exe"_s},
                       {u"suite"_s, u"3.5"_s, u"no version of the suite: 3.5"_s},
                       {u"strange"_s, u"3.5.4"_s, u"can't take this name: a$b.txt"_s}};

    for (const auto& [suite, version, words] : wrong) {
        const Ran ran = Make(suite, u"setup.exe"_s, version);
        EXPECT_NE(ran.Code, 0) << qPrintable(suite);
        EXPECT_TRUE(ran.Errors.contains(words)) << qPrintable(ran.Errors);
        EXPECT_EQ(ran.Errors.count(u'\n'), 1) << qPrintable(ran.Errors);
        EXPECT_FALSE(QFile::exists(Path(u"setup.exe"_s))) << qPrintable(suite);
    }
}

TEST_F(Installer, ListsTheFilesOfAFolderInOneOrder) {
    Write(u"suite/Z.txt"_s, "x");
    ASSERT_EQ(RunProgram(Script(u"packaging/windows/list-files"_s), {Path(u"suite"_s)}).Code, 0);
    EXPECT_EQ(Read(u"suite/files.txt"_s),
              "Z.txt\r\nbrindock.exe\r\nfiles.txt\r\nlicences\\one two.txt\r\nupdater.cfg\r\n");
    ASSERT_EQ(RunProgram(Script(u"packaging/windows/list-files"_s), {Path(u"suite"_s)}).Code, 0);
    EXPECT_EQ(Read(u"suite/files.txt"_s).count("files.txt"), 1) << "Itself once, also the second time.";
}

TEST_F(Installer, SpeaksTheSuitesLanguages) {
    QFile script(Script(u"packaging/windows/setup/language.nsh"_s));
    ASSERT_TRUE(script.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(script.readAll());
    QStringList known;
    static const QRegularExpression line(u"insertmacro \\$\\{STEP\\} (\\w+) "_s);
    for (auto found = line.globalMatch(text); found.hasNext();)
        known.append(found.next().captured(1) + u".lng"_s);
    known.sort();
    EXPECT_EQ(known, QDir(QLatin1StringView(Places::Sources) + u"/data/languages"_s)
                         .entryList({u"*.lng"_s}, QDir::Files, QDir::Name));
}
