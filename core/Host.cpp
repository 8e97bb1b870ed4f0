// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Host.h"

#include "platform/RuntimeError.h"

#include <QAbstractEventDispatcher>
#include <QEventLoop>

#include <exception>

using namespace Qt::StringLiterals;

namespace {

Host* inUse = nullptr;

} // namespace

QStringList Host::OpenFileNames(const FileDialog& dialog) {
    const auto path = OpenFileName(dialog);
    return path ? QStringList{*path} : QStringList();
}

void Host::MessageWithList(const QString& text, const QStringList& lines) {
    Message(text + "\r\n"_L1 + lines.join("\r\n"_L1), Icon::Exclamation);
}

bool Host::WaitUntil(const std::function<bool()>& condition) {
    if (condition())
        return true;
    bool holds = false;
    std::exception_ptr failure; // none may pass through the dispatcher
    QEventLoop loop;
    const auto look = [&] {
        try {
            holds = condition();
        } catch (...) {
            failure = std::current_exception();
        }
        if (holds || failure != nullptr)
            loop.quit();
    };
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &loop, look);
    loop.exec();
    if (failure != nullptr)
        std::rethrow_exception(failure);
    return holds;
}

Host& Host::Current() {
    if (inUse == nullptr)
        throw RuntimeError(ErrorNumber::ObjectNotSet, u"There is no window to speak through."_s);
    return *inUse;
}

void Host::Use(Host* host) {
    inUse = host;
}

bool Host::IsThere() {
    return inUse != nullptr;
}
