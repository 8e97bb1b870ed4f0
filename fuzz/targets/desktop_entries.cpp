// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The desktop's own files: an entry with the command that opens a file.
#include "fuzz/Fuzzing.h"

#include "platform/posix/DesktopEntries.h"

#include <QDir>

using namespace Qt::StringLiterals;
using Fuzzing::Expect;

namespace {

void ExpectCommand(const QByteArrayList& command) {
    for (const QByteArray& word : command)
        Expect(!word.contains('\0'), "a word that is handed over ends where it seems to");
}

/// All that the desktop has is this one entry, for texts.
void UseDesktop() {
    static const bool done = [] {
        for (const char* const variable : {"XDG_DATA_HOME", "XDG_DATA_DIRS", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS"})
            qputenv(variable, Fuzzing::NativeOf(u"desktop"_s).toUtf8());
        QDir().mkpath(Fuzzing::NativeOf(u"desktop/applications"_s));
        Fuzzing::Write(u"desktop/mimeapps.list"_s, "[Default Applications]\ntext/plain=any.desktop\n");
        Fuzzing::Write(u"a.txt"_s, "text");
        return true;
    }();
    Expect(done, "there is a desktop");
}

void Run(const QByteArray& bytes) {
    const qsizetype zero = bytes.indexOf('\0');
    const QByteArray text = zero < 0 ? bytes : bytes.first(zero);
    ExpectCommand(DesktopEntries::ExpandExec(QString::fromUtf8(text), u"/a folder/50 %.txt"_s));
    UseDesktop();
    Fuzzing::Write(u"desktop/applications/any.desktop"_s, bytes);
    for (const QByteArrayList& command : DesktopEntries::CommandsFor(Fuzzing::NativeOf(u"a.txt"_s)))
        ExpectCommand(command);
}

const FuzzTarget target("desktop_entries", Run);

} // namespace
