# SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
# SPDX-License-Identifier: MIT
"""Real web servers on the loopback interface, each with a folder and a configuration of its own.

web_servers.py start nginx|apache FOLDER [CERTIFICATE KEY]: prints the number of the process and the address of a
resource; nothing when that server is not installed. web_servers.py kill NUMBER
"""

import http.client
import os
import pathlib
import shutil
import signal
import socket
import subprocess
import sys
import time

NGINX = """daemon off;
worker_processes 1;
pid {folder}/nginx.pid;
error_log {folder}/error.log;
events {{ worker_connections 64; }}
http {{
  log_format requests '$request_method $status $request_length $bytes_sent';
  access_log {folder}/access.log requests;
  client_body_temp_path {folder}/temporary/body;
  proxy_temp_path {folder}/temporary/proxy;
  fastcgi_temp_path {folder}/temporary/fastcgi;
  uwsgi_temp_path {folder}/temporary/uwsgi;
  scgi_temp_path {folder}/temporary/scgi;
  {secure}
  server {{
    listen 127.0.0.1:{port} {listen};
    root {folder}/files;
    client_max_body_size 64m;
    location / {{ dav_methods PUT DELETE MKCOL; create_full_put_path on; }}
  }}
}}
"""

APACHE = """ServerRoot {folder}
ServerName 127.0.0.1
Listen 127.0.0.1:{port}
PidFile {folder}/apache.pid
ErrorLog {folder}/error.log
DefaultRuntimeDir {folder}/temporary
Mutex file:{folder}/temporary default
LoadModule mpm_event_module {modules}/mod_mpm_event.so
LoadModule authz_core_module {modules}/mod_authz_core.so
LoadModule dav_module {modules}/mod_dav.so
LoadModule dav_fs_module {modules}/mod_dav_fs.so
StartServers 1
LogFormat "%m %>s %I %O" requests
CustomLog {folder}/access.log requests
DavLockDB {folder}/temporary/locks
DocumentRoot {folder}/files
<Directory {folder}/files>
  Dav On
  Require all granted
</Directory>
"""

APACHE_MODULES = "/usr/lib/apache2/modules"
SYSTEM_PROGRAMS = "/usr/sbin:/usr/local/sbin"
SECONDS_TO_START = 10


def program(name):
    return shutil.which(name, path=os.environ.get("PATH", "") + ":" + SYSTEM_PROGRAMS)


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class WebServer:
    """Keeps the bytes that are PUT below its folder; can be killed and started again at the same address."""

    def __init__(self, kind, folder, certificate=None):
        """certificate: (certificate file, key file) for TLS, of nginx only. The folder's path must be plain."""
        self.kind, self.folder, self.port, self.process = kind, pathlib.Path(folder), free_port(), None
        self.scheme = "https" if certificate else "http"
        # Started as root, the servers work as somebody who owns nothing here.
        for name in ("", "files", "temporary"):
            (self.folder / name).mkdir(parents=True, exist_ok=True)
            (self.folder / name).chmod(0o777)
        names = {"folder": self.folder, "port": self.port, "modules": APACHE_MODULES, "secure": "", "listen": ""}
        if certificate:
            names |= {"secure": "ssl_certificate {}; ssl_certificate_key {};".format(*certificate), "listen": "ssl"}
        text = (NGINX if kind == "nginx" else APACHE).format(**names)
        (self.folder / "configuration").write_text(text, "utf-8")

    @staticmethod
    def is_here(kind):
        if kind == "nginx":
            return program("nginx") is not None
        return program("apache2") is not None and pathlib.Path(APACHE_MODULES, "mod_dav_fs.so").exists()

    def address(self, name="styles.plist"):
        return f"{self.scheme}://127.0.0.1:{self.port}/{name}"

    def file(self, name="styles.plist"):
        return self.folder / "files" / name

    def command(self):
        configuration = str(self.folder / "configuration")
        if self.kind == "nginx":
            return [program("nginx"), "-p", str(self.folder), "-e", str(self.folder / "error.log"), "-c", configuration]
        return [program("apache2"), "-f", configuration, "-DFOREGROUND"]

    def start(self):
        with open(self.folder / "output", "ab") as output:
            self.process = subprocess.Popen(
                self.command(), stdin=subprocess.DEVNULL, stdout=output, stderr=output, start_new_session=True)
        end = time.monotonic() + SECONDS_TO_START
        while not self.answers():
            if self.process.poll() is not None or time.monotonic() > end:
                raise RuntimeError(f"{self.kind} did not start: " + self.text("output") + self.text("error.log")[-2000:])
            time.sleep(0.01)

    def text(self, name):
        path = self.folder / name
        return path.read_text("utf-8", "replace") if path.exists() else ""

    def answers(self):
        try:
            with socket.create_connection(("127.0.0.1", self.port), timeout=1):
                return True
        except OSError:
            return False

    def kill(self):
        """At once, with all its processes, whatever they are doing."""
        if self.process is not None:
            os.killpg(self.process.pid, signal.SIGKILL)
            self.process.wait()
            self.process = None

    def get(self, name="styles.plist"):
        """The bytes as the server hands them out; None when it holds none or is away."""
        try:
            connection = http.client.HTTPConnection("127.0.0.1", self.port, timeout=5)
            connection.request("GET", "/" + name)
            answer = connection.getresponse()
            body = answer.read()
            connection.close()
            return body if answer.status == 200 else None
        except (OSError, http.client.HTTPException):
            return None

    def log(self):
        """[(method, status, bytes received, bytes sent)] of all requests that were answered."""
        rows = [line.split() for line in self.text("access.log").splitlines()]
        return [(row[0], int(row[1]), int(row[2]), int(row[3])) for row in rows if len(row) == 4 and row[1].isdigit()]


def main(arguments):
    if arguments[0] == "kill":
        os.killpg(int(arguments[1]), signal.SIGKILL)
    elif WebServer.is_here(arguments[1]):
        server = WebServer(arguments[1], arguments[2], arguments[3:])
        server.start()
        print(server.process.pid, server.address())


if __name__ == "__main__":
    main(sys.argv[1:])
