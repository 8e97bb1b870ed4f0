// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How long a user waits for a game's page in the options, from the click on its tab to the painted page.
///
///     options_window program    from the program's page
///     options_window game       from another game's page, which is stored on the way
///
/// Prints the median and the longest time in milliseconds. What it stores stays.
#include "bench/MeasuredSuite.h"
#include "bench/PaintTimes.h"
#include "core/window/frmOptions.h"

#include <QApplication>
#include <QListView>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 20;

void Measure(int from) {
    frmOptions window;
    window.show();
    auto* const tabs = window.findChild<QTabBar*>(u"Tab1"_s);
    PaintTimes times(*window.findChild<QListView*>(u"lstMods"_s)->viewport());
    for (int round = 0; round < rounds; ++round) {
        tabs->setCurrentIndex(from);
        QApplication::processEvents();
        times.Time([&] { tabs->setCurrentIndex(1); });
    }
    times.PrintAndEnd();
}

} // namespace

int main(int argc, char** argv) {
    return RunMeasured(argc, argv, 1, 1, [&] { Measure(QByteArrayView(argv[1]) == "program" ? 0 : 2); });
}
