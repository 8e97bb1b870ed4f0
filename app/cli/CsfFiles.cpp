// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/CsfFiles.h"

#include "app/cli/Output.h"
#include "platform/File.h"
#include "platform/Paths.h"
#include "platform/WriteAside.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int HighestLanguage = 255;

TableFile TableOf(const Arguments& given, const QString& path, const QByteArray& bytes) {
    try {
        if (given.Has(EightBit().Name))
            return {CsfTable::Read(QByteArrayView(bytes)), std::nullopt};
        CsfWhole whole = CsfWhole::Read(bytes);
        CsfTable table = whole.Table();
        return {std::move(table), std::move(whole)};
    } catch (const RuntimeError& error) {
        Fail(Paths::ToNative(path), u"not a CSF file that can be read: "_s + error.Description());
    }
}

} // namespace

Parameter EightBit() {
    return {.What = Parameter::Kind::Flag,
            .Name = "--8-bit",
            .Description = "Read and write as 8-bit editors do: any file that they open, and only what they keep"};
}

TableFile ReadTableFile(const Arguments& given, const std::string& place) {
    const QString path = given.Path(place);
    return TableOf(given, path, ReadWhole(path));
}

TableFile ReadTableOrNothing(const Arguments& given, const std::string& place) {
    const QString path = given.Path(place);
    const QByteArray bytes = ReadWhole(path);
    return bytes.isEmpty() ? TableFile() : TableOf(given, path, bytes);
}

void WriteTableFile(const Arguments& given, const TableFile& file) {
    const QString path = given.Path("TARGET");
    const QString shown = Paths::ToNative(path);
    const CsfTable& table = file.Table;
    if (table.Strings.empty())
        Fail(shown, u"a table without strings can't be saved"_s);
    if (!given.Has(EightBit().Name)) {
        CsfWhole whole = file.Whole.value_or(CsfWhole());
        whole.Take(table);
        return WriteWhole(path, whole.Bytes());
    }
    if (table.Strings.size() > CsfTable::MaximumStrings)
        Fail(shown, u"%1 strings; %2 are the most that can be read again"_s.arg(table.Strings.size())
                        .arg(CsfTable::MaximumStrings));
    if (table.Language < 0 || table.Language > HighestLanguage)
        Fail(shown, u"the language number %1 can't be stored; --language gives another"_s.arg(table.Language));
    table.Write(path);
}
