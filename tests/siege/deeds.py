"""What can be done to the game and to the desktop around it, and which of it is done next."""

import dataclasses
import random
import signal
import typing

from board import BUTTONS, PEG, center, code_peg_at, peg_at
from game import SKINS

SHARE = None
"""Any number from 0 to 1, of the way from the first to the last, or from edge to edge."""

MOUSE_BUTTONS = (1, 1, 1, 1, 2, 3, 3, 8, 9)
PLACES = (*BUTTONS, *(f"hole {column}" for column in range(1, 7)),
          *(f"code {column}" for column in range(1, 5)))
KEYS = (*"1234567890", *"1234567890", *"skcwhfaimtyn", *"ssk", "e", "Left", "Right", "Up", "Down",
        "Home", "End", "Delete", "BackSpace", "space", "Return", "Return", "Return", "Escape",
        "F1", "Tab", "Tab", "F10", "KP_1", "KP_6", "KP_Enter")
OTHER_KEYS = (*"bdgjlopqruvxz", "comma", "F2", "F5", "F11", "Insert", "Prior", "Next", "Print",
              "Pause", "Menu", "Alt_L", "Shift_L", "Control_L", "Super_L", "Caps_Lock", "Num_Lock")
COMBINATIONS = tuple(tuple(keys.split()) for keys in (
    "Control_L 1", "Control_L 2", "Control_L 3", "Control_L equal", "Control_L equal",
    "Control_L minus", "Control_L 0", "Control_L v", "Control_L c", "Control_L a", "Control_L q",
    "Control_L w", "Control_L z", "Alt_L F4", "Alt_L space", "Alt_L s", "Alt_L Tab",
    "Shift_L Tab", "Shift_L 1", "Shift_L 4", "Shift_L Delete", "Shift_L F10",
    "Control_L Shift_L Alt_L F12"))
TEXTS = ("anna", "Zoë", "Ζωή", "Наташа", "愛", "مريم", "👑🂡", "e\u0301\u0302\u0303", "a\nb\tc\0d",
         "<b>&amp;</b>", "%s%n", "\u202eannA", "W" * 500, "", " ")
SCREENS = ((1600, 1300), (1600, 1300), (1280, 900), (1024, 768), (800, 600), (800, 1024))
STATES = tuple("_NET_WM_STATE_" + state for state in (
    "ABOVE", "BELOW", "STICKY", "SHADED", "FULLSCREEN", "MAXIMIZED_VERT", "MAXIMIZED_HORZ",
    "HIDDEN", "SKIP_TASKBAR", "DEMANDS_ATTENTION"))
FILES = ("settings", "playlist", "scores", "tune", "sound", "picture", "skin", "rules")
SPOILINGS = ("take away", "cut", "garble", "make read-only")
GIFTS = ("whole", "damaged", "folder", "no skin")
FACTORS = ("1", "1", "1.25", "2")
ENDING = ("SIGTERM", "SIGINT", "SIGHUP")


@dataclasses.dataclass(frozen=True)
class Kind:
    name: str
    weight: int
    values: tuple
    """From what each of its numbers and names is drawn: a list, or a SHARE."""
    do: typing.Callable
    """Called with the siege and the values."""


def draw(seed, number):
    """The deed of that number: its kind and its values. It depends on nothing else."""
    chance = random.Random(f"{seed}/{number}")
    kind, = chance.choices(DEEDS, [kind.weight for kind in DEEDS])
    return kind, [round(chance.random(), 3) if of is SHARE else chance.choice(of)
                  for of in kind.values]


# The pointer

def move(siege, x, y):
    siege.desktop.move_pointer(*siege.on_screen(x, y))


def click(siege, button, window, x, y):
    siege.desktop.click(*siege.in_window(window, x, y), button)


def click_twice(siege, button, window, x, y):
    click(siege, button, window, x, y)
    siege.desktop.press(button)
    siege.desktop.release(button)


def click_place(siege, place, button, row):
    """A place of the main window by its name; a hole in any row."""
    if place in BUTTONS:
        left, top, width, height = BUTTONS[place]
        spot = left + width // 2, top + height // 2
    else:
        what, column = place.split()
        corner = peg_at(int(column), 1 + round(row * 13)) if what == "hole" else (
            code_peg_at(int(column)))
        spot = center(corner, PEG)
    siege.desktop.click(*siege.in_main_window(*spot), button)


def press(siege, button, window, x, y):
    siege.desktop.move_pointer(*siege.in_window(window, x, y))
    siege.desktop.press(button)


def release(siege):
    siege.desktop.release_all()


def drag(siege, button, window, x, y, to_x, to_y):
    press(siege, button, window, x, y)
    start, end = siege.desktop.pointer(), siege.on_screen(to_x, to_y)
    for step in range(1, 9):
        siege.desktop.move_pointer(*(round(a + (b - a) * step / 8) for a, b in zip(start, end)))
        siege.rest(0.01)
    siege.desktop.release(button)


def turn_wheel(siege, button, window, x, y):
    for _ in range(3):
        siege.desktop.click(*siege.in_window(window, x, y), button)


def fill_row(siege, first, by):
    """By keys, which put a peg into every hole of the row, and a check."""
    for hole in range(6):
        siege.desktop.strike(str((first + by * hole) % 6 + 1))
    siege.desktop.strike("Return")


# The keys

def strike(siege, key):
    siege.desktop.strike(key)


def strike_together(siege, keys):
    siege.desktop.strike(*keys)


def type_keys(siege, count):
    for letter in ("annabella " * 12)[:count]:
        siege.desktop.strike("space" if letter == " " else letter)


def set_layout(siege, layout):
    siege.desktop.set_layout(layout)


# What a screen reader does

def press_accessible(siege, thing, action):
    siege.press_accessible(thing, action)


def write_accessible(siege, box, text):
    siege.write_accessible(box, text)


# The window manager

def on_window(act):
    """The deed that does so with one of the game's windows, those that are not shown too."""
    def do(siege, window, *values):
        windows = siege.desktop.all_windows(siege.game.process.pid)
        if windows:
            act(siege.desktop, siege.one_of(windows, window), *values)
    return do


def ask_for(message, *values):
    return lambda desktop, window: desktop.ask(window, message, *values)


def move_window(desktop, window, x, y):
    desktop.move_window(window, x, y)


def back_to_front(siege):
    siege.desktop.activate(siege.game.process.pid)


# The tray

def click_icon(siege, button, times):
    icon = siege.desktop.tray_icon(siege.game.process.pid)
    if icon:
        for _ in range(times):
            siege.desktop.click(*icon, button)


# The table. A kind is as likely as its weight says.

DEEDS = (
    Kind("wait", 50, ((0.02, 0.1, 0.4, 1.5),), lambda siege, seconds: siege.rest(seconds)),
    Kind("move the pointer", 30, (SHARE, SHARE), move),
    Kind("click", 60, (MOUSE_BUTTONS, SHARE, SHARE, SHARE), click),
    Kind("double click", 20, (MOUSE_BUTTONS, SHARE, SHARE, SHARE), click_twice),
    Kind("click a place", 130, (PLACES, MOUSE_BUTTONS, SHARE), click_place),
    Kind("press and hold", 12, (MOUSE_BUTTONS, SHARE, SHARE, SHARE), press),
    Kind("let go", 12, (), release),
    Kind("drag", 25, (MOUSE_BUTTONS, SHARE, SHARE, SHARE, SHARE, SHARE), drag),
    Kind("wheel", 15, ((4, 5, 6, 7), SHARE, SHARE, SHARE), turn_wheel),
    Kind("fill a row", 35, (range(6), range(6)), fill_row),
    Kind("key", 90, (KEYS,), strike),
    Kind("other key", 15, (OTHER_KEYS,), strike),
    Kind("keys together", 45, (COMBINATIONS,), strike_together),
    Kind("type", 8, ((1, 5, 9, 40, 120),), type_keys),
    Kind("layout", 4, (("us", "us", "fr", "ru,us", "gr", "de"),), set_layout),
    Kind("press by ear", 60, (SHARE, SHARE), press_accessible),
    Kind("write by ear", 12, (SHARE, TEXTS), write_accessible),
    Kind("close", 8, (SHARE,), on_window(ask_for("_NET_CLOSE_WINDOW"))),
    Kind("minimise", 7, (SHARE,), on_window(lambda desktop, window: desktop.minimize(window))),
    Kind("back to the front", 14, (), back_to_front),
    Kind("move a window", 12, (SHARE, (-3000, -500, -100, 0, 400, 1500, 5000),
                               (-3000, -300, -50, 0, 300, 1100, 5000)), on_window(move_window)),
    Kind("lower", 4, (SHARE,), on_window(lambda desktop, window: desktop.lower(window))),
    Kind("window state", 6, (SHARE, STATES),
         on_window(lambda desktop, window, state: desktop.toggle_state(window, state))),
    Kind("other workspace", 3, (SHARE,), on_window(ask_for("_NET_WM_DESKTOP", 1, 2))),
    Kind("another program's window", 8, (), lambda siege: siege.desktop.toggle_cover()),
    Kind("window manager", 5, (), lambda siege: siege.desktop.toggle_window_manager()),
    Kind("tray", 8, (), lambda siege: siege.desktop.toggle_tray()),
    Kind("tray of the bus", 4, (), lambda siege: siege.desktop.toggle_bus_tray()),
    Kind("icon", 14, ((1, 1, 2, 3), (1, 2, 2)), click_icon),
    Kind("icon of the bus", 5, (), lambda siege: siege.click_bus_icon()),
    Kind("screen", 8, (SCREENS,), lambda siege, size: siege.desktop.set_screen_size(*size)),
    Kind("compositor", 6, (), lambda siege: siege.desktop.toggle_compositor()),
    Kind("drop a skin", 8, (GIFTS, SKINS, SHARE, SHARE, SHARE),
         lambda siege, *values: siege.drop_skin(*values)),
    Kind("paste a skin", 4, (GIFTS, SKINS), lambda siege, *values: siege.paste_skin(*values)),
    Kind("freeze", 4, ((1, 4, 12), SHARE, SHARE), lambda siege, *values: siege.freeze(*values)),
    Kind("second start", 6, (), lambda siege: siege.start_second()),
    Kind("end and start", 5, (ENDING, FACTORS),
         lambda siege, sign, factor: siege.end_and_start(getattr(signal, sign), factor)),
    Kind("spoil a file", 14, (FILES, SPOILINGS), lambda siege, *values: siege.spoil(*values)),
    Kind("put back the files", 10, (), lambda siege: siege.put_back()),
)
