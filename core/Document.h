// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the editors' documents have in common.
#pragma once

#include "core/Notice.h"

#include <QString>

#include <functional>

/// What every document asks of its window.
class DocumentView {
public:
    DocumentView() = default;
    DocumentView(const DocumentView&) = delete;
    DocumentView& operator=(const DocumentView&) = delete;
    virtual ~DocumentView() = default;

    virtual void ShowWindow() = 0;
    /// Something in the document's state is different.
    virtual void StateChanged() = 0;
    /// The busy pointer, on and off again. Pairs nest.
    virtual void ShowBusy(bool busy) = 0;
    /// The line under the menu bar; a notice takes the place of the one before it, one without a text that of none.
    virtual void ShowNotice(const Notice& notice) = 0;

    /// What is offered back to the user stands in that line until it is answered or closed, whatever notices come
    /// meanwhile; one without a text takes it away.
    virtual void ShowOffer(const Notice& offer) {
        if (!offer.Text.isEmpty())
            ShowNotice(offer);
    }

    /// Shows a folder (an inside path) in the system's own program for that.
    virtual void OpenFolder(const QString& folder) { static_cast<void>(folder); }
};

/// The busy pointer for as long as it stands.
class Busy {
public:
    explicit Busy(DocumentView& view) : view_(view) { view_.ShowBusy(true); }

    ~Busy() { view_.ShowBusy(false); }

    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    DocumentView& view_;
};

namespace Document {

/// How a save ended.
enum class Saved { Yes, NothingToSave, Cancelled, Failed };

/// Asks what is to become of unsaved changes, under the name that the user knows the file by; `save` is called for Yes.
/// True when the changes are saved or given up.
bool GoOnWithoutChanges(const QString& name, const std::function<Saved()>& save);

/// Where the file dialogs of a document begin: the folder of its file. Empty for one that has no folder yet, and in the
/// scratch folder, where nothing lasts.
QString FolderForDialogs(const QString& path);

/// Where the dialog that opens a document of a kind (see LastTime) begins: beside the one that is open, else where the
/// last one was, else with the first game that was found.
QString FolderToOpenIn(const QString& kind, const QString& path);

/// Puts the file first among the recent ones of its kind, unless it lies where nothing lasts.
void NoteRecent(const QString& kind, const QString& path);

} // namespace Document
