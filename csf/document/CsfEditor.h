// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The document of the CSF Editor and its commands, without any control: the rows, the two boxes, the search, and what
/// of the window is shown and enabled.
#pragma once

#include "core/Document.h"
#include "core/rescue/RescueOffers.h"
#include "csf/document/LabelList.h"
#include "csf/document/RowHistory.h"
#include "csf/document/TableBehind.h"
#include "csf/document/TableRescue.h"
#include "csf/format/CsfSave.h"
#include "platform/File.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// For Sort, CsfEditor::NewPlaces tells the order.
using LabelChange = RowChange;

/// What the table asks of its window besides.
class CsfEditorView : public DocumentView {
public:
    /// Around each change of the rows; `place` counts for Insert and Remove.
    virtual void ListChanging(LabelChange change, int place) = 0;
    virtual void ListChanged(LabelChange change, int place) = 0;
    /// The texts of one row are others.
    virtual void RowChanged(int place) = 0;
    /// Selects a row alone and scrolls it into view, with the focus on the list when `focus`. The document treats the
    /// row as clicked by itself.
    virtual void SelectRow(int place, bool focus) = 0;
    /// Scrolls a row into view and leaves the selection.
    virtual void ScrollToRow(int place) = 0;
    /// Both boxes get the state's NameText and ValueText; that is no change by the user.
    virtual void BoxesChanged() = 0;
    /// The box that is being typed into, txtName or txtValue, gets the state's text; its cursor stays behind what was
    /// typed. That is no change by the user.
    virtual void BoxChanged(bool isName) = 0;
};

struct CsfEditorState {
    static constexpr int None = -1;

    QString Path;                ///< inside path of the file; the new-file name while there is none
    bool Modified = false;       ///< unsaved changes exist
    bool Whole = false;          ///< the rows keep all that the file holds; else what 8 bits do
    bool FrameVisible = false;   ///< fraFileInfos
    QString Caption;             ///< of fraFileInfos
    QString SizeText;            ///< lblSize
    QString LanguageText;        ///< lblLanguage: the number that saves use
    int LanguageShown = None;    ///< the entry of cmbLanguage, read or chosen; saves in 8 bits ignore it
    bool ActionsVisible = false; ///< mnuActions
    bool BoxesEnabled = false;   ///< txtName and txtValue
    QString NameText;            ///< txtName, as the document set it last
    QString ValueText;           ///< txtValue, as the document set it last; line breaks are CR LF
    int SelectedRow = None;      ///< a place in the list
    QString FindText;            ///< txtFind
    bool FindsValues = false;    ///< the search looks at the values too
    bool FindIsGrey = true;      ///< txtFind in grey (0x808080): it holds its prompt
};

class CsfEditor {
public:
    /// The view outlives the editor. A new editor has no document.
    explicit CsfEditor(CsfEditorView& view);

    [[nodiscard]] const CsfEditorState& State() const { return state_; }

    [[nodiscard]] const LabelList& List() const { return list_; }

    /// For the list's model.
    [[nodiscard]] LabelList& List() { return list_; }

    /// The entries of cmbLanguage, by number.
    [[nodiscard]] static QStringList Languages();

    /// Opens a file and shows the window; one that is missing or refused changes nothing. Asks nothing about changes.
    void OpenCSFFile(const QString& path);

    /// From now on the document is all that its file holds, with the changes made so far.
    void KeepEverything();

    void New();
    void Open();
    /// Opens that file (inside path) in the document's place, after the question about changes; one that can't be
    /// opened is told.
    void OpenInstead(const QString& path);
    void Save();
    void SaveAs();
    void Add();
    /// Removes the selected row without a question. Raises 91 when none is selected, and 9 when it was the last one of
    /// the list: the row has gone by then.
    void Delete();

    /// Takes the last change of a row back, or does it again; the row is selected. Nothing when there is none.
    void Undo();
    void Redo();

    [[nodiscard]] bool CanUndo() const { return history_.CanUndo(); }

    [[nodiscard]] bool CanRedo() const { return history_.CanRedo(); }

    /// A row was selected, by a click or by walking with the keys.
    void ClickRow(int place);
    /// A click on a column's header.
    void ClickHeader(LabelList::Column column);

    /// The new place of each row by its old one, as the last ClickHeader sorted them.
    [[nodiscard]] const std::vector<int>& NewPlaces() const { return newPlaces_; }

    /// The user chose an entry of cmbLanguage: no change of a document in 8 bits.
    void LanguageChosen(int entry);

    /// The user changed a box; what it holds now. Line breaks may be CR LF or LF.
    void NameTyped(const QString& text);
    void ValueTyped(const QString& text);

    void FindTyped(const QString& text);
    /// Whether the search looks at the values besides the names.
    void FindInValues(bool values);
    void FindFocused();
    void FindLeft();
    /// The button: selects the next row whose name (or value, see FindInValues) contains the search text, the prompt
    /// too.
    void FindNext();
    /// F3 in the list or the search box, Enter in the latter: nothing while the prompt stands there.
    void FindNextByKey();

    /// How many rows the list has, and how many of them the search text is in, for the status bar.
    [[nodiscard]] QString CountText() const;

    /// The window came to the front: another program may have written the file meanwhile.
    void CameToFront();

    /// The question about unsaved changes; false when the window has to stay.
    bool MayClose();

    /// At the editor's start: what is to be offered back.
    void TellLeft() { offers_.TellLeft(); }

    /// From time to time; whether there is more to be done at once.
    bool KeepRescue() { return rescue_.KeepRescue(); }

    /// Whether the tools menu comes back after the window: not with "/tcsf", and not after a hand-over by another tool.
    [[nodiscard]] static bool MenuFollows();

private:
    /// True, with a beep, while any window reads a table: the open one is taken.
    [[nodiscard]] bool Locked() const;
    /// The path of a document that has no file yet.
    [[nodiscard]] static QString NewName();
    bool GoOnWithoutChanges(const QString& name);
    void Load(const QString& path, qint32 language);
    Document::Saved SaveToFileOrName();
    Document::Saved SaveUnderName();
    [[nodiscard]] bool MaySave();
    Document::Saved Write();
    bool WriteEightBits();
    bool WriteWholeTable();
    void ReadBehind(const QString& path);
    void TellRefused(const QString& path);
    bool OfferWhole(const QString& path);
    void TellChanged();
    void ReadAgain();
    void OpenWhole(const QString& path);
    void LoadWhole(const QString& path);
    void ShowWholeRows(std::vector<LabelRow> rows);
    [[nodiscard]] QStringList LostOfFile() const;
    [[nodiscard]] NoticeLink KeepEverythingLink();
    void TellLost();
    void SetValue(const QString& value);
    void Do(const RowStep& step);
    void SelectNear(int place);
    void TellFailedSave() const;
    [[nodiscard]] RescueOffers::Editor ForOffers();
    [[nodiscard]] TableRescue::Document Rescued() const;
    bool OpenRescue(const Rescues::Left& left);
    void ShowRescued(const RescueFacts& facts, const RescuedTable& table);
    void SelectAndClick(int place, bool focus);
    void Typed(const LabelRow& before, bool isName, const QString& text, const QString& stored);
    void ShowBoxes(bool enabled, const QString& name, const QString& value);

    CsfEditorView& view_;
    CsfEditorState state_;
    LabelList list_;
    std::vector<int> newPlaces_;
    RowHistory history_;
    CsfSaves saves_;                    ///< of the document that is open
    std::optional<TableBehind> behind_; ///< what its file holds; nothing where that is not known, or not well formed
    FileState onDisk_;                  ///< of its file, as far as the user knows of it
    bool isLossTold_ = false;           ///< the last notice about a document was what its file loses
    TableRescue rescue_;
    RescueOffers offers_;
};
