// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RegistryRuntime.h"

#include "platform/FileRegistry.h"
#include "platform/windows/System.h"

#include <QByteArray>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const wchar_t* Wide(const QString& text) {
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

/// Machine-wide keys are those of 32-bit programs, as the games are.
REGSAM ViewOf(RootKey root) {
    return root == RootKey::LocalMachine ? KEY_WOW64_32KEY : 0;
}

/// The system's handle for a root key: its 32 bits, with the sign carried on as the system's own constants do.
HKEY HandleOf(RootKey root) {
    return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(root)));
}

/// An open key, closed with its scope.
class OpenKey {
public:
    enum class Making { Existing, New };

    OpenKey(RootKey root, const QString& path, REGSAM access, Making making) {
        if (making == Making::New)
            ::RegCreateKeyExW(HandleOf(root), Wide(path), 0, nullptr, 0, access | ViewOf(root), nullptr, &key_,
                              nullptr);
        else
            ::RegOpenKeyExW(HandleOf(root), Wide(path), 0, access | ViewOf(root), &key_);
    }

    ~OpenKey() {
        if (key_ != nullptr)
            ::RegCloseKey(key_);
    }

    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;

    [[nodiscard]] HKEY Key() const { return key_; }

private:
    HKEY key_ = nullptr;
};

RegistryValue TextOf(HKEY key, const QString& name, DWORD size) {
    QString buffer(static_cast<qsizetype>((size + 1) / sizeof(wchar_t)), u' ');
    const LSTATUS status =
        ::RegQueryValueExW(key, Wide(name), nullptr, nullptr, reinterpret_cast<BYTE*>(buffer.data()), &size);
    return {RegistryValue::Kind::Text, status == ERROR_SUCCESS ? buffer : QString(), 0};
}

RegistryValue ReadSystem(RootKey root, const QString& path, const QString& name) {
    // Whether the key opened is not looked at: the query fails on the key that there isn't.
    const OpenKey open(root, path, KEY_QUERY_VALUE, OpenKey::Making::Existing);
    DWORD type = 0;
    DWORD size = 0;
    if (::RegQueryValueExW(open.Key(), Wide(name), nullptr, &type, nullptr, &size) != ERROR_SUCCESS)
        return {};
    if (type == REG_SZ)
        return TextOf(open.Key(), name, size);
    DWORD number = 0;
    DWORD length = sizeof(number);
    const bool isNumber =
        type == REG_DWORD && ::RegQueryValueExW(open.Key(), Wide(name), nullptr, nullptr,
                                                reinterpret_cast<BYTE*>(&number), &length) == ERROR_SUCCESS;
    return {isNumber ? RegistryValue::Kind::Number : RegistryValue::Kind::Other, {}, number};
}

void SaveSystem(RootKey root, const QString& path, const QString& name, DWORD type, const void* data, DWORD size) {
    const OpenKey made(root, path, KEY_SET_VALUE, OpenKey::Making::New);
    ::RegSetValueExW(made.Key(), Wide(name), 0, type, static_cast<const BYTE*>(data), size);
}

} // namespace

/// The system's registry, or the file that stands for it.
class RegistryRuntime::Source {
public:
    Source() {
        const QString named = qEnvironmentVariable("BRINDOCK_REGISTRY");
        if (!named.isEmpty())
            File.emplace(named);
    }

    [[nodiscard]] RegistryValue Read(RootKey root, const QString& path, const QString& name) const {
        return File ? File->Read(root, path, name) : ReadSystem(root, path, name);
    }

    std::optional<FileRegistry> File;
};

RegistryRuntime::RegistryRuntime() : source_(std::make_unique<Source>()) {}

RegistryRuntime::~RegistryRuntime() = default;

void RegistryRuntime::SaveKey(RootKey root, const QString& path) {
    if (source_->File)
        source_->File->AddKey(root, path);
    else
        const OpenKey made(root, path, KEY_SET_VALUE, OpenKey::Making::New);
}

QString RegistryRuntime::GetString(RootKey root, const QString& path, const QString& name) const {
    const RegistryValue value = source_->Read(root, path, name);
    const qsizetype zero = value.Text.indexOf(QChar(0));
    return zero < 0 ? value.Text : value.Text.first(zero);
}

void RegistryRuntime::SaveString(RootKey root, const QString& path, const QString& name, const QString& text) {
    if (source_->File) {
        source_->File->Write(root, path, name, {RegistryValue::Kind::Text, text, 0});
        return;
    }
    // The length is that of the characters alone, so that no zero is stored behind them. The system would add a zero
    // that it sees there, so it sees a blank. This is meant.
    const QString seen = text + u' ';
    SaveSystem(root, path, name, REG_SZ, seen.utf16(), static_cast<DWORD>(text.size() * sizeof(wchar_t)));
}

quint32 RegistryRuntime::GetDword(RootKey root, const QString& path, const QString& name) const {
    return source_->Read(root, path, name).Number;
}

void RegistryRuntime::SaveDword(RootKey root, const QString& path, const QString& name, quint32 value) {
    if (source_->File)
        source_->File->Write(root, path, name, {RegistryValue::Kind::Number, {}, value});
    else
        SaveSystem(root, path, name, REG_DWORD, &value, sizeof(value));
}

void RegistryRuntime::DeleteKey(RootKey root, const QString& path) {
    if (source_->File)
        source_->File->RemoveKey(root, path);
    else
        ::RegDeleteKeyExW(HandleOf(root), Wide(path), ViewOf(root), 0);
}

void RegistryRuntime::DeleteValue(RootKey root, const QString& path, const QString& name) {
    if (source_->File) {
        source_->File->RemoveValue(root, path, name);
        return;
    }
    const OpenKey open(root, path, KEY_SET_VALUE, OpenKey::Making::Existing);
    ::RegDeleteValueW(open.Key(), Wide(name));
}

QString RegistryRuntime::FoundIn(RootKey root, const QString& path, const QString& name) const {
    if (source_->Read(root, path, name).Type == RegistryValue::Kind::Missing)
        return {};
    return source_->File ? source_->File->Path() : u"registry"_s;
}

QString RegistryRuntime::PrefixOf(RootKey /*root*/, const QString& /*path*/, const QString& /*name*/) const {
    return {};
}

std::vector<RegistryRuntime::Place> RegistryRuntime::Places(RootKey root, const QString& path,
                                                            const QString& name) const {
    if (source_->Read(root, path, name).Type != RegistryValue::Kind::Text)
        return {};
    return {{.Text = GetString(root, path, name), .FoundIn = FoundIn(root, path, name), .Prefix = {}}};
}

bool RegistryRuntime::WasReadable() {
    return !source_->File || source_->File->WasReadable();
}

void RegistryRuntime::LookFirstIn(const QString& /*prefix*/) {
    // There are no Wine prefixes on Windows.
}
