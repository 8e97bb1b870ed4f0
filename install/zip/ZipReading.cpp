// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/zip/ZipReading.h"

#include "core/CaseFolding.h"
#include "core/Host.h"
#include "install/zip/ZipFailure.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/WriteAside.h"

#include <QScopeGuard>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 BlockSize = 262'144;
/// What is smaller fails by itself where there is no room for it.
constexpr qint64 WorthAskingForRoom = 1'048'576;

[[noreturn]] void Refuse(const ZipEntry& entry, qint32 result, const QString& reason) {
    throw ZipFailure(result, u"%1: %2"_s.arg(entry.Name, reason));
}

} // namespace

ZipReading::ZipReading(const QString& path)
    : archive_(File::Open(path, File::Access::Read)),
      fileName_(CaseFolded(Paths::LastPart(path))),
      directory_(archive_),
      library_(archive_, directory_) {}

ZipReading::~ZipReading() = default;

FolderGateway& ZipReading::GatewayTo(const QString& folder) {
    if (gateway_ == nullptr || gatewayFolder_ != folder) {
        gateway_.reset();
        gateway_ = std::make_unique<FolderGateway>(folder);
        gatewayFolder_ = folder;
    }
    return *gateway_;
}

FilePlace ZipReading::PlaceOf(const Target& target) {
    FilePlace place = target.Place.Folder ? target.Place : GatewayTo(target.Folder).PlaceFor(target.Name);
    if (CaseFolded(place.Name) == fileName_ && place.Folder->StateOf(place.Name).Identity == archive_.State().Identity)
        throw RuntimeError(ErrorNumber::PathFileAccess,
                           u"%1 is the archive itself."_s.arg(Paths::ToNativeAsGiven(place.Path())));
    return place;
}

void ZipReading::MakeFolder(const QString& folder, const QString& name) {
    GatewayTo(folder).MakeFolder(name);
}

void ZipReading::Ahead(std::vector<qsizetype> places, bool hashes) {
    ahead_.reset();
    ahead_ = std::make_unique<ZipAhead>(archive_, directory_, std::move(places), hashes);
}

void ZipReading::Unpack(qsizetype place, const Target& target, const QByteArray& password, const Watching& watching) {
    if (!PutAhead(place, target, watching))
        UnpackAside(place, target, password, watching);
}

/// A file that is not there yet, out of an entry that was unpacked ahead. False where it is to go the long way.
bool ZipReading::PutAhead(qsizetype place, const Target& target, const Watching& watching) {
    if (ahead_ == nullptr)
        return false;
    const auto unpacked = ahead_->Take(place);
    if (!unpacked || (watching.Files != nullptr && unpacked->Hashed.Hash.isEmpty()))
        return false;
    const FilePlace file = PlaceOf(target);
    const QString path = file.Path();
    if (watching.Files != nullptr && !watching.Files->WillPut(path, unpacked->Hashed))
        return false;
    if (!file.Folder->Put(file.Name, unpacked->Bytes))
        return false;
    if (watching.Bytes)
        watching.Bytes(unpacked->Bytes.size());
    if (watching.Files != nullptr)
        watching.Files->WrittenAs(path, unpacked->Hashed);
    return true;
}

void ZipReading::UnpackAside(qsizetype place, const Target& target, const QByteArray& password,
                             const Watching& watching) {
    const ZipEntry& entry = Entry(place);
    auto forget = qScopeGuard([&] { library_.Forget(); });
    const auto stream = library_.Open(place, password);
    block_.resize(BlockSize);
    std::optional<WriteAside> aside;
    QString path;
    RunningHash hash;
    qint64 done = 0;
    bool ended = false;
    while (!ended) {
        const qint64 had = stream->Read(block_.data(), block_.size());
        done += had;
        ended = had < block_.size();
        if (done > entry.Size)
            Refuse(entry, ZipResult::BadData, u"yields more than it declares"_s);
        if (ended)
            RequireEnd(entry, done);
        if (!aside) { // a short entry that is bad makes nothing at all
            const FilePlace file = PlaceOf(target);
            path = file.Path();
            if (entry.Size >= WorthAskingForRoom && entry.Size > Files::FreeSpace(Paths::Folder(path)))
                Refuse(entry, ZipResult::DiskFull, u"the disk has no room for it"_s);
            if (watching.Files != nullptr)
                watching.Files->WillWrite(path);
            aside.emplace(file);
        }
        const QByteArrayView bytes = QByteArrayView(block_).first(had);
        aside->Out().Write(done - had, bytes);
        if (watching.Files != nullptr)
            hash.Add(bytes);
        if (watching.Bytes)
            watching.Bytes(done);
        if (!ended && Host::IsThere())
            Host::Current().Yield();
    }
    aside->Commit(false);
    if (watching.Files != nullptr)
        watching.Files->WrittenAs(path, hash.Result());
    forget.dismiss();
}

void ZipReading::RequireEnd(const ZipEntry& entry, qint64 size) const {
    if (size < entry.Size)
        Refuse(entry, ZipResult::CutShort, u"ends before all that it declares"_s);
    if (size == 0 && entry.Crc != 0 && entry.Method != ZipEntry::Aes) // the library looks at no checksum of nothing
        Refuse(entry, ZipResult::BadData, u"CRC error"_s);
}
