"""C programs that a test writes, compiles against the library and runs."""

import os
import re
import shlex
import subprocess
from pathlib import Path


class Builder:
    """Compiles programs for one target with one compiler."""

    def __init__(self, compiler, flags, include, library, folder):
        self.compiler, self.flags = compiler, shlex.split(flags)
        self.include, self.shared_object, self.folder = include, Path(library), Path(folder)
        self.folder.mkdir(parents=True, exist_ok=True)

    def compiled(self, name, source, *options):
        """The finished compiler run of a source, to an object file."""
        path = self.folder / f"{name}.c"
        path.write_text(source)
        return subprocess.run(
            [
                self.compiler,
                *self.flags,
                "-std=c11",
                "-I",
                self.include,
                "-I",
                Path(__file__).parent,
                *options,
                "-c",
                path,
                "-o",
                path.with_suffix(".o"),
            ],
            stderr=subprocess.PIPE,
            text=True,
            check=False,
        )

    def output(self, name, source):
        """What a program prints that calls departing members knowingly and is otherwise free of warnings."""
        run = self.compiled(name, source, "-O0", "-Wall", "-Wextra", "-Wpedantic", "-Werror", "-DZELM_NO_DEPARTURE_WARNINGS")
        if run.returncode:
            raise AssertionError(f"{name}.c does not compile:\n{run.stderr[:4000]}")
        program = self.folder / name
        subprocess.run([self.compiler, *self.flags, "-o", program, program.with_suffix(".o"), self.shared_object], check=True)
        return subprocess.run(
            [program],
            stdout=subprocess.PIPE,
            text=True,
            check=True,
            env=os.environ | {"LD_LIBRARY_PATH": str(self.shared_object.parent)},
        ).stdout


def kinds_of(descriptor):
    """The kinds of a descriptor's operands: "maTm" is ["maT", "m"]."""
    return re.findall("[vmc]a?T?", descriptor)
