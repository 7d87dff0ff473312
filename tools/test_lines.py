#!/usr/bin/env python3
"""Lines of tests against lines of code, by subsystem: test_lines.py [ROOT]

Code are the .h and .cpp files below src/, tests the .h, .cpp, .py and .sh files below tests/; a folder of tests goes with
the folder of src of the same name. Ends with status 1 where all tests together are more than LIMIT of the code. A second
figure counts every file below tests/, kept outputs and pages too, but no pictures.
"""
import collections
import pathlib
import sys

LIMIT = 34  # percent
CODE = {".h", ".cpp"}
TESTS = CODE | {".py", ".sh"}
PICTURES = {".png", ".gif", ".jpg", ".bmp", ".ico", ".pyc"}


def lines_by_folder(top, suffixes):
    """Of the files with these suffixes, or of all but pictures where none is given."""
    counts = collections.Counter()
    for path in top.rglob("*"):
        if path.is_file() and (path.suffix in suffixes if suffixes else path.suffix not in PICTURES):
            folder = path.relative_to(top).parent.as_posix()
            counts[folder] += path.read_text(errors="replace").count("\n")
    return counts


def main():
    root = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else pathlib.Path(__file__).resolve().parent.parent
    code, tests = lines_by_folder(root / "src", CODE), lines_by_folder(root / "tests", TESTS)
    if not code or not tests:
        sys.exit(f"test_lines: nothing found below {root}")
    print(f"{'folder':<24}{'code':>8}{'tests':>8}")
    for folder in sorted(code.keys() | tests.keys()):
        share = f"{100 * tests[folder] / code[folder]:6.0f}%" if code[folder] and tests[folder] else ""
        print(f"{folder:<24}{code[folder]:>8}{tests[folder]:>8}{share}")
    share = 100 * tests.total() / code.total()
    print(f"{'all':<24}{code.total():>8}{tests.total():>8}{share:6.1f}%, at most {LIMIT}%")
    every = lines_by_folder(root / "tests", None).total()
    print(f"{'all, with kept outputs':<24}{code.total():>8}{every:>8}{100 * every / code.total():6.1f}%")
    if share > LIMIT:
        sys.exit(f"test_lines: the tests are {share:.1f}% of the code; take weaker ones away")


if __name__ == "__main__":
    main()
