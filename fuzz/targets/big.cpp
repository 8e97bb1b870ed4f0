// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The reader of BIG archives, what the editor and the extraction make of its names, and the writer.
#include "fuzz/Fuzzing.h"

#include "big/document/FileList.h"
#include "big/document/FolderTree.h"
#include "big/format/Verification.h"
#include "big/format/mBIG.h"
#include "core/FolderGateway.h"
#include "core/mMain.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "tests/support/ScriptedHost.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using Fuzzing::Expect;

namespace {

/// A count that lies makes empty records; so many are read, and no more than that.
constexpr std::size_t Few = 500;

/// Sizes that lie would be written as so many zeros.
constexpr qint64 Affordable = 65536;

using Rows = std::vector<std::pair<QString, qint32>>;

Rows NamesAndSizes() {
    Rows rows;
    for (const BigEntry& entry : mBIG::BigEntries)
        rows.emplace_back(entry.Name, entry.Size);
    return rows;
}

void ExpectWholeTree() {
    FolderTree tree;
    tree.CreateDirs(u"a.big"_s, mBIG::BigEntries);
    FileList list;
    for (int node = FolderTree::Root; node <= tree.Count(); ++node) {
        Expect(tree.Node(node).Parent < node, "a folder comes behind the one that it is in");
        list.ShowFolder(tree, node, tree.Node(node).Key, mBIG::BigEntries, {});
    }
}

void ExpectExtracted(const QString& path) {
    const auto first = std::ranges::find_if(mBIG::BigEntries, [](const BigEntry& entry) { return entry.Size > 0; });
    if (first == mBIG::BigEntries.end() || first->Size > Affordable)
        return;
    const QString target = Fuzzing::Write(u"entry"_s, "what stood there");
    mBIG::ExtractEntry(static_cast<int>(first - mBIG::BigEntries.begin()), path, target);
    Expect(Files::FileLength(target) >= first->Size, "a file that was extracted has all the entry's bytes");
}

void ExpectTameNames() {
    for (const BigEntry& entry : mBIG::BigEntries) {
        const QStringList parts = QString(entry.Name).replace(u'/', u'\\').split(u'\\');
        Expect(!FolderGateway::RefusalOf(entry.Name).isEmpty() ||
                   (!parts.contains(u".."_s) && !entry.Name.contains(u':')),
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
    if (!mBIG::ReadBigFile(path) || mBIG::BigEntries.size() > Few)
        return;
    ExpectWholeTree();
    ExpectExtracted(path);
    ExpectTameNames();
    Ignoring([&] { Verification::Verify(path); });
    ExpectSameAfterSave(path);
}

const FuzzTarget target("big", Run);

} // namespace
