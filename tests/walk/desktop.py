# SPDX-License-Identifier: MIT
"""A desktop of its own, of a phone's size, for the program that is walked through."""

import os
import shutil
import subprocess
import sys
import tempfile
import time

_OPENBOX = """<openbox_config xmlns="http://openbox.org/3.4/rc"><focus><focusNew>yes</focusNew></focus>
<keyboard/><mouse/><applications><application class="*"><decor>no</decor></application>
<application type="normal"><maximized>yes</maximized></application></applications></openbox_config>"""


class Failed(Exception):
    """What was waited for, or looked for, did not come."""


def wait(condition, what, seconds=5.0):
    """The first true answer of a condition; what it finds missing is asked for again."""
    end = time.monotonic() + seconds
    while True:
        try:
            answer, missing = condition(), ""
        except Failed as failure:
            answer, missing = None, f": {failure}"
        if answer:
            return answer
        if time.monotonic() > end:
            raise Failed(what + missing)
        time.sleep(0.01)


def enter():
    """Begins this script anew under a display and a session bus of its own. They end with it."""
    if "WALK_FOLDER" in os.environ:
        # The buses have much to say on the other stream.
        sys.stderr = sys.stdout
        return
    folder = tempfile.mkdtemp(prefix="walk-")
    environment = {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "TZ": "UTC",
                   "WALK_FOLDER": folder, "HOME": folder, "XDG_RUNTIME_DIR": folder,
                   "GSETTINGS_BACKEND": "memory", "QT_QPA_PLATFORM": "xcb",
                   "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "PYTHONDONTWRITEBYTECODE": "1"}
    for use in ("CONFIG", "DATA", "STATE", "CACHE"):
        environment[f"XDG_{use}_HOME"] = os.path.join(folder, use.lower())
    try:
        done = subprocess.run(
            ["xvfb-run", "--auto-servernum", "--server-args=-noreset -screen 0 360x640x24",
             "dbus-run-session", "--", sys.executable, *sys.argv], env=environment, check=False,
            stderr=subprocess.DEVNULL)
    finally:
        shutil.rmtree(folder, ignore_errors=True)
    sys.exit(done.returncode)


def place(name):
    return os.path.join(os.environ["WALK_FOLDER"], name)


def write(name, text):
    os.makedirs(os.path.dirname(place(name)), exist_ok=True)
    with open(place(name), "w", encoding="utf-8") as file:
        file.write(text)


def start(*command, messages=os.devnull, **environment):
    """Starts a program; what it says on standard error goes to the end of a file."""
    with open(messages, "ab") as file:
        return subprocess.Popen(command, env=os.environ | environment, stderr=file)


def run(*command, ends=(0,)):
    """What a command prints that ends with one of these."""
    done = subprocess.run(command, capture_output=True, text=True, timeout=20, check=False)
    if done.returncode not in ends:
        raise Failed(f"{' '.join(command)}: {done.stderr.strip()}")
    return done.stdout


def manage_windows():
    write("openbox.xml", _OPENBOX)
    start("openbox", "--config-file", place("openbox.xml"))
    wait(lambda: "window id" in run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"),
         "no window manager")
