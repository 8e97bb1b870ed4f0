// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The rows of the visible list: their details, names, order and check marks.

#include "core/ProgramFolders.h"
#include "core/Sizes.h"
#include "core/Uninstaller.h"
#include "personal/document/PersonalFiles.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>

using namespace Qt::StringLiterals;

bool PersonalFiles::Has(int place) const {
    return state_.ShownList && place >= 0 && place < List(*state_.ShownList).Rows().Count();
}

const ListRow& PersonalFiles::Row(int place) const {
    return List(*state_.ShownList).Rows().Row(place);
}

void PersonalFiles::RowSelected(int place) {
    if (state_.ShownList != state_.Kind || !Has(place))
        return;
    const ListRow row = Row(place);
    List(state_.Kind).Select(place);
    notices_.RowSelected();
    HideDetails();
    state_.DeleteEnabled = true;
    state_.ExportEnabled = true;
    state_.UninstallEnabled = MayUninstall(place);
    switch (state_.Kind) {
    case PersonalKind::Map:
        ShowMap(row);
        break;
    case PersonalKind::Replay:
        ShowReplay(row);
        break;
    case PersonalKind::ShellMap:
        ShowShellMap(row);
        break;
    case PersonalKind::Mod:
        ShowMod(row);
        break;
    }
    view_.StateChanged();
}

void PersonalFiles::ShowMap(const ListRow& row) {
    state_.MapDetailsVisible = true;
    state_.MapName = row.Text;
    state_.MapSize = Sizes::KiloBytes(Files::FileLength(row.Key + u'\\' + row.Text + u".map"_s));
    QString picture;
    Ignoring([&] { picture = MapFiles::Preview(row.Key, row.Text); });
    state_.MapPaneHeight = picture.isEmpty() ? MapPaneWithout : MapPaneWithPicture;
    if (picture.isEmpty())
        picture_.Abandon();
    else
        picture_.Show(picture, ProgramFolders::ScratchFolder());
}

void PersonalFiles::ShowReplay(const ListRow& row) {
    state_.ReplayDetailsVisible = true;
    state_.ReplayName = row.Text;
    state_.ReplaySize = Sizes::KiloBytes(Files::FileLength(row.Key));
    state_.ReplayVersion = replays_.Rows().Text(replays_.Selected(), ReplayList::Version);
    state_.ReplayMap = replays_.Rows().Text(replays_.Selected(), ReplayList::Map);
    replays_.LoadPlayerList(state_.Players);
    view_.PlayersChanged();
}

void PersonalFiles::ShowMod(const ListRow& row) {
    state_.ModDetailsVisible = true;
    modPath_ = row.Key;
    state_.ModFile = row.Text;
    state_.ModSize = Sizes::KiloBytes(Files::FileLength(row.Key));
    FillBoxes();
}

void PersonalFiles::ShowShellMap(const ListRow& row) {
    state_.ModDetailsVisible = true;
    state_.ModFile = row.Text;
    constexpr qint64 kiloByte = 1024;
    qint64 size = 0;
    Ignoring([&] { size = Files::FileLength(row.Key + u"\\shellmap1.map"_s); });
    // A map of less than a kilobyte counts as none. This is meant.
    if (size / kiloByte == 0) {
        size = 0;
        Ignoring([&] { size = Files::FileLength(row.Key + u"\\shellmapmd.map"_s); });
    }
    state_.ModSize = Sizes::KiloBytes(size);
    FillBoxes();
}

void PersonalFiles::RenameRow(int place, const QString& text) {
    if (!Has(place) || state_.ShownList != PersonalKind::Replay || !replays_.Rows().TakesEdit(place, text))
        return;
    const bool isChecked = Row(place).Checked;
    checked_.Set(PersonalKind::Replay, Row(place), false);
    const auto renamed = [&] {
        checked_.Set(PersonalKind::Replay, Row(place), isChecked);
        view_.RowChanged(PersonalKind::Replay, place);
        UpdateStatus();
    };
    try {
        replays_.Rename(place, text);
    } catch (...) {
        renamed();
        throw;
    }
    renamed();
}

void PersonalFiles::HeaderClicked(int column) {
    if (!state_.ShownList)
        return;
    const Busy busy(view_);
    GameList& list = List(*state_.ShownList);
    view_.ListChanging(*state_.ShownList, RowChange::Sort, 0);
    newPlaces_ = list.Rows().SortBy(column);
    if (Has(list.Selected()))
        list.Select(newPlaces_[static_cast<std::size_t>(list.Selected())]);
    view_.ListChanged(*state_.ShownList, RowChange::Sort, 0);
}

void PersonalFiles::CheckChanged(int place, bool checked) {
    if (!Has(place))
        return;
    if (Row(place).Checked != checked) {
        List(*state_.ShownList).Rows().SetChecked(place, checked);
        view_.RowChanged(*state_.ShownList, place);
    }
    checked_.Set(*state_.ShownList, Row(place), checked);
    UpdateStatus();
}

void PersonalFiles::CheckAll(bool checked) {
    for (int place = 0; Has(place); ++place)
        CheckChanged(place, checked);
}

void PersonalFiles::OpenFolder(int place) {
    if (!Has(place))
        return;
    const QString& key = Row(place).Key;
    view_.OpenFolder(Files::FolderExists(key) ? key : Paths::Folder(key));
}

void PersonalFiles::CopyPath(int place) {
    if (Has(place))
        view_.CopyText(Paths::ToNative(Row(place).Key));
}

bool PersonalFiles::MayUninstall(int place) const {
    return Has(place) && Uninstaller::Current() != nullptr && Uninstaller::Current()->Knows(Row(place).Key);
}

void PersonalFiles::UninstallRow(int place) {
    if (!MayUninstall(place))
        return;
    const QString path = Row(place).Key;
    if (!Uninstaller::Current()->Uninstall(path))
        return;
    if (!Files::FileExists(path)) // of a folder, too: it may be another shell map's
        ForgetLost();
    Refresh();
}

void PersonalFiles::UpdateStatus() {
    state_.StatusText.clear();
    state_.HintText.clear();
    if (state_.ShownList) {
        const int rows = List(*state_.ShownList).Rows().Count();
        state_.StatusText = texts_.Status(rows, checked_.Count(), checked_.Size());
        if (rows == 0)
            state_.HintText = PersonalTexts::Hint(*state_.ShownList);
    }
    view_.StatusChanged();
}
