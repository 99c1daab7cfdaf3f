#!/usr/bin/env python3
"""Signs a made-up bundle for a Mac with a codesign that only takes notes: check_mac_signing.py PACKAGING_FOLDER"""

import os
import pathlib
import subprocess
import sys
import tempfile

FRAMEWORK = "Frameworks/U p.framework"
PARTS = {"Helpers/kinesta", "PlugIns/platforms/libq.dylib", FRAMEWORK, f"{FRAMEWORK}/Versions/B/tool",
         f"{FRAMEWORK}/Versions/B/X.xpc"}
FILES = {"MacOS/Kinesta", "Helpers/kinesta", "PlugIns/platforms/libq.dylib", f"{FRAMEWORK}/Versions/B/U p",
         f"{FRAMEWORK}/Versions/B/tool", f"{FRAMEWORK}/Versions/B/X.xpc/Contents/MacOS/X"}
CODESIGN = """#!/bin/sh
(IFS='|'; echo "$*") >>"$NOTES"
for last; do :; done
[ "${last##*/}" != "$FAILING" ]
"""


def main():
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        app, notes = folder / "Kinesta.app", folder / "notes"
        for file in [folder / "codesign", *(app / "Contents" / each for each in FILES)]:
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(CODESIGN)
            file.chmod(0o755)
        (app / "Contents" / FRAMEWORK / "libu.dylib").symlink_to("Versions/B/tool")

        def sign(identity, failing=""):
            notes.write_text("")
            done = subprocess.run([pathlib.Path(sys.argv[1]) / "sign", app], capture_output=True, text=True, check=False,
                                  env={"PATH": f"{folder}:{os.environ['PATH']}", "NOTES": str(notes),
                                       "FAILING": failing, "KINESTA_SIGNING_IDENTITY": identity})
            return done, [line.split("|") for line in notes.read_text().splitlines()]

        done, calls = sign("Ada Example")
        assert done.returncode == 0, done
        assert calls.pop()[0] == "--verify", calls
        order = [pathlib.Path(call[-1]) for call in calls]
        assert sorted(order) == sorted([app, *(app / "Contents" / part for part in PARTS)]), order
        assert not any(outer in inner.parents for at, outer in enumerate(order) for inner in order[at:]), order
        assert all({"runtime", "--timestamp", "Ada Example"} <= set(call) for call in calls), calls
        assert "--entitlements" in calls[-1], calls
        _, calls = sign("-")
        assert not any("runtime" in call for call in calls), calls
        for failing in ("tool", "Kinesta.app"):
            done, calls = sign("Ada Example", failing)
            assert done.returncode != 0 and f"{failing} could not be signed." in done.stderr, done
            assert calls[-1][-1].endswith(failing), calls


main()
