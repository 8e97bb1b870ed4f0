// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/MediaChild.h"

#include "media/MediaFiles.h"
#include "media/MediaProcess.h"
#include "media/PictureModule.h"
#include "media/SoundReaders.h"
#include "platform/Limits.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QCoreApplication>

#include <cstring>
#include <iostream>
#include <sstream>
#include <string>

namespace {

constexpr qint64 MemoryLimit = qint64{512} * 1024 * 1024;
constexpr qint64 LongestFile = qint64{128} * 1024 * 1024;
constexpr int PictureSeconds = 2;
constexpr int SoundSeconds = 10;

QString Path(const std::string& word) {
    const QByteArray bytes = QByteArray::fromBase64(QByteArray::fromStdString(word));
    QString path(bytes.size() / static_cast<qsizetype>(sizeof(QChar)), Qt::Uninitialized);
    std::memcpy(path.data(), bytes.constData(), static_cast<std::size_t>(path.size()) * sizeof(QChar));
    return path;
}

QByteArray DecodedPicture(const QString& source) {
    Limits::BoundProcessorTime(PictureSeconds);
    return DecodePicture(MediaFiles::Read(source, LongestFile), Paths::LastPart(source));
}

QByteArray DecodedSound(const QString& source) {
    Limits::BoundProcessorTime(SoundSeconds);
    const QByteArray checked = Sounds::Checked(MediaFiles::Read(source, LongestFile));
    return checked.isEmpty() ? QByteArray() : DecodeSound(checked);
}

/// One line: whether its file was decoded.
bool Serve(const std::string& line) {
    std::istringstream words(line);
    std::string kind;
    std::string source;
    std::string target;
    words >> kind >> source >> target;
    bool decoded = false;
    Ignoring([&] {
        const QByteArray bytes = kind == "sound" ? DecodedSound(Path(source)) : DecodedPicture(Path(source));
        if (!bytes.isEmpty())
            MediaFiles::Write(Path(target), bytes);
        decoded = !bytes.isEmpty();
    });
    return decoded;
}

} // namespace

bool MediaChild::IsAsked(int argc, char** argv) {
    return argc == 2 && std::strcmp(argv[1], MediaProcess::Switch) == 0;
}

int MediaChild::Run(int argc, char** argv) {
    Limits::BoundMemory(MemoryLimit);
    const QCoreApplication application(argc, argv);
    DecodePicture({}, {}); // brings in the libraries while nobody waits
    std::cout << "ready" << std::endl;
    std::string line;
    while (std::getline(std::cin, line))
        std::cout << (Serve(line) ? "yes" : "no") << std::endl;
    return 0;
}
