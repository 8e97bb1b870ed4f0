// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The rescue of the open archive: what is different from the one on disk, and the bytes of its new entries.
#pragma once

#include "big/document/EditorPanes.h"
#include "big/document/RescueContents.h"
#include "big/document/RescuedArchive.h"
#include "core/rescue/RescueCopy.h"
#include "core/rescue/RescuedDocument.h"
#include "platform/File.h"

#include <QString>

#include <optional>
#include <vector>

class ArchiveRescue : public RescuedDocument {
public:
    static const QString Kind;

    /// The panes outlive this.
    explicit ArchiveRescue(EditorPanes& panes) : panes_(panes) {}

    enum class Origin {
        File,  ///< it was read from its file
        Fresh, ///< it has no file yet
    };

    /// Another archive is open, and nothing in it was changed yet. Of the one before that is left which nobody was
    /// asked about.
    void Opened(Origin origin);

    /// The open archive is saved: there is nothing to be rescued.
    void Saved();

    /// The user was asked, and what the archive is now is saved or given up.
    void GivenUp();

    /// The archive is about to go without a question: what is different stays for the next start.
    void KeepWhole();

    /// What a process left is this archive's now. False when another one has it.
    bool Adopt(const QString& folder);

protected:
    bool KeepSome() override;
    void TellFailed(const QString& reason) override;

private:
    [[nodiscard]] bool IsShown() const;
    [[nodiscard]] RescuedArchive Now() const;
    [[nodiscard]] bool Differs(const RescuedArchive& now) const;
    void TakeBase(Origin origin);
    void Number(RescuedArchive& now);
    void Store(RescuedArchive now);
    [[nodiscard]] const ArchiveMark& Mark();

    EditorPanes& panes_;
    RescueCopy copy_{Kind};
    RescueContents contents_;
    std::vector<BigEntry> base_; ///< the table as it is on disk
    qint32 baseVersion_ = 0;
    mBIG::Identity archive_; ///< of which that is the table
    Origin origin_ = Origin::Fresh;
    FileState state_;                     ///< of its file, when it was read
    std::optional<ArchiveMark> mark_;     ///< made when it is needed first
    std::optional<RescuedArchive> given_; ///< what the user gave up
    std::optional<RescuedArchive> kept_;  ///< as it was kept last
};
