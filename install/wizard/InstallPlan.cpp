// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/wizard/InstallPlan.h"

#include "core/CaseFolding.h"
#include "core/FolderGateway.h"
#include "core/GameFiles.h"
#include "core/NameOrder.h"
#include "core/Sizes.h"
#include "install/wizard/EntryNames.h"
#include "install/wizard/FileComparison.h"
#include "install/wizard/ItemFiles.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <QStringList>

#include <algorithm>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace {

using Effect = PlannedFile::Effect;

constexpr qsizetype ExtensionWithDot = 4;

bool IsDense(qint64 size, qint64 packed) {
    return size > InstallPlans::LargeEvenIfDense && (size - 1) / InstallPlans::DensestUsual >= packed;
}

class Planner {
public:
    Planner(const InstallSource& source, GameIndex game, const ccZip& zip)
        : source_(source),
          game_(game),
          place_(Game.at(static_cast<std::size_t>(game))),
          files_(source.SourceIsZip ? &zip : nullptr) {}

    InstallPlan Make() && {
        plan_.IsOfArchive = source_.SourceIsZip;
        if (!source_.SourceIsZip) {
            Add(source_.SingleFile, 0);
        } else {
            for (std::size_t number = 0; number < source_.InstallRecords.size(); ++number) {
                if (source_.InstallRecords[number].Selected)
                    Add(source_.InstallRecords[number], number);
            }
        }
        plan_.IsDense = plan_.IsDense || IsDense(plan_.Size, plan_.Packed);
        return std::move(plan_);
    }

private:
    void Add(const InstallRecord& record, std::size_t number) {
        PlannedItem item{.Number = number, .Kind = record.Kind, .Name = record.FileName, .Folder = {}};
        const QString base = EntryNames::Without(record.FileName, ExtensionWithDot);
        try {
            AddFiles(item, record, base);
        } catch (const RuntimeError& error) {
            item.Refusal = error.Description();
        }
        plan_.Items.push_back(std::move(item));
    }

    void AddFiles(PlannedItem& item, const InstallRecord& record, const QString& base) {
        if (record.Kind == FileKind::Map) {
            item.Refusal = FolderGateway::RefusalOfFolder(base);
            item.Folder = FolderIn(place_.MapFolder(), base);
        } else if (record.Kind == FileKind::ShellMap) {
            item.Folder = NextShellMapFolder();
            item.IniFile = item.Folder + u"QvInfos.ini"_s;
        } else if (record.Kind == FileKind::Mod) {
            item.Folder = place_.InstallFolder();
            item.IsOwnArchive = GameFiles::IsOwnArchive(game_, EntryNames::LastPart(record.FileName));
            item.IniFile = item.Folder + EntryNames::LastPart(base) + u".ini"_s;
        } else {
            item.Folder = place_.ReplayFolder();
        }
        if (item.Refusal.isEmpty() && record.Kind != FileKind::None) {
            for (const SourceFile& file : files_.Of(record))
                AddFile(item, file);
        }
    }

    void AddFile(PlannedItem& item, const SourceFile& file) {
        KnownFolder& folder = Known(item.Folder);
        const QString key = CaseFolded(file.Name);
        PlannedFile planned{.Source = file.From,
                            .Target = item.Folder + folder.Spelt(key, file.Name),
                            .Size = file.Size,
                            .Refusal = file.Refusal};
        if (planned.Refusal.isEmpty())
            planned.Refusal = FolderGateway::RefusalOf(file.Name);
        planned.What = planned.Refusal.isEmpty() ? EffectOf(item, file, planned.Target, folder, key) : Effect::Refused;
        if (planned.What != Effect::Refused && planned.What != Effect::Itself) {
            plan_.Size = Sizes::Sum(plan_.Size, file.Size);
            plan_.Packed = Sizes::Sum(plan_.Packed, file.Packed);
            plan_.IsDense = plan_.IsDense || IsDense(file.Size, file.Packed);
            folder.Planned.insert_or_assign(key, FileComparison::Content{.Size = file.Size, .Crc = file.Crc});
        }
        item.Files.push_back(std::move(planned));
    }

    /// What stands in a folder, and what comes into it, by names without case.
    struct KnownFolder {
        std::unordered_map<QString, QString> Names; ///< mostly few
        std::unordered_map<QString, FileComparison::Content> Planned;

        /// The spelling that stands there, if one does.
        [[nodiscard]] QString Spelt(const QString& key, const QString& name) const {
            const auto found = Names.find(key);
            return found == Names.end() ? name : found->second;
        }
    };

    [[nodiscard]] Effect EffectOf(const PlannedItem& item, const SourceFile& file, const QString& target,
                                  const KnownFolder& folder, const QString& key) const {
        const bool isMap = item.Kind == FileKind::Map || item.Kind == FileKind::ShellMap;
        if (const auto earlier = folder.Planned.find(key); earlier != folder.Planned.end())
            return isMap && FileComparison::IsSame(file, earlier->second) ? Effect::Same : Effect::Replaces;
        if (!folder.Names.contains(key))
            return Effect::New;
        if (!source_.SourceIsZip && Files::SameFile(file.From, target))
            return Effect::Itself;
        return isMap && FileComparison::IsSame(file, target) ? Effect::Same : Effect::Replaces;
    }

    /// Each folder is read once.
    KnownFolder& Known(const QString& folder) {
        if (last_ != nullptr && lastPath_ == folder)
            return *last_;
        const auto [place, isNew] = folders_.try_emplace(CaseFolded(folder));
        if (isNew) {
            for (const QString& name : Files::ListFolder(folder, true))
                place->second.Names.insert_or_assign(CaseFolded(name), name);
        }
        last_ = &place->second;
        lastPath_ = folder;
        return *last_;
    }

    QString CaseOf(const QString& folder, const QString& name) { return Known(folder).Spelt(CaseFolded(name), name); }

    QString NextShellMapFolder() {
        const QString maps = place_.InstallFolder() + u"Maps\\"_s;
        if (!shellMapsListed_) {
            for (const auto& [key, name] : Known(maps).Names)
                shellMaps_.append(name);
        }
        shellMapsListed_ = true;
        const int number = InstallPlans::NextShellMapNumber(shellMaps_);
        const QString name = GameFiles::ShellMapName(QString::number(number));
        shellMaps_.append(name);
        return FolderIn(maps, name);
    }

    /// A folder in a folder; where it is not there, nothing is in it, and nobody need look.
    QString FolderIn(const QString& parent, const QString& name) {
        QString folder = parent + CaseOf(parent, name) + u'\\';
        if (!Known(parent).Names.contains(CaseFolded(name)))
            folders_.try_emplace(CaseFolded(folder));
        return folder;
    }

    const InstallSource& source_;
    GameIndex game_;
    const GameEntry& place_;
    ItemFiles files_;
    InstallPlan plan_;
    std::unordered_map<QString, KnownFolder> folders_; ///< by their paths without case
    KnownFolder* last_ = nullptr;
    QString lastPath_;
    QStringList shellMaps_;
    bool shellMapsListed_ = false;
};

} // namespace

bool PlannedItem::ReplacesSomething() const {
    return std::ranges::any_of(Files, [](const PlannedFile& file) { return file.What == Effect::Replaces; });
}

InstallPlan InstallPlans::Make(const InstallSource& source, GameIndex game, const ccZip& zip) {
    return Planner(source, game, zip).Make();
}

int InstallPlans::NextShellMapNumber(const QStringList& names) {
    QStringList sorted = names;
    NameOrder::Sort(sorted);
    const auto last = std::find_if(sorted.rbegin(), sorted.rend(),
                                   [](const QString& name) { return name.startsWith(u"QvShellMap"_s); });
    if (last == sorted.rend())
        return 1;
    // The last name counts and not the greatest number; one that ends in no number leaves 0. This is meant.
    int number = 0;
    Ignoring([&] { number = GameFiles::ShellMapNumber(*last) + 1; });
    return number;
}
