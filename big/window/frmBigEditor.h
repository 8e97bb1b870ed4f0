// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The BIG Editor: one archive as folder tree and file list, with its commands in menus and side links.
#pragma once

#include "big/document/BigEditor.h"
#include "media/ChildDecoder.h"
#include "media/FilePlayer.h"

#include "ui/window/ToolWindow.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class FileListModel;
class FolderTreeModel;
class QLabel;
class frmPicture;
class frmSearch;

namespace Ui {
class frmBigEditor;
}

class frmBigEditor : public ToolWindow, private EditorView {
    Q_OBJECT
public:
    explicit frmBigEditor(QWidget* parent = nullptr);
    ~frmBigEditor() override;

    /// Shows the window and opens an archive (inside path); a file that doesn't exist is ignored, and the window stays
    /// as it is.
    void OpenBigFile(const QString& path);

    /// Opens an archive without showing the window and extracts it into a folder that the user chooses. Returns when
    /// that is done; a file that doesn't exist is ignored, a refused one beeps.
    void ExtractBigFile(const QString& path);

    /// What other programs have open stays known: the window may live on.
    bool MayEnd() override { return editor_.MayEnd(); }

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool MayClose() override { return editor_.MayClose(); }

    [[nodiscard]] bool MenuFollows() const override;
    void ShowWindow() override;
    void TreeChanged() override;
    void ListChanged() override;
    void StateChanged() override;
    void ShowVersion() override;

    void ShowBusy(bool busy) override { SetBusy(busy); }

    void ShowNotice(const Notice& notice) override { SetNotice(notice); }

    void ShowOffer(const Notice& offer) override { SetOffer(offer); }

    void OpenFolder(const QString& folder) override { ShowFolder(folder); }

    [[nodiscard]] std::vector<int> SelectedRows() const override;
    [[nodiscard]] ViewPlace Where() const override;
    void GoTo(const ViewPlace& place) override;
    void Reveal(const std::vector<int>& places) override;
    void EditNode(int node) override;
    void CommitEdit() override;
    ExtractionTarget AskForFolder() override;
    void EnableWindow(bool enabled) override;
    [[nodiscard]] quintptr Handle() const override;

    void Dress();
    std::vector<ToolCommand> Commands();
    void ConnectTree();
    void ConnectList();
    void ShowMenu(int place, QPoint globalPlace);
    void DragOut();
    void Delete();
    void Find();
    void ShowPicture();
    void GoToPicture(int row);
    void FollowPicture();
    void GoUp();
    void Rename();
    void NoteRecent();
    void ToggleText();
    void FollowText();
    void RenameNodes();
    void TellSelection();
    void Later(const std::function<void()>& command);
    void SelectNode();
    void ChooseView(ViewMode mode);

    ChildDecoder decoder_;
    FilePlayer player_;
    std::unique_ptr<Ui::frmBigEditor> ui_;
    BigEditor editor_;
    FolderTreeModel* treeModel_;
    FileListModel* listModel_;
    BigEntry texted_;                              ///< the entry whose text stands in the text pane
    mBIG::Identity textedIn_;                      ///< its archive
    mBIG::Identity noted_;                         ///< the archive that stands first among the recent files
    frmSearch* search_ = nullptr;                  ///< made when it is first wanted
    frmPicture* picture_ = nullptr;                ///< likewise
    QLabel* status_;                               ///< the status bar's text
    QLabel* selection_;                            ///< how many rows there are and are selected
    std::vector<std::pair<int, QString>> renames_; ///< nodes and their new texts, as soon as their edit has ended
    int pressedNode_ = 0;                          ///< what the mouse button that is down has selected
    bool following_ = false;                       ///< the views follow the document, not the other way round
};
