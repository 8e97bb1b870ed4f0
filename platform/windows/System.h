// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The system's own header, without the macros that take names of ours.
#pragma once

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#undef CopyFile
#undef CreateFile
#undef DeleteFile
#undef GetCommandLine
#undef GetMessage
#undef MessageBox
#undef MoveFile
#undef Yield
