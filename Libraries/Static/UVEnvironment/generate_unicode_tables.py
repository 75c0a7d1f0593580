#!/usr/bin/env python3
"""Writes the character tables of the foundation from the files of the Unicode Character Database.

    generate_unicode_tables.py --ucd DIR --release NUMBER OUTPUT

The files are those of Debian's package unicode-data. Another release than NUMBER is refused: what a name or a text
becomes must not depend on the machine that built the library.
"""

import argparse
import pathlib
import re
import sys

CODE_POINTS = 0x110000
PAGE = 64
SPECIAL_CASE = 0x1000000
HANGUL = range(0xAC00, 0xD7A4)

# General types are numbered in the order of their names; case mapping relies on Ll, Lt and Lu being 5, 8 and 9.
TYPES = ("Cc Cf Cn Co Cs Ll Lm Lo Lt Lu Mc Me Mn Nd Nl No Pc Pd Pe Pf Pi Po Ps Sc Sk Sm So Zl Zp Zs").split()
LOWER, TITLE, UPPER = (TYPES.index(name) for name in ("Ll", "Lt", "Lu"))
assert (LOWER, TITLE, UPPER) == (5, 8, 9)

# Case folding is looked up between these two alone; outside them it is the lower case.
FIRST_FOLDING, LAST_FOLDING = 181, 64279


def fields_of(path):
    for line in path.read_text(encoding="utf-8").splitlines():
        line = line.partition("#")[0].strip()
        if line:
            yield [field.strip() for field in line.split(";")]


def code_points_of(text):
    return [int(number, 16) for number in text.split()]


class Database:
    def __init__(self, directory):
        first_line = (directory / "CaseFolding.txt").read_text(encoding="utf-8").splitlines()[0]
        self.release = re.search(r"\d+\.\d+\.\d+", first_line).group()
        self.types = [TYPES.index("Cn")] * CODE_POINTS
        self.classes = [0] * CODE_POINTS
        self.upper, self.lower = {}, {}
        self.decompositions = {}  # code point: (is compatibility, direct decomposition)
        self.read_characters(directory / "UnicodeData.txt")

        self.full_upper, self.full_lower = {}, {}
        for row in fields_of(directory / "SpecialCasing.txt"):
            if len(row) > 4 and row[4]:
                continue  # depends on locale or context
            code_point = int(row[0], 16)
            for full, simple, text in ((self.full_lower, self.lower, row[1]), (self.full_upper, self.upper, row[3])):
                if code_points_of(text) != [simple.get(code_point, code_point)]:
                    full[code_point] = code_points_of(text)

        self.foldings = {int(row[0], 16): code_points_of(row[2])
                         for row in fields_of(directory / "CaseFolding.txt") if row[1] in "CF"}
        self.exclusions = set()
        for row in fields_of(directory / "DerivedNormalizationProps.txt"):
            if row[1] == "Full_Composition_Exclusion":
                first, _, last = row[0].partition("..")
                self.exclusions.update(range(int(first, 16), int(last or first, 16) + 1))

    def read_characters(self, path):
        range_start = None
        for row in fields_of(path):
            code_point = int(row[0], 16)
            if row[1].endswith(", First>"):
                range_start = code_point
                continue
            first = code_point if range_start is None else range_start
            range_start = None
            for member in range(first, code_point + 1):
                self.types[member] = TYPES.index(row[2])
                self.classes[member] = int(row[3])
            if row[5]:
                tag, _, text = row[5].rpartition("> ")
                self.decompositions[code_point] = (bool(tag), code_points_of(text))
            if row[12]:
                self.upper[code_point] = int(row[12], 16)
            if row[13]:
                self.lower[code_point] = int(row[13], 16)

    def decompose(self, code_point, compatibility):
        if code_point not in self.decompositions:
            return [code_point]
        is_compatibility, parts = self.decompositions[code_point]
        if is_compatibility and not compatibility:
            return [code_point]
        return [end for part in parts for end in self.decompose(part, compatibility)]


class CaseTables:
    def __init__(self, database):
        self.special_cases = []
        self.attributes = [0] * CODE_POINTS
        self.title_cases = []
        covered = set()
        for code_point, kind in enumerate(database.types):
            if kind == LOWER:
                self.attributes[code_point] = self.value(database.upper, database.full_upper, code_point)
                covered.add(("upper", code_point))
            elif kind == UPPER:
                self.attributes[code_point] = self.value(database.lower, database.full_lower, code_point)
                covered.add(("lower", code_point))
            elif kind == TITLE:
                self.title_cases.append((code_point,
                                         self.value(database.upper, database.full_upper, code_point) or code_point,
                                         self.value(database.lower, database.full_lower, code_point) or code_point))
                covered.update({("upper", code_point), ("lower", code_point)})
        assert len(self.title_cases) == 31
        # A full mapping in the other direction would be out of every table's reach.
        assert covered >= {("upper", letter) for letter in database.full_upper}
        assert covered >= {("lower", letter) for letter in database.full_lower}

        # Not only what the database folds: a letter that it leaves alone, such as the upper case letters of
        # Cherokee, needs a row too where the lower case is another one.
        self.foldings = []
        for code_point in range(CODE_POINTS):
            folding = database.foldings.get(code_point, [code_point])
            if folding == [self.to_lower(database, code_point)]:
                continue
            assert FIRST_FOLDING <= code_point <= LAST_FOLDING
            text = "".join(map(chr, folding)).encode("utf-8")
            assert len(text) < 8
            self.foldings.append((code_point, text))

    def value(self, simple, full, code_point):
        if code_point not in full:
            return simple.get(code_point, 0)
        offset = len(self.special_cases)
        self.special_cases += [simple.get(code_point, code_point), *full[code_point], 0]
        return SPECIAL_CASE + offset

    def to_lower(self, database, code_point):
        """What the tables give for the lower case of one code point."""
        if database.types[code_point] not in (TITLE, UPPER):
            return code_point
        return database.lower.get(code_point, code_point)


class NormalizationTables:
    def __init__(self, database):
        self.texts = ""
        self.rows = [(0, 0, 0, 0)]
        self.numbers = [0] * CODE_POINTS
        for code_point in database.decompositions:
            canonical = database.decompose(code_point, False)
            compatibility = database.decompose(code_point, True)
            canonical = [] if canonical == [code_point] else canonical
            row = (self.place(canonical), self.place(compatibility), len(canonical), len(compatibility))
            self.numbers[code_point] = len(self.rows)
            self.rows.append(row)
        assert len(self.texts) < 0x10000 and len(self.rows) < 0x10000

        self.compositions = []
        for code_point, (is_compatibility, parts) in database.decompositions.items():
            if not is_compatibility and code_point not in database.exclusions:
                self.compositions.append((*parts, code_point))
        self.compositions.sort()
        # Composing passes over a code point below U+0300 without a look.
        assert min(second for _, second, _ in self.compositions) == 0x300
        assert not any(database.classes[code_point] for code_point in range(0x300))
        assert not any(code_point in database.decompositions for code_point in HANGUL)

    def place(self, code_points):
        text = "".join(map(chr, code_points))
        offset = self.texts.find(text)
        if offset < 0:
            offset = len(self.texts)
            self.texts += text
        return offset


class Writer:
    def __init__(self):
        self.lines = []

    def line(self, text=""):
        self.lines.append(text)

    def numbers(self, values, indent):
        """Comma-separated numbers in lines of at most 110 columns."""
        line = " " * indent
        for value in values:
            text = f"{value},"
            if len(line) + len(text) > 110:
                self.line(line)
                line = " " * indent
            line += text
        self.line(line)

    def two_level(self, function, value_type, values):
        numbers, pages, blocks = {}, [], []
        for start in range(0, CODE_POINTS, PAGE):
            block = tuple(values[start:start + PAGE])
            if block not in numbers:
                numbers[block] = len(blocks)
                blocks.append(block)
            pages.append(numbers[block])
        page_type = "std::uint8_t" if len(blocks) <= 256 else "std::uint16_t"
        name = "k" + function
        self.line(f"constinit const STwoLevel<{value_type}, {page_type}, {len(blocks)}> {name} = {{")
        self.line("    {{")
        self.numbers(pages, 8)
        self.line("    }},")
        self.line("    {{")
        for block in blocks:
            self.line("        {{")
            self.numbers(block, 12)
            self.line("        }},")
        self.line("    }},")
        self.line("};")
        self.line()
        return f"{value_type} {function}At(char32_t codePoint)\n{{\n    return {name}.At(codePoint);\n}}"

    def rows(self, name, row_type, rows):
        local = "k" + name[0].upper() + name[1:]
        self.line(f"constexpr {row_type} {local}[] = {{")
        for row in rows:
            self.line(f"    {{{', '.join(row)}}},")
        self.line("};")
        self.line()
        return f"constinit const std::span<const {row_type}> {name}{{{local}}};"

    def plain(self, name, values):
        local = "k" + name[0].upper() + name[1:]
        self.line(f"constexpr char32_t {local}[] = {{")
        self.numbers([f"0x{value:X}" for value in values], 4)
        self.line("};")
        self.line()
        return f"constinit const std::span<const char32_t> {name}{{{local}}};"


def octal(text):
    return '"' + "".join(f"\\{byte:03o}" for byte in text) + '"'


def generate(database):
    cases = CaseTables(database)
    normalization = NormalizationTables(database)
    out = Writer()
    out.line(f"// Written by generate_unicode_tables.py from release {database.release} of the database.")
    out.line('#include "UVEnvironment/UVEUnicodeTables.h"')
    out.line()
    out.line("// clang-format off")
    out.line("namespace Uve::Tables {")
    out.line("namespace {")
    out.line()
    functions = [out.two_level("Type", "std::uint8_t", database.types),
                 out.two_level("Attribute", "std::uint32_t", cases.attributes),
                 out.two_level("CombiningClass", "std::uint8_t", database.classes),
                 out.two_level("Decomposition", "std::uint16_t", normalization.numbers)]
    spans = [out.plain("specialCases", cases.special_cases),
             out.rows("titleCases", "STitleCase", ([f"0x{value:X}" for value in row] for row in cases.title_cases)),
             out.rows("foldings", "SFolding", ((f"0x{row[0]:X}", octal(row[1])) for row in cases.foldings)),
             out.rows("decompositions", "SDecomposition", (map(str, row) for row in normalization.rows)),
             out.plain("decompositionTexts", map(ord, normalization.texts)),
             out.rows("compositions", "SComposition",
                      ([f"0x{value:X}" for value in row] for row in normalization.compositions))]
    out.line("} // namespace")
    out.line()
    for text in functions:
        out.line(text)
        out.line()
    for text in spans:
        out.line(text)
    out.line()
    out.line("} // namespace Uve::Tables")
    return "\n".join(out.lines) + "\n"


def main():
    options = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    options.add_argument("--ucd", type=pathlib.Path, required=True, help="folder of the database")
    options.add_argument("--release", required=True, help="the release that it must be of")
    options.add_argument("output", type=pathlib.Path)
    arguments = options.parse_args()

    database = Database(arguments.ucd)
    if database.release != arguments.release:
        print(f"{arguments.ucd} holds release {database.release} of the Unicode Character Database, and not "
              f"{arguments.release}; -D UV_UNICODE_DATA_DIR=DIR names a folder with the files of that release")
        return 1
    arguments.output.write_text(generate(database), encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
