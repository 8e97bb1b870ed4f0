// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/BigEditor.h"

#include "core/FolderGateway.h"
#include "core/Host.h"
#include "core/mMain.h"
#include "core/mShellExecuteWait.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

/// A file name with a number before its extension.
QString Numbered(const QString& name, int number) {
    const qsizetype stop = name.lastIndexOf(u'.');
    const qsizetype at = stop < 0 ? name.size() : stop;
    return name.first(at) + u" (%1)"_s.arg(number) + name.sliced(at);
}

bool IsSamePath(const QString& first, const QString& second) {
    return first.compare(second, Qt::CaseInsensitive) == 0;
}

} // namespace

BigEditor::~BigEditor() {
    *waiting_ = false;
    ForgetAdopted();
}

void BigEditor::EndWaits() {
    *std::exchange(waiting_, std::make_shared<bool>(true)) = false;
}

void BigEditor::Modify() {
    const std::vector<int> places = view_.SelectedRows();
    if (!places.empty())
        ModifyRow(places.front(), Trigger::Menu);
}

void BigEditor::ActivateRow(int place) {
    if (place >= 0 && place < list_.Count() && list_.Row(place).IsFolder)
        ClickNode(list_.Row(place).Index);
    else
        ModifyRow(place, Trigger::Row);
}

void BigEditor::ModifyRow(int place, Trigger trigger) {
    if (place < 0 || place >= list_.Count() || list_.Row(place).IsFolder || Locked())
        return;
    const int index = list_.Row(place).Index;
    if (static_cast<std::size_t>(index) >= mBIG::BigEntries.size())
        return;
    if (mBIG::BigEntries[static_cast<std::size_t>(index)].IsNew)
        ModifySource(index, trigger);
    else
        ModifyCopy(index, list_.Text(place), trigger);
}

void BigEditor::ModifySource(int index, Trigger trigger) {
    // Meant so: the menu does not look first, and what the program did to the file is not asked about.
    if (trigger == Trigger::Row && IsSourceMissing(index))
        return;
    OpenAndWait(QString(mBIG::BigEntries[static_cast<std::size_t>(index)].SourcePath));
}

bool BigEditor::IsSourceMissing(int index) {
    BigEntry& entry = mBIG::BigEntries[static_cast<std::size_t>(index)];
    if (Files::FileExists(entry.SourcePath))
        return false;
    entry.Deleted = true;
    Host::Current().Message(GetText(u"FileNotFound"_s), Host::Icon::Critical);
    ShowFolder(SelectedKey());
    return true;
}

void BigEditor::ModifyCopy(int index, const QString& text, Trigger trigger) {
    const QString copy = CopyForProgram(index, text);
    if (copy.isEmpty()) {
        Host::Current().Beep();
        return;
    }
    const QString name = mBIG::BigEntries[static_cast<std::size_t>(index)].Name;
    const auto place = openCopies_.insert(openCopies_.end(), {.Index = index,
                                                              .Table = table_,
                                                              .Name = name,
                                                              .Archive = mBIG::BigFileName,
                                                              .Copy = copy,
                                                              .Mark = ChangeMark(copy)});
    if (!OpenAndWait(copy))
        return;
    const Opened opened = std::move(*place);
    openCopies_.erase(place);
    if (IsSource(copy)) // since the window was to be closed
        return;
    if (trigger == Trigger::Row && !opened.Mark.Changed())
        Ignoring([&] { Files::DeleteForced(copy); });
    else
        TakeIn(opened, trigger);
}

/// The entry in a file of its own in the scratch folder; empty when it can't be written there whole.
QString BigEditor::CopyForProgram(int index, const QString& text) const {
    QString copy;
    Ignoring([&] {
        FolderGateway scratch(mMain::ScratchFolder());
        QString path = scratch.TargetFor(text);
        for (int number = 2; IsInUse(path); ++number)
            path = scratch.TargetFor(Numbered(text, number));
        // What an earlier day left would show behind a shorter entry.
        Ignoring([&] { Files::DeleteForced(path); });
        // An entry of no bytes is an error too, and its copy is whole all the same. What it left open would keep every
        // later entry from being extracted, and the program from writing its file.
        mBIG::CloseExtraction();
        Ignoring([&] { mBIG::ExtractEntryAsGiven(index, mBIG::BigFileName, path); });
        mBIG::CloseExtraction();
        if (Files::FileLength(path) == mBIG::BigEntries[static_cast<std::size_t>(index)].Size)
            copy = path;
    });
    return copy;
}

/// Whether an unsaved entry or another program depends on the file.
bool BigEditor::IsInUse(const QString& copy) const {
    return IsSource(copy) ||
           std::ranges::any_of(openCopies_, [&](const Opened& open) { return IsSamePath(open.Copy, copy); });
}

bool BigEditor::IsSource(const QString& copy) {
    return std::ranges::any_of(
        mBIG::BigEntries, [&](const BigEntry& entry) { return entry.IsNew && IsSamePath(entry.SourcePath, copy); });
}

/// False when the window was closed meanwhile and nothing of the editor may be touched any more.
bool BigEditor::OpenAndWait(const QString& path) {
    const auto waiting = waiting_;
    mShellExecuteWait::OpenWithShell(path, view_.Handle(), true, [waiting] { return *waiting; });
    return *waiting;
}

/// The entry after a time in which the user could do anything; null when it has gone.
BigEntry* BigEditor::StillThere(const Opened& opened) const {
    int index = opened.Index;
    if (table_ != opened.Table)
        index = mBIG::BigFileName == opened.Archive ? mBIG::FindEntry(opened.Name) : -1;
    if (index < 0 || static_cast<std::size_t>(index) >= mBIG::BigEntries.size())
        return nullptr;
    BigEntry& entry = mBIG::BigEntries[static_cast<std::size_t>(index)];
    return entry.Deleted ? nullptr : &entry;
}

void BigEditor::TakeIn(const Opened& opened, Trigger trigger) {
    if (!Files::FileExists(opened.Copy) || StillThere(opened) == nullptr)
        return;
    const QString question = GetText(u"InsertModifiedFile"_s);
    if (Host::Current().Message(question, Host::Icon::Question, Host::Buttons::YesNo) != Host::Answer::Yes) {
        Ignoring([&] { Files::DeleteForced(opened.Copy); });
        return;
    }
    if (!PutInto(opened))
        return;
    // Meant so: the menu's command is no unsaved change, and the size stays that of the archive until the save.
    if (trigger == Trigger::Row)
        state_.Modified = true;
    ShowFolder(SelectedKey());
}

/// The entry's bytes are those of its copy from now on; false when it has gone.
bool BigEditor::PutInto(const Opened& opened) const {
    BigEntry* entry = StillThere(opened);
    if (entry == nullptr)
        return false;
    entry->IsNew = true;
    entry->SourcePath = opened.Copy;
    return true;
}

/// Before the window goes: what other programs have written so far would be lost with the waits for them. False when
/// the user wants to wait on.
bool BigEditor::TakeInChangedCopies() {
    return std::ranges::all_of(openCopies_, [this](const Opened& opened) { return TakeInChanged(opened); });
}

bool BigEditor::TakeInChanged(const Opened& opened) {
    const BigEntry* entry = StillThere(opened);
    if (entry == nullptr || IsSource(opened.Copy) || !opened.Mark.Changed())
        return true;
    const QString question = entry->Name + "\r\n\r\n"_L1 + GetText(u"InsertModifiedFile"_s);
    const Host::Answer answer = Host::Current().Message(question, Host::Icon::Question, Host::Buttons::YesNoCancel);
    // An unsaved change, whatever began the Modify: the question about those comes next.
    if (answer == Host::Answer::Yes && PutInto(opened)) {
        state_.Modified = true;
        ShowFolder(SelectedKey());
    }
    return answer != Host::Answer::Cancel;
}
