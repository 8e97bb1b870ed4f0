// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Tables that keep everything: what 8 bits lose of a file, and the rows that lose nothing.
#include "core/LostLetters.h"
#include "core/Sizes.h"
#include "core/mTraduction.h"
#include "csf/document/CsfEditor.h"
#include "csf/format/mCSF.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/SaveLock.h"
#include "platform/WriteAside.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

void CsfEditor::ReadBehind(const QString& path) {
    behind_ = TableBehind::ReadFile(path);
    // Another program may have written the file meanwhile.
    if (behind_ && !state_.Whole && behind_->Told() != mCSF::CsfStrings)
        behind_.reset();
}

NoticeLink CsfEditor::KeepEverythingLink() {
    return {GetText(u"KeepEverything"_s), [this] { KeepEverything(); }};
}

QStringList CsfEditor::LostOfFile() const {
    return behind_ && !state_.Whole ? behind_->LostNames(list_.Rows()) : QStringList();
}

void CsfEditor::TellLost() {
    const QStringList lost = LostOfFile();
    const bool losesHeader = behind_ && !state_.Whole && !behind_->HasPlainHeader();
    const bool wasTold = std::exchange(isLossTold_, !lost.isEmpty() || losesHeader);
    if (!isLossTold_ && wasTold)
        view_.ShowNotice({});
    if (!isLossTold_)
        return;
    const QString key = lost.isEmpty() ? u"HeaderBeyond"_s : lost.size() == 1 ? u"OneTextBeyond"_s : u"TextsBeyond"_s;
    view_.ShowNotice(
        {.Text = GetText(key).replace("%1"_L1, LostLetters::NameOrCount(lost)), .Links = {KeepEverythingLink()}});
}

bool CsfEditor::MaySave() {
    if (state_.Whole)
        return LostLetters::MaySave(list_.NamesOfLost());
    QStringList lost = LostOfFile();
    if (lost.isEmpty())
        return LostLetters::MaySave(list_.NamesOfLost());
    lost += list_.NamesOfLost();
    lost.removeDuplicates();
    if (LostLetters::MaySave(lost, u"SaveLosesData"_s))
        return true;
    TellLost();
    return false;
}

/// The selected row's value, with what is typed beyond 8 bits kept in mind for a table that keeps it.
void CsfEditor::SetValue(const QString& value) {
    const int place = state_.SelectedRow;
    if (state_.Whole)
        return list_.SetValue(place, value);
    const LabelRow before = list_.Row(place);
    list_.SetValue(place, LostLetters::AsStored(value));
    const QString wished = TypedOver(before.Wished.isEmpty() ? before.Value : before.Wished, before.Value, value);
    list_.SetWished(place, LostLetters::AsStored(wished) == wished ? QString() : wished);
}

void CsfEditor::LanguageChosen(int entry) {
    if (entry == state_.LanguageShown)
        return;
    state_.LanguageShown = entry;
    if (!state_.Whole || entry == CsfEditorState::None)
        return;
    state_.LanguageText = QString::number(entry);
    state_.Modified = true;
    history_.NeverAsSaved();
    view_.StateChanged();
}

void CsfEditor::KeepEverything() {
    if (state_.Whole || Locked())
        return;
    if (!behind_)
        behind_.emplace();
    history_.Turn([this](const LabelRow& row) { return behind_->WholeRow(row); });
    ShowWholeRows(behind_->WholeRows(list_.Rows()));
    isLossTold_ = false;
    rescue_.Reread(state_.Modified);
}

/// The selection stays with its row.
void CsfEditor::ShowWholeRows(std::vector<LabelRow> rows) {
    const Busy busy(view_);
    const int selected = list_.Has(state_.SelectedRow) ? list_.Row(state_.SelectedRow).Id : 0;
    view_.ListChanging(LabelChange::Reset, 0);
    list_.Replace(std::move(rows));
    state_.SelectedRow = CsfEditorState::None;
    view_.ListChanged(LabelChange::Reset, 0);
    state_.Whole = true;
    if (!behind_->Bytes().isEmpty()) {
        const quint32 language = behind_->Language();
        state_.LanguageText = QString::number(language);
        state_.LanguageShown =
            language < quint32(Languages().size()) ? static_cast<int>(language) : CsfEditorState::None;
    }
    SelectNear(std::max(0, list_.PlaceOf(selected)));
}

/// Where 8 bits show nothing of a table that is well formed.
bool CsfEditor::OfferWhole(const QString& path) {
    if (!TableBehind::ReadFile(path))
        return false;
    view_.ShowNotice({.Text = GetText(u"OnlyWhole"_s).replace("%1"_L1, Paths::ToNative(path)),
                      .Links = {{GetText(u"KeepEverything"_s), [this, path] { OpenWhole(path); }}}});
    view_.ShowWindow();
    return true;
}

void CsfEditor::OpenWhole(const QString& path) {
    if (!Locked() && GoOnWithoutChanges(Paths::LastPart(state_.Path)))
        LoadWhole(path);
}

/// A file that is not well formed any more is opened as any other.
void CsfEditor::LoadWhole(const QString& path) {
    const FileState before = StateOf(path);
    auto behind = TableBehind::ReadFile(path);
    if (!behind)
        return OpenCSFFile(path);
    onDisk_ = before;
    KeepRescue(); // of what nobody was asked about
    behind_ = std::move(behind);
    list_.Load({}); // by name, as every opening
    saves_ = {};
    state_.Path = path;
    state_.Caption = Paths::LastPart(path);
    state_.FrameVisible = true;
    state_.ActionsVisible = true;
    Ignoring([&] { state_.SizeText = Sizes::KiloBytes(Files::FileLength(path)); });
    state_.Modified = false;
    history_.Begin();
    ShowWholeRows(behind_->AllRows());
    rescue_.Opened();
    Document::NoteRecent(u"csf"_s, path);
}

bool CsfEditor::WriteWholeTable() {
    saves_.Failure.clear();
    saves_.Aside.clear();
    try {
        const SaveLock lock(state_.Path);
        TableBehind next = behind_.value_or(TableBehind());
        const std::vector<int> numbers = next.Take(list_.Rows(), state_.LanguageText.toUInt());
        WriteWhole(state_.Path, next.Bytes());
        behind_ = std::move(next);
        list_.Saved(numbers);
    } catch (const RuntimeError& error) {
        saves_.Failure = error.Description();
    }
    return saves_.Failure.isEmpty();
}
