// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/zip/ZipClass.h"

#include "install/zip/ZipAppender.h"
#include "install/zip/ZipWalk.h"
#include "platform/AnsiCodec.h"
#include "platform/Device.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/WriteAside.h"

#include <cstddef>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype MostOfAComment = std::numeric_limits<qint16>::max();

} // namespace

ZipClass::ZipClass() : CurrentDirectory(Paths::Absolute(u"."_s)) {}

void ZipClass::SetComment(const QString& comment) {
    if (AnsiCodec::Encode(comment).size() > MostOfAComment)
        throw RuntimeError(ErrorNumber::Overflow, u"the comment is too long for a ZIP"_s);
    comment_ = comment;
}

const ZipFile* ZipClass::Entry(qint32 index) const {
    return index >= 1 && index <= FileCount() ? &entries_[static_cast<std::size_t>(index) - 1] : nullptr;
}

QString ZipClass::FileName(qint32 index) const {
    const ZipFile* entry = Entry(index);
    return entry == nullptr ? QString() : entry->Name();
}

qint32 ZipClass::SizeCompressed(qint32 index) const {
    const ZipFile* entry = Entry(index);
    return entry == nullptr ? 0 : entry->SizeCompressed();
}

qint32 ZipClass::SizeUncompressed(qint32 index) const {
    const ZipFile* entry = Entry(index);
    return entry == nullptr ? 0 : entry->SizeUncompressed();
}

bool ZipClass::FileDel(qint32 index) {
    if (Entry(index) == nullptr)
        return false;
    entries_.erase(entries_.begin() + index - 1);
    return true;
}

qint32 ZipClass::FileAdd(const QString& path, qint32 pathStorage, bool recurse) {
    if (path.isEmpty())
        return 0;
    qint32 added = 0;
    const auto add = [&](const QString& file) {
        added += AddOneFile(file, pathStorage) ? 1 : 0;
        Serve();
    };
    ZipWalk::Walk(Paths::AbsoluteIn(CurrentDirectory, path), recurse,
                  {.File = add, .BehindFolder = [this] { Serve(); }});
    return added;
}

bool ZipClass::AddOneFile(const QString& path, qint32 pathStorage) {
    if (!Files::FileExists(path))
        return false;
    ZipFile file(path, Watch);
    file.SetName(StoredName(path, pathStorage), Utf8Names ? ZipFile::Letters::Utf8WhereNeeded : ZipFile::Letters::Page);
    entries_.push_back(std::move(file));
    return true;
}

QString ZipClass::StoredName(const QString& path, qint32 pathStorage) const {
    if (pathStorage == WholePath)
        return path;
    if (pathStorage != Relative)
        return Paths::LastPart(path);
    QString current = Paths::AbsoluteIn(CurrentDirectory, {});
    if (!current.endsWith(u'\\'))
        current += u'\\';
    return path.startsWith(current, Qt::CaseInsensitive) ? path.sliced(current.size()) : path;
}

bool ZipClass::WriteZip(const QString& path, bool overwrite) const {
    const QString target = Paths::AbsoluteIn(CurrentDirectory, path);
    if (!overwrite && Files::FileExists(target))
        return false;
    WriteAside aside(target);
    Write(aside.Out());
    aside.Commit();
    return true;
}

void ZipClass::Write(Device& out) const {
    ZipAppender to(out);
    std::vector<quint32> offsets;
    offsets.reserve(entries_.size());
    for (const ZipFile& entry : entries_) {
        offsets.push_back(to.Offset());
        to.Append(ZipRecords::Local(entry.Entry()));
        to.Append(entry.NameBytes());
        to.Append(entry.Data());
        Serve();
    }
    const quint32 directory = to.Offset();
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        to.Append(ZipRecords::Central(entries_[i].Entry(), offsets[i]));
        to.Append(entries_[i].NameBytes());
    }
    const QByteArray comment = AnsiCodec::Encode(comment_);
    to.Append(ZipRecords::End(FileCount(), to.Offset() - directory, directory, static_cast<quint16>(comment.size())));
    to.Append(comment);
    to.Flush();
}

void ZipClass::Serve() const {
    if (Yield)
        Yield();
}
