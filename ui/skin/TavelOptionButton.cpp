// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/TavelOptionButton.h"

#include <QButtonGroup>

// The toolkit's own groups end at the parent, and leave only one of their buttons in the order of the Tab key. In a
// group of its own that excludes nobody, the button is out of them, and still what screen readers take for an option.
TavelOptionButton::TavelOptionButton(QWidget* parent) : TickControl(Skin::Mark::Dot, parent) {
    auto* const alone = new QButtonGroup(this);
    alone->setExclusive(false);
    alone->addButton(this);
}

void TavelOptionButton::SetValue(int value) {
    Q_EMIT ValueChanging();
    if (value == 1)
        ClearOthers();
    StoreValue(value);
}

void TavelOptionButton::SetGroup(short group) {
    group_ = group;
    Q_EMIT GroupChanged(group);
}

void TavelOptionButton::nextCheckState() {
    ClearOthers();
    SetValue(1);
}

void TavelOptionButton::checkStateSet() {
    const bool byHost = IsTickedByHost(); // what stores a value has walked the group before
    TickControl::checkStateSet();
    if (byHost)
        ClearOthers();
}

void TavelOptionButton::ClearOthers() {
    // What a window owns has groups of its own.
    for (TavelOptionButton* const other : window()->findChildren<TavelOptionButton*>())
        if (other != this && other->group_ == group_ && other->window() == window())
            other->SetValue(0);
}
