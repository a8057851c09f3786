#!/usr/bin/python3
# Reads the running game over AT-SPI as a screen reader does, while xdotool plays it with keys alone.
# usage: scripts/with-display.sh scripts/with-accessibility-bus.sh screen_reader.py GAME REPORT
import atexit, contextlib, importlib.util, os, re, shutil, subprocess, sys, time

if not shutil.which("xdotool") or not importlib.util.find_spec("pyatspi"):
    sys.exit(print("SKIPPED: xdotool or pyatspi is missing (scripts/deps.sh installs them)") or 77)
import pyatspi
from gi.repository import GLib

os.makedirs(os.path.dirname(os.path.abspath(sys.argv[2])), exist_ok=True)
report = open(sys.argv[2], "w", buffering=1)
heard = []  # (event, name) of every name change, focus and notification the reader hears of


# A notification that becomes showing is what Orca 43 speaks of a move's result (name changes of table cells it drops).
def listen(event):
    if event.detail1 or "name" in event.type:
        kind = event.type.split(":")[-1]
        notification = kind == "showing" and event.source.getRole() == pyatspi.ROLE_NOTIFICATION
        heard.append(("notification" if notification else kind, event.source.name))


pyatspi.Registry.registerEventListener(listen, "object:property-change:accessible-name", "object:state-changed:focused",
                                       "object:state-changed:showing")
game = subprocess.Popen([sys.argv[1]])
atexit.register(game.kill)


def check(ok, what):
    if not ok:
        sys.exit("FAIL: " + what)


def wait_for(condition, what):
    end = time.time() + 60
    while time.time() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        with contextlib.suppress(Exception):
            if found := condition():
                return found
        time.sleep(0.05)
    check(False, "timed out waiting for %s; heard %s" % (what, heard[-10:]))


def walk(node):
    yield node
    for i in range(node.childCount):
        yield from walk(node.getChildAtIndex(i))


def say(line):
    print(line), print(line, file=report)


def key(*names):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *names], check=True)


def focused(x):
    return x.getState().contains(pyatspi.STATE_FOCUSED)


def caret(x, mode):  # the caret's mode as the cell's description tells it ("": no caret)
    wait_for(lambda: x.description.startswith(mode) if mode else not x.description, "%r on %s" % (mode, x.name))


def next_cell(after):  # Down: the value caret, and the reader's focus, on the next cell
    key("Down")
    x = wait_for(lambda: next(x for row in cell for x in row if focused(x) and x != after), "the caret after Down")
    caret(x, "Caret: value entry")
    return x


def candidates(x):
    return x.name.split("candidates ")[1].split() if "candidates " in x.name else []


app = wait_for(lambda: next(a for a in pyatspi.Registry.getDesktop(0) if a.get_process_id() == game.pid),
               "the game on the accessibility bus")
table = wait_for(lambda: next(o for o in walk(app) if o.getRole() == pyatspi.ROLE_TABLE), "the board")
subprocess.run(["xdotool", "search", "--sync", "--name", "^Sudoku Vantu$", "windowactivate", "--sync"],
               stdout=subprocess.DEVNULL)

# The board is a 9 x 9 table of leaf cells named in words, and has the focus.
cells = table.queryTable()
check((cells.nRows, cells.nColumns) == (9, 9), "a 9 x 9 table")
cell = [[cells.getAccessibleAt(r, c) for c in range(9)] for r in range(9)]
wrong = [x.name for r, row in enumerate(cell) for c, x in enumerate(row)
         if x.childCount or not x.name.startswith("Row %d, column %d: " % (r + 1, c + 1))]
check(not wrong, "cells read %s" % wrong)
say("objects in the window: %d; board: %s, %s; row 1: %s"
    % (len(list(walk(app))), table.name, table.getRoleName(), " | ".join(x.name for x in cell[0])))
wait_for(lambda: focused(table), "the board focused at start")

# Down gives the value caret to the first empty cell, and the reader the focus.
here = next_cell(None)
say("Down: %s; %s" % (here.name, here.description))
check(here.name.endswith(": empty") and ("focused", here.name) in heard, "the focus on the first empty cell")

# A digit given beside it (refused), then digits until one is taken. Escape right after a digit waits while a
# refused one blinks; the cell's name changes, and one notification says the result.
r, c = (int(n) - 1 for n in re.findall(r"\d+", here.name)[:2])
given = [x.name.split(": ")[1][0] for i, row in enumerate(cell) for j, x in enumerate(row)
         if x.name.endswith(", given") and (i == r or j == c or (i // 3, j // 3) == (r // 3, c // 3))]
for d in given[:1] + list("123456789"):
    del heard[:]
    key(d, "Escape")
    caret(here, "")
    check(("accessible-name", here.name) in heard, "a name change to %r" % here.name)
    said = wait_for(lambda: [name for kind, name in heard if kind == "notification"], "a notification after " + d)
    say("%s: %s; notification %s" % (d, here.name, said))
    placed = here.name.endswith(": " + d)
    check(said == [here.name] if placed else len(said) == 1 and said[0].startswith(d + " refused: "),
          "one notification of the result of %s, heard %s" % (d, said))
    if placed:
        break
    check(next_cell(None) == here, "Down back on the cell it left")
check(placed and given, "a refused and a placed digit")

# With no caret: Alt+V, Return shows the pencil marks, and the next Down reaches the board.
key("alt+v")
item = wait_for(lambda: next(o for o in walk(app) if o.name == "Pencil Marks" and focused(o)), "Pencil Marks in View")
key("Return")
wait_for(lambda: item.getState().contains(pyatspi.STATE_CHECKED), "Pencil Marks switched on")
wait_for(lambda: focused(table), "the board focused after the menu")
moved = next_cell(here)
say("Alt+V, Return, Down: %s; %s" % (moved.name, moved.description))
if len(candidates(moved)) == 1:  # Return enters a single candidate
    value = candidates(moved)[0]
    key("Return")
    wait_for(lambda: moved.name.endswith(": " + value), "Return entering " + value)
    say("Return: " + moved.name)
# On, with Down (down the columns), to a cell with a choice, if one is left below.
r, c = (int(n) - 1 for n in re.findall(r"\d+", moved.name)[:2])
choice = any(len(candidates(cell[i % 9][i // 9])) > 1 for i in range(c * 9 + r, 81))
while choice and len(candidates(moved)) < 2:
    moved = next_cell(moved)
# Space, then candidates toggled until one goes (the solution's is refused); Escape waits for the answer.
for candidate in candidates(moved) if choice else []:
    key("space")
    caret(moved, "Caret: pencil marks")
    before = moved.name
    del heard[:]
    key(candidate, "Escape")
    caret(moved, "")
    say("Space, %s: %s" % (candidate, moved.name))
    if moved.name != before:
        check(("accessible-name", moved.name) in heard, "a name change to %r" % moved.name)
        break
    check(next_cell(None) == moved, "Down back on the cell it left")
else:
    check(not choice, "no candidate could be toggled")
    say("no cell with two candidates is left below: no pencil mark toggled")
check(not [o for o in walk(app) if re.fullmatch(r"\d", o.name or "")], "a bare digit is read after the moves")
