"""The accessories that put text into the document, and the calculator alone, with the real program: the keyboard on the
screen by mouse and by real keys, a number from the calculator, characters from the table, and "-CALC" from the shell."""

import sys
import unittest

sys.dont_write_bytecode = True
from harness import Session, built  # noqa: E402
from settings import write_settings  # noqa: E402

PROGRAM = built("pelmar-vex")
HAND_OVER = (416, 255)  # the button "Vlož", or "Clip", of the calculator


class AccessoriesTest(unittest.TestCase):
    def setUp(self):
        self.session = Session()
        self.session.__enter__()
        self.addCleanup(self.session.__exit__)
        write_settings(self.session.data_folder)

    def start(self):
        self.session.start(PROGRAM, "-NOMSG")
        main = self.session.wait_window("Pelmar VEX ()")
        self.session.activate(main)
        return main

    def saved_text(self, main):
        """Ends the editor and gives the text that it leaves behind."""
        self.session.activate(main)
        self.session.close(main)
        self.session.activate(self.session.wait_window("Konec"))
        self.session.key("Return")
        self.assertEqual(self.session.wait_exit(), 0)
        return (self.session.data_folder / "autosave_pelmar_vex.txt").read_bytes().decode("cp1250")

    def open(self, title, *keys):
        self.session.key(*keys)
        window = self.session.wait_window(title)
        self.session.activate(window)
        return window

    def test_keyboard_on_the_screen(self):
        session = self.session
        # With a text there from the first moment all items of the menu are on, so counting from its end is safe.
        (session.data_folder / "autosave_pelmar_vex.txt").write_bytes(b"ab")
        session._run("setxkbmap", "cz")  # with dead keys
        main = self.start()
        keyboard = self.open("Klávesnice", "alt+s", *["Up"] * 8, "Return")
        session.click(keyboard, 190, 30)  # č
        session.click(keyboard, 60, 150)  # Shift
        session.click(keyboard, 190, 30)
        session.wait_until(lambda: session.title(main) == "Pelmar VEX ()*", "the mark of the changed document")
        session.key("x", "space")
        session.click(keyboard, 560, 150)  # Shift off
        session.key("y", "dead_caron", "n")
        session.shot("keyboard")
        session.key("Escape")
        session.wait_no_window("Klávesnice")
        session.key("z", window=main)
        self.assertEqual(self.saved_text(main), "čČX yňzab")

    def test_calculator_hands_its_number_over(self):
        session = self.session
        main = self.start()
        session.type("= ")
        calculator = self.open("Pelmar VEX - Kalkulátor", "F7")
        session.type("12,5*")
        session.key("KP_2", "KP_Enter")
        session.click(calculator, *HAND_OVER)
        session.shot("calculator")
        session.key("Escape")
        session.wait_no_window("Pelmar VEX - Kalkulátor")
        # Hidden, not unloaded: the number is still there.
        session.activate(main)
        calculator = self.open("Pelmar VEX - Kalkulátor", "F7")
        session.key("BackSpace")
        session.click(calculator, *HAND_OVER)
        session.close(calculator)
        session.wait_no_window("Pelmar VEX - Kalkulátor")
        session.activate(main)
        calculator = self.open("Pelmar VEX - Kalkulátor", "F7")
        session.click(calculator, *HAND_OVER)
        session.key("Escape")
        self.assertEqual(self.saved_text(main), "= 2520")

    def test_character_table_gives_keys_to_the_main_window(self):
        session = self.session
        main = self.start()
        session.type("abc")
        session.key("shift+Home")
        table = self.open("vložení ASCII kódu", "alt+v", "Up", "Return")
        session.type("x\nyz")
        session.key("BackSpace")
        session.click(table, 12 + 26 * 8 + 13, 12 + 24 * 12 + 12)  # 0xC8
        session.shot("characters")
        session.key("Escape")
        session.wait_no_window("vložení ASCII kódu")
        self.assertEqual(self.saved_text(main), "x\r\nyČ")

    def test_calculator_alone(self):
        session = self.session
        before = {one.name: one.read_bytes() for one in session.data_folder.iterdir() if one.is_file()}
        session.start(PROGRAM, "-calc")
        calculator = session.wait_window("Pelmar VEX - Kalkulátor")
        session.activate(calculator)
        self.assertEqual([title for title in session.titles() if title.startswith("Pelmar")], ["Pelmar VEX - Kalkulátor"])
        session.type("2^10=")
        session.click(calculator, *HAND_OVER)
        session.wait_until(lambda: session.clipboard() == "1024", "the number on the clipboard")
        session.shot("calculator-alone")
        for end in (lambda: session.key("alt+q"), lambda: session.close(calculator)):
            end()
            session.activate(session.wait_window("Konec"))
            session.key("Return")  # No
            session.wait_no_window("Konec")
            calculator = session.wait_window("Pelmar VEX - Kalkulátor")
            session.activate(calculator)
        session.key("alt+q")
        session.activate(session.wait_window("Konec"))
        session.shot("calculator-question")
        session.key("Left", "Return")
        self.assertEqual(session.wait_exit(), 0)
        after = {one.name: one.read_bytes() for one in session.data_folder.iterdir() if one.is_file()}
        self.assertEqual(after, before)


if __name__ == "__main__":
    unittest.main()
