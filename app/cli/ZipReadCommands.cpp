// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/ZipReadCommands.h"

#include "app/cli/Output.h"
#include "install/zip/ccZip.h"
#include "platform/Files.h"
#include "platform/Wildcards.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Kind = Parameter::Kind;

void Open(ccZip& zip, const Arguments& given) {
    zip.Init(given.Path("ARCHIVE"));
    if (!zip.IsOpen())
        throw RuntimeError(ErrorNumber::PathFileAccess, zip.GetZipInfo());
    if (given.Has("--password"))
        zip.Password = given.Text("--password");
}

void ListAsJson(const ccZip& zip) {
    QJsonArray entries;
    for (qint32 index = 1; index <= zip.Count(); ++index)
        entries.append(QJsonObject{{u"index"_s, index},
                                   {u"size"_s, zip.Size(index)},
                                   {u"packed"_s, zip.Packed(index)},
                                   {u"name"_s, zip.GetFile(index)}});
    const QJsonObject told{{u"comment"_s, zip.Comm}, {u"entries"_s, entries}};
    Print(QString::fromUtf8(QJsonDocument(told).toJson(QJsonDocument::Indented)).trimmed());
}

void List(const Arguments& given) {
    ccZip zip;
    Open(zip, given);
    if (given.Has("--json"))
        return ListAsJson(zip);
    for (qint32 index = 1; index <= zip.Count(); ++index)
        Print(QByteArray::number(index) + '\t' + QByteArray::number(zip.Size(index)) + '\t', zip.GetFile(index));
}

void PrintComment(const Arguments& given) {
    ccZip zip;
    Open(zip, given);
    if (!zip.Comm.isEmpty())
        Print(zip.Comm);
}

/// The places in the archive that a name of exactly that spelling chooses, else the pattern.
std::vector<qsizetype> Named(const ccZip& zip, const QString& pattern) {
    std::vector<qsizetype> places;
    const bool isName = zip.Col.contains(pattern);
    for (qsizetype place = 0; place < zip.Col.size(); ++place) {
        if (isName ? zip.Col[place] == pattern : FitsPattern(zip.Col[place], pattern))
            places.push_back(place);
    }
    return places;
}

/// The names to extract, in the archive's order; all of them without any pattern. The second one of a name stays: it
/// could not be extracted.
QStringList Chosen(const ccZip& zip, const Arguments& given) {
    const QStringList patterns = given.Texts("NAME");
    std::vector<bool> chosen(static_cast<std::size_t>(zip.Count()), patterns.isEmpty());
    for (const QString& pattern : patterns) {
        const std::vector<qsizetype> places = Named(zip, pattern);
        if (places.empty())
            Fail(given.Text("ARCHIVE"), u"no entry is named %1"_s.arg(pattern));
        for (const qsizetype place : places)
            chosen[static_cast<std::size_t>(place)] = true;
    }
    QStringList names;
    for (qsizetype place = 0; place < zip.Col.size(); ++place) {
        if (chosen[static_cast<std::size_t>(place)])
            names.append(zip.Col[place]);
    }
    return names;
}

/// Where an entry lands: another one of that place would replace it.
QString PlaceOf(const QString& name, bool withFolders) {
    const qsizetype last = std::max(name.lastIndexOf(u'/'), name.lastIndexOf(u'\\'));
    return (withFolders ? QString(name).replace(u'\\', u'/') : name.sliced(last + 1)).toCaseFolded();
}

void Extract(const Arguments& given) {
    ccZip zip;
    Open(zip, given);
    const bool withFolders = given.Has("--dirs");
    const QString folder = given.Path("FOLDER");
    QSet<QString> written;
    QString reason;
    int failures = 0;
    const QStringList names = Chosen(zip, given);
    std::vector<qint32> entries;
    for (const QString& name : names)
        entries.push_back(zip.Find(name));
    zip.Ahead(entries, false);
    for (const QString& name : names) {
        const bool isFolder = name.endsWith(u'/');
        const QString place = PlaceOf(name, withFolders);
        const bool isTaken = !isFolder && written.contains(place);
        if (!isTaken && zip.Decompress(folder, name, withFolders) == 0) {
            if (!isFolder)
                written.insert(place);
        } else if (failures++ == 0) {
            reason = isTaken ? name + u": another entry has that name"_s : zip.GetZipInfo();
        }
    }
    if (Files::FolderExists(folder))
        Files::FlushSystem(folder);
    if (failures > 0)
        throw RuntimeError(ErrorNumber::PathFileAccess,
                           failures == 1 ? reason : u"%1 (and %2 more not extracted)"_s.arg(reason).arg(failures - 1));
}

} // namespace

std::vector<Command> ZipReadCommands() {
    const Parameter archive{Kind::Place, "ARCHIVE"};
    const Parameter password{Kind::Option, "--password", "Opens what is encrypted"};
    return {{"list",
             "Print an entry a line: index, size, name",
             {archive, {Kind::Flag, "--json", "Print JSON, with the comment"}, password},
             List},
            {"extract",
             "Write entries to files in a folder, over what stands there, never outside it",
             {archive,
              {Kind::Place, "FOLDER"},
              {Kind::Places, "NAME", "Names, and patterns with * and ?; all entries without any"},
              {Kind::Flag, "--dirs", "Put the files into the folders of their names, not all into the folder itself"},
              password},
             Extract},
            {"comment", "Print the archive's comment", {archive, password}, PrintComment}};
}
