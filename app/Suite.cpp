// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Suite.h"

#include "big/window/frmBigEditor.h"
#include "core/window/frmAbout.h"
#include "core/window/frmOptions.h"
#include "core/window/frmToolsMenu.h"
#include "csf/window/frmCSFEditor.h"
#include "install/window/AddFilesWizard.h"
#include "install/window/frmExportFiles1.h"
#include "personal/window/frmPersonalFiles.h"
#include "platform/Processes.h"
#include "ui/window/ToolWindow.h"
#include "update/mUpdater.h"

#include <QApplication>
#include <QPointer>
#include <QScreen>

#include <algorithm>

namespace {

QWidget* WidgetOf(QObject* owner) {
    return qobject_cast<QWidget*>(owner);
}

// A main window in the middle of the screen, not yet shown. It lives until it is closed.
template <typename Window>
Window* Make() {
    auto* const window = new Window;
    window->setAttribute(Qt::WA_DeleteOnClose);
    QRect place = window->geometry();
    place.moveCenter(window->screen()->availableGeometry().center());
    window->move(place.topLeft());
    return window;
}

template <typename Window>
Window* Open() {
    auto* const window = Make<Window>();
    window->show();
    return window;
}

/// The window of that kind that is on the screen.
template <typename Window>
Window* Shown() {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (auto* const shown = qobject_cast<Window*>(window); shown != nullptr && shown->isVisible())
            return shown;
    }
    return nullptr;
}

// A program without a window could not be left: the tools menu stands in for a tool that is not built.
void StayInMenu() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    if (std::none_of(windows.begin(), windows.end(), [](const QWidget* window) { return window->isVisible(); }))
        Open<frmToolsMenu>();
}

} // namespace

// One is enough, where a second tool is closed over the menu that followed the first.
void Suite::ShowToolsMenu() {
    if (auto* const menu = Shown<frmToolsMenu>(); menu != nullptr)
        menu->activateWindow();
    else
        Open<frmToolsMenu>();
}

// There is one open archive, so there is one window for it.
bool Suite::ShowBigEditor() {
    if (auto* const editor = Shown<frmBigEditor>(); editor != nullptr)
        editor->activateWindow();
    else
        Open<frmBigEditor>();
    return true;
}

void Suite::OpenBigFile(const QString& path) {
    if (auto* const editor = Shown<frmBigEditor>(); editor != nullptr)
        editor->activateWindow();
    else
        Open<frmBigEditor>()->OpenBigFile(path);
}

// Without a window of its own the program could not be left: it ends with the extraction.
void Suite::ExtractBigFile(const QString& path) {
    {
        frmBigEditor editor;
        editor.ExtractBigFile(path);
    }
    Processes::End(0);
}

bool Suite::ShowCSFEditor() {
    Open<frmCSFEditor>();
    return true;
}

void Suite::OpenCSFFile(const QString& path) {
    auto* const window = Make<frmCSFEditor>();
    window->OpenCSFFile(path);
    if (window->isVisible())
        return;
    // A file that was refused leaves no window behind.
    delete window;
    StayInMenu();
}

// One is enough: a second one would show what the first one deletes.
bool Suite::ShowPersonalFiles() {
    if (auto* const files = Shown<frmPersonalFiles>(); files != nullptr)
        files->activateWindow();
    else
        Open<frmPersonalFiles>();
    return true;
}

void Suite::ShowAddFiles(QObject* owner, const QString& file) {
    AddFilesWizard::Run(WidgetOf(owner), file);
}

void Suite::ShowExportFiles(QObject* owner) {
    frmExportFiles1(WidgetOf(owner)).exec();
}

void Suite::ShowOptions(QObject* owner) {
    frmOptions(WidgetOf(owner)).exec();
}

void Suite::ShowAbout(QObject* owner) {
    frmAbout(WidgetOf(owner)).exec();
}

// The user's check waits in the event loop: were that inside the menu of a tool, the tool could not be closed
// meanwhile.
void Suite::CheckForUpdates(bool automatic) {
    if (automatic)
        mUpdater::CheckForUpdates(true);
    else
        QMetaObject::invokeMethod(
            qApp, [] { mUpdater::CheckForUpdates(false); }, Qt::QueuedConnection);
}

// What the menu asks in a box of its own would be locked with it, and nobody could answer: the box locks the menu
// itself.
void Suite::EnableToolsMenu(bool enabled) {
    if (!enabled && QApplication::activeModalWidget() != nullptr)
        return;
    if (auto* const menu = Shown<frmToolsMenu>(); menu != nullptr && menu->isEnabled() != enabled)
        menu->setEnabled(enabled);
}

// A question may close any of them.
bool Suite::MayEndProgram() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::ranges::all_of(QList<QPointer<QWidget>>(windows.begin(), windows.end()), [](const auto& window) {
        auto* const tool = qobject_cast<ToolWindow*>(window);
        return tool == nullptr || !tool->isVisible() || tool->MayEnd();
    });
}
