#!/usr/bin/env python3
"""Installs a build below DESTDIR, under a prefix that it was not configured with, and judges what is there.

check_install.py CMAKE BUILD
"""

import os
import pathlib
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

PREFIX = "/opt/a b/100%h"  # systemd splits at a blank and replaces %h


def main():
    cmake, build = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([cmake, "--install", build, "--prefix", PREFIX], check=True, stdout=subprocess.DEVNULL,
                       env=os.environ | {"DESTDIR": folder})
        installed = pathlib.Path(folder + PREFIX)
        unit = (installed / "lib/systemd/user/kinesta.service").read_text(encoding="utf-8").splitlines()
        problems = []
        if 'ExecStart="/opt/a b/100%%h/bin/kinesta" daemon' not in unit:
            problems.append(f"the unit starts something else: {unit}")
        if not os.access(installed / "bin/kinesta", os.X_OK):
            problems.append("the program that the unit starts is not installed")
        if (installed / "libexec/kinesta/kinesta-application").exists():  # else built without it
            name = "com.orvane.kinesta"
            share = installed / "share"
            expected = {
                f"applications/{name}.desktop": {'Exec="/opt/a b/100%%h/bin/kinesta"', "DBusActivatable=true"},
                f"dbus-1/services/{name}.service": {f"Name={name}", 'Exec="/opt/a b/100%h/bin/kinesta" --background'}}
            for file, lines in expected.items():
                if missing := lines - set((share / file).read_text(encoding="utf-8").splitlines()):
                    problems.append(f"{file} does not say {missing}")
            for icon in ("scalable/apps/{}.svg", "symbolic/apps/{}-symbolic.svg", "16x16/apps/{}.svg"):
                xml.etree.ElementTree.parse(share / "icons/hicolor" / icon.format(name))
            started = subprocess.run([installed / "bin/kinesta", "--background"], capture_output=True, text=True,
                                     env={"QT_QPA_PLATFORM": "none such", "PATH": "/"})
            if "none such" not in started.stderr:
                problems.append(f"the application does not start: {started.stderr}")
        if len(os.listdir(folder)) != 1:
            problems.append(f"something escaped the prefix: {os.listdir(folder)}")
        sys.exit("\n".join(problems) or 0)


main()
