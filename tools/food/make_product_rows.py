#!/usr/bin/env python3
"""Writes the built-in product rows of the food table, if the checks of
check_product_rows.py find no fault in them.

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
import sys
from decimal import Decimal, ROUND_HALF_UP

from check_product_rows import REQUIRED_TOTAL, check, find_stale

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
DATA_NAME = "food_composition.csv"
OUTPUT = os.path.join(ROOT, "food", "product_rows.inc")
DOCUMENT = os.path.join(ROOT, "docs", "food-data.md")


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

    def knows(self, key):
        kind, _, name = key.partition(":")
        return name.strip() in self.recipes if kind == "recipe" else key in self.foods

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


def output_text(rows):
    lines = ["// Written by tools/food/make_product_rows.py; do not edit by hand.\n"]
    for row in rows:
        fields = [literal(text) for text in [row.main, row.sub, row.name] + (row.texts or [])]
        lines.append("{%s},  // %s\n" % (", ".join(fields), remark(row)))
    return "".join(lines)


def data_place():
    """Where the composition table is: beside this script, or in shared/data of
    a folder above the repository. None if it is in neither."""
    places = [HERE]
    above = ROOT
    while os.path.dirname(above) != above:
        above = os.path.dirname(above)
        places.append(os.path.join(above, "shared", "data"))
    paths = [os.path.join(place, DATA_NAME) for place in places]
    return next((path for path in paths if os.path.exists(path)), None)


def main():
    parser = argparse.ArgumentParser(description="Writes the built-in product rows.")
    parser.add_argument("--data", help="the composition table (%s)" % DATA_NAME)
    parser.add_argument("--output", default=OUTPUT)
    parser.add_argument("--check", action="store_true", help="look for faults, write nothing")
    parser.add_argument("--list", nargs="?", const="", metavar="START",
                        help="print the rows of the files whose name begins with START")
    arguments = parser.parse_args()
    sys.stdout.reconfigure(errors="replace")  # for a console without Polish letters

    data_path = arguments.data or data_place()
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
    text = output_text(rows)
    if arguments.check:
        stale = find_stale(text, arguments.output)
        sys.exit(0 if check(rows, foods, faults, DOCUMENT, stale) else 1)
    with contextlib.redirect_stdout(io.StringIO()):
        sound = check(rows, foods, faults, DOCUMENT)
    if not sound:
        sys.exit("nothing written; --check tells why")
    with open(arguments.output, "w", encoding="ascii", newline="\n") as out:
        out.write(text)
    print("%d of %d rows written to %s" % (len(rows), REQUIRED_TOTAL, arguments.output))


if __name__ == "__main__":
    main()
