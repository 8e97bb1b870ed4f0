// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ShellFolders.h"

#include "platform/windows/Errors.h"
#include "platform/windows/System.h"

#include <shlobj.h>

#include <array>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

using ShellFolders::DriveKind;

/// A folder by its number in the shell.
QString SpecialFolder(int number) {
    PIDLIST_ABSOLUTE list = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(nullptr, number, &list)))
        return {};
    const std::unique_ptr<void, void (*)(void*)> owned(list, &CoTaskMemFree);
    std::array<wchar_t, MAX_PATH> path{};
    return SHGetPathFromIDListW(list, path.data()) != 0 ? QString::fromWCharArray(path.data()) : QString();
}

std::optional<DriveKind> KindOf(const wchar_t* drive) {
    switch (GetDriveTypeW(drive)) {
    case DRIVE_REMOVABLE:
        return DriveKind::Removable;
    case DRIVE_FIXED:
        return DriveKind::Fixed;
    case DRIVE_REMOTE:
        return DriveKind::Remote;
    case DRIVE_CDROM:
        return DriveKind::CdRom;
    default:
        return std::nullopt;
    }
}

/// While it lives, a drive without a medium is an error and no question to the user.
class QuietDrives {
public:
    QuietDrives() : old_(SetErrorMode(SEM_FAILCRITICALERRORS)) {}

    ~QuietDrives() { SetErrorMode(old_); }

    QuietDrives(const QuietDrives&) = delete;
    QuietDrives& operator=(const QuietDrives&) = delete;

private:
    UINT old_;
};

struct Releaser {
    void operator()(IUnknown* object) const { object->Release(); }
};

template <typename Interface>
using Owned = std::unique_ptr<Interface, Releaser>;

/// What a shortcut's file leads to, as the shell reads it; empty when it can't be resolved.
QString ShortcutTarget(const QString& path) {
    void* object = nullptr;
    if (FAILED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, &object)))
        return {};
    const Owned<IShellLinkW> link(static_cast<IShellLinkW*>(object));
    if (FAILED(link->QueryInterface(IID_IPersistFile, &object)))
        return {};
    const Owned<IPersistFile> file(static_cast<IPersistFile*>(object));
    std::array<wchar_t, MAX_PATH> target{};
    if (FAILED(file->Load(WidePath(path).c_str(), STGM_READ)) ||
        link->GetPath(target.data(), MAX_PATH, nullptr, 0) != S_OK)
        return {};
    return QString::fromWCharArray(target.data());
}

bool IsFolder(const QString& path) {
    const DWORD attributes = GetFileAttributesW(WidePath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

ShellFolders::Entry EntryOf(const WIN32_FIND_DATAW& data, const QString& base) {
    ShellFolders::Entry entry;
    entry.Name = QString::fromWCharArray(static_cast<const wchar_t*>(data.cFileName));
    entry.IsFolder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    entry.IsHidden = (data.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0;
    if (!entry.IsFolder && entry.Name.endsWith(u".lnk", Qt::CaseInsensitive)) {
        entry.Target = ShortcutTarget(base + entry.Name);
        entry.TargetIsFolder = !entry.Target.isEmpty() && IsFolder(entry.Target);
    }
    return entry;
}

} // namespace

QString ShellFolders::Documents() {
    return SpecialFolder(CSIDL_PERSONAL);
}

QString ShellFolders::NetworkPlaces() {
    return SpecialFolder(CSIDL_NETHOOD);
}

std::vector<ShellFolders::Place> ShellFolders::OtherPlaces() {
    return {};
}

std::vector<ShellFolders::Drive> ShellFolders::Drives() {
    std::array<wchar_t, 2048> names{};
    const DWORD length = GetLogicalDriveStringsW(static_cast<DWORD>(names.size() - 1), names.data());
    std::vector<Drive> drives;
    if (length == 0 || length >= names.size())
        return drives;
    // Names, each with its zero; an empty one ends the list.
    for (const wchar_t* name = names.data(); *name != 0; name += wcslen(name) + 1) {
        const QString drive = QString::fromWCharArray(name).toUpper();
        if (const auto kind = KindOf(name))
            drives.push_back({drive, drive, *kind});
    }
    return drives;
}

void ShellFolders::ForEachEntry(const QString& folder, const std::function<bool(const Entry&)>& take) {
    const QuietDrives quiet;
    const bool initialised = SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    const QString base = folder.endsWith(u'\\') ? folder : folder + u'\\';
    WIN32_FIND_DATAW data{};
    const HANDLE search = FindFirstFileW(WidePath(base + u"*.*"_s).c_str(), &data);
    if (search != INVALID_HANDLE_VALUE) {
        const std::unique_ptr<void, BOOL (*)(HANDLE)> owned(search, [](HANDLE handle) { return FindClose(handle); });
        bool more = true;
        while (more) {
            const std::wstring_view name(static_cast<const wchar_t*>(data.cFileName));
            more = (name == L"." || name == L".." || take(EntryOf(data, base))) && FindNextFileW(search, &data) != 0;
        }
    }
    if (initialised)
        CoUninitialize();
}
