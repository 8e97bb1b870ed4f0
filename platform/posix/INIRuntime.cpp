// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/INIRuntime.h"

#include "platform/File.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "platform/WriteAside.h"
#include "platform/posix/ProfileText.h"

using namespace Qt::StringLiterals;

namespace {

/// The buffer of 255 characters that values are read into holds one zero behind them.
constexpr qsizetype LongestValue = 254;

/// Most files are shorter, and in a longer one the value mostly stands at its beginning.
constexpr qint64 Beginning = 65536;

QString Read(const File& file, const QString& section, const QString& key) {
    const QByteArray beginning = file.Read(0, Beginning);
    if (beginning.size() < Beginning)
        return ProfileText(beginning).Read(section, key);
    const std::optional<QString> value = ProfileText(beginning).ReadFromBeginning(section, key);
    return value ? *value : ProfileText(file.Read(0, file.Length())).Read(section, key);
}

} // namespace

QString INIRuntime::ReadINI(const QString& section, const QString& key, const QString& file) const {
    QString value;
    Ignoring([&] { value = Read(File::Open(file, File::Access::Read), section, key); });
    return value.left(LongestValue);
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
