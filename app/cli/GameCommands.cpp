// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/GameCommands.h"

#include "app/cli/Output.h"
#include "core/Game.h"
#include "core/Settings.h"
#include "core/mLaunch.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/AnsiCodec.h"
#include "platform/Paths.h"

#include <CLI/CLI.hpp>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <map>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A game as the table of the games shows it, paths as the system writes them.
struct GameRow {
    GameIndex Index;
    QString Prefix;
    bool Installed;
    QString InstallPath;
    QString ReplayPath;
    QString MapPath;
    QString FoundIn;
};

GameRow RowOf(GameIndex game) {
    const GameEntry& entry = Game.at(static_cast<std::size_t>(game));
    return {.Index = game,
            .Prefix = SettingsPrefix(game),
            .Installed = !entry.InstallPath.isEmpty(),
            .InstallPath = Paths::ToNative(entry.InstallPath),
            .ReplayPath = Paths::ToNative(entry.ReplayPath),
            .MapPath = Paths::ToNative(entry.MapPath),
            .FoundIn = mMain::InstallPathFoundIn(game)};
}

QString Line(const GameRow& row) {
    const QStringList columns{QString::number(row.Index),
                              row.Prefix,
                              row.Installed ? u"yes"_s : u"no"_s,
                              row.InstallPath,
                              row.ReplayPath,
                              row.MapPath,
                              row.FoundIn};
    return columns.join(u'\t');
}

QJsonObject Object(const GameRow& row) {
    return {{u"index"_s, row.Index},           {u"prefix"_s, row.Prefix},
            {u"installed"_s, row.Installed},   {u"InstallPath"_s, row.InstallPath},
            {u"ReplayPath"_s, row.ReplayPath}, {u"MapPath"_s, row.MapPath},
            {u"foundIn"_s, row.FoundIn}};
}

void PrintGames(bool asJson) {
    mMain::UseRuntimes();
    mMain::DetectGames();
    QJsonArray objects;
    for (GameIndex game = 0; game < GameCount; ++game) {
        const GameRow row = RowOf(game);
        if (asJson)
            objects.append(Object(row));
        else
            Print(Line(row));
    }
    if (asJson)
        Print(QString::fromUtf8(QJsonDocument(objects).toJson(QJsonDocument::Indented)).trimmed());
}

void PrintLaunchCommand(GameIndex game) {
    mMain::UseRuntimes();
    mMain::DetectGames();
    Print(mLaunch::LaunchCommand(game));
}

void PrintText(const QString& key) {
    mMain::UseRuntimes();
    mMain::LanguageFileName = ReadSetting(u"TradFileName"_s);
    Print(mTraduction::GetText(key).replace(u"\r\n"_s, u"\n"_s));
}

void PrintSetting(const QString& key) {
    mMain::UseRuntimes();
    Print(ReadSetting(key));
}

void StoreSetting(const QString& key, const QString& value) {
    mMain::UseRuntimes();
    WriteSetting(key, value);
    // Writing reports nothing, so a script learns from reading whether it was done.
    if (ReadSetting(key) != AnsiCodec::Decode(AnsiCodec::Encode(value)))
        Fail(u"HKEY_CURRENT_USER\\"_s + QString::fromUtf16(SettingsKey) + u'\\' + key,
             u"The setting could not be stored."_s);
}

void PrintINI(const QString& section, const QString& key, const QString& file) {
    Print(INIRuntime().ReadINI(section, key, file));
}

void StoreINI(const QString& section, const QString& key, const QString& value, const QString& file) {
    if (INIRuntime().WriteINI(section, key, value, file) == u"0"_s)
        Fail(Paths::ToNative(file), u"The file could not be written."_s);
}

/// The positional arguments of one command, alive as long as its callback.
struct Arguments {
    std::string Section;
    std::string Key;
    std::string Value;
    std::string File;
    std::string Game;
    bool AsJson = false;
};

void AddGames(CLI::App& app) {
    auto arguments = std::make_shared<Arguments>();
    CLI::App* command = app.add_subcommand(
        "games", "Lists the games, a line each: index, prefix, installed (yes or no), InstallPath, ReplayPath, "
                 "MapPath, where it was found; separated by tabs");
    command->add_flag("--json", arguments->AsJson, "Prints a JSON array");
    command->callback([arguments] { PrintGames(arguments->AsJson); });
}

void AddLaunchCommand(CLI::App& app) {
    static const std::map<std::string, GameIndex> games{{"gen", 0}, {"zh", 1}, {"bfme", 2}, {"bfme2", 3}};
    auto arguments = std::make_shared<Arguments>();
    CLI::App* command =
        app.add_subcommand("launch-command", "Prints the command text that starts a game, and starts nothing");
    command->add_option("game", arguments->Game, "gen, zh, bfme or bfme2")
        ->required()
        ->type_name("GAME")
        ->check(CLI::IsMember(&games));
    command->callback([arguments] { PrintLaunchCommand(games.at(arguments->Game)); });
}

void AddText(CLI::App& app) {
    auto arguments = std::make_shared<Arguments>();
    CLI::App* command = app.add_subcommand("text", "Prints a text of the language in use; the key when it has none");
    command->add_option("key", arguments->Key, "The text's key")->required()->type_name("KEY");
    command->callback([arguments] { PrintText(ArgumentText(arguments->Key)); });
}

void AddSetting(CLI::App& app) {
    auto arguments = std::make_shared<Arguments>();
    CLI::App* group = app.add_subcommand("setting", "Reads and writes the settings");
    group->require_subcommand(1);
    CLI::App* get = group->add_subcommand("get", "Prints a setting; an empty line when it is not stored");
    get->add_option("key", arguments->Key, "The setting's name")->required()->type_name("KEY");
    get->callback([arguments] { PrintSetting(ArgumentText(arguments->Key)); });
    CLI::App* set = group->add_subcommand("set", "Stores a setting");
    set->add_option("key", arguments->Key, "The setting's name")->required()->type_name("KEY");
    set->add_option("value", arguments->Value, "Its text; one that begins with a dash stands behind --")
        ->required()
        ->type_name("VALUE");
    set->callback([arguments] { StoreSetting(ArgumentText(arguments->Key), ArgumentText(arguments->Value)); });
}

void AddINI(CLI::App& app) {
    auto arguments = std::make_shared<Arguments>();
    const auto addPlace = [arguments](CLI::App* command) {
        command->add_option("section", arguments->Section, "The section's name")->required()->type_name("SECTION");
        command->add_option("key", arguments->Key, "The key's name")->required()->type_name("KEY");
    };
    const auto addFile = [arguments](CLI::App* command) {
        command->add_option("file", arguments->File, "The INI file")->required()->type_name("FILE");
    };
    CLI::App* group = app.add_subcommand("ini", "Reads and writes INI files, one key at a time");
    group->require_subcommand(1);
    CLI::App* get = group->add_subcommand("get", "Prints a value; an empty line when file, section or key is missing");
    addPlace(get);
    addFile(get);
    get->callback([arguments] {
        PrintINI(ArgumentText(arguments->Section), ArgumentText(arguments->Key), ArgumentPath(arguments->File));
    });
    CLI::App* set = group->add_subcommand("set", "Writes a value and makes file, section or key when missing");
    addPlace(set);
    set->add_option("value", arguments->Value, "Its text; one that begins with a dash stands behind --")
        ->required()
        ->type_name("VALUE");
    addFile(set);
    set->callback([arguments] {
        StoreINI(ArgumentText(arguments->Section), ArgumentText(arguments->Key), ArgumentText(arguments->Value),
                 ArgumentPath(arguments->File));
    });
}

} // namespace

void AddGameCommands(CLI::App& app) {
    AddGames(app);
    AddLaunchCommand(app);
    AddText(app);
    AddSetting(app);
    AddINI(app);
}
