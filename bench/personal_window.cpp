// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a user waits for in the window of the personal files, from the click to the painted control.
///
///     personal_window list       clicks the replays of Generals, with the game's own node in between
///     personal_window picture    walks over the maps of Generals, which all have a preview of one size
///
/// Prints the median and the longest time in milliseconds. The games are those of the registry in use.
#include "bench/MeasuredSuite.h"
#include "bench/PaintTimes.h"
#include "media/PictureView.h"
#include "personal/window/KeyedTreeModel.h"
#include "personal/window/frmPersonalFiles.h"
#include "ui/list/RowListView.h"

#include <QApplication>
#include <QThread>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 10;

void Click(const frmPersonalFiles& window, const QString& node) {
    auto* const tree = window.findChild<QTreeView*>(u"tvFiles"_s);
    tree->setCurrentIndex(qobject_cast<KeyedTreeModel*>(tree->model())->IndexOf(node));
}

[[noreturn]] void TimeList(const frmPersonalFiles& window) {
    Click(window, u"GenReplays"_s); // so that the list has its place
    PaintTimes times(*window.findChild<RowListView*>(u"lstReplays"_s)->viewport());
    for (int round = 0; round < rounds; ++round) {
        Click(window, u"Gen"_s);
        QApplication::processEvents();
        times.Time([&] { Click(window, u"GenReplays"_s); });
    }
    times.PrintAndEnd();
}

[[noreturn]] void TimePicture(const frmPersonalFiles& window) {
    Click(window, u"GenMaps"_s);
    auto* const maps = window.findChild<RowListView*>(u"lstMaps"_s);
    auto* const picture = window.findChild<PictureView*>(u"Image2"_s);
    maps->SelectRow(0);
    while (picture->IsEmpty())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QApplication::processEvents();
    // From here on the picture is painted for nothing but the next one.
    PaintTimes times(*picture);
    for (int round = 1; round <= rounds; ++round) {
        QThread::msleep(200); // a person looks at it, and the child that decodes is ready again
        QApplication::processEvents();
        times.Time([&] { maps->SelectRow(round); });
    }
    times.PrintAndEnd();
}

} // namespace

int main(int argc, char** argv) {
    return RunMeasured(argc, argv, 1, 1, [&] {
        frmPersonalFiles window;
        window.show();
        QApplication::processEvents();
        if (QByteArrayView(argv[1]) == "list")
            TimeList(window);
        TimePicture(window);
    });
}
