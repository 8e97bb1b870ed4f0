// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What became of each file that was to be exported: the export itself passes over what fails without a word.
#pragma once

#include <QString>

#include <vector>

enum class ExportOutcome {
    Done,
    AlreadyThere, ///< source and target are the same file, which is left as it is
    NoPath,       ///< the record names nothing
    Refused,      ///< its name may not be that of a folder or file
    Empty,        ///< a ZIP takes no empty file
    LeftOut,      ///< it comes behind a file that ended the walk
    NoDot,        ///< a name without a dot fits no pattern of a ZIP
    NotPlain,     ///< a pipe, a device, or a link that leads out
    Subfolder,    ///< of a shell map only the files are taken
    Gone,         ///< there is no such file
    LettersLost,  ///< done, but with '?' for letters that the ANSI page lacks
    Replaced,     ///< done, over a file of the same name that was exported before
    NotWritten,   ///< the ZIP itself: nothing of it stands on disk
    Failed,       ///< what the system says
};

struct ExportLine {
    QString Item; ///< as the system writes it: what a file is called below the target, or the target itself
    ExportOutcome Outcome = ExportOutcome::Done;
    QString Reason{}; ///< what else is known, in words
};

struct ExportReport {
    std::vector<ExportLine> Lines;
    bool Cancelled = false;

    /// Whether a line tells of something that was not done as wanted.
    [[nodiscard]] bool HasFailures() const;
};

/// Whether the file is where it was wanted.
[[nodiscard]] bool IsDone(const ExportLine& line);

/// One line of text in the user's language.
[[nodiscard]] QString ExportText(const ExportLine& line);

/// The whole report as a text to read and to copy, what was not done first.
[[nodiscard]] QString ExportText(const ExportReport& report);
