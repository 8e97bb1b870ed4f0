// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Takes what the suite would open in the system's browser, and the key that has it do so.
#pragma once

#include "ui/window/ManualKey.h"

#include <QList>
#include <QObject>
#include <QUrl>

class OpenedPages : public QObject {
    Q_OBJECT
public:
    OpenedPages();
    ~OpenedPages() override;

    /// In their order.
    QList<QUrl> Urls;

public Q_SLOTS:
    void Take(const QUrl& url);

private:
    ManualKey key_;
};
