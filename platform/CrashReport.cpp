// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CrashReport.h"

#include "platform/CrashText.h"

#include <algorithm>
#include <atomic>

namespace {

constexpr std::size_t MostFacts = 1024;
constexpr std::size_t MostCommands = 8;
constexpr std::size_t LongestCommand = 64;

using Command = std::array<char, LongestCommand>;

// All of it stands ready before there is a crash.
std::array<char, MostFacts> firstLines{};
std::array<Command, MostCommands> commands{};
std::atomic<std::size_t> noted = 0;

/// Ends with a zero, also what was cut.
template <std::size_t Size>
void Keep(std::array<char, Size>& place, const QByteArray& text) {
    place.fill('\0');
    std::copy_n(text.constData(), std::min<std::size_t>(static_cast<std::size_t>(text.size()), Size - 1), place.data());
}

} // namespace

void CrashReport::Leave(const QString& path, const QByteArray& facts) {
    Keep(firstLines, facts);
    CrashHandlers::Install(path);
}

void CrashReport::Note(const QByteArray& command) {
    Keep(commands.at(noted % MostCommands), command);
    ++noted;
}

void CrashNotes::Begin(CrashText& text) {
    text.Add(firstLines.data());
}

void CrashNotes::End(CrashText& text) {
    const std::size_t count = noted;
    text.Add("last commands:\n");
    for (std::size_t i = count - std::min(count, MostCommands); i < count; ++i) {
        text.Add(commands[i % MostCommands].data());
        text.Add("\n");
    }
}

void CrashText::Add(std::string_view text) {
    const std::size_t count = std::min(text.size(), bytes_.size() - length_);
    std::copy_n(text.data(), count, bytes_.data() + length_);
    length_ += count;
}

void CrashText::AddHex(quint64 number) {
    constexpr int bits = 4;
    int shift = 64 - bits;
    while (shift > 0 && (number >> shift) == 0)
        shift -= bits;
    Add("0x");
    for (; shift >= 0; shift -= bits)
        Add(std::string_view("0123456789abcdef").substr((number >> shift) & 0xF, 1));
}

void CrashText::AddFrame(std::string_view module, quint64 offset) {
    const auto last = module.find_last_of("/\\");
    Add(last == std::string_view::npos ? module : module.substr(last + 1));
    Add("+");
    AddHex(offset);
    Add("\n");
}
