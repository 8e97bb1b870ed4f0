// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Where the user is in the two panes, kept over a change that makes them anew: the selected rows and the current one,
/// and how far both panes are scrolled.
#pragma once

#include "big/document/EditorPanes.h"

#include <QString>
#include <QStringList>

class KeptRows {
public:
    /// The panes, before the change; they outlive this.
    explicit KeptRows(EditorPanes& panes);

    /// Behind the change. Rows are known by their texts. The neighbour of a current row that has gone is the current
    /// one then, and the selected one when nothing else is left of the selection. In another folder nothing is
    /// selected.
    void PutBack();

private:
    [[nodiscard]] ViewPlace PlaceNow() const;

    EditorPanes& panes_;
    QString folder_;
    QStringList rows_;
    ViewPlace place_;
};
