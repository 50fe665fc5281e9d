#!/usr/bin/env python3
"""Prints random cases for the second implementation, one line of JSON each: cases.py SEED COUNT.

The same seed gives the same cases. Values come from short lists that hold the traps, so that ties, shared columns
and answers of every kind are common.
"""
import json
import random
import sys

TEXTS = ["", " ", "cat", "Cat", "CAT", "caterpillar", "tomcat", "cat ", " cat", "dog", "Dog", "Zebra", "zebra",
         "äpfel", "Äpfel", "apfel", "über", "Über", "straße", "STRASSE", "Straße", "ß", "ÿ", "Ÿ", "é", "É",
         "10", "9", "1", "1.0", "_", "[", "\U0001F431", "\uFB01sh", "\uFF21"]
NUMBERS = ["", "0", "9", "10", "010", "12", " 12 cats", "\t12", "12cm", "cats", "cat 5", "1e2", "1E2", "100", "1E",
           "1e+", "1E-2", "0.01", "-3", "- 3", "+4", "4", "--4", "1.2.3", "1.2", ".5", "0.5", "5.", "5", ".", "-.5",
           "1E400", "-1E400", "1.7976931348623157E308", "1 000", "1,5", "-0", "\u0663"]
TEXT_WORDS = ["is", "is not", "includes", "starts with", "ends with", "comes before", "comes after"]
NUMBER_WORDS = ["=", ">", "<", ">=", "<=", "<>"]
BOARDS = [[640, 400], [641, 403], [800, 541], [1024, 600], [1280, 727], [1366, 768], [1920, 1055]]
SPEEDS = [0.1, 0.15, 0.2, 0.25, 0.3, 0.5, 1.0, 5.0, 10.0]
SIZES = [0, 1, 2, 3, 7, 12, 13, 25, 30, 40, 99]
JOINED = ["", "and", "or"]


def value(rng, field_type):
    """Mostly of the field's own kind; sometimes one of many, so that there are more groups than columns."""
    chance = rng.random()
    if chance < 0.05:
        return rng.choice(NUMBERS if field_type == "Abc" else TEXTS)
    if chance < 0.15:
        return str(rng.randint(1, 30))
    return rng.choice(TEXTS if field_type == "Abc" else NUMBERS)


def row(rng, types, cards):
    field = rng.randint(1, len(types))
    words = TEXT_WORDS if types[field - 1] == "Abc" else NUMBER_WORDS
    if rng.random() < 0.08:
        words = TEXT_WORDS + NUMBER_WORDS + ["", "IS", "like"]
    column = [card[field - 1] for card in cards]
    sought = rng.choice(column) if column and rng.random() < 0.6 else value(rng, types[field - 1])
    return {"field": field, "word": rng.choice(words), "value": sought[:rng.choice([1, 2, 20, 20])]}


def place(rng, board, card_size, speed):
    """Anywhere on the board or dragged beyond it, in fractions too, or about where the plain find ends."""
    target = rng.choice([board[1] * 0.25, board[1] - 16 - card_size[1]])
    top = rng.choice([rng.randint(-40, board[1]), rng.randint(40, board[1]) + rng.choice([0.5, 0.25]),
                      40 + rng.randint(0, 9) * board[1] / 7, target + rng.choice([-1, 0, 1]) * speed,
                      target + rng.choice([-1.5, -1.01, 1.01, 1.5]) * speed])
    return [rng.choice([rng.randint(-40, board[0]), 15 + rng.randint(0, 9) * board[0] / 7]), top]


def make_case(rng):
    board, card_size = rng.choice(BOARDS), rng.choice([[80, 60], [159, 120], [53, 41], [81, 61]])
    speed = rng.choice(SPEEDS)
    types = [rng.choice(["Abc", "Abc", "123", "123", "abc"]) for _ in range(rng.randint(1, 12))]
    kinds = rng.choice([1, 3, 99])  # the fewer different cards, the taller the columns
    pool = [[value(rng, field_type) for field_type in types] for _ in range(kinds)]
    cards = [list(rng.choice(pool)) for _ in range(rng.choice(SIZES))]
    return {"board": board, "box0": [15, 40, *card_size], "cardSize": card_size, "labelHeight": 16,
            "caseSensitive": rng.random() < 0.5, "speed": speed, "types": types, "cards": cards,
            "start": [place(rng, board, card_size, speed) for _ in cards],
            "rows": [row(rng, types, cards) for _ in range(3)],
            "andOr": [rng.choice(JOINED) or " " for _ in range(2)],
            "sort": {"field": rng.randint(1, len(types)), "direction": rng.choice(["ABC", "CBA"])},
            "group": rng.randint(1, len(types)),
            "arrange": rng.choice(["Top", "Bottom", "Left", "Right", "Tiled", "", "top"])}


if __name__ == "__main__":
    seed, count = map(int, sys.argv[1:])
    generator = random.Random(seed)
    for _ in range(count):
        print(json.dumps(make_case(generator)))
