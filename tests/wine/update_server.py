#!/usr/bin/env python3
"""A loopback HTTP(S) server for the self-update tests. Serves the files of a folder on
127.0.0.1 and a few special paths:

  /status/NNN          answers with that HTTP status and an empty body
  /stall               accepts the request and sends nothing for 4 seconds, then closes
  /nolength/NAME       the file NAME without a Content-Length header (close-delimited)

usage: update_server.py FOLDER [--cert CERT.pem --key KEY.pem]
Prints the port it listens on as the first line of standard output, then serves until killed
or for at most 10 minutes.
"""
import argparse
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
        if path.startswith("/status/"):
            self.send_response(int(path[len("/status/"):]))
            self.send_header("Content-Length", "0")
            self.end_headers()
            return
        if path == "/stall":
            time.sleep(4)
            self.close_connection = True
            return
        no_length = path.startswith("/nolength/")
        name = path[len("/nolength/"):] if no_length else path.lstrip("/")
        file = os.path.join(self.folder, os.path.basename(name))
        if not os.path.isfile(file):
            self.send_response(404)
            self.send_header("Content-Length", "0")
            self.end_headers()
            return
        with open(file, "rb") as f:
            body = f.read()
        self.send_response(200)
        if no_length:
            self.send_header("Connection", "close")
            self.close_connection = True
        else:
            self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("folder")
    parser.add_argument("--cert")
    parser.add_argument("--key")
    args = parser.parse_args()
    Handler.folder = args.folder
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
    server.daemon_threads = True
    if args.cert:
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(args.cert, args.key)
        server.socket = context.wrap_socket(server.socket, server_side=True)
    print(server.server_address[1], flush=True)
    threading.Timer(600, server.shutdown).start()  # never outlive a test run
    server.serve_forever()


if __name__ == "__main__":
    sys.exit(main())
