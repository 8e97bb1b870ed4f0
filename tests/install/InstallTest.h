// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Installs into the games of a test's world and records what is shown.
#pragma once

#include "core/GameFiles.h"
#include "install/wizard/InstallPlan.h"
#include "install/wizard/Installation.h"
#include "tests/install/WizardTest.h"

#include <functional>

class RecordingInstallView : public InstallationView {
public:
    QStringList Texts;
    std::vector<int> Values;
    int Finished = 0;
    std::function<void()> OnProgress;

    void ShowText(const QString& text) override { Texts += text; }

    void ShowProgress(int percent) override {
        Values.push_back(percent);
        if (OnProgress)
            OnProgress();
    }

    void ShowFinished() override { ++Finished; }
};

class RecordingWatch : public FileWatch {
public:
    QStringList Log;
    QString Refused; ///< a path that may not be written

    void WillWrite(const QString& path) override {
        Log += QStringLiteral("will ") + path;
        if (path == Refused)
            throw RuntimeError(ErrorNumber::DiskFull, path + QStringLiteral(": no room aside"));
    }

    void Written(const QString& path) override { Log += QStringLiteral("did ") + path; }
};

class InstallTest : public WizardTest {
protected:
    InstallTest() { mMain::MakeUserFolders(); }

    void Install(GameIndex game = 0, const Installation::Options& options = {}) {
        outcome_ = {};
        view_.Texts.clear();
        view_.Values.clear();
        Installation::InstallFiles(AddFiles::Source, game, view_, outcome_, options);
    }

    void InstallFile(const QString& path, GameIndex game = 0) {
        Analyse(path);
        Install(game);
    }

    static void TickAll() {
        for (InstallRecord& record : AddFiles::Source.InstallRecords)
            record.Selected = true;
    }

    /// Everything of an archive.
    void InstallZip(const std::vector<Part>& parts, GameIndex game = 0) {
        AnalyseZip(parts);
        TickAll();
        Install(game);
    }

    [[nodiscard]] static const GameEntry& Of(GameIndex game) { return Game.at(static_cast<std::size_t>(game)); }

    [[nodiscard]] static QString Maps() { return Of(0).MapPath; }

    [[nodiscard]] static QString Own() { return Of(0).InstallPath; }

    /// A file's text; "(none)" without one.
    [[nodiscard]] static QByteArray At(const QString& path) {
        return Files::FileExists(path) ? World::ReadFile(path) : QByteArray("(none)");
    }

    /// The names of what failed.
    [[nodiscard]] QStringList Failures() const {
        QStringList names;
        for (const InstalledFile& file : outcome_.Files()) {
            if (file.How == InstalledFile::State::Failed)
                names += file.Name;
        }
        return names;
    }

    [[nodiscard]] QString FailureText() const { return outcome_.Lines(true).join(u'\n'); }

    RecordingInstallView view_;
    InstallOutcome outcome_;
};
