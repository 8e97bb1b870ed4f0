// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/window/frmCSFEditor.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/World.h"
#include "tests/windows/LanguageChecks.h"
#include "tests/windows/SmallScreens.h"
#include "tests/windows/WindowTests.h"

class tst_csflook : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void theWindowFitsSmallScreens_data() { AddEachLanguage(); }

    void theWindowFitsSmallScreens() {
        QFETCH(const QString, language);
        World world;
        world.UseOwnLanguage(language);
        world.Start();
        const ScriptedHost host;
        frmCSFEditor editor;
        editor.show();
        QVERIFY(QTest::qWaitForWindowExposed(&editor));
        QVERIFY(FitsSmallScreens(editor));
    }
};

WINDOW_TEST(tst_csflook)

#include "tst_csflook.moc"
