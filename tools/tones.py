# SPDX-License-Identifier: GPL-3.0-or-later
"""A small synthesiser shared by the sound and set generators.

Sounds are plain lists of numbers until they are written, which keeps the
generators free of any library beyond Python's own.
"""
import array
import math
import os
import random
import subprocess
import sys
import tempfile
import wave

RATE = 44100
PEAK = 10 ** (-3 / 20)
NOTE_STEPS = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}


def pitch(name):
    """Frequency of a note such as A4, C#5 or Bb3."""
    step = NOTE_STEPS[name[0]] + name.count("#") - name[1:].count("b")
    return 440.0 * 2 ** ((step - 9) / 12 + int(name[-1]) - 4)


def silence(seconds):
    return [0.0] * int(seconds * RATE)


def add(track, sound, at=0.0, gain=1.0):
    """Mix a sound into a track from a moment on, lengthening it if needed."""
    start = int(at * RATE)
    if len(track) < start + len(sound):
        track.extend([0.0] * (start + len(sound) - len(track)))
    for i, value in enumerate(sound):
        track[start + i] += value * gain
    return track


def envelope(i, count, attack, decay):
    """A fast rise, an even decay and a short fade so that the end never clicks."""
    t = i / RATE
    rise = min(1.0, t / attack) if attack else 1.0
    end = min(1.0, (count - i) / (0.012 * RATE))
    return rise * math.exp(-t / decay) * end


def partials(freq, seconds, mixture, attack=0.004, decay=0.4):
    """Sum of sine partials; each is (ratio, gain, share of the decay time)."""
    count = int(seconds * RATE)
    out = [0.0] * count
    for ratio, gain, share in mixture:
        if freq * ratio > RATE * 0.45:
            continue
        w = 2 * math.pi * freq * ratio / RATE
        for i in range(count):
            out[i] += gain * math.sin(w * i) * envelope(i, count, attack, decay * share)
    return out


BELL = [(1, 1, 1), (2, 0.5, 0.7), (3, 0.22, 0.45), (4.2, 0.16, 0.3), (5.4, 0.08, 0.2)]
PIANO = [(1, 1, 1), (2, 0.45, 0.8), (3, 0.28, 0.6), (4, 0.14, 0.45), (5, 0.08, 0.35), (6, 0.05, 0.3)]
MUSIC_BOX = [(1, 1, 1), (3, 0.25, 0.35), (5.9, 0.12, 0.15)]
ORGAN = [(1, 1, 1), (2, 0.5, 1), (3, 0.2, 1), (4, 0.25, 1), (6, 0.08, 1)]


def bell(freq, seconds=0.8, decay=0.25):
    return partials(freq, seconds, BELL, 0.002, decay)


def brass(freq, seconds, bend=0.0, bright=1.0):
    """A warm horn: its upper partials swell a moment after the first ones."""
    count = int(seconds * RATE)
    out = [0.0] * count
    top = min(11, int(RATE * 0.4 / freq))
    phase = 0.0
    for i in range(count):
        t = i / RATE
        vibrato = 1 + 0.006 * math.sin(2 * math.pi * 5.4 * t) * min(1, t * 2.5)
        phase += 2 * math.pi * freq * vibrato * 2 ** (bend * t / seconds / 12) / RATE
        swell = min(1.0, t / 0.07) * bright
        value = sum(math.sin(k * phase) * swell ** (k * 0.35) / k ** 1.25 for k in range(1, top + 1))
        level = min(1.0, t / 0.025) * min(1.0, (count - i) / (0.09 * RATE))
        out[i] = value * level * 0.6
    return out


def noise_sweep(seconds, start, end, seed, sharp=6.0):
    """Noise through a resonant filter that glides between two frequencies."""
    rng = random.Random(seed)
    count = int(seconds * RATE)
    low = band = 0.0
    out = []
    for i in range(count):
        share = i / count
        f = 2 * math.sin(math.pi * start * (end / start) ** share / RATE)
        low += f * band
        band += f * (rng.uniform(-1, 1) - low - band / sharp)
        out.append(band * math.sin(math.pi * share) ** 1.5)
    return out


def reverb(sound, share=0.18, tail=0.5):
    """A small room: four echoing combs and two all-pass smearers."""
    source = sound + silence(tail)
    wet = [0.0] * len(source)
    for delay, feedback in ((1557, 0.74), (1617, 0.73), (1491, 0.75), (1422, 0.76)):
        line, pos, kept = [0.0] * delay, 0, 0.0
        for i, value in enumerate(source):
            back = line[pos]
            kept = back * 0.75 + kept * 0.25
            line[pos] = value + kept * feedback
            wet[i] += back * 0.25
            pos = (pos + 1) % delay
    for delay in (225, 556):
        line, pos = [0.0] * delay, 0
        for i, value in enumerate(wet):
            back = line[pos]
            line[pos] = value + back * 0.5
            wet[i] = back - value * 0.5
            pos = (pos + 1) % delay
    return [dry + share * far for dry, far in zip(source, wet)]


def melody(notes, beat, voice=PIANO, decay=0.55, hold=1.0):
    """Play 'C4:1 D4:2 -:1', each note with its length in beats."""
    track, at = [], 0.0
    for item in notes.split():
        name, length = item.split(":")
        length = float(length) * beat
        if name != "-":
            add(track, partials(pitch(name), length * hold + 0.25, voice, 0.006, decay), at)
        at += length
    return track


def level(sound):
    """Scale to a peak of -3 dB below full scale."""
    top = max(abs(value) for value in sound)
    return [value * PEAK / top for value in sound]


def write_wave(path, sound, rate=RATE):
    """Write 16-bit mono; a lower rate simply takes every second sample of a
    sound that holds nothing above a quarter of the full rate."""
    sound = level(sound)[::RATE // rate]
    fade = min(len(sound), int(0.02 * rate))
    for i in range(fade):
        sound[-1 - i] *= i / fade
    with wave.open(str(path), "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(rate)
        data = array.array("h", (round(value * 32767) for value in sound))
        if sys.byteorder == "big":
            data.byteswap()
        out.writeframes(data.tobytes())


def write_mp3(path, sound, bitrate=128):
    with tempfile.TemporaryDirectory() as folder:
        source = os.path.join(folder, "sound.wav")
        write_wave(source, sound)
        subprocess.run(["lame", "--quiet", "--noreplaygain", "-m", "m", "-b", str(bitrate), "-q", "2",
                        source, str(path)], check=True)


def write_sound(path, sound, **options):
    """Pick the container by the file's ending."""
    (write_mp3 if str(path).lower().endswith(".mp3") else write_wave)(path, sound, **options)
