"""Writes the archive of the tutorials: archive.py ARCHIVE PLAYER LESSONS_FOLDER

In the archive each lesson has a program of its name, a script that starts the player on it:

    Finding Cards.exe                     and so on
    player/tutorial_player
    lessons/Finding Cards/lesson.json     and its pictures

It is a RAR archive of version 4, stored without compression: pictures and player hardly shrink, and it is quickly
unpacked. The same files give the same bytes."""

import pathlib
import struct
import sys
import zlib

SIGNATURE = b"Rar!\x1a\x07\x00"
ARCHIVE_BLOCK, FILE_BLOCK, END_BLOCK = 0x73, 0x74, 0x7B
HAS_DATA = 0x8000
END_FLAGS = 0x4000
UNIX, STORED, VERSION = 3, 0x30, 20
PROGRAM, DOCUMENT = 0o100755, 0o100644
DATE = (2026 - 1980) << 25 | 1 << 21 | 1 << 16  # the same for all files

LAUNCHER = """#!/bin/sh
here=$(dirname -- "$0")
exec "$here/player/tutorial_player" "$here/lessons/{name}" "$@"
"""


def block(kind, flags, fields, data=b""):
    """A header with its checksum, then the data."""
    header = struct.pack("<BHH", kind, flags, 7 + len(fields)) + fields
    return struct.pack("<H", zlib.crc32(header) & 0xFFFF) + header + data


def entry(name, data, mode):
    name = name.encode("ascii")
    fields = struct.pack("<IIBIIBBHI", len(data), len(data), UNIX, zlib.crc32(data), DATE, VERSION, STORED, len(name), mode)
    return block(FILE_BLOCK, HAS_DATA, fields + name, data)


def archive(files):
    """The bytes of an archive of files, each a name, its bytes and its mode."""
    return b"".join([SIGNATURE, block(ARCHIVE_BLOCK, 0, bytes(6)), *(entry(*file) for file in files),
                     block(END_BLOCK, END_FLAGS, b"")])


def tutorials(player, lessons):
    """The files of the archive: the programs, the player and the lessons."""
    folders = sorted(script.parent for script in lessons.glob("*/lesson.json"))
    for folder in folders:
        yield f"{folder.name}.exe", LAUNCHER.format(name=folder.name).encode("ascii"), PROGRAM
    yield "player/tutorial_player", player.read_bytes(), PROGRAM
    for folder in folders:
        for file in (folder / "lesson.json", *sorted(folder.glob("*.png"))):
            yield f"lessons/{folder.name}/{file.name}", file.read_bytes(), DOCUMENT


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    target, player, lessons = map(pathlib.Path, sys.argv[1:])
    target.parent.mkdir(parents=True, exist_ok=True)
    unfinished = target.with_suffix(".new")
    unfinished.write_bytes(archive(tutorials(player, lessons)))
    unfinished.replace(target)
