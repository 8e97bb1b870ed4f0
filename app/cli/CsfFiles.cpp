// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/CsfFiles.h"

#include "app/cli/Output.h"
#include "platform/File.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int HighestLanguage = 255;

} // namespace

CsfTable ReadTableArgument(const std::string& argument) {
    const QString path = ArgumentPath(argument);
    const QByteArray bytes = ReadWhole(path);
    try {
        return CsfTable::Read(QByteArrayView(bytes));
    } catch (const RuntimeError& error) {
        Fail(Paths::ToNative(path), u"not a CSF file that can be read: "_s + error.Description());
    }
}

void WriteTableFile(const QString& path, const CsfTable& table) {
    const QString shown = Paths::ToNative(path);
    if (table.Strings.empty())
        Fail(shown, u"a table without strings can't be saved"_s);
    if (table.Strings.size() > CsfTable::MaximumStrings)
        Fail(shown, u"%1 strings; %2 are the most that can be read again"_s.arg(table.Strings.size())
                        .arg(CsfTable::MaximumStrings));
    if (table.Language < 0 || table.Language > HighestLanguage)
        Fail(shown, u"the language number %1 can't be stored; --language gives another"_s.arg(table.Language));
    table.Write(path);
}
