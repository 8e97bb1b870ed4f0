// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Files that are to be installed, in a world with four games. Texts are their keys where no language is set.
#pragma once

#include "core/mMain.h"
#include "install/wizard/Analysis.h"
#include "install/zip/ccZip.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "tests/support/Printing.h"
#include "tests/support/Raised.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/World.h"
#include "tools/demoworld/ZipBytes.h"

#include <gtest/gtest.h>

class WizardTest : public testing::Test, protected RaisedError {
protected:
    using Part = ZipBytes::Part;

    WizardTest() {
        for (GameIndex game = 0; game < GameCount; ++game)
            world_.InstallGame(game);
        world_.Start();
        AddFiles::ActiveGame = 0;
    }

    /// A file below the folder of what is to be installed; returns its path.
    QString Put(const QString& name, const QByteArray& bytes = "x") const {
        return world_.WriteFile(QStringLiteral("source\\") + name, bytes);
    }

    [[nodiscard]] QString PutZip(const std::vector<Part>& parts,
                                 const QString& name = QStringLiteral("Pack.zip")) const {
        return Put(name, ZipBytes::Archive(parts));
    }

    /// What a file is, by its path.
    InstallSource& Analyse(const QString& path) {
        AddFiles::Source = Analysis::Analyse(path, Paths::LastPart(path), zip_);
        return AddFiles::Source;
    }

    InstallSource& AnalyseZip(const std::vector<Part>& parts) { return Analyse(PutZip(parts)); }

    [[nodiscard]] static QStringList Names(const QString& folder, bool withFolders = true) {
        QStringList names = Files::ListFolder(folder + QStringLiteral("\\*"), withFolders);
        names.sort();
        return names;
    }

    /// What is left in the scratch folder.
    [[nodiscard]] static QStringList Scratch() { return Names(ProgramFolders::ScratchFolder()); }

    World world_;
    ScriptedHost host_;
    ccZip zip_;
};
