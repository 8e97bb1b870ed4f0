// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/SoundPane.h"

#include "core/mTraduction.h"
#include "ui/look/NameTip.h"

#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyle>
#include <QToolButton>

using namespace Qt::StringLiterals;
using mTraduction::GetText;
using Stage = SoundStatus::Stage;

namespace {

/// Minutes and seconds.
QString TimeText(qint64 milliseconds) {
    constexpr qint64 second = 1000;
    constexpr qint64 minute = 60;
    const qint64 seconds = milliseconds / second;
    return u"%1:%2"_s.arg(seconds / minute).arg(seconds % minute, 2, 10, QChar(u'0'));
}

QString ReasonFor(Stage stage) {
    switch (stage) {
    case Stage::NoDevice:
        return GetText(u"NoSoundDevice"_s);
    case Stage::Unplayable:
        return GetText(u"SoundUnplayable"_s);
    default:
        return {};
    }
}

} // namespace

SoundPane::SoundPane(QWidget* parent)
    : QWidget(parent),
      play_(new QToolButton(this)),
      position_(new QSlider(Qt::Horizontal, this)),
      time_(new QLabel(this)),
      reason_(new QLabel(this)) {
    play_->setObjectName(u"cmdPlay"_s);
    position_->setObjectName(u"sldPosition"_s);
    time_->setObjectName(u"lblTime"_s);
    reason_->setObjectName(u"lblReason"_s);
    play_->setFocusPolicy(Qt::StrongFocus);
    play_->setAutoRaise(true);
    position_->setAccessibleName(GetText(u"SoundPosition"_s));
    reason_->setWordWrap(true);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(play_, 0, 0);
    layout->addWidget(position_, 0, 1);
    layout->addWidget(time_, 1, 0, 1, 2, Qt::AlignRight);
    layout->addWidget(reason_, 1, 0, 1, 2);
    connect(play_, &QToolButton::clicked, this, &SoundPane::PlayOrStop);
    connect(position_, &QSlider::valueChanged, this, [this](int place) {
        if (player_ != nullptr)
            player_->Seek(place);
    });
    look_.setInterval(100);
    connect(&look_, &QTimer::timeout, this, &SoundPane::Follow);
    Follow();
}

void SoundPane::Use(SoundPlayer* player) {
    player_ = player;
    Follow();
}

void SoundPane::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    Follow();
    look_.start();
}

void SoundPane::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    look_.stop();
}

void SoundPane::Follow() {
    const SoundStatus status = player_ != nullptr ? player_->Status() : SoundStatus();
    const bool plays = status.What == Stage::Playing || status.What == Stage::Opening;
    const bool playable = plays || status.What == Stage::Stopped;
    const QString name = plays ? GetText(u"StopSound"_s) : GetText(u"PlaySound"_s);
    if (play_->accessibleName() != name) {
        play_->setIcon(style()->standardIcon(plays ? QStyle::SP_MediaStop : QStyle::SP_MediaPlay));
        NameTip::Give(*play_, name);
    }
    play_->setEnabled(playable);
    position_->setEnabled(playable && status.Length > 0);
    const QSignalBlocker quiet(position_);
    position_->setRange(0, static_cast<int>(status.Length));
    position_->setSingleStep(1000);
    if (!position_->isSliderDown())
        position_->setValue(static_cast<int>(status.Position));
    time_->setText(TimeText(status.Position) + u" / "_s + TimeText(status.Length));
    time_->setVisible(playable);
    reason_->setText(ReasonFor(status.What));
    reason_->setVisible(!reason_->text().isEmpty());
}

void SoundPane::PlayOrStop() {
    if (player_ == nullptr)
        return;
    const Stage stage = player_->Status().What;
    if (stage == Stage::Playing || stage == Stage::Opening)
        player_->Rewind();
    else
        player_->Play();
    Follow();
}
