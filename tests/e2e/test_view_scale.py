"""Windows larger than they are drawn: chosen at the start, by keys, or by the desktop."""

import subprocess

from board import BUTTONS, COVERED, PEG, WINDOW_SIZE, peg_at
from desktop import RIGHT
from game import (BACKGROUND, EASY, HARD, PLAYING, PROGRAM, SKINS, GameTestCase,
                  stored_settings)
from scaled_game import LARGER, NO_CHOICE, SMALLER, ScaledGame, looks

OWN_CODE = "[Game]\nGameMode=0\n[Misc]\nSetColor=True\n"
MAGENTA = 0xFF00FF
SHIFTED_LARGER = ("Control_L", "Shift_L", "plus")


class Doubled(ScaledGame):
    """At scale 2 the pictures of the second size are on the screen as they are."""

    def assert_shown_in(self, mode):
        game = self.play(f"[Game]\nGameMode={mode}\n[Misc]\nSetColor=True\n"
                         f"[Skin]\nSkinPtr={mode + 1}\n", mode, 2, ("--scale", "2"))
        game.use_skin(SKINS[mode])
        game.wait_until_idle()
        self.assert_made_of_pictures(game, looks(mode))
        self.play_to_row_two(game, mode)
        self.wait_for_lit_number(game, 2)
        self.assertEqual(game.board().row(2)[:3], (0, 1, 0))
        self.assert_made_of_pictures(game, looks(mode, ("Clone",), ("Yellow",)))
        return game

    def play_to_row_two(self, game, mode):
        """Where one peg is left of two, and Yellow is chosen."""
        colors = (1, 2, 3, 4, 5, 6)[:4 + mode]
        swapped = (2, 1, *colors[2:])
        self.begin(game, colors)
        game.fill(1, swapped)
        self.assertEqual(game.check(1), (1,) * (2 + mode) + (2,) * 2)
        self.assertEqual(game.board().code(), (COVERED,) * (4 + mode))
        self.assertEqual(game.board().row(1), swapped)
        game.fill(2, (2, 1))
        game.click_hole(1, 2, RIGHT)
        game.wait_for("an emptied hole", lambda: game.color_at(1, 2) == 0)

    def test_easy_board_and_a_game_in_atelier_are_made_of_the_doubled_pictures(self):
        """A desktop of scale 2 shows the same as the option, the texts and the outline too."""
        game = self.assert_shown_in(EASY)
        self.desktop.fill_background(MAGENTA)
        self.wait_for_lit_number(game, 2)
        by_option = game.grab()
        self.assertEqual(game.leave(), 0)
        self.desktop.environment["QT_SCALE_FACTOR"] = "2"
        game = self.start_again(EASY, 2)
        self.play_to_row_two(game, EASY)
        game.rest_pointer()
        self.wait_for_lit_number(game, 2)
        self.assertIsNone(game.grab().difference(by_option))

    def test_medium_board_and_a_game_in_beacon_are_made_of_the_doubled_pictures(self):
        self.assert_shown_in(1)

    def test_hard_board_and_a_game_in_carbon_are_made_of_the_doubled_pictures(self):
        self.assert_shown_in(2)


class Keys(ScaledGame):
    def middle(self, game):
        left, top, width, height = game.on_screen(0, 0, *WINDOW_SIZE)
        return left + width / 2, top + height / 2

    def assert_middle_stays(self, game, middle):
        for now, before in zip(self.middle(game), middle):
            self.assertLessEqual(abs(now - before), 2)

    def stored_scale(self):
        stored = stored_settings(self.desktop).decode()
        return stored.split("[View]\nScale=")[1].split("\n")[0] if "[View]" in stored else None

    def test_keys_change_the_size_in_the_middle_of_a_game_and_it_is_kept(self):
        game = self.play(OWN_CODE)
        self.begin(game)
        game.fill(1, (2, 1, 3, 5))
        self.assertEqual(game.check(1), (1, 2, 2))
        game.put(1, 2, 2)
        controls = looks(EASY, ("Clone",), ("Yellow",))
        self.wait_for_lit_number(game, 2)
        self.assert_made_of_pictures(game, controls)
        middle = self.middle(game)
        self.resize(game, LARGER, 1.25)
        self.assert_middle_stays(game, middle)
        for scale in (1.5, 1.75, 2):
            self.resize(game, SHIFTED_LARGER, scale)
        self.assert_middle_stays(game, middle)
        self.assert_made_of_pictures(game, controls)
        self.wait_for_lit_number(game, 2)
        self.assert_made_of_pictures(game, controls)
        self.assertEqual(game.board().row(1), (2, 1, 3, 5))
        self.assertEqual(game.board().row(2), (0, 1, 0, 0))
        self.assertEqual(game.board().code(), (COVERED,) * 4)
        for scale in (1.75, 1.5, 1.25, 1):
            self.resize(game, SMALLER, scale)
        self.desktop.strike(*SMALLER)
        self.assert_middle_stays(game, middle)
        self.wait_for_lit_number(game, 2)
        self.assert_made_of_pictures(game, controls)
        self.resize(game, LARGER, 1.25)
        self.assertEqual(game.leave(), 0)
        self.assertEqual(self.stored_scale(), "1.25")

        game = self.start_again(EASY, 1.25)
        self.resize(game, NO_CHOICE, 1)
        self.assertEqual(game.leave(), 0)
        self.assertIsNone(self.stored_scale())

    def test_answers_of_a_question_are_where_the_changed_size_has_them(self):
        game = self.play(mode=EASY, scale=1.5, options=("--scale", "1.5"))
        game.click("Exit")
        game.wait_for_messages("- Exit -", "Are you sure ?")
        self.resize(game, LARGER, 1.75)
        for name in ("Yes", "No"):
            self.assertEqual(tuple(game.button(name).place), game.on_screen(*BUTTONS[name]))
        left, top, width, height = game.on_screen(*BUTTONS["No"])
        self.desktop.click(left + width, top + height // 2)
        self.desktop.click(left + width - 1, top + height - 1)
        game.wait_for("the welcome", game.is_idle)
        self.resize(game, NO_CHOICE, 1)
        self.assert_made_of_pictures(game, looks())

    def test_window_at_the_edge_of_the_screen_stays_wholly_on_it(self):
        game = self.play()
        self.drag_to_the_corner(game)
        self.resize(game, LARGER, 1.25)
        left, top, width, height = game.on_screen(0, 0, *WINDOW_SIZE)
        self.assertEqual((left + width, top + height), (2000, 1300))
        self.assertEqual(game.leave(), 0)

    def drag_to_the_corner(self, game):
        """Of the screen, at the bottom right, and beyond."""
        x, y, _, _ = game.on_screen(*BACKGROUND, 0, 0)
        game.drag(BACKGROUND, (1999 - x, 1299 - y))
        def moved():
            game.wait_for_scale(1)
            return game.origin[0] > 1300
        game.wait_for("the window in the corner", moved)

    def test_option_is_for_its_run_alone(self):
        game = self.play("[Game]\nGameMode=0\n[View]\nScale=1.25\n", EASY, 2, ("--scale", "2"))
        self.assertEqual(game.leave(), 0)
        self.assertEqual(self.stored_scale(), "1.25")


class Refused(ScaledGame):
    def test_bad_scale_on_the_command_line_ends_with_code_two(self):
        for scale in ("abc", "0.5", "4", "1,5", ""):
            run = subprocess.run([PROGRAM, "--scale", scale], env=self.desktop.environment,
                                 capture_output=True, text=True, timeout=10, check=False)
            self.assertEqual(run.returncode, 2)
            self.assertEqual(run.stderr, f"quendrel: \"{scale}\" is no scale; it is a number from "
                                         "1 to 3, as 1.5. Try --help.\n")


class Room(GameTestCase):
    """Screens that have no room for what the desktop or the player wants."""

    SCREEN = "1366x768x24"

    def assert_whole_at(self, scale, width, height, **wanted):
        game = self.play(scale=scale, **wanted)
        left, top, wide, high = game.on_screen(0, 0, *WINDOW_SIZE)
        self.assertTrue(0 <= left and left + wide <= width and 0 <= top and top + high <= height)
        self.desktop.wait_for_focus(game.process.pid)
        self.desktop.strike(*LARGER)
        game.click("Exit")
        game.wait_for_messages("- Exit -", "Are you sure ?")
        origin = game.origin
        game.wait_for_scale(scale)
        self.assertEqual(game.origin, origin)
        return game

    def test_desktop_of_scale_1_5_with_too_little_room_gets_the_largest_step_that_fits(self):
        self.desktop.environment["QT_SCALE_FACTOR"] = "1.5"
        self.assert_whole_at(1.25, 1366, 768)


class SmallRoom(Room):
    SCREEN = "800x600x24"

    def test_scale_2_on_a_screen_of_800_by_600_is_scale_1(self):
        self.assert_whole_at(1, 800, 605, options=("--scale", "2"))

    test_desktop_of_scale_1_5_with_too_little_room_gets_the_largest_step_that_fits = None


class Clicks(ScaledGame):
    """What is pressed answers in the whole of its scaled place, and not beside it."""

    SCREEN = "2000x1850x24"
    STEPS = {1.25: 1, 1.5: 1, 2: 2, 3: 4}  # from the scale before

    def corners(self, place):
        """The outermost pixels of a place on the screen, each with the one across its edge."""
        x, y, width, height = place
        right, bottom, middle = x + width - 1, y + height - 1, x + width // 2
        return (((x, y), (x - 1, y)), ((right, y), (right + 1, y)), ((x, bottom), (x - 1, bottom)),
                ((right, bottom), (right + 1, bottom)), ((middle, y), (middle, y - 1)),
                ((middle, bottom), (middle, bottom + 1)))

    def assert_button_lights_up(self, game, name):
        place = game.on_screen(*BUTTONS[name])
        look = lambda: self.desktop.grab(*place)
        dark = look()
        for inside, outside in self.corners(place):
            self.desktop.move_pointer(*inside)
            game.wait_for(f"a lit {name} at {inside}", lambda: look() != dark)
            self.desktop.move_pointer(*outside)
            game.wait_for(f"a dark {name} at {outside}", lambda: look() == dark)

    def assert_hole_answers(self, game, column):
        """Each press beside the hole comes before one on the last hole, which answers."""
        hole, last = (game.on_screen(*peg_at(number, 1), *PEG) for number in (column, 4))
        look = lambda place: self.desktop.grab(*place)
        bare, bare_last = look(hole), look(last)
        for inside, outside in self.corners(hole):
            self.desktop.click(*outside)
            self.desktop.click_middle(last)
            game.wait_for("a peg in the last hole", lambda: look(last) != bare_last)
            self.assertEqual(look(hole), bare, (game.scale, column, outside))
            self.desktop.click(*inside)
            game.wait_for(f"a peg in hole {column} at {inside}", lambda: look(hole) != bare)
            self.desktop.click(*inside, RIGHT)
            game.wait_for("an emptied hole", lambda: look(hole) == bare)
            x, y, width, height = last
            self.desktop.click(x + width // 2, y + height // 2, RIGHT)
            game.wait_for("an emptied last hole", lambda: look(last) == bare_last)

    def test_buttons_and_holes_answer_in_their_scaled_places_only(self):
        game = self.play("[Game]\nGameMode=0\n[Misc]\nToolTips=False\n")
        game.start()
        game.click("Yellow")
        for scale, steps in self.STEPS.items():
            for step in range(steps):
                self.resize(game, LARGER, scale - 0.25 * (steps - 1 - step))
            game.rest_pointer()
            self.wait_until_still(game)
            for name in ("Blue", "Exit", "Show", "Hide"):
                self.assert_button_lights_up(game, name)
            for column in (1, 2):
                self.assert_hole_answers(game, column)


class Strips(ScaledGame):
    """At 1.5, where pixels are mixed and nothing is read off the board."""

    def shrink(self, game):
        for scale in (1.75, 1.5):
            self.resize(game, SMALLER, scale)

    def grow(self, game):
        for scale in (1.75, 2):
            self.resize(game, LARGER, scale)

    def assert_clones_where_their_strips_meet(self, game, row):
        """Row 1 with the last pixel on its side, or row 2; presses beside the strips do nothing."""
        game.click("Clone")
        game.wait_for_messages("", "- Clone -", "Choose a row !")
        left, top, width, height = game.on_screen(218, 530, 200, 33)
        right, bottom, middle = left + width, top + height, top + height // 2
        for beside in ((left - 1, middle), (right, middle), (left, bottom), (left - 1, top - 1)):
            self.desktop.click(*beside)
        self.desktop.click(*{1: (right - 1, top), 2: (left, top - 1)}[row])
        game.wait_for_messages(*PLAYING)
        self.grow(game)
        game.rest_pointer()
        game.wait_for(f"the clone of row {row}",
                      lambda: game.board().row(3) == game.board().row(row))

    def test_row_to_clone_is_chosen_in_its_scaled_strip_and_the_window_is_dragged(self):
        game = self.play(OWN_CODE, EASY, 2, ("--scale", "2"))
        self.begin(game)
        for row, colors in ((1, (2, 1, 3, 5)), (2, (5, 6, 5, 6))):
            game.fill(row, colors)
            game.check(row)
        self.shrink(game)
        self.assert_dragged(game, (150, 40))
        self.assert_clones_where_their_strips_meet(game, 1)
        self.shrink(game)
        self.assert_clones_where_their_strips_meet(game, 2)

    def assert_dragged(self, game, by):
        """But for a few pixels that may go before the drag begins."""
        goal = [game.origin[0] + by[0], game.origin[1] + by[1]]
        game.drag(BACKGROUND, by)

        def is_near():
            game.wait_for_scale(game.scale)
            return all(abs(now - wanted) <= 4 for now, wanted in zip(game.origin, goal))
        game.wait_for("the dragged window", is_near)


class Sweep(ScaledGame):
    MARKS = (524, 104, 104, 480)  # where no peg of the idle board comes

    def test_swept_board_is_whole_where_pixels_are_mixed(self):
        game = self.play(scale=1.5, options=("--scale", "1.5"))
        game.wait_for("the welcome", game.is_idle)
        old = game.grab(*self.MARKS)
        game.choose_mode(HARD)
        self.wait_until_still(game)
        swept = game.grab(*self.MARKS)
        self.assertNotEqual(swept.rows, old.rows)
        self.resize(game, LARGER, 1.75)
        self.resize(game, SMALLER, 1.5)
        self.wait_until_still(game)
        self.assertIsNone(game.grab(*self.MARKS).difference(swept))
