// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What was done to the rows of the CSF Editor, to be taken back and done again.
#pragma once

#include "csf/document/LabelList.h"

#include <functional>
#include <optional>
#include <vector>

/// A change of one row: `Before` is nothing for one that was added, `After` for one that was deleted.
struct RowStep {
    int Place = 0; ///< where the row stood
    std::optional<LabelRow> Before;
    std::optional<LabelRow> After;
};

class RowHistory {
public:
    /// Another document, as its file is; or one whose file is something else.
    void Begin(bool isAsSaved = true);

    void Added(int place, const LabelRow& row) { Did({place, std::nullopt, row}); }

    void Deleted(int place, const LabelRow& row) { Did({place, row, std::nullopt}); }

    /// What is typed into one box is one step, as long as nothing else comes between.
    void Typed(int place, const LabelRow& before, const LabelRow& after, bool isName);

    /// What is typed next is a step of its own.
    void Break() { joins_ = Joins::Nothing; }

    /// The rows are in the file as they are in the list, with their numbers there.
    void Saved(const LabelList& list);

    /// Something else than rows is not as it was saved.
    void NeverAsSaved() { saved_.reset(); }

    /// Whether the rows are as they were when they were read or saved last.
    [[nodiscard]] bool IsAsSaved() const { return saved_ == done_; }

    [[nodiscard]] bool CanUndo() const { return done_ > 0; }

    [[nodiscard]] bool CanRedo() const { return done_ < steps_.size(); }

    /// The step to be done now; there is one.
    [[nodiscard]] RowStep Undo();
    [[nodiscard]] RowStep Redo();

    /// All rows that are remembered become others.
    void Turn(const std::function<LabelRow(const LabelRow&)>& turned);

private:
    enum class Joins { Nothing, Name, Value };

    void Did(RowStep step);

    std::vector<RowStep> steps_;
    std::size_t done_ = 0; ///< how many of them are done; the others were taken back
    std::optional<std::size_t> saved_ = 0;
    Joins joins_ = Joins::Nothing;
};
