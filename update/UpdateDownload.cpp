// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "update/UpdateDownload.h"

#include "core/FolderGateway.h"
#include "core/Host.h"
#include "core/Navigator.h"
#include "core/Sizes.h"
#include "core/mTraduction.h"
#include "core/rescue/RescuedDocument.h"
#include "platform/Files.h"
#include "platform/Processes.h"
#include "platform/RuntimeError.h"
#include "update/BlockWriter.h"
#include "update/SignedFile.h"
#include "update/mUpdater.h"

using namespace Qt::StringLiterals;
using mTraduction::GetText;
using Field = UpdateView::Field;

namespace {

constexpr qsizetype ChunkSize = 1024;

/// Where the update goes; empty for a name that would leave the folder.
QString Target() {
    QString path;
    Ignoring([&] { path = FolderGateway(mUpdater::DownloadFolder()).TargetFor(mUpdater::UpdateFileName); });
    return path;
}

QString Labelled(const QString& key, const QString& text) {
    return GetText(key) + u' ' + text;
}

} // namespace

void UpdateDownload::StartProgram(const QString& path) {
    Ignoring([&] { Files::MakeExecutable(path); });
    Processes::StartCommand(u'"' + path + u'"');
}

void UpdateDownload::EndProgram() {
    KeepAllRescues();
    Processes::End(0);
}

void UpdateDownload::Pressed() {
    const bool known = mUpdater::UpdateKind == mUpdater::Patch || mUpdater::UpdateKind == mUpdater::NewRelease;
    // The end of the download ends the program.
    if (!known || !Navigator::Current().MayEndProgram() || session_.Closed)
        return;
    session_.View.EnableDownload(false);
    session_.View.ShowPanel(UpdateView::Panel::Download);
    session_.View.SetText(Field::FileName, mUpdater::UpdateFileName);
    session_.View.SetText(Field::DownloadSize, Labelled(u"Size2"_s, Sizes::KiloBytes(mUpdater::UpdateFileSize)));
    session_.View.SetText(Field::ElapsedTime, Labelled(u"ElapsedTime2"_s, u"00:00:00"_s));
    DownloadUpdate(mUpdater::ServerBase + mUpdater::UpdateFileName);
}

void UpdateDownload::DownloadUpdate(const QString& url) {
    session_.Downloading = true;
    const QString path = Target();
    if (path.isEmpty())
        return session_.Refuse(GetText(u"UpdateNameRefused"_s));
    session_.Get(url);
    if (session_.Closed || session_.DownloadCancelRequested)
        return session_.CloseWindow();
    if (session_.ServerFailed)
        return session_.Fail();
    figures_.Start(session_.SecondsOfDay());
    Ignoring([&] { Files::DeleteForced(path); });
    session_.View.RunTimers(true);
    BlockWriter file(path);
    Receive(file);
    file.Close();
    session_.View.RunTimers(false);
    if (session_.Closed || session_.DownloadCancelRequested)
        return session_.CloseWindow(); // what has come stays until the next check
    session_.Downloading = false;
    if (session_.ServerFailed)
        session_.Fail();
    else
        Finish(url, path);
}

void UpdateDownload::Receive(BlockWriter& file) {
    QByteArray chunk;
    do {
        Host::Current().Yield();
        chunk = session_.Http.GetChunk(ChunkSize);
        file.Append(chunk);
        // A last chunk of one byte is not counted. This is meant.
        if (chunk.size() > 1)
            CountChunk(chunk.size());
    } while (chunk.size() > 1 && !session_.DownloadCancelRequested && !session_.Closed);
}

void UpdateDownload::CountChunk(qsizetype bytes) {
    figures_.Count(bytes, mUpdater::UpdateFileSize, session_.SecondsOfDay());
    if (figures_.Percent() == shownPercent_)
        return;
    shownPercent_ = figures_.Percent();
    session_.View.SetProgress(shownPercent_);
    session_.View.SetText(Field::Percent, QString::number(shownPercent_) + u'%');
}

void UpdateDownload::Finish(const QString& url, const QString& path) {
    // What was changed since the button was pressed would be gone without a word.
    if (!Navigator::Current().MayEndProgram())
        return session_.CloseWindow();
    if (session_.Closed)
        return;
    // Last of all: while a question stands open, the file may become another.
    const SignedFile update{.Url = url, .Path = path, .Name = mUpdater::UpdateFileName};
    const bool accepted = SignedFiles::Accept(session_, update);
    if (session_.Closed)
        return;
    if (!accepted)
        return SignedFiles::Refuse(session_, update);
    session_.CloseWindow();
    Ignoring([&] { Start(path); });
    End();
}

void UpdateDownload::ShowRate() {
    session_.View.SetText(Field::Rate, Labelled(u"TransferRate2"_s, figures_.RateText()));
}

void UpdateDownload::ShowTimes() {
    const double now = session_.SecondsOfDay();
    session_.View.SetText(Field::ElapsedTime, Labelled(u"ElapsedTime2"_s, figures_.ElapsedText(now)));
    const QString remaining = figures_.RemainingText(now, mUpdater::UpdateFileSize);
    session_.View.SetText(Field::RemainingTime, Labelled(u"RemainingTime2"_s, remaining));
}
