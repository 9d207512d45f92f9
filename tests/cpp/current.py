#!/usr/bin/env python3
"""current.py CPP_DIR: what the C++ layer takes from the catalogue is what the generator writes now."""

import sys
from pathlib import Path

folder = Path(sys.argv[1])
sys.dont_write_bytecode = True
sys.path.insert(0, str(folder))
import rows  # noqa: E402

committed = folder / "zelm" / "rows.hpp"
if committed.read_text() != rows.header():
    sys.exit("cpp/zelm/rows.hpp is not current: run python3 cpp/rows.py cpp/zelm/rows.hpp")
