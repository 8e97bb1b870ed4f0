// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A small world of its own for one test: a temporary program folder, a registry file, four small game folders, no Wine
/// prefix. The user's own are never touched.
#pragma once

#include "core/Game.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

class World {
public:
    World();
    ~World();
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    /// Inside paths without a trailing backslash.
    [[nodiscard]] QString Root() const;
    [[nodiscard]] QString ProgramFolder() const;

    /// Registers a game's keys and makes its folders; "Personal" and "AppData" are set too.
    void InstallGame(GameIndex game) const;

    /// The registry file's text, REGEDIT4 in the ANSI code page.
    void WriteRegistry(const QByteArray& text) const;

    /// Puts the language file in place and names it in the settings.
    void UseLanguage(const QByteArray& lngText, const QString& fileName = QStringLiteral("Test.lng")) const;
    /// Does so with one of the program's own, named as `OwnLanguages` names it.
    void UseOwnLanguage(const QString& name) const;

    /// Makes the file with its folders; path relative to Root(), backslashes. Returns the full inside path.
    QString WriteFile(const QString& path, const QByteArray& bytes) const;
    [[nodiscard]] static QByteArray ReadFile(const QString& fullPath);

    /// Makes the shared runtimes anew, as start-up does, so that what was written above is seen.
    void Start();

private:
    void PutIdleWineFirst() const;

    QTemporaryDir folder_;
};
