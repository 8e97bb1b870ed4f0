// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/Output.h"

#include "platform/Console.h"
#include "platform/Paths.h"
#include "platform/Processes.h"

#include <QScopeGuard>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype GatheredBytes = 65536;

QByteArray& Gathered() {
    static QByteArray bytes;
    return bytes;
}

} // namespace

void Print(QByteArrayView head, const QString& line) {
    QByteArray& bytes = Gathered();
    bytes += head;
    char16_t seen = 0;
    for (const QChar unit : line)
        seen = static_cast<char16_t>(seen | unit.unicode());
    if (seen < 0x80) {
        const qsizetype before = bytes.size();
        bytes.resize(before + line.size());
        std::transform(line.begin(), line.end(), bytes.begin() + before, [](QChar unit) { return unit.toLatin1(); });
    } else {
        bytes += Paths::EncodeNative(line);
    }
    bytes += '\n';
    if (bytes.size() >= GatheredBytes)
        Flush();
}

void Print(const QString& line) {
    Print({}, line);
}

void PrintRow(QStringList columns) {
    for (QString& column : columns) {
        for (QChar& unit : column) {
            if (unit < u' ')
                unit = u' ';
        }
    }
    Print(columns.join(u'\t'));
}

void Flush() {
    const auto forget = qScopeGuard([] { Gathered().resize(0); }); // its memory is used again
    Console::Write(Gathered());
}

void EndWith(int exitCode) {
    Flush();
    Processes::End(exitCode);
}

void Fail(const QString& file, const QString& reason) {
    throw RuntimeError(ErrorNumber::PathFileAccess, file + u": "_s + reason);
}

int Report(const RuntimeError& error) {
    QString line = u"brindock-cli: "_s + error.Description();
    line.replace(u"\r\n"_s, u" "_s).replace(u'\n', u' ');
    Console::WriteError(Paths::EncodeNative(line) + '\n');
    return 1;
}

QString ArgumentText(const std::string& argument) {
    return Paths::DecodeNative(QByteArray::fromStdString(argument));
}

QString ArgumentPath(const std::string& argument) {
    return Paths::Absolute(ArgumentText(argument));
}
