// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Personal Files: the replays, maps, mods and shell maps of all installed games, as a tree of games and kinds, a list,
/// and the details of the selected row.
#pragma once

#include "media/ChildDecoder.h"
#include "personal/document/PersonalFiles.h"

#include "ui/window/ToolWindow.h"

#include <array>
#include <memory>
#include <optional>
#include <vector>

class KeyedTreeModel;
class KindListModel;
class QLabel;
class QMenu;
class RowListView;

namespace Ui {
class frmPersonalFiles;
}

class frmPersonalFiles : public ToolWindow, private PersonalFilesView {
    Q_OBJECT
public:
    explicit frmPersonalFiles(QWidget* parent = nullptr);
    ~frmPersonalFiles() override;

    /// Makes the tree of games and kinds anew.
    void RebuildTree() { files_.RebuildTree(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// The controls of a kind.
    struct KindPart {
        PersonalKind Kind;
        QWidget* Control; ///< the pane that comes and goes
        RowListView* List;
        KindListModel* Model = nullptr;
    };

    bool MayClose() override { return PersonalFiles::MayClose(); }

    [[nodiscard]] bool MenuFollows() const override { return PersonalFiles::MenuFollows(); }

    void ShowWindow() override { show(); }

    void StateChanged() override;
    void TreeChanged() override;
    void ListChanging(PersonalKind list, RowChange change, int place) override;
    void ListChanged(PersonalKind list, RowChange change, int place) override;
    void RowChanged(PersonalKind list, int place) override;
    void SelectRow(PersonalKind list, int place) override;
    void PlayersChanged() override;
    void PictureChanged() override;
    void BoxesChanged() override;
    void StatusChanged() override;
    void CopyText(const QString& text) override;
    void OpenFolder(const QString& folder) override;

    [[nodiscard]] QObject* Owner() override { return this; }

    void ShowBusy(bool busy) override { SetBusy(busy); }

    void ShowNotice(const Notice& notice) override { SetNotice(notice); }

    void Dress();
    void MakeRoomForTree();
    void NameForReaders();
    void ShareActions();
    std::vector<ToolCommand> Commands();
    void ConnectTree();
    void ConnectList(KindPart& part);
    void ConnectBoxes();
    void FillRowMenu(PersonalKind kind, bool onRow);
    void ShowMenu(int place, QPoint globalPlace);
    void OnRow(void (PersonalFiles::*run)(int place));
    void EditName();
    void FollowTree();
    void FollowLists();
    void FollowDetails();

    [[nodiscard]] KindPart& PartOf(PersonalKind kind) { return parts_.at(static_cast<std::size_t>(kind)); }

    [[nodiscard]] RowListView* ShownList();
    [[nodiscard]] int SelectedPlace();

    ChildDecoder decoder_;
    std::unique_ptr<Ui::frmPersonalFiles> ui_;
    PersonalFiles files_;
    KeyedTreeModel* treeModel_;
    KeyedTreeModel* playersModel_;
    std::array<KindPart, PersonalKindCount> parts_; ///< by kind
    QMenu* rowMenu_;
    QMenu* treeMenu_;
    QLabel* status_;      ///< the status bar's text
    QString pressedNode_; ///< what the mouse button that is down has selected
    int pressedRow_ = GameList::None;
    bool userSized_ = false; ///< the user moved the divider beside the tree
    bool following_ = false; ///< the controls follow the document, not the other way round
};
