// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/BigArchive.h"
#include "app/cli/BigCommands.h"
#include "app/cli/Output.h"
#include "big/document/ArchiveSearch.h"

#include <set>

using namespace Qt::StringLiterals;

namespace {

void Search(const Arguments& given) {
    const Archive archive = ReadArchive(given.Path("ARCHIVE"));
    const QString text = given.Text("TEXT");
    const std::vector<int> names = ArchiveSearch::InNames(archive, text);
    std::set<int> found(names.begin(), names.end());
    int unread = 0;
    if (given.Has("--text")) {
        const auto note = [&found](int index, bool isFound, int /*percent*/) {
            if (isFound)
                found.insert(index);
        };
        unread = TextSearch(archive, text).Run({}, note);
    }
    for (const int index : found)
        Print(archive.Entries[static_cast<std::size_t>(index)].Name);
    if (unread > 0)
        Fail(archive.FileName, u"%1 texts could not be read"_s.arg(unread));
}

} // namespace

std::vector<Command> SearchCommands() {
    using enum Parameter::Kind;
    return {{"search",
             "Print the names of the entries whose name holds a text or fits a pattern with * and ?",
             {{Place, "ARCHIVE"},
              {Place, "TEXT"},
              {Flag, "--text", "Look into INI, TXT, STR, CSF, WND, XML and LUA entries, too"}},
             Search}};
}
