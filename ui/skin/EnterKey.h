// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Enter as the key of a button, beside the blank that the toolkit knows.
#pragma once

class QAbstractButton;
class QEvent;

namespace Skin {

/// Either of the two Enter keys.
bool IsEnter(int key);

class EnterKey {
public:
    /// Clicks when Enter is released, and only where it was pressed: a key that is held clicks once, and a message box
    /// that Enter has closed leaves the release to the button that opened it. To be called with each event of the
    /// button, or with its key and focus events; true for what the button is not to see. A click may end the button.
    bool Takes(const QEvent& event, QAbstractButton& button);

private:
    bool isDown_ = false;
};

} // namespace Skin
