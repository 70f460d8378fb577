# SPDX-License-Identifier: GPL-3.0-or-later
"""What the program that fetches feeds asks of a server, and what servers can do to it."""
import contextlib
import gzip
import http.server
import os
import re
import shutil
import socket
import ssl
import subprocess
import threading
import time
import unittest

from support import BUILD, EndToEndTest, read

FETCHED, FAILED, ADDRESS, UNREACHABLE, NOT_SECURE, NOT_THERE, SERVER, SLOW, LARGE, REDIRECT = 0, 1, *range(10, 18)
FEED = os.path.join(BUILD, "src/libexec/quorvane/quorvane-feed")
BODY = b"<rss/>\n"
MIB = 1 << 20


class Handler(http.server.BaseHTTPRequestHandler):
    """Answers /NAME by the method of that name."""

    def do_GET(self):
        self.server.asked.append((self.path, dict(self.headers.items())))
        with contextlib.suppress(OSError):
            getattr(self, re.match(r"/(\w+)", self.path)[1])()

    def log_message(self, *_):
        pass

    def answer(self, body=BODY, status=200, **headers):
        self.send_response(status)
        for name, value in {"Content_Length": len(body), **headers}.items():
            if value is not None:
                self.send_header(name.replace("_", "-"), value)
        self.end_headers()
        self.wfile.write(body)

    def good(self):
        self.answer(Set_Cookie="a=b", Content_Type="image/png")

    def hop(self):
        count = int(self.path.rpartition("/")[2])
        self.answer(b"on", 302, Location=f"/hop/{count - 1}" if count else "/good", Set_Cookie="a=b")

    def loop(self):
        self.answer(b"", 301, Location="/loop")

    def away(self):
        self.answer(b"", 307, Location=self.path.partition("?")[2])

    def status(self):
        status = int(self.path.rpartition("/")[2])
        more = {"WWW_Authenticate": self.server.challenge} if status == 401 else {}
        self.answer(b"no", status, **more)

    def short(self):
        self.answer(Content_Length=100)

    def huge(self):
        self.answer(bytes(MIB + 1))

    def just_right(self):
        self.answer(bytes(MIB))

    def announced(self):
        self.answer(b"x", Content_Length=1 << 40)

    def endless(self):
        self.answer(b"", Content_Length=None)
        while True:
            self.wfile.write(bytes(65536))

    def headers_(self):
        self.wfile.write(b"HTTP/1.1 200 OK\r\n")
        while True:
            self.wfile.write(b"X-Header: " + b"x" * 65536 + b"\r\n")

    def drip(self):
        self.answer(b"", Content_Length=MIB)
        while True:
            self.wfile.write(b"x")
            time.sleep(0.05)

    def silent(self):
        time.sleep(3)

    def bomb(self):
        self.answer(gzip.compress(bytes(64 * MIB)), Content_Encoding="gzip")

    def rubbish(self):
        self.wfile.write(b"\0\1\2 no HTTP\r\n\r\n")


class FeedTest(EndToEndTest):
    def setUp(self):
        if not os.access(FEED, os.X_OK):
            self.skipTest("this build has no updater")
        super().setUp()

    def serve(self, certificate=None):
        server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        server.daemon_threads = True
        server.asked, server.challenge = [], ""
        if certificate:
            context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            context.load_cert_chain(certificate)
            server.socket = context.wrap_socket(server.socket, server_side=True, do_handshake_on_connect=False)
            server.handle_error = lambda *_: None
        threading.Thread(target=server.serve_forever, daemon=True).start()
        self.addCleanup(server.server_close)
        self.addCleanup(server.shutdown)
        return server, f"{'https' if certificate else 'http'}://127.0.0.1:{server.server_port}/"

    def fetch(self, address, seconds=30, command=(), **env):
        done = subprocess.run([*command, FEED, address, str(seconds)], capture_output=True, timeout=60, stdin=subprocess.DEVNULL,
                              env={**self.environment(), "QUORVANE_FEED_LOOPBACK": "1", **env})
        if done.returncode != FETCHED:
            self.assertEqual(done.stdout, b"")
            self.assertEqual(len(done.stderr.splitlines()), 1, done.stderr)
        return done

    def test_every_answer_has_its_outcome(self):
        server, base = self.serve()
        with socket.create_server(("127.0.0.1", 0)) as closed:
            refused = closed.getsockname()[1]
        rows = {"good": FETCHED, "hop/2": FETCHED, "hop/3": REDIRECT, "loop": REDIRECT, "away?file:///etc/passwd": REDIRECT,
                "away?http://example.invalid/": REDIRECT, "away?ftp://127.0.0.1/": REDIRECT, "away?data:,x": REDIRECT,
                "away?https://a:b@127.0.0.1/": REDIRECT, "away?": SERVER, "status/404": NOT_THERE, "status/410": NOT_THERE,
                "status/500": SERVER, "status/204": SERVER, "status/206": SERVER, "status/401": SERVER,
                "status/407": SERVER, "short": UNREACHABLE, "huge": LARGE, "announced": LARGE, "endless": LARGE,
                "just_right": FETCHED, "rubbish": UNREACHABLE,
                f"away?http://127.0.0.1:{refused}/": UNREACHABLE}
        for path, outcome in rows.items():
            with self.subTest(path=path):
                done = self.fetch(base + path)
                self.assertEqual(done.returncode, outcome, done)
        for path in ("drip", "silent", "headers_"):
            with self.subTest(path=path):
                self.assertEqual(self.fetch(base + path, 1).returncode, SLOW)
        # What is packed although nobody asked for it stays so.
        self.assertLess(len(self.fetch(base + "bomb").stdout), MIB)
        self.assertEqual(self.fetch(base + "good").stdout, BODY)

    def test_it_says_nothing_of_the_user(self):
        server, base = self.serve()
        self.fetch(base + "hop/1", LANG="de_DE.UTF-8", LANGUAGE="de")
        for challenge in ('Basic realm="x"', "Negotiate", "NTLM", 'Digest realm="x", nonce="y"'):
            server.challenge = challenge
            self.assertEqual(self.fetch(base + "status/401").returncode, SERVER, challenge)
        self.assertEqual([path for path, _ in server.asked], ["/hop/1", "/hop/0", "/good"] + 4 * ["/status/401"])
        for path, headers in server.asked:
            self.assertRegex(headers.pop("User-Agent"), r"^Quorvane/[\d.]+$")
            self.assertLessEqual(set(headers), {"Host", "Accept", "Accept-Encoding", "Accept-Language", "Connection",
                                                "Cache-Control", "Pragma"}, path)
            self.assertEqual((headers["Accept-Language"], headers["Accept-Encoding"]), ("*", "identity"))

    def test_only_safe_addresses_are_asked(self):
        server, base = self.serve()
        for address in ("", "x", "/etc/passwd", "file:///etc/passwd", "http://quorvane.test/", "ftp://quorvane.test/",
                        "https://", "https://a@quorvane.test/", "data:,x", "-h", "http://127.0.0.1.quorvane.test/"):
            with self.subTest(address=address):
                self.assertEqual(self.fetch(address).returncode, ADDRESS)
        self.assertEqual(self.fetch(base + "good", QUORVANE_FEED_LOOPBACK="").returncode, ADDRESS)
        self.assertEqual(server.asked, [])

    @unittest.skipUnless(shutil.which("openssl"), "there is no openssl")
    def test_a_certificate_has_to_be_good(self):
        certificate = os.path.join(self.place, "certificate.pem")
        subprocess.run(["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes",
                        "-keyout", certificate, "-out", certificate + ".crt", "-days", "2", "-subj", "/CN=quorvane.test",
                        "-addext", "subjectAltName=IP:127.0.0.1"], check=True, capture_output=True)
        with open(certificate, "ab") as file:
            file.write(read(certificate + ".crt"))
        server, base = self.serve(certificate)
        _plain, plain_base = self.serve()
        self.assertEqual(self.fetch(base + "good").returncode, NOT_SECURE)
        self.assertEqual(self.fetch(plain_base + "away?" + base + "good").returncode, NOT_SECURE)
        self.assertEqual(self.fetch(plain_base.replace("http:", "https:") + "good").returncode, NOT_SECURE)
        self.assertEqual(server.asked, [])
        # The same one is good where the system trusts it, but not under another name.
        trusted = self.trust(certificate + ".crt")
        done = self.fetch(base + "good", command=trusted)
        self.assertEqual((done.returncode, done.stdout), (FETCHED, BODY), done)
        self.assertEqual(self.fetch(base + "away?" + plain_base + "good", command=trusted).returncode, REDIRECT)
        other = base.replace("127.0.0.1", "localhost") + "good"
        self.assertEqual(self.fetch(other, command=trusted).returncode, NOT_SECURE)

    def trust(self, certificate):
        """What runs a program for which the system trusts this certificate alone."""
        folder = os.path.join(self.place, "trusted")
        os.mkdir(folder)
        told = subprocess.run(["openssl", "x509", "-noout", "-hash", "-in", certificate], check=True, capture_output=True)
        shutil.copy(certificate, os.path.join(folder, "own.pem"))
        os.symlink("own.pem", os.path.join(folder, told.stdout.decode().strip() + ".0"))
        command = ["unshare", "-rm", "sh", "-c", 'mount --bind "$0" /etc/ssl/certs && exec "$@"', folder]
        if subprocess.run([*command, "true"], capture_output=True, check=False).returncode != 0:
            self.skipTest("nothing can be mounted here")
        return command

    def test_a_proxy_is_used_or_refused_never_passed_by(self):
        with socket.create_server(("127.0.0.1", 0)) as proxy:
            proxy.settimeout(20)
            heard = []

            def listen():
                with contextlib.suppress(OSError):
                    while True:
                        connection, _ = proxy.accept()
                        with connection:
                            heard.append(connection.recv(4096))
                            connection.sendall(b"HTTP/1.1 502 No\r\nContent-Length: 0\r\n\r\n")

            threading.Thread(target=listen, daemon=True).start()
            address, place = "https://quorvane.test/feed", f"127.0.0.1:{proxy.getsockname()[1]}"
            for env, first in (({"https_proxy": "http://" + place}, b"CONNECT quorvane.test:443 "),
                               ({"HTTPS_PROXY": place}, b"CONNECT quorvane.test:443 "),
                               ({"all_proxy": "socks5h://" + place}, b"\x05"),
                               ({"https_proxy": "foo://" + place}, None)):
                heard.clear()
                self.assertIn(self.fetch(address, 2, **env).returncode, (UNREACHABLE, SERVER, SLOW), env)
                self.assertEqual([data[:len(first or b"")] for data in heard][:1], [first] if first else [], env)


if __name__ == "__main__":
    unittest.main()
