// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The application's side of the Navigator, with the windows themselves.

#include "app/Suite.h"
#include "core/window/frmOptions.h"
#include "core/window/frmToolsMenu.h"
#include "csf/window/frmCSFEditor.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/World.h"
#include "tests/windows/WindowTests.h"

#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

class tst_suite : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        world_->UseLanguage("[LNG]\r\n");
        world_->Start();
        host_ = std::make_unique<ScriptedHost>();
        suite_ = std::make_unique<Suite>();
        Navigator::Use(suite_.get());
    }

    void cleanup() {
        for (const QPointer<frmCSFEditor>& editor : Editors())
            delete editor;
        Navigator::Use(nullptr);
        suite_.reset();
        host_.reset();
        world_.reset();
    }

    void theOptionsAreModalOverTheirOwnerAndBackWhenTheyAreClosed() {
        QWidget owner;
        owner.show();
        QPointer<frmOptions> options;
        QTimer::singleShot(0, &owner, [&] {
            options = qobject_cast<frmOptions*>(QApplication::activeModalWidget());
            if (options != nullptr) {
                QCOMPARE(options->parentWidget(), &owner);
                QVERIFY(options->isVisible());
            }
            QApplication::activeModalWidget()->close();
            QVERIFY(options != nullptr);
        });
        suite_->ShowOptions(&owner);
        QVERIFY(options.isNull());
        QVERIFY(owner.isVisible());
    }

    // A box of the menu's own would be locked with it, and nobody could answer.
    void theMenuIsLockedWhenItAsksNothing() {
        frmToolsMenu menu;
        menu.show();
        QMessageBox box(&menu);
        box.open();
        suite_->EnableToolsMenu(false);
        QVERIFY(menu.isEnabled() && box.isEnabled());
        box.close();
        suite_->EnableToolsMenu(false);
        QVERIFY(!menu.isEnabled());
        suite_->EnableToolsMenu(true);
        QVERIFY(menu.isEnabled());
    }

    void withoutToolsTheProgramMayEnd() {
        QVERIFY(suite_->MayEndProgram());
        QVERIFY(host_->Messages.empty());
    }

    void eachOpenToolIsAskedAboutItsChangesAndNoneIsClosed() {
        OpenChanged();
        OpenChanged();
        host_->Answers = {Answer::No, Answer::No};
        QVERIFY(suite_->MayEndProgram());
        QCOMPARE(host_->Messages.size(), 2U);
        QCOMPARE(host_->Messages[0].Text, u"QuitSave"_s);
        QCOMPARE(Editors().size(), 2);
        host_->Answers = {Answer::No, Answer::No};
        QVERIFY(suite_->MayEndProgram());
        QCOMPARE(host_->Messages.size(), 4U);
    }

    void oneThatStaysKeepsTheProgramAndTheOthersAreNotAsked() {
        OpenChanged();
        OpenChanged();
        OpenChanged();
        host_->Answers = {Answer::No, Answer::Cancel};
        QVERIFY(!suite_->MayEndProgram());
        QCOMPARE(host_->Messages.size(), 2U);
    }

    void aToolWithoutChangesOrOffTheScreenIsNotAsked() {
        OpenChanged();
        Editors().first()->hide();
        suite_->ShowCSFEditor();
        QVERIFY(suite_->MayEndProgram());
        QVERIFY(host_->Messages.empty());
    }

private:
    static QList<QPointer<frmCSFEditor>> Editors() {
        QList<QPointer<frmCSFEditor>> editors;
        for (QWidget* const window : QApplication::topLevelWidgets())
            if (auto* const editor = qobject_cast<frmCSFEditor*>(window); editor != nullptr)
                editors += editor;
        return editors;
    }

    void OpenChanged() {
        const QList<QPointer<frmCSFEditor>> before = Editors();
        suite_->ShowCSFEditor();
        for (const QPointer<frmCSFEditor>& editor : Editors())
            if (!before.contains(editor))
                editor->findChild<QAction*>(u"mnuAdd"_s)->trigger();
    }

    std::unique_ptr<World> world_;
    std::unique_ptr<ScriptedHost> host_;
    std::unique_ptr<Suite> suite_;
};

WINDOW_TEST(tst_suite)
#include "tst_suite.moc"
