#!/usr/bin/env python3
"""Rejects includes against the arrows between modules and platform conditions outside the platform code.

check_architecture.py ROOT          judges the source tree at ROOT; one line a violation, exit status 1 if any
check_architecture.py --self-check  shows on small wrong and right trees that the judgement works
"""

import pathlib
import re
import sys
import tempfile

# What each module may include besides itself. Only the main programs know the platforms.
CORE = {
    "support": set(),
    "input": {"support"},
    "rules": {"support"},
    "recognition": {"support", "input", "rules"},
    "feedback": {"support", "rules"},
    "actions": {"support", "rules", "feedback"},
    "app": {"support", "input", "rules", "recognition", "actions", "feedback"},
}
ARROWS = CORE | {
    "ui": {"support", "input", "rules", "recognition", "feedback", "app"},
    "platform": {"support", "input", "actions", "feedback", "app"},
    "cli": {"support", "input", "rules", "recognition", "app"},
    "main.cpp": set(CORE) | {"ui", "platform", "cli"},
    "application_main.cpp": set(CORE) | {"ui", "platform"},
}

# What a folder of platform/ may include besides itself.
PLATFORMS = {"linuxdesktop": {"linux", "qt"}, "macos": {"qt"}}

# The floors of platform/linux, from the ground; the files beside these folders are above them all. A lower floor
# includes no higher one.
FLOORS = [{"process", "x11"}, {"settings", "touchpad"}, {"keyboard"}, {"session"}, {"launching", "windows"}]

# What a core module may include in angle brackets beyond the standard library.
LIBRARIES = {"support": ("nlohmann/",), "rules": ("nlohmann/",), "input": ("nlohmann/", "yaml.h")}

STANDARD = re.compile("[a-z_]+")  # no folder, no ending, no capital

# A header of ours with such a name is taken for the system's where file names ignore case.
SYSTEM_HEADERS = set("""aio alloca ar assert complex cpio ctype dirent dlfcn elf endian err errno error execinfo fcntl
features fenv float fnmatch ftw getopt glob grp iconv inttypes iso646 langinfo libgen libintl limits link locale malloc
math memory mntent monetary mqueue net netdb nl_types paths poll process pthread pty pwd regex resolv resource sched
search select semaphore setjmp shadow signal socket spawn stat stdalign stdarg stdatomic stdbool stddef stdint stdio
stdlib stdnoreturn string strings stropts syslog tar termio termios tgmath threads time trace types uchar ucontext
ulimit unistd utime utmp utmpx values wait wchar wctype windows wordexp xlocale""".split())

SUFFIXES = {".h", ".hpp", ".c", ".cc", ".cpp", ".m", ".mm", ".inc"}
INCLUDE = re.compile(r'\s*#\s*(?:include|include_next|import)\s*(?:<([^>]+)>|"([^"]+)"|(.*))')
CONDITION = re.compile(
    r"\b(__APPLE__|__MACH__|__linux__|__linux|__gnu_linux__|__unix__|_WIN32|_WIN64|TARGET_OS_\w+|Q_OS_\w+)\b")
PLATFORM_FOLDERS = ("src/platform/", "tests/platform/", "tests/desktop/", "tests/vm/")


def floor(path):
    """The floor in platform/linux of a file or header, below src/."""
    room = path.split("/")[2]
    if room.endswith((".h", ".cpp")):
        return len(FLOORS)
    return next((number for number, rooms in enumerate(FLOORS) if room in rooms), None)


def judge_platform_include(name, quoted):
    own_room, other_room = name.split("/")[1], quoted.split("/")[1]
    if other_room != own_room and other_room not in PLATFORMS.get(own_room, ()):
        return f'"{quoted}" belongs to another platform'
    if not name.startswith("platform/linux/"):
        return None
    own, other = floor(name), floor(quoted)
    if own is None or other is None:
        return f'"{quoted}": this folder or that of the file has no floor in platform/linux'
    if other > own:
        return f'"{quoted}" is on a higher floor'
    return None


def judge_include(module, name, system, quoted):
    """The complaint about one include of the file `name`, below src/, or None."""
    if system:
        if module in CORE and not STANDARD.fullmatch(system) and not system.startswith(LIBRARIES.get(module, ())):
            return f"<{system}> is not for the core: put it behind a port in platform/"
        return None
    if not quoted:
        return "an include must name its header"
    target = quoted.split("/")[0]
    if target not in ARROWS or "/" not in quoted or "/../" in quoted:
        return f'"{quoted}" must be named from src/, as module/Header.h'
    if target == "platform" and module == "platform":
        return judge_platform_include(name, quoted)
    if target != module and target not in ARROWS[module]:
        return f'"{quoted}": {module} must not know {target}'
    return None


def judge_file(root, path):
    name = path.relative_to(root).as_posix()
    if path.suffix in {".h", ".hpp"} and path.stem.lower() in SYSTEM_HEADERS:
        yield f"{name}: is named like a header of the system"
    module = name.split("/")[1] if name.startswith("src/") else None
    if module and module not in ARROWS:
        yield f"{name}: {module} has no place among the modules"
        return
    has_conditions = name.startswith(PLATFORM_FOLDERS) or name == "src/main.cpp"
    in_directive = False
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        in_directive = in_directive or line.lstrip().startswith("#")
        if in_directive and not has_conditions and (found := CONDITION.search(line)):
            yield f"{name}:{number}: {found[1]} belongs into platform/"
        in_directive = in_directive and line.endswith("\\")
        include = INCLUDE.match(line)
        if module == "cli" and "platform" in line.lower():
            yield f"{name}:{number}: the command line knows no platform"
        elif module and include:
            if complaint := judge_include(module, name.removeprefix("src/"), include[1], include[2]):
                yield f"{name}:{number}: {complaint}"


def judge(root):
    """Every violation in the tree at `root`."""
    paths = sorted(path for part in ("src", "tests", "fuzz", "benchmarks")
                   for path in (root / part).rglob("*") if path.suffix in SUFFIXES)
    if not any(path.is_relative_to(root / "src") for path in paths):
        yield f"{root}: has no sources"
    for path in paths:
        yield from judge_file(root, path)


WRONG = [  # file, content, the number of the line at fault (0: the file itself)
    ("src/rules/A.h", '\n#include "recognition/B.h"', 2),
    ("src/support/A.cpp", '#include "input/B.h"', 1),
    ("src/recognition/A.h", '  #  include "actions/B.h"', 1),
    ("src/ui/A.h", '#include "actions/B.h"', 1),
    ("src/cli/A.h", '#include "actions/B.h"', 1),
    ("src/cli/A.h", '#include "platform/linux/B.h"', 1),
    ("src/cli/A.cpp", "\n// Not on this Platform.", 2),
    ("src/platform/linux/x11/A.h", '#include "platform/linux/touchpad/B.h"', 1),
    ("src/platform/linux/keyboard/A.h", '#include "platform/linux/session/B.h"', 1),
    ("src/platform/linux/windows/A.h", '#include "platform/linux/LinuxDesktop.h"', 1),
    ("src/platform/linux/attic/A.h", '#include "platform/linux/x11/B.h"', 1),
    ("src/platform/linux/A.h", '#include "platform/macos/B.h"', 1),
    ("src/platform/qt/A.h", '#include "platform/linux/B.h"', 1),
    ("src/platform/macos/A.mm", '#import "recognition/B.h"', 1),
    ("src/actions/A.h", '#include "B.h"', 1),
    ("src/actions/A.h", '#include "../rules/B.h"', 1),
    ("src/actions/A.h", '#include "actions/../input/B.h"', 1),
    ("src/actions/A.h", '#include HEADER', 1),
    ("src/actions/A.h", '#include <QString>', 1),
    ("src/input/A.h", '#include <libevdev/libevdev.h>', 1),
    ("src/support/A.h", '#include <unistd.h>', 1),
    ("src/recognition/A.h", '#include <nlohmann/json.hpp>', 1),
    ("src/rules/Time.h", "", 0),
    ("src/platform/linux/sTRING.h", "", 0),
    ("src/tools/A.h", "", 0),
    ("src/cli/A.cpp", "#ifdef __APPLE__", 1),
    ("src/ui/A.cpp", "#if FOO && \\\n    defined(Q_OS_MACOS)", 2),
    ("tests/rules/A.cpp", "#elif defined(__linux__)", 1),
    ("fuzz/A.cpp", "# if _WIN32", 1),
]
RIGHT = [
    ("src/rules/A.h", '#include "support/B.h"\n#include <vector>\n#include <nlohmann/json.hpp>'),
    ("src/input/A.cpp", '#include "input/A.h"\n#include <yaml.h>'),
    ("src/actions/A.h", '#include "feedback/B.h"\n// not for __linux__\n#define X 1'),
    ("src/platform/linux/windows/A.h", '#include "platform/linux/launching/B.h"\n#include "platform/linux/x11/B.h"'),
    ("src/platform/linux/A.cpp", '#include "platform/linux/B.h"\n#include "platform/linux/windows/B.h"\n#include <unistd.h>\n#ifdef __linux__'),
    ("src/platform/linuxdesktop/A.h", '#include <QObject>\n#include "platform/qt/B.h"\n#include "platform/linux/x11/B.h"'),
    ("src/cli/A.cpp", '#include "app/B.h"\n#include <CLI/CLI.hpp>'),
    ("src/main.cpp", '#include "ui/B.h"\n#ifdef __APPLE__\n#include "platform/macos/B.h"'),
    ("tests/platform/A.cpp", '#include <unistd.h>\n#ifdef __linux__'),
    ("src/ui/TimeLabel.h", "#include <QLabel>"),
]


def self_check():
    """What the judgement gets wrong about the samples."""
    for name, content, *line in WRONG + RIGHT:
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for file, text in (("src/support/Point.h", ""), (name, content)):
                (root / file).parent.mkdir(parents=True, exist_ok=True)
                (root / file).write_text(text)
            expected = [f"{name}:{line[0]}" if line[0] else name] if line else []
            found = list(judge(root))
            if [complaint.split(": ")[0] for complaint in found] != expected:
                yield f"{name} with {content!r}: expected {expected}, found {found}"
    with tempfile.TemporaryDirectory() as folder:
        if len(list(judge(pathlib.Path(folder)))) != 1:
            yield "an empty tree passes"


if len(sys.argv) != 2:
    sys.exit(__doc__)
problems = list(self_check() if sys.argv[1] == "--self-check" else judge(pathlib.Path(sys.argv[1]).resolve()))
sys.exit("\n".join(problems) if problems else 0)
