// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A download in its window: what `updates_info.inf` on a server offers.
///
///     update_window ADDRESS    (the base, with its slash)
///
/// Prints the seconds from the press on Download to the last byte, how many MiB more than the window that has found it
/// the process had at most, and for how many milliseconds the window answered nothing at most.
#include "core/Navigator.h"
#include "core/ProgramFolders.h"
#include "core/mMain.h"
#include "platform/File.h"
#include "platform/Paths.h"
#include "platform/WriteAside.h"
#include "ui/window/WindowHost.h"
#include "update/NetworkClient.h"
#include "update/window/frmUpdate.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

/// A program of no other windows.
class Alone : public Navigator {
public:
    void ShowToolsMenu() override {}

    bool ShowBigEditor() override { return false; }

    bool ShowCSFEditor() override { return false; }

    bool ShowPersonalFiles() override { return false; }

    void OpenBigFile(const QString& /*path*/) override {}

    void ExtractBigFile(const QString& /*path*/) override {}

    void OpenCSFFile(const QString& /*path*/) override {}

    void ShowOptions(QObject* /*owner*/) override {}

    void ShowAbout(QObject* /*owner*/) override {}

    void ShowExportFiles(QObject* /*owner*/) override {}

    void ShowAddFiles(QObject* /*owner*/, const QString& /*file*/) override {}

    void CheckForUpdates(bool /*automatic*/) override {}

    void EnableToolsMenu(bool /*enabled*/) override {}

    bool MayEndProgram() override { return true; }
};

/// A line of the process's status, in MiB.
double Status(const QByteArray& name) {
    QFile file(u"/proc/self/status"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith(name))
            return line.simplified().split(' ').value(1).toDouble() / 1024;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    const QTemporaryDir folder;
    mMain::UseRuntimes();
    ProgramFolders::ProgramFolder = Paths::FromNative(folder.path());
    WriteWhole(ProgramFolders::ProgramFolder + u"\\updater.cfg"_s,
               QByteArray("[BrindockUpdater]\r\nUpdateServer=") + argv[1] + "\r\n");
    const QApplication application(argc, argv);
    WindowHost host;
    Host::Use(&host);
    Alone alone;
    Navigator::Use(&alone);

    frmUpdate window(NetworkClient::Make());
    window.Load();
    auto* const download = window.findChild<QPushButton*>(u"cmdDownload"_s);
    if (!download->isEnabled())
        return 1;
    QElapsedTimer heard;
    qint64 longest = 0;
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, [&] { longest = std::max(longest, heard.restart()); });
    tick.start(1);
    const double idle = Status("VmRSS:");
    QElapsedTimer time;
    window.Client().Download.Start = [](const QString&) {};
    window.Client().Download.End = [&] {
        std::printf("%.3f %.1f %lld\n", static_cast<double>(time.nsecsElapsed()) / 1e9, Status("VmHWM:") - idle,
                    static_cast<long long>(longest));
        std::fflush(stdout);
        std::_Exit(0);
    };
    heard.start();
    time.start();
    download->click();
    return 1;
}
