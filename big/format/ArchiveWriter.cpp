// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/Archive.h"

#include "big/format/ArchiveData.h"
#include "big/format/SourceFiles.h"
#include "big/format/WritePlan.h"
#include "platform/AnsiCodec.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/SaveLock.h"
#include "platform/WriteAside.h"

#include <QtEndian>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using Archives::Placement;
using Archives::Watch;

namespace {

/// Four bytes, most significant first.
void Append(QByteArray& bytes, qint64 number) {
    std::array<char, sizeof(qint32)> four{};
    qToBigEndian(static_cast<quint32>(number), four.data());
    bytes.append(four.data(), four.size());
}

/// One writing of an archive: what is computed from the table, then the bytes.
class Writing {
public:
    Writing(const Archive& archive, Placement placement, const Watch& watch)
        : archive_(archive),
          watch_(watch),
          variant_(Layout::VariantOf(archive.Version)) {
        for (const BigEntry& entry : archive_.Entries) {
            if (entry.Deleted)
                continue;
            kept_.push_back(&entry);
            items_.push_back(ItemOf(entry));
            if (items_.back().From == WritePlan::Origin::GoneFile && watch_.Gone)
                watch_.Gone(entry);
            Yield();
        }
        plan_ = WritePlan::Make(variant_, items_, placement);
    }

    /// Raises what would end the writing, before it begins.
    void Check(const Device* old, Placement placement) const {
        for (std::size_t i = 0; i < kept_.size(); ++i) {
            const BigEntry& entry = *kept_[i];
            if (old == nullptr && !entry.IsNew && entry.Size > 0)
                throw RuntimeError(ErrorNumber::FileNotFound, Paths::ToNative(archive_.FileName) + u": not open"_s);
            const WritePlan::Place& place = plan_.Places[i];
            const bool leftOut = placement == Placement::Exact && !place.Fits;
            if (leftOut || (entry.IsNew && !place.Fits))
                throw RuntimeError(ErrorNumber::Overflow,
                                   u"%1: does not fit into an archive's 2 GiB"_s.arg(
                                       entry.IsNew ? Paths::ToNative(entry.SourcePath) : entry.Name));
        }
    }

    void WriteTo(Device& target, const Device* old) const {
        const QByteArray header = Header();
        target.Write(0, header);
        ArchiveData data(target, old, header.size());
        WriteEntries(data);
        data.Finish(plan_.Length);
    }

    [[nodiscard]] OffsetShift::Shift Shift() const { return plan_.ShiftOf(variant_, items_); }

private:
    void Yield() const {
        if (watch_.Yield)
            watch_.Yield();
    }

    static WritePlan::Item ItemOf(const BigEntry& entry) {
        const qint64 nameLength = AnsiCodec::Encode(entry.Name).size();
        if (!entry.IsNew)
            return {nameLength, entry.Size, WritePlan::Origin::OldArchive};
        const auto length =
            entry.SourceLength >= 0 ? std::optional(entry.SourceLength) : SourceFiles::LengthOf(entry.SourcePath);
        return {nameLength, length.value_or(0), length ? WritePlan::Origin::File : WritePlan::Origin::GoneFile};
    }

    [[nodiscard]] QByteArray Header() const {
        QByteArray header;
        header.reserve(static_cast<qsizetype>(plan_.FirstFile));
        header += variant_.Magic;
        std::array<char, sizeof(quint32)> length{};
        qToLittleEndian(static_cast<quint32>(plan_.Length), length.data());
        header.append(length.data(), length.size());
        Append(header, static_cast<qint64>(kept_.size()));
        Append(header, plan_.FirstFile);
        for (std::size_t i = 0; i < kept_.size(); ++i) {
            Append(header, plan_.Places[i].Offset);
            Append(header, items_[i].Size);
            header += AnsiCodec::Encode(kept_[i]->Name);
            header += '\0';
            Yield();
        }
        return header += variant_.Mark;
    }

    void WriteEntries(ArchiveData& data) const {
        for (std::size_t i = 0; i < kept_.size(); ++i) {
            const BigEntry& entry = *kept_[i];
            if (watch_.Entry)
                watch_.Entry(entry.Name);
            if (items_[i].From == WritePlan::Origin::GoneFile)
                data.Clear();
            else
                data.Load(entry, items_[i].Size);
            if (plan_.Places[i].Bytes > 0)
                data.Put(plan_.Places[i].Data);
            Tell(&entry - archive_.Entries.data());
            Yield();
        }
    }

    /// Deleted records count in the index and not in the steps, so that the value can pass 100 and is then not told; a
    /// single record tells none. This is meant.
    void Tell(qint64 index) const {
        const qint64 steps = static_cast<qint64>(kept_.size()) - 1;
        if (const qint64 percent = steps < 1 ? 101 : index * 100 / steps; percent <= 100 && watch_.Percent)
            watch_.Percent(static_cast<int>(percent));
    }

    const Archive& archive_;
    const Watch& watch_;
    const Layout::Variant& variant_;
    std::vector<const BigEntry*> kept_;
    std::vector<WritePlan::Item> items_;
    WritePlan::Plan plan_;
};

/// Whether bytes come out of the archive that the table was read from.
bool NeedsOld(const Archive& archive) {
    return std::ranges::any_of(archive.Entries,
                               [](const BigEntry& entry) { return !entry.IsNew && !entry.Deleted && entry.Size > 0; });
}

/// The archive that the table was read from, and no other one that stands in its place.
File OpenOld(const Archive& archive) {
    File old = File::Open(archive.FileName, File::Access::Read);
    if (!archive.Stood.Identity.isEmpty() && old.State() != archive.Stood)
        throw RuntimeError(ErrorNumber::PermissionDenied, old.Name() + u": was changed since it was read"_s);
    return old;
}

} // namespace

namespace Archives {

OffsetShift::Shift Write(const Archive& archive, Device& target, const Device* old, Placement placement,
                         const Watch& watch) {
    WritePlan::CheckCount(archive, target.Name());
    const Writing writing(archive, placement, watch);
    writing.Check(old, placement);
    writing.WriteTo(target, old);
    return writing.Shift();
}

OffsetShift::Shift Write(const Archive& archive, const QString& path, Placement placement, const Watch& watch) {
    const SaveLock lock(path);
    WriteAside aside(path);
    OffsetShift::Shift shift;
    {
        // Closed again before the rename, which may be over it.
        File old;
        if (NeedsOld(archive))
            old = OpenOld(archive);
        shift = Write(archive, aside.Out(), old.IsOpen() ? &old : nullptr, placement, watch);
    }
    aside.Commit();
    return shift;
}

} // namespace Archives
