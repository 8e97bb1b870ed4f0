// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/format/CsfWriting.h"

#include "platform/AnsiCodec.h"
#include "platform/Device.h"
#include "platform/RuntimeError.h"

#include <QtEndian>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 Version = 3;
constexpr qint64 CountOffset = 8;
constexpr qint64 FirstRecord = 24;
constexpr qsizetype RecordOverhead = 20;

QByteArray Number(quint64 value) {
    QByteArray bytes(sizeof(quint32), Qt::Uninitialized);
    qToLittleEndian(static_cast<quint32>(value), bytes.data());
    return bytes;
}

/// Gathers the records and hands them to the device in large pieces.
class RecordWriter {
public:
    explicit RecordWriter(Device& device) : device_(device) {}

    void Append(const CsfString& entry) {
        const qsizetype most = RecordOverhead + entry.Name.size() + 2 * entry.Value.size();
        if (filled_ + most > buffer_.size()) {
            WriteGathered();
            buffer_.resize(std::max(most, Piece));
        }
        char* place = PutMark(buffer_.data() + filled_, " LBL", 1);
        const qsizetype nameLength = AnsiCodec::EncodeInto(entry.Name, place + sizeof(quint32));
        place = PutNumber(place, nameLength) + nameLength;
        const qsizetype valueLength = EncodeValue(entry.Value);
        place = PutMark(place, " RTS", valueLength);
        const char* bytes = value_.constData();
        for (qsizetype i = 0; i < valueLength; ++i)
            qToLittleEndian(static_cast<quint16>(~static_cast<unsigned char>(bytes[i])), place + 2 * i);
        filled_ = place + 2 * valueLength - buffer_.data();
    }

    void WriteGathered() {
        device_.Write(at_, QByteArrayView(buffer_).first(filled_));
        at_ += filled_;
        filled_ = 0;
    }

    /// The first byte behind what was written.
    [[nodiscard]] qint64 End() const { return at_; }

private:
    static constexpr qsizetype Piece = qsizetype{256} * 1024;

    static char* PutNumber(char* place, qsizetype number) {
        qToLittleEndian(static_cast<quint32>(number), place);
        return place + sizeof(quint32);
    }

    static char* PutMark(char* place, QByteArrayView mark, qsizetype number) {
        return PutNumber(std::ranges::copy(mark, place).out, number);
    }

    qsizetype EncodeValue(const QString& value) {
        if (value_.size() < value.size())
            value_.resize(value.size());
        return AnsiCodec::EncodeInto(value, value_.data());
    }

    Device& device_;
    QByteArray buffer_;
    QByteArray value_;
    qsizetype filled_ = 0;
    qint64 at_ = FirstRecord;
};

} // namespace

namespace CsfWriting {

QByteArray LanguageField(int language) {
    if (language < 0 || language > 255)
        throw RuntimeError(ErrorNumber::InvalidCall, u"%1 is no language number"_s.arg(language));
    return Number(static_cast<quint64>(language));
}

void WriteHeader(Device& device, std::size_t count, const QByteArray& language) {
    device.Write(0, " FSC" + Number(Version));
    if (count == 0)
        throw RuntimeError(ErrorNumber::Subscript, u"a table without strings"_s);
    device.Write(CountOffset, Number(count) + Number(count) + Number(0) + language);
}

qint64 WriteRecords(Device& device, std::span<const CsfString> strings) {
    RecordWriter records(device);
    for (const CsfString& entry : strings)
        records.Append(entry);
    records.WriteGathered();
    return records.End();
}

} // namespace CsfWriting
