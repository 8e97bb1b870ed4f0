// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"
#include "platform/WriteAside.h"
#include "platform/windows/System.h"
#include "tests/platform/InAFolder.h"

using namespace Qt::StringLiterals;

namespace {

class WriteAsideKeeps : public InAFolder {
protected:
    static DWORD AttributesOf(const QString& path) { return GetFileAttributesW(path.toStdWString().c_str()); }

    static void SetAttributes(const QString& path, DWORD attributes) {
        ASSERT_NE(SetFileAttributesW(path.toStdWString().c_str(), attributes), 0);
    }
};

} // namespace

TEST_F(WriteAsideKeeps, TheAttributesOfTheOldFile) {
    const QString path = Make(u"f"_s, "old");
    SetAttributes(path, FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    const DWORD before = AttributesOf(path); // a file system may know fewer
    WriteWhole(path, "new");
    EXPECT_EQ(BytesOf(u"f"_s), "new");
    EXPECT_EQ(AttributesOf(path), before);
}

TEST_F(WriteAsideKeeps, AProtectedFile) {
    const QString path = Make(u"f"_s, "old");
    SetAttributes(path, FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(NumberRaisedBy([&] { WriteAside aside(path); }), 70);
    EXPECT_EQ(BytesOf(u"f"_s), "old");
    EXPECT_EQ(Files::ListFolder(At(u"*"_s)), QStringList{u"f"_s});
    SetAttributes(path, FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WriteAsideKeeps, AFileThatSomebodyHasToThemselves) {
    const QString path = Make(u"f"_s, "old");
    const HANDLE handle = CreateFileW(path.toStdWString().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(handle, INVALID_HANDLE_VALUE);
    const QString message = MessageOf([&] { WriteWhole(path, "new"); });
    EXPECT_TRUE(message.startsWith(path + u':')) << qPrintable(message);
    CloseHandle(handle);
    EXPECT_EQ(BytesOf(u"f"_s), "old");
    EXPECT_EQ(Files::ListFolder(At(u"*"_s)), QStringList{u"f"_s});
}
