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
    return {
        .Table = {.Rows = list_.Table(), .LanguageText = state_.LanguageText, .LanguageShown = state_.LanguageShown},
        .Path = state_.Path,
        .NeverSaved = state_.Path == NewName()};
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
    view_.ListChanging(LabelChange::Reset, 0);
    list_.Restore(table.Rows);
    state_.SelectedRow = CsfEditorState::None;
    view_.ListChanged(LabelChange::Reset, 0);
    saves_ = {};
    // The name of a document without a file may be another one in another language.
    state_.Path = facts.NeverSaved ? NewName() : facts.Path;
    state_.Caption = Paths::LastPart(state_.Path);
    state_.FrameVisible = true;
    state_.ActionsVisible = true;
    state_.SizeText = u"-"_s;
    state_.LanguageText = table.LanguageText;
    state_.LanguageShown = table.LanguageShown;
    state_.Modified = true;
    if (list_.Has(0))
        SelectAndClick(0, true);
    else
        ShowBoxes(false, {}, {});
    view_.ShowWindow();
}
