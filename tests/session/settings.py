"""The program's settings record, for tests that need the program in a known state at its start."""

import struct


def _text(value):
    data = value.encode("cp1250")
    return struct.pack("<H", len(data)) + data


def settings_record(*, width=12000, height=9000, top=300, left=300, user_name="Jan", show_start=False, window_state=0):
    """The bytes of pelmar.ini. Lengths in twips; with the defaults the program starts without a question."""
    nothing = _text("")
    return b"".join((
        struct.pack("<iiiih", width, height, top, left, 0), _text("DejaVu Sans Mono"),
        struct.pack("<iiBhh", 0, 0xFFFFFF, 10, 0, 0), _text(user_name), _text("jan@example.cz"),
        struct.pack("<hi", -show_start, 240), nothing, 10 * nothing,  # no password, no recent files
        struct.pack("<ih", window_state, 0)))


def write_settings(data_folder, **fields):
    data_folder.mkdir(parents=True, exist_ok=True)
    (data_folder / "pelmar.ini").write_bytes(settings_record(**fields))
