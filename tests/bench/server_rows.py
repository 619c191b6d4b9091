# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""Rows about styles on a web server: what a registration costs there, and how long a server that hangs stops the user."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

sys.path.append(str(pathlib.Path(__file__).resolve().parent.parent / "servers"))
from web_servers import WebServer  # noqa: E402


def output_of(command, environment=None):
    return subprocess.run([str(word) for word in command], check=True, stdout=subprocess.PIPE, text=True,
                          env=environment).stdout


class SecureServer:
    """nginx with a certificate of its own, and an environment in which that is trusted."""

    def __enter__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.folder.chmod(0o755)
        self.certificate, key = self.folder / "certificate.pem", self.folder / "key.pem"
        subprocess.run(["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=127.0.0.1",
                        "-addext", "subjectAltName=IP:127.0.0.1", "-keyout", key, "-out", self.certificate], check=True,
                       stderr=subprocess.DEVNULL)
        self.server = WebServer("nginx", self.folder / "server", (self.certificate, key))
        self.server.start()
        return self

    def __exit__(self, *_):
        self.server.kill()
        shutil.rmtree(self.folder)

    def address(self):
        return self.server.address()

    def environment(self):
        return os.environ | {"SSL_CERT_FILE": str(self.certificate), "no_proxy": "*"}


def traffic_of(server, registrations):
    """Of one registration with its probe: requests, bytes sent, bytes received. The floor's requests are left out."""
    rows = server.log()
    ours = [row for row in rows if row[0] != "PUT" and row[:2] not in {("GET", 200), ("GET", 404)}]
    stored = [row for row in rows if row[0] == "PUT"]
    sent, received = (sum(row[side] for row in ours) / registrations + sum(row[side] for row in stored) / len(stored)
                      for side in (2, 3))
    return len(ours) / registrations + 1, sent, received


def register_row(kind, program, style_file, registrations, name, print_row):
    folder = pathlib.Path(tempfile.mkdtemp())  # plain, and open for the server's own user
    server = WebServer(kind, folder)
    server.start()
    try:
        here, floor, size = output_of([program, server.address(), style_file, registrations]).split()
    finally:
        server.kill()
    requests, sent, received = traffic_of(server, registrations)
    shutil.rmtree(folder)
    here, floor = float(here), float(floor)
    print_row(f"registration of {name}, {kind}", here, floor, "ms", "at most 50 ms over", here - floor <= 50)
    print(f"  {int(size):,} B of styles: {requests:.1f} requests, {sent:,.0f} B sent, {received:,.0f} B received", flush=True)


def hang_row(program, root, home, environment):
    rows = [line.split(" ", 1) for line in output_of([program, root, home], environment).splitlines()]
    longest, where = max((float(time), where) for time, where in rows)
    print(f"{f'longest stop of {len(rows)} troubles':34} {longest:9.2f} ms   at most 50 ms: "
          f"{'met' if longest <= 50 else 'missed'} ({where})", flush=True)
