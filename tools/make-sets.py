#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Write the sample trivia sets and the media that they use, into assets/.

The readable sources are the text files in tools/sets.
"""
import math
import random
from pathlib import Path
from PIL import Image, ImageChops, ImageDraw, ImageFilter
from drawing import *
from tones import *

TOOLS = Path(__file__).resolve().parent
SETS = TOOLS.parent / "assets" / "Trivia Sets"
MEDIA = SETS / "Media"
RECORDS = 101
MOST_QUESTIONS = 100
QUESTION_LIMIT, ANSWER_LIMIT = 256, 174
PICTURES, SOUNDS = (".bmp", ".jpg"), (".wav", ".mp3", ".wma")
UNUSED = ["", "", "T#Courier New#28#True#True#16777215#"]


# --- Pictures ----------------------------------------------------------------

SIZE = (1920, 1080)


def card(wording):
    """A dark ground with the question's wording along its lower edge."""
    image = vertical_gradient(SIZE, "#1B2540", "#0C111D")
    glow(image, "#2C4A8C", radial_mask(SIZE, (0.5, 0.42), 0.55), 1, 0.6)
    mask = text_mask(SIZE, (960, 990), wording, font("bold", 76))
    paint(image, "#FFFFFF", mask)
    return image


def flag(width, height, draw_on):
    """Put a flag on a card, with a soft shadow that lifts it off the ground."""
    cloth = Image.new("RGB", (width, height), "#FFFFFF")
    draw_on(ImageDraw.Draw(cloth), width, height)
    image = card("Which country flies this flag?")
    x, y = (1920 - width) // 2, 470 - height // 2
    shadow = rounded_mask(SIZE, (x - 6, y + 4, x + width + 6, y + height + 22), 10)
    paint(image, "#000000", shadow.filter(ImageFilter.GaussianBlur(22)), 0.75)
    image.paste(cloth, (x, y))
    return image


def japan():
    def draw_on(d, w, h):
        r = h * 0.3
        d.ellipse((w / 2 - r, h / 2 - r, w / 2 + r, h / 2 + r), fill="#BC002D")
    return flag(1140, 760, draw_on)


def sweden():
    def draw_on(d, w, h):
        u = w / 16
        d.rectangle((0, 0, w, h), fill="#006AA7")
        d.rectangle((5 * u, 0, 7 * u, h), fill="#FECC02")
        d.rectangle((0, 4 * u, w, 6 * u), fill="#FECC02")
    return flag(1216, 760, draw_on)


def switzerland():
    def draw_on(d, w, h):
        u = w / 32
        d.rectangle((0, 0, w, h), fill="#DA291C")
        d.rectangle((13 * u, 6 * u, 19 * u, 26 * u), fill="#FFFFFF")
        d.rectangle((6 * u, 13 * u, 26 * u, 19 * u), fill="#FFFFFF")
    return flag(768, 768, draw_on)


def jamaica():
    def draw_on(d, w, h):
        d.rectangle((0, 0, w, h), fill="#009B3A")
        d.polygon([(0, 0), (w / 2, h / 2), (0, h)], fill="#000000")
        d.polygon([(w, 0), (w / 2, h / 2), (w, h)], fill="#000000")
        d.line((0, 0, w, h), fill="#FED100", width=int(h / 6))
        d.line((0, h, w, 0), fill="#FED100", width=int(h / 6))
    return flag(1480, 740, draw_on)


def ukraine():
    def draw_on(d, w, h):
        d.rectangle((0, 0, w, h / 2), fill="#0057B7")
        d.rectangle((0, h / 2, w, h), fill="#FFDD00")
    return flag(1140, 760, draw_on)


def stars(places, links, wording, seed):
    """Bright stars joined by thin lines, before a scatter of faint ones."""
    image = vertical_gradient(SIZE, "#0A1026", "#10183A")
    rng = random.Random(seed)
    draw = ImageDraw.Draw(image)
    for _ in range(240):
        x, y, r = rng.uniform(0, 1920), rng.uniform(0, 1080), rng.uniform(0.8, 2.4)
        draw.ellipse((x - r, y - r, x + r, y + r), fill=mix("#10183A", "#FFFFFF", rng.uniform(0.2, 0.5)))
    for a, b in links:
        draw.line((places[a][:2], places[b][:2]), fill="#48609C", width=5)
    light = Image.new("L", SIZE, 0)
    for x, y, r in places:
        ImageDraw.Draw(light).ellipse((x - r, y - r, x + r, y + r), fill=255)
    glow(image, "#9FC0FF", light, 20, 0.9)
    paint(image, "#FFFFFF", light)
    paint(image, "#FFFFFF", text_mask(SIZE, (960, 1000), wording, font("bold", 76)))
    return image


def plough():
    # From the bowl's far rim to the end of the handle, as seen with the handle to the left.
    places = [(1500, 300, 15), (1470, 590, 14), (1130, 640, 13), (1060, 440, 10), (800, 390, 14), (600, 330, 13), (330, 420, 14)]
    return stars(places, [(0, 1), (1, 2), (2, 3), (3, 0), (3, 4), (4, 5), (5, 6)], "What is this group of seven stars called?", 1)


def orion():
    places = [(760, 170, 18), (1120, 215, 15), (880, 500, 13), (940, 475, 13), (1000, 450, 13),
              (800, 790, 12), (1170, 760, 19), (960, 95, 8)]
    return stars(places, [(0, 2), (1, 4), (2, 3), (3, 4), (2, 5), (4, 6), (0, 7), (7, 1)],
                 "Which constellation is this?", 2)


def cassiopeia():
    places = [(400, 350, 12), (700, 600, 13), (960, 380, 16), (1230, 690, 15), (1530, 420, 15)]
    return stars(places, [(0, 1), (1, 2), (2, 3), (3, 4)], "Which constellation has the shape of a W?", 3)


def octagon():
    image = card("What is a figure with this many sides called?")
    ring = [(960 + 360 * math.sin(math.pi * (2 * k + 1) / 8), 470 - 360 * math.cos(math.pi * (2 * k + 1) / 8)) for k in range(8)]
    mask = Image.new("L", SIZE, 0)
    ImageDraw.Draw(mask).polygon(ring, fill=255)
    paint(image, "#2A4680", mask)
    edge = Image.new("L", SIZE, 0)
    stroke(ImageDraw.Draw(edge), ring, 18, closed=True)
    paint(image, GOLD, edge)
    return image


def counted_triangles():
    image = card("How many triangles are there in this figure?")
    top, left, right = (960, 100), (460, 860), (1460, 860)
    inner = [(793, 860), (1127, 860)]
    mask = Image.new("L", SIZE, 0)
    ImageDraw.Draw(mask).polygon([top, left, right], fill=255)
    paint(image, "#2A4680", mask)
    edge = Image.new("L", SIZE, 0)
    draw = ImageDraw.Draw(edge)
    stroke(draw, [top, left, right], 16, closed=True)
    for foot in inner:
        stroke(draw, [top, foot], 16)
    paint(image, PLAYER["T"], edge)
    return image


def eighths():
    image = card("Which fraction of the disc is gold?")
    draw = ImageDraw.Draw(image)
    box = (960 - 370, 470 - 370, 960 + 370, 470 + 370)
    for k in range(8):
        draw.pieslice(box, k * 45 - 90, k * 45 - 45, fill=GOLD if k in (0, 2, 5) else "#2A4680",
                      outline="#0E1320", width=10)
    return image


def roman():
    image = card("Which number is this?")
    mask = text_mask(SIZE, (960, 470), "XLIX", font("black", 440), 30)
    glow(image, GOLD, mask, 40, 0.4)
    paint(image, GOLD, mask)
    return image


def keyboard():
    image = card("Which note belongs to the marked key?")
    draw = ImageDraw.Draw(image)
    left, top, wide, tall = 463, 170, 142, 640
    for k in range(7):
        x = left + k * wide
        draw.rounded_rectangle((x + 4, top, x + wide - 4, top + tall), 12, fill=GOLD if k == 4 else "#F2F4F8")
    for k in (0, 1, 3, 4, 5):
        x = left + (k + 1) * wide
        draw.rounded_rectangle((x - 44, top, x + 44, top + 390), 10, fill="#10151F")
    return image


# --- Sounds ------------------------------------------------------------------

def ode():
    return melody("E4:1 E4:1 F4:1 G4:1 G4:1 F4:1 E4:1 D4:1 C4:1 C4:1 D4:1 E4:1 E4:1.5 D4:.5 D4:2 "
                  "E4:1 E4:1 F4:1 G4:1 G4:1 F4:1 E4:1 D4:1 C4:1 C4:1 D4:1 E4:1 D4:1.5 C4:.5 C4:2", 0.36)


def frere():
    return melody("F4:1 G4:1 A4:1 F4:1 F4:1 G4:1 A4:1 F4:1 A4:1 Bb4:1 C5:2 A4:1 Bb4:1 C5:2 "
                  "C5:.5 D5:.5 C5:.5 Bb4:.5 A4:1 F4:1 C5:.5 D5:.5 C5:.5 Bb4:.5 A4:1 F4:1 F4:1 C4:1 F4:2 F4:1 C4:1 F4:2", 0.36)


def twinkle():
    return melody("C5:1 C5:1 G5:1 G5:1 A5:1 A5:1 G5:2 F5:1 F5:1 E5:1 E5:1 D5:1 D5:1 C5:2", 0.42, MUSIC_BOX, 0.6)


def fifth():
    """The strings in octaves: both four-note calls, each with its held last note."""
    track = []
    for octave, gain in ((4, 1.0), (3, 0.9)):
        at = 0.0
        for short, held in (("G", "Eb"), ("F", "D")):
            for _ in range(3):
                add(track, brass(pitch(f"{short}{octave}"), 0.19), at, gain)
                at += 0.21
            add(track, brass(pitch(f"{held}{octave}"), 1.35), at, gain)
            at += 1.6
    return reverb(track, 0.2, 0.5)


def jingle():
    return melody("E5:1 E5:1 E5:2 E5:1 E5:1 E5:2 E5:1 G5:1 C5:1.5 D5:.5 E5:4 "
                  "F5:1 F5:1 F5:1.5 F5:.5 F5:1 E5:1 E5:1 E5:.5 E5:.5 G5:1 G5:1 F5:1 D5:1 C5:4", 0.27, BELL, 0.4)


def elise():
    return melody("E5:1 D#5:1 E5:1 D#5:1 E5:1 B4:1 D5:1 C5:1 A4:3 C4:1 E4:1 A4:1 B4:3 E4:1 G#4:1 B4:1 C5:3 E4:1 "
                  "E5:1 D#5:1 E5:1 D#5:1 E5:1 B4:1 D5:1 C5:1 A4:3 C4:1 E4:1 A4:1 B4:3 E4:1 C5:1 B4:1 A4:4", 0.21)


def chimes():
    """The four phrases that sound before the full hour."""
    phrases = ("E4:1 G#4:1 F#4:1 B3:2", "E4:1 F#4:1 G#4:1 E4:2", "G#4:1 E4:1 F#4:1 B3:2", "B3:1 F#4:1 G#4:1 E4:2")
    return melody(" ".join(phrases), 0.42, BELL, 0.75)


def distress():
    """Three short, three long, three short, sent twice."""
    track, at, dot = [], 0.0, 0.09
    for _ in range(2):
        for mark in "... --- ...":
            if mark == " ":
                at += 2 * dot
                continue
            length = dot if mark == "." else 3 * dot
            count = int(length * RATE)
            add(track, [math.sin(2 * math.pi * 660 * i / RATE) * min(1, i / 220, (count - i) / 220) for i in range(count)], at)
            at += length + dot
        at += 6 * dot
    return track


def scale():
    return melody("C4:1 D4:1 E4:1 F4:1 G4:1 A4:1 B4:1 C5:2", 0.42)


MEDIA_MAKERS = {
    "Flag 1.jpg": japan, "Flag 2.jpg": sweden, "Flag 3.jpg": switzerland, "Flag 4.jpg": jamaica, "Flag 5.jpg": ukraine,
    "Stars 1.jpg": plough, "Stars 2.jpg": orion, "Stars 3.jpg": cassiopeia,
    "Figure 1.jpg": octagon, "Figure 2.jpg": counted_triangles, "Figure 3.jpg": eighths, "Figure 4.jpg": roman,
    "Figure 5.jpg": keyboard,
    "Tune 1.mp3": ode, "Tune 2.mp3": frere, "Tune 3.mp3": twinkle, "Tune 4.mp3": fifth, "Tune 5.mp3": jingle,
    "Tune 6.mp3": elise, "Scale 1.mp3": scale, "Signal 1.wav": distress, "Signal 2.wav": chimes,
}


def make_media():
    MEDIA.mkdir(parents=True, exist_ok=True)
    for name, make in MEDIA_MAKERS.items():
        if name.endswith(".jpg"):
            finish(make(), (960, 540)).save(MEDIA / name, "JPEG", quality=88, optimize=True)
        elif name.endswith(".mp3"):
            write_mp3(MEDIA / name, make(), 96)
        else:
            write_wave(MEDIA / name, make(), RATE // 2)


# --- Sets --------------------------------------------------------------------

def colour_number(wording):
    """The set format counts red in the lowest byte."""
    red, green, blue = rgb(wording)
    number = str(red | green << 8 | blue << 16)
    # A reader takes a field of one character for a missing one.
    assert len(number) >= 2, wording
    return number


def style_line(definition):
    parts = [part.strip() for part in definition.split("|")]
    if len(parts) == 1:
        return f"T#{colour_number(parts[0])}#"
    name, size, bold, italic, colour = parts
    # A font name that is short or a number would be read as something else.
    assert len(name) >= 2 and not name.replace(".", "").isdigit() and "#" not in name
    assert len(size) >= 2 and size.isdigit() and {bold, italic} <= {"True", "False"}
    return f"T#{name}#{size}#{bold}#{italic}#{colour_number(colour)}#"


def read_source(path):
    """Turn a readable source into records of three lines."""
    styles, default, records = {}, None, []
    for block in path.read_text("utf-8").split("\n\n"):
        lines = [line for line in block.strip().split("\n") if line and not line.startswith("#")]
        if lines and lines[0].startswith("style "):
            for line in lines:
                word, rest = line.split(" ", 1)
                if word == "style":
                    name, definition = rest.split("=", 1)
                    styles[name.strip()] = style_line(definition)
                else:
                    default = styles[rest.strip()]
        elif lines:
            question, answer = lines[0], lines[1]
            if question.startswith("."):
                kind = "P" if question[-4:].lower() in PICTURES else "S"
                records.append([question, answer, kind])
            else:
                assert len(lines) < 4, lines
                records.append([question, answer, styles[lines[2]] if len(lines) == 3 else default])
    return records


def check(records):
    assert 0 < len(records) <= MOST_QUESTIONS
    seen = set()
    for question, answer, form in records:
        assert question == question.strip() and 0 < len(question) <= QUESTION_LIMIT, question
        assert answer == answer.strip() and 0 < len(answer) <= ANSWER_LIMIT, answer
        assert question not in seen, question
        seen.add(question)
        ending = question[-4:].lower()
        if form in ("P", "S"):
            assert ending in (PICTURES if form == "P" else SOUNDS), question
            assert question.startswith(".\\"), question
            assert SETS.joinpath(*question[2:].split("\\")).is_file(), question
        else:
            # The screen goes by the ending alone, so wording must not look like a file.
            assert ending not in PICTURES + SOUNDS, question
        for line in (question, answer, form):
            assert "\r" not in line and "\n" not in line and "\0" not in line


def write_set(path, records):
    check(records)
    # A name with a second dot would be cut in the list of sets.
    assert "." not in path.stem
    whole = records + [UNUSED] * (RECORDS - len(records))
    path.write_bytes("".join(line + "\r\n" for record in whole for line in record).encode("cp1252"))


def parse_set(path):
    """Read a set the way the program does, up to the first empty question."""
    lines = path.read_bytes().decode("cp1252").replace("\r\n", "\r").split("\r")
    records = []
    for i in range(RECORDS):
        question, answer, form = lines[3 * i:3 * i + 3]
        if not question.strip():
            break
        records.append([question, answer, form])
    return records


def main():
    make_media()
    for source in sorted((TOOLS / "sets").glob("*.txt")):
        records = read_source(source)
        path = SETS / source.name
        write_set(path, records)
        assert parse_set(path) == records
        kinds = [form[0] for _, _, form in records]
        print(f"{path.name}: {len(records)} questions, {kinds.count('P')} pictures, {kinds.count('S')} sounds")


if __name__ == "__main__":
    main()
