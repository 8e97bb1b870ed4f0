// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the notice strip tells about the personal files: the replay that is still open under its number, and what the
/// boxes cost of the texts of mods and shell maps. What there is to tell at one time stands in one notice.
#pragma once

#include "core/Document.h"
#include "core/GameFiles.h"

#include <QString>

#include <functional>
#include <map>
#include <utility>

class LossNotices {
public:
    /// A value of an INI file that would be lost.
    struct Lost {
        enum class Why {
            Unread, ///< it stands where nobody reads it
            Cut,    ///< it was longer than what is ever read
        };

        GameFiles::RecordPlace Place;
        QString Key; ///< under which it is to be kept
        QString Value;
        Why How = Why::Unread;
    };

    using Kept = std::function<void(const Lost& lost)>;

    /// The view outlives this. `kept` is called when a value was written under its key.
    LossNotices(DocumentView& view, Kept kept);

    /// Says which file holds the number of replays, when one does, and offers to close it.
    void TellOpenNumber();

    /// Tells of a value, in place of one that was lost under the same key, and offers to write it there.
    void TellLost(const Lost& lost);
    /// What was typed can't be written to that file.
    void TellNotWritten(const QString& iniFile);

    /// There is nothing to keep under that key any more, or in any section of that name.
    void Forget(const QString& iniFile, const QString& key);
    void ForgetSection(const QString& section);

    /// Another row is selected: what is lost now is told once more, be it known already.
    void RowSelected();

private:
    using Name = std::pair<QString, QString>; ///< file and key

    void Tell();
    void LetGo();
    void Keep();
    [[nodiscard]] bool Has(Lost::Why why) const;

    DocumentView& view_;
    Kept kept_;
    std::map<Name, Lost> lost_;
    QString notWritten_; ///< the file; empty for none
    Name told_;          ///< of the value that was told last since the row was selected
    bool shown_ = false; ///< something was told that may still stand there
};
