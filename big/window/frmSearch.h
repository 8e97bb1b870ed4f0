// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The search in the open archive, in a window that stays beside the editor's: what is found, across all folders, is a
/// list that leads there.
#pragma once

#include "big/document/BackgroundSearch.h"

#include <QDialog>

#include <memory>

class SearchResults;

namespace Ui {
class frmSearch;
}

class frmSearch : public QDialog {
    Q_OBJECT
public:
    explicit frmSearch(QWidget* parent = nullptr);
    ~frmSearch() override;

    /// Shows the window, with what was looked for before to be typed over.
    void Begin();

    /// Ends the search where it is; what was found stays.
    void Stop();

    /// Another archive may be open: of one that is not, nothing is shown.
    void Follow();

Q_SIGNALS:
    /// The user wants to see an entry: its index when it was found, and its name.
    void EntryWanted(int index, const QString& name);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void Search();
    void TakeNews();
    void Lead(const QModelIndex& place);
    void TellState();

    std::unique_ptr<Ui::frmSearch> ui_;
    SearchResults* results_;
    QString searched_; ///< the archive that the results are of
    BackgroundSearch::News state_{.Found = {}, .Ended = true};
    std::unique_ptr<BackgroundSearch> search_; ///< the one under way
};
