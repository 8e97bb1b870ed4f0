// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/Output.h"

#include "platform/Console.h"
#include "platform/Paths.h"
#include "platform/Processes.h"
#include "platform/Refusals.h"

#include <QScopeGuard>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype GatheredBytes = 65536;

QByteArray& Gathered() {
    static QByteArray bytes;
    return bytes;
}

/// What stands on standard error by now.
QByteArray& Told() {
    static QByteArray bytes;
    return bytes;
}

/// A name that is no text comes out with the bytes that it has.
void Append(QByteArray& bytes, QStringView text) {
    char16_t seen = 0;
    for (const QChar unit : text)
        seen = static_cast<char16_t>(seen | unit.unicode());
    if (seen >= 0x80) {
        bytes += Paths::EncodeShown(text.toString());
        return;
    }
    const qsizetype before = bytes.size();
    bytes.resize(before + text.size());
    std::transform(text.begin(), text.end(), bytes.begin() + before, [](QChar unit) { return unit.toLatin1(); });
}

void FlushMuch() {
    if (Gathered().size() >= GatheredBytes)
        Flush();
}

/// A long text goes out piece by piece: no second one of its length is made.
void Gather(QStringView text) {
    while (text.size() > GatheredBytes) {
        // The two halves of a letter stay together.
        const qsizetype piece = GatheredBytes - (text[GatheredBytes - 1].isHighSurrogate() ? 1 : 0);
        Append(Gathered(), text.first(piece));
        text = text.sliced(piece);
        FlushMuch();
    }
    Append(Gathered(), text);
}

void EndLine() {
    Gathered() += '\n';
    FlushMuch();
}

bool IsControl(QChar letter) {
    constexpr char16_t deletion = 0x7F;
    return letter < u' ' || letter == deletion;
}

} // namespace

void Print(QByteArrayView head, const QString& name) {
    Gathered() += head;
    Gather(InLine(name));
    EndLine();
}

void Print(const QString& line) {
    Gather(line);
    EndLine();
}

QString InLine(const QString& name) {
    if (std::ranges::none_of(name, IsControl))
        return name;
    QString shown;
    for (const QChar letter : name) {
        if (IsControl(letter))
            shown += u"\\x%1"_s.arg(QString::number(letter.unicode(), 16).toUpper(), 2, u'0');
        else
            shown += letter;
    }
    return shown;
}

void PrintRow(std::span<const QStringView> columns) {
    QByteArray& bytes = Gathered();
    for (std::size_t column = 0; column < columns.size(); ++column) {
        if (column > 0)
            bytes += '\t';
        const qsizetype begin = bytes.size();
        Append(bytes, columns[column]);
        const auto isControl = [](char byte) { return static_cast<unsigned char>(byte) < ' '; };
        std::replace_if(bytes.begin() + begin, bytes.end(), isControl, ' ');
    }
    EndLine();
}

void PrintRow(const QStringList& columns) {
    PrintRow(std::vector<QStringView>(columns.begin(), columns.end()));
}

void Flush() {
    const auto forget = qScopeGuard([] { Gathered().resize(0); }); // its memory is used again
    Console::Write(Gathered());
}

void EndWith(int exitCode) {
    Flush();
    if (exitCode != 0)
        ReportRefusals();
    Processes::End(exitCode);
}

void Fail(const QString& file, const QString& reason) {
    throw RuntimeError(ErrorNumber::PathFileAccess, file + u": "_s + reason);
}

int Report(const RuntimeError& error) {
    QString line = error.Description();
    line.replace(u"\r\n"_s, u" "_s).replace(u'\n', u' ');
    const QByteArray told = "brindock-cli: " + Paths::EncodeShown(InLine(line)) + '\n';
    Told() += told;
    Console::WriteError(told);
    return 1;
}

bool ReportRefusals() {
    const QStringList refusals = Refusals::All();
    for (const QString& refusal : refusals) {
        if (!Told().contains(Paths::EncodeShown(refusal)))
            Report({ErrorNumber::DeviceError, refusal});
    }
    return !refusals.isEmpty();
}

QString ArgumentText(const std::string& argument) {
    return Paths::DecodeNative(QByteArray::fromStdString(argument));
}

QString ArgumentPath(const std::string& argument) {
    return Paths::Absolute(ArgumentText(argument));
}
