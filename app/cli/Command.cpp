// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/Command.h"

#include "app/cli/Output.h"
#include "core/mMain.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace {

constexpr int WrongUsage = 2;

/// A flag or a value that the library has read, for as long as the command line is taken apart.
struct Taken {
    const Parameter* Of;
    CLI::Option* Option;
};

CLI::Option* AddTo(CLI::App& app, const Parameter& parameter) {
    using Kind = Parameter::Kind;
    if (parameter.What == Kind::Flag)
        return app.add_flag(parameter.Name, parameter.Description)->required(parameter.Required);
    CLI::Option* option = app.add_option(parameter.Name, parameter.Description);
    option->required(parameter.Required || parameter.What == Kind::Place);
    if (parameter.What == Kind::Places || parameter.What == Kind::List)
        option->expected(1, CLI::detail::expected_max_vector_size)->allow_extra_args();
    else
        option->expected(1);
    if (!parameter.TypeName.empty())
        option->type_name(parameter.TypeName);
    else
        option->type_name(parameter.What == Kind::Number ? "INT" : "TEXT");
    if (parameter.What == Kind::Number)
        option->check(CLI::Range(parameter.Least, parameter.Most));
    if (!parameter.Members.empty())
        option->check(CLI::IsMember(parameter.Members));
    if (parameter.Check)
        option->check(CLI::Validator(parameter.Check, ""));
    return option;
}

Arguments ArgumentsOf(const std::vector<Taken>& taken) {
    std::map<std::string, std::vector<std::string>> given;
    for (const Taken& each : taken) {
        if (each.Option->count() > 0)
            given[each.Of->Name] = each.Option->results();
    }
    return Arguments(std::move(given));
}

void AddTo(CLI::App& app, const Command& command) {
    CLI::App* added = app.add_subcommand(command.Name, command.Description);
    std::vector<Taken> taken;
    taken.reserve(command.Parameters.size());
    for (const Parameter& parameter : command.Parameters)
        taken.push_back({&parameter, AddTo(*added, parameter)});
    added->callback([taken, &command] {
        command.Run(ArgumentsOf(taken));
        Flush();
        if (command.PassesOver && ReportRefusals())
            EndWith(1);
    });
}

} // namespace

std::vector<std::string> Arguments::Raws(const std::string& name) const {
    const auto found = given_.find(name);
    return found == given_.end() ? std::vector<std::string>() : found->second;
}

std::string Arguments::Raw(const std::string& name) const {
    const auto found = given_.find(name);
    return found == given_.end() || found->second.empty() ? std::string() : found->second.front();
}

QString Arguments::Text(const std::string& name) const {
    return ArgumentText(Raw(name));
}

QString Arguments::Path(const std::string& name) const {
    return ArgumentPath(Raw(name));
}

QStringList Arguments::Texts(const std::string& name) const {
    QStringList texts;
    for (const std::string& text : Raws(name))
        texts += ArgumentText(text);
    return texts;
}

std::optional<int> Arguments::Number(const std::string& name) const {
    if (!Has(name))
        return std::nullopt;
    return std::stoi(Raw(name));
}

int RunCommand(const std::vector<CommandGroup>& groups, const std::vector<std::string>& words) {
    CLI::App app("Brindock 2005 for scripts: the games' archives, settings and texts, and the players' own files.",
                 "brindock-cli");
    app.require_subcommand(1);
    app.set_version_flag("--version", mMain::VersionText().toStdString());
    for (const CommandGroup& group : groups) {
        CLI::App* place = &app;
        if (!group.Name.empty())
            place = app.add_subcommand(group.Name, group.Description)->require_subcommand(1);
        for (const Command& command : group.Commands)
            AddTo(*place, command);
    }
    try {
        app.parse(std::vector<std::string>(words.rbegin(), words.rend()));
    } catch (const CLI::ParseError& error) {
        const int code = app.exit(error);
        std::cout.flush(); // the program ends without more ado
        return code == 0 ? 0 : WrongUsage;
    }
    return 0;
}
