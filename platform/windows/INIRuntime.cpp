// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/INIRuntime.h"

#include "platform/AnsiCodec.h"
#include "platform/windows/System.h"

#include <QByteArray>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The path in the ANSI code page; where that lacks a character, the short name that the system keeps for it.
QByteArray AnsiPath(const QString& path) {
    QByteArray ansi = AnsiCodec::Encode(path);
    if (AnsiCodec::Decode(ansi) == path)
        return ansi;
    std::array<wchar_t, MAX_PATH> name{};
    const DWORD length = ::GetShortPathNameW(reinterpret_cast<const wchar_t*>(path.utf16()), name.data(),
                                             static_cast<DWORD>(name.size()));
    const bool found = length > 0 && length < name.size();
    return found ? AnsiCodec::Encode(QString::fromWCharArray(name.data(), static_cast<qsizetype>(length))) : ansi;
}

} // namespace

QString INIRuntime::ReadINI(const QString& section, const QString& key, const QString& file) const {
    std::array<char, 255> buffer{};
    const DWORD length =
        ::GetPrivateProfileStringA(AnsiCodec::Encode(section).constData(), AnsiCodec::Encode(key).constData(), "",
                                   buffer.data(), static_cast<DWORD>(buffer.size()), AnsiPath(file).constData());
    return AnsiCodec::Decode(QByteArrayView(buffer.data(), static_cast<qsizetype>(length)));
}

QStringList INIRuntime::ReadValues(const QString& section, const QStringList& keys, const QString& file) const {
    QStringList values;
    for (const QString& key : keys)
        values.append(ReadINI(section, key, file));
    return values;
}

QString INIRuntime::WriteINI(const QString& section, const QString& key, const QString& value,
                             const QString& file) const {
    const QByteArray path = AnsiPath(file);
    const BOOL done =
        ::WritePrivateProfileStringA(AnsiCodec::Encode(section).constData(), AnsiCodec::Encode(key).constData(),
                                     AnsiCodec::Encode(value).constData(), path.constData());
    // The system may keep files in memory; without a section it puts them on the disk, and always answers 0.
    ::WritePrivateProfileStringA(nullptr, nullptr, nullptr, path.constData());
    return QString::number(done);
}
