"""Saves every skin's windows in every skin's outline for people to look at, a sheet a window:
outline_sheets.py SKINS OUT. A row of a sheet has one outline, a column one skin's picture."""

import os
import sys

from picture import Picture

SKINS = ("Atelier", "Beacon", "Carbon", "Daylight")
WINDOWS = {"main": ("Game/Board", "Game/Boardmask"), "config": ("Config/Config", "Config/Configmask"),
           "high": ("High/High", "High/Highmask"), "about": ("About/About", "About/Aboutmask")}
DESKTOP = bytes((0xa8, 0x90, 0x78))
GAP = 12


def sheet(skins, picture, mask):
    def read(skin, name):
        return Picture.from_bmp(os.path.join(skins, skin, name + ".bmp"))

    pictures = [read(skin, picture) for skin in SKINS]
    width, height = pictures[0].width + GAP, pictures[0].height + GAP
    whole = Picture(width * len(SKINS) + GAP, [DESKTOP * (width * len(SKINS) + GAP)] *
                    (height * len(SKINS) + GAP))
    bare = Picture(width - GAP, [DESKTOP * (width - GAP)] * (height - GAP))
    for row, outline in enumerate(read(skin, mask) for skin in SKINS):
        for column, content in enumerate(pictures):
            window = bare.under(content, outline)
            whole = whole.with_pasted(window, GAP + column * width, GAP + row * height)
    return whole


def main():
    skins, out = sys.argv[1:]
    os.makedirs(out, exist_ok=True)
    for window, (picture, mask) in WINDOWS.items():
        path = os.path.join(out, window + ".png")
        sheet(skins, picture, mask).save_png(path)
        print(path)


if __name__ == "__main__":
    main()
