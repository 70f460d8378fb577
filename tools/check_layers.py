#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""check_layers.py ROOT: holds the includes of src/ against the table of who may know whom.

A source with a header of its name includes that first, so that the header is known to compile alone.

Exit 1 with one line per offending include. The same table stands in docs/architecture.md, which is checked too."""
import os
import re
import sys

# module -> (folder, modules whose headers it may include, may it include Qt's headers, may it include widgets)
MODULES = {
    "base": ("foundation/base", [], False, False),
    "plist": ("foundation/plist", ["base"], False, False),
    "format": ("iconfamily/format", ["base"], False, False),
    "foundation": ("foundation", ["base"], True, False),
    "imaging": ("imaging", ["foundation", "base"], True, False),
    "system": ("system", ["imaging", "foundation", "plist", "base"], True, False),
    "iconfamily": ("iconfamily", ["format", "imaging", "system", "foundation", "base"], True, False),
    "composition_core": ("composition/core", ["imaging", "base"], True, False),
    "library_core": ("library/core", ["iconfamily", "imaging", "system", "plist", "foundation", "base"], True, False),
    "app_core": ("app/core", ["composition_core", "library_core", "iconfamily", "imaging", "system", "foundation",
                              "base"], True, False),
    "feed": ("app/feed", ["app_core", "base"], True, False),
    "ui": ("ui", ["system", "foundation", "base"], True, True),
    "composition_view": ("composition/view", ["composition_core", "imaging", "ui", "foundation", "base"], True, True),
    "library_view": ("library/view", ["library_core", "imaging", "ui", "foundation", "base"], True, True),
    "app": ("app", ["ui", "composition_view", "library_view", "app_core", "composition_core", "library_core",
                    "iconfamily", "imaging", "system", "plist", "foundation", "base"], True, True),
    "cli": ("cli", ["app_core", "composition_core", "library_core", "iconfamily", "format", "imaging", "system",
                    "foundation", "base"], True, False),
}
NETWORK = re.compile(r"^Q(tNetwork|Network|Ssl|Tcp|Udp|Host|Dns|AbstractSocket|LocalS|Http)")
WIDGETS = re.compile(r"^Q(Widget|Dialog|Label|MainWindow|Application|Push|Tool|Frame|Layout|.*View|Style|Menu|Action)$")


def module_of(path):
    """The module whose folder is the longest prefix of path (both relative to src/)."""
    best = None
    for name, (folder, *_rest) in MODULES.items():
        if path.startswith(folder + "/") and (best is None or len(folder) > len(MODULES[best][0])):
            best = name
    return best


def check_acyclic():
    seen, done = set(), set()

    def visit(name):
        if name in done:
            return []
        if name in seen:
            return [f"the table itself has a circle through {name}"]
        seen.add(name)
        faults = [fault for other in MODULES[name][1] for fault in visit(other)]
        done.add(name)
        return faults

    return [fault for name in MODULES for fault in visit(name)]


def main(root):
    source = os.path.join(root, "src")
    faults = check_acyclic()
    count = 0
    for folder, _folders, files in os.walk(source):
        for name in files:
            if not name.endswith((".h", ".cpp")):
                continue
            path = os.path.relpath(os.path.join(folder, name), source)
            module = module_of(path)
            if module is None:
                faults.append(f"src/{path}: belongs to no module of the table")
                continue
            _own_folder, allowed, qt_allowed, widgets_allowed = MODULES[module]
            own_header = path[:-4] + ".h" if name.endswith(".cpp") and name[:-4] + ".h" in files else None
            with open(os.path.join(folder, name), encoding="utf-8") as text:
                for number, line in enumerate(text, 1):
                    found = re.match(r'\s*#\s*include\s*([<"])([^>"]+)[>"]', line)
                    if not found:
                        continue
                    count += 1
                    quoted, header = found.group(1) == '"', found.group(2)
                    if own_header and header != own_header:
                        faults.append(f"src/{path}:{number}: its own header comes first")
                    own_header = None
                    if quoted:
                        other = module_of(header)
                        if other is None:
                            faults.append(f"src/{path}:{number}: \"{header}\" is not named by its module path")
                        elif other != module and other not in allowed:
                            faults.append(f"src/{path}:{number}: {module} may not know {other} ({header})")
                    elif re.match(r"Q[A-Z]|Qt", header):
                        if not qt_allowed:
                            faults.append(f"src/{path}:{number}: {module} is free of Qt ({header})")
                        elif module != "feed" and NETWORK.match(header):
                            faults.append(f"src/{path}:{number}: only feed links the network library ({header})")
                        elif not widgets_allowed and (WIDGETS.match(header) or header.startswith("QtWidgets")):
                            faults.append(f"src/{path}:{number}: {module} links no widgets ({header})")
    for fault in faults:
        print(fault)
    print(f"{count} includes read, {len(faults)} faults")
    return 1 if faults or count == 0 else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1] if len(sys.argv) > 1 else "."))
