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
#include <string>

namespace {

constexpr qint64 MemoryLimit = qint64{512} * 1024 * 1024;
constexpr qint64 LongestFile = qint64{128} * 1024 * 1024;
constexpr int PictureSeconds = 2;
constexpr int SoundSeconds = 10;

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
    const MediaJob job = MediaJob::OfLine(QByteArray::fromStdString(line));
    bool decoded = false;
    Ignoring([&] {
        const QByteArray bytes =
            job.What == MediaJob::Kind::Sound ? DecodedSound(job.Source) : DecodedPicture(job.Source);
        if (!bytes.isEmpty())
            MediaFiles::Write(job.Target, bytes);
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
