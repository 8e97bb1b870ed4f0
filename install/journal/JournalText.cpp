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

QString HashText(const QByteArray& hash) {
    return QString::fromLatin1(hash.toHex());
}

QJsonObject Object(const JournalFile& file) {
    QJsonObject object{{u"path"_s, file.Path}, {u"replaced"_s, file.Replaced}};
    if (!file.Hash.isEmpty()) {
        object.insert(u"hash"_s, HashText(file.Hash));
        object.insert(u"length"_s, file.Length);
    }
    if (!file.Kept.isEmpty()) {
        object.insert(u"kept"_s, file.Kept);
        object.insert(u"keptHash"_s, HashText(file.KeptHash));
    }
    return object;
}

QJsonObject Object(const JournalEntry& entry) {
    QJsonArray files;
    for (const JournalFile& file : entry.Files)
        files.append(Object(file));
    return {{u"id"_s, entry.Id},
            {u"time"_s, entry.Time.toUTC().toString(Qt::ISODate)},
            {u"source"_s, entry.Source},
            {u"sourceHash"_s, HashText(entry.SourceHash)},
            {u"game"_s, GameText(entry.Game)},
            {u"state"_s, StateText(entry.How)},
            {u"folders"_s, QJsonArray::fromStringList(entry.Folders)},
            {u"files"_s, files}};
}

QString TextOf(const QJsonValue& value) {
    Require(value.isString());
    return value.toString();
}

/// Empty, or a hash of its full length.
QByteArray HashOfText(const QString& text) {
    static const QRegularExpression form(u"\\A([0-9a-f]{64})?\\z"_s);
    static_assert(HashBytes == 32);
    Require(form.match(text).hasMatch());
    return QByteArray::fromHex(text.toLatin1());
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

QByteArray Line(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

QByteArray JournalText::Encode(const Journal& journal) {
    QJsonArray installs;
    for (const JournalEntry& entry : journal.Entries)
        installs.append(Object(entry));
    const QJsonObject object{
        {u"format"_s, Format}, {u"hash"_s, HashName()}, {u"next"_s, journal.NextId}, {u"installs"_s, installs}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
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
    return Line(Object(file));
}

QByteArray JournalText::FolderLine(const QString& folder) {
    return Line({{u"folder"_s, folder}});
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
