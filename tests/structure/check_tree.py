#!/usr/bin/env python3
"""Checks on the tree of sources that no compiler makes: check_tree.py CHECK ROOT

CHECK is one of
  core_without_qt  no file of the core includes a header of Qt, so that it builds without it
  file_length      no source file is longer than 600 lines, tables aside
  header_comments  each header opens with a comment that says what it is
  self             the checks find what they look for, in a tree made for it

Prints a line for each fault and ends with 1 if there is any.
"""

import re
import sys
import tempfile
from pathlib import Path

# Tests are not among them: a test file is as long as its tables of cases.
SOURCES = ("src", "bench", "fuzz")
SUFFIXES = {".h", ".cpp"}

LONGEST = 600
# Files that are one table, and are read as one: code tables and tables of fields.
TABLES = re.compile(r"(CodeTables|\w*Fields)\.(h|cpp)$")

QT_INCLUDE = re.compile(r'\s*#\s*include\s*[<"](Qt?[A-Z]\w*(/|[>"])|q[a-z]+\.h|ui_)')


def source_files(root, folders):
    for folder in folders:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in SUFFIXES and path.is_file():
                yield path, path.read_text(encoding="utf-8").splitlines()


def core_without_qt(root):
    # Windows stand in the folders of what they show: forms, frmSynopMap.cpp, and what else needs
    # Qt, QtForm.cpp. The main of the desktop program is no core either.
    for path, lines in source_files(root, ("src",)):
        if path.name.startswith(("frm", "Qt")) or path.name == "zephyrgram_main.cpp":
            continue
        for number, line in enumerate(lines, 1):
            if QT_INCLUDE.match(line):
                yield f"{path}:{number}: {line.strip()}"


def file_length(root):
    for path, lines in source_files(root, SOURCES):
        if len(lines) > LONGEST and not TABLES.search(path.name):
            yield f"{path}: {len(lines)} lines"


def header_comments(root):
    for path, lines in source_files(root, ("src",)):
        if path.suffix == ".h" and not (lines and re.match(r"// \S", lines[0])):
            yield f"{path}: opens with {lines[0] if lines else 'nothing'!r}"


CHECKS = {check.__name__: check for check in (core_without_qt, file_length, header_comments)}

# Name of the file, its content, and the checks that object to it.
CASES = [
    ("src/text/Good.h", "// Good.\n#include <string>\n#include <Quiet.h>\n", set()),
    ("src/text/Angle.cpp", "#include <QString>\n", {"core_without_qt"}),
    ("src/maps/Folder.cpp", " #  include <QtWidgets/QLabel>\n", {"core_without_qt"}),
    ("src/batch/Quoted.cpp", '#include "QApplication"\n', {"core_without_qt"}),
    ("src/shell/Lower.cpp", "#include <qglobal.h>\n", {"core_without_qt"}),
    ("src/maps/frmSynopMap.cpp", "#include <QWidget>\n", set()),
    ("src/views/QtModel.cpp", "#include <QAbstractTableModel>\n", set()),
    ("src/views/Model.cpp", "#include <QAbstractTableModel>\n", {"core_without_qt"}),
    ("src/decode/Long.cpp", "\n" * 601, {"file_length"}),
    ("src/decode/JustNot.cpp", "\n" * 600, set()),
    ("src/tables/CodeTables.h", "// Tables.\n" + "\n" * 900, set()),
    ("tests/decode/Long_test.cpp", "\n" * 601, set()),
    ("src/stations/Bare.h", "#pragma once\n", {"header_comments"}),
    ("src/stations/Empty.h", "", {"header_comments"}),
]


def self(_root):
    with tempfile.TemporaryDirectory() as folder:
        for name, content, _ in CASES:
            path = Path(folder) / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(content, encoding="utf-8")
        for check in list(CHECKS.values()):
            faults = list(check(Path(folder)))
            for name, _, objections in CASES:
                found = any(fault.startswith(f"{folder}/{name}:") for fault in faults)
                if found != (check.__name__ in objections):
                    yield f"{check.__name__} {'objects' if found else 'does not object'} to {name}"


def main():
    check, root = sys.argv[1:]
    faults = list((self if check == "self" else CHECKS[check])(Path(root)))
    print("\n".join(faults) or "no faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
