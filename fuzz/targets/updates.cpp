// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a server tells of its releases, through the whole check and the download behind it. Its first line is that
/// text, with "\\n" for its line breaks; the rest is what comes for the update itself.
#include "fuzz/Fuzzing.h"

#include "core/mMain.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/ScriptedNavigator.h"
#include "tests/update/ScriptedHttp.h"
#include "update/UpdateClient.h"
#include "update/mUpdater.h"

using namespace Qt::StringLiterals;
using Fuzzing::Expect;

namespace {

/// A server that has one list of releases, and the same bytes at every other address.
class AnyServer : public ScriptedHttp {
public:
    QByteArray Rest;

    void Execute(const QString& verb) override {
        if (!Answers.contains(URL))
            Answers.insert(URL, {.Body = Rest});
        ScriptedHttp::Execute(verb);
    }
};

/// A window that shows nothing.
class NoView : public UpdateView {
public:
    bool IsClosed = false;
    bool CanDownload = false;

    void ShowWindow() override {}

    void ShowPanel(Panel) override {}

    void SetText(Field, const QString&) override {}

    void SetProgress(int percent) override { Expect(percent >= 0 && percent <= 100, "a bar has its bounds"); }

    void EnableDownload(bool enabled) override { CanDownload = enabled; }

    void RunTimers(bool) override {}

    void BringToFront() override {}

    void CloseWindow() override { IsClosed = true; }
};

/// The program's own folder, with a server that signs nothing.
void UseFolder() {
    static const bool done = [] {
        mMain::UseRuntimes();
        const QString file = Fuzzing::Write(u"updater.cfg"_s, "[BrindockUpdater]\nUpdateServer=http://server/\n");
        Fuzzing::Write(u"Any.lng"_s, "[LNG]\nKiloBytes=KB\nSeconds=s\nUpdate=P\nNewVersion=N\nServerError=S\n"
                                     "UpdateNameRefused=R\nSize2=Z\nElapsedTime2=E\nRemainingTime2=M\n"
                                     "TransferRate2=T\nSaveFailed=F\n");
        mMain::ProgramFolder = file.first(file.lastIndexOf(u'\\'));
        mMain::LanguageFileName = u"Any.lng"_s;
        return true;
    }();
    Expect(done, "there is a folder");
}

void Run(const QByteArray& bytes) {
    UseFolder();
    const qsizetype end = bytes.indexOf('\n');
    AnyServer server;
    server.Answers[u"http://server/updates_info.inf"_s].Body =
        bytes.first(std::max<qsizetype>(end, 0)).replace("\\n", "\r\n");
    server.Rest = bytes.sliced(end + 1);
    ScriptedHost host;
    const ScriptedNavigator navigator;
    NoView view;
    UpdateClient client(server, view, std::chrono::milliseconds(0));
    QString started;
    client.Download.Start = [&](const QString& path) { started = path; };
    client.Download.End = [] {};
    mUpdater::AutoUpdateCheck = false;
    client.Load();
    if (!view.CanDownload || view.IsClosed)
        return;
    client.DownloadPressed();
    const QString folder = mUpdater::DownloadFolder() + u'\\';
    if (started.isEmpty())
        return;
    Expect(started.startsWith(folder) && !started.split(u'\\').contains(u".."_s),
           "what is started was put where it is");
    const QString name = started.sliced(folder.size()).replace(u'\\', u'/');
    Expect(Fuzzing::Read(u"TempUpdater/"_s + name) == server.Rest, "what is started is what came");
}

const FuzzTarget target("updates", Run);

} // namespace
