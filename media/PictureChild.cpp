// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/PictureChild.h"

#include "media/PictureModule.h"
#include "media/PictureProcess.h"
#include "platform/Limits.h"
#include "platform/NumberedFiles.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QCoreApplication>

#include <cstring>
#include <iostream>
#include <string>

using NumberedFiles::Access;

namespace {

constexpr qint64 MemoryLimit = qint64{512} * 1024 * 1024;
constexpr qint64 LongestFile = qint64{128} * 1024 * 1024;
constexpr int ProcessorSeconds = 2;
constexpr int FileNumber = 1;

QString Path(const std::string& word) {
    const QByteArray bytes = QByteArray::fromBase64(QByteArray::fromStdString(word));
    QString path(bytes.size() / static_cast<qsizetype>(sizeof(QChar)), Qt::Uninitialized);
    std::memcpy(path.data(), bytes.constData(), static_cast<std::size_t>(path.size()) * sizeof(QChar));
    return path;
}

/// The whole file; nothing of one that is too long for a picture.
QByteArray BytesOf(const QString& path) {
    NumberedFiles::Open(FileNumber, path, Access::Read);
    const qint64 length = NumberedFiles::Length(FileNumber);
    QByteArray bytes = NumberedFiles::Read(FileNumber, 0, length <= LongestFile ? length : 0);
    NumberedFiles::Close(FileNumber);
    return bytes;
}

bool Decode(const QString& source, const QString& target) {
    const QByteArray bitmap = DecodePicture(BytesOf(source), Paths::LastPart(source));
    if (bitmap.isEmpty())
        return false;
    NumberedFiles::Open(FileNumber, target, Access::Replace);
    NumberedFiles::Write(FileNumber, 0, bitmap);
    NumberedFiles::Close(FileNumber);
    return true;
}

/// One line: whether its picture was decoded.
bool Serve(const std::string& line) {
    const auto split = line.find(' ');
    if (split == std::string::npos)
        return false;
    bool decoded = false;
    Ignoring([&] { decoded = Decode(Path(line.substr(0, split)), Path(line.substr(split + 1))); });
    NumberedFiles::CloseAll();
    return decoded;
}

} // namespace

bool PictureChild::IsAsked(int argc, char** argv) {
    return argc == 2 && std::strcmp(argv[1], PictureProcess::Switch) == 0;
}

int PictureChild::Run(int argc, char** argv) {
    Limits::BoundMemory(MemoryLimit);
    const QCoreApplication application(argc, argv);
    DecodePicture({}, {}); // brings in the libraries while nobody waits
    std::cout << "ready" << std::endl;
    std::string line;
    while (std::getline(std::cin, line)) {
        Limits::BoundProcessorTime(ProcessorSeconds);
        std::cout << (Serve(line) ? "yes" : "no") << std::endl;
    }
    return 0;
}
