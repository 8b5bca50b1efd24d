"""The sample web's smaller theme: inks of an old almanac on paper. GIFs alone, and some elements have no picture."""

import math
import random

from PIL import Image, ImageFilter

from art import gif, sheets
from art.drawing import Sketch, frame, hexed, mixed, star

NAME, LABEL = "almanac", "Old Almanac"
TITLES = [(1033, LABEL), (1036, "Vieil almanach")]
READ_ONLY = True
BACKGROUND, TOP_BAR = "almback.gif", "almdot1.gif"
BACKGROUND_VALUE = f"url({BACKGROUND})"
HEADING_FONT, TEXT_FONT = "Book Antiqua, Georgia, Times New Roman, serif", "Georgia, Times New Roman, serif"
VIVID = {"page": "#f6ecd2", "panel": "#e3d0a4", "edge": "#c2491d", "text": "#4a2c14", "heading": "#a83c14",
         "link": "#4c6a1c", "visited": "#7a5a2a", "active": "#c2491d"}
MUTED = {"page": "#f6ecd2", "panel": "#e3d0a4", "edge": "#8a6a3c", "text": "#4a2c14", "heading": "#5f4526",
         "link": "#5f5a2b", "visited": "#7a6a4a", "active": "#8a4a2a"}
WRITING = sheets.older
MERGED_SHEETS = ("alma1011.css",)

PAPER, SHADE, INK = "#f6ecd2", "#e3d0a4", "#4a2c14"
CLAY, OCHRE, OLIVE = "#c2491d", "#e0a02c", "#5f7d2b"


def paper(size=128):
    """The background: a tile of laid paper that fits itself on all sides."""
    dice = random.Random(1759)
    grain = Image.new("L", (size, size))
    grain.putdata([round(255 * dice.random()) for _ in range(size * size)])
    wide = Image.new("L", (3 * size, 3 * size))
    for i in range(9):
        wide.paste(grain, (i % 3 * size, i // 3 * size))
    soft = wide.filter(ImageFilter.GaussianBlur(1.1)).crop((size, size, 2 * size, 2 * size))
    clouds = wide.filter(ImageFilter.GaussianBlur(7)).crop((size, size, 2 * size, 2 * size))
    tones = [mixed(SHADE, PAPER, share) for share in (0.30, 0.45, 0.58, 0.70, 0.80, 0.88, 0.95, 1.0)]
    pixels = bytearray()
    for i, (fine, coarse) in enumerate(zip(soft.tobytes(), clouds.tobytes())):
        laid = 0.5 if i // size % 4 == 0 else 0
        tone = 4.6 + (fine - 127) / 26 + (coarse - 127) / 5 - laid
        pixels.append(max(0, min(7, round(tone))))
    return gif.Frame(size, size, bytes(pixels), [hexed(tone) for tone in tones])


def sun(sketch, x, y, radius, color, turn_degrees=0.0):
    """A woodcut sun: straight and shorter rays in turns around a ring."""
    sketch.fill(sketch.polygon(star(x, y, radius, radius * 0.5, 8, turn_degrees)), color)
    sketch.fill(sketch.polygon(star(x, y, radius * 0.8, radius * 0.5, 8, turn_degrees + 22.5)), mixed(color, OCHRE, 0.6))
    sketch.fill(sketch.disc(x, y, radius * 0.52), mixed(PAPER, OCHRE, 0.25))
    sketch.fill(sketch.disc(x, y, radius * 0.42), OCHRE, mixed(OCHRE, color, 0.6))


def moon(sketch, x, y, radius, color):
    crescent = sketch.disc(x, y, radius)
    crescent.paste(0, mask=sketch.disc(x - radius * 0.45, y - radius * 0.12, radius * 0.86))
    sketch.fill(crescent, color)


def banner(ribbon, edge):
    """500 by 64: a ribbon with notched ends, sun and moon beside the room for a title."""
    sketch = Sketch(500, 64)
    for side in (0, 1):
        tail = [(2, 16), (60, 16), (60, 62), (2, 62), (18, 39)]
        tail = [(500 - x, y) for x, y in tail] if side else tail
        sketch.fill(sketch.polygon(tail), mixed(edge, ribbon, 0.35))
        fold = [(36, 54), (60, 54), (60, 62)]
        sketch.fill(sketch.polygon([(500 - x, y) for x, y in fold] if side else fold), mixed(edge, "#000000", 0.3))
    sketch.fill(sketch.box(36, 2, 464, 54, 2), edge)
    sketch.fill(sketch.box(37.5, 3.5, 462.5, 52.5, 1.5), mixed(ribbon, "#ffffff", 0.12), ribbon, mixed(ribbon, edge, 0.25))
    for y in (7, 48):
        sketch.fill(sketch.box(41, y, 459, y + 1), mixed(ribbon, PAPER, 0.65))
    sun(sketch, 72, 28, 20, mixed(CLAY, PAPER, 0.12) if ribbon == OLIVE else mixed(OCHRE, PAPER, 0.25))
    moon(sketch, 428, 28, 14, PAPER)
    for x, y, radius in ((404, 18, 4), (452, 40, 3.2), (398, 38, 2.6), (108, 16, 3), (112, 41, 2.4)):
        sketch.star(x, y, radius, PAPER, points=5, waist=0.42)
    return sketch.picture()


TAGS = {  # of a button: the paper's tone from top to bottom, the colour of edge and thread
    "normal": ((mixed(OCHRE, PAPER, 0.55), mixed(OCHRE, PAPER, 0.2)), CLAY),
    "hovered": ((mixed(OLIVE, PAPER, 0.45), mixed(OLIVE, PAPER, 0.1)), mixed(OLIVE, INK, 0.55)),
    "pushed": ((mixed(CLAY, INK, 0.1), mixed(CLAY, PAPER, 0.2)), INK),
}


def tag(width, height, state):
    """A paper tag: cut corners at the left, a punched hole, a stitched line along the edge."""
    tones, thread = TAGS[state]
    sketch = Sketch(width, height)
    cut = height * 0.3

    def outline(inset):
        return [(inset, cut + inset * 0.4), (cut + inset * 0.4, inset), (width - inset, inset),
                (width - inset, height - inset), (cut + inset * 0.4, height - inset), (inset, height - cut - inset * 0.4)]

    sketch.fill(sketch.polygon(outline(1)), thread)
    sketch.fill(sketch.polygon(outline(2.2)), *tones)
    for x in range(int(cut) + 6, width - 9, 7):
        for y in (5, height - 6):
            sketch.fill(sketch.box(x, y, x + 4, y + 1), thread, opacity=0.75)
    middle = height / 2
    sketch.fill(sketch.disc(cut + 2, middle, height * 0.16), thread)
    picture = sketch.picture()
    picture.putalpha(Image.composite(Image.new("L", picture.size, 0), picture.getchannel("A"),
                                     sketch.disc(cut + 2, middle, height * 0.10).resize(picture.size, Image.BOX)))
    return frame(picture, PAPER, 24)


SIGNS = {
    "prev": [(-7, 0), (4, -7), (1.5, 0), (4, 7)],
    "next": [(7, 0), (-4, -7), (-1.5, 0), (-4, 7)],
    "up": [(0, -7), (7, 4), (0, 1.5), (-7, 4)],
    "home": [(-7.5, 0.5), (0, -7), (7.5, 0.5), (5, 0.5), (5, 6.5), (-5, 6.5), (-5, 0.5)],
}


def seal(link, wax):
    """32 by 32: a sign pressed into sealing wax."""
    sketch = Sketch(32, 32)
    edge = []
    for step in range(0, 360, 4):
        angle = math.radians(step)
        reach = 14.4 + 0.5 * math.sin(7 * angle) + 0.3 * math.sin(3 * angle + 1)
        edge.append((16 + reach * math.cos(angle), 16 + reach * math.sin(angle)))
    sketch.fill(sketch.polygon(edge), mixed(wax, "#ffffff", 0.22), wax, mixed(wax, "#000000", 0.35))
    sketch.fill(sketch.disc(16, 16, 11.4), mixed(wax, "#000000", 0.38), mixed(wax, "#ffffff", 0.25))
    sketch.fill(sketch.disc(16, 16, 10.6), mixed(wax, "#000000", 0.12), mixed(wax, "#ffffff", 0.06))
    sketch.fill(sketch.polygon([(16 + x, 16 + y) for x, y in SIGNS[link]]), mixed(PAPER, wax, 0.06))
    return frame(sketch.picture(), PAPER, 32)


def turning_sun(steps=6):
    """An animation whose pictures bring a colour table each."""
    frames = []
    for step in range(steps):
        sketch = Sketch(20, 20)
        sun(sketch, 10, 10, 9.4, CLAY, 45 / steps * step)
        frames.append(frame(sketch.picture(), PAPER, 16, local=True, delay=15, disposal=2))
    return frames


def small_sign(draw_sign, **options):
    sketch = Sketch(16, 16)
    draw_sign(sketch)
    return frame(sketch.picture(), PAPER, 16, **options)


def rule():
    """500 by 14: a line that fades to both sides, with a sun and two leaves."""
    sketch = Sketch(500, 14)
    sketch.fill(sketch.box(0, 6.2, 500, 7.8), PAPER, CLAY, CLAY, CLAY, PAPER, across=True)
    for side in (-1, 1):
        leaf = [(250 + side * x, y) for x, y in ((13, 7), (22, 2.5), (38, 7), (22, 11.5))]
        sketch.fill(sketch.polygon(leaf), OLIVE)
        sketch.star(250 + side * 56, 7, 4.5, OCHRE, points=5, waist=0.45)
    sketch.fill(sketch.disc(250, 7, 9), PAPER)
    sun(sketch, 250, 7, 7, CLAY)
    return frame(sketch.picture(), PAPER, 32)


def pictures():
    """The theme's picture files by name."""
    files = {}

    def add(name, *frames, **options):
        files[name] = gif.encode(list(frames), **options)

    add("almback.gif", paper(), version=b"87a")
    add("almbnr.gif", frame(banner(CLAY, mixed(CLAY, INK, 0.6)), PAPER, 96, interlaced=True), comment="Old Almanac")
    add("almbnr0.gif", frame(banner(OLIVE, mixed(OLIVE, INK, 0.6)), PAPER, 96, interlaced=True))
    for state, letter in (("normal", "n"), ("hovered", "h"), ("pushed", "p")):
        add(f"almvb{letter}.gif", tag(136, 34, state))
    add("almhbn.gif", tag(112, 28, "normal"))
    add("ALMHBH.GIF", tag(112, 28, "hovered"))  # the sheet spells it almhbh.gif
    for link in SIGNS:
        add(f"alm{link}.gif", seal(link, CLAY))
    add("almprevh.gif", seal("prev", OLIVE))
    add("almnexth.gif", seal("next", OLIVE))
    add("almsun.gif", *turning_sun(), repeats=0)
    add("almstar.gif", small_sign(lambda s: s.star(8, 8, 7.5, OLIVE, points=5, waist=0.45), interlaced=True))
    add("almleaf.gif", small_sign(lambda s: s.fill(s.polygon([(2, 12), (4, 4), (13, 2), (11, 10)]), OCHRE), local=True))
    add("almrule.gif", rule())
    add("almdot1.gif", gif.Frame(1, 1, b"\0", [hexed(CLAY)], 0))
    return files


def graphics(active):
    """(property, file) of the active or the normal graphics, in the order of the sheet."""
    if not active:
        return [
            ("nav-banner-image", "almbnr0.gif"),
            ("navbutton-vert-normal", "almvbn.gif"), ("navbutton-vert-pushed", "almvbp.gif"),
            ("navbutton-horiz-normal", "almhbn.gif"), ("navbutton-horiz-hovered", "almhbh.gif"),
            ("list-image-1", "almstar.gif"), ("list-image-2", "almleaf.gif"), ("list-image-3", "almleaf.gif"),
            ("separator-image", "almrule.gif"),
            ("navbutton-prev-normal", "almprev.gif"), ("navbutton-home-normal", "almhome.gif"),
            ("navbutton-next-normal", "almnext.gif"), ("navbutton-up-normal", "almup.gif"),
        ]
    return [
        ("nav-banner-image", "almbnr.gif"),
        ("navbutton-vert-normal", "almvbn.gif"), ("navbutton-vert-hovered", "almvbh.gif"),
        ("navbutton-vert-pushed", "almvbp.gif"),
        ("navbutton-horiz-normal", "almhbn.gif"), ("navbutton-horiz-hovered", "almhbh.gif"),
        ("list-image-1", "almsun.gif"), ("list-image-2", "almstar.gif"), ("list-image-3", "almleaf.gif"),
        ("separator-image", "almrule.gif"),
        ("navbutton-prev-normal", "almprev.gif"), ("navbutton-prev-hovered", "almprevh.gif"),
        ("navbutton-home-normal", "almhome.gif"), ("navbutton-home-hovered", "almhome.gif"),
        ("navbutton-next-normal", "almnext.gif"), ("navbutton-next-hovered", "almnexth.gif"),
        ("navbutton-up-normal", "almup.gif"),
    ]
