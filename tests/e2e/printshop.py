"""A private print server with a printer of A4 paper that keeps what it prints, and measures on its sheets."""

import os
import re
import subprocess

from desk import wait_until

DOTS = 150  # to the inch, of the pictures of sheets
MODEL = "/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd"

BACKEND = """#!/bin/sh
[ $# -eq 0 ] && {{ echo 'direct keep "Keep" "Keeps jobs"'; exit 0; }}
if [ -n "$6" ]; then cat "$6"; else cat; fi > {out}/.coming && mv {out}/.coming "{out}/$1 $3.pdf"
"""
FILES = """ServerRoot {home}/etc
ServerBin {home}/bin
RequestRoot {home}/spool
TempDir {home}/spool/tmp
CacheDir {home}/cache
StateDir {home}/state
AccessLog {home}/access.log
ErrorLog {home}/error.log
PageLog {home}/page.log
"""
RULES = """Listen {home}/sock
Browsing Off
WebInterface No
<Location />
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
  </Limit>
</Policy>
"""


class PrintShop:
    """Programs started on the desk from now on print here."""

    def __init__(self, desk, printers):
        self._desk, self._printers = desk, printers
        self.home, self._out = desk.folder / "cups", desk.folder / "cups" / "out"
        for folder in ("etc/ppd", "spool/tmp", "cache", "state/certs", "out", "bin/backend"):
            (self.home / folder).mkdir(parents=True)
        desk.folder.chmod(0o755)
        self._out.chmod(0o777)
        (self.home / "spool" / "tmp").chmod(0o1777)
        for folder in ("filter", "daemon", "monitor", "notifier"):
            os.symlink(f"/usr/lib/cups/{folder}", self.home / "bin" / folder)
        backend = self.home / "bin" / "backend" / "keep"
        backend.write_text(BACKEND.format(out=self._out))
        backend.chmod(0o755)
        (self.home / "etc" / "cups-files.conf").write_text(FILES.format(home=self.home))
        (self.home / "etc" / "cupsd.conf").write_text(RULES.format(home=self.home))
        desk.environment["CUPS_SERVER"] = str(self.home / "sock")
        self.open()

    def open(self):
        self._server = self._desk.start("cupsd", "-f", "-c", str(self.home / "etc" / "cupsd.conf"), "-s",
                                        str(self.home / "etc" / "cups-files.conf"))
        wait_until(lambda: "is running" in self._desk.run("lpstat", "-r", check=False), "the print server")
        for printer in self._printers:
            self.set_up(printer)
        self._desk.run("lpadmin", "-d", self._printers[0])

    def set_up(self, printer):
        self._desk.run("lpadmin", "-p", printer, "-E", "-v", "keep:/", "-P", MODEL, "-o", "PageSize=A4")

    def close(self):
        self._server.terminate()
        self._server.wait(10)

    def jobs(self):
        """Everything that was printed so far, in order."""
        return sorted(self._out.glob("*.pdf"), key=lambda file: int(file.name.split()[0]))

    def job_numbers(self):
        """Of every job that the server has ever taken."""
        said = self._desk.run("lpstat", "-W", "all", "-o")
        return re.findall(r"^(\S+-\d+)", said, re.MULTILINE)


class Sheet:
    """A PDF file of one page, held so that its text is upright. Measures are twips from the upper left corner."""

    def __init__(self, path, landscape):
        told = subprocess.run(("pdfinfo", str(path)), stdout=subprocess.PIPE, check=True, text=True).stdout
        self.pages = int(re.search(r"Pages: +(\d+)", told)[1])
        self.picture = path.with_suffix(".png")
        subprocess.run(("pdftoppm", "-r", str(DOTS), "-png", "-singlefile", str(path), str(path.with_suffix(""))), check=True)
        size = self._size()
        if landscape and size[0] < size[1]:  # it lies across on its paper
            subprocess.run(("convert", str(self.picture), "-rotate", "90", str(self.picture)), check=True)
            size = self._size()
        self.width, self.height = (side * 1440 / DOTS for side in size)
        self._row = size[0]
        self._grey = subprocess.run(("convert", str(self.picture), "-colorspace", "Gray", "-depth", "8", "gray:-"),
                                    stdout=subprocess.PIPE, check=True).stdout
        self.text = subprocess.run(("pdftotext", str(path), "-"), stdout=subprocess.PIPE, check=True, text=True).stdout

    def _size(self):
        return [int(n) for n in subprocess.run(("identify", "-format", "%w %h", str(self.picture)), stdout=subprocess.PIPE,
                                               check=True, text=True).stdout.split()]

    def leaves_room(self, margin):
        """Whether nothing is printed within that margin of the paper's edge."""
        rows, dots = len(self._grey) // self._row, round(margin * DOTS / 1440)
        return min(self._grey[:dots * self._row] + self._grey[(rows - dots) * self._row:]) > 200 and all(
            min(self._grey[x::self._row]) > 200 for x in (*range(dots), *range(self._row - dots, self._row)))

    def dark(self, x, y, reach=1):
        """Whether there is ink within `reach` dots of the place."""
        across, down = round(x * DOTS / 1440), round(y * DOTS / 1440)
        around = [self._grey[row * self._row + column] for row in range(down - reach, down + reach + 1)
                  for column in range(across - reach, across + reach + 1)]
        return min(around) < 140
