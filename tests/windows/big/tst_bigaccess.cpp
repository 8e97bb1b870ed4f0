// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The BIG Editor's windows for screen readers, for the keyboard alone, and on small screens.
#include "big/window/frmBrowseForFolder.h"
#include "big/window/frmPicture.h"
#include "big/window/frmSearch.h"
#include "big/window/frmVersion.h"
#include "tests/media/picture_samples.h"
#include "tests/support/OwnLanguages.h"
#include "tests/ui/ScriptedMachine.h"
#include "tests/windows/Access.h"
#include "tests/windows/big/BigEditorWindow.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

class tst_bigaccess : public BigEditorWindow {
    Q_OBJECT
private:
    void Work() {
        Begin(OwnLanguages::Bytes(u"English"_s));
        archive_ = world_->WriteFile(
            u"b.big"_s,
            ArchiveOf({{u"data\\readme.txt"_s, "hello\r\nworld"}, {u"a.gif"_s, SampleGif()}, {u"b.txt"_s, "text"}}));
        OpenArchive();
        Activate(*window_);
    }

    static void Activate(QWidget& window) {
        window.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &window);
    }

    bool IsRight(QWidget& window, const char* name) {
        return Access::IsFor(window, {.Room = "big", .Name = QString::fromLatin1(name), .Mask = world_->Root()});
    }

    template <typename Window>
    Window* Child() {
        auto* const child = window_->findChild<Window*>();
        if (child != nullptr)
            Activate(*child);
        return child;
    }

private Q_SLOTS:

    static void initTestCase() { Access::Dress(); }

    void cleanup() { End(); }

    void theEditorWithoutAnArchive() {
        Begin(OwnLanguages::Bytes(u"English"_s));
        Open();
        Activate(*window_);
        QVERIFY(IsRight(*window_, "editor-empty"));
    }

    void theEditorWithAPicture() {
        Work();
        ViewItem(1)->trigger();
        ClickRow(1);
        QTRY_VERIFY(!Part<QLabel>("lblPicture")->text().isEmpty());
        QVERIFY(IsRight(*window_, "editor-picture"));
    }

    void theEditorWithATextAndANotice() {
        Work();
        Part<QAction>("mnuText")->trigger();
        ClickRow(2);
        window_->OpenBigFile(world_->WriteFile(u"no.big"_s, "nothing"));
        QVERIFY(IsRight(*window_, "editor-text"));
    }

    void theTabKeyComesToEachHeadingBeforeItsLinks() {
        Work();
        QStringList texts;
        Tree()->setFocus();
        do {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            if (const auto* const button = qobject_cast<QAbstractButton*>(QApplication::focusWidget()))
                texts += button->text();
        } while (!Tree()->hasFocus() && texts.size() < 20);
        QCOMPARE(texts, QStringList({u"BIG file"_s, u"Open"_s, u"New"_s, u"Save"_s, u"File version"_s, u"Actions"_s,
                                     u"Extract"_s, u"Add"_s, u"Delete"_s, u"New folder"_s}));
    }

    void theSearch() {
        Work();
        Part<QAction>("mnuFind")->trigger();
        auto* const search = Child<frmSearch>();
        QVERIFY(search != nullptr);
        search->findChild<QLineEdit*>(u"txtFind"_s)->setText(u"txt"_s);
        QTest::keyClick(search->findChild<QLineEdit*>(u"txtFind"_s), Qt::Key_Return);
        QTRY_COMPARE(search->findChild<QAbstractItemView*>(u"lvFound"_s)->model()->rowCount(), 2);
        QVERIFY(IsRight(*search, "search"));
    }

    void thePicture() {
        Work();
        ClickRow(1);
        QTRY_VERIFY(!Part<QLabel>("lblPicture")->text().isEmpty());
        QTest::mouseClick(Part<QWidget>("cmdPicture"), Qt::LeftButton);
        auto* const picture = Child<frmPicture>();
        QVERIFY(picture != nullptr);
        QTRY_COMPARE(picture->findChild<QLabel*>(u"lblPlace"_s)->text(), u"1 / 1"_s);
        QVERIFY(IsRight(*picture, "picture"));
    }

    void theVersion() {
        Work();
        frmVersion version(window_.get());
        version.show();
        Activate(version);
        QVERIFY(IsRight(version, "version"));
    }

    void theFolderToExtractTo() {
        Work();
        auto machine = std::make_unique<ScriptedMachine>();
        machine->DocumentsFolder = world_->Root();
        frmBrowseForFolder folders(window_.get(), std::move(machine));
        folders.show();
        Activate(folders);
        QVERIFY(IsRight(folders, "browse-for-folder"));
    }
};

WINDOW_TEST(tst_bigaccess)

#include "tst_bigaccess.moc"
