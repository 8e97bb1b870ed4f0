// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "update/UpdateCheck.h"

#include "core/Host.h"
#include "core/Navigator.h"
#include "core/Sizes.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "update/BlockWriter.h"
#include "update/SignedFile.h"
#include "update/mUpdater.h"

using namespace Qt::StringLiterals;
using mTraduction::GetText;
using Field = UpdateView::Field;

namespace {

/// No list of releases is longer; what follows is not read.
constexpr qsizetype LongestInfo = 1048576;

QString Address(const QString& file) {
    return mUpdater::ServerBase + file;
}

} // namespace

UpdateCheck::UpdateCheck(UpdateSession& session, std::chrono::milliseconds patience) : session_(session) {
    patience_.setSingleShot(true);
    patience_.setInterval(patience);
    QObject::connect(&patience_, &QTimer::timeout, &patience_, [this] {
        session_.GivenUp = true;
        session_.Http.Cancel();
    });
}

void UpdateCheck::Load() {
    if (mUpdater::AutoUpdateCheck)
        patience_.start();
    else
        session_.View.ShowWindow();
    Ignoring([] { Files::DeleteFolder(mUpdater::DownloadFolder()); });
    session_.ServerFailed = false;
    Ignoring([&] { CheckServer(); });
    patience_.stop();
    session_.GivenUp = false; // what was found is shown, and the user has time
}

void UpdateCheck::CheckServer() {
    mUpdater::CurrentVersion = mMain::VersionText();
    mUpdater::ServerBase = mUpdater::UpdateServer();
    session_.PublicKey = mUpdater::PublicKey();
    const qint32 size = session_.RemoteFileSize(Address(u"updates_info.inf"_s));
    if (session_.Stopped() || (size == 0 && mUpdater::AutoUpdateCheck))
        return session_.CloseWindow();
    if (size == 0)
        return session_.Fail();
    if (!FetchInfo() || !IsSigned())
        return;
    if (IsSomethingAvailable())
        ShowUpdate();
    else
        ShowNothing();
}

/// False when the check is over.
bool UpdateCheck::FetchInfo() {
    const QByteArray info = session_.GetSmall(Address(u"updates_info.inf"_s), LongestInfo);
    if (session_.Stopped()) {
        session_.CloseWindow();
        return false;
    }
    if (session_.ServerFailed) {
        session_.Fail();
        return false;
    }
    Ignoring([] { Files::MakeFolder(mUpdater::DownloadFolder()); });
    Ignoring([] { Files::DeleteForced(mUpdater::InfoFile()); });
    BlockWriter file(mUpdater::InfoFile());
    file.Append(info);
    file.Close();
    // In a folder that takes no files there is nothing to be found, but also nothing to be said of the server.
    if (file.Failure().isEmpty())
        return true;
    if (mUpdater::AutoUpdateCheck)
        session_.CloseWindow();
    else
        session_.Refuse(file.Failure());
    return false;
}

/// Whether what the server tells is the makers' own word, or needs not be. False when the check is over.
bool UpdateCheck::IsSigned() {
    mUpdater::LatestVersion = mUpdater::ReadInfo(u"LatestVersion"_s, u"Version"_s);
    const SignedFile info{
        .Url = Address(u"updates_info.inf"_s), .Path = mUpdater::InfoFile(), .Name = u"updates_info.inf"_s};
    const bool accepted = SignedFiles::Accept(session_, info);
    if (session_.Stopped())
        session_.CloseWindow();
    else if (!accepted)
        SignedFiles::Refuse(session_, info);
    return accepted && !session_.Stopped();
}

bool UpdateCheck::IsSomethingAvailable() const {
    const QString& latest = mUpdater::LatestVersion;
    if (SignedFiles::AreWanted(session_))
        return SignedFiles::IsNewer(latest, mUpdater::CurrentVersion);
    // Any other text counts as newer, also that of an older release. This is meant.
    return !latest.isEmpty() && latest != mUpdater::CurrentVersion;
}

void UpdateCheck::ShowNothing() {
    if (mUpdater::AutoUpdateCheck)
        session_.CloseWindow();
    else
        session_.View.ShowPanel(UpdateView::Panel::NoUpdate);
}

void UpdateCheck::ShowUpdate() {
    session_.View.ShowWindow();
    if (mUpdater::AutoUpdateCheck)
        Host::Current().Beep();
    session_.View.ShowPanel(UpdateView::Panel::Found);
    if (mUpdater::ReadInfo(mUpdater::CurrentVersion, u"UpdateAvailable"_s) == u"1"_s)
        FindPatch();
    else
        FindRelease();
    if (session_.Closed)
        return;
    session_.View.SetText(Field::Size, Sizes::KiloBytes(mUpdater::UpdateFileSize));
    session_.View.SetText(Field::Version, mUpdater::ReadInfo(u"LatestVersion"_s, u"VersionName"_s));
    session_.View.EnableDownload(true);
    Navigator::Current().EnableToolsMenu(false);
    session_.View.BringToFront();
}

void UpdateCheck::FindPatch() {
    session_.View.SetText(Field::Type, GetText(u"Update"_s));
    mUpdater::UpdateKind = mUpdater::Patch;
    mUpdater::UpdateFileName = mUpdater::ReadInfo(mUpdater::CurrentVersion, u"Filename"_s);
    mUpdater::UpdateFileSize = session_.RemoteFileSize(Address(mUpdater::UpdateFileName));
}

void UpdateCheck::FindRelease() {
    session_.View.SetText(Field::Type, GetText(u"NewVersion"_s));
    mUpdater::UpdateKind = mUpdater::NewRelease;
    const QString url = mUpdater::ReadInfo(u"LatestVersion"_s, u"URL"_s);
    mUpdater::UpdateFileSize = session_.RemoteFileSize(url);
    const qsizetype lastPiece = url.lastIndexOf(u'/') + 1;
    mUpdater::UpdateFileName = url.sliced(lastPiece);
    mUpdater::ServerBase = url.first(lastPiece);
}
