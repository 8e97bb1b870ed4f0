// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/format/mCSF.h"

#include "core/Host.h"
#include "core/mTraduction.h"
#include "core/rescue/RescuedDocument.h"
#include "csf/format/CsfRecords.h"
#include "csf/format/CsfWriting.h"
#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/Processes.h"
#include "platform/RuntimeError.h"

#include <QScopedValueRollback>

#include <limits>

using namespace Qt::StringLiterals;
using NumberedFiles::Access;

namespace {

constexpr std::size_t ReadingSize = 65537;

bool locked = false;

/// The table's file under its number.
class NumberedTarget : public CsfSave::Target {
public:
    File& Open(const QString& path) override {
        NumberedFiles::Open(mCSF::FileNumber, path, Access::ReadWrite);
        return NumberedFiles::Of(mCSF::FileNumber);
    }

    void Close() override { NumberedFiles::Close(mCSF::FileNumber); }

    [[nodiscard]] bool FailureEndsProgram() const override { return true; }
};

QByteArray WholeFile(const QString& path) {
    const qint64 length = Files::FileLength(path);
    if (length == 0)
        throw RuntimeError(ErrorNumber::Subscript, u"the file is empty"_s);
    mCSF::CsfStrings.clear();
    mCSF::CsfStrings.resize(ReadingSize);
    NumberedFiles::Open(mCSF::FileNumber, path, Access::Read);
    return NumberedFiles::Read(mCSF::FileNumber, 0, length);
}

/// Stores the entries; returns how many there were.
std::size_t Store(CsfRecords& records) {
    std::size_t count = 0;
    do {
        if (auto entry = records.Next()) {
            if (count >= mCSF::CsfStrings.size()) // the table was replaced while the event loop ran
                throw RuntimeError(ErrorNumber::Subscript, u"the table is not that of this file"_s);
            mCSF::CsfStrings[count] = *std::move(entry);
            CsfRecords::CheckCount(++count);
        }
        Host::Current().Yield();
    } while (!records.AtEnd());
    return count;
}

qint32 ReadOpened(const QByteArray& file) {
    CsfRecords records(file);
    const std::size_t count = Store(records);
    const qint32 language = records.Language();
    NumberedFiles::Close(mCSF::FileNumber);
    if (count == 0)
        throw RuntimeError(ErrorNumber::Subscript, u"no strings"_s);
    mCSF::CsfStrings.resize(count);
    return language;
}

qint32 ReadUnderLock(const QString& path) {
    const QScopedValueRollback lock(locked, true);
    try {
        return ReadOpened(WholeFile(path));
    } catch (...) {
        Ignoring([] { NumberedFiles::Close(mCSF::FileNumber); });
        throw;
    }
}

/// How many entries are written: the upper bound is a 16-bit number, and one that does not fit stays 0. This is meant.
std::size_t WrittenCount() {
    constexpr auto highest = std::size_t{std::numeric_limits<qint16>::max()};
    return mCSF::CsfStrings.size() > highest + 1 ? 1 : mCSF::CsfStrings.size();
}

void Save(const QString& path, qint16 language, CsfSaves& saves) {
    const QByteArray field = CsfWriting::LanguageField(language);
    saves.Aside.clear();
    saves.Failure = locked ? u"the table is being read"_s : CsfSave::RefusalOf(path);
    if (!saves.Failure.isEmpty())
        return;
    NumberedTarget target;
    CsfSave::Write(path, mCSF::CsfStrings, WrittenCount(), field, target, saves);
}

/// The language of this message does not follow the user's. This is meant.
QString FatalText(const RuntimeError& error) {
    return u"Une erreur s'est produite, l'application va se terminer. Veuillez signaler cette erreur au concepteur du "
           u"programme\r\n\r\nDétails :\r\nErreur n° "_s +
           QString::number(error.Number()) + u" : "_s + error.Description() + u", source : Brindock"_s;
}

} // namespace

namespace mCSF {

std::vector<CsfString> CsfStrings;
std::function<void()> EndProgram = [] { Processes::End(1); };

bool IsLocked() {
    return locked;
}

qint32 ReadCSF(const QString& path) {
    try {
        if (locked)
            throw RuntimeError(ErrorNumber::FileAlreadyOpen, u"another table is being read"_s);
        return ReadUnderLock(path);
    } catch (const std::exception&) { // no room for the file, besides what the reader refuses
        Host::Current().Message(mTraduction::GetText(u"CSFError"_s), Host::Icon::Critical);
        return Refused;
    }
}

bool WriteCSF(const QString& path, qint16 language, CsfSaves* saves) {
    CsfSaves own;
    CsfSaves& told = saves == nullptr ? own : *saves;
    try {
        Save(path, language, told);
        return told.Failure.isEmpty();
    } catch (const RuntimeError& error) {
        KeepAllRescues();
        Host::Current().Message(FatalText(error), Host::Icon::Critical, Host::Buttons::Ok, {});
        EndProgram();
        return false;
    }
}

} // namespace mCSF
