#!/usr/bin/env python3
"""Holds the picture of the house: which folder may include which.

Reads every C++ file that git tracks or would track, and fails with one line per include that runs
against the arrows. Quoted includes are paths from the repository root; angled ones count where
they name a header of ours.
"""
import re
import subprocess
import sys
from pathlib import Path

PUBLIC = {"include", "contract"}  # ground floor
BELOW_DIALECTS = {"dialect", "dictionary", "datespec", "datespec/write", "xml"} | PUBLIC
ARROWS = {
    "kinds": {"kinds", "contract"},
    "include": {"include", "contract"},
    "contract": {"contract"},
    "core/include/tsffit": {"core/include/tsffit", "contract"},
    "xml": {"xml", "include/xml"},
    "datespec": {"datespec"} | PUBLIC,
    "datespec/calendar": {"datespec/calendar"} | PUBLIC,
    "datespec/write": {"datespec/write", "datespec", "xml"} | PUBLIC,
    "dictionary": {"dictionary", "datespec/calendar"} | PUBLIC,
    "dialect": {"dialect", "dictionary", "xml"} | PUBLIC,
    "export": {"export", "dialect", "dictionary", "xml"} | PUBLIC,  # and the dialects
    "objstream": {"objstream", "xml", "include"},
    "text": {"text"},
    "times": {"times"} | PUBLIC,  # its public headers, which is all that hosts see
    "times/text": {"times/text", "times"},
    "times/clock": {"times/clock", "times/text", "times"},
    "times/axis": {"times/axis", "times/clock", "times/text", "times"} | PUBLIC,
    "models": {"models", "times", "text", "kinds", "core/include/tsffit"} | PUBLIC,
    "report": {"report", "models", "times", "text"} | PUBLIC,
    "cli": {"cli", "text"},  # the errors that end a run
    "cli/system": {"cli/system", "cli", "text"},
    "cli/table": {"cli/table", "cli", "models", "times", "text"} | PUBLIC,
    "cli/options": {"cli/options", "cli", "models", "times", "text", "core/include/tsffit"} | PUBLIC,
    "cli/commands": {"cli/commands", "cli/options", "cli/table", "cli/system", "cli", "report",
                     "models", "times", "text", "core/include/tsffit"} | PUBLIC,
    "cli/main.cpp": {"cli/commands", "cli/system"},
    "examples": {"examples", "times", "core/include/tsffit"} | PUBLIC,
}
# The rooms of the core, each with the rooms that it may see beside itself and the ground floor. The
# implementation of the contract sees nothing of our own: it is what any core has to bring.
CORE_GROUND = {"core/include/tsffit", "kinds", "contract"}
CORE_BELOW_FAMILIES = {"series", "math"}
CORE_ARIMA_FIT = {"arima/fit", "arima/filter", "arima/model"} | CORE_BELOW_FAMILIES
CORE_ROOMS = {
    "math": set(),
    "series": {"math"},
    "smoothing": CORE_BELOW_FAMILIES,
    "croston": CORE_BELOW_FAMILIES,
    "arima/model": CORE_BELOW_FAMILIES,
    "arima/filter": {"arima/model"} | CORE_BELOW_FAMILIES,
    "arima/forecast": {"arima/filter", "arima/model"} | CORE_BELOW_FAMILIES,
    "arima/fit": CORE_ARIMA_FIT,
    "arima/orders": CORE_ARIMA_FIT,
    "arima/outliers": {"arima/orders"} | CORE_ARIMA_FIT,
    "dispatch": {"smoothing", "croston", "arima/forecast", "arima/filter", "arima/model"}
    | CORE_BELOW_FAMILIES,
}
ARROWS |= {
    f"core/src/{room}": {f"core/src/{seen}" for seen in seen_rooms | {room}} | CORE_GROUND
    for room, seen_rooms in CORE_ROOMS.items()
}
ARROWS["core/src/math"] -= {"core/include/tsffit"}  # mathematics knows no fit
ARROWS["core/src/contract"] = {"core/src/contract", "kinds", "contract"}
ARROWS["core/src"] = {"core/include/tsffit"}  # the version, which belongs to no room
# Tests, benchmarks and fuzz targets may look everywhere.
FREE = {"tests", "bench", "fuzz"}
# The public headers that the XML layer implements; it must see no other, since the rest of the
# public headers know the core.
XML_HEADERS = {
    "Export.h", "Version.h", "XMLInterface.h", "XMLElement.h", "XMLAttribute.h", "XMLString.h",
    "XMLDocType.h", "ExportFormat.h", "XMLUtil.h", "WriteTree.h", "NumberFormat.h",
}
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def add_dialects(listing="export/Dialects.cpp"):
    """Each dialect that the list includes has its room, NAME with NAME/write, and sees no other."""
    for line in Path(listing).read_text(encoding="utf-8").splitlines():
        match = INCLUDE.match(line)
        if match and "/write/" in match[2]:
            name = match[2].split("/", 1)[0]
            ARROWS[name] = {name, "datespec"} | PUBLIC
            ARROWS[f"{name}/write"] = {f"{name}/write", name} | BELOW_DIALECTS
            ARROWS["export"].add(f"{name}/write")


def room_of_folder(text):
    """The innermost room that a path from the root leads into, or None."""
    folder = Path(text).parent
    for place in (folder, *folder.parents):
        if place.as_posix() in ARROWS or place.as_posix() in FREE:
            return place.as_posix()
    return None


def place_of_file(path):
    """The room that a file stands in, or None when it is not part of the house."""
    text = path.as_posix()
    for prefix, room in (
        ("core/include/tsfcore/", "contract"),
        ("core/include/tsffit/", "core/include/tsffit"),
        ("include/tsxport/", "include"),
        ("include/tsxtimes/", "times"),
    ):
        if text.startswith(prefix):
            return room
    if text.startswith("core/"):
        return path.parent.as_posix()
    return text if text in ARROWS else room_of_folder(text)


def places_of_include(kind, target, source):
    """The rooms an include leads to: any of them being allowed will do."""
    if kind == "<":
        if target.startswith("tsfcore/"):
            return {"contract"}
        if target.startswith("tsffit/"):
            return {"core/include/tsffit"}
        if target.startswith("tsxport/"):
            name = target.split("/", 1)[1]
            return {"include", "include/xml"} if name in XML_HEADERS else {"include"}
        return {"times"} if target.startswith("tsxtimes/") else None
    if source.startswith("core/src/") and not target.startswith("kinds/"):
        return {f"core/src/{target.rpartition('/')[0]}"}  # its include root is its own folder
    return {room_of_folder(target) or target}


def check(path):
    room = place_of_file(path)
    if room is None or room in FREE:
        return []
    if room not in ARROWS:
        return [f"{path}: no room of this name is in the picture: {room}"]
    faults = []
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), start=1):
        match = INCLUDE.match(line)
        if not match:
            continue
        rooms = places_of_include(match[1], match[2], path.as_posix())
        if rooms is not None and not rooms & ARROWS[room]:
            faults.append(f"{path}:{number}: {room} must not include {match[2]}")
    return faults


def main():
    listing = subprocess.run(
        ["git", "ls-files", "-co", "--exclude-standard", "--", "*.h", "*.cpp"],
        check=True, capture_output=True, text=True).stdout
    files = [Path(name) for name in listing.splitlines() if Path(name).exists()]
    if not files:
        sys.exit("no C++ files found: run this inside the checkout")
    add_dialects()
    faults = [fault for path in files for fault in check(path)]
    print("\n".join(faults) if faults else f"include arrows hold in {len(files)} files")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
