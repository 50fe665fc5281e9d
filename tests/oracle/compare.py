#!/usr/bin/env python3
"""Compares the program's answers with the second implementation's: compare.py PROGRAM SEED COUNT.

PROGRAM is build/dev/bin/oracle_answers. Before that, each planted mistake makes the second reading wrong in one rule:
a comparison that doesn't notice it is worth nothing, and fails. The first differing case is printed whole.
"""
import json
import random
import subprocess
import sys
import types
from pathlib import Path

sys.dont_write_bytecode = True
import cases

READING = Path(__file__).with_name("oracle.py")
TOLERANCE = 1e-6  # pixels
CASES_FOR_MISTAKES = 150

# A line of the second implementation, and an easy mistake to plant in its place.
MISTAKES = {
    "equal keys from the lowest number up": ("range(self.n, 0, -1), key", "range(1, self.n + 1), key"),
    "'orand' read from left to right": ("a or (b and c)", "(a or b) and c"),
    "a twelfth group": ("LAST_COLUMN = 48, 132, 11", "LAST_COLUMN = 48, 132, 12"),
    "Venn places cut instead of rounded": ("round(round(x) - w / 2)", "math.floor(round(x) - w / 2)"),
    "circles that barely meet left where they are": ("lens = max(2 * d - field, min(room, d / 2))", "lens = 2 * d - field"),
    "cards of one set let into the other circle": ("max(math.pi - ARC, angle)", "math.pi - ARC"),
    "tall columns not squeezed": ("if base - tallest * step < self.top0", "if False"),
}


def reading(source):
    module = types.ModuleType("reading")
    exec(compile(source, READING, "exec"), module.__dict__)
    return module.Case


def with_mistake(source, right, wrong):
    if source.count(right) != 1:
        raise SystemExit(f"the mistake for {right!r} has no place any more")
    return source.replace(right, wrong)


def differs(one, other):
    if isinstance(one, dict) and isinstance(other, dict):
        return one.keys() != other.keys() or any(differs(one[key], other[key]) for key in one)
    if isinstance(one, list) and isinstance(other, list):
        return len(one) != len(other) or any(map(differs, one, other))
    if isinstance(one, str) or isinstance(other, str):
        return one != other
    return not abs(one - other) <= TOLERANCE


def difference(case, program, second):
    """A readable report of the differences; None when both agree."""
    for key in second:
        if differs(program.get(key), second[key]):
            return f"{key}\n  case    {json.dumps(case)}\n  program {program.get(key)}\n  second  {second[key]}"
    return None


def first_difference(made, programs, case_class):
    for case, program in zip(made, programs):
        found = difference(case, program, case_class(case).answer())
        if found:
            return found
    return None


def answers_of(program, made):
    """The program's answer to each case."""
    text = "".join(json.dumps(case) + "\n" for case in made)
    run = subprocess.run([program], input=text, capture_output=True, text=True)
    answers = [json.loads(line) for line in run.stdout.splitlines()]
    if run.returncode != 0 or len(answers) != len(made):
        raise SystemExit(f"{program} ended with {run.returncode} after {len(answers)} of {len(made)} cases\n{run.stderr}")
    return answers


def main(program, seed, count):
    generator = random.Random(seed)
    made = [cases.make_case(generator) for _ in range(count)]
    answers = answers_of(program, made)
    source = READING.read_text(encoding="utf-8")
    missed = []
    for name, change in MISTAKES.items():
        if not first_difference(made[:CASES_FOR_MISTAKES], answers, reading(with_mistake(source, *change))):
            missed.append(name)
    if missed:
        raise SystemExit("planted and not found: " + ", ".join(missed))
    found = first_difference(made, answers, reading(source))
    if found:
        raise SystemExit("the two readings differ in " + found)
    print(f"{count} cases agree; each of {len(MISTAKES)} planted mistakes was found")


if __name__ == "__main__":
    main(sys.argv[1], int(sys.argv[2]), int(sys.argv[3]))
