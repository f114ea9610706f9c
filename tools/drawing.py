# SPDX-License-Identifier: GPL-3.0-or-later
"""Drawing routines shared by the picture and set generators.

Everything is drawn larger than needed and scaled down at the end, because
Pillow's own drawing has no smooth edges.
"""
import math
from PIL import Image, ImageChops, ImageColor, ImageDraw, ImageFilter, ImageFont, ImageOps

GROUND = "#0E1320"
PANEL = "#171F33"
EDGE = "#25304A"
TEXT = "#E6EAF2"
QUIET = "#8592AD"
GOLD = "#F2B84B"
RIGHT = "#1E9E5A"
WRONG = "#C7363C"
PLAYER = {"X": "#FF6B70", "O": "#FFD84D", "T": "#46E08C"}

FONT_FILES = {
    "black": "/usr/share/fonts/opentype/inter/InterDisplay-ExtraBold.otf",
    "bold": "/usr/share/fonts/opentype/inter/InterDisplay-Bold.otf",
    "medium": "/usr/share/fonts/opentype/inter/InterDisplay-Medium.otf",
}


def rgb(colour):
    """Give a colour as three numbers, whether it came as text or as numbers."""
    return ImageColor.getrgb(colour)[:3] if isinstance(colour, str) else tuple(colour)


def mix(a, b, share):
    """Blend colour a towards colour b; share 0 is all a, share 1 all b."""
    return tuple(round(x + (y - x) * share) for x, y in zip(rgb(a), rgb(b)))


def font(weight, size):
    return ImageFont.truetype(FONT_FILES[weight], int(size))


def vertical_gradient(size, top, bottom):
    ramp = Image.linear_gradient("L").resize(size, Image.BICUBIC)
    return Image.composite(Image.new("RGB", size, rgb(bottom)), Image.new("RGB", size, rgb(top)), ramp)


def diagonal_gradient(size, start, end, angle):
    """A gradient turned by an angle, cut from a larger upright one."""
    side = int(math.hypot(*size)) + 4
    ramp = Image.linear_gradient("L").resize((side, side), Image.BICUBIC).rotate(angle, Image.BICUBIC)
    left, top = (side - size[0]) // 2, (side - size[1]) // 2
    ramp = ramp.crop((left, top, left + size[0], top + size[1]))
    return Image.composite(Image.new("RGB", size, rgb(end)), Image.new("RGB", size, rgb(start)), ramp)


def radial_mask(size, centre=(0.5, 0.5), radius=0.7):
    """White at the centre, fading to black at the radius (a share of the width)."""
    reach = max(2, int(size[0] * radius * 2))
    # The built-in ramp only turns white at its corners, so it is stretched to
    # reach black on a circle that fits inside its square.
    disc = ImageOps.invert(Image.radial_gradient("L")).resize((reach, reach), Image.BICUBIC)
    disc = disc.point(lambda v: int(255 * smooth(max(0.0, (v - 76) / 179))))
    mask = Image.new("L", size, 0)
    mask.paste(disc, (int(centre[0] * size[0] - reach / 2), int(centre[1] * size[1] - reach / 2)))
    return mask


def smooth(t):
    return t * t * (3 - 2 * t)


def dim(mask, share):
    return mask.point(lambda v: int(v * share))


def paint(image, colour, mask, share=1.0):
    """Lay a flat colour on the image through a mask."""
    image.paste(Image.new("RGB", image.size, rgb(colour)), (0, 0), dim(mask, share) if share < 1 else mask)


def glow(image, colour, mask, radius, share=1.0):
    """Add coloured light around a shape."""
    light = Image.new("RGB", image.size, 0)
    paint(light, colour, mask.filter(ImageFilter.GaussianBlur(radius)), share)
    image.paste(ImageChops.screen(image, light))


def rounded_mask(size, box, radius, width=None):
    """A rounded rectangle, filled, or as an edge of the given width."""
    mask = Image.new("L", size, 0)
    draw = ImageDraw.Draw(mask)
    if width is None:
        draw.rounded_rectangle(box, radius, fill=255)
    else:
        draw.rounded_rectangle(box, radius, outline=255, width=int(width))
    return mask


def stroke(draw, points, width, closed=False, fill=255):
    """A polyline with round ends and joints."""
    points = list(points) + ([points[0], points[1]] if closed else [])
    draw.line(points, fill=fill, width=int(width))
    half = width / 2
    for x, y in points:
        draw.ellipse((x - half, y - half, x + half, y + half), fill=fill)


def piece_mask(kind, size, centre, reach, weight=0.3):
    """The shape of one player's piece: a cross, a ring or a triangle."""
    mask = Image.new("L", size, 0)
    draw = ImageDraw.Draw(mask)
    cx, cy = centre
    width = reach * 2 * weight * 0.5
    if kind == "X":
        arm = reach - width / 2
        stroke(draw, [(cx - arm, cy - arm), (cx + arm, cy + arm)], width * 1.1)
        stroke(draw, [(cx - arm, cy + arm), (cx + arm, cy - arm)], width * 1.1)
    elif kind == "O":
        draw.ellipse((cx - reach, cy - reach, cx + reach, cy + reach), fill=255)
        hole = reach - width
        draw.ellipse((cx - hole, cy - hole, cx + hole, cy + hole), fill=0)
    else:
        # A triangle looks too low when its box is centred, hence the lift.
        arm = reach * 1.08 - width / 4
        corners = [(cx + arm * math.sin(a), cy + reach * 0.14 - arm * math.cos(a))
                   for a in (0, 2 * math.pi / 3, 4 * math.pi / 3)]
        stroke(draw, corners, width * 0.9, closed=True)
    return mask


def text_mask(size, centre, wording, face, spacing=0):
    """Centred wording as a mask, with extra space between letters if asked."""
    mask = Image.new("L", size, 0)
    draw = ImageDraw.Draw(mask)
    total = sum(face.getlength(c) for c in wording) + spacing * (len(wording) - 1)
    box = face.getbbox(wording)
    y = centre[1] - (box[1] + box[3]) / 2
    if not spacing:
        draw.text((centre[0] - face.getlength(wording) / 2, y), wording, font=face, fill=255)
        return mask
    x = centre[0] - total / 2
    for letter in wording:
        draw.text((x, y), letter, font=face, fill=255)
        x += face.getlength(letter) + spacing
    return mask


def perspective(image, size, corners):
    """Stand a flat picture in space: its corners land on the four points given
    clockwise from the upper left."""
    w, h = image.size
    rows = []
    for (x, y), (u, v) in zip(corners, [(0, 0), (w, 0), (w, h), (0, h)]):
        rows.append([x, y, 1, 0, 0, 0, -u * x, -u * y, u])
        rows.append([0, 0, 0, x, y, 1, -v * x, -v * y, v])
    for i in range(8):
        pivot = max(range(i, 8), key=lambda r: abs(rows[r][i]))
        rows[i], rows[pivot] = rows[pivot], rows[i]
        rows[i] = [value / rows[i][i] for value in rows[i]]
        for r in range(8):
            if r != i:
                rows[r] = [a - rows[r][i] * b for a, b in zip(rows[r], rows[i])]
    return image.transform(size, Image.PERSPECTIVE, [row[8] for row in rows], Image.BICUBIC)


def finish(image, size):
    return image.resize(size, Image.LANCZOS)
