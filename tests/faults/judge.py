# SPDX-FileCopyrightText: 2026 The Brindock authors
# SPDX-License-Identifier: GPL-3.0-or-later

"""What must hold after a run that a fault met."""

import dataclasses
import errno
import os
import re

import told

# Written beside every command: the texts that a language lacks, which are many when its file can't be read.
NOT_THE_COMMANDS = {"program/localization.log"}
PRIVATE = re.compile(r"(^|/)~brindock-[0-9a-f]{32}[0-9]*(/|$)")


@dataclasses.dataclass
class Run:
    """What was done to a process, and what it left."""
    row: object
    fault: str  # KILL, a name of errno, or SHORT
    always: bool
    call: str  # the name of the call that was met, and its path
    code: int  # the exit code; below zero the signal; None for one that had to be ended
    words: str  # what it wrote on standard error
    before: dict  # relative paths and bytes
    clean: dict  # the same after an undisturbed run
    after: dict


def is_private(path):
    return PRIVATE.search(path) is not None


def known(path):
    """A path as every run has it: the folder of a rescue has a name that nobody can guess."""
    return re.sub(r"~brindock-[0-9a-f]{32}[0-9]*(?=\.rescue/)", "kept", path)


def leftovers(state):
    return sorted(path for path in state if is_private(path))


def differs(row, path, first, second):
    if path in NOT_THE_COMMANDS:
        return False
    if row.same and first is not None and second is not None:
        first, second = row.same(path, first), row.same(path, second)
    return first != second


def unlike(row, state, other):
    """The paths in which two states differ, private ones aside."""
    return sorted(path for path in state.keys() | other.keys()
                  if not is_private(path) and differs(row, path, state.get(path), other.get(path)))


def files(run):
    """Each file is what it was, or what it is to be."""
    def meant(path):
        return told.is_told(run.row, path, run.after.get(path), run.before.get(path), run.clean.get(path), run.before)

    def odd(other):
        return [path for path in unlike(run.row, run.after, other) if not meant(path)]

    old, new = odd(run.before), odd(run.clean)
    yield from run.row.keeps(run.after, run.before) if run.row.keeps else ()
    if run.row.several:
        for path in sorted(set(old) & set(new)):
            yield f"{path}: neither the old file nor the new one"
    elif old and new:
        yield f"neither the old state nor the new one: {', '.join(sorted(set(old) | set(new)))}"


def ending(run):
    """A process that was not killed tells the truth."""
    if run.code is None:
        yield "hangs"
    elif run.code < 0 or run.code > 2:
        yield f"ends with {run.code}"
    elif run.code == 0:
        missing = unlike(run.row, run.after, run.clean)
        if missing:
            yield f"exit 0, but not the new state: {', '.join(missing)}"
    else:
        yield from complaint(run)


def complaint(run):
    if run.fault == "SHORT":
        yield f"fewer bytes in a call are a failure to it: {run.words.strip()}"
        return
    reason = os.strerror(getattr(errno, run.fault))
    lines = [line for line in run.words.splitlines() if reason in line]
    if not lines:
        yield f"does not tell the reason ({reason}): {run.words.strip()!r}"
    elif not any(re.search(r": [^:]*[^: ]: ", line.split(reason)[0]) for line in lines):
        yield f"names no file: {run.words.strip()!r}"


def is_named(path, words):
    """Whether what is left stands in a line of the command's: the file, or the folder of its own that it is in."""
    private = [part for part in path.split("/") if is_private(part)]
    return any(part in words for part in private)


def nothing_left(run):
    if run.fault == "KILL" or (run.always and run.fault in ("EIO", "EACCES", "EROFS", "EMFILE")):
        return  # it could not tidy up; the next one does
    if left := [path for path in leftovers(run.after) if not is_named(path, run.words)]:
        yield f"leaves {', '.join(left)}"


def findings(run):
    yield from files(run)
    if run.fault != "KILL":
        yield from ending(run)
    elif run.code != -9 and (run.code != 0 or unlike(run.row, run.after, run.clean)):
        # A thread that reads ahead may have called less this time.
        yield f"was to be killed, but ended with {run.code}"
    yield from nothing_left(run)


def followed(run, code, words, state):
    """What must hold when the same is done once more, undisturbed."""
    if any(path.endswith(".csf.sav") for path in run.after):
        return  # the save before left the old table; whoever saves next is told, and nothing is overwritten
    if left := leftovers(state):
        yield f"once more leaves {', '.join(left)}"
    if code != 0:
        yield f"once more ends with {code}: {words.strip()}"
    elif run.row.follows and (missing := unlike(run.row, state, run.clean)):
        yield f"once more is not the new state: {', '.join(missing)}"
