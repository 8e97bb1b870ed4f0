// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/MeasuredSuite.h"

#include "core/SettingKeys.h"
#include "core/Settings.h"
#include "core/mMain.h"
#include "media/MediaChild.h"
#include "ui/look/Style.h"
#include "ui/window/WindowHost.h"

#include <QApplication>

int RunMeasured(int argc, char** argv, int least, int most, const std::function<void()>& measure) {
    if (MediaChild::IsAsked(argc, argv))
        return MediaChild::Run(argc, argv);
    if (argc <= least || argc > most + 1)
        return 2;
    mMain::UseRuntimes();
    QApplication application(argc, argv);
    Style::Apply(application);
    WindowHost host;
    Host::Use(&host);
    mMain::LanguageFileName = ReadSetting(SettingKeys::TradFileName);
    mMain::DetectGames();
    measure();
    return 0;
}
