#!/usr/bin/env python3
"""A second implementation of the rules of find, sort, group and arrange, written independently of the program.

Reads one case per line (JSON, see README.md) and answers one line of JSON each: what every card tool shows at its
end when it begins from the case's start and nobody stops it.
"""
import json
import math
import re
import sys
from operator import eq, ge, gt, le, lt, ne

LEADING_NUMBER = re.compile(r"[ \t]*([+-]?(?:[0-9]+\.?[0-9]*|\.[0-9]+)(?:[Ee][+-]?[0-9]+)?)")
LARGEST = sys.float_info.max
VENN_TOP, LEFT_CIRCLE, LAST_COLUMN = 48, 132, 11
GAP, ARC = 2, 3.455752015113831  # pixels beside a circle; 198 degrees


def number(text):
    """The number that a text begins with, 0 when there is none.
    >>> [number(t) for t in (" \\t12 cats", "1e2", "-3", "+4", "1.2.3", ".5", "5.", "1E", "- 3", ".", "1E400")]
    [12.0, 100.0, -3.0, 4.0, 1.2, 0.5, 5.0, 1.0, 0.0, 0.0, 1.7976931348623157e+308]
    """
    found = LEADING_NUMBER.match(text)
    return max(-LARGEST, min(LARGEST, float(found[1]))) if found else 0.0


def capitals(text):
    """Each character's capital, where that is one character too."""
    return "".join(c.upper() if len(c.upper()) == 1 else c for c in text)


def codes(text):
    """Orders texts as their UTF-16 code units do."""
    return text.encode("utf-16-be", "surrogatepass")


TEXT_WORDS = {
    "is": eq, "is not": ne, "includes": lambda c, v: v in c, "starts with": str.startswith, "ends with": str.endswith,
    "comes before": lambda c, v: codes(c) < codes(v), "comes after": lambda c, v: codes(c) > codes(v)}
NUMBER_WORDS = {"=": eq, "<>": ne, ">": gt, "<": lt, ">=": ge, "<=": le}
FIND_RULES = {
    "  ": lambda a, b, c: a, "and ": lambda a, b, c: a and b, "or ": lambda a, b, c: a or b,
    "andand": lambda a, b, c: a and b and c, "oror": lambda a, b, c: a or b or c,
    "andor": lambda a, b, c: (a and b) or c, "orand": lambda a, b, c: a or (b and c)}


class Case:
    def __init__(self, case):
        self.__dict__.update(case)
        self.width, self.height = self.board
        self.left0, self.top0, self.width0, self.height0 = self.box0
        self.w, self.h = self.cardSize
        self.n = len(self.cards)
        self.adjust = str if self.caseSensitive else capitals
        self.conditions = [[self.holds(row, card) for row in self.rows] for card in self.cards]

    def holds(self, row, card):
        text = self.types[row["field"] - 1] == "Abc"
        words, read = (TEXT_WORDS, self.adjust) if text else (NUMBER_WORDS, number)
        test = words.get(row["word"], lambda c, v: False)
        return int(test(read(card[row["field"] - 1]), read(row["value"])))

    def found(self):
        """Whether each card matches; None when the joined words are no rule: then no card moves."""
        rule = FIND_RULES.get("".join(self.andOr))
        return rule and [int(rule(*tests)) for tests in self.conditions]

    def found_places(self):
        places = [list(place) for place in self.start]
        for place, found in zip(places, self.found() or []):
            target = self.height * 0.25 if found else self.height - 16 - self.h
            step = -0.5 if place[1] > target else 0.5
            while abs(target - place[1]) > self.speed:
                place[1] += self.speed * step
            if found:  # the others stay where their flight ended, within one speed of the target
                place[1] = target
        return places

    def circles(self):
        """Diameter, left edges and common top. They lie between 132 pixels from the left and 43 from the right."""
        room, field = 1.5 * self.w, self.width - 43 - LEFT_CIRCLE
        d = min(self.height - 145, field - room)
        lens = max(2 * d - field, min(room, d / 2))
        left = LEFT_CIRCLE + (field - 2 * d + lens) / 2
        return d, left, left + d - lens, VENN_TOP + 73

    def first_angle(self, r, arc, apart):
        """Where a card on the arc leaves the other circle: by its corner, or by its side when it is level with the
        centre."""
        side, corner = apart - self.w / 2 - GAP, self.h / 2 + GAP
        turn = (r * r - side * side - corner * corner - arc * arc) / (2 * arc * math.hypot(side, corner))
        angle = math.atan2(corner, side) + math.asin(max(-1, min(1, turn)))
        if arc * math.cos(angle) < corner:
            angle = math.asin(max(-1, min(1, (r - side) / arc)))
        return max(math.pi - ARC, angle)

    def venn(self):
        w, h, (d, left, left2, top) = self.w, self.h, self.circles()
        r, apart, regions = d / 2, left2 - left, [(1, 1), (1, 0), (0, 1), (0, 0)]
        arc = max(r - 0.75 * w, r - apart + w / 2 + GAP)
        first = self.first_angle(r, arc, apart)
        reach = max(0, math.sqrt(max(0, r * r - ((apart + w) / 2 + GAP) ** 2)) - GAP - h / 2)
        lies_in = [regions.index(tuple(tests[:2])) for tests in self.conditions]
        places = []
        for i, region in enumerate(lies_in):
            part = lies_in[:i].count(region) / lies_in.count(region)
            a = part * (math.pi - first) if first <= 0 else math.pi / 2 + (2 * part - 1) * (math.pi / 2 - first)
            column = top + h / 2 + 0.4 * r + part * min(1.2 * r - h / 2, 0.6 * r - h / 2 + reach)
            if reach < 0.6 * r - h / 2:
                column = top + r + (2 * part - 1) * reach
            x, y = [((left + r + left2 + r) / 2, column),
                    ((left + r) - arc * math.sin(a), (top + r) + arc * math.cos(a)),
                    ((left2 + r) + arc * math.sin(a), (top + r) + arc * math.cos(a)),
                    (w, top + part * 2 * r)][region]
            places.append([round(round(x) - w / 2), round(round(y) - h / 2)])
        return {"counts": [lies_in.count(region) for region in range(4)], "places": places}

    def sort_order(self):
        """Card numbers in the order of placing; equal keys from the highest number down."""
        at, direction = self.sort["field"] - 1, self.sort["direction"]
        text = self.types[at] == "Abc"
        keys = [codes(self.adjust(card[at])) if text else number(card[at]) for card in self.cards]
        down = direction == "CBA" if text else direction != "ABC"
        return sorted(range(self.n, 0, -1), key=lambda i: keys[i - 1], reverse=down)

    def sort_places(self):
        places = [None] * self.n
        for k, i in enumerate(self.sort_order()):
            x_step = min(math.floor((self.width - self.left0 - self.w) / self.n), self.w / 2)
            y_step = min(math.floor((self.height - self.top0 - self.h) / self.n), self.h / 2)
            places[i - 1] = [self.left0 + x_step * k, self.top0 + y_step * k]
        return places

    def groups(self):
        values = [card[self.group - 1] for card in self.cards]
        keys = [self.adjust(value) for value in values]
        tallies = [[values[i], keys.count(key)] for i, key in enumerate(keys) if key not in keys[:i]]
        return sorted(tallies, key=lambda tally: -tally[1])[:LAST_COLUMN]

    def group_places(self):
        labels = [self.adjust(value) for value, _ in self.groups()]
        width, base, step = self.width // (len(labels) + 1), self.height - self.labelHeight, self.h - 1
        keys = [self.adjust(card[self.group - 1]) for card in self.cards]
        columns = [labels.index(key) if key in labels else len(labels) for key in keys]  # the last one is "Other"
        tallest = max(map(columns.count, columns), default=0)
        if base - tallest * step < self.top0:
            step = math.floor(base - self.top0) / (tallest + 1)
        return [[g * width + width / 2 - self.w / 2, base - step * columns[:i].count(g) - self.h]
                for i, g in enumerate(columns)]

    def arrange_places(self):
        n, across, down = self.n, self.width - self.width0, self.height - self.height0 - 36
        cols = math.floor(math.sqrt(n) + 0.5)
        pitch_x, pitch_y = min(self.width / (cols + 1), self.w + 10), min(self.height / (cols + 2), self.h + 10)
        layouts = {
            "Top": lambda i: [self.left0 + i * across / n, self.top0],
            "Bottom": lambda i: [self.left0 + i * across / n, self.height - 36 - self.height0],
            "Left": lambda i: [self.left0, self.top0 + i * down / n],
            "Right": lambda i: [self.width - self.width0 - 8, self.top0 + i * down / n],
            "Tiled": lambda i: [pitch_x * (i % cols) + 15, pitch_y * (i // cols) + 40]}
        return [layouts.get(self.arrange, self.start.__getitem__)(i) for i in range(n)]  # other words move no card

    def answer(self):
        return {"conditions": self.conditions, "found": self.found() or [0] * self.n,
                "foundPlaces": self.found_places(), "venn": self.venn(), "sortOrder": self.sort_order(),
                "sortPlaces": self.sort_places(), "groups": self.groups(), "groupPlaces": self.group_places(),
                "groupStack": list(range(self.n, 0, -1)), "arrangePlaces": self.arrange_places()}


if __name__ == "__main__":
    for line in sys.stdin:
        print(json.dumps(Case(json.loads(line)).answer()))
