// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/export/ExportDialogs.h"

#include "core/Host.h"
#include "core/mTraduction.h"
#include "install/InstallSource.h"
#include "platform/AnsiCodec.h"
#include "platform/File.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

constexpr qint64 LongestReadMe = qint64{1024} * 1024;
constexpr qsizetype MostNamesShown = 12;

/// Both dialogs of files are one control's. This is meant.
QString DefaultExtension() {
    return u"zip"_s;
}

/// Whether names that the page lacks letters for become UTF-8; nothing for Cancel.
std::optional<bool> AskForUtf8(const QStringList& names) {
    if (names.isEmpty())
        return false;
    QStringList shown;
    for (const QString& name : names.first(std::min(MostNamesShown, names.size())))
        shown += ExportSources::Shown(name);
    if (shown.size() < names.size())
        shown += u"..."_s;
    const QString question = GetText(u"NamesBeyondThePage"_s).replace("%1"_L1, shown.join("\r\n"_L1));
    // The question mark is the way of old, and what every program reads.
    const Host::Answer answer = Host::Current().Message(question, Host::Icon::Question, Host::Buttons::YesNoCancel,
                                                        u"Brindock 2005"_s, Host::Answer::No);
    if (answer == Host::Answer::Cancel)
        return std::nullopt;
    return answer == Host::Answer::Yes;
}

} // namespace

QString ExportDialogs::ListedNames(const std::vector<ExportRecord>& records) {
    QStringList names;
    for (const ExportRecord& record : records)
        names += record.Name;
    return names.join(u", "_s);
}

bool ExportDialogs::HasMods(const std::vector<ExportRecord>& records) {
    return std::ranges::any_of(records, [](const ExportRecord& record) { return record.Kind == FileKind::Mod; });
}

QString ExportDialogs::ReadMeOf(const QString& path) {
    const File file = File::Open(path, File::Access::Read);
    if (file.Length() > LongestReadMe)
        throw RuntimeError(ErrorNumber::OutOfMemory, GetText(u"ReadMeTooLong"_s).replace("%1"_L1, file.Name()));
    return AnsiCodec::Decode(file.Read(0, LongestReadMe));
}

std::optional<QString> ExportDialogs::OpenReadMe() {
    const std::optional<QString> path = Host::Current().OpenFileName({.Title = GetText(u"Open"_s),
                                                                      .Filter = u"Text Files (*.txt)|*.txt"_s,
                                                                      .DefaultExtension = DefaultExtension(),
                                                                      .DefaultName = u"*.txt"_s});
    if (!path)
        return std::nullopt;
    try {
        return ReadMeOf(*path);
    } catch (const RuntimeError& error) {
        Host::Current().Message(error.Description(), Host::Icon::Critical);
        return std::nullopt;
    }
}

std::optional<ExportReport> ExportDialogs::RunToZip(const std::vector<ExportRecord>& records, ExportChoice choice,
                                                    const ExportWatch& watch) {
    const std::optional<QString> zip = Host::Current().SaveFileName({.Title = GetText(u"ExportFiles"_s),
                                                                     .Filter = u"ZIP Files (*.zip)|*.zip"_s,
                                                                     .DefaultExtension = DefaultExtension(),
                                                                     .DefaultName = u"*.zip"_s});
    if (!zip)
        return std::nullopt;
    const std::vector<ExportSource> sources = ExportSources::Of(records);
    const std::optional<bool> utf8 = AskForUtf8(ExportSources::NamesBeyondThePage(sources));
    if (!utf8)
        return std::nullopt;
    choice.Utf8Names = *utf8;
    return Exporting::ToZip(sources, *zip, choice, watch);
}

std::optional<ExportReport> ExportDialogs::RunToFolder(const std::vector<ExportRecord>& records,
                                                       const ExportChoice& choice, const ExportWatch& watch) {
    const std::optional<QString> folder = Host::Current().ChooseFolder(GetText(u"BrowseForFolder"_s), {});
    if (!folder || folder->isEmpty())
        return std::nullopt;
    return Exporting::ToFolder(ExportSources::Of(records), *folder, choice, watch);
}
