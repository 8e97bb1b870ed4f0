// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/journal/JournalText.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int Format = 1;
constexpr qsizetype HashBytes = 32;

QString HashName() {
    return u"blake2b-256"_s;
}

/// What is wrong with a text that is read is not asked: it is no journal then.
struct NoJournal {};

void Require(bool holds) {
    if (!holds)
        throw NoJournal();
}

QString StateText(JournalEntry::State state) {
    switch (state) {
    case JournalEntry::State::Running:
        return u"running"_s;
    case JournalEntry::State::BrokenOff:
        return u"broken off"_s;
    case JournalEntry::State::Ended:
        break;
    }
    return u"ended"_s;
}

QString GameText(GameIndex game) {
    return SettingsPrefix(game).toLower();
}

// Written by hand: twenty thousand files are no more than a moment of their installation.

void AddEscaped(QByteArray& json, QByteArrayView utf8) {
    for (const char letter : utf8) {
        if (letter == '"' || letter == '\\')
            json += '\\';
        else if (static_cast<unsigned char>(letter) < ' ') {
            json += "\\u00" + QByteArray::number(letter + 0x100, 16).last(2);
            continue;
        }
        json += letter;
    }
}

/// The text as far as it is plain: most are to their end. Returns how far that is.
qsizetype AddPlain(QByteArray& json, QStringView text) {
    const qsizetype before = json.size();
    json.resize(before + 2 * text.size());
    char* to = json.data() + before;
    qsizetype at = 0;
    for (; at < text.size() && text[at] >= u' ' && text[at] <= u'~'; ++at) {
        if (text[at] == u'"' || text[at] == u'\\')
            *to++ = '\\';
        *to++ = static_cast<char>(text[at].unicode());
    }
    json.resize(to - json.constData());
    return at;
}

/// A surrogate that stands alone, a byte of a name that is no text, is none in UTF-8.
void AddAny(QByteArray& json, QStringView text) {
    qsizetype from = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool isPair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        if (isPair) {
            ++at;
            continue;
        }
        if (!text[at].isSurrogate())
            continue;
        AddEscaped(json, text.sliced(from, at - from).toUtf8());
        json += "\\u" + QByteArray::number(text[at].unicode(), 16);
        from = at + 1;
    }
    AddEscaped(json, text.sliced(from).toUtf8());
}

/// A text in quotes.
void AddText(QByteArray& json, QStringView text) {
    json += '"';
    if (const qsizetype plain = AddPlain(json, text); plain < text.size())
        AddAny(json, text.sliced(plain));
    json += '"';
}

void AddHex(QByteArray& json, QByteArrayView bytes) {
    constexpr char digits[] = "0123456789abcdef";
    const qsizetype before = json.size();
    json.resize(before + 2 * bytes.size());
    char* to = json.data() + before;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        *to++ = digits[value >> 4U];
        *to++ = digits[value & 0xFU];
    }
}

void AddMember(QByteArray& json, QByteArrayView name, const QString& text) {
    json += name;
    AddText(json, text);
}

void AddFile(QByteArray& json, const JournalFile& file) {
    AddMember(json, "{\"path\":", file.Path);
    json += file.Replaced ? ",\"replaced\":true" : ",\"replaced\":false";
    if (!file.Hash.isEmpty()) {
        json += ",\"hash\":\"";
        AddHex(json, file.Hash);
        json += "\",\"length\":";
        json += QByteArray::number(file.Length);
    }
    if (!file.Kept.isEmpty()) {
        AddMember(json, ",\"kept\":", file.Kept);
        json += ",\"keptHash\":\"" + file.KeptHash.toHex() + '"';
    }
    json += '}';
}

void AddEntry(QByteArray& json, const JournalEntry& entry) {
    json += "{\"id\":" + QByteArray::number(entry.Id);
    AddMember(json, ",\"time\":", entry.Time.toUTC().toString(Qt::ISODate));
    AddMember(json, ",\"source\":", entry.Source);
    json += ",\"sourceHash\":\"" + entry.SourceHash.toHex() + '"';
    AddMember(json, ",\"game\":", GameText(entry.Game));
    AddMember(json, ",\"state\":", StateText(entry.How));
    json += ",\"folders\":[";
    for (const QString& folder : entry.Folders) {
        AddText(json, folder);
        json += ',';
    }
    if (json.endsWith(','))
        json.chop(1);
    json += "],\n\"files\":[";
    for (const JournalFile& file : entry.Files) {
        AddFile(json, file);
        json += ",\n";
    }
    if (!entry.Files.empty())
        json.chop(2);
    json += "]}";
}

QString TextOf(const QJsonValue& value) {
    Require(value.isString());
    return value.toString();
}

/// Empty, or a hash of its full length.
QByteArray HashOfText(const QString& text) {
    QByteArray hash = QByteArray::fromHex(text.toLatin1());
    Require(hash.size() * 2 == text.size() && (hash.isEmpty() || hash.size() == HashBytes));
    return hash;
}

/// What was put aside lies in an install's own folder and nowhere else.
QString KeptOf(const QString& text) {
    static const QRegularExpression form(u"\\A[0-9]{1,9}\\\\[0-9]{1,9}\\z"_s);
    Require(form.match(text).hasMatch());
    return text;
}

JournalFile FileOf(const QJsonValue& value) {
    Require(value.isObject());
    const QJsonObject object = value.toObject();
    JournalFile file{.Path = TextOf(object[u"path"_s])};
    Require(file.Path.contains(u'\\') && object[u"replaced"_s].isBool());
    file.Replaced = object[u"replaced"_s].toBool();
    if (object.contains(u"hash"_s)) {
        file.Hash = HashOfText(TextOf(object[u"hash"_s]));
        file.Length = object[u"length"_s].toInteger(-1);
        Require(!file.Hash.isEmpty() && file.Length >= 0);
    }
    if (object.contains(u"kept"_s)) {
        file.Kept = KeptOf(TextOf(object[u"kept"_s]));
        file.KeptHash = HashOfText(TextOf(object[u"keptHash"_s]));
        Require(!file.KeptHash.isEmpty());
    }
    return file;
}

template <typename Value>
Value OneOf(const QString& text, const std::vector<Value>& values, QString (*textOf)(Value)) {
    const auto found = std::ranges::find(values, text, textOf);
    Require(found != values.end());
    return *found;
}

JournalEntry EntryOf(const QJsonValue& value) {
    using State = JournalEntry::State;
    Require(value.isObject());
    const QJsonObject object = value.toObject();
    JournalEntry entry;
    entry.Id = object[u"id"_s].toInt();
    entry.Time = QDateTime::fromString(TextOf(object[u"time"_s]), Qt::ISODate);
    Require(entry.Id > 0 && entry.Time.isValid());
    entry.Source = TextOf(object[u"source"_s]);
    entry.SourceHash = HashOfText(TextOf(object[u"sourceHash"_s]));
    entry.Game = OneOf<GameIndex>(TextOf(object[u"game"_s]), {0, 1, 2, 3}, GameText);
    entry.How = OneOf<State>(TextOf(object[u"state"_s]), {State::Running, State::Ended, State::BrokenOff}, StateText);
    Require(object[u"folders"_s].isArray() && object[u"files"_s].isArray());
    const QJsonArray folders = object[u"folders"_s].toArray();
    for (const auto& folder : folders)
        entry.Folders.append(TextOf(folder));
    const QJsonArray files = object[u"files"_s].toArray();
    entry.Files.reserve(static_cast<std::size_t>(files.size()));
    for (const auto& file : files)
        entry.Files.push_back(FileOf(file));
    return entry;
}

Journal JournalOf(const QJsonObject& object) {
    Require(object[u"format"_s].toInt() == Format && TextOf(object[u"hash"_s]) == HashName());
    Require(object[u"installs"_s].isArray());
    Journal journal;
    journal.NextId = object[u"next"_s].toInt();
    int before = 0;
    const QJsonArray installs = object[u"installs"_s].toArray();
    for (const auto& value : installs) {
        journal.Entries.push_back(EntryOf(value));
        Require(journal.Entries.back().Id > std::exchange(before, journal.Entries.back().Id));
    }
    Require(journal.NextId > before);
    return journal;
}

} // namespace

QByteArray JournalText::Encode(const Journal& journal) {
    QByteArray json = "{\"format\":" + QByteArray::number(Format);
    AddMember(json, ",\"hash\":", HashName());
    json += ",\"next\":" + QByteArray::number(journal.NextId) + ",\"installs\":[";
    for (const JournalEntry& entry : journal.Entries) {
        AddEntry(json += '\n', entry);
        json += ',';
    }
    if (json.endsWith(','))
        json.chop(1);
    return json + "]}\n";
}

std::optional<Journal> JournalText::Decode(const QByteArray& bytes) {
    try {
        const QJsonDocument document = QJsonDocument::fromJson(bytes);
        Require(document.isObject());
        return JournalOf(document.object());
    } catch (const NoJournal&) {
        return std::nullopt;
    }
}

QByteArray JournalText::FileLine(const JournalFile& file) {
    constexpr qsizetype usual = 512;
    QByteArray json;
    json.reserve(usual);
    AddFile(json, file);
    json += '\n';
    return json;
}

QByteArray JournalText::FolderLine(const QString& folder) {
    QByteArray json;
    AddMember(json, "{\"folder\":", folder);
    return json + "}\n";
}

void JournalText::ReadLines(const QByteArray& lines, JournalEntry& entry) {
    QHash<QString, std::size_t> places;
    for (std::size_t place = 0; place < entry.Files.size(); ++place)
        places.insert(JournalKey(entry.Files[place].Path), place);
    const auto take = [&](const QJsonObject& object) {
        if (object.contains(u"folder"_s)) {
            entry.Folders.append(TextOf(object[u"folder"_s]));
            return;
        }
        const JournalFile file = FileOf(object);
        const auto [at, isNew] =
            std::pair(places.constFind(JournalKey(file.Path)), !places.contains(JournalKey(file.Path)));
        if (isNew) {
            places.insert(JournalKey(file.Path), entry.Files.size());
            entry.Files.push_back(file);
        } else {
            entry.Files[*at] = file;
        }
    };
    for (const QByteArray& line : lines.split('\n')) {
        try {
            take(QJsonDocument::fromJson(line).object());
        } catch (const NoJournal&) {
            continue; // the last one, where the process died in it
        }
    }
}
