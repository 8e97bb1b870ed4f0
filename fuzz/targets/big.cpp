// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The reader of BIG archives, what the editor and the extraction make of its names, and the writer.
#include "fuzz/Fuzzing.h"

#include "big/Verification.h"
#include "big/mBIG.h"
#include "core/FolderGateway.h"
#include "core/mMain.h"
#include "platform/RuntimeError.h"
#include "tests/support/ScriptedHost.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using Fuzzing::Expect;

namespace {

/// Sizes that lie would be written as so many zeros.
constexpr qint64 Affordable = 65536;

using Rows = std::vector<std::pair<QString, qint32>>;

Rows NamesAndSizes() {
    Rows rows;
    for (const BigEntry& entry : mBIG::BigEntries)
        rows.emplace_back(entry.Name, entry.Size);
    return rows;
}

void ExpectTameNames() {
    for (const BigEntry& entry : mBIG::BigEntries) {
        if (FolderGateway::RefusalOf(entry.Name).isEmpty())
            Expect(!entry.Name.split(u'\\').contains(u".."_s) && !entry.Name.contains(u':'),
                   "a name that the gateway takes stays in the folder");
    }
}

void ExpectSameAfterSave(const QString& path) {
    qint64 total = 0;
    for (const BigEntry& entry : mBIG::BigEntries)
        total += entry.Size;
    if (total > Affordable || mBIG::HighestIndex() == 0)
        return;
    const Rows rows = NamesAndSizes();
    const QString copy = Fuzzing::PathOf(u"copy.big"_s);
    mBIG::BigFileName = path;
    Expect(mBIG::WriteBigFile(copy), "a table that was read can be written");
    Expect(mBIG::ReadBigFile(copy), "an archive that was written can be read");
    Expect(NamesAndSizes() == rows, "names and sizes come back as they were written");
}

void Run(const QByteArray& bytes) {
    ScriptedHost host;
    mMain::ProgramFolder = Fuzzing::PathOf(u"program"_s);
    mBIG::BigVersion = 0;
    const QString path = Fuzzing::Write(u"a.big"_s, bytes);
    if (!mBIG::ReadBigFile(path))
        return;
    ExpectTameNames();
    Ignoring([&] { Verification::Verify(path); });
    ExpectSameAfterSave(path);
}

const FuzzTarget target("big", Run);

} // namespace
