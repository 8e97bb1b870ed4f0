// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the window's panes choose, as indices in the table, and the command Extract.
#pragma once

#include "big/document/EditorPanes.h"

#include <vector>

class ExtractCommand {
public:
    /// The panes outlive this.
    explicit ExtractCommand(EditorPanes& panes) : panes_(panes) {}

    /// Copies the chosen entries into a folder that the user chooses.
    void Run();

private:
    [[nodiscard]] std::vector<qint32> Chosen() const;
    void TellNothing();

    EditorPanes& panes_;
};
