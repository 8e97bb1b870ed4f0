// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/frmSearch.h"

#include "big/format/OpenArchive.h"
#include "big/format/mBIG.h"
#include "big/window/SearchResults.h"
#include "core/Sizes.h"
#include "core/mTraduction.h"
#include "ui/text/Localisation.h"
#include "ui/window/WindowPlace.h"
#include "ui_frmSearch.h"

using namespace Qt::StringLiterals;
using mTraduction::GetText;

frmSearch::frmSearch(QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::frmSearch>()),
      results_(new SearchResults(this)) {
    ui_->setupUi(this);
    mTraduction::ApplyLanguage(this);
    ui_->lvFound->setModel(results_);
    ui_->lvFound->setAccessibleName(windowTitle());
    connect(ui_->cmdFind, &QPushButton::clicked, this, [this] {
        if (search_ == nullptr)
            Search();
        else
            Stop();
    });
    connect(ui_->cmdClose, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui_->lvFound, &QListView::clicked, this, &frmSearch::Lead);
    // With the keyboard: a click has led there already.
    connect(ui_->lvFound->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& row) {
        if (focusWidget() == ui_->lvFound && QGuiApplication::mouseButtons() == Qt::NoButton)
            Lead(row);
    });
    // One width for both of the button's texts.
    for (const QString& key : {u"Cancel"_s, u"Find"_s}) {
        ui_->cmdFind->setText(GetText(key));
        ui_->cmdFind->setMinimumWidth(std::max(ui_->cmdFind->minimumWidth(), ui_->cmdFind->sizeHint().width()));
    }
    if (parent != nullptr)
        parent->installEventFilter(this);
    TellState();
    WindowPlace::Remember(*this);
}

frmSearch::~frmSearch() = default;

void frmSearch::Begin() {
    show();
    raise();
    activateWindow();
    ui_->txtFind->setFocus();
    ui_->txtFind->selectAll();
}

void frmSearch::Search() {
    const QString text = ui_->txtFind->text();
    results_->Clear();
    searched_ = mBIG::BigFileName;
    state_ = {.Found = {}, .Ended = true};
    for (const int index : ArchiveSearch::InNames(mBIG::Open(), text))
        results_->Add({index, mBIG::BigEntries[static_cast<std::size_t>(index)].Name});
    if (ui_->ckTexts->isChecked() && !text.isEmpty()) {
        Archive archive = mBIG::Open();
        // Of a file that is another one by now no offset leads to a text.
        if (!OpenArchive::IsAsRead())
            archive.FileName.clear();
        state_.Ended = false;
        search_ = std::make_unique<BackgroundSearch>(
            archive, text, [this] { QMetaObject::invokeMethod(this, &frmSearch::TakeNews, Qt::QueuedConnection); });
    }
    TellState();
}

// A call that was waiting when its search ended finds none, or the next one's.
void frmSearch::TakeNews() {
    if (search_ == nullptr)
        return;
    state_ = search_->Take();
    for (const int index : state_.Found)
        if (static_cast<std::size_t>(index) < mBIG::BigEntries.size())
            results_->Add({index, mBIG::BigEntries[static_cast<std::size_t>(index)].Name});
    if (state_.Ended)
        search_.reset();
    TellState();
}

void frmSearch::Stop() {
    if (search_ == nullptr)
        return;
    TakeNews();
    search_.reset();
    TellState();
}

void frmSearch::Follow() {
    if (searched_ == mBIG::BigFileName)
        return;
    search_.reset();
    results_->Clear();
    state_ = {.Found = {}, .Ended = true};
    searched_.clear();
    TellState();
}

void frmSearch::Lead(const QModelIndex& place) {
    if (place.isValid())
        Q_EMIT EntryWanted(results_->At(place.row()).Index, results_->At(place.row()).Name);
}

void frmSearch::TellState() {
    QStringList parts;
    if (search_ != nullptr)
        parts += GetText(u"SearchedSoFar"_s).replace("%1"_L1, QString::number(state_.Percent));
    if (!searched_.isEmpty())
        parts += GetText(u"MatchCount"_s).replace("%1"_L1, Sizes::Grouped(results_->rowCount()));
    if (state_.Unread > 0)
        parts += GetText(u"TextsNotRead"_s).replace("%1"_L1, Sizes::Grouped(state_.Unread));
    ui_->lblFound->setText(parts.join(u", "_s));
    ui_->cmdFind->setText(GetText(search_ == nullptr ? u"Find"_s : u"Cancel"_s));
}

// It goes with the editor's window, but for a moment when that is only put aside.
bool frmSearch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Hide && !event->spontaneous())
        hide();
    return QDialog::eventFilter(watched, event);
}

void frmSearch::hideEvent(QHideEvent* event) {
    Stop();
    QDialog::hideEvent(event);
}
