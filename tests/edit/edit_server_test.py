#!/usr/bin/python3
"""What the process behind the page lets in, keeps and saves: edit_server_test.py FIRECHECK SITE."""

import http.client
import json
import pathlib
import re
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest
import urllib.parse

FIRECHECK, SITE = sys.argv[1:3]
JSON = {"Content-Type": "application/json"}
LARGEST = 4 * 1024 * 1024
SOON = 3  # s


class Process:
    """`firecheck edit` with a site, and its protocol."""

    def __init__(self, *arguments, signals=()):
        self.process = subprocess.Popen([FIRECHECK, "edit", *map(str, arguments)], stdout=subprocess.PIPE,
                                        stderr=subprocess.PIPE, text=True)
        line = self.process.stdout.readline()
        for early in signals:
            self.process.send_signal(early)
        self.url = urllib.parse.urlparse(line.strip())

    def end(self, how=signal.SIGTERM):
        """Exit status and what was told at the end."""
        self.process.send_signal(how)
        _, told = self.process.communicate(timeout=SOON * 5)
        return self.process.returncode, told

    def ask(self, method, path, body=None, headers=None, base=None):
        """Status and JSON of one request; any body that is no text is made one."""
        connection = http.client.HTTPConnection("127.0.0.1", self.url.port, timeout=30)
        if body is not None and not isinstance(body, (str, bytes)):
            body = json.dumps(body)
        connection.request(method, (self.url.path if base is None else base) + path, body,
                           {**(JSON if method == "POST" else {}), **(headers or {})})
        response = connection.getresponse()
        content = response.read()
        connection.close()
        self.headers = response.headers
        return response.status, json.loads(content) if "json" in response.headers["Content-Type"] else content

    def get(self, path):
        status, answer = self.ask("GET", path)
        assert status == 200, (status, answer)
        return answer

    def post(self, path, **body):
        status, answer = self.ask("POST", "api/" + path, body)
        assert status == 200, (status, answer)
        return answer


def violations(site):
    done = subprocess.run([FIRECHECK, "check", str(site), "--format", "json"], capture_output=True, check=False)
    return [finding["sentence"] for finding in json.loads(done.stdout)["sites"][0]["findings"]]


class EditServerTest(unittest.TestCase):
    def setUp(self):
        self.directory = tempfile.TemporaryDirectory()
        self.addCleanup(self.directory.cleanup)
        self.file = pathlib.Path(self.directory.name) / "site.json"
        shutil.copy(SITE, self.file)

    def serve(self, *arguments, **options):
        process = Process(*(arguments or [self.file]), **options)
        self.addCleanup(process.process.stderr.close)
        self.addCleanup(process.process.stdout.close)
        self.addCleanup(process.process.wait)
        self.addCleanup(process.process.kill)
        return process

    def moved(self, process, handle, by):
        entry = next(one for one in process.get("api/site")["objects"] if one["handle"] == handle)
        center = entry["object"]["center"]
        return {"handle": handle, "object": {**entry["object"], "center": [center[0], center[1] + by, *center[2:]]}}

    def test_only_the_page_itself_is_let_in(self):
        process = self.serve()
        port, path = process.url.port, process.url.path
        self.assertRegex(path, r"^/[0-9a-f]{32,}/$")
        own = f"127.0.0.1:{port}"
        token = path.strip("/")
        almost = token[:-1] + ("0" if token[-1] != "0" else "1")
        for method, base, headers, status in [
                ("GET", path, {}, 200),
                ("GET", path, {"Host": f"localhost:{port}"}, 200),
                ("GET", path, {"Origin": f"http://{own}"}, 200),
                ("GET", path, {"Origin": f"http://localhost:{port}"}, 403),
                ("GET", path, {"Origin": "http://example.org"}, 403),
                ("GET", path, {"Origin": "null"}, 403),
                ("GET", path, {"Host": "example.org"}, 403),
                ("GET", path, {"Host": f"example.org:{port}"}, 403),
                ("GET", path, {"Host": "127.0.0.1"}, 403),
                ("GET", "/", {}, 404),
                ("GET", "", {}, 404),
                ("GET", f"/{almost}/", {}, 404),
                ("GET", f"/{token[:-1]}/", {}, 404),
                ("GET", f"/{token}0/", {}, 404),
                ("GET", f"/{token}", {}, 404),
                ("GET", f"//{token}/", {}, 404),
                ("HEAD", path, {}, 405),
                ("PUT", path, {}, 405),
                ("OPTIONS", path, {}, 405),
                ("DELETE", path, {}, 405)]:
            with self.subTest(method=method, base=base.replace(token, "TOKEN"), headers=headers):
                connection = http.client.HTTPConnection("127.0.0.1", port, timeout=SOON)
                self.addCleanup(connection.close)
                connection.request(method, base or "*", headers=headers)
                response = connection.getresponse()
                response.read()
                self.assertEqual(response.status, status)
                self.assertIn("default-src 'none'", response.headers["Content-Security-Policy"])
                self.assertNotIn("unsafe", response.headers["Content-Security-Policy"])
                self.assertEqual(response.headers["X-Content-Type-Options"], "nosniff")
                self.assertIsNone(response.headers["Access-Control-Allow-Origin"])

    def test_no_file_of_the_computer_is_served(self):
        process = self.serve()
        for path in ["../../etc/passwd", "script/../../style.css", "script/%2e%2e/style.css", "/etc/passwd", "script/",
                     "script//main.js", "index.html%00", self.file.as_posix(), "api/save/../../style.css", "api/", "api/nothing"]:
            with self.subTest(path=path):
                self.assertEqual(process.ask("GET", path)[0], 404)
        self.assertEqual(process.ask("GET", "style.css")[0], 200)

    def test_bodies_are_json_and_bounded(self):
        process = self.serve()
        good = json.dumps({"revision": 1, "changes": []})
        for body, headers, status in [
                (good, {}, 200),
                (good, {"Content-Type": "application/json; charset=utf-8"}, 200),
                (good, {"Content-Type": "text/plain"}, 415),
                (good, {"Content-Type": "application/x-www-form-urlencoded"}, 415),
                (good, {"Content-Encoding": "gzip"}, 415),
                (good, {"Transfer-Encoding": "chunked"}, 411),
                ("", {}, 400),
                ("[]", {}, 400),
                ("[" * 100000, {}, 400),
                ('{"revision": 1, "changes": 3}', {}, 400),
                ('{"revision": 1, "changes": [{"handle": 413, "object": {}}]}', {}, 400),
                ('{"revision": 1, "changes": [{"handle": "x", "object": {}}]}', {}, 400),
                ('{"revision": 1, "changes": [{"object": null}]}', {}, 400),
                ('{"revision": 1.5, "changes": []}', {}, 400),
                ('{"changes": []}', {}, 409),
                ('{"revision": 2, "changes": []}', {}, 409),
                (good + " " * (LARGEST - len(good)), {}, 200),
                (good + " " * (LARGEST - len(good) + 1), {}, 413),
                (b"x" * 100_000_000, {}, 413)]:
            with self.subTest(start=body[:60], size=len(body), headers=headers):
                self.assertEqual(process.ask("POST", "api/try", body, headers)[0], status)
        process.get("api/site")

    def test_what_is_no_request_ends_the_connection(self):
        process = self.serve()
        endless = [b"GET " + b"x" * 20_000_000, b"GET / HTTP/1.1\r\n" + b"A: b\r\n" * 2_000_000, b"\0" * 1000 + b"\r\n\r\n", b"\r\n"]
        for start in endless:
            with self.subTest(start=start[:20]), socket.create_connection(("127.0.0.1", process.url.port), timeout=30) as connection:
                try:
                    connection.sendall(start)
                    while connection.recv(65536):
                        pass
                except ConnectionError:
                    pass
        status = pathlib.Path(f"/proc/{process.process.pid}/status").read_text()
        self.assertLess(int(re.search(r"VmHWM:\s+(\d+)", status)[1]), 400_000, "KiB")
        process.get("api/site")

    def test_many_connections_that_say_nothing_keep_nobody_out_for_long(self):
        process = self.serve()
        idle = [socket.create_connection(("127.0.0.1", process.url.port)) for _ in range(40)]
        process.get("api/site")
        for connection in idle:
            connection.close()

    def test_a_saved_site_is_what_the_page_was_told(self):
        process = self.serve()
        text = self.file.read_bytes()
        state = process.get("api/site")
        self.assertFalse(state["isChanged"])
        tried = process.post("try", revision=1, changes=[self.moved(process, "414", 1000)])
        changed = process.post("change", revision=1, changes=[self.moved(process, "414", 1000)])
        self.assertEqual(tried["verdict"]["findings"], changed["verdict"]["findings"])
        self.assertNotEqual(state["verdict"]["findings"], changed["verdict"]["findings"])
        self.assertEqual(self.file.read_bytes(), text, "nothing is written until it is asked for")
        saved = process.post("save", revision=2)
        self.assertFalse(saved["isChanged"])
        self.assertEqual([finding["text"] for finding in changed["verdict"]["findings"]], violations(self.file))
        lines = zip(text.splitlines(), self.file.read_bytes().splitlines())
        self.assertEqual([b'"handle": 414' in old for old, new in lines if old != new], [True])
        self.assertEqual(process.ask("POST", "api/undo", {"revision": 1})[0], 409)
        undone = process.post("undo", revision=2)
        self.assertTrue(undone["isChanged"], "differs from what was saved")
        process.post("save", revision=3)
        self.assertEqual(self.file.read_bytes(), text, "the same bytes after all")
        self.assertEqual(process.end(), (0, ""))

    def test_a_refused_change_is_told_and_changes_nothing(self):
        process = self.serve()
        before = process.get("api/site")
        entry = next(one for one in before["objects"] if one["handle"] == "413")
        wrong = {"handle": "413", "object": {**entry["object"], "use": "offfice"}}
        for changes, key in [([wrong], "use"), ([self.moved(process, "414", 1), wrong], "use"),
                             ([{"handle": "413", "object": {**entry["object"], "colour": 1}}], "colour"),
                             ([{"handle": "999", "object": None}], ""),
                             ([{"object": {"class": "woodYard", "handle": 413, "center": [0, 0], "length": 1, "depth": 1}}], "handle"),
                             ([{"object": {"class": "drawing", "handle": 2 ** 63}}], "handle"),
                             ([{"object": {"class": "house"}}], "class"),
                             ([{"object": {"class": "drawing", "handle": "x"}}], "handle"),
                             ([{"handle": "111", "object": None}], "doors")]:
            for request in ("try", "change"):
                with self.subTest(key=key, request=request):
                    status, answer = process.ask("POST", "api/" + request, {"revision": 1, "changes": changes})
                    self.assertEqual((status, answer["key"]), (422, key))
                    self.assertTrue(answer["error"])
        after = process.get("api/site")
        for each in (before, after):
            del each["verdict"]["judgedMs"]
        self.assertEqual(after, before)

    def test_what_somebody_else_saved_is_not_overwritten(self):
        process = self.serve()
        process.post("change", revision=1, changes=[self.moved(process, "414", 1000)])
        theirs = self.file.read_bytes() + b"\n"
        self.file.write_bytes(theirs)
        status, answer = process.ask("POST", "api/save", {"revision": 2})
        self.assertEqual(status, 409)
        self.assertEqual(answer["revision"], 2, "the page is not stale")
        self.assertEqual(self.file.read_bytes(), theirs)
        self.file.unlink()
        process.post("save", revision=2)
        self.assertNotIn(f"{self.file}:", process.end()[1])
        self.assertEqual(list(self.file.parent.iterdir()), [self.file])

    def test_saving_elsewhere_leaves_what_was_read(self):
        text = self.file.read_bytes()
        target = self.file.with_name("new.json")
        process = self.serve(self.file, "-o", target)
        self.file.unlink()
        process.post("change", revision=1, changes=[{"object": {"class": "woodYard", "center": [0, 0], "length": 1000, "depth": 1000}}])
        process.post("save", revision=2)
        self.assertFalse(self.file.exists())
        before, after = (json.loads(text)["objects"] for text in (text, target.read_bytes()))
        self.assertEqual(after, [*before[:-1], {"class": "woodYard", "handle": 1352, "center": [0, 0], "length": 1000, "depth": 1000},
                                 before[-1]])

    def test_the_end_by_signal_page_and_failure(self):
        for how in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            with self.subTest(how=how):
                self.assertEqual(self.serve().end(how), (0, ""))
        process = self.serve(signals=[signal.SIGTERM])
        self.assertEqual(process.process.wait(timeout=SOON * 5), 0, "at once")
        process = self.serve()
        begin = time.monotonic()
        held = socket.create_connection(("127.0.0.1", process.url.port))
        process.post("change", revision=1, changes=[self.moved(process, "414", 1000)])
        process.post("quit")
        _, told = process.process.communicate(timeout=SOON * 5)
        held.close()
        self.assertEqual(process.process.returncode, 1)
        self.assertIn("not saved", told)
        self.assertLess(time.monotonic() - begin, SOON * 5)

    def test_a_port_in_use_and_a_site_without_a_file(self):
        process = self.serve()
        for arguments, named in [([self.file, "--port", process.url.port], "--port"), ([self.file, "--port", "70000"], "--port"),
                                 ([self.file, "--output", "/nowhere/site.json"], "/nowhere/site.json"),
                                 (["/dev/stdin"], "--output"), (["-"], "--output")]:
            with self.subTest(arguments=arguments):
                done = subprocess.run([FIRECHECK, "edit", *map(str, arguments)], capture_output=True, text=True, check=False,
                                      input=self.file.read_text(), timeout=30)
                self.assertEqual((done.returncode, done.stdout), (2, ""))
                self.assertIn(named, done.stderr)


if __name__ == "__main__":
    del sys.argv[1:3]
    unittest.main(verbosity=1)
