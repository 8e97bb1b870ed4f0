// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/frmBrowseForFolder.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/World.h"
#include "tests/ui/ScriptedMachine.h"
#include "tests/windows/LanguageChecks.h"
#include "tests/windows/WindowTests.h"
#include "ui/folders/CoolFileBox.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

using namespace Qt::StringLiterals;

class tst_browseforfolder : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        world_->UseLanguage("[LNG]\r\nBrowseForFolder=Ordner\r\nExtractFilesTo=Nach:\r\nCreateDirs=Baum\r\n"
                            "OK=Gut\r\nCancel=Nein\r\nNewFolder=Neu\r\n");
        world_->Start();
        host_ = std::make_unique<ScriptedHost>();
        auto machine = std::make_unique<ScriptedMachine>();
        machine_ = machine.get();
        machine_->DocumentsFolder = world_->Root();
        machine_->NetworkFolder.clear();
        machine_->Entries[world_->Root() + u'\\'] = {ScriptedMachine::Folder(u"Maps"_s)};
        window_ = std::make_unique<frmBrowseForFolder>(nullptr, std::move(machine));
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    void cleanup() {
        window_.reset();
        host_.reset();
        world_.reset();
    }

    void textsAreInTheUsersLanguage() {
        QCOMPARE(window_->windowTitle(), u"Ordner"_s);
        QCOMPARE(Part<QLabel>("lblFolders")->text(), u"Nach:"_s);
        QCOMPARE(Part<QCheckBox>("ckCreateDirs")->text(), u"Baum"_s);
        QCOMPARE(Part<QPushButton>("cmdOK")->text(), u"Gut"_s);
        QCOMPARE(Part<QPushButton>("cmdCancel")->text(), u"Nein"_s);
        QCOMPARE(View()->accessibleName(), u"Folder"_s);
        QCOMPARE(Part<QLabel>("lblFolders")->buddy(), Part<QLineEdit>("txtPath"));
    }

    void itStartsAtTheDocumentsWithTheTreeInFocus() {
        QCOMPARE(Box()->Path(), world_->Root() + u'\\');
        QVERIFY(View()->hasFocus());
        QVERIFY(Part<QCheckBox>("ckCreateDirs")->isChecked());
        QCOMPARE(Part<QLineEdit>("txtPath")->text(), Paths::ToNative(world_->Root() + u'\\'));
    }

    void untilItIsLeftByOkItIsCancelled() {
        QVERIFY(window_->Target().ExtractCancelled);
        QVERIFY(window_->Target().RecreateFolders);
        QVERIFY(window_->Target().ExtractFolder.isEmpty());
    }

    void okHandsOnTheFolderWithOneBackslashAtItsEnd() {
        QTest::mouseClick(Part<QPushButton>("cmdOK"), Qt::LeftButton);
        QVERIFY(!window_->isVisible());
        QVERIFY(!window_->Target().ExtractCancelled);
        QCOMPARE(window_->Target().ExtractFolder, world_->Root() + u'\\');
    }

    void aDrivesFolderEndsInOneBackslashToo() {
        Select(Below(View()->model()->index(0, 0), 3));
        QTest::mouseClick(Part<QPushButton>("cmdOK"), Qt::LeftButton);
        QCOMPARE(window_->Target().ExtractFolder, u"C:\\"_s);
    }

    void enterIsOkAndTheCheckBoxIsTaken() {
        QTest::keyClick(View(), Qt::Key_Right);
        QTest::keyClick(View(), Qt::Key_Right);
        QTest::mouseClick(Part<QCheckBox>("ckCreateDirs"), Qt::LeftButton, {}, QPoint(8, 8));
        QTest::keyClick(window_.get(), Qt::Key_Return);
        QCOMPARE(window_->result(), int{QDialog::Accepted});
        QCOMPARE(window_->Target().ExtractFolder, world_->Root() + u"\\Maps\\"_s);
        QVERIFY(!window_->Target().RecreateFolders);
    }

    void cancelTakesTheCheckBoxAllTheSame() {
        Part<QCheckBox>("ckCreateDirs")->setChecked(false);
        QTest::mouseClick(Part<QPushButton>("cmdCancel"), Qt::LeftButton);
        QVERIFY(!window_->isVisible());
        QVERIFY(window_->Target().ExtractCancelled);
        QVERIFY(!window_->Target().RecreateFolders);
        QVERIFY(window_->Target().ExtractFolder.isEmpty());
    }

    void escapeAndTheCloseButtonAreCancel() {
        Part<QCheckBox>("ckCreateDirs")->setChecked(false);
        QTest::keyClick(View(), Qt::Key_Escape);
        QVERIFY(!window_->isVisible());
        QVERIFY(window_->Target().ExtractCancelled);
        QVERIFY(!window_->Target().RecreateFolders);
        Part<QCheckBox>("ckCreateDirs")->setChecked(true);
        window_->show();
        window_->close();
        QVERIFY(window_->Target().ExtractCancelled);
        QVERIFY(window_->Target().RecreateFolders);
    }

    void aPathCanBeTypedOrPasted_data() {
        QTest::addColumn<QString>("form");
        QTest::newRow("plain") << u"%1"_s;
        QTest::newRow("with a separator and blanks") << u"  %1/ "_s;
        QTest::newRow("in quotes") << u"\"%1\""_s;
        QTest::newRow("address") << u"file://%1"_s;
    }

    void aPathCanBeTypedOrPasted() {
        QFETCH(QString, form);
        if (form.startsWith("file:"_L1) && !Paths::ToNative(world_->Root()).startsWith(u'/'))
            form = u"file:///%1"_s;
        Type(form.arg(Paths::ToNative(world_->Root() + u"\\new one"_s)));
        QTest::keyClick(Part<QLineEdit>("txtPath"), Qt::Key_Return);
        QCOMPARE(window_->result(), int{QDialog::Accepted});
        QCOMPARE(window_->Target().ExtractFolder, world_->Root() + u"\\new one\\"_s);
    }

    void whatCanBeNoFolderIsNotTaken() {
        for (const QString& path : {u"relative"_s, Paths::ToNative(world_->WriteFile(u"file.txt"_s, "x"))}) {
            host_->Messages.clear();
            Type(path);
            Part<QPushButton>("cmdOK")->click();
            QVERIFY(window_->isVisible());
            QVERIFY(window_->Target().ExtractCancelled);
            QCOMPARE(host_->Messages.size(), 1U);
        }
        Type(u" "_s);
        QVERIFY(!Part<QPushButton>("cmdOK")->isEnabled());
    }

    void aClickInTheTreeTakesThePlaceOfWhatWasTyped() {
        Type(Paths::ToNative(world_->Root() + u"\\new one"_s));
        QTest::mouseClick(View()->viewport(), Qt::LeftButton, {}, View()->visualRect(View()->currentIndex()).center());
        QCOMPARE(Part<QLineEdit>("txtPath")->text(), Paths::ToNative(world_->Root() + u'\\'));
        Part<QPushButton>("cmdOK")->click();
        QCOMPARE(window_->Target().ExtractFolder, world_->Root() + u'\\');
    }

    void theTreeFollowsWhatIsTyped() {
        const QString maps = world_->Root() + u"\\Maps\\"_s;
        Type(Paths::ToNative(maps));
        QTRY_COMPARE(Box()->Path(), maps);
        QCOMPARE(Part<QLineEdit>("txtPath")->text(), Paths::ToNative(maps));
        Type(Paths::ToNative(world_->Root() + u"\\new one"_s));
        QTRY_COMPARE(Box()->Path(), world_->Root() + u'\\');
        QCOMPARE(Part<QLineEdit>("txtPath")->text(), Paths::ToNative(world_->Root() + u"\\new one"_s));
        Part<QPushButton>("cmdOK")->click();
        QCOMPARE(window_->Target().ExtractFolder, world_->Root() + u"\\new one\\"_s);
    }

    void aClickInTheTreeEndsWhatIsTyped() {
        Type(Paths::ToNative(world_->Root() + u"\\Maps"_s));
        QTest::mouseClick(View()->viewport(), Qt::LeftButton, {}, View()->visualRect(View()->currentIndex()).center());
        QTest::qWait(500);
        QCOMPARE(Box()->Path(), world_->Root() + u'\\');
    }

    void theLastPlaceIsOfferedFirst() {
        const QString place = Paths::Folder(world_->WriteFile(u"last\\x"_s, "x"));
        Type(Paths::ToNative(place));
        Part<QPushButton>("cmdOK")->click();
        window_ = std::make_unique<frmBrowseForFolder>(nullptr, std::make_unique<ScriptedMachine>());
        window_->show();
        QCOMPARE(Part<QLineEdit>("txtPath")->text(), Paths::ToNative(place));
        Part<QPushButton>("cmdOK")->click();
        QCOMPARE(window_->Target().ExtractFolder, place);
    }

    void theTopOfTheTreeAndAMissingNetworkCantBeChosen() {
        for (const QModelIndex& node : {View()->model()->index(0, 0), Below(View()->model()->index(0, 0), 1)}) {
            Select(node);
            QVERIFY(!Part<QPushButton>("cmdOK")->isEnabled());
            QTest::keyClick(View(), Qt::Key_Return);
            QVERIFY(window_->isVisible());
        }
        Box()->SelectDocuments();
        QVERIFY(Part<QPushButton>("cmdOK")->isEnabled());
    }

    void aDoubleClickOpensTheFolderAndNotMore() {
        const QPoint at = View()->visualRect(View()->currentIndex()).center();
        QTest::mouseClick(View()->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(View()->viewport(), Qt::LeftButton, {}, at);
        QVERIFY(window_->isVisible());
        QCOMPARE(machine_->Walked, QStringList(world_->Root() + u'\\'));
    }

    void theTabKeyGoesFromTheTreeToTheButtons() {
        QStringList order;
        for (int press = 0; press < 6; ++press) {
            order += window_->focusWidget()->objectName();
            QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(order, QStringList({u"trv_File"_s, u"txtPath"_s, u"ckCreateDirs"_s, u"cmdNewFolder"_s, u"cmdOK"_s,
                                     u"cmdCancel"_s}));
    }

    void aNewFolderIsMadeOnDiskAndSelected() {
        host_->InputTexts = {u"Fresh"_s};
        QTest::mouseClick(Part<QPushButton>("cmdNewFolder"), Qt::LeftButton);
        QVERIFY(Files::FolderExists(world_->Root() + u"\\Fresh"_s));
        QCOMPARE(machine_->Walked.size(), 1);
        host_->InputTexts = {u"Second"_s};
        Box()->SelectDocuments();
        QTest::mouseClick(Part<QPushButton>("cmdNewFolder"), Qt::LeftButton);
        QCOMPARE(Box()->Path(), world_->Root() + u"\\Second\\"_s);
    }

    void aNameThatLeadsElsewhereMakesNoFolder() {
        for (const QString& name : {u"..\\out"_s, u"a/b"_s, u"nul"_s, u"x."_s}) {
            host_->InputTexts = {name};
            host_->Messages.clear();
            QTest::mouseClick(Part<QPushButton>("cmdNewFolder"), Qt::LeftButton);
            QCOMPARE(host_->Messages.size(), 1U);
            QCOMPARE(host_->Messages.front().Sign, Host::Icon::Critical);
        }
        host_->InputTexts = {std::nullopt};
        QTest::mouseClick(Part<QPushButton>("cmdNewFolder"), Qt::LeftButton);
        QCOMPARE(Box()->Path(), world_->Root() + u'\\');
    }

    void textIsNeverCut_data() { AddEachLanguage(); }

    void textIsNeverCut() {
        QFETCH(QString, language);
        world_->UseOwnLanguage(language);
        world_->Start();
        window_ = std::make_unique<frmBrowseForFolder>(nullptr, std::make_unique<ScriptedMachine>());
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
        QVERIFY(AllTextsHaveRoom(*window_));
    }

private:
    template <typename Control>
    Control* Part(const char* name) {
        return window_->findChild<Control*>(QString::fromLatin1(name));
    }

    void Type(const QString& path) {
        Part<QLineEdit>("txtPath")->setFocus();
        Part<QLineEdit>("txtPath")->selectAll();
        QTest::keyClicks(Part<QLineEdit>("txtPath"), path);
    }

    CoolFileBox* Box() { return Part<CoolFileBox>("cfbFolders"); }

    QTreeView* View() { return Box()->View(); }

    QModelIndex Below(const QModelIndex& parent, int row) { return View()->model()->index(row, 0, parent); }

    void Select(const QModelIndex& node) { View()->setCurrentIndex(node); }

    std::unique_ptr<World> world_;
    std::unique_ptr<ScriptedHost> host_;
    std::unique_ptr<frmBrowseForFolder> window_;
    ScriptedMachine* machine_ = nullptr;
};

WINDOW_TEST(tst_browseforfolder)
#include "tst_browseforfolder.moc"
