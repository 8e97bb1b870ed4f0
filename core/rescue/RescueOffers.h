// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What an editor's window offers back: rescues that dead processes left, and files that a killed save left beside its
/// target. One at a time; each stays until it is answered.
#pragma once

#include "core/Document.h"
#include "core/rescue/RescueCopy.h"

#include <QString>

#include <functional>
#include <list>
#include <optional>

class RescueOffers {
public:
    /// What the editor does for them.
    struct Editor {
        QString Kind;   ///< of its rescues
        QString Beside; ///< what the name of a file that its saves left has behind its target's
        /// What the notice says in place of the usual text; empty for that one. %1 and %2 are filled in.
        std::function<QString(const Rescues::Left&)> Text;
        /// Whether what is left beside is a whole document of this kind; false for a file of somebody else's.
        std::function<bool(const QString& path)> IsWhole;
        /// Opens a rescue; false when the document that is open stays, and the offer with it.
        std::function<bool(const Rescues::Left&)> Open;
        /// Asks about unsaved changes of the document that is open; false when it stays open.
        std::function<bool()> MayReplace;
        /// Opens the file that was put back.
        std::function<void(const QString& path)> Replaced;
    };

    /// The view outlives this.
    RescueOffers(DocumentView& view, Editor editor) : view_(view), editor_(std::move(editor)) {}

    RescueOffers(const RescueOffers&) = delete;
    RescueOffers& operator=(const RescueOffers&) = delete;

    /// At the start of the editor: what is left for it.
    void TellLeft();

    /// Behind the opening of a file, also one that failed: what a save left beside it. Whether there is something.
    bool TellBeside(const QString& path);

private:
    struct Offer {
        std::optional<Rescues::Left> Rescue{}; ///< else what lies beside a file
        QString Path;                          ///< of the document
    };

    void ShowNext();
    bool Show(const Offer& offer);
    void Answered(const Offer& offer);
    void Open(const Offer& offer);
    void ThrowAway(const Offer& offer);
    void PutBack(const QString& path);
    void KeepBoth(const QString& path);
    [[nodiscard]] QString LeftBy(const QString& path) const;
    void Remove(const QString& path);
    void TellKept(const QString& kept);

    DocumentView& view_;
    Editor editor_;
    std::list<Offer> offers_; ///< the first one is shown
};
