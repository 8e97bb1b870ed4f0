// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The games: where they are, and the folders of the user's own files.

#include "core/mMain.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr GameIndex Generals = 0;
constexpr GameIndex ZeroHour = 1;
constexpr GameIndex BattleForMiddleEarth = 2;

QString GameKey(GameIndex game) {
    static const std::array<QString, GameCount> keys{
        u"SOFTWARE\\Electronic Arts\\EA Games\\Generals"_s,
        u"SOFTWARE\\Electronic Arts\\EA Games\\Command and Conquer Generals Zero Hour"_s,
        u"SOFTWARE\\Electronic Arts\\EA Games\\The Battle for Middle-Earth"_s,
        // The last game registers itself under the doubled name.
        u"SOFTWARE\\Electronic Arts\\Electronic Arts\\The Battle for Middle-Earth II"_s,
    };
    return keys.at(static_cast<std::size_t>(game));
}

// The duplicates and the odd capitals are part of the lists.
QString OwnBigFiles(GameIndex game) {
    static const std::array<QString, GameCount> lists{
        u"/Audio.big//AudioFrench.big//AudioEnglish.big//French.big//English.big//gensec.big//INI.big//Maps.big/"
        "/Music.big//shaders.big//Speech.big//SpeechFrench.big//Patch.big//Terrain.big//Textures.big//W3D.big/"
        "/Window.big//Gensec.big/"_s,
        u"/AudioZH.big//AudioFrenchZH.big//AudioEnglishZH.big//FrenchZH.big//EnglishZH.big//INIZH.big//MapsZH.big/"
        "/Music.big//MusicZH.big//PatchZH.big//W3DFrenchZH.big//shadersZH.big//SpeechZH.big//SpeechFrenchZH.big/"
        "/TerrainZH.big//TexturesZH.big//W3DZH.big//WindowZH.big//GensecZH.big/"_s,
        u"/AmbientStreams.big//Audio.big//Bases.big//Data.big//EnglishAudio.big//FrenchAudio.big//French.big/"
        "/English.big//INI.big//Libraries.big//lotrsec.big//Maps.big//Music.big//Patch.big//Shaders.big/"
        "/Terrain.big//Textures.big//W3D.big//Window.big/"_s,
        u"/AmbientStreams.big//Audio.big//Bases.big//Data1.big//INI.big//Libraries.big//lotrsec.big//Maps.big/"
        "/Music.big//Patch.big//Shaders.big//Terrain.big//Textures0.big//Textures1.big//Textures2.big/"
        "/Textures3.big//Textures4.big//W3D.big//Window.big/"_s,
    };
    return lists.at(static_cast<std::size_t>(game));
}

QString ShellFolders() {
    return u"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders"_s;
}

// The two older games keep their data with the documents, the two later ones with the application data.
QString ShellFolderName(GameIndex game) {
    return game <= ZeroHour ? u"Personal"_s : u"AppData"_s;
}

QString InstallPathName() {
    return u"InstallPath"_s;
}

/// How much of a game is where the registry says it is.
enum class Presence { None, Named, Folder, Program };

Presence PresenceOf(const RegistryRuntime::Place& place, GameIndex game) {
    if (place.Text.isEmpty())
        return Presence::None;
    const QString folder = Paths::InPrefix(Paths::PrefixFor(place.Text, place.Prefix), place.Text);
    if (Files::FileExists(folder + ExecutableName(game)))
        return Presence::Program;
    if (!Files::FolderExists(folder))
        return Presence::Named;
    // What the user wrote down needs no proof.
    return place.Prefix.isEmpty() ? Presence::Program : Presence::Folder;
}

/// Takes the first of the places where most of the game is: what an uninstalled game left in one prefix does not hide
/// the game in another.
void FindGame(GameIndex game) {
    GameEntry& entry = Game.at(static_cast<std::size_t>(game));
    entry = {};
    Presence best = Presence::None;
    for (const auto& place : mMain::Registry().Places(RootKey::LocalMachine, GameKey(game), InstallPathName())) {
        const Presence presence = PresenceOf(place, game);
        if (presence <= best)
            continue;
        best = presence;
        entry.InstallPath = place.Text;
        entry.FoundIn = place.FoundIn;
        entry.Prefix = Paths::PrefixFor(place.Text, place.Prefix);
    }
}

/// While it lives, reads look first in the Wine prefix that the game was found in: the user's folders are that
/// prefix's own.
class ReadingBesideGame {
public:
    explicit ReadingBesideGame(GameIndex game) {
        mMain::Registry().LookFirstIn(Game.at(static_cast<std::size_t>(game)).Prefix);
    }

    ~ReadingBesideGame() { mMain::Registry().LookFirstIn({}); }

    ReadingBesideGame(const ReadingBesideGame&) = delete;
    ReadingBesideGame& operator=(const ReadingBesideGame&) = delete;
};

/// The folder of the game's user files, no trailing backslash. A missing value leaves its place empty.
QString UserDataFolder(GameIndex game) {
    const ReadingBesideGame reading(game);
    const RegistryRuntime& registry = mMain::Registry();
    const QString base = registry.GetString(RootKey::CurrentUser, ShellFolders(), ShellFolderName(game));
    const QString leaf = game == Generals
                             ? u"Command and Conquer Generals Data"_s
                             : registry.GetString(RootKey::LocalMachine, GameKey(game), u"UserDataLeafName"_s);
    return base + u'\\' + leaf;
}

/// The prefix that the registry names the user's folders in, else the game's.
QString PrefixOfUser(GameIndex game) {
    const ReadingBesideGame reading(game);
    const QString named = mMain::Registry().PrefixOf(RootKey::CurrentUser, ShellFolders(), ShellFolderName(game));
    return named.isEmpty() ? Game.at(static_cast<std::size_t>(game)).Prefix : named;
}

/// Lets the game's folders, where somebody names them, be looked for in the game's prefix.
void FollowPrefixes(const GameEntry& entry) {
    if (!entry.InstallPath.isEmpty())
        Paths::UsePrefix(entry.InstallPath, entry.Prefix);
    for (const QString& folder : {entry.ReplayPath, entry.MapPath})
        Paths::UsePrefix(folder, entry.UserPrefix);
}

} // namespace

void mMain::DetectGames() {
    Paths::ForgetPrefixes();
    static_cast<void>(Registry().WasReadable());
    for (const GameIndex game : {ZeroHour, Generals, BattleForMiddleEarth, GameCount - 1})
        FindGame(game);
    for (GameIndex game = 0; game < GameCount; ++game) {
        GameEntry& entry = Game.at(static_cast<std::size_t>(game));
        entry.ReplayPath = UserDataFolder(game) + u"\\Replays\\"_s;
        entry.MapPath = UserDataFolder(game) + u"\\Maps\\"_s;
        entry.UserPrefix = PrefixOfUser(game);
    }
    for (const GameEntry& entry : Game)
        FollowPrefixes(entry);
    for (GameIndex game = 0; game < GameCount; ++game)
        Game.at(static_cast<std::size_t>(game)).GameBigFiles = OwnBigFiles(game);
    if (Registry().WasReadable())
        return;
    // Folders whose places read as empty would be others than the games'.
    Game = {};
    throw RuntimeError(ErrorNumber::DeviceError, u"the settings could not be read"_s);
}

QString mMain::InstallPathFoundIn(GameIndex game) {
    return Game.at(static_cast<std::size_t>(game)).FoundIn;
}

void mMain::MakeUserFolders() {
    const auto make = [](const QString& folder) { Ignoring([&] { Files::MakeFolder(folder); }); };
    if (const GameEntry& entry = Game[Generals]; !entry.InstallPath.isEmpty()) {
        make(Paths::InPrefix(entry.UserPrefix, UserDataFolder(Generals)) + u'\\');
        make(entry.ReplayFolder());
        make(entry.MapFolder());
    }
    // The Battle for Middle-earth II gets none: its folders are used only if the game made them. This is meant.
    for (const GameIndex game : {ZeroHour, BattleForMiddleEarth}) {
        const GameEntry& entry = Game.at(static_cast<std::size_t>(game));
        if (entry.InstallPath.isEmpty())
            continue;
        make(Paths::InPrefix(entry.UserPrefix, UserDataFolder(game)));
        make(entry.MapFolder());
        make(entry.ReplayFolder());
    }
}
