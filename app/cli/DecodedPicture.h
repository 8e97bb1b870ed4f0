// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How the commands turn a picture into a bitmap.
#pragma once

#include <QString>

/// Decodes a picture in the child process, waits for it, and writes a bitmap of 32 bits a pixel, or a PNG of
/// as many where the target ends in .png. False for what is no
/// picture that can be read: then nothing is written. Inside paths; raises when the target can't be written. To be
/// called once in the program.
bool DecodeToBitmap(const QString& picture, const QString& target);
