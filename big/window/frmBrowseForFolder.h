// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The chooser of the folder that is extracted to.
#pragma once

#include "big/document/Extraction.h"
#include "ui/folders/FileBoxSystem.h"

#include <QDialog>
#include <QTimer>

#include <memory>

namespace Ui {
class frmBrowseForFolder;
}

class frmBrowseForFolder : public QDialog {
    Q_OBJECT
public:
    /// Another machine than the one that the program runs on can be given.
    explicit frmBrowseForFolder(QWidget* parent = nullptr, std::unique_ptr<FileBoxSystem> system = nullptr);
    ~frmBrowseForFolder() override;

    /// What was chosen; before the window is left, and after Cancel, ExtractCancelled is true.
    [[nodiscard]] const ExtractionTarget& Target() const { return target_; }

public Q_SLOTS:
    /// Escape and the window's own close button are the same as cmdCancel.
    void reject() override;

private:
    void Choose();
    void MakeNewFolder();
    void ShowPath();
    void TakeTyped(const QString& text);
    void FollowTyped();
    /// The folder that was typed or pasted, with its trailing backslash; empty for what can be none.
    [[nodiscard]] QString TypedFolder() const;

    std::unique_ptr<Ui::frmBrowseForFolder> ui_;
    ExtractionTarget target_;
    QTimer typing_;          ///< runs until what is typed has stood for a moment
    bool typed_ = false;     ///< the path is the text's and not the tree's
    bool following_ = false; ///< the tree follows the text, not the other way round
};
