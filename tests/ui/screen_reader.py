#!/usr/bin/python3
# Reads the running game (argument 1) over AT-SPI as a screen reader does, while xdotool plays it with keys alone;
# what it read goes to the report (argument 2). Run by scripts/with-display.sh scripts/with-accessibility-bus.sh.
import atexit, contextlib, importlib.util, os, re, shutil, subprocess, sys, time

if not shutil.which("xdotool") or not importlib.util.find_spec("pyatspi"):
    sys.exit(print("SKIPPED: xdotool or pyatspi is missing (scripts/deps.sh installs them)") or 77)
import pyatspi
from gi.repository import GLib

os.makedirs(os.path.dirname(os.path.abspath(sys.argv[2])), exist_ok=True)
report = open(sys.argv[2], "w", buffering=1)
heard = []  # (event, name) of every name change, focus and notification the reader hears of


def listen(event):  # a notification becoming showing is what Orca 43 speaks of a move (not a table cell's new name)
    if event.detail1 or "name" in event.type:
        kind = event.type.split(":")[-1]
        notification = kind == "showing" and event.source.getRole() == pyatspi.ROLE_NOTIFICATION
        heard.append(("notification" if notification else kind, event.source.name))


pyatspi.Registry.registerEventListener(listen, "object:property-change:accessible-name", "object:state-changed:focused",
                                       "object:state-changed:showing")
game = subprocess.Popen([sys.argv[1]])
atexit.register(game.kill)


def wait_for(condition, what):
    end = time.time() + 60
    while time.time() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        with contextlib.suppress(Exception):
            if found := condition():
                return found
        time.sleep(0.05)
    sys.exit("FAIL: timed out waiting for %s; heard %s" % (what, heard[-10:]))


def say(line):
    print(line), print(line, file=report)


def key(*names):
    for name in names:
        subprocess.run(["xdotool", "key", "--clearmodifiers", name], check=True)


def focused(x):
    return x.getState().contains(pyatspi.STATE_FOCUSED)


def caret(x, mode):  # the cell, once its description tells the caret's mode ("": no caret)
    wait_for(lambda: x.description.startswith(mode) if mode else not x.description, "%r on %s" % (mode, x.name))
    return x


def next_cell(after):  # Down: the value caret, and the reader's focus, on the next cell
    key("Down")
    x = wait_for(lambda: next(x for row in cell for x in row if focused(x) and x != after), "the caret after Down")
    return caret(x, "Caret: value entry")


def candidates(x):
    return x.name.split("candidates ")[1].split() if "candidates " in x.name else []


app = wait_for(lambda: next(a for a in pyatspi.Registry.getDesktop(0) if a.get_process_id() == game.pid), "the game")
table = wait_for(lambda: pyatspi.findDescendant(app, lambda o: o.getRole() == pyatspi.ROLE_TABLE), "the board")
subprocess.run(["xdotool", "search", "--sync", "--name", "^Sudoku Vantu$", "windowactivate", "--sync"],
               stdout=subprocess.DEVNULL)

# The board is a 9 x 9 table of leaf cells named in words, and has the focus.
cells = table.queryTable()
assert (cells.nRows, cells.nColumns) == (9, 9), "a 9 x 9 table"
cell = [[cells.getAccessibleAt(r, c) for c in range(9)] for r in range(9)]
assert all(not x.childCount and x.name.startswith("Row %d, column %d: " % (r + 1, c + 1))
           for r, row in enumerate(cell) for c, x in enumerate(row)), "cells named in words"
say("%d objects; row 1: %s" % (len(pyatspi.findAllDescendants(app, lambda o: 1)), " | ".join(x.name for x in cell[0])))
wait_for(lambda: focused(table), "the board focused at start")

# Down gives the value caret to the first empty cell, and the reader the focus.
here = next_cell(None)
assert here.name.endswith(": empty") and ("focused", here.name) in heard, "the focus on the first empty cell"

# A given's digit (refused), then digits until one is taken; Escape waits while one blinks. One notification each.
r, c = (int(n) - 1 for n in re.findall(r"\d+", here.name)[:2])
given = [x.name.split(": ")[1][0] for i, row in enumerate(cell) for j, x in enumerate(row)
         if x.name.endswith(", given") and (i == r or j == c or (i // 3, j // 3) == (r // 3, c // 3))]
for d in given[:1] + list("123456789"):
    del heard[:]
    key(d, "Escape")
    caret(here, "")
    assert ("accessible-name", here.name) in heard, "a name change to %r" % here.name
    said = wait_for(lambda: [name for kind, name in heard if kind == "notification"], "a notification after " + d)
    say("%s: %s; notification %s" % (d, here.name, said))
    placed = here.name.endswith(": " + d)
    assert said == [here.name] if placed else len(said) == 1 and said[0].startswith(d + " refused: "), said
    if placed:
        break
    key("Down")  # back to the cell it left
    caret(here, "Caret: value entry")
assert placed and given, "a refused and a placed digit"

# With no caret: Alt+V, Return shows the pencil marks, and the next Down reaches the board.
key("alt+v")
item = wait_for(lambda: pyatspi.findDescendant(app, lambda o: o.name == "Pencil Marks" and focused(o)), "the menu")
key("Return")
wait_for(lambda: item.getState().contains(pyatspi.STATE_CHECKED), "Pencil Marks switched on")
wait_for(lambda: focused(table), "the board focused after the menu")
moved = next_cell(here)
say("Alt+V, Return, Down: %s; %s" % (moved.name, moved.description))
for value in candidates(moved) if len(candidates(moved)) == 1 else []:  # Return enters a single candidate
    key("Return")
    wait_for(lambda: moved.name.endswith(": " + value), "Return entering " + value)
r, c = (int(n) - 1 for n in re.findall(r"\d+", moved.name)[:2])
choice = any(len(candidates(cell[i % 9][i // 9])) > 1 for i in range(c * 9 + r, 81))
while choice and len(candidates(moved)) < 2:
    moved = next_cell(moved)
# On with Down (down the columns) to a cell with a choice, if one is left below; Space, then candidates toggled
# until one goes (the solution's is refused); Escape waits for the answer.
for candidate in candidates(moved) if choice else []:
    key("space")
    caret(moved, "Caret: pencil marks")
    before, heard[:] = moved.name, []
    key(candidate, "Escape")
    caret(moved, "")
    say("Space, %s: %s" % (candidate, moved.name))
    if moved.name != before:
        assert ("accessible-name", moved.name) in heard, "a name change to %r" % moved.name
        break
    key("Down")
    caret(moved, "Caret: value entry")
else:
    assert not choice, "no candidate could be toggled"
assert not pyatspi.findAllDescendants(app, lambda o: re.fullmatch(r"\d", o.name)), "a bare digit after the moves"
