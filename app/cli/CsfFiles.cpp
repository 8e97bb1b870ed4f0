// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/CsfFiles.h"

#include "app/cli/Output.h"
#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/Paths.h"

#include <limits>
#include <utility>

using namespace Qt::StringLiterals;
using NumberedFiles::Access;

namespace {

constexpr int FileNumber = 7;
constexpr int HighestLanguage = 255;

/// Writes the program's table; returns why it was not all written, with the file's name. Empty when it was.
QString Write(const QString& path, qint16 language) {
    try {
        return mCSF::WriteTable(path, language);
    } catch (const RuntimeError& error) {
        return error.Description();
    }
}

} // namespace

CsfTable ReadTableArgument(const std::string& argument) {
    const QString path = ArgumentPath(argument);
    NumberedFiles::Open(FileNumber, path, Access::Read); // what can't be opened is refused here, with its reason
    NumberedFiles::Close(FileNumber);
    try {
        const int language = mCSF::ReadTable(path);
        return {language, std::exchange(mCSF::CsfStrings, {})};
    } catch (const RuntimeError& error) {
        Fail(Paths::ToNative(path), u"not a CSF file that can be read: "_s + error.Description());
    }
}

void WriteTableFile(const QString& path, CsfTable table) {
    const QString shown = Paths::ToNative(path);
    if (table.Strings.empty())
        Fail(shown, u"a table without strings can't be saved"_s);
    if (table.Strings.size() > mCSF::MaximumStrings)
        Fail(shown, u"%1 strings; %2 are the most that can be read again"_s.arg(table.Strings.size())
                        .arg(mCSF::MaximumStrings));
    if (table.Language < 0 || table.Language > HighestLanguage)
        Fail(shown, u"the language number %1 can't be stored; --language gives another"_s.arg(table.Language));
    mCSF::CsfStrings = std::move(table.Strings);
    const QString aside = path + u".sav"_s;
    const bool stale = Files::FileExists(aside);
    const QString reason = Write(path, static_cast<qint16>(table.Language));
    if (reason.isEmpty())
        return;
    const bool stands = !stale && Files::FileExists(aside);
    throw RuntimeError(ErrorNumber::PathFileAccess,
                       stands ? reason + u"; the file that stood there is now "_s + Paths::ToNative(aside) : reason);
}

QByteArray ReadWholeFile(const QString& path) {
    NumberedFiles::Open(FileNumber, path, Access::Read);
    QByteArray bytes = NumberedFiles::Read(FileNumber, 0, std::numeric_limits<qint64>::max());
    NumberedFiles::Close(FileNumber);
    return bytes;
}

void WriteWholeFile(const QString& path, const QByteArray& bytes) {
    const QString aside = Files::TemporaryBeside(path);
    try {
        NumberedFiles::Open(FileNumber, aside, Access::Replace);
        NumberedFiles::Write(FileNumber, 0, bytes);
        NumberedFiles::Close(FileNumber);
        Files::Replace(aside, path);
    } catch (const RuntimeError& error) {
        Ignoring([] { NumberedFiles::Close(FileNumber); });
        Ignoring([&] { Files::DeleteForced(aside); });
        QString told = error.Description();
        throw RuntimeError(error.Number(), told.replace(Paths::ToNative(aside), Paths::ToNative(path)));
    }
}
