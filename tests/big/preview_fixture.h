// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The editor's document with a decoder and a player that answer from a script.
#pragma once

#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/big/document_fixture.h"

#include <QFile>
#include <QStringList>

/// The start of a bitmap of that size; the preview reads no more of it.
inline QByteArray BitmapOf(int width, int height) {
    QByteArray bytes("BM");
    bytes.resize(26, '\0');
    qToLittleEndian<qint32>(width, bytes.data() + 18);
    qToLittleEndian<qint32>(height, bytes.data() + 22);
    return bytes;
}

class ScriptedDecoder : public PictureDecoder {
public:
    QByteArray Bitmap; ///< written for every picture; empty: none can be read
    bool Waits = false;
    int Abandoned = 0;
    QStringList Sources;
    QStringList Bitmaps;
    QByteArray SourceBytes; ///< of the last source, when it was asked for
    Done Pending;

    void Prepare() override {}

    void Decode(const QString& source, const QString& bitmap, Done done) override {
        Sources += source;
        Bitmaps += bitmap;
        SourceBytes = Files::FileExists(source) ? World::ReadFile(source) : QByteArray();
        target_ = bitmap;
        Pending = std::move(done);
        if (!Waits)
            Answer();
    }

    void Abandon() override {
        ++Abandoned;
        Pending = {};
    }

    void Answer() {
        if (!Bitmap.isEmpty()) {
            QFile file(Paths::ToNative(target_));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(Bitmap);
        }
        if (const Done done = std::exchange(Pending, {}))
            done(!Bitmap.isEmpty());
    }

private:
    QString target_;
};

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
