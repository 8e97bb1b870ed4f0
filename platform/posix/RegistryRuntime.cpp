// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RegistryRuntime.h"

#include "platform/FileRegistry.h"
#include "platform/Paths.h"
#include "platform/posix/OwnFolder.h"
#include "platform/posix/WineHive.h"
#include "platform/posix/WinePrefixes.h"

#include <QDir>

#include <algorithm>
#include <deque>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// The registry of one Wine prefix.
class WinePrefix {
public:
    explicit WinePrefix(QString folder)
        : folder_(std::move(folder)),
          machine_(Paths::EncodeNative(folder_ + u"/system.reg"_s)),
          user_(Paths::EncodeNative(folder_ + u"/user.reg"_s)) {}

    [[nodiscard]] const QString& Folder() const { return folder_; }

    [[nodiscard]] RegistryValue Read(RootKey root, const QString& path, const QString& name) const {
        switch (root) {
        case RootKey::CurrentUser:
            return user_.Read(path, name);
        case RootKey::LocalMachine:
            return ReadMachine(path, name);
        case RootKey::ClassesRoot:
            return ReadMachine(u"Software\\Classes\\"_s + path, name);
        case RootKey::Users:
            break;
        }
        return {};
    }

private:
    /// The 32-bit programs' view first.
    [[nodiscard]] RegistryValue ReadMachine(const QString& path, const QString& name) const {
        const QString software = u"Software\\"_s;
        RegistryValue value;
        if (path.startsWith(software, Qt::CaseInsensitive))
            value = machine_.Read(software + u"Wow6432Node\\"_s + path.sliced(software.size()), name);
        return value.Type == RegistryValue::Kind::Missing ? machine_.Read(path, name) : value;
    }

    QString folder_;
    WineHive machine_;
    WineHive user_;
};

QString WithoutEndSeparators(QString path) {
    while (path.endsWith(u'\\'))
        path.chop(1);
    return path;
}

} // namespace

class RegistryRuntime::Source {
public:
    struct Found {
        RegistryValue Value;
        const WinePrefix* Prefix = nullptr; ///< none for the suite's own file
    };

    Source() : Own(OwnRegistryFile()) {}

    [[nodiscard]] Found Find(RootKey root, const QString& keyPath, const QString& name) const {
        const QString path = WithoutEndSeparators(keyPath);
        const RegistryValue own = Own.Read(root, path, name);
        if (own.Type != RegistryValue::Kind::Missing)
            return {own, nullptr};
        for (const WinePrefix* prefix : InOrder()) {
            const RegistryValue value = prefix->Read(root, path, name);
            if (value.Type != RegistryValue::Kind::Missing)
                return {value, prefix};
        }
        return {};
    }

    [[nodiscard]] std::vector<Found> FindAll(RootKey root, const QString& keyPath, const QString& name) const {
        const QString path = WithoutEndSeparators(keyPath);
        std::vector<Found> found{{Own.Read(root, path, name), nullptr}};
        for (const WinePrefix* prefix : InOrder())
            found.push_back({prefix->Read(root, path, name), prefix});
        std::erase_if(found, [](const Found& one) { return one.Value.Type != RegistryValue::Kind::Text; });
        return found;
    }

    [[nodiscard]] static QString TextOf(const Found& found) {
        if (found.Value.Type != RegistryValue::Kind::Text)
            return {};
        const qsizetype zero = found.Value.Text.indexOf(QChar(0));
        return zero < 0 ? found.Value.Text : found.Value.Text.first(zero);
    }

    [[nodiscard]] QString PlaceOf(const Found& found) const {
        return found.Prefix == nullptr ? Own.Path() : found.Prefix->Folder();
    }

    void PutFirst(const QString& folder) { first_ = folder.isEmpty() ? folder : QDir::cleanPath(folder); }

    FileRegistry Own;

private:
    [[nodiscard]] std::vector<const WinePrefix*> InOrder() const {
        if (!searched_) {
            for (const QString& folder : WinePrefixes::Find())
                prefixes_.emplace_back(folder);
            searched_ = true;
        }
        const auto isFirst = [this](const auto& prefix) { return prefix.Folder() == first_; };
        if (!first_.isEmpty() && std::none_of(prefixes_.begin(), prefixes_.end(), isFirst))
            prefixes_.emplace_back(first_);
        std::vector<const WinePrefix*> order;
        for (const WinePrefix& prefix : prefixes_)
            order.insert(isFirst(prefix) ? order.begin() : order.end(), &prefix);
        return order;
    }

    QString first_;
    mutable bool searched_ = false;           ///< the machine is searched once the own file lacks a value
    mutable std::deque<WinePrefix> prefixes_; ///< their addresses stay
};

RegistryRuntime::RegistryRuntime() : source_(std::make_unique<Source>()) {}

RegistryRuntime::~RegistryRuntime() = default;

void RegistryRuntime::SaveKey(RootKey root, const QString& path) {
    source_->Own.AddKey(root, path);
}

QString RegistryRuntime::GetString(RootKey root, const QString& path, const QString& name) const {
    return Source::TextOf(source_->Find(root, path, name));
}

void RegistryRuntime::SaveString(RootKey root, const QString& path, const QString& name, const QString& text) {
    source_->Own.Write(root, path, name, {RegistryValue::Kind::Text, text, 0});
}

quint32 RegistryRuntime::GetDword(RootKey root, const QString& path, const QString& name) const {
    return source_->Find(root, path, name).Value.Number;
}

void RegistryRuntime::SaveDword(RootKey root, const QString& path, const QString& name, quint32 value) {
    source_->Own.Write(root, path, name, {RegistryValue::Kind::Number, {}, value});
}

void RegistryRuntime::DeleteKey(RootKey root, const QString& path) {
    source_->Own.RemoveKey(root, path);
}

void RegistryRuntime::DeleteValue(RootKey root, const QString& path, const QString& name) {
    source_->Own.RemoveValue(root, path, name);
}

QString RegistryRuntime::FoundIn(RootKey root, const QString& path, const QString& name) const {
    const Source::Found found = source_->Find(root, path, name);
    if (found.Value.Type == RegistryValue::Kind::Missing)
        return {};
    return source_->PlaceOf(found);
}

QString RegistryRuntime::PrefixOf(RootKey root, const QString& path, const QString& name) const {
    const Source::Found found = source_->Find(root, path, name);
    return found.Prefix == nullptr ? QString() : found.Prefix->Folder();
}

std::vector<RegistryRuntime::Place> RegistryRuntime::Places(RootKey root, const QString& path,
                                                            const QString& name) const {
    std::vector<Place> places;
    for (const Source::Found& found : source_->FindAll(root, path, name))
        places.push_back({.Text = Source::TextOf(found),
                          .FoundIn = source_->PlaceOf(found),
                          .Prefix = found.Prefix == nullptr ? QString() : found.Prefix->Folder()});
    return places;
}

bool RegistryRuntime::WasReadable() {
    return source_->Own.WasReadable();
}

void RegistryRuntime::LookFirstIn(const QString& prefix) {
    source_->PutFirst(prefix);
}
