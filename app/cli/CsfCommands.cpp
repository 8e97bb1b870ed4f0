// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/CsfCommands.h"

#include "app/cli/CsfFiles.h"
#include "app/cli/Output.h"
#include "csf/exchange/CsfExchange.h"
#include "platform/AnsiCodec.h"
#include "platform/Console.h"
#include "platform/File.h"
#include "platform/Paths.h"
#include "platform/SaveLock.h"
#include "platform/Wildcards.h"
#include "platform/WriteAside.h"

#include <QHash>
#include <QStringList>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;
using CsfExchange::Escaped;

namespace {

using Kind = Parameter::Kind;

void List(const Arguments& given) {
    const CsfTable table = ReadTableFile(given, "FILE").Table;
    if (given.Has("--json")) {
        Print(QString::fromUtf8(CsfExchange::Export(table, CsfExchange::Format::Json)).trimmed());
        return;
    }
    Print(u"language %1"_s.arg(table.Language));
    for (const CsfString& entry : table.Strings)
        Print(Escaped(entry.Name) + u'\t' + Escaped(entry.Value));
}

/// The places of the entries of that name; where no name is spelt so, of those that are without regard to case, as the
/// games look labels up.
std::vector<std::size_t> Named(const CsfTable& table, const QString& name) {
    std::vector<std::size_t> places;
    for (const auto sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        for (std::size_t i = 0; i < table.Strings.size(); ++i) {
            if (table.Strings[i].Name.compare(name, sensitivity) == 0)
                places.push_back(i);
        }
        if (!places.empty())
            break;
    }
    return places;
}

/// The same for a pattern with * and ?, where no name is spelt so.
std::vector<std::size_t> Fitting(const CsfTable& table, const QString& pattern) {
    std::vector<std::size_t> places = Named(table, pattern);
    if (!places.empty() || !IsPattern(pattern))
        return places;
    for (std::size_t i = 0; i < table.Strings.size(); ++i) {
        if (FitsPattern(table.Strings[i].Name, pattern))
            places.push_back(i);
    }
    return places;
}

void DeleteName(CsfTable& table, const QString& file, const QString& name) {
    std::vector<std::size_t> places = Fitting(table, name);
    if (places.empty())
        Fail(file, u"no entry is named %1"_s.arg(name));
    for (; !places.empty(); places.pop_back())
        table.Strings.erase(table.Strings.begin() + static_cast<std::ptrdiff_t>(places.back()));
}

bool FitsEightBits(const QString& text) {
    return AnsiCodec::Decode(AnsiCodec::Encode(text)) == text;
}

/// Tells on standard error when an entry loses a letter: names are of eight bits, and texts too where that was asked.
void WarnOfLostLetters(const Arguments& given, const CsfString& entry) {
    if (!FitsEightBits(entry.Name) || (given.Has(EightBit().Name) && !FitsEightBits(entry.Value)))
        Console::WriteError(Paths::EncodeNative(u"a letter becomes '?'\t"_s + Escaped(entry.Name) + u'\n'));
}

/// Where the "=" behind the name stands: a name's own one has a backslash before it.
std::string::size_type SplitOf(const std::string& set) {
    auto split = set.find('=');
    while (split != std::string::npos && split > 0 && set[split - 1] == '\\')
        split = set.find('=', split + 1);
    return split;
}

/// Every entry of that name gets the value; without any, one is appended.
void SetValue(const Arguments& given, CsfTable& table, const std::string& set) {
    const auto split = SplitOf(set);
    const QString name = ArgumentText(set.substr(0, split)).replace(u"\\="_s, u"="_s);
    const QString value = CsfExchange::Unescaped(ArgumentText(set.substr(split + 1)));
    WarnOfLostLetters(given, {value, name});
    const std::vector<std::size_t> places = Named(table, name);
    for (const std::size_t place : places)
        table.Strings[place].Value = value;
    if (places.empty())
        table.Strings.push_back({value, name});
}

void SaveTable(const Arguments& given) {
    const SaveLock lock(given.Path("TARGET"));
    TableFile file = ReadTableFile(given, "FILE");
    CsfTable& table = file.Table;
    table.Language = given.Number("--language").value_or(table.Language);
    for (const QString& name : given.Texts("--delete"))
        DeleteName(table, Paths::ToNative(given.Path("FILE")), name);
    for (const std::string& set : given.Raws("--set"))
        SetValue(given, table, set);
    WriteTableFile(given, file);
}

CsfExchange::Format FormatOfArgument(const std::string& argument) {
    return CsfExchange::FormatOf(ArgumentText(argument)).value_or(CsfExchange::Format::Json);
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
    const CsfExchange::Format format = FormatOfArgument(given.Raw("OUT"));
    const QByteArray bytes = CsfExchange::Export(table, format, SeparatorArgument(given));
    WriteWhole(given.Path("OUT"), bytes);
    WarnOfMissing(table, CsfExchange::Import(bytes, format));
}

/// Gives the entries of a table what another one holds of them, by name without regard to case and by how often that
/// has come; the others of that one are appended.
void PutInto(CsfTable& table, const CsfTable& changes) {
    QHash<std::pair<QString, int>, std::size_t> places;
    QHash<QString, int> seen;
    for (std::size_t i = 0; i < table.Strings.size(); ++i) {
        const QString name = table.Strings[i].Name.toCaseFolded();
        places.insert({name, seen[name]++}, i);
    }
    seen.clear();
    for (const CsfString& change : changes.Strings) {
        const QString name = change.Name.toCaseFolded();
        const std::size_t place = places.value({name, seen[name]++}, table.Strings.size());
        if (place == table.Strings.size()) {
            table.Strings.push_back(change);
            continue;
        }
        CsfString& entry = table.Strings[place];
        entry.Value = change.Value;
        if (change.Extra)
            entry.Extra = change.Extra;
    }
}

void Import(const Arguments& given) {
    const QString path = given.Path("IN");
    const QByteArray bytes = ReadWhole(path);
    TableFile made;
    CsfTable& table = made.Table;
    QStringList notes;
    try {
        table = CsfExchange::Import(bytes, FormatOfArgument(given.Raw("IN")), &notes);
    } catch (const RuntimeError& error) {
        Fail(Paths::ToNative(path), error.Description());
    }
    for (const QString& note : notes)
        Console::WriteError(Paths::EncodeNative(Paths::ToNative(path) + u": "_s + note + u'\n'));
    table.Language = given.Number("--language").value_or(table.Language);
    for (const CsfString& entry : table.Strings)
        WarnOfLostLetters(given, entry);
    if (!given.Has("--into"))
        return WriteTableFile(given, made);
    const SaveLock lock(given.Path("TARGET"));
    TableFile base = ReadTableFile(given, "--into");
    PutInto(base.Table, table);
    base.Table.Language = given.Number("--language").value_or(base.Table.Language);
    WriteTableFile(given, base);
}

/// A place for a file whose ending tells the format.
Parameter ExchangeFile(const std::string& name) {
    return {.Name = name, .Check = [](const std::string& given) {
                return CsfExchange::FormatOf(ArgumentText(given)) ? std::string()
                                                                  : std::string("must end in .json, .csv, .po or .str");
            }};
}

Parameter Language() {
    return {.What = Kind::Number,
            .Name = "--language",
            .Description = "0 English, 2 German, 3 French, 8 Korean; a byte is stored",
            .Least = 0,
            .Most = 255};
}

std::string ComplaintAboutSet(const std::string& given) {
    return SplitOf(given) == std::string::npos ? "must be NAME=VALUE" : "";
}

Command ListCommand() {
    return {"list",
            "Print the language, then an entry a line: name, tab, value, with escapes like \\n for what no line holds",
            {{Kind::Place, "FILE"}, {Kind::Flag, "--json", "Print JSON"}, EightBit()},
            List};
}

Command SaveCommand() {
    return {"save",
            "Write a table anew, in its order: deletes first, then sets",
            {{Kind::Place, "FILE"},
             {Kind::Place, "TARGET", "May be FILE itself"},
             {.What = Kind::List,
              .Name = "--set",
              .Description = "NAME=VALUE: give every entry of that name the value, or add one; a name's own = is \\=; "
                             "\\n, \\t and \\\\ as list "
                             "prints them",
              .TypeName = "NAME=VALUE",
              .Check = ComplaintAboutSet},
             {Kind::List, "--delete", "Leave out the entries of that name, or of those that fit a pattern with * and ?",
              "NAME"},
             Language(),
             EightBit()},
            SaveTable};
}

} // namespace

std::vector<Command> CsfCommands() {
    return {ListCommand(),
            SaveCommand(),
            {"export",
             "Write a table as JSON, CSV, PO or the games' own text; what that can't hold is named",
             {{Kind::Place, "FILE"}, ExchangeFile("OUT"), EightBit()},
             Export},
            {"import",
             "Make a table of JSON, CSV, PO or the games' own text",
             {ExchangeFile("IN"),
              {Kind::Place, "TARGET"},
              {Kind::Option, "--into", "Change only what IN holds of this table, which TARGET may be", "BASE"},
              Language(),
              EightBit()},
             Import}};
}
