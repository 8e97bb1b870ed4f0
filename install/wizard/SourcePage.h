// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The first page of adding files without a control: the file that was chosen, what it is, and the game that it is for.
#pragma once

#include "core/Game.h"
#include "core/Host.h"

#include <QString>

#include <vector>

/// What the page shows.
struct SourcePageState {
    bool InformationsVisible = false; ///< frmInformations, with all below
    int InformationsHeight = 0;       ///< of frmInformations
    QString Name;                     ///< lblFile
    QString Size;                     ///< lblSize
    QString FileType;                 ///< lblFileType
    bool ContentVisible = false;      ///< lblFileContentCaption and lblFileContent
    QString Content;                  ///< lblFileContent
    bool GameEnabled = false;         ///< cbGame
    bool NextEnabled = false;         ///< cmdNext
    int GameRow = -1;                 ///< of cbGame; -1 where no game is installed
};

class SourcePage {
public:
    static constexpr int HeightOfOthers = 108;
    static constexpr int HeightOfZips = 124;

    enum class By { Dialog, CommandLine };

    /// A row of cbGame.
    struct GameRow {
        QString Text;
        GameIndex Game;
    };

    /// The installed games, the first one selected.
    SourcePage();

    [[nodiscard]] const SourcePageState& State() const { return state_; }

    [[nodiscard]] const std::vector<GameRow>& Games() const { return games_; }

    /// The chosen file's full inside path and its name; empty until one was accepted.
    [[nodiscard]] const QString& SourcePath() const { return path_; }

    [[nodiscard]] const QString& SourceName() const { return name_; }

    /// Asks for a file. A cancelled dialog changes nothing.
    void Browse();

    /// A file was chosen (inside path). One of another type is refused with a message, and the one before stays; so it
    /// does when the dialog's file can't be asked for its length, with a beep.
    void Choose(const QString& path, By by);

    /// Takes the file that the program was started with, where it was started to add one. What fails is passed over.
    void TakeCommandLine();

    /// The user selected a row of cbGame. One that does not go with the file is refused with a message.
    void SelectGame(int row);

    /// Makes the selected game the active one; false, with a message, when the file does not go into it.
    [[nodiscard]] bool TakeGame() const;

private:
    void Accept(const QString& path, const QString& size);
    void TellType(const QString& path);
    void SelectZeroHour();
    [[nodiscard]] bool IsShellMapOfGenerals() const;

    SourcePageState state_;
    std::vector<GameRow> games_;
    int zeroHourRow_ = 0; ///< or where it would stand
    QString path_;
    QString name_;
};
