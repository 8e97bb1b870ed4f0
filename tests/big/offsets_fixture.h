// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Archives whose data lie beside their offsets, in the editor: what the strip tells of them, and its links.
#pragma once

#include "tests/big/document_fixture.h"

class EditorOffsets : public EditorDocument {
protected:
    EditorOffsets() {
        Place.UseLanguage("[LNG]\r\nSavedShifted=Saved: %1 files %2 bytes off\r\nArchiveShifted=Here: %1 files %2 "
                          "bytes off\r\nSavedCut=Cut: %1\r\nSaveExactly=Exactly\r\nAlways=Always\r\n"
                          "ReadShiftedBack=Back\r\nOneEntryShifted=Both: %2\r\nOneEntryNotShown=Hidden\r\n");
        Place.Start();
    }

    void ClickLink(std::size_t link) {
        ASSERT_LT(link, View.Told.Links.size());
        const auto run = View.Told.Links[link].Run;
        View.Told = {};
        run();
    }

    /// The bytes of an entry where the directory of the file on disk says, or so many beside.
    [[nodiscard]] static QByteArray Stored(const QString& path, std::size_t index, int beside = 0) {
        const Archive archive = Archives::Read(path);
        const BigEntry& entry = archive.Entries.at(index);
        return World::ReadFile(path).mid(entry.Offset + beside, entry.Size);
    }
};
