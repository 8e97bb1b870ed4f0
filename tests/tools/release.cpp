// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/tools/ScriptTest.h"
#include "update/Signature.h"

using namespace Qt::StringLiterals;

namespace {

const QString Version =
    u"%1.%2.%3"_s.arg(BRINDOCK_VERSION_MAJOR).arg(BRINDOCK_VERSION_MINOR).arg(BRINDOCK_VERSION_REVISION);
const QString PackedName = u"out/brindock-%1.run"_s.arg(Version);

/// A folder with what is to be released.
class Release : public ScriptTest {
protected:
    Release() {
        Write(u"tree/brindock"_s, "#!/bin/sh\nprintf '%s' \"$0\" > \"$(dirname \"$0\")/mark\"\n");
        QFile::setPermissions(Path(u"tree/brindock"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        Write(u"tree/updater.cfg"_s, "new");
        Write(u"tree/pictures/one two.png"_s, "picture");
        Write(u"setup.exe"_s, "setup");
        Write(u"patch-352.exe"_s, "patch");
    }

    [[nodiscard]] Ran Make(const QString& system, const QStringList& more) const {
        return RunProgram(Script(u"packaging/release"_s),
                          QStringList{system, Path(u"out"_s), u"--url"_s, u"http://example.test/suite"_s} + more);
    }

    [[nodiscard]] Ran MakePacked() const { return Make(u"linux"_s, {u"--from"_s, Path(u"tree"_s)}); }

    [[nodiscard]] QString Packed() const { return Path(PackedName); }
};

} // namespace

TEST_F(Release, TellsOfItselfAndOfThePatches) {
    const Ran ran = Make(u"windows"_s, {u"--program"_s, Path(u"setup.exe"_s), u"--name"_s, u"The 4th"_s, u"--patch"_s,
                                        u"3.5.2"_s, Path(u"patch-352.exe"_s)});
    ASSERT_EQ(ran.Code, 0) << qPrintable(ran.Errors);
    EXPECT_EQ(QDir(Path(u"out"_s)).entryList(QDir::Files),
              (QStringList{u"patch-352.exe"_s, u"setup.exe"_s, u"updates_info.inf"_s}));
    EXPECT_EQ(Read(u"out/updates_info.inf"_s),
              "[LatestVersion]\r\nVersion=" + Version.toLatin1() +
                  "\r\nVersionName=The 4th\r\nURL=http://example.test/suite/setup.exe\r\n"
                  "[3.5.2]\r\nUpdateAvailable=1\r\nFilename=patch-352.exe\r\n");
    EXPECT_EQ(Read(u"out/setup.exe"_s), "setup");
    EXPECT_EQ(Read(u"out/patch-352.exe"_s), "patch");
}

TEST_F(Release, IsSignedWithAKey) {
    ASSERT_EQ(RunProgram(u"minisign"_s, {u"-G"_s, u"-W"_s, u"-p"_s, Path(u"k.pub"_s), u"-s"_s, Path(u"k.key"_s)}).Code,
              0);
    const Ran ran = Make(u"windows"_s, {u"--program"_s, Path(u"setup.exe"_s), u"--key"_s, Path(u"k.key"_s)});
    ASSERT_EQ(ran.Code, 0) << qPrintable(ran.Errors);
    const auto key = Signature::ReadPublicKey(QString::fromLatin1(Read(u"k.pub"_s).split('\n').at(1)));
    for (const QString& name : {u"setup.exe"_s, u"updates_info.inf"_s}) {
        const Signature::Claim claim = Signature::ReadClaim(
            Signature::Verify(MemoryDevice(Read(u"out/"_s + name)), Read(u"out/"_s + name + u".minisig"_s), key));
        EXPECT_EQ(claim.File, name);
        EXPECT_EQ(claim.Version, Version);
    }
}

TEST_F(Release, PackedForLinuxPutsItselfOverTheSuiteThatDownloadedItAndStartsIt) {
    const Ran made = MakePacked();
    ASSERT_EQ(made.Code, 0) << qPrintable(made.Errors);
    Write(u"suite/updater.cfg"_s, "old");
    Write(u"suite/brindock"_s, "old");
    Write(u"suite/other.lng"_s, "kept");
    QDir().mkpath(Path(u"suite/TempUpdater"_s));
    ASSERT_TRUE(QFile::copy(Packed(), Path(u"suite/TempUpdater/new"_s)));
    const Ran ran = RunProgram(Path(u"suite/TempUpdater/new"_s), {});
    ASSERT_EQ(ran.Code, 0) << qPrintable(ran.Errors);
    EXPECT_EQ(Read(u"suite/mark"_s), Path(u"suite/brindock"_s).toUtf8());
    EXPECT_EQ(Read(u"suite/updater.cfg"_s), "old") << "The server's address is the installation's.";
    EXPECT_EQ(Read(u"suite/pictures/one two.png"_s), "picture");
    EXPECT_EQ(Read(u"suite/other.lng"_s), "kept");
    EXPECT_EQ(
        QDir(Path(u"suite"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        (QStringList{u"brindock"_s, u"mark"_s, u"other.lng"_s, u"pictures"_s, u"TempUpdater"_s, u"updater.cfg"_s}));
}

TEST_F(Release, PackedForLinuxGoesIntoAFolderWithoutStartingAnything) {
    ASSERT_EQ(MakePacked().Code, 0);
    EXPECT_EQ(RunProgram(Packed(), {Path(u"here too"_s)}).Code, 0);
    EXPECT_EQ(Read(u"here too/updater.cfg"_s), "new");
    EXPECT_FALSE(QFile::exists(Path(u"here too/mark"_s)));
}

TEST_F(Release, PackedForLinuxAndCutShortChangesNothing) {
    ASSERT_EQ(MakePacked().Code, 0);
    Write(u"suite/brindock"_s, "old");
    const QByteArray whole = Read(PackedName);
    const qsizetype archive = whole.indexOf("\nexit\n") + 6;
    ASSERT_GT(archive, 6);
    for (const qsizetype length : {archive, archive + 1, archive + 40, whole.size() - 9, whole.size() - 1}) {
        Write(u"cut"_s, whole.first(length));
        EXPECT_NE(RunProgram(u"sh"_s, {Path(u"cut"_s), Path(u"suite"_s)}).Code, 0) << length;
        EXPECT_EQ(QDir(Path(u"suite"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                  QStringList{u"brindock"_s});
        EXPECT_EQ(Read(u"suite/brindock"_s), "old");
    }
}

TEST_F(Release, PackedForLinuxChangesNothingWhereAFileCantGoAndTheSuiteGoesOn) {
    ASSERT_EQ(MakePacked().Code, 0);
    Write(u"suite/brindock"_s, "#!/bin/sh\ntouch \"$(dirname \"$0\")/goes on\"\n");
    QFile::setPermissions(Path(u"suite/brindock"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QByteArray old = Read(u"suite/brindock"_s);
    QDir().mkpath(Path(u"suite/pictures/one two.png"_s));
    QDir().mkpath(Path(u"suite/TempUpdater"_s));
    ASSERT_TRUE(QFile::copy(Packed(), Path(u"suite/TempUpdater/new"_s)));
    const Ran ran = RunProgram(Path(u"suite/TempUpdater/new"_s), {});
    EXPECT_TRUE(ran.Errors.contains(u"nothing was changed"_s)) << qPrintable(ran.Errors);
    EXPECT_EQ(Read(u"suite/brindock"_s), old);
    EXPECT_EQ(QDir(Path(u"suite"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              (QStringList{u"brindock"_s, u"goes on"_s, u"pictures"_s, u"TempUpdater"_s}));
}

TEST_F(Release, PackedForWindowsIsTheInstaller) {
    Write(u"windows/brindock.exe"_s, "MZ");
    const Ran ran = Make(u"windows"_s, {u"--from"_s, Path(u"windows"_s)});
    ASSERT_EQ(ran.Code, 0) << qPrintable(ran.Errors);
    const QString name = u"brindock-%1-setup.exe"_s.arg(Version);
    EXPECT_EQ(QDir(Path(u"out"_s)).entryList(QDir::Files), (QStringList{name, u"updates_info.inf"_s}));
    EXPECT_TRUE(Read(u"out/updates_info.inf"_s)
                    .startsWith("[LatestVersion]\r\nVersion=" + Version.toLatin1() + "\r\nVersionName=Brindock 2005 " +
                                Version.toLatin1() + "\r\nURL=http://example.test/suite/" + name.toLatin1() + "\r\n"));
    EXPECT_TRUE(Read(u"out/"_s + name).startsWith("MZ"));
}

TEST_F(Release, CanBeReadByAServerOfAnotherUser) {
    QFile::setPermissions(Path(u"setup.exe"_s), QFile::ReadOwner | QFile::WriteOwner);
    ASSERT_EQ(Make(u"windows"_s, {u"--program"_s, Path(u"setup.exe"_s)}).Code, 0);
    EXPECT_TRUE(QFile::permissions(Path(u"out"_s)).testFlags(QFile::ReadOther | QFile::ExeOther));
    EXPECT_TRUE(QFile::permissions(Path(u"out/setup.exe"_s)).testFlag(QFile::ReadOther));
    EXPECT_TRUE(QFile::permissions(Path(u"out/updates_info.inf"_s)).testFlag(QFile::ReadOther));
}

TEST_F(Release, IsTheSameBytesFromTheSameFiles) {
    ASSERT_EQ(MakePacked().Code, 0);
    const QByteArray first = Read(PackedName);
    QDir(Path(u"out"_s)).removeRecursively();
    ASSERT_EQ(MakePacked().Code, 0);
    EXPECT_EQ(Read(PackedName), first);
}

TEST_F(Release, IsRefusedWhereTheSuitesCouldNotReadIt) {
    const QString setup = Path(u"setup.exe"_s);
    Write(u"set up.exe"_s, "x");
    Write(u"setup.exe.minisig"_s, "x");
    Write(u"more/setup.exe"_s, "x");
    for (const QStringList& wrong : {QStringList{u"--program"_s, Path(u"set up.exe"_s)},
                                     {u"--program"_s, Path(u"none"_s)},
                                     {u"--program"_s},
                                     {u"--from"_s, Path(u"tree"_s)},
                                     {u"--program"_s, setup, u"--name"_s, u"Zürich"_s},
                                     {u"--program"_s, setup, u"--name"_s, u"4\n[3.5.4]\nUpdateAvailable=1"_s},
                                     {u"--program"_s, setup, u"--name"_s, QString(255, u'x')},
                                     {u"--program"_s, Path(u"setup.exe.minisig"_s)},
                                     {u"--program"_s, setup, u"--unknown"_s},
                                     {u"--program"_s, setup, u"--url"_s, u"ftp://example.test/"_s},
                                     {u"--program"_s, setup, u"--patch"_s, u"3.5"_s, Path(u"patch-352.exe"_s)},
                                     {u"--program"_s, setup, u"--patch"_s, Version, Path(u"patch-352.exe"_s)},
                                     {u"--program"_s, setup, u"--patch"_s, u"3.5.2"_s, Path(u"more/setup.exe"_s)},
                                     {u"--program"_s, setup, u"--key"_s, Path(u"none"_s)},
                                     {u"--program"_s, setup, u"--key"_s, setup}}) {
        EXPECT_NE(Make(u"windows"_s, wrong).Code, 0) << qPrintable(wrong.join(u' '));
        EXPECT_FALSE(QFile::exists(Path(u"out"_s))) << qPrintable(wrong.join(u' '));
    }
    EXPECT_NE(Make(u"os2"_s, {u"--program"_s, setup}).Code, 0);
    QDir().mkpath(Path(u"out"_s));
    EXPECT_NE(Make(u"windows"_s, {u"--program"_s, setup}).Code, 0) << "It is there already.";
}
