// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a click on a row of the list shows: the details of an entry with its preview, and how much is selected.
#pragma once

#include "big/document/EditorPanes.h"
#include "big/document/Preview.h"

#include <QString>

class RowDetails {
public:
    /// The panes outlive this.
    explicit RowDetails(EditorPanes& panes);

    /// What decodes pictures and plays sounds; both outlive this.
    void Use(PictureDecoder* decoder, SoundPlayer* player) { preview_.Use(decoder, player); }

    [[nodiscard]] const PreviewState& Previewed() const { return preview_.State(); }

    /// A click on a row, or its selection by a key.
    void Show(int place);

    /// Another row may be selected, or the same entry be another one, without a click: details that are shown tell it.
    /// They go when it has none, or `place` is no row.
    void Follow(int place);

    /// Whether that row is the one that was shown last.
    [[nodiscard]] bool Tells(int place) const;

    /// Entries or rows have other names: details that are shown tell them.
    void NamesChanged();

    /// No row is shown any more.
    void Clear() { preview_.Clear(); }

    /// How many rows the list has, or how many are selected and how much they hold; empty without an archive.
    /// The index of the entry that the details tell; -1 while they are hidden.
    [[nodiscard]] int Shown() const { return panes_.State.DetailsVisible ? shown_ : -1; }

    [[nodiscard]] QString SelectionText() const;

private:
    bool ShowFile(int index, const QString& rowText);

    void Hide();

    EditorPanes& panes_;
    Preview preview_;
    int shown_ = -1;      ///< the index of the entry that the details tell
    BigEntry shownEntry_; ///< as it was then
};
