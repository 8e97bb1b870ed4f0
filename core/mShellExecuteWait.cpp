// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mShellExecuteWait.h"

#include "core/Host.h"
#include "core/Navigator.h"
#include "core/mMain.h"
#include "platform/ProcessEnd.h"
#include "platform/RuntimeError.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int NoAssociation = 31;
constexpr int IncompleteAssociation = 27;

void Tell(int instApp) {
    const QString text = mShellExecuteWait::RefusalText(instApp);
    if (!text.isEmpty())
        Host::Current().Message(text, Host::Icon::Exclamation);
}

/// False when there is no such chooser.
bool LetTheUserChoose(const QString& path) {
    // A system without a chooser says at least why nothing opens.
    const bool asked = Ignoring([&] { Processes::ChooseProgramFor(path); });
    if (!asked)
        Tell(IncompleteAssociation);
    return asked;
}

} // namespace

QString mShellExecuteWait::RefusalText(int instApp) {
    struct Refusal {
        int InstApp;
        QString Text;
    };

    // Fixed texts, in French whatever the language. This is meant.
    static const std::array<Refusal, 9> refusals{{
        {3, u"Le chemin du fichier à ouvrir est incorrect."_s},
        {5, u"Accès au fichier refusé."_s},
        {8, u"Mémoire insuffisante."_s},
        {26, u"Le fichier est déjà ouvert."_s},
        {IncompleteAssociation, u"Information d'association du fichier incomplète."_s},
        {28, u"Opération DDE dépassée."_s},
        {29, u"Opération DDE echouée."_s},
        {30, u"Opération DDE occupée."_s},
        {32, u"Dynamic-link library non trouvé."_s},
    }};
    for (const Refusal& refusal : refusals) {
        if (refusal.InstApp == instApp)
            return refusal.Text;
    }
    return {};
}

int mShellExecuteWait::ReactTo(int instApp, const QString& path) {
    if (instApp == NoAssociation)
        return LetTheUserChoose(path) ? instApp : IncompleteAssociation;
    Tell(instApp);
    return instApp;
}

void mShellExecuteWait::WaitFor(Processes::Handle process, const std::function<bool()>& goesOn) {
    bool ended = false;
    const ProcessEnd end(process);
    QObject::connect(&end, &ProcessEnd::Ended, [&ended] { ended = true; });
    Host::Current().WaitUntil([&] { return ended || !goesOn(); });
}

Processes::Opened mShellExecuteWait::Open(const QString& path, quintptr owner) {
    // Capitals go to the system. This is meant.
    if (path.endsWith(u"csf"_s)) {
        mMain::CsfOpenedByHost = true;
        Navigator::Current().OpenCSFFile(path);
        return {};
    }
    Processes::Opened opened = Processes::OpenWithAssociation(path, owner);
    opened.InstApp = ReactTo(opened.InstApp, path);
    return opened;
}

bool mShellExecuteWait::IsOpened(const Processes::Opened& opened) {
    constexpr int lastRefusal = 32;
    return opened.InstApp > lastRefusal || opened.InstApp == NoAssociation;
}

Processes::Handle mShellExecuteWait::OpenWithShell(const QString& path, quintptr owner, bool wait,
                                                   const std::function<bool()>& goesOn) {
    const Processes::Opened opened = Open(path, owner);
    if (wait && opened.Process != 0)
        WaitFor(opened.Process, goesOn);
    return opened.Process;
}
