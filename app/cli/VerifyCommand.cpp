// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/VerifyCommand.h"

#include "app/cli/BigCommands.h"
#include "app/cli/Output.h"
#include "big/format/Verification.h"
#include "big/format/mBIG.h"

#include <CLI/CLI.hpp>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>
#include <string>

using namespace Qt::StringLiterals;
using Verification::Finding;

namespace {

struct Options {
    std::string Archive;
    bool Json = false;
};

/// Empty for the archive as a whole.
QString NameOf(const Finding& finding) {
    return finding.Index < 0 ? QString() : mBIG::BigEntries[static_cast<std::size_t>(finding.Index)].Name;
}

void PrintJson(const std::vector<Finding>& findings) {
    QJsonArray told;
    for (const Finding& finding : findings)
        told.append(QJsonObject{{u"kind"_s, Verification::Word(finding.What)},
                                {u"index"_s, finding.Index},
                                {u"name"_s, NameOf(finding)},
                                {u"text"_s, finding.Text}});
    const QJsonObject archive{{u"version"_s, mBIG::BigVersion},
                              {u"entries"_s, static_cast<qint64>(mBIG::BigEntries.size())},
                              {u"findings"_s, told},
                              {u"count"_s, told.size()}};
    Print(QString::fromUtf8(QJsonDocument(archive).toJson(QJsonDocument::Indented)).trimmed());
}

void PrintLines(const std::vector<Finding>& findings) {
    for (const Finding& finding : findings) {
        const QString index = finding.Index < 0 ? u"-"_s : QString::number(finding.Index);
        Print(QStringList{Verification::Word(finding.What), index, NameOf(finding), finding.Text}.join(u'\t'));
    }
    Print(u"%1 entries, %2 findings"_s.arg(mBIG::BigEntries.size()).arg(findings.size()));
}

void Verify(const Options& options) {
    const QString archive = ArgumentPath(options.Archive);
    ReadArchive(archive);
    const std::vector<Finding> findings = Verification::Verify(archive);
    if (options.Json)
        PrintJson(findings);
    else
        PrintLines(findings);
    if (!findings.empty())
        EndWith(1);
}

} // namespace

void AddVerifyCommand(CLI::App& commands) {
    CLI::App* verify = commands.get_subcommand("big")->add_subcommand(
        "verify", "Read every entry and tell what is wrong, a line each: kind, index, name, what; then the count. "
                  "The exit code is 1 when there is something");
    const auto options = std::make_shared<Options>();
    verify->add_option("ARCHIVE", options->Archive)->required();
    verify->add_flag("--json", options->Json, "Print JSON");
    verify->callback([options] { Verify(*options); });
}
