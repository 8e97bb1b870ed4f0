# SPDX-FileCopyrightText: 2026 The Brindock authors
# SPDX-License-Identifier: GPL-3.0-or-later

"""A web server over TLS, for tests: the other side's own TLS may lack what a server needs.

secure_server.py FOLDER

The folder's file "orders" is a JSON object: "pem" (certificate and key), "host" (the address to listen at) and
"answer" (what each request gets, whole). The file "told" gets the port, then "came" for each
connection and "request" for each one that came to an understanding and asked. Ends when a client says "quit".
"""

import json
import socket
import ssl
import sys
import tempfile


def answer(client, context, text):
    try:
        with context.wrap_socket(client, server_side=True) as secure:
            head = b""
            while b"\r\n\r\n" not in head:
                more = secure.recv(4096)
                if not more:
                    return
                head += more
            print("request", file=told)
            secure.sendall(text)
    except OSError:
        pass  # no understanding, or the client left


with open(sys.argv[1] + "/orders", encoding="utf-8") as file:
    orders = json.load(file)
told = open(sys.argv[1] + "/told", "w", encoding="utf-8", buffering=1)
context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
with tempfile.NamedTemporaryFile("w", suffix=".pem") as pem:
    pem.write(orders["pem"])
    pem.flush()
    context.load_cert_chain(pem.name)
with socket.create_server((orders["host"], 0)) as listening:
    print(listening.getsockname()[1], file=told)
    while True:
        accepted, _ = listening.accept()
        if accepted.recv(4, socket.MSG_PEEK) == b"quit":
            break
        print("came", file=told)
        answer(accepted, context, orders["answer"].encode())
