// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/LastTime.h"

#include "platform/Files.h"
#include "platform/OwnFolder.h"
#include "platform/RuntimeError.h"
#include "platform/WriteAside.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

/// A file that is longer was not written here.
constexpr qint64 longestFile = qint64{1024} * 1024;

QString Path() {
    return OwnFolder() + u"\\lasttime.json"_s;
}

QJsonObject All() {
    QByteArray bytes;
    Ignoring([&] { bytes = File::Open(Path(), File::Access::Read).Read(0, longestFile); });
    return QJsonDocument::fromJson(bytes).object();
}

} // namespace

QJsonValue LastTime::Of(const QString& key) {
    return All().value(key);
}

void LastTime::Keep(const QString& key, const QJsonValue& value) {
    QJsonObject all = All();
    if (all.value(key) == value)
        return;
    all.insert(key, value);
    Ignoring([&] {
        ::Files::MakeFolders(OwnFolder() + u'\\');
        WriteAside aside(Path());
        aside.Out().Write(0, QJsonDocument(all).toJson());
        aside.Commit(false);
    });
}

QStringList LastTime::Files(const QString& kind) {
    QStringList paths;
    for (const auto& path : Of(u"files "_s + kind).toArray())
        if (path.isString() && paths.size() < MostFiles)
            paths += path.toString();
    return paths;
}

void LastTime::NoteFile(const QString& kind, const QString& path) {
    QStringList paths = Files(kind);
    paths.removeIf([&path](const QString& known) { return known.compare(path, Qt::CaseInsensitive) == 0; });
    paths.prepend(path);
    Keep(u"files "_s + kind, QJsonArray::fromStringList(paths.first(qMin(paths.size(), qsizetype{MostFiles}))));
}

QString LastTime::Folder(const QString& kind) {
    const QString folder = Of(u"folder "_s + kind).toString();
    return !folder.isEmpty() && ::Files::FolderExists(folder) ? folder : QString();
}

void LastTime::NoteFolder(const QString& kind, const QString& folder) {
    Keep(u"folder "_s + kind, folder);
}
