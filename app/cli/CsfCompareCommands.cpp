// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/CsfCommands.h"
#include "app/cli/CsfFiles.h"
#include "app/cli/Output.h"
#include "app/cli/StreamPlaces.h"
#include "csf/exchange/CsfCompare.h"
#include "csf/exchange/CsfExchange.h"
#include "platform/Console.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <utility>

using namespace Qt::StringLiterals;
using CsfExchange::Escaped;

namespace {

using Kind = Parameter::Kind;

constexpr int Findings = 1;
constexpr int Trouble = 2;

/// A command whose exit code 1 tells of what was found: what it can't do ends with 2.
std::function<void(const Arguments&)> Comparing(void (*run)(const Arguments&)) {
    return [run](const Arguments& given) {
        try {
            run(given);
        } catch (const RuntimeError& error) {
            Report(error);
            EndWith(Trouble);
        }
    };
}

QString Line(const QString& word, const QStringList& texts) {
    QString line = word;
    for (const QString& text : texts)
        line += u'\t' + Escaped(text);
    return line;
}

void PrintJson(const QJsonValue& value) {
    const QJsonDocument document = value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    Print(QString::fromUtf8(document.toJson(QJsonDocument::Indented)).trimmed());
}

QString Word(CsfDifference::Kind kind) {
    switch (kind) {
    case CsfDifference::Kind::Added:
        return u"added"_s;
    case CsfDifference::Kind::Removed:
        return u"removed"_s;
    case CsfDifference::Kind::Changed:
        return u"changed"_s;
    case CsfDifference::Kind::Extra:
        break;
    }
    return u"extra"_s;
}

void PrintDifferences(const std::vector<CsfDifference>& differences) {
    for (const CsfDifference& difference : differences) {
        QStringList texts{difference.Name};
        if (difference.What != CsfDifference::Kind::Added)
            texts += difference.Before;
        if (difference.What != CsfDifference::Kind::Removed)
            texts += difference.After;
        Print(Line(Word(difference.What), texts));
    }
}

QJsonArray ToJson(const std::vector<CsfDifference>& differences) {
    QJsonArray rows;
    for (const CsfDifference& difference : differences) {
        QJsonObject row{{u"kind"_s, Word(difference.What)}, {u"name"_s, difference.Name}};
        if (difference.What != CsfDifference::Kind::Added)
            row.insert(u"before"_s, difference.Before);
        if (difference.What != CsfDifference::Kind::Removed)
            row.insert(u"after"_s, difference.After);
        rows.append(row);
    }
    return rows;
}

void Diff(const Arguments& given) {
    const TableFile first = ReadTableFile(given, "A");
    const TableFile second = ReadTableFile(given, "B");
    const CsfTable& before = first.Table;
    const CsfTable& after = second.Table;
    const auto differences = CsfCompare::Diff(before, after);
    const bool haveLanguage = first.HasLanguage && second.HasLanguage;
    const bool sameLanguage = !haveLanguage || before.Language == after.Language;
    const bool sameOrder = given.Has("--ignore-order") || CsfCompare::HaveSameOrder(before, after);
    if (given.Has("--json")) {
        PrintJson(QJsonObject{{u"languages"_s, QJsonArray{before.Language, after.Language}},
                              {u"sameOrder"_s, sameOrder},
                              {u"differences"_s, ToJson(differences)}});
    } else {
        if (!sameLanguage)
            Print(Line(u"language"_s, {QString::number(before.Language), QString::number(after.Language)}));
        PrintDifferences(differences);
        if (!sameOrder)
            Print(u"order"_s);
    }
    if (!sameLanguage || !sameOrder || !differences.empty())
        EndWith(Findings);
}

void TellConflicts(const CsfMerged& merged, bool asJson) {
    if (asJson) {
        QJsonArray rows;
        for (const CsfConflict& conflict : merged.Conflicts)
            rows.append(QJsonObject{{u"name"_s, conflict.Name},
                                    {u"reason"_s, conflict.Reason},
                                    {u"ours"_s, conflict.Ours},
                                    {u"theirs"_s, conflict.Theirs}});
        return PrintJson(QJsonObject{{u"conflicts"_s, rows}, {u"languageConflict"_s, merged.LanguageConflict}});
    }
    QString lines;
    if (merged.LanguageConflict)
        lines += u"language\tchanged in both\n"_s;
    for (const CsfConflict& conflict : merged.Conflicts)
        lines += Line(u"conflict"_s, {conflict.Name, conflict.Reason, conflict.Ours, conflict.Theirs}) + u'\n';
    Console::WriteError(Paths::EncodeNative(lines));
}

void Merge(const Arguments& given) {
    if (given.Has("--json") && given.Raw("TARGET") == "-")
        Fail(ShownPlace(given, "TARGET"), u"takes the table or the conflicts, not both"_s);
    const PlaceLock lock(given, "TARGET");
    const CsfTable base = ReadTableOrNothing(given, "BASE").Table;
    TableFile ours = ReadTableFile(given, "OURS");
    const CsfTable theirs = ReadTableFile(given, "THEIRS").Table;
    const auto side = given.Has("--theirs") ? CsfCompare::Side::Theirs : CsfCompare::Side::Ours;
    CsfMerged merged = CsfCompare::Merge(base, ours.Table, theirs, side);
    ours.Table = merged.Table;
    WriteTableFile(given, std::move(ours));
    TellConflicts(merged, given.Has("--json"));
    const bool isChosen = given.Has("--theirs") || given.Has("--ours");
    if (!isChosen && (merged.LanguageConflict || !merged.Conflicts.empty()))
        EndWith(Findings);
}

QString Word(CsfFinding::Kind kind) {
    switch (kind) {
    case CsfFinding::Kind::Duplicate:
        return u"duplicate"_s;
    case CsfFinding::Kind::Empty:
        return u"empty"_s;
    case CsfFinding::Kind::Placeholders:
        return u"placeholders"_s;
    case CsfFinding::Kind::Long:
        return u"long"_s;
    case CsfFinding::Kind::Letters:
        return u"letters"_s;
    case CsfFinding::Kind::ExtraData:
        return u"extra-data"_s;
    case CsfFinding::Kind::Missing:
        return u"missing"_s;
    case CsfFinding::Kind::Extra:
        return u"extra"_s;
    case CsfFinding::Kind::Untranslated:
        break;
    }
    return u"untranslated"_s;
}

/// What a finding tells besides the name.
QStringList Details(const CsfFinding& finding) {
    if (finding.What == CsfFinding::Kind::Placeholders)
        return {finding.Here, finding.There};
    return finding.What == CsfFinding::Kind::Long ? QStringList{finding.Here} : QStringList();
}

void PrintFindings(const std::vector<CsfFinding>& findings) {
    for (const CsfFinding& finding : findings)
        Print(Line(Word(finding.What), QStringList{finding.Name} + Details(finding)));
}

QJsonObject ToJson(const CsfFinding& finding) {
    QJsonObject row{{u"kind"_s, Word(finding.What)}, {u"name"_s, finding.Name}};
    if (finding.What == CsfFinding::Kind::Placeholders)
        row.insert(u"against"_s, finding.There);
    if (!Details(finding).isEmpty())
        row.insert(u"here"_s, finding.Here);
    return row;
}

void Check(const Arguments& given) {
    const CsfTable table = ReadTableFile(given, "FILE").Table;
    CsfTable other;
    CsfCompare::Checks checks{
        .Against = nullptr, .Maximum = given.Number("--max").value_or(0), .EightBits = !given.Has(EightBit().Name)};
    if (given.Has("--against")) {
        other = ReadTableFile(given, "--against").Table;
        checks.Against = &other;
    }
    const auto findings = CsfCompare::Check(table, checks);
    QJsonArray rows;
    for (const CsfFinding& finding : findings)
        rows.append(ToJson(finding));
    if (given.Has("--json"))
        PrintJson(rows);
    else
        PrintFindings(findings);
    if (!findings.empty())
        EndWith(Findings);
}

Command DiffCommand() {
    return {"diff",
            "Print what B added, removed and changed, and whether the order is another",
            {{Kind::Place, "A"},
             {Kind::Place, "B"},
             {Kind::Flag, "--ignore-order", "Another order is no difference"},
             {Kind::Flag, "--json", "Print JSON"},
             CodePageOption(),
             EightBit()},
            Comparing(Diff)};
}

Command CheckCommand() {
    return {
        "check",
        "Print what looks wrong in a table",
        {{Kind::Place, "FILE"},
         {Kind::Option, "--against",
          "Tell also what is missing, extra or untranslated beside this table, and whose placeholders differ", "OTHER"},
         {.What = Kind::Number,
          .Name = "--max",
          .Description = "Report values of more than N characters",
          .TypeName = "N",
          .Least = 1},
         {Kind::Flag, "--json", "Print JSON"},
         EightBit()},
        Comparing(Check)};
}

Command MergeCommand() {
    return {"merge",
            "Merge two tables that come from one; conflicts are listed with both values, and ours is kept",
            {{Kind::Place, "BASE", "May be empty"},
             {Kind::Place, "OURS"},
             {Kind::Place, "THEIRS"},
             {Kind::Place, "TARGET"},
             {Kind::Flag, "--ours", "Ours is right in each conflict: they end with 0"},
             {Kind::Flag, "--theirs", "Theirs is right in each conflict: they end with 0"},
             {Kind::Flag, "--json", "Print the conflicts as JSON"},
             EightBit()},
            Comparing(Merge)};
}

} // namespace

std::vector<Command> CsfCompareCommands() {
    return {DiffCommand(), CheckCommand(), MergeCommand()};
}
