// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/ReportDetails.h"

#include "core/Game.h"
#include "core/mMain.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QDir>
#include <QStringList>
#include <QSysInfo>
#include <QtEndian>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<QStringView, GameCount> names{u"Generals", u"Zero Hour", u"The Battle for Middle-earth",
                                                   u"The Battle for Middle-earth II"};
// The games' programs have a tenth of it.
constexpr qint64 mostOfProgram = qint64{64} * 1024 * 1024;

/// A path as the system writes it, without the user's name.
QString Shown(const QString& nativePath) {
    const QString home = QDir::toNativeSeparators(QDir::homePath());
    const bool isBelow = home.size() > 1 && nativePath.startsWith(home + QDir::separator());
    return isBelow ? u'~' + nativePath.sliced(home.size()) : nativePath;
}

QString VersionOf(const QString& program) {
    QString version;
    Ignoring([&] {
        if (Files::FileLength(program) <= mostOfProgram)
            version = ReportDetails::ProgramVersion(ReadWhole(program));
    });
    return version.isEmpty() ? u"unknown"_s : version;
}

QString LineOf(GameIndex game) {
    const GameEntry& entry = Game.at(static_cast<std::size_t>(game));
    const QString name = names.at(static_cast<std::size_t>(game)).toString();
    if (entry.InstallPath.isEmpty())
        return name + u": not found"_s;
    const QString folder = entry.InstallFolder();
    QString line =
        u"%1: %2, version %3"_s.arg(name, Shown(Paths::ToNative(folder)), VersionOf(folder + ExecutableName(game)));
    if (!entry.Prefix.isEmpty())
        line += u", prefix "_s + Shown(entry.Prefix);
    return line;
}

} // namespace

QString ReportDetails::Text(const QString& display) {
    QStringList lines{
        u"Brindock 2005 "_s + mMain::VersionText(),
        u"System: "_s + QSysInfo::prettyProductName() + u", "_s + QSysInfo::currentCpuArchitecture(),
        u"Qt: "_s + QString::fromLatin1(qVersion()),
        u"Display: "_s + display,
        u"Language: "_s + (mMain::LanguageFileName.isEmpty() ? u"none"_s : mMain::LanguageFileName),
    };
    for (GameIndex game = 0; game < GameCount; ++game)
        lines += LineOf(game);
    return lines.join(u'\n') + u'\n';
}

QString ReportDetails::ProgramVersion(QByteArrayView program) {
    // The mark of a version record and the number of its layout; two numbers of two halves each follow.
    constexpr QByteArrayView mark("\xBD\x04\xEF\xFE\x00\x00\x01\x00", 8);
    constexpr qsizetype numbers = 8;
    const qsizetype place = program.indexOf(mark);
    if (place < 0 || program.size() - place < mark.size() + numbers)
        return {};
    const char* const bytes = program.data() + place + mark.size();
    const auto most = qFromLittleEndian<quint32>(bytes);
    const auto least = qFromLittleEndian<quint32>(bytes + sizeof most);
    return u"%1.%2.%3.%4"_s.arg(most >> 16).arg(most & 0xFFFF).arg(least >> 16).arg(least & 0xFFFF);
}
