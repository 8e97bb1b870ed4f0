// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the page shows, and what can be chosen when.

#include "tests/windows/install/ExportFilesPage.h"

using namespace Qt::StringLiterals;

class tst_exportfiles1 : public ExportFilesPage {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        Begin(u"English"_s);
        ExportRecords.clear();
    }

    void cleanup() { End(); }

    void theListHasAllNamesWithCommasBetween() {
        AddReplay(u"a.rep"_s);
        Open();
        QCOMPARE(Part<QPlainTextEdit>("txtFiles")->toPlainText(), u"a.rep"_s);
        AddReplay(u"b.rep"_s);
        ExportRecords.push_back({.Path = {}, .Name = u"Night"_s, .Kind = FileKind::ShellMap});
        Open();
        QCOMPARE(Part<QPlainTextEdit>("txtFiles")->toPlainText(), u"a.rep, b.rep, Night"_s);
        QVERIFY(Part<QPlainTextEdit>("txtFiles")->isReadOnly());
    }

    void textsAreTheLanguagesOwn_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("English") << u"English"_s
                                 << QStringList{u"Export files"_s,
                                                u"File(s) to export:"_s,
                                                u"Compress the files in ZIP format"_s,
                                                u"Do not compress the files"_s,
                                                u"Include a read-me file:"_s,
                                                u"Open"_s};
        QTest::newRow("French") << u"French"_s << QStringList{u"Exporter des fichiers"_s,
                                                              u"Fichier(s) \u00E0 exporter :"_s,
                                                              u"Compresser les fichiers au format ZIP"_s,
                                                              u"Ne pas compresser les fichiers"_s,
                                                              u"Inclure un fichier ReadMe :"_s,
                                                              u"Ouvrir"_s};
    }

    void textsAreTheLanguagesOwn() {
        QFETCH(const QString, language);
        QFETCH(const QStringList, texts);
        End();
        Begin(language);
        Open();
        QCOMPARE(window_->windowTitle(), u"Brindock 2005"_s);
        QStringList shown{Part<QLabel>("Label1")->text(),
                          Part<QLabel>("lblText")->text(),
                          Part<QRadioButton>("OBCompress")->text(),
                          Part<QRadioButton>("OBDontCompress")->text(),
                          Part<QCheckBox>("ckIncludeReadMe")->text(),
                          Part<QPushButton>("cmdOpen")->text()};
        QCOMPARE(shown.replaceInStrings(u"&"_s, u""_s), texts);
        for (const char* const label : {"Label5", "Label6"})
            QCOMPARE(Part<QLabel>(label)->text(), u"Brindock 2005 v"_s + mMain::VersionText());
    }

    void everyChoiceAndButtonHasALetterOfItsOwn_data() { AddEachLanguage(); }

    void everyChoiceAndButtonHasALetterOfItsOwn() {
        QFETCH(const QString, language);
        End();
        Begin(language);
        Open();
        QString letters;
        for (const char* const name :
             {"cmdNext", "cmdCancel", "OBCompress", "OBDontCompress", "ckModRecords", "ckIncludeReadMe", "cmdOpen"}) {
            const QString text = Part<QAbstractButton>(name)->text();
            QVERIFY2(text.contains(u'&'), qPrintable(text));
            const QChar letter = text[text.indexOf(u'&') + 1].toLower();
            QVERIFY2(!letters.contains(letter), qPrintable(text));
            letters += letter;
        }
    }

    void textIsNeverCut_data() { AddEachLanguage(); }

    void textIsNeverCut() {
        QFETCH(const QString, language);
        End();
        Begin(language);
        Open();
        QCOMPARE(window_->size(), QSize(600, 440));
        QVERIFY(AllTextsHaveRoom(*window_));
    }

    void aReadMeBelongsToAZipOnly() {
        Open();
        QVERIFY(Part<QRadioButton>("OBDontCompress")->isChecked());
        QCOMPARE(Enabled(), u"---"_s);
        Press("OBCompress");
        QCOMPARE(Enabled(), u"R--"_s);
        Press("ckIncludeReadMe");
        QCOMPARE(Enabled(), u"RTO"_s);
        Press("OBDontCompress");
        QCOMPARE(Enabled(), u"---"_s);
        QVERIFY(Part<QCheckBox>("ckIncludeReadMe")->isChecked());
        Press("OBCompress");
        QCOMPARE(Enabled(), u"RTO"_s);
        Press("ckIncludeReadMe");
        QCOMPARE(Enabled(), u"R--"_s);
    }

    void thePreviousButtonHasNoAction() {
        Open();
        QVERIFY(Part<QPushButton>("cmdPrevious")->isVisible());
        QVERIFY(!Part<QPushButton>("cmdPrevious")->isEnabled());
    }

    void recordsOfModsAreForModsAndOffAtFirst() {
        AddReplay(u"a.rep"_s);
        Open();
        QVERIFY(!Part<QCheckBox>("ckModRecords")->isEnabled());
        AddMod();
        Open();
        QVERIFY(Part<QCheckBox>("ckModRecords")->isEnabled());
        QVERIFY(!Part<QCheckBox>("ckModRecords")->isChecked());
    }

    void openReadsAWholeTextFile() {
        OpenForAZip();
        Press("ckIncludeReadMe");
        host_->FileNames = {world_->WriteFile(u"notes.txt"_s, "Line \xC4 1\r\n\xA0two\r\n")};
        Press("cmdOpen");
        QCOMPARE(host_->Dialogs.size(), std::size_t{1});
        QCOMPARE(host_->Dialogs[0].Filter, u"Text Files (*.txt)|*.txt"_s);
        QCOMPARE(host_->Dialogs[0].DefaultName, u"*.txt"_s);
        QCOMPARE(Part<QPlainTextEdit>("txtReadMe")->document()->toRawText(), u"Line \u00C4 1\u2029\u00A0two\u2029"_s);
        host_->FileNames = {At(u"out.zip"_s)};
        Press("cmdNext");
        QCOMPARE(World::ReadFile(At(u"program\\Temp\\ReadMe.txt"_s)), QByteArray("Line \xC4 1\r\n\xA0two\r\n"));
    }

    void openCancelledDoesNothing() {
        OpenForAZip();
        Press("ckIncludeReadMe");
        Part<QPlainTextEdit>("txtReadMe")->setPlainText(u"mine"_s);
        host_->FileNames = {std::nullopt};
        Press("cmdOpen");
        QCOMPARE(Part<QPlainTextEdit>("txtReadMe")->toPlainText(), u"mine"_s);
        QVERIFY(host_->Messages.empty());
    }

    void openRefusesAFileThatIsTooLongOrGone() {
        OpenForAZip();
        Press("ckIncludeReadMe");
        Part<QPlainTextEdit>("txtReadMe")->setPlainText(u"mine"_s);
        host_->FileNames = {world_->WriteFile(u"long.txt"_s, QByteArray(1024 * 1024 + 1, 'x')), At(u"gone.txt"_s)};
        Press("cmdOpen");
        Press("cmdOpen");
        QCOMPARE(host_->Messages.size(), std::size_t{2});
        QVERIFY(host_->Messages[0].Text.contains(u"long.txt is longer than 1 MB"_s));
        QVERIFY(host_->Messages[1].Text.contains(u"gone.txt"_s));
        QCOMPARE(host_->Messages[0].Sign, Host::Icon::Critical);
        QCOMPARE(Part<QPlainTextEdit>("txtReadMe")->toPlainText(), u"mine"_s);
    }

    void enterExportsAndTheKeysReachEveryControl() {
        AddMod();
        Open();
        Press("OBCompress");
        Press("ckIncludeReadMe");
        Part<QPlainTextEdit>("txtFiles")->setFocus();
        QStringList reached;
        for (int tab = 0; tab < 10; ++tab) {
            reached += QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(reached, QStringList({u"txtFiles"_s, u"OBCompress"_s, u"OBDontCompress"_s, u"ckModRecords"_s,
                                       u"ckIncludeReadMe"_s, u"cmdOpen"_s, u"txtReadMe"_s, u"cmdNext"_s, u"cmdCancel"_s,
                                       u"txtFiles"_s}));
        Part<QCheckBox>("ckModRecords")->setFocus();
        host_->FileNames = {std::nullopt};
        QTest::keyClick(Part<QCheckBox>("ckModRecords"), Qt::Key_Return);
        QCOMPARE(host_->Dialogs.size(), std::size_t{1});
    }
};

WINDOW_TEST(tst_exportfiles1)

#include "tst_exportfiles1.moc"
