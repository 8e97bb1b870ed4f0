# SPDX-FileCopyrightText: 2026 The Brindock authors
# SPDX-License-Identifier: GPL-3.0-or-later

"""The commands that change files, a row each: how its world is made, what is called, and what is its own about it."""

import dataclasses
import re

import told
import worlds


@dataclasses.dataclass
class Row:
    """A command in a world of its own."""
    name: str
    words: list  # of the command line; relative paths are below the world, which is the current folder
    make: object = worlds.plain  # makes the world in a folder
    before: list = dataclasses.field(default_factory=list)  # commands that belong to the world's making
    again: list = None  # what is called after a process died; the same words, where nothing is said
    several: bool = False  # several files are written one by one: each is the old one or the new one for itself
    follows: bool = True  # what is called after a process died ends as an undisturbed run does
    same: object = None  # turns bytes of a path into what two runs have in common
    program: str = "brindock-cli"
    keeps: object = None  # (state after, state before) -> what else does not hold


PAIRS = [("GUI:Ok", "Fine"), ("GUI:No", "Never"), ("GUI:Long", "A text that goes on " * 300)]
ADDED = b"[Two]\r\nB=2\r\n"


def archives(root):
    worlds.plain(root)
    worlds.write(root, {"a.big": worlds.archive(), "new.ini": ADDED,
                        "long.bin": worlds.LONG + b"more", "old.big": worlds.archive(worlds.ENTRIES[:2])})


def folder(root):
    worlds.plain(root)
    worlds.write(root, {"files/Data/One.ini": ADDED, "files/Art/Long.tga": worlds.LONG, "files/Two.txt": b"two"})


def tables(root):
    worlds.plain(root)
    theirs = [("GUI:Ok", "Good"), *PAIRS[1:], ("GUI:More", "More")]
    worlds.write(root, {"t.csf": worlds.table(PAIRS), "theirs.csf": worlds.table(theirs), "old.csf": worlds.table(PAIRS[:1])})


def targets(root):
    archives(root)
    worlds.write(root, {"out/Data/Two.txt": b"an older two", "out/Art/Long.tga": b"an older picture"})


def installable(root):
    worlds.game(root)
    worlds.zip_file(root / "pack.zip", {"Isle2/Isle2.map": b"CkMp" + worlds.LONG, "Isle2/Isle2.tga": b"p" * 3000,
                                        "Mod2.big": worlds.archive(), "Mod.big": worlds.archive(worlds.ENTRIES[:2]),
                                        "Game.rep": b"GENREP" + bytes(300)})
    worlds.write(root, {"Alone.big": worlds.archive(worlds.ENTRIES[1:])})


def shell_maps(root):
    worlds.game(root, [("GenShellMapMode", "Load002")], {"games/Generals/Maps/ShellMap1/mine.map": b"mine",
                                                         "games/Generals/Maps/ShellMap1/shellmap1.map": b"older"})


def ini(root):
    worlds.plain(root)
    worlds.write(root, {"map.ini": b"[A]\r\nOne=1\r\n[B]\r\nTwo=2\r\n"})


def without_times(path, content):
    """The journal of installs without the time of each."""
    if path.endswith(("installed.json", "files.jsonl")):
        return re.sub(rb'"time": ?"[^"]*"', b'"time":""', content)
    return content


def rescues(root):
    worlds.plain(root)
    worlds.write(root, {"new.bin": worlds.LONG})


def without_time(path, content):
    """What a rescue keeps: behind its hash, its path and its time."""
    return content[-9:] if path.endswith("/rescue") else content


GAME = ["--game", "gen"]
MAP = ["--map", "Isle"]

ROWS = [
    Row("big save over itself", ["big", "save", "a.big", "a.big", "--add", "Data\\New.ini=new.ini", "--delete", "Data\\Two.txt"],
        archives, again=["big", "save", "a.big", "a.big"], follows=False),
    Row("big save to a new path", ["big", "save", "a.big", "b.big", "--add", "Art\\Long.tga=long.bin"], archives),
    Row("big save over another", ["big", "save", "a.big", "old.big"], archives),
    Row("big save exact", ["big", "save", "--exact", "a.big", "a.big", "--add", "Long.bin=long.bin"], archives),
    Row("big create", ["big", "create", "c.big", "--version", "1", "files"], folder),
    Row("big extract", ["big", "extract", "a.big", "out"], targets, several=True),
    Row("big rename", ["big", "rename", "a.big", "Data\\Two.txt", "Second.txt"], archives,
        again=["big", "save", "a.big", "a.big"], follows=False),
    Row("big delete", ["big", "delete", "a.big", "Data\\Two.txt"], archives, again=["big", "save", "a.big", "a.big"],
        follows=False),
    Row("big repair", ["big", "repair", "shifted.big", "shifted.big", "--shifted"], archives,
        before=[["big", "save", "a.big", "shifted.big", "--add", "Nnnn.x=new.ini"]],
        again=["big", "save", "shifted.big", "shifted.big"], follows=False),
    Row("csf save over itself", ["csf", "save", "t.csf", "t.csf", "--set", "GUI:Ok=Well", "--delete", "GUI:No"], tables,
        again=["csf", "save", "t.csf", "t.csf", "--set", "GUI:Ok=Well"], follows=False),
    Row("csf save to a new path", ["csf", "save", "t.csf", "n.csf", "--set", "GUI:New=New"], tables),
    Row("csf import", ["csf", "import", "t.json", "old.csf"], tables, before=[["csf", "export", "t.csf", "t.json"]]),
    Row("csf export", ["csf", "export", "t.csf", "t.json"], tables),
    Row("csf merge", ["csf", "merge", "t.csf", "t.csf", "theirs.csf", "old.csf"], tables),
    Row("zip create", ["zip", "create", "z.zip", "--storage", "1", "--recurse", "--overwrite", "files/*.*"], folder),
    Row("install an archive", ["install", "pack.zip", *GAME, "--all", "--yes"], installable, several=True,
        follows=False, same=without_times),
    Row("install a mod", ["install", "Alone.big", *GAME, "--yes"], installable, several=True, follows=False,
        same=without_times),
    Row("installed uninstall", ["installed", "uninstall", "1", "--yes"], installable,
        before=[["install", "pack.zip", *GAME, "--all", "--yes"]], again=["install", "Alone.big", *GAME, "--yes"], several=True, follows=False,
        same=without_times),
    Row("export to a ZIP", ["export", *GAME, *MAP, "--mod", "Mod.big", "--shellmap", "2", "--zip", "e.zip"], worlds.game),
    Row("export to a folder", ["export", *GAME, *MAP, "--mod", "Mod.big", "--shellmap", "2", "--folder", "taken"],
        worlds.game, several=True),
    Row("shellmaps activate", ["shellmaps", "activate", "gen"], shell_maps, several=True),
    Row("shellmaps delete", ["shellmaps", "delete", "gen", "1", "--yes"], shell_maps, several=True,
        again=["shellmaps", "delete", "gen", "1", "--yes"], follows=False, keeps=told.nothing_lost),
    Row("setting set", ["setting", "set", "BigView", "2"]),
    Row("ini set", ["ini", "set", "B", "Three", "3", "map.ini"], ini),
    Row("a first rescue", ["keep", "first"], program="rescue_keeper", again=["tell"], follows=False, same=without_time),
    Row("a rescue in place of another", ["keep", "second", "new.bin"], rescues, program="rescue_keeper",
        before=[["keep", "first"]], again=["tell"], several=True, follows=False, same=without_time),
    Row("ini set in a new file", ["ini", "set", "B", "Three", "3", "new.ini"], ini),
]
