"""A web server for tests: secure-server.py CERTIFICATE KEY

Prints the port of HTTPS and the port of HTTP, and replies with what the path says. Texts in paths are
hexadecimal.
"""

import http.server
import ssl
import sys
import threading
import time


class Replies(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        kind, _, argument = self.path[1:].partition("/")
        try:
            getattr(self, "reply_" + kind)(argument)
        except (BrokenPipeError, ConnectionResetError, ssl.SSLError):
            pass

    def begin(self, status, *headers):
        self.send_response(status)
        for name, value in headers:
            self.send_header(name, value)
        self.end_headers()

    def reply_content(self, text):
        self.begin(200)
        self.wfile.write(bytes.fromhex(text))

    def reply_status(self, number):
        self.begin(int(number))
        self.wfile.write(b"a page with words of the server")

    def reply_redirect(self, url):
        self.begin(302, ("Location", bytes.fromhex(url).decode()))

    def reply_loop(self, _):
        self.begin(302, ("Location", self.path))

    def reply_silence(self, _):
        # Until the client goes.
        self.connection.recv(1)

    def reply_trickle(self, _):
        self.begin(200)
        while True:
            self.wfile.write(b" ")
            time.sleep(0.02)

    def reply_flood(self, _):
        self.begin(200)
        while True:
            self.wfile.write(b" " * 65536)

    def reply_announced(self, length):
        self.begin(200, ("Content-Length", length))
        self.connection.recv(1)

    def log_message(self, *_):
        pass


def serve(context):
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Replies)
    server.daemon_threads = True
    if context:
        # The greeting happens with the first bytes, in the thread of the connection.
        server.socket = context.wrap_socket(
            server.socket, server_side=True, do_handshake_on_connect=False)
    threading.Thread(target=server.serve_forever).start()
    return server.server_address[1]


context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
context.load_cert_chain(sys.argv[1], sys.argv[2])
print(serve(context), serve(None), flush=True)
