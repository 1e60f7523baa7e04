#!/usr/bin/env python3
"""Checks who includes whom: src/<folder> may include itself and what its CMake call depends on.

usage: check-includes.py SRC FOLDERS   (FOLDERS: lines "name: dependency dependency …")
"""
import pathlib
import re
import sys

NATIVE = re.compile(r"^(xcb/|X11/|xkbcommon/|libav|libsw|x264|pipewire/|spa/|wayland-)")
WIDGETS = re.compile(r"^(Q\w*Widgets?|Q(Application|Dialog|MainWindow|Menu|Label|PushButton|ListView|Layout))$")
WIDGET_HOMES = {"editor", "app"}
CAPTURE_WIDGETS = {"LocationPicker", "ShortcutRecorder", "StatusPanel"}


def reachable(folders):
    """Maps each folder to all that lies right of it, itself included."""
    def visit(name, seen):
        if name not in seen:
            seen.add(name)
            for dependency in folders[name]:
                visit(dependency, seen)
        return seen
    return {name: visit(name, set()) for name in folders}


def faults(src, allowed):
    for path in sorted(src.rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        relative = path.relative_to(src)
        folder = relative.parts[0]
        if folder not in allowed:
            yield f"{relative}: folder {folder} has no velvane_folder() call"
            continue
        is_test = path.stem.endswith(("Tests", "Fixture"))
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            match = re.match(r'\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)', line)
            if not match:
                continue
            ours, theirs = match.groups()
            where = f"{relative}:{number}"
            if ours and not ours.endswith(".moc"):
                target = ours.split("/")[0]
                if target == "tests" or (target == "support" and is_test):
                    if not is_test:
                        yield f"{where}: only tests include {ours}"
                elif not (src / ours).exists():
                    yield f"{where}: {ours} is not written from src/"
                elif target not in allowed[folder]:
                    yield f"{where}: {folder} may not include {ours}"
            elif theirs and NATIVE.match(theirs) and not is_test:
                backend = folder == "platform" and len(relative.parts) > 2
                if not backend and not (folder == "media" and path.suffix == ".cpp"):
                    yield f"{where}: native header {theirs} outside a backend"
            elif theirs and WIDGETS.match(theirs) and not is_test:
                if folder not in WIDGET_HOMES and path.stem not in CAPTURE_WIDGETS:
                    yield f"{where}: widget {theirs} outside editor and app"


def main():
    src = pathlib.Path(sys.argv[1])
    folders = {}
    for line in pathlib.Path(sys.argv[2]).read_text(encoding="utf-8").splitlines():
        name, _, dependencies = line.partition(":")
        if name:
            folders[name] = dependencies.split()
    found = list(faults(src, reachable(folders)))
    print("\n".join(found) or f"includes of {len(folders)} folders follow the direction")
    return 1 if found else 0


sys.exit(main())
