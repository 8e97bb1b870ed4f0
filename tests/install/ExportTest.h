// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A world with players' files that are to be exported, and ways to look at what came out.
#pragma once

#include "core/ProgramFolders.h"
#include "core/mMain.h"
#include "install/InstallSource.h"
#include "install/export/Exporting.h"
#include "install/zip/ccZip.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>

class ExportTest : public testing::Test {
protected:
    ExportTest() { world_.Start(); }

    [[nodiscard]] QString At(const QString& name) const { return world_.Root() + u'\\' + name; }

    [[nodiscard]] QString Zip() const { return At(QStringLiteral("out.zip")); }

    [[nodiscard]] QString Out() const { return At(QStringLiteral("out")); }

    QString Put(const QString& name, const QByteArray& bytes = "x") { return world_.WriteFile(name, bytes); }

    static void SetTime(const QString& path, const QDateTime& time) {
        QFile file(Paths::ToNative(path));
        EXPECT_TRUE(file.open(QIODevice::ReadWrite) && file.setFileTime(time, QFileDevice::FileModificationTime));
    }

    /// The records as the lists build them.
    [[nodiscard]] ExportRecord Map(const QString& name) const {
        return {.Path = At(QStringLiteral("maps\\") + name), .Name = name, .Kind = FileKind::Map};
    }

    [[nodiscard]] ExportRecord Mod(const QString& file) const {
        return {.Path = At(QStringLiteral("game\\") + file), .Name = file, .Kind = FileKind::Mod};
    }

    [[nodiscard]] ExportRecord Replay(const QString& file) const {
        return {.Path = At(QStringLiteral("replays\\") + file), .Name = file, .Kind = FileKind::Replay};
    }

    [[nodiscard]] ExportRecord ShellMap(const QString& folder, const QString& name) const {
        return {.Path = At(QStringLiteral("game\\Maps\\") + folder + QStringLiteral("\\*.*")),
                .Name = name,
                .Kind = FileKind::ShellMap};
    }

    ExportReport ToZip(const std::vector<ExportRecord>& records, const ExportChoice& choice = {}) {
        return Exporting::ToZip(ExportSources::Of(records), Zip(), choice, watch_);
    }

    ExportReport ToFolder(const std::vector<ExportRecord>& records, const ExportChoice& choice = {}) {
        return Exporting::ToFolder(ExportSources::Of(records), Out(), choice, watch_);
    }

    /// The names in the archive's central directory, byte for byte.
    [[nodiscard]] QList<QByteArray> Names() const {
        const QByteArray archive = World::ReadFile(Zip());
        QList<QByteArray> names;
        for (qsizetype at = archive.indexOf("PK\1\2"); at >= 0; at = archive.indexOf("PK\1\2", at + 46))
            names += archive.mid(at + 46, static_cast<unsigned char>(archive.at(at + 28)));
        return names;
    }

    /// An entry's bytes, through the reader; its name has slashes.
    [[nodiscard]] QByteArray Content(const QString& name) const {
        ccZip zip;
        zip.Init(Zip());
        EXPECT_EQ(zip.Decompress(At(QStringLiteral("read")), name, false), 0) << name.toStdString();
        return World::ReadFile(At(QStringLiteral("read\\")) + name.sliced(name.lastIndexOf(u'/') + 1));
    }

    [[nodiscard]] QByteArray Copied(const QString& name) const { return World::ReadFile(Out() + u'\\' + name); }

    /// All files below the folder that was exported into, with slashes.
    [[nodiscard]] QStringList CopiedNames() const {
        QStringList names;
        for (const Files::FoundFile& file : Files::ListFolderFiles(Out(), true))
            names += file.Path.sliced(Out().size() + 1).replace(u'\\', u'/');
        names.sort();
        return names;
    }

    /// The last part of an item's path.
    [[nodiscard]] static QString Shown(const ExportLine& line) {
        const QString item = QString(line.Item).replace(u'\\', u'/');
        return item.sliced(item.lastIndexOf(u'/') + 1);
    }

    /// The items that have an outcome.
    [[nodiscard]] static QStringList With(ExportOutcome outcome, const ExportReport& report) {
        QStringList items;
        for (const ExportLine& line : report.Lines)
            if (line.Outcome == outcome)
                items += Shown(line);
        return items;
    }

    /// How many lines tell of a failure.
    [[nodiscard]] static qsizetype Failures(const ExportReport& report) {
        return std::ranges::count_if(report.Lines, [](const ExportLine& line) { return !IsDone(line); });
    }

    /// What stands in the scratch folder.
    [[nodiscard]] static QStringList Scratch() {
        return Files::ListFolder(ProgramFolders::ScratchFolder() + QStringLiteral("\\*"), true);
    }

    World world_;
    ExportWatch watch_;
};
