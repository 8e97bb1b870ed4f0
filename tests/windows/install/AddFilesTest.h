// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the tests of the pages of adding files share: a wizard in a world with the program's own texts.
#pragma once

#include "core/mMain.h"
#include "install/InstallSource.h"
#include "install/window/AddFilesWizard.h"
#include "platform/Paths.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/World.h"
#include "tests/windows/LanguageChecks.h"
#include "tests/windows/WindowTests.h"
#include "tools/demoworld/ZipBytes.h"

#include <QApplication>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QUrl>

class AddFilesTest : public QObject {
protected:
    /// These games are installed.
    void Begin(std::initializer_list<GameIndex> games, const QString& language = QStringLiteral("English")) {
        world_ = std::make_unique<World>();
        host_ = std::make_unique<ScriptedHost>();
        world_->UseOwnLanguage(language);
        for (const GameIndex game : games)
            world_->InstallGame(game);
        world_->Start();
        mMain::MakeUserFolders();
        AddFiles::Source = {};
        AddFiles::ActiveGame = 0;
    }

    void End() {
        wizard_.reset();
        host_.reset();
        world_.reset();
    }

    /// Shows the first page.
    void Open(const QString& file = {}) {
        wizard_ = std::make_unique<AddFilesWizard>(nullptr);
        wizard_->Begin(file);
        Activate();
    }

    void Activate() {
        QVERIFY(wizard_->Page() != nullptr);
        wizard_->Page()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(wizard_->Page()));
    }

    QString Put(const QString& name, const QByteArray& bytes = "x") {
        return world_->WriteFile(QStringLiteral("files\\") + name, bytes);
    }

    QString PutZip(const QString& name, const std::vector<ZipBytes::Part>& parts) {
        return Put(name, ZipBytes::Archive(parts));
    }

    template <typename Control>
    Control* Part(const char* name) {
        return wizard_->Page()->findChild<Control*>(QString::fromLatin1(name));
    }

    QString Text(const char* label) { return Part<QLabel>(label)->text(); }

    QPushButton* Button(const char* name) { return Part<QPushButton>(name); }

    void Press(const char* button) { QTest::mouseClick(Button(button), Qt::LeftButton); }

    /// The class of the page that is shown; empty when the wizard has ended.
    [[nodiscard]] QString Shown() const {
        return wizard_->Page() == nullptr ? QString() : QString::fromLatin1(wizard_->Page()->metaObject()->className());
    }

    /// Whether the program's event loop ends by itself.
    static bool RunsToItsEnd() {
        constexpr int hung = 1;
        constexpr int longest = 20000; // milliseconds
        QTimer limit;
        limit.callOnTimeout([] { QApplication::exit(hung); });
        limit.start(longest);
        return QApplication::exec() != hung;
    }

    /// Drags files over a window and lets go of them where they are taken; whether they were.
    static bool Drop(QWidget* window, const QStringList& files) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& file : files)
            urls += QUrl::fromLocalFile(Paths::ToNative(file));
        data.setUrls(urls);
        QDragEnterEvent enter({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent drop({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window, &drop);
        QCoreApplication::processEvents();
        return drop.isAccepted();
    }

    /// The names of the controls that the Tab key walks through, from the one that has the keyboard.
    QStringList Walk(int steps) {
        QStringList names;
        for (int step = 0; step < steps; ++step) {
            names += QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        return names;
    }

    std::unique_ptr<World> world_;
    std::unique_ptr<ScriptedHost> host_;
    std::unique_ptr<AddFilesWizard> wizard_;
};
