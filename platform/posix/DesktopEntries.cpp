// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/posix/DesktopEntries.h"

#include "platform/Paths.h"

#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QStringList>
#include <QUrl>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A variable's folders, or those that stand for an unset one.
QStringList Folders(const char* variable, const QString& standard) {
    const QString value = qEnvironmentVariable(variable);
    return (value.isEmpty() ? standard : value).split(u':', Qt::SkipEmptyParts);
}

QStringList ApplicationFolders() {
    const QString home = qEnvironmentVariable("HOME");
    QStringList folders = Folders("XDG_DATA_HOME", home + u"/.local/share"_s) +
                          Folders("XDG_DATA_DIRS", u"/usr/local/share:/usr/share"_s);
    for (QString& folder : folders)
        folder += u"/applications"_s;
    return folders;
}

/// The lists of associations, the user's own first.
QStringList AssociationLists() {
    const QString home = qEnvironmentVariable("HOME");
    const QStringList folders = Folders("XDG_CONFIG_HOME", home + u"/.config"_s) +
                                Folders("XDG_CONFIG_DIRS", u"/etc/xdg"_s) + ApplicationFolders();
    QStringList names;
    for (const QString& desktop : Folders("XDG_CURRENT_DESKTOP", {}))
        names << desktop.toLower() + u"-mimeapps.list"_s;
    names << u"mimeapps.list"_s;
    QStringList lists;
    for (const QString& folder : folders) {
        for (const QString& name : std::as_const(names))
            lists << folder + u'/' + name;
    }
    return lists;
}

/// A key's text in a group of a desktop file.
QString TextOf(const QString& fileName, const QString& group, const QString& key) {
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    bool inside = false;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QString text = line.trimmed();
        const qsizetype equal = text.indexOf(u'=');
        if (text.startsWith(u'['))
            inside = text == u'[' + group + u']';
        else if (inside && equal > 0 && QStringView(text).first(equal).trimmed() == key)
            return text.sliced(equal + 1).trimmed();
    }
    return {};
}

/// The names of the desktop entries for a type, in order of preference.
QStringList EntriesFor(const QString& mimeType) {
    QStringList entries;
    for (const QString& group : {u"Default Applications"_s, u"Added Associations"_s}) {
        for (const QString& list : AssociationLists())
            entries << TextOf(list, group, mimeType).split(u';', Qt::SkipEmptyParts);
    }
    for (const QString& folder : ApplicationFolders())
        entries << TextOf(folder + u"/mimeinfo.cache"_s, u"MIME Cache"_s, mimeType).split(u';', Qt::SkipEmptyParts);
    return entries;
}

/// The file of a desktop entry. A hyphen in its name may stand for a folder.
QString FileOfEntry(const QString& entry) {
    QString inFolder = entry;
    if (const qsizetype hyphen = entry.indexOf(u'-'); hyphen > 0)
        inFolder[hyphen] = u'/';
    for (const QString& folder : ApplicationFolders()) {
        for (const QString& name : {entry, inFolder}) {
            QString file = folder + u'/' + name;
            if (QFileInfo(file).isFile())
                return file;
        }
    }
    return {};
}

/// The words of an Exec text: parted by blanks, or in double quotes with backslash escapes.
QStringList Words(const QString& exec) {
    QStringList words;
    QString word;
    bool quoted = false;
    bool started = false;
    for (qsizetype at = 0; at < exec.size(); ++at) {
        const QChar character = exec[at];
        if (character == u'"') {
            quoted = !quoted;
            started = true;
        } else if (!quoted && character.isSpace()) {
            if (started)
                words << word;
            word.clear();
            started = false;
        } else {
            word += quoted && character == u'\\' && at + 1 < exec.size() ? exec[++at] : character;
            started = true;
        }
    }
    return started ? words << word : words;
}

/// A word with its field codes replaced; whether the file was among them.
std::pair<QString, bool> Expanded(const QString& word, const QString& nativePath) {
    QString text;
    bool namesFile = false;
    for (qsizetype at = 0; at < word.size(); ++at) {
        if (word[at] != u'%' || at + 1 == word.size()) {
            text += word[at];
            continue;
        }
        const QChar code = word[++at];
        const bool asAddress = code == u'u' || code == u'U';
        if (code == u'%')
            text += code;
        if (asAddress || code == u'f' || code == u'F') {
            text += asAddress ? QUrl::fromLocalFile(nativePath).toString(QUrl::FullyEncoded) : nativePath;
            namesFile = true;
        }
    }
    return {text, namesFile};
}

} // namespace

std::vector<QByteArrayList> DesktopEntries::CommandsFor(const QString& nativePath) {
    const QMimeType type = QMimeDatabase().mimeTypeForFile(nativePath);
    std::vector<QByteArrayList> commands;
    QStringList seen;
    for (const QString& mimeType : QStringList(type.name()) + type.allAncestors()) {
        for (const QString& entry : EntriesFor(mimeType)) {
            const QString file = FileOfEntry(entry);
            const QString exec = TextOf(file, u"Desktop Entry"_s, u"Exec"_s);
            if (exec.isEmpty() || seen.contains(file))
                continue;
            seen << file;
            QByteArrayList command = ExpandExec(exec, nativePath);
            if (TextOf(file, u"Desktop Entry"_s, u"Terminal"_s) == u"true"_s)
                command = QByteArrayList{"x-terminal-emulator", "-e"} + command;
            commands.push_back(command);
        }
    }
    return commands;
}

QByteArrayList DesktopEntries::ExpandExec(const QString& exec, const QString& nativePath) {
    QByteArrayList command;
    bool fileNamed = false;
    for (const QString& word : Words(QString(exec).replace(u"\\\\"_s, u"\\"_s))) {
        const auto [text, namesFile] = Expanded(word, nativePath);
        fileNamed = fileNamed || namesFile;
        // A code that stands for nothing leaves no empty argument behind.
        if (!text.isEmpty() || word.isEmpty())
            command << Paths::EncodeNative(text);
    }
    return fileNamed ? command : command << Paths::EncodeNative(nativePath);
}
