#!/usr/bin/env python3
"""Checks docs/WINDOWS.md, the index of the windows: windows_index.py [--write]

A person writes the first column (the files) and the fourth (the commands). The title, the object's name and the menu
path come from the form, its .cpp file and src/shell/menu_table.cpp. --write fills in these three columns, and adds
whole rows for new forms.
"""
import pathlib
import re
import sys
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent
INDEX = ROOT / "docs" / "WINDOWS.md"
HEADER = ["Files", "Window", "Title", "Commands", "Menu path"]
NAMED = re.compile(r'^  setObjectName\(QStringLiteral\("(.*)"\)\);', re.MULTILINE)
FILES = re.compile(r"`src/([\w/]+)\.\{([\w,]+)\}`")


def windows_of_forms():
    """Maps each form that is a window, by its path below src/ without ".ui", to its class, object name and title.

    The constructor sets an object name with accents, because Qt Designer can't store it."""
    found = {}
    for form in sorted((ROOT / "src").rglob("*.ui")):
        widget = xml.etree.ElementTree.parse(form).getroot().find("widget")
        title = widget.findtext("property[@name='windowTitle']/string")
        if title is not None:
            path = form.relative_to(ROOT / "src").with_suffix("").as_posix()
            source = form.with_suffix(".cpp")
            named = NAMED.search(source.read_text()) if source.is_file() else None
            found[path] = (widget.get("name"), named[1] if named else widget.get("name"), " ".join(title.split()))
    return found


def plain(caption):
    """A caption as a person sees it: "&" marks the access key, and "&&" is one "&"."""
    return re.sub(r"&(.)", r"\1", caption)


def paths_of_commands():
    """Maps each menu item to the captions that lead to it, and each toolbar button to its tip."""
    table = (ROOT / "src/shell/menu_table.cpp").read_text()
    paths, above = {}, []
    for level, name, caption in re.findall(r'\{(\d), "(\w+)", "((?:[^"\\]|\\.)*)"', table):
        above[int(level):] = [plain(re.sub(r"\\(.)", r"\1", caption))]
        paths[name] = " > ".join(above)
    for key, tip in re.findall(r'\{"(\w+)", "([^"]*)", "\w+"', table):
        paths[key] = f'toolbar "{tip}"'
    return paths


def registered_commands():
    """Maps each window class, in lower case, to the commands given to parts.Add and parts.ShowBy."""
    found = {}
    for source in (ROOT / "src").rglob("*_windows.cpp"):
        for window, names in re.findall(r"parts\.(?:Add|ShowBy)<(\w+)>\(\{([^}]*)\}", source.read_text()):
            found.setdefault(window.lower(), set()).update(re.findall(r'"(\w+)"', names))
    return found


def menu_first(command):
    """The sort key of the commands in a cell: menu items, then toolbar buttons."""
    return not command.lower().startswith("mnu"), command.lower()


def read_rows(text):
    """The cells of each row, without the two lines of the table's head."""
    rows = [[cell.strip() for cell in line.strip().strip("|").split("|")] for line in text.split("\n")
            if line.startswith("|")]
    return rows[2:]


def expected(row, forms, paths, registered):
    """The row as the code requires it, and the faults of its files and commands."""
    faults = []
    match = FILES.fullmatch(row[0])
    if not match:
        return row, [f"{row[0]}: the first cell is `src/FOLDER/NAME.{{ui,h,cpp}}`"]
    for suffix in match[2].split(","):
        if not (ROOT / "src" / f"{match[1]}.{suffix}").is_file():
            faults.append(f"src/{match[1]}.{suffix} doesn't exist")
    window, name, title = forms.get(match[1], ("", row[1].strip("`"), row[2]))
    commands = [] if row[3].startswith("opened by") else re.findall(r"`(\w+)`", row[3])
    if not row[3]:
        faults.append(f"{row[0]}: no command, nor \"opened by\" another window")
    faults += [f"{row[0]}: {command} is in no menu" for command in commands if command not in paths]
    path = "; ".join(paths[command] for command in commands if command in paths)
    missing = registered.get(window.lower(), set()) - set(commands)
    faults += [f"{row[0]}: {command} shows the window and isn't named" for command in sorted(missing)]
    return [row[0], f"`{name}`", title, row[3], path], faults


def main():
    text, forms, paths = INDEX.read_text(), windows_of_forms(), paths_of_commands()
    rows, write = read_rows(text), "--write" in sys.argv[1:]
    listed = {row[0] for row in rows}
    new = [f"`src/{form}.{{ui,h,cpp}}`" for form in forms if f"`src/{form}.{{ui,h,cpp}}`" not in listed]
    faults = [] if write else [f"{files} has no row" for files in new]
    registered = registered_commands()
    if write:
        for files in new:
            names = registered.get(forms[FILES.fullmatch(files)[1]][0].lower(), set())
            rows.append([files, "", "", ", ".join(f"`{name}`" for name in sorted(names, key=menu_first)), ""])
    result = []
    for row in rows:
        right, wrong = expected(row, forms, paths, registered)
        faults += wrong
        if not write and right != row:
            faults.append(f"{row[0]}: {row} should be {right}")
        result.append(right)
    if write:
        table = [HEADER, ["---"] * len(HEADER)] + sorted(result)
        lines = "\n".join("| " + " | ".join(row) + " |" for row in table)
        INDEX.write_text(text.split("\n|")[0].rstrip() + "\n\n" + lines + "\n")
    names = {row[1] for row in result}
    faults += [f"{row[0]}: {name} is no window" for row in result if row[3].startswith("opened by")
               for name in re.findall(r"`\w+`", row[3]) if name not in names]
    for fault in faults:
        print(f"docs/WINDOWS.md: {fault}")
    print(f"windows_index: {len(result)} windows, {len(faults)} faults")
    return 1 if faults or not result else 0


if __name__ == "__main__":
    sys.exit(main())
