"""Reads and writes the program's settings file: sections, keys and values in 8-bit text."""

import configparser
import pathlib

NAME = "tallymoor.ini"
ENCODING = "cp1252"


class Settings:
    """The settings file of the program in `folder`. Every call reads the file, which need not exist."""

    def __init__(self, folder):
        self.path = pathlib.Path(folder) / NAME

    def _read(self):
        parser = configparser.RawConfigParser(delimiters=("=",), comment_prefixes=(";",), strict=False)
        if self.path.is_file():
            data = self.path.read_bytes()
            try:
                parser.read_string(data.decode("utf-8"))
            except UnicodeDecodeError:
                parser.read_string(data.decode(ENCODING, errors="replace"))
        return parser

    def get(self, section, key, default=""):
        return self._read().get(section, key, fallback=default)

    def set(self, section, key, value):
        """Sets one key and keeps every other line as it is."""
        lines = self.path.read_bytes().decode("latin-1").splitlines() if self.path.is_file() else []
        bytewise = value.encode(ENCODING if _fits(value) else "utf-8").decode("latin-1")
        heading = f"[{section}]".lower()
        start = next((i for i, line in enumerate(lines) if line.strip().lower() == heading), None)
        if start is None:
            lines += [f"[{section}]", f"{key}={bytewise}"]
        else:
            end = next((i for i in range(start + 1, len(lines)) if lines[i].startswith("[")), len(lines))
            lines[start + 1:end] = [line for line in lines[start + 1:end]
                                    if line.split("=")[0].strip().lower() != key.lower()]
            lines.insert(start + 1, f"{key}={bytewise}")
        self.path.write_bytes("".join(line + "\r\n" for line in lines).encode("latin-1"))


def _fits(text):
    try:
        text.encode(ENCODING)
        return True
    except UnicodeEncodeError:
        return False
