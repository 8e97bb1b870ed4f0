// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Dragging rows out of the list: the files are made when they are dropped.
#pragma once

#include "big/document/EditorPanes.h"

#include <QStringList>

class DragOut {
public:
    /// The panes outlive this.
    explicit DragOut(const EditorPanes& panes) : panes_(panes) {}

    /// The inside paths that Extract would return; makes nothing.
    [[nodiscard]] QStringList Names() const;
    /// The drop target of a drag that began in the list asks for the files: extracts the selected rows into the scratch
    /// folder and returns the inside paths of what was dragged.
    [[nodiscard]] QStringList Extract() const;
    /// The drag is over, dropped or not.
    static void Ended();

private:
    /// What dragging the selected rows out brings.
    struct Plan {
        std::vector<qint32> ExtractList; ///< indices in the table
        ExtractionTarget Target;
        QStringList Dragged; ///< inside paths of files and folders

        void Offer(const QString& name);
    };

    [[nodiscard]] Plan PlanDrag() const;

    const EditorPanes& panes_;
};
