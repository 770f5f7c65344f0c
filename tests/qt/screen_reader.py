#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Works the program by keyboard and listens on the accessibility bus as a screen reader does:
screen_reader.py <program>. Needs a display and a session bus."""

import os
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

# Each key with the name of the control that has the focus afterwards.
STEPS = [
    (None, "row 1, column 1: empty, current"),
    ("Right", "row 1, column 2: empty, current"),
    ("5", "row 1, column 2: 5, current"),
    ("x", "row 1, column 2: 5, locked, current"),
    ("ctrl+End", "row 9, column 9: empty, current"),
    ("Tab", "1"),
]

heard = []
wrong = []


def hear(event):
    name = event.source.get_name()
    isName = event.type.endswith("accessible-name")
    if not isName and event.detail1 == 0:
        return
    if name.startswith("row") and ((isName, name) in heard if isName else "current" not in name):
        wrong.append(f"told again, or focus before the new name: {name}")
    heard.append((isName, name))


def listen(seconds, name=None):
    end = time.monotonic() + seconds
    while time.monotonic() < end and all(name != item[1] for item in heard):
        GLib.MainContext.default().iteration(False)
        time.sleep(0.01)


Atspi.init()
listener = Atspi.EventListener.new(hear)
listener.register("object:state-changed:focused")
listener.register("object:property-change:accessible-name")
program = subprocess.Popen(
    sys.argv[1:], env=os.environ | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
)
try:
    for key, name in STEPS:
        if key:
            subprocess.run(["xdotool", "key", key], check=True)
        listen(20, name)
        listen(0.3)  # what comes too much
        if wrong or all(name != item[1] for item in heard):
            sys.exit(f"screen_reader.py: {name!r} wanted, {heard} heard, {wrong}")
        heard.clear()
        desktop = Atspi.get_desktop(0)  # a program sends events to clients that read its tree
        for i in range(desktop.get_child_count()):
            desktop.get_child_at_index(i).get_name()
finally:
    program.terminate()
print("screen_reader.py: everything was heard")
