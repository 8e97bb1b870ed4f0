// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The picture readers, whose libraries are large: they are loaded when they are asked for first, or linked in where
/// the programs are built in one piece.
#pragma once

#include <QByteArray>
#include <QString>

/// A bitmap of 32 bits a pixel for the bytes of a picture file; empty when nothing reads them. The name tells the kind
/// where the bytes don't. For a process that may die of it.
QByteArray DecodePicture(const QByteArray& bytes, const QString& name);
