// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"
#include "tests/platform/InAFolder.h"
#include "tests/platform/posix/AnotherUser.h"

#include <sys/stat.h>
#include <unistd.h>

#include <map>

using namespace Qt::StringLiterals;

namespace {

class FolderKinds : public InAFolder {
protected:
    [[nodiscard]] QByteArray Native(const QString& name) const {
        return Paths::EncodeNative(Paths::ToNativeAsGiven(At(name)));
    }

    void Link(const QByteArray& to, const QString& name) const {
        ASSERT_EQ(::symlink(to.constData(), Native(name).constData()), 0);
    }
};

} // namespace

TEST_F(FolderKinds, WhereTheFolderIsALinkNothingBehindItIsDeleted) {
    Files::MakeFolder(At(u"precious"_s));
    Make(u"precious\\file"_s, "bytes");
    Link("precious", u"Temp"_s);
    Files::EmptyFolder(At(u"Temp"_s));
    Files::EmptyFolder(At(u"Temp\\"_s));
    EXPECT_EQ(BytesOf(u"precious\\file"_s), "bytes");
}

TEST_F(FolderKinds, EmptyingAFolderDeletesLinksAndNotWhatTheyLeadTo) {
    Files::MakeFolder(At(u"Temp"_s));
    Files::MakeFolder(At(u"folder"_s));
    Make(u"file"_s, "bytes");
    Link("../file", u"Temp\\to file"_s);
    Link("../folder", u"Temp\\to folder"_s);
    Files::EmptyFolder(At(u"Temp"_s));
    EXPECT_EQ(BytesOf(u"file"_s), "bytes");
    EXPECT_EQ(Files::ListFolder(At(u"Temp\\*"_s), true), QStringList{u"to folder"_s});
}

TEST_F(FolderKinds, EmptyingAFolderDeletesWriteProtectedFiles) {
    Files::MakeFolder(At(u"Temp"_s));
    Make(u"Temp\\f"_s, "bytes");
    ASSERT_EQ(::chmod(Native(u"Temp\\f"_s).constData(), 0444), 0);
    Files::EmptyFolder(At(u"Temp"_s));
    EXPECT_TRUE(Files::ListFolder(At(u"Temp\\*"_s)).isEmpty());
}

TEST_F(FolderKinds, AListingTellsWhatIsNoPlainFile) {
    Files::MakeFolder(At(u"top"_s));
    Make(u"top\\plain"_s, "bytes");
    ASSERT_EQ(::mkfifo(Native(u"top\\pipe"_s).constData(), 0666), 0);
    Link("plain", u"top\\link"_s);
    Link("/dev/null", u"top\\device"_s);
    Link("nothing", u"top\\nowhere"_s);
    std::map<QString, bool> plain;
    for (const Files::FoundFile& file : Files::ListFolderFiles(At(u"top"_s), true))
        plain[Paths::LastPart(file.Path)] = file.IsPlain;
    const std::map<QString, bool> told{
        {u"plain"_s, true}, {u"pipe"_s, false}, {u"link"_s, true}, {u"device"_s, false}, {u"nowhere"_s, false}};
    EXPECT_EQ(plain, told);
}

TEST_F(FolderKinds, TheStrictListingNamesASubfolderThatMayNotBeRead) {
    Files::MakeFolders(At(u"top\\closed"_s));
    Make(u"top\\f"_s, "bytes");
    ASSERT_EQ(::chmod(Native({}).constData(), 0755), 0);
    ASSERT_EQ(::chmod(Native(u"top\\closed"_s).constData(), 0), 0);
    const AnotherUser user;
    const QString message = MessageOf([&] { Files::ListFolderFilesStrict(At(u"top"_s), true); });
    EXPECT_TRUE(message.contains(u"/top/closed:"_s)) << qPrintable(message);
    EXPECT_EQ(Files::ListFolderFiles(At(u"top"_s), true).size(), 1U) << "the other one passes over it";
    EXPECT_EQ(Files::ListFolderFilesStrict(At(u"top"_s), false).size(), 1U) << "it is not asked for";
}

TEST_F(FolderKinds, ALinkThatLeadsBackIsFollowedOnce) {
    Files::MakeFolder(At(u"top"_s));
    Make(u"top\\f"_s, "bytes");
    Link(".", u"top\\circle"_s);
    EXPECT_EQ(Files::ListFolderFilesStrict(At(u"top"_s), true).size(), 1U);
}
