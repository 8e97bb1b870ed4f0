// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The pages of adding and exporting files for screen readers, for the keyboard alone, and on small screens.
#include "install/window/frmExportFiles1.h"
#include "tests/windows/Access.h"
#include "tests/windows/install/FilesPageTest.h"

using namespace Qt::StringLiterals;

class tst_installaccess : public FilesPageTest {
    Q_OBJECT
private:
    bool IsRight(QWidget& window, const char* name) {
        return Access::IsFor(window, {.Room = "install", .Name = QString::fromLatin1(name), .Mask = world_->Root()});
    }

private Q_SLOTS:

    static void initTestCase() { Access::Dress(); }

    void init() { Begin({0, 1}); }

    void cleanup() { End(); }

    void theFileToAdd() {
        Open(PutAll());
        QVERIFY(IsRight(*wizard_->Page(), "add-files-1"));
    }

    void theFilesInIt() {
        Analyse(PutAll());
        Select(u"Over:1"_s);
        QVERIFY(IsRight(*wizard_->Page(), "add-files-2"));
    }

    void whatBecameOfThem() {
        Analyse(Put(u"a.rep"_s));
        Press("cmdNext");
        Activate();
        QCOMPARE(Shown(), u"frmAddFiles3"_s);
        QTRY_VERIFY(Button("cmdNext")->isEnabled());
        QVERIFY(IsRight(*wizard_->Page(), "add-files-3"));
    }

    void theExport() {
        ExportRecords.clear();
        ExportRecords.push_back({.Path = Put(u"a.rep"_s, "GENREP"), .Name = u"a.rep"_s, .Kind = FileKind::Replay});
        frmExportFiles1 page;
        page.show();
        page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        QVERIFY(IsRight(page, "export-files"));
    }
};

WINDOW_TEST(tst_installaccess)

#include "tst_installaccess.moc"
