"""The desktop's session manager as far as a program at the end of the session meets it, by the bytes of its protocol:
the client that registers is asked to save itself, at the end once more, and is told to die when it has."""

import socket
import struct
import threading

# Opcodes: the major ones of a connection and of its session, and the minor ones of what is sent.
CONNECTION, SESSION = 0, 1
BYTE_ORDER, REPLY, PROTOCOL_REPLY, REGISTERED, SAVE_YOURSELF, DIE = 1, 6, 8, 2, 3, 9


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
        names = 2 * struct.pack("<H2s", 2, b"ok")  # of a maker and a version
        with self.socket, self.socket.accept()[0] as self.client, self.client.makefile("rb") as messages:
            while header := messages.read(8):
                major, minor, length = struct.unpack("<BBxxI", header)
                self.heard += messages.read(8 * length)
                match min(major, SESSION), minor:
                    case (0, 1):  # its byte order
                        self.send(CONNECTION, BYTE_ORDER)
                    case (0, 2):  # a connection
                        self.send(CONNECTION, REPLY, names)
                    case (0, 7):  # a session on it
                        self.send(CONNECTION, PROTOCOL_REPLY, names, opcode=SESSION)
                    case (1, 1):  # a client
                        self.send(SESSION, REGISTERED, array(b"client"))
                        self.send(SESSION, SAVE_YOURSELF, bytes([1]))  # for itself
                    case (1, 8):  # it has saved
                        self.saves += 1
                        if self.ending:
                            self.send(SESSION, DIE)

    def end_session(self):
        self.ending = True
        self.send(SESSION, SAVE_YOURSELF, bytes([0, 1]))  # for all, before the end
