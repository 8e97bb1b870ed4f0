// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/format/CsfTable.h"

#include "csf/format/CsfRecords.h"
#include "csf/format/CsfSave.h"
#include "csf/format/CsfWriting.h"
#include "platform/Device.h"
#include "platform/File.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype SmallestString = 8;

/// A file without a number.
class PlainTarget : public CsfSave::Target {
public:
    File& Open(const QString& path) override {
        file_ = File::Open(path, File::Access::ReadWrite);
        return file_;
    }

    void Close() override { file_.Close(); }

private:
    File file_;
};

QString WithAside(const QString& reason, const CsfSaves& saves) {
    const QString stands = u"; the file that stood there is now "_s;
    return saves.Aside.isEmpty() ? reason : reason + stands + Paths::ToNative(saves.Aside);
}

/// The language field, once nothing of the table is in the way of a save that can be read back.
QByteArray CheckedLanguageField(const CsfTable& table) {
    if (table.Strings.empty())
        throw RuntimeError(ErrorNumber::Subscript, u"a table without strings"_s);
    CsfRecords::CheckCount(table.Strings.size());
    return CsfWriting::LanguageField(table.Language);
}

} // namespace

CsfTable CsfTable::Read(QByteArrayView bytes) {
    CsfRecords records(bytes);
    CsfTable table;
    table.Strings.reserve(static_cast<std::size_t>(std::min<qsizetype>(bytes.size() / SmallestString, MaximumStrings)));
    do {
        if (auto entry = records.Next()) {
            table.Strings.push_back(*std::move(entry));
            CsfRecords::CheckCount(table.Strings.size());
        }
    } while (!records.AtEnd());
    if (table.Strings.empty())
        throw RuntimeError(ErrorNumber::Subscript, u"no strings"_s);
    table.Language = records.Language();
    return table;
}

CsfTable CsfTable::Read(const Device& device) {
    return Read(QByteArrayView(device.Read(0, device.Length())));
}

CsfTable CsfTable::Read(const QString& path) {
    return Read(QByteArrayView(ReadWhole(path)));
}

void CsfTable::Write(Device& device) const {
    const QByteArray language = CheckedLanguageField(*this);
    CsfWriting::WriteHeader(device, Strings.size(), language);
    CsfWriting::WriteRecords(device, Strings);
}

void CsfTable::Write(const QString& path) const {
    const QByteArray language = CheckedLanguageField(*this);
    if (const QString refusal = CsfSave::RefusalOf(path); !refusal.isEmpty())
        throw RuntimeError(ErrorNumber::PermissionDenied, refusal);
    PlainTarget target;
    CsfSaves saves;
    try {
        CsfSave::Write(path, Strings, Strings.size(), language, target, saves);
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.Number(), WithAside(error.Description(), saves));
    }
    if (!saves.Failure.isEmpty())
        throw RuntimeError(ErrorNumber::PathFileAccess, WithAside(saves.Failure, saves));
}
