// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A report's text while it is written: what runs behind a crash takes no memory and calls no library.
#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>
#include <string_view>

class CrashText {
public:
    /// What no longer fits is left out.
    void Add(std::string_view text);
    void AddHex(quint64 number);
    /// "module+0x1f" and a line's end; of the module's path its last part.
    void AddFrame(std::string_view module, quint64 offset);

    [[nodiscard]] std::string_view Text() const { return {bytes_.data(), length_}; }

private:
    static constexpr std::size_t Most = 16384;

    std::array<char, Most> bytes_{};
    std::size_t length_ = 0;
};

namespace CrashNotes {

/// The facts that a report begins with.
void Begin(CrashText& text);

/// The last commands, the last one at the end.
void End(CrashText& text);

} // namespace CrashNotes

namespace CrashHandlers {

/// The system's part of CrashReport::Leave.
void Install(const QString& path);

} // namespace CrashHandlers
