// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/GameArgument.h"

#include "core/SettingKeys.h"
#include "core/Settings.h"
#include "core/mMain.h"
#include "platform/RuntimeError.h"

#include <map>

namespace {

const std::map<std::string, GameIndex>& Games() {
    static const std::map<std::string, GameIndex> games{{"gen", 0}, {"zh", 1}, {"bfme", 2}, {"bfme2", 3}};
    return games;
}

} // namespace

Parameter GameArgument::Word(Parameter::Kind kind, const std::string& name) {
    Parameter word{kind, name, "gen, zh, bfme or bfme2", "GAME", kind == Parameter::Kind::Option};
    for (const auto& [game, index] : Games())
        word.Members.push_back(game);
    return word;
}

GameIndex GameArgument::Of(const Arguments& given, const std::string& name) {
    return Games().at(given.Raw(name));
}

GameIndex GameArgument::Detected(const Arguments& given, const std::string& name) {
    mMain::UseRuntimes();
    mMain::LanguageFileName = ReadSetting(SettingKeys::TradFileName);
    mMain::DetectGames();
    return Of(given, name);
}

GameIndex GameArgument::Prepared(const Arguments& given, const std::string& name) {
    const GameIndex game = Detected(given, name);
    Ignoring([] { mMain::MakeUserFolders(); });
    return game;
}
