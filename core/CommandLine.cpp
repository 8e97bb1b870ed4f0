// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the command line asks for.

#include "core/mMain.h"
#include "platform/Files.h"
#include "platform/Paths.h"

#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Action = mMain::Dispatched::Action;

constexpr qsizetype PathStart = 6;

/// The path that a person gave: as their system writes it, or else as the games' files do.
QString GivenPath(const QString& text) {
    const QString path = Paths::FromNative(text);
    return Files::FileExists(path) ? path : text;
}

/// The game that "/launch" names. The longer of two switches is tested first.
std::optional<GameIndex> LaunchedGame(const QString& commandLine) {
    struct GameSwitch {
        QString Switch;
        GameIndex Game;
    };

    static const std::vector<GameSwitch> switches{{u"/zh"_s, 1}, {u"/gen"_s, 0}, {u"/bfme2"_s, 3}, {u"/bfme"_s, 2}};
    for (const GameSwitch& one : switches) {
        if (commandLine.contains(one.Switch))
            return one.Game;
    }
    return std::nullopt;
}

struct ToolSwitch {
    QString Switch;
    Action WithFile;
    Action Empty;
};

/// In the order in which they are tested. A tool that takes no path has the same action twice.
const std::vector<ToolSwitch>& ToolSwitches() {
    static const std::vector<ToolSwitch> switches{
        {u"/tbig"_s, Action::OpenBigFile, Action::ShowBigEditor},
        {u"/bige"_s, Action::ExtractBigFile, Action::ShowBigEditor},
        {u"/tcsf"_s, Action::OpenCSFFile, Action::ShowCSFEditor},
        {u"/tpfiles"_s, Action::ShowPersonalFiles, Action::ShowPersonalFiles},
        {u"/addfile"_s, Action::ShowAddFiles, Action::ShowAddFiles},
    };
    return switches;
}

mMain::Dispatched Tool(const ToolSwitch& tool, const QString& commandLine) {
    mMain::Dispatched result{.What = tool.Empty, .UpdateChecks = 1};
    if (tool.WithFile == tool.Empty || commandLine.size() <= PathStart)
        return result;
    // Always what stands behind the first six characters, wherever the switch was found. Quotes stay.
    const QString path = GivenPath(commandLine.mid(PathStart));
    if (Files::FileExists(path)) {
        result.What = tool.WithFile;
        result.Path = path;
    }
    return result;
}

QString WithoutQuotes(const QString& text) {
    const bool isQuoted = text.size() > 1 && text.startsWith(u'"') && text.endsWith(u'"');
    return isQuoted ? text.sliced(1, text.size() - 2) : text;
}

} // namespace

QString mMain::WithTool(const QString& commandLine) {
    const QString path = GivenPath(WithoutQuotes(commandLine));
    const bool isArchive = path.endsWith(u".big"_s, Qt::CaseInsensitive);
    const bool isTable = path.endsWith(u".csf"_s, Qt::CaseInsensitive);
    if ((!isArchive && !isTable) || !Files::FileExists(path))
        return commandLine;
    return (isArchive ? u"/tbig "_s : u"/tcsf "_s) + path;
}

QString mMain::FileArgument(const QString& commandLine) {
    qsizetype count = 0;
    for (const QString& piece : commandLine.split(u' ')) {
        // A path of the system may begin with a slash too; it differs from the same path inside the program.
        const QString rest = commandLine.mid(count);
        if (!piece.startsWith(u'/') || GivenPath(rest) != rest)
            break;
        count += piece.size() + 1;
    }
    // Behind nothing but switches the count is past the end, and there is no argument.
    return count > commandLine.size() ? QString() : GivenPath(commandLine.mid(count));
}

mMain::Dispatched mMain::Dispatch(const QString& given) {
    const QString commandLine = WithTool(given);
    // Every switch is looked for anywhere in the line, with regard to case. This is meant.
    if (commandLine.contains(u"/launch"_s)) {
        if (const auto game = LaunchedGame(commandLine))
            return {.What = Action::LaunchGame, .Launched = *game};
        return {.UpdateChecks = 1};
    }
    for (const ToolSwitch& tool : ToolSwitches()) {
        if (commandLine.contains(tool.Switch))
            return Tool(tool, commandLine);
    }
    // An unknown line passes the check once by itself and once in the normal start. This is meant.
    return {.UpdateChecks = commandLine.isEmpty() ? 1 : 2};
}
