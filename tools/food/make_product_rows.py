#!/usr/bin/env python3
"""Writes the built-in product rows of the food table.

Reads rows/*.txt and recipes/*.txt (in file-name order) beside this script and
the food composition table, and writes food/product_rows.inc: one product a
line, eight texts (main category, subcategory, name, mass, kcal, protein, fat,
carbohydrate) in code page 1250.

rows/*.txt, one product a line, "#" starts a comment line:
    main | sub | name | source [| decimals [| extras]]
  source    sr28:CODE, cofid2015:CODE, recipe:NAME or given
  decimals  1 (default) or 2
  extras    alcohol=GRAMS (per 100 g of the product), or for a given row the
            five texts "mass;kcal;protein;fat;carbohydrate"

recipes/*.txt:
    [name]
    yield = 1000             # finished weight in grams
    sr28:11090 = 250         # grams of a food of the composition table
    recipe:dough = 100       # grams of another recipe
    water = 500
    salt = 5

Protein and fat are those of the source. Carbohydrate is the available one:
sr28 counts the fibre in, so it is taken off there; cofid2015 does not. Energy
is worked out from the written values (4, 9 and 4 kcal per gram, alcohol 7).

Usage:
    make_product_rows.py [--data FILE] [--output FILE]   write the rows, if sound
    make_product_rows.py --check                         look for faults only
    make_product_rows.py --list [START]                  print the rows with their
                                       sources (rows files whose name begins so)
"""

import argparse
import contextlib
import csv
import io
import os
import re
import sys
from decimal import Decimal, ROUND_HALF_UP

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
DATA_NAME = "food_composition.csv"
DATA_PLACES = [
    os.path.join(HERE, DATA_NAME),
    os.path.join(os.path.dirname(ROOT), "shared", "data", DATA_NAME),
]
OUTPUT = os.path.join(ROOT, "food", "product_rows.inc")

LONGEST_NAME = 45
FIRST_NAME = "frozen strawberries"
TWICE = {"tomato soup", "pea soup", "carrot juice"}  # these stand twice each

REQUIRED = {
    "alcohol": {"beer": 1, "vodka": 1, "wine": 1},
    "bread": {"mixed": 12, "rye": 11, "wheat": 13},
    "dairy products": {"cheese": 26, "cottage cheese": 20, "eggs": 3, "other": 3,
                       "processed cheese": 4},
    "dishes": {"other": 14, "salad": 24, "traditional/fish": 13, "traditional/meat": 56,
               "traditional/no meat": 32, "tradycyjne  mięsne": 1},
    "drinks": {"carbonated": 14, "compote": 2, "gazowane": 1, "juice": 36,
               "non-carbonated": 26, "syrup": 10},
    "fats": {"animal fats": 4, "plant fats": 34},
    "fish": {"fish preserves": 26, "fresh": 21, "frozen": 2, "other": 1, "seafood": 2,
             "smoked": 5},
    "fruits": {"dried": 10, "fresh": 29, "frozen": 3, "preserves": 17, "w puszce": 4},
    "grain preserves": {"breakfast": 11, "flour": 2, "groats": 11, "rice": 2},
    "meat": {"beef": 4, "game": 1, "horsemeat": 1, "mutton": 2, "other": 6, "pork": 11,
             "porky": 1, "preserves": 11, "veal": 3},
    "milk preserves": {"cream": 7, "drinks": 29, "milk": 12},
    "mushrooms": {"dried": 1, "fresh": 4},
    "noodles": {"pasta": 9},
    "other": {"honey": 5, "no category": 3, "sugar": 1},
    "poultry": {"chicken": 3, "duck": 2, "giblets": 2, "goose": 2, "hen": 3, "other": 1,
                "turkey": 5},
    "preserves zbożowe": {"breakfast": 15, "other": 2, "rice": 3},
    "pulse and nutts": {"nutts": 11, "other": 1, "pulse": 6},
    "sausages": {"chicken": 12, "offal": 9, "other": 3, "pork/beef": 27, "turkey": 5},
    "soup": {"frozen": 7, "inna": 1, "instant": 7, "other": 4, "pouder": 9, "traditional": 21},
    "spices": {"dry spices": 19, "sauce": 17, "wet spices": 1},
    "sweets&snacks": {"cake": 16, "candy": 5, "chocolate": 32, "chocolate bar": 19, "crisps": 6,
                      "dessert": 22, "gummi": 2, "ice cream": 8, "other": 4, "small cakes": 27},
    "tinned food": {"fish": 1, "offal": 1, "pork/beef": 7, "poultry": 1},
    "vegetable": {"dried": 5, "fresh": 49, "frozen": 9, "preserves": 13},
}
REQUIRED_TOTAL = sum(sum(subs.values()) for subs in REQUIRED.values())


class Fault(Exception):
    """A row or a recipe that cannot be worked out."""


class Row:
    def __init__(self, place, main, sub, name, source):
        self.place = place      # "file:line", for messages
        self.main = main
        self.sub = sub
        self.name = name
        self.source = source
        self.texts = None       # mass, kcal, protein, fat, carbohydrate
        self.source_kcal = None
        self.alcohol = Decimal(0)


class Foods:
    """The composition table and the recipes, both asked by their key."""

    def __init__(self, data_path):
        self.foods = {}
        self.recipes = {}
        self.used_recipes = set()
        with open(data_path, encoding="utf-8", newline="") as data:
            for record in csv.DictReader(data):
                self.foods[record["source"] + ":" + record["code"]] = record

    def title(self, key):
        if key in self.foods:
            return self.foods[key]["food"]
        return ""

    def kcal(self, key):
        text = self.foods[key]["kcal"] if key in self.foods else ""
        return Decimal(text) if text else None

    def nutrients(self, key, within=()):
        """Protein, fat and available carbohydrate in 100 g."""
        if key in ("water", "salt"):
            return (Decimal(0), Decimal(0), Decimal(0))
        if key.startswith("recipe:"):
            return self.recipe_nutrients(key, within)
        record = self.foods.get(key)
        if record is None:
            raise Fault("no such food: " + key)
        values = []
        for column in ("protein_g", "fat_g", "carbohydrate_g"):
            if not record[column]:
                raise Fault("%s (%s) has no %s" % (key, record["food"], column))
            values.append(Decimal(record[column]))
        if key.startswith("sr28:"):
            values[2] = max(Decimal(0), values[2] - Decimal(record["fibre_g"] or "0"))
        return tuple(values)

    def recipe_nutrients(self, key, within):
        name = key[len("recipe:"):].strip()
        self.used_recipes.add(name)
        if name in within:
            raise Fault("recipe holds itself: " + name)
        recipe = self.recipes.get(name)
        if recipe is None:
            raise Fault("no such recipe: " + name)
        if recipe["yield"] is None or recipe["yield"] <= 0:
            raise Fault("recipe without yield: " + name)
        totals = [Decimal(0)] * 3
        for ingredient, grams in recipe["ingredients"]:
            per_100 = self.nutrients(ingredient, within + (name,))
            for i in range(3):
                totals[i] += per_100[i] * grams / 100
        return tuple(total * 100 / recipe["yield"] for total in totals)


def text_files(folder):
    path = os.path.join(HERE, folder)
    if not os.path.isdir(path):
        return []
    return [os.path.join(path, name) for name in sorted(os.listdir(path))
            if name.endswith(".txt")]


def read_recipes(foods, faults):
    for path in text_files("recipes"):
        current = None
        with open(path, encoding="utf-8") as lines:
            for number, line in enumerate(lines, 1):
                place = "recipes/%s:%d" % (os.path.basename(path), number)
                line = line.split("#", 1)[0].strip()
                if not line:
                    continue
                if line.startswith("["):
                    name = line.strip("[]").strip()
                    if name in foods.recipes:
                        faults.append("%s: recipe \"%s\" stands twice" % (place, name))
                    current = {"place": place, "yield": None, "ingredients": []}
                    foods.recipes[name] = current
                    continue
                key, equals, value = line.partition("=")
                key, value = key.strip(), value.strip()
                try:
                    grams = Decimal(value)
                except ArithmeticError:
                    equals = ""
                if not equals or current is None:
                    faults.append("%s: not understood: %s" % (place, line))
                elif grams <= 0:
                    faults.append("%s: grams must be more than 0: %s" % (place, line))
                elif key == "yield":
                    current["yield"] = grams
                else:
                    current["ingredients"].append((key, grams))


def written(value, decimals):
    return str(value.quantize(Decimal(1).scaleb(-decimals), rounding=ROUND_HALF_UP))


def work_out(row, foods, decimals, extras):
    if row.source == "given":
        texts = extras.split(";")
        if len(texts) != 5:
            raise Fault("a given row needs mass;kcal;protein;fat;carbohydrate")
        row.texts = texts
        return
    for extra in extras.split(","):
        if extra.strip():
            key, _, value = extra.partition("=")
            if key.strip() != "alcohol":
                raise Fault("unknown extra: " + extra)
            row.alcohol = Decimal(value.strip())
    protein, fat, carbohydrate = (
        written(value, decimals) for value in foods.nutrients(row.source))
    energy = (4 * Decimal(protein) + 9 * Decimal(fat) + 4 * Decimal(carbohydrate)
              + 7 * row.alcohol)
    row.texts = ["100", written(energy, decimals), protein, fat, carbohydrate]
    row.source_kcal = foods.kcal(row.source)


def read_rows(foods, faults, start=""):
    rows = []
    for path in text_files("rows"):
        file_name = os.path.basename(path)
        if not file_name.startswith(start):
            continue
        with open(path, encoding="utf-8") as lines:
            for number, line in enumerate(lines, 1):
                if not line.strip() or line.lstrip().startswith("#"):
                    continue
                place = "rows/%s:%d" % (file_name, number)
                fields = [field.strip() for field in line.split("|")]
                if not 4 <= len(fields) <= 6:
                    faults.append("%s: not understood: %s" % (place, line.strip()))
                    continue
                row = Row(place, *fields[:4])
                decimals = fields[4] if len(fields) > 4 and fields[4] else "1"
                extras = fields[5] if len(fields) > 5 else ""
                if row.source == "given" and ";" in decimals:
                    decimals, extras = "1", decimals
                try:
                    if decimals not in ("1", "2"):
                        raise Fault("decimals must be 1 or 2")
                    work_out(row, foods, int(decimals), extras)
                except (Fault, ArithmeticError) as fault:
                    faults.append("%s: %s: %s" % (place, row.name, fault))
                rows.append(row)
    return rows


# --- writing -----------------------------------------------------------------

def literal(text):
    """A C++ string literal in code page 1250. The literal is split behind an
    escape, so that no following letter is read as one more hexadecimal digit."""
    out = '"'
    data = text.encode("cp1250")
    for i, byte in enumerate(data):
        if byte in (0x22, 0x5C):
            out += "\\" + chr(byte)
        elif 0x20 <= byte < 0x7F:
            out += chr(byte)
        else:
            out += "\\x%02X" % byte
            if i + 1 < len(data):
                out += '" "'
    return out + '"'


def remark(row):
    if row.source == "given":
        return "founding table"
    kind, _, name = row.source.partition(":")
    return ("recipe: " if kind == "recipe" else kind + " ") + name.strip()


def write_rows(rows, path):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="ascii", newline="\n") as out:
        out.write("// Written by tools/food/make_product_rows.py; do not edit by hand.\n")
        for row in rows:
            fields = [literal(text) for text in [row.main, row.sub, row.name] + row.texts]
            out.write("{%s},  // %s\n" % (", ".join(fields), remark(row)))


# --- checking ----------------------------------------------------------------

def at(name, position):
    return name[position] if 0 <= position < len(name) else "\0"


def loose_keys(name):
    """What the three loose comparisons look at: names of one length with an
    equal key would be taken for one another."""
    n = len(name)
    front3 = [at(name, i) for i in (0, 1, 2)]
    return {
        "a": (n, *front3, *[at(name, n - i) for i in (1, 2, 3)],
              *[at(name, n // i) for i in (2, 3, 4)]),
        "b": (n, *front3, *[at(name, n - i) for i in range(1, 7)]),
        "c": (n, *front3, at(name, 3), at(name, n - 1), at(name, n - 2)),
    }


def find_collisions(rows):
    groups = {}
    for row in rows:
        for kind, key in loose_keys(row.name).items():
            groups.setdefault((kind, key), {}).setdefault(row.name, row)
    pairs = {}
    for (kind, _), members in groups.items():
        members = list(members.values())
        for i, one in enumerate(members):
            for other in members[i + 1:]:
                pair = pairs.setdefault((one.name, other.name), [one, other, ""])
                pair[2] += kind
    return list(pairs.values())


def number(text):
    match = re.match(r"\s*-?\d*\.?\d*", text)
    return Decimal(match.group().strip() or "0") if match.group().strip(" .-") else Decimal(0)


def check(rows, foods, faults):
    print("== counts ==")
    counts = {}
    for row in rows:
        counts[(row.main, row.sub)] = counts.get((row.main, row.sub), 0) + 1
    wrong = 0
    for main, subs in REQUIRED.items():
        have_main = sum(n for (m, _), n in counts.items() if m == main)
        need_main = sum(subs.values())
        details = []
        for sub, need in subs.items():
            have = counts.pop((main, sub), 0)
            if have != need:
                details.append("%s %d of %d" % (sub, have, need))
        state = "ok" if not details else "missing" if not have_main else "WRONG"
        wrong += bool(details)
        print("  %-8s %-18s %4d of %4d  %s" % (state, main, have_main, need_main,
                                              "; ".join(details) if have_main else ""))
    for (main, sub), have in counts.items():
        wrong += 1
        print("  UNKNOWN  %s / %s: %d" % (main, sub, have))
    print("  total %d of %d" % (len(rows), REQUIRED_TOTAL))

    def section(title, lines):
        print("== %s: %d ==" % (title, len(lines)))
        for line in lines:
            print("  " + line)
        return len(lines)

    errors = wrong + section("faults", faults)

    bad = []
    if not rows or rows[0].name != FIRST_NAME:
        bad.append("the first row is not " + FIRST_NAME)
    by_name = {}
    for row in rows:
        by_name.setdefault(row.name, []).append(row)
        where = '%s: "%s"' % (row.place, row.name)
        if len(row.name) > LONGEST_NAME:
            bad.append("%s is %d characters long" % (where, len(row.name)))
        if row.name != row.name.lower():
            bad.append(where + " is not lower case")
        if not row.name.isascii() or not row.name.isprintable() or re.search(r'[;"]', row.name):
            bad.append(where + " holds a forbidden character")
        if not row.name or "  " in row.name:
            bad.append(where + " is empty or holds two blanks")
    errors += section("names", bad)

    bad = []
    for name, same in by_name.items():
        allowed = 2 if name in TWICE else 1
        if len(same) > allowed:
            bad.append('"%s": %s' % (name, ", ".join(row.place for row in same)))
        elif len(same) == 2 and same[0].texts == same[1].texts:
            bad.append('"%s" stands twice with the same values' % name)
    if len(rows) >= REQUIRED_TOTAL:
        bad += ['"%s" does not stand twice' % name for name in sorted(TWICE)
                if len(by_name.get(name, [])) != 2]
    errors += section("duplicated names", bad)

    errors += section("colliding names", [
        '(%s) "%s" (%s)  ~  "%s" (%s)' % (kinds, one.name, one.place, other.name, other.place)
        for one, other, kinds in find_collisions(rows)])

    by_source = {}
    for row in rows:
        if row.source != "given":
            by_source.setdefault(re.sub(r":\s*", ":", row.source), []).append(row)
    errors += section("sources used by more than one row", [
        "%s: %s" % (source, ", ".join("%s (%s)" % (row.name, row.place) for row in same))
        for source, same in by_source.items() if len(same) > 1])

    bad = []
    for row in rows:
        if row.texts:
            total = sum(number(text) for text in row.texts[2:5]) + row.alcohol
            if total > 100:
                bad.append("%s: %s: %s" % (row.place, row.name, total))
    errors += section("protein + fat + carbohydrate over 100", bad)

    hints = []
    for name, recipe in foods.recipes.items():
        total = sum(grams for _, grams in recipe["ingredients"])
        if recipe["yield"] and recipe["yield"] > total:
            hints.append("%s: %s: yield %s is more than the %s g put in"
                         % (recipe["place"], name, recipe["yield"], total))
        if name not in foods.used_recipes:
            hints.append("%s: %s: not used by any row" % (recipe["place"], name))
    section("hints: recipes", hints)

    hints = []
    for row in rows:
        if row.texts and row.source_kcal and row.source_kcal > 0:
            mine = number(row.texts[1])
            if abs(mine - row.source_kcal) > row.source_kcal * Decimal("0.15"):
                hints.append("%s: %s: %s kcal, the source says %s (%s)" % (
                    row.place, row.name, mine, row.source_kcal, foods.title(row.source)))
    section("hints: energy off the source's by more than 15 %", hints)

    by_values = {}
    for row in rows:
        if row.texts and any(number(text) > 1 for text in row.texts[2:5]):
            by_values.setdefault(tuple(number(text) for text in row.texts[2:5]), []).append(row)
    section("hints: equal values", [
        ", ".join("%s (%s)" % (row.name, row.place) for row in same)
        for same in by_values.values() if len(same) > 1])
    print("== %s ==" % ("no errors" if not errors else "%d errors" % errors))
    return errors == 0


def main():
    parser = argparse.ArgumentParser(description="Writes the built-in product rows.")
    parser.add_argument("--data", help="the composition table (%s)" % DATA_NAME)
    parser.add_argument("--output", default=OUTPUT)
    parser.add_argument("--check", action="store_true", help="look for faults, write nothing")
    parser.add_argument("--list", nargs="?", const="", metavar="START",
                        help="print the rows of the files whose name begins with START")
    arguments = parser.parse_args()
    sys.stdout.reconfigure(errors="replace")  # for a console without Polish letters

    data_path = arguments.data or next((p for p in DATA_PLACES if os.path.exists(p)), None)
    if data_path is None:
        sys.exit(
            "no %s found: put it beside this script or name it with --data; "
            "docs/food-data.md says how to make it" % DATA_NAME
        )
    foods = Foods(data_path)
    faults = []
    read_recipes(foods, faults)
    rows = read_rows(foods, faults, arguments.list or "")

    if arguments.list is not None:
        for row in rows:
            texts = row.texts or ["?"] * 5
            print("%-16s %-14s %-45s %7s %6s %6s %6s  %s %s" % (
                row.main[:16], row.sub[:14], row.name, *texts[1:], row.source,
                foods.title(row.source)))
        return
    if arguments.check:
        sys.exit(0 if check(rows, foods, faults) else 1)
    with contextlib.redirect_stdout(io.StringIO()):
        sound = check(rows, foods, faults)
    if not sound:
        sys.exit("nothing written; --check tells why")
    write_rows(rows, arguments.output)
    print("%d of %d rows written to %s" % (len(rows), REQUIRED_TOTAL, arguments.output))


if __name__ == "__main__":
    main()
