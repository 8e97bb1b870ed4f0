// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/CsfCommands.h"

#include "app/cli/CsfFiles.h"
#include "app/cli/Output.h"
#include "app/cli/StreamPlaces.h"
#include "csf/exchange/CsfExchange.h"
#include "platform/Wildcards.h"

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
    const PlaceLock lock(given, "TARGET");
    TableFile file = ReadTableFile(given, "FILE");
    CsfTable& table = file.Table;
    table.Language = given.Number("--language").value_or(table.Language);
    for (const QString& name : given.Texts("--delete"))
        DeleteName(table, ShownPlace(given, "FILE"), name);
    for (const std::string& set : given.Raws("--set"))
        SetValue(given, table, set);
    WriteTableFile(given, std::move(file));
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
             CsfLanguage(),
             EightBit()},
            SaveTable};
}

} // namespace

std::vector<Command> CsfCommands() {
    return {ListCommand(), SaveCommand()};
}
