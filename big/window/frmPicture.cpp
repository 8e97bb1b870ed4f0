// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/frmPicture.h"

#include "core/Host.h"
#include "core/LastTime.h"
#include "core/mTraduction.h"
#include "media/PngPicture.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/WriteAside.h"
#include "ui/look/NameTip.h"
#include "ui/text/Localisation.h"
#include "ui/window/WindowPlace.h"
#include "ui_frmPicture.h"

#include <QEvent>
#include <QShortcut>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

frmPicture::frmPicture(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmPicture>()) {
    ui_->setupUi(this);
    mTraduction::ApplyLanguage(this);
    Dress();
    connect(ui_->cmdBefore, &QPushButton::clicked, this, [this] { Step(place_.Before); });
    connect(ui_->cmdBehind, &QPushButton::clicked, this, [this] { Step(place_.Behind); });
    connect(ui_->cmdIn, &QPushButton::clicked, ui_->picWhole, &PictureCanvas::ZoomIn);
    connect(ui_->cmdOut, &QPushButton::clicked, ui_->picWhole, &PictureCanvas::ZoomOut);
    connect(ui_->cmdFit, &QPushButton::clicked, ui_->picWhole, &PictureCanvas::ZoomToFit);
    connect(ui_->cmdActual, &QPushButton::clicked, ui_->picWhole, &PictureCanvas::ZoomToActual);
    connect(ui_->picWhole, &PictureCanvas::ZoomChanged, this,
            [this] { ui_->lblZoom->setText(u"%1 %"_s.arg(ui_->picWhole->Zoom().Percent())); });
    connect(ui_->cmbGround, &QComboBox::currentIndexChanged, this,
            [this](int ground) { ui_->picWhole->SetGround(static_cast<PictureCanvas::Ground>(ground)); });
    connect(ui_->cmdSave, &QPushButton::clicked, this, &frmPicture::Save);
    connect(ui_->cmdClose, &QPushButton::clicked, this, &QDialog::reject);
    ConnectKeys();
    if (parent != nullptr)
        parent->installEventFilter(this);
    WindowPlace::Remember(*this);
}

frmPicture::~frmPicture() = default;

void frmPicture::Dress() {
    for (const QString& key : {u"GroundChecks"_s, u"GroundWhite"_s, u"GroundBlack"_s, u"GroundAlpha"_s})
        ui_->cmbGround->addItem(GetText(key));
    // Signs say little to who does not see them.
    const auto name = [](QPushButton* button, const QString& key) { NameTip::Give(*button, GetText(key)); };
    name(ui_->cmdBefore, u"PictureBefore"_s);
    name(ui_->cmdBehind, u"PictureBehind"_s);
    name(ui_->cmdOut, u"ZoomOut"_s);
    name(ui_->cmdIn, u"ZoomIn"_s);
    name(ui_->cmdActual, u"ZoomActual"_s);
    // Enter is for the button that has the keyboard.
    for (QPushButton* button : findChildren<QPushButton*>())
        button->setAutoDefault(false);
}

void frmPicture::ConnectKeys() {
    const auto on = [this](const QKeySequence& key, QPushButton* button) {
        connect(new QShortcut(key, this), &QShortcut::activated, button, [button] { button->click(); });
    };
    on(Qt::Key_PageUp, ui_->cmdBefore);
    on(Qt::Key_PageDown, ui_->cmdBehind);
    on(Qt::Key_Plus, ui_->cmdIn);
    on(Qt::Key_Equal, ui_->cmdIn); // the key of the plus without Shift on many keyboards
    on(Qt::Key_Minus, ui_->cmdOut);
    on(Qt::Key_0, ui_->cmdFit);
    on(Qt::Key_1, ui_->cmdActual);
    on(QKeySequence::Save, ui_->cmdSave);
}

void frmPicture::Begin() {
    show();
    raise();
    activateWindow();
    ui_->picWhole->setFocus();
}

void frmPicture::Follow(const PreviewState& state, const PictureRows::Place& place) {
    if (mBIG::BigFileName != archive_ && !archive_.isEmpty())
        hide();
    archive_ = mBIG::BigFileName;
    place_ = place;
    ui_->cmdBefore->setEnabled(place.Before >= 0);
    ui_->cmdBehind->setEnabled(place.Behind >= 0);
    ui_->lblPlace->setText(place.Number > 0 ? u"%1 / %2"_s.arg(place.Number).arg(place.Count) : QString());
    if (place.Number == 0)
        return;
    name_ = state.PictureName;
    setWindowTitle(name_);
    ui_->picWhole->setAccessibleName(name_);
    ui_->lblFacts->setText(PictureRows::Facts(state));
    // What comes in a moment does not flicker.
    const bool isComing = state.WholeSize.isEmpty() && !state.PictureUnread;
    const QByteArray bitmap = state.PictureUnread ? QByteArray() : state.Bitmap;
    ui_->cmdSave->setEnabled(!isComing && !bitmap.isEmpty());
    if (isComing || bitmap.constData() == bitmap_.constData())
        return;
    bitmap_ = bitmap; // kept, so that its place in memory means this one
    ui_->picWhole->SetPicture(QImage::fromData(bitmap_, "BMP"));
}

void frmPicture::Step(int row) {
    if (row >= 0)
        Q_EMIT RowWanted(row);
}

void frmPicture::Save() {
    const QString base = name_.first(std::max<qsizetype>(0, name_.lastIndexOf(u'.')));
    const QByteArray bitmap = bitmap_;
    const auto path = Host::Current().SaveFileName({.Title = GetText(u"SavePng"_s),
                                                    .Filter = u"PNG (*.png)|*.png"_s,
                                                    .DefaultExtension = u"png"_s,
                                                    .DefaultName = base + u".png"_s,
                                                    .Folder = LastTime::Folder(u"png"_s)});
    if (!path)
        return;
    try {
        WriteWhole(*path, PngPicture::FromBitmap(bitmap));
        LastTime::NoteFolder(u"png"_s, Paths::Folder(*path));
    } catch (const RuntimeError& error) {
        Host::Current().Message(GetText(u"SaveFailed"_s) + "\r\n"_L1 + error.Description(), Host::Icon::Critical);
    }
}

// It goes with the editor's window.
bool frmPicture::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Hide && !event->spontaneous())
        hide();
    return QDialog::eventFilter(watched, event);
}
