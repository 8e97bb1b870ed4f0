// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The rescue of the CSF Editor's document: the whole table, as long as its rows are others than the file's.
#pragma once

#include "core/rescue/RescueCopy.h"
#include "core/rescue/RescuedDocument.h"
#include "csf/format/CsfTable.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

/// What a rescue holds besides the path.
struct RescuedTable {
    std::vector<CsfString> Rows; ///< in the order shown
    QString LanguageText;        ///< the number that saves use
    qint32 LanguageShown = -1;   ///< the entry of the list of languages
    bool Whole = false;          ///< the rows keep everything
    QByteArray Behind{};         ///< the file that they come from, as far as it is known
    QList<qint32> Indexes{};     ///< of each row in that

    [[nodiscard]] QByteArray Encoded() const;
    /// Raises 75 for bytes that are no table.
    static RescuedTable Decoded(const QByteArray& bytes);

    bool operator==(const RescuedTable&) const = default;
};

class TableRescue : public RescuedDocument {
public:
    static const QString Kind;

    struct Document {
        RescuedTable Table;
        QString Path;
        bool NeverSaved = false;
    };

    /// `document` tells what is open now; `failed` is told once when it can't be kept.
    TableRescue(std::function<Document()> document, std::function<void(const QString&)> failed)
        : document_(std::move(document)),
          failed_(std::move(failed)) {}

    /// The document is as its file is: there is nothing to be rescued. Of what was open before, that is left which
    /// nobody was asked about.
    void Opened();

    /// The rows are written to the file from now on: until Saved they count as different from it.
    void Saving();
    void Saved();

    /// The same document with other rows, which are the file's unless it was changed before.
    void Reread(bool changed);

    /// The user was asked, and what the rows are now is saved or given up.
    void GivenUp();

    /// What a process left is this document now, and differs from its file. False when another one has it.
    bool Adopt(const QString& folder);

protected:
    bool KeepSome() override;
    void TellFailed(const QString& reason) override;

private:
    /// What tells a table from what is in its file.
    struct Content {
        std::vector<CsfString> Rows; ///< sorted: another order is no change
        QString LanguageText;

        bool operator==(const Content&) const = default;
    };

    static Content ContentOf(const RescuedTable& table);

    std::function<Document()> document_;
    std::function<void(const QString&)> failed_;
    RescueCopy copy_{Kind};
    std::optional<Content> file_;      ///< as it is in the file; nothing: nobody knows
    std::optional<Content> given_;     ///< what the user gave up
    std::optional<RescuedTable> kept_; ///< as it was kept last
    QString keptPath_;
};
