#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draw every picture that Pawnfield ships with, into assets/."""
import colorsys
import io
import math
import random
from pathlib import Path
from PIL import Image, ImageChops, ImageDraw, ImageFilter, ImageStat
from drawing import *

ASSETS = Path(__file__).resolve().parent.parent / "assets"
IMAGES = ASSETS / "Images"
BACKGROUNDS = ASSETS / "Question Backgrounds"
SCALE = 4


# --- Board pieces, boxes and labels ---------------------------------------

def tile(colour, tint, rim_share, width=3):
    """A dark square with a tint and a coloured rim, drawn at four times size."""
    size = (100 * SCALE, 100 * SCALE)
    image = Image.new("RGB", size, rgb(GROUND))
    box = (1 * SCALE, 1 * SCALE, 99 * SCALE - 1, 99 * SCALE - 1)
    face = vertical_gradient(size, mix("#1C2640", colour, tint), mix("#10172A", colour, tint * 0.6))
    image.paste(face, (0, 0), rounded_mask(size, box, 8 * SCALE))
    paint(image, mix(PANEL, colour, rim_share), rounded_mask(size, box, 8 * SCALE, width * SCALE))
    return image


def shade(image, mask, top, bottom):
    """Fill a shape with a gradient that runs over the shape's own height."""
    left, upper, right, lower = mask.getbbox()
    fill = Image.new("RGB", image.size, 0)
    fill.paste(vertical_gradient((right - left, lower - upper), top, bottom), (left, upper))
    image.paste(fill, (0, 0), mask)


def piece_at_rest(kind):
    colour = PLAYER[kind]
    image = tile(colour, 0.10, 0.50)
    mask = piece_mask(kind, image.size, (200, 200), 118)
    shadow = ImageChops.offset(mask, 0, 10).filter(ImageFilter.GaussianBlur(10))
    paint(image, "#05070D", shadow, 0.7)
    shade(image, mask, mix(colour, GROUND, 0.10), mix(colour, GROUND, 0.42))
    return finish(image, (100, 100))


def piece_lit(kind):
    colour = PLAYER[kind]
    image = tile(colour, 0.34, 1.0, 4)
    glow(image, colour, radial_mask(image.size, radius=0.62), 1, 0.40)
    mask = piece_mask(kind, image.size, (200, 200), 124)
    glow(image, colour, mask, 40, 0.85)
    glow(image, colour, mask, 14, 0.80)
    shade(image, mask, mix(colour, "#FFFFFF", 0.45), mix(colour, "#FFFFFF", 0.10))
    core = piece_mask(kind, image.size, (200, 200), 112, 0.12).filter(ImageFilter.GaussianBlur(7))
    if kind != "O":
        core = piece_mask(kind, image.size, (200, 200), 108, 0.10).filter(ImageFilter.GaussianBlur(7))
    paint(image, "#FFFFFF", core, 0.85)
    return finish(image, (100, 100))


def neutral_piece():
    """No player's piece: all three shapes, small and grey."""
    image = tile(QUIET, 0.06, 0.45)
    for kind, centre in (("X", (130, 148)), ("O", (270, 148)), ("T", (200, 272))):
        mask = piece_mask(kind, image.size, centre, 50, 0.32)
        shade(image, mask, "#A9B4CA", "#74809A")
    return finish(image, (100, 100))


def blank_square():
    size = (100 * SCALE, 100 * SCALE)
    image = Image.new("RGB", size, rgb(GROUND))
    box = (0, 0, size[0] - 1, size[1] - 1)
    image.paste(vertical_gradient(size, "#2A4680", "#1C3166"), (0, 0), rounded_mask(size, box, 6 * SCALE))
    paint(image, "#3D5C9E", rounded_mask(size, box, 6 * SCALE, 1.5 * SCALE))
    return finish(image, (100, 100))


def score_box(lit):
    size = (240 * SCALE, 90 * SCALE)
    image = Image.new("RGB", size, rgb(GROUND))
    box = (3 * SCALE, 3 * SCALE, 237 * SCALE - 1, 87 * SCALE - 1)
    body = rounded_mask(size, box, 14 * SCALE)
    if lit:
        glow(image, "#FF4A50", body, 3 * SCALE, 0.9)
        image.paste(vertical_gradient(size, "#5E1620", "#3C0D14"), (0, 0), body)
        paint(image, "#FF4A50", rounded_mask(size, box, 14 * SCALE, 4 * SCALE))
    else:
        image.paste(vertical_gradient(size, "#1E2942", "#121929"), (0, 0), body)
        paint(image, "#33415F", rounded_mask(size, box, 14 * SCALE, 2 * SCALE))
    return finish(image, (240, 90))


def board_label(wording):
    """A letter or digit on nothing, so that it stands on whatever ground the board has."""
    size = (120 * SCALE, 120 * SCALE)
    mask = text_mask(size, (60 * SCALE, 60 * SCALE), wording, font("bold", 68 * SCALE))
    image = Image.new("RGBA", size, rgb("#9FB4EC") + (0,))
    image.putalpha(mask)
    return image.resize((120, 120), Image.LANCZOS)


def cursor(kind):
    """An arrow whose tip is the pixel at the upper left, carrying a piece."""
    s = 8
    size = (32 * s, 32 * s)
    image = Image.new("RGBA", size, (0, 0, 0, 0))
    draw = ImageDraw.Draw(image)
    outline = [(0.5, 0.5), (0.5, 17), (4.6, 13.2), (7.2, 19), (9.9, 17.8), (7.4, 12.2), (12.6, 12.2)]
    points = [(x * s, y * s) for x, y in outline]
    draw.polygon(points, fill=(255, 255, 255, 255))
    draw.line(points + points[:2], fill=(14, 19, 32, 255), width=int(1.3 * s), joint="curve")
    kinds = [(kind, (21.5, 21.5), 8.6)] if kind != "N" else \
        [("X", (16.8, 17.2), 4.2), ("O", (26.6, 17.2), 4.2), ("T", (21.6, 26.4), 4.6)]
    for shape, (x, y), reach in kinds:
        colour = PLAYER[shape] if kind != "N" else "#B4BED2"
        weight = 0.42 if kind != "N" else 0.5
        mask = piece_mask(shape, size, (x * s, y * s), reach * s, weight)
        rim = mask.filter(ImageFilter.MaxFilter(2 * s - 1))
        image.paste(Image.new("RGBA", size, rgb(GROUND) + (255,)), (0, 0), rim)
        image.paste(Image.new("RGBA", size, rgb(colour) + (255,)), (0, 0), mask)
    return finish(image, (32, 32))


# --- Boards and pawns as ornaments ----------------------------------------

def flat_board(cells, side, placed):
    """A board seen from above, with some squares taken."""
    image = Image.new("RGBA", (side, side), (0, 0, 0, 0))
    step = side / cells
    for row in range(cells):
        for col in range(cells):
            kind = placed.get((row, col))
            if kind:
                square = piece_lit(kind)
            else:
                square = blank_square()
            square = square.resize((int(step * 0.94),) * 2, Image.LANCZOS)
            mask = rounded_mask((square.width * 2,) * 2, (4, 4, square.width * 2 - 5, square.width * 2 - 5),
                                square.width // 8).resize(square.size, Image.LANCZOS)
            image.paste(square, (int((col + 0.03) * step), int((row + 0.03) * step)), mask)
    return image


# --- Full pictures ---------------------------------------------------------

def stage(size, light="#2C4A8C", centre=(0.5, 0.42), share=0.75):
    """The dark ground with a soft light, on which the full pictures stand."""
    image = vertical_gradient(size, "#141C31", "#0A0E19")
    glow(image, light, radial_mask(size, centre, 0.62), 1, share)
    return image


def rays(size, centre, count, colour, share, turn=0.0):
    """Light fanning out from a point, fading with distance."""
    mask = Image.new("L", size, 0)
    draw = ImageDraw.Draw(mask)
    far = size[0] * 1.3
    for i in range(count):
        a = turn + 2 * math.pi * i / count
        half = math.pi / count * 0.5
        draw.polygon([centre] + [(centre[0] + far * math.cos(b), centre[1] + far * math.sin(b))
                                 for b in (a - half, a + half)], fill=255)
    fade = radial_mask(size, (centre[0] / size[0], centre[1] / size[1]), 0.72)
    mask = ImageChops.multiply(mask.filter(ImageFilter.GaussianBlur(3)), fade)
    layer = Image.new("RGB", size, 0)
    paint(layer, colour, mask, share)
    return layer


def title(image, centre, wording, face, top, bottom, spacing=0, light=None):
    mask = text_mask(image.size, centre, wording, face, spacing)
    paint(image, "#04060C", ImageChops.offset(mask, 0, 8).filter(ImageFilter.GaussianBlur(10)), 0.9)
    if light:
        glow(image, light, mask, 46, 0.55)
    shade(image, mask, top, bottom)


def frame(image, colour, inset=28, radius=36, width=6, share=0.6):
    w, h = image.size
    paint(image, colour, rounded_mask(image.size, (inset, inset, w - inset, h - inset), radius, width), share)


def standby():
    size = (2048, 1536)
    image = stage(size, "#31549E", (0.5, 0.34), 0.85)
    placed = {(0, 1): "O", (1, 1): "X", (1, 3): "T", (2, 0): "T", (2, 2): "X", (2, 4): "O",
              (3, 1): "O", (3, 3): "X", (4, 2): "T", (4, 4): "O"}
    board = flat_board(5, 1500, placed)
    floor = perspective(board, size, [(624, 760), (1424, 760), (1960, 1560), (88, 1560)])
    fade = Image.linear_gradient("L").resize((size[0], 900)).point(lambda v: min(255, int(v * 1.5) + 40))
    veil = Image.new("L", size, 0)
    veil.paste(fade, (0, 700))
    alpha = ImageChops.multiply(floor.getchannel("A"), veil)
    light = Image.new("RGB", size, 0)
    light.paste(floor.convert("RGB"), (0, 0), alpha)
    image.paste(floor.convert("RGB"), (0, 0), alpha)
    image = ImageChops.screen(image, light.filter(ImageFilter.GaussianBlur(50)).point(lambda v: int(v * 0.45)))
    title(image, (1024, 400), "PAWNFIELD", font("black", 280), "#FFE6AE", "#E09C26", 22, GOLD)
    paint(image, GOLD, rounded_mask(size, (724, 562, 1324, 568), 3), 0.7)
    paint(image, TEXT, text_mask(size, (1024, 634), "THE SHOW STARTS SOON", font("medium", 60), 14), 0.92)
    return finish(image, (1024, 768))


def bonus():
    size = (2048, 1536)
    image = stage(size, "#8A5A12", (0.5, 0.5), 0.9)
    image = ImageChops.screen(image, rays(size, (1024, 768), 20, "#F59A1E", 0.46, 0.08))
    rng = random.Random(11)
    for _ in range(46):
        a, d = rng.random() * 2 * math.pi, rng.uniform(430, 1150)
        kind = rng.choice("XOT")
        mask = piece_mask(kind, size, (1024 + d * math.cos(a), 768 + d * 0.75 * math.sin(a)), rng.uniform(16, 42), 0.36)
        paint(image, PLAYER[kind], mask, rng.uniform(0.35, 0.85))
    paint(image, "#0A0E19", radial_mask(size, (0.5, 0.5), 0.42), 0.55)
    title(image, (1024, 768), "BONUS!", font("black", 400), "#FFF0C8", "#E8A02A", 10, GOLD)
    return finish(image, (1024, 768))


def header():
    """The wordmark alone, so that the board's own ground shows around it."""
    size = (3008, 320)
    image = Image.new("RGB", size, 0)
    mask = text_mask(size, (1504, 140), "PAWNFIELD", font("black", 190), 46)
    shade(image, mask, "#FFE9B8", "#E39C22")
    line = Image.new("L", size, 0)
    ImageDraw.Draw(line).rectangle((0, 282, 3008, 292), fill=255)
    paint(image, GOLD, line)
    shown = ImageChops.lighter(mask, ImageChops.multiply(line, radial_mask(size, (0.5, 0.9), 0.5)))
    image.putalpha(shown)
    return finish(image, (1504, 160))


def sound_panel():
    size = (2048, 1152)
    image = stage(size, "#2A5AA8", (0.5, 0.5), 0.8)
    mask = Image.new("L", size, 0)
    draw = ImageDraw.Draw(mask)
    cx, cy = 820, 576
    draw.rounded_rectangle((cx - 250, cy - 110, cx - 60, cy + 110), 34, fill=255)
    draw.polygon([(cx - 120, cy - 100), (cx + 90, cy - 270), (cx + 90, cy + 270), (cx - 120, cy + 100)], fill=255)
    stroke(draw, [(cx - 110, cy - 100), (cx + 90, cy - 262), (cx + 90, cy + 262), (cx - 110, cy + 100)], 48, closed=True)
    glow(image, "#6FA0FF", mask, 50, 0.5)
    shade(image, mask, "#F4F7FF", "#A9BBE6")
    for i, share in enumerate((1.0, 0.78, 0.5)):
        wave = Image.new("L", size, 0)
        reach = 210 + i * 145
        mid = cx + 60
        ImageDraw.Draw(wave).arc((mid - reach, cy - reach, mid + reach, cy + reach), -44, 44, fill=255, width=46)
        for a in (-44, 44):
            r = reach - 23
            x, y = mid + r * math.cos(math.radians(a)), cy + r * math.sin(math.radians(a))
            ImageDraw.Draw(wave).ellipse((x - 23, y - 23, x + 23, y + 23), fill=255)
        glow(image, GOLD, wave, 26, 0.45 * share)
        paint(image, GOLD, wave, share)
    return finish(image, (1024, 576))


def verdict(correct):
    """Its middle stays dark and empty: the words are written there. The sign is whole also in a room twice as wide as
    high, which shows nine tenths of the height."""
    size = (2048, 1152)
    top, reach = 236, 126
    colour = RIGHT if correct else WRONG
    bright = "#3FE08A" if correct else "#FF6167"
    image = stage(size, colour, (0.5, 0.2), 0.75)
    image = ImageChops.screen(image, rays(size, (1024, top), 24, bright, 0.14))
    paint(image, "#05070D", rounded_mask(size, (-40, 400, 2088, 752), 0).filter(ImageFilter.GaussianBlur(40)), 0.86)
    disc = Image.new("L", size, 0)
    ImageDraw.Draw(disc).ellipse((1024 - reach, top - reach, 1024 + reach, top + reach), fill=255)
    glow(image, bright, disc, 40, 0.6)
    shade(image, disc, mix(bright, colour, 0.35), mix(colour, "#000000", 0.25))
    mark = Image.new("L", size, 0)
    draw = ImageDraw.Draw(mark)
    lines = [[(-61, 6), (-17, 50), (64, -43)]] if correct else [[(-50, -50), (50, 50)], [(50, -50), (-50, 50)]]
    for line in lines:
        stroke(draw, [(1024 + x, top + y) for x, y in line], 34)
    paint(image, "#FFFFFF", mark)
    return finish(image, (1024, 576))


def five_left():
    size = (2048, 1152)
    image = stage(size, "#3A58B0", (0.5, 0.38), 0.9)
    image = ImageChops.screen(image, rays(size, (1024, 450), 16, "#5C80E0", 0.22, 0.1))
    title(image, (1024, 440), "5", font("black", 760), "#FFE9B8", "#E39C22", 0, GOLD)
    title(image, (1024, 900), "Questions Left!", font("black", 190), "#FFFFFF", "#C5D2F4", 2)
    for i in range(5):
        x = 1024 + (i - 2) * 96
        paint(image, GOLD, rounded_mask(size, (x - 32, 1046, x + 32, 1060), 7))
    return finish(image, (1024, 576))


def cover():
    size = (2048, 1152)
    image = stage(size, "#2D4C98", (0.5, 0.5), 0.8)
    veil = radial_mask(size, (0.5, 0.5), 0.66)
    grid = Image.new("L", size, 0)
    for row in range(7):
        for col in range(12):
            x, y = col * 176 - 32, row * 176 - 40
            grid.paste(255, (0, 0), rounded_mask(size, (x + 10, y + 10, x + 166, y + 166), 22, 4))
    paint(image, "#7FA0F0", ImageChops.multiply(grid, veil), 0.28)
    title(image, (1024, 215), "?", font("black", 290), "#FFE9B8", "#E39C22", 0, GOLD)
    # The name and the question stand in the middle.
    paint(image, "#0A0F1C", rounded_mask(size, (-40, 380, 2088, 790), 0).filter(ImageFilter.GaussianBlur(50)), 0.7)
    return finish(image, (1024, 576))


def winner():
    """A ground for names and scores, so that its middle stays calm."""
    size = (2048, 1536)
    image = stage(size, "#7A4A0C", (0.5, 0.40), 0.7)
    image = ImageChops.screen(image, rays(size, (1024, 620), 18, "#F08C14", 0.30, 0.17))
    beams = Image.new("L", size, 0)
    draw = ImageDraw.Draw(beams)
    for x, target in ((120, 760), (1928, 1288)):
        draw.polygon([(x - 20, 0), (x + 20, 0), (target + 230, 1536), (target - 230, 1536)], fill=255)
    glow(image, "#FFE2A0", beams, 40, 0.16)
    rng = random.Random(5)
    colours = [GOLD, PLAYER["X"], PLAYER["O"], PLAYER["T"], "#7FA8FF", "#FFFFFF"]
    for _ in range(330):
        x, y = rng.uniform(0, 2048), rng.uniform(0, 1536)
        calm = abs(x - 1024) / 760 + abs(y - 760) / 900
        if calm < rng.uniform(0.75, 1.15):
            continue
        w, h, a = rng.uniform(14, 26), rng.uniform(5, 18), rng.uniform(0, math.pi)
        c, s = math.cos(a), math.sin(a)
        points = [(x + c * u * w - s * v * h, y + s * u * w + c * v * h)
                  for u, v in ((-1, -1), (1, -1), (1, 1), (-1, 1))]
        ImageDraw.Draw(image).polygon(points, fill=mix(rng.choice(colours), GROUND, rng.uniform(0.05, 0.5)))
    frame(image, GOLD, 36, 40, 8, 0.75)
    return finish(image, (1024, 768))


# --- Question backgrounds ---------------------------------------------------

WIDE = (1920, 1080)


def screen_outline(image, box, colour, width):
    """A monitor: a lit face with an edge."""
    paint(image, mix(PANEL, colour, 0.10), rounded_mask(image.size, box, 22))
    paint(image, colour, rounded_mask(image.size, box, 22, width))


def projector_help():
    size = (2160, 1350)
    image = stage(size, "#27406F", (0.5, 0.3), 0.8)
    mask = text_mask(size, (1080, 120), "Connecting a projector", font("bold", 92))
    paint(image, "#F4F7FF", mask)
    # The computer, the cable and the wall.
    screen_outline(image, (170, 260, 690, 590), "#A9BBE6", 14)
    draw = ImageDraw.Draw(image)
    draw.polygon([(100, 650), (760, 650), (690, 596), (170, 596)], fill=rgb("#5A6C9A"))
    cable = Image.new("L", size, 0)
    stroke(ImageDraw.Draw(cable), [(770 + 5 * x, 620 + 110 * math.sin(x / 100 * math.pi) - 0.6 * x) for x in range(101)], 16)
    glow(image, GOLD, cable, 24, 0.5)
    paint(image, GOLD, cable)
    screen_outline(image, (1290, 230, 2010, 635), GOLD, 14)
    for left, top, kind in ((1420, 290, "X"), (1590, 290, "O"), (1760, 290, "T")):
        paint(image, PLAYER[kind], piece_mask(kind, size, (left + 60, top + 140), 62))
    paint(image, "#A9BBE6", text_mask(size, (430, 425), "Console", font("medium", 64)))
    steps = ("Plug the projector or a second monitor into this computer.",
             "Set the desktop to extend its screens, not to mirror them.",
             "The audience screen comes up there by itself, even during a game.")
    for i, step in enumerate(steps):
        y = 800 + i * 170
        paint(image, GOLD, rounded_mask(size, (150, y - 52, 254, y + 52), 52))
        paint(image, GROUND, text_mask(size, (202, y), str(i + 1), font("bold", 62)))
        ImageDraw.Draw(image).text((310, y - 36), step, font=font("medium", 56), fill=rgb("#E6EAF2"))
    return finish(image, (1080, 675))


def exit_cross():
    image = Image.new("RGBA", (96, 96), (0, 0, 0, 0))
    mask = Image.new("L", (384, 384), 0)
    for ends in ([(112, 112), (272, 272)], [(112, 272), (272, 112)]):
        stroke(ImageDraw.Draw(mask), ends, 36)
    image.paste(Image.new("RGBA", (96, 96), rgb("#E6EAF2") + (255,)), (0, 0), mask.resize((96, 96), Image.LANCZOS))
    return image


def hsv(h, s, v):
    return tuple(round(255 * c) for c in colorsys.hsv_to_rgb(h % 1.0, s, v))


def soft(image, rng, hues, count, reach, value):
    """Large soft lights; blurred at a quarter of the size, where it is cheap."""
    small = (WIDE[0] // 4, WIDE[1] // 4)
    layer = Image.new("RGB", small, 0)
    for _ in range(count):
        x, y = rng.uniform(0, small[0]), rng.uniform(0, small[1])
        r = rng.uniform(0.5, 1) * reach / 4
        spot = Image.new("RGB", small, 0)
        ImageDraw.Draw(spot).ellipse((x - r, y - r * 0.8, x + r, y + r * 0.8), fill=hsv(rng.choice(hues), 0.75, value))
        layer = ImageChops.screen(layer, spot.filter(ImageFilter.GaussianBlur(r * 0.5)))
    return ImageChops.screen(image, layer.resize(WIDE, Image.BICUBIC))


def bokeh(image, rng, hues):
    for blur, count, low, high, value in ((9, 16, 60, 150, 0.22), (4, 18, 30, 90, 0.28), (2, 22, 10, 40, 0.36)):
        layer = Image.new("RGB", WIDE, 0)
        for _ in range(count):
            x, y, r = rng.uniform(0, WIDE[0]), rng.uniform(0, WIDE[1]), rng.uniform(low, high)
            disc = Image.new("RGB", WIDE, 0)
            hue, v = rng.choice(hues) + rng.uniform(-.03, .03), value * rng.uniform(0.5, 1)
            ImageDraw.Draw(disc).ellipse((x - r, y - r, x + r, y + r), fill=hsv(hue, 0.7, v),
                                         outline=hsv(hue, 0.6, v * 1.4), width=4)
            layer = ImageChops.screen(layer, disc)
        image = ImageChops.screen(image, layer.filter(ImageFilter.GaussianBlur(blur)))
    return image


def beams(image, rng, hues):
    x0 = rng.uniform(-0.2, 1.2) * WIDE[0]
    layer = Image.new("RGB", WIDE, 0)
    for i in range(11):
        x, w = WIDE[0] * (i - 1) / 8 + rng.uniform(-80, 80), rng.uniform(30, 130)
        ray = Image.new("RGB", WIDE, 0)
        ImageDraw.Draw(ray).polygon([(x0, -260), (x + w, 1300), (x - w, 1300)],
                                    fill=hsv(rng.choice(hues), 0.65, rng.uniform(0.12, 0.30)))
        layer = ImageChops.screen(layer, ray)
    layer = layer.filter(ImageFilter.GaussianBlur(14))
    fade = vertical_gradient(WIDE, (255, 255, 255), (70, 70, 70))
    return ImageChops.screen(image, ImageChops.multiply(layer, fade))


def waves(image, rng, hues):
    for i in range(7):
        base = WIDE[1] * (0.28 + 0.11 * i)
        a1, a2, p1, p2 = rng.uniform(40, 110), rng.uniform(15, 40), rng.uniform(0, 6), rng.uniform(0, 6)
        line = [(x, base + a1 * math.sin(x / 420 + p1) + a2 * math.sin(x / 170 + p2)) for x in range(-20, 1960, 10)]
        mask = Image.new("L", WIDE, 0)
        ImageDraw.Draw(mask).polygon(line + [(1960, 1100), (-20, 1100)], fill=255)
        hue = hues[0] + (hues[1] - hues[0]) * i / 9
        image.paste(vertical_gradient(WIDE, hsv(hue, 0.75, 0.44 - 0.03 * i), hsv(hue, 0.85, 0.08)), (0, 0), dim(mask, 0.8))
        ImageDraw.Draw(image).line(line, fill=hsv(hue, 0.55, 0.55 - 0.03 * i), width=3)
    return image


def rings(image, rng, hues):
    cx, cy = rng.uniform(0, 1) * WIDE[0], rng.choice((-0.1, 0.5, 1.1)) * WIDE[1]
    r = 90
    while r < 2100:
        width = rng.randint(10, 70)
        band = Image.new("L", WIDE, 0)
        start = rng.uniform(0, 360)
        ImageDraw.Draw(band).arc((cx - r, cy - r, cx + r, cy + r), start, start + rng.uniform(120, 330),
                                 fill=255, width=width)
        paint(image, hsv(rng.choice(hues), 0.7, rng.uniform(0.22, 0.5)), band, rng.uniform(0.25, 0.7))
        r += width + rng.randint(14, 50)
    return image


def hexes(image, rng, hues):
    draw = ImageDraw.Draw(image)
    r = rng.choice((70, 90, 120))
    fx, fy = rng.uniform(0.1, 0.9) * WIDE[0], rng.uniform(0.1, 0.9) * WIDE[1]
    for row in range(-1, int(WIDE[1] / (r * 1.5)) + 2):
        for col in range(-1, int(WIDE[0] / (r * 1.732)) + 2):
            cx, cy = (col + 0.5 * (row % 2)) * r * 1.732, row * r * 1.5
            near = max(0.0, 1 - math.hypot(cx - fx, cy - fy) / 1500)
            v = 0.06 + 0.34 * near ** 2 * rng.uniform(0.45, 1)
            points = [(cx + (r - 5) * math.sin(math.pi * k / 3), cy + (r - 5) * math.cos(math.pi * k / 3)) for k in range(6)]
            hue = hues[0] + (hues[1] - hues[0]) * (1 - near)
            draw.polygon(points, fill=hsv(hue, 0.75, v), outline=hsv(hue, 0.6, v * 1.35))
    return image


def facets(image, rng, hues):
    draw = ImageDraw.Draw(image)
    nx, ny = rng.choice(((10, 6), (13, 8), (16, 9)))
    sx, sy = WIDE[0] / nx, WIDE[1] / ny
    knot = {(i, j): ((i + rng.uniform(-.36, .36)) * sx, (j + rng.uniform(-.36, .36)) * sy)
            for i in range(-1, nx + 2) for j in range(-1, ny + 2)}
    for i in range(-1, nx + 1):
        for j in range(-1, ny + 1):
            for corners in (((i, j), (i + 1, j), (i, j + 1)), ((i + 1, j), (i + 1, j + 1), (i, j + 1))):
                x = sum(knot[c][0] for c in corners) / 3 / WIDE[0]
                y = sum(knot[c][1] for c in corners) / 3 / WIDE[1]
                hue = hues[0] + (hues[1] - hues[0]) * min(1, max(0, x))
                v = 0.10 + 0.26 * (1 - y) * rng.uniform(0.5, 1.1) + rng.uniform(0, 0.06)
                draw.polygon([knot[c] for c in corners], fill=hsv(hue, 0.78, max(0.05, v)))
    return image


def aurora(image, rng, hues):
    image = soft(image, rng, hues, 3, 700, 0.3)
    small = (WIDE[0] // 4, WIDE[1] // 4)
    for _ in range(3):
        layer = Image.new("RGB", small, 0)
        draw = ImageDraw.Draw(layer)
        base, amp, ph, wl = rng.uniform(0.35, 0.75) * small[1], rng.uniform(15, 45), rng.uniform(0, 6), rng.uniform(50, 110)
        hue = rng.choice(hues)
        for x in range(0, small[0]):
            y = base + amp * math.sin(x / wl + ph) + 8 * math.sin(x / 19 + ph)
            tall = 60 + 45 * math.sin(x / 31 + ph * 2) + rng.uniform(-12, 12)
            power = 0.30 + 0.14 * math.sin(x / 13 + ph)
            for k in range(8):
                draw.line((x, y - tall * (k + 1) / 8, x, y - tall * k / 8), fill=hsv(hue + 0.02 * k, 0.75, power * (1 - k / 8) ** 1.3))
        image = ImageChops.screen(image, layer.filter(ImageFilter.GaussianBlur(3)).resize(WIDE, Image.BICUBIC))
    return image


def squares(image, rng, hues):
    """A tilted board of squares with a few faint pieces."""
    step = rng.choice((150, 180, 220))
    side = 2400
    layer = vertical_gradient((side, side), hsv(hues[0], 0.7, 0.10), hsv(hues[1], 0.7, 0.12))
    draw = ImageDraw.Draw(layer)
    for x in range(0, side, step):
        for y in range(0, side, step):
            v = 0.12 + rng.random() ** 3 * 0.30
            hue = rng.choice(hues)
            box = (x + 7, y + 7, x + step - 7, y + step - 7)
            draw.rounded_rectangle(box, 22, fill=hsv(hue, 0.75, v), outline=hsv(hue, 0.6, v * 1.5), width=3)
            if rng.random() < 0.16:
                mask = piece_mask(rng.choice("XOT"), (step, step), (step / 2, step / 2), step * 0.27, 0.3)
                layer.paste(hsv(hue, 0.5, min(0.6, v * 1.9)), (x, y), mask)
    layer = layer.rotate(rng.choice((-24, -15, 15, 24)), Image.BICUBIC)
    left, top = (side - WIDE[0]) // 2, (side - WIDE[1]) // 2
    return layer.crop((left, top, left + WIDE[0], top + WIDE[1]))


def stars(image, rng, hues):
    image = soft(image, rng, hues, 9, 460, 0.17)
    layer = Image.new("RGB", WIDE, 0)
    draw = ImageDraw.Draw(layer)
    for _ in range(420):
        x, y, r = rng.uniform(0, WIDE[0]), rng.uniform(0, WIDE[1]), rng.uniform(0.8, 2.6) if rng.random() < 0.92 else rng.uniform(3, 5)
        draw.ellipse((x - r, y - r, x + r, y + r), fill=hsv(rng.choice(hues), 0.25, rng.uniform(0.35, 0.85)))
    image = ImageChops.screen(image, layer)
    image = ImageChops.screen(image, layer.filter(ImageFilter.GaussianBlur(7)))
    cx, r = rng.uniform(0.2, 0.8) * WIDE[0], rng.uniform(1500, 2300)
    rise = rng.uniform(0.72, 0.88) * WIDE[1]
    globe = Image.new("L", WIDE, 0)
    ImageDraw.Draw(globe).ellipse((cx - r, rise, cx + r, rise + 2 * r), fill=255)
    glow(image, hsv(hues[0], 0.7, 0.6), globe, 36, 0.8)
    image.paste(vertical_gradient(WIDE, hsv(hues[0], 0.8, 0.75), hsv(hues[1], 0.85, 0.10)), (0, 0), globe)
    return image


def halftone(image, rng, hues):
    draw = ImageDraw.Draw(image)
    step = rng.choice((34, 44, 56))
    fx, fy, wl, ph = rng.uniform(0, 1) * WIDE[0], rng.uniform(0, 1) * WIDE[1], rng.uniform(230, 420), rng.uniform(0, 6)
    for j in range(-1, WIDE[1] // step + 2):
        for i in range(-1, WIDE[0] // step + 2):
            x, y = (i + 0.5 * (j % 2)) * step, j * step
            d = math.hypot(x - fx, y - fy)
            r = step * 0.44 * (0.5 + 0.5 * math.sin(d / wl + ph)) ** 1.2
            hue = hues[0] + (hues[1] - hues[0]) * x / WIDE[0]
            if r > 1:
                draw.ellipse((x - r, y - r, x + r, y + r), fill=hsv(hue, 0.72, 0.16 + 0.28 * y / WIDE[1]))
    return image


STYLES = [bokeh, waves, facets, aurora, hexes, beams, rings, stars, squares, halftone]


def background(number):
    rng = random.Random(7000 + number)
    # Steps of the golden ratio keep neighbouring hues far apart. Dark yellow
    # looks muddy, so the hues between orange and green are left out.
    hue = 0.26 + 0.84 * ((0.38 + number * 0.618034) % 1.0)
    hues = (hue, hue + rng.choice((-0.16, -0.09, 0.09, 0.16)))
    image = diagonal_gradient(WIDE, hsv(hues[0], 0.75, 0.24), hsv(hues[1], 0.85, 0.07), rng.uniform(-60, 60))
    image = STYLES[number % len(STYLES)](image, rng, hues)
    vignette = radial_mask(WIDE, (0.5, 0.5), 0.95).point(lambda v: min(255, 95 + int(v * 0.9)))
    image = ImageChops.multiply(image, Image.merge("RGB", (vignette,) * 3))
    # White wording must stand out everywhere, so bright pictures are turned down.
    mean = ImageStat.Stat(image.convert("L")).mean[0]
    if mean > 46:
        image = image.point(lambda v: int(v * 46 / mean))
    elif mean < 22:
        image = image.point(lambda v: min(255, int(v * 22 / mean)))
    image = finish(image, (960, 540))
    # A little grain hides the steps that dark gradients show on large screens.
    grain = Image.frombytes("L", (960, 540), rng.randbytes(960 * 540)).point(lambda v: v // 86)
    return ImageChops.add(image, Image.merge("RGB", (grain,) * 3))


# --- Writing ----------------------------------------------------------------

def save_jpeg(image, path, quality=88, limit=None):
    """Save as JPEG, turning the quality down until the file fits the limit."""
    while True:
        store = io.BytesIO()
        image.convert("RGB").save(store, "JPEG", quality=quality, optimize=True)
        if limit is None or store.tell() <= limit:
            path.write_bytes(store.getvalue())
            return
        quality -= 4


def main():
    IMAGES.mkdir(parents=True, exist_ok=True)
    BACKGROUNDS.mkdir(parents=True, exist_ok=True)
    bitmaps = {"scorebox": score_box(False), "scoreboxred": score_box(True),
               "Blank": blank_square(), "Neutral": neutral_piece()}
    for kind in "XOT":
        bitmaps[kind + "-100a"] = piece_at_rest(kind)
        bitmaps[kind + "-100b"] = piece_lit(kind)
    for i in range(5):
        board_label(str(i + 1)).save(IMAGES / f"Row{i + 1}.png", optimize=True)
        board_label("ABCDE"[i]).save(IMAGES / ("Col" + "ABCDE"[i] + ".png"), optimize=True)
    for name, image in bitmaps.items():
        image.convert("RGB").save(IMAGES / (name + ".bmp"))
    for kind, name in (("X", "X"), ("O", "O"), ("T", "T"), ("N", "Neutral")):
        cursor(kind).save(IMAGES / f"Cursor{name}.png", optimize=True)
    header().save(IMAGES / "Header.png", optimize=True)
    exit_cross().save(IMAGES / "Exit.png", optimize=True)
    for name, image in (("Standby", standby()), ("Bonus", bonus()), ("Sound", sound_panel()),
                        ("Correct", verdict(True)), ("Incorrect", verdict(False)), ("FiveLeft", five_left()),
                        ("Cover", cover()), ("Winner", winner()),
                        ("Projector", projector_help())):
        save_jpeg(image, IMAGES / (name + ".jpg"))
    for number in range(50):
        image = background(number)
        assert ImageStat.Stat(image.convert("L")).mean[0] < 60
        save_jpeg(image, BACKGROUNDS / f"{number}.jpg", 80, 60000)


if __name__ == "__main__":
    main()
