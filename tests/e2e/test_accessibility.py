"""What a screen reader finds in the main window, and what it can do there."""

from game import WELCOME, GameTestCase, PLAYING

BUTTONS = {
    "Exit", "About", "Config", "High", "Show", "Clone", "Start", "Check",
    "Easy", "Medium", "Hard", "Yes", "No", "Ok", "Mind Duel", "Clock", "Hide",
    "Yellow", "Blue", "Red", "Green", "White", "Black", "Brown", "Orange", "Purple", "Pink",
}


class Accessibility(GameTestCase):
    def test_start_is_found_described_by_its_balloon_text_and_can_be_clicked(self):
        game = self.play()
        start, = [thing for thing in game.tree
                  if (thing.role, thing.name) == ("push button", "Start")]
        self.assertEqual(start.description, "Pressing this button will start the game in the mode "
                                            "you have selected in the top right corner.")
        self.assertTrue(start.perform("Press"))
        game.wait_for_messages(*PLAYING)

    def test_the_four_message_lines_are_read(self):
        game = self.play()
        self.assertEqual(game.messages(), WELCOME)
        game.click("Exit")
        game.wait_for_messages("- Exit -", "Are you sure ?", "", "")

    def test_every_button_has_its_name(self):
        game = self.play()
        names = [thing.name for thing in game.tree if thing.role == "push button"]
        self.assertEqual(len(names), len(BUTTONS))
        self.assertEqual(set(names), BUTTONS)
