// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/format/CsfSave.h"

#include "csf/format/CsfWriting.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/ReplacedFile.h"
#include "platform/RuntimeError.h"

#include <exception>

using namespace Qt::StringLiterals;

namespace {

/// One save under way.
class Saving {
public:
    Saving(const QString& path, CsfSave::Target& target, CsfSaves& saves)
        : path_(ReplacedFile::BehindLinks(path)),
          aside_(path_ + u".sav"_s),
          target_(target),
          saves_(saves),
          continues_(IsOurs()),
          asideIsOurs_(continues_) {}

    /// The old file is aside, the new one has its header.
    void Begin(std::size_t count, const QByteArray& language) {
        if (!continues_ && Files::FileExists(path_)) {
            Files::Rename(path_, aside_);
            asideIsOurs_ = true;
        }
        file_ = &target_.Open(path_);
        if (asideIsOurs_)
            Ignoring([&] { ReplacedFile::KeepOwnerAndMode(*file_, aside_); });
        CsfWriting::WriteHeader(*file_, count, language);
    }

    /// Raises when the records are not all on the disk.
    void WriteRecords(std::span<const CsfString> strings) {
        const qint64 end = CsfWriting::WriteRecords(*file_, strings);
        if (continues_)
            file_->SetLength(end); // what the save before left may be longer
        if (Files::FileExists(aside_))
            file_->Flush();
        target_.Close();
    }

    /// A ".sav" that no save of ours left, beside a file that was missing, may be all that is left of that one.
    void End() {
        if (asideIsOurs_ && Files::FileExists(aside_))
            Files::DeleteForced(aside_);
        saves_.Kept.erase(aside_);
    }

    void TellAside() {
        if (asideIsOurs_ && Files::FileExists(aside_))
            saves_.Aside = aside_;
    }

    void BreakOff(const QString& reason) {
        saves_.Failure = reason;
        TellAside();
        if (!saves_.Aside.isEmpty())
            saves_.Kept.insert_or_assign(aside_, StateOf(aside_));
    }

private:
    /// Whether an earlier save of this document left the ".sav", and nobody touched it since.
    [[nodiscard]] bool IsOurs() const {
        const auto kept = saves_.Kept.find(aside_);
        return kept != saves_.Kept.end() && !kept->second.Identity.isEmpty() && StateOf(aside_) == kept->second;
    }

    QString path_;
    QString aside_;
    CsfSave::Target& target_;
    CsfSaves& saves_;
    File* file_ = nullptr;
    bool continues_;
    bool asideIsOurs_;
};

} // namespace

namespace CsfSave {

QString RefusalOf(const QString& path) {
    return ReplacedFile::IsWriteProtected(path) ? Paths::ToNative(path) + u": write-protected"_s : QString();
}

void Write(const QString& path, std::span<const CsfString> strings, std::size_t written, const QByteArray& language,
           Target& target, CsfSaves& saves) {
    saves.Failure.clear();
    saves.Aside.clear();
    Saving saving(path, target, saves);
    try {
        saving.Begin(strings.size(), language);
    } catch (...) {
        Ignoring([&] { target.Close(); });
        saving.TellAside();
        throw;
    }
    try {
        saving.WriteRecords(strings.first(written));
        if (written < strings.size())
            throw RuntimeError(ErrorNumber::Overflow, u"more than 32,768 strings"_s);
        saving.End();
    } catch (const RuntimeError& error) {
        Ignoring([&] { target.Close(); });
        saving.BreakOff(error.Description());
    } catch (const std::exception& error) { // no room for the records
        Ignoring([&] { target.Close(); });
        saving.BreakOff(QString::fromUtf8(error.what()));
    }
}

} // namespace CsfSave
