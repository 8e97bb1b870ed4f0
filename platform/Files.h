// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Files and folders by inside path. What fails raises a RuntimeError that names the path, where nothing else is said.
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <vector>

namespace Files {

/// True when asking for the file's length succeeds: a file of zero bytes exists, a folder does not.
bool FileExists(const QString& path);

/// Length in bytes. Raises 53 when there is no such file.
qint64 FileLength(const QString& path);

bool FolderExists(const QString& path);

/// Whether this user may make files in a folder that is there.
bool TakesFiles(const QString& folder);

/// Raises 75 when the folder (or a file of that name) exists already, 76 when its parent does not. A trailing backslash
/// is allowed.
void MakeFolder(const QString& path);

/// The same for a path whose case is known to be right: nothing is looked up.
void MakeFolderAsGiven(const QString& path);

enum class Standing {
    Nothing,
    File,
    Folder,
    LinkToNowhere, ///< on Windows such a link is a file
};

/// What stands at a path whose case is known to be right; links are followed.
Standing StandingAsGiven(const QString& path);

/// True for a symbolic link, wherever it leads.
bool IsLink(const QString& path);

/// The same for a path whose case is known to be right: nothing is looked up.
bool IsLinkAsGiven(const QString& path);

/// Removes a symbolic link, whatever it leads to, and nothing else. Raises 53 when there is no link.
void RemoveLink(const QString& path);

/// Makes the folder and those above it; a folder that stands already is fine.
void MakeFolders(const QString& path);

/// Removes an empty folder. Raises 76 when missing, 75 when it can't be removed.
void RemoveFolder(const QString& path);

/// Removes a folder with everything in it. A link is removed itself; what can't be removed stays, without a word.
void DeleteFolder(const QString& path);

/// Deletes every file that `pattern` names ('*' and '?' in its last part) up to the first that is refused. Raises 53
/// when there is none, 70 for a write-protected one, whoever asks.
void Delete(const QString& pattern);

/// Deletes one file, whatever its name holds. Raises 53 when missing, 70 when it is write-protected or refused.
void DeleteUnprotected(const QString& path);

/// Deletes one file, a write-protected one too. Raises 53 when missing, 70 when refused.
void DeleteForced(const QString& path);

/// Whoever may read the file may start it as a program, where the system has such a mark. Raises 53, 70.
void MakeExecutable(const QString& path);

/// Copies a file over the file at the target, or to a new one, in one step (platform/WriteAside.h); does not wait for
/// the disk. Raises 53, 57, 61, 70, 75, 76.
void Copy(const QString& from, const QString& to);

/// The same for a target whose case is known to be right: nothing is looked up there.
void CopyAsGiven(const QString& from, const QString& to);

/// Renames or moves. Raises 53 when missing, 58 when the target exists, 75 when refused.
void Rename(const QString& from, const QString& to);

/// Renames over whatever file stands at the target, in one step.
void Replace(const QString& from, const QString& to);

/// The names in a folder that fit the pattern, in the directory's order, without "." and "..". The last part of
/// `pattern` holds '*' and '?' (without regard to case; "*.*" and an empty last part mean everything); a pattern whose
/// last part is plain names that one entry. Folders are left out unless `withFolders`. Empty when nothing fits.
QStringList ListFolder(const QString& pattern, bool withFolders = false);

struct FoundFile {
    QString Path;        ///< inside path, absolute
    qint64 Size = 0;     ///< bytes
    bool IsPlain = true; ///< a file with bytes of its own: no pipe, socket, device or link to nowhere
};

/// The files of a folder, with those of all its subfolders when `recursive`; failures are ignored. A link to a folder
/// is followed once, never around in a circle. `unlisted` gets why each folder that can't be listed can't.
std::vector<FoundFile> ListFolderFiles(const QString& folder, bool recursive, QStringList* unlisted = nullptr);

/// The same, but raises 76 with the name of a folder that can't be listed.
std::vector<FoundFile> ListFolderFilesStrict(const QString& folder, bool recursive);

/// Deletes the files of a folder but those in `kept`, write-protected ones too; subfolders stay with all in them, and
/// so does what can't be deleted. Where the folder is a link, what it leads to is somebody else's: nothing is deleted.
void EmptyFolder(const QString& folder, const QStringList& kept = {});

/// How many bytes the file system of a folder still takes from this user. Raises 76 when the folder is missing.
qint64 FreeSpace(const QString& folder);

/// Waits until all that was written in the file system of a path is on the disk, where the system lets everybody ask
/// for that: once at the end of many files.
void FlushSystem(const QString& path);

/// When the file was last written. Raises 53.
QDateTime ModifiedTime(const QString& path);

/// True when both paths name one and the same existing file, however they are spelt.
bool SameFile(const QString& first, const QString& second);

} // namespace Files
