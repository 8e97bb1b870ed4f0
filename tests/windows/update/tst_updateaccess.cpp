// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The update window for screen readers, for the keyboard alone, and on small screens.
#include "tests/update/ScriptedHttp.h"
#include "tests/windows/Access.h"
#include "tests/windows/EditorTest.h"
#include "tests/windows/WindowTests.h"
#include "update/mUpdater.h"
#include "update/window/frmUpdate.h"

using namespace Qt::StringLiterals;

class tst_updateaccess : public EditorTest<frmUpdate> {
    Q_OBJECT
private:
    static QString Info() { return u"http://server/updates_info.inf"_s; }

    void Make() {
        auto http = std::make_unique<ScriptedHttp>();
        http_ = http.get();
        window_ = std::make_unique<frmUpdate>(std::move(http));
    }

    bool IsRight(const char* name) {
        window_->activateWindow();
        return QTest::qWaitForWindowActive(window_.get()) &&
               Access::IsFor(*window_, {.Room = "update", .Name = QString::fromLatin1(name), .Mask = world_->Root()});
    }

    ScriptedHttp* http_ = nullptr;

private Q_SLOTS:

    static void initTestCase() { Access::Dress(); }

    void init() {
        BeginInLanguage(u"English"_s);
        mUpdater::AutoUpdateCheck = false;
        world_->WriteFile(u"program\\updater.cfg"_s, "[BrindockUpdater]\r\nUpdateServer=http://server/\r\n");
    }

    void cleanup() { End(); }

    void theSearch() {
        Make();
        http_->Answers[Info()].NeverComes = true;
        bool isRight = false;
        host_->OnWait = [&] {
            isRight = IsRight("searching");
            window_->close();
        };
        window_->Load();
        QVERIFY(isRight);
    }

    void nothingNew() {
        Make();
        http_->Answers[Info()].Body = "[Nothing]\r\n";
        window_->Load();
        QVERIFY(IsRight("nothing-new"));
    }

    void aNewRelease() {
        Make();
        http_->Answers[Info()].Body =
            "[LatestVersion]\r\nVersion=9.9.9\r\nVersionName=Nine\r\nURL=http://server/a/setup.exe\r\n";
        http_->Answers[u"http://server/a/setup.exe"_s].Body = QByteArray(30000, 'x');
        window_->Load();
        QVERIFY(IsRight("new-release"));
    }
};

WINDOW_TEST(tst_updateaccess)

#include "tst_updateaccess.moc"
