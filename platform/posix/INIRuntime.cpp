// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/INIRuntime.h"

#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "platform/WriteAside.h"
#include "platform/posix/ProfileText.h"

using namespace Qt::StringLiterals;

namespace {

/// The buffer of 255 characters that values are read into holds one zero behind them.
constexpr qsizetype LongestValue = 254;

} // namespace

QString INIRuntime::ReadINI(const QString& section, const QString& key, const QString& file) const {
    QByteArray bytes;
    Ignoring([&] { bytes = ReadWhole(file); });
    return ProfileText(bytes).Read(section, key).left(LongestValue);
}

QString INIRuntime::WriteINI(const QString& section, const QString& key, const QString& value,
                             const QString& file) const {
    const bool done = Ignoring([&] {
        const bool there = Files::FileExists(file);
        const QByteArray old = there ? ReadWhole(file) : QByteArray();
        const QByteArray changed = ProfileText(old).Write(section, key, value);
        if (!there || changed != old)
            WriteWhole(file, changed);
    });
    return done ? u"1"_s : u"0"_s;
}
