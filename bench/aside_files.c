/* SPDX-FileCopyrightText: 2026 The Brindock authors
 * SPDX-License-Identifier: GPL-3.0-or-later
 *
 * The least that a writing of whole files can do, for bench/side-by-side: each is written under another name and gets
 * its own in one step, nothing is read, unpacked, hashed or told to a journal.
 *
 * aside_files FOLDER FOLDERS COUNT LENGTH...: so many folders, or none for 0, with that many files in each; their
 * lengths in bytes are taken in turns. */
#define _GNU_SOURCE

#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

enum { LongestFile = 1 << 20, LongestName = 64 };

static char bytes[LongestFile];

static int PutFile(int folder, int number, size_t length) {
    char aside[LongestName];
    char name[LongestName];
    snprintf(aside, sizeof aside, "~brindock-0123456789abcdef0123456789abcdef%d", number);
    snprintf(name, sizeof name, "Arena with a usual name %d.map", number);
    const int file = openat(folder, aside, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file < 0 || write(file, bytes, length) != (ssize_t)length || close(file) != 0)
        return 1;
    return renameat2(folder, aside, folder, name, RENAME_NOREPLACE) != 0;
}

static int PutFiles(int folder, int count, int lengths, char** length) {
    int failures = 0;
    for (int number = 0; number < count; ++number)
        failures += PutFile(folder, number, strtoul(length[number % lengths], NULL, 10));
    return failures;
}

int main(int argc, char** argv) {
    if (argc < 5)
        return 2;
    const int root = open(argv[1], O_RDONLY | O_DIRECTORY);
    const int folders = atoi(argv[2]);
    int failures = root < 0 || (folders == 0 && PutFiles(root, atoi(argv[3]), argc - 4, argv + 4) != 0);
    for (int number = 0; number < folders; ++number) {
        char name[LongestName];
        snprintf(name, sizeof name, "Arena %d", number);
        mkdirat(root, name, 0777);
        const int folder = openat(root, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        failures += folder < 0 || PutFiles(folder, atoi(argv[3]), argc - 4, argv + 4) != 0;
        close(folder);
    }
    return failures != 0;
}
