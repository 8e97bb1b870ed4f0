// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/format/CsfSave.h"

#include "csf/format/CsfWriting.h"
#include "platform/Files.h"
#include "platform/Leftovers.h"
#include "platform/Paths.h"
#include "platform/PrivateName.h"
#include "platform/ReplacedFile.h"
#include "platform/RuntimeError.h"
#include "platform/SaveLock.h"

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

    /// The new file has its header, under a name that nobody looks for.
    void Begin(std::size_t count, const QByteArray& language) {
        const QString folder = path_.first(path_.lastIndexOf(u'\\') + 1);
        Leftovers::Sweep(Paths::ToNative(folder));
        const FileState old = StateOf(path_);
        standsThere_ = !old.Identity.isEmpty();
        if (!standsThere_ && Files::FileExists(path_))
            throw RuntimeError(ErrorNumber::PathFileAccess, Paths::ToNative(path_) + u": not a file"_s);
        if (!continues_ && standsThere_ && Files::FileExists(aside_))
            throw RuntimeError(ErrorNumber::FileAlreadyExists, Paths::ToNative(aside_) + u": stands there already"_s);
        mayStepAside_ = true;
        new_ = folder + PrivateName();
        file_ = &target_.Open(new_);
        if (standsThere_ || continues_)
            Ignoring([&] { ReplacedFile::KeepOwnerAndMode(*file_, standsThere_ ? path_ : aside_); });
        CsfWriting::WriteHeader(*file_, count, language);
    }

    /// Raises when the records are not all on the disk; then what stood there stands there still.
    void WriteRecords(std::span<const CsfString> strings) {
        CsfWriting::WriteRecords(*file_, strings);
        file_->Flush();
        target_.Close();
        PutInPlace();
    }

    /// A ".sav" that no save of ours left, beside a file that was missing, may be all that is left of that one.
    void End() {
        if (asideIsOurs_ && Files::FileExists(aside_))
            Files::DeleteForced(aside_);
        saves_.Kept.erase(aside_);
    }

    /// Nothing is written; where that ends the program, the old file has stepped aside already.
    void EndBeforeRecords() {
        Drop();
        if (target_.FailureEndsProgram() && mayStepAside_)
            Ignoring([&] { StepAside(); });
        TellAside();
    }

    /// People know the target's name and not the one that is written under.
    [[nodiscard]] QString InWordsOfTheTarget(const QString& reason) const {
        return new_.isEmpty() ? reason : QString(reason).replace(Paths::ToNative(new_), Paths::ToNative(path_));
    }

    /// What is not in its place goes.
    void Drop() {
        Ignoring([&] { target_.Close(); });
        if (!new_.isEmpty())
            Ignoring([&] { Files::DeleteForced(new_); });
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
    void StepAside() {
        if (!standsThere_ || continues_)
            return;
        Files::Rename(path_, aside_);
        asideIsOurs_ = true;
    }

    void PutInPlace() {
        StepAside();
        try {
            Files::Replace(new_, path_);
        } catch (const RuntimeError&) {
            if (standsThere_ && !continues_)
                asideIsOurs_ = !Ignoring([&] { Files::Rename(aside_, path_); });
            throw;
        }
        new_.clear();
    }

    /// Whether an earlier save of this document left the ".sav", and nobody touched it since.
    [[nodiscard]] bool IsOurs() const {
        const auto kept = saves_.Kept.find(aside_);
        return kept != saves_.Kept.end() && !kept->second.Identity.isEmpty() && StateOf(aside_) == kept->second;
    }

    QString path_;
    QString aside_;
    QString new_; ///< the file that is written, until it is in its place
    CsfSave::Target& target_;
    CsfSaves& saves_;
    File* file_ = nullptr;
    bool continues_;
    bool standsThere_ = false;
    bool mayStepAside_ = false; ///< nothing is in the way
    bool asideIsOurs_;
};

} // namespace

namespace CsfSave {

QString RefusalOf(const QString& path) {
    return ReplacedFile::IsWriteProtected(path) ? Paths::ToNative(path) + u": write-protected"_s : QString();
}

void Write(const QString& path, std::span<const CsfString> strings, std::size_t written, const QByteArray& language,
           Target& target, CsfSaves& saves) {
    const SaveLock lock(path);
    saves.Failure.clear();
    saves.Aside.clear();
    Saving saving(path, target, saves);
    try {
        saving.Begin(strings.size(), language);
    } catch (const RuntimeError& error) {
        saving.EndBeforeRecords();
        throw RuntimeError(error.Number(), saving.InWordsOfTheTarget(error.Description()));
    }
    try {
        saving.WriteRecords(strings.first(written));
        if (written < strings.size())
            throw RuntimeError(ErrorNumber::Overflow, u"more than 32,768 strings"_s);
        saving.End();
    } catch (const RuntimeError& error) {
        saving.Drop();
        saving.BreakOff(saving.InWordsOfTheTarget(error.Description()));
    } catch (const std::exception& error) { // no room for the records
        saving.Drop();
        saving.BreakOff(QString::fromUtf8(error.what()));
    }
}

} // namespace CsfSave
