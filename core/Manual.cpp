// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Manual.h"

#include "core/mMain.h"
#include "platform/Files.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<Manual::Place, 17> places{{
    {u"frmToolsMenu", u"start", u"menu"},
    {u"frmAbout", u"start", u"about"},
    {u"frmLeftOut", u"start", u"work"},
    {u"frmProgress", u"start", u"work"},
    {u"frmOptions", u"options", {}},
    {u"frmBigEditor", u"big-editor", {}},
    {u"frmPicture", u"big-editor", u"preview"},
    {u"frmBrowseForFolder", u"big-editor", u"extract"},
    {u"frmSearch", u"big-editor", u"find"},
    {u"frmVersion", u"big-editor", u"version"},
    {u"frmCSFEditor", u"csf-editor", {}},
    {u"frmPersonalFiles", u"personal-files", {}},
    {u"frmAddFiles1", u"adding-files", u"choose"},
    {u"frmAddFiles2", u"adding-files", u"contents"},
    {u"frmAddFiles3", u"adding-files", u"end"},
    {u"frmExportFiles1", u"exporting-files", {}},
    {u"frmUpdate", u"updates", {}},
}};

constexpr Manual::Place firstPage{{}, u"index", {}};

/// The folder of the language's own manual; empty where its file names none.
QString OwnLanguage() {
    return mMain::INI().ReadINI(u"Infos"_s, u"Manual"_s, mMain::ProgramFolder + u'\\' + mMain::LanguageFileName);
}

// What stands behind a # is lost on its way to the browser: each section has a page that leads to it.
QString NameOf(const Manual::Place& place) {
    if (place.Section.isEmpty())
        return u"%1.html"_s.arg(place.Page);
    return u"at\\%1.%2.html"_s.arg(place.Page, place.Section);
}

} // namespace

std::span<const Manual::Place> Manual::Places() {
    return places;
}

bool Manual::Has(QStringView window) {
    return std::ranges::find(places, window, &Place::Window) != places.end();
}

QString Manual::Folder() {
    return ProgramFolders::ProgramFolder + u"\\manual"_s;
}

std::optional<QString> Manual::FileFor(QStringView window) {
    const auto* const found = std::ranges::find(places, window, &Place::Window);
    const QString name = NameOf(found != places.end() ? *found : firstPage);
    for (const QString& language : {OwnLanguage(), u"en"_s}) {
        const QString file = Folder() + u'\\' + language + u'\\' + name;
        if (!language.isEmpty() && Files::FileExists(file))
            return file;
    }
    return std::nullopt;
}
