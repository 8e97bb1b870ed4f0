// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/INIRuntime.h"

#include "platform/Paths.h"
#include "platform/posix/ProfileText.h"
#include "platform/posix/WholeFile.h"

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// The buffer of 255 characters that values are read into holds one zero behind them.
constexpr qsizetype LongestValue = 254;

} // namespace

QString INIRuntime::ReadINI(const QString& section, const QString& key, const QString& file) const {
    const auto bytes = WholeFile::Read(Paths::EncodeNative(Paths::ToNative(file)));
    return bytes ? ProfileText(*bytes).Read(section, key).left(LongestValue) : QString();
}

QString INIRuntime::WriteINI(const QString& section, const QString& key, const QString& value,
                             const QString& file) const {
    const QByteArray path = Paths::EncodeNative(Paths::ToNative(file));
    const auto bytes = WholeFile::Read(path);
    if (!bytes && ::access(path.constData(), F_OK) == 0)
        return u"0"_s;
    const QByteArray old = bytes.value_or(QByteArray());
    const QByteArray changed = ProfileText(old).Write(section, key, value);
    const bool done = (bytes && changed == old) || WholeFile::Replace(path, changed);
    return done ? u"1"_s : u"0"_s;
}
