"""A server of this machine that counts what arrives, over TCP and UDP at one port, and answers HTTP with a page."""

import socket
import threading
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer


class Handler(BaseHTTPRequestHandler):
    timeout = 5

    def do_GET(self):
        """The page, or where "?to=" in the address leads."""
        to = self.path.partition("?to=")[2]
        self.server.asked += [] if "favicon" in self.path else [self.path]
        self.send_response(302 if to else 200)
        self.send_header("Location" if to else "Content-Type", to or "text/html")
        self.end_headers()
        self.wfile.write(self.server.page.encode())

    def log_message(self, *_):
        pass


class CountingServer(ThreadingHTTPServer):
    def __init__(self, page):
        super().__init__(("127.0.0.1", 0), Handler)
        self.page, self.connections, self.asked = page, 0, []
        self.udp = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        self.udp.bind(self.server_address)
        self.udp.setblocking(False)
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def handle_error(self, *_):
        pass  # a page that went away

    def verify_request(self, *_):
        self.connections += 1
        return True

    def reached(self):
        """Whether anything has come, be it an empty connection."""
        try:
            return bool(self.connections or self.udp.recv(2000))
        except BlockingIOError:
            return False

    def close(self):
        self.shutdown()
        self.server_close()
        self.udp.close()
