// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ProfileText.h"

#include "platform/AnsiCodec.h"
#include "platform/CodePage.h"

#include <QStringDecoder>

#include <algorithm>

namespace {

constexpr QByteArrayView Utf8Mark("\xEF\xBB\xBF");
constexpr QByteArrayView Utf16Mark("\xFF\xFE");

/// The end-of-file mark of old systems counts as a blank.
bool IsBlank(char byte) {
    return byte == ' ' || (byte >= '\t' && byte <= '\r') || byte == '\x1A';
}

struct Range {
    qsizetype Start;
    qsizetype End;
};

Range Trimmed(QByteArrayView bytes, Range range) {
    while (range.Start < range.End && IsBlank(bytes[range.Start]))
        ++range.Start;
    while (range.End > range.Start && IsBlank(bytes[range.End - 1]))
        --range.End;
    return range;
}

QByteArrayView Trimmed(QByteArrayView bytes) {
    const Range range = Trimmed(bytes, {0, bytes.size()});
    return bytes.sliced(range.Start, range.End - range.Start);
}

/// A text up to its first zero byte.
QByteArrayView UpToZero(QByteArrayView bytes) {
    const qsizetype zero = bytes.indexOf('\0');
    return zero < 0 ? bytes : bytes.first(zero);
}

/// The lines of a file, each without its end (CR LF, LF or CR). Between CR and LF lies one more blank line.
class Lines {
public:
    explicit Lines(QByteArrayView bytes) : bytes_(bytes) {}

    /// Passes over the lines before the next one that holds the character.
    void SkipTo(char character) {
        const qsizetype found = bytes_.indexOf(character, at_);
        if (found < 0) {
            at_ = bytes_.size();
            return;
        }
        const auto between = bytes_.sliced(at_, found - at_);
        at_ += std::max(between.lastIndexOf('\n'), between.lastIndexOf('\r')) + 1;
    }

    bool Next(Range& line) {
        if (at_ >= bytes_.size())
            return false;
        if (at_ > feed_) {
            const qsizetype found = bytes_.indexOf('\n', at_);
            feed_ = found < 0 ? bytes_.size() : found;
        }
        const qsizetype carriage = bytes_.sliced(at_, feed_ - at_).indexOf('\r');
        line = {at_, carriage < 0 ? feed_ : at_ + carriage};
        at_ = line.End + 1;
        return true;
    }

private:
    QByteArrayView bytes_;
    qsizetype at_ = 0;
    qsizetype feed_ = -1; ///< the end of the stretch without line feeds that is being read
};

qsizetype BehindLineEnd(QByteArrayView bytes, qsizetype at) {
    if (at < bytes.size() && bytes[at] == '\r')
        ++at;
    return at < bytes.size() && bytes[at] == '\n' ? at + 1 : at;
}

QByteArrayView WithoutQuotes(QByteArrayView value) {
    const bool quoted =
        value.size() > 1 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.sliced(1, value.size() - 2) : value;
}

bool IsAscii(QByteArrayView bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return static_cast<uchar>(byte) < 0x80; });
}

} // namespace

ProfileText::ProfileText(const QByteArray& bytes) {
    if (bytes.startsWith(Utf16Mark)) {
        encoding_ = Encoding::Utf16;
        QString text;
        for (qsizetype at = Utf16Mark.size(); at + 1 < bytes.size(); at += 2)
            text += QChar(static_cast<uchar>(bytes[at]), static_cast<uchar>(bytes[at + 1]));
        bytes_ = text.toUtf8();
    } else if (bytes.startsWith(Utf8Mark)) {
        encoding_ = Encoding::Utf8;
        bytes_ = bytes.sliced(Utf8Mark.size());
    } else {
        bytes_ = bytes;
    }
}

QString ProfileText::Read(const QString& section, const QString& key) const {
    return ValueAt(Locate(section, key));
}

std::optional<QString> ProfileText::ReadFromBeginning(const QString& section, const QString& key) const {
    const Place place = Locate(section, key);
    return place.Settled ? std::optional(ValueAt(place)) : std::nullopt;
}

QString ProfileText::ValueAt(const Place& place) const {
    if (!place.KeyFound)
        return {};
    const QByteArrayView written = QByteArrayView(bytes_).sliced(place.ValueStart, place.ValueEnd - place.ValueStart);
    return Decode(WithoutQuotes(Trimmed(UpToZero(written))));
}

QByteArray ProfileText::Write(const QString& section, const QString& key, const QString& value) const {
    QByteArray written = Encode(value);
    const auto* const start = std::find_if_not(written.begin(), written.end(), IsBlank);
    written.remove(0, start - written.begin());
    const Place place = Locate(section, key);
    if (place.KeyFound && !place.HasEqualSign)
        written.prepend('=');
    if (place.KeyFound)
        return WithMark(bytes_.first(place.ValueStart) + written + bytes_.sliced(place.ValueEnd));

    QByteArray before = bytes_.first(place.SectionFound ? place.SectionEnd : bytes_.size());
    if (!before.isEmpty() && !before.endsWith('\n') && !before.endsWith('\r'))
        before += "\r\n";
    if (!place.SectionFound)
        before += '[' + Encode(section.trimmed()) + "]\r\n";
    return WithMark(before + Encode(key.trimmed()) + '=' + written + "\r\n" +
                    (place.SectionFound ? bytes_.sliced(place.SectionEnd) : QByteArray()));
}

ProfileText::Place ProfileText::Locate(const QString& section, const QString& key) const {
    const QString askedSection = section.trimmed();
    const QString askedKey = key.trimmed();
    const QByteArray sectionBytes = Encode(askedSection);
    const QByteArray keyBytes = Encode(askedKey);
    const QByteArrayView bytes(bytes_);
    Place place;
    place.SectionFound = askedSection.isEmpty();
    Lines lines(bytes);
    for (Range line{}; true;) {
        if (!place.SectionFound)
            lines.SkipTo('[');
        if (!lines.Next(line))
            break;
        const Range content = Trimmed(bytes, line);
        const QByteArrayView text = bytes.sliced(content.Start, content.End - content.Start);
        if (text.isEmpty())
            continue;
        const qsizetype close = text.front() == '[' ? text.lastIndexOf(']') : -1;
        if (close > 0) {
            place.Settled = place.SectionFound && line.End < bytes.size();
            if (place.SectionFound)
                break;
            place.SectionFound = Same(Trimmed(UpToZero(text.sliced(1, close - 1))), askedSection, sectionBytes);
        }
        if (!place.SectionFound)
            continue;
        place.SectionEnd = BehindLineEnd(bytes, line.End);
        const qsizetype equal = text.indexOf('=');
        const QByteArrayView name = equal < 0 ? text : text.first(equal);
        if (close > 0 || !Same(Trimmed(UpToZero(name)), askedKey, keyBytes))
            continue;
        place.KeyFound = true;
        place.Settled = line.End < bytes.size();
        place.HasEqualSign = equal >= 0;
        const Range value = Trimmed(bytes, {equal < 0 ? content.End : content.Start + equal + 1, line.End});
        place.ValueStart = value.Start;
        place.ValueEnd = value.End;
        break;
    }
    return place;
}

bool ProfileText::Same(QByteArrayView written, const QString& asked, const QByteArray& askedBytes) const {
    if (IsAscii(askedBytes))
        return written.size() == askedBytes.size() &&
               qstrnicmp(written.data(), written.size(), askedBytes.constData(), askedBytes.size()) == 0;
    return Decode(written).compare(asked, Qt::CaseInsensitive) == 0;
}

QByteArray ProfileText::Encode(const QString& text) const {
    const QByteArray ansi = AnsiCodec::Encode(text);
    return encoding_ == Encoding::Ansi ? ansi : AnsiCodec::Decode(ansi).toUtf8();
}

QString ProfileText::Decode(QByteArrayView bytes) const {
    if (page_ && encoding_ != Encoding::Ansi)
        return QString::fromUtf8(bytes);
    if (page_) {
        if (const auto text = CodePage::Decode(*page_, bytes))
            return *text;
    }
    return encoding_ == Encoding::Ansi ? AnsiCodec::Decode(bytes)
                                       : AnsiCodec::Decode(AnsiCodec::Encode(QString::fromUtf8(bytes)));
}

QByteArray ProfileText::WithMark(const QByteArray& bytes) const {
    if (encoding_ == Encoding::Ansi)
        return bytes;
    if (encoding_ == Encoding::Utf8)
        return Utf8Mark.toByteArray() + bytes;
    QByteArray wide = Utf16Mark.toByteArray();
    // A second mark is a part of the text, and stays.
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    const QString text = decode(bytes);
    for (const QChar character : text)
        wide.append(static_cast<char>(character.cell())).append(static_cast<char>(character.row()));
    return wide;
}
