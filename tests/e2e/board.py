"""The board as a player sees it: read from a picture of the window with the skin's own pictures."""

import math
import os

from picture import Picture

WINDOW_SIZE = (655, 605)
BOARD_LEFT = 195
MODE_BUTTONS = (536, 17, 92, 82)  # all three, with the gaps between them

COLUMNS = (4, 5, 6)  # by mode: Easy, Medium, Hard
ROWS = (10, 12, 14)
COLORS = (6, 8, 10)

COLOR_NAMES = ("Yellow", "Blue", "Red", "Green", "White", "Black", "Brown", "Orange", "Purple",
               "Pink")

# Where the controls stand; those of the last line come with a question.
BUTTONS = {
    "Easy": (536, 17, 92, 26), "Medium": (536, 45, 92, 26), "Hard": (536, 73, 92, 26),
    "Yellow": (18, 220, 82, 30), "Blue": (104, 220, 82, 30), "Red": (18, 254, 82, 30),
    "Green": (104, 254, 82, 30), "White": (18, 288, 82, 30), "Black": (104, 288, 82, 30),
    "Brown": (18, 322, 82, 30), "Orange": (104, 322, 82, 30), "Purple": (18, 356, 82, 30),
    "Pink": (104, 356, 82, 30),
    "Start": (18, 396, 82, 44), "Check": (104, 396, 82, 44), "Show": (18, 446, 82, 34),
    "Clone": (104, 446, 82, 34), "High": (18, 486, 82, 34), "Config": (104, 486, 82, 34),
    "About": (18, 526, 82, 34), "Exit": (104, 526, 82, 34),
    "Timer": (57, 186, 26, 26), "Duel": (126, 186, 28, 26), "Hide": (158, 186, 28, 26),
    "Yes": (75, 65, 42, 24), "No": (120, 65, 42, 24), "Ok": (100, 65, 42, 24),
}
PANEL = (18, 100, 170, 74)  # the four message lines

PEG = (44, 27)
MARK = (11, 11)
NUMBER = (19, 16)
PEG_ARC = (0, 5, 10, 10, 5, 0)
MARK_ARC = (0, 2, 4, 4, 2, 0)

COVERED = "covered"

# Target, size and source of the pieces that make the Medium board of the Easy one.
MEDIUM_PIECES = (
    ((196, 172), (71, 66), (134, 66)),
    ((267, 167), (50, 66), (234, 132)),
    ((317, 162), (100, 66), (205, 66)),
    ((417, 45), (50, 33), (50, 446)),
    ((417, 167), (50, 413), (50, 0)),
    ((522, 175), (89, 54), (134, 252)),
    ((594, 243), (17, 314), (117, 0)),
)
# The same for the Hard board of the Medium one.
HARD_PIECES = (
    ((196, 106), (71, 66), (134, 0)),
    ((267, 101), (50, 66), (134, 132)),
    ((317, 96), (100, 66), (205, 0)),
    ((417, 101), (50, 66), (184, 132)),
    ((467, 50), (50, 33), (50, 413)),
    ((467, 106), (50, 479), (0, 0)),
    ((522, 109), (107, 54), (134, 198)),
    ((612, 179), (17, 380), (100, 0)),
)


def peg_at(column, row):
    return 168 + 50 * column, 569 - 33 * row - PEG_ARC[column - 1]


def code_peg_at(column):
    return 168 + 50 * column, 51 - PEG_ARC[column - 1]


def mark_at(slot, row):
    return 506 + 18 * slot, 577 - 33 * row - MARK_ARC[slot - 1]


def number_at(row):
    return 196, 575 - 33 * row


def in_pixels(scale, x, y, width, height):
    """What a place takes of the screen where a unit is `scale` pixels: both edges are rounded."""
    left, top, right, bottom = (math.floor(edge * scale + 0.5)
                                for edge in (x, y, x + width, y + height))
    return left, top, right - left, bottom - top


def center(place, size):
    return place[0] + size[0] // 2, place[1] + size[1] // 2


class Skin:
    """The pictures of a skin that the tests look for on the screen, of one pixel a unit or two, in
    the outline of the skin in the folder `outline`. A skin without the larger ones has one."""

    def __init__(self, folder, density, outline):
        self.density = density if os.path.isdir(os.path.join(folder, "2x")) else 1
        self._folder = self._tree(folder)
        self._colors = self._read("Colors.bmp")
        self._color_anim = self._read("Coloranim.bmp")
        self._dots = self._read("Dots.bmp")
        self._numbers = self._read("Numbers.bmp")
        easy = self._read("Board.bmp")
        medium = self._with_pieces(easy, MEDIUM_PIECES)
        self.mask = Picture.from_bmp(os.path.join(self._tree(outline), "Game", "Boardmask.bmp"))
        self.whole_boards = (easy, medium, self._with_pieces(medium, HARD_PIECES))
        self.boards = tuple(board.cut_to(self.mask) for board in self.whole_boards)
        self.peg_mask = self.cut(self._colors, 11 * 44, 0, *PEG)
        self.mark_mask = self.cut(self._dots, 3 * 11, 0, *MARK)

    def _tree(self, folder):
        return folder if self.density == 1 else os.path.join(folder, "2x")

    def _read(self, *names):
        return Picture.from_bmp(os.path.join(self._folder, "Game", *names))

    def _with_pieces(self, board, pieces):
        modes = self._read("Modes.bmp")
        for target, size, source in pieces:
            board = self.lay(board, self.cut(modes, *source, *size), target)
        return board

    def cut(self, picture, *place):
        """The part of a picture at a place in units."""
        return picture.crop(*in_pixels(self.density, *place))

    def lay(self, picture, other, at):
        """The picture with another laid over it."""
        return picture.with_pasted(other, at[0] * self.density, at[1] * self.density)

    def button(self, name, state):
        return self._read("Interface", f"{name}_{state}.bmp")

    def peg(self, color):
        return self.cut(self._colors, 44 * color, 0, *PEG)

    def mark(self, mark):
        return self.cut(self._dots, 11 * mark, 0, *MARK)

    def number(self, row):
        return self.cut(self._numbers, 19 * row, 0, *NUMBER)

    def code_cell(self, color, frame):
        return self.cut(self._color_anim, 44 * (frame - 1), 27 * color, *PEG)


class Board:
    """One look at the window, or at the part of it from `corner` on: `seen` is its picture, `mode`
    the mode that it is to show. What is none of the things that can stand in a place is read as
    None."""

    def __init__(self, skin, mode, seen, corner=(0, 0)):
        self._skin = skin
        self._mode = mode
        self._seen = seen
        self._corner = corner
        self._bare = skin.boards[mode]

    def _recognise(self, place, size, mask, candidates):
        """The key of the first of `candidates` whose sprite stands on the bare board there."""
        cut = self._skin.cut
        seen = cut(self._seen, place[0] - self._corner[0], place[1] - self._corner[1], *size)
        bare = cut(self._bare, *place, *size)
        for key, sprite in candidates:
            if seen == (bare if sprite is None else bare.under(sprite, mask)):
                return key
        return None

    def color_at(self, column, row):
        """1 to 10, or 0 for an empty hole."""
        pegs = [(0, None)] + [(color, self._skin.peg(color)) for color in range(11)]
        return self._recognise(peg_at(column, row), PEG, self._skin.peg_mask, pegs)

    def row(self, row):
        return tuple(self.color_at(c, row) for c in range(1, COLUMNS[self._mode] + 1))

    def code(self):
        """The code row: colours, 0 for an empty hole, or COVERED."""
        cells = [(0, None), (COVERED, self._skin.code_cell(0, 10))]
        cells += [(color, self._skin.code_cell(color, 10)) for color in range(1, 11)]
        cells += [(color, self._skin.peg(color)) for color in range(11)]
        return tuple(self._recognise(code_peg_at(c), PEG, self._skin.peg_mask, cells)
                     for c in range(1, COLUMNS[self._mode] + 1))

    def marks(self, row):
        """The marks of a row, without the empty slots that follow them."""
        dots = [(0, None)] + [(mark, self._skin.mark(mark)) for mark in (1, 2)]
        marks = [self._recognise(mark_at(slot, row), MARK, self._skin.mark_mask, dots)
                 for slot in range(1, COLUMNS[self._mode] + 1)]
        while marks and marks[-1] == 0:
            marks.pop()
        return tuple(marks)

    def number_is_lit(self, row):
        place = (*number_at(row), *NUMBER)
        seen = self._skin.cut(self._seen, *place)
        if seen == self._skin.cut(self._bare, *place):
            return False
        return True if seen == self._skin.number(row) else None

    def pegs(self):
        """What stands in the holes of the mode, row by row."""
        return [color for row in range(1, ROWS[self._mode] + 1) for color in self.row(row)]

    def shows_only_pegs(self):
        """Whether the window, from the board's left edge on, is the bare board of the mode but
        for pegs in its holes (pegs() says whether those are right) and the mode buttons."""
        skin, seen = self._skin, self._seen
        hidden = [MODE_BUTTONS] + [(*peg_at(column, row), *PEG)
                                   for row in range(1, ROWS[self._mode] + 1)
                                   for column in range(1, COLUMNS[self._mode] + 1)]
        for place in hidden:
            seen = skin.lay(seen, skin.cut(self._bare, *place), place[:2])
        part = (BOARD_LEFT, 0, WINDOW_SIZE[0] - BOARD_LEFT, WINDOW_SIZE[1])
        return skin.cut(seen, *part) == skin.cut(self._bare, *part)

    def difference(self, buttons):
        """The first pixel of the window that is not as the skin's pictures make it, or None:
        `buttons` says in which picture each control is that is shown. What stands in the places of
        the board is taken as it is read, and the texts as they are."""
        skin, made = self._skin, self._bare

        def put(sprite, mask, place, size):
            nonlocal made
            if sprite is not None:
                bare = skin.cut(self._bare, *place, *size)
                made = skin.lay(made, bare.under(sprite, mask) if mask else sprite, place)

        for row in range(1, ROWS[self._mode] + 1):
            for column, color in enumerate(self.row(row), 1):
                put(skin.peg(color) if color else None, skin.peg_mask, peg_at(column, row), PEG)
            for slot, mark in enumerate(self.marks(row), 1):
                put(skin.mark(mark) if mark else None, skin.mark_mask, mark_at(slot, row), MARK)
            if self.number_is_lit(row):
                put(skin.number(row), None, number_at(row), NUMBER)
        for column, cell in enumerate(self.code(), 1):
            sprite = skin.code_cell(0 if cell == COVERED else cell, 10) if cell else None
            put(sprite, skin.peg_mask, code_peg_at(column), PEG)
        for name, state in buttons.items():
            put(skin.button(name, state), None, BUTTONS[name][:2], BUTTONS[name][2:])
        made = skin.lay(made, skin.cut(self._seen, *PANEL), PANEL[:2])
        return self._seen.difference(made)
