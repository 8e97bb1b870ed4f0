// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/CsfCommands.h"
#include "app/cli/CsfFiles.h"
#include "app/cli/Output.h"
#include "app/cli/StreamPlaces.h"
#include "csf/exchange/CsfExchange.h"
#include "csf/exchange/KeyedEntries.h"
#include "platform/Console.h"
#include "platform/Paths.h"
#include "platform/Streams.h"

#include <QStringList>

#include <cstddef>
#include <optional>
#include <string>
#include <utility>

using namespace Qt::StringLiterals;
using CsfExchange::Escaped;

namespace {

using Kind = Parameter::Kind;

CsfExchange::Format FormatOfPlace(const Arguments& given, const std::string& place) {
    const QString name = given.Has("--format") ? u'.' + given.Text("--format") : given.Text(place);
    if (const auto format = CsfExchange::FormatOf(name))
        return *format;
    Fail(ShownPlace(given, place), u"--format has to tell what a stream holds"_s);
}

/// Tells on standard error which entries the form of an export could not hold whole.
void WarnOfMissing(const CsfTable& table, const CsfTable& held) {
    QString lines;
    for (std::size_t i = 0; i < table.Strings.size(); ++i) {
        if (i >= held.Strings.size() || held.Strings[i] != table.Strings[i])
            lines += u"not held whole\t"_s + Escaped(table.Strings[i].Name) + u'\n';
    }
    Console::WriteError(Paths::EncodeNative(lines));
}

QChar SeparatorArgument(const Arguments& given) {
    const std::string name = given.Raw("--separator");
    if (name == "semicolon")
        return u';';
    return name == "tab" ? u'\t' : u',';
}

void Export(const Arguments& given) {
    const CsfTable table = ReadTableFile(given, "FILE").Table;
    const CsfExchange::Format format = FormatOfPlace(given, "OUT");
    CsfTable source;
    CsfExchange::Wishes wishes = WishesOf(given);
    wishes.Separator = SeparatorArgument(given);
    if (given.Has("--source")) {
        if (format != CsfExchange::Format::Po)
            Fail(ShownPlace(given, "OUT"), u"only PO has a source"_s);
        source = ReadTableFile(given, "--source").Table;
        wishes.Source = &source;
    }
    const QByteArray bytes = CsfExchange::Export(table, format, wishes);
    WritePlace(given, "OUT", bytes);
    WarnOfMissing(table, CsfExchange::Import(bytes, format, nullptr, wishes));
}

/// Gives the entries of a table what another one holds of them, by name without regard to case and by how often that
/// has come; the others of that one are appended.
void PutInto(CsfTable& table, const CsfTable& changes) {
    const KeyedEntries entries(table, Qt::CaseInsensitive);
    const KeyedEntries changed(changes, Qt::CaseInsensitive);
    for (std::size_t i = 0; i < changes.Strings.size(); ++i) {
        const CsfString& change = changes.Strings[i];
        const auto place = entries.PlaceOf(changed.Keys()[i]);
        if (!place) {
            table.Strings.push_back(change);
            continue;
        }
        CsfString& entry = table.Strings[*place];
        entry.Value = change.Value;
        if (change.Extra)
            entry.Extra = change.Extra;
    }
}

CsfTable ReadForm(const Arguments& given, const std::string& place) {
    const QString shown = ShownPlace(given, place);
    QStringList notes;
    try {
        CsfTable table =
            CsfExchange::Import(ReadPlace(given, place), FormatOfPlace(given, place), &notes, WishesOf(given));
        for (const QString& note : notes)
            Console::WriteError(Paths::EncodeNative(shown + u": "_s + note + u'\n'));
        return table;
    } catch (const RuntimeError& error) {
        Fail(shown, error.Description());
    }
}

void Import(const Arguments& given) {
    TableFile made{.Table = ReadForm(given, "IN"), .Whole = std::nullopt};
    made.Table.Language = given.Number("--language").value_or(made.Table.Language);
    for (const CsfString& entry : made.Table.Strings)
        WarnOfLostLetters(given, entry);
    if (!given.Has("--into"))
        return WriteTableFile(given, std::move(made));
    const PlaceLock lock(given, "TARGET");
    TableFile base = ReadTableFile(given, "--into");
    PutInto(base.Table, made.Table);
    base.Table.Language = given.Number("--language").value_or(base.Table.Language);
    WriteTableFile(given, std::move(base));
}

/// A place for a file whose ending tells the format, or for a stream.
Parameter ExchangeFile(const std::string& name) {
    return {.Name = name, .Description = "- for the standard stream", .Check = [](const std::string& given) {
                const bool isStream = given == "-" || Streams::IsAt(ArgumentPath(given));
                return isStream || CsfExchange::FormatOf(ArgumentText(given))
                           ? std::string()
                           : std::string("must end in .json, .csv, .po or .str");
            }};
}

Parameter Format() {
    return {.What = Kind::Option,
            .Name = "--format",
            .Description = "What a stream holds",
            .Members = {"json", "csv", "po", "str"}};
}

Command ExportCommand() {
    return {"export",
            "Write a table as JSON, CSV, PO or the games' own text; what that can't hold is named",
            {{Kind::Place, "FILE"},
             ExchangeFile("OUT"),
             {Kind::Option, "--source", "Of a PO: the table whose texts were translated", "TABLE"},
             {.What = Kind::Option,
              .Name = "--separator",
              .Description = "Between the fields of a CSV",
              .Members = {"comma", "semicolon", "tab"}},
             CodePageOption(),
             Format(),
             EightBit()},
            Export};
}

Command ImportCommand() {
    return {"import",
            "Make a table of JSON, CSV, PO or the games' own text",
            {ExchangeFile("IN"),
             {Kind::Place, "TARGET"},
             {Kind::Option, "--into", "Change only what IN holds of this table, which TARGET may be", "BASE"},
             CsfLanguage(),
             CodePageOption(),
             Format(),
             EightBit()},
            Import};
}

} // namespace

std::vector<Command> CsfExchangeCommands() {
    return {ExportCommand(), ImportCommand()};
}
