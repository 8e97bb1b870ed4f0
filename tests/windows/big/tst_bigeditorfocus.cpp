// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Which pane the commands act on, what becomes of a name that is being typed when a command comes, and the strip.
#include "platform/Files.h"
#include "tests/windows/big/BigEditorWindow.h"
#include "ui/window/NoticeStrip.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

class tst_bigeditorfocus : public BigEditorWindow {
    Q_OBJECT
private:
    /// Opens the archive in a window that has the keyboard.
    void Work() {
        OpenArchive();
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    QAbstractItemView* List() { return Files()->Current(); }

    static QLineEdit* Field(QAbstractItemView* view) { return view->viewport()->findChild<QLineEdit*>(); }

    /// Begins the edit of a name and types another one, without an end.
    static void Type(QAbstractItemView* view, const QString& text) {
        QTest::keyClick(view, Qt::Key_F2);
        QTRY_VERIFY(Field(view) != nullptr);
        Field(view)->setText(text);
    }

    /// The texts of the root's folders.
    QStringList Folders() {
        const QModelIndex root = Tree()->model()->index(0, 0);
        QStringList texts;
        for (int row = 0; row < Tree()->model()->rowCount(root); ++row)
            texts += Tree()->model()->index(row, 0, root).data().toString();
        return texts;
    }

    void AddGone() {
        const QString source = world_->WriteFile(u"gone.txt"_s, "x");
        host_->FileNames = {source};
        Part<QAction>("mnuAdd")->trigger();
        Files::Delete(source);
    }

private Q_SLOTS:

    void init() { Begin(); }

    void cleanup() { End(); }

    void aClickOnARowWhoseSourceHasGoneGivesTheListTheCommands() {
        Work();
        Select(u"data\\"_s);
        AddGone();
        Select(u"data\\"_s);
        ClickRow(2);
        QCOMPARE(host_->Messages.back().Text, u"FileNotFound"_s);
        host_->Answers = {Answer::Yes};
        QTest::keyClick(List(), Qt::Key_Delete);
        QCOMPARE(Folders(), QStringList{u"data"_s});
    }

    void aClickOnTheEmptyGroundGivesTheListTheCommands() {
        Work();
        Select(u"data\\"_s);
        Tree()->setFocus();
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, {},
                          List()->viewport()->rect().bottomRight() - QPoint(4, 4));
        host_->Answers = {Answer::Yes};
        QTest::keyClick(List(), Qt::Key_Delete);
        QCOMPARE(Folders(), QStringList{u"data"_s});
    }

    void theDeleteKeyInTheListAfterOpenLeavesTheTreeAlone() {
        Work();
        ClickRow(1);
        QVERIFY(List()->hasFocus());
        host_->FileNames = {archive_};
        QTest::keyClick(List(), Qt::Key_O, Qt::ControlModifier);
        Select(u"data\\"_s); // as a key in the tree would, without a click
        List()->setFocus();
        host_->Answers = {Answer::Yes};
        QTest::keyClick(List(), Qt::Key_Delete);
        QCOMPARE(Folders(), QStringList{u"data"_s});
    }

    void savingTakesTheNameThatIsBeingTypedInTheList() {
        Work();
        ClickRow(1);
        Type(List(), u"Notes.txt"_s);
        QTest::keyClick(Field(List()), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!window_->isWindowModified());
        QVERIFY(mBIG::ReadBigFile(archive_));
        QCOMPARE(mBIG::BigEntries[0].Name, u"Notes.txt"_s);
        QCOMPARE(Rows(), QStringList({u"data"_s, u"Notes.txt"_s}));
    }

    void addingTakesTheNameThatIsBeingTypedInTheTree() {
        Work();
        Part<QAction>("mnuNewFolder")->trigger();
        QTRY_VERIFY(Field(Tree()) != nullptr);
        Field(Tree())->setText(u"Maps"_s);
        host_->FileNames = {world_->WriteFile(u"desert.map"_s, "sand")};
        Part<QAction>("mnuAdd")->trigger();
        QCOMPARE(mBIG::BigEntries.back().Name, u"Maps\\desert.map"_s);
        QTRY_VERIFY(Field(Tree()) == nullptr);
        QCoreApplication::processEvents();
        QCOMPARE(mBIG::BigEntries.back().Name, u"Maps\\desert.map"_s);
    }

    void aSecondNewFolderTakesTheNameOfTheFirst() {
        Work();
        Part<QAction>("mnuNewFolder")->trigger();
        QTRY_VERIFY(Field(Tree()) != nullptr);
        Field(Tree())->setText(u"Maps"_s);
        Part<QAction>("mnuNewFolder")->trigger();
        QVERIFY(Folders().contains(u"Maps"_s));
        QCOMPARE(Tree()->currentIndex().data().toString(), u"New Folder2"_s);
    }

    void closingTakesTheNameThatIsBeingTyped() {
        Work();
        ClickRow(1);
        Type(List(), u"Notes.txt"_s);
        host_->Answers = {Answer::Yes};
        window_->close();
        QCOMPARE(host_->Messages.size(), 1U);
        QVERIFY(mBIG::ReadBigFile(archive_));
        QCOMPARE(mBIG::BigEntries[0].Name, u"Notes.txt"_s);
    }

    void anotherViewTakesTheNameThatIsBeingTyped() {
        Work();
        ClickRow(1);
        Type(List(), u"Notes.txt"_s);
        ViewItem(1)->trigger();
        QCOMPARE(Rows(), QStringList({u"data"_s, u"Notes.txt"_s}));
    }

    void aClickOnTheSelectedNodeShowsItAnew() {
        Work();
        const QModelIndex data = Tree()->model()->index(0, 0, Tree()->model()->index(0, 0));
        const QPoint place = Tree()->visualRect(data).center();
        QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(Rows(), QStringList({u"ini"_s, u"map.tga"_s}));
        mBIG::BigEntries[2].Deleted = true;
        QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(Rows(), QStringList({u"ini"_s}));
    }

    void theStripTellsOfARenameInTheTreeAndItsLinkAsksBeforeClosing() {
        Work();
        mBIG::BigEntries[2].Name = u"data\\map.tga"_s;
        Select(u"data\\"_s);
        Tree()->setFocus();
        Type(Tree(), u"stuff"_s);
        QTest::keyClick(Field(Tree()), Qt::Key_Return);
        auto* strip = window_->findChild<NoticeStrip*>();
        QTRY_VERIFY(strip->isVisible());
        QCOMPARE(strip->Text(), u"NotMarkedAsChanged"_s);
        QVERIFY(!window_->isWindowModified());
        for (auto* link : strip->findChildren<QAbstractButton*>())
            if (link->isVisible() && link->text() == u"AskBeforeClosing"_s)
                link->click();
        QVERIFY(window_->isWindowModified());
        QVERIFY(!strip->isVisible());
    }

    void theVersionsCheckBoxChoosesExactOffsets() {
        Work();
        AnswerDialog([](QWidget* dialog) {
            auto* exact = dialog->findChild<QCheckBox*>(u"ckExactOffsets"_s);
            QVERIFY(!exact->isChecked());
            exact->click();
            dialog->findChild<QPushButton*>(u"cmdOK"_s)->click();
        });
        Part<QAction>("mnuFileVersion")->trigger();
        AnswerDialog([](QWidget* dialog) {
            QVERIFY(dialog->findChild<QCheckBox*>(u"ckExactOffsets"_s)->isChecked());
            dialog->findChild<QCheckBox*>(u"ckExactOffsets"_s)->click();
            dialog->findChild<QPushButton*>(u"cmdDefault"_s)->click();
        });
        Part<QAction>("mnuFileVersion")->trigger();
        mBIG::BigVersion = 2;
        Part<QAction>("mnuSave")->trigger();
        QVERIFY(mBIG::ReadBigFile(archive_));
        QCOMPARE(World::ReadFile(archive_).mid(mBIG::BigEntries[0].Offset, 5), QByteArray("hello"));
    }
};

WINDOW_TEST(tst_bigeditorfocus)

#include "tst_bigeditorfocus.moc"
