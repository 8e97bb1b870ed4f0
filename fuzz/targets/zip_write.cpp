// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The writer of ZIP archives: each line is an entry's name, with what it holds behind a tab.
#include "fuzz/Fuzzing.h"

#include "install/zip/ZipClass.h"
#include "install/zip/ZipDirectory.h"
#include "install/zip/ZipLibrary.h"
#include "platform/RuntimeError.h"

#include <QByteArrayList>
#include <QFile>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;
using Fuzzing::Expect;

namespace {

constexpr qsizetype Few = 8;

/// What names one file in the folder.
bool IsFileName(const QString& name) {
    const auto isSign = [](QChar letter) { return letter.unicode() < 32 || u"/\\*?:"_s.contains(letter); };
    return !name.isEmpty() && name.size() <= 60 && name != u"."_s && name != u".."_s &&
           std::ranges::none_of(name, isSign) && QString::fromUtf8(name.toUtf8()) == name;
}

/// The contents of what was added, in its order.
std::vector<QByteArray> AddLines(ZipClass& archive, const QByteArrayList& lines) {
    std::vector<QByteArray> contents;
    for (const QByteArray& line : lines) {
        const qsizetype tab = line.indexOf('\t');
        const QString name = QString::fromUtf8(line.first(std::max<qsizetype>(tab, 0)));
        if (!IsFileName(name) || contents.size() == Few)
            continue;
        const QByteArray content = line.sliced(tab + 1);
        const QString file = Fuzzing::Write(name, content);
        const bool added = Ignoring([&] { archive.FileAdd(file, ZipClass::NameOnly, false); });
        Expect(added != content.isEmpty(), "each file but an empty one is added");
        if (added)
            contents.push_back(content);
        QFile::remove(Fuzzing::NativeOf(name));
    }
    return contents;
}

void ExpectContents(const Device& bytes, const std::vector<QByteArray>& contents) {
    const ZipDirectory directory(bytes);
    Expect(directory.Entries().size() == contents.size(), "all entries are found again");
    ZipLibrary library(bytes, directory);
    for (std::size_t place = 0; place < contents.size(); ++place) {
        QByteArray content(contents[place].size() + 1, Qt::Uninitialized);
        const qint64 had = library.Open(static_cast<qsizetype>(place), {})->Read(content.data(), content.size());
        Expect(content.first(had) == contents[place], "an entry comes back with its bytes");
    }
}

void Run(const QByteArray& bytes) {
    ZipClass archive;
    archive.Utf8Names = bytes.startsWith('u');
    const std::vector<QByteArray> contents = AddLines(archive, bytes.split('\n'));
    Expect(archive.FileCount() == static_cast<qint32>(contents.size()), "entries are counted");
    if (contents.empty())
        return;
    MemoryDevice written;
    archive.Write(written);
    ExpectContents(written, contents);
}

const FuzzTarget target("zip_write", Run);

} // namespace
