# SPDX-License-Identifier: MIT
"""A private desktop of a phone's size: display, window manager, D-Bus, accessibility bus, folders."""

import ctypes
import os
import shutil
import signal
import subprocess
import tempfile
import time

WIDTH, HEIGHT = 360, 640

_OPENBOX = """<openbox_config xmlns="http://openbox.org/3.4/rc">
<focus><focusNew>yes</focusNew></focus><keyboard/><mouse/>
<applications><application type="normal"><decor>no</decor><maximized>yes</maximized></application>
<application type="dialog"><decor>no</decor></application></applications>
</openbox_config>"""

# Without folders of services: nothing is started that the walk does not start.
_SESSION_BUS = """<busconfig><type>session</type><listen>unix:path={}</listen>
<policy context="default"><allow send_destination="*"/><allow eavesdrop="true"/><allow own="*"/>
</policy></busconfig>"""


class Failed(Exception):
    """What was waited for, or looked for, did not come."""


def wait(condition, what, seconds=5.0):
    """The first true answer of a condition; what it finds missing is asked for again."""
    end = time.monotonic() + seconds
    while True:
        try:
            answer, missing = condition(), None
        except Failed as failure:
            answer, missing = None, failure
        if answer:
            return answer
        if time.monotonic() > end:
            raise Failed(f"{what}: {missing}" if missing else what)
        time.sleep(0.01)


def _end_with_parent():
    ctypes.CDLL(None).prctl(1, signal.SIGTERM)


class Desktop:
    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="walk-")
        self.started = []
        self.environment = {
            "PATH": os.environ["PATH"], "HOME": self.place("home"), "LC_ALL": "C.UTF-8",
            "TZ": "UTC", "XDG_CONFIG_HOME": self.place("config"), "XDG_DATA_HOME": self.place("data"),
            "XDG_STATE_HOME": self.place("state"), "XDG_CACHE_HOME": self.place("cache"),
            "XDG_RUNTIME_DIR": self.place("run"), "TMPDIR": self.place("tmp"),
            "GSETTINGS_BACKEND": "memory", "QT_QPA_PLATFORM": "xcb",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        }
        for name in ("home", "config", "data", "state", "cache", "run", "tmp"):
            os.mkdir(self.place(name), 0o700)

    def place(self, name):
        return os.path.join(self.folder, name)

    def write(self, name, text):
        with open(self.place(name), "w", encoding="utf-8") as file:
            file.write(text)
        return self.place(name)

    def start(self, command, pass_fds=(), **environment):
        """A program that ends with the desktop; in a group with all that it starts itself."""
        with open(self.place("messages"), "ab") as messages:
            process = subprocess.Popen(command, env=self.environment | environment, stdin=subprocess.DEVNULL,
                                       stdout=messages, stderr=messages, start_new_session=True,
                                       preexec_fn=_end_with_parent, pass_fds=pass_fds)
        self.started.append(process)
        return process

    def run(self, *command, ends=(0,)):
        """What a command prints that ends with one of these."""
        done = subprocess.run(command, env=self.environment, capture_output=True, text=True,
                              timeout=20, check=False)
        if done.returncode not in ends:
            raise Failed(f"{' '.join(command)}: {done.stderr.strip()}")
        return done.stdout

    def __enter__(self):
        reading, writing = os.pipe()
        self.start(["Xvfb", "-noreset", "-nolisten", "tcp", "-displayfd", str(writing),
                    "-screen", "0", f"{WIDTH}x{HEIGHT}x24"], pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as number:
            self.environment["DISPLAY"] = ":" + number.readline().strip()
        bus = self.place("run/bus")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=" + bus
        rules = self.write("bus.conf", _SESSION_BUS.format(bus))
        self.start(["dbus-daemon", "--nofork", "--config-file=" + rules])
        wait(lambda: os.path.exists(bus), "no session bus")
        self.start(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"])
        self.start(["openbox", "--config-file", self.write("openbox.xml", _OPENBOX)])
        wait(lambda: "window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"),
             "no window manager")
        return self

    def __exit__(self, *_reason):
        for process in reversed(self.started):
            try:
                os.killpg(process.pid, signal.SIGTERM)
                process.wait(5)
            except (ProcessLookupError, subprocess.TimeoutExpired):
                process.kill()
        shutil.rmtree(self.folder, ignore_errors=True)
