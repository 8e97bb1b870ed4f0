// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CrashText.h"
#include "platform/Paths.h"
#include "platform/windows/System.h"

#include <atomic>
#include <csignal>
#include <string>

namespace {

constexpr int mostFrames = 64;

std::wstring file;
std::wstring folder;
CrashText text;
std::atomic<bool> isWritten = false;

void AddAddress(DWORD64 address) {
    HMODULE module = nullptr;
    std::array<char, MAX_PATH> name{};
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    const auto* const place = reinterpret_cast<LPCSTR>(address);
    if (GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT, place,
                           &module) == 0)
        return text.AddFrame("?", address);
    GetModuleFileNameA(module, name.data(), MAX_PATH - 1);
    text.AddFrame(name.data(), address - reinterpret_cast<DWORD64>(module));
}

/// Walks by the tables that each program has for its exceptions.
void AddStack(CONTEXT context) {
    for (int i = 0; i < mostFrames && context.Rip != 0; ++i) {
        AddAddress(context.Rip);
        DWORD64 base = 0;
        RUNTIME_FUNCTION* const function = RtlLookupFunctionEntry(context.Rip, &base, nullptr);
        if (function == nullptr) { // one that calls no other: its way back is all that is on the stack
            context.Rip = *reinterpret_cast<const DWORD64*>(context.Rsp); // NOLINT(performance-no-int-to-ptr)
            context.Rsp += sizeof(DWORD64);
            continue;
        }
        void* handlerData = nullptr;
        DWORD64 frame = 0;
        RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, function, &context, &handlerData, &frame, nullptr);
    }
}

void WriteAll() {
    CreateDirectoryW(folder.c_str(), nullptr);
    HANDLE const out = CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (out == INVALID_HANDLE_VALUE)
        return;
    DWORD written = 0;
    WriteFile(out, text.Text().data(), static_cast<DWORD>(text.Text().size()), &written, nullptr);
    CloseHandle(out);
}

void Write(std::string_view fault, DWORD number, const CONTEXT& context) {
    if (isWritten.exchange(true))
        return;
    CrashNotes::Begin(text);
    text.Add(fault);
    text.AddHex(number);
    text.Add("\n");
    AddStack(context);
    CrashNotes::End(text);
    WriteAll();
}

LONG WINAPI OnException(EXCEPTION_POINTERS* exception) {
    Write("exception ", exception->ExceptionRecord->ExceptionCode, *exception->ContextRecord);
    return EXCEPTION_CONTINUE_SEARCH;
}

void OnAbort(int signal) {
    CONTEXT context{};
    RtlCaptureContext(&context);
    Write("abort ", static_cast<DWORD>(signal), context);
}

} // namespace

void CrashHandlers::Install(const QString& path) {
    file = Paths::ToNative(path).toStdWString();
    folder = file.substr(0, file.find_last_of(L"/\\"));
    // A stack that is full keeps so much for the filter.
    ULONG kept = 64UL * 1024;
    SetThreadStackGuarantee(&kept);
    SetUnhandledExceptionFilter(OnException);
    std::signal(SIGABRT, OnAbort);
}
