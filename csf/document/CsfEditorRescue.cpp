// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Host.h"
#include "csf/document/CsfEditor.h"
#include "csf/format/mCSF.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <utility>

using namespace Qt::StringLiterals;

RescueOffers::Editor CsfEditor::ForOffers() {
    return {.Kind = TableRescue::Kind,
            .Beside = u".sav"_s,
            .Text = {},
            .IsWhole = [](const QString& path) { return Ignoring([&] { CsfTable::Read(path); }); },
            .Open = [this](const Rescues::Left& left) { return OpenRescue(left); },
            .MayReplace = [this] { return !Locked() && GoOnWithoutChanges(Paths::LastPart(state_.Path)); },
            .Replaced = [this](const QString& path) { OpenCSFFile(path); }};
}

TableRescue::Document CsfEditor::Rescued() const {
    RescuedTable table{
        .Rows = list_.Table(), .LanguageText = state_.LanguageText, .LanguageShown = state_.LanguageShown};
    table.Whole = state_.Whole;
    if (behind_)
        table.Behind = behind_->Bytes();
    for (const LabelRow& row : list_.Rows())
        table.Indexes += row.Index;
    return {.Table = std::move(table), .Path = state_.Path, .NeverSaved = state_.Path == NewName()};
}

bool CsfEditor::OpenRescue(const Rescues::Left& left) {
    if (Locked() || !GoOnWithoutChanges(Paths::LastPart(state_.Path)))
        return false;
    RescuedTable table;
    try {
        table = RescuedTable::Decoded(Rescues::ContentOf(left));
    } catch (const RuntimeError& error) {
        Host::Current().Message(error.Description(), Host::Icon::Critical);
        return false;
    }
    rescue_.KeepRescue();
    // Another program may have taken it since it was offered.
    if (rescue_.Adopt(left.Folder))
        ShowRescued(left.Facts, table);
    return true;
}

void CsfEditor::ShowRescued(const RescueFacts& facts, const RescuedTable& table) {
    mCSF::CsfStrings = table.Rows;
    behind_.reset();
    Ignoring([&] { behind_ = TableBehind::Read(table.Behind); });
    state_.Whole = table.Whole;
    view_.ListChanging(LabelChange::Reset, 0);
    list_.Restore(table.Rows, behind_ ? table.Indexes : QList<qint32>());
    state_.SelectedRow = CsfEditorState::None;
    view_.ListChanged(LabelChange::Reset, 0);
    saves_ = {};
    // The name of a document without a file may be another one in another language.
    state_.Path = facts.NeverSaved ? NewName() : facts.Path;
    onDisk_ = StateOf(state_.Path);
    state_.Caption = Paths::LastPart(state_.Path);
    state_.FrameVisible = true;
    state_.ActionsVisible = true;
    state_.SizeText = u"-"_s;
    state_.LanguageText = table.LanguageText;
    state_.LanguageShown = table.LanguageShown;
    state_.Modified = true;
    history_.Begin(false);
    if (list_.Has(0))
        SelectAndClick(0, true);
    else
        ShowBoxes(false, {}, {});
    TellLost();
    view_.ShowWindow();
}
