// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How long a user waits for the second page of adding files, from the click on Next to the painted tree.
///
///     wizard_window FILE
///
/// Prints the median and the longest time in milliseconds. The games are those of the registry in use.
#include "bench/MeasuredSuite.h"
#include "install/window/AddFilesWizard.h"
#include "platform/Paths.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTreeView>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// Sees the tree being painted, whichever page it is on.
class TreePainted : public QObject {
public:
    bool Is = false;

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* const tree = qobject_cast<const QTreeView*>(watched->parent());
        Is = Is || (event->type() == QEvent::Paint && tree != nullptr && watched == tree->viewport());
        return false;
    }
};

double Milliseconds(AddFilesWizard& wizard, TreePainted& painted) {
    auto* const next = wizard.Page()->findChild<QPushButton*>(u"cmdNext"_s);
    QElapsedTimer timer;
    timer.start();
    next->click();
    while (!painted.Is)
        QApplication::processEvents();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void Measure(const QString& file) {
    constexpr int rounds = 7;
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        TreePainted painted;
        AddFilesWizard wizard(nullptr);
        wizard.Begin(file);
        QApplication::processEvents();
        QApplication::instance()->installEventFilter(&painted);
        times.push_back(Milliseconds(wizard, painted));
    }
    std::ranges::sort(times);
    std::printf("%.1f %.1f\n", times.at(rounds / 2), times.back());
    std::fflush(stdout);
    std::_Exit(0);
}

} // namespace

int main(int argc, char** argv) {
    return RunMeasured(argc, argv, 1, 1, [&] { Measure(Paths::FromNative(QString::fromLocal8Bit(argv[1]))); });
}
