// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The header of replays, and the tree of players, without a disk but for the texts.
#include "fuzz/Fuzzing.h"

#include "core/mMain.h"
#include "personal/replay/Replay.h"
#include "personal/replay/ReplayPlayers.h"
#include "platform/RuntimeError.h"

#include <QSet>

using namespace Qt::StringLiterals;
using Fuzzing::Expect;

namespace {

/// A language and sides, so that no text is missing.
void UseTexts() {
    static const bool done = [] {
        mMain::UseRuntimes();
        const QString file = Fuzzing::Write(u"Any.lng"_s, "[LNG]\nObservers=O\nObserver=O\nTeam=T\nNoTeam=N\nAI=A\n"
                                                          "EasyAI=E\nMediumAI=M\nHardAI=H\nS=Side\n");
        Fuzzing::Write(u"gdatas.cfg"_s, "[0Data]\nSide-1=S\nSide-1Icon=Random\nSide2=S\nSide8=S\n");
        mMain::ProgramFolder = file.first(file.lastIndexOf(u'\\'));
        mMain::LanguageFileName = u"Any.lng"_s;
        return true;
    }();
    Expect(done, "there are texts");
}

void ExpectTree(const QString& slotEntry) {
    QSet<QString> keys;
    for (const PlayerNode& node : ReplayPlayers::Tree(slotEntry, 0)) {
        Expect(!keys.contains(node.Key), "no key comes twice");
        Expect(node.Parent.isEmpty() || keys.contains(node.Parent), "a branch stands before its children");
        keys.insert(node.Key);
    }
}

void Run(const QByteArray& bytes) {
    UseTexts();
    Replay replay;
    const bool whole = Ignoring([&] {
        Replays::ReadMatch(bytes, replay);
        Replays::ReadVersion(bytes, replay);
    });
    Expect(replay.Players >= 0 && replay.Players <= 8, "eight slots count");
    Expect(replay.Version.size() <= Replays::HeaderLength / 2, "a version has two bytes a letter");
    if (whole)
        Expect(replay.Slots.count(u':') >= 7 && !replay.Slots.contains(u';'), "an entry ends at its semicolon");
    ExpectTree(replay.Slots + u';');
}

const FuzzTarget target("replay", Run);

} // namespace
