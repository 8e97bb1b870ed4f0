// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the tests of the editors' windows share: a window in a world of its own.
#pragma once

#include "tests/support/OwnLanguages.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/ScriptedNavigator.h"
#include "tests/support/World.h"

#include <QAbstractItemView>
#include <QTest>

#include <memory>

template <typename Window>
class EditorTest : public QObject {
protected:
    /// A world whose language file holds these texts.
    void BeginIn(const QByteArray& texts) {
        world_ = std::make_unique<World>();
        host_ = std::make_unique<ScriptedHost>();
        navigator_ = std::make_unique<ScriptedNavigator>();
        world_->UseLanguage(texts);
        world_->Start();
    }

    /// A world in one of the program's own languages.
    void BeginInLanguage(const QString& name) { BeginIn(OwnLanguages::Bytes(name)); }

    void End() {
        window_.reset();
        navigator_.reset();
        host_.reset();
        world_.reset();
    }

    template <typename Control>
    Control* Part(const char* name) {
        return window_->template findChild<Control*>(QString::fromLatin1(name));
    }

    static void Click(QAbstractItemView& list, int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(row, 0)).center());
    }

    std::unique_ptr<World> world_;
    std::unique_ptr<ScriptedHost> host_;
    std::unique_ptr<ScriptedNavigator> navigator_;
    std::unique_ptr<Window> window_;
};
