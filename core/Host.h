// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How logic speaks to the user. The windows implement it, the command line has its own, tests script it.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

/// The progress window `frmProgress`: not modal, with a text and a bar. It goes from the screen with this object.
class Progress {
public:
    Progress() = default;
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    virtual ~Progress() = default;

    /// Line breaks are CR LF.
    virtual void SetText(const QString& text) = 0;
    /// 0 to 100.
    virtual void SetValue(int percent) = 0;
    /// Off the screen, and on none again.
    virtual void Hide() = 0;
    /// Whether the window was cancelled, by its button, by closing it or by Cancel.
    [[nodiscard]] virtual bool Cancelled() const = 0;
    /// As the window's button: stops its timer and marks it cancelled.
    virtual void Cancel() = 0;
    /// The window comes to the front by itself no longer.
    virtual void StopTimer() = 0;
    /// The window stays on the screen, out of reach, when this object goes; the next one that is shown takes its place.
    virtual void Release() = 0;
};

class Host {
public:
    enum class Icon { None, Critical, Exclamation, Question, Information };
    enum class Buttons { Ok, YesNo, YesNoCancel, SaveCancel };
    enum class Answer { Ok, Yes, No, Cancel, Save };

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

    /// A modal message box. Enter presses `defaultAnswer`, or the first button without one. Escape and the cross are
    /// Cancel, or Ok where that is all there is; Yes or No has neither: it waits for one of the two.
    virtual Answer Message(const QString& text, Icon icon, Buttons buttons = Buttons::Ok,
                           const QString& title = QStringLiteral("Brindock 2005"),
                           std::optional<Answer> defaultAnswer = {}) = 0;

    /// A modal box with a list of any length below a text, which can be copied. A host that has none shows a message.
    virtual void MessageWithList(const QString& text, const QStringList& lines);

    /// A line of text; nothing when cancelled.
    virtual std::optional<QString> InputBox(const QString& prompt, const QString& title, const QString& text) = 0;

    virtual void Beep() = 0;

    /// The chosen file as an inside path; nothing when cancelled.
    virtual std::optional<QString> OpenFileName(const FileDialog& dialog) = 0;
    /// Several at once; none when cancelled. A host that has no such dialog asks for one.
    virtual QStringList OpenFileNames(const FileDialog& dialog);
    virtual std::optional<QString> SaveFileName(const FileDialog& dialog) = 0;

    /// A folder that exists, chosen as an inside path without a trailing backslash but a drive's own; nothing when
    /// cancelled. The chooser begins in `folder`, or where the toolkit thinks best for an empty one.
    virtual std::optional<QString> ChooseFolder(const QString& title, const QString& folder) = 0;

    /// Shows the progress window, without a text and its bar at 0. One that was left on the screen goes.
    [[nodiscard]] virtual std::unique_ptr<Progress> ShowProgress() = 0;

    /// Lets waiting window events run, for work that can't return in between. Who waits for something returns, or asks
    /// WaitUntil.
    virtual void Yield() = 0;

    /// Lets window events run and sleeps between them until `condition` holds: it is looked at behind each event. False
    /// when the event loop is left before that, as the program ends.
    virtual bool WaitUntil(const std::function<bool()>& condition);

    /// The one in use. Logic that needs none runs without; asking for a missing one raises 91.
    static Host& Current();
    static void Use(Host* host);

    /// Whether there is one.
    static bool IsThere();
};
