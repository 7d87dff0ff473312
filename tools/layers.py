#!/usr/bin/env python3
"""Checks the order of layers in src/: layers.py [SRC]

A file may include files of lower layers, and of its own layer within its subsystem (top folder). Each other include is
printed with file, line and rule. The exit status is then 1.
"""
import pathlib
import re
import sys

# The lowest layer first; each line is one layer. A file belongs to the deepest listed folder that contains the file.
ORDER = [
    ["text"],
    ["platform"],
    ["platform/files"],
    ["platform/qt", "platform/qt/desktop", "platform/qt/frames"],
    ["platform/qt/textbox", "platform/qt/filelists", "platform/qt/controls", "platform/printer"],
    ["shell"],
    ["files"],
    ["texttools", "html", "ciphers", "accessories"],
    ["shell/windows/main", "shell/services"],
    ["shell/windows"],
    ["files/windows"],
    ["texttools/windows", "html/dialogs", "html/browser", "html/engine", "ciphers/windows", "accessories/windows"],
    ["program"],
    ["main.cpp"],
]
RANK = {folder: rank for rank, row in enumerate(ORDER) for folder in row}
INCLUDE = re.compile(r'\s*#include "([^"]+)"')


def layer(path):
    """The deepest listed folder that contains a path in src/, or None."""
    parts = path.split("/")
    for count in range(len(parts), 0, -1):
        if "/".join(parts[:count]) in RANK:
            return "/".join(parts[:count])
    return None


def fault(source, target):
    """The rule broken if `source` includes `target`, or None."""
    above, below = layer(source), layer(target)
    if above is None or below is None:
        return f"{source if above is None else target} lies in no layer"
    if RANK[below] > RANK[above]:
        return f"{above} lies below {below}: an include never leads up"
    if RANK[below] == RANK[above] and above.split("/")[0] != below.split("/")[0]:
        return f"{above} and {below} are neighbours: an include never leads sideways"
    return None


def main():
    src = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).resolve().parent.parent / "src")
    includes = faults = 0
    for path in sorted(p for p in src.rglob("*") if p.suffix in (".h", ".cpp")):
        source = path.relative_to(src).as_posix()
        for number, line in enumerate(path.read_text().split("\n"), 1):
            match = INCLUDE.match(line)
            if not match or not (src / match[1]).is_file():
                continue  # a system header, or one generated from a form
            includes += 1
            wrong = fault(source, match[1])
            if wrong:
                faults += 1
                print(f"src/{source}:{number}: includes {match[1]}: {wrong}")
    if not includes:
        sys.exit(f"layers: no includes found below {src}")
    print(f"layers: {includes} includes, {faults} against the order")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
