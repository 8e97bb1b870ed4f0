// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The tools menu, the options and the about box for screen readers, for the keyboard alone, and on small screens.
#include "core/window/frmAbout.h"
#include "core/window/frmToolsMenu.h"
#include "tests/support/OwnLanguages.h"
#include "tests/windows/Access.h"
#include "tests/windows/core/OptionsWindowTest.h"

class tst_coreaccess : public OptionsWindowTest {
    Q_OBJECT
private:
    void BeginInEnglish() {
        BeginWithGames();
        world_->UseOwnLanguage(u"English"_s);
        world_->Start();
    }

    bool IsRight(QWidget& window, const char* name) {
        window.show();
        window.activateWindow();
        return QTest::qWaitForWindowActive(&window) &&
               Access::IsFor(window, {.Room = "core", .Name = QString::fromLatin1(name), .Mask = world_->Root()});
    }

private Q_SLOTS:

    static void initTestCase() { Access::Dress(); }

    void init() { BeginInEnglish(); }

    void cleanup() { End(); }

    void theToolsMenu() {
        frmToolsMenu menu;
        QVERIFY(IsRight(menu, "tools-menu"));
    }

    void theOptionsOfTheProgram() {
        Open();
        QVERIFY(IsRight(*window_, "options-program"));
    }

    void theOptionsOfAGame() {
        AddContent();
        Open();
        Select(u"Generals"_s);
        QVERIFY(IsRight(*window_, "options-game"));
    }

    void theAboutBox() {
        frmAbout about;
        QVERIFY(IsRight(about, "about"));
    }
};

WINDOW_TEST(tst_coreaccess)

#include "tst_coreaccess.moc"
