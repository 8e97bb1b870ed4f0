// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/wizard/Installation.h"

#include "core/Host.h"
#include "core/mTraduction.h"
#include "install/wizard/InstallRun.h"

using namespace Qt::StringLiterals;

void Installation::InstallFiles(const InstallSource& source, GameIndex game, InstallationView& view,
                                InstallOutcome& outcome, const Options& options) {
    InstallRun run(source, game, view, outcome, options);
    if (source.SourceIsZip)
        run.Zip();
    else
        run.Single();
    run.Flush();
    view.ShowFinished();
    view.ShowText(mTraduction::GetText(u"InstallationComplete"_s));
    // A single file ends without a sound. This is meant.
    if (source.SourceIsZip && Host::IsThere())
        Host::Current().Beep();
}
