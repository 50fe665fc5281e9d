"""The project's files: the tracked and new ones, and which of them have changed."""

import pathlib
import subprocess

EMPTY_TREE = "4b825dc642cb6eb9a060e54bf8d69288fbee4904"


class Tree:
    """The working tree at `root`. Paths are text, relative to it, with slashes."""

    def __init__(self, root):
        self.root = pathlib.Path(root)
        self._texts = {}

    def git(self, *arguments):
        return subprocess.run(["git", "-C", str(self.root), *arguments], check=True, capture_output=True, text=True).stdout

    def files(self, *suffixes, under=""):
        """All files that are tracked, or new and not ignored, with one of the suffixes (any, when none is given)."""
        listed = self.git("ls-files", "-z", "--cached", "--others", "--exclude-standard", "--", under or ".").split("\0")
        return sorted({f for f in listed if f and f.endswith(suffixes or "") and (self.root / f).is_file()})

    def text(self, path):
        """The file's text; bytes that are not UTF-8 (a binary fixture) become question marks."""
        if path not in self._texts:
            self._texts[path] = (self.root / path).read_text(encoding="utf-8", errors="replace")
        return self._texts[path]

    def numbered_lines(self, path):
        return enumerate(self.text(path).splitlines(), 1)

    def base(self):
        """The commit that changes are counted from: where this branch left origin's main; on main itself, where
        main was a day ago; the empty tree when there is nothing older."""
        def found(*arguments):
            answer = subprocess.run(["git", "-C", str(self.root), *arguments], capture_output=True, text=True)
            return answer.stdout.strip() if answer.returncode == 0 else ""

        head = found("rev-parse", "HEAD")
        for main in ("origin/main", "main"):
            fork = found("merge-base", "HEAD", main)
            if fork and fork != head:
                return fork
        return found("rev-list", "-1", "--before=24 hours ago", "HEAD") or EMPTY_TREE

    def changed(self, *suffixes):
        """The files that differ from base(), including new ones."""
        differing = self.git("diff", "--name-only", "-z", "--diff-filter=d", self.base()).split("\0")
        fresh = self.git("ls-files", "-z", "--others", "--exclude-standard").split("\0")
        lately = set(differing) | set(fresh)
        return [f for f in self.files(*suffixes) if f in lately]
