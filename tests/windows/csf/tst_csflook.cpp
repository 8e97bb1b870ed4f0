// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/window/frmCSFEditor.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/World.h"
#include "tests/windows/WindowLook.h"
#include "tests/windows/WindowTests.h"

class tst_csflook : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void noTextOfTheWindowIsCutAndItFitsSmallScreens_data() { WindowLook::Languages(); }

    void noTextOfTheWindowIsCutAndItFitsSmallScreens() {
        QFETCH(const QString, file);
        World world;
        world.UseLanguage(WindowLook::TextsOf(file));
        world.Start();
        const ScriptedHost host;
        frmCSFEditor editor;
        editor.show();
        QVERIFY(QTest::qWaitForWindowExposed(&editor));
        QCOMPARE(WindowLook::CutText(editor), QString());
        QVERIFY(WindowLook::FitsSmallScreens(editor));
        editor.resize(editor.minimumSize());
        QCoreApplication::processEvents();
        QCOMPARE(WindowLook::CutText(editor), QString());
    }
};

WINDOW_TEST(tst_csflook)

#include "tst_csflook.moc"
