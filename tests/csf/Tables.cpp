// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/csf/Tables.h"

#include "platform/NumberedFiles.h"

#include <QtEndian>

QByteArray Little(quint32 value) {
    QByteArray bytes(4, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

QByteArray CsfHeader(quint32 count, char language) {
    return " FSC" + Little(3) + Little(count) + Little(count) + Little(0) + language + Bytes("\0\0\0");
}

QByteArray LabelRecord(const QByteArray& name) {
    return " LBL" + Little(1) + Little(static_cast<quint32>(name.size())) + name;
}

QByteArray StringRecord(const QByteArray& value) {
    QByteArray record = " RTS" + Little(static_cast<quint32>(value.size()));
    for (const char letter : value) {
        record += static_cast<char>(255 - static_cast<unsigned char>(letter));
        record += '\xFF';
    }
    return record;
}

QByteArray EntryRecords(const QByteArray& name, const QByteArray& value) {
    return LabelRecord(name) + StringRecord(value);
}

TableTest::TableTest() {
    world_.Start();
    mCSF::CsfStrings.clear();
    mCSF::EndProgram = [] { throw ProgramEnded(); };
}

TableTest::~TableTest() {
    NumberedFiles::CloseAll();
}

void TableTest::ExpectRefused(const QByteArray& bytes) {
    host_.Messages.clear();
    EXPECT_EQ(Read(bytes), 65536);
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_EQ(host_.Messages[0].Text, QStringLiteral("CSFError"));
    EXPECT_EQ(host_.Messages[0].Title, QStringLiteral("Brindock 2005"));
    EXPECT_EQ(host_.Messages[0].Sign, Host::Icon::Critical);
    EXPECT_FALSE(NumberedFiles::IsOpen(mCSF::FileNumber));
}
