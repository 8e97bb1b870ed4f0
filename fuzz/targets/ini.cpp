// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// INI files, which language files and the games' options are.
#include "fuzz/Fuzzing.h"

#include "platform/INIRuntime.h"

using namespace Qt::StringLiterals;
using Fuzzing::Expect;

namespace {

void Run(const QByteArray& bytes) {
    const INIRuntime runtime;
    const QString path = Fuzzing::Write(u"a.ini"_s, bytes);
    const QString other = runtime.ReadINI(u"LNG"_s, u"Open"_s, path);
    Expect(other.size() < 255, "a value has 254 characters at most");
    for (const QString& section : {u"LNG"_s, QString(), u"Infos"_s}) {
        Expect(runtime.WriteINI(section, u"Kéy"_s, u"new value"_s, path) == u"1"_s, "a value can be written");
        Expect(runtime.ReadINI(section, u"Kéy"_s, path) == u"new value"_s, "a value that was written is read");
        const QByteArray written = Fuzzing::Read(u"a.ini"_s);
        runtime.WriteINI(section, u"Kéy"_s, u"new value"_s, path);
        Expect(Fuzzing::Read(u"a.ini"_s) == written, "a value that stands there already changes nothing");
    }
    Expect(runtime.ReadINI(u"LNG"_s, u"Open"_s, path) == other, "a value beside the one that was written stays");
}

const FuzzTarget target("ini", Run);

} // namespace
