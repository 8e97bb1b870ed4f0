// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Entries that other programs have open: each has a copy, or its source, in that program's hands, and what the program
/// writes is offered to the archive when the program has ended, in whatever order they end.
#pragma once

#include "big/document/EditorPanes.h"
#include "platform/File.h"
#include "platform/ProcessEnd.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <chrono>
#include <functional>
#include <list>
#include <memory>
#include <vector>

class OpenCopies {
public:
    /// What began a Modify.
    enum class Trigger { Menu, Row };

    /// The panes outlive the copies.
    explicit OpenCopies(EditorPanes& panes);
    /// May come while Modify hands a file over: it returns without touching what is gone.
    ~OpenCopies();
    OpenCopies(const OpenCopies&) = delete;
    OpenCopies& operator=(const OpenCopies&) = delete;

    /// Opens the entry of a file row with its program and goes on; the question comes when that program has ended. A
    /// program that ends within the time for handing over, or that can't be waited for, may have given the file to
    /// another one: the file is watched from then on.
    void Modify(int place, Trigger trigger);

    /// What is not to be deleted behind a save: files that programs still have, and changes that nobody was asked
    /// about. Inside paths.
    [[nodiscard]] QStringList Kept() const;

    /// To be called before a save: what the programs have written so far is what it takes in.
    void BeforeSave();
    /// To be called when the table was made anew from what a save wrote: by the old index the new one, or -1.
    void EntriesMoved(const std::vector<int>& newIndices);
    /// The records from this index on are others, so that nothing is offered to them.
    void EntriesGone(int firstIndex = 0);

    /// Asks about each copy that was changed so far, before the archive is closed. False when the user cancels.
    bool TakeInChanged();

    /// Waits for nothing any more; the programs run on.
    void Forget();

    /// Whether no program is waited for and no file watched.
    [[nodiscard]] bool IsIdle() const { return copies_.empty(); }

    /// Whether a program is waited for, or has ended and is still to be asked about.
    [[nodiscard]] bool IsWaiting() const;

    /// Looks at the watched files once; a change is offered at the second look that finds it the same. Runs by itself
    /// twice a second.
    void Look();

    /// A program that ends earlier counts as one that handed its file over.
    void SetHandoverTime(std::chrono::milliseconds time) { handoverTime_ = time; }

private:
    enum class Stage {
        Opening, ///< being handed over
        Waiting, ///< the program runs
        Ended,   ///< the program has ended, and the user is to be asked
        Watched, ///< another program may have the file
    };

    struct Copy {
        int Number;    ///< never given twice
        int Index;     ///< of the entry in the table; -1 when it has gone
        QString Path;  ///< inside path
        Trigger Began; ///< what began the Modify
        bool IsCopy;   ///< made for the program; else the source of an entry that is new
        Stage At = Stage::Opening;
        bool MayBeOpen = false; ///< another program may have the file when this one has ended
        bool Answered = false;  ///< the user was asked about what stands there
        FileState Known{};      ///< the file as it is in the archive, or as the user was asked about it
        FileState Seen{};       ///< the file at the last look
        FileState Saved{};      ///< the file before the save under way
        QElapsedTimer Since{};  ///< the program's start
        std::unique_ptr<ProcessEnd> Process{};
    };

    void Open(Copy copy);
    void Follow(int number, Processes::Handle process, bool opened);
    void ProgramEnded(int number);
    void OfferAll();
    void OfferEnded(int number);
    void OfferWatched(int number);
    bool AskBeforeClosing(int number);
    bool Ask(const QString& question);
    [[nodiscard]] bool MayAsk() const;
    void End(int number);
    void Discard(Copy& copy);
    void PutInto(int number, bool marksChange);
    Copy* Find(int number);
    [[nodiscard]] static const BigEntry* EntryOf(const Copy& copy);
    [[nodiscard]] static bool IsIn(const Copy& copy);
    [[nodiscard]] bool IsInUse(const QString& path) const;
    [[nodiscard]] QString CopyForProgram(int index, const QString& text) const;
    [[nodiscard]] bool IsSourceMissing(int index);
    void StartWatch();

    EditorPanes& panes_;
    std::list<Copy> copies_;
    int lastNumber_ = 0;
    bool asking_ = false; ///< a question is on the screen: the next one waits for its answer
    std::chrono::milliseconds handoverTime_{3000};
    QTimer watch_;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true); ///< false when nothing of this may be touched
};
