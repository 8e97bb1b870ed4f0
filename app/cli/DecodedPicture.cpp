// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/DecodedPicture.h"

#include "app/cli/Output.h"
#include "media/MediaProcess.h"
#include "media/PngPicture.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/WriteAside.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QTemporaryDir>

#include <array>

using namespace Qt::StringLiterals;

namespace {

bool Decode(const QString& source, const QString& target) {
    std::array<char, 1> name{};
    char* arguments = name.data();
    int count = 1;
    const QCoreApplication application(count, &arguments);
    MediaClient client;
    QEventLoop loop;
    bool decoded = false;
    client.Ask({MediaJob::Kind::Picture, source, target}, [&](bool done) {
        decoded = done;
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    return decoded;
}

} // namespace

bool DecodeToBitmap(const QString& picture, const QString& target) {
    const QTemporaryDir folder;
    if (!folder.isValid())
        Fail(Paths::ToNative(target), folder.errorString());
    const QString bitmap = Paths::FromNative(QDir::toNativeSeparators(folder.path())) + u"\\preview.out"_s;
    if (!Decode(picture, bitmap))
        return false;
    if (target.endsWith(".png"_L1, Qt::CaseInsensitive))
        WriteWhole(target, PngPicture::FromBitmap(ReadWhole(bitmap)));
    else
        Files::Copy(bitmap, target);
    return true;
}
