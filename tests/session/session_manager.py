"""The desktop's session manager as far as a program at the end of the session meets it, by the bytes of its protocol:
the client that registers is asked to save itself, at the end once more, and is told to die when it has."""

import socket
import struct
import threading

# Minor opcodes, of connections (whose major one is 0) and of sessions.
BYTE_ORDER, SETUP, REPLY, PROTOCOL_SETUP, PROTOCOL_REPLY = 1, 2, 6, 7, 8
REGISTER, REGISTERED, SAVE_YOURSELF, SAVED, DIE = 1, 2, 3, 8, 9
SESSIONS = 1  # the major one that is answered with
SAVE_LOCAL, SAVE_AND_SHUT_DOWN = bytes([1]), bytes([0, 1])


def array(data):
    """As the protocol has it: a length before it, filled up to eight bytes."""
    data = struct.pack("<I", len(data)) + data
    return data + bytes(-len(data) % 8)


class SessionManager:
    """The client finds it by `address` in SESSION_MANAGER. `heard` is all that the client has told."""

    def __init__(self, folder):
        self.saves, self.ending, self.heard = 0, False, b""
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.bind(str(folder / "session"))
        self.socket.listen()
        self.address = f"unix/{socket.gethostname()}:{folder}/session"
        threading.Thread(target=self.serve, daemon=True).start()

    def send(self, major, minor, data=b"", opcode=0):
        data += bytes(-len(data) % 8)
        self.client.sendall(struct.pack("<BBBBI", major, minor, 0, opcode, len(data) // 8) + data)

    def serve(self):
        with self.socket, self.socket.accept()[0] as self.client, self.client.makefile("rb") as messages:
            while header := messages.read(8):
                self.answer(*struct.unpack("<BBxxI", header), messages)

    def answer(self, major, minor, length, messages):
        names = 2 * struct.pack("<H2s", 2, b"ok")  # of a maker and a version
        self.heard += messages.read(8 * length)
        if major == 0 and minor == BYTE_ORDER:
            self.send(0, BYTE_ORDER)
        elif major == 0 and minor == SETUP:
            self.send(0, REPLY, names)
        elif major == 0 and minor == PROTOCOL_SETUP:
            self.send(0, PROTOCOL_REPLY, names, opcode=SESSIONS)
        elif major and minor == REGISTER:
            self.send(SESSIONS, REGISTERED, array(b"client"))
            self.send(SESSIONS, SAVE_YOURSELF, SAVE_LOCAL)
        elif major and minor == SAVED:
            self.saves += 1
            if self.ending:
                self.send(SESSIONS, DIE)

    def end_session(self):
        self.ending = True
        self.send(SESSIONS, SAVE_YOURSELF, SAVE_AND_SHUT_DOWN)
