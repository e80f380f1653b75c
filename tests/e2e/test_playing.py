"""What the player can do in the middle of things: commands, questions, colours, holes, modes."""

from board import COLOR_NAMES, COVERED
from desktop import RIGHT
from game import EASY, HARD, MEDIUM, PLAYING, GameTestCase

PANEL = (18, 100, 170, 72)  # the four message lines
STRIP = (218, 530, 200, 33)  # what "Clone" lays over row 1 in Easy


class Questions(GameTestCase):
    def test_no_to_show_puts_the_message_and_the_buttons_back(self):
        game = self.play()
        game.start()
        panel = game.grab(*PANEL)
        game.click("Show")
        game.wait_for_messages("- Show -", "Are you sure ?")
        self.assertFalse(game.is_enabled("Show"))
        game.answer("No")
        game.wait_for_messages(*PLAYING)
        self.assertTrue(game.is_enabled("Show"))
        game.wait_for("the old panel", lambda: game.grab(*PANEL) == panel)
        self.assertEqual(game.board().code(), (COVERED,) * 4)

    def test_yes_to_show_reveals_the_code_and_ends_the_game(self):
        game = self.play()
        game.start()
        game.click("Show")
        game.answer("Yes")
        game.wait_for_messages("Here is the correct row.", "Press ok when done!")
        self.assertFalse(game.is_enabled("Ok"))
        game.wait_for("an enabled Ok", lambda: game.is_enabled("Ok"))
        code = game.board().code()
        self.assertTrue(all(color in range(1, 7) for color in code), code)
        game.answer("Ok")
        game.wait_until_idle()

    def test_no_to_exit_puts_the_welcome_back_and_the_game_goes_on(self):
        game = self.play()
        game.wait_until_idle()
        game.click("Exit")
        game.wait_for_messages("- Exit -", "Are you sure ?")
        game.answer("No")
        game.wait_until_idle()
        game.start()

    def test_close_request_of_the_window_manager_is_a_click_on_exit(self):
        game = self.play()
        game.wait_until_idle()
        self.desktop.ask_to_close(game.process.pid)
        game.wait_for_messages("- Exit -", "Are you sure ?")
        self.desktop.ask_to_close(game.process.pid)
        game.answer("Yes")
        self.assertEqual(game.wait_for_exit(), 0)


class Rows(GameTestCase):
    def test_check_is_enabled_only_while_the_row_is_full(self):
        game = self.play()
        game.start()
        game.fill(1, (1, 2, 3))
        self.assertFalse(game.is_enabled("Check"))
        game.put(4, 4, 1)
        self.assertTrue(game.is_enabled("Check"))
        game.click_hole(2, 1, RIGHT)
        game.wait_for("an emptied hole", lambda: game.board().row(1) == (1, 0, 3, 4))
        self.assertFalse(game.is_enabled("Check"))

    def test_double_click_empties_the_row(self):
        game = self.play()
        game.start()
        game.fill(1, (1, 2, 3, 4))
        game.click_hole(1, 1)
        game.click_hole(1, 1)
        game.wait_for("an empty row", lambda: game.board().row(1) == (0, 0, 0, 0))
        self.assertFalse(game.is_enabled("Check"))

    def test_clone_copies_an_earlier_row_from_row_two_on(self):
        game = self.play()
        game.start()
        self.assertFalse(game.is_enabled("Clone"))
        game.fill(1, (1, 1, 2, 2))
        game.check(1)
        bare = game.grab(*STRIP)
        game.click("Clone")
        game.wait_for_messages("", "- Clone -", "Choose a row !")
        game.wait_for("a strip over row 1", lambda: game.grab(*STRIP) != bare)
        self.assert_click_in_hole_does_nothing(game)
        game.choose_row(1)
        game.wait_for_messages(*PLAYING)
        self.assertEqual(game.board().row(2), (1, 1, 2, 2))
        self.assertTrue(game.is_enabled("Check"))

    def assert_click_in_hole_does_nothing(self, game):
        """The strip that lights up after the click shows that the click has been dealt with."""
        dark = game.grab(*STRIP)
        game.click_hole(1, 2)
        game.point_at_row(1)
        game.wait_for("a strip that lights up", lambda: game.grab(*STRIP) != dark)
        self.assertEqual(game.board().row(2), (0, 0, 0, 0))


class Colors(GameTestCase):
    def test_right_click_switches_a_color_off_and_on(self):
        game = self.play()
        game.start()
        game.put(1, 1, 1)
        game.click("Blue", RIGHT)
        game.rest_pointer()
        game.wait_for("Blue in its disabled look", lambda: game.shows_button("Blue", "Disabled"))
        self.assertFalse(game.is_enabled("Blue"))

        game.click("Blue")
        game.click_hole(2, 1)
        game.wait_for("the color chosen before", lambda: game.board().row(1) == (1, 1, 0, 0))

        game.click("Blue", RIGHT)
        game.wait_for("an enabled Blue", lambda: game.is_enabled("Blue"))
        game.put(2, 3, 1)
        game.rest_pointer()
        game.wait_for("Blue held down", lambda: game.shows_button("Blue", "Down"))
        self.assertTrue(game.shows_button("Yellow", "Up"))

    def test_every_right_press_on_a_color_counts_however_quickly_they_come(self):
        game = self.play()
        for switched_on in (False, True):
            for _ in range(3):
                game.click("Blue", RIGHT)
            # The question comes after the presses.
            game.click("Exit")
            game.wait_for_messages("- Exit -", "Are you sure ?")
            self.assertEqual(game.is_enabled("Blue"), switched_on)
            game.answer("No")
            game.wait_until_idle()


class Modes(GameTestCase):
    def test_mode_buttons_show_the_board_of_their_mode_with_its_colors(self):
        game = self.play()
        for mode, colors in ((EASY, 6), (HARD, 10), (MEDIUM, 8)):
            game.choose_mode(mode)
            game.wait_for(f"the board of mode {mode}", lambda: game.board().shows_only_pegs())
            self.assertLessEqual(set(game.board().pegs()), set(range(colors + 1)))
            self.assertEqual(self.colors_on_offer(game), colors)

    def test_mode_buttons_rest_during_a_game_and_show_its_mode(self):
        game = self.play()
        game.start()
        for name, state in (("Easy", "Down"), ("Medium", "Disabled"), ("Hard", "Disabled")):
            self.assertFalse(game.is_enabled(name))
            self.assertTrue(game.shows_button(name, state))

    @staticmethod
    def colors_on_offer(game):
        return sum(game.button(name).is_showing for name in COLOR_NAMES)


class WithoutWindowManager(GameTestCase):
    WINDOW_MANAGER = False

    def test_game_is_played_and_left_without_a_window_manager(self):
        game = self.play()
        game.start()
        game.fill(1, (1, 2, 3, 4))
        self.assertLessEqual(len(game.check(1)), 4)
        self.assertEqual(game.leave(), 0)
        self.assertEqual(game.errors(), "")
