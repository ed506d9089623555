# SPDX-License-Identifier: MIT
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "bench"))
import measure  # noqa: E402

MEBIBYTE = 1 << 20
HOLD_60_MEBIBYTES_AND_WORK = """
import time
held = bytearray(b'1') * (60 << 20)
while time.process_time() < 0.15:
    pass
"""


def python(code):
    return [sys.executable, "-I", "-c", code]


def started_by_another(code, waits):
    wait = ".wait()" if waits else ""
    return python(f"import subprocess, sys; subprocess.Popen([sys.executable, '-I', '-c', {code!r}],"
                  f" stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL){wait}")


class MeasureTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        measure.adopt_orphans()

    def test_memory_and_processor_time_of_grandchildren_count_orphans_too(self):
        for waits in (True, False):
            with self.subTest(waits=waits):
                run = measure.run(started_by_another(HOLD_60_MEBIBYTES_AND_WORK, waits), sample_memory=True)
                self.assertGreater(run.peak_bytes, 60 * MEBIBYTE)
                self.assertLess(run.peak_bytes, 100 * MEBIBYTE)
                self.assertGreater(run.cpu_seconds, 0.15)

    def test_memory_of_this_process_does_not_count(self):
        ballast = bytearray(b"1") * (80 << 20)
        run = measure.run(python("import time; time.sleep(0.2)"), sample_memory=True)
        self.assertGreater(run.peak_bytes, 0)
        self.assertLess(run.peak_bytes, len(ballast) // 2)

    def test_a_failure_keeps_its_status_and_what_it_said(self):
        run = measure.run(python("import sys; print('out'); sys.exit('no such page')"))
        self.assertEqual(run.status, 1)
        self.assertIn("out", run.output)
        self.assertIn("no such page", run.output)

    def test_the_best_of_runs_keeps_the_sampled_peak(self):
        sampled = measure.Run(2.0, 1.5, 0, "", peak_bytes=7)
        quick = measure.Run(1.0, 1.6, 0, "")
        best = measure.best([sampled, quick])
        self.assertEqual((best.seconds, best.cpu_seconds, best.peak_bytes), (1.0, 1.5, 7))


if __name__ == "__main__":
    unittest.main()
