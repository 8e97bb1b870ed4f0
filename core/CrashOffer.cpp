// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/CrashOffer.h"

#include "core/Host.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/CrashReport.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/OwnFolder.h"
#include "platform/RuntimeError.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QStringList>
#include <QSysInfo>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

constexpr qsizetype mostKept = 5;
constexpr qint64 longestReport = 65536;
const auto ending = u".txt"_s;
const auto offered = u".offered.txt"_s;

QString Folder() {
    return OwnStateFolder() + u"\\crashes"_s;
}

/// The names begin with their time.
QStringList Reports() {
    QStringList names = Files::ListFolder(Folder() + u"\\*"_s + ending);
    names.sort();
    return names;
}

QStringList LinesOf(const QString& path) {
    QByteArray bytes;
    Ignoring([&] { bytes = File::Open(path, File::Access::Read).Read(0, longestReport); });
    return QString::fromUtf8(bytes).split(u'\n', Qt::SkipEmptyParts);
}

void KeepLast() {
    const QStringList names = Reports();
    for (qsizetype i = 0; i < names.size() - mostKept; ++i)
        Ignoring([&] { Files::DeleteForced(Folder() + u'\\' + names[i]); });
}

} // namespace

void CrashOffer::Begin() {
    const QString time = QDateTime::currentDateTimeUtc().toString(u"yyyyMMdd-HHmmss"_s);
    const QString name = u"%1-%2"_s.arg(time).arg(QCoreApplication::applicationPid());
    const QString facts = u"Brindock 2005 %1\n%2 (%3), Qt %4\n"_s.arg(
        mMain::VersionText(), QSysInfo::prettyProductName(), QSysInfo::buildAbi(), QLatin1StringView(qVersion()));
    Ignoring([] { Files::MakeFolders(OwnStateFolder()); });
    CrashReport::Leave(Folder() + u'\\' + name + ending, facts.toUtf8());
}

void CrashOffer::Offer() {
    QString last;
    for (const QString& name : Reports()) {
        if (name.endsWith(offered))
            continue;
        // Before the question: a report that ends the program again is not asked for for ever.
        const QString path = Folder() + u'\\' + name.chopped(ending.size()) + offered;
        if (Ignoring([&] { Files::Rename(Folder() + u'\\' + name, path); }))
            last = path;
    }
    KeepLast();
    if (last.isEmpty())
        return;
    const Host::Answer answer = Host::Current().Message(GetText(u"CrashLeft"_s), Host::Icon::Question,
                                                        Host::Buttons::YesNo, u"Brindock 2005"_s, Host::Answer::No);
    if (answer == Host::Answer::Yes)
        Host::Current().MessageWithList(GetText(u"CrashReport"_s), LinesOf(last));
}
