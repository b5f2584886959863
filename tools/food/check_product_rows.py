"""The checks on the rows of the food table; make_product_rows.py runs them."""

import os
import re
from decimal import Decimal

LONGEST_NAME = 45
FIRST_NAME = "frozen strawberries"

# The names that stand twice, and where the later row of each stands: choosing
# the name gives that row.
TWICE = {
    "tomato soup": ("soup", "traditional"),
    "pea soup": ("soup", "traditional"),
    "carrot juice": ("drinks", "juice"),
}

# The rows that were there from the start. Nothing else may be typed in.
FOUNDING = {
    "frozen strawberries", "frozen plums", "strawberry buttermilk",
    "yoghurt chocolate (strawberry)", "milk 3,5%", "goat milk", "fat-free milk pouder",
    "cream 30%", "pork-raw ham", "pork tounge", "collar gut", "broccoli", "sliced pineapple",
    "fruit drink", "apple soup", "beer (lager)", "vodka 40%", "sugar", "bee's honey",
}
# Founding rows whose energy is not what their parts add up to.
OFF_THE_RULE = {"yoghurt chocolate (strawberry)", "apple soup", "beer (lager)", "vodka 40%"}

LOW_HEADING = "## Foods that the energy rule makes low"
LOW_SHARE = Decimal("0.9")
# Sources give whole kcal: of fewer than these the rounding alone is a tenth.
LEAST_KCAL_TO_COMPARE = 5

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


def number(text):
    """The leading number of a text, as the program reads it; 0 if there is none."""
    match = re.match(r"\s*-?\d*\.?\d*", text)
    return Decimal(match.group().strip() or "0") if match.group().strip(" .-") else Decimal(0)


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


def print_counts(rows):
    """Prints the rows of every place; returns how many places have a wrong number."""
    counts = {}
    for row in rows:
        counts[(row.main, row.sub)] = counts.get((row.main, row.sub), 0) + 1
    wrong = 0
    for main, subs in REQUIRED.items():
        have_main = sum(n for (m, _), n in counts.items() if m == main)
        details = []
        for sub, need in subs.items():
            have = counts.pop((main, sub), 0)
            if have != need:
                details.append("%s %d of %d" % (sub, have, need))
        state = "ok" if not details else "missing" if not have_main else "WRONG"
        wrong += bool(details)
        print("  %-8s %-18s %4d of %4d  %s" % (state, main, have_main, sum(subs.values()),
                                              "; ".join(details) if have_main else ""))
    for (main, sub), have in counts.items():
        wrong += 1
        print("  UNKNOWN  %s / %s: %d" % (main, sub, have))
    print("  total %d of %d" % (len(rows), REQUIRED_TOTAL))
    return wrong


def find_bad_names(rows):
    if not rows or rows[0].name != FIRST_NAME:
        yield "the first row is not " + FIRST_NAME
    for row in rows:
        where = '%s: "%s"' % (row.place, row.name)
        if len(row.name) > LONGEST_NAME:
            yield "%s is %d characters long" % (where, len(row.name))
        if row.name != row.name.lower():
            yield where + " is not lower case"
        if not row.name.isascii() or not row.name.isprintable() or re.search(r'[;"]', row.name):
            yield where + " holds a forbidden character"
        if not row.name or "  " in row.name:
            yield where + " is empty or holds two blanks"


def find_equal_names(rows):
    by_name = {name: [] for name in TWICE}
    for row in rows:
        by_name.setdefault(row.name, []).append(row)
    for name, same in by_name.items():
        places = ", ".join(row.place for row in same)
        if name not in TWICE:
            if len(same) > 1:
                yield '"%s" stands %d times: %s' % (name, len(same), places)
        elif len(same) != 2:
            yield '"%s" stands %d times and not twice: %s' % (name, len(same), places)
        elif (same[1].main, same[1].sub) != TWICE[name]:
            yield '"%s": the later row is not that of %s / %s: %s' % (name, *TWICE[name], places)
        elif all(row.texts for row in same):
            less, more = sorted(number(row.texts[1]) for row in same)
            if less == more or more > 2 * less:
                yield '"%s" stands for foods of %s and of %s kcal: %s' % (name, less, more, places)


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
    for one, other, kinds in pairs.values():
        yield '(%s) "%s" (%s)  ~  "%s" (%s)' % (kinds, one.name, one.place, other.name, other.place)


def find_bad_sources(rows, foods):
    by_source = {}
    for row in rows:
        if (row.source == "given") != (row.name in FOUNDING):
            yield "%s: %s: only the founding rows are given, and they are" % (row.place, row.name)
        elif row.source != "given":
            if not foods.knows(row.source):
                yield "%s: %s: no such source: %s" % (row.place, row.name, row.source)
            by_source.setdefault(re.sub(r":\s*", ":", row.source), []).append(row)
    for source, same in by_source.items():
        if len(same) > 1:
            yield "%s stands for more than one row: %s" % (
                source, ", ".join("%s (%s)" % (row.name, row.place) for row in same))


def find_bad_recipes(foods):
    for name, recipe in foods.recipes.items():
        where = "%s: %s" % (recipe["place"], name)
        total = sum(grams for _, grams in recipe["ingredients"])
        if recipe["yield"] and recipe["yield"] > total:
            yield "%s: yield %s is more than the %s g put in" % (where, recipe["yield"], total)
        if name not in foods.used_recipes:
            yield where + ": not used by any row"


def energy_of_parts(row):
    protein, fat, carbohydrate = (number(text) for text in row.texts[2:5])
    return 4 * protein + 9 * fat + 4 * carbohydrate + 7 * row.alcohol


def find_wrong_energy(rows):
    """The founding rows were rounded more freely than the others."""
    for row in rows:
        if row.texts and row.name not in OFF_THE_RULE:
            kcal, parts = number(row.texts[1]), energy_of_parts(row)
            allowed = max(Decimal(3), parts * 3 / 100) if row.source == "given" else Decimal("0.05")
            if abs(kcal - parts) > allowed:
                yield "%s: %s: %s kcal, the parts have %s" % (row.place, row.name, kcal, parts)


def find_overweight(rows):
    for row in rows:
        if row.texts:
            total = sum(number(text) for text in row.texts[2:5]) + row.alcohol
            if total > 100:
                yield "%s: %s: %s g" % (row.place, row.name, total)


def find_low(rows):
    return {row.name: "%s (%s)" % (row.texts[1], row.source_kcal) for row in rows
            if row.texts and row.source_kcal and row.source_kcal >= LEAST_KCAL_TO_COMPARE
            and number(row.texts[1]) < row.source_kcal * LOW_SHARE}


def find_untold_low(rows, document):
    """Compares the foods that come out low with those the document names, each
    as: name 32.7 (52), the latter being the source's kcal."""
    with open(document, encoding="utf-8") as lines:
        _, _, section = lines.read().partition(LOW_HEADING + "\n")
    section = " ".join(section.partition("\n## ")[0].split())
    told = dict(re.findall(r"`([^`]+)` ([\d.]+ \([\d.]+\))", section))
    low = find_low(rows)
    name = os.path.basename(document)
    for food in sorted(low.keys() | told.keys()):
        if low.get(food) != told.get(food):
            yield "%s: %s, %s says %s" % (food, low.get(food, "not low"), name,
                                          told.get(food, "nothing"))


def find_stale(text, output):
    try:
        with open(output, encoding="ascii", newline="") as written:
            if written.read() == text:
                return
    except OSError:
        pass
    yield os.path.basename(output) + " is not what these rows make"


def find_high(rows, foods):
    for row in rows:
        if row.texts and row.source_kcal and row.source_kcal >= LEAST_KCAL_TO_COMPARE \
                and number(row.texts[1]) * LOW_SHARE > row.source_kcal:
            yield "%s: %s: %s kcal, the source says %s (%s)" % (
                row.place, row.name, row.texts[1], row.source_kcal, foods.title(row.source))


def find_equal_values(rows):
    by_values = {}
    for row in rows:
        if row.texts and any(number(text) > 1 for text in row.texts[2:5]):
            by_values.setdefault(tuple(number(text) for text in row.texts[2:5]), []).append(row)
    for same in by_values.values():
        if len(same) > 1:
            yield ", ".join("%s (%s)" % (row.name, row.place) for row in same)


def check(rows, foods, faults, document, stale=()):
    """Prints what the checks find. Returns False if one of them is an error;
    the hints are none."""
    print("== counts ==")
    errors = print_counts(rows)

    def section(title, lines):
        lines = list(lines)
        print("== %s: %d ==" % (title, len(lines)))
        for line in lines:
            print("  " + line)
        return len(lines)

    errors += section("faults", faults)
    errors += section("names", find_bad_names(rows))
    errors += section("equal names", find_equal_names(rows))
    errors += section("names taken for one another", find_collisions(rows))
    errors += section("sources", find_bad_sources(rows, foods))
    errors += section("recipes", find_bad_recipes(foods))
    errors += section("energy against the parts", find_wrong_energy(rows))
    errors += section("protein + fat + carbohydrate over 100 g", find_overweight(rows))
    errors += section("energy low against the source, untold", find_untold_low(rows, document))
    errors += section("written rows", stale)
    section("hints: energy high against the source", find_high(rows, foods))
    section("hints: equal values", find_equal_values(rows))
    print("== %s ==" % ("no errors" if not errors else "%d errors" % errors))
    return errors == 0
