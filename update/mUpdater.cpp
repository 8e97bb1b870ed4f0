// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "update/mUpdater.h"

#include "core/Host.h"
#include "core/ProgramFolders.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;

bool mUpdater::AutoUpdateCheck = false;
QString mUpdater::ServerBase;
QString mUpdater::CurrentVersion;
QString mUpdater::LatestVersion;
int mUpdater::UpdateKind = Patch;
QString mUpdater::UpdateFileName;
qint32 mUpdater::UpdateFileSize = 0;
std::function<void()> mUpdater::LoadWindow;

namespace {

QString Configured(const QString& key) {
    return mMain::INI().ReadINI(u"BrindockUpdater"_s, key, ProgramFolders::ProgramFolder + u"\\updater.cfg"_s);
}

bool BringsThePackageManager() {
    QString value;
    Ignoring([&] { value = Configured(u"PackageManager"_s); });
    return !value.isEmpty();
}

void TellOfPackages() {
    if (!mUpdater::AutoUpdateCheck)
        Host::Current().Message(mTraduction::GetText(u"UpdatesByPackages"_s), Host::Icon::Information);
}

} // namespace

void mUpdater::CheckForUpdates(bool automatic) {
    AutoUpdateCheck = automatic;
    Ignoring([] {
        if (BringsThePackageManager())
            TellOfPackages();
        else if (LoadWindow)
            LoadWindow();
    });
}

QString mUpdater::UpdateServer() {
    return Configured(u"UpdateServer"_s);
}

QString mUpdater::PublicKey() {
    return Configured(u"PublicKey"_s);
}

QString mUpdater::DownloadFolder() {
    return ProgramFolders::WorkFolder() + u"\\TempUpdater"_s;
}

QString mUpdater::InfoFile() {
    return DownloadFolder() + u"\\updates_info.inf"_s;
}

QString mUpdater::ReadInfo(const QString& section, const QString& key) {
    return mMain::INI().ReadINI(section, key, InfoFile());
}
