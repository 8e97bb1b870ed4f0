// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The second page of adding files: what was found, with check marks, and names and comments to edit.
#pragma once

#include "install/wizard/FilesTree.h"
#include "install/zip/ccZip.h"
#include "media/ChildDecoder.h"
#include "media/FilePicture.h"
#include "ui/window/WizardPage.h"

#include <memory>
#include <optional>

class FilesTreeModel;

namespace Ui {
class frmAddFiles2;
}

class frmAddFiles2 : public WizardPage {
    Q_OBJECT
public:
    explicit frmAddFiles2(QWidget* parent = nullptr);
    ~frmAddFiles2() override;

    /// Fills AddFiles::Source and the tree with what a file holds, by its full inside path and its name. False when
    /// nothing in an archive can be installed: the page is not to be shown then. Raises what Analysis raises.
    [[nodiscard]] bool AnalizeFile(const QString& filePath, const QString& fileName);

    /// What was answered when the archive asked for a password, if it has fitted.
    [[nodiscard]] const std::optional<QString>& Password() const { return zip_.Password; }

Q_SIGNALS:
    /// Previous and Next; the first one has forgotten what was found.
    void BackWanted();
    void InstallWanted();

protected:
    void Previous() override;
    void Next() override;

private:
    void Dress();
    void ConnectTree();
    void ShowDetails(const QString& key);
    void ShowBoxes(const FilesDetails& details);
    void ShowPreview(const QString& key);
    void ForgetPreview();
    void Typed(void (FilesTree::*store)(const QString& text), const QString& text);

    ccZip zip_;
    ChildDecoder decoder_;
    std::unique_ptr<Ui::frmAddFiles2> ui_;
    std::optional<FilesTree> tree_;
    FilesTreeModel* model_;
    FilePicture picture_;
    QString selected_;       ///< a node's key
    QString extracted_;      ///< the preview's file out of the archive, to be deleted
    bool following_ = false; ///< the boxes follow the selection
};
