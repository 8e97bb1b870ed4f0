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
#include "platform/WriteAside.h"

#include <QStringList>

#include <CLI/CLI.hpp>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;
using CsfExchange::Escaped;

namespace {

struct Options {
    std::string File;
    std::string Other;
    std::string Theirs;
    std::string Target;
    std::vector<std::string> Set;
    std::vector<std::string> Deleted;
    int Language = 0;
    qint64 Maximum = 0;
    bool Json = false;
};

using SharedOptions = std::shared_ptr<Options>;

/// The exit code for "yes, there is something".
constexpr int Findings = 1;

void PrintLine(const QString& word, const QStringList& texts) {
    QString line = word;
    for (const QString& text : texts)
        line += u'\t' + Escaped(text);
    Print(line);
}

void List(const Options& options) {
    const CsfTable table = ReadTableArgument(options.File);
    if (options.Json) {
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

void SaveTable(const Options& options, bool languageGiven) {
    CsfTable table = ReadTableArgument(options.File);
    if (languageGiven)
        table.Language = options.Language;
    for (const std::string& name : options.Deleted)
        DeleteName(table, Paths::ToNative(ArgumentPath(options.File)), ArgumentText(name));
    for (const std::string& given : options.Set)
        SetValue(table, given);
    WriteTableFile(ArgumentPath(options.Target), table);
}

CsfExchange::Format FormatOfArgument(const std::string& argument) {
    return CsfExchange::FormatOf(ArgumentText(argument)).value_or(CsfExchange::Format::Json);
}

void Export(const Options& options) {
    const CsfTable table = ReadTableArgument(options.File);
    WriteWhole(ArgumentPath(options.Target), CsfExchange::Export(table, FormatOfArgument(options.Target)));
}

void Import(const Options& options, bool languageGiven) {
    const QString path = ArgumentPath(options.File);
    const QByteArray bytes = ReadWhole(path);
    CsfTable table;
    try {
        table = CsfExchange::Import(bytes, FormatOfArgument(options.File));
    } catch (const RuntimeError& error) {
        Fail(Paths::ToNative(path), error.Description());
    }
    if (languageGiven)
        table.Language = options.Language;
    for (const CsfString& entry : table.Strings)
        WarnOfLostLetters(entry);
    WriteTableFile(ArgumentPath(options.Target), table);
}

void Diff(const Options& options) {
    const CsfTable before = ReadTableArgument(options.File);
    const CsfTable after = ReadTableArgument(options.Other);
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

void Merge(const Options& options) {
    const CsfTable base = ReadTableArgument(options.File);
    const CsfTable ours = ReadTableArgument(options.Other);
    const CsfTable theirs = ReadTableArgument(options.Theirs);
    CsfMerged merged = CsfCompare::Merge(base, ours, theirs);
    WriteTableFile(ArgumentPath(options.Target), merged.Table);
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

void Check(const Options& options) {
    const CsfTable table = ReadTableArgument(options.File);
    CsfTable other;
    CsfCompare::Checks checks{nullptr, options.Maximum};
    if (!options.Other.empty()) {
        other = ReadTableArgument(options.Other);
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

/// An argument whose ending tells the format.
CLI::Option* AddExchangeFile(CLI::App* command, const std::string& name, std::string& file) {
    return command->add_option(name, file)->required()->check([](const std::string& given) {
        return CsfExchange::FormatOf(ArgumentText(given)) ? std::string()
                                                          : std::string("must end in .json, .csv or .po");
    });
}

CLI::Option* AddLanguage(CLI::App* command, const SharedOptions& options) {
    return command
        ->add_option("--language", options->Language, "0 English, 2 German, 3 French, 8 Korean; a byte is stored")
        ->check(CLI::Range(0, 255));
}

void AddReading(CLI::App* csf, const SharedOptions& options) {
    CLI::App* list = csf->add_subcommand(
        "list",
        "Print the language, then an entry a line: name, tab, value, with \\n, \\t and \\\\ for what they stand for");
    list->add_option("FILE", options->File)->required();
    list->add_flag("--json", options->Json, "Print JSON");
    list->callback([options] { List(*options); });

    CLI::App* diff =
        csf->add_subcommand("diff", "Print what B added, removed and changed; ends with 1 when they differ");
    diff->add_option("A", options->File)->required();
    diff->add_option("B", options->Other)->required();
    diff->callback([options] { Diff(*options); });

    CLI::App* check =
        csf->add_subcommand("check", "Print what looks wrong in a table; ends with 1 when something does");
    check->add_option("FILE", options->File)->required();
    check->add_option("--against", options->Other, "Compare the printf-style placeholders with this table's")
        ->type_name("OTHER");
    check->add_option("--max", options->Maximum, "Report values of more than N characters")
        ->type_name("N")
        ->check(CLI::PositiveNumber);
    check->callback([options] { Check(*options); });
}

void AddSave(CLI::App* csf, const SharedOptions& options) {
    CLI::App* save = csf->add_subcommand("save", "Write a table anew, in its order: deletes first, then sets");
    save->add_option("FILE", options->File)->required();
    save->add_option("TARGET", options->Target, "May be FILE itself")->required();
    save->add_option(
            "--set", options->Set,
            "NAME=VALUE: give every entry of that name the value, or add one; \\n, \\t and \\\\ as list prints them")
        ->type_name("NAME=VALUE")
        ->check([](const std::string& given) {
            return given.find('=') == std::string::npos ? std::string("must be NAME=VALUE") : std::string();
        });
    save->add_option("--delete", options->Deleted, "Leave out the entries of that name")->type_name("NAME");
    const CLI::Option* language = AddLanguage(save, options);
    save->callback([options, language] { SaveTable(*options, language->count() > 0); });
}

void AddExchange(CLI::App* csf, const SharedOptions& options) {
    CLI::App* out = csf->add_subcommand("export", "Write a table as JSON, CSV or PO");
    out->add_option("FILE", options->File)->required();
    AddExchangeFile(out, "OUT", options->Target);
    out->callback([options] { Export(*options); });

    CLI::App* in = csf->add_subcommand("import", "Make a table of JSON, CSV or PO");
    AddExchangeFile(in, "IN", options->File);
    in->add_option("TARGET", options->Target)->required();
    const CLI::Option* language = AddLanguage(in, options);
    in->callback([options, language] { Import(*options, language->count() > 0); });
}

void AddMerge(CLI::App* csf, const SharedOptions& options) {
    CLI::App* merge = csf->add_subcommand(
        "merge", "Merge two tables that come from one; conflicts keep ours, are listed and end with 1");
    merge->add_option("BASE", options->File)->required();
    merge->add_option("OURS", options->Other)->required();
    merge->add_option("THEIRS", options->Theirs)->required();
    merge->add_option("TARGET", options->Target)->required();
    merge->callback([options] { Merge(*options); });
}

} // namespace

void AddCsfCommands(CLI::App& commands) {
    CLI::App* csf = commands.add_subcommand("csf", "CSF string tables")->require_subcommand(1);
    const auto options = std::make_shared<Options>();
    AddReading(csf, options);
    AddSave(csf, options);
    AddExchange(csf, options);
    AddMerge(csf, options);
}
