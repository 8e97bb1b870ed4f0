// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/format/CsfWhole.h"

#include "platform/AnsiCodec.h"
#include "platform/RuntimeError.h"

#include <QHash>
#include <QtEndian>

#include <algorithm>
#include <functional>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype HeaderSize = 24;
constexpr qsizetype NumberSize = sizeof(quint32);
constexpr qsizetype UnitSize = sizeof(char16_t);

bool IsMark(const std::array<char, 4>& mark, QByteArrayView lowerCase) {
    return std::ranges::equal(mark, lowerCase, {}, [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
}

} // namespace

class CsfWholeReader {
public:
    explicit CsfWholeReader(QByteArrayView file) : file_(file) {}

    CsfWhole Read() {
        CsfWhole table;
        table.mark_ = TakeMark();
        if (!IsMark(table.mark_, " fsc"))
            Refuse(0, u"not a CSF file"_s);
        table.version_ = Number();
        const CsfWhole::Counts told{Number(), Number()};
        table.reserved_ = Number();
        table.language_ = Number();
        while (at_ < file_.size())
            Label(table.records_);
        const CsfWhole::Counts counted = table.Counted();
        table.extra_ = {told.Labels - counted.Labels, told.Strings - counted.Strings};
        return table;
    }

private:
    [[noreturn]] static void Refuse(qsizetype offset, const QString& reason) {
        throw RuntimeError(ErrorNumber::TypeMismatch, u"offset %1: %2"_s.arg(offset).arg(reason));
    }

    QByteArrayView Take(quint64 count) {
        if (count > static_cast<quint64>(file_.size() - at_))
            Refuse(at_, u"the file ends too early"_s);
        const QByteArrayView taken = file_.sliced(at_, static_cast<qsizetype>(count));
        at_ += taken.size();
        return taken;
    }

    std::array<char, 4> TakeMark() {
        std::array<char, 4> mark{};
        std::ranges::copy(Take(mark.size()), mark.begin());
        return mark;
    }

    quint32 Number() { return qFromLittleEndian<quint32>(Take(NumberSize).data()); }

    void Label(std::vector<CsfWhole::Record>& records) {
        CsfWhole::Record record;
        const qsizetype begin = at_;
        record.LabelMark = TakeMark();
        if (!IsMark(record.LabelMark, " lbl"))
            Refuse(begin, u"no label begins here"_s);
        const quint32 strings = Number();
        record.Entry.Name = AnsiCodec::Decode(Take(Number()));
        record.HasString = strings > 0;
        if (!record.HasString)
            return records.push_back(std::move(record));
        for (quint32 string = 0; string < strings; ++string) {
            CsfWhole::Record next = record;
            next.Entry.IsMore = string > 0;
            String(next);
            records.push_back(std::move(next));
        }
    }

    void String(CsfWhole::Record& record) {
        const qsizetype begin = at_;
        record.StringMark = TakeMark();
        const bool hasExtra = IsMark(record.StringMark, "wrts");
        if (!hasExtra && !IsMark(record.StringMark, " rts"))
            Refuse(begin, u"no string begins here"_s);
        const QByteArrayView units = Take(quint64{UnitSize} * Number());
        record.Entry.Value.resize(units.size() / UnitSize);
        QChar* letter = record.Entry.Value.data();
        for (qsizetype at = 0; at < units.size(); at += UnitSize)
            *letter++ = QChar(static_cast<char16_t>(~qFromLittleEndian<quint16>(units.data() + at)));
        if (hasExtra)
            record.Entry.Extra = Take(Number()).toByteArray();
    }

    QByteArrayView file_;
    qsizetype at_ = 0;
};

namespace {

/// Puts the parts of a file behind each other.
class Writer {
public:
    explicit Writer(QByteArray& bytes) : bytes_(bytes) {}

    void Mark(const std::array<char, 4>& mark) {
        bytes_.append(QByteArrayView(mark.data(), mark.data() + mark.size()));
    }

    void Number(quint32 number) {
        std::array<char, NumberSize> bytes{};
        qToLittleEndian(number, bytes.data());
        bytes_.append(QByteArrayView(bytes.data(), NumberSize));
    }

    void Data(QByteArrayView data) {
        Length(data.size());
        bytes_.append(data);
    }

    void Text(QStringView text) {
        Length(text.size());
        const qsizetype begin = bytes_.size();
        bytes_.resize(begin + text.size() * UnitSize);
        char* place = bytes_.data() + begin;
        for (const QChar letter : text) {
            qToLittleEndian(static_cast<quint16>(~letter.unicode()), place);
            place += UnitSize;
        }
    }

private:
    void Length(qsizetype length) {
        if (length > qsizetype{std::numeric_limits<quint32>::max()})
            throw RuntimeError(ErrorNumber::Overflow, u"a text is too long for the format"_s);
        Number(static_cast<quint32>(length));
    }

    QByteArray& bytes_;
};

/// Pairs the entries of one name before and after a change: all in their order where they are as many, else those first
/// that are the same. `is` tells by their places whether two are.
void Pair(std::vector<std::size_t> before, std::vector<std::size_t> after, std::vector<std::size_t>& origins,
          const std::function<bool(std::size_t, std::size_t)>& isSame) {
    if (before.size() != after.size()) {
        auto old = before.begin();
        std::erase_if(after, [&](std::size_t place) {
            const auto found = std::find_if(old, before.end(), [&](std::size_t one) { return isSame(one, place); });
            if (found == before.end())
                return false;
            origins[place] = *found;
            old = before.erase(found);
            return true;
        });
    }
    for (std::size_t i = 0; i < std::min(before.size(), after.size()); ++i)
        origins[after[i]] = before[i];
}

} // namespace

CsfWhole CsfWhole::Read(QByteArrayView bytes) {
    return CsfWholeReader(bytes).Read();
}

CsfWhole CsfWhole::Of(const CsfTable& table) {
    CsfWhole whole;
    whole.Take(table);
    return whole;
}

CsfTable CsfWhole::Table() const {
    CsfTable table{static_cast<qint32>(language_), {}};
    table.Strings.reserve(records_.size());
    for (const Record& record : records_)
        if (record.HasString)
            table.Strings.push_back(record.Entry);
    return table;
}

std::vector<std::size_t> CsfWhole::PlacesOfStrings() const {
    std::vector<std::size_t> strings;
    for (std::size_t place = 0; place < records_.size(); ++place)
        if (records_[place].HasString)
            strings.push_back(place);
    return strings;
}

std::vector<qsizetype> CsfWhole::StringOffsets() const {
    std::vector<qsizetype> offsets;
    qsizetype at = HeaderSize;
    for (const Record& record : records_) {
        if (!record.Entry.IsMore)
            at += 3 * NumberSize + record.Entry.Name.size(); // a byte a letter
        if (!record.HasString)
            continue;
        offsets.push_back(at);
        at += 2 * NumberSize + UnitSize * record.Entry.Value.size();
        if (record.Entry.Extra)
            at += NumberSize + record.Entry.Extra->size();
    }
    return offsets;
}

QStringList CsfWhole::BareLabels() const {
    QStringList names;
    for (const Record& record : records_)
        if (!record.HasString)
            names += record.Entry.Name;
    return names;
}

bool CsfWhole::HasPlainHeader() const {
    constexpr quint32 version = 3;
    constexpr quint32 digits = 10; // from there on the number that is read is another one
    return version_ == version && reserved_ == 0 && language_ < digits;
}

/// For each of a changed table's strings the place of the record that it was; behind all for a new one.
std::vector<std::size_t> CsfWhole::OriginsOf(const CsfTable& table) const {
    const std::vector<std::size_t> strings = PlacesOfStrings();
    std::vector<std::size_t> origins(table.Strings.size(), records_.size());
    // Most tables have few changes: what stands before and behind these is told by its place.
    const auto sameNames = [&](std::size_t old, std::size_t now) {
        return records_[strings[old]].Entry.Name == table.Strings[now].Name;
    };
    std::size_t begin = 0;
    for (; begin < std::min(strings.size(), origins.size()) && sameNames(begin, begin); ++begin)
        origins[begin] = strings[begin];
    std::size_t oldEnd = strings.size();
    std::size_t end = origins.size();
    for (; oldEnd > begin && end > begin && sameNames(oldEnd - 1, end - 1); --oldEnd, --end)
        origins[end - 1] = strings[oldEnd - 1];
    QHash<QString, std::vector<std::size_t>> before;
    for (std::size_t old = begin; old < oldEnd; ++old)
        before[records_[strings[old]].Entry.Name].push_back(strings[old]);
    QHash<QString, std::vector<std::size_t>> after;
    for (std::size_t now = begin; now < end; ++now)
        after[table.Strings[now].Name].push_back(now);
    const auto isSame = [&](std::size_t old, std::size_t now) { return records_[old].Entry == table.Strings[now]; };
    for (auto name = after.cbegin(); name != after.cend(); ++name)
        Pair(before.value(name.key()), name.value(), origins, isSame);
    return origins;
}

void CsfWhole::Record::Take(const CsfString& entry) {
    Entry = entry;
    if (entry.Extra.has_value() != IsMark(StringMark, "wrts"))
        StringMark = entry.Extra ? MarkWithExtra : Record().StringMark;
}

void CsfWhole::Take(const CsfTable& table) {
    TakeFrom(table, OriginsOf(table));
}

void CsfWhole::Take(const CsfTable& table, const std::vector<int>& strings) {
    const std::vector<std::size_t> places = PlacesOfStrings();
    std::vector<std::size_t> origins;
    origins.reserve(strings.size());
    for (const int string : strings)
        origins.push_back(string < 0 ? records_.size() : places.at(static_cast<std::size_t>(string)));
    TakeFrom(table, origins);
}

void CsfWhole::TakeFrom(const CsfTable& table, const std::vector<std::size_t>& origins) {
    language_ = static_cast<quint32>(table.Language);
    // Most changes are of values alone, and moving all records costs more than a look.
    if (origins != PlacesOfStrings())
        Arrange(origins);
    std::size_t place = 0;
    for (const CsfString& entry : table.Strings) {
        while (!records_[place].HasString)
            ++place;
        records_[place].Take(entry);
        bool& isMore = records_[place].Entry.IsMore;
        isMore = isMore && place > 0 && records_[place - 1].HasString && records_[place - 1].Entry.Name == entry.Name;
        ++place;
    }
}

void CsfWhole::Arrange(const std::vector<std::size_t>& origins) {
    std::vector<std::size_t> newPlaces(records_.size()); // counted from 1; 0 for what is gone
    std::vector<Placed> placed;
    placed.reserve(origins.size());
    for (std::size_t i = 0; i < origins.size(); ++i) {
        const bool isOld = origins[i] < records_.size();
        if (isOld)
            newPlaces[origins[i]] = i + 1;
        placed.push_back({2 * (i + 1), isOld ? std::move(records_[origins[i]]) : Record()});
    }
    // A label without a string follows the last string before it that is still there.
    std::size_t last = 0;
    for (std::size_t place = 0; place < records_.size(); ++place) {
        if (!records_[place].HasString)
            placed.push_back({2 * last + 1, std::move(records_[place])});
        else if (newPlaces[place] > 0)
            last = newPlaces[place];
    }
    std::ranges::stable_sort(placed, {}, &Placed::Order);
    records_.clear();
    records_.reserve(placed.size());
    for (Placed& next : placed)
        records_.push_back(std::move(next.Is));
}

CsfWhole::Counts CsfWhole::Counted() const {
    Counts counted;
    for (const Record& record : records_) {
        counted.Labels += record.Entry.IsMore ? 0 : 1;
        counted.Strings += record.HasString ? 1 : 0;
    }
    return counted;
}

QByteArray CsfWhole::Bytes() const {
    constexpr qsizetype mostAround = 24; // marks and numbers of an entry
    qsizetype size = HeaderSize;
    for (const Record& record : records_)
        size += mostAround + record.Entry.Name.size() + UnitSize * record.Entry.Value.size();
    QByteArray bytes;
    bytes.reserve(size);
    Writer writer(bytes);
    writer.Mark(mark_);
    writer.Number(version_);
    const Counts counted = Counted();
    writer.Number(counted.Labels + extra_.Labels);
    writer.Number(counted.Strings + extra_.Strings);
    writer.Number(reserved_);
    writer.Number(language_);
    for (auto record = records_.begin(); record != records_.end(); ++record) {
        if (!record->Entry.IsMore) {
            writer.Mark(record->LabelMark);
            const auto next =
                std::find_if(record + 1, records_.end(), [](const Record& other) { return !other.Entry.IsMore; });
            writer.Number(record->HasString ? static_cast<quint32>(next - record) : 0);
            writer.Data(AnsiCodec::Encode(record->Entry.Name));
        }
        if (!record->HasString)
            continue;
        writer.Mark(record->StringMark);
        writer.Text(record->Entry.Value);
        if (record->Entry.Extra)
            writer.Data(*record->Entry.Extra);
    }
    return bytes;
}
