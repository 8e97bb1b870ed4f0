// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fuzz/Fuzzing.h"

#include "platform/Paths.h"

#include <QFile>
#include <QTemporaryDir>

#include <stdexcept>

FuzzTarget::FuzzTarget(const char* name, Run run) {
    All().emplace(name, run);
}

std::map<std::string, FuzzTarget::Run>& FuzzTarget::All() {
    static std::map<std::string, Run> targets;
    return targets;
}

QString Fuzzing::NativeOf(const QString& name) {
    static const QTemporaryDir folder;
    return folder.filePath(name);
}

QString Fuzzing::PathOf(const QString& name) {
    return Paths::FromNative(NativeOf(name));
}

QString Fuzzing::Write(const QString& name, const QByteArray& bytes) {
    QFile file(NativeOf(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("A target's file can't be written");
    return PathOf(name);
}

QByteArray Fuzzing::Read(const QString& name) {
    QFile file(NativeOf(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Fuzzing::Expect(bool holds, const char* property) {
    if (!holds)
        throw std::logic_error(property);
}
