/* SPDX-FileCopyrightText: 2026 The Brindock authors
 * SPDX-License-Identifier: GPL-3.0-or-later
 *
 * The least that a listing of replays can do, for bench/side-by-side: lists the folder, asks each file's date, reads
 * 2,048 bytes and prints a line. */
#define _POSIX_C_SOURCE 200809L

#include <dirent.h>
#include <fcntl.h>
#include <stdio.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

enum { HeaderLength = 2048 };

static int PrintReplay(int folder, const char* name) {
    char header[HeaderLength];
    struct stat status;
    const int file = openat(folder, name, O_RDONLY);
    if (file < 0 || fstatat(folder, name, &status, 0) != 0)
        return 1;
    const ssize_t count = read(file, header, sizeof header);
    close(file);
    printf("%s\t%ld\t%zd\t%.6s\n", name, (long)status.st_mtime, count, header);
    return count < 6;
}

int main(int argc, char** argv) {
    DIR* listing = argc == 2 ? opendir(argv[1]) : NULL;
    int failures = 0;
    if (listing == NULL)
        return 2;
    for (const struct dirent* entry = readdir(listing); entry != NULL; entry = readdir(listing)) {
        const size_t length = strlen(entry->d_name);
        if (length > 4 && strcmp(entry->d_name + length - 4, ".rep") == 0)
            failures += PrintReplay(dirfd(listing), entry->d_name);
    }
    closedir(listing);
    return failures != 0;
}
