# SPDX-License-Identifier: MIT
"""A desktop of a test's own: X server, message bus, window manager, and a home folder that goes with it.

Everything is waited for by looking, up to a deadline; nothing sleeps for a fixed time.
"""

import os
import shutil
import subprocess
import tempfile
import time

SCREEN = "1280x1024x24"
DEADLINE = 30.0
PAUSE_BETWEEN_LOOKS = 0.02


class JourneyError(AssertionError):
    """Something that the user should have seen did not come."""


def wait_until(look, what, seconds=DEADLINE):
    """Looks until `look` gives something true, and gives that back. `what` is a text, or makes one at the end."""
    end = time.monotonic() + seconds
    while True:
        seen = look()
        if seen:
            return seen
        if time.monotonic() >= end:
            raise JourneyError(f"waited {seconds:g} seconds in vain: {what() if callable(what) else what}")
        time.sleep(PAUSE_BETWEEN_LOOKS)


class Stage:
    """Starts the desktop on entering and ends its own processes on leaving, the last one first."""

    def __init__(self, pictures, **environment):
        self.pictures = pictures
        self._extra = environment
        self.home = tempfile.mkdtemp(prefix="velmora-journey-")
        self.environment = dict(os.environ)
        self._processes = []
        self._picture_count = 0

    def __enter__(self):
        try:
            os.makedirs(self.pictures, exist_ok=True)
            self._set_environment()
            self._start_display()
            self._start_bus()
            self._start_window_manager()
        except BaseException:
            self.__exit__(None, None, None)
            raise
        return self

    def __exit__(self, kind, error, trace):
        for process in reversed(self._processes):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(DEADLINE)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()
        shutil.rmtree(self.home, ignore_errors=True)

    def path(self, name):
        return os.path.join(self.home, name)

    def start(self, command, environment=None, **options):
        """Starts a process that ends with the stage at the latest; what it says goes to a log in the home folder."""
        log = open(self.path(os.path.basename(command[0]) + ".log"), "ab")
        options.setdefault("stdout", log)
        process = subprocess.Popen(command, env={**self.environment, **(environment or {})}, cwd=self.home,
                                   stderr=log, stdin=subprocess.DEVNULL, **options)
        log.close()
        self._processes.append(process)
        return process

    def run(self, *command):
        """Runs a short command to its end and gives what it printed."""
        done = subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=DEADLINE)
        if done.returncode != 0:
            raise JourneyError(f"{' '.join(command)}: {done.stderr.strip()}")
        return done.stdout

    def picture(self, name):
        """Saves what the screen shows, numbered in the order of taking."""
        self._picture_count += 1
        path = os.path.join(self.pictures, f"{self._picture_count:02d}-{name}.png")
        self.run("import", "-window", "root", path)
        return path

    def _set_environment(self):
        for folder in ("config", "cache", "data", "runtime"):
            os.makedirs(self.path(folder), mode=0o700)
        for name in ("WAYLAND_DISPLAY", "LC_ALL", "LC_TIME", "QT_QPA_PLATFORM", "QT_STYLE_OVERRIDE", "NO_AT_BRIDGE"):
            self.environment.pop(name, None)
        self.environment.update(
            HOME=self.home,
            XDG_CONFIG_HOME=self.path("config"),
            XDG_CACHE_HOME=self.path("cache"),
            XDG_DATA_HOME=self.path("data"),
            XDG_RUNTIME_DIR=self.path("runtime"),
            LANG="C.UTF-8",
            VELMORA_LOOK="light",
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
        )
        self.environment.update(self._extra)

    def _start_display(self):
        reading, writing = os.pipe()
        # Without -noreset the server starts anew when its last client leaves, and turns away whoever comes meanwhile:
        # the window manager, when the look for it comes first.
        self.start(["Xvfb", "-displayfd", str(writing), "-screen", "0", SCREEN, "-nolisten", "tcp", "-noreset"],
                   pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as number:
            display = number.readline().strip()
        if not display:
            raise JourneyError("no X server came up")
        self.environment["DISPLAY"] = f":{display}"

    def _start_bus(self):
        bus = self.start(["dbus-daemon", "--session", "--nofork", "--print-address=1"], stdout=subprocess.PIPE)
        address = bus.stdout.readline().decode().strip()
        if not address:
            raise JourneyError("no message bus came up")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        # The library that reads the screens works in this very process.
        os.environ.update(self.environment)

    def _start_window_manager(self):
        manager = self.start(["openbox", "--sm-disable"])

        def is_there():
            if manager.poll() is not None:
                raise JourneyError(f"the window manager ended with code {manager.returncode}")
            found = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], env=self.environment,
                                   capture_output=True, text=True)
            return "window id" in found.stdout

        wait_until(is_there, "the window manager")
