// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/CsfCommands.h"

#include "app/cli/CsfFiles.h"
#include "app/cli/Output.h"
#include "csf/exchange/CsfCompare.h"
#include "csf/exchange/CsfExchange.h"
#include "platform/AnsiCodec.h"
#include "platform/Console.h"
#include "platform/File.h"
#include "platform/Paths.h"
#include "platform/SaveLock.h"
#include "platform/WriteAside.h"

#include <QStringList>

#include <cstddef>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;
using CsfExchange::Escaped;

namespace {

using Kind = Parameter::Kind;

/// The exit code for "yes, there is something".
constexpr int Findings = 1;

void PrintLine(const QString& word, const QStringList& texts) {
    QString line = word;
    for (const QString& text : texts)
        line += u'\t' + Escaped(text);
    Print(line);
}

void List(const Arguments& given) {
    const CsfTable table = ReadTableArgument(given.Raw("FILE"));
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

void DeleteName(CsfTable& table, const QString& file, const QString& name) {
    std::vector<std::size_t> places = Named(table, name);
    if (places.empty())
        Fail(file, u"no entry is named %1"_s.arg(name));
    for (; !places.empty(); places.pop_back())
        table.Strings.erase(table.Strings.begin() + static_cast<std::ptrdiff_t>(places.back()));
}

/// Tells on standard error when an entry loses a letter, as the games' texts are of eight bits here.
void WarnOfLostLetters(const CsfString& entry) {
    const auto loses = [](const QString& text) { return AnsiCodec::Decode(AnsiCodec::Encode(text)) != text; };
    if (loses(entry.Name) || loses(entry.Value))
        Console::WriteError(Paths::EncodeNative(u"a letter becomes '?'\t"_s + Escaped(entry.Name) + u'\n'));
}

/// Every entry of that name gets the value; without any, one is appended.
void SetValue(CsfTable& table, const std::string& given) {
    const auto split = given.find('=');
    const QString name = ArgumentText(given.substr(0, split));
    const QString value = CsfExchange::Unescaped(ArgumentText(given.substr(split + 1)));
    WarnOfLostLetters({value, name});
    const std::vector<std::size_t> places = Named(table, name);
    for (const std::size_t place : places)
        table.Strings[place].Value = value;
    if (places.empty())
        table.Strings.push_back({value, name});
}

void SaveTable(const Arguments& given) {
    const SaveLock lock(given.Path("TARGET"));
    CsfTable table = ReadTableArgument(given.Raw("FILE"));
    table.Language = given.Number("--language").value_or(table.Language);
    for (const QString& name : given.Texts("--delete"))
        DeleteName(table, Paths::ToNative(given.Path("FILE")), name);
    for (const std::string& set : given.Raws("--set"))
        SetValue(table, set);
    WriteTableFile(given.Path("TARGET"), table);
}

CsfExchange::Format FormatOfArgument(const std::string& argument) {
    return CsfExchange::FormatOf(ArgumentText(argument)).value_or(CsfExchange::Format::Json);
}

void Export(const Arguments& given) {
    const CsfTable table = ReadTableArgument(given.Raw("FILE"));
    WriteWhole(given.Path("OUT"), CsfExchange::Export(table, FormatOfArgument(given.Raw("OUT"))));
}

void Import(const Arguments& given) {
    const QString path = given.Path("IN");
    const QByteArray bytes = ReadWhole(path);
    CsfTable table;
    try {
        table = CsfExchange::Import(bytes, FormatOfArgument(given.Raw("IN")));
    } catch (const RuntimeError& error) {
        Fail(Paths::ToNative(path), error.Description());
    }
    table.Language = given.Number("--language").value_or(table.Language);
    for (const CsfString& entry : table.Strings)
        WarnOfLostLetters(entry);
    WriteTableFile(given.Path("TARGET"), table);
}

void Diff(const Arguments& given) {
    const CsfTable before = ReadTableArgument(given.Raw("A"));
    const CsfTable after = ReadTableArgument(given.Raw("B"));
    const auto differences = CsfCompare::Diff(before, after);
    const bool sameLanguage = before.Language == after.Language;
    if (!sameLanguage)
        PrintLine(u"language"_s, {QString::number(before.Language), QString::number(after.Language)});
    for (const CsfDifference& difference : differences) {
        if (difference.What == CsfDifference::Kind::Added)
            PrintLine(u"added"_s, {difference.Name, difference.After});
        else if (difference.What == CsfDifference::Kind::Removed)
            PrintLine(u"removed"_s, {difference.Name, difference.Before});
        else
            PrintLine(u"changed"_s, {difference.Name, difference.Before, difference.After});
    }
    if (!sameLanguage || !differences.empty())
        EndWith(Findings);
}

void Merge(const Arguments& given) {
    const SaveLock lock(given.Path("TARGET"));
    const CsfTable base = ReadTableArgument(given.Raw("BASE"));
    const CsfTable ours = ReadTableArgument(given.Raw("OURS"));
    const CsfTable theirs = ReadTableArgument(given.Raw("THEIRS"));
    CsfMerged merged = CsfCompare::Merge(base, ours, theirs);
    WriteTableFile(given.Path("TARGET"), merged.Table);
    QString conflicts;
    if (merged.LanguageConflict)
        conflicts += u"language\tchanged in both\n"_s;
    for (const CsfConflict& conflict : merged.Conflicts)
        conflicts += u"conflict\t"_s + Escaped(conflict.Name) + u'\t' + conflict.Reason + u'\n';
    if (conflicts.isEmpty())
        return;
    Console::WriteError(Paths::EncodeNative(conflicts));
    EndWith(Findings);
}

void Check(const Arguments& given) {
    const CsfTable table = ReadTableArgument(given.Raw("FILE"));
    CsfTable other;
    CsfCompare::Checks checks{nullptr, given.Number("--max").value_or(0)};
    if (given.Has("--against")) {
        other = ReadTableArgument(given.Raw("--against"));
        checks.Against = &other;
    }
    const auto findings = CsfCompare::Check(table, checks);
    for (const CsfFinding& finding : findings) {
        if (finding.What == CsfFinding::Kind::Duplicate)
            PrintLine(u"duplicate"_s, {finding.Name});
        else if (finding.What == CsfFinding::Kind::Empty)
            PrintLine(u"empty"_s, {finding.Name});
        else if (finding.What == CsfFinding::Kind::Placeholders)
            PrintLine(u"placeholders"_s, {finding.Name, finding.Here, finding.There});
        else
            PrintLine(u"long"_s, {finding.Name, finding.Here});
    }
    if (!findings.empty())
        EndWith(Findings);
}

/// A place for a file whose ending tells the format.
Parameter ExchangeFile(const std::string& name) {
    return {.Name = name, .Check = [](const std::string& given) {
                return CsfExchange::FormatOf(ArgumentText(given)) ? std::string()
                                                                  : std::string("must end in .json, .csv or .po");
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
    return given.find('=') == std::string::npos ? "must be NAME=VALUE" : "";
}

Command ListCommand() {
    return {
        "list",
        "Print the language, then an entry a line: name, tab, value, with \\n, \\t and \\\\ for what they stand for",
        {{Kind::Place, "FILE"}, {Kind::Flag, "--json", "Print JSON"}},
        List};
}

Command SaveCommand() {
    return {
        "save",
        "Write a table anew, in its order: deletes first, then sets",
        {{Kind::Place, "FILE"},
         {Kind::Place, "TARGET", "May be FILE itself"},
         {.What = Kind::List,
          .Name = "--set",
          .Description = "NAME=VALUE: give every entry of that name the value, or add one; \\n, \\t and \\\\ as list "
                         "prints them",
          .TypeName = "NAME=VALUE",
          .Check = ComplaintAboutSet},
         {Kind::List, "--delete", "Leave out the entries of that name", "NAME"},
         Language()},
        SaveTable};
}

Command CheckCommand() {
    return {"check",
            "Print what looks wrong in a table; ends with 1 when something does",
            {{Kind::Place, "FILE"},
             {Kind::Option, "--against", "Compare the printf-style placeholders with this table's", "OTHER"},
             {.What = Kind::Number,
              .Name = "--max",
              .Description = "Report values of more than N characters",
              .TypeName = "N",
              .Least = 1}},
            Check};
}

} // namespace

std::vector<Command> CsfCommands() {
    return {ListCommand(),
            {"diff",
             "Print what B added, removed and changed; ends with 1 when they differ",
             {{Kind::Place, "A"}, {Kind::Place, "B"}},
             Diff},
            CheckCommand(),
            SaveCommand(),
            {"export", "Write a table as JSON, CSV or PO", {{Kind::Place, "FILE"}, ExchangeFile("OUT")}, Export},
            {"import",
             "Make a table of JSON, CSV or PO",
             {ExchangeFile("IN"), {Kind::Place, "TARGET"}, Language()},
             Import},
            {"merge",
             "Merge two tables that come from one; conflicts keep ours, are listed and end with 1",
             {{Kind::Place, "BASE"}, {Kind::Place, "OURS"}, {Kind::Place, "THEIRS"}, {Kind::Place, "TARGET"}},
             Merge}};
}
