"""A web server on this machine, for skins that come whole and others that don't."""
import http.server
import threading
import zlib


def farbe(pfad):
    return (zlib.crc32(pfad.encode()) & 0xffffff).to_bytes(3, "big")


def bild(pfad):
    """A picture of one dot, in a colour of its own."""
    return b"GIF89a\1\0\1\0\x80\0\0" + farbe(pfad) + b"\0\0\0,\0\0\0\0\1\0\1\0\0\2\2D\1\0;"


class Skinserver(http.server.ThreadingHTTPServer):
    """Answers from its start on; keeps the paths that it was asked for."""

    def __init__(self, antworte):
        """`antworte` tells of a path: the status, the bytes, and how many of them arrive,
        all for None."""
        super().__init__(("127.0.0.1", 0), Anfrage)
        self.antworte = antworte
        self.pfade = []
        self.adresse = f"http://127.0.0.1:{self.server_port}"
        threading.Thread(target=self.serve_forever, daemon=True).start()


class Anfrage(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        self.server.pfade.append(self.path)
        status, inhalt, davon = self.server.antworte(self.path)
        self.send_response(status)
        self.send_header("Content-Length", str(len(inhalt)))
        self.end_headers()
        self.wfile.write(inhalt[:davon])
        self.close_connection = True

    def log_message(self, *_):
        pass
