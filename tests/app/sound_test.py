#!/usr/bin/env python3
"""Plays sounds on a sound server of its own and listens to what comes out.

    sound_test.py SOUND_PROBE

Exit status 77 when there is no PulseAudio to play on.
"""

from __future__ import annotations

import array
import os
import shutil
import struct
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

RATE = 44100
LOUD = 0.5


def wave(coding: int, bits: int, channels: int, seconds: float, rate: int = RATE, loudness: float = LOUD) -> bytes:
    """A square wave of 441 Hz."""
    frames = bytearray()
    for i in range(int(seconds * rate)):
        value = loudness if i * 882 // rate % 2 else -loudness
        if coding == 3:
            sample = struct.pack("<f", value)
        elif bits == 8:
            sample = bytes([128 + int(value * 127)])
        else:
            sample = int(value * (2 ** (bits - 1) - 1)).to_bytes(bits // 8, "little", signed=True)
        frames += sample * channels
    frame = channels * bits // 8
    head = struct.pack("<HHIIHH", coding, channels, rate, rate * frame, frame, bits)
    chunks = b"WAVEfmt " + struct.pack("<I", len(head)) + head + b"data" + struct.pack("<I", len(frames)) + bytes(frames)
    return b"RIFF" + struct.pack("<I", len(chunks)) + chunks


class SoundServer:
    """A PulseAudio server whose only device throws away what it plays, and lets it be recorded."""

    def __init__(self, folder: Path):
        self.environment = {
            **os.environ,
            "HOME": str(folder),
            "XDG_RUNTIME_DIR": str(folder),
            "PULSE_SERVER": f"unix:{folder}/server",
        }
        # Of the players that this machine may have, the one that this server is for.
        players = folder / "players"
        players.mkdir()
        (players / "paplay").symlink_to(shutil.which("paplay"))
        self.player_environment = {**self.environment, "PATH": str(players)}
        self.process = subprocess.Popen(
            ["pulseaudio", "-n", "--system=false", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
             "--disable-shm=yes", "--load=module-null-sink sink_name=probe",
             f"--load=module-native-protocol-unix auth-anonymous=1 socket={folder}/server"],
            env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.ready = self._wait_until_ready()

    def _wait_until_ready(self) -> bool:
        limit = time.monotonic() + 20
        while time.monotonic() < limit and self.process.poll() is None:
            if subprocess.run(["pactl", "info"], env=self.environment, capture_output=True).returncode == 0:
                return True
            time.sleep(0.05)
        return False

    def stop(self):
        self.process.terminate()
        self.process.wait(10)


class Sound(unittest.TestCase):
    probe = ""
    server: SoundServer
    folder: Path

    def file(self, name: str, content: bytes) -> str:
        path = self.folder / name
        path.write_bytes(content)
        return str(path)

    def play(self, *arguments: object, environment: dict[str, str] | None = None) -> list[str]:
        """Runs the probe, which must print nothing but its results."""
        done = subprocess.run([self.probe, *map(str, arguments)], env=environment or self.server.player_environment,
                              capture_output=True, text=True, timeout=60)
        self.assertEqual(done.stderr, "")
        self.assertEqual(done.returncode, 0)
        return done.stdout.split()

    @staticmethod
    def command_line(process: Path) -> bytes:
        try:
            return (process / "cmdline").read_bytes()
        except OSError:
            return b""  # it has ended

    def wait_for_players(self):
        """Until the last sound is over: the players outlive the probe."""
        limit = time.monotonic() + 20
        playing = True
        while playing and time.monotonic() < limit:
            time.sleep(0.05)
            playing = any(b"paplay" in line and str(self.folder).encode() in line
                          for line in map(self.command_line, Path("/proc").glob("[0-9]*")))
        self.assertFalse(playing)
        time.sleep(0.2)  # sleeps because the recorder is that far behind the device

    def heard(self, *arguments: object) -> array.array:
        """The samples that came out of the device while the probe ran."""
        recording = self.folder / "recording"
        with recording.open("wb") as out:
            recorder = subprocess.Popen(
                ["parec", "--device=probe.monitor", "--format=s16le", "--channels=1", f"--rate={RATE}",
                 "--latency-msec=20"], env=self.server.environment, stdout=out)
            try:
                limit = time.monotonic() + 20
                while recording.stat().st_size == 0 and time.monotonic() < limit:
                    time.sleep(0.02)
                results = self.play(*arguments)
                self.wait_for_players()
            finally:
                recorder.terminate()
                recorder.wait(10)
        self.assertEqual(set(results), {"1"})
        samples = array.array("h")
        samples.frombytes(recording.read_bytes()[: recording.stat().st_size // 2 * 2])
        return samples

    @staticmethod
    def loud_seconds(samples: array.array) -> float:
        return sum(1 for sample in samples if abs(sample) > 8000) / RATE

    def test_every_width_is_heard(self):
        for coding, bits, channels in ((1, 8, 1), (1, 16, 1), (1, 16, 2), (1, 24, 2), (1, 32, 1), (3, 32, 2)):
            with self.subTest(coding=coding, bits=bits, channels=channels):
                sound = self.file("sound.wav", wave(coding, bits, channels, 0.5))
                samples = self.heard(sound, 1500)
                self.assertAlmostEqual(self.loud_seconds(samples), 0.5, delta=0.1)
                self.assertAlmostEqual(max(samples) / 32768, LOUD, delta=0.1)

    def test_another_rate_keeps_its_length(self):
        samples = self.heard(self.file("slow.wav", wave(1, 8, 1, 0.5, rate=11025)), 1500)
        self.assertAlmostEqual(self.loud_seconds(samples), 0.5, delta=0.1)

    def test_a_sound_plays_to_its_end_when_the_program_ends(self):
        self.assertAlmostEqual(self.loud_seconds(self.heard(self.file("sound.wav", wave(1, 16, 1, 0.5)), 0)), 0.5, delta=0.1)

    def test_a_program_may_end_while_a_sound_plays(self):
        sound = self.file("sound.wav", wave(1, 16, 1, 0.1))
        for pause in range(0, 200, 20):
            self.assertEqual(self.play(sound, pause), ["1"])

    def test_a_sound_can_be_repeated(self):
        sound = self.file("sound.wav", wave(1, 16, 1, 0.3))
        samples = self.heard(sound, 1000, sound, 1000)
        self.assertAlmostEqual(self.loud_seconds(samples), 0.6, delta=0.15)

    def test_a_file_that_is_missing_or_no_sound_is_silent(self):
        text = self.file("text.wav", b"no sound")
        empty = self.file("empty.wav", b"")
        missing = self.folder / "missing.wav"
        self.assertEqual(self.play(text, 1, empty, 1, missing, 1, self.folder, 1, "", 1), ["0"] * 5)

    @unittest.skipUnless(hasattr(os, "mkfifo"), "this system has no named pipes")
    def test_what_is_no_plain_file_is_silent_and_not_waited_for(self):
        pipe = self.folder / "pipe.wav"
        os.mkfifo(pipe)
        self.assertEqual(self.play(pipe, 1, "/dev/zero", 1), ["0", "0"])

    def test_a_machine_without_a_player_is_silent(self):
        environment = {**self.server.environment, "PATH": str(self.folder)}
        self.assertEqual(self.play(self.file("sound.wav", wave(1, 16, 1, 0.1)), 50, environment=environment), ["0"])

    def test_a_machine_without_a_sound_device_is_silent(self):
        environment = {**self.server.player_environment, "PULSE_SERVER": f"unix:{self.folder}/no-server"}
        self.play(self.file("sound.wav", wave(1, 16, 1, 0.1)), 500, environment=environment)


def main() -> int:
    if any(shutil.which(program) is None for program in ("pulseaudio", "pactl", "parec", "paplay")):
        print("PulseAudio is not installed.")
        return 77
    Sound.probe = sys.argv[1]
    with tempfile.TemporaryDirectory() as folder:
        Sound.folder = Path(folder)
        Sound.server = SoundServer(Sound.folder)
        try:
            if not Sound.server.ready:
                print("PulseAudio does not start here.")
                return 77
            result = unittest.TextTestRunner(verbosity=2).run(unittest.defaultTestLoader.loadTestsFromTestCase(Sound))
        finally:
            Sound.server.stop()
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
