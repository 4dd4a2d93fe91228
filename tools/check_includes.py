#!/usr/bin/env python3
"""Holds the picture of the house: which room may include which.

Reads every C++ file that git tracks or would track. Fails with one line per include that runs
against the arrows or leads nowhere and per file that stands in no room, and when the arrows
themselves go round in a circle or lead to a room that is not there.
"""
import graphlib
import re
import subprocess
import sys
from pathlib import Path

# A room is a folder with all below it that is no room of its own, or a single file. Behind it stand
# the rooms that it may include beside itself.
CONTRACT = "core/include/tsfcore"
FITTING = "core/include/tsffit"
TIMES = "include/tsxtimes"
PUBLIC = {"include/tsxport", "include/tsxport/xml", CONTRACT}
ARROWS = {
    # Ground floor. Of the writer's headers those of the XML layer know no core.
    CONTRACT: set(),
    FITTING: {CONTRACT},
    "kinds": {CONTRACT},
    "include/tsxport/xml": set(),
    "include/tsxport": {"include/tsxport/xml", CONTRACT},
    TIMES: PUBLIC,
    # The writer; its dialects are added below.
    "xml": {"include/tsxport/xml"},
    "objstream": {"xml", "include/tsxport", "include/tsxport/xml"},
    "datespec": PUBLIC,  # the names that its element is written and read with
    "datespec/calendar": PUBLIC,
    "datespec/write": {"datespec", "xml"} | PUBLIC,
    "dictionary": {"datespec/calendar"} | PUBLIC,
    "dialect": {"dictionary", "xml"} | PUBLIC,
    "export": {"dialect", "dictionary", "xml"} | PUBLIC,
    # Times, a client of the writer's public headers.
    "times/text": {TIMES},
    "times/clock": {"times/text", TIMES},
    "times/axis": {"times/clock", "times/text", TIMES} | PUBLIC,
    # What hosts share, and the hosts.
    "text": set(),
    "models": {"text", "kinds", TIMES, FITTING} | PUBLIC,
    "report": {"models", "text", TIMES, FITTING} | PUBLIC,
    "cli": {"text"},  # the errors that end a run
    "cli/system": {"cli", "text"},
    "cli/table": {"cli", "models", "text", TIMES} | PUBLIC,
    "cli/options": {"cli", "models", "text", TIMES, FITTING} | PUBLIC,
    "cli/commands": {"cli/options", "cli/table", "cli/system", "cli", "report", "models", "text",
                     TIMES, FITTING} | PUBLIC,
    "cli/main.cpp": {"cli/commands", "cli/system"},
    "examples": {TIMES, FITTING} | PUBLIC,
}
# The core. Its implementation of the contract sees nothing else of ours: it is what any core has to
# bring. Mathematics knows no fit.
SERIES = {"core/src/series", "core/src/math", "kinds", FITTING, CONTRACT}
ARIMA_MODEL = {"core/src/arima/model"} | SERIES
ARIMA_FILTER = {"core/src/arima/filter"} | ARIMA_MODEL
ARIMA_FIT = {"core/src/arima/fit"} | ARIMA_FILTER
ARROWS |= {
    "core/src/contract": {"kinds", CONTRACT},
    "core/src/math": {CONTRACT},
    "core/src/series": SERIES - {"core/src/series"},
    "core/src/smoothing": SERIES,
    "core/src/croston": SERIES,
    "core/src/arima/model": SERIES,
    "core/src/arima/filter": ARIMA_MODEL,
    "core/src/arima/fit": ARIMA_FILTER,
    "core/src/arima/forecast": ARIMA_FILTER,
    "core/src/arima/orders": ARIMA_FIT,
    "core/src/arima/outliers": {"core/src/arima/orders"} | ARIMA_FIT,
    "core/src/dispatch": {"core/src/smoothing", "core/src/croston", "core/src/arima/forecast"}
    | ARIMA_FILTER,
    "core/src/Version.cpp": {FITTING},
}
# Tests, benchmarks and fuzz targets may look everywhere.
FREE = {"tests", "bench", "fuzz"}
# The headers of include/tsxport that the XML layer implements. It must see no other, since the rest
# know the core.
XML_HEADERS = {
    "Export.h", "Version.h", "XMLInterface.h", "XMLElement.h", "XMLAttribute.h", "XMLString.h",
    "XMLDocType.h", "ExportFormat.h", "XMLUtil.h", "WriteTree.h", "NumberFormat.h",
}
# Headers that are included in angles, by the first part of their names, and where they stand.
ANGLED = {"tsxport": "include", "tsxtimes": "include", "tsfcore": "core/include",
          "tsffit": "core/include"}
GENERATED = {"include/tsxport/Version.h"}
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def includes_of(path):
    """(line number, '<' or '"', target) of every include."""
    for number, line in enumerate(Path(path).read_text(encoding="utf-8").splitlines(), start=1):
        match = INCLUDE.match(line)
        if match:
            yield number, match[1], match[2]


def add_dialects(listing="export/Dialects.cpp"):
    """Each dialect that the list includes has its room, NAME with NAME/write, and sees no other."""
    for _, _, target in includes_of(listing):
        name, _, rest = target.partition("/")
        if rest.startswith("write/"):
            ARROWS[name] = {"datespec"} | PUBLIC
            ARROWS[f"{name}/write"] = {name, "dialect", "dictionary", "datespec", "datespec/write",
                                       "xml", "kinds"} | PUBLIC
            ARROWS["export"] = ARROWS["export"] | {f"{name}/write"}


def faults_of_picture():
    faults = [f"{room}: there is no room {seen}"
              for room, rooms in ARROWS.items() for seen in sorted(rooms - ARROWS.keys())]
    try:
        graphlib.TopologicalSorter(ARROWS).prepare()
    except graphlib.CycleError as error:
        faults.append("the arrows go round in a circle: " + " -> ".join(error.args[1]))
    faults += [f"{room}: the room is in the picture and not in the house"
               for room in ARROWS if room != "include/tsxport/xml" and not Path(room).exists()]
    return faults


def room_of(path):
    """The innermost room that a file stands in; None when it is in none."""
    path = Path(path)
    if path.parent.as_posix() == "include/tsxport" and path.name in XML_HEADERS:
        return "include/tsxport/xml"
    for place in (path, *path.parents):
        if place.as_posix() in ARROWS:
            return place.as_posix()
    return None


def file_of(kind, target, source):
    """The file of ours that an include leads to; None for those of other people."""
    if kind == "<":
        root = ANGLED.get(target.split("/", 1)[0])
        return f"{root}/{target}" if root else None
    in_core = f"core/src/{target}"  # which is an include root of its own
    return in_core if source.startswith("core/src/") and Path(in_core).exists() else target


def faults_of_file(path):
    if path.split("/", 1)[0] in FREE:
        return []
    room = room_of(path)
    if room is None:
        return [f"{path}: stands in no room of the picture"]
    faults = []
    for number, kind, target in includes_of(path):
        file = file_of(kind, target, path)
        if file is None:
            continue
        if not Path(file).exists() and file not in GENERATED:
            faults.append(f"{path}:{number}: {target} is not there")
        elif room_of(file) not in ARROWS[room] | {room}:
            faults.append(f"{path}:{number}: {room} must not include {target}")
    return faults


def main():
    listing = subprocess.run(
        ["git", "ls-files", "-co", "--exclude-standard", "--", "*.h", "*.cpp"],
        check=True, capture_output=True, text=True).stdout
    files = [name for name in listing.splitlines() if Path(name).exists()]
    if not files:
        sys.exit("no C++ files found: run this inside the checkout")
    add_dialects()
    faults = faults_of_picture() + [fault for path in files for fault in faults_of_file(path)]
    print("\n".join(faults) if faults else
          f"include arrows hold between {len(ARROWS)} rooms in {len(files)} files")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
