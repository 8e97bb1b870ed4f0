// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The reader of CSF string tables, and its writer, without a disk.
#include "fuzz/Fuzzing.h"

#include "csf/exchange/CsfCompare.h"
#include "csf/format/CsfTable.h"
#include "platform/Device.h"
#include "platform/RuntimeError.h"

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

void ExpectSameAfterSave(CsfTable table) {
    table.Language = 3; // one that was read can be above what a byte holds
    MemoryDevice copy;
    Expect(Ignoring([&] { table.Write(copy); }), "a table that was read can be written");
    Expect(CsfTable::Read(copy) == table, "a table comes back as it was written");
}

void Run(const QByteArray& bytes) {
    CsfTable table;
    if (!Ignoring([&] { table = CsfTable::Read(QByteArrayView(bytes)); }))
        return;
    ExpectComparable(table);
    ExpectSameAfterSave(table);
}

const FuzzTarget target("csf", Run);

} // namespace
