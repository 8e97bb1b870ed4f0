// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/document/PersonalTree.h"

#include "core/mTraduction.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

struct Branch {
    PersonalKind Kind;
    QStringView Word; ///< behind the game's prefix the node's key; by itself the key of its text
};

constexpr std::array<Branch, PersonalKindCount> branches = {{
    {PersonalKind::Replay, u"Replays"},
    {PersonalKind::Map, u"Maps"},
    {PersonalKind::Mod, u"Mods"},
    {PersonalKind::ShellMap, u"ShellMaps"},
}};

QString NameOf(GameIndex game) {
    const std::array<QString, GameCount> names = {u"Generals"_s, u"ZeroHour"_s, u"BFME"_s, u"BFME2"_s};
    return GetText(names.at(static_cast<std::size_t>(game)));
}

} // namespace

void PersonalTree::AddNodes(std::vector<PersonalNode>& nodes, const Count& count) {
    for (GameIndex game = 0; game < GameCount; ++game) {
        if (Game.at(static_cast<std::size_t>(game)).InstallPath.isEmpty())
            continue;
        const QString root = SettingsPrefix(game);
        nodes.push_back({.Key = root, .Text = NameOf(game), .Parent = {}, .Game = game, .Kind = {}});
        for (const Branch& branch : branches) {
            const QString word = branch.Word.toString();
            const QString counted = GetText(word) + u" ("_s + QString::number(count(branch.Kind, game)) + u')';
            nodes.push_back({.Key = root + word, .Text = counted, .Parent = root, .Game = game, .Kind = branch.Kind});
        }
    }
}

const PersonalNode* PersonalTree::Find(const std::vector<PersonalNode>& nodes, const QString& key) {
    const auto found = std::find_if(nodes.begin(), nodes.end(), [&](const auto& node) { return node.Key == key; });
    return found == nodes.end() ? nullptr : &*found;
}
