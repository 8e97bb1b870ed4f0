// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a user waits for in the BIG Editor, from the click to the painted list.
///
///     editor_window ARCHIVE           selects each folder of the archive in turn
///     editor_window ARCHIVE FOLDER    drops a folder on the list
///
/// Prints the median and the longest time in milliseconds.
#include "big/FileListView.h"
#include "big/frmBigEditor.h"
#include "core/mMain.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "ui/Style.h"
#include "ui/WindowHost.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QTreeView>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// Sees the list being painted.
class PaintWatch : public QObject {
public:
    bool Painted = false;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        Painted = Painted || event->type() == QEvent::Paint;
        return false;
    }
};

class Bench {
public:
    explicit Bench(frmBigEditor& window)
        : tree_(*window.findChild<QTreeView*>(u"tvDirs"_s)),
          files_(*window.findChild<FileListView*>(u"lvFiles"_s)) {
        files_.Current()->viewport()->installEventFilter(&watch_);
        QApplication::processEvents();
    }

    template <typename Action>
    void Time(const Action& action) {
        watch_.Painted = false;
        QElapsedTimer timer;
        timer.start();
        action();
        while (!watch_.Painted)
            QApplication::processEvents();
        times_.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }

    void SwitchFolders(int rounds) {
        for (int round = 0; round < rounds; ++round) {
            for (QModelIndex node = tree_.model()->index(0, 0); node.isValid(); node = tree_.indexBelow(node))
                // The folder that is shown already would never be painted again.
                if (node != tree_.currentIndex())
                    Time([&] { tree_.setCurrentIndex(node); });
        }
    }

    void Drop(const QString& path) {
        Time([&] { Q_EMIT files_.FilesDropped({path}); });
    }

    void Print() {
        std::ranges::sort(times_);
        std::printf("%.1f %.1f\n", times_.at(times_.size() / 2), times_.back());
    }

private:
    QTreeView& tree_;
    FileListView& files_;
    PaintWatch watch_;
    std::vector<double> times_;
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 2 && argc != 3)
        return 2;
    mMain::UseRuntimes();
    QApplication application(argc, argv);
    Style::Apply(application);
    WindowHost host({});
    Host::Use(&host);
    frmBigEditor window;
    window.OpenBigFile(Paths::Absolute(Paths::DecodeNative(argv[1])));
    Bench bench(window);
    if (argc == 2)
        bench.SwitchFolders(5);
    else
        bench.Drop(Paths::Absolute(Paths::DecodeNative(argv[2])));
    bench.Print();
    // Closing would ask about unsaved changes.
    std::fflush(stdout);
    std::_Exit(0);
}
