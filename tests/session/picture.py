"""Pictures of the screen, asked where their colours are."""

import subprocess
from typing import NamedTuple


class Box(NamedTuple):
    """Pixels from the picture's top left corner; right and bottom are the last ones inside."""
    left: int
    top: int
    right: int
    bottom: int

    @property
    def size(self):
        return self.right - self.left + 1, self.bottom - self.top + 1

    @property
    def middle(self):
        return (self.left + self.right) // 2, (self.top + self.bottom) // 2

    def holds(self, other):
        return (self.left <= other.left and self.top <= other.top and other.right <= self.right
                and other.bottom <= self.bottom)


class Picture:
    """What a window shows on the session's screen, without its frame. Colours are written "#ff0000"."""

    def __init__(self, session, window):
        done = subprocess.run(["import", "-window", window.id, "-depth", "8", "ppm:-"], env=session.env,
                              stdout=subprocess.PIPE, timeout=20, check=True)
        kind, size, depth, self.pixels = done.stdout.split(b"\n", 3)
        if (kind, depth) != (b"P6", b"255"):
            raise AssertionError("not the kind of picture that was asked for")
        self.width, self.height = map(int, size.split())

    def color(self, x, y):
        at = 3 * (y * self.width + x)
        return "#" + self.pixels[at:at + 3].hex()

    def box(self, color):
        """The smallest box around all pixels of this colour, or None where there is none."""
        wanted = bytes.fromhex(color[1:])
        rows = [self.pixels[3 * y * self.width:3 * (y + 1) * self.width] for y in range(self.height)]
        lefts, rights, tops = [], [], []
        for y, row in enumerate(rows):
            columns = [x for x in range(self.width) if row[3 * x:3 * x + 3] == wanted] if wanted in row else []
            if columns:
                lefts.append(columns[0])
                rights.append(columns[-1])
                tops.append(y)
        return Box(min(lefts), tops[0], max(rights), tops[-1]) if tops else None
