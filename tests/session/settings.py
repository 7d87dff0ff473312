"""The program's settings record, for tests that need the program in a known state at its start."""

import struct


def _text(value):
    data = value.encode("cp1250")
    return struct.pack("<H", len(data)) + data


def settings_record(*, width=12000, height=9000, top=300, left=300, always_on_top=False, font="DejaVu Sans Mono",
                    fore_color=0, back_color=0xFFFFFF, font_size=10, bold=False, italic=False, user_name="Jan",
                    user_email="jan@example.cz", show_start=False, snap_distance=240, lock_password="",
                    recent_files=(), window_state=0, line_counting=False):
    """The bytes of pelmar.ini. Lengths in twips; with the defaults the program starts without a question."""
    recent = [*recent_files, *[""] * 10][:10]
    return b"".join((
        struct.pack("<iiiih", width, height, top, left, -always_on_top), _text(font),
        struct.pack("<iiBhh", fore_color, back_color, font_size, -bold, -italic), _text(user_name), _text(user_email),
        struct.pack("<hi", -show_start, snap_distance), _text(lock_password), *map(_text, recent),
        struct.pack("<ih", window_state, -line_counting)))


def write_settings(data_folder, **fields):
    data_folder.mkdir(parents=True, exist_ok=True)
    (data_folder / "pelmar.ini").write_bytes(settings_record(**fields))
