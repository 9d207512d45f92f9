"""zelm-selftest: accepts the library, finds a wrong one out and names the function, and answers what it can't do."""

import argparse
import re
import subprocess
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "elf"))
import elf

RETURNS_ZERO = b"\x31\xc0\xc3"  # xor eax, eax; ret: on both targets
CRASHES = b"\x0f\x0b"  # ud2

options = None


def check(*arguments):
    done = subprocess.run([options.program, *arguments], capture_output=True, text=True, timeout=900)
    return done.returncode, done.stdout, done.stderr


def last_line(text):
    return text.strip().rsplit("\n", 1)[-1]


def tampered(name, changes):
    """A copy of the library in which other code stands where a function begins."""
    library = elf.Elf(options.shared_object)
    symbols = subprocess.run(
        [options.nm, "-D", "--defined-only", options.shared_object], capture_output=True, text=True, check=True
    )
    address = {line.split()[2]: int(line.split()[0], 16) for line in symbols.stdout.splitlines()}
    data = bytearray(library.data)
    for function, code in changes.items():
        start = library.file_offset(address[function])
        data[start : start + len(code)] = code
    path = Path(options.folder) / name
    path.write_bytes(data)
    return str(path)


def committed():
    return Path(options.fingerprints).read_text()


class Selftest(unittest.TestCase):
    def test_the_library_agrees(self):
        status, out, _ = check("--library", options.shared_object)
        self.assertEqual(status, 0, out)
        self.assertIn(f"library: {Path(options.shared_object).resolve()}\n", out)
        self.assertRegex(out, r"(?m)^processor: .+, approximations [0-9a-f]{16}, (recorded on .+|not recorded yet)$")
        self.assertRegex(out, r"(?m)^OK: ")

    def test_wrong_functions_are_named_and_no_others(self):
        wrong = ["zelmSub_maTmaT_64f_5x5_LS2", "zelmTranspose_m_32f", "zelmL2Norm_va_64f_4x1_PS2", "a6_Det_ma_64f_4x4_L"]
        status, out, _ = check("--library", tampered("wrong.so", {name: RETURNS_ZERO for name in wrong}))
        self.assertEqual(status, 1, out)
        named = re.findall(r"(?m)^(\w+): other results$", out)
        # zelmDet_ma_64f_4x4_L is the one function that calls the kernel.
        self.assertEqual(sorted(named), sorted(wrong + ["zelmDet_ma_64f_4x4_L"]))
        self.assertEqual(
            last_line(out), "FAILED: 5 of 5599 functions do not give the results of zelm. Do not use this library."
        )

    def test_a_function_that_crashes_is_named(self):
        status, out, _ = check("--library", tampered("crash.so", {"zelmAdd_vv_32f_4x1": CRASHES}))
        self.assertEqual(status, 1, out)
        self.assertIn("\nzelmAdd_vv_32f_4x1: crashes\nFAILED: ", out)

    def test_a_changed_fingerprint_is_found(self):
        changed = Path(options.folder) / "changed.txt"
        text, count = re.subn(r"(?m)^(zelmCopy_ma_32f_PL \w+ )\w", r"\1x", committed())
        self.assertEqual(count, 1)
        changed.write_text(text)
        status, _, error = check("--library", options.shared_object, "--fingerprints", str(changed))
        self.assertEqual(status, 2)
        self.assertRegex(error, r"line \d+: not a hexadecimal number")

        changed.write_text(re.sub(r"(?m)^(zelmCopy_ma_32f_PL \w+ )\w+", r"\g<1>0123456789abcdef", committed()))
        status, out, _ = check("--library", options.shared_object, "--fingerprints", str(changed))
        self.assertEqual(status, 1)
        self.assertEqual(re.findall(r"(?m)^(\w+): other results$", out), ["zelmCopy_ma_32f_PL"])

    def test_another_processor_is_recorded(self):
        without = Path(options.folder) / "without.txt"
        without.write_text(re.sub(r"(?ms)^table .*", "", committed()))
        recorded = Path(options.folder) / "recorded.txt"
        recorded.unlink(missing_ok=True)
        status, out, _ = check("--library", options.shared_object, "--fingerprints", str(without), "--record", str(recorded))
        self.assertEqual(status, 0, out)
        self.assertIn("not recorded yet", out)
        approximate = len(re.findall(r"(?m) approximate$", committed()))
        self.assertGreater(approximate, 0)
        self.assertIn(f"OK: {5599 - approximate} of 5599 functions agree bit for bit. The other {approximate} rest on", out)
        own = re.search(r"(?ms)^table .*", recorded.read_text()).group()
        self.assertEqual(len(own.strip().splitlines()), 1 + approximate)
        hashes = own.split("\n", 1)
        if hashes[0].split()[1] in committed():  # by the model, when the file was made
            self.assertIn(hashes[1], committed())

    def test_nothing_is_recorded_of_a_wrong_library(self):
        recorded = Path(options.folder) / "never.txt"
        recorded.unlink(missing_ok=True)
        wrong = tampered("wrong2.so", {"zelmAdd_vv_64f_4x1": RETURNS_ZERO})
        status, out, error = check("--library", wrong, "--record", str(recorded))
        self.assertEqual(status, 1)
        self.assertIn("\nzelmAdd_vv_64f_4x1: other results\nFAILED: 1 of 5599 ", out)
        self.assertIn("nothing is recorded of a library that fails", error)
        self.assertFalse(recorded.exists())

    def test_what_cannot_be_checked(self):
        other = Path(options.folder) / "other.txt"
        other.write_text("no library")
        for arguments, answer in [
            (["--library", "/nonexistent/libzelm.so"], "cannot load the library"),
            (["--library", str(other)], "cannot load the library"),
            (["--library"], "--library wants a file"),
            (["--fingerprints", "/nonexistent"], "cannot read /nonexistent"),
            (["--fast"], "unknown argument --fast"),
            (["--library", options.shared_object, "--fingerprints", str(other)], "line 1: not a hexadecimal number"),
        ]:
            status, out, error = check(*arguments)
            self.assertEqual((status, out), (2, ""), arguments)
            self.assertIn(answer, error)
        self.assertEqual(check("--help")[0], 0)


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    for name in ("program", "shared-object", "fingerprints", "nm", "folder"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    Path(options.folder).mkdir(parents=True, exist_ok=True)
    unittest.main(argv=sys.argv[:1])
