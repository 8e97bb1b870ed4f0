// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/window/frmCSFEditor.h"

#include "core/LostLetters.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "csf/window/LabelDelegate.h"
#include "csf/window/ValueText.h"
#include "ui/list/RowListModel.h"
#include "ui/text/Localisation.h"
#include "ui/window/RecentFiles.h"
#include "ui/window/SideMenu.h"
#include "ui/window/WindowPlace.h"
#include "ui_frmCSFEditor.h"

#include <QItemSelection>
#include <QKeyEvent>
#include <QLabel>
#include <QScopedValueRollback>

#include <limits>

using namespace Qt::StringLiterals;

namespace {
constexpr QColor promptColour{0x80, 0x80, 0x80};
} // namespace

frmCSFEditor::frmCSFEditor(QWidget* parent)
    : ToolWindow(parent),
      ui_(std::make_unique<Ui::frmCSFEditor>()),
      editor_(*this),
      model_(new RowListModel(editor_.List(), this)),
      count_(new QLabel) {
    ui_->setupUi(this);
    mTraduction::ApplyLanguage(this);
    ui_->lvStrings2->SetRows(model_,
                             [this](int column) { editor_.ClickHeader(static_cast<LabelList::Column>(column)); });
    Equip({.Exit = ui_->mnuExit,
           .Options = ui_->mnuOptions,
           .Manual = ui_->mnuManual,
           .CheckForUpdates = ui_->mnuCheckForUpdates,
           .About = ui_->mnuAbout},
          Commands());
    Dress();
    ConnectControls();
    StateChanged();
    editor_.TellLeft();
    WindowPlace::Remember(*this);
    KeepFromTimeToTime([this] { return editor_.KeepRescue(); });
}

// The controls ask their models for rows as long as they stand: they go before the document does.
frmCSFEditor::~frmCSFEditor() {
    delete takeCentralWidget();
}

void frmCSFEditor::OpenCSFFile(const QString& path) {
    editor_.OpenCSFFile(path);
}

void frmCSFEditor::Dress() {
    ui_->cmbLanguage->addItems(CsfEditor::Languages());
    ui_->cmbLanguage->setCurrentIndex(-1);
    ui_->lvStrings2->setItemDelegate(new LabelDelegate(ui_->lvStrings2));
    ui_->lvStrings2->setAccessibleName(mTraduction::GetText(u"CSFFile"_s));
    ui_->txtFind->setAccessibleName(mTraduction::GetText(u"Find"_s));
    ui_->StatusBar1->setAccessibleName(mTraduction::GetText(u"CSFFile"_s));
    ui_->txtName->setMaxLength(std::numeric_limits<int>::max());
    count_->setContentsMargins(6, 0, 0, 0);
    ui_->StatusBar1->addWidget(count_, 1);
    // In the boxes these keys edit text.
    for (QAction* action : {ui_->mnuAdd, ui_->mnuDelete}) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        ui_->lvStrings2->addAction(action);
    }
    RecentFiles::Lead(*ui_->mnuRecent, u"csf"_s, [this](const QString& path) { editor_.OpenInstead(path); });
    UnderlinePointed(ui_->picLeftMenu, {ui_->Label2_0, ui_->Label2_1, ui_->Label2_2, ui_->Label2_3, ui_->Label2_4});
    ui_->lvStrings2->setFocus();
}

std::vector<ToolCommand> frmCSFEditor::Commands() {
    const auto of = [this](void (CsfEditor::*run)()) { return [this, run] { (editor_.*run)(); }; };
    return {
        {ui_->mnuNew, ui_->Label2_2, u"new"_s, of(&CsfEditor::New)},
        {ui_->mnuOpen, ui_->Label2_3, u"open"_s, of(&CsfEditor::Open)},
        {ui_->mnuSave, ui_->Label2_4, u"save"_s, of(&CsfEditor::Save)},
        {ui_->mnuSaveAs, nullptr, u"save-as"_s, of(&CsfEditor::SaveAs)},
        {ui_->mnuUndo, nullptr, {}, of(&CsfEditor::Undo)},
        {ui_->mnuRedo, nullptr, {}, of(&CsfEditor::Redo)},
        {ui_->mnuAdd, ui_->Label2_0, u"add"_s, of(&CsfEditor::Add)},
        {ui_->mnuDelete, ui_->Label2_1, u"delete"_s, of(&CsfEditor::Delete)},
        {ui_->mnuFind, nullptr, u"find"_s, [this] { ShowFind(); }},
    };
}

void frmCSFEditor::ConnectControls() {
    connect(ui_->lvStrings2, &QTreeView::clicked, this, [this](const QModelIndex& row) {
        SelectRow(row.row(), false); // Ctrl and a click would leave it without a selection
        editor_.ClickRow(row.row());
    });
    // A key selects a row, the current one or another. The focus alone makes a row the current one without a selection.
    connect(ui_->lvStrings2->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& selected) {
                if (!following_ && !selected.isEmpty())
                    editor_.ClickRow(selected.first().top());
            });
    connect(ui_->txtName, &QLineEdit::textEdited, this, [this](const QString& text) { editor_.NameTyped(text); });
    connect(ui_->txtValue, &QPlainTextEdit::textChanged, this, [this] {
        if (!following_)
            editor_.ValueTyped(ShownValue(*ui_->txtValue));
    });
    connect(ui_->cmbLanguage, &QComboBox::currentIndexChanged, this,
            [this](int entry) { editor_.LanguageChosen(entry); });
    connect(ui_->txtFind, &QLineEdit::textEdited, this, [this](const QString& text) { editor_.FindTyped(text); });
    connect(ui_->chkFindInValues, &QCheckBox::toggled, this, [this](bool on) { editor_.FindInValues(on); });
    connect(ui_->cmdFindNext, &QPushButton::clicked, this, [this] { editor_.FindNext(); });
    ui_->txtFind->installEventFilter(this);
    ui_->lvStrings2->installEventFilter(this);
    ui_->cmbLanguage->setFocusPolicy(Qt::StrongFocus);
    ui_->cmbLanguage->installEventFilter(this);
}

bool frmCSFEditor::event(QEvent* event) {
    const bool taken = ToolWindow::event(event);
    if (event->type() == QEvent::WindowActivate)
        editor_.CameToFront();
    return taken;
}

bool frmCSFEditor::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->txtFind && FindEvent(*event))
        return true;
    if (watched == ui_->lvStrings2 && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_F3) {
        editor_.FindNextByKey();
        return true;
    }
    // Only who has chosen the list turns it by the wheel: it writes where everything is kept.
    if (watched == ui_->cmbLanguage && event->type() == QEvent::Wheel && !ui_->cmbLanguage->hasFocus()) {
        event->ignore();
        return true;
    }
    return ToolWindow::eventFilter(watched, event);
}

// True for what the search box is not to see.
bool frmCSFEditor::FindEvent(QEvent& event) {
    if (event.type() == QEvent::FocusIn)
        editor_.FindFocused();
    if (event.type() == QEvent::FocusOut)
        editor_.FindLeft();
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent&>(event).key();
    if (key != Qt::Key_F3 && key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    editor_.FindNextByKey();
    return true;
}

void frmCSFEditor::ShowFind() {
    ui_->txtFind->setFocus();
    ui_->txtFind->selectAll();
}

bool frmCSFEditor::MenuFollows() const {
    return CsfEditor::MenuFollows();
}

void frmCSFEditor::ShowWindow() {
    show();
    activateWindow();
}

void frmCSFEditor::ListChanging(LabelChange change, int place) {
    const QScopedValueRollback following(following_, true);
    model_->Begin(change, place);
}

void frmCSFEditor::ListChanged(LabelChange change, int /*place*/) {
    const QScopedValueRollback following(following_, true);
    model_->End(change, editor_.NewPlaces());
}

void frmCSFEditor::RowChanged(int place) {
    model_->RowChanged(place);
}

void frmCSFEditor::SelectRow(int place, bool focus) {
    const QScopedValueRollback following(following_, true);
    ui_->lvStrings2->setCurrentIndex(model_->index(place, 0));
    if (focus)
        ui_->lvStrings2->setFocus();
}

void frmCSFEditor::ScrollToRow(int place) {
    ui_->lvStrings2->scrollTo(model_->index(place, 0));
}

void frmCSFEditor::BoxesChanged() {
    const QScopedValueRollback following(following_, true);
    ui_->txtName->setText(editor_.State().NameText);
    ShowValue(*ui_->txtValue, editor_.State().ValueText);
}

void frmCSFEditor::BoxChanged(bool isName) {
    const QScopedValueRollback following(following_, true);
    if (isName) {
        const QString before = ui_->txtName->text().first(ui_->txtName->cursorPosition());
        ui_->txtName->setText(editor_.State().NameText);
        ui_->txtName->setCursorPosition(static_cast<int>(LostLetters::AsStored(before).size()));
    } else {
        ShowAsStored(*ui_->txtValue);
    }
}

void frmCSFEditor::StateChanged() {
    const CsfEditorState& state = editor_.State();
    ui_->fraFileInfos->setVisible(state.FrameVisible);
    ui_->fraFileInfos->setTitle(state.Caption);
    ui_->lblSize->setText(state.SizeText);
    ui_->lblLanguage->setText(state.LanguageText);
    ui_->cmbLanguage->setCurrentIndex(state.LanguageShown);
    ui_->cmbLanguage->setEnabled(state.Whole);
    ui_->mnuActions->setVisible(state.ActionsVisible);
    ui_->mnuUndo->setEnabled(editor_.CanUndo());
    ui_->mnuRedo->setEnabled(editor_.CanRedo());
    ui_->txtName->setEnabled(state.BoxesEnabled);
    ui_->txtValue->setEnabled(state.BoxesEnabled);
    if (ui_->txtFind->text() != state.FindText)
        ui_->txtFind->setText(state.FindText);
    QPalette colours = palette();
    if (state.FindIsGrey)
        colours.setColor(QPalette::Text, promptColour);
    ui_->txtFind->setPalette(colours);
    count_->setText(editor_.CountText());
    const QString tool = u"CSF Editor"_s;
    const QString mode = state.Whole ? u" ("_s + mTraduction::GetText(u"WholeTable"_s) + u')' : QString();
    setWindowTitle(state.FrameVisible ? state.Caption + u"[*]"_s + mode + u" - "_s + tool : tool);
    setWindowModified(state.Modified);
}
