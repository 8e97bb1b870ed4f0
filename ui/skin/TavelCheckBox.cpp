// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/TavelCheckBox.h"

TavelCheckBox::TavelCheckBox(QWidget* parent) : TickControl(Skin::Mark::Tick, parent) {}

void TavelCheckBox::SetValue(int value) {
    bool cancel = false;
    Q_EMIT ValueChanging(cancel);
    if (!cancel)
        StoreValue(value);
}

void TavelCheckBox::nextCheckState() {
    SetValue(Value() == 1 ? 0 : 1);
}
