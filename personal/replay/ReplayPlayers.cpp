// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/replay/ReplayPlayers.h"

#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/RuntimeError.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

constexpr qint16 TeamCount = 8;
constexpr qint16 NoTeam = 8; ///< the branch behind those of the teams

QString ObserversKey() {
    return u"obs"_s;
}

/// A whole number of 16 bits, rounded to the even one; raises 13 or 6.
qint16 Number(const QString& text) {
    bool isNumber = false;
    const double number = std::nearbyint(text.toDouble(&isNumber));
    if (!isNumber || std::isnan(number))
        throw RuntimeError(ErrorNumber::TypeMismatch, u"%1: no number"_s.arg(text));
    using Limits = std::numeric_limits<qint16>;
    if (number < Limits::min() || number > Limits::max())
        throw RuntimeError(ErrorNumber::Overflow, u"%1: no number of 16 bits"_s.arg(text));
    return static_cast<qint16>(number);
}

struct Side {
    QString Name;
    QString Icon;
};

/// A branch of the tree with what hangs under it.
struct Branch {
    PlayerNode Node;
    std::vector<PlayerNode> Children;
};

/// Draws the parts of a slot entry, one after the other.
class Drawing {
public:
    explicit Drawing(GameIndex game) : game_(game) {
        observers_.Node = AddedBranch({ObserversKey(), GetText(u"Observers"_s), u"Obs"_s, u"Obs"_s, {}});
        for (int i = 0; i < TeamCount; ++i)
            teams_.at(static_cast<std::size_t>(i)).Node = AddedBranch(TeamNode(i));
        teams_.at(NoTeam).Node = AddedBranch({u"Team -1"_s, GetText(u"NoTeam"_s), u"TI"_s, u"TI"_s, {}});
    }

    void Draw(const QString& part, qsizetype index) {
        if (part == u'O')
            AddObserver();
        else if (part.startsWith(u'H'))
            AddHuman(part.split(u','));
        else if (part.startsWith(u'C'))
            AddComputer(part.split(u','), index);
    }

    /// The branches that are not empty, each with its children behind it.
    [[nodiscard]] std::vector<PlayerNode> Nodes() const {
        std::vector<PlayerNode> nodes;
        const auto append = [&](const Branch& branch) {
            if (branch.Children.empty())
                return;
            nodes.push_back(branch.Node);
            nodes.insert(nodes.end(), branch.Children.begin(), branch.Children.end());
        };
        append(observers_);
        std::ranges::for_each(teams_, append);
        return nodes;
    }

private:
    static PlayerNode TeamNode(int team) {
        const QString picture = u'T' + QString::number(team + 1);
        return {u"Team %1"_s.arg(team), GetText(u"Team"_s) + u' ' + QString::number(team + 1), picture, picture, {}};
    }

    PlayerNode AddedBranch(const PlayerNode& node) {
        keys_.insert(node.Key);
        return node;
    }

    /// A key that is there already gives no second node.
    void Add(Branch& branch, PlayerNode node) {
        if (keys_.contains(node.Key))
            return;
        keys_.insert(node.Key);
        node.Parent = branch.Node.Key;
        branch.Children.push_back(node);
    }

    void AddObserver() {
        const QString number = QString::number(++observerNumber_);
        // The children's picture is spelt unlike the branch's. This is meant.
        Add(observers_, {ObserversKey() + number, GetText(u"Observer"_s) + u' ' + number, u"obs"_s, u"obs"_s, {}});
    }

    void AddHuman(const QStringList& fields) {
        TakeSideAndTeam(fields, 5, 7);
        const Side& side = SideNamed();
        const QString text = fields[0].sliced(1) + u" ("_s + side.Name + u')';
        AddToTeam({text, text, side.Icon, {}, {}});
    }

    void AddComputer(const QStringList& fields, qsizetype index) {
        const QString easy = GetText(u"EasyAI"_s);
        const QString medium = GetText(u"MediumAI"_s);
        const QString hard = GetText(u"HardAI"_s);
        const QString& strength = fields[0] == "CM"_L1 ? medium : fields[0] == "CE"_L1 ? easy : hard;
        TakeSideAndTeam(fields, 2, 4);
        const Side& side = SideNamed();
        AddToTeam(
            {GetText(u"AI"_s) + QString::number(index), strength + u" ("_s + side.Name + u')', side.Icon, {}, {}});
    }

    // A field that is missing or no number leaves what the player before had. This is meant.
    void TakeSideAndTeam(const QStringList& fields, qsizetype sideField, qsizetype teamField) {
        Ignoring([&] { side_ = Number(fields.value(sideField)); });
        Ignoring([&] { team_ = Number(fields.value(teamField)); });
        if (team_ == -1)
            team_ = NoTeam;
    }

    const Side& SideNamed() {
        const auto known = sides_.find(side_);
        if (known != sides_.end())
            return known->second;
        Side side;
        Ignoring([&] { side.Name = GetText(Entry(QString())); });
        Ignoring([&] { side.Icon = Entry(u"Icon"_s); });
        return sides_.emplace(side_, side).first->second;
    }

    /// What the sides' file says about the side.
    [[nodiscard]] QString Entry(const QString& what) const {
        return mMain::INI().ReadINI(QString::number(game_) + u"Data"_s, u"Side"_s + QString::number(side_) + what,
                                    mMain::ProgramFolder + u"\\gdatas.cfg"_s);
    }

    void AddToTeam(const PlayerNode& node) {
        // Team 8, which no game writes, stands for none as well. This is meant.
        if (team_ >= 0 && team_ <= NoTeam)
            Add(teams_.at(static_cast<std::size_t>(team_)), node);
    }

    GameIndex game_;
    QSet<QString> keys_;
    Branch observers_;
    std::array<Branch, TeamCount + 1> teams_;
    int observerNumber_ = 0;
    qint16 side_ = 0;
    qint16 team_ = 0;
    std::map<qint16, Side> sides_;
};

} // namespace

QStringList ReplayPlayers::PictureKeys() {
    return {u"Random"_s, u"USA"_s,      u"China"_s,  u"GLA"_s,   u"Obs"_s, u"T1"_s,    u"T2"_s, u"T3"_s,
            u"T4"_s,     u"T5"_s,       u"T6"_s,     u"T7"_s,    u"T8"_s,  u"TI"_s,    u"TP"_s, u"Rohan"_s,
            u"Gondor"_s, u"Isengard"_s, u"Mordor"_s, u"Dwarf"_s, u"Elf"_s, u"Goblin"_s};
}

std::vector<PlayerNode> ReplayPlayers::Tree(const QString& slotEntry, GameIndex game) {
    Drawing drawing(game);
    const QStringList parts = slotEntry.split(u':');
    for (qsizetype index = 0; index < parts.size(); ++index)
        drawing.Draw(parts[index], index);
    return drawing.Nodes();
}
