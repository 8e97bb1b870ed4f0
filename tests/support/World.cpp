// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/World.h"

#include "core/GameFiles.h"
#include "core/Settings.h"
#include "core/mMain.h"
#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/Paths.h"
#include "tests/support/OwnLanguages.h"

#include <QDir>
#include <QFile>

#include <array>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

struct GameKeys {
    QString Key;
    QString Folder;
    QString UserDataLeafName;
};

const GameKeys& KeysOf(GameIndex game) {
    static const std::array<GameKeys, GameCount> keys{{
        {u"SOFTWARE\\Electronic Arts\\EA Games\\Generals"_s, u"Generals"_s, {}},
        {u"SOFTWARE\\Electronic Arts\\EA Games\\Command and Conquer Generals Zero Hour"_s, u"Zero Hour"_s,
         u"Command and Conquer Generals Zero Hour Data"_s},
        {u"SOFTWARE\\Electronic Arts\\EA Games\\The Battle for Middle-Earth"_s, u"Battle for Middle-earth"_s,
         u"My Battle for Middle-earth Files"_s},
        {u"SOFTWARE\\Electronic Arts\\Electronic Arts\\The Battle for Middle-Earth II"_s,
         u"Battle for Middle-earth II"_s, u"My Battle for Middle-earth II Files"_s},
    }};
    return keys.at(static_cast<std::size_t>(game));
}

QString NativeRoot(const QTemporaryDir& folder) {
    return QDir::toNativeSeparators(folder.path());
}

void ResetStartUpState() {
    mMain::CommandLine.clear();
    mMain::CommandFileArgument.clear();
    mMain::LanguageFileName.clear();
    mMain::AddFileRequested = false;
    mMain::RestartRequested = false;
    mMain::CsfOpenedByHost = false;
    Game = {};
    GameFiles::ActivateShellMap = nullptr;
}

} // namespace

World::World() {
    if (!folder_.isValid())
        throw std::runtime_error("No temporary folder for a test's world: " + folder_.errorString().toStdString());
    qputenv("BRINDOCK_PROGRAM_FOLDER", QDir::toNativeSeparators(folder_.filePath(u"program"_s)).toUtf8());
    qputenv("BRINDOCK_REGISTRY", QDir::toNativeSeparators(folder_.filePath(u"registry.reg"_s)).toUtf8());
    qputenv("BRINDOCK_WINE_PREFIXES", "");
    Files::MakeFolder(ProgramFolder());
    PutIdleWineFirst();
    ResetStartUpState();
    Start();
}

// A launch in a test must not start the machine's own Wine, which would set up a prefix in the user's home.
void World::PutIdleWineFirst() const {
    static const QByteArray path = qgetenv("PATH");
    const QString wine = Paths::ToNative(WriteFile(u"bin\\wine"_s, "#!/bin/sh\nexit 0\n"));
    QFile::setPermissions(wine, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const char separator = QDir::listSeparator().toLatin1();
    qputenv("PATH", QDir::toNativeSeparators(folder_.filePath(u"bin"_s)).toUtf8() + separator + path);
}

// The environment goes on naming the folders that are gone: nothing may find the user's own after a test.
World::~World() {
    NumberedFiles::CloseAll();
}

QString World::Root() const {
    return Paths::FromNative(NativeRoot(folder_));
}

QString World::ProgramFolder() const {
    return Root() + u"\\program"_s;
}

void World::InstallGame(GameIndex game) const {
    const GameKeys& keys = KeysOf(game);
    const QString shellFolders = u"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders"_s;
    const QString installFolder = Root() + u"\\games\\"_s + keys.Folder;
    const QString personal = Root() + u"\\user\\Documents"_s;
    const QString appData = Root() + u"\\user\\AppData"_s;
    for (const QString& folder : {installFolder, personal, appData})
        Files::MakeFolders(folder);
    RegistryRuntime registry;
    registry.SaveString(RootKey::LocalMachine, keys.Key, u"InstallPath"_s, installFolder + u'\\');
    if (!keys.UserDataLeafName.isEmpty())
        registry.SaveString(RootKey::LocalMachine, keys.Key, u"UserDataLeafName"_s, keys.UserDataLeafName);
    registry.SaveString(RootKey::CurrentUser, shellFolders, u"Personal"_s, personal);
    registry.SaveString(RootKey::CurrentUser, shellFolders, u"AppData"_s, appData);
}

void World::WriteRegistry(const QByteArray& text) const {
    WriteFile(u"registry.reg"_s, text);
}

void World::UseLanguage(const QByteArray& lngText, const QString& fileName) const {
    WriteFile(u"program\\"_s + fileName, lngText);
    RegistryRuntime().SaveString(RootKey::CurrentUser, QString::fromUtf16(SettingsKey), u"TradFileName"_s, fileName);
}

void World::UseOwnLanguage(const QString& name) const {
    UseLanguage(OwnLanguages::Bytes(name));
}

QString World::WriteFile(const QString& path, const QByteArray& bytes) const {
    QString fullPath = Root() + u'\\' + path;
    Files::MakeFolders(fullPath.first(fullPath.lastIndexOf(u'\\')));
    QFile file(Paths::ToNative(fullPath));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size() || !file.flush())
        throw std::runtime_error("Can't write " + fullPath.toStdString());
    return fullPath;
}

QByteArray World::ReadFile(const QString& fullPath) {
    QFile file(Paths::ToNative(fullPath));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("Can't read " + fullPath.toStdString());
    return file.readAll();
}

void World::Start() {
    mMain::UseRuntimes();
    mMain::LanguageFileName = ReadSetting(u"TradFileName"_s);
    mMain::DetectGames();
}
