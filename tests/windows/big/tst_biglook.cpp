// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/frmBigEditor.h"
#include "big/window/frmBrowseForFolder.h"
#include "big/window/frmVersion.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/World.h"
#include "tests/ui/ScriptedMachine.h"
#include "tests/windows/LanguageChecks.h"
#include "tests/windows/SmallScreens.h"
#include "tests/windows/WindowTests.h"

class tst_biglook : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void allWindowsFitSmallScreens_data() { AddEachLanguage(); }

    void allWindowsFitSmallScreens() {
        QFETCH(const QString, language);
        World world;
        world.UseOwnLanguage(language);
        world.Start();
        const ScriptedHost host;
        frmBigEditor editor;
        frmVersion version;
        auto machine = std::make_unique<ScriptedMachine>();
        machine->DocumentsFolder = world.Root();
        frmBrowseForFolder folders(nullptr, std::move(machine));
        for (QWidget* const window :
             {static_cast<QWidget*>(&editor), static_cast<QWidget*>(&version), static_cast<QWidget*>(&folders)}) {
            window->show();
            QVERIFY(QTest::qWaitForWindowExposed(window));
            QVERIFY2(FitsSmallScreens(*window), qPrintable(window->objectName()));
        }
    }
};

WINDOW_TEST(tst_biglook)

#include "tst_biglook.moc"
