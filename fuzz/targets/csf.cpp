// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The reader of CSF string tables, and its writer.
#include "fuzz/Fuzzing.h"

#include "csf/exchange/CsfCompare.h"
#include "csf/format/mCSF.h"
#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/RuntimeError.h"
#include "tests/support/ScriptedHost.h"

using namespace Qt::StringLiterals;
using Fuzzing::Expect;

namespace {

void ExpectComparable(const CsfTable& table) {
    CsfCompare::Check(table, {&table, 10});
    Expect(CsfCompare::Diff(table, table).empty(), "a table does not differ from itself");
    const CsfMerged merged = CsfCompare::Merge(table, table, table);
    Expect(merged.Table == table && merged.Conflicts.empty(), "a table that nobody changed merges to itself");
    for (const CsfString& entry : table.Strings)
        Expect(CsfExchange::Unescaped(CsfExchange::Escaped(entry.Value)) == entry.Value, "escapes lead back");
}

void ExpectSameAfterSave() {
    const std::vector<CsfString> read = mCSF::CsfStrings;
    const QString copy = Fuzzing::PathOf(u"copy.csf"_s);
    Ignoring([&] { Files::Delete(copy); });
    Expect(mCSF::WriteTable(copy, 3).isEmpty(), "a table that was read can be written");
    mCSF::ReadTable(copy);
    Expect(mCSF::CsfStrings == read, "strings come back as they were written");
}

void Run(const QByteArray& bytes) {
    ScriptedHost host;
    const QString path = Fuzzing::Write(u"a.csf"_s, bytes);
    const bool read = Ignoring([&] { mCSF::ReadTable(path); });
    Expect(!NumberedFiles::IsOpen(mCSF::FileNumber), "the file's number is free again");
    if (!read)
        return;
    ExpectComparable({0, mCSF::CsfStrings});
    ExpectSameAfterSave();
}

const FuzzTarget target("csf", Run);

} // namespace
