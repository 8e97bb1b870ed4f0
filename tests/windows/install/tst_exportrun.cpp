// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the button Next does, and how an export ends.

#include "tests/windows/install/ExportFilesPage.h"

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

class tst_exportrun : public ExportFilesPage {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        Begin(u"English"_s);
        ExportRecords.clear();
    }

    void cleanup() { End(); }

    void aZipIsWrittenAndThePageCloses() {
        OpenForAZip();
        host_->FileNames = {At(u"out.zip"_s)};
        Press("cmdNext");
        QCOMPARE(host_->Dialogs.size(), std::size_t{1});
        QCOMPARE(host_->Dialogs[0].Filter, u"ZIP Files (*.zip)|*.zip"_s);
        QCOMPARE(host_->Dialogs[0].DefaultName, u"*.zip"_s);
        QCOMPARE(host_->Dialogs[0].DefaultExtension, u"zip"_s);
        QCOMPARE(Entries(), QStringList{u"a.rep"_s});
        ExpectCompleted();
        QVERIFY(!window_->isVisible());
    }

    void aReadMeThatIsTickedComesIntoTheZip() {
        OpenForAZip();
        Press("ckIncludeReadMe");
        Part<QPlainTextEdit>("txtReadMe")->setFocus();
        QTest::keyClicks(Part<QPlainTextEdit>("txtReadMe"), u"one"_s);
        QTest::keyClick(Part<QPlainTextEdit>("txtReadMe"), Qt::Key_Return);
        QTest::keyClicks(Part<QPlainTextEdit>("txtReadMe"), u"two"_s);
        host_->FileNames = {At(u"out.zip"_s)};
        Press("cmdNext");
        QCOMPARE(Entries(), QStringList({u"ReadMe.txt"_s, u"a.rep"_s}));
        QCOMPARE(World::ReadFile(At(u"program\\Temp\\ReadMe.txt"_s)), QByteArray("one\r\ntwo"));
    }

    void aFolderGetsNoReadMeThoughItIsTicked() {
        OpenForAZip();
        Press("ckIncludeReadMe");
        Part<QPlainTextEdit>("txtReadMe")->setPlainText(u"hi"_s);
        Press("OBDontCompress");
        host_->Folders = {At(u"out"_s)};
        Press("cmdNext");
        QCOMPARE(host_->Dialogs[0].Title, u"Browse for folder"_s);
        QCOMPARE(Files::ListFolder(At(u"out\\*"_s), true), QStringList{u"a.rep"_s});
        ExpectCompleted();
        QVERIFY(!window_->isVisible());
    }

    void dialogsThatAreCancelledLeaveThePageOpen() {
        OpenForAZip();
        host_->FileNames = {std::nullopt};
        Press("cmdNext");
        Press("OBDontCompress");
        host_->Folders = {std::nullopt, QString()};
        Press("cmdNext");
        Press("cmdNext");
        QVERIFY(window_->isVisible());
        QVERIFY(host_->Messages.empty());
        QVERIFY(Part<QPushButton>("cmdNext")->isEnabled());
        QCOMPARE(QApplication::focusWidget(), Part<QPushButton>("cmdNext"));
        QVERIFY(Part<QWidget>("picChoices")->isEnabled());
        QVERIFY(!Part<QProgressBar>("ProgressBar1")->isVisible());
    }

    void modsComeWithTheirRecordsWhereThatIsTicked() {
        AddMod();
        Open();
        Press("ckModRecords");
        host_->Folders = {At(u"out"_s)};
        Press("cmdNext");
        QStringList names = Files::ListFolder(At(u"out\\*"_s), true);
        names.sort();
        QCOMPARE(names, QStringList({u"Contra.big"_s, u"Contra.ini"_s}));
    }

    void lettersThatThePageLacksAreAskedFor_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("question marks") << static_cast<int>(Answer::No) << QByteArray("?.rep");
        QTest::newRow("UTF-8") << static_cast<int>(Answer::Yes) << QByteArray("\xE4\xB8\xAD.rep");
        QTest::newRow("cancelled") << static_cast<int>(Answer::Cancel) << QByteArray();
    }

    void lettersThatThePageLacksAreAskedFor() {
        QFETCH(const int, answer);
        QFETCH(const QByteArray, name);
        AddReplay(u"\u4E2D.rep"_s);
        Open();
        Press("OBCompress");
        host_->FileNames = {At(u"out.zip"_s)};
        host_->Answers = {static_cast<Answer>(answer)};
        Press("cmdNext");
        QVERIFY(host_->Messages[0].Text.contains(u"\u4E2D.rep"_s));
        QCOMPARE(host_->Messages[0].Choice, Host::Buttons::YesNoCancel);
        QCOMPARE(host_->Messages[0].Default, Answer::No);
        QCOMPARE(window_->isVisible(), name.isEmpty());
        QCOMPARE(Files::FileExists(At(u"out.zip"_s)), !name.isEmpty());
        if (!name.isEmpty())
            QCOMPARE(World::ReadFile(At(u"out.zip"_s)).mid(30, name.size()), name);
    }

    void manyNamesAreNotAllAskedFor() {
        for (int i = 0; i < 40; ++i)
            AddReplay(u"\u4E2D%1.rep"_s.arg(i));
        Open();
        Press("OBCompress");
        host_->FileNames = {At(u"out.zip"_s)};
        host_->Answers = {Answer::Cancel};
        Press("cmdNext");
        QCOMPARE(host_->Messages[0].Text.count(u'\u4E2D'), 12);
        QVERIFY(host_->Messages[0].Text.contains(u"..."_s));
    }

    void whatFailedIsShownUnderTheToldMessage() {
        AddReplay(u"a.rep"_s);
        AddReplay(u"empty.rep"_s, {});
        Open();
        Press("OBCompress");
        host_->FileNames = {At(u"out.zip"_s)};
        Press("cmdNext");
        ExpectCompleted();
        QVERIFY(window_->isVisible());
        auto* const report = Part<QPlainTextEdit>("txtReport");
        QVERIFY(report->isVisible() && report->isReadOnly());
        QVERIFY(!Part<QWidget>("picChoices")->isVisible());
        const QStringList lines = report->toPlainText().split(u'\n');
        QCOMPARE(lines.size(), 5);
        QVERIFY(lines[1].endsWith(u"empty.rep: left out, a ZIP takes no empty file"_s));
        QVERIFY(lines[4].endsWith(u"a.rep: done"_s));
        QGuiApplication::clipboard()->clear();
        Press("cmdCopy");
        QCOMPARE(QGuiApplication::clipboard()->text(), report->toPlainText());
        QCOMPARE(Part<QPushButton>("cmdNext")->text(), u"Close"_s);
        QVERIFY(!Part<QPushButton>("cmdCancel")->isEnabled());
        Press("cmdNext");
        QVERIFY(!window_->isVisible());
        QCOMPARE(host_->Dialogs.size(), std::size_t{1});
    }

    void escapeClosesTheReport() {
        ExportRecords = {{}};
        Open();
        Press("OBCompress");
        host_->FileNames = {At(u"out.zip"_s)};
        Press("cmdNext");
        QVERIFY(Part<QPlainTextEdit>("txtReport")->isVisible());
        QTest::keyClick(window_.get(), Qt::Key_Escape);
        QVERIFY(!window_->isVisible());
    }

    void aZipThatCantBeWrittenEndsWithTheSameMessage() {
        OpenForAZip();
        host_->FileNames = {At(u"missing\\out.zip"_s)};
        Press("cmdNext");
        ExpectCompleted(); // This is meant.
        QVERIFY(Part<QPlainTextEdit>("txtReport")->toPlainText().contains(u"could not be written"_s));
    }

    void cancelClosesThePage() {
        Open();
        Press("cmdCancel");
        QVERIFY(!window_->isVisible());
    }

    void cancelInTheMiddleEndsTheExport() {
        AddReplay(u"a.rep"_s);
        AddReplay(u"b.rep"_s);
        Open();
        Press("OBCompress");
        host_->FileNames = {At(u"out.zip"_s)};
        bool wasLocked = false;
        host_->OnYield = [&] {
            wasLocked = !Part<QWidget>("picChoices")->isEnabled() && !Part<QPushButton>("cmdNext")->isEnabled() &&
                        Part<QProgressBar>("ProgressBar1")->isVisible();
            Part<QPushButton>("cmdCancel")->click();
        };
        Press("cmdNext");
        QVERIFY(wasLocked);
        QVERIFY(!window_->isVisible());
        QVERIFY(host_->Messages.empty());
        QVERIFY(!Files::FileExists(At(u"out.zip"_s)));
    }

    void theCrossInTheMiddleEndsTheExportToo() {
        AddReplay(u"a.rep"_s);
        Open();
        host_->Folders = {At(u"out"_s)};
        host_->OnYield = [this] {
            window_->close();
            QVERIFY(window_->isVisible());
        };
        Press("cmdNext");
        QVERIFY(!window_->isVisible());
        QVERIFY(!Files::FileExists(At(u"out\\a.rep"_s)));
    }

    void theBarMoves() {
        for (const QString& name : {u"a.rep"_s, u"b.rep"_s, u"c.rep"_s})
            AddReplay(name);
        Open();
        host_->Folders = {At(u"out"_s)};
        std::vector<int> values;
        host_->OnYield = [&] { values.push_back(Part<QProgressBar>("ProgressBar1")->value()); };
        Press("cmdNext");
        QVERIFY(std::ranges::is_sorted(values));
        QCOMPARE(values.front(), 0);
        QCOMPARE(values.back(), 100);
    }
};

WINDOW_TEST(tst_exportrun)

#include "tst_exportrun.moc"
