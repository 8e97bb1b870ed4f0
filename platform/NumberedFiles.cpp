// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NumberedFiles.h"

#include "platform/RuntimeError.h"

#include <map>
#include <utility>

namespace {

std::map<int, File>& Table() {
    static std::map<int, File> table;
    return table;
}

void RequireFree(int number) {
    if (NumberedFiles::IsOpen(number))
        throw RuntimeError(ErrorNumber::FileAlreadyOpen, QStringLiteral("file number %1 is open already").arg(number));
}

} // namespace

namespace NumberedFiles {

void Open(int number, const QString& path, Access access) {
    RequireFree(number);
    Table().emplace(number, File::Open(path, access));
}

void OpenAsGiven(int number, const QString& path, Access access) {
    RequireFree(number);
    Table().emplace(number, File::OpenAsGiven(path, access));
}

void Open(int number, const ListedFolder& folder, const QString& name) {
    RequireFree(number);
    Table().emplace(number, folder.Open(name));
}

bool IsOpen(int number) {
    return Table().contains(number);
}

File& Of(int number) {
    const auto found = Table().find(number);
    if (found == Table().end())
        throw RuntimeError(ErrorNumber::BadFileNumber, QStringLiteral("file number %1 is not open").arg(number));
    return found->second;
}

void Close(int number) {
    const auto found = Table().find(number);
    if (found == Table().end())
        return;
    File closing = std::move(found->second);
    Table().erase(found);
    closing.Close();
}

void CloseAll() {
    Table().clear();
}

qint64 Length(int number) {
    return Of(number).Length();
}

QByteArray Read(int number, qint64 offset, qint64 count) {
    return Of(number).Read(offset, count);
}

qint64 ReadInto(int number, qint64 offset, char* bytes, qint64 count) {
    return Of(number).ReadInto(offset, bytes, count);
}

void Write(int number, qint64 offset, QByteArrayView bytes) {
    Of(number).Write(offset, bytes);
}

qint64 Copy(int to, qint64 toOffset, int from, qint64 fromOffset, qint64 count) {
    return CopyBytes(Of(to), toOffset, Of(from), fromOffset, count);
}

void SetLength(int number, qint64 length) {
    Of(number).SetLength(length);
}

} // namespace NumberedFiles
