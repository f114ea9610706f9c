#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Synthesise every sound effect that Pawnfield ships with, into assets/."""
import math
from pathlib import Path
from tones import *

FOLDER = Path(__file__).resolve().parent.parent / "assets" / "Sound Effects"


def rings_in():
    """A player rings in: two bright strokes at once, heard from the first sample."""
    track = partials(pitch("A5"), 0.42, BELL, 0.0005, 0.13)
    add(track, partials(pitch("E6"), 0.42, BELL, 0.0005, 0.10), 0, 0.7)
    add(track, partials(pitch("A6"), 0.34, MUSIC_BOX, 0.001, 0.09), 0.075, 0.8)
    return track


def correct():
    track = []
    for i, name in enumerate(("C5", "E5", "G5", "C6")):
        add(track, bell(pitch(name), 0.85 - i * 0.05, 0.24), i * 0.085, 0.7 + i * 0.1)
    return reverb(track, 0.15, 0.25)


def incorrect():
    """Two soft low notes, falling: clear, but kind to whoever was wrong."""
    track = []
    add(track, brass(pitch("Eb3"), 0.26, 0, 0.75), 0)
    add(track, brass(pitch("A2"), 0.46, -0.6, 0.75), 0.27, 1.1)
    return reverb(track, 0.10, 0.15)


def double():
    """The special square: a run upwards that ends in a shimmering chord."""
    track = []
    run = ("C5", "D5", "E5", "G5", "A5", "C6", "D6", "E6", "G6", "A6")
    for i, name in enumerate(run):
        add(track, bell(pitch(name), 0.6, 0.2), i * 0.07, 0.45 + i * 0.03)
    for i, name in enumerate(("C5", "E5", "G5", "C6", "E6", "G6")):
        add(track, partials(pitch(name), 1.3, BELL, 0.004, 0.55), 0.74 + i * 0.012, 0.45)
    shimmer = partials(pitch("C7"), 1.2, MUSIC_BOX, 0.05, 0.5)
    add(track, [v * (0.6 + 0.4 * math.sin(i * 2 * math.pi * 11 / RATE)) for i, v in enumerate(shimmer)], 0.78, 0.25)
    add(track, noise_sweep(0.8, 900, 7000, 3), 0.0, 0.10)
    return reverb(track, 0.22, 0.35)


def question_appears():
    track = noise_sweep(0.42, 350, 4200, 8, 4.0)
    track = [v * 0.30 for v in track]
    add(track, bell(pitch("G5"), 0.7, 0.2), 0.20, 0.8)
    add(track, bell(pitch("D6"), 0.7, 0.22), 0.27, 0.8)
    return reverb(track, 0.18, 0.2)


def skip():
    track = [v * 0.5 for v in noise_sweep(0.30, 4200, 420, 21, 5.0)]
    add(track, partials(pitch("E5"), 0.20, MUSIC_BOX, 0.004, 0.06), 0.02, 0.5)
    add(track, partials(pitch("A4"), 0.26, MUSIC_BOX, 0.004, 0.08), 0.12, 0.6)
    return track


def time_up():
    """The seconds to answer are over: one low, round gong, heard under talk and never taken for a verdict."""
    track = partials(pitch("D4"), 0.9, BELL, 0.002, 0.30)
    add(track, partials(pitch("D3"), 0.9, MUSIC_BOX, 0.004, 0.35), 0, 0.9)
    add(track, partials(pitch("D4"), 0.7, BELL, 0.002, 0.26), 0.24, 0.8)
    return reverb(track, 0.12, 0.2)


def pawn():
    """A wooden piece set down on the board."""
    track = partials(196, 0.30, [(1, 1, 1), (2.76, 0.6, 0.5), (5.4, 0.35, 0.25)], 0.0008, 0.055)
    click = noise_sweep(0.02, 3000, 1200, 2, 2.0)
    add(track, click, 0, 0.6)
    add(track, partials(pitch("D5"), 0.28, MUSIC_BOX, 0.002, 0.07), 0.012, 0.35)
    return track


def correct_sting():
    track = []
    for names, at, length in ((("C4", "E4", "G4"), 0.0, 0.17), (("C4", "E4", "G4"), 0.19, 0.13),
                              (("F4", "A4", "C5"), 0.34, 0.22), (("G4", "C5", "E5", "C3"), 0.58, 0.95)):
        for name in names:
            add(track, brass(pitch(name), length), at, 0.5)
    for i, name in enumerate(("C6", "E6", "G6", "C7")):
        add(track, bell(pitch(name), 0.9, 0.3), 0.60 + i * 0.07, 0.35)
    return reverb(track, 0.18, 0.3)


def incorrect_sting():
    """Four horn notes sinking by half steps, the last one sagging."""
    track = []
    for i, (name, length, bend) in enumerate((("G3", 0.27, 0), ("F#3", 0.27, 0), ("F3", 0.27, 0), ("E3", 0.85, -1.6))):
        at = i * 0.29
        add(track, brass(pitch(name), length, bend, 0.85), at)
        add(track, brass(pitch(name) / 2, length, bend, 0.6), at, 0.5)
    return reverb(track, 0.14, 0.15)


def pips(count):
    """So many short tones, for the check before the show: one hears which of the channels plays."""
    track = []
    for i in range(count):
        add(track, partials(pitch("A5"), 0.11, MUSIC_BOX, 0.003, 0.08), i * 0.19, 0.9)
    return track


SOUNDS = {"RingsIn.mp3": rings_in, "Correct.mp3": correct, "Incorrect.mp3": incorrect, "DDouble.wav": double,
          "Question Appears.wav": question_appears, "Skip.Wav": skip, "TimeUp.Wav": time_up,
          "Pawn.Wav": pawn, "Correct4swf.mp3": correct_sting, "Incorrect4swf.mp3": incorrect_sting}
SOUNDS |= {f"Check{count}.Wav": lambda count=count: pips(count) for count in range(1, 6)}


def main():
    FOLDER.mkdir(parents=True, exist_ok=True)
    for name, make in SOUNDS.items():
        write_sound(FOLDER / name, make())


if __name__ == "__main__":
    main()
