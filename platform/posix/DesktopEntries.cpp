// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/posix/DesktopEntries.h"

#include "platform/Paths.h"

#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <iterator>
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

/// What a type stands for in one group of all lists of associations.
QStringList Listed(const QString& group, const QString& mimeType) {
    QStringList entries;
    for (const QString& list : AssociationLists())
        entries << TextOf(list, group, mimeType).split(u';', Qt::SkipEmptyParts);
    return entries;
}

/// The names of the desktop entries for a type, in order of preference.
QStringList EntriesFor(const QString& mimeType) {
    QStringList others = Listed(u"Added Associations"_s, mimeType);
    for (const QString& folder : ApplicationFolders())
        others << TextOf(folder + u"/mimeinfo.cache"_s, u"MIME Cache"_s, mimeType).split(u';', Qt::SkipEmptyParts);
    const QStringList removed = Listed(u"Removed Associations"_s, mimeType);
    others.removeIf([&](const QString& entry) { return removed.contains(entry); });
    return Listed(u"Default Applications"_s, mimeType) + others;
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

/// A program for a terminal, in each of the terminals that a system may have.
std::vector<QByteArrayList> InTerminals(const QByteArrayList& command) {
    return {QByteArrayList{"xdg-terminal-exec"} + command, QByteArrayList{"x-terminal-emulator", "-e"} + command,
            QByteArrayList{"xterm", "-e"} + command};
}

/// The ways to run a desktop entry, best first; none when it was taken out of use or is for D-Bus alone, where nobody
/// can wait for its end.
std::vector<QByteArrayList> CommandsOf(const QString& file, const QString& nativePath) {
    const auto textOf = [&](const QString& key) { return TextOf(file, u"Desktop Entry"_s, key); };
    const QString exec = textOf(u"Exec"_s);
    // A word ends at its first zero for the system, and what begins with a file's place runs that file.
    const bool hasProgram = !exec.isEmpty() && !exec.startsWith(u'%') && !exec.contains(QChar(u'\0'));
    if (!hasProgram || textOf(u"Hidden"_s) == u"true"_s)
        return {};
    const QByteArrayList command = DesktopEntries::ExpandExec(exec, nativePath);
    if (textOf(u"Terminal"_s) == u"true"_s)
        return InTerminals(command);
    return {command};
}

} // namespace

std::vector<QByteArrayList> DesktopEntries::CommandsFor(const QString& nativePath) {
    const QMimeType type = QMimeDatabase().mimeTypeForFile(nativePath);
    std::vector<QByteArrayList> commands;
    QStringList seen;
    for (const QString& mimeType : QStringList(type.name()) + type.allAncestors()) {
        for (const QString& entry : EntriesFor(mimeType)) {
            const QString file = FileOfEntry(entry);
            if (file.isEmpty() || seen.contains(file))
                continue;
            seen << file;
            std::ranges::copy(CommandsOf(file, nativePath), std::back_inserter(commands));
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
