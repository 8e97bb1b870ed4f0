// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A document that is rescued: from time to time while it changes, and once more before the program ends.
#pragma once

#include <QString>

class RescuedDocument {
public:
    /// Known to KeepAll as long as it lives.
    RescuedDocument();
    virtual ~RescuedDocument();
    RescuedDocument(const RescuedDocument&) = delete;
    RescuedDocument& operator=(const RescuedDocument&) = delete;

    /// How often to ask for what is new, in milliseconds.
    static constexpr int Interval = 30'000;

    /// Keeps what differs from the file, where that is something else than what is kept already; nothing is kept of a
    /// document that does not differ. Returns whether there is more to be done at once: long work is done in parts.
    /// What fails is told once, and tried again the next time.
    bool KeepRescue();

protected:
    /// The same; raises what fails.
    virtual bool KeepSome() = 0;

    /// The rescue can't be kept, for a reason that a person understands.
    virtual void TellFailed(const QString& reason) = 0;

private:
    friend void KeepAllRescues() noexcept;

    bool told_ = false;
};

/// Keeps what differs in every document, to the end: to be called before the program ends by anything but an answer to
/// a question about it. Whatever fails in one is passed over.
void KeepAllRescues() noexcept;
