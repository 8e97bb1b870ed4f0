// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/BigArchive.h"
#include "app/cli/BigCommands.h"
#include "app/cli/Output.h"
#include "big/document/ArchiveExtractor.h"
#include "core/FolderGateway.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/Wildcards.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <array>
#include <charconv>

using namespace Qt::StringLiterals;

namespace {

using Kind = Parameter::Kind;

void ListAsJson(const QString& path) {
    const Archive archive = ReadArchive(path);
    QJsonArray entries;
    for (const BigEntry& entry : archive.Entries)
        entries.append(QJsonObject{{u"index"_s, entries.size()},
                                   {u"offset"_s, entry.Offset},
                                   {u"size"_s, entry.Size},
                                   {u"name"_s, entry.Name}});
    const QJsonObject told{{u"version"_s, archive.Version}, {u"entries"_s, entries}};
    Print(QString::fromUtf8(QJsonDocument(told).toJson(QJsonDocument::Indented)).trimmed());
}

/// Prints each record as it is read: a table of them all would take longer to fill than the lines to print.
void ListAsLines(const QString& path) {
    int index = 0;
    std::array<char, 48> numbers{};
    const auto print = [&](const BigEntry& entry, qint32 version) {
        if (index == 0)
            Print(u"version %1"_s.arg(version));
        char* end = numbers.data();
        for (const qint32 number : {index++, entry.Offset, entry.Size}) {
            end = std::to_chars(end, numbers.data() + numbers.size(), number).ptr;
            *end++ = '\t';
        }
        Print(QByteArrayView(numbers.data(), end), entry.Name);
    };
    const File file = File::Open(path, File::Access::Read);
    try {
        Archives::List(file, 0, print);
    } catch (const RuntimeError&) {
        if (index > 0)
            throw;
        FailAsNoArchive(path);
    }
}

void List(const Arguments& given) {
    if (given.Has("--json"))
        ListAsJson(given.Path("ARCHIVE"));
    else
        ListAsLines(given.Path("ARCHIVE"));
}

/// The entries that the names and patterns choose, in the archive's order; all of them without any.
std::vector<const BigEntry*> Chosen(const Archive& archive, const QStringList& patterns) {
    std::vector<bool> chosen(archive.Entries.size(), patterns.empty());
    for (const QString& pattern : patterns) {
        bool found = false;
        for (std::size_t i = 0; i < chosen.size(); ++i) {
            if (FitsPattern(archive.Entries[i].Name, pattern))
                chosen[i] = found = true;
        }
        if (!found)
            Fail(archive.FileName, u"no entry is named %1"_s.arg(pattern));
    }
    std::vector<const BigEntry*> entries;
    for (std::size_t i = 0; i < chosen.size(); ++i) {
        if (chosen[i])
            entries.push_back(&archive.Entries[i]);
    }
    return entries;
}

QString LastPart(const QString& name) {
    return name.sliced(std::max(name.lastIndexOf(u'\\'), name.lastIndexOf(u'/')) + 1);
}

/// The same for all names that are one file's: both separators count, and case does not.
QString FileKey(const QString& name) {
    return name.toCaseFolded().replace(u'/', u'\\');
}

/// Whether some of its bytes lie behind the archive's end, and come as zeros.
bool IsCut(const BigEntry& entry, qint64 archiveLength) {
    return entry.Size > 0 && qint64{entry.Offset} + entry.Size > archiveLength;
}

void Extract(const Arguments& given) {
    const Archive archive = ReadArchive(given.Path("ARCHIVE"));
    const auto entries = Chosen(archive, given.Texts("NAME"));
    const bool flat = given.Has("--flat");
    const bool forced = given.Has("--force");
    const qint64 length = Files::FileLength(archive.FileName);
    ArchiveExtractor extractor(archive.FileName, given.Path("FOLDER"));
    QSet<QString> written;
    bool isWhole = true;
    for (const BigEntry* entry : entries) {
        const QString name = flat ? LastPart(entry->Name) : entry->Name;
        try {
            // A name that is refused is no file's.
            const QString key = FolderGateway::RefusalOf(name).isEmpty() ? FileKey(name) : QString();
            if ((flat || !forced) && written.contains(key))
                throw RuntimeError(ErrorNumber::FileAlreadyExists, entry->Name + u": another entry has that name"_s);
            extractor.Extract(*entry, name);
            written.insert(key);
            if (!forced && IsCut(*entry, length))
                throw RuntimeError(ErrorNumber::PathFileAccess,
                                   entry->Name + u": cut off, the archive ends before its data does"_s);
        } catch (const RuntimeError& error) {
            Report(error);
            isWhole = false;
        }
    }
    if (!isWhole)
        EndWith(1);
}

} // namespace

std::vector<Command> BigReadingCommands() {
    return {{"list",
             "Print the variant, then an entry a line: index, offset, size, name",
             {{Kind::Place, "ARCHIVE"}, {Kind::Flag, "--json", "Print JSON"}},
             List},
            {"extract",
             "Write entries to files below a folder, never outside it",
             {{Kind::Place, "ARCHIVE"},
              {Kind::Place, "FOLDER"},
              {Kind::Places, "NAME", "Names and patterns with * and ?; all entries without any"},
              {Kind::Flag, "--flat", "Put all files into the folder itself"},
              {Kind::Flag, "--force", "Take cut entries, and of those that are one file the last, without a word"}},
             Extract}};
}
