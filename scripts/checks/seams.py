"""Nobody passes the seams by: what reaches outside the program goes through `desktop`, set once at start-up and by
tests. A row names what must not be called, what to call instead, and who alone may."""

import re

DESKTOP = r"src/platform/realDesktop\.(cpp|h)"
PLATFORM = r"src/platform/\w+\.(cpp|h)"
ENDS = r"src/(main|core/(startUp|shutDown))\.cpp"

RULES = [
    (r"QMessageBox\b", "desktop.showMessage or desktop.ask", DESKTOP),
    (r"QFileDialog\b", "desktop.chooseFolder or desktop.chooseFile", DESKTOP),
    (r"QInputDialog\b", "a form of our own", DESKTOP),
    (r"Q(Gui)?Application::beep\b", "desktop.beep", DESKTOP),
    (r"\bprocessEvents\b", "desktop.yield", DESKTOP),
    (r"Q(Core|Gui)?Application::(exec|quit|exit)\b", "shutDown", ENDS),
    (r"QRandomGenerator\b|\bs?rand\(\)|std::mt19937", "desktop.random", DESKTOP),
    (r"QDate(Time)?::current\w+", "desktop.today", DESKTOP),
    (r"QDesktopServices\b", "desktop.openDocument", DESKTOP),
    (r"QProcess\b", "desktop.startProgram", DESKTOP),
    (r"QThread::\w*sleep|std::this_thread::sleep", "desktop.yield", PLATFORM),  # waiting for a file or a device, never for a pupil
]


def faults(tree):
    for path in tree.files(".h", ".cpp", under="src"):
        for number, line in tree.numbered_lines(path):
            code = line.split("//")[0]
            for pattern, instead, allowed in RULES:
                if re.search(pattern, code) and not re.fullmatch(allowed, path):
                    yield f"{path}:{number}: passes the seam by: call {instead} ({code.strip()})"
