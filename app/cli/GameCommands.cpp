// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/GameCommands.h"

#include "app/cli/GameArgument.h"
#include "app/cli/Output.h"
#include "core/Game.h"
#include "core/SettingKeys.h"
#include "core/Settings.h"
#include "core/mLaunch.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/AnsiCodec.h"
#include "platform/Paths.h"
#include "platform/Processes.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <string>
#include <vector>

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
    QString WinePrefix;
    QString Runner;
};

GameRow RowOf(GameIndex game) {
    const GameEntry& entry = Game.at(static_cast<std::size_t>(game));
    return {.Index = game,
            .Prefix = SettingsPrefix(game),
            .Installed = !entry.InstallPath.isEmpty(),
            .InstallPath = Paths::ToNative(entry.InstallFolder()),
            .ReplayPath = Paths::ToNative(entry.ReplayFolder()),
            .MapPath = Paths::ToNative(entry.MapFolder()),
            .FoundIn = mMain::InstallPathFoundIn(game),
            .WinePrefix = entry.Prefix,
            .Runner = entry.InstallPath.isEmpty() ? QString() : Processes::RunnerFor(entry.Prefix)};
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
            {u"foundIn"_s, row.FoundIn},       {u"winePrefix"_s, row.WinePrefix},
            {u"runner"_s, row.Runner}};
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
    mMain::LanguageFileName = ReadSetting(SettingKeys::TradFileName);
    Print(mTraduction::GetText(key).replace(u"\r\n"_s, u"\n"_s));
}

void PrintSetting(const QString& key) {
    mMain::UseRuntimes();
    Print(ReadSetting(key));
}

/// Settings and INI files hold lines of eight-bit letters: what would become something else is refused.
void RequireKept(const QString& place, const QStringList& texts) {
    for (const QString& text : texts) {
        if (text.contains(u'\n') || text.contains(u'\r') || text.contains(QChar(0)))
            Fail(place, u"a text holds a line break"_s);
        if (AnsiCodec::Decode(AnsiCodec::Encode(text)) != text)
            Fail(place, u"a text holds a letter that would become '?'"_s);
    }
}

void StoreSetting(const QString& key, const QString& value) {
    const QString place = u"HKEY_CURRENT_USER\\"_s + QString::fromUtf16(SettingsKey) + u'\\' + key;
    RequireKept(place, {key, value});
    mMain::UseRuntimes();
    WriteSetting(key, value);
    // Writing reports nothing, so a script learns from reading whether it was done.
    if (ReadSetting(key) != value)
        Fail(place, u"The setting could not be stored."_s);
}

void PrintINI(const QString& section, const QString& key, const QString& file) {
    Print(INIRuntime().ReadINI(section, key, file));
}

void StoreINI(const QString& section, const QString& key, const QString& value, const QString& file) {
    RequireKept(Paths::ToNative(file), {section, key, value});
    if (INIRuntime().WriteINI(section, key, value, file) == u"0"_s)
        Fail(Paths::ToNative(file), u"The file could not be written."_s);
}

using Kind = Parameter::Kind;

Parameter Key(const std::string& description) {
    return {Kind::Place, "key", description, "KEY"};
}

Parameter Value() {
    return {Kind::Place, "value", "Its text; one that begins with a dash stands behind --", "VALUE"};
}

Parameter Section() {
    return {Kind::Place, "section", "The section's name", "SECTION"};
}

Parameter File() {
    return {Kind::Place, "file", "The INI file", "FILE"};
}

CommandGroup Alone() {
    return {{},
            {},
            {{"games",
              "Lists the games, a line each: index, prefix, installed (yes or no), InstallPath, ReplayPath, "
              "MapPath, where it was found; separated by tabs",
              {{Kind::Flag, "--json", "Prints a JSON array, with each game's Wine prefix and what runs it there"}},
              [](const Arguments& given) { PrintGames(given.Has("--json")); }},
             {"launch-command",
              "Prints the command text that starts a game, and starts nothing",
              {GameArgument::Word(Kind::Place, "game")},
              [](const Arguments& given) { PrintLaunchCommand(GameArgument::Of(given, "game")); }},
             {"text",
              "Prints a text of the language in use; the key when it has none",
              {Key("The text's key")},
              [](const Arguments& given) { PrintText(given.Text("key")); }}}};
}

CommandGroup Setting() {
    return {"setting",
            "Reads and writes the settings",
            {{"get",
              "Prints a setting; an empty line when it is not stored",
              {Key("The setting's name")},
              [](const Arguments& given) { PrintSetting(given.Text("key")); }},
             {"set", "Stores a setting", {Key("The setting's name"), Value()}, [](const Arguments& given) {
                  StoreSetting(given.Text("key"), given.Text("value"));
              }}}};
}

CommandGroup INI() {
    return {"ini",
            "Reads and writes INI files, one key at a time",
            {{"get",
              "Prints a value; an empty line when file, section or key is missing",
              {Section(), Key("The key's name"), File()},
              [](const Arguments& given) { PrintINI(given.Text("section"), given.Text("key"), given.Path("file")); }},
             {"set",
              "Writes a value and makes file, section or key when missing",
              {Section(), Key("The key's name"), Value(), File()},
              [](const Arguments& given) {
                  StoreINI(given.Text("section"), given.Text("key"), given.Text("value"), given.Path("file"));
              }}}};
}

} // namespace

std::vector<CommandGroup> GameCommands() {
    return {Alone(), Setting(), INI()};
}
