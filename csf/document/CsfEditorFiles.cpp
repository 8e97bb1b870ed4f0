// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Host.h"
#include "core/LastTime.h"
#include "core/mTraduction.h"
#include "csf/document/CsfEditor.h"
#include "csf/format/mCSF.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <numeric>
#include <vector>

using namespace Qt::StringLiterals;
using Document::Saved;
using mTraduction::GetText;

namespace {

Host::FileDialog TableDialog(const QString& path) {
    return {.Title = u"CSF Editor"_s,
            .Filter = u"Fichiers CSF (*.csf)|*.csf"_s,
            .DefaultExtension = u"csf"_s,
            .DefaultName = u"*.csf"_s,
            .Folder = Document::FolderToOpenIn(u"csf"_s, path)};
}

} // namespace

QString CsfEditor::NewName() {
    return GetText(u"New"_s) + u"CSF.csf"_s;
}

bool CsfEditor::GoOnWithoutChanges(const QString& name) {
    if (!state_.Modified)
        return true;
    if (!Document::GoOnWithoutChanges(name, [this] { return SaveToFileOrName(); }))
        return false;
    rescue_.GivenUp();
    return true;
}

bool CsfEditor::MayClose() {
    if (Locked() || !GoOnWithoutChanges(Paths::ToNative(state_.Path)))
        return false;
    rescue_.KeepRescue();
    return true;
}

void CsfEditor::New() {
    if (Locked() || !GoOnWithoutChanges(Paths::LastPart(state_.Path)))
        return;
    rescue_.KeepRescue();
    mCSF::CsfStrings.assign(1, {});
    view_.ListChanging(LabelChange::Reset, 0);
    list_.Clear();
    state_.SelectedRow = CsfEditorState::None;
    view_.ListChanged(LabelChange::Reset, 0);
    saves_ = {};
    state_.Path = NewName();
    state_.Caption = state_.Path;
    state_.FrameVisible = true;
    state_.SizeText = u"-"_s;
    state_.LanguageText = u"0"_s;
    state_.Whole = false;
    behind_.reset();
    state_.Modified = false;
    history_.Begin();
    rescue_.Opened();
    ShowBoxes(false, {}, {});
    TellLost();
}

void CsfEditor::Open() {
    if (Locked() || !GoOnWithoutChanges(Paths::LastPart(state_.Path)))
        return;
    const auto path = Host::Current().OpenFileName(TableDialog(state_.Path));
    if (!path)
        return;
    LastTime::NoteFolder(u"csf"_s, Paths::Folder(*path));
    OpenCSFFile(*path);
}

void CsfEditor::OpenInstead(const QString& path) {
    if (Locked() || !GoOnWithoutChanges(Paths::LastPart(state_.Path)))
        return;
    if (Files::FileExists(path))
        OpenCSFFile(path);
    else
        TellRefused(path);
}

void CsfEditor::Save() {
    if (!Locked())
        SaveToFileOrName();
}

void CsfEditor::SaveAs() {
    if (!Locked())
        SaveUnderName();
}

Saved CsfEditor::SaveToFileOrName() {
    if (list_.Count() == 0)
        return Saved::NothingToSave;
    if (state_.Path == NewName())
        return SaveUnderName();
    return MaySave() ? Write() : Saved::Cancelled;
}

Saved CsfEditor::SaveUnderName() {
    if (list_.Count() == 0)
        return Saved::NothingToSave;
    if (!MaySave())
        return Saved::Cancelled;
    const auto path = Host::Current().SaveFileName(TableDialog(state_.Path));
    if (!path)
        return Saved::Cancelled;
    LastTime::NoteFolder(u"csf"_s, Paths::Folder(*path));
    state_.Path = *path;
    state_.Caption = Paths::LastPart(*path);
    state_.FrameVisible = true;
    return Write();
}

Saved CsfEditor::Write() {
    bool written = false;
    {
        const Busy busy(view_);
        rescue_.Saving();
        written = state_.Whole ? WriteWholeTable() : WriteEightBits();
        Ignoring([&] {
            state_.SizeText = QString::number(Files::FileLength(state_.Path) / 1024) + u' ' + GetText(u"KiloBytes"_s);
        });
        onDisk_ = StateOf(state_.Path);
        state_.Modified = !written;
        if (written) {
            history_.Saved(list_);
            rescue_.Saved();
            Document::NoteRecent(u"csf"_s, state_.Path);
        } else {
            history_.NeverAsSaved();
        }
        view_.StateChanged();
    }
    if (!written)
        TellFailedSave();
    return written ? Saved::Yes : Saved::Failed;
}

bool CsfEditor::WriteEightBits() {
    mCSF::CsfStrings = list_.Table();
    if (!mCSF::WriteCSF(state_.Path, static_cast<qint16>(state_.LanguageText.toInt()), &saves_))
        return false;
    std::vector<int> places(mCSF::CsfStrings.size());
    std::iota(places.begin(), places.end(), 0);
    list_.Saved(places);
    ReadBehind(state_.Path);
    TellLost();
    return true;
}

void CsfEditor::TellFailedSave() const {
    QString text = GetText(u"SaveFailed"_s) + u"\r\n"_s + saves_.Failure;
    if (!saves_.Aside.isEmpty())
        text += u"\r\n"_s + GetText(u"OldFileKept"_s).replace(u"%1"_s, Paths::ToNative(saves_.Aside));
    Host::Current().Message(text, Host::Icon::Critical);
}
