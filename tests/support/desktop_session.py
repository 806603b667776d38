"""A desktop of its own for the real program: a display in memory, a window manager, and the keys a person presses."""

from __future__ import annotations

import os
import shutil
import subprocess
import time
from pathlib import Path

TOOLS = ("Xvfb", "openbox", "xdotool", "wmctrl")
PATIENCE_SECONDS = 60


def missing_tools() -> list[str]:
    """The tools that a session needs and the machine lacks."""
    return [tool for tool in TOOLS if shutil.which(tool) is None]


def wait_until(condition, what: str, seconds: float = PATIENCE_SECONDS):
    """Waits until `condition()` is true and returns what it returned; an error that names `what` after the limit."""
    end = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise TimeoutError(f"waited {seconds:g} s for {what}")
        time.sleep(0.02)


def output_of(command: list[str], env: dict[str, str]) -> str:
    """What a command prints; nothing when it fails, as a search that finds nothing does."""
    done = subprocess.run(command, env=env, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False)
    return done.stdout.strip() if done.returncode == 0 else ""


class DesktopSession:
    """Starts the display and the window manager; ends them, and every program started here, with the `with` block."""

    def __init__(self, folder: Path, screen: str = "1280x960x24"):
        self._folder = folder
        self._screen = screen
        self._processes: list[subprocess.Popen] = []
        runtime = folder / "runtime"
        runtime.mkdir(mode=0o700)
        home = folder / "home"
        home.mkdir()
        # Nothing of the user's own desktop is used or touched.
        kept = {key: value for key, value in os.environ.items()
                if not key.startswith(("XDG_", "QT_", "KDE_", "GNOME_", "GTK_"))
                and key not in ("DISPLAY", "WAYLAND_DISPLAY", "XAUTHORITY", "DBUS_SESSION_BUS_ADDRESS")}
        self.env = {**kept, "HOME": str(home), "XDG_RUNTIME_DIR": str(runtime), "QT_QPA_PLATFORM": "xcb",
                    "LC_ALL": "C.UTF-8", "no_proxy": "*", "NO_PROXY": "*"}

    def __enter__(self) -> DesktopSession:
        try:
            self._start_display()
            self._start_window_manager()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_) -> None:
        for process in reversed(self._processes):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(timeout=10)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()

    def _start_display(self) -> None:
        read_end, write_end = os.pipe()
        # The server chooses a free display number itself, so that sessions can run side by side.
        server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", self._screen, "-dpi", "96", "-nolisten", "tcp",
             "-noreset"],
            pass_fds=(write_end,), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self._processes.append(server)
        os.close(write_end)
        with os.fdopen(read_end) as number:
            display = number.readline().strip()
        if not display:
            raise RuntimeError("Xvfb ended without giving a display number")
        self.env["DISPLAY"] = ":" + display

    def _start_window_manager(self) -> None:
        self._processes.append(subprocess.Popen(["openbox"], env=self.env, stdout=subprocess.DEVNULL,
                                                stderr=subprocess.DEVNULL))
        wait_until(lambda: output_of(["wmctrl", "-m"], self.env), "the window manager")

    def start(self, program: Path, errors: Path, env: dict[str, str] | None = None) -> subprocess.Popen:
        """Starts a program from a folder that is not its own; what it prints is added to the file `errors`."""
        with errors.open("ab") as file:
            process = subprocess.Popen([str(program)], env=env or self.env, cwd=self._folder, stdin=subprocess.DEVNULL,
                                       stdout=file, stderr=file)
        self._processes.append(process)
        return process

    def window(self, title: str, process: subprocess.Popen) -> str:
        """Waits for a visible window of exactly this title and returns its id; an error when the program ends first."""

        def look():
            if process.poll() is not None:
                raise RuntimeError(f"the program ended with status {process.returncode} before it showed a window")
            return output_of(["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"], self.env)

        return wait_until(look, f'a window titled "{title}"').splitlines()[0]

    def press(self, window: str, keys: str) -> None:
        """Gives the window the focus and presses the keys, for instance "F5" or "shift+F5"."""
        wait_until(lambda: self._activate(window), "the window's focus")
        subprocess.run(["xdotool", "key", keys], env=self.env, check=True)

    def _activate(self, window: str) -> bool:
        subprocess.run(["xdotool", "windowactivate", window], env=self.env, check=False, stderr=subprocess.DEVNULL)
        return output_of(["xdotool", "getactivewindow"], self.env) == window

    def close(self, window: str, check: bool = True) -> None:
        """Asks the window to close, as a click on the close button of its frame does; `check`: it must be there."""
        subprocess.run(["wmctrl", "-i", "-c", window], env=self.env, check=check, stderr=subprocess.DEVNULL)
