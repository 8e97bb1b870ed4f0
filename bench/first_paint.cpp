// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The suite, as its own main() starts it, until its first window is painted.
#include "app/Application.h"
#include "app/Suite.h"
#include "bench/FirstPaint.h"
#include "core/mMain.h"
#include "platform/Processes.h"
#include "ui/Style.h"
#include "ui/WindowHost.h"

int main(int argc, char** argv) {
    Suite suite;
    Navigator::Use(&suite);
    const mMain::Dispatched dispatched = mMain::Prepare(Processes::CommandLine(argc, argv));
    Application application(argc, argv);
    FirstPaint firstPaint;
    application.installEventFilter(&firstPaint);
    Style::Apply(application);
    WindowHost host(nullptr);
    Host::Use(&host);
    mMain::Show(dispatched);
    const int exitCode = Application::exec();
    Processes::End(exitCode);
}
