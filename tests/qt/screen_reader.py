#!/usr/bin/python3
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

said = []
wrong = []


def hear(event):
    name = event.source.get_name()
    if event.type.endswith("accessible-name"):
        if ("name", name) in said and name.startswith("row"):
            wrong.append(f"told again: {name}")
        said.append(("name", name))
    elif event.detail1 == 1:
        if name.startswith("row") and "current" not in name:
            wrong.append(f"focus before the new name: {name}")
        said.append(("focus", name))


def listen_until(over, seconds):
    end = time.monotonic() + seconds
    while not over() and time.monotonic() < end:
        GLib.MainContext.default().iteration(False)
        time.sleep(0.01)


def say_until(text):
    listen_until(lambda: ("focus", text) in said or ("name", text) in said, 20)
    if ("focus", text) not in said and ("name", text) not in said:
        sys.exit(f"screen_reader.py: not heard: {text!r}, but {said[-5:]}")
    listen_until(lambda: False, 0.3)  # what comes too much
    if wrong:
        sys.exit(f"screen_reader.py: {wrong[:5]}")
    said.clear()


Atspi.init()
listener = Atspi.EventListener.new(hear)
listener.register("object:state-changed:focused")
listener.register("object:property-change:accessible-name")
program = subprocess.Popen(
    sys.argv[1:], env=os.environ | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
)
try:
    for key, text in STEPS:
        if key:
            subprocess.run(["xdotool", "key", key], check=True)
        say_until(text)
        desktop = Atspi.get_desktop(0)  # a program sends events to clients that read its tree
        for i in range(desktop.get_child_count()):
            desktop.get_child_at_index(i).get_name()
finally:
    program.terminate()
print("screen_reader.py: everything was heard")
