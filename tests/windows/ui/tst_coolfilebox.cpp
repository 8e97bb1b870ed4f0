// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/World.h"
#include "tests/ui/ScriptedMachine.h"
#include "tests/windows/WindowTests.h"
#include "ui/folders/CoolFileBox.h"
#include "ui/folders/FileBoxKey.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTreeView>

using namespace Qt::StringLiterals;

class tst_coolfilebox : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        world_->Start();
        box_ = std::make_unique<CoolFileBox>();
        auto machine = std::make_unique<ScriptedMachine>();
        machine_ = machine.get();
        machine_->Entries[u"C:\\"_s] = {ScriptedMachine::Folder(u"Games"_s), ScriptedMachine::Folder(u"Empty"_s),
                                        ScriptedMachine::Hidden(ScriptedMachine::Folder(u"Hidden"_s)),
                                        ScriptedMachine::File(u"boot.ini"_s)};
        machine_->Entries[u"C:\\Games\\"_s] = {ScriptedMachine::Folder(u"Maps"_s)};
        box_->UseSystem(std::move(machine));
        box_->resize(300, 300);
    }

    void cleanup() {
        box_.reset();
        world_.reset();
    }

    void propertiesStartWithTheirDefaults() {
        QCOMPARE(box_->property("Enabled").toBool(), true);
        QCOMPARE(box_->property("BorderStyle").toInt(), 0);
        QCOMPARE(box_->property("Appearance").toInt(), 1);
        QCOMPARE(box_->property("ShowFiles").toBool(), false);
        QCOMPARE(box_->property("ShowHiddenFiles").toBool(), false);
        QCOMPARE(box_->property("Filter").toString(), QString());
        QVERIFY(box_->MouseIcon().isNull());
        QCOMPARE(box_->property("MousePointer").toInt(), 0);
        QCOMPARE(box_->property("Path").toString(), QString());
    }

    void theTreeIsBuiltWhenItIsFirstShownWithItsTopOpened() {
        QCOMPARE(View()->model()->rowCount(), 0);
        Show();
        QCOMPARE(Text(Root()), u"Poste de travail"_s);
        QVERIFY(View()->isExpanded(Root()));
        QCOMPARE(View()->model()->rowCount(Root()), 6);
        QVERIFY(machine_->Walked.isEmpty());
    }

    void aPathIsFoundAsFarAsItIsShown_data() {
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QString>("found");
        QTest::newRow("a folder") << u"C:\\Games\\Maps\\"_s << u"C:\\Games\\Maps\\"_s;
        QTest::newRow("in other case") << u"c:\\games\\MAPS\\"_s << u"C:\\Games\\Maps\\"_s;
        QTest::newRow("missing") << u"C:\\Games\\Mods\\a\\"_s << u"C:\\Games\\"_s;
        QTest::newRow("begins alike") << u"C:\\Games2\\"_s << u"C:\\"_s;
        QTest::newRow("hidden") << u"C:\\Hidden\\"_s << u"C:\\"_s;
        QTest::newRow("no drive") << u"Q:\\"_s << QString();
    }

    void aPathIsFoundAsFarAsItIsShown() {
        QFETCH(QString, wanted);
        QFETCH(QString, found);
        Show();
        box_->SelectPath(wanted);
        QCOMPARE(box_->Path(), found);
    }

    void aLinkThatLeadsUpAgainIsNotFollowed() {
        machine_->Entries[u"C:\\Games\\"_s] = {ScriptedMachine::Link(u"up"_s, u"C:\\"_s)};
        Show();
        box_->SelectPath(u"C:\\Games\\Maps\\"_s);
        QCOMPARE(box_->Path(), u"C:\\Games\\"_s);
    }

    void theModelKeepsTheRules() {
        const QAbstractItemModelTester tester(View()->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        box_->SetShowFiles(true);
        Show();
        View()->expand(DriveC());
        View()->expand(Below(DriveC(), 0));
        View()->collapse(Below(DriveC(), 0));
        View()->setCurrentIndex(DriveC());
        box_->SelectNewFolder(u"New"_s);
        box_->Refresh();
        box_->UseSystem(std::make_unique<ScriptedMachine>());
        QCOMPARE(View()->model()->rowCount(), 0);
    }

    void openingWithTheKeyboardReadsTheBranch() {
        Show();
        View()->setCurrentIndex(DriveC());
        QTest::keyClick(View(), Qt::Key_Right);
        QVERIFY(View()->isExpanded(DriveC()));
        QCOMPARE(View()->model()->rowCount(DriveC()), 2);
        QCOMPARE(Text(Below(DriveC(), 0)), u"Games"_s);
        QVERIFY(View()->visualRect(Below(DriveC(), 0)).isValid());
        QTest::keyClick(View(), Qt::Key_Right);
        QCOMPARE(box_->Path(), u"C:\\Games\\"_s);
        QTest::keyClick(View(), Qt::Key_Right);
        QCOMPARE(Key(Below(DriveC(), 0)), u"*OpenFolder*C:\\Games\\"_s);
        QTest::keyClick(View(), Qt::Key_Left);
        QCOMPARE(Key(Below(DriveC(), 0)), u"*CloseFolder*C:\\Games\\"_s);
    }

    void aDoubleClickOpensAFolder() {
        Show();
        const QPoint at = View()->visualRect(DriveC()).center();
        QTest::mouseClick(View()->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(View()->viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(View()->model()->rowCount(DriveC()), 2);
        QVERIFY(View()->isExpanded(DriveC()));
    }

    void theStarKeyOpensOneFolderAndNotTheWholeDisk() {
        Show();
        View()->setCurrentIndex(DriveC());
        QTest::keyClick(View(), Qt::Key_Asterisk);
        QCOMPARE(machine_->Walked, QStringList(u"C:\\"_s));
    }

    void anEmptyFolderLosesItsExpander() {
        Show();
        View()->expand(DriveC());
        const QModelIndex empty = Below(DriveC(), 1);
        QVERIFY(View()->model()->hasChildren(empty));
        View()->expand(empty);
        QVERIFY(!View()->model()->hasChildren(empty));
    }

    void filesAndHiddenEntriesAreShownWhenWanted() {
        box_->SetShowFiles(true);
        box_->SetShowHiddenFiles(true);
        box_->SetFilter(u".ini"_s);
        Show();
        View()->expand(DriveC());
        QCOMPARE(View()->model()->rowCount(DriveC()), 4);
        View()->setCurrentIndex(Below(DriveC(), 3));
        QCOMPARE(box_->Path(), u"C:\\boot.ini"_s);
    }

    void theRefreshKeyReadsTheMachineAnew() {
        Show();
        View()->expand(DriveC());
        machine_->AllDrives.push_back({u"Z:\\"_s, u"Z:\\"_s, ShellFolders::DriveKind::Removable});
        View()->setFocus();
        QTest::keyClick(View(), Qt::Key_F5);
        QCOMPARE(View()->model()->rowCount(Root()), 7);
        QVERIFY(!View()->isExpanded(DriveC()));
    }

    void thePathFollowsTheSelection() {
        Show();
        const QSignalSpy changes(box_.get(), &CoolFileBox::PathChanged);
        box_->SelectDocuments();
        QCOMPARE(box_->Path(), u"C:\\Users\\Me\\Documents\\"_s);
        QCOMPARE(changes.size(), 1);
        View()->setCurrentIndex(Root());
        QCOMPARE(box_->Path(), QString());
    }

    void everyNodeHasAPictureOfItsOwnKind() {
        machine_->Entries[u"C:\\"_s].push_back(ScriptedMachine::Link(u"Link"_s, u"D:\\x"_s));
        box_->SetShowFiles(true);
        Show();
        View()->expand(DriveC());
        QSet<qint64> pictures;
        QModelIndexList nodes{Root(), Below(DriveC(), 0), Below(DriveC(), 2), Below(DriveC(), 3)};
        for (int row = 0; row < 6; ++row)
            nodes += Below(Root(), row);
        for (const QModelIndex& node : nodes) {
            const QImage image = node.data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
            QVERIFY2(!image.isNull(), qPrintable(Key(node)));
            pictures +=
                static_cast<qint64>(qHashBits(image.constBits(), static_cast<std::size_t>(image.sizeInBytes())));
        }
        QCOMPARE(pictures.size(), nodes.size());
    }

    void aFolderJustMadeIsSelected() {
        Show();
        View()->setCurrentIndex(DriveC());
        machine_->Entries[u"C:\\"_s].push_back(ScriptedMachine::Folder(u"New"_s));
        box_->SelectNewFolder(u"New"_s); // of a branch that nobody has opened yet
        QCOMPARE(box_->Path(), u"C:\\New\\"_s);
        View()->setCurrentIndex(DriveC());
        box_->SelectNewFolder(u"Newer"_s); // of one that has been read
        QCOMPARE(box_->Path(), u"C:\\Newer\\"_s);
        View()->setCurrentIndex(Below(DriveC(), 1));
        View()->expand(Below(DriveC(), 1));
        box_->SelectNewFolder(u"First"_s); // of one that was empty
        QCOMPARE(box_->Path(), u"C:\\Empty\\First\\"_s);
        QVERIFY(View()->isExpanded(Below(DriveC(), 1)));
    }

    void frameAndPointerFollowTheirNumbers() {
        QCOMPARE(box_->frameShape(), QFrame::NoFrame);
        box_->SetBorderStyle(1);
        QCOMPARE(box_->frameShape(), QFrame::Panel);
        QCOMPARE(box_->frameShadow(), QFrame::Sunken);
        box_->SetAppearance(0);
        QCOMPARE(box_->frameShadow(), QFrame::Plain);
        box_->SetMousePointer(11);
        QCOMPARE(box_->cursor().shape(), Qt::WaitCursor);
        QPixmap icon(16, 16);
        icon.fill(Qt::red);
        box_->SetMouseIcon(icon);
        QCOMPARE(box_->cursor().shape(), Qt::WaitCursor);
        box_->SetMousePointer(99);
        QCOMPARE(box_->cursor().shape(), Qt::BitmapCursor);
        box_->SetMousePointer(0);
        QCOMPARE(box_->cursor().shape(), Qt::ArrowCursor);
    }

private:
    void Show() {
        box_->show();
        QVERIFY(QTest::qWaitForWindowExposed(box_.get()));
    }

    [[nodiscard]] QTreeView* View() const { return box_->View(); }

    [[nodiscard]] QModelIndex Root() const { return View()->model()->index(0, 0); }

    [[nodiscard]] QModelIndex Below(const QModelIndex& parent, int row) const {
        return View()->model()->index(row, 0, parent);
    }

    [[nodiscard]] QModelIndex DriveC() const { return Below(Root(), 3); }

    static QString Text(const QModelIndex& index) { return index.data().toString(); }

    static QString Key(const QModelIndex& index) { return index.data(FileBoxTree::KeyRole).toString(); }

    std::unique_ptr<World> world_;
    std::unique_ptr<CoolFileBox> box_;
    ScriptedMachine* machine_ = nullptr;
};

WINDOW_TEST(tst_coolfilebox)
#include "tst_coolfilebox.moc"
