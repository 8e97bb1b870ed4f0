// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/GameFiles.h"

#include "core/NameOrder.h"
#include "core/mMain.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

std::function<void(GameIndex game)> GameFiles::ActivateShellMap;

namespace {

constexpr qsizetype Digits = 3;
constexpr qsizetype ExtensionLength = 4;

QString ShellMapBegin() {
    return u"QvShellMap"_s;
}

const GameEntry& EntryOf(GameIndex game) {
    return Game.at(static_cast<std::size_t>(game));
}

QString MapsFolder(GameIndex game) {
    return EntryOf(game).InstallFolder() + u"Maps\\"_s;
}

/// What the game's folder has, in order. Without a game its folder would be the current one.
QStringList Listed(GameIndex game, const QString& pattern, bool withFolders) {
    if (EntryOf(game).InstallPath.isEmpty())
        return {};
    QStringList names = Files::ListFolder(pattern, withFolders);
    NameOrder::Sort(names);
    return names;
}

QStringList ListedInMaps(GameIndex game, const QString& pattern, GameFiles::Kind kind) {
    QStringList names = Listed(game, MapsFolder(game) + pattern, true);
    if (kind == GameFiles::Kind::FoldersOnly)
        names.removeIf([&](const QString& name) { return !Files::FolderExists(MapsFolder(game) + name); });
    return names;
}

} // namespace

bool GameFiles::IsOwnArchive(GameIndex game, const QString& fileName) {
    return EntryOf(game).GameBigFiles.contains(u'/' + fileName + u'/', Qt::CaseInsensitive);
}

bool GameFiles::IsMod(GameIndex game, const QString& fileName) {
    return !fileName.startsWith(u'_') && !IsOwnArchive(game, fileName);
}

QStringList GameFiles::Mods(GameIndex game) {
    QStringList names = Listed(game, EntryOf(game).InstallFolder() + u"*.big"_s, false);
    names.removeIf([game](const QString& name) { return !IsMod(game, name); });
    return names;
}

QStringList GameFiles::ShellMaps(GameIndex game, Kind kind) {
    return ListedInMaps(game, ShellMapBegin() + QString(Digits, u'?'), kind);
}

std::optional<int> GameFiles::NumberIn(const QString& name) {
    const QString last = name.last(std::min(Digits, name.size()));
    const auto isDigit = [](QChar letter) { return letter >= u'0' && letter <= u'9'; };
    if (last.size() != Digits || !std::ranges::all_of(last, isDigit))
        return std::nullopt;
    return last.toInt();
}

std::optional<int> GameFiles::HighestShellMapNumber(GameIndex game, Kind kind) {
    const QStringList names = ListedInMaps(game, {}, kind);
    // The last name counts and not the greatest number. This is meant.
    const auto last = std::find_if(names.rbegin(), names.rend(), [](const QString& name) {
        return name.startsWith(ShellMapBegin()) && NumberIn(name).has_value();
    });
    return last == names.rend() ? std::nullopt : NumberIn(*last);
}

QString GameFiles::ShellMapName(const QString& number) {
    if (number.size() > Digits)
        throw RuntimeError(ErrorNumber::InvalidCall, u"%1: no shell map has that number"_s.arg(number));
    return ShellMapBegin() + number.rightJustified(Digits, u'0');
}

int GameFiles::ShellMapNumber(const QString& name) {
    bool isNumber = false;
    const double number = name.last(std::min(Digits, name.size())).toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number))
        throw RuntimeError(ErrorNumber::TypeMismatch, u"%1: a shell map's name ends in its number"_s.arg(name));
    return static_cast<int>(std::nearbyint(std::clamp(number, -1e9, 1e9)));
}

QString GameFiles::ShellMapFolder(GameIndex game, const QString& name) {
    return MapsFolder(game) + name;
}

GameFiles::RecordPlace GameFiles::ModRecord(GameIndex game, const QString& fileName) {
    const QString base = fileName.first(std::max<qsizetype>(0, fileName.size() - ExtensionLength));
    return {.File = EntryOf(game).InstallFolder() + base + u".ini"_s, .Section = u"Mod"_s};
}

GameFiles::RecordPlace GameFiles::ShellMapRecord(GameIndex game, const QString& name) {
    return {.File = ShellMapFolder(game, name) + u"\\QvInfos.ini"_s, .Section = u"Infos"_s};
}

GameFiles::Record GameFiles::ReadRecord(const RecordPlace& place) {
    const QStringList values = mMain::INI().ReadValues(place.Section, {u"Name"_s, u"Comments"_s}, place.File);
    return {.Name = values[0], .Comments = values[1]};
}
