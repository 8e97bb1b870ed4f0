// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Answers.h"

#include "core/mMain.h"

#include <QByteArrayView>

namespace {

constexpr QByteArrayView help("usage: brindock [SWITCH] [FILE]\n"
                              "\n"
                              "  (nothing)              the menu of tools\n"
                              "  FILE.big, FILE.csf     the file in its editor\n"
                              "  /tbig [FILE]           the BIG Editor\n"
                              "  /bige FILE             extracts an archive\n"
                              "  /tcsf [FILE]           the CSF Editor\n"
                              "  /tpfiles               the personal files\n"
                              "  /addfile [FILE]        adds a map, a mod, a replay or a ZIP to a game\n"
                              "  /launch /gen           starts a game; also /zh, /bfme and /bfme2\n"
                              "  --help, --version\n"
                              "\n"
                              "In each window F1 opens the manual.\n"
                              "brindock-cli does the same for scripts.\n");

} // namespace

std::optional<QByteArray> Answers::To(std::span<char*> words) {
    if (words.size() != 1)
        return std::nullopt;
    const QByteArrayView word(words.front());
    if (word == "--help" || word == "-h")
        return help.toByteArray();
    if (word == "--version")
        return mMain::VersionText().toUtf8() + '\n';
    return std::nullopt;
}
