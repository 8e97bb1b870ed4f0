// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Start.h"

#include "app/Application.h"
#include "app/Suite.h"
#include "big/document/ScratchFolders.h"
#include "core/CrashOffer.h"
#include "core/GameFiles.h"
#include "core/mMain.h"
#include "install/journal/JournalFollower.h"
#include "personal/mShellMaps.h"
#include "platform/Console.h"
#include "platform/Paths.h"
#include "platform/Processes.h"
#include "platform/RuntimeError.h"
#include "ui/look/Picture.h"
#include "ui/look/Style.h"
#include "ui/text/ControlTexts.h"
#include "ui/window/ManualKey.h"
#include "ui/window/ScreenKeeper.h"
#include "ui/window/WindowHost.h"
#include "update/NetworkClient.h"
#include "update/mUpdater.h"
#include "update/window/frmUpdate.h"

#include <QTimer>

int RunSuite(int argc, char** argv, QObject* watcher) {
    Suite suite;
    Navigator::Use(&suite);
    GameFiles::ActivateShellMap = mShellMaps::ActivateShellMap;
    mUpdater::LoadWindow = [] { frmUpdate::LoadOnce(NetworkClient::Make); };
    // A game is launched without a window, so also where there is no display.
    const mMain::Dispatched dispatched = mMain::Prepare(Processes::CommandLine(argc, argv));
    if (dispatched.What == mMain::Dispatched::Action::LaunchGame) {
        if (!dispatched.Failure.isEmpty())
            Console::WriteError("brindock: " + Paths::EncodeShown(dispatched.Failure) + '\n');
        return dispatched.Failure.isEmpty() ? 0 : 1;
    }

    const ScratchFolders::Claim scratch;
    Application application(argc, argv);
    Application::setApplicationName(QStringLiteral("Brindock 2005"));
    CrashOffer::Begin(); // not before: where there is no display, the toolkit aborts
    if (watcher != nullptr)
        application.installEventFilter(watcher);
    Style::Apply(application);
    ScreenKeeper screenKeeper;
    application.installEventFilter(&screenKeeper);
    ManualKey manualKey;
    application.installEventFilter(&manualKey);
    Application::installTranslator(new ControlTexts(&application));
    // The icon's readers take longer than the first window: it comes up without it.
    constexpr int untilTheWindowStands = 100;
    QTimer::singleShot(untilTheWindowStands, &application, [] { Application::setWindowIcon(Picture::ProgramIcon()); });
    QTimer::singleShot(untilTheWindowStands, &application, [] { ScratchFolders::RemoveAbandoned(); });
    QTimer::singleShot(untilTheWindowStands, &application, [] { Ignoring(CrashOffer::Offer); });
    WindowHost host;
    Host::Use(&host);
    const JournalFollower follower;
    try {
        mMain::Show(dispatched);
        return Application::exec();
    } catch (const std::exception& failure) {
        Application::Fail(failure);
    }
}
