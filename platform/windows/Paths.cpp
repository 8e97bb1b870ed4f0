// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Paths.h"

#include "platform/windows/System.h"

#include <vector>

namespace Paths {

QString ToNative(const QString& path) {
    return path;
}

QString ToNativeAsGiven(const QString& path) {
    return path;
}

QString FromNative(const QString& path) {
    return path;
}

QString NameToNative(const QString& name) {
    return name;
}

QString NameFromNative(const QString& name) {
    return name;
}

QByteArray EncodeNative(const QString& nativePath) {
    return nativePath.toUtf8();
}

QByteArray EncodeShown(QString text) {
    return text.toUtf8();
}

QString DecodeNative(const QByteArray& bytes) {
    return QString::fromUtf8(bytes);
}

QString Absolute(const QString& nativePath) {
    QString given = nativePath;
    const std::wstring wide = given.replace(u'/', u'\\').toStdWString();
    std::vector<wchar_t> full(GetFullPathNameW(wide.c_str(), 0, nullptr, nullptr) + 1);
    const DWORD length = GetFullPathNameW(wide.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    return QString::fromWCharArray(full.data(), static_cast<int>(length));
}

QString AbsoluteIn(const QString& folder, const QString& path) {
    QString given = path;
    given.replace(u'/', u'\\');
    const bool hasDrive = given.size() > 1 && given[1] == u':';
    if (hasDrive && given.size() > 2 && given[2] != u'\\' && folder.startsWith(given.first(2), Qt::CaseInsensitive))
        given = folder + u'\\' + given.sliced(2);
    else if (!hasDrive && !given.startsWith(u'\\'))
        given = folder + u'\\' + given;
    else if (!hasDrive && !given.startsWith(u"\\\\"))
        given = folder.first(2) + given;
    const QString whole = Absolute(given);
    return whole.endsWith(u'\\') && !whole.endsWith(u":\\") ? whole.chopped(1) : whole;
}

QString Real(const QString& path) {
    const HANDLE handle =
        CreateFileW(path.toStdWString().c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return {};
    std::vector<wchar_t> full(32768);
    const DWORD length = GetFinalPathNameByHandleW(handle, full.data(), static_cast<DWORD>(full.size()), 0);
    CloseHandle(handle);
    const QString real = QString::fromWCharArray(full.data(), static_cast<int>(length));
    return real.startsWith(u"\\\\?\\") ? real.sliced(4) : real;
}

void UsePrefix(const QString& /*folder*/, const QString& /*prefix*/) {}

QString InPrefix(const QString& /*prefix*/, const QString& path) {
    return path;
}

QString PrefixFor(const QString& /*path*/, const QString& /*readIn*/) {
    return {};
}

void ForgetPrefixes() {}

QString Executable() {
    std::vector<wchar_t> path(32768);
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return QString::fromWCharArray(path.data(), static_cast<int>(length));
}

QString ProgramFolder() {
    const QString named = qEnvironmentVariable("BRINDOCK_PROGRAM_FOLDER");
    const QString executable = Executable();
    const QString folder = named.isEmpty() ? executable.first(executable.lastIndexOf(u'\\')) : Absolute(named);
    return folder.endsWith(u'\\') ? folder.chopped(1) : folder;
}

} // namespace Paths
