// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/FileAdding.h"

#include "big/document/KeptRows.h"
#include "big/document/OffsetNotices.h"
#include "big/document/ScratchFolders.h"
#include "core/Host.h"
#include "core/LastTime.h"
#include "core/LostLetters.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;
using ArchiveEdits::Source;
using mTraduction::GetText;

namespace {

constexpr auto addFolder = u"big add";

Host::FileDialog AnyFileDialog() {
    return {.Title = GetText(u"Add"_s),
            .Filter = u"Tous les fichiers (*.*)|*.*"_s,
            .DefaultExtension = {},
            .DefaultName = {},
            .Folder = LastTime::Folder(QString::fromUtf16(addFolder))};
}

QString WithoutTrailingBackslash(const QString& path) {
    return path.endsWith(u'\\') ? path.chopped(1) : path;
}

bool MayReplace(StoredNames& names, const QString& name) {
    QString question = name + "\r\n\r\n"_L1 + GetText(u"FileAlreadyExists"_s);
    if (const QString more = names.Meet(); !more.isEmpty())
        question += "\r\n"_L1 + more;
    const bool may = Host::Current().Message(question, Host::Icon::Question, Host::Buttons::YesNo) == Host::Answer::Yes;
    if (!may)
        names.Refused();
    return may;
}

Source SourceOf(const QString& path) {
    Source source{.Path = path};
    Ignoring([&] { source.Size = Files::FileLength(path); });
    return source;
}

void DropFolder(ArchiveEdits::Drop& drop, StoredNames& names, const QString& prefix, const QString& folder,
                QStringList& leftOut) {
    for (const Files::FoundFile& file : Files::ListFolderFiles(folder, true, &leftOut))
        drop.FileOfFolder(names.Take(prefix + Paths::LastPart(folder) + file.Path.sliced(folder.size())),
                          {.Path = file.Path, .Size = file.Size});
}

QString NameAt(int index) {
    const auto at = static_cast<std::size_t>(index);
    return at < mBIG::BigEntries.size() ? mBIG::BigEntries[at].Name : QString();
}

} // namespace

FileAdding::FileAdding(EditorPanes& panes, std::function<void(int)> recordsLost)
    : panes_(panes),
      recordsLost_(std::move(recordsLost)) {}

void FileAdding::Add() {
    if (EditorPanes::Locked())
        return;
    const EditorPanes::Command command(panes_);
    const QStringList paths = Host::Current().OpenFileNames(AnyFileDialog());
    if (paths.isEmpty())
        return;
    LastTime::NoteFolder(QString::fromUtf16(addFolder), Paths::Folder(paths.first()));
    ArchiveEdits::DropResult result;
    std::vector<int> added;
    for (const QString& path : paths)
        Ignoring([&] {
            if (const auto index = AddFile(path, result))
                added.push_back(*index);
        });
    if (!added.empty())
        Ignoring([&] { ShowAdded(added); });
    TellDrop(result);
}

std::optional<int> FileAdding::AddFile(const QString& path, ArchiveEdits::DropResult& result) {
    const QString name = panes_.Names.Take(panes_.SelectedKey() + Paths::LastPart(path));
    const int found = mBIG::FindEntry(name);
    if (found >= 0 && !MayReplace(panes_.Names, name))
        return {};
    if (found >= 0 && !mBIG::BigEntries[static_cast<std::size_t>(found)].Deleted)
        result.Replaced += name;
    ArchiveEdits::Add(mBIG::Open(), name, SourceOf(path));
    panes_.State.Modified = true;
    ++result.Taken;
    return found >= 0 ? found : mBIG::HighestIndex();
}

void FileAdding::ShowAdded(const std::vector<int>& indices) {
    panes_.ShowSelected();
    std::vector<int> places;
    for (const int index : indices)
        if (const int place = panes_.PlaceOf(index); place >= 0)
            places.push_back(place);
    if (places.empty())
        return;
    std::ranges::sort(places);
    places.erase(std::unique(places.begin(), places.end()), places.end());
    panes_.View.Reveal(places);
    if (panes_.Selected)
        panes_.Selected(places.back());
}

QStringList FileAdding::AdoptDragged(QStringList paths) {
    static int drops = 0;
    const QString folder = ScratchFolders::Dropped() + QString::number(++drops) + u'\\';
    for (QString& path : paths) {
        if (!ScratchFolders::IsDragged(path))
            continue;
        const QString kept = folder + Paths::LastPart(path);
        const bool moved = Ignoring([&] {
            Files::MakeFolders(folder);
            Files::Rename(path, kept);
        });
        if (moved)
            path = kept;
    }
    return paths;
}

void FileAdding::ForgetAdopted() {
    Files::DeleteFolder(ScratchFolders::Dropped());
}

void FileAdding::Drop(const QStringList& paths) {
    if (EditorPanes::Locked() || paths.isEmpty())
        return;
    const EditorPanes::Command command(panes_);
    const int highest = mBIG::HighestIndex();
    const QString last = NameAt(highest);
    KeptRows kept(panes_);
    ArchiveEdits::DropResult result;
    QStringList leftOut;
    {
        const mBIG::ArchiveLock lock;
        ArchiveEdits::Drop drop(mBIG::Open(), [this](const QString& name) { return MayReplace(panes_.Names, name); });
        leftOut = DropPaths(paths, drop);
        result = drop.Result();
    }
    // While record 0 is blank a new record takes the place of the last one, of a deleted one too, which is no loss to
    // tell.
    if (!result.Lost.isEmpty() || NameAt(highest).compare(last, Qt::CaseInsensitive) != 0)
        recordsLost_(highest);
    panes_.State.Modified = true;
    panes_.ShowFolder(panes_.SelectedKey());
    kept.PutBack();
    TellDrop(result);
    if (!leftOut.isEmpty())
        Host::Current().MessageWithList(GetText(u"LeftOut2"_s), leftOut);
}

QStringList FileAdding::DropPaths(const QStringList& paths, ArchiveEdits::Drop& drop) {
    QStringList leftOut;
    QString prefix = panes_.SelectedKey();
    const auto lastFolder = std::find_if(paths.rbegin(), paths.rend(), &Files::FolderExists).base();
    for (auto path = paths.begin(); path != paths.end(); ++path) {
        if (Files::FolderExists(*path)) {
            const QString folder = WithoutTrailingBackslash(*path);
            // The root of all folders has no name to stand under.
            if (folder.isEmpty())
                leftOut += Paths::ToNative(*path);
            else
                Ignoring([&] { DropFolder(drop, panes_.Names, prefix, folder, leftOut); });
            // The tree is made anew and the root selected, where the paths behind go. This is meant. Only the last
            // folder's tree is ever seen.
            prefix.clear();
            if (path + 1 == lastFolder)
                panes_.CreateDirs();
        } else if (Files::FileExists(*path)) {
            Source source = SourceOf(*path);
            source.Size = std::max<qint64>(source.Size, 0);
            drop.File(panes_.Names.Take(prefix + Paths::LastPart(*path)), source);
        } else {
            leftOut += Paths::ToNative(*path);
        }
    }
    return leftOut;
}

void FileAdding::TellDrop(const ArchiveEdits::DropResult& result) {
    QStringList told;
    if (const QString names = panes_.Names.TakeTold(); !names.isEmpty())
        told += names;
    const auto tell = [&](QString text, const QStringList& names) {
        if (!names.isEmpty())
            told += text.replace("%1"_L1, LostLetters::NameOrCount(names));
    };
    tell(GetText(u"DropLost"_s), result.Lost);
    tell(GetText(u"DropHidden"_s), result.Hidden);
    tell(GetText(u"DropReplaced"_s), result.Replaced);
    if (!told.isEmpty())
        panes_.View.ShowNotice({.Text = told.join(u' ')});
    else
        OffsetNotices::TellOnlyEntry(panes_);
}
