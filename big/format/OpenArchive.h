// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The file behind the open archive, for the one who saves it.
#pragma once

#include "platform/File.h"
#include "platform/ReplacedFile.h"

#include <QString>

#include <optional>

namespace OpenArchive {

/// Where the old entries' bytes are read from: the file that was kept open since the table was read from it, or what
/// `BigFileName` names when the table came about in another way.
class Source {
public:
    /// Raises when old entries have bytes and the file has changed since, a save of the program's own included, or
    /// can't be opened.
    Source();

    /// Null when there is none.
    [[nodiscard]] const Device* Bytes() const;

private:
    File other_;
};

/// Closes the open archive's file for as long as this lives when it is the target, as some systems put nothing in the
/// place of an open file.
class Aside {
public:
    /// With `staysOpen` the old file is still open behind this, though another was put in its place, to be taken.
    explicit Aside(const QString& target, bool staysOpen = false);
    ~Aside();
    Aside(const Aside&) = delete;
    Aside& operator=(const Aside&) = delete;

    /// Another file stands in its place now: it is not opened again.
    void Replaced() { replaced_ = true; }

private:
    bool wasOpen_;
    bool replaced_ = false;
    std::optional<ReplacedFile::StaysOpen> stays_;
};

/// The file that the table was read from, given out of hand by a save; closed when there is none, or it is not as it
/// was read any more.
File TakeOld();

/// Whether the table's offsets lead to its bytes in the file under its name: false when that was changed, replaced or
/// saved since the table was read.
bool IsAsRead();

/// To be called when a save has written the table: no offset in it is one of the written file's.
void Saved();

} // namespace OpenArchive
