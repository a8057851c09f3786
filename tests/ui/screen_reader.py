#!/usr/bin/python3
# Reads the running game over AT-SPI as a screen reader does, while xdotool plays it with keys alone.
# usage: scripts/with-display.sh scripts/with-accessibility-bus.sh screen_reader.py GAME REPORT
import os, re, shutil, subprocess, sys, time

try:
    import pyatspi
    from gi.repository import GLib
except ImportError as missing:
    sys.exit(print("SKIPPED: %s (scripts/deps.sh installs python3-pyatspi)" % missing) or 77)
if not shutil.which("xdotool"):
    sys.exit(print("SKIPPED: xdotool is missing") or 77)
os.makedirs(os.path.dirname(os.path.abspath(sys.argv[2])), exist_ok=True)
game, report = sys.argv[1], open(sys.argv[2], "w")
heard = []  # (event, name) of every name change, focus and notification the reader hears of


# A notification that becomes showing is what Orca 43 speaks of a move's result (name changes of table cells it drops).
def listen(event):
    if "showing" in event.type:
        if event.detail1 and event.source.getRole() == pyatspi.ROLE_NOTIFICATION:
            heard.append(("notification", event.source.name))
    elif event.detail1 or "focused" not in event.type:
        heard.append((event.type.split(":")[-1], event.source.name))


pyatspi.Registry.registerEventListener(listen, "object:property-change:accessible-name", "object:state-changed:focused",
                                       "object:state-changed:showing")
app_process = subprocess.Popen([game])


def fail(what):
    app_process.kill()
    report.close()
    sys.exit("FAIL: " + what)


def wait_for(condition, what):
    end = time.time() + 60
    while time.time() < end:
        while GLib.MainContext.default().pending():
            GLib.MainContext.default().iteration(False)
        try:
            found = condition()
        except Exception:
            found = None
        if found:
            return found
        time.sleep(0.05)
    fail("timed out waiting for %s; heard %s" % (what, heard[-10:]))


def walk(node):
    yield node
    for i in range(node.childCount):
        yield from walk(node.getChildAtIndex(i))


def say(line):
    print(line)
    report.write(line + "\n")


def key(name):
    subprocess.run(["xdotool", "key", "--clearmodifiers", name], check=True)


app = wait_for(lambda: next(a for a in pyatspi.Registry.getDesktop(0) if a.get_process_id() == app_process.pid),
               "the game on the accessibility bus")
table = wait_for(lambda: next(o for o in walk(app) if o.getRole() == pyatspi.ROLE_TABLE), "the board")
subprocess.run(["xdotool", "search", "--sync", "--name", "^Sudoku Vantu$", "windowactivate", "--sync"],
               stdout=subprocess.DEVNULL)

# The board is a table of leaf cells named in words; no bare digit anywhere; the board has the focus.
objects = list(walk(app))
say("objects in the window: %d; board: %s, %s" % (len(objects), table.name, table.getRoleName()))
cells = table.queryTable()
cell = [[cells.getAccessibleAt(r, c) for c in range(9)] for r in range(9)]
if (cells.nRows, cells.nColumns) != (9, 9):
    fail("a 9 x 9 table")
for r, c in ((r, c) for r in range(9) for c in range(9)):
    if cell[r][c].childCount or not cell[r][c].name.startswith("Row %d, column %d: " % (r + 1, c + 1)):
        fail("cell %d, %d reads %r" % (r, c, cell[r][c].name))
if [o.name for o in objects if re.fullmatch(r"\d", o.name or "")]:
    fail("a bare digit is read")
say("row 1: " + " | ".join(x.name for x in cell[0]))
wait_for(lambda: table.getState().contains(pyatspi.STATE_FOCUSED), "the board focused at start")


def focused_cell():
    return next((x for row in cell for x in row if x.getState().contains(pyatspi.STATE_FOCUSED)), None)


def caret(x, mode):
    wait_for(lambda: x.description.startswith(mode) if mode else not x.description, "%r on %s" % (mode, x.name))


# Down gives the value caret to the first empty cell, and the reader the focus.
key("Down")
here = wait_for(focused_cell, "a focused cell after Down")
caret(here, "Caret: value entry")
say("Down: %s; %s" % (here.name, here.description))
if not here.name.endswith(": empty") or ("focused", here.name) not in heard:
    fail("the focus on the first empty cell")

# Digits until one is taken. Escape right after a digit waits while a refused one blinks, so the caret
# goes only once the game has answered; the name says a refusal, and one notification says the result.
prefix = here.name[: -len("empty")]
for d in range(1, 10):
    del heard[:]
    key(str(d))
    key("Escape")
    caret(here, "")
    say("%d: %s" % (d, here.name))
    if ("accessible-name", here.name) not in heard:
        fail("a name change to %r" % here.name)
    placed = here.name == prefix + str(d)
    wait_for(lambda: [h for h in heard if h[0] == "notification"], "a notification after %d" % d)
    said = [name for kind, name in heard if kind == "notification"]
    say("%d: notification %s" % (d, said))
    if not (said == [prefix + str(d)] if placed else len(said) == 1 and said[0].startswith("%d refused: " % d)):
        fail("one notification of %s %d, heard %s" % ("placed" if placed else "refused", d, said))
    if placed:
        break
    key("Down")  # back to the cell it left
    caret(here, "Caret: value entry")
else:
    fail("no digit was taken")


def pencil_marks_from_the_menu(shown):
    key("alt+v")
    item = wait_for(lambda: next(o for o in walk(app) if o.name == "Pencil Marks" and
                                 o.getState().contains(pyatspi.STATE_FOCUSED)), "Pencil Marks in the View menu")
    key("Return")
    wait_for(lambda: item.getState().contains(pyatspi.STATE_CHECKED) == shown, "Pencil Marks switched")
    wait_for(lambda: table.getState().contains(pyatspi.STATE_FOCUSED), "the board focused after the menu")


def candidates(x):
    return x.name.split("candidates ")[1].split() if "candidates " in x.name else []


def next_cell(after):
    key("Down")
    x = wait_for(lambda: focused_cell() not in (None, after) and focused_cell(), "the caret after " + after.name)
    caret(x, "Caret: value entry")
    return x


# With no caret: Alt+V, Return shows the pencil marks, and the next Down reaches the board.
pencil_marks_from_the_menu(True)
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
    key(candidate)
    key("Escape")
    caret(moved, "")
    say("Space, %s: %s" % (candidate, moved.name))
    if moved.name != before:
        if ("accessible-name", moved.name) not in heard:
            fail("a name change to %r" % moved.name)
        break
    key("Down")
    caret(moved, "Caret: value entry")
else:
    if choice:
        fail("no candidate could be toggled")
    say("no cell with two candidates is left below: no pencil mark toggled")
if [o.name for o in walk(app) if re.fullmatch(r"\d", o.name or "")]:
    fail("a bare digit is read after the moves")
app_process.terminate()
app_process.wait(30)
report.close()
