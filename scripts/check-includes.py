#!/usr/bin/env python3
"""Checks that includes between the folders of src/ point one way: a file may include its own
folder, the folders of its own floor and the floors below, never a floor above.

Floors, lowest first (the README's source-tree section lists the same order):
  base -> platform -> settings, state -> link -> the subsystems -> qt -> main -> app
Prints each include that points upward and exits 1 when there is one."""
import pathlib
import re
import sys

FLOORS = [
    ["base"],
    ["platform"],
    ["settings", "state"],
    ["link"],
    ["core", "heard", "transmit", "aprs", "beacon", "alarms", "connected", "modules", "viewport"],
    ["qt"],
    ["main"],
    ["app"],
]
FLOOR = {folder: level for level, folders in enumerate(FLOORS) for folder in folders}
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')


def folder_of(path: str) -> str:
    parts = path.split("/")
    # The simulated platform and the interfaces share the platform floor.
    return parts[0]


def main() -> int:
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".") / "src"
    wrong = []
    for file in sorted(root.rglob("*")):
        if file.suffix not in (".h", ".cpp"):
            continue
        own = folder_of(str(file.relative_to(root)))
        if own not in FLOOR:
            wrong.append(f"{file.relative_to(root)}: folder {own} has no floor")
            continue
        for number, line in enumerate(file.read_text(errors="replace").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            target = folder_of(match.group(1))
            if target not in FLOOR:
                continue  # a header beside it, or of sim/
            if FLOOR[target] > FLOOR[own]:
                wrong.append(f"src/{file.relative_to(root)}:{number}: {own} includes {match.group(1)}")
    for line in wrong:
        print(line)
    if wrong:
        print(f"include directions: {len(wrong)} include(s) point upward")
        return 1
    print("include directions: ok")
    return 0


if __name__ == "__main__":
    sys.exit(main())
