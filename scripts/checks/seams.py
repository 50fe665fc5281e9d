"""Everything outside the program is reached through `desktop`, which is set once at start-up and by tests. A row says
what must not be called, what to call instead, and which files alone may call it."""

import re

DESKTOP = r"src/platform/realDesktop\.(cpp|h)"
PLATFORM = r"src/platform/\w+\.(cpp|h)"

RULES = [
    (r"QMessageBox\b", "desktop.boxes.showMessage or desktop.boxes.ask", DESKTOP),
    (r"QFileDialog\b", "desktop.files.chooseFolder or desktop.files.chooseFile", rf"{DESKTOP}|src/platform/(pictureChooser|readOnlyChooser)\.(cpp|h)"),
    (r"QColorDialog\b", "desktop.boxes.chooseColour", DESKTOP),
    (r"QInputDialog\b", "a form of our own", DESKTOP),
    (r"Q(Gui)?Application::beep\b", "desktop.sound.beep", DESKTOP),
    (r"\bprocessEvents\b", "desktop.yield", DESKTOP),
    (r"Q(Core|Gui)?Application::(exec|quit|exit)\b", "desktop.runProgram or shutDown", DESKTOP),
    (r"QRandomGenerator\b|\bs?rand\(\)|std::mt19937", "desktop.random", DESKTOP),
    (r"QDate(Time)?::current\w+", "desktop.now", DESKTOP),
    (r"QDesktopServices\b", "desktop.programs.openDocument", DESKTOP),
    (r"QProcess\b", "desktop.programs.start", DESKTOP),
    (r"std::(async|j?thread)\b|QThreadPool\b|QtConcurrent\b|QThread(::create)?\s*[(*]", "Errands::send", r"src/platform/errands\.(cpp|h)"),
    (r"QThread::\w*sleep|std::this_thread::sleep", "desktop.yield", PLATFORM),  # waiting for a file or a device, never for a pupil
]


def faults(tree):
    for path in tree.files(".h", ".cpp", under="src"):
        for number, line in tree.numbered_lines(path):
            code = line.split("//")[0]
            for pattern, instead, allowed in RULES:
                if re.search(pattern, code) and not re.fullmatch(allowed, path):
                    yield f"{path}:{number}: bypasses the seam: call {instead} ({code.strip()})"
