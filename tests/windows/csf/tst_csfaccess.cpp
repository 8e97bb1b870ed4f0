// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The CSF Editor for screen readers, for the keyboard alone, and on small screens.
#include "tests/support/OwnLanguages.h"
#include "tests/windows/Access.h"
#include "tests/windows/csf/CsfEditorWindow.h"

using namespace Qt::StringLiterals;

class tst_csfaccess : public CsfEditorWindow {
    Q_OBJECT
private:
    bool IsRight(const char* name) {
        return Access::IsFor(*window_, {.Room = "csf", .Name = QString::fromLatin1(name), .Mask = world_->Root()});
    }

private Q_SLOTS:

    static void initTestCase() { Access::Dress(); }

    void init() { Begin(OwnLanguages::Bytes(u"English"_s)); }

    void cleanup() { End(); }

    void theEditorWithoutATable() {
        Show();
        QVERIFY(IsRight("editor-empty"));
    }

    void theEditorWithATable() {
        OpenThree();
        QVERIFY(IsRight("editor-table"));
    }

    void theEditorWithANotice() {
        OpenThree();
        window_->OpenCSFFile(world_->WriteFile(u"no.csf"_s, "nothing"));
        QVERIFY(IsRight("editor-notice"));
    }
};

WINDOW_TEST(tst_csfaccess)

#include "tst_csfaccess.moc"
