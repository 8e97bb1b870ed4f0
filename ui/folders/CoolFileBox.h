// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A control that shows the machine's folders as a tree, each branch read when the user opens it.
#pragma once

#include "ui/folders/FileBoxTree.h"

#include <QFrame>
#include <QPixmap>

#include <memory>

class QTreeView;

class CoolFileBox : public QFrame {
    Q_OBJECT
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(int BorderStyle READ BorderStyle WRITE SetBorderStyle)
    Q_PROPERTY(int Appearance READ Appearance WRITE SetAppearance)
    Q_PROPERTY(bool ShowFiles READ ShowFiles WRITE SetShowFiles)
    Q_PROPERTY(bool ShowHiddenFiles READ ShowHiddenFiles WRITE SetShowHiddenFiles)
    Q_PROPERTY(QString Filter READ Filter WRITE SetFilter)
    Q_PROPERTY(QPixmap MouseIcon READ MouseIcon WRITE SetMouseIcon)
    Q_PROPERTY(int MousePointer READ MousePointer WRITE SetMousePointer)
    Q_PROPERTY(QString Path READ Path NOTIFY PathChanged)
public:
    explicit CoolFileBox(QWidget* parent = nullptr);
    ~CoolFileBox() override;

    /// Another machine than the one that the program runs on. Drops all nodes.
    void UseSystem(std::unique_ptr<FileBoxSystem> system);

    /// The path of the selected node; a folder's ends in a backslash. Empty on the top node and where nothing is
    /// selected.
    [[nodiscard]] QString Path() const;

    /// Rebuilds the tree, its top opened. Happens by itself when the control is first shown.
    void Refresh();

    /// Selects the user's documents, where a new visitor most likely wants to be.
    void SelectDocuments();

    /// Selects the folder (inside path with its backslash at the end), or the nearest one above it that the tree shows;
    /// what is on the way is read. Gives up where the user selects another meanwhile.
    void SelectPath(const QString& folder);

    /// Selects a folder that has just been made in the selected one.
    void SelectNewFolder(const QString& name);

    [[nodiscard]] int BorderStyle() const { return borderStyle_; }

    /// 0 none, 1 a single line.
    void SetBorderStyle(int style);

    [[nodiscard]] int Appearance() const { return appearance_; }

    /// 0 flat, 1 sunken.
    void SetAppearance(int appearance);

    // What is shown changes with the next Refresh.
    [[nodiscard]] bool ShowFiles() const { return Tree().ShowFiles; }

    void SetShowFiles(bool show) { Tree().ShowFiles = show; }

    [[nodiscard]] bool ShowHiddenFiles() const { return Tree().ShowHiddenFiles; }

    void SetShowHiddenFiles(bool show) { Tree().ShowHiddenFiles = show; }

    [[nodiscard]] QString Filter() const { return Tree().Filter; }

    void SetFilter(const QString& filter) { Tree().Filter = filter; }

    [[nodiscard]] QPixmap MouseIcon() const { return mouseIcon_; }

    void SetMouseIcon(const QPixmap& icon);

    [[nodiscard]] int MousePointer() const { return mousePointer_; }

    /// By the classic numbers: 0 the usual one, 1 arrow, 2 cross, 3 text, 5 four arrows, 6 to 9 sizing, 10 up arrow,
    /// 11 busy, 12 no drop, 99 `MouseIcon`.
    void SetMousePointer(int pointer);

    /// What the view shows.
    [[nodiscard]] FileBoxTree& Tree();
    [[nodiscard]] const FileBoxTree& Tree() const;

    /// The tree's view, for its keyboard focus and its accessible name.
    [[nodiscard]] QTreeView* View() const { return trv_File_; }

Q_SIGNALS:
    void PathChanged();

protected:
    void showEvent(QShowEvent* event) override;

private:
    class Model;

    void Select(int node);
    void Opened(const QModelIndex& index);
    void ShowPointer();
    void ShowFrame();

    std::unique_ptr<FileBoxSystem> system_;
    std::unique_ptr<Model> model_;
    QTreeView* trv_File_;
    QPixmap mouseIcon_;
    int wished_ = 0; ///< counts the calls of SelectPath
    int borderStyle_ = 0;
    int appearance_ = 1;
    int mousePointer_ = 0;
};
