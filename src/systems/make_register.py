#!/usr/bin/env python3
"""Writes the tables of register/ from the register of coordinate systems as proj-data's database carries it.

    make_register.py PROJ_DB

Each table stands in a header of its own, sorted by code, a row a line, with the row's name as a comment. Texts stand once
each in texts.h, packed, and a text that ends another one is that one's tail. Angles become degrees and lengths metres here, by
exact fractions of the register's decimals, so that each number is the double next to the exact value.
"""
import collections
import re
import sqlite3
import sys
from fractions import Fraction
from pathlib import Path

HERE = Path(__file__).resolve().parent

HEAD = """// {what}
//
// Made by src/systems/make_register.py from the EPSG Geodetic Parameter Dataset {EPSG.VERSION} of {EPSG.DATE}, which
// is IOGP's, as proj-data carries it, under the terms of use at https://epsg.org/terms-of-use.html. Other makers' names
// are of {ESRI.VERSION} of {ESRI.DATE} and of PROJ {PROJ.VERSION}.
#pragma once

#include "systems/register/rows.h"

namespace ZrProj::systems::rows {{

// clang-format off
"""
TERMS = ("The dataset is the property of IOGP, the International Association of Oil & Gas Producers; it is used under the terms at "
         "https://epsg.org/terms-of-use.html, which ask that data taken from it be attributed and not be changed under its name.")
FOOT = """// clang-format on

}} // namespace ZrProj::systems::rows
"""

PI = Fraction("3.14159265358979323846264338327950288419716939937510")
DEGREES = {9101: 180 / PI, 9103: Fraction(1, 60), 9104: Fraction(1, 3600), 9105: Fraction(9, 10), 9106: Fraction(9, 10),
           9109: 180 / PI / 10**6, 9112: Fraction(9, 1000), 9113: Fraction(9, 100000), 9114: Fraction(360, 6400),
           1031: Fraction(1, 3600000)}
SURVEY_FOOT = Fraction(1200, 3937)
SURVEY = {9003: SURVEY_FOOT, 9033: 66 * SURVEY_FOOT, 9034: Fraction(66, 100) * SURVEY_FOOT, 9035: 5280 * SURVEY_FOOT}
SEXAGESIMAL = 9110

# Methods that the register keeps under two codes: the one in force, and what the older one's parameters are there.
SAME_METHOD = {9821: 1027, 9823: 1029, 9842: 1028}
SAME_PARAMETER = {(9821, 8828): 8801, (9821, 8829): 8802, (9823, 8801): 8823, (9842, 8801): 8823, (9842, 8822): 8802}

# Factors of operations: arcseconds, metres or parts per million a unit.
SECONDS = {9104: Fraction(1), 1031: Fraction(1, 1000), 9101: 648000 / PI, 9109: 648 / PI / 1000, 9113: Fraction(324, 1000)}
MILLIONTHS = {9202: Fraction(1), 1028: Fraction(1, 1000), 9201: Fraction(10**6)}

# How the register's methods move coordinates: the word of OperationMethod.
FRAME_ROTATIONS = {1032, 1056, 1066, 9607, 9636}  # turn the axes, not the point
HORIZONTAL_GRIDS = {9613: "nadcon", 9615: "ntv2", 9614: "unsupported", 1074: "unsupported", 1087: "unsupported"}
OFFSETS = (9601, 9618, 9619)
OPERATION_TABLES = ("helmert_transformation", "grid_transformation", "other_transformation", "concatenated_operation")

# Codes that were never in force, beyond 16 bits, and what everybody means by them.
NICKNAMES = {900913: 3857}

# Who calls a thing by another name, in the order of the enum Maker.
MAKERS = {"ESRI": "esri", "EPSG": "epsg", "PROJ": "proj"}


def decimal(number):
    return Fraction(repr(number) if isinstance(number, float) else str(number))


def degrees_of_sexagesimal(number):
    """Degrees of DDD.MMSSsss, read from its digits."""
    degrees, rest = divmod(decimal(abs(number)), 1)
    minutes, seconds = divmod(rest * 100, 1)
    value = degrees + minutes / 60 + seconds / 36
    return -value if number < 0 else value


def double(exact):
    """The double next to an exact number, as short as it can be written."""
    text = repr(float(exact))
    return text[:-2] if text.endswith(".0") else text


def key(name):
    """What lookups by name compare: small letters, digits and +; spaces and marks do not count, nor "zone" and "ensemble"."""
    words = re.findall(r"[a-z0-9+\x80-\U0010ffff]+", "".join(c.lower() if c.isascii() else c for c in name))
    return "".join(word for word in words if word not in ("zone", "ensemble")).encode()


class Texts:
    """The pool: each text once, and only where no other one ends with it; frequent pairs of bytes are one byte."""

    def __init__(self):
        self.wanted = set()

    def __call__(self, text):
        self.wanted.add(text)
        return lambda: self.offsets[text]

    def place(self):
        reversed_order = sorted(self.wanted, key=lambda text: text[::-1])
        pairs = zip(reversed_order, reversed_order[1:] + [""])
        self.kept = sorted(text for text, following in pairs if not following.endswith(text))
        pieces = {text: self.pieces_of(text) for text in self.kept}
        self.pairs, packed = packed_by_pairs({piece for cut in pieces.values() for piece in cut})
        self.packed, self.offsets, position = {}, {}, 0
        for text in self.kept:
            tail = text
            for piece in pieces[text]:
                self.offsets.setdefault(tail, position)
                tail = tail[len(piece):]
                position += len(packed[piece])
            self.offsets.setdefault(tail, position)
            position += 1
            self.packed[text] = b"".join(packed[piece] for piece in pieces[text])
        self.size = position

    def pieces_of(self, text):
        """A text cut where other texts begin that it ends with: no pair may lie across."""
        cuts = [0] + [i for i in range(1, len(text)) if text[i:] in self.wanted] + [len(text)]
        return [text[i:j] for i, j in zip(cuts, cuts[1:])]


def packed_by_pairs(texts):
    """Re-Pair (Larsson and Moffat 2000): the most frequent pair of bytes becomes a byte that occurs nowhere, again and again.
    The pairs by their bytes, and each text's bytes."""
    texts = sorted(texts)
    sequences = [list(text.encode()) for text in texts]
    used = {byte for sequence in sequences for byte in sequence}
    counts, users = collections.Counter(), collections.defaultdict(set)

    def count(i, sign):
        for pair in zip(sequences[i], sequences[i][1:]):
            counts[pair] += sign
            users[pair].add(i)

    for i in range(len(sequences)):
        count(i, 1)
    pairs = {}
    for byte in sorted(set(range(1, 256)) - used):
        pair = max(counts, key=lambda p: (counts[p], p))
        pairs[byte] = pair
        for i in users.pop(pair):
            count(i, -1)
            sequences[i] = with_pair_as(sequences[i], pair, byte)
            count(i, 1)
        counts += collections.Counter()  # drops what is no more
    return pairs, {text: bytes(sequence) for text, sequence in zip(texts, sequences)}


def with_pair_as(sequence, pair, byte):
    packed, i = [], 0
    while i < len(sequence):
        found = tuple(sequence[i:i + 2]) == pair
        packed.append(byte if found else sequence[i])
        i += 2 if found else 1
    return packed


def literal(data):
    return "".join(chr(c) if 32 <= c < 127 and c not in b'"\\\\?' else f"\\{c:03o}" for c in data)


def beginnings(names, limit, least):
    """The beginnings that save most bytes in names kept as a beginning and a rest, and each name's."""
    users = collections.defaultdict(list)
    for name in names:
        for end in re.finditer(r"_| / |\) | ", name):
            users[name[: end.end()]].append(name)
    best = {name: "" for name in names}
    chosen = [""]
    while len(chosen) < limit:
        gains = {cut: sum(max(0, len(cut) - len(best[name])) for name in using) - len(cut) for cut, using in users.items()}
        cut = max(gains, key=lambda c: (gains[c], c))
        if gains[cut] < least:
            break
        chosen.append(cut)
        for name in users.pop(cut):
            best[name] = max(best[name], cut, key=len)
    return sorted(chosen), best


class Register:
    def __init__(self, path):
        self.data = sqlite3.connect(f"file:{path}?mode=ro", uri=True)
        self.head = dict(self.ask("SELECT key, value FROM metadata"))
        self.text = Texts()
        self.tables = []  # (file, what, declaration, rows made when the texts have their places)

    def ask(self, query):
        return self.data.execute(query).fetchall()

    def table(self, file, what, declaration, rows):
        self.tables.append((file, what, declaration, rows))

    def read(self):
        self.read_units()
        self.read_ellipsoids()
        self.read_meridians()
        self.read_datums()
        self.read_systems()
        self.read_parts()
        self.read_operations()
        self.write_areas()
        self.read_aliases()

    # Numbers

    def read_units(self):
        rows = self.ask("""SELECT code, name, type, conv_factor FROM unit_of_measure WHERE auth_name = 'EPSG'
                           AND type IN ('length', 'angle', 'scale') ORDER BY code""")
        self.factors = {code: self.factor(code, kind, number) for code, _, kind, number in rows}
        kept = [(code, name, kind) for code, name, kind, _ in rows if kind != "scale" and not re.search("year|second$", name)]
        texts = {code: self.text(name) for code, name, _ in kept}
        self.units = {code: name for code, name, _ in kept}
        self.table("units.h", "Units of length and angle.", "inline constexpr UnitRow units[] = {", lambda: [
            f"{{{code}, {'true' if kind == 'angle' else 'false'}, {texts[code]()}, {double(self.factors[code])}}}, // {name}"
            for code, name, kind in kept])

    @staticmethod
    def factor(code, kind, number):
        """Degrees or metres a unit; those that only say how degrees are written count as degrees."""
        if kind == "angle":
            return DEGREES.get(code, Fraction(1))
        return SURVEY.get(code) or decimal(number)

    def exact(self, number, unit):
        return degrees_of_sexagesimal(number) if unit == SEXAGESIMAL else decimal(number) * self.factors[unit]

    # Datums

    def read_ellipsoids(self):
        rows = self.ask("""SELECT code, name, semi_major_axis, uom_code, inv_flattening, semi_minor_axis FROM ellipsoid
                           WHERE auth_name = 'EPSG' ORDER BY code""")
        texts = {row[0]: self.text(row[1]) for row in rows}

        def line(code, name, major, unit, inverse, minor):
            major_decimal = decimal(major)
            if inverse is None:
                inverse = 0 if minor == major else major_decimal / (major_decimal - decimal(minor))
            return f"{{{code}, {texts[code]()}, {double(self.exact(major, unit))}, {double(decimal(inverse))}}}, // {name}"

        self.ellipsoids = {row[0]: row[1] for row in rows}
        self.table("ellipsoids.h", "Ellipsoids.", "inline constexpr EllipsoidRow ellipsoids[] = {",
                   lambda: [line(*row) for row in rows])

    def read_meridians(self):
        rows = self.ask("SELECT code, name, longitude, uom_code FROM prime_meridian WHERE auth_name = 'EPSG' ORDER BY code")
        texts = {row[0]: self.text(row[1]) for row in rows}
        self.meridians = {row[0]: row[1] for row in rows}
        self.table("meridians.h", "Prime meridians.", "inline constexpr MeridianRow meridians[] = {", lambda: [
            f"{{{code}, {texts[code]()}, {double(self.exact(longitude, unit))}}}, // {name}"
            for code, name, longitude, unit in rows])

    def read_datums(self):
        rows = self.ask("""SELECT code, name, ellipsoid_code, prime_meridian_code, ensemble_accuracy FROM geodetic_datum
                           WHERE auth_name = 'EPSG' ORDER BY code""")
        texts = {row[0]: self.text(row[1]) for row in rows}
        self.datums = {row[0]: row[1] for row in rows}
        self.table("datums.h", "Datums and datum ensembles.", "inline constexpr DatumRow datums[] = {", lambda: [
            f"{{{code}, {ellipsoid}, {meridian}, {decimal(accuracy or 0) * 100}, {texts[code]()}}}, // {name}"
            for code, name, ellipsoid, meridian, accuracy in rows])
        members = self.ask("""SELECT member_code, ensemble_code FROM geodetic_datum_ensemble_member
                              WHERE ensemble_auth_name = 'EPSG' ORDER BY member_code""")
        names = {row[0]: row[1] for row in rows}
        self.table("realizations.h", "Realizations and the ensembles that have them.",
                   "inline constexpr RealizationRow realizations[] = {", lambda: [
                       f"{{{member}, {ensemble}}}, // {names[member]}" for member, ensemble in members])

    # Systems

    def read_systems(self):
        self.horizontal = self.horizontal_parts()
        geographic = self.ask("""SELECT code, name, coordinate_system_code, datum_code, NULL, deprecated FROM geodetic_crs
                                 WHERE auth_name = 'EPSG' AND type = 'geographic 2D'""")
        projected = self.ask("""SELECT code, name, coordinate_system_code, geodetic_crs_code, conversion_code, deprecated
                                FROM projected_crs WHERE auth_name = 'EPSG'""")
        self.nicknames = {code: name for code, name, *_ in projected if code > 0xffff}
        rows = sorted(row for row in geographic + projected if row[0] not in self.nicknames)
        conversions = self.read_conversions({row[4] for row in rows} - {None})
        self.read_areas()
        areas = {row[0]: self.area("geodetic_crs" if row[4] is None else "projected_crs", row[0]) for row in rows}
        axes = self.read_axes({row[2] for row in rows})
        texts = {row[0]: self.text(row[1]) for row in rows}
        self.systems = {row[0]: row[1] for row in rows}
        self.deprecated = {row[0] for row in rows if row[5]}

        def line(code, name, system, base, conversion, deprecated):
            if conversion is None:
                conversion = "geographic"
            else:
                base, conversion = self.horizontal.get(base, base), conversions[conversion]
            return (f"{{{code}, {base}, {texts[code]()}, {conversion}, {areas[code]()}, {axes[system]}, "
                    f"{'true' if deprecated else 'false'}}}, // {name}")

        self.table("systems.h", "Geographic systems of two dimensions and projected systems.",
                   "inline constexpr SystemRow systems[] = {", lambda: [line(*row) for row in rows])

    def read_conversions(self, codes):
        parameters = {int(code): (method, re.findall(r"\d+", taken)) for method, code, taken in re.findall(
            r"\{Method::(\w+),\s*(\d+), \"[^\"]*\",\s*\{([\d, ]*)\}\}", (HERE / "method_table.h").read_text())}
        rows = [row for row in self.ask("SELECT * FROM conversion_table WHERE auth_name = 'EPSG' ORDER BY code") if row[1] in codes]
        names, values = {}, {}
        for row in rows:
            given = {SAME_PARAMETER.get((row[5], code), code): self.exact(number, unit)
                     for _, code, number, _, unit in zip(*[iter(row[6:41])] * 5) if code is not None}
            method, taken = parameters[SAME_METHOD.get(row[5], row[5])]
            values[row[1]] = (method, [given.pop(int(code)) for code in taken])
            assert not any(given.values()), f"conversion {row[1]}: method {row[5]} does not take {given}"
            names[row[1]] = self.text(row[2])
        pool = sorted({value for _, given in values.values() for value in given})
        index = {value: position for position, value in enumerate(pool)}
        self.table("values.h", "Every number of a conversion: degrees, metres, factors.", "inline constexpr double values[] = {",
                   lambda: [f"{double(value)}," for value in pool])
        self.table("conversions.h", "Conversions: a method and its numbers, which the end of each line repeats.",
                   "inline constexpr ConversionRow conversions[] = {", lambda: [
                       f"{{{row[1]}, Method::{values[row[1]][0]}, {names[row[1]]()}, "
                       f"{{{', '.join(str(index[value]) for value in values[row[1]][1])}}}}}, "
                       f"// {row[2]}: {', '.join(double(value) for value in values[row[1]][1])}" for row in rows])
        return {row[1]: position for position, row in enumerate(rows)}

    def read_areas(self):
        """The areas of systems and of operations: each thing's first one."""
        tables = ("geodetic_crs", "projected_crs") + OPERATION_TABLES
        self.extents = {}
        for table, code, extent in self.ask(f"""SELECT object_table_name, object_code, extent_code FROM usage
                                                WHERE object_auth_name = 'EPSG' AND object_table_name IN {tables} ORDER BY code"""):
            self.extents.setdefault((table, code), extent)
        self.areas_used = set()
        rows = self.ask("SELECT code, name, west_lon, south_lat, east_lon, north_lat FROM extent WHERE auth_name = 'EPSG' ORDER BY code")
        self.area_rows = {row[0]: row for row in rows}

    def area(self, table, code):
        """What gives the index of a thing's area once all are known."""
        extent = self.extents[table, code]
        self.areas_used.add(extent)
        return lambda: self.area_index[extent]

    def write_areas(self):
        rows = [row for code, row in self.area_rows.items() if code in self.areas_used]
        texts = {row[0]: self.text(row[1]) for row in rows}
        self.area_index = {row[0]: position for position, row in enumerate(rows)}

        def bounds(row):
            hundredths = [round(decimal(number or 0) * 100, 0) for number in row[2:]]
            return ", ".join(str(number) for number in hundredths)

        self.table("areas.h", "Areas of use: west, south, east, north in hundredths of a degree.",
                   "inline constexpr AreaRow areas[] = {",
                   lambda: [f"{{{texts[row[0]]()}, {bounds(row)}}}, // {row[1]}" for row in rows])

    def read_axes(self, systems):
        axes = collections.defaultdict(list)
        for system, orientation, unit in self.ask("""SELECT coordinate_system_code, orientation, uom_code FROM axis
                WHERE coordinate_system_auth_name = 'EPSG' ORDER BY coordinate_system_code, coordinate_system_order"""):
            axes[system].append((orientation, unit))
        lines = {system: self.axes_line(*axes[system][:2]) for system in systems}
        distinct = sorted(set(lines.values()))
        self.table("axes.h", "Axes: unit, senses, and whether the northing or latitude comes first.",
                   "inline constexpr AxesRow axes[] = {", lambda: distinct)
        return {system: distinct.index(line) for system, line in lines.items()}

    def axes_line(self, first, second):
        (first_way, unit), (second_way, _) = first, second
        ways = {first_way, second_way}
        sense = lambda against: "Sense::negative" if against in ways else "Sense::positive"
        if "along" in first_way:
            northing_first = not self.easting_along_meridian_first(first_way, second_way)
        else:
            northing_first = first_way in ("north", "south")
        return (f"{{{unit}, {sense('west')}, {sense('south')}, {'true' if northing_first else 'false'}}}, "
                f"// {self.units[unit]}")

    @staticmethod
    def easting_along_meridian_first(first, second):
        """About a pole the northing follows the easting by 90 degrees, counter-clockwise: eastwards in the north."""
        def longitude(way):
            number, side = re.search(r"along (\d+)°([EW])", way).groups()
            return int(number) if side == "E" else -int(number)
        turn = (longitude(second) - longitude(first)) % 360
        assert turn in (90, 270), (first, second)
        return turn == (90 if first.startswith("South") else 270)

    def horizontal_parts(self):
        """Geographic 3D and geocentric codes: the 2D system of the same datum, of the same name if there are several."""
        rows = self.ask("SELECT code, name, type, datum_code, deprecated FROM geodetic_crs WHERE auth_name = 'EPSG'")
        flat = collections.defaultdict(list)
        for code, name, kind, datum, deprecated in rows:
            if kind == "geographic 2D":
                flat[datum].append((deprecated, name, code))
        parts = {}
        for code, name, kind, datum, _ in rows:
            if kind != "geographic 2D" and flat[datum]:
                parts[code] = min(flat[datum], key=lambda row: (row[1] != name, row[0], row[2]))[2]
        return parts

    def read_parts(self):
        """Geocentric systems have no part whose coordinates theirs would be."""
        geocentric = {code for code, in self.ask("SELECT code FROM geodetic_crs WHERE auth_name = 'EPSG' AND type = 'geocentric'")}
        parts = {code: part for code, part in self.horizontal.items() if code not in geocentric}
        for code, horizontal in self.ask("""SELECT code, horiz_crs_code FROM compound_crs WHERE auth_name = 'EPSG'
                                            AND horiz_crs_auth_name = 'EPSG'"""):
            parts[code] = parts.get(horizontal, horizontal)
        parts |= {code: NICKNAMES[code] for code in self.nicknames}
        self.table("parts.h", "Systems of three dimensions or with heights: the horizontal part; nicknames: what they are.",
                   "inline constexpr PartRow parts[] = {", lambda: [f"{{{code}, {part}}}," for code, part in sorted(parts.items())])
        replacements = {}
        for code, other in self.ask("""SELECT deprecated_code, replacement_code FROM deprecation WHERE deprecated_auth_name = 'EPSG'
                AND replacement_auth_name = 'EPSG' AND table_name IN ('projected_crs', 'geodetic_crs') ORDER BY rowid"""):
            if code in self.systems and other in self.systems:
                replacements.setdefault(code, other)
        self.table("replacements.h", "Deprecated systems and what replaces them.",
                   "inline constexpr ReplacementRow replacements[] = {",
                   lambda: [f"{{{code}, {other}}}, // {self.systems[code]}" for code, other in sorted(replacements.items())])

    # Operations

    def read_operations(self):
        """Whatever moves a horizontal position from one datum to another; what only moves heights is left out."""
        self.positions = {code: position for position, code in enumerate(sorted(self.systems))}
        self.flat = {code for (code,) in self.ask("SELECT code FROM geodetic_crs WHERE type = 'geographic 2D' AND auth_name = 'EPSG'")}
        self.geodetic = {code for (code,) in self.ask("SELECT code FROM geodetic_crs WHERE auth_name = 'EPSG'")}
        self.superseded = self.superseded_operations()
        self.ends, self.grids = {}, []  # the systems that an operation joins, by its code; files
        rows = {}
        for table, ways in zip(OPERATION_TABLES, (self.geocentric_ways(), self.grid_ways(), self.offset_ways())):
            for code, way in ways.items():
                rows[code] = (table, *way)
        rows |= {code: (OPERATION_TABLES[3], *way) for code, way in self.concatenated_ways(rows).items()}
        self.write_operations({code: rows[code] for code in sorted(rows)})

    def operations_of(self, table, columns, methods):
        """Rows of a table of operations between geodetic systems with a horizontal part here: code, the columns."""
        marks = f"AND method_code IN {tuple(methods)}" if methods else ""
        for code, *row in self.ask(f"""SELECT code, source_crs_code, target_crs_code, name, accuracy, deprecated, {columns} FROM {table}
                WHERE auth_name = 'EPSG' AND source_crs_auth_name = 'EPSG' AND target_crs_auth_name = 'EPSG' {marks} ORDER BY code"""):
            ends = [self.horizontal.get(end, end) for end in row[:2]]
            if all(end in self.geodetic for end in row[:2]) and all(end in self.positions for end in ends):
                self.ends[code] = (row[0] in self.flat and row[1] in self.flat, *ends)
                yield code, tuple(row[2:5]), row[5:]

    def geocentric_ways(self):
        """Translation, rotations, scale, pivot as far as they are not 0, and the epoch of those that depend on time."""
        ways = {}
        columns = """method_code, translation_uom_code, tx, ty, tz, rotation_uom_code, rx, ry, rz, scale_difference_uom_code,
                     scale_difference, pivot_uom_code, px, py, pz, epoch"""
        for code, head, row in self.operations_of("helmert_transformation_table", columns, ()):
            method, metre, *translation = row[:5]
            second, *rotation = row[5:9]
            sense = -1 if method in FRAME_ROTATIONS else 1
            values = [decimal(number) * self.factors[metre] for number in translation]
            if second is not None:
                values += [sense * decimal(number) * SECONDS[second] for number in rotation] + [decimal(row[10]) * MILLIONTHS[row[9]]]
            if row[11] is not None:
                values += [decimal(number) * self.factors[row[11]] for number in row[12:15]]
            ways[code] = (head, "geocentric", values + ([decimal(row[15])] if row[15] is not None else []))
        return ways

    def grid_ways(self):
        """The files' names, and the name and sense of the copy that others hand out."""
        copies = {row[0]: row[1:] for row in self.ask("""SELECT original_grid_name, old_proj_grid_name, inverse_direction
                                                         FROM grid_alternatives WHERE proj_method = 'hgridshift'""")}
        ways = {}
        for code, head, (method, *names) in self.operations_of("grid_transformation", "method_code, grid_name, grid2_name",
                                                               HORIZONTAL_GRIDS):
            copy, reversed_copy = copies.get(names[0], (None, 0))
            grid = (names[0], names[1] or "", copy if copy and copy.endswith((".gsb", ".GSB")) else "", bool(reversed_copy))
            if grid not in self.grids:
                self.grids.append(grid)
            ways[code] = (head, HORIZONTAL_GRIDS[method], [self.grids.index(grid)])
        return ways

    def offset_ways(self):
        """Degrees of longitude and latitude from Greenwich: a change of the meridian that longitudes count from moves nothing."""
        ways = {}
        columns = "method_code, param1_value, param1_uom_code, param2_value, param2_uom_code"
        for code, head, (method, first, unit, second, other_unit) in self.operations_of("other_transformation", columns, OFFSETS):
            _, source, target = self.ends[code]
            if method == 9601:
                east, north = self.exact(first, unit) - self.meridian_of(source) + self.meridian_of(target), 0
            else:
                east, north = self.exact(second, other_unit), self.exact(first, unit)
            moves = abs(east) > 1e-12 or north
            ways[code] = (head, "offsets", [east, Fraction(north)]) if moves else (head, "null", [])
        return ways

    def meridian_of(self, system):
        (longitude, unit), = self.ask(f"""SELECT m.longitude, m.uom_code FROM geodetic_crs s
            JOIN geodetic_datum d ON d.auth_name = 'EPSG' AND d.code = s.datum_code
            JOIN prime_meridian m ON m.auth_name = 'EPSG' AND m.code = d.prime_meridian_code
            WHERE s.auth_name = 'EPSG' AND s.code = {system}""")
        return self.exact(longitude, unit)

    def concatenated_ways(self, known):
        steps = collections.defaultdict(list)
        for code, step in self.ask("""SELECT operation_code, step_code FROM concatenated_operation_step
                                      WHERE operation_auth_name = 'EPSG' ORDER BY operation_code, step_number"""):
            steps[code].append(step)
        return {code: (head, "concatenated", steps[code])
                for code, head, _ in self.operations_of("concatenated_operation", "0", ()) if all(step in known for step in steps[code])}

    def superseded_operations(self):
        """Those that the register replaces by others in force between the same systems, which need no file that may be missing."""
        return {code for code, in self.ask(f"""SELECT s.superseded_code FROM supersession s JOIN coordinate_operation_view o
            ON o.table_name = s.replacement_table_name AND o.auth_name = 'EPSG' AND o.code = s.replacement_code AND o.deprecated = 0
            WHERE s.superseded_auth_name = 'EPSG' AND s.replacement_auth_name = 'EPSG' AND s.same_source_target_crs = 1
            AND s.superseded_table_name IN {OPERATION_TABLES} AND (s.replacement_table_name <> 'grid_transformation'
                                                           OR s.superseded_table_name = 'grid_transformation')""")}

    def write_operations(self, rows):
        shifts = sorted({value for _, _, method, given in rows.values() if method in ("geocentric", "offsets") for value in given})
        shift_at = {value: position for position, value in enumerate(shifts)}
        accuracies = sorted({head[1] for _, head, *_ in rows.values() if head[1] is not None})
        operands = [tuple(shift_at[value] for value in given) if method in ("geocentric", "offsets") else tuple(given)
                    for _, _, method, given in rows.values()]
        pool, start = self.pooled(operands)
        texts = {code: self.text(head[0]) for code, (_, head, *_) in rows.items() if self.number_of(code, head[0]) is None}
        areas = {code: self.area(table, code) for code, (table, *_) in rows.items()}

        def line(code, head, method, given):
            name, accuracy, deprecated = head
            number = self.number_of(code, name)
            flat, source, target = self.ends[code]
            marks = ["deprecated"] * bool(deprecated) + ["superseded"] * (code in self.superseded) + ["flat"] * flat
            said = f"numbered + {number}" if number is not None else texts[code]()
            return (f"{{{said}, {0 if accuracy is None else accuracies.index(accuracy) + 1}, {code}, {self.positions[source]}, "
                    f"{self.positions[target]}, {areas[code]()}, {start[given]}, OperationMethod::{method}, {len(given)}, "
                    f"{' | '.join(marks) or 0}}}, // {name}")

        self.table("operations.h", "Operations from datum to datum.", "inline constexpr OperationRow operations[] = {", lambda: [
            line(code, head, method, given) for (code, (_, head, method, _)), given in zip(rows.items(), operands)])
        self.table("operands.h", "What operations take, one after the other: indices of shifts or of grids, codes of steps.",
                   "inline constexpr std::uint16_t operands[] = {", lambda: [f"{number}," for number in pool])
        self.table("shifts.h", "Every number of an operation: metres, arcseconds, parts per million, years, degrees.",
                   "inline constexpr double shifts[] = {", lambda: [f"{double(value)}," for value in shifts])
        self.table("accuracies.h", "The accuracies that operations state, metres; 0 stands for none stated.",
                   "inline constexpr double accuracies[] = {", lambda: ["-1,"] + [f"{double(decimal(value))}," for value in accuracies])
        grid_texts = [[self.text(name) for name in grid[:3]] for grid in self.grids]
        self.table("grids.h", "Grid files: the register's own, latitudes before longitudes; a copy as NTv2, and whether it runs backwards.",
                   "inline constexpr GridRow grids[] = {", lambda: [
                       f"{{{', '.join(str(place()) for place in places)}, {'true' if grid[3] else 'false'}}}, // {', '.join(filter(None, grid[:3]))}"
                       for grid, places in zip(self.grids, grid_texts)])

    def number_of(self, code, name):
        """The n of an operation named "A to B (n)" after its systems."""
        _, source, target = self.ends[code]
        match = re.fullmatch(r"(.*) to (.*) \((\d+)\)", name)
        return int(match[3]) if match and match[1] == self.systems[source] and match[2] == self.systems[target] else None

    @staticmethod
    def pooled(sequences):
        """One list that has each sequence somewhere, and where."""
        pool, start = [], {}
        for sequence in sorted(set(sequences), key=lambda s: (-len(s), s)):
            size = len(sequence)
            found = next((i for i in range(len(pool) - size + 1) if tuple(pool[i:i + size]) == sequence), len(pool))
            start[sequence] = found
            if found == len(pool):
                pool += sequence
        return pool, start

    # Names

    def read_aliases(self):
        things = [("system", ("projected_crs", "geodetic_crs"), self.systems), ("datum", ("geodetic_datum",), self.datums),
                  ("ellipsoid", ("ellipsoid",), self.ellipsoids), ("meridian", ("prime_meridian",), self.meridians),
                  ("unit", ("unit_of_measure",), self.units)]
        aliases = {thing: self.aliases_of(tables, names) for thing, tables, names in things}
        starts, start_of = beginnings([name for rows in aliases.values() for name, *_ in rows], 256, 30)
        start_texts = [self.text(start) for start in starts]
        self.table("beginnings.h", "The beginnings of aliases.", "inline constexpr Text beginnings[] = {",
                   lambda: [f"{place()}, // {start}" for start, place in zip(starts, start_texts)])
        for thing, _, names in things:
            self.write_names(thing, names)
            self.write_aliases(thing, aliases[thing], starts, start_of)

    def aliases_of(self, tables, names):
        """Other makers' names. Those of the register itself are kept where nothing else has them too, but not the projected
        systems' abbreviations of a system and a conversion, which only lists have."""
        marks = ", ".join(f"'{table}'" for table in tables)
        rows = self.ask(f"""SELECT code, alt_name, source FROM alias_name WHERE auth_name = 'EPSG' AND table_name IN ({marks})
                            AND (source IN ('ESRI', 'PROJ') OR table_name <> 'projected_crs' OR alt_name NOT LIKE '% / %')
                            ORDER BY source = 'EPSG', rowid""")
        if names is self.systems:
            rows += [(NICKNAMES[code], name, "PROJ") for code, name in self.nicknames.items()]
        rows = [row for row in rows if row[0] in names and not row[1].isdigit()]
        owners = collections.defaultdict(set)
        for code, name in names.items():
            owners[key(name)].add(code)
        for code, alias, _ in rows:
            owners[key(alias)].add(code)
        kept, known = [], {(code, key(name)) for code, name in names.items()}
        for code, alias, source in rows:
            first_of_esri = source == "ESRI" and not any(row[1] == code for row in kept)
            new = (code, key(alias)) not in known and (source != "EPSG" or len(owners[key(alias)]) == 1)
            if first_of_esri or new:
                kept.append((alias, code, source))
                known.add((code, key(alias)))
        return kept

    def write_names(self, thing, names):
        codes = sorted(names)
        order = sorted(range(len(codes)), key=lambda i: (key(names[codes[i]]), codes[i]))
        self.table(f"{thing}_names.h", f"The rows of {thing}s by name.", f"inline constexpr std::uint16_t {thing}Names[] = {{",
                   lambda: [f"{i}, // {names[codes[i]]}" for i in order])

    def write_aliases(self, thing, aliases, starts, start_of):
        rows = sorted(enumerate(aliases), key=lambda row: (key(row[1][0]), row[0]))
        texts = {name: self.text(name[len(start_of[name]):]) for name, *_ in aliases}
        self.table(f"{thing}_aliases.h", f"Other names of {thing}s, by name.", f"inline constexpr AliasRow {thing}Aliases[] = {{",
                   lambda: [f"{{{starts.index(start_of[name])}, {texts[name]()}, {code}, Maker::{MAKERS[source]}}}, // {name}"
                            for _, (name, code, source) in rows])

    # Writing

    def write(self, folder):
        self.text.place()
        for file, what, declaration, rows in self.tables:
            self.write_file(folder / file, what, declaration + "\n" + "".join(f"    {row}\n" for row in rows()) + "};\n")
        version = f"EPSG Geodetic Parameter Dataset {self.head['EPSG.VERSION']} of {self.head['EPSG.DATE']}"
        self.write_file(folder / "version.h", "The register's edition and terms.",
                        f'inline constexpr char version[] = "{version}";\ninline constexpr char terms[] =\n    "{TERMS}";\n')
        self.write_file(folder / "pairs.h", "The bytes of texts that stand for two others each; 0, 0 for one that stands for itself.",
                        "inline constexpr unsigned char pairs[256][2] = {\n" + "".join(
                            f"    {{{', '.join(map(str, self.text.pairs.get(byte, (0, 0))))}}},\n" for byte in range(256)) + "};\n")
        lines = "\n".join(f'    "{literal(self.text.packed[text])}\\0" // {text}' for text in self.text.kept)
        self.write_file(folder / "texts.h", "Every name of the register, each ended by a 0, in the bytes of pairs.h.",
                        f"inline constexpr char texts[] =\n{lines}\n    ;\n")

    def write_file(self, path, what, body):
        head = HEAD
        for name, value in self.head.items():
            head = head.replace("{" + name + "}", value)
        path.write_text(head.format(what=what) + body + FOOT.format())


def main():
    register = Register(sys.argv[1])
    register.read()
    register.write(HERE / "register")
    print(f"texts: {register.text.size} bytes")


main()
