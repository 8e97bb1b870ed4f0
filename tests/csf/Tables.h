// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Pieces of string tables, for tests that write them out byte by byte, and a world in which to read and write them.
#pragma once

#include "csf/format/mCSF.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/Printing.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <ostream>

inline void PrintTo(const CsfString& entry, std::ostream* out) {
    *out << '"' << entry.Name.toStdString() << "\" = \"" << entry.Value.toStdString() << '"';
}

/// Four bytes, least significant first.
QByteArray Little(quint32 value);

/// A header of 24 bytes.
QByteArray CsfHeader(quint32 count, char language = 0);

/// A label record, and a string record with the value's low bytes inverted and 0xFF behind each.
QByteArray LabelRecord(const QByteArray& name);
QByteArray StringRecord(const QByteArray& value);

/// Both in turn.
QByteArray EntryRecords(const QByteArray& name, const QByteArray& value);

/// The thrown end of the program, where the real one would be gone.
struct ProgramEnded {};

class TableTest : public testing::Test {
protected:
    TableTest();
    ~TableTest() override;

    /// Makes a file in the world; returns its inside path.
    QString Put(const QString& name, const QByteArray& bytes) { return world_.WriteFile(name, bytes); }

    [[nodiscard]] QString At(const QString& name) const { return world_.Root() + u'\\' + name; }

    /// Reads the bytes as "a.csf"; the language number or mCSF::Refused.
    qint32 Read(const QByteArray& bytes) { return mCSF::ReadCSF(Put(QStringLiteral("a.csf"), bytes)); }

    /// A refusal: told once, and the file number is free.
    void ExpectRefused(const QByteArray& bytes);

    World world_;
    ScriptedHost host_;
};
