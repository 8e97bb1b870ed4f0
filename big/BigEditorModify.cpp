// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/BigEditor.h"

void BigEditor::ActivateRow(int place) {
    if (place >= 0 && place < list_.Count() && list_.Row(place).IsFolder)
        ClickNode(list_.Row(place).Index);
}
