"""Pages read back through the program's own browser module, as a person would see them."""

import json
import os
import subprocess

from harness import built

READER = built("tests/page_reader")


def read_pages(*files, linger=0, **environment):
    """For each file a dictionary with "title", "text" (the visible words) and "address". Each stays for `linger` ms."""
    done = subprocess.run([READER, "--linger", str(linger), *map(str, files)], stdout=subprocess.PIPE, timeout=60 + 5 * len(files),
                          env={**os.environ, "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "offscreen", **environment})
    if done.returncode:
        raise AssertionError(f"page_reader ended with status {done.returncode}")
    return json.loads(done.stdout)
