// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/ListRows.h"

#include "app/cli/Output.h"
#include "core/FileMoves.h"
#include "core/mMain.h"
#include "platform/AnsiCodec.h"
#include "platform/Console.h"
#include "platform/Paths.h"

#include <QJsonDocument>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Kind = Parameter::Kind;

constexpr int WrongUsage = 2;

std::vector<int> PlacesOf(const GameList& list, const QString& name, Qt::CaseSensitivity sensitivity) {
    std::vector<int> places;
    for (int place = 0; place < list.Rows().Count(); ++place) {
        if (list.Rows().Row(place).Text.compare(name, sensitivity) == 0)
            places.push_back(place);
    }
    return places;
}

/// A value of an INI file is one line of eight-bit letters.
void Check(const QString& file, const std::string& option, const QString& text) {
    if (text.contains(u'\n') || text.contains(u'\r'))
        Fail(file, u"%1 holds a line break"_s.arg(QString::fromStdString(option)));
    if (AnsiCodec::Decode(AnsiCodec::Encode(text)) != text)
        Console::WriteError("a letter becomes '?'\t" + QByteArray::fromStdString(option) + '\n');
}

} // namespace

Parameter ListRows::Json() {
    return {Kind::Flag, "--json", "Print a JSON array"};
}

Parameter ListRows::Yes() {
    return {.What = Kind::Flag, .Name = "--yes", .Description = "Nothing is deleted without it", .Required = true};
}

std::vector<Parameter> ListRows::Description() {
    return {{Kind::Option, "--name", "The new name; the old one stays without"},
            {Kind::Option, "--comments", "The new comments; the old ones stay without"}};
}

void ListRows::Print(const QJsonArray& rows) {
    ::Print(QString::fromUtf8(QJsonDocument(rows).toJson(QJsonDocument::Indented)).trimmed());
}

QString ListRows::Shown(const QString& name) {
    return Paths::NameToNative(name);
}

QString ListRows::PathOf(const ListRow& row) {
    return Paths::ToNativeAsGiven(row.Key);
}

int ListRows::PlaceOf(const GameList& list, const QString& name) {
    for (const auto sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        const std::vector<int> places = PlacesOf(list, Paths::NameFromNative(name), sensitivity);
        if (places.size() > 1)
            Fail(name, u"more than one is named so but for case"_s);
        if (!places.empty())
            return places.front();
    }
    Fail(name, u"the game has none of that name"_s);
}

std::optional<int> ListRows::NumberOf(const ListRow& row) {
    return GameFiles::NumberIn(row.Key);
}

int ListRows::PlaceOfNumber(const GameList& shellMaps, int number) {
    for (int place = 0; place < shellMaps.Rows().Count(); ++place) {
        if (NumberOf(shellMaps.Rows().Row(place)) == number)
            return place;
    }
    Fail(QString::number(number), u"the game has no shell map of that number"_s);
}

std::string ListRows::NumberComplaint(const std::string& text) {
    constexpr std::size_t digits = 3;
    const auto isDigit = [](char letter) { return letter >= '0' && letter <= '9'; };
    const bool fits = !text.empty() && text.size() <= digits && std::ranges::all_of(text, isDigit);
    return fits ? std::string() : text + " is no number of up to three digits";
}

void ListRows::Delete(GameList& list, int place) {
    list.Select(place);
    bool done = false;
    list.Delete(done);
    if (!done)
        Fail(PathOf(list.Rows().Row(place)), u"could not be deleted"_s);
}

void ListRows::DeleteNamed(GameList& list, GameIndex game, const QStringList& names) {
    list.List(game, false);
    std::vector<int> places;
    for (const QString& name : names) {
        const int place = PlaceOf(list, name);
        if (std::ranges::find(places, place) == places.end())
            places.push_back(place);
    }
    for (const int place : places)
        Delete(list, place);
}

void ListRows::Describe(const GameFiles::RecordPlace& place, const Arguments& given) {
    const QString file = Paths::ToNative(place.File);
    std::vector<std::pair<QString, QString>> values;
    for (const auto& [option, key] : {std::pair("--name", u"Name"_s), std::pair("--comments", u"Comments"_s)}) {
        if (!given.Has(option))
            continue;
        values.emplace_back(key, given.Text(option));
        Check(file, option, values.back().second);
    }
    if (values.empty()) {
        Report({ErrorNumber::InvalidCall, u"neither --name nor --comments is given"_s});
        EndWith(WrongUsage);
    }
    for (const auto& [key, value] : values) {
        const FileMoves::Rewrite rewrite(place.File);
        if (mMain::INI().WriteINI(place.Section, key, value, place.File) == u"0"_s)
            Fail(file, u"The file could not be written."_s);
    }
}
