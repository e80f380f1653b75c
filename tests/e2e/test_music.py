"""The music as it comes out of the sound device: its beginning, its pauses, its end, its silence."""

import itertools
import os
import pathlib
import struct
import time

from game import GameTestCase

MUSIC_ONLY = "[Game]\nGameMode=0\n[Sound]\nSoundFx=False\n"
SECOND = 4 * 44100
"""The bytes that a second takes: two channels of two bytes."""


def scale(notes, first=60):
    """A MIDI file of so many notes, two a second, upwards from `first`."""
    track = b"".join(bytes((0, 0x90, note, 0x60, 0x60, 0x80, note, 0))
                     for note in range(first, first + notes))
    track += b"\x00\xFF\x2F\x00"
    return (b"MThd" + struct.pack(">IHHH", 6, 0, 1, 96) +
            b"MTrk" + struct.pack(">I", len(track)) + track)


def is_high(audio):
    """Whether the sound is a high tone, told by how often its loud part crosses zero; None for too
    faint or too short. A low tone's overtones cross 2000 times a second, a high tone 4000 times."""
    left = [sample for sample, _ in struct.iter_unpack("<hh", audio)]
    loud = [place for place, sample in enumerate(left) if abs(sample) >= 500]
    if not loud or loud[-1] - loud[0] < 44100 // 50:
        return None
    left = left[loud[0]:loud[-1]]
    crossings = sum((a < 0) != (b < 0) for a, b in zip(left, left[1:]))
    return crossings * 44100 / len(left) > 3000


class Music(GameTestCase):
    def setUp(self):
        super().setUp()
        self.recording = self.record_sound()

    def recorded(self):
        return os.path.getsize(self.recording)

    def listen(self, game, seconds=0.5, begin=None):
        """What is played in the next seconds, or in those after `begin` (in bytes)."""
        begin = self.recorded() if begin is None else begin
        end = begin + int(seconds * SECOND) // 4 * 4
        game.wait_for("the sound device", lambda: self.recorded() >= end)
        with open(self.recording, "rb") as audio:
            audio.seek(begin)
            return audio.read(end - begin)

    def is_silent(self, game, seconds=0.5):
        return not any(self.listen(game, seconds))

    def wait_for_sound(self, game):
        game.wait_for("a sound", lambda: not self.is_silent(game, 0.1))

    def wait_for_sound_of(self, game, deed):
        """What sounds may be over before the deed returns: it is looked for from there on."""
        begin = self.recorded()
        deed()

        def has_sounded():
            with open(self.recording, "rb") as audio:
                audio.seek(begin)
                return any(audio.read())

        game.wait_for("a sound", has_sounded)

    def wait_for_silence(self, game):
        game.wait_for("silence", lambda: self.is_silent(game))

    def tunes(self, *files):
        """Leaves only these tunes in the folder."""
        folder = os.path.join(self.folder, "Music")
        for file in os.listdir(folder):
            os.remove(os.path.join(folder, file))
        for name, content in files:
            with open(os.path.join(folder, name), "wb") as file:
                file.write(content)

    def test_music_plays_from_the_start_and_leaving_writes_the_playlist(self):
        names = sorted((file[:-4] for file in os.listdir(os.path.join(self.folder, "Music"))),
                       key=str.lower)
        self.assertGreaterEqual(len(names), 8)
        game = self.play(MUSIC_ONLY)
        self.wait_for_sound(game)
        playlist = os.path.join(self.folder, "Playlist.dat")
        self.assertFalse(os.path.exists(playlist))
        self.assertEqual(game.leave(), 0)
        expected = struct.pack("<h", len(names) - 1)
        for name in names:
            expected += struct.pack("<H", len(name)) + name.encode("cp1252")
        with open(playlist, "rb") as file:
            self.assertEqual(file.read(), expected)

    def test_hidden_game_is_silent_and_its_music_goes_on_when_it_comes_back(self):
        game = self.play(MUSIC_ONLY)
        self.wait_for_sound(game)
        game.click("Hide")
        self.wait_for_silence(game)
        time.sleep(1)
        self.assertTrue(self.is_silent(game, 1))
        self.desktop.activate(game.process.pid)
        self.wait_for_sound(game)

    def test_effects_sound_while_the_music_is_switched_off(self):
        game = self.play("[Game]\nGameMode=0\n[Sound]\nMusic=False\n")
        self.assertTrue(self.is_silent(game, 1))
        self.wait_for_sound_of(game, lambda: game.click("Hard"))

    def is_open(self, game):
        """Whether the sound device is: its thread is there as long."""
        for name in pathlib.Path(f"/proc/{game.process.pid}/task").glob("*/comm"):
            try:
                if name.read_text().startswith("SDLAudio"):
                    return True
            except OSError:  # another thread, which has ended meanwhile
                pass
        return False

    def test_device_rests_while_nothing_is_done_and_wakes_for_the_pointer_and_for_a_key(self):
        game = self.play("[Game]\nGameMode=0\n[Sound]\nMusic=False\n")
        board = game.on_screen(300, 300, 0, 0)[:2]
        for wake in (lambda: self.desktop.move_pointer(*board),
                     lambda: self.desktop.strike("F2")):
            game.wait_for("the sound device to rest", lambda: not self.is_open(game), 20)
            wake()
            game.wait_for("the sound device", lambda: self.is_open(game), 1)

    def test_sound_after_a_rest_is_heard(self):
        game = self.play("[Game]\nGameMode=0\n[Sound]\nMusic=False\n")
        game.wait_for("the sound device to rest", lambda: not self.is_open(game), 20)
        self.desktop.move_pointer(*game.on_screen(300, 300, 0, 0)[:2])  # as before every press
        game.wait_for("the sound device", lambda: self.is_open(game))
        self.wait_for_sound_of(game, lambda: game.click("Hard"))

    def test_game_without_tunes_is_played_in_silence(self):
        self.tunes()
        game = self.play(MUSIC_ONLY)
        self.assertTrue(self.is_silent(game, 1))
        game.start()
        game.fill(1, (1, 2, 3, 4))
        self.assertEqual(game.leave(), 0)
        with open(os.path.join(self.folder, "Playlist.dat"), "rb") as file:
            self.assertEqual(file.read(), b"\xFF\xFF")

    def test_damaged_tunes_are_passed_over_without_a_word(self):
        self.desktop.environment["SDL_AUDIODRIVER"] = "dummy"
        whole = scale(20)
        self.tunes(("a.mid", b""), ("b.mid", b"This is no tune.\n"), ("c.mid", whole[:60]))
        game = self.play(MUSIC_ONLY)
        time.sleep(2)
        game.start()
        game.fill(1, (1, 2, 3, 4))
        self.assertEqual(game.leave(), 0)
        self.assertEqual(game.errors(), "")

    def test_damaged_tune_is_followed_by_a_good_one(self):
        self.tunes(("a.mid", b"This is no tune.\n"), ("b.MID", scale(20)))
        game = self.play(MUSIC_ONLY)
        self.wait_for_sound(game)
        time.sleep(2)
        self.wait_for_sound(game)

    def test_tunes_removed_while_they_play_end_in_silence_and_the_game_goes_on(self):
        self.tunes(("a.mid", scale(8)), ("b.mid", scale(8)))
        game = self.play(MUSIC_ONLY)
        self.wait_for_sound(game)
        self.tunes()
        game.wait_for("silence", lambda: self.is_silent(game, 2), 20)
        self.assertTrue(self.is_silent(game, 3))
        game.start()
        game.fill(1, (1, 2, 3, 4))
        self.assertEqual(game.leave(), 0)

    def test_tunes_follow_each_other_in_the_order_of_their_names(self):
        self.tunes(("High.mid", scale(4, first=96)), ("a low one.mid", scale(4, first=48)))
        game = self.play(MUSIC_ONLY)
        heard = []
        fifths = itertools.count(0, SECOND // 5)
        while len(heard) < 4:
            height = is_high(self.listen(game, 0.2, next(fifths)))
            if height is not None and heard[-1:] != [height]:
                heard.append(height)
        self.assertEqual(heard, [False, True, False, True])
