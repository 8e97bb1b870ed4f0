// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/MediaJob.h"

#include "platform/Paths.h"

#include <QByteArrayList>

#include <cstring>

namespace {

constexpr auto SoundWord = "sound";
constexpr auto PictureWord = "picture";

QByteArray Word(const QString& path) {
    const QString seen = Paths::FromNative(Paths::ToNative(path));
    const auto* bytes = reinterpret_cast<const char*>(seen.utf16());
    return QByteArray(bytes, seen.size() * static_cast<qsizetype>(sizeof(QChar))).toBase64();
}

QString Path(const QByteArray& word) {
    const QByteArray bytes = QByteArray::fromBase64(word);
    QString path(bytes.size() / static_cast<qsizetype>(sizeof(QChar)), Qt::Uninitialized);
    std::memcpy(path.data(), bytes.constData(), static_cast<std::size_t>(path.size()) * sizeof(QChar));
    return path;
}

} // namespace

QByteArray MediaJob::Line() const {
    return (What == Kind::Sound ? SoundWord : PictureWord) + (' ' + Word(Source)) + ' ' + Word(Target) + '\n';
}

MediaJob MediaJob::OfLine(const QByteArray& line) {
    const QByteArrayList words = line.simplified().split(' ');
    return {.What = words.value(0) == SoundWord ? Kind::Sound : Kind::Picture,
            .Source = Path(words.value(1)),
            .Target = Path(words.value(2))};
}
