// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/EditorPanes.h"

#include "big/document/KeptRows.h"
#include "core/Host.h"
#include "core/SettingKeys.h"
#include "core/Settings.h"
#include "core/mTraduction.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;
using mTraduction::GetText;

EditorPanes::EditorPanes(EditorView& view) : View(view) {
    State.StatusText = GetText(u"Ready"_s);
}

void EditorPanes::CreateDirs() {
    Tree.CreateDirs(Paths::LastPart(mBIG::BigFileName), mBIG::BigEntries);
    State.SelectedNode = FolderTree::None;
    View.TreeChanged();
    ShowFolder({});
}

void EditorPanes::ShowFolder(const QString& folderKey) {
    const Busy busy(View);
    // A folder that has gone leaves the selected node as it is: its folders show, without files.
    // Of two nodes with one key, the selected one stays.
    const bool selected = Tree.Has(State.SelectedNode) && SelectedKey() == folderKey;
    if (const int node = Tree.Find(folderKey); node != FolderTree::None && !selected)
        State.SelectedNode = node;
    State.FileIcons = ReadSetting(SettingKeys::ViewFileIcons) == "1"_L1;
    List.ShowFolder(Tree, State.SelectedNode, folderKey, mBIG::BigEntries, GetText(u"Folder"_s), State.ShowsOnlyEntry);
    View.ListChanged();
    View.StateChanged();
}

void EditorPanes::ShowSelected() {
    KeptRows kept(*this);
    ShowFolder(SelectedKey());
    kept.PutBack();
}

void EditorPanes::ShowAgain(const QString& folderKey) {
    // A tree that was made anew has its keys in lower case.
    for (const QString& key : {folderKey, folderKey.toLower()})
        if (Tree.Find(key) != FolderTree::None)
            return ShowFolder(key);
    ShowFolder({});
}

int EditorPanes::PlaceOf(int index) const {
    for (int place = 0; place < List.Count(); ++place)
        if (!List.Row(place).IsFolder && List.Row(place).Index == index)
            return place;
    return -1;
}

int EditorPanes::ShowEntry(int index) {
    const QString name = mBIG::BigEntries[static_cast<std::size_t>(index)].Name;
    ShowAgain(name.first(name.lastIndexOf(u'\\') + 1));
    const int place = PlaceOf(index);
    if (place >= 0)
        View.Reveal({place});
    return place;
}

QString EditorPanes::SelectedKey() const {
    return Tree.Has(State.SelectedNode) ? Tree.Node(State.SelectedNode).Key : QString();
}

bool EditorPanes::Locked() {
    const bool locked = mBIG::ArchiveLock::IsHeld();
    if (locked)
        Host::Current().Beep();
    return locked;
}

EditorPanes::Command::Command(EditorPanes& panes) : panes_(panes) {
    panes.View.CommitEdit();
    ++panes.commands_;
}

EditorPanes::Command::~Command() {
    --panes_.commands_;
}

void EditorPanes::TellUnmarked() {
    if (State.Modified)
        return;
    const auto mark = [this] {
        State.Modified = true;
        View.StateChanged();
    };
    const QString text = (Names.TakeTold() + u' ' + GetText(u"NotMarkedAsChanged"_s)).trimmed();
    View.ShowNotice({.Text = text, .Links = {{GetText(u"AskBeforeClosing"_s), mark}}});
}

void EditorPanes::TellNames() {
    if (const QString told = Names.TakeTold(); !told.isEmpty())
        View.ShowNotice({.Text = told});
}
