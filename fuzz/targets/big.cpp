// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The reader of BIG archives, what the editor makes of its names, and the writer: values and memory, no disk.
#include "fuzz/Fuzzing.h"

#include "big/document/FileList.h"
#include "big/document/FolderTree.h"
#include "big/format/Archive.h"
#include "big/format/Verification.h"
#include "core/FolderGateway.h"
#include "platform/Device.h"
#include "platform/RuntimeError.h"

#include <QtEndian>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;
using Archives::Placement;
using Fuzzing::Expect;

namespace {

/// What is done for each entry is done for so many.
constexpr std::size_t Few = 64;

/// Sizes that lie would be written as so many zeros.
constexpr qint64 Affordable = 65536;

/// A count that lies makes empty records, which costs as much as hundreds of other inputs; so it is read for some.
bool IsAffordable(const QByteArray& bytes) {
    constexpr qsizetype place = 8;
    constexpr qsizetype some = 16;
    return bytes.size() < place + 4 || qFromBigEndian<quint32>(bytes.constData() + place) <= Few ||
           bytes.size() % some == 0;
}

using Rows = std::vector<std::pair<QString, qint32>>;

Rows NamesAndSizes(const Archive& archive) {
    Rows rows;
    for (const BigEntry& entry : archive.Entries)
        rows.emplace_back(entry.Name, entry.Size);
    return rows;
}

void ExpectWholeTree(const Archive& archive) {
    FolderTree tree;
    tree.CreateDirs(u"a.big"_s, archive.Entries);
    FileList list;
    for (int node = FolderTree::Root; node <= tree.Count(); ++node) {
        Expect(tree.Node(node).Parent < node, "a folder comes behind the one that it is in");
        list.ShowFolder(tree, node, tree.Node(node).Key, archive.Entries, {});
    }
}

void ExpectTameNames(const Archive& archive) {
    for (const BigEntry& entry : archive.Entries) {
        const QStringList parts = QString(entry.Name).replace(u'/', u'\\').split(u'\\');
        Expect(!FolderGateway::RefusalOf(entry.Name).isEmpty() ||
                   (!parts.contains(u".."_s) && !entry.Name.contains(u':')),
               "a name that the gateway takes stays in the folder");
    }
}

QByteArray BytesOf(const Archive& archive, int index, const Device& device) {
    const BigEntry& entry = archive.Entries[static_cast<std::size_t>(index)];
    return device.Read(entry.Offset, entry.Size).leftJustified(entry.Size, '\0');
}

void ExpectSameEntries(const Archive& first, const Device& firstBytes, const Archive& second,
                       const Device& secondBytes) {
    Expect(NamesAndSizes(first) == NamesAndSizes(second), "names and sizes come back as they were written");
    for (int index = 0; index < static_cast<int>(first.Entries.size()); ++index)
        Expect(BytesOf(first, index, firstBytes) == BytesOf(second, index, secondBytes),
               "each entry comes back with its bytes");
}

void ExpectSameAfterSave(const Archive& archive, const Device& device) {
    qint64 total = 0;
    for (const BigEntry& entry : archive.Entries)
        total += entry.Size;
    if (total > Affordable)
        return;
    for (const Placement placement : {Placement::Told, Placement::Exact}) {
        MemoryDevice copy;
        const OffsetShift::Shift shift = Archives::Write(archive, copy, &device, placement);
        Expect(placement == Placement::Told || shift.IsNone(), "an exact save has no shift");
        ExpectSameEntries(archive, device, ReadShiftedBack(Archives::Read(copy), shift), copy);
    }
}

void Run(const QByteArray& bytes) {
    if (!IsAffordable(bytes))
        return;
    const MemoryDevice device(bytes);
    std::optional<Archive> archive;
    Ignoring([&] { archive = Archives::Read(device); });
    if (!archive || archive->Entries.size() > Few)
        return;
    ExpectWholeTree(*archive);
    ExpectTameNames(*archive);
    Verification::Verify(*archive, device);
    ExpectSameAfterSave(*archive, device);
}

const FuzzTarget target("big", Run);

} // namespace
