// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/posix/WineHive.h"

#include "platform/AnsiCodec.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QByteArrayView>

#include <cstring>
#include <ctime>

namespace {

constexpr qint64 NanosecondsPerSecond = 1'000'000'000;

/// A file that was written this short a time ago may be written again under the same time stamp.
constexpr qint64 SettlingNanoseconds = NanosecondsPerSecond;

qint64 NowNanoseconds() {
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    return now.tv_sec * NanosecondsPerSecond + now.tv_nsec;
}

char Folded(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte;
}

/// A hash without regard to case, over ASCII alone: letters beyond it are compared once the hash fits.
class KeyHash {
public:
    void Add(char byte) { hash_ = (hash_ ^ static_cast<uchar>(Folded(byte))) * 0x100000001B3U; }

    [[nodiscard]] std::size_t Result() const { return hash_; }

private:
    std::size_t hash_ = 0xCBF29CE484222325U;
};

std::size_t HashOfKey(const QString& key) {
    KeyHash hash;
    for (const QChar character : key) {
        if (character.unicode() < 0x80)
            hash.Add(static_cast<char>(character.unicode()));
    }
    return hash.Result();
}

/// Wine writes escapes for letters beyond ASCII. Whoever edited a hive by hand left letters of UTF-8, or of an old
/// page.
QString Decode(QByteArrayView bytes) {
    return bytes.isValidUtf8() ? QString::fromUtf8(bytes) : AnsiCodec::Decode(bytes);
}

/// The same hash for a key as a hive writes it. Nearly all escapes are doubled backslashes.
std::size_t HashOfWritten(QByteArrayView key) {
    KeyHash hash;
    for (qsizetype at = 0; at < key.size(); ++at) {
        if (key[at] == '\\' && at + 1 < key.size() && key[++at] != '\\')
            return HashOfKey(RegistryText::UnescapedKey(Decode(key)));
        if (static_cast<uchar>(key[at]) < 0x80)
            hash.Add(key[at]);
    }
    return hash.Result();
}

/// Where the next key's bracket stands at the start of a line, behind `from`; the end of the bytes when there is none.
qsizetype NextKey(const QByteArray& bytes, qsizetype from) {
    // Brackets are rarer than lines.
    qsizetype at = bytes.indexOf('[', from + 1);
    while (at > 0 && bytes[at - 1] != '\n')
        at = bytes.indexOf('[', at + 1);
    return at < 0 ? bytes.size() : at;
}

} // namespace

WineHive::WineHive(const QByteArray& path) : path_(Paths::FromNative(Paths::DecodeNative(path))) {}

RegistryValue WineHive::Read(const QString& key, const QString& name) const {
    if (!Refresh())
        return {};
    const std::size_t hash = HashOfKey(key);
    for (const Section& section : sections_) {
        if (section.KeyHash != hash)
            continue;
        RegistryValue value = ReadSection(section, key, name);
        if (value.Type != RegistryValue::Kind::Missing)
            return value;
    }
    return {};
}

bool WineHive::Refresh() const {
    const FileState found = StateOf(path_);
    if (found.Identity.isEmpty())
        return false;
    if (found == state_)
        return true;
    if (!Ignoring([&] { Index(ReadWhole(path_)); }))
        return false;
    state_ = NowNanoseconds() - found.Time > SettlingNanoseconds ? found : FileState();
    return true;
}

void WineHive::Index(const QByteArray& bytes) const {
    sections_.clear();
    for (qsizetype at = bytes.startsWith('[') ? 0 : NextKey(bytes, 0); at < bytes.size();) {
        const qsizetype end = NextKey(bytes, at);
        const void* found = std::memchr(bytes.constData() + at, '\n', static_cast<std::size_t>(end - at));
        const qsizetype lineEnd = found == nullptr ? end : static_cast<const char*>(found) - bytes.constData();
        const QByteArrayView line = QByteArrayView(bytes).sliced(at, lineEnd - at);
        const qsizetype close = line.lastIndexOf(']');
        if (close > 0)
            sections_.push_back({HashOfWritten(line.sliced(1, close - 1)), at, end});
        at = end;
    }
}

RegistryValue WineHive::ReadSection(const Section& section, const QString& key, const QString& name) const {
    QByteArray bytes;
    Ignoring([&] { bytes = File::Open(path_, File::Access::Read).Read(section.Start, section.End - section.Start); });
    const QString text = Decode(bytes);
    for (const RegistryText::Line& line : RegistryText::Parse(text, RegistryText::Flavour::WineHive)) {
        const bool ours =
            line.Type == RegistryText::Line::Kind::Value && line.Key.compare(key, Qt::CaseInsensitive) == 0;
        if (ours && line.Name.compare(name, Qt::CaseInsensitive) == 0)
            return RegistryText::ValueOf(line, RegistryText::Flavour::WineHive);
    }
    return {};
}
