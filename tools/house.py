# SPDX-FileCopyrightText: 2026 The Brindock authors
# SPDX-License-Identifier: GPL-3.0-or-later

"""What the checks share: the project's files, and how a finding is told."""

import os
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
ROOMS = ("app", "bench", "big", "core", "csf", "fuzz", "install", "media", "personal", "platform", "tests", "tools", "ui",
         "update")


def files(*suffixes):
    """The files of the rooms with one of these suffixes, as sorted paths relative to the project's folder."""
    found = []
    for room in ROOMS:
        for folder, _, names in os.walk(ROOT / room):
            found += [(pathlib.Path(folder) / name).relative_to(ROOT) for name in names if name.endswith(suffixes)]
    return sorted(found)


def lines(path):
    """The text lines of a file of the project."""
    return (ROOT / path).read_text(encoding="utf-8").splitlines()


def report(findings, subject):
    """Prints the findings and ends the program: 0 where there are none."""
    for finding in findings:
        print(finding)
    print(f"{subject}: {'nothing to complain of' if not findings else f'{len(findings)} findings'}")
    sys.exit(1 if findings else 0)
