// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// An update client in a world of its own: a scripted server, and a window that records what it is told.
#pragma once

#include "core/mMain.h"
#include "tests/support/Printing.h"
#include "tests/support/Raised.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/ScriptedNavigator.h"
#include "tests/support/World.h"
#include "tests/update/ScriptedHttp.h"
#include "update/UpdateClient.h"
#include "update/mUpdater.h"

#include <QMap>
#include <gtest/gtest.h>

class RecordedView : public UpdateView {
public:
    std::function<void()> OnClose; ///< as the window, which tells the client
    bool Visible = false;
    int Shows = 0;
    bool IsClosed = false;
    Panel Shown = Panel::Searching;
    QMap<Field, QString> Texts;
    int ProgressValue = 0;
    bool DownloadEnabled = false;
    bool TimersRun = false;
    int TimerStarts = 0;
    int Fronts = 0;

    void ShowWindow() override {
        Visible = true;
        ++Shows;
    }

    void ShowPanel(Panel panel) override { Shown = panel; }

    void SetText(Field field, const QString& text) override { Texts[field] = text; }

    void SetProgress(int percent) override { ProgressValue = percent; }

    void EnableDownload(bool enabled) override { DownloadEnabled = enabled; }

    void RunTimers(bool running) override {
        TimersRun = running;
        TimerStarts += running ? 1 : 0;
    }

    void BringToFront() override { ++Fronts; }

    void CloseWindow() override {
        IsClosed = true;
        Visible = false;
        if (OnClose)
            OnClose();
    }
};

class UpdateTest : public testing::Test {
protected:
    using Panel = UpdateView::Panel;
    using Field = UpdateView::Field;

    UpdateTest() {
        world_.UseLanguage("[LNG]\r\nKiloBytes=KB\r\nSeconds=s\r\nSize2=Size:\r\nElapsedTime2=Elapsed:\r\n"
                           "RemainingTime2=Remaining:\r\nTransferRate2=Speed:\r\nUpdate=Patch\r\nNewVersion=New\r\n"
                           "ServerError=No server\r\nUpdateNotSigned=Not signed\r\nUpdateNameRefused=Bad name\r\n");
        Configure();
        world_.Start();
        mUpdater::AutoUpdateCheck = false;
        mUpdater::UpdateKind = mUpdater::Patch;
        mUpdater::UpdateFileName.clear();
        mUpdater::UpdateFileSize = 0;
        mUpdater::LatestVersion.clear();
        client_.Download.Start = [this](const QString& path) {
            EXPECT_TRUE(view_.IsClosed);
            started_ << path;
            if (startFails_)
                throw RuntimeError(ErrorNumber::FileNotFound, QStringLiteral("can't be started"));
        };
        programsEnd_ = client_.Download.End;
        client_.Download.End = [this] { ++ends_; };
        view_.OnClose = [this] { client_.WindowClosed(); };
    }

    void Configure(const QByteArray& more = {}) {
        world_.WriteFile(QStringLiteral("program\\updater.cfg"),
                         "[BrindockUpdater]\r\nUpdateServer=http://server/base/\r\n" + more);
    }

    /// What stands at an address below the base, or at a whole one.
    ScriptedHttp::Answer& At(const QString& name) {
        return http_
            .Answers[name.contains(QStringLiteral("://")) ? name : QStringLiteral("http://server/base/") + name];
    }

    void Tell(const QByteArray& info) { At(QStringLiteral("updates_info.inf")).Body = info; }

    /// The server has a newer release, and a patch for this one.
    void OfferPatch(const QByteArray& patch, const QByteArray& name = "patch.exe") {
        Tell("[LatestVersion]\r\nVersion=9.1.2\r\nVersionName=Nine\r\nURL=http://other/x/setup.exe\r\n[" + Own() +
             "]\r\nUpdateAvailable=1\r\nFilename=" + name + "\r\n");
        At(QString::fromUtf8(name)).Body = patch;
    }

    void OfferRelease(const QByteArray& release) {
        Tell("[LatestVersion]\r\nVersion=9.1.2\r\nVersionName=Nine\r\nURL=http://other/x/setup.exe\r\n");
        At(QStringLiteral("http://other/x/setup.exe")).Body = release;
    }

    static QByteArray Own() { return mMain::VersionText().toLatin1(); }

    void Check(bool automatic = false) {
        mUpdater::AutoUpdateCheck = automatic;
        client_.Load();
    }

    QStringList Messages() const {
        QStringList texts;
        for (const ScriptedHost::Shown& message : host_.Messages)
            texts << message.Text;
        return texts;
    }

    QString Downloaded(const QString& name) const {
        return world_.ProgramFolder() + QStringLiteral("\\TempUpdater\\") + name;
    }

    World world_;
    ScriptedHost host_;
    ScriptedNavigator navigator_;
    ScriptedHttp http_;
    RecordedView view_;
    UpdateClient client_{http_, view_, std::chrono::milliseconds(20)};
    QStringList started_;
    bool startFails_ = false;
    std::function<void()> programsEnd_; ///< how a finished download ends the program
    int ends_ = 0;
};
