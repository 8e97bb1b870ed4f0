// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/Output.h"
#include "app/cli/ZipCommands.h"
#include "install/zip/ZipClass.h"
#include "platform/Files.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;

namespace {

using Kind = Parameter::Kind;

/// Refuses before anything is read what WriteZip would refuse behind all the work.
void CheckTarget(const QString& target, bool overwrite) {
    if (!overwrite && Files::FileExists(target))
        Fail(Paths::ToNative(target), u"exists already; --overwrite replaces it"_s);
}

void Create(const Arguments& given) {
    const QString target = given.Path("OUT");
    const bool overwrite = given.Has("--overwrite");
    CheckTarget(target, overwrite);
    ZipClass zip;
    for (const QString& pattern : given.Texts("PATTERN")) {
        if (zip.FileAdd(Paths::FromNative(pattern), *given.Number("--storage"), given.Has("--recurse")) == 0)
            Fail(pattern, u"no such file"_s);
    }
    if (!zip.WriteZip(target, overwrite))
        CheckTarget(target, overwrite);
}

} // namespace

std::vector<Command> ZipCreateCommands() {
    return {{"create",
             "Make an archive of files, or of a folder's files whose names fit a pattern: '*', '?', '#' for a digit, "
             "[abc], [!abc]; letters with their case, a dot only for a dot",
             {{Kind::Place, "OUT"},
              {.What = Kind::Number,
               .Name = "--storage",
               .Description = "Store the names alone (0), whole paths (1) or, below the current folder, paths from "
                              "there on (2)",
               .Required = true,
               .Least = 0,
               .Most = 2},
              {Kind::Flag, "--recurse", "Look for the same names in all subfolders too"},
              {Kind::Flag, "--overwrite", "Replace OUT where it exists"},
              {.What = Kind::Places, .Name = "PATTERN", .Required = true}},
             Create,
             true}};
}
