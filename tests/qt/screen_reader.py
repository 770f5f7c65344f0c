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


def hear(event):
    if event.type.endswith("accessible-name") or event.detail1 == 1:
        said.append(event.source.get_name())


def say_until(text):
    end = time.monotonic() + 20
    while text not in said:
        if time.monotonic() > end:
            sys.exit(f"screen_reader.py: not heard: {text!r}, but {said[-5:]}")
        GLib.MainContext.default().iteration(False)
        time.sleep(0.01)
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
