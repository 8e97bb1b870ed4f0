// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the fuzz targets share. A target is one .cpp in fuzz/targets/, named as its seeds' folder is, with one
/// FuzzTarget; tools/fuzz makes a fuzzer of each, and the tests run all seeds through all of them.
#pragma once

#include <QByteArray>
#include <QString>

#include <map>
#include <string>

/// Takes any bytes. Passes over RuntimeErrors; whatever else it throws, and whatever the sanitizers see, is a finding.
class FuzzTarget {
public:
    using Run = void (*)(const QByteArray& bytes);

    FuzzTarget(const char* name, Run run);

    /// Those linked into the program, by name.
    static std::map<std::string, Run>& All();
};

namespace Fuzzing {

/// A file in this process's own temporary folder: its inside path, and the native one.
QString PathOf(const QString& name);
QString NativeOf(const QString& name);

/// Makes the file anew; its inside path.
QString Write(const QString& name, const QByteArray& bytes);

/// The file's bytes; empty when there is no such file.
QByteArray Read(const QString& name);

/// Throws a finding when the property does not hold.
void Expect(bool holds, const char* property);

} // namespace Fuzzing
