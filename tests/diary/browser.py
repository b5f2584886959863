"""A headless Chromium, driven through a pipe in the words of its DevTools protocol.

Used by check_pages. Nothing but Python's own library is needed.
"""

import json
import os
import select
import shutil
import subprocess
import tempfile
import time

# What a fresh browser would do beside showing a page: ask its maker for news.
QUIET = [
    "--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
    "--disable-background-networking", "--disable-component-update", "--disable-sync",
    "--disable-default-apps", "--disable-extensions", "--hide-scrollbars", "--mute-audio",
    "--no-default-browser-check", "--password-store=basic", "--disable-dev-shm-usage",
    "--font-render-hinting=none", "--remote-debugging-pipe",
]


class Browser:
    """One page of a browser of its own. Events are kept until somebody takes them."""

    def __init__(self):
        program = shutil.which("chromium") or shutil.which("chromium-browser")
        if program is None:
            raise RuntimeError("there is no chromium")
        self.folder = tempfile.mkdtemp(prefix="velnor-browser-")
        to_browser, self.output = os.pipe()
        self.input, from_browser = os.pipe()
        # The browser reads from 3 and writes to 4; its ends are moved out of the way first.
        ends = [os.dup2(end, 100 + i) for i, end in enumerate((to_browser, from_browser))]

        def place_ends():
            os.dup2(ends[0], 3)
            os.dup2(ends[1], 4)

        self.process = subprocess.Popen(
            [program, *QUIET, "--user-data-dir=" + self.folder, "about:blank"],
            preexec_fn=place_ends, pass_fds=(3, 4), stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        for end in (to_browser, from_browser, *ends):
            if end not in (self.input, self.output):
                os.close(end)
        self.buffer = b""
        self.number = 0
        self.session = None
        self.events = []
        targets = self.call("Target.getTargets")["targetInfos"]
        page = next(target for target in targets if target["type"] == "page")
        self.session = self.call("Target.attachToTarget", targetId=page["targetId"],
                                 flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Log", "Network"):
            self.call(domain + ".enable")

    def close(self):
        self.process.terminate()
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def receive(self, seconds):
        """The next message, or None when there is none within that time."""
        while b"\0" not in self.buffer:
            if not select.select([self.input], [], [], seconds)[0]:
                return None
            piece = os.read(self.input, 1 << 20)
            if not piece:
                raise RuntimeError("the browser has ended")
            self.buffer += piece
        message, self.buffer = self.buffer.split(b"\0", 1)
        return json.loads(message)

    def call(self, method, **parameters):
        """What the browser answers; what it tells meanwhile is kept in `events`."""
        self.number += 1
        request = {"id": self.number, "method": method, "params": parameters}
        if self.session:
            request["sessionId"] = self.session
        data = json.dumps(request).encode() + b"\0"
        while data:
            data = data[os.write(self.output, data):]
        while True:
            message = self.receive(60)
            if message is None:
                raise RuntimeError("no answer to " + method)
            if message.get("id") == self.number:
                if "error" in message:
                    raise RuntimeError(method + ": " + message["error"]["message"])
                return message["result"]
            self.events.append(message)

    def wait_for(self, event):
        end = time.monotonic() + 60
        while not any(message.get("method") == event for message in self.events):
            message = self.receive(1)
            if message is not None:
                self.events.append(message)
            elif time.monotonic() > end:
                raise RuntimeError("no " + event)

    def open(self, path):
        """Shows a file, and gives everything the browser told of it."""
        self.events.clear()
        self.call("Page.navigate", url="file://" + path)
        self.wait_for("Page.loadEventFired")

    def evaluate(self, script):
        answer = self.call("Runtime.evaluate", expression=script, returnByValue=True)
        if "exceptionDetails" in answer:
            raise RuntimeError(json.dumps(answer["exceptionDetails"])[:500])
        return answer["result"].get("value")
