// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/format/mCSF.h"

#include "core/Host.h"
#include "platform/AnsiCodec.h"
#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/Processes.h"
#include "platform/RuntimeError.h"

#include <QtEndian>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;
using NumberedFiles::Access;

namespace {

constexpr quint32 Version = 3;
constexpr qint64 CountOffset = 8;
constexpr qint64 FirstRecord = 24;
constexpr qsizetype RecordOverhead = 20;

QByteArray Number(qsizetype value) {
    QByteArray bytes(sizeof(quint32), Qt::Uninitialized);
    qToLittleEndian(static_cast<quint32>(value), bytes.data());
    return bytes;
}

/// Four bytes, of which the first is the character of that code.
QByteArray LanguageField(qint16 language) {
    if (language < 0 || language > 255)
        throw RuntimeError(ErrorNumber::InvalidCall, u"%1 is no language number"_s.arg(language));
    return Number(language);
}

void WriteHeader(const QByteArray& language) {
    NumberedFiles::Write(mCSF::FileNumber, 0, " FSC" + Number(Version));
    if (mCSF::CsfStrings.empty())
        throw RuntimeError(ErrorNumber::Subscript, u"a table without strings"_s);
    const QByteArray count = Number(static_cast<qsizetype>(mCSF::CsfStrings.size()));
    NumberedFiles::Write(mCSF::FileNumber, CountOffset, count + count + Number(0) + language);
}

/// How many entries are written. Meant so: the upper bound is a 16-bit number, and one that does not fit stays 0.
std::size_t WrittenCount() {
    const std::size_t upperBound = mCSF::CsfStrings.size() - 1;
    return upperBound > std::size_t{std::numeric_limits<qint16>::max()} ? 1 : upperBound + 1;
}

/// Gathers the records and hands them to the file in large pieces.
class RecordWriter {
public:
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
        NumberedFiles::Write(mCSF::FileNumber, at_, QByteArrayView(buffer_).first(filled_));
        at_ += filled_;
        filled_ = 0;
    }

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

    QByteArray buffer_;
    QByteArray value_;
    qsizetype filled_ = 0;
    qint64 at_ = FirstRecord;
};

/// Writes the records behind the header; raises when they are not all on the disk.
void WriteRecords(bool replacing) {
    const std::size_t count = WrittenCount();
    RecordWriter records;
    for (std::size_t i = 0; i < count; ++i)
        records.Append(mCSF::CsfStrings[i]);
    records.WriteGathered();
    if (replacing)
        NumberedFiles::Flush(mCSF::FileNumber);
    NumberedFiles::Close(mCSF::FileNumber);
    if (count < mCSF::CsfStrings.size())
        throw RuntimeError(ErrorNumber::Overflow, u"more than 32,768 strings"_s);
}

/// The new file with its header; the old one stands aside under `aside`.
void OpenTarget(const QString& path, const QString& aside, const QByteArray& language) {
    try {
        if (Files::FileExists(path))
            Files::Rename(path, aside);
        NumberedFiles::Open(mCSF::FileNumber, path, Access::ReadWrite);
        WriteHeader(language);
    } catch (...) {
        Ignoring([] { NumberedFiles::Close(mCSF::FileNumber); });
        throw;
    }
}

/// The language of this message does not follow the user's. This is meant.
QString FatalText(const RuntimeError& error) {
    return u"Une erreur s'est produite, l'application va se terminer. Veuillez signaler cette erreur au concepteur du "
           u"programme\r\n\r\nDétails :\r\nErreur n° "_s +
           QString::number(error.Number()) + u" : "_s + error.Description() + u", source : Brindock"_s;
}

} // namespace

namespace mCSF {

std::function<void()> EndProgram = [] { Processes::End(1); };

QString WriteTable(const QString& path, qint16 language) {
    const QString aside = path + u".sav"_s;
    OpenTarget(path, aside, LanguageField(language));
    const bool replacing = Files::FileExists(aside);
    try {
        WriteRecords(replacing);
        if (replacing)
            Files::DeleteForced(aside);
    } catch (const RuntimeError& error) {
        Ignoring([] { NumberedFiles::Close(mCSF::FileNumber); });
        return error.Description();
    }
    return {};
}

bool WriteCSF(const QString& path, qint16 language) {
    try {
        return WriteTable(path, language).isEmpty();
    } catch (const RuntimeError& error) {
        Host::Current().Message(FatalText(error), Host::Icon::Critical, Host::Buttons::Ok, {});
        EndProgram();
        return false;
    }
}

} // namespace mCSF
