// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/zip/ccZip.h"

#include "core/Host.h"
#include "install/zip/ZipFailure.h"
#include "install/zip/ZipReading.h"
#include "platform/AnsiCodec.h"
#include "platform/Paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LongestPassword = 256;  // what is longer is cut. This is meant.
constexpr qsizetype LongestComment = 32801; // likewise. This is meant.

/// What stands behind the last separator of either kind: both lead into folders.
QString LastPart(const QString& name) {
    return name.sliced(std::max(name.lastIndexOf(u'/'), name.lastIndexOf(u'\\')) + 1);
}

QString TextOfComment(QByteArrayView bytes) {
    const qsizetype zero = bytes.indexOf('\0');
    return AnsiCodec::Decode(bytes.first(std::min(zero < 0 ? bytes.size() : zero, LongestComment)));
}

/// How a password may have been written: in the ANSI code page, or in UTF-8.
QList<QByteArray> SpellingsOf(const QString& password) {
    QList<QByteArray> spellings{AnsiCodec::Encode(password).left(LongestPassword)};
    if (const QByteArray utf8 = password.toUtf8().left(LongestPassword); utf8 != spellings.front())
        spellings.append(utf8);
    return spellings;
}

/// Failures that another password could mend: some wrong ones are only seen by what they make of the data.
bool MayBeThePassword(const ZipFailure& failure) {
    return failure.Result() == ZipResult::WrongPassword || failure.Result() == ZipResult::BadData ||
           failure.Result() == ZipResult::CutShort;
}

qint32 ResultOf(const RuntimeError& error) {
    if (const auto* failure = dynamic_cast<const ZipFailure*>(&error))
        return failure->Result();
    const bool full = error.Number() == ErrorNumber::DiskFull || error.Number() == ErrorNumber::DeviceError;
    return full ? ZipResult::DiskFull : ZipResult::NoTarget;
}

} // namespace

struct ccZip::Job {
    std::shared_ptr<ZipReading> Reading; ///< may be let go by what runs while it yields
    qsizetype Place = 0;
    ZipReading::Target Target;
    ZipReading::Watching Watching;

    [[nodiscard]] const ZipEntry& Entry() const { return Reading->Entry(Place); }
};

ccZip::ccZip() = default;
ccZip::~ccZip() = default;

void ccZip::Init(const QString& path) {
    reading_.reset();
    Col.clear();
    Comm.clear();
    Name = path;
    Level = 5;
    passwordRefused_ = false;
    try {
        reading_ = std::make_shared<ZipReading>(path);
    } catch (const RuntimeError& error) {
        told_ = error.Description();
        return;
    }
    const ZipDirectory& directory = reading_->Directory();
    Col.reserve(static_cast<qsizetype>(directory.Entries().size()));
    for (const ZipEntry& entry : directory.Entries())
        Col.append(entry.ListedName());
    Comm = TextOfComment(directory.Comment());
    told_ = Comm;
}

QString ccZip::GetFile(qint32 index) const {
    return index < 1 || index > Count() ? QString() : Col[index - 1];
}

qint32 ccZip::Find(const QString& entryName) const {
    return reading_ == nullptr ? 0 : static_cast<qint32>(reading_->Directory().Find(entryName)) + 1;
}

qint64 ccZip::Size(qint32 index) const {
    return index < 1 || index > Count() ? 0 : reading_->Entry(index - 1).Size;
}

qint64 ccZip::Packed(qint32 index) const {
    return index < 1 || index > Count() ? 0 : reading_->Entry(index - 1).Packed;
}

quint32 ccZip::Crc(qint32 index) const {
    return index < 1 || index > Count() ? 0 : reading_->Entry(index - 1).Crc;
}

void ccZip::Ahead(const std::vector<qint32>& indexes, bool hashes) {
    constexpr std::size_t worthAThread = 2;
    if (reading_ == nullptr || indexes.size() < worthAThread)
        return;
    std::vector<bool> isTaken(reading_->Directory().Entries().size() + 1);
    std::vector<qsizetype> places;
    places.reserve(indexes.size());
    for (const qint32 index : indexes) {
        if (index < 1 || index > Count() || isTaken[static_cast<std::size_t>(index)])
            continue;
        isTaken[static_cast<std::size_t>(index)] = true;
        places.push_back(index - 1);
    }
    reading_->Ahead(std::move(places), hashes);
}

qint32 ccZip::Decompress(const QString& extractDir, const QString& entryName, bool honourDirs) {
    if (extractDir.isEmpty())
        return ZipResult::NoFolder;
    return Try(entryName, [&](qsizetype place) {
        const QString target = honourDirs ? entryName : LastPart(entryName);
        if (!entryName.endsWith(u'/')) {
            if (const QString refusal = FolderGateway::RefusalOf(target); !refusal.isEmpty())
                throw ZipFailure(ZipResult::NoTarget, u"%1: %2"_s.arg(entryName, refusal));
            Extract({reading_,
                     place,
                     {.Folder = extractDir, .Name = target, .Place = {}},
                     {.Bytes = Watch, .Files = Writes}});
        } else if (honourDirs) {
            reading_->MakeFolder(extractDir, entryName);
        }
    });
}

qint32 ccZip::DecompressTo(const FilePlace& target, const QString& entryName) {
    return Try(entryName, [&](qsizetype place) {
        Extract({reading_, place, {.Folder = {}, .Name = {}, .Place = target}, {.Bytes = Watch, .Files = Writes}});
    });
}

/// Does something with an entry by its place.
qint32 ccZip::Try(const QString& entryName, const std::function<void(qsizetype)>& step) {
    try {
        if (reading_ == nullptr)
            throw ZipFailure(ZipResult::NoArchive, u"%1: no archive to read"_s.arg(Paths::ToNative(Name)));
        const qsizetype place = reading_->Directory().Find(entryName);
        if (place < 0)
            throw ZipFailure(ZipResult::NoEntry, u"%1: no entry of that name"_s.arg(entryName));
        step(place);
        told_ = entryName + u": done"_s;
        return ZipResult::Done;
    } catch (const RuntimeError& error) {
        told_ = error.Description();
        return ResultOf(error);
    }
}

void ccZip::Extract(const Job& job) {
    if (job.Entry().IsEncrypted())
        ExtractEncrypted(job);
    else
        job.Reading->Unpack(job.Place, job.Target, {}, job.Watching);
}

/// The password at hand comes first, then the user is asked.
void ccZip::ExtractEncrypted(const Job& job) {
    job.Reading->RequireReadable(job.Place);
    if (Password) {
        try {
            return ExtractWith(job, *Password);
        } catch (const ZipFailure& failure) {
            if (!MayBeThePassword(failure) || passwordRefused_ || !Host::IsThere())
                throw;
        }
    }
    const std::optional<QString> answer = AskPassword();
    if (!answer)
        throw ZipFailure(ZipResult::WrongPassword, u"%1: needs a password"_s.arg(job.Entry().Name));
    ExtractWith(job, *answer);
    Password = answer;
}

std::optional<QString> ccZip::AskPassword() {
    if (passwordRefused_ || !Host::IsThere())
        return std::nullopt;
    auto answer = Host::Current().InputBox(u"Please Enter The Password!"_s, u"Brindock 2005"_s, {});
    passwordRefused_ = !answer.has_value();
    return answer;
}

void ccZip::ExtractWith(const Job& job, const QString& password) const {
    const QList<QByteArray> spellings = SpellingsOf(password);
    for (const QByteArray& spelling : spellings) {
        try {
            return job.Reading->Unpack(job.Place, job.Target, spelling, job.Watching);
        } catch (const ZipFailure& failure) {
            if (!MayBeThePassword(failure) || &spelling == &spellings.back())
                throw;
        }
    }
}
