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
#include <gtest/gtest.h>

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
