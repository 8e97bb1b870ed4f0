// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The registry: seven operations on named values.
///
/// On Windows it is the system's, the 32-bit view for machine-wide keys. Elsewhere reads look first in the suite's own
/// per-user file, then in the Wine prefixes on the machine, and writes go to the suite's own file. BRINDOCK_REGISTRY
/// names another file (and makes Windows use a file too); BRINDOCK_WINE_PREFIXES names the prefixes, separated by
/// colons, in place of those found; empty for none.
#pragma once

#include <QString>

#include <memory>
#include <vector>

/// Root keys by the platform's 32-bit handles.
enum class RootKey : quint32 {
    ClassesRoot = 0x80000000U,
    CurrentUser = 0x80000001U,
    LocalMachine = 0x80000002U,
    Users = 0x80000003U,
};

class RegistryRuntime {
public:
    RegistryRuntime();
    ~RegistryRuntime();
    RegistryRuntime(const RegistryRuntime&) = delete;
    RegistryRuntime& operator=(const RegistryRuntime&) = delete;

    /// Creates the key.
    void SaveKey(RootKey root, const QString& path);

    /// The text of a REG_SZ value, cut at its first zero character; empty when missing or of any other type.
    [[nodiscard]] QString GetString(RootKey root, const QString& path, const QString& name) const;

    /// Stores a REG_SZ without a terminating zero, creating the key.
    void SaveString(RootKey root, const QString& path, const QString& name, const QString& text);

    /// The value of a REG_DWORD; 0 when missing or of any other type.
    [[nodiscard]] quint32 GetDword(RootKey root, const QString& path, const QString& name) const;

    /// Stores a REG_DWORD, creating the key.
    void SaveDword(RootKey root, const QString& path, const QString& name, quint32 value);

    /// Deletes a key that has no keys below it.
    void DeleteKey(RootKey root, const QString& path);

    void DeleteValue(RootKey root, const QString& path, const QString& name);

    /// Where GetString takes its text from, as a person's system writes it: the registry file, the Wine prefix, or
    /// "registry" on Windows. Empty when the value is missing.
    [[nodiscard]] QString FoundIn(RootKey root, const QString& path, const QString& name) const;

    /// The Wine prefix (native folder) that holds the value; empty when it comes from anywhere else.
    [[nodiscard]] QString PrefixOf(RootKey root, const QString& path, const QString& name) const;

    /// A place that holds a text under the name.
    struct Place {
        QString Text;
        QString FoundIn; ///< as FoundIn says it
        QString Prefix;  ///< as PrefixOf says it
    };

    /// All of them, in the order in which they are looked at.
    [[nodiscard]] std::vector<Place> Places(RootKey root, const QString& path, const QString& name) const;

    /// The next reads look in this Wine prefix before the others (the suite's own file stays first). Empty for none.
    void LookFirstIn(const QString& prefix);

    /// False when the suite's own settings could not be read at some time since this was asked last: what read as
    /// missing then need not be.
    [[nodiscard]] bool WasReadable();

private:
    class Source;
    std::unique_ptr<Source> source_;
};
