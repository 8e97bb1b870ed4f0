// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How logic speaks to the user. The windows implement it, the command line has its own, tests script it.
#pragma once

#include <QString>

#include <optional>

class Host {
public:
    enum class Icon { None, Critical, Exclamation, Question, Information };
    enum class Buttons { Ok, YesNo, YesNoCancel };
    enum class Answer { Ok, Yes, No, Cancel };

    /// What an open or save dialog shows. Filters stand as "text|pattern|text|pattern".
    struct FileDialog {
        QString Title;
        QString Filter;
        QString DefaultExtension;
        QString DefaultName;
        QString Folder{}; ///< where to begin; empty: where the toolkit thinks best
    };

    Host() = default;
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    virtual ~Host() = default;

    /// A modal message box. Closing it without a choice is Cancel where there is one, else No, else Ok.
    virtual Answer Message(const QString& text, Icon icon, Buttons buttons = Buttons::Ok,
                           const QString& title = QStringLiteral("Brindock 2005")) = 0;

    /// A line of text; nothing when cancelled.
    virtual std::optional<QString> InputBox(const QString& prompt, const QString& title, const QString& text) = 0;

    virtual void Beep() = 0;

    /// The chosen file as an inside path; nothing when cancelled.
    virtual std::optional<QString> OpenFileName(const FileDialog& dialog) = 0;
    virtual std::optional<QString> SaveFileName(const FileDialog& dialog) = 0;

    /// The progress window `frmProgress`: shown not modally, with a text (line breaks CR LF) and a bar of 0 to 100.
    virtual void ShowProgress() = 0;
    virtual void SetProgressText(const QString& text) = 0;
    virtual void SetProgressValue(int percent) = 0;
    virtual void HideProgress() = 0;
    virtual void UnloadProgress() = 0;
    /// Whether the window was cancelled, by its button or by CancelProgress; false when there is none.
    [[nodiscard]] virtual bool ProgressCancelled() const = 0;
    /// As the window's button: stops its timer and marks it cancelled.
    virtual void CancelProgress() = 0;
    /// The window comes to the front by itself no longer.
    virtual void StopProgressTimer() = 0;

    /// Lets waiting window events run.
    virtual void Yield() = 0;

    /// The one in use. Logic that needs none runs without; asking for a missing one raises 91.
    static Host& Current();
    static void Use(Host* host);
};
