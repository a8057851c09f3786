#!/usr/bin/python3
# Reads the running game over AT-SPI, as a screen reader does, and plays it with keys typed by xdotool:
# a session bus, the accessibility bus and its registry, the program with QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1.
# usage (on an X display): screen_reader.py GAME [REPORT]   exit 77: a tool is missing, nothing was checked
import os, re, shutil, subprocess, sys, tempfile, time

SKIP = 77
tools = ["dbus-launch", "xdotool", "/usr/libexec/at-spi-bus-launcher", "/usr/libexec/at-spi2-registryd"]
missing = [t for t in tools if not shutil.which(t)]
try:
    import gi  # noqa: F401
except ImportError:
    missing.append("python3-gi")
if missing:
    print("SKIPPED: missing " + ", ".join(missing) + " (apt-get install at-spi2-core dbus-x11 xdotool python3-pyatspi)")
    sys.exit(SKIP)

game = sys.argv[1]
report = open(sys.argv[2], "w") if len(sys.argv) > 2 else None
children = []


def start(*cmd, **kw):
    children.append(subprocess.Popen(cmd, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **kw))
    return children[-1]


runtime = tempfile.mkdtemp(prefix="sudoku-atspi-")
os.environ["XDG_RUNTIME_DIR"] = runtime
for line in subprocess.check_output(["dbus-launch", "--sh-syntax"], text=True).splitlines():
    m = re.match(r"(DBUS_SESSION_BUS_\w+)='?([^';]*)", line)
    if m:
        os.environ[m.group(1)] = m.group(2)
bus_pid = int(os.environ.get("DBUS_SESSION_BUS_PID", "0"))


def finish(status):
    if report:
        report.close()
    for p in reversed(children):
        p.terminate()
        try:
            p.wait(10)
        except subprocess.TimeoutExpired:
            p.kill()
    if bus_pid:
        os.kill(bus_pid, 15)
    shutil.rmtree(runtime, ignore_errors=True)
    sys.exit(status)


def fail(what):
    print("FAIL: " + what)
    finish(1)


def say(line):
    print(line)
    if report:
        report.write(line + "\n")


start("/usr/libexec/at-spi-bus-launcher", "--launch-immediately", "--a11y=1")
time.sleep(1)
start("/usr/libexec/at-spi2-registryd")
time.sleep(1)

import pyatspi  # noqa: E402  (needs the session bus above)
from gi.repository import GLib  # noqa: E402

heard = []  # (event, name) of every name change and focus the reader is told about


def listen(event):
    try:
        if event.type.startswith("object:state-changed:focused") and not event.detail1:
            return
        # Qt 5 sends the object itself as a new description: the reader asks it for the text.
        heard.append((event.type, event.source.description if "description" in event.type else event.source.name))
    except Exception:
        pass


pyatspi.Registry.registerEventListener(listen, "object:property-change:accessible-name",
                                       "object:property-change:accessible-description", "object:state-changed:focused")


def pump():
    context = GLib.MainContext.default()
    while context.pending():
        context.iteration(False)


def wait_for(condition, what, timeout=30):
    end = time.time() + timeout
    while time.time() < end:
        pump()
        try:
            found = condition()
        except Exception:
            found = None
        if found:
            return found
        time.sleep(0.05)
    fail("timed out waiting for " + what)


def walk(node):
    yield node
    for i in range(node.childCount):
        child = node.getChildAtIndex(i)
        if child is not None:
            yield from walk(child)


def key(*keys):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *keys], check=True)


env = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_ACCESSIBILITY="1")
app_process = start(game, env=env)


def the_app():
    for app in pyatspi.Registry.getDesktop(0):
        if app is not None and app.get_process_id() == app_process.pid:
            return app


app = wait_for(the_app, "the game on the accessibility bus")
table = wait_for(lambda: next((o for o in walk(app) if o.getRole() == pyatspi.ROLE_TABLE), None), "the board")
subprocess.run(["xdotool", "search", "--sync", "--name", "^Sudoku Vantu$", "windowactivate", "--sync"],
               stdout=subprocess.DEVNULL, check=False)

# The board as a table: its shape, its cells, and no bare digit or "0" anywhere.
objects = list(walk(app))
names = [o.name for o in objects]
say("objects in the window: %d" % len(objects))
say("board: %s, %s" % (table.name, table.getRoleName()))
cells = table.queryTable()
if (cells.nRows, cells.nColumns, table.childCount) != (9, 9, 82):
    fail("a 9 x 9 table with the level label, got %d x %d, %d children" % (cells.nRows, cells.nColumns, table.childCount))
cell = [[cells.getAccessibleAt(r, c) for c in range(9)] for r in range(9)]
for r in range(9):
    for c in range(9):
        x = cell[r][c]
        if x.getRole() != pyatspi.ROLE_TABLE_CELL or x.childCount or not x.name.startswith("Row %d, column %d: " % (r + 1, c + 1)):
            fail("cell %d, %d reads %r (%s, %d children)" % (r, c, x.name, x.getRoleName(), x.childCount))
bare = [n for n in names if re.fullmatch(r"\d", n or "")]
if bare:
    fail("bare digits read: %s" % bare)
say("row 1: " + " | ".join(cell[0][c].name for c in range(9)))
start_focus = wait_for(lambda: next((o for o in objects if o.getState().contains(pyatspi.STATE_FOCUSED)), None),
                       "the focus at start")
say("focus at start: %s (%s)" % (start_focus.name, start_focus.getRoleName()))
if start_focus != table:
    fail("the board has the focus at start")


def focused_cell():
    for row in cell:
        for x in row:
            if x.getState().contains(pyatspi.STATE_FOCUSED):
                return x


# Down gives the value caret to the first empty cell; the reader is told of the focus.
key("Down")
here = wait_for(focused_cell, "a focused cell after Down")
say("Down: %s; %s" % (here.name, here.description))
if not here.name.endswith(": empty") or here.description != "Caret: value entry":
    fail("the first empty cell with the value caret")
if ("object:state-changed:focused", here.name) not in heard:
    fail("a focus event for %r, heard %s" % (here.name, heard))

# Digits until one is taken; each refusal is said in words.
prefix = here.name[: -len("empty")]
for d in range(1, 10):
    del heard[:]
    key(str(d))
    # The digit shows at once; a refused one blinks for 800 ms, then the name says so.
    wait_for(lambda: here.name in (prefix + str(d), "%sempty; %d refused" % (prefix, d)), "the answer to %d" % d)
    time.sleep(1.5)
    pump()
    outcome = here.name
    say("%d: %s" % (d, outcome))
    if ("object:property-change:accessible-name", outcome) not in heard:
        fail("a name change to %r, heard %s" % (outcome, heard))
    if outcome == prefix + str(d):
        break
    said = ("object:property-change:accessible-description", "Caret: value entry; %d refused" % d)
    if said not in heard:
        fail("the refusal in the description, heard %s" % heard)
else:
    fail("no digit was taken")

# The View menu from the keyboard: Alt+V, Return shows the pencil marks; the next Down reaches the board.
key("alt+v")
time.sleep(1)
key("Return")
time.sleep(1)
key("Down")
moved = wait_for(lambda: focused_cell() if focused_cell() != here else None, "the caret moved after the menu")
say("Alt+V, Return, Down: %s; %s" % (moved.name, moved.description))
if ", candidates " not in moved.name:
    fail("the candidates in the name once pencil marks are shown")
key("space")
wait_for(lambda: moved.description == "Caret: pencil marks", "the pencil caret after Space")
say("Space: %s; %s" % (moved.name, moved.description))
key("Escape")
wait_for(lambda: moved.description == "", "the caret gone after Escape")
wait_for(lambda: table.getState().contains(pyatspi.STATE_FOCUSED), "the board focused after Escape")
say("Escape: %s; caret gone, focus on %s" % (moved.name, table.name))

# With no caret: Alt+V, Return hides the pencil marks, and Down brings the caret back to the cell it left.
key("alt+v")
time.sleep(1)
key("Return")
time.sleep(1)
key("Down")
back = wait_for(focused_cell, "a focused cell after the menu and Down")
say("Alt+V, Return, Down: %s; %s" % (back.name, back.description))
if back != moved or not back.name.endswith(": empty") or back.description != "Caret: value entry":
    fail("the value caret back on the cell it left")
finish(0)
