// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RegistryRuntime.h"

#include "platform/windows/System.h"
#include "tests/platform/Scratch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto User = RootKey::CurrentUser;

/// The system's own registry, in a key that is made for the test and deleted after it.
class SystemRegistryTest : public testing::Test {
protected:
    ~SystemRegistryTest() override {
        ::RegDeleteTreeW(HKEY_CURRENT_USER, reinterpret_cast<const wchar_t*>(key_.utf16()));
    }

    SystemRegistryTest() = default;
    SystemRegistryTest(const SystemRegistryTest&) = delete;
    SystemRegistryTest& operator=(const SystemRegistryTest&) = delete;

    /// Stores bytes under a type as another program would.
    void Store(const wchar_t* name, DWORD type, const QByteArray& bytes) const {
        HKEY key = nullptr;
        ::RegCreateKeyW(HKEY_CURRENT_USER, reinterpret_cast<const wchar_t*>(key_.utf16()), &key);
        ::RegSetValueExW(key, name, 0, type, reinterpret_cast<const BYTE*>(bytes.constData()),
                         static_cast<DWORD>(bytes.size()));
        ::RegCloseKey(key);
    }

    [[nodiscard]] std::string Text(const QString& name) const {
        return registry_.GetString(User, key_, name).toStdString();
    }

    QString key_ = u"Software\\Brindock tests %1"_s.arg(::GetCurrentProcessId());
    Variable file_{"BRINDOCK_REGISTRY", std::nullopt};
    RegistryRuntime registry_;
};

} // namespace

TEST_F(SystemRegistryTest, ATextIsStoredWithoutATerminatingZeroAndComesBack) {
    registry_.SaveString(User, key_, u"n"_s, u"Été"_s);
    DWORD type = 0;
    DWORD size = 0;
    HKEY key = nullptr;
    ASSERT_EQ(::RegOpenKeyW(HKEY_CURRENT_USER, reinterpret_cast<const wchar_t*>(key_.utf16()), &key), ERROR_SUCCESS);
    EXPECT_EQ(::RegQueryValueExW(key, L"n", nullptr, &type, nullptr, &size), ERROR_SUCCESS);
    ::RegCloseKey(key);
    EXPECT_EQ(type, DWORD{REG_SZ});
    EXPECT_EQ(size, 3 * sizeof(wchar_t));
    EXPECT_EQ(Text(u"n"_s), "Été");
    EXPECT_EQ(registry_.FoundIn(User, key_, u"n"_s), u"registry"_s);
}

TEST_F(SystemRegistryTest, EmptyTextIsStoredAndReadsLikeAMissingValue) {
    registry_.SaveString(User, key_, u"n"_s, u""_s);
    EXPECT_EQ(Text(u"n"_s), "");
    EXPECT_EQ(registry_.FoundIn(User, key_, u"n"_s), u"registry"_s);
    EXPECT_EQ(registry_.FoundIn(User, key_, u"missing"_s), QString());
    EXPECT_EQ(Text(u"missing"_s), "");
}

TEST_F(SystemRegistryTest, ATextIsReadUpToItsFirstZero) {
    Store(L"n", REG_SZ, QByteArray("a\0b\0\0\0c\0\0\0", 10));
    EXPECT_EQ(Text(u"n"_s), "ab");
}

TEST_F(SystemRegistryTest, AnyOtherTypeReadsAsEmptyText) {
    Store(L"d", REG_DWORD, QByteArray("\x2A\0\0\0", 4));
    Store(L"e", REG_EXPAND_SZ, QByteArray("a\0\0\0", 4));
    EXPECT_EQ(Text(u"d"_s), "");
    EXPECT_EQ(Text(u"e"_s), "");
    EXPECT_EQ(registry_.GetDword(User, key_, u"d"_s), 42U);
    EXPECT_EQ(registry_.GetDword(User, key_, u"e"_s), 0U);
}

TEST_F(SystemRegistryTest, NumbersAreStoredAndDeleted) {
    registry_.SaveDword(User, key_, u"d"_s, 0xFEDCBA98U);
    EXPECT_EQ(registry_.GetDword(User, key_, u"d"_s), 0xFEDCBA98U);
    registry_.DeleteValue(User, key_, u"d"_s);
    EXPECT_EQ(registry_.FoundIn(User, key_, u"d"_s), QString());
}

TEST_F(SystemRegistryTest, AKeyIsDeletedUnlessKeysAreBelowIt) {
    registry_.SaveKey(User, key_ + u"\\below"_s);
    registry_.SaveString(User, key_, u"n"_s, u"1"_s);
    registry_.DeleteKey(User, key_);
    EXPECT_EQ(Text(u"n"_s), "1");
    registry_.DeleteKey(User, key_ + u"\\below"_s);
    registry_.DeleteKey(User, key_);
    EXPECT_EQ(Text(u"n"_s), "");
}
