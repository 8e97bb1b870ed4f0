// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/OwnLanguages.h"

#include "Places.h"

#include <QDir>
#include <QFile>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

QDir Folder() {
    return {QString::fromUtf8(Places::Sources) + u"/data/languages"_s};
}

} // namespace

QStringList OwnLanguages::Names() {
    QStringList names = Folder().entryList({u"*.lng"_s}, QDir::Files, QDir::Name);
    for (QString& name : names)
        name.chop(4);
    return names;
}

QByteArray OwnLanguages::Bytes(const QString& name) {
    QFile file(Folder().filePath(name + u".lng"_s));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("Can't read " + file.fileName().toStdString());
    return file.readAll();
}
