"""A server of this machine that counts what arrives, over TCP and UDP at one port, and answers HTTP with a page."""

import socket
import threading


class CountingServer:
    def __init__(self, page):
        self.page = page
        self.arrived = []  # the first line of each connection, "udp" for each packet
        self.tcp = socket.create_server(("127.0.0.1", 0))
        self.port = self.tcp.getsockname()[1]
        self.udp = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        self.udp.bind(("127.0.0.1", self.port))
        for listen in (self._listen_tcp, self._listen_udp):
            threading.Thread(target=listen, daemon=True).start()

    def paths(self):
        """The addresses that were asked for over HTTP, but for icons."""
        return [line.split()[1] for line in self.arrived if line.startswith("GET ") and "favicon" not in line]

    def close(self):
        self.tcp.close()
        self.udp.close()

    def _listen_tcp(self):
        while True:
            try:
                connection, _ = self.tcp.accept()
            except OSError:
                return
            threading.Thread(target=self._answer, args=(connection,), daemon=True).start()

    def _answer(self, connection):
        """With the page, or with where "?to=" in the address leads."""
        with connection:
            connection.settimeout(5)
            try:
                line = connection.recv(4096).split(b"\r\n")[0].decode(errors="replace")
                self.arrived.append(line or "nothing")
                head = f"302 Found\r\nLocation: {line.split('?to=')[1].split()[0]}" if "?to=" in line else "200 OK"
                head += "\r\nContent-Type: text/html\r\nConnection: close"
                connection.sendall(f"HTTP/1.1 {head}\r\n\r\n{self.page}".encode())
            except OSError:
                self.arrived.append("nothing")

    def _listen_udp(self):
        while True:
            try:
                self.udp.recv(2000)
            except OSError:
                return
            self.arrived.append("udp")
