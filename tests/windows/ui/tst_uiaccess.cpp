// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the suite asks and tells, for screen readers, for the keyboard alone, and on small screens.
#include "tests/support/World.h"
#include "tests/windows/Access.h"
#include "tests/windows/WindowTests.h"
#include "ui/window/WindowHost.h"

#include <QApplication>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;

class tst_uiaccess : public QObject {
    Q_OBJECT
private:
    /// Looks at the next modal window, and closes it.
    void Expect(const char* name) {
        QTimer::singleShot(0, qApp, [this, name] {
            auto* const dialog = QApplication::activeModalWidget();
            if (dialog == nullptr)
                return Expect(name);
            isRight_ = QTest::qWaitForWindowActive(dialog) && IsRight(*dialog, name);
            dialog->close();
        });
    }

    static bool IsRight(QWidget& window, const char* name) {
        return Access::IsFor(window, {.Room = "ui", .Name = QString::fromLatin1(name)});
    }

    std::unique_ptr<World> world_;
    std::unique_ptr<Host> host_;
    bool isRight_ = false;

private Q_SLOTS:

    static void initTestCase() { Access::Dress(); }

    void init() {
        world_ = std::make_unique<World>();
        world_->UseOwnLanguage(u"English"_s);
        world_->Start();
        host_ = std::make_unique<WindowHost>();
        isRight_ = false;
    }

    void cleanup() {
        host_.reset();
        world_.reset();
    }

    void aQuestion() {
        Expect("question");
        host_->Message(u"Save it?"_s, Host::Icon::Question, Host::Buttons::YesNoCancel, u"Brindock 2005"_s,
                       std::nullopt);
        QVERIFY(isRight_);
    }

    void aMessage() {
        Expect("message");
        host_->Message(u"That failed."_s, Host::Icon::Critical, Host::Buttons::Ok, u"Brindock 2005"_s, std::nullopt);
        QVERIFY(isRight_);
    }

    void aMessageWithAList() {
        Expect("left-out");
        host_->MessageWithList(u"Left out:"_s, {u"a.txt"_s, u"b.txt"_s});
        QVERIFY(isRight_);
    }

    void anInput() {
        Expect("input");
        host_->InputBox(u"Name of the folder"_s, u"New folder"_s, u"New"_s);
        QVERIFY(isRight_);
    }

    void theProgress() {
        const auto progress = host_->ShowProgress();
        QWidget* const window = QApplication::topLevelWidgets().last();
        QVERIFY(window != nullptr);
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        QVERIFY(IsRight(*window, "progress"));
    }
};

WINDOW_TEST(tst_uiaccess)

#include "tst_uiaccess.moc"
