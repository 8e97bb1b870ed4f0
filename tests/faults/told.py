# SPDX-FileCopyrightText: 2026 The Brindock authors
# SPDX-License-Identifier: GPL-3.0-or-later

"""The ends of a broken run that are meant although they are neither the old state nor the new one, each with its reason."""

import dataclasses
import io
import json
import re
import zipfile


@dataclasses.dataclass
class End:
    """What may stand at a path of some commands."""
    commands: str  # a pattern of their names
    path: str  # a pattern
    reason: str
    holds: object  # (bytes found or None, bytes before or None, bytes of the clean run or None, all before) -> bool


def gone(found, before, clean, every):
    return found is None


def old_table(found, before, clean, every):
    return found in every.values()


def lines_of_both(found, before, clean, every):
    known = set((before or b"").split(b"\r\n")) | set((clean or b"").split(b"\r\n"))
    return found is not None and set(found.split(b"\r\n")) <= known


def whole_json(found, before, clean, every):
    try:
        return found is None or bool(json.loads(found))
    except ValueError:
        return False


def anything(found, before, clean, every):
    return True


def kept_copy(found, before, clean, every):
    # A record may be put aside between its two writings.
    return found is None or found in every.values() or found.startswith(b"[Mod]")


def fewer_entries(found, before, clean, every):
    if found is None or clean is None:
        return False
    with zipfile.ZipFile(io.BytesIO(found)) as part, zipfile.ZipFile(io.BytesIO(clean)) as whole:
        known = set(whole.namelist())
        return part.testzip() is None and all(name in known and part.read(name) == whole.read(name)
                                              for name in part.namelist())


def lower_number(found, before, clean, every):
    return found is None or found in every.values()


ENDS = [
    End("csf", r"\.csf\.sav$", "the old table waits there while the new one takes its place", old_table),
    End("csf", r"\.csf$", "a table's .sav beside nothing: between its two renames", gone),
    End("install a|installed un", r"/Mod2?\.ini$|/Alone\.ini$", "name and comments are two writings of a whole file",
        lines_of_both),
    End("install a|installed un", r"/Mod2?\.ini$|/Alone\.ini$", "a record that was not written yet", gone),
    End("install", r"^installed\.json$", "the journal tells what was done so far", whole_json),
    End("install", r"^installed/\d+/files\.jsonl$", "lines of an install that goes on, read when its process is gone",
        anything),
    End("install", r"^installed/\d+/\d+$", "what is put aside before it is replaced", kept_copy),
    End("export to a ZIP|zip create", r"\.zip$", "what can't be read is left out and told; the rest is taken",
        fewer_entries),
    End("shellmaps activate", r"/ShellMap1/", "the place is emptied before the chosen map is copied", gone),
    End("shellmaps delete", r"/QvShellMap\d+/", "maps move down one number a file; see nothing_lost", lower_number),
]


def is_told(row, path, found, before, clean, every):
    return any(re.search(end.commands, row.name) and re.search(end.path, path) and end.holds(found, before, clean, every)
               for end in ENDS)


def nothing_lost(after, before):
    """Of the shell maps that stay, each file is there under some number, whenever the removal broke off."""
    for path, content in before.items():
        if re.search(r"/QvShellMap00[23]/", path) and content not in [
                found for name, found in after.items() if name.endswith("/" + path.rsplit("/", 1)[1])]:
            yield f"{path}: its content is lost"
