#!/usr/bin/env python3
"""usage: update_server.py FOLDER [--cert CERT.pem --key KEY.pem]
Serves FOLDER on 127.0.0.1 (port printed first) for at most 10 minutes, and /status/NNN (that
status), /stall (4 seconds of nothing), /nolength/NAME (NAME without Content-Length).
"""
import http.server
import os
import ssl
import sys
import threading
import time


class Handler(http.server.BaseHTTPRequestHandler):
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
