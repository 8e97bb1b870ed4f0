// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mTraduction.h"

#include "core/mMain.h"
#include "platform/AnsiCodec.h"
#include "platform/Clock.h"
#include "platform/File.h"
#include "platform/RuntimeError.h"

#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

constexpr quint16 StringTag = 8;

void AppendLittleEndian(QByteArray& bytes, quint16 value) {
    const quint16 stored = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&stored), sizeof stored);
}

QByteArray Record(const QString& key) {
    const QByteArray text = AnsiCodec::Encode(Clock::Now() + u" - ID="_s + key + u", TradFileName="_s +
                                              mMain::LanguageFileName + u"\r\n"_s);
    QByteArray record;
    AppendLittleEndian(record, StringTag);
    AppendLittleEndian(record, static_cast<quint16>(text.size()));
    return record + text;
}

void LogMiss(const QString& key) {
    File log = File::Open(ProgramFolders::LogFolder() + u"\\localization.log"_s, File::Access::ReadWrite);
    Ignoring([&] {
        // The position is the length counted from 1, so a record overwrites the line feed of the one before.
        // This is meant.
        const qint64 length = log.Length();
        log.Write(length > 0 ? length - 1 : 0, Record(key));
    });
    log.Close();
}

} // namespace

QString mTraduction::GetText(const QString& key) {
    QString text;
    Ignoring([&] {
        const QString file = mMain::ProgramFolder + u'\\' + mMain::LanguageFileName;
        text = mMain::INI().ReadTexts(u"LNG"_s, {key}, file).first();
    });
    text.replace(u"\\n"_s, u"\r\n"_s);
    if (!text.isEmpty())
        return text;
    Ignoring([&] { LogMiss(key); });
    return key;
}
