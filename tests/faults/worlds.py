# SPDX-FileCopyrightText: 2026 The Brindock authors
# SPDX-License-Identifier: GPL-3.0-or-later

"""The bytes that small worlds are made of: archives, tables, ZIPs, a program's folder and a game."""

import pathlib
import struct
import zipfile

LANGUAGE = pathlib.Path(__file__).resolve().parents[2] / "data/languages/English.lng"
LONG = bytes(range(256)) * 400  # long enough to be copied inside the system
GENERALS = "SOFTWARE\\Electronic Arts\\EA Games\\Generals"
SHELL_FOLDERS = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders"
SETTINGS = "Software\\Halvern\\Brindock\\2005"

ENTRIES = [("Data\\INI\\One.ini", b"[One]\r\nA=1\r\n"), ("Art\\Long.tga", LONG), ("Data\\Two.txt", b"two"),
           ("Maps\\Three.map", b"CkMp" + bytes(500))]


def archive(entries=ENTRIES):
    """An archive of the first game."""
    offset = 16 + sum(9 + len(name) for name, _ in entries) + 8
    directory, data = b"", b""
    for name, content in entries:
        offset = (offset + 3) // 4 * 4
        directory += struct.pack(">II", offset, len(content)) + name.encode("cp1252") + b"\0"
        data += bytes(offset - len(data) - 16 - sum(9 + len(each) for each, _ in entries)) + content
        offset += len(content)
    return b"BIGF" + struct.pack("<I", 16 + len(directory) + len(data)) + struct.pack(
        ">II", len(entries), 16 + len(directory) + 8) + directory + data


def table(pairs, language=0):
    """A string table."""
    records = b""
    for name, value in pairs:
        records += b" LBL" + struct.pack("<II", 1, len(name)) + name.encode("cp1252")
        records += b" RTS" + struct.pack("<I", len(value))
        records += b"".join(bytes([255 - letter, 255]) for letter in value.encode("cp1252"))
    return b" FSC" + struct.pack("<IIIII", 3, len(pairs), len(pairs), 0, language) + records


def registry(root, settings=()):
    """The text of the suite's own registry file for a world that lies at a native path."""
    def escaped(text):
        return text.replace("\\", "\\\\")
    inside = str(root).replace("/", "\\")
    lines = ["REGEDIT4", "", f"[HKEY_LOCAL_MACHINE\\{GENERALS}]",
             f'"InstallPath"="{escaped(inside)}\\\\games\\\\Generals\\\\"', "", f"[HKEY_CURRENT_USER\\{SHELL_FOLDERS}]",
             f'"Personal"="{escaped(inside)}\\\\user\\\\Documents"',
             f'"AppData"="{escaped(inside)}\\\\user\\\\AppData"', "", f"[HKEY_CURRENT_USER\\{SETTINGS}]",
             '"TradFileName"="English.lng"']
    lines += [f'"{name}"="{value}"' for name, value in settings]
    return "\r\n".join(lines + [""]).encode("cp1252")


def write(root, files):
    """Writes files below a folder: relative paths and their bytes."""
    for name, content in files.items():
        path = root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)


def plain(root):
    """What every command finds: a program's folder, a registry, nobody's home."""
    write(root, {"registry.reg": registry(root), "program/English.lng": LANGUAGE.read_bytes()})
    (root / "home").mkdir()


def game(root, settings=(), files=None):
    """A world with one game and what players have in it."""
    plain(root)
    maps = "user/Documents/Command and Conquer Generals Data/Maps/"
    write(root, {"registry.reg": registry(root, settings),
                 "games/Generals/Mod.big": archive(), "games/Generals/Mod.ini": b"[Mod]\r\nName=A mod\r\n",
                 maps + "Isle/Isle.map": b"CkMp" + LONG, maps + "Isle/Isle.tga": b"picture",
                 **{f"games/Generals/Maps/QvShellMap{number:03}/{name}": f"[Infos]\r\nName={number}\r\n".encode()
                    for number in (1, 2, 3) for name in ("shellmap1.map", "shellmap1.tga", "QvInfos.ini")},
                 **(files or {})})
    (root / "user/Documents").mkdir(parents=True, exist_ok=True)


def zip_file(path, entries):
    """A ZIP as players send them."""
    path.parent.mkdir(parents=True, exist_ok=True)
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as archived:
        for name, content in entries.items():
            archived.writestr(zipfile.ZipInfo(name, (2005, 3, 1, 12, 0, 0)), content)
