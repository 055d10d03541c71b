#!/usr/bin/env python3
"""usage: update_server.py FOLDER [--cert CERT.pem --key KEY.pem]
A loopback HTTP(S) server for the self-update tests: the files of FOLDER on 127.0.0.1, and
/status/NNN (that status, empty body), /stall (nothing for 4 seconds, then closed) and
/nolength/NAME (the file NAME without a Content-Length header, close-delimited). Prints its port
as the first line, then serves until killed or for at most 10 minutes.
"""
import http.server
import os
import ssl
import sys
import threading
import time


class Handler(http.server.BaseHTTPRequestHandler):
    folder = "."

    def log_message(self, *args):
        pass

    def do_GET(self):
        path = self.path.split("?", 1)[0]
        if path == "/stall":
            time.sleep(4)
            self.close_connection = True
            return
        file = os.path.join(self.folder, os.path.basename(path))
        status, body = 404, b""
        if path.startswith("/status/"):
            status = int(path[len("/status/"):])
        elif os.path.isfile(file):
            with open(file, "rb") as f:
                status, body = 200, f.read()
        self.send_response(status)
        if status == 200 and path.startswith("/nolength/"):
            self.send_header("Connection", "close")
            self.close_connection = True
        else:
            self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)


def main():
    args = sys.argv[1:]
    Handler.folder = args[0]
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
    server.daemon_threads = True
    if "--cert" in args:
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(args[args.index("--cert") + 1], args[args.index("--key") + 1])
        server.socket = context.wrap_socket(server.socket, server_side=True)
    print(server.server_address[1], flush=True)
    threading.Timer(600, server.shutdown).start()  # never outlive a test run
    server.serve_forever()


if __name__ == "__main__":
    sys.exit(main())
