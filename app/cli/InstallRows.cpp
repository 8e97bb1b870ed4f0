// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/InstallRows.h"

#include "app/cli/Output.h"
#include "core/Sizes.h"
#include "core/mMain.h"
#include "platform/Paths.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

QString KindName(qint32 kind) {
    static const std::array<QString, 4> names{u"map"_s, u"mod"_s, u"replay"_s, u"shellmap"_s};
    return kind == FileKind::None ? u"none"_s : names.at(static_cast<std::size_t>(kind));
}

QString EffectName(PlannedFile::Effect effect) {
    static const std::array<QString, 5> names{u"new"_s, u"replaces"_s, u"same"_s, u"itself"_s, u"refused"_s};
    return names.at(static_cast<std::size_t>(effect));
}

QString StateName(InstalledFile::State state) {
    static const std::array<QString, 4> names{u"installed"_s, u"kept"_s, u"failed"_s, u"journal"_s};
    return names.at(static_cast<std::size_t>(state));
}

qint64 SizeOf(const PlannedItem& item) {
    qint64 size = 0;
    for (const PlannedFile& file : item.Files)
        size = Sizes::Sum(size, file.Size);
    return size;
}

QJsonObject Object(const PlannedFile& file) {
    return {{u"source"_s, Paths::ToNativeAsGiven(file.Source)},
            {u"target"_s, Paths::ToNativeAsGiven(file.Target)},
            {u"size"_s, file.Size},
            {u"effect"_s, EffectName(file.What)},
            {u"refusal"_s, file.Refusal}};
}

QJsonObject Object(const PlannedItem& item) {
    QJsonArray files;
    for (const PlannedFile& file : item.Files)
        files.append(Object(file));
    return {{u"kind"_s, KindName(item.Kind)},
            {u"name"_s, item.Name},
            {u"folder"_s, Paths::ToNativeAsGiven(item.Folder)},
            {u"count"_s, static_cast<qint64>(item.Files.size())},
            {u"size"_s, SizeOf(item)},
            {u"refusal"_s, item.Refusal},
            {u"ownArchive"_s, item.IsOwnArchive},
            {u"ini"_s, Paths::ToNativeAsGiven(item.IniFile)},
            {u"files"_s, files}};
}

void PrintJson(const QJsonDocument& document) {
    Print(QString::fromUtf8(document.toJson(QJsonDocument::Indented)).trimmed());
}

void PrintItem(const PlannedItem& item) {
    if (!item.Refusal.isEmpty())
        return PrintRow({u"refused"_s, KindName(item.Kind), item.Name, item.Refusal});
    PrintRow({KindName(item.Kind), item.Name, QString::number(item.Files.size()), QString::number(SizeOf(item)),
              Paths::ToNativeAsGiven(item.Folder)});
    for (const PlannedFile& file : item.Files) {
        const bool isRefused = file.What == PlannedFile::Effect::Refused;
        PrintRow({EffectName(file.What), QString::number(file.Size),
                  isRefused ? file.Refusal : Paths::ToNativeAsGiven(file.Target), Paths::ToNativeAsGiven(file.Source)});
    }
    if (!item.IniFile.isEmpty())
        PrintRow({u"describes"_s, {}, Paths::ToNativeAsGiven(item.IniFile)});
}

/// A text of the user's language, or its key: a missing one is not written down, as a plan writes nothing.
QString TextOf(const QString& key) {
    const QString file = mMain::ProgramFolder + u'\\' + mMain::LanguageFileName;
    const QString text = mMain::INI().ReadINI(u"LNG"_s, key, file);
    return text.isEmpty() ? key : text;
}

} // namespace

void InstallRows::Print(const InstallPlan& plan, const std::vector<PassedOverEntry>& passedOver, bool asJson) {
    if (!asJson) {
        std::ranges::for_each(plan.Items, PrintItem);
        for (const PassedOverEntry& entry : passedOver)
            PrintRow({u"passed over"_s, entry.Name, TextOf(entry.Reason)});
        return;
    }
    QJsonArray items;
    for (const PlannedItem& item : plan.Items)
        items.append(Object(item));
    QJsonArray others;
    for (const PassedOverEntry& entry : passedOver)
        others.append(QJsonObject{{u"name"_s, entry.Name}, {u"reason"_s, entry.Reason}});
    PrintJson(QJsonDocument(QJsonObject{{u"items"_s, items},
                                        {u"passedOver"_s, others},
                                        {u"size"_s, plan.Size},
                                        {u"packed"_s, plan.Packed},
                                        {u"dense"_s, plan.IsDense}}));
}

void InstallRows::Print(const InstallOutcome& outcome, bool asJson) {
    QJsonArray files;
    for (const InstalledFile& file : outcome.Files()) {
        if (asJson)
            files.append(
                QJsonObject{{u"state"_s, StateName(file.How)}, {u"name"_s, file.Name}, {u"reason"_s, file.Reason}});
        else if (file.How == InstalledFile::State::Done || file.How == InstalledFile::State::Kept)
            PrintRow({StateName(file.How), file.Name});
    }
    if (asJson)
        PrintJson(QJsonDocument(files));
    for (const InstalledFile& file : outcome.Files()) {
        if (file.How == InstalledFile::State::Failed)
            Report(RuntimeError(ErrorNumber::PathFileAccess, file.Name + u": "_s + file.Reason));
        else if (file.How == InstalledFile::State::Noted)
            Report(RuntimeError(ErrorNumber::PathFileAccess, file.Name));
    }
}
