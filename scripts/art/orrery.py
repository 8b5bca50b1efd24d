"""The sample web's bigger theme: brass planets on a night of cobalt and violet. Every element has a picture."""

import io
import random

from PIL import Image, ImageChops, ImageFilter

from art import gif, sheets
from art.drawing import Sketch, SCALE, frame, hexed, mixed

NAME, LABEL = "orrery", "Orrery"
TITLES = [(1031, "Planetenmaschine"), (1033, LABEL), (1036, "Planétaire"), (2057, LABEL)]
READ_ONLY = False
BACKGROUND, TOP_BAR = "orrback.jpg", "orrtop.gif"
BACKGROUND_VALUE = f"url('{BACKGROUND}')"
HEADING_FONT, TEXT_FONT = "Georgia, Times New Roman, serif", "Trebuchet MS, Verdana, Arial, sans-serif"
VIVID = {"page": "#0b1033", "panel": "#131a52", "edge": "#4f8df5", "text": "#d8e2ff", "heading": "#f2b544",
         "link": "#8fb8ff", "visited": "#c39af2", "active": "#ffeebc"}
MUTED = {"page": "#0b1033", "panel": "#131a52", "edge": "#5a6aa8", "text": "#c6cde6", "heading": "#e6d8b0",
         "link": "#a9bbec", "visited": "#b7a6d6", "active": "#ffffff"}
WRITING = sheets.newer
MERGED_SHEETS = ("orre1011.css", "orre1011-65001.css")

NIGHT, DEEP, COBALT, AZURE, ICE = "#0b1033", "#131a52", "#2442c4", "#4f8df5", "#cfe4ff"
VIOLET, ROSE = "#6a2fb4", "#d2438f"
BRASS, GOLD, CREAM = "#9a5f14", "#f2b544", "#ffeebc"


def night(size=384):
    """The background: a tile that fits itself on all sides."""
    dice = random.Random(2001)
    sky = Image.new("RGB", (size, size), hexed(NIGHT))

    def wrapped(draw_on, x, y):
        for dx in (-size, 0, size):
            for dy in (-size, 0, size):
                draw_on(x + dx, y + dy)

    clouds = [(COBALT, 0.42), (VIOLET, 0.36), (COBALT, 0.30), (DEEP, 0.9), (VIOLET, 0.25), (AZURE, 0.12)]
    for color, strength in clouds:
        cover = Image.new("L", (3 * size, 3 * size), 0)
        x, y = size * dice.random(), size * dice.random()
        across, along = size * (0.12 + 0.16 * dice.random()), size * (0.07 + 0.08 * dice.random())
        blot = Sketch(size // SCALE * 3, size // SCALE * 3)
        for u, v in [(x + i * size, y + j * size) for i in range(3) for j in range(3)]:
            cover = ImageChops.lighter(cover, blot.disc(u / SCALE, v / SCALE, across / SCALE, along / SCALE).resize(cover.size))
        cover = cover.filter(ImageFilter.GaussianBlur(size / 8)).crop((size, size, 2 * size, 2 * size))
        sky.paste(hexed(color), mask=cover.point(lambda value: round(value * strength)))
    stars = Sketch(size, size)
    for _ in range(95):
        brightness = dice.random() ** 3
        radius = 0.4 + 0.6 * brightness
        color = (ICE, CREAM, "#ffffff")[int(3 * dice.random())]
        x, y = size * dice.random(), size * dice.random()
        wrapped(lambda u, v: stars.fill(stars.disc(u, v, radius), color, opacity=0.22 + 0.5 * brightness), x, y)
    for _ in range(4):
        x, y = size * dice.random(), size * dice.random()
        wrapped(lambda u, v: stars.star(u, v, 4.5, AZURE), x, y)
    shine = stars.picture()
    sky.paste(shine.convert("RGB"), mask=shine.getchannel("A"))
    data = io.BytesIO()
    sky.save(data, "JPEG", quality=85)
    return data.getvalue()


def plate(sketch, box, radius, colors, rim, across=False):
    """A plate with a thin metal rim, glassy unless its colours run across. Returns the mask of its face."""
    left, top, right, bottom = box
    sketch.fill(sketch.box(left, top, right, bottom, radius), mixed(rim, "#ffffff", 0.25), mixed(rim, "#000000", 0.45))
    face = sketch.box(left + 1.5, top + 1.5, right - 1.5, bottom - 1.5, radius - 1.5)
    sketch.fill(face, *colors, across=across)
    if not across:
        gloss = sketch.box(left + 3, top + 2.5, right - 3, top + (bottom - top) * 0.46, radius * 0.6)
        sketch.fill(gloss, "#ffffff", opacity=0.16)
    return face


def within(sketch, mask, draw):
    """What `draw` paints on a sheet of its own, shown through the mask."""
    layer = Sketch(sketch.width, sketch.height)
    draw(layer)
    layer.sheet.putalpha(ImageChops.multiply(layer.sheet.getchannel("A"), mask))
    sketch.sheet.alpha_composite(layer.sheet)


def ringed(sketch, x, y, radius, dark, body, light, ring=GOLD, tilt=-18):
    """A planet with a ring around it, the near half of the ring in front."""
    width = max(1.0, radius * 0.22)
    sketch.fill(sketch.orbit(x, y, radius * 1.75, 0.34, tilt, width, 180, 360), mixed(ring, NIGHT, 0.35))
    sketch.ball(x, y, radius, dark, body, light)
    sketch.fill(sketch.orbit(x, y, radius * 1.75, 0.34, tilt, width, 0, 180), ring)


def banner(colors, lively):
    """600 by 80: an orrery at the right, room for a title at the left."""
    sketch = Sketch(600, 80)
    face = plate(sketch, (0, 0, 600, 80), 14, colors, GOLD, across=True)
    dice = random.Random(7)

    def machine(layer):
        for _ in range(70):
            x, y, shine = 600 * dice.random(), 80 * dice.random(), dice.random() ** 2
            dimmed = 0.3 if x < 330 else 1  # where the title will stand
            layer.fill(layer.disc(x, y, 0.5 + 0.6 * shine), "#ffffff", opacity=(0.25 + 0.6 * shine) * dimmed)
        x, y = 486, 46
        for radius in (34, 62, 94, 132, 176):
            layer.fill(layer.orbit(x, y, radius, 0.34, -8, 1.1), GOLD, opacity=0.85)
        if lively:
            layer.glow(layer.disc(x, y, 22), GOLD, 9, 0.75)
        layer.ball(x, y, 15, BRASS, GOLD, CREAM)
        layer.ball(457, 62, 5, "#7a1f4e", ROSE, "#ffd0e4")
        layer.ball(546, 31, 6.5, "#123a8c", AZURE, ICE)
        ringed(layer, 398, 33, 10, "#4a1f8a", "#a36be0", "#ecd9ff")
        layer.ball(583, 66, 8.5, BRASS, "#e08a3c", CREAM)
        layer.ball(330, 66, 4, "#0f5a6a", "#3fc2c2", "#d6fff8")

    within(sketch, face, machine)
    return frame(sketch.picture(), NIGHT, 250, interlaced=lively)


STATES = {  # of a button: face from top to bottom, rim, glow around it
    "normal": ((AZURE, COBALT, "#1a2f96"), "#7aa7f5", None),
    "hovered": (("#8a5be0", VIOLET, "#451c8c"), GOLD, GOLD),
    "pushed": (("#1a2470", DEEP, "#22349a"), BRASS, None),
}


def bar_button(width, height, state, radius):
    """A button with room for text: a planet at the left, where it is tall enough."""
    colors, rim, shine = STATES[state]
    sketch = Sketch(width, height)
    box = (2, 2, width - 2, height - 2)
    if shine:
        sketch.glow(sketch.box(*box, radius), shine, 1.2, 0.9)
    plate(sketch, box, radius, colors, rim)
    if height >= 34:
        y = height / 2
        if state == "pushed":
            ringed(sketch, 19, y, 5.5, BRASS, GOLD, CREAM, ring=CREAM)
        else:
            ringed(sketch, 19, y, 5.5, "#123a8c" if state == "normal" else "#7a1f4e",
                   AZURE if state == "normal" else ROSE, ICE)
    return frame(sketch.picture(), NIGHT, 64)


ARROW = [(-8, 0), (1, -8), (1, -3.2), (8, -3.2), (8, 3.2), (1, 3.2), (1, 8)]
HOUSE = [(-9, 0), (0, -8.5), (9, 0), (6.4, 0), (6.4, 7.5), (1.8, 7.5), (1.8, 2), (-1.8, 2), (-1.8, 7.5), (-6.4, 7.5), (-6.4, 0)]
SIGNS = {
    "prev": ARROW,
    "next": [(-x, y) for x, y in ARROW],
    "up": [(y, x) for x, y in ARROW],
    "home": HOUSE,
}


def link_button(link, state):
    """36 by 36: a round gem with a sign."""
    colors, rim, shine = STATES[state]
    sketch = Sketch(36, 36)
    if shine:
        sketch.glow(sketch.disc(18, 18, 16), shine, 1, 0.9)
    sketch.fill(sketch.disc(18, 18, 16), mixed(rim, "#ffffff", 0.25), mixed(rim, "#000000", 0.45))
    sketch.fill(sketch.disc(18, 18, 14.4), *colors)
    sketch.fill(sketch.disc(18, 11.6, 10.5, 6.6), "#ffffff", opacity=0.15)
    sign = [(18 + x, 18 + y) for x, y in SIGNS[link]]
    sketch.fill(sketch.polygon([(x + 0.7, y + 1) for x, y in sign]), "#000000", opacity=0.35)
    sketch.fill(sketch.polygon(sign), GOLD if state == "pushed" else "#ffffff")
    return frame(sketch.picture(), NIGHT, 64)


def bullet(level, lively):
    """A sign for a list, low in its picture: browsers stand it on the line."""
    sketch = Sketch(18, 15)
    if level == 1:
        ringed(sketch, 9, 9, 4.8, *((BRASS, GOLD, CREAM) if lively else ("#123a8c", AZURE, ICE)),
               ring=ROSE if lively else GOLD)
    elif level == 2:
        sketch.star(9, 9, 6.4, ROSE if lively else AZURE, waist=0.3)
        sketch.star(9, 9, 3.6, CREAM, waist=0.3)
    else:
        sketch.ball(9, 10, 3.4, *(("#0f5a6a", "#3fc2c2", "#d6fff8") if lively else ("#4a1f8a", "#a36be0", "#ecd9ff")))
    return frame(sketch.picture(), NIGHT, 64)


def rule(lively):
    """560 by 16: a beam that fades to both sides, with a planet in its middle."""
    sketch = Sketch(560, 16)
    metal = GOLD if lively else AZURE
    sketch.fill(sketch.box(0, 7.3, 560, 8.7), NIGHT, metal, CREAM, metal, NIGHT, across=True)
    for x in (140, 210, 350, 420):
        sketch.star(x, 8, 4.2, metal, waist=0.35)
    sketch.glow(sketch.disc(280, 8, 7), NIGHT, 2)
    ringed(sketch, 280, 8, 5.4, *(("#7a1f4e", ROSE, "#ffd0e4") if lively else ("#123a8c", AZURE, ICE)))
    return frame(sketch.picture(), NIGHT, 64)


def pictures():
    """The theme's picture files by name."""
    files = {"orrback.jpg": night()}

    def add(name, *frames, **options):
        files[name] = gif.encode(list(frames), **options)

    add("orrbnra.gif", banner(("#27127a", COBALT, VIOLET, "#b8388f"), True), comment="Orrery, made for Larkfell")
    add("orrbnr.gif", banner((DEEP, "#2136a0", "#33208a"), False))
    for state, letter in (("normal", "n"), ("hovered", "h"), ("pushed", "p")):
        add(f"orrvb{letter}a.gif", bar_button(150, 40, state, 18))
        add(f"orrhb{letter}a.gif", bar_button(120, 30, state, 9))
        for link in SIGNS:
            add(f"orr{link}{letter}.gif", link_button(link, state))
    add("orrvbn.gif", bar_button(150, 40, "normal", 8))
    add("orrvbp.gif", bar_button(150, 40, "pushed", 8))
    add("orrhbn.gif", bar_button(120, 30, "normal", 4))
    add("orrhbp.gif", bar_button(120, 30, "pushed", 4))
    for level in (1, 2, 3):
        add(f"orrbul{level}a.gif", bullet(level, True))
        add(f"orrbul{level}.gif", bullet(level, False))
    add("orrrulea.gif", rule(True))
    add("orrrule.gif", rule(False))
    add("orrtop.gif", bar_button(110, 26, "normal", 11))
    return files


def graphics(active):
    """(property, file) of the active or the normal graphics, in the order of the sheet."""
    a = "a" if active else ""
    states = (("normal", "n"), ("hovered", "h"), ("pushed", "p")) if active else (("normal", "n"), ("pushed", "p"))
    links = states if active else states[:1]
    return (
        [("nav-banner-image", f"orrbnr{a}.gif")]
        + [(f"navbutton-vert-{state}", f"orrvb{letter}{a}.gif") for state, letter in states]
        + [(f"navbutton-horiz-{state}", f"orrhb{letter}{a}.gif") for state, letter in states]
        + [(f"list-image-{level}", f"orrbul{level}{a}.gif") for level in (1, 2, 3)]
        + [("separator-image", f"orrrule{a}.gif")]
        + [(f"navbutton-{link}-{state}", f"orr{link}{letter}.gif")
           for link in ("prev", "home", "next", "up") for state, letter in links]
    )
