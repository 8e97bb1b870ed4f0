// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Paths.h"

#include "platform/posix/Errors.h"
#include "platform/posix/WinePrefixes.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace {

constexpr char16_t BackslashInName = 0xF05C;
constexpr char16_t FirstRawByte = 0xDC80;
constexpr char16_t LastRawByte = 0xDCFF;
constexpr char16_t NoPlace = 0x2060;

struct PrefixRule {
    QString Folder;
    QString Prefix;
};

std::vector<PrefixRule>& Rules() {
    static std::vector<PrefixRule> rules;
    return rules;
}

bool HasDrive(QStringView path) {
    return path.size() >= 2 && path[1] == u':' && path[0].isLetter() && path[0].unicode() < 128;
}

bool AreTheSame(const QString& first, const QString& second) {
    struct stat one {};

    struct stat other {};

    return ::stat(Paths::EncodeNative(first).constData(), &one) == 0 &&
           ::stat(Paths::EncodeNative(second).constData(), &other) == 0 && one.st_dev == other.st_dev &&
           one.st_ino == other.st_ino;
}

QString DeviceFolder(const QString& prefix, QChar letter) {
    return prefix + QStringLiteral("/dosdevices/") + letter.toLower() + u':';
}

/// The native folder that a drive letter stands for; nothing for a drive that nobody knows.
std::optional<QString> DriveFolder(const QString& prefix, QChar letter) {
    const bool isRoot = letter.toLower() == u'z';
    const bool isUsual = letter.toLower() == u'c' && !prefix.isEmpty();
    const QString usual = isUsual ? prefix + QStringLiteral("/drive_c") : QString();
    const QString device = DeviceFolder(prefix, letter);
    if (!prefix.isEmpty() && ::access(Paths::EncodeNative(device).constData(), F_OK) == 0) {
        const bool leadsThere = (isRoot || isUsual) && AreTheSame(device, isRoot ? QStringLiteral("/") : usual);
        return leadsThere ? usual : device;
    }
    return isRoot || isUsual ? std::optional(usual) : std::nullopt;
}

/// The prefix that the rules give a path.
QString RuledPrefix(const QString& path) {
    const PrefixRule* best = nullptr;
    for (const PrefixRule& rule : Rules()) {
        const bool fits = path.startsWith(rule.Folder, Qt::CaseInsensitive);
        if (fits && (best == nullptr || rule.Folder.size() > best->Folder.size()))
            best = &rule;
    }
    if (best != nullptr)
        return best->Prefix;
    if (!HasDrive(path))
        return {};
    return Rules().empty() ? WinePrefixes::Default() : Rules().front().Prefix;
}

/// The prefix that a native path leads into, by the path's own folders.
QString PrefixAround(const QString& nativePath) {
    const QString path = QDir::cleanPath(nativePath);
    for (qsizetype end = path.lastIndexOf(u'/'); end > 0; end = path.lastIndexOf(u'/', end - 1)) {
        QString folder = path.first(end);
        if (QFileInfo(folder + QStringLiteral("/system.reg")).isFile())
            return folder;
    }
    return {};
}

bool Exists(const QString& nativePath) {
    const bool exists = ::access(Paths::EncodeNative(nativePath).constData(), F_OK) == 0;
    if (!exists)
        NoteErrno(errno, nativePath);
    return exists;
}

/// The name in the folder that equals `name` but for case; `name` itself when there is none.
QString FindWithoutCase(const QString& folder, const QString& name) {
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(
        ::opendir(Paths::EncodeNative(folder.isEmpty() ? QStringLiteral(".") : folder).constData()), &::closedir);
    if (!listing) {
        NoteErrno(errno, folder);
        return name;
    }
    while (const dirent* entry = ::readdir(listing.get())) {
        QString found = Paths::DecodeNative(static_cast<const char*>(entry->d_name));
        if (found.compare(name, Qt::CaseInsensitive) == 0)
            return found;
    }
    return name;
}

/// Corrects the case of the components that exist.
QString ResolveCase(const QString& nativePath) {
    const QStringList parts = nativePath.split(u'/');
    QString resolved = parts.first();
    bool known = true;
    for (const QString& part : parts.sliced(1)) {
        const QString given = resolved + u'/' + part;
        if (!known || part.isEmpty() || Exists(given)) {
            resolved = given;
            continue;
        }
        const QString found = FindWithoutCase(resolved + u'/', part);
        known = found != part;
        resolved += u'/' + found;
    }
    return resolved;
}

/// Bytes that are no UTF-8, one by one as surrogates.
QString DecodeWithRawBytes(const QByteArray& bytes) {
    QString text;
    for (qsizetype at = 0; at < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[at]);
        const qsizetype length = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
        const QString character = QString::fromUtf8(bytes.sliced(at, qMin(length, bytes.size() - at)));
        if (lead >= 0x80 && (character.contains(QChar::ReplacementCharacter) || character.isEmpty())) {
            text += QChar(static_cast<char16_t>(0xDC00 + lead));
            ++at;
        } else {
            text += character;
            at += length;
        }
    }
    return text;
}

} // namespace

namespace Paths {

QString ToNativeAsGiven(const QString& path) {
    QString native = path;
    if (HasDrive(path)) {
        const std::optional<QString> folder = DriveFolder(RuledPrefix(path), path[0]);
        native = folder ? *folder + path.sliced(2) : QChar(NoPlace) + path;
    }
    std::replace(native.begin(), native.end(), QChar(u'\\'), QChar(u'/'));
    return NameToNative(native);
}

QString ToNative(const QString& path) {
    QString native = ToNativeAsGiven(path);
    if (native.isEmpty() || Exists(native))
        return native;
    return ResolveCase(native);
}

QString FromNative(const QString& path) {
    return NameFromNative(path.startsWith(QChar(NoPlace)) ? path.sliced(1) : path).replace(u'/', u'\\');
}

QString NameToNative(const QString& name) {
    if (!name.contains(QChar(BackslashInName)))
        return name;
    return QString(name).replace(QChar(BackslashInName), u'\\');
}

QString NameFromNative(const QString& name) {
    return QString(name).replace(u'\\', QChar(BackslashInName));
}

QByteArray EncodeNative(const QString& nativePath) {
    // Nothing can ever stand below a device.
    if (nativePath.startsWith(QChar(NoPlace)))
        return "/dev/null/" + EncodeNative(nativePath.sliced(1));
    const auto isRaw = [](QChar unit) { return unit.unicode() >= FirstRawByte && unit.unicode() <= LastRawByte; };
    if (std::none_of(nativePath.begin(), nativePath.end(), isRaw))
        return nativePath.toUtf8();
    QByteArray bytes;
    qsizetype from = 0;
    for (qsizetype at = 0; at < nativePath.size(); ++at) {
        const bool paired = at > 0 && nativePath[at - 1].isHighSurrogate();
        if (!isRaw(nativePath[at]) || paired)
            continue;
        bytes += QStringView(nativePath).sliced(from, at - from).toUtf8();
        bytes += static_cast<char>(nativePath[at].unicode() - 0xDC00);
        from = at + 1;
    }
    return bytes + QStringView(nativePath).sliced(from).toUtf8();
}

QByteArray EncodeShown(QString text) {
    return EncodeNative(text.remove(QChar(NoPlace)));
}

QString DecodeNative(const QByteArray& bytes) {
    const QString text = QString::fromUtf8(bytes);
    return text.contains(QChar::ReplacementCharacter) ? DecodeWithRawBytes(bytes) : text;
}

QString Absolute(const QString& nativePath) {
    // A path with a drive letter, unless a file really has that name.
    const bool isInside = HasDrive(nativePath) && nativePath.size() > 2 && nativePath[2] == u'\\';
    if (isInside && ::access(EncodeNative(nativePath).constData(), F_OK) != 0)
        return AbsoluteIn({}, nativePath);
    const std::filesystem::path given(EncodeNative(nativePath).toStdString());
    std::error_code error;
    std::filesystem::path resolved = std::filesystem::weakly_canonical(std::filesystem::absolute(given, error), error);
    if (error) {
        NoteErrno(error.value(), nativePath);
        resolved = std::filesystem::absolute(given, error).lexically_normal();
    }
    return FromNative(DecodeNative(QByteArray::fromStdString(resolved.string())));
}

QString AbsoluteIn(const QString& folder, const QString& path) {
    const QString whole = HasDrive(path) || path.startsWith(u'\\') ? path : folder + u'\\' + path;
    const QString drive = whole.first(HasDrive(whole) ? 2 : 0);
    QStringList parts;
    for (const QString& part : whole.sliced(drive.size()).split(u'\\', Qt::SkipEmptyParts)) {
        if (part == u"..")
            parts.resize(std::max<qsizetype>(parts.size() - 1, 0));
        else if (part != u".")
            parts.append(part);
    }
    return drive + u'\\' + parts.join(u'\\');
}

QString Real(const QString& path) {
    const std::unique_ptr<char, void (*)(void*)> found(::realpath(EncodeNative(ToNative(path)).constData(), nullptr),
                                                       &std::free);
    if (!found)
        NoteErrno(errno, ToNative(path));
    return found ? FromNative(DecodeNative(found.get())) : QString();
}

void UsePrefix(const QString& folder, const QString& prefix) {
    if (!prefix.isEmpty())
        Rules().push_back({folder, prefix});
}

void ForgetPrefixes() {
    Rules().clear();
}

QString InPrefix(const QString& prefix, const QString& path) {
    if (prefix.isEmpty() || !HasDrive(path))
        return path;
    const std::optional<QString> folder = DriveFolder(prefix, path[0]);
    return folder ? FromNative(*folder) + path.sliced(2) : path;
}

QString PrefixFor(const QString& path, const QString& readIn) {
    const QString prefix = readIn.isEmpty() ? RuledPrefix(path) : readIn;
    QString native = ToNative(InPrefix(prefix, path));
    // A drive of the prefix may lead into another one.
    const QString device = HasDrive(path) ? DeviceFolder(prefix, path[0]) : QString();
    if (!device.isEmpty() && native.startsWith(device))
        native = QFileInfo(device).canonicalFilePath() + native.sliced(device.size());
    const QString around = native.startsWith(u'/') ? PrefixAround(native) : QString();
    return around.isEmpty() ? prefix : around;
}

QString Executable() {
    std::error_code error;
    const std::filesystem::path link = std::filesystem::read_symlink("/proc/self/exe", error);
    return FromNative(DecodeNative(QByteArray::fromStdString(link.string())));
}

QString ProgramFolder() {
    const char* named = std::getenv("BRINDOCK_PROGRAM_FOLDER");
    QString folder;
    if (named != nullptr && *named != '\0') {
        folder = Absolute(DecodeNative(named));
    } else {
        const QString executable = Executable();
        folder = executable.first(qMax<qsizetype>(executable.lastIndexOf(u'\\'), 0));
    }
    return folder.endsWith(u'\\') ? folder.chopped(1) : folder;
}

} // namespace Paths
