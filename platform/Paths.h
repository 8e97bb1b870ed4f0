// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Where a path of the program meets the system.
///
/// Inside, a path is a text with backslashes, joined by concatenation. On Windows the two conversions change nothing.
/// On Linux they swap the separators, follow drive letters through the Wine prefixes, and find each existing component
/// without regard to case. Bytes of a file name that are no UTF-8 travel as the surrogates U+DC80 to U+DCFF, and a
/// backslash inside a file name as U+F05C, so that every name on disk has a path and comes back. A drive that nobody
/// knows has no place: its native path begins with the invisible U+2060, reads as it was given, and never exists.
#pragma once

#include <QByteArray>
#include <QString>

namespace Paths {

/// What stands behind the last backslash of an inside path, and what up to it, the backslash included.
inline QString LastPart(const QString& path) {
    return path.sliced(path.lastIndexOf(u'\\') + 1);
}

inline QString Folder(const QString& path) {
    return path.first(path.lastIndexOf(u'\\') + 1);
}

/// The system's path for an inside path. A component that does not exist keeps the case given.
QString ToNative(const QString& path);

/// The same without looking names up: the case stays as given.
QString ToNativeAsGiven(const QString& path);

/// The inside path for a system path. A path that is not absolute stays relative.
QString FromNative(const QString& path);

/// The system's form of one name, and back; nothing is looked up.
QString NameToNative(const QString& name);
QString NameFromNative(const QString& name);

/// The bytes to hand to the system for a native path (POSIX), and back.
QByteArray EncodeNative(const QString& nativePath);
QString DecodeNative(const QByteArray& bytes);

/// The bytes of a text that a person reads, native paths anywhere in it.
QByteArray EncodeShown(QString text);

/// The absolute inside path of a system path as a person typed it: relative to the current folder, "." and ".." gone,
/// links followed as far as the path exists. A path with a drive letter is an inside path already.
QString Absolute(const QString& nativePath);

/// The absolute inside path of an inside path that may be relative to a folder (an absolute inside path), by the texts
/// alone: "." and ".." gone, no trailing backslash but a root's own, no link followed. It may hold '*' and '?'.
QString AbsoluteIn(const QString& folder, const QString& path);

/// The inside path that an existing file or folder really has, all links followed; empty when there is none.
QString Real(const QString& path);

/// Folders below `folder` (an inside path with a drive letter) belong to the Wine prefix `prefix` (a native folder).
/// The longest folder that fits decides; the first prefix named serves every other path, and without any the one that
/// Wine itself would take. Does nothing on Windows.
void UsePrefix(const QString& folder, const QString& prefix);

/// The inside path of what a path means in a Wine prefix (a native folder), whatever prefix the same text belongs to
/// otherwise. Unchanged without a drive letter, without a prefix, and for a drive that the prefix lacks.
QString InPrefix(const QString& prefix, const QString& path);

/// The Wine prefix (native folder) that a path belongs to when it was read in the prefix `readIn`, or on its own: the
/// one that it leads into, else the one in which it was read. Empty when there is none; always on Windows.
QString PrefixFor(const QString& path, const QString& readIn = {});

/// Forgets every prefix.
void ForgetPrefixes();

/// The program's folder, an inside path without a trailing backslash: BRINDOCK_PROGRAM_FOLDER, else the executable's.
QString ProgramFolder();

/// The running executable, an inside path.
QString Executable();

} // namespace Paths
