// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"

#include "platform/FolderEntries.h"
#include "platform/ListedFolder.h"
#include "platform/Paths.h"
#include "platform/ReplacedFile.h"
#include "platform/RuntimeError.h"
#include "platform/Wildcards.h"
#include "platform/WriteAside.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Walks one folder for ListFolderFiles. Each folder is entered once, so that links can't lead around in a circle.
class Walk {
public:
    Walk(bool recursive, bool strict, QStringList* unlisted = nullptr)
        : recursive_(recursive),
          strict_(strict),
          unlisted_(unlisted) {}

    void Enter(const QString& folder) {
        const QByteArray identity = FolderIdentity(folder);
        if (entered_.contains(identity) || (identity.isEmpty() && !strict_)) {
            if (identity.isEmpty() && unlisted_ != nullptr)
                *unlisted_ += Paths::ToNative(folder);
            return;
        }
        entered_.insert(identity);
        std::vector<QString> below;
        if (strict_)
            List(folder, below);
        else
            ListAsFarAsPossible(folder, below);
        if (recursive_) {
            for (const QString& path : below)
                Enter(path);
        }
    }

    std::vector<Files::FoundFile> Found() && { return std::move(found_); }

private:
    void ListAsFarAsPossible(const QString& folder, std::vector<QString>& below) {
        try {
            List(folder, below);
        } catch (const RuntimeError& error) {
            if (unlisted_ != nullptr)
                *unlisted_ += error.Description();
        }
    }

    void List(const QString& folder, std::vector<QString>& below) {
        for (const FolderEntry& entry : FolderEntries(folder)) {
            const QString path = folder + u'\\' + entry.Name;
            if (entry.IsFolder)
                below.push_back(path);
            else
                found_.push_back({path, entry.Size, entry.IsPlain});
        }
    }

    bool recursive_;
    bool strict_;
    QStringList* unlisted_; ///< may be null
    QSet<QByteArray> entered_;
    std::vector<Files::FoundFile> found_;
};

void CopyWhole(const QString& from, const QString& to, WriteAside::Names names) {
    const File source = File::Open(from, File::Access::Read);
    WriteAside target(to, names);
    const qint64 length = source.Length();
    if (CopyBytes(target.Out(), 0, source, 0, length) != length)
        throw RuntimeError(ErrorNumber::DeviceError, QStringLiteral("%1: breaks off").arg(source.Name()));
    target.Commit(false);
}

QString WithoutTrailingBackslash(const QString& path) {
    return path.endsWith(u'\\') ? path.chopped(1) : path;
}

} // namespace

namespace Files {

QStringList ListFolder(const QString& pattern, bool withFolders) {
    const qsizetype split = pattern.lastIndexOf(u'\\') + 1;
    const QString last = pattern.sliced(split);
    QStringList names;
    Ignoring([&] {
        names = ListedFolder(pattern.first(split)).Names(withFolders);
        names.removeIf([&](const QString& name) { return !FitsPattern(name, last); });
    });
    return names;
}

std::vector<FoundFile> ListFolderFiles(const QString& folder, bool recursive, QStringList* unlisted) {
    Walk walk(recursive, false, unlisted);
    walk.Enter(WithoutTrailingBackslash(folder));
    return std::move(walk).Found();
}

std::vector<FoundFile> ListFolderFilesStrict(const QString& folder, bool recursive) {
    Walk walk(recursive, true);
    walk.Enter(WithoutTrailingBackslash(folder));
    return std::move(walk).Found();
}

void EmptyFolder(const QString& folder, const QStringList& kept) {
    const QString path = WithoutTrailingBackslash(folder);
    if (IsLink(path))
        return;
    for (const QString& name : ListFolder(path + u"\\*"_s)) {
        const QString file = path + u'\\' + name;
        if (std::ranges::none_of(kept, [&](const QString& each) { return SameFile(each, file); }))
            Ignoring([&] { DeleteForced(file); });
    }
}

void Copy(const QString& from, const QString& to) {
    CopyWhole(from, to, WriteAside::Names::LookedUp);
}

void CopyAsGiven(const QString& from, const QString& to) {
    CopyWhole(from, to, WriteAside::Names::AsGiven);
}

void DeleteUnprotected(const QString& path) {
    // Of a link nothing goes but the link: what it leads to is not asked.
    if (!IsLink(path) && ReplacedFile::IsWriteProtected(path))
        throw RuntimeError(ErrorNumber::PermissionDenied,
                           QStringLiteral("%1: write-protected").arg(Paths::ToNative(path)));
    DeleteForced(path);
}

void Delete(const QString& pattern) {
    const qsizetype split = pattern.lastIndexOf(u'\\') + 1;
    if (!IsPattern(QStringView(pattern).sliced(split)) && split < pattern.size()) {
        DeleteUnprotected(pattern);
        return;
    }
    const QStringList names = ListFolder(pattern);
    if (names.isEmpty())
        throw RuntimeError(ErrorNumber::FileNotFound, QStringLiteral("%1: no such file").arg(Paths::ToNative(pattern)));
    for (const QString& name : names)
        DeleteUnprotected(pattern.first(split) + name);
}

void DeleteFolder(const QString& path) {
    const QString folder = WithoutTrailingBackslash(path);
    Ignoring([&] {
        if (IsLink(folder))
            return RemoveLink(folder);
        for (const FolderEntry& entry : FolderEntries(folder)) {
            const QString below = folder + u'\\' + entry.Name;
            if (entry.IsFolder)
                DeleteFolder(below);
            else
                Ignoring([&] { DeleteForced(below); });
        }
        RemoveFolder(folder);
    });
}

void MakeFolders(const QString& path) {
    const QString folder = WithoutTrailingBackslash(path);
    if (folder.isEmpty() || FolderExists(folder))
        return;
    const qsizetype split = folder.lastIndexOf(u'\\');
    if (split > 0)
        MakeFolders(folder.first(split));
    try {
        MakeFolder(folder);
    } catch (const RuntimeError&) {
        if (!FolderExists(folder)) // another program may have made it meanwhile
            throw;
    }
}

} // namespace Files
