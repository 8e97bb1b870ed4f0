// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/document/RowHistory.h"

#include <QHash>

#include <utility>

void RowHistory::Begin(bool isAsSaved) {
    *this = {};
    if (!isAsSaved)
        saved_.reset();
}

void RowHistory::Did(RowStep step) {
    if (saved_ && *saved_ > done_)
        saved_.reset();
    steps_.resize(done_);
    steps_.push_back(std::move(step));
    ++done_;
    Break();
}

void RowHistory::Typed(int place, const LabelRow& before, const LabelRow& after, bool isName) {
    const Joins box = isName ? Joins::Name : Joins::Value;
    if (joins_ != box || !CanUndo() || CanRedo() || saved_ == done_ || steps_.back().After->Id != before.Id) {
        Did({place, before, after});
        joins_ = box;
        return;
    }
    steps_.back().After = after;
    if (steps_.back().Before != steps_.back().After)
        return;
    steps_.pop_back(); // the box itself took everything back
    --done_;
    Break();
}

void RowHistory::Saved(const LabelList& list) {
    QHash<int, int> numbers;
    for (const LabelRow& row : list.Rows())
        numbers.insert(row.Id, row.Index);
    Turn([&](LabelRow row) {
        row.Index = numbers.value(row.Id, -1);
        return row;
    });
    saved_ = done_;
    Break();
}

RowStep RowHistory::Undo() {
    Break();
    const RowStep& step = steps_.at(--done_);
    return {step.Place, step.After, step.Before};
}

RowStep RowHistory::Redo() {
    Break();
    return steps_.at(done_++);
}

void RowHistory::Turn(const std::function<LabelRow(const LabelRow&)>& turned) {
    for (RowStep& step : steps_)
        for (std::optional<LabelRow>* const row : {&step.Before, &step.After})
            if (*row)
                *row = turned(**row);
}
