// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The ways to an archive and through it: recent files, files dropped on the window, the search, the folder above, the
/// edit of a name, the text of an entry, its picture in a window of its own.
#include "big/window/frmBigEditor.h"

#include "big/document/TextPreview.h"
#include "big/window/frmPicture.h"
#include "big/window/frmSearch.h"
#include "core/LastTime.h"
#include "platform/Files.h"
#include "ui/window/DroppedFiles.h"
#include "ui_frmBigEditor.h"

#include <QDropEvent>
#include <QMimeData>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The first archive among dragged files; empty without one.
QString ArchiveIn(const QMimeData& data) {
    for (const QString& path : DroppedFiles::In(data))
        if (path.endsWith(".big"_L1, Qt::CaseInsensitive))
            return path;
    return {};
}

} // namespace

void frmBigEditor::NoteRecent() {
    const mBIG::Identity shown = editor_.State().ArchiveOpen ? mBIG::CurrentIdentity() : nullptr;
    if (std::exchange(noted_, shown) != shown && shown != nullptr && Files::FileExists(mBIG::BigFileName))
        Document::NoteRecent(u"big"_s, mBIG::BigFileName);
}

void frmBigEditor::ToggleText() {
    LastTime::Keep(u"big text"_s, ui_->mnuText->isChecked());
    FollowText();
}

void frmBigEditor::FollowText() {
    const bool shows = ui_->mnuText->isChecked();
    ui_->txtText->setVisible(shows);
    const int index = editor_.DetailedEntry();
    const bool isEntry = shows && index >= 0 && static_cast<std::size_t>(index) < mBIG::BigEntries.size();
    const BigEntry entry = isEntry ? mBIG::BigEntries[static_cast<std::size_t>(index)] : BigEntry();
    const mBIG::Identity archive = mBIG::CurrentIdentity();
    if (entry == texted_ && archive == textedIn_)
        return;
    texted_ = entry;
    textedIn_ = archive;
    ui_->txtText->ShowText(TextPreview::Of(entry));
}

void frmBigEditor::Find() {
    if (search_ == nullptr) {
        search_ = new frmSearch(this);
        connect(search_, &frmSearch::EntryWanted, this,
                [this](int index, const QString& name) { editor_.GoToEntry(index, name); });
    }
    search_->Begin();
}

void frmBigEditor::ShowPicture() {
    if (picture_ == nullptr) {
        picture_ = new frmPicture(this);
        connect(picture_, &frmPicture::RowWanted, this, &frmBigEditor::GoToPicture);
    }
    FollowPicture();
    picture_->Begin();
}

// A row whose details can't be shown now is not selected either.
void frmBigEditor::GoToPicture(int row) {
    if (mBIG::ArchiveLock::IsHeld())
        return;
    CommitEdit();
    Reveal({row});
    editor_.ClickRow(row);
}

void frmBigEditor::FollowPicture() {
    if (picture_ != nullptr)
        picture_->Follow(editor_.Previewed(), PictureRows::PlaceOf(editor_.List(), editor_.DetailedEntry()));
}

// The commands act on what has the keyboard before and behind it.
void frmBigEditor::GoUp() {
    const bool wasInList = ui_->lvFiles->Current()->hasFocus();
    CommitEdit();
    editor_.GoUp();
    if (wasInList)
        editor_.EnterList();
}

void frmBigEditor::Rename() {
    if (ui_->lvFiles->Current()->hasFocus())
        editor_.EnterList();
    const bool isInTree = editor_.State().FocusPane == FocusedPane::Tree;
    QAbstractItemView* const view = isInTree ? static_cast<QAbstractItemView*>(ui_->tvDirs) : ui_->lvFiles->Current();
    if (const QModelIndex row = view->currentIndex().siblingAtColumn(0); row.flags().testFlag(Qt::ItemIsEditable)) {
        view->setFocus();
        view->edit(row);
    }
}

// Without an archive nothing else takes what is dragged here.
void frmBigEditor::dragEnterEvent(QDragEnterEvent* event) {
    if (!editor_.State().ArchiveOpen && !ArchiveIn(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void frmBigEditor::dropEvent(QDropEvent* event) {
    const QString path = ArchiveIn(*event->mimeData());
    if (editor_.State().ArchiveOpen || path.isEmpty())
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Later([this, path] { editor_.OpenInstead(path); });
}
