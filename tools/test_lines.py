#!/usr/bin/env python3
"""Compares the lines of tests with the lines of code in each folder: test_lines.py [ROOT]

Code: .h and .cpp files of src/. Tests: all files of tests/ except pictures and compiled Python.
Exits with status 1 if the tests have more than LIMIT percent of the code's lines.
"""
import collections
import pathlib
import sys

LIMIT = 33.4  # percent, a third
CODE = {".h", ".cpp"}
PICTURES = {".png", ".gif", ".jpg", ".bmp", ".ico", ".pyc"}


def lines_by_folder(top, counts_file):
    counts = collections.Counter()
    for path in top.rglob("*"):
        if path.is_file() and counts_file(path):
            counts[path.relative_to(top).parent.as_posix()] += path.read_text(errors="replace").count("\n")
    return counts


def main():
    root = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else pathlib.Path(__file__).resolve().parent.parent
    code = lines_by_folder(root / "src", lambda path: path.suffix in CODE)
    tests = lines_by_folder(root / "tests", lambda path: path.suffix not in PICTURES)
    if not code or not tests:
        sys.exit(f"test_lines: nothing found below {root}")
    print(f"{'folder':<24}{'code':>8}{'tests':>8}")
    for folder in sorted(code.keys() | tests.keys()):
        share = f"{100 * tests[folder] / code[folder]:6.0f}%" if code[folder] and tests[folder] else ""
        print(f"{folder:<24}{code[folder]:>8}{tests[folder]:>8}{share}")
    share = 100 * tests.total() / code.total()
    print(f"{'all':<24}{code.total():>8}{tests.total():>8}{share:6.1f}%, at most {LIMIT}%")
    if share > LIMIT:
        sys.exit(f"test_lines: the tests are {share:.1f}% of the code; take weaker ones away")


if __name__ == "__main__":
    main()
