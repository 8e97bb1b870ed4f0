// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/World.h"
#include "tests/windows/WindowTests.h"
#include "ui/text/FileFilter.h"
#include "ui/window/WindowHost.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

// Runs `act` on the next file dialog, as soon as it is up.
void WhenUp(const std::function<void(QFileDialog*)>& act) {
    QTimer::singleShot(0, qApp, [act] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return WhenUp(act);
        act(dialog);
    });
}

} // namespace

class tst_filechooser : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        world_ = std::make_unique<World>();
        world_->UseLanguage("[LNG]\r\n");
        world_->Start();
        host_ = std::make_unique<WindowHost>();
    }

    void cleanup() {
        host_.reset();
        world_.reset();
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false);
    }

    void savingAddsTheExtensionThatTheTypedNameLacks() {
        world_->WriteFile(u"out\\there.txt"_s, {});
        WhenUp([&](QFileDialog* box) {
            QCOMPARE(box->nameFilters(), QStringList{u"BIG (*.big)"_s});
            box->findChild<QLineEdit*>()->setText(u"typed"_s);
            QTest::keyClick(box, Qt::Key_Return);
        });
        const auto name = host_->SaveFileName({.Title = u"Save"_s,
                                               .Filter = u"BIG (*.big)|*.big"_s,
                                               .DefaultExtension = u"big"_s,
                                               .DefaultName = world_->Root() + u"\\out\\first.big"_s});
        QCOMPARE(name, std::optional(world_->Root() + u"\\out\\typed.big"_s));
    }

    void aNameWithWildcardsIsAFilterAndTheDialogStays() {
        world_->WriteFile(u"out\\one.big"_s, {});
        world_->WriteFile(u"out\\two.big"_s, {});
        world_->WriteFile(u"out\\other.big"_s, {});
        QStringList listed;
        WhenUp([&](QFileDialog* box) {
            box->findChild<QLineEdit*>()->setText(u"o*.b?g"_s);
            QTest::keyClick(box, Qt::Key_Return);
            QVERIFY(box->isVisible());
            const auto* const list = box->findChild<QListView*>(u"listView"_s);
            QTRY_COMPARE(list->model()->rowCount(list->rootIndex()), 2);
            for (int row = 0; row < 2; ++row)
                listed += list->model()->index(row, 0, list->rootIndex()).data().toString();
            box->findChild<QLineEdit*>()->setText(u"typed"_s);
            QTest::keyClick(box, Qt::Key_Return);
        });
        const auto name = host_->SaveFileName({.Title = u"Save"_s,
                                               .Filter = u"BIG (*.big)|*.big"_s,
                                               .DefaultExtension = u"big"_s,
                                               .DefaultName = world_->Root() + u"\\out\\first.big"_s});
        QCOMPARE(name, std::optional(world_->Root() + u"\\out\\typed.big"_s));
        QCOMPARE(listed, QStringList({u"one.big"_s, u"other.big"_s}));
    }

    void aFilterBehindAFolderListsThatFolder() {
        world_->WriteFile(u"in\\Deep\\file.csf"_s, "x");
        const QString file = world_->WriteFile(u"in\\Here.big"_s, "x");
        QString folder;
        WhenUp([&](QFileDialog* box) {
            box->findChild<QLineEdit*>()->setText(u"Deep/*.csf"_s);
            QTest::keyClick(box, Qt::Key_Return);
            folder = box->directory().dirName();
            box->reject();
        });
        QCOMPARE(host_->OpenFileName(
                     {.Title = u"Open"_s, .Filter = u"*|*.*"_s, .DefaultExtension = {}, .DefaultName = file}),
                 std::optional<QString>());
        QCOMPARE(folder, u"Deep"_s);
    }

    void openingGivesTheFileAsAnInsidePath() {
        const QString file = world_->WriteFile(u"in\\Here.big"_s, "x");
        WhenUp([&](QFileDialog* box) { QTest::keyClick(box, Qt::Key_Return); });
        const auto name = host_->OpenFileName(
            {.Title = u"Open"_s, .Filter = u"*|*.*"_s, .DefaultExtension = {}, .DefaultName = file});
        QCOMPARE(name, std::optional(file));
    }

    void aFileDialogBeginsInTheFolderThatWasAskedFor() {
        const QString file = world_->WriteFile(u"in\\Here.big"_s, "x");
        WhenUp([](QFileDialog* box) {
            box->findChild<QLineEdit*>()->setText(u"Here.big"_s);
            QTest::keyClick(box, Qt::Key_Return);
        });
        Host::FileDialog dialog{.Title = {}, .Filter = u"*|*.*"_s, .DefaultExtension = {}, .DefaultName = {}};
        dialog.Folder = world_->Root() + u"\\in\\"_s;
        QCOMPARE(host_->OpenFileName(dialog), std::optional(file));
    }

    void aFileDialogThatIsCancelledGivesNothing() {
        WhenUp([](QFileDialog* box) { box->reject(); });
        QCOMPARE(host_->OpenFileName({}), std::optional<QString>());
    }

    void aFolderIsChosenAsAnInsidePath() {
        world_->WriteFile(u"in\\Deep\\file"_s, "x");
        WhenUp([](QFileDialog* box) {
            box->findChild<QLineEdit*>()->setText(u"Deep"_s);
            QTest::keyClick(box, Qt::Key_Return);
        });
        QCOMPARE(host_->ChooseFolder(u"Where?"_s, world_->Root() + u"\\in"_s),
                 std::optional(world_->Root() + u"\\in\\Deep"_s));
    }

    void aFolderChooserThatIsCancelledGivesNothing() {
        QString title;
        WhenUp([&](QFileDialog* box) {
            title = box->windowTitle();
            box->reject();
        });
        QCOMPARE(host_->ChooseFolder(u"Where?"_s, {}), std::optional<QString>());
        QCOMPARE(title, u"Where?"_s);
    }

    void filtersAreTurnedIntoTheToolkitsForm() {
        QCOMPARE(ToNameFilters(u"BIG files (*.big)|*.big|Pictures|*.tga;*.dds|All|*.*"_s),
                 (QStringList{u"BIG files (*.big)"_s, u"Pictures (*.tga *.dds)"_s, u"All (*)"_s}));
        QVERIFY(ToNameFilters({}).isEmpty());
        QVERIFY(ToNameFilters(u"text without a pattern"_s).isEmpty());
    }

private:
    std::unique_ptr<World> world_;
    std::unique_ptr<Host> host_;
};

WINDOW_TEST(tst_filechooser)
#include "tst_filechooser.moc"
