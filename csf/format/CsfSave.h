// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The road of a save: the new file is written under a private name, the file that stood there is renamed to its name
/// and ".sav", the new one takes its place, the ".sav" is deleted. A save that breaks off before leaves what stood
/// there; who looks meanwhile finds the old file, none, or the new one whole.
#pragma once

#include "csf/format/CsfTable.h"
#include "platform/File.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <span>

/// What the saves of one document left, so that the next one knows it for its own.
struct CsfSaves {
    QString Failure;                   ///< why the last save is not whole, for a person; empty when it is
    QString Aside;                     ///< inside path of the ".sav" that the last save left; empty when there is none
    std::map<QString, FileState> Kept; ///< every ".sav" that is left, by its inside path, as it was left
};

namespace CsfSave {

/// The file that a save is written to: opened when the old one is aside, and closed however the save ends.
class Target {
public:
    Target() = default;
    Target(const Target&) = delete;
    Target& operator=(const Target&) = delete;
    virtual ~Target() = default;

    /// Opens an inside path, made when missing, never cut.
    virtual File& Open(const QString& path) = 0;
    /// Raises when the system reports a failed write only now.
    virtual void Close() = 0;

    /// Whether what fails up to the header ends the program; the old file is the ".sav" then. This is meant.
    [[nodiscard]] virtual bool FailureEndsProgram() const { return false; }
};

/// Why a save over this file is refused, for a person; empty when it is not: a write-protected file stays.
QString RefusalOf(const QString& path);

/// Writes the table's first `written` strings under a header that counts all of them; where `path` is a link, it is
/// what the link leads to that is saved over. The new file has the old one's permissions, and its owner as far as that
/// is allowed. Raises what fails up to the header: `saves` then tells the ".sav" that stays, and does not remember it.
/// What fails later is told in `saves`, which remembers it. `language` is a CsfWriting::LanguageField.
void Write(const QString& path, std::span<const CsfString> strings, std::size_t written, const QByteArray& language,
           Target& target, CsfSaves& saves);

} // namespace CsfSave
