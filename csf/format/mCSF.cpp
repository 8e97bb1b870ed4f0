// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/format/mCSF.h"

#include "big/format/BaseConvert.h"
#include "core/Host.h"
#include "core/mTraduction.h"
#include "platform/AnsiCodec.h"
#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/RuntimeError.h"

#include <QtEndian>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;
using NumberedFiles::Access;

namespace {

constexpr std::size_t ReadingSize = 65537;
constexpr qsizetype LanguageOffset = 20;
constexpr qsizetype FirstRecord = 24;

/// The bytes of the file; reading beyond their end raises.
class FileBytes {
public:
    explicit FileBytes(QByteArray bytes) : bytes_(std::move(bytes)) {}

    [[nodiscard]] qsizetype Length() const { return bytes_.size(); }

    [[nodiscard]] QByteArrayView At(qsizetype offset, quint64 count) const {
        if (offset > bytes_.size() || count > static_cast<quint64>(bytes_.size() - offset))
            throw RuntimeError(ErrorNumber::Subscript, u"the file ends too early"_s);
        return QByteArrayView(bytes_).sliced(offset, static_cast<qsizetype>(count));
    }

    [[nodiscard]] quint32 Number(qsizetype offset) const {
        return qFromLittleEndian<quint32>(At(offset, sizeof(quint32)).data());
    }

    /// Any mix of upper and lower case.
    [[nodiscard]] bool HasMark(qsizetype offset, QByteArrayView lowerCase) const {
        const QByteArrayView mark = At(offset, static_cast<quint64>(lowerCase.size()));
        return std::ranges::equal(mark, lowerCase, {}, [](char letter) {
            return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
        });
    }

private:
    QByteArray bytes_;
};

/// Walks the records by their marks; the counts in the header are not asked.
class Reader {
public:
    explicit Reader(const FileBytes& file) : file_(file) {}

    /// Returns how many entries were stored.
    std::size_t Read() {
        do {
            Round();
            Host::Current().Yield();
        } while (file_.Length() > position_);
        return index_;
    }

private:
    void Round() {
        if (file_.HasMark(position_, " lbl"))
            Label();
        else if (file_.HasMark(position_, " rts"))
            String();
        else
            position_ += 3; // Meant so: unknown data is passed in steps of three, over whatever lies between.
    }

    void Label() {
        const quint32 length = file_.Number(position_ + 8);
        name_ = AnsiCodec::Decode(file_.At(position_ + 12, length));
        position_ += 12 + static_cast<qsizetype>(length);
    }

    void String() {
        const quint32 length = file_.Number(position_ + 4);
        const QByteArrayView units = file_.At(position_ + 8, quint64{2} * length);
        low_.resize(static_cast<qsizetype>(length));
        char* low = low_.data();
        const char* unit = units.data();
        for (quint32 i = 0; i < length; ++i) // Meant so: the high byte is never looked at.
            low[i] = static_cast<char>(~unit[std::size_t{2} * i]);
        position_ += 8 + units.size();
        Store();
    }

    void Store() {
        if (index_ >= mCSF::CsfStrings.size()) // the table was replaced while the event loop ran
            throw RuntimeError(ErrorNumber::Subscript, u"the table is not that of this file"_s);
        mCSF::CsfStrings[index_] = {AnsiCodec::Decode(low_), name_};
        if (counter_ == std::numeric_limits<qint16>::max())
            throw RuntimeError(ErrorNumber::Overflow, u"more than 32,767 strings"_s);
        ++counter_;
        ++index_;
    }

    const FileBytes& file_;
    qsizetype position_ = FirstRecord;
    QString name_;
    QByteArray low_;
    std::size_t index_ = 0;
    qint16 counter_ = 0;
};

FileBytes WholeFile(const QString& path) {
    const qint64 length = Files::FileLength(path);
    if (length == 0)
        throw RuntimeError(ErrorNumber::Subscript, u"the file is empty"_s);
    mCSF::CsfStrings.clear();
    mCSF::CsfStrings.resize(ReadingSize);
    NumberedFiles::Open(mCSF::FileNumber, path, Access::Read);
    return FileBytes(NumberedFiles::Read(mCSF::FileNumber, 0, length));
}

qint32 ReadOpened(const FileBytes& file) {
    if (!file.HasMark(0, " fsc"))
        throw RuntimeError(ErrorNumber::TypeMismatch, u"not a CSF file"_s);
    static_cast<void>(file.Number(8)); // read and dropped: the file has to be that long
    const std::size_t count = Reader(file).Read();
    const int byte = static_cast<unsigned char>(file.At(LanguageOffset, 1).front());
    // Meant so: the number's decimal text is read as a hexadecimal one.
    const qint32 language = mBIG::BaseConvert(QString::number(byte), 16, 0).toInt();
    NumberedFiles::Close(mCSF::FileNumber);
    if (count == 0)
        throw RuntimeError(ErrorNumber::Subscript, u"no strings"_s);
    mCSF::CsfStrings.resize(count);
    return language;
}

} // namespace

namespace mCSF {

std::vector<CsfString> CsfStrings;

qint32 ReadTable(const QString& path) {
    try {
        return ReadOpened(WholeFile(path));
    } catch (...) {
        Ignoring([] { NumberedFiles::Close(mCSF::FileNumber); });
        throw;
    }
}

qint32 ReadCSF(const QString& path) {
    try {
        return ReadTable(path);
    } catch (const std::exception&) { // no room for the file, besides what the reader refuses
        Host::Current().Message(mTraduction::GetText(u"CSFError"_s), Host::Icon::Critical);
        return Refused;
    }
}

} // namespace mCSF
