// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The commands Save and Save As, and what the window tells of an archive that was written or read.
#pragma once

#include "big/document/EditorPanes.h"
#include "big/document/OpenCopies.h"
#include "big/document/RowDetails.h"
#include "core/Host.h"

class SaveCommand {
public:
    /// All outlive this.
    SaveCommand(EditorPanes& panes, OpenCopies& copies, RowDetails& details)
        : panes_(panes),
          copies_(copies),
          details_(details) {}

    /// Under the archive's own name, or one that is asked for when it has none.
    void Save();
    void SaveAs();

    /// The question about unsaved changes, if there are any; true when they are saved or given up.
    bool GoOnWithoutChanges();

    /// Whether a path ends like an archive's.
    [[nodiscard]] static bool IsArchiveName(const QString& path);

    /// What the dialogs for archives show.
    [[nodiscard]] static Host::FileDialog ArchiveDialog();

private:
    Document::Saved SaveUnderName();
    Document::Saved SaveTo(const QString& path);
    Document::Saved SaveBeforeGoingOn();
    [[nodiscard]] static bool GoesOnWithoutSources();
    void ShowWritten(const QString& path, const std::vector<int>& newIndices);
    void SaveExactly();

    EditorPanes& panes_;
    OpenCopies& copies_;
    RowDetails& details_;
};
