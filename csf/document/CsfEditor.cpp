// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/document/CsfEditor.h"

#include "core/Host.h"
#include "core/LostLetters.h"
#include "core/Sizes.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "csf/format/mCSF.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

QString ForBox(QString value) {
    return value.replace(u'\n', u"\r\n"_s);
}

} // namespace

CsfEditor::CsfEditor(CsfEditorView& view)
    : view_(view),
      rescue_([this] { return Rescued(); },
              [this](const QString& reason) {
                  view_.ShowNotice({.Text = GetText(u"RescueFailed"_s).replace("%1"_L1, reason)});
              }),
      offers_(view, ForOffers()) {
    state_.Path = NewName();
    state_.FindText = GetText(u"Find"_s);
    rescue_.Opened();
}

QStringList CsfEditor::Languages() {
    return {u"0 - English"_s, u"1 - Unknown"_s, u"2 - German"_s,  u"3 - French"_s, u"4 - Unknown"_s,
            u"5 - Unknown"_s, u"6 - Unknown"_s, u"7 - Unknown"_s, u"8 - Corean"_s};
}

bool CsfEditor::Locked() const {
    if (mCSF::IsLocked())
        Host::Current().Beep();
    return mCSF::IsLocked();
}

void CsfEditor::OpenCSFFile(const QString& path) {
    const bool isThere = Files::FileExists(path);
    if (isThere && Locked())
        return;
    const FileState before = StateOf(path);
    const qint32 language = isThere ? mCSF::ReadCSF(path) : mCSF::Refused;
    if (language != mCSF::Refused) {
        onDisk_ = before;
        Load(path, language);
    } else if (isThere && !OfferWhole(path)) {
        TellRefused(path);
    }
    // A save that was killed may have left nothing else.
    if (offers_.TellBeside(path) && language == mCSF::Refused)
        view_.ShowWindow();
}

void CsfEditor::Load(const QString& path, qint32 language) {
    KeepRescue(); // of what nobody was asked about
    // A number beyond the list leaves the list as it was. This is meant.
    if (language < Languages().size())
        state_.LanguageShown = language;
    state_.LanguageText = QString::number(language);
    saves_ = {};
    state_.Path = path;
    state_.Caption = Paths::LastPart(path);
    state_.FrameVisible = true;
    Ignoring([&] { state_.SizeText = Sizes::KiloBytes(Files::FileLength(path)); });
    {
        const Busy busy(view_);
        view_.ListChanging(LabelChange::Reset, 0);
        list_.Load(mCSF::CsfStrings);
        state_.SelectedRow = CsfEditorState::None;
        view_.ListChanged(LabelChange::Reset, 0);
    }
    state_.Whole = false;
    ReadBehind(path);
    state_.ActionsVisible = true;
    SelectAndClick(0, true);
    state_.Modified = false;
    history_.Begin();
    rescue_.Opened();
    Document::NoteRecent(u"csf"_s, path);
    view_.StateChanged();
    TellLost();
    view_.ShowWindow();
}

void CsfEditor::SelectAndClick(int place, bool focus) {
    state_.SelectedRow = place;
    view_.SelectRow(place, focus);
    ClickRow(place);
}

void CsfEditor::ClickRow(int place) {
    if (!list_.Has(place))
        return;
    state_.SelectedRow = place;
    history_.Break();
    ShowBoxes(true, list_.Row(place).Name, ForBox(list_.Row(place).Value));
}

void CsfEditor::ShowBoxes(bool enabled, const QString& name, const QString& value) {
    state_.BoxesEnabled = enabled;
    state_.NameText = name;
    state_.ValueText = value;
    view_.BoxesChanged();
    view_.StateChanged();
}

void CsfEditor::ClickHeader(LabelList::Column column) {
    const Busy busy(view_);
    view_.ListChanging(LabelChange::Sort, 0);
    newPlaces_ = list_.SortBy(column);
    if (list_.Has(state_.SelectedRow))
        state_.SelectedRow = newPlaces_[static_cast<std::size_t>(state_.SelectedRow)];
    view_.ListChanged(LabelChange::Sort, 0);
    view_.StateChanged();
}

void CsfEditor::NameTyped(const QString& text) {
    if (!list_.Has(state_.SelectedRow))
        return;
    const LabelRow before = list_.Row(state_.SelectedRow);
    const QString stored = LostLetters::AsStored(text);
    list_.SetName(state_.SelectedRow, stored);
    if (stored != text)
        list_.SetLostLetters(state_.SelectedRow);
    Typed(before, true, text, stored);
}

void CsfEditor::ValueTyped(const QString& text) {
    if (!list_.Has(state_.SelectedRow))
        return;
    const LabelRow before = list_.Row(state_.SelectedRow);
    SetValue(QString(text).replace(u"\r\n"_s, u"\n"_s));
    Typed(before, false, text, state_.Whole ? text : LostLetters::AsStored(text));
}

// A box whose text is stored as another one shows that at once.
void CsfEditor::Typed(const LabelRow& before, bool isName, const QString& text, const QString& stored) {
    const int place = state_.SelectedRow;
    history_.Typed(place, before, list_.Row(place), isName);
    state_.Modified = true;
    view_.RowChanged(place);
    if (stored != text) {
        (isName ? state_.NameText : state_.ValueText) = stored;
        view_.BoxChanged(isName);
        Notice notice{.Text = LostLetters::Told({list_.Row(place).Name})};
        if (!isName) // a name has 8 bits everywhere
            notice.Links = {KeepEverythingLink()};
        view_.ShowNotice(notice);
    }
    view_.StateChanged();
}

void CsfEditor::Add() {
    const int place = list_.Count();
    view_.ListChanging(LabelChange::Insert, place);
    list_.Add(GetText(u"New"_s), GetText(u"Text"_s));
    history_.Added(place, list_.Row(place));
    view_.ListChanged(LabelChange::Insert, place);
    view_.ScrollToRow(place);
    state_.Modified = true;
    view_.StateChanged();
}

void CsfEditor::Delete() {
    const int place = state_.SelectedRow;
    if (!list_.Has(place))
        throw RuntimeError(ErrorNumber::ObjectNotSet, u"no row is selected"_s);
    history_.Deleted(place, list_.Row(place));
    view_.ListChanging(LabelChange::Remove, place);
    list_.Remove(place);
    state_.SelectedRow = CsfEditorState::None;
    view_.ListChanged(LabelChange::Remove, place);
    // Behind the last row there is none to select, and the program ends. This is meant.
    if (!list_.Has(place))
        throw RuntimeError(ErrorNumber::Subscript, u"no row follows the one that was deleted"_s);
    state_.Modified = true;
    SelectAndClick(place, false);
}

void CsfEditor::Undo() {
    if (CanUndo())
        Do(history_.Undo());
}

void CsfEditor::Redo() {
    if (CanRedo())
        Do(history_.Redo());
}

void CsfEditor::Do(const RowStep& step) {
    const int there = step.Before ? list_.PlaceOf(step.Before->Id) : -1;
    if (step.Before && there < 0)
        return; // no string of the whole table
    const int place = step.Before ? there : std::min(step.Place, list_.Count());
    if (step.Before && step.After) {
        list_.SetTexts(place, *step.After);
        view_.RowChanged(place);
    } else {
        const LabelChange change = step.After ? LabelChange::Insert : LabelChange::Remove;
        view_.ListChanging(change, place);
        if (step.After)
            list_.Insert(place, *step.After);
        else
            list_.Remove(place);
        state_.SelectedRow = CsfEditorState::None;
        view_.ListChanged(change, place);
    }
    state_.Modified = !history_.IsAsSaved();
    SelectNear(place);
}

/// The row at a place, or the one before; none in an empty list.
void CsfEditor::SelectNear(int place) {
    if (list_.Count() > 0)
        SelectAndClick(std::min(place, list_.Count() - 1), false);
    else
        ShowBoxes(false, {}, {});
}

void CsfEditor::FindTyped(const QString& text) {
    state_.FindText = text;
    view_.StateChanged();
}

void CsfEditor::FindInValues(bool values) {
    state_.FindsValues = values;
    view_.StateChanged();
}

void CsfEditor::FindFocused() {
    if (state_.FindText != GetText(u"Find"_s))
        return;
    state_.FindText.clear();
    state_.FindIsGrey = false;
    view_.StateChanged();
}

void CsfEditor::FindLeft() {
    if (!state_.FindText.isEmpty())
        return;
    state_.FindText = GetText(u"Find"_s);
    state_.FindIsGrey = true;
    view_.StateChanged();
}

void CsfEditor::FindNext() {
    const int next = state_.SelectedRow + 1;
    // Only the last row starts at the top again; what is not found behind the selection is not found. This is meant.
    const int found = list_.Find(state_.FindText, next < list_.Count() ? next : 0, state_.FindsValues);
    if (found >= 0)
        SelectAndClick(found, true);
}

void CsfEditor::FindNextByKey() {
    if (state_.FindText != GetText(u"Find"_s))
        FindNext();
}

QString CsfEditor::CountText() const {
    QString rows = GetText(u"RowCount"_s).replace(u"%1"_s, Sizes::Grouped(list_.Count()));
    if (state_.FindIsGrey || state_.FindText.isEmpty())
        return rows;
    const int matches = list_.Matches(state_.FindText, state_.FindsValues);
    return rows + u", "_s + GetText(u"MatchCount"_s).replace(u"%1"_s, Sizes::Grouped(matches));
}

bool CsfEditor::MenuFollows() {
    return !mMain::CommandLine.contains(u"/tcsf"_s) && !mMain::CsfOpenedByHost;
}
