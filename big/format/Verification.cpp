// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/Verification.h"

#include "big/format/Layout.h"
#include "core/FolderGateway.h"
#include "platform/Device.h"
#include "platform/RuntimeError.h"

#include <QHash>
#include <QtEndian>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Verification {
namespace {

/// An entry's place as the directory's bytes have it.
struct Place {
    int Index;
    qint64 Offset;
    qint64 Size;

    [[nodiscard]] qint64 End() const { return Offset + Size; }
};

/// The bytes that are looked at.
class Bytes {
public:
    explicit Bytes(const Device& device) : device_(device), length_(device.Length()) {}

    [[nodiscard]] qint64 Length() const { return length_; }

    /// Eight bytes; behind the end of the file come zeros.
    [[nodiscard]] std::array<char, 8> At(qint64 offset) const {
        std::array<char, 8> bytes{};
        device_.ReadInto(offset, bytes.data(), bytes.size());
        return bytes;
    }

    /// False when the system fails to read the bytes that are there.
    bool CanRead(qint64 from, qint64 to) {
        return Ignoring([&] {
            for (qint64 at = from; at < to; at += block_.size())
                device_.ReadInto(at, block_.data(), std::min<qint64>(block_.size(), to - at));
        });
    }

private:
    const Device& device_;
    qint64 length_;
    QByteArray block_ = QByteArray(qsizetype{1} << 20, Qt::Uninitialized);
};

/// The distances as a person reads them: one, or from the least to the greatest.
QString Told(const OffsetShift::Shift& shift) {
    qint64 least = shift.First;
    qint64 most = shift.First;
    for (const qint64 distance : shift.Distances) {
        least = distance == 0 ? least : std::min(least, distance);
        most = distance == 0 ? most : std::max(most, distance);
    }
    return least == most ? QString::number(least) : u"%1 to %2"_s.arg(least).arg(most);
}

class Look {
public:
    Look(const Archive& archive, const Device& device)
        : archive_(archive),
          bytes_(device),
          variant_(Layout::VariantOf(archive.Version)),
          shift_(OffsetShift::ShiftOf(archive, bytes_.Length())) {}

    std::vector<Finding> All() && {
        ReadDirectory();
        LookAtHeader();
        LookAtShift();
        LookAtOrder();
        LookAtPlaces();
        LookAtNames();
        std::ranges::stable_sort(findings_, {}, &Finding::Index);
        return std::move(findings_);
    }

private:
    void Found(Kind kind, int index, const QString& text) { findings_.push_back({kind, index, text}); }

    /// Takes the places of all entries that have bytes, and where the directory ends.
    void ReadDirectory() {
        directoryEnd_ = Layout::DirectoryOffset;
        int index = 0;
        for (const BigEntry& entry : archive_.Entries) {
            const std::array<char, 8> bytes = bytes_.At(directoryEnd_);
            const auto offset = qFromBigEndian<quint32>(bytes.data());
            const auto size = qFromBigEndian<quint32>(bytes.data() + 4);
            if (offset >= 0x80000000U || size >= 0x80000000U)
                Found(Kind::Number, index, u"has a number of 0x80000000 or more, which loses its top digit"_s);
            if (size > 0)
                places_.push_back({index, offset + Distance(index), size});
            directoryEnd_ += Layout::RecordOverhead + entry.Name.size();
            ++index;
        }
    }

    void LookAtHeader() {
        const auto declared = qFromLittleEndian<quint32>(bytes_.At(Layout::LengthOffset).data());
        if (declared != bytes_.Length())
            Found(Kind::Length, -1,
                  u"the header declares %1 bytes, the file has %2"_s.arg(declared).arg(bytes_.Length()));
        if (qFromBigEndian<quint32>(bytes_.At(Layout::CountOffset).data()) >= 0x80000000U)
            Found(Kind::Number, -1, u"the count is 0x80000000 or more, which loses its top digit"_s);
        const QByteArray mark(bytes_.At(directoryEnd_).data(), Layout::MarkLength);
        if (directoryEnd_ + Layout::MarkLength > bytes_.Length())
            Found(Kind::Cut, -1, u"the directory is cut off"_s);
        else if (!Layout::VersionOfMark(mark))
            Found(Kind::Mark, -1, u"the mark behind the directory names no variant"_s);
        const qint64 expected = Layout::FirstFileField(variant_, directoryEnd_);
        const auto field = qFromBigEndian<quint32>(bytes_.At(Layout::FirstFileOffset).data());
        if (field != expected)
            Found(Kind::FirstFile, -1, u"the first-file field is %1, the layout has %2"_s.arg(field).arg(expected));
        firstData_ = Aligned(directoryEnd_ + Layout::ReservedForMark);
    }

    void LookAtShift() {
        if (shift_.IsNone())
            return;
        const QString told =
            u"the data of %1 entries lie %2 bytes from their offsets"_s.arg(shift_.Count).arg(Told(shift_));
        if (shift_.ExactFits)
            Found(Kind::PerhapsShift, -1, u"as a save leaves it, "_s + told + u", or none"_s);
        else
            Found(Kind::Shift, -1, told);
    }

    /// Whether the entries are looked at where their data lie. What a shift explains is not told once more.
    [[nodiscard]] bool IsShifted() const { return !shift_.IsNone() && !shift_.ExactFits; }

    [[nodiscard]] qint64 Distance(int index) const {
        return IsShifted() ? shift_.Distances[static_cast<std::size_t>(index)] : 0;
    }

    void LookAtOrder() {
        for (std::size_t i = 1; i < places_.size(); ++i) {
            if (places_[i].Offset < places_[i - 1].Offset)
                Found(Kind::Order, places_[i].Index, u"lies before entry %1"_s.arg(places_[i - 1].Index));
        }
    }

    /// Sweeps over the entries by their offsets; `last` is the one that reaches furthest so far.
    void LookAtPlaces() {
        std::ranges::stable_sort(places_, {}, &Place::Offset);
        if (!IsShifted() && !places_.empty() && places_.front().Offset != firstData_)
            Found(Kind::FirstFile, places_.front().Index,
                  u"begins the data at %1, the layout has %2"_s.arg(places_.front().Offset).arg(firstData_));
        const Place* last = nullptr;
        for (const Place& place : places_) {
            LookAt(place, last);
            if (last == nullptr || place.End() > last->End())
                last = &place;
        }
        if (!IsShifted() && last != nullptr && last->End() < bytes_.Length())
            Found(Kind::Gap, -1, u"%1 bytes behind the last entry belong to none"_s.arg(bytes_.Length() - last->End()));
    }

    void LookAt(const Place& place, const Place* last) {
        if (place.Offset < directoryEnd_ + Layout::MarkLength)
            Found(Kind::Overlap, place.Index, u"begins at %1, inside the directory"_s.arg(place.Offset));
        if (last != nullptr && place.Offset < last->End())
            Found(Kind::Overlap, place.Index, u"shares bytes with entry %1"_s.arg(last->Index));
        if (!IsShifted() && last != nullptr && place.Offset > Aligned(last->End()))
            Found(Kind::Gap, place.Index,
                  u"%1 bytes before it belong to no entry"_s.arg(place.Offset - Aligned(last->End())));
        if (place.Offset != Aligned(place.Offset))
            Found(Kind::Misaligned, place.Index, u"begins at %1, no multiple of 4"_s.arg(place.Offset));
        if (place.End() > bytes_.Length())
            Found(Kind::BeyondEnd, place.Index,
                  u"ends %1 bytes behind the end of the file"_s.arg(place.End() - bytes_.Length()));
        const qint64 readAlready = last == nullptr ? 0 : last->End();
        if (!bytes_.CanRead(std::max(place.Offset, readAlready), std::min(place.End(), bytes_.Length())))
            Found(Kind::Unreadable, place.Index, u"can't be read"_s);
    }

    void LookAtNames() {
        QHash<QString, int> known;
        known.reserve(static_cast<qsizetype>(archive_.Entries.size()));
        int index = 0;
        for (const BigEntry& entry : archive_.Entries) {
            QString refusal = FolderGateway::RefusalOf(entry.Name);
            if (refusal.isEmpty() && (entry.Name.endsWith(u'\\') || entry.Name.endsWith(u'/')))
                refusal = u"is a folder"_s;
            if (!refusal.isEmpty())
                Found(Kind::Name, index, refusal);
            const QString folded = FolderGateway::IsTooLong(entry.Name) ? entry.Name : entry.Name.toCaseFolded();
            if (const auto first = known.constFind(folded); first != known.constEnd())
                Found(Kind::Collision, index, u"has the name of entry %1"_s.arg(*first));
            else
                known.insert(folded, index);
            ++index;
        }
    }

    [[nodiscard]] qint64 Aligned(qint64 offset) const { return Layout::Aligned(variant_, offset); }

    const Archive& archive_;
    Bytes bytes_;
    const Layout::Variant& variant_;
    OffsetShift::Shift shift_;
    qint64 directoryEnd_ = 0;
    qint64 firstData_ = 0;
    std::vector<Place> places_;
    std::vector<Finding> findings_;
};

} // namespace

QString Word(Kind kind) {
    switch (kind) {
    case Kind::Length:
        return u"length"_s;
    case Kind::Mark:
        return u"mark"_s;
    case Kind::FirstFile:
        return u"first-file"_s;
    case Kind::Cut:
        return u"cut"_s;
    case Kind::Number:
        return u"number"_s;
    case Kind::Shift:
        return u"shift"_s;
    case Kind::PerhapsShift:
        return u"perhaps-shift"_s;
    case Kind::BeyondEnd:
        return u"beyond-end"_s;
    case Kind::Overlap:
        return u"overlap"_s;
    case Kind::Gap:
        return u"gap"_s;
    case Kind::Misaligned:
        return u"misaligned"_s;
    case Kind::Order:
        return u"order"_s;
    case Kind::Unreadable:
        return u"unreadable"_s;
    case Kind::Name:
        return u"name"_s;
    case Kind::Collision:
        return u"collision"_s;
    }
    return {};
}

Class ClassOf(Kind kind) {
    switch (kind) {
    case Kind::Length:
    case Kind::Mark:
    case Kind::FirstFile:
    case Kind::PerhapsShift:
    case Kind::Gap:
    case Kind::Misaligned:
    case Kind::Order:
        return Class::Note;
    case Kind::Cut:
    case Kind::Number:
    case Kind::Shift:
    case Kind::BeyondEnd:
    case Kind::Overlap:
    case Kind::Unreadable:
    case Kind::Name:
    case Kind::Collision:
        return Class::Fault;
    }
    return Class::Fault;
}

std::vector<Finding> Verify(const Archive& archive, const Device& device) {
    return Look(archive, device).All();
}

} // namespace Verification
