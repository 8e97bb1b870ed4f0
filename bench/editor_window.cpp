// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a user waits for in the editors, from the click or the key to the painted list.
///
///     editor_window ARCHIVE           selects each folder of the archive in turn
///     editor_window ARCHIVE FOLDER    drops a folder on the list
///     editor_window TABLE sort        clicks the headers of a string table
///     editor_window TABLE walk        walks down its list, page by page
///     editor_window TABLE find        types into its search box
///     editor_window TABLE type        types into its value box
///
/// Prints the median and the longest time in milliseconds.
#include "bench/MeasuredSuite.h"
#include "bench/PaintTimes.h"
#include "big/window/FileListView.h"
#include "big/window/frmBigEditor.h"
#include "csf/window/frmCSFEditor.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 40;

void SwitchFolders(PaintTimes& times, QTreeView& tree) {
    for (int round = 0; round < 5; ++round) {
        for (QModelIndex node = tree.model()->index(0, 0); node.isValid(); node = tree.indexBelow(node))
            // The folder that is shown already would never be painted again.
            if (node != tree.currentIndex())
                times.Time([&] { tree.setCurrentIndex(node); });
    }
}

[[noreturn]] void TimeArchive(const QString& path, const QString& dropped) {
    frmBigEditor window;
    window.OpenBigFile(path);
    auto* const files = window.findChild<FileListView*>(u"lvFiles"_s);
    PaintTimes times(*files->Current()->viewport());
    if (dropped.isEmpty())
        SwitchFolders(times, *window.findChild<QTreeView*>(u"tvDirs"_s));
    else
        times.Time([&] { Q_EMIT files->FilesDropped({dropped}); });
    times.PrintAndEnd();
}

void Press(QWidget& widget, int key, const QString& text = {}) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &up);
}

[[noreturn]] void TimeTable(const QString& path, const QString& what) {
    frmCSFEditor window;
    window.OpenCSFFile(path);
    auto* const list = window.findChild<QTreeView*>(u"lvStrings2"_s);
    auto* const search = window.findChild<QLineEdit*>(u"txtFind"_s);
    auto* const value = window.findChild<QPlainTextEdit*>(u"txtValue"_s);
    const auto letter = [](int round) { return QString(QLatin1Char("brindock"[round % 8])); };
    PaintTimes times(what == "find"_L1 ? *search : *list->viewport());
    QApplication::setActiveWindow(&window);
    if (what == "find"_L1)
        search->setFocus(); // it gives up its prompt
    for (int round = 0; round < rounds; ++round) {
        times.Time([&] {
            if (what == "sort"_L1)
                Q_EMIT list->header()->sectionClicked(round / 2 % 2);
            else if (what == "walk"_L1)
                Press(*list, Qt::Key_PageDown);
            else
                Press(what == "find"_L1 ? static_cast<QWidget&>(*search) : *value, 0, letter(round));
        });
        if (what == "find"_L1 && round % 4 == 3)
            search->selectAll();
    }
    times.PrintAndEnd();
}

} // namespace

int main(int argc, char** argv) {
    return RunMeasured(argc, argv, 1, 2, [&] {
        const QString path = Paths::Absolute(Paths::DecodeNative(argv[1]));
        const QString second = argc == 3 ? Paths::DecodeNative(argv[2]) : QString();
        if (path.endsWith(".csf"_L1))
            TimeTable(path, second);
        TimeArchive(path, argc == 3 ? Paths::Absolute(second) : QString());
    });
}
