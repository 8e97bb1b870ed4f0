// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The editor's document with a decoder and a player that answer from a script.
#pragma once

#include "platform/Files.h"
#include "tests/big/document_fixture.h"
#include "tests/support/ScriptedDecoder.h"

#include <QStringList>

/// The start of a bitmap of that size; the preview reads no more of it.
inline QByteArray BitmapOf(int width, int height) {
    QByteArray bytes("BM");
    bytes.resize(26, '\0');
    qToLittleEndian<qint32>(width, bytes.data() + 18);
    qToLittleEndian<qint32>(height, bytes.data() + 22);
    return bytes;
}

class ScriptedPlayer : public SoundPlayer {
public:
    QStringList Opened;
    QByteArray OpenedBytes; ///< of the last sound, when it was opened
    int Stops = 0;

    void Open(const QString& path) override {
        Opened += path;
        OpenedBytes = Files::FileExists(path) ? World::ReadFile(path) : QByteArray();
    }

    void Stop() override { ++Stops; }

    void Play() override {}

    void Rewind() override {}

    void Seek(qint64 /*position*/) override {}

    [[nodiscard]] SoundStatus Status() const override { return {}; }
};

class PreviewTest : public EditorDocument {
protected:
    PreviewTest() { Editor.UsePreview(&Decoder, &Player); }

    ~PreviewTest() override { Editor.UsePreview(nullptr, nullptr); }

    void OpenWith(std::vector<NamedBytes> entries) {
        entries.emplace_back(QStringLiteral("zz"), "a second entry, or the list would be empty");
        OpenArchive(entries);
    }

    void Click(const QString& text) {
        for (int place = 0; place < Editor.List().Count(); ++place) {
            if (Editor.List().Text(place) == text) {
                Editor.ClickRow(place);
                return;
            }
        }
        FAIL() << "no row " << text.toStdString();
    }

    /// Marks an entry as one whose bytes are in a file.
    void MakeNew(int index, const QString& source) {
        mBIG::BigEntries[static_cast<std::size_t>(index)].IsNew = true;
        mBIG::BigEntries[static_cast<std::size_t>(index)].SourcePath = source;
        Editor.ShowFolder({});
    }

    [[nodiscard]] const PreviewState& Shown() const { return Editor.Previewed(); }

    [[nodiscard]] QString Temp(const QString& name) const {
        return Place.ProgramFolder() + QStringLiteral("\\Temp\\") + name;
    }

    [[nodiscard]] QStringList FilesIn(const QString& folder) const {
        return Files::ListFolder(Place.ProgramFolder() + u'\\' + folder + QStringLiteral("\\*"));
    }

    ScriptedDecoder Decoder;
    ScriptedPlayer Player;
};
