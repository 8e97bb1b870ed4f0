// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The commands Save and Save As, and what the window tells of an archive that was written or read.
#pragma once

#include "big/document/EditorPanes.h"
#include "big/document/OpenCopies.h"
#include "big/document/RowDetails.h"
#include "big/format/OriginalBytes.h"
#include "core/Host.h"

#include <functional>
#include <utility>

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

    /// Another archive is open: what was kept of the one before goes.
    void ForgetOriginals() {
        originals_.Forget();
        panes_.Names.Forget();
    }

    /// Tells what there is to tell of an archive that was opened.
    void TellOpened();

    /// What else is to be done when an archive was written and read anew.
    void OnWritten(std::function<void()> written) { written_ = std::move(written); }

    /// Whether a path ends like an archive's.
    [[nodiscard]] static bool IsArchiveName(const QString& path);

    /// What the dialogs for archives show.
    [[nodiscard]] static Host::FileDialog ArchiveDialog();
    /// The same for opening: without an archive it begins where one was chosen last, or with the first game.
    [[nodiscard]] static Host::FileDialog OpenDialog();

private:
    /// Where the bytes of entries come from that the directory leads beside.
    enum class Bytes {
        Usual,    ///< where the offsets lead; for an exact save behind one of our own, where they lie
        Original, ///< where they lie
    };

    Document::Saved SaveUnderName(Bytes bytes = Bytes::Usual);
    Document::Saved SaveTo(const QString& path, Bytes bytes = Bytes::Usual);
    Document::Saved SaveBeforeGoingOn();
    [[nodiscard]] static bool GoesOnWithoutSources();
    void ShowWritten(const QString& path, const OffsetShift::Shift& shift, const std::vector<int>& newIndices);
    void TellWritten(const OffsetShift::Shift& shift);
    void TellNotSaved();
    /// For the links of a notice about the archive that is open now: saves it exactly, from the original bytes.
    [[nodiscard]] std::function<void()> ExactSave(std::function<void()> tellAgain);

    OriginalBytes originals_;
    std::function<void()> written_;
    EditorPanes& panes_;
    OpenCopies& copies_;
    RowDetails& details_;
};
