// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/Preview.h"

#include "core/FolderGateway.h"
#include "core/mMain.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int LongerSide = 105;

/// Whether a list holds the last four characters of a name and a slash. The search is anywhere in the list, so "jpeg"
/// counts with its four letters, and a shorter name counts as the end of an extension. This is meant.
bool IsListed(QLatin1String list, const QString& name) {
    return list.contains(name.last(std::min<qsizetype>(name.size(), 4)).toLower() + u'/');
}

bool IsSound(const QString& name) {
    return IsListed(".mp3/.wav/"_L1, name);
}

QString PictureFolder() {
    return ProgramFolders::WorkFolder() + u"\\TempPrev"_s;
}

/// The path of a temporary file straight in one of the two folders; raises for a name that may not be written.
QString TargetIn(const QString& folder, const QString& name) {
    if (name.contains(u'\\') || name.contains(u'/'))
        throw RuntimeError(ErrorNumber::PathNotFound, u"%1: is in a folder of its own"_s.arg(name));
    return FolderGateway(folder).TargetFor(name);
}

QString SoundName(int number, const QString& rowText) {
    return u"snd"_s + QString::number(number) + rowText;
}

QString SoundFileFor(int number, const QString& rowText) {
    return mMain::ScratchFolder() + u'\\' + SoundName(number, rowText);
}

/// Copies an entry of the archive to a temporary file; what can't be copied is passed over.
void ExtractTo(int index, const QString& path) {
    // What an earlier day left would show behind a shorter entry.
    Ignoring([&] { Files::DeleteForced(path); });
    // An entry of no bytes leaves numbers open, which would cost every later preview and keep the files from being
    // deleted.
    mBIG::CloseExtraction();
    Ignoring([&] { mBIG::ExtractEntryAsGiven(index, mBIG::BigFileName, path); });
    mBIG::CloseExtraction();
}

/// Times 105 divided by the longer side, half to even.
int Scaled(int side, int longer) {
    return static_cast<int>(std::lrint(static_cast<double>(side) * LongerSide / longer));
}

} // namespace

Preview::Preview(std::function<void()> changed) : changed_(std::move(changed)) {}

Preview::~Preview() {
    AbandonPicture();
}

void Preview::Use(PictureDecoder* decoder, SoundPlayer* player) {
    AbandonPicture();
    decoder_ = decoder;
    player_ = player;
}

bool Preview::ShowFile(int index, const QString& rowText) {
    AbandonPicture();
    if (decoder_ != nullptr)
        decoder_->Prepare();
    if (IsPicture(rowText)) {
        ShowPicture(index, rowText);
        return true;
    }
    if (IsSound(rowText))
        return ShowSound(index, rowText);
    DeleteSoundFile(); // The field keeps the name, so the same sound clicked next counts as in place. This is meant.
    HidePlayer();
    state_.GroupHeight = PlainHeight;
    return true;
}

void Preview::ShowFolderRow() {
    AbandonPicture();
    DeleteSoundFile(); // The field keeps the name. This is meant.
    HidePlayer();
}

void Preview::Clear() {
    AbandonPicture();
    if (decoder_ != nullptr)
        decoder_->Prepare();
    DeleteSoundFile();
    state_.SoundFile.clear();
    HidePlayer();
}

bool Preview::IsPicture(const QString& rowText) {
    return IsListed(".bmp/.dds/.dib/.hdr/.jpg/.pfm/.png/.tga/.jpeg/.gif/"_L1, rowText);
}

QSize Preview::Fit(QSize picture) {
    const int width = picture.width();
    const int height = picture.height();
    if (picture.isEmpty())
        return {};
    return width > height ? QSize(LongerSide, Scaled(height, width)) : QSize(Scaled(width, height), LongerSide);
}

QSize Preview::SizeOf(const QByteArray& bitmap) {
    constexpr qsizetype widthAt = 18;
    constexpr qsizetype heightAt = 22;
    if (!bitmap.startsWith("BM") || bitmap.size() < heightAt + 4)
        return {};
    return {qFromLittleEndian<qint32>(bitmap.constData() + widthAt),
            qFromLittleEndian<qint32>(bitmap.constData() + heightAt)};
}

void Preview::ShowPicture(int index, const QString& rowText) {
    DeleteSoundFile();
    state_.SoundFile.clear();
    Ignoring([] { Files::MakeFolder(PictureFolder()); });
    HidePlayer();
    state_.GroupHeight = PictureHeight;
    state_.PictureShown = true;
    state_.PictureName = rowText;
    state_.WholeSize = {};
    state_.Facts = {};
    state_.PictureUnread = false;
    constexpr int extension = 3;
    if (decoder_ == nullptr || rowText.size() < extension)
        return;
    const BigEntry& entry = mBIG::BigEntries[static_cast<std::size_t>(index)];
    QString source = entry.SourcePath;
    // A name that may not be written has no preview; any other failure shows in the picture that does not come.
    const bool allowed = Ignoring([&] {
        bitmap_ = TargetIn(PictureFolder(), rowText.chopped(extension) + u"bmp"_s);
        if (!entry.IsNew)
            source = extracted_ = TargetIn(PictureFolder(), rowText);
    });
    if (!allowed) {
        bitmap_.clear();
        state_.PictureUnread = true;
        return;
    }
    source_ = source;
    if (!entry.IsNew)
        ExtractTo(index, source);
    decoder_->Decode(source, bitmap_, [this](bool decoded) { PictureCame(decoded); });
}

void Preview::PictureCame(bool decoded) {
    state_.PictureUnread = true;
    if (decoded)
        Ignoring([&] { TakePicture(); });
    DeletePictureFiles();
    changed_();
}

// What can't be loaded leaves the old picture.
void Preview::TakePicture() {
    const QByteArray bitmap = ReadWhole(bitmap_);
    const QSize size = Fit(SizeOf(bitmap));
    if (size.isEmpty())
        return;
    state_.Bitmap = bitmap;
    state_.PictureSize = size;
    state_.WholeSize = SizeOf(bitmap);
    state_.PictureUnread = false;
    Ignoring([&] {
        const QByteArray head = File::Open(source_, File::Access::Read).Read(0, PictureFacts::HeadLength);
        state_.Facts = PictureFacts::Of(head, state_.PictureName);
    });
}

void Preview::DeletePictureFiles() {
    const QString bitmap = std::exchange(bitmap_, {});
    const QString extracted = std::exchange(extracted_, {});
    Ignoring([&] { Files::DeleteForced(bitmap); });
    if (!extracted.isEmpty())
        Ignoring([&] { Files::DeleteForced(extracted); });
}

void Preview::AbandonPicture() {
    if (bitmap_.isEmpty())
        return;
    decoder_->Abandon();
    DeletePictureFiles();
}

bool Preview::ShowSound(int index, const QString& rowText) {
    if (state_.SoundFile == SoundFileFor(soundFileNumber_ - 1, rowText))
        return false;
    if (player_ != nullptr)
        player_->Stop();
    DeleteSoundFile();
    state_.PictureShown = false;
    state_.GroupHeight = SoundHeight;
    state_.PlayerShown = true;
    Ignoring([] { Files::MakeFolder(mMain::ScratchFolder()); });
    const BigEntry& entry = mBIG::BigEntries[static_cast<std::size_t>(index)];
    if (!entry.IsNew) {
        state_.SoundFile = SoundFileFor(soundFileNumber_, rowText);
        // A name that may not be written is not opened nor deleted either: there is no sound.
        QString target;
        if (!Ignoring([&] { target = TargetIn(mMain::ScratchFolder(), SoundName(soundFileNumber_, rowText)); }))
            state_.SoundFile.clear();
        else
            ExtractTo(index, target);
    }
    if (player_ != nullptr)
        player_->Open(entry.IsNew ? entry.SourcePath : state_.SoundFile);
    // At the highest number the step fails, and the number stays. This is meant.
    if (soundFileNumber_ < std::numeric_limits<qint16>::max())
        ++soundFileNumber_;
    return true;
}

void Preview::DeleteSoundFile() const {
    if (!state_.SoundFile.isEmpty())
        Ignoring([&] { Files::DeleteForced(state_.SoundFile); });
}

void Preview::HidePlayer() {
    if (player_ != nullptr)
        player_->Stop();
    state_.PlayerShown = false;
}
