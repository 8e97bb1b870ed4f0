// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Manual.h"

#include "Places.h"
#include "tests/support/OwnLanguages.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The windows that the sources have forms for.
QStringList Forms() {
    QStringList forms;
    QDir sources(QString::fromUtf8(Places::Sources));
    for (const QString& room : sources.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (room == u"build"_s || room.startsWith(u'.'))
            continue;
        QDirIterator files(sources.filePath(room), {u"frm*.ui"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            forms += QFileInfo(files.next()).baseName();
    }
    forms.sort();
    return forms;
}

/// A page of the manual that the build has made; empty for one that is not there.
QString Built(const QString& page) {
    QFile file(QFileInfo(QString::fromUtf8(Places::Suite)).path() + u"/manual/"_s + page);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The words that a page of the sources has in italics, which are those of menus and buttons.
QStringList NamesIn(const QString& path) {
    static const QRegularExpression code(u"```.*?```|`[^`]*`|\\*\\*[^*]+\\*\\*"_s,
                                         QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression italics(u"\\*([^*]+)\\*"_s);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString text = QString::fromUtf8(file.readAll()).replace(u"***"_s, u"*"_s).remove(code);
    text.replace(u"\n>"_s, u"\n"_s);
    QStringList names;
    for (const QRegularExpressionMatch& match : italics.globalMatch(text))
        names += match.captured(1).simplified();
    return names;
}

/// The texts of one of the program's languages.
QStringList TextsOf(const QString& language) {
    QStringList texts{u"BIG Editor"_s, u"CSF Editor"_s}; // are called so in every language
    for (const QString& line : QString::fromLatin1(OwnLanguages::Bytes(language)).split(u"\r\n"_s))
        texts += line.section(u'=', 1);
    return texts;
}

class Manuals : public testing::Test {
protected:
    void WritePage(const QString& page) const { world_.WriteFile(u"program\\manual\\"_s + page, "page"); }

    void UseLanguage(const QByteArray& text) {
        world_.UseLanguage(text);
        world_.Start();
    }

    [[nodiscard]] QString Place(const QString& page) const { return world_.ProgramFolder() + u"\\manual\\"_s + page; }

private:
    World world_;
};

} // namespace

TEST(ManualPlaces, EveryWindowHasOneAndThereAreNoOthers) {
    QStringList windows;
    for (const Manual::Place& place : Manual::Places())
        windows += place.Window.toString();
    windows.sort();
    EXPECT_EQ(windows, Forms());
}

TEST(ManualPlaces, EachStandsInTheBuiltManualOfEachLanguage) {
    for (const QString& language : {u"en/"_s, u"fr/"_s}) {
        EXPECT_TRUE(Built(language + u"index.html"_s).contains(u"<h1>"_s));
        for (const auto& [window, page, section] : Manual::Places()) {
            const QString text = Built(language + u"%1.html"_s.arg(page));
            EXPECT_TRUE(text.contains(u"<h1>"_s)) << window.toString().toStdString();
            if (section.isEmpty())
                continue;
            EXPECT_TRUE(text.contains(u"<h2 id=\"%1\">"_s.arg(section))) << window.toString().toStdString();
            const QString door = Built(language + u"at/%1.%2.html"_s.arg(page, section));
            EXPECT_TRUE(door.contains(u"url=../%1.html#%2\""_s.arg(page, section))) << window.toString().toStdString();
        }
    }
}

TEST(ManualTexts, MenusAndButtonsAreCalledAsInTheWindows) {
    for (const auto& [folder, language] : {std::pair(u"en"_s, u"English"_s), std::pair(u"fr"_s, u"French"_s)}) {
        const QStringList texts = TextsOf(language);
        const QDir pages(QString::fromUtf8(Places::Sources) + u"/docs/manual/"_s + folder);
        qsizetype names = 0;
        for (const QString& page : pages.entryList({u"*.md"_s})) {
            for (const QString& name : NamesIn(pages.filePath(page))) {
                ++names;
                const auto isOf = [&](const QString& text) { return text.startsWith(name); };
                EXPECT_TRUE(std::ranges::any_of(texts, isOf)) << page.toStdString() << ": " << name.toStdString();
            }
        }
        EXPECT_GT(names, 50);
    }
}

TEST_F(Manuals, AWindowsPlaceIsAPageOrTheDoorToASection) {
    WritePage(u"en\\csf-editor.html"_s);
    WritePage(u"en\\at\\big-editor.version.html"_s);
    EXPECT_EQ(Manual::FileFor(u"frmCSFEditor"), Place(u"en\\csf-editor.html"_s));
    EXPECT_EQ(Manual::FileFor(u"frmVersion"), Place(u"en\\at\\big-editor.version.html"_s));
}

TEST_F(Manuals, AnyOtherWindowHasTheFirstPage) {
    WritePage(u"en\\index.html"_s);
    EXPECT_FALSE(Manual::Has(u"QMessageBox"));
    EXPECT_TRUE(Manual::Has(u"frmVersion"));
    EXPECT_EQ(Manual::FileFor(u"QMessageBox"), Place(u"en\\index.html"_s));
    EXPECT_EQ(Manual::FileFor({}), Place(u"en\\index.html"_s));
}

TEST_F(Manuals, TheLanguageFileNamesItsOwn) {
    WritePage(u"en\\updates.html"_s);
    WritePage(u"fr\\updates.html"_s);
    UseLanguage("[Infos]\r\nManual=fr\r\n");
    EXPECT_EQ(Manual::FileFor(u"frmUpdate"), Place(u"fr\\updates.html"_s));
    UseLanguage("[Infos]\r\nLanguage=Deutsch\r\n");
    EXPECT_EQ(Manual::FileFor(u"frmUpdate"), Place(u"en\\updates.html"_s));
}

TEST_F(Manuals, APageThatItLacksIsShownInEnglish) {
    WritePage(u"en\\updates.html"_s);
    UseLanguage("[Infos]\r\nManual=fr\r\n");
    EXPECT_EQ(Manual::FileFor(u"frmUpdate"), Place(u"en\\updates.html"_s));
}

TEST_F(Manuals, WithoutAManualThereIsNothing) {
    EXPECT_EQ(Manual::FileFor(u"frmUpdate"), std::nullopt);
    EXPECT_EQ(Manual::Folder(), Place({}).chopped(1));
}

TEST_F(Manuals, OfTheOwnLanguagesFrenchHasOne) {
    WritePage(u"en\\updates.html"_s);
    WritePage(u"fr\\updates.html"_s);
    for (const QString& name : OwnLanguages::Names()) {
        UseLanguage(OwnLanguages::Bytes(name));
        const QString folder = name == u"French"_s ? u"fr"_s : u"en"_s;
        EXPECT_EQ(Manual::FileFor(u"frmUpdate"), Place(folder + u"\\updates.html"_s)) << name.toStdString();
    }
}
