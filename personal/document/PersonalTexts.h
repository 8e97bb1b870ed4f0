// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the window says by itself: the hint in an empty list, and the line of the status bar.
#pragma once

#include "personal/document/PersonalFilesView.h"

class PersonalTexts {
public:
    /// Looks the words of the status bar up, once: it changes with each check mark, and these come by thousands.
    PersonalTexts();

    /// What would stand in the list, and how it gets there.
    [[nodiscard]] static QString Hint(PersonalKind kind);

    /// `size` is that of the rows with a check mark, bytes.
    [[nodiscard]] QString Status(int rows, int checked, qint64 size) const;

private:
    [[nodiscard]] QString SizeText(qint64 bytes) const;

    QString rowCount_;
    QString rowsChecked_;
    QString kiloBytes_;
    QString megaBytes_;
};
