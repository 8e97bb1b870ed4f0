// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The CSF Editor: one string table as a flat list of names and values, and two boxes to change the selected row.
#pragma once

#include "csf/document/CsfEditor.h"

#include "ui/window/ToolWindow.h"

#include <memory>
#include <vector>

class QLabel;
class RowListModel;

namespace Ui {
class frmCSFEditor;
}

class frmCSFEditor : public ToolWindow, private CsfEditorView {
    Q_OBJECT
public:
    explicit frmCSFEditor(QWidget* parent = nullptr);
    ~frmCSFEditor() override;

    /// Opens a string table (inside path) and shows the window; a file that is missing or refused changes nothing.
    void OpenCSFFile(const QString& path);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool MayClose() override { return editor_.MayClose(); }

    [[nodiscard]] bool MenuFollows() const override;
    void ShowWindow() override;
    void ListChanging(LabelChange change, int place) override;
    void ListChanged(LabelChange change, int place) override;
    void RowChanged(int place) override;
    void SelectRow(int place, bool focus) override;
    void ScrollToRow(int place) override;
    void BoxesChanged() override;
    void BoxChanged(bool isName) override;
    void StateChanged() override;

    void ShowBusy(bool busy) override { SetBusy(busy); }

    void ShowNotice(const Notice& notice) override { SetNotice(notice); }

    void ShowOffer(const Notice& offer) override { SetOffer(offer); }

    void OpenFolder(const QString& folder) override { ShowFolder(folder); }

    void Dress();
    std::vector<ToolCommand> Commands();
    void ConnectControls();
    bool FindEvent(QEvent& event);
    void ShowFind();

    std::unique_ptr<Ui::frmCSFEditor> ui_;
    CsfEditor editor_;
    RowListModel* model_;
    QLabel* count_;          ///< the status bar's text
    bool following_ = false; ///< the controls follow the document, not the other way round
};
