// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Folders that may not be written, disks that are full, and links.
#include "tests/install/InstallTest.h"
#include "tests/platform/posix/AnotherUser.h"
#include "tests/support/posix/FileLengthLimit.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class InstallDisk : public InstallTest {
protected:
    void Link(const QString& at, const QString& to) {
        ASSERT_TRUE(QFile::link(Paths::ToNative(to), Paths::ToNative(at)));
    }

    [[nodiscard]] QString Elsewhere() const {
        QString folder = world_.Root() + u"\\elsewhere"_s;
        Ignoring([&] { Files::MakeFolder(folder); });
        return folder;
    }
};

/// While it lives nothing can be made in the folder, not by the system's administrator either: it is a file.
class NoFolder {
public:
    explicit NoFolder(const QString& folder) : path_(folder.chopped(1)) {
        Files::DeleteFolder(path_);
        QFile file(Paths::ToNative(path_));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }

    ~NoFolder() { QFile::remove(Paths::ToNative(path_)); }

    NoFolder(const NoFolder&) = delete;
    NoFolder& operator=(const NoFolder&) = delete;

private:
    QString path_;
};

} // namespace

TEST_F(InstallDisk, FoldersThatCanNotBeMadeAreListedAndAllEndsAsTold) {
    const NoFolder maps(Maps());
    const NoFolder replays(Of(0).ReplayPath);
    const NoFolder shellMaps(Own() + u"Maps\\"_s);
    InstallZip({{.Name = "M/m.map"}, {.Name = "a.rep"}, {.Name = "S/shellmap1.map"}, {.Name = "b.big"}});
    EXPECT_EQ(Failures().size(), 3) << FailureText().toStdString();
    EXPECT_EQ(At(Own() + u"b.big"_s), "");
    EXPECT_EQ(view_.Texts.back(), u"InstallationComplete"_s);
    EXPECT_EQ(Scratch(), QStringList());
    for (const QString& name : {u"x\\m.map"_s, u"a.rep"_s, u"S\\shellmap1.map"_s}) {
        InstallFile(Put(name));
        EXPECT_EQ(Failures().size(), 1) << name.toStdString();
        EXPECT_EQ(view_.Texts.back(), u"InstallationComplete"_s);
    }
}

TEST_F(InstallDisk, AFolderThatMayNotBeWrittenIsListed) {
    const QByteArray root = Paths::EncodeNative(Paths::ToNative(world_.Root()));
    const QByteArray replays = Paths::EncodeNative(Paths::ToNative(Of(0).ReplayPath));
    ASSERT_TRUE(::chmod(root.constData(), 0755) == 0 && ::chmod(replays.constData(), 0555) == 0);
    AnalyseZip({{.Name = "a.rep"}, {.Name = "b.rep"}});
    TickAll();
    {
        const AnotherUser user;
        Install();
    }
    EXPECT_EQ(Failures(), (QStringList{u"a.rep"_s, u"b.rep"_s}));
    EXPECT_EQ(view_.Texts.back(), u"InstallationComplete"_s);
    EXPECT_EQ(Names(Of(0).ReplayPath), QStringList());
    ASSERT_EQ(::chmod(replays.constData(), 0755), 0);
}

TEST_F(InstallDisk, AFileThatIsWriteProtectedStaysAndIsListed) {
    const QString replay = Of(0).ReplayPath + u"a.rep"_s;
    AnalyseZip({{.Name = "a.rep", .Content = "new"}, {.Name = "b.rep"}});
    TickAll();
    {
        QFile file(Paths::ToNative(replay));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("old");
    }
    ASSERT_TRUE(QFile::setPermissions(Paths::ToNative(replay), QFile::ReadOwner));
    Install();
    EXPECT_EQ(At(replay), "old");
    EXPECT_EQ(Failures(), QStringList{u"a.rep"_s});
    InstallFile(Put(u"a.rep"_s, "newer"));
    EXPECT_EQ(At(replay), "old");
    EXPECT_EQ(Failures().size(), 1);
}

TEST_F(InstallDisk, ADiskThatIsFullKeepsWhatStoodThere) {
    AnalyseZip({{.Name = "M/m.map", .Content = QByteArray(5000, 'm')}, {.Name = "M/m.tga", .Content = "t"}});
    TickAll();
    for (const rlim_t room : {rlim_t{0}, rlim_t{1}, rlim_t{4999}, rlim_t{5000}}) {
        Files::DeleteFolder(Maps() + u"m"_s);
        {
            const FileLengthLimit limit(room);
            Install();
        }
        EXPECT_EQ(At(Maps() + u"m\\m.map"_s).size(), room == 5000 ? 5000 : 6) << room;
        EXPECT_EQ(Failures().size(), room == 5000 ? 0 : room == 0 ? 2 : 1);
        EXPECT_EQ(view_.Texts.back(), u"InstallationComplete"_s);
    }
}

TEST_F(InstallDisk, ASingleModOnAFullDiskIsARunTimeErrorWithItsName) {
    world_.WriteFile(u"games\\Generals\\M.big"_s, "old");
    Analyse(Put(u"M.big"_s, QByteArray(5000, 'm')));
    int error = 0;
    {
        const FileLengthLimit limit(100);
        error = ErrorOf([&] { Install(); });
    }
    EXPECT_EQ(error, ErrorNumber::DiskFull);
    EXPECT_TRUE(failure_.contains(u"M.big"_s));
    EXPECT_EQ(At(Own() + u"M.big"_s), "old");
    EXPECT_EQ(Names(Own()), QStringList{u"M.big"_s});
}

TEST_F(InstallDisk, LinksThatLeadOutAreNoTargets) {
    Files::MakeFolders(Maps() + u"m"_s);
    Put(u"victim"_s, "old");
    Link(Maps() + u"out"_s, Elsewhere());
    Link(Maps() + u"m\\m.tga"_s, world_.Root() + u"\\source\\victim"_s);
    Link(Own() + u"Maps"_s, Elsewhere());
    host_.Answers = {Host::Answer::Yes, Host::Answer::Yes};
    InstallZip({{.Name = "a/out.map", .Content = "1"},
                {.Name = "b/m.map"},
                {.Name = "b/m.tga", .Content = "1"},
                {.Name = "S/shellmap1.map"}});
    EXPECT_EQ(Names(Elsewhere()), QStringList());
    EXPECT_EQ(At(world_.Root() + u"\\source\\victim"_s), "old");
    EXPECT_TRUE(Files::FileExists(Maps() + u"m\\m.map"_s));
    EXPECT_EQ(Failures(), (QStringList{u"a/out.map"_s, u"b/m.tga"_s, u"S/shellmap1.map"_s}));
}

TEST_F(InstallDisk, LinksThatCameInTheMeantimeAreReplaced) {
    struct Watch : RecordingWatch {
        std::function<void()> Behind;

        void Written(const QString&) override { Behind(); }
    } watch;

    const QString victim = Put(u"victim"_s, "old");
    const QString folder = Maps() + u"m"_s;
    bool isLinked = false;
    const auto link = [&] { // once the first of the files is there
        if (isLinked || !Files::FileExists(folder + u"\\m.map"_s))
            return;
        isLinked = true;
        Link(folder + u"\\m.tga"_s, victim);
        Link(folder + u"\\m.txt"_s, folder + u"\\m.map"_s);
    };
    for (const bool isWatched : {false, true}) {
        Files::DeleteFolder(folder);
        isLinked = false;
        AnalyseZip({{.Name = "M/m.map", .Content = "1"},
                    {.Name = "M/m.tga", .Content = "2"},
                    {.Name = "M/m.txt", .Content = "3"}});
        TickAll();
        watch.Behind = link;
        if (!isWatched)
            view_.OnProgress = link;
        Install(0, {.Watch = isWatched ? &watch : nullptr});
        view_.OnProgress = nullptr;
        EXPECT_TRUE(isLinked);
        EXPECT_EQ(At(victim), "old");
        EXPECT_EQ(Failures(), QStringList());
        EXPECT_EQ(At(folder + u"\\m.map"_s), "1") << "nor through a link that stays inside";
        EXPECT_EQ(At(folder + u"\\m.tga"_s), "2");
        EXPECT_EQ(At(folder + u"\\m.txt"_s), "3");
    }
}

TEST_F(InstallDisk, LinksThatLeadOutDoNotTravelWithAMap) {
    const QString secret = world_.WriteFile(u"elsewhere\\secret.txt"_s, "s");
    const QString path = Put(u"M\\m.map"_s);
    Put(u"M\\real.txt"_s, "r");
    Link(world_.Root() + u"\\source\\M\\in.txt"_s, world_.Root() + u"\\source\\M\\real.txt"_s);
    Link(world_.Root() + u"\\source\\M\\out.txt"_s, secret);
    Link(world_.Root() + u"\\source\\M\\nowhere.txt"_s, world_.Root() + u"\\nothing"_s);
    Link(world_.Root() + u"\\source\\M\\folder"_s, Elsewhere());
    ASSERT_EQ(::mkfifo(Paths::EncodeNative(Paths::ToNative(world_.Root() + u"\\source\\M\\pipe"_s)).constData(), 0600),
              0);
    InstallFile(path);
    EXPECT_EQ(Names(Maps() + u"m"_s), (QStringList{u"in.txt"_s, u"m.map"_s, u"real.txt"_s}));
    EXPECT_EQ(Failures().size(), 3) << FailureText().toStdString();
    EXPECT_FALSE(Files::IsLink(Maps() + u"m\\in.txt"_s));
}

TEST_F(InstallDisk, AnOddNameOfTheDiskIsListed) {
    Put(u"M\\what?.txt"_s);
    InstallFile(Put(u"M\\m.map"_s));
    EXPECT_EQ(Names(Maps() + u"m"_s), QStringList{u"m.map"_s});
    EXPECT_EQ(Failures().size(), 1);
}

TEST_F(InstallDisk, ASourceThatIsALinkToTheTargetIsLeftAsItIs) {
    Files::MakeFolders(Maps() + u"m"_s);
    const QString path = Maps() + u"m\\m.map"_s;
    {
        QFile file(Paths::ToNative(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("m");
    }
    ASSERT_EQ(::link(Paths::EncodeNative(Paths::ToNative(path)).constData(),
                     Paths::EncodeNative(Paths::ToNative(Put(u"M\\seed"_s)).chopped(4) + u"m.map"_s).constData()),
              0);
    InstallFile(world_.Root() + u"\\source\\M\\m.map"_s);
    EXPECT_EQ(At(path), "m");
    EXPECT_EQ(outcome_.Files().front().How, InstalledFile::State::Kept);
}

TEST_F(InstallDisk, AMapOfADevicesNameIsLeftOut) {
    InstallFile(Put(u"M\\con.map"_s));
    EXPECT_EQ(Names(Maps()), QStringList());
    EXPECT_EQ(Failures().size(), 1);
}

TEST_F(InstallDisk, AMapOfTwoHundredLettersGoesIn) {
    const QString name(200, u'l');
    InstallZip({{.Name = name.toLatin1() + ".map"}});
    EXPECT_TRUE(Files::FileExists(Maps() + name + u'\\' + name + u".map"_s)) << FailureText().toStdString();
}
