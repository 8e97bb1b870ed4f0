// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Files that can't be opened, and files that change while they are open.
#include "core/mTraduction.h"
#include "csf/document/CsfEditor.h"
#include "csf/format/CsfTable.h"
#include "csf/format/mCSF.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

/// Why a file is refused, in the user's words as far as there are such.
QString ReasonFor(const QString& path) {
    try {
        CsfTable::Read(path);
        return {};
    } catch (const RuntimeError& error) {
        if (error.Number() == ErrorNumber::TypeMismatch)
            return GetText(u"NoStringTable"_s);
        if (error.Number() == ErrorNumber::Subscript)
            return GetText(u"TableCutOff"_s);
        return error.Description();
    }
}

} // namespace

void CsfEditor::TellRefused(const QString& path) {
    const QString reason = ReasonFor(path);
    if (!reason.isEmpty())
        view_.ShowNotice(
            {.Text = GetText(u"TableNotOpened"_s).replace("%2"_L1, reason).replace("%1"_L1, Paths::ToNative(path))});
}

void CsfEditor::CameToFront() {
    if (mCSF::IsLocked() || state_.Path == NewName())
        return;
    const FileState now = StateOf(state_.Path);
    if (now == onDisk_ || now.Identity.isEmpty())
        return;
    onDisk_ = now; // it is told once
    TellChanged();
}

void CsfEditor::TellChanged() {
    view_.ShowNotice({.Text = GetText(u"ChangedOnDisk"_s).replace("%1"_L1, Paths::ToNative(state_.Path)),
                      .Links = {{GetText(u"ReadAgain"_s), [this] { ReadAgain(); }}, {GetText(u"KeepMine"_s), [] {}}}});
}

/// Changes that are to be saved go to another file: this one is the other program's. The row that was selected is
/// again.
void CsfEditor::ReadAgain() {
    if (Locked())
        return;
    const QString path = state_.Path;
    const QString name = list_.Has(state_.SelectedRow) ? list_.Row(state_.SelectedRow).Name : QString();
    if (state_.Modified) {
        if (!Document::GoOnWithoutChanges(Paths::LastPart(path), [this] { return SaveUnderName(); }))
            return TellChanged();
        rescue_.GivenUp();
    }
    if (state_.Whole)
        LoadWhole(path);
    else
        OpenCSFFile(path);
    if (const int place = list_.PlaceOfName(name); place > 0)
        SelectAndClick(place, true);
}
