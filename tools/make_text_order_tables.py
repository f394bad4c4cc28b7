#!/usr/bin/env python3
"""Writes platform/record_store/Text_Order_Tables.cpp: the facts of Unicode that the order of texts
rests on. The file is committed; indexes on stored texts depend on it, so a new version of the facts
means a new Schema_Version.

Usage: tools/make_text_order_tables.py > platform/record_store/Text_Order_Tables.cpp
"""
import sys
import unicodedata

HANGUL = range(0xAC00, 0xAC00 + 11172)  # decomposed by arithmetic
CHARACTERS = [c for c in range(sys.maxunicode + 1) if not 0xD800 <= c <= 0xDFFF]


def decompositions():
    for c in CHARACTERS:
        text = unicodedata.normalize("NFD", chr(c))
        if c not in HANGUL and text != chr(c):
            yield c, text


def foldings():
    """Full case folding of what is left after decomposition, decomposed once more."""
    for c in CHARACTERS:
        text = unicodedata.normalize("NFD", chr(c).casefold())
        if unicodedata.normalize("NFD", chr(c)) == chr(c) and text != chr(c):
            yield c, text


def classes():
    """Runs of neighbouring characters with one combining class."""
    runs = []
    for c in CHARACTERS:
        ccc = unicodedata.combining(chr(c))
        if not ccc:
            continue
        if runs and runs[-1][1] == c - 1 and runs[-1][2] == ccc:
            runs[-1][1] = c
        else:
            runs.append([c, c, ccc])
    return runs


def rows(items):
    line = "   "
    for item in items:
        if len(line) + len(item) > 96:
            yield line
            line = "   "
        line += " " + item + ","
    yield line


def table(name, kind, items):
    print(f"const {kind} {name}[] = {{")
    print("\n".join(rows(items)))
    print("};\n")


def mapping(name, pairs):
    pool, items = "", []
    for c, text in pairs:
        at = pool.find(text)
        if at < 0:
            at, pool = len(pool), pool + text
        items.append(f"{{0x{c:X}, {at}, {len(text)}}}")
    table(f"{name}_entries", "Mapping_Entry", items)
    table(f"{name}_pool", "char32_t", [f"0x{ord(c):X}" for c in pool])
    print(f"const std::span<const Mapping_Entry> {name}s{{{name}_entries}};\n")


print(f"// Made by tools/make_text_order_tables.py from Unicode {unicodedata.unidata_version}."
      " Not edited by hand.")
print("// clang-format off")
print('#include "platform/record_store/Text_Order_Tables.h"\n')
print("namespace Text_Order {\n")
mapping("decomposition", decompositions())
mapping("folding", foldings())
table("class_entries", "Class_Run", [f"{{0x{a:X}, 0x{b:X}, {c}}}" for a, b, c in classes()])
print("const std::span<const Class_Run> combining_classes{class_entries};\n")
print("}  // namespace Text_Order")
