// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/document/TableRescue.h"

#include "platform/RuntimeError.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <tuple>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto streamVersion = QDataStream::Qt_6_4;

std::vector<CsfString> Sorted(const std::vector<CsfString>& rows) {
    std::vector<const CsfString*> order;
    order.reserve(rows.size());
    for (const CsfString& row : rows)
        order.push_back(&row);
    std::ranges::sort(order, [](const CsfString* a, const CsfString* b) {
        return std::tie(a->Name, a->Value) < std::tie(b->Name, b->Value);
    });
    std::vector<CsfString> sorted;
    sorted.reserve(rows.size());
    for (const CsfString* row : order)
        sorted.push_back(*row);
    return sorted;
}

} // namespace

const QString TableRescue::Kind = u"csf"_s;

QByteArray RescuedTable::Encoded() const {
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(streamVersion);
    out << LanguageText << LanguageShown << static_cast<qint64>(Rows.size());
    for (const CsfString& row : Rows)
        out << row.Name << row.Value << row.Extra.has_value() << row.Extra.value_or(QByteArray()) << row.IsMore;
    out << Whole << Behind << Indexes;
    return bytes;
}

RescuedTable RescuedTable::Decoded(const QByteArray& bytes) {
    QDataStream in(bytes);
    in.setVersion(streamVersion);
    RescuedTable table;
    qint64 count = 0;
    in >> table.LanguageText >> table.LanguageShown >> count;
    // A row takes its two lengths at least.
    for (qint64 row = 0; row < count && in.status() == QDataStream::Ok; ++row) {
        CsfString entry;
        QByteArray extra;
        bool hasExtra = false;
        in >> entry.Name >> entry.Value >> hasExtra >> extra >> entry.IsMore;
        if (hasExtra)
            entry.Extra = extra;
        table.Rows.push_back(std::move(entry));
    }
    in >> table.Whole >> table.Behind >> table.Indexes;
    if (in.status() != QDataStream::Ok || count < 0)
        throw RuntimeError(ErrorNumber::PathFileAccess, u"This is no rescued table."_s);
    return table;
}

void TableRescue::Opened() {
    file_ = ContentOf(document_().Table);
    given_.reset();
    kept_.reset();
    copy_.LetGo();
}

void TableRescue::Saving() {
    file_.reset();
    given_.reset();
    KeepRescue();
}

void TableRescue::Saved() {
    file_ = ContentOf(document_().Table);
    KeepRescue();
}

void TableRescue::Reread(bool changed) {
    file_.reset();
    if (!changed)
        file_ = ContentOf(document_().Table);
    given_.reset();
    KeepRescue();
}

void TableRescue::GivenUp() {
    given_ = ContentOf(document_().Table);
    KeepRescue();
}

bool TableRescue::Adopt(const QString& folder) {
    if (!copy_.Adopt(folder))
        return false;
    file_.reset();
    given_.reset();
    kept_.reset();
    return true;
}

TableRescue::Content TableRescue::ContentOf(const RescuedTable& table) {
    return {Sorted(table.Rows), table.LanguageText};
}

bool TableRescue::KeepSome() {
    Document now = document_();
    if (const Content content = ContentOf(now.Table); content == file_ || content == given_) {
        copy_.Discard();
        kept_.reset();
        return false;
    }
    if (kept_ == now.Table && keptPath_ == now.Path)
        return false;
    copy_.Keep(now.Path, now.NeverSaved, now.Table.Encoded());
    kept_ = std::move(now.Table);
    keptPath_ = now.Path;
    return false;
}

void TableRescue::TellFailed(const QString& reason) {
    failed_(reason);
}
