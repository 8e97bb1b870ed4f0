// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The window that looks for a text in the open archive.
#include "big/window/frmSearch.h"
#include "tests/windows/big/BigEditorWindow.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

using namespace Qt::StringLiterals;

class tst_search : public BigEditorWindow {
    Q_OBJECT
private:
    void OpenSearch() {
        OpenArchive();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
        Part<QAction>("mnuFind")->trigger();
        QVERIFY(QTest::qWaitForWindowActive(Search()));
    }

    /// A search of this archive does not end before events are handled.
    void OpenSearchThatTakesLong() {
        std::vector<NamedBytes> entries;
        entries.reserve(400);
        for (int i = 0; i < 400; ++i)
            entries.emplace_back(u"%1.ini"_s.arg(i), QByteArray(100000, 'x'));
        archive_ = world_->WriteFile(u"b.big"_s, ArchiveOf(entries));
        OpenSearch();
    }

    frmSearch* Search() { return window_->findChild<frmSearch*>(); }

    QLineEdit* Field() { return Part<QLineEdit>("txtFind"); }

    QListView* List() { return Part<QListView>("lvFound"); }

    QPushButton* Button() { return Part<QPushButton>("cmdFind"); }

    QString Told() { return Part<QLabel>("lblFound")->text(); }

    QStringList Found() {
        QStringList names;
        for (int row = 0; row < List()->model()->rowCount(); ++row)
            names += List()->model()->index(row, 0).data().toString();
        return names;
    }

    void LookFor(const QString& text, bool inTexts = false) {
        Part<QCheckBox>("ckTexts")->setChecked(inTexts);
        Field()->setText(text);
        QTest::keyClick(Field(), Qt::Key_Return);
    }

private Q_SLOTS:

    void init() {
        Begin("[LNG]\r\nFind=Suchen\r\nCancel=Abbruch\r\nMatchCount=%1 da\r\nSearchedSoFar=%1 %\r\n"
              "TextsNotRead=%1 nicht\r\n");
    }

    void cleanup() { End(); }

    void thereIsNoneWithoutAnArchive() {
        Open();
        QVERIFY(!Part<QAction>("mnuFind")->isEnabled());
    }

    void namesAreFoundInAllFolders() {
        OpenSearch();
        const QAbstractItemModelTester tester(List()->model());
        LookFor(u"A"_s);
        QCOMPARE(Found(), QStringList({u"readme.txt"_s, u"Data\\INI\\Object.ini"_s, u"Data\\map.tga"_s}));
        QCOMPARE(Told(), u"3 da"_s);
        LookFor(u"*.ini"_s);
        QCOMPARE(Found(), QStringList{u"Data\\INI\\Object.ini"_s});
        LookFor(u"hello"_s);
        QCOMPARE(Found(), QStringList());
        QCOMPARE(Told(), u"0 da"_s);
        LookFor({}, true);
        QCOMPARE(Found(), QStringList());
        QCOMPARE(Button()->text(), u"Suchen"_s);
    }

    void textsAreFoundOnRequest() {
        OpenSearch();
        const QAbstractItemModelTester tester(List()->model());
        LookFor(u"OBJECT"_s, true);
        QTRY_COMPARE(Button()->text(), u"Suchen"_s);
        QCOMPARE(Found(), QStringList{u"Data\\INI\\Object.ini"_s}); // by name and text, once
        LookFor(u"HELL"_s, true);
        QTRY_COMPARE(Told(), u"1 da"_s);
        QCOMPARE(Found(), QStringList{u"readme.txt"_s});
    }

    void aClickLeadsToTheEntry() {
        OpenSearch();
        LookFor(u"object"_s);
        Click(*List(), 0);
        QCOMPARE(Tree()->currentIndex().data().toString(), u"ini"_s);
        QCOMPARE(Files()->SelectedRows(), std::vector<int>{0});
        QCOMPARE(Status(), u"Data\\INI\\Object.ini"_s);
    }

    void theArrowKeysLeadThere() {
        OpenSearch();
        LookFor(u"a"_s);
        List()->setFocus();
        QTest::keyClick(List(), Qt::Key_Down);
        QTest::keyClick(List(), Qt::Key_Down);
        QCOMPARE(Status(), QString(List()->currentIndex().data().toString()));
        QVERIFY(List()->currentIndex().row() > 0);
    }

    void theButtonEndsASearchThatRuns() {
        OpenSearchThatTakesLong();
        LookFor(u"needle"_s, true);
        QCOMPARE(Button()->text(), u"Abbruch"_s);
        QVERIFY(Told().endsWith(u"%, 0 da"_s));
        Button()->click();
        QCOMPARE(Button()->text(), u"Suchen"_s);
        QCOMPARE(Told(), u"0 da"_s);
    }

    void aCommandEndsASearchThatRuns() {
        OpenSearchThatTakesLong();
        LookFor(u"needle"_s, true);
        Part<QAction>("mnuNewFolder")->trigger();
        QCOMPARE(Button()->text(), u"Suchen"_s);
    }

    void escapeClosesItAndTheNextSearchBeginsWithTheOldText() {
        OpenSearch();
        LookFor(u"map"_s);
        QTest::keyClick(Field(), Qt::Key_Escape);
        QVERIFY(!Search()->isVisible());
        Part<QAction>("mnuFind")->trigger();
        QVERIFY(Search()->isVisible());
        QCOMPARE(Field()->selectedText(), u"map"_s);
        QCOMPARE(Found(), QStringList{u"Data\\map.tga"_s});
    }

    void itGoesWithTheEditorsWindow() {
        OpenSearch();
        window_->close();
        QTRY_VERIFY(!Search()->isVisible());
    }

    void anotherArchiveHasOtherEntries() {
        OpenSearch();
        LookFor(u"map"_s);
        window_->OpenBigFile(world_->WriteFile(u"b.big"_s, ArchiveOf({{u"map"_s, "1"}, {u"b"_s, "2"}})));
        QCOMPARE(Found(), QStringList());
        QCOMPARE(Told(), QString());
    }

    void anArchiveThatWasChangedMeanwhileHasNoTexts() {
        OpenSearch();
        world_->WriteFile(u"a.big"_s, "something else that is longer than nothing");
        LookFor(u"hello"_s, true);
        QTRY_COMPARE(Told(), u"0 da, 2 nicht"_s);
    }

    void textIsNeverCut_data() { AddEachLanguage(); }

    void textIsNeverCut() {
        QFETCH(QString, language);
        End();
        Begin(OwnLanguages::Bytes(language));
        OpenSearch();
        LookFor(u"a"_s, true);
        QVERIFY(AllTextsHaveRoom(*Search()));
    }
};

WINDOW_TEST(tst_search)

#include "tst_search.moc"
