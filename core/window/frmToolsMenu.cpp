// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/window/frmToolsMenu.h"

#include "core/Navigator.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/RuntimeError.h"
#include "ui/look/ForReaders.h"
#include "ui/look/Picture.h"
#include "ui/look/Style.h"
#include "ui/look/ucShadow.h"
#include "ui/text/Localisation.h"
#include "ui_frmToolsMenu.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr QPoint shadowOffset{7, 2}; // of the dark copies, from their entries' corners
} // namespace

frmToolsMenu::frmToolsMenu(QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint | Qt::WindowSystemMenuHint),
      ui_(std::make_unique<Ui::frmToolsMenu>()) {
    setAttribute(Qt::WA_TranslucentBackground);
    ui_->setupUi(this);
    entries_ = {ui_->Label1_0, ui_->Label1_1, ui_->Label1_2, ui_->Label1_3, ui_->Label1_4};
    descriptions_ = {ui_->Label2_0, ui_->Label2_1, ui_->Label2_2, ui_->Label2_3};
    shadows_ = {ui_->Label3_0, ui_->Label3_1, ui_->Label3_2, ui_->Label3_3};
    Dress();

    mTraduction::ApplyLanguage(this);
    if (mMain::NoGameOfFirstThree())
        ui_->Label1_2->setEnabled(false);
    ui_->lblVersion->setText(mMain::VersionText());
    ui_->lblVersion->setAccessibleName(mTraduction::GetText(u"About"_s) + u", "_s + mMain::VersionText());
    PlaceTexts();

    for (int index = 0; index < static_cast<int>(entries_.size()); ++index) {
        PictureButton* const entry = entries_.at(static_cast<std::size_t>(index));
        connect(entry, &PictureButton::clicked, this, [this, index] { EntryClicked(index); });
        connect(entry, &PictureButton::MouseMoved, this, [this, index] { EntryHovered(index); });
    }
    connect(ui_->lblVersion, &PictureButton::clicked, this, [this] { Navigator::Current().ShowAbout(this); });
    ui_->Label1_0->setFocus();
}

frmToolsMenu::~frmToolsMenu() = default;

void frmToolsMenu::Dress() {
    ForReaders::SetRole(*this, QAccessible::Window);
    setMouseTracking(true);
    setMask(ucShadow::Area(rect()));
    ui_->lblTitle->setFont(Style::HeadingFont(24));
    ui_->lblTitle->setAttribute(Qt::WA_TransparentForMouseEvents);
    ui_->lblVersion->setFont(Style::TextFont(8));
    ui_->lblVersion->SetTextColour(Style::Colour::TextOnPicture);
    const auto colour = [](QLabel* label, const QColor& text) {
        QPalette palette = label->palette();
        palette.setColor(QPalette::WindowText, text);
        label->setPalette(palette);
    };
    colour(ui_->lblTitle, Style::Colour::EntryPlain);
    for (PictureButton* entry : entries_)
        entry->setFont(Style::HeadingFont(15));
    for (QLabel* shadow : shadows_) {
        shadow->setFont(Style::HeadingFont(15));
        shadow->setAttribute(Qt::WA_TransparentForMouseEvents);
        ForReaders::Hide(*shadow);
        colour(shadow, Style::Colour::ShadowOnPicture);
    }
    for (QLabel* description : descriptions_) {
        description->setFont(Style::TextFont());
        description->setMouseTracking(true);
        description->installEventFilter(this);
        colour(description, Style::Colour::TextOnPicture);
    }
}

// An entry is as wide as its text, so that what lies beside it is background. Its dark copy lies behind it.
void frmToolsMenu::PlaceTexts() {
    for (PictureButton* entry : entries_)
        entry->resize(entry->sizeHint().width(), entry->height());
    for (std::size_t index = 0; index < shadows_.size(); ++index) {
        shadows_.at(index)->setGeometry(entries_.at(index)->geometry().translated(shadowOffset));
        entries_.at(index)->setAccessibleDescription(descriptions_.at(index)->text());
    }
    const int right = ui_->lblVersion->geometry().right();
    ui_->lblVersion->resize(ui_->lblVersion->sizeHint().width(), ui_->lblVersion->height());
    ui_->lblVersion->move(right - ui_->lblVersion->width() + 1, ui_->lblVersion->y());
}

// Picture, entries and letters alike.
void frmToolsMenu::ShrinkTo(const QSize& room) {
    const qreal part = std::min(qreal(room.width()) / width(), qreal(room.height()) / height());
    for (QWidget* const child : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const QRectF place(child->geometry());
        child->setGeometry(QRectF(place.topLeft() * part, place.size() * part).toAlignedRect());
        QFont font = child->font();
        font.setPointSizeF(font.pointSizeF() * part);
        child->setFont(font);
    }
    setFixedSize((QSizeF(size()) * part).toSize());
    setMask(ucShadow::Area(rect()));
}

void frmToolsMenu::EntryClicked(int index) {
    static constexpr std::array<bool (Navigator::*)(), 3> tools{&Navigator::ShowBigEditor, &Navigator::ShowCSFEditor,
                                                                &Navigator::ShowPersonalFiles};
    if (index == 3)
        mMain::ShowOptions(this);
    else if (index == 4)
        EndProgram();
    else if ((Navigator::Current().*tools.at(static_cast<std::size_t>(index)))())
        close();
}

// This window goes last: it stays where a tool keeps its document, and no tool that closes brings up another menu.
void frmToolsMenu::EndProgram() {
    bool refused = false;
    const QWidgetList loaded = QApplication::topLevelWidgets();
    for (const QPointer<QWidget>& window : QList<QPointer<QWidget>>(loaded.begin(), loaded.end())) {
        if (window != nullptr && window != this && window->isVisible())
            Ignoring([&] { refused = !window->close() || refused; });
    }
    if (refused)
        return;
    close();
    QApplication::quit();
}

void frmToolsMenu::EntryHovered(int index) {
    for (std::size_t entry = 0; entry < entries_.size(); ++entry)
        entries_.at(entry)->SetTextColour(static_cast<int>(entry) == index ? Style::Colour::EntryHover
                                                                           : Style::Colour::EntryPlain);
}

void frmToolsMenu::PaintEntriesWhite() {
    EntryHovered(-1);
}

bool frmToolsMenu::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::MouseMove)
        return QWidget::eventFilter(watched, event);
    PaintEntriesWhite(); // a description; it does not move the window
    return true;
}

void frmToolsMenu::mousePressEvent(QMouseEvent* event) {
    heldAt_ = event->position().toPoint();
}

void frmToolsMenu::mouseMoveEvent(QMouseEvent* event) {
    PaintEntriesWhite();
    if (!event->buttons().testFlag(Qt::LeftButton))
        return;
    // Where the system has no move of its own, the window follows the pointer.
    if (!windowHandle()->startSystemMove())
        move(event->globalPosition().toPoint() - heldAt_);
}

void frmToolsMenu::paintEvent(QPaintEvent* /*event*/) {
    if (const qreal ratio = devicePixelRatio(); picture_.isNull() || picture_.devicePixelRatio() < ratio)
        picture_ = Picture::Load(QStringLiteral("menu"), ratio);
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(rect().adjusted(0, 0, -ucShadow::Reach, -ucShadow::Reach), picture_);
}
