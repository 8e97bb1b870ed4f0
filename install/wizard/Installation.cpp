// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/wizard/Installation.h"

#include "core/Host.h"
#include "core/mTraduction.h"
#include "install/journal/JournalRun.h"
#include "install/wizard/InstallRun.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

const QString& PathOf(const InstallSource& source) {
    return source.SourceIsZip ? source.InstallRecords.front().ZipPath : source.SingleFile.EntryPath;
}

} // namespace

void Installation::InstallFiles(const InstallSource& source, GameIndex game, InstallationView& view,
                                InstallOutcome& outcome, const Options& options) {
    JournalRun journal(PathOf(source), game);
    const auto told = qScopeGuard([&] {
        journal.End();
        for (const QString& line : journal.Told())
            outcome.Noted(line);
    });
    InstallRun run(source, game, view, outcome,
                   {.Watch = options.Watch == nullptr ? &journal : options.Watch,
                    .Password = options.Password,
                    .Asks = options.Asks});
    if (source.SourceIsZip)
        run.Zip();
    else
        run.Single();
    run.Flush();
    journal.End();
    view.ShowFinished();
    view.ShowText(mTraduction::GetText(u"InstallationComplete"_s));
    // A single file ends without a sound. This is meant.
    if (source.SourceIsZip && Host::IsThere())
        Host::Current().Beep();
}
