// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The commands of brindock-cli as data: what each takes, what it tells of itself, and what it runs. One file alone
/// knows the library that reads the command line.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// What was given for a command's parameters, by their names.
class Arguments {
public:
    explicit Arguments(std::map<std::string, std::vector<std::string>> given) : given_(std::move(given)) {}

    [[nodiscard]] bool Has(const std::string& name) const { return given_.contains(name); }

    /// The text of one, as it was typed; empty when it was not given.
    [[nodiscard]] std::string Raw(const std::string& name) const;
    [[nodiscard]] std::vector<std::string> Raws(const std::string& name) const;
    [[nodiscard]] QString Text(const std::string& name) const;
    /// The inside path of the file or folder that it names.
    [[nodiscard]] QString Path(const std::string& name) const;
    [[nodiscard]] QStringList Texts(const std::string& name) const;
    /// A parameter that was checked to be a number.
    [[nodiscard]] std::optional<int> Number(const std::string& name) const;

private:
    std::map<std::string, std::vector<std::string>> given_;
};

/// One word of a command line: a place ("FILE"), an option with a value ("--target") or a flag.
struct Parameter {
    enum class Kind {
        Place,  ///< one word, required
        Places, ///< as many words as there are
        Option, ///< once, with a value
        List,   ///< as often as wanted, each with a value
        Number, ///< once, with a whole number
        Flag,
    };
    Kind What = Kind::Place;
    std::string Name{};
    std::string Description{};
    std::string TypeName{};                      ///< of the value, in the help
    bool Required = false;                       ///< for options, flags and Places
    std::vector<std::string> Members{};          ///< the only values allowed, where there are any
    int Least = std::numeric_limits<int>::min(); ///< of a Number
    int Most = std::numeric_limits<int>::max();
    std::function<std::string(const std::string&)> Check{}; ///< what is wrong with a value; empty when nothing is
};

struct Command {
    std::string Name;
    std::string Description;
    std::vector<Parameter> Parameters;
    std::function<void(const Arguments&)> Run;
    bool PassesOver = false; ///< steps of it are passed over when they fail: it ends with 1 when the system refused any
};

/// Commands that stand behind one word; without a word they stand alone.
struct CommandGroup {
    std::string Name;
    std::string Description;
    std::vector<Command> Commands;
};

/// Reads the command line (without the program's name) and runs the command that it names. Returns the exit code: 0
/// when it is done or help was wanted, 2 for wrong usage, which is told. What the command raises is raised.
int RunCommand(const std::vector<CommandGroup>& groups, const std::vector<std::string>& words);
