// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/folders/CoolFileBox.h"

#include "ui/folders/FileBoxKey.h"
#include "ui/look/DrawnIcon.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHash>
#include <QHeaderView>
#include <QKeyEvent>
#include <QShortcut>
#include <QTreeView>
#include <QVBoxLayout>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int customPointer = 99;
constexpr qint64 servedEvery = 20; // milliseconds

struct Image {
    QStringView Key;
    QLatin1StringView Picture;
};

constexpr std::array images{
    Image{FileBoxKey::Root, "computer"_L1},
    Image{FileBoxKey::Documents, "documents"_L1},
    Image{FileBoxKey::Network, "network"_L1},
    Image{FileBoxKey::HardDrive, "hard-drive"_L1},
    Image{FileBoxKey::CDRom, "cd"_L1},
    Image{FileBoxKey::Floppy, "removable"_L1},
    Image{FileBoxKey::LanDrive, "network-drive"_L1},
    Image{FileBoxKey::OpenFolder, "folder-open"_L1},
    Image{FileBoxKey::CloseFolder, "folder"_L1},
    Image{FileBoxKey::File, "file"_L1},
};

struct Pointer {
    int Number;
    Qt::CursorShape Shape;
};

constexpr std::array pointers{
    Pointer{1, Qt::ArrowCursor},     Pointer{2, Qt::CrossCursor},      Pointer{3, Qt::IBeamCursor},
    Pointer{5, Qt::SizeAllCursor},   Pointer{6, Qt::SizeBDiagCursor},  Pointer{7, Qt::SizeVerCursor},
    Pointer{8, Qt::SizeFDiagCursor}, Pointer{9, Qt::SizeHorCursor},    Pointer{10, Qt::UpArrowCursor},
    Pointer{11, Qt::WaitCursor},     Pointer{12, Qt::ForbiddenCursor},
};

QString PictureOf(const QString& imageKey) {
    for (const Image& image : images)
        if (imageKey == image.Key)
            return image.Picture;
    return imageKey.endsWith(u"\\Open") ? u"folder-link-open"_s : u"folder-link"_s;
}

/// A tree that never opens a whole disk at once.
class FolderView : public QTreeView {
public:
    using QTreeView::QTreeView;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Asterisk)
            expand(currentIndex());
        else
            QTreeView::keyPressEvent(event);
    }

    // Rows reach to the edge, and beyond it where a name needs more.
    void resizeEvent(QResizeEvent* event) override {
        header()->setMinimumSectionSize(viewport()->width());
        QTreeView::resizeEvent(event);
    }
};

} // namespace

/// The tree with its pictures.
class CoolFileBox::Model : public FileBoxTree {
public:
    using FileBoxTree::FileBoxTree;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DecorationRole || !Has(NodeOf(index)))
            return FileBoxTree::data(index, role);
        const QString image = FileBoxTree::data(index, ImageRole).toString();
        const QString picture = PictureOf(image);
        const auto known = icons_.constFind(picture);
        return known != icons_.cend() ? *known : *icons_.insert(picture, DrawnIcon::Named(picture));
    }

private:
    mutable QHash<QString, QIcon> icons_;
};

CoolFileBox::CoolFileBox(QWidget* parent)
    : QFrame(parent),
      system_(std::make_unique<FileBoxSystem>()),
      model_(std::make_unique<Model>(*system_)),
      trv_File_(new FolderView(this)) {
    trv_File_->setObjectName(u"trv_File"_s);
    trv_File_->setHeaderHidden(true);
    trv_File_->setUniformRowHeights(true);
    trv_File_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    trv_File_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    trv_File_->header()->setStretchLastSection(false);
    trv_File_->setModel(model_.get());
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(trv_File_);
    setFocusProxy(trv_File_);
    ShowFrame();
    model_->Yield = [served = QElapsedTimer()]() mutable {
        if (served.isValid() && served.elapsed() < servedEvery)
            return;
        served.start(); // before and after: what is served may open another node
        QCoreApplication::processEvents();
        served.start();
    };
    // What came after a branch was read, a drive that was plugged in too, appears with this key.
    new QShortcut(QKeySequence::Refresh, trv_File_, this, &CoolFileBox::Refresh, Qt::WidgetShortcut);
    connect(trv_File_, &QTreeView::expanded, this, &CoolFileBox::Opened);
    connect(trv_File_, &QTreeView::collapsed, this,
            [this](const QModelIndex& index) { model_->Close(FileBoxTree::NodeOf(index)); });
    connect(trv_File_->selectionModel(), &QItemSelectionModel::currentChanged, this, &CoolFileBox::PathChanged);
    connect(model_.get(), &QAbstractItemModel::modelReset, this, &CoolFileBox::PathChanged);
}

CoolFileBox::~CoolFileBox() = default;

FileBoxTree& CoolFileBox::Tree() {
    return *model_;
}

const FileBoxTree& CoolFileBox::Tree() const {
    return *model_;
}

void CoolFileBox::UseSystem(std::unique_ptr<FileBoxSystem> system) {
    model_->Use(*system);
    system_ = std::move(system);
}

QString CoolFileBox::Path() const {
    return model_->Path(FileBoxTree::NodeOf(trv_File_->currentIndex()));
}

void CoolFileBox::Refresh() {
    model_->Refresh();
    const QModelIndex root = model_->IndexOf(model_->Root());
    trv_File_->expand(root);
    trv_File_->setCurrentIndex(root);
}

void CoolFileBox::SelectDocuments() {
    Select(model_->TopNode(FileBoxKey::Documents));
}

// Each reading serves the interface.
void CoolFileBox::SelectPath(const QString& folder) {
    const int wish = ++wished_;
    const QPersistentModelIndex before = trv_File_->currentIndex();
    int reached = FileBoxTree::None;
    for (int next = model_->ChildToward(model_->Root(), folder); next != FileBoxTree::None;
         next = model_->ChildToward(reached, folder)) {
        reached = next;
        if (model_->Path(reached).size() == folder.size())
            break;
        trv_File_->expand(model_->IndexOf(reached));
        if (wish != wished_ || before != trv_File_->currentIndex())
            return;
    }
    Select(reached);
}

void CoolFileBox::SelectNewFolder(const QString& name) {
    const QPersistentModelIndex parent = trv_File_->currentIndex();
    const int above = FileBoxTree::NodeOf(parent);
    const bool wasRead = !model_->IsUnread(above);
    trv_File_->expand(parent); // which reads the folder, with the new one in it, if it has not been read
    int made = model_->ChildNamed(above, name);
    if (made == FileBoxTree::None && wasRead)
        made = model_->AddFolder(above, name);
    trv_File_->expand(parent);
    Select(made);
}

void CoolFileBox::Select(int node) {
    if (!model_->Has(node))
        return;
    trv_File_->setCurrentIndex(model_->IndexOf(node));
    trv_File_->scrollTo(model_->IndexOf(node));
}

void CoolFileBox::showEvent(QShowEvent* event) {
    if (!model_->Has(model_->Root()))
        Refresh();
    QFrame::showEvent(event);
}

void CoolFileBox::Opened(const QModelIndex& index) {
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    model_->Open(FileBoxTree::NodeOf(index));
    QGuiApplication::restoreOverrideCursor();
}

void CoolFileBox::SetBorderStyle(int style) {
    borderStyle_ = style;
    ShowFrame();
}

void CoolFileBox::SetAppearance(int appearance) {
    appearance_ = appearance;
    ShowFrame();
}

void CoolFileBox::ShowFrame() {
    setFrameShape(borderStyle_ == 0 ? QFrame::NoFrame : QFrame::Panel);
    setFrameShadow(appearance_ == 0 ? QFrame::Plain : QFrame::Sunken);
}

void CoolFileBox::SetMouseIcon(const QPixmap& icon) {
    mouseIcon_ = icon;
    ShowPointer();
}

void CoolFileBox::SetMousePointer(int pointer) {
    mousePointer_ = pointer;
    ShowPointer();
}

void CoolFileBox::ShowPointer() {
    unsetCursor();
    if (mousePointer_ == customPointer && !mouseIcon_.isNull())
        setCursor(QCursor(mouseIcon_));
    for (const Pointer& pointer : pointers)
        if (pointer.Number == mousePointer_)
            setCursor(pointer.Shape);
}
