// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/mShellMaps.h"

#include "core/FileMoves.h"
#include "core/GameFiles.h"
#include "personal/MapsFolder.h"
#include "platform/Files.h"
#include "platform/Leftovers.h"
#include "platform/ListedFolder.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

/// Takes one shell map out of the numbered store.
class Removal {
public:
    explicit Removal(GameIndex game) : game_(game), maps_(game) {}

    void Run(int number, int highest) {
        if (!maps_.IsThere())
            return;
        Empty(number, number == highest);
        if (number == highest)
            Files::DeleteFolder(FolderOf(number));
        FileMoves::Deleted(ToldFolder(number));
        // What was just emptied has nothing to move. Where a file in it could not be deleted, it is not the lower
        // number's.
        for (int from = number + 1; from <= highest; ++from)
            MoveDown(from);
        if (number < highest) {
            RemoveHighest(highest);
            FileMoves::Deleted(ToldFolder(highest));
        }
    }

private:
    [[nodiscard]] QString FolderOf(int number) const {
        return maps_.Find(GameFiles::ShellMapName(QString::number(number)));
    }

    /// The same as the catalogue names it.
    [[nodiscard]] QString ToldFolder(int number) const {
        return GameFiles::ShellMapFolder(game_, GameFiles::ShellMapName(QString::number(number)));
    }

    void Empty(int number, bool goesToo) const {
        const QString folder = FolderOf(number);
        if (!Files::IsLink(folder)) {
            Files::EmptyFolder(folder);
            return;
        }
        Ignoring([&] { Files::RemoveLink(folder); });
        if (!goesToo)
            Ignoring([&] { Files::MakeFolder(folder); });
    }

    /// A file without a namesake in the next folder stays behind. This is meant.
    void MoveDown(int from) {
        const QString source = FolderOf(from);
        const QString target = FolderOf(from - 1);
        // Its files are one number down already. Nothing is written to what a link leads to.
        if (stuck_.isEmpty() && Files::IsLink(target))
            Ignoring([&] {
                Files::RemoveLink(target);
                Files::MakeFolder(target);
            });
        QStringList stuck;
        Leftovers::Sweep(Paths::ToNative(source) + u'/');
        // A folder that can't be listed has more than is seen: nothing may take its place.
        const QStringList names =
            maps_.Has(Paths::LastPart(source)) ? ListedFolder(source).Names(false) : QStringList();
        for (const QString& name : names) {
            if (MoveDown(name, source, target))
                FileMoves::Copied(ToldFolder(from) + u'\\' + name, ToldFolder(from - 1) + u'\\' + name);
            else
                stuck.append(name);
        }
        stuck_ = stuck;
        FileMoves::Copied(ToldFolder(from), ToldFolder(from - 1));
    }

    /// Over a file that could not be moved itself nothing is copied: it would be lost.
    [[nodiscard]] bool MoveDown(const QString& name, const QString& source, const QString& target) const {
        const QString to = target + u'\\' + name;
        if (stuck_.contains(name, Qt::CaseInsensitive) || Files::IsLink(target))
            return false;
        return Ignoring([&] {
            if (Files::IsLink(to))
                Files::RemoveLink(to);
            Files::Copy(source + u'\\' + name, to);
        });
    }

    /// A subfolder keeps the folder: nothing in it was moved.
    void RemoveHighest(int highest) const {
        const QString folder = FolderOf(highest);
        if (Files::IsLink(folder)) {
            if (stuck_.isEmpty())
                Ignoring([&] { Files::RemoveLink(folder); });
            return;
        }
        QStringList kept;
        for (const QString& name : stuck_)
            kept.append(folder + u'\\' + name);
        Files::EmptyFolder(folder, kept);
        Ignoring([&] { Files::RemoveFolder(folder); });
    }

    GameIndex game_;
    MapsFolder maps_;
    QStringList stuck_; ///< names in the folder moved last that stayed there only
};

} // namespace

void mShellMaps::RemoveShellMap(qint16 number, GameIndex game) {
    if (number < 0 || game < 0 || game >= GameCount)
        return;
    const std::optional<int> highest = GameFiles::HighestShellMapNumber(game, GameFiles::Kind::FoldersOnly);
    if (!highest)
        return;
    Ignoring([&] { Removal(game).Run(number, *highest); });
}
