// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The name of a control that shows a sign instead of a text: screen readers tell it, and a tip shows it. As the
/// toolkit's own tip it would be told a second time, as the control's description.
#pragma once

#include <QObject>

class QWidget;

class NameTip : public QObject {
    Q_OBJECT
public:
    /// A name that is given again takes the place of the first.
    static void Give(QWidget& control, const QString& name);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
};
