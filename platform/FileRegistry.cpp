// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileRegistry.h"

#include "platform/AnsiCodec.h"
#include "platform/Files.h"
#include "platform/FolderLock.h"
#include "platform/Paths.h"
#include "platform/RegistryText.h"
#include "platform/RuntimeError.h"
#include "platform/WriteAside.h"

#include <QByteArrayView>
#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;
using RegistryText::Line;

namespace {

/// Nobody changes a registry for longer than a save takes; one who is stopped in it must not stop the others.
constexpr std::chrono::seconds patience{5};

constexpr QByteArrayView Utf16Mark("\xFF\xFE");
constexpr QByteArrayView Utf8Mark("\xEF\xBB\xBF");

bool Same(const QString& first, const QString& second) {
    return first.compare(second, Qt::CaseInsensitive) == 0;
}

bool IsBelow(const QString& key, const QString& above) {
    return key.size() > above.size() && key[above.size()] == u'\\' && key.startsWith(above, Qt::CaseInsensitive);
}

QString RootName(RootKey root) {
    switch (root) {
    case RootKey::ClassesRoot:
        return u"HKEY_CLASSES_ROOT"_s;
    case RootKey::CurrentUser:
        return u"HKEY_CURRENT_USER"_s;
    case RootKey::LocalMachine:
        return u"HKEY_LOCAL_MACHINE"_s;
    case RootKey::Users:
        break;
    }
    return u"HKEY_USERS"_s;
}

QString FullKey(RootKey root, const QString& path) {
    QString key = RootName(root) + u'\\' + path;
    while (key.endsWith(u'\\'))
        key.chop(1);
    return key;
}

/// The names under which a key may stand: the 32-bit programs' first, as the games are; last the key as it is named.
QStringList Spellings(RootKey root, const QString& path) {
    const QString software = u"Software\\"_s;
    QStringList spellings{FullKey(root, path)};
    if (root == RootKey::LocalMachine && path.startsWith(software, Qt::CaseInsensitive))
        spellings.prepend(FullKey(root, software + u"Wow6432Node\\"_s + path.sliced(software.size())));
    return spellings;
}

bool IsAscii(QByteArrayView bytes) {
    return std::ranges::all_of(bytes, [](char byte) { return static_cast<uchar>(byte) < 0x80; });
}

} // namespace

/// The file's text, taken apart.
struct FileRegistry::Document {
    explicit Document(QByteArray bytes);

    [[nodiscard]] QByteArray Encode(const QString& text) const;

    /// The line that gives the value: the last one, unless a later line deletes it.
    [[nodiscard]] const Line* Find(const QString& key, const QString& name) const;

    /// The last line that says something under the key; none when the key isn't there.
    [[nodiscard]] const Line* LastLineOf(const QString& key) const;

    [[nodiscard]] bool HasKeysBelow(const QString& key) const;

    // The new texts of changed files.
    [[nodiscard]] QString WithKey(const QString& key) const;
    [[nodiscard]] QString WithValue(const QString& key, const QString& name, const QString& line) const;
    template <typename Gone>
    QString Without(Gone gone) const;

    [[nodiscard]] bool Deletes(const Line& line, const QString& key) const {
        return line.Type == Line::Kind::DeletedKey && (Same(line.Key, key) || IsBelow(key, line.Key));
    }

    /// All up to a place, the last line ended, and by a blank one a list that would go on with the next line.
    [[nodiscard]] QString Before(qsizetype end) const {
        QString start = Text.first(end);
        if (!start.isEmpty() && !start.endsWith(u'\n'))
            start += LineEnd;
        return QStringView(start).trimmed().endsWith(u'\\') ? start + LineEnd : start;
    }

    enum class Encoding { Ansi, Utf8, UnmarkedUtf8, Utf16 };

    QByteArray Bytes;
    Encoding Form = Encoding::Ansi;
    QString Text;
    RegistryText::Flavour Flavour = RegistryText::Flavour::AnsiExport;
    QString LineEnd;
    std::vector<Line> Lines;
};

FileRegistry::Document::Document(QByteArray bytes) : Bytes(std::move(bytes)) {
    if (Bytes.startsWith(Utf16Mark)) {
        Form = Encoding::Utf16;
        for (qsizetype at = Utf16Mark.size(); at + 1 < Bytes.size(); at += 2)
            Text += QChar(static_cast<uchar>(Bytes[at]), static_cast<uchar>(Bytes[at + 1]));
    } else if (Bytes.startsWith(Utf8Mark)) {
        Form = Encoding::Utf8;
        Text = QString::fromUtf8(QByteArrayView(Bytes).sliced(Utf8Mark.size()));
    } else if (!IsAscii(Bytes) && QByteArrayView(Bytes).isValidUtf8()) {
        // What is no UTF-8 is mostly seen by its first letter beyond ASCII.
        Form = Encoding::UnmarkedUtf8;
        Text = QString::fromUtf8(Bytes);
    } else {
        Text = AnsiCodec::Decode(Bytes);
    }
    if (Text.startsWith(u"Windows Registry Editor"_s))
        Flavour = RegistryText::Flavour::WideExport;
    LineEnd = Text.contains(u'\n') && !Text.contains(u"\r\n"_s) ? u"\n"_s : u"\r\n"_s;
    Lines = RegistryText::Parse(Text, Flavour);
}

QByteArray FileRegistry::Document::Encode(const QString& text) const {
    if (Form == Encoding::Ansi) {
        // Bytes of the page that would be read as UTF-8 are written as such.
        const QByteArray ansi = AnsiCodec::Encode(text);
        return !IsAscii(ansi) && QByteArrayView(ansi).isValidUtf8() ? text.toUtf8() : ansi;
    }
    if (Form == Encoding::UnmarkedUtf8)
        return text.toUtf8();
    if (Form == Encoding::Utf8)
        return Utf8Mark.toByteArray() + text.toUtf8();
    QByteArray bytes = Utf16Mark.toByteArray();
    for (const QChar character : text)
        bytes.append(static_cast<char>(character.cell())).append(static_cast<char>(character.row()));
    return bytes;
}

const Line* FileRegistry::Document::Find(const QString& key, const QString& name) const {
    for (auto line = Lines.rbegin(); line != Lines.rend(); ++line) {
        if (Deletes(*line, key))
            return nullptr;
        if (line->Type < Line::Kind::Value || !Same(line->Name, name) || !Same(line->Key, key))
            continue;
        return line->Type == Line::Kind::Value ? &*line : nullptr;
    }
    return nullptr;
}

const Line* FileRegistry::Document::LastLineOf(const QString& key) const {
    for (auto line = Lines.rbegin(); line != Lines.rend(); ++line) {
        if (Deletes(*line, key))
            return nullptr;
        const QStringView content = QStringView(Text).sliced(line->Start, line->End - line->Start);
        if (Same(line->Key, key) && !content.trimmed().isEmpty())
            return &*line;
    }
    return nullptr;
}

bool FileRegistry::Document::HasKeysBelow(const QString& key) const {
    return std::any_of(Lines.begin(), Lines.end(), [&](const Line& line) {
        return line.Type == Line::Kind::Key && IsBelow(line.Key, key) && LastLineOf(line.Key) != nullptr;
    });
}

QString FileRegistry::Document::WithKey(const QString& key) const {
    const QString start = Text.isEmpty() ? u"REGEDIT4"_s + LineEnd : Before(Text.size());
    return start + LineEnd + u'[' + key + u']' + LineEnd;
}

QString FileRegistry::Document::WithValue(const QString& key, const QString& name, const QString& line) const {
    if (const Line* standing = Find(key, name))
        return Text.first(standing->Start) + line + LineEnd + Text.sliced(standing->End);
    if (const Line* last = LastLineOf(key))
        return Before(last->End) + line + LineEnd + Text.sliced(last->End);
    return WithKey(key) + line + LineEnd;
}

template <typename Gone>
QString FileRegistry::Document::Without(Gone gone) const {
    QString text;
    for (const Line& line : Lines) {
        if (!gone(line))
            text += QStringView(Text).sliced(line.Start, line.End - line.Start);
    }
    return text;
}

FileRegistry::FileRegistry(QString nativePath)
    : path_(std::move(nativePath)),
      now_(std::make_unique<Document>(QByteArray())) {}

FileRegistry::~FileRegistry() = default;

RegistryValue FileRegistry::Read(RootKey root, const QString& path, const QString& name) const {
    if (!Load())
        return {};
    for (const QString& key : Spellings(root, path)) {
        if (const Line* line = now_->Find(key, name))
            return RegistryText::ValueOf(*line, now_->Flavour);
    }
    return {};
}

bool FileRegistry::Write(RootKey root, const QString& path, const QString& name, const RegistryValue& value) {
    const auto lock = Lock();
    if (!lock || !Load())
        return false;
    const QStringList keys = Spellings(root, path);
    const auto standing = std::ranges::find_if(keys, [&](const QString& key) { return now_->Find(key, name); });
    const QString key = standing == keys.end() ? keys.last() : *standing;
    return Store(now_->WithValue(key, name, RegistryText::Format(name, value, now_->Flavour)));
}

bool FileRegistry::AddKey(RootKey root, const QString& path) {
    const QString key = FullKey(root, path);
    const auto lock = Lock();
    return lock && Load() && (now_->LastLineOf(key) != nullptr || Store(now_->WithKey(key)));
}

bool FileRegistry::RemoveKey(RootKey root, const QString& path) {
    const auto lock = Lock();
    if (!lock || !Load())
        return false;
    const QStringList keys = Spellings(root, path);
    if (std::any_of(keys.begin(), keys.end(), [&](const QString& key) { return now_->HasKeysBelow(key); }))
        return false;
    return Store(now_->Without([&](const Line& line) {
        return line.Type != Line::Kind::DeletedKey && keys.contains(line.Key, Qt::CaseInsensitive);
    }));
}

bool FileRegistry::RemoveValue(RootKey root, const QString& path, const QString& name) {
    const auto lock = Lock();
    if (!lock || !Load())
        return false;
    const QStringList keys = Spellings(root, path);
    return Store(now_->Without([&](const Line& line) {
        return line.Type == Line::Kind::Value && Same(line.Name, name) && keys.contains(line.Key, Qt::CaseInsensitive);
    }));
}

bool FileRegistry::Load() const {
    QByteArray bytes;
    if (!Ignoring([&] { bytes = WholeOrNothing(InsidePath()); })) {
        refused_ = true;
        return false;
    }
    // The bytes tell for certain whether the file changed; times and sizes don't.
    if (bytes != now_->Bytes)
        *now_ = Document(bytes);
    return true;
}

std::optional<FolderLock> FileRegistry::Lock() const {
    const QString folder = Paths::FromNative(QDir::toNativeSeparators(QFileInfo(path_).path()));
    if (!Ignoring([&] { Files::MakeFolders(folder); }))
        return std::nullopt;
    return FolderLock::WaitedFor(folder, patience);
}

bool FileRegistry::Store(const QString& text) {
    if (text == now_->Text)
        return true;
    return Ignoring([&] { WriteWhole(InsidePath(), now_->Encode(text)); });
}

QString FileRegistry::InsidePath() const {
    return Paths::FromNative(QDir::toNativeSeparators(path_));
}
