"""Finds the hidden code by the marks of one guess after the other."""

import itertools


def marks_for(guess, code):
    """1 for every right colour in its place, then 2 for every further right colour."""
    exact = sum(g == c for g, c in zip(guess, code))
    shared = sum(min(guess.count(color), code.count(color)) for color in set(guess))
    return (1,) * exact + (2,) * (shared - exact)


def solve(game):
    """Guesses the first code that agrees with all marks so far; the guesses, the last right."""
    candidates = list(itertools.product(range(1, 7), repeat=4))
    guesses = []
    while candidates:
        guess = candidates[0]
        guesses.append(guess)
        game.fill(len(guesses), guess)
        marks = game.check(len(guesses))
        if marks == (1, 1, 1, 1):
            return guesses
        candidates = [code for code in candidates if marks_for(guess, code) == marks]
    raise AssertionError(f"no code agrees with the marks that the guesses {guesses} were given")
