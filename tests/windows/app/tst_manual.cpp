// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// F1 in each window of the suite.

#include "big/window/frmBigEditor.h"
#include "big/window/frmBrowseForFolder.h"
#include "big/window/frmPicture.h"
#include "big/window/frmSearch.h"
#include "big/window/frmVersion.h"
#include "core/Manual.h"
#include "core/window/frmAbout.h"
#include "core/window/frmOptions.h"
#include "core/window/frmToolsMenu.h"
#include "csf/window/frmCSFEditor.h"
#include "install/window/frmAddFiles1.h"
#include "install/window/frmAddFiles2.h"
#include "install/window/frmAddFiles3.h"
#include "install/window/frmExportFiles1.h"
#include "personal/window/frmPersonalFiles.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/ScriptedNavigator.h"
#include "tests/support/World.h"
#include "tests/update/ScriptedHttp.h"
#include "tests/windows/OpenedPages.h"
#include "tests/windows/WindowTests.h"
#include "ui/window/frmLeftOut.h"
#include "ui/window/frmProgress.h"
#include "update/window/frmUpdate.h"

#include <QAction>
#include <QApplication>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

using Maker = std::function<std::unique_ptr<QWidget>()>;

template <typename Window>
Maker Making() {
    return [] { return std::make_unique<Window>(); };
}

const QHash<QString, Maker>& Makers() {
    static const QHash<QString, Maker> makers{
        {u"frmAbout"_s, Making<frmAbout>()},
        {u"frmAddFiles1"_s, Making<frmAddFiles1>()},
        {u"frmAddFiles2"_s, Making<frmAddFiles2>()},
        {u"frmAddFiles3"_s, Making<frmAddFiles3>()},
        {u"frmBigEditor"_s, Making<frmBigEditor>()},
        {u"frmBrowseForFolder"_s, Making<frmBrowseForFolder>()},
        {u"frmCSFEditor"_s, Making<frmCSFEditor>()},
        {u"frmExportFiles1"_s, Making<frmExportFiles1>()},
        {u"frmLeftOut"_s, [] { return std::make_unique<frmLeftOut>(u"Text"_s, QStringList{u"Line"_s}, nullptr); }},
        {u"frmOptions"_s, Making<frmOptions>()},
        {u"frmPersonalFiles"_s, Making<frmPersonalFiles>()},
        {u"frmPicture"_s, Making<frmPicture>()},
        {u"frmProgress"_s, Making<frmProgress>()},
        {u"frmSearch"_s, Making<frmSearch>()},
        {u"frmToolsMenu"_s, Making<frmToolsMenu>()},
        {u"frmUpdate"_s, [] { return std::make_unique<frmUpdate>(std::make_unique<ScriptedHttp>()); }},
        {u"frmVersion"_s, Making<frmVersion>()},
    };
    return makers;
}

QString FileOf(const Manual::Place& place) {
    if (place.Section.isEmpty())
        return u"%1.html"_s.arg(place.Page);
    return u"at/%1.%2.html"_s.arg(place.Page, place.Section);
}

} // namespace

class tst_manual : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        world_->InstallGame(0);
        world_->UseLanguage("[LNG]\r\n");
        world_->Start();
        for (const Manual::Place& place : Manual::Places()) {
            world_->WriteFile(u"program\\manual\\en\\"_s + FileOf(place).replace(u'/', u'\\'), "page");
        }
        opened_ = std::make_unique<OpenedPages>();
    }

    void cleanup() {
        opened_.reset();
        world_.reset();
    }

    void everyWindowIsTried() {
        for (const Manual::Place& place : Manual::Places())
            QVERIFY2(Makers().contains(place.Window.toString()), qPrintable(place.Window.toString()));
    }

    void f1OpensTheWindowsPlace_data() {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("file");
        for (const Manual::Place& place : Manual::Places()) {
            const QString window = place.Window.toString();
            QTest::newRow(qPrintable(window)) << window << u"/manual/en/"_s + FileOf(place);
        }
    }

    void f1OpensTheWindowsPlace() {
        QFETCH(QString, window);
        QFETCH(QString, file);
        const std::unique_ptr<QWidget> shown = Makers().value(window)();
        shown->show();
        QVERIFY(QTest::qWaitForWindowExposed(shown.get()));
        QWidget* const focus = shown->focusWidget();
        QTest::keyClick(focus != nullptr ? focus : shown.get(), Qt::Key_F1);
        QCOMPARE(opened_->Urls.size(), 1);
        QVERIFY2(opened_->Urls.first().toString().endsWith(file), qPrintable(opened_->Urls.first().toString()));
        QVERIFY(host_.Messages.empty());
        QVERIFY(navigator_.Calls.isEmpty());
    }

    void theHelpMenusOfTheToolsBeginWithIt() {
        for (const QString& tool : {u"frmBigEditor"_s, u"frmCSFEditor"_s, u"frmPersonalFiles"_s}) {
            opened_->Urls.clear();
            const std::unique_ptr<QWidget> shown = Makers().value(tool)();
            QAction* const entry = shown->findChild<QMenu*>(u"mnuHelp"_s)->actions().first();
            QCOMPARE(entry->objectName(), u"mnuManual"_s);
            QCOMPARE(entry->shortcut(), QKeySequence(Qt::Key_F1));
            entry->trigger();
            QCOMPARE(opened_->Urls.size(), 1);
        }
    }

private:
    std::unique_ptr<World> world_;
    ScriptedHost host_;
    ScriptedNavigator navigator_;
    std::unique_ptr<OpenedPages> opened_;
};

WINDOW_TEST(tst_manual)
#include "tst_manual.moc"
