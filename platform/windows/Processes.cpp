// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Processes.h"

#include "platform/CommandText.h"
#include "platform/RuntimeError.h"
#include "platform/windows/System.h"

#include <shellapi.h>

#include <limits>
#include <string>

using namespace Qt::StringLiterals;

namespace {

/// The mask bits for a process handle to wait for and no message from the system: together 1088.
constexpr ULONG OpeningMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI;
static_assert(OpeningMask == 1088);

HANDLE SystemHandle(Processes::Handle process) {
    return reinterpret_cast<HANDLE>(process); // NOLINT(performance-no-int-to-ptr)
}

} // namespace

QStringList Processes::CommandFor(const QString& command, const QString& /*prefix*/) {
    const CommandText::Parts parts = CommandText::Split(command);
    return QStringList(parts.Program) + CommandText::Arguments(parts.Rest);
}

QString Processes::RunnerFor(const QString& /*prefix*/) {
    return {};
}

void Processes::StartCommand(const QString& command, FirstWindow window, const QString& /*prefix*/) {
    // The call writes into the text.
    std::wstring text = command.toStdWString();
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = window == FirstWindow::Minimised ? SW_SHOWMINIMIZED : SW_SHOWNORMAL;
    PROCESS_INFORMATION started{};
    if (::CreateProcessW(nullptr, text.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &started) == 0)
        throw RuntimeError(ErrorNumber::FileNotFound, u"%1: can't be started"_s.arg(command));
    ::CloseHandle(started.hThread);
    ::CloseHandle(started.hProcess);
}

Processes::Opened Processes::OpenWithAssociation(const QString& path, quintptr owner) {
    SHELLEXECUTEINFOW opening{};
    opening.cbSize = sizeof(opening);
    opening.fMask = OpeningMask;
    opening.hwnd = reinterpret_cast<HWND>(owner); // NOLINT(performance-no-int-to-ptr)
    opening.lpVerb = L"open";
    const std::wstring file = path.toStdWString();
    opening.lpFile = file.c_str();
    opening.nShow = SW_SHOW;
    ::ShellExecuteExW(&opening);
    return {reinterpret_cast<Handle>(opening.hProcess), static_cast<int>(reinterpret_cast<LONG_PTR>(opening.hInstApp))};
}

void Processes::ChooseProgramFor(const QString& path) {
    StartCommand(u"rundll32.exe shell32.dll,OpenAs_RunDLL "_s + path);
}

std::optional<int> Processes::ExitCode(Handle process) {
    DWORD code = 0;
    if (::GetExitCodeProcess(SystemHandle(process), &code) == 0)
        return 0;
    // A program may end with the very number that stands for a running one.
    if (code == STILL_ACTIVE && ::WaitForSingleObject(SystemHandle(process), 0) == WAIT_TIMEOUT)
        return std::nullopt;
    return static_cast<int>(code);
}

void Processes::Close(Handle process) {
    if (process != 0)
        ::CloseHandle(SystemHandle(process));
}

bool Processes::IsRunning(qint64 processId) {
    if (processId <= 0 || processId > std::numeric_limits<DWORD>::max())
        return false;
    const HANDLE process = ::OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(processId));
    if (process == nullptr)
        return ::GetLastError() == ERROR_ACCESS_DENIED;
    const bool runs = ::WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
    ::CloseHandle(process);
    return runs;
}

QString Processes::CommandLine(int /*argc*/, char** /*argv*/) {
    return CommandText::Split(QString::fromWCharArray(::GetCommandLineW())).Rest;
}

void Processes::End(int exitCode) {
    ::ExitProcess(static_cast<UINT>(exitCode));
}
