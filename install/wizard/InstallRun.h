// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// One installation as it goes on: the game's folders, what is shown of it, and its outcome.
#pragma once

#include "core/Game.h"
#include "install/wizard/InstallPlan.h"
#include "install/wizard/Installation.h"
#include "install/wizard/ItemFiles.h"
#include "install/wizard/TargetFolder.h"
#include "install/zip/ccZip.h"

#include <map>
#include <memory>
#include <set>

class InstallRun {
public:
    InstallRun(const InstallSource& source, GameIndex game, InstallationView& view, InstallOutcome& outcome,
               const Installation::Options& options);

    void Single();
    void Zip();

    /// Waits until what was written is on the disk.
    void Flush() const;

private:
    /// Where the files of one item come from and go to.
    struct Item {
        const InstallRecord& Record;
        const PlannedItem& Plan;
        QString Base; ///< the file's name less its last four characters
    };

    void UnpackAhead();
    void Install(const InstallRecord& record, const PlannedItem& plan);
    void InstallMap(const Item& item);
    void InstallMod(const Item& item);
    void InstallReplay(const Item& item);
    void InstallShellMap(const Item& item);
    void FillShellMap(const Item& item, const QString& sourceFolder);
    [[nodiscard]] QString NextShellMap() const;

    [[nodiscard]] std::vector<SourceFile> FilesOf(const Item& item) const;
    void Put(TargetFolder& folder, const SourceFile& file, const QString& name);
    bool PutStrictly(TargetFolder& folder, const SourceFile& file, const QString& name);
    void Describe(TargetFolder& folder, const QString& name, const QString& section, const InstallRecord& record);

    TargetFolder& FolderAt(const QString& path);
    void BeginShare(double from, double to, const PlannedItem& plan);
    void ShowBytes(qint64 bytes);
    void EndFile(qint64 size);

    InstallSource source_; ///< its own: events run in between
    const GameEntry& place_;
    InstallationView& view_;
    InstallOutcome& outcome_;
    FileWatch* watch_;
    ccZip zip_;
    InstallPlan plan_;
    std::set<std::size_t> notWanted_;
    std::map<QString, std::unique_ptr<TargetFolder>> folders_;
    TargetFolder* last_ = nullptr; ///< of them
    QString lastPath_;

    double from_ = 0; ///< the share of the bar that the item at work has
    double to_ = 100;
    double total_ = 0; ///< bytes of that item, as it tells them: no whole number need hold them
    double ended_ = 0; ///< those of its files that are done
    int shown_ = -1;
};
