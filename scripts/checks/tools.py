"""The checks that use an external tool: the format, clang-tidy and cppcheck. Each is given the files to check and
yields the tool's complaints."""

import concurrent.futures
import os
import pathlib
import re
import subprocess

COMPLAINT = re.compile(r"^(.+?):(\d+):(?:\d+:)? (?:warning|error|performance|portability|style): (.*)")
COMPILED = "build/check"


def run(tree, *command):
    return subprocess.run(command, cwd=tree.root, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          stdin=subprocess.DEVNULL)


def complaints(tree, result):
    """The tool's complaints, each once, with paths from the root; its whole output when it failed without any."""
    lines = dict.fromkeys(m for m in map(COMPLAINT.match, result.stdout.splitlines()) if m)
    told = {f"{os.path.relpath(m[1], tree.root) if m[1].startswith('/') else m[1]}:{m[2]}: {m[3]}" for m in lines}
    yield from sorted(told)
    if result.returncode and not told:
        yield result.stdout.strip()[-3000:]


def sources(files):
    return [f for f in files if f.endswith((".cpp", ".h"))]


def badly_formatted(tree, files):
    if not sources(files):
        return
    result = run(tree, "clang-format", "--dry-run", "-Werror", *sources(files))
    for path in sorted({m[1] for m in map(COMPLAINT.match, result.stdout.splitlines()) if m}):
        yield f"{path}: not in the project's format: clang-format -i {path}"


def cppcheck(tree, files):
    if not sources(files):
        return
    cache = tree.root / COMPILED / "cppcheck"
    cache.mkdir(parents=True, exist_ok=True)
    yield from complaints(tree, run(
        tree, "cppcheck", "--quiet", "--std=c++20", "--language=c++", "--library=qt", "--library=googletest",
        "--enable=warning,performance,portability", "--inline-suppr", "--error-exitcode=1", "-Isrc",
        "--suppress=missingInclude", "--suppress=unknownMacro", "--suppress=ignoredReturnValue",
        f"--cppcheck-build-dir={cache}", f"-j{os.cpu_count()}",
        "--template={file}:{line}: {severity}: {message} [{id}]", *sources(files)))


def compile_commands(tree):
    """Configures a build without precompiled headers, which clang can't read. No source of ours includes a
    generated one, so nothing needs to be built."""
    folder = tree.root / COMPILED
    return run(tree, "cmake", "--preset", "dev", "-B", str(folder), "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON",
               "-DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON", "-DTALLYMOOR_BENCH=ON")


def clang_tidy(tree, files):
    """Looks at each source of the program, and at a header through the source of its name. The tests are left to the
    compiler, cppcheck and the sanitizers: with GoogleTest's headers each would cost as much as two sources."""
    units = sorted({str(pathlib.PurePath(f).with_suffix(".cpp")) for f in sources(files)})
    units = [u for u in units if (tree.root / u).is_file() and not u.startswith("tests/")]
    if not units:
        return
    prepared = compile_commands(tree)
    if prepared.returncode:
        yield "no compile commands: " + prepared.stdout.strip()[-3000:]
        return
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(lambda unit: run(tree, "clang-tidy", "--quiet", "-p", COMPILED, unit), units))
    yield from sorted({complaint for result in results for complaint in complaints(tree, result)})
