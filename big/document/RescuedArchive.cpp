// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/RescuedArchive.h"

#include "big/format/ArchiveEdits.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto streamVersion = QDataStream::Qt_6_4;
constexpr qint64 headLength = qint64{4} << 20;
constexpr qint64 blockLength = 4096;
constexpr qint64 blocks = 256;

bool HasBytes(const ArchiveChange& change) {
    return change.Entry.IsNew && !change.Entry.Deleted;
}

QDataStream& operator<<(QDataStream& out, const ArchiveChange& change) {
    const BigEntry& entry = change.Entry;
    return out << change.Index << change.Content << entry.Name << entry.Offset << entry.Size << entry.IsNew
               << entry.Deleted << entry.SourcePath;
}

QDataStream& operator>>(QDataStream& in, ArchiveChange& change) {
    BigEntry& entry = change.Entry;
    return in >> change.Index >> change.Content >> entry.Name >> entry.Offset >> entry.Size >> entry.IsNew >>
           entry.Deleted >> entry.SourcePath;
}

} // namespace

QByteArray ArchiveMark::HashOf(const Device& device) {
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    const qint64 length = device.Length();
    hash.addData(device.Read(0, std::min(length, headLength)));
    const qint64 rest = length - headLength;
    const qint64 step = std::max(blockLength, rest / blocks);
    for (qint64 offset = headLength; offset < length; offset += step)
        hash.addData(device.Read(offset, std::min(length - offset, blockLength)));
    if (rest > 0)
        hash.addData(device.Read(length - std::min(rest, blockLength), std::min(rest, blockLength)));
    return hash.result();
}

ArchiveMark ArchiveMark::Of(const QString& path) {
    ArchiveMark mark;
    Ignoring([&] {
        const File file = File::Open(path, File::Access::Read);
        const FileState state = file.State();
        mark = {.Length = state.Length, .Time = state.Time, .Hash = HashOf(file)};
    });
    return mark;
}

QByteArray RescuedArchive::Encoded() const {
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(streamVersion);
    out << Mark.Length << Mark.Time << Mark.Hash << Version << ExactOffsets << static_cast<qint64>(Changes.size());
    for (const ArchiveChange& change : Changes)
        out << change;
    return bytes;
}

RescuedArchive RescuedArchive::Decoded(const QByteArray& bytes) {
    QDataStream in(bytes);
    in.setVersion(streamVersion);
    RescuedArchive rescued;
    qint64 count = 0;
    in >> rescued.Mark.Length >> rescued.Mark.Time >> rescued.Mark.Hash >> rescued.Version >> rescued.ExactOffsets >>
        count;
    // As many as are there, whatever the number says.
    while (in.status() == QDataStream::Ok && static_cast<qint64>(rescued.Changes.size()) < count) {
        ArchiveChange change;
        in >> change;
        rescued.Changes.push_back(std::move(change));
    }
    if (in.status() != QDataStream::Ok || count < 0)
        throw RuntimeError(ErrorNumber::PathFileAccess, u"This is no rescued archive."_s);
    return rescued;
}

int RescuedArchive::NewCount() const {
    return static_cast<int>(std::ranges::count_if(Changes, HasBytes));
}

/// What was not kept in time is where it was, as long as that is there.
QString RescuedArchive::SourceOf(const ArchiveChange& change, const QString& folder) {
    return change.Content < 0 ? change.Entry.SourcePath : folder + QString::number(change.Content);
}

void RescuedArchive::ApplyTo(Archive& archive, const QString& folder) const {
    archive.Version = Version;
    for (const ArchiveChange& change : Changes) {
        const auto index = static_cast<std::size_t>(change.Index);
        if (change.Index < 0 || index > archive.Entries.size() || index >= Archives::MaximumEntries)
            continue;
        if (index == archive.Entries.size())
            archive.Entries.emplace_back();
        archive.Entries[index] = change.Entry;
        if (HasBytes(change))
            archive.Entries[index].SourcePath = SourceOf(change, folder);
    }
}

void RescuedArchive::AddNewTo(Archive& archive, const QString& folder) const {
    for (const ArchiveChange& change : Changes) {
        if (!HasBytes(change))
            continue;
        ArchiveEdits::Source source{.Path = SourceOf(change, folder)};
        Ignoring([&] { source.Size = Files::FileLength(source.Path); });
        ArchiveEdits::Add(archive, change.Entry.Name, source);
    }
}
