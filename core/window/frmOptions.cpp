// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/window/frmOptions.h"

#include "core/mTraduction.h"
#include "ui/look/DrawnIcon.h"
#include "ui/look/Style.h"
#include "ui/text/Localisation.h"
#include "ui/text/Mnemonics.h"
#include "ui/window/ScreenKeeper.h"
#include "ui_frmOptions.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>

#include <algorithm>

using namespace Qt::StringLiterals;
using mTraduction::DisplayText;
using mTraduction::GetText;

namespace {

/// A long text in two lines of about one length.
QString InTwoLines(QString text) {
    constexpr qsizetype longestOfOne = 16;
    if (text.size() <= longestOfOne)
        return text;
    const qsizetype middle = text.size() / 2;
    const qsizetype before = text.lastIndexOf(u' ', middle);
    const qsizetype behind = text.indexOf(u' ', middle);
    const qsizetype blank = before < 0 || (behind >= 0 && behind - middle < middle - before) ? behind : before;
    return blank < 0 ? text : text.replace(blank, 1, u'\n');
}

void SelectRow(QListView* list, int row) {
    list->setCurrentIndex(list->model()->index(row, 0));
}

} // namespace

frmOptions::frmOptions(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmOptions>()) {
    ui_->setupUi(this);
    ui_->lstMods->setModel(&mods_);
    ui_->lstShellMaps->setModel(&shellMaps_);
    ui_->Notices->LeaveEscape();
    mTraduction::ApplyLanguage(this);
    NameLists();
    AddMnemonics();
    ShowTabs();
    ShowGeneral();
    ConnectGeneral();
    ConnectGame();
    ConnectTabs();
    FitScreen();
    connect(qApp, &QApplication::focusChanged, this, &frmOptions::ShowFocus);
    ShowFocus();
    ui_->Tab1->setFocus();
}

// The keyboard moves on while the window's parts go.
frmOptions::~frmOptions() {
    disconnect(qApp, nullptr, this, nullptr);
}

// Each list has a row selected: the one with the keyboard has it in the stronger colour.
void frmOptions::ShowFocus() {
    for (QListView* const list : {static_cast<QListView*>(ui_->lstOptions), ui_->lstMods, ui_->lstShellMaps}) {
        QPalette palette = QApplication::palette(list);
        if (!list->hasFocus()) {
            palette.setColor(QPalette::Highlight, Style::Colour::SideMenuBottom);
            palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
        }
        list->setPalette(palette);
    }
}

// A list says nothing of itself: it is called as the control above it.
void frmOptions::NameLists() {
    ui_->Tab1->setAccessibleName(windowTitle());
    // Empty, it would be told under its frame's title; its room stays.
    QSizePolicy stays = ui_->lblOption->sizePolicy();
    stays.setRetainSizeWhenHidden(true);
    ui_->lblOption->setSizePolicy(stays);
    ui_->lstOptions->setAccessibleName(ui_->Frame3->title());
    ui_->lstMods->setAccessibleName(ui_->checkMod->text());
    ui_->lstShellMaps->setAccessibleName(ui_->opLoadShellMap->text());
}

// The pages are never seen together.
void frmOptions::AddMnemonics() {
    const QWidgetList buttons{ui_->UserControl11, ui_->UserControl12};
    Mnemonics::AddTo(buttons);
    Mnemonics::AddTo(buttons + QWidgetList{ui_->ckCheckForUpdates, ui_->Label1, ui_->ckViewIcons, ui_->ckExactOffsets});
    Mnemonics::AddTo(buttons + QWidgetList{ui_->checkMod, ui_->opNoShellMap, ui_->opLoadShellMap, ui_->opRndShellMap});
}

void frmOptions::ShowTabs() {
    for (const OptionsPlan::Tab& tab : plan_.Tabs()) {
        const QString caption = QString(tab.Caption).replace(u"&"_s, u"&&"_s);
        const int index = ui_->Tab1->addTab(caption);
        ui_->Tab1->setTabData(index, tab.Key);
        if (tab.Game >= 0)
            ui_->Tab1->setTabIcon(index, DrawnIcon::Named(u"game-%1"_s.arg(tab.Game)));
    }
}

// Four long names side by side take more than a small screen has. They are never cut where 800 pixels hold them.
void frmOptions::FitScreen() {
    const QSize room = screen()->availableSize().shrunkBy(ScreenKeeper::Frame);
    if (sizeHint().width() > room.width()) {
        for (int tab = 0; tab < ui_->Tab1->count(); ++tab)
            ui_->Tab1->setTabText(tab, InTwoLines(ui_->Tab1->tabText(tab)));
    }
    constexpr int smallest = 800;
    const QMargins frame = ScreenKeeper::Frame + layout()->contentsMargins();
    ui_->Tab1->setMinimumWidth(std::min(ui_->Tab1->sizeHint().width(), smallest - frame.left() - frame.right()));
    resize(size().expandedTo(sizeHint()).boundedTo(room));
}

void frmOptions::ShowGeneral() {
    for (const LanguageFile& language : plan_.Languages())
        ui_->cmbLanguage->addItem(language.Shown);
    ui_->cmbLanguage->setCurrentIndex(plan_.Language());
    ui_->ckCheckForUpdates->setChecked(plan_.ChecksForUpdates);
    ui_->ckViewIcons->setChecked(plan_.ViewsIcons());
    ui_->ckExactOffsets->setChecked(plan_.ExactOffsets);
}

void frmOptions::ConnectGeneral() {
    connect(ui_->UserControl11, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui_->UserControl12, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui_->ckCheckForUpdates, &QCheckBox::toggled, this, [this](bool on) { plan_.ChecksForUpdates = on; });
    connect(ui_->ckExactOffsets, &QCheckBox::toggled, this, [this](bool on) { plan_.ExactOffsets = on; });
    connect(ui_->ckViewIcons, &QCheckBox::toggled, this, [this](bool on) { plan_.ShowIcons(on); });
    connect(ui_->cmbLanguage, &QComboBox::activated, this, [this](int language) { plan_.ChooseLanguage(language); });
}

void frmOptions::ConnectGame() {
    // Not by clicks alone: a screen reader sets the state. What the page itself sets is nobody's choice.
    const auto chosen = [this](QAbstractButton* button, const std::function<void(bool)>& run) {
        connect(button, &QAbstractButton::toggled, this, [this, run](bool on) {
            if (filling_)
                return;
            run(on);
            SelectRow(ui_->lstShellMaps, plan_.Page.ShellMap);
            ShowNotice();
        });
    };
    chosen(ui_->checkMod, [this](bool on) { plan_.Page.SetLoadsMod(on); });
    const auto choose = [this](ShellMapChoice choice) {
        return [this, choice](bool on) {
            if (on)
                plan_.Page.Choose(choice);
        };
    };
    chosen(ui_->opNoShellMap, choose(ShellMapChoice::None));
    chosen(ui_->opLoadShellMap, choose(ShellMapChoice::Load));
    chosen(ui_->opRndShellMap, choose(ShellMapChoice::Random));
    connect(ui_->lstOptions, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        plan_.Page.CheckOption(ui_->lstOptions->row(item), item->checkState() == Qt::Checked);
    });
    connect(ui_->lstOptions, &QListWidget::currentRowChanged, this, &frmOptions::ShowDescription);
    connect(ui_->lstOptions, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { ShowDescription(ui_->lstOptions->row(item)); });
    FollowRow(ui_->lstMods, &GamePage::SelectMod);
    FollowRow(ui_->lstShellMaps, &GamePage::SelectShellMap);
}

// A click with Ctrl would take the selection away, and leave nothing to be stored.
void frmOptions::FollowRow(QListView* list, void (GamePage::*follow)(int)) {
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this, list, follow] {
        if (filling_)
            return;
        if (!list->selectionModel()->hasSelection()) {
            list->selectionModel()->select(list->currentIndex(), QItemSelectionModel::Select);
            return;
        }
        (plan_.Page.*follow)(list->currentIndex().row());
        ShowNotice();
    });
}

void frmOptions::ConnectTabs() {
    connect(ui_->Tab1, &QTabBar::currentChanged, this, &frmOptions::EnterTab);
    for (const auto& [key, by] : {std::pair(QKeySequence(u"Ctrl+Tab"_s), 1),
                                  {QKeySequence(u"Ctrl+PgDown"_s), 1},
                                  {QKeySequence(u"Ctrl+Shift+Tab"_s), -1},
                                  {QKeySequence(u"Ctrl+PgUp"_s), -1}})
        connect(new QShortcut(key, this), &QShortcut::activated, this, [this, step = by] { TurnTab(step); });
}

void frmOptions::TurnTab(int by) {
    const int count = ui_->Tab1->count();
    ui_->Tab1->setCurrentIndex((ui_->Tab1->currentIndex() + by + count) % count);
}

void frmOptions::EnterTab(int index) {
    const bool focusGoes = ui_->picPages->isAncestorOf(focusWidget());
    plan_.SelectTab(ui_->Tab1->tabData(index).toString());
    if (plan_.SelectedGame() >= 0)
        ShowPage();
    ui_->picPages->setCurrentWidget(plan_.SelectedGame() >= 0 ? ui_->picTab_1 : ui_->picTab_0);
    ui_->lblOption->clear();
    ui_->lblOption->hide();
    told_.clear();
    ui_->Notices->Close();
    ShowNotice();
    if (focusGoes)
        ui_->Tab1->setFocus();
}

void frmOptions::ShowPage() {
    const QScopedValueRollback filling(filling_, true);
    const GamePage& page = plan_.Page;
    ShowOptions();
    mods_.setStringList(page.Mods);
    SelectRow(ui_->lstMods, page.Mod);
    ui_->checkMod->setChecked(page.LoadsMod);
    ui_->checkMod->setEnabled(!page.Mods.isEmpty());
    ui_->lstMods->setEnabled(!page.Mods.isEmpty());
    shellMaps_.setStringList(page.ShellMaps);
    SelectRow(ui_->lstShellMaps, page.ShellMap);
    for (QWidget* const control : QWidgetList{ui_->opLoadShellMap, ui_->opRndShellMap, ui_->lstShellMaps})
        control->setEnabled(!page.ShellMaps.isEmpty());
    QRadioButton* const choice = page.Choice == ShellMapChoice::None   ? ui_->opNoShellMap
                                 : page.Choice == ShellMapChoice::Load ? ui_->opLoadShellMap
                                                                       : ui_->opRndShellMap;
    choice->setChecked(true);
}

// The descriptions are all given their room, so that nothing moves as they are read.
void frmOptions::ShowOptions() {
    const QSignalBlocker quiet(ui_->lstOptions);
    ui_->lstOptions->clear();
    int high = 0;
    const QRect room(0, 0, ui_->lblOption->minimumWidth(), QWIDGETSIZE_MAX);
    for (const GamePage::Option& option : plan_.Page.Options) {
        auto* const item = new QListWidgetItem(option.Name, ui_->lstOptions);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(option.Checked ? Qt::Checked : Qt::Unchecked);
        const QString& description = Description(option.Name);
        item->setData(Qt::AccessibleDescriptionRole, description);
        high = std::max(high, fontMetrics().boundingRect(room, Qt::TextWordWrap, description).height());
    }
    ui_->lblOption->setMinimumHeight(high);
    ui_->lstOptions->updateGeometry();
}

void frmOptions::ShowDescription(int option) {
    const QListWidgetItem* const item = ui_->lstOptions->item(option);
    ui_->lblOption->setText(item == nullptr ? QString() : Description(item->text()));
    ui_->lblOption->setVisible(item != nullptr);
}

// Each is looked up once: one that is missing is a record in the log each time.
const QString& frmOptions::Description(const QString& option) {
    const auto found = descriptions_.constFind(option);
    return found != descriptions_.constEnd() ? *found : *descriptions_.insert(option, DisplayText(GetText(option)));
}

// One that was closed stays closed until there is something else to tell.
void frmOptions::ShowNotice() {
    const Notice notice = plan_.LossNotice([this] {
        ShowPage();
        ShowNotice();
    });
    if (notice.Text != told_)
        ui_->Notices->ShowNotice(notice);
    told_ = notice.Text;
}

// So that the focus is seen from the start.
void frmOptions::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    setAttribute(Qt::WA_KeyboardFocusChange);
}

void frmOptions::accept() {
    if (plan_.Accept())
        QDialog::accept();
}

void frmOptions::reject() {
    plan_.Cancel();
    QDialog::reject();
}
