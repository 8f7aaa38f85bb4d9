"""A web server on this machine that serves skins."""
import http.server
import threading
import zlib


def color(path):
    return (zlib.crc32(path.encode()) & 0xffffff).to_bytes(3, "big")


def picture(path):
    """A picture of one pixel, in a colour that only this path has."""
    return b"GIF89a\1\0\1\0\x80\0\0" + color(path) + b"\0\0\0,\0\0\0\0\1\0\1\0\0\2\2D\1\0;"


class SkinServer(http.server.ThreadingHTTPServer):
    """Serves pictures as soon as it exists, and keeps the requested paths."""

    def __init__(self):
        super().__init__(("127.0.0.1", 0), RequestHandler)
        self.paths = []
        self.address = f"http://127.0.0.1:{self.server_port}"
        threading.Thread(target=self.serve_forever, daemon=True).start()


class RequestHandler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        self.server.paths.append(self.path)
        content = picture(self.path)
        self.send_response(200)
        self.send_header("Content-Length", str(len(content)))
        self.end_headers()
        self.wfile.write(content)
        self.close_connection = True

    def log_message(self, *_):
        pass
