"""The pictures on the sample web's pages: landscapes and heavenly bodies, drawn, not photographed."""

import io
import math
import random

from PIL import Image, ImageChops, ImageFilter

from art import gif
from art.drawing import Sketch, frame, gradient, mixed

WIDTH, HEIGHT = 270, 190


def sky(*colors, stars=90, seed=1, lowest=0.7):
    """A sketch that is filled with a sky, stars down to `lowest` of its height."""
    sketch = Sketch(WIDTH, HEIGHT)
    sketch.fill(sketch.box(0, 0, WIDTH, HEIGHT), *colors)
    dice = random.Random(seed)
    for _ in range(stars):
        x, y, shine = WIDTH * dice.random(), HEIGHT * lowest * dice.random(), dice.random() ** 2
        fading = 1 - y / (HEIGHT * lowest * 1.1)
        sketch.fill(sketch.disc(x, y, 0.4 + 0.7 * shine), "#ffffff", opacity=(0.3 + 0.6 * shine) * fading)
    return sketch


def hills(sketch, base, height, color, seed):
    dice = random.Random(seed)
    waves = [(height / (k + 1), 2 * math.pi * dice.random(), (k + 1) * 2.2 / WIDTH) for k in range(4)]
    line = [(x, base - sum(a * math.sin(p + f * math.pi * x) for a, p, f in waves)) for x in range(0, WIDTH + 6, 5)]
    sketch.fill(sketch.polygon(line + [(WIDTH, HEIGHT), (0, HEIGHT)]), color)


def fir(sketch, x, foot, height, color):
    for level in range(4):
        top, wide = foot - height + level * height * 0.2, height * (0.10 + 0.06 * level)
        sketch.fill(sketch.polygon([(x, top), (x - wide, top + height * 0.36), (x + wide, top + height * 0.36)]), color)


def house_of_the_telescope(sketch, x, foot, size, wall, shade):
    """A round wall, a dome with an open slit, and warm light in it."""
    sketch.fill(sketch.box(x - size, foot - size * 0.75, x + size, foot), wall, mixed(wall, shade, 0.35), shade, across=True)
    dome = sketch.disc(x, foot - size * 0.75, size * 1.08)
    dome.paste(0, (0, round((foot - size * 0.72) * 4), WIDTH * 4, HEIGHT * 4))
    sketch.fill(dome, mixed(wall, "#ffffff", 0.4), wall, shade, across=True)
    slit = [(x + size * u, foot - size * v) for u, v in ((0.12, 0.76), (0.34, 1.72), (0.56, 1.66), (0.52, 0.76))]
    sketch.fill(sketch.polygon(slit), "#2a1a3a", "#ffb648")
    tube = [(x + size * u, foot - size * v) for u, v in ((0.22, 1.0), (0.62, 1.94))]
    sketch.fill(sketch.path(tube, size * 0.13), mixed(shade, "#000000", 0.35))
    sketch.fill(sketch.box(x - size * 1.12, foot - size * 0.8, x + size * 1.12, foot - size * 0.7), shade)
    sketch.fill(sketch.box(x - size * 0.62, foot - size * 0.45, x - size * 0.32, foot), "#ffcf70")


def dome():
    sketch = sky("#101a56", "#3b2f94", "#a8458f", "#f07a5c", "#ffc46b", seed=11)
    for length in (46, 30, 14):  # a meteor, brighter towards its head
        sketch.fill(sketch.path([(92 - length, 52 - length * 0.6), (92, 52)], 0.8), "#ffffff", opacity=0.35)
    hills(sketch, 150, 10, "#5a2f78", 3)
    hills(sketch, 165, 7, "#2d1d52", 5)
    house_of_the_telescope(sketch, 176, 158, 27, "#d9c7ee", "#57408c")
    hills(sketch, 176, 5, "#160f30", 8)
    for x, height in ((18, 52), (36, 68), (54, 46), (246, 58), (262, 40)):
        fir(sketch, x, 178, height, "#160f30")
    return sketch.picture()


def moon():
    sketch = sky("#060606", "#101010", stars=40, seed=3, lowest=1)
    sketch.ball(135, 95, 78, "#1c1c1c", "#b8b8b8", "#e6e6e6")
    globe = sketch.disc(135, 95, 78)
    for x, y, radius in ((112, 66, 22), (136, 74, 16), (98, 96, 20), (118, 112, 14), (150, 92, 11), (160, 70, 9)):
        sketch.glow(sketch.disc(x, y, radius), "#6a6a6a", 5, 0.6, globe)
    dice = random.Random(1969)
    for _ in range(110):
        angle, reach, size = 2 * math.pi * dice.random(), 74 * dice.random() ** 0.5, 1 + 5 * dice.random() ** 3
        x, y = 135 + reach * math.cos(angle), 95 + reach * math.sin(angle)
        sketch.glow(sketch.disc(x + 0.4, y + 0.4, size), "#f4f4f4", 0.4, 0.30, globe)
        sketch.glow(sketch.disc(x - 0.3, y - 0.3, size * 0.8), "#3c3c3c", 0.4, 0.38, globe)
    sketch.glow(sketch.disc(203, 150, 84), "#000000", 14, 0.8, globe)
    return sketch.picture()


def saturn():
    sketch = sky("#0a0c24", "#141038", "#0a0c24", stars=110, seed=6, lowest=1)
    x, y, tilt = 135, 96, -14
    rings = [(112, 5, "#8a6a3c"), (104, 7, "#d9b272"), (95, 6, "#f2d9a0"), (86, 6, "#b98d4e"), (79, 4, "#7a5c34")]
    for radius, width, color in rings:
        sketch.fill(sketch.orbit(x, y, radius, 0.3, tilt, width, 180, 360), mixed(color, "#000000", 0.2))
    globe = sketch.disc(x, y, 54)
    sketch.ball(x, y, 54, "#5a3416", "#dba252", "#fff0c8")
    for level, color, strength in ((-36, "#a8642c", 0.4), (-20, "#fff0c8", 0.4), (-6, "#b8703a", 0.45), (12, "#ffe6ac", 0.4), (28, "#9a5a2c", 0.45)):
        band = sketch.orbit(x - level * math.sin(math.radians(tilt)), y + level, 70, 0.12, tilt, 7, 0, 180)
        sketch.glow(band, color, 1.6, strength, globe)
    for radius, width, color in rings:
        sketch.fill(sketch.orbit(x, y, radius, 0.3, tilt, width, 0, 180), color)
    return sketch.picture()


def aurora():
    sketch = sky("#04081c", "#0a2240", "#114a58", stars=120, seed=9, lowest=0.8)
    curtains = Image.new("RGBA", sketch.sheet.size, (0, 0, 0, 0))
    dice = random.Random(4)
    for base, tall, lower, upper in ((112, 84, "#4dffa0", "#7a3fd0"), (134, 62, "#b8ff6a", "#1fae9a")):
        phase = 6 * dice.random()
        for column in range(0, WIDTH * 4, 4):
            x = column / 4
            foot = base + 12 * math.sin(phase + x / 38) + 7 * math.sin(2 + x / 17)
            reach = tall * (0.62 + 0.3 * math.sin(phase + x / 13) + 0.24 * dice.random())
            ray = gradient((4, max(1, round(reach * 4))), (upper, lower)).convert("RGBA")
            strength = 0.30 + 0.5 * abs(math.sin(phase + x / 29)) * (0.6 + 0.4 * dice.random())
            fade = gradient(ray.size, ("#000000", "#404040", "#ffffff")).convert("L")
            ray.putalpha(fade.point(lambda value: round(value * min(1, strength))))
            curtains.alpha_composite(ray, (column, max(0, round((foot - reach) * 4))))
    soft = curtains.filter(ImageFilter.GaussianBlur(6))
    sketch.sheet = ImageChops.screen(sketch.sheet, ImageChops.multiply(soft, spread_alpha(soft)))
    sketch.sheet.putalpha(255)
    hills(sketch, 166, 8, "#06161c", 12)
    for i in range(15):
        fir(sketch, 6 + 19 * i + 5 * dice.random(), 182, 20 + 22 * dice.random(), "#020a10")
    return sketch.picture()


def spread_alpha(picture):
    alpha = picture.getchannel("A")
    return Image.merge("RGBA", (alpha, alpha, alpha, alpha))


def jpeg(picture, mode="RGB", **options):
    data = io.BytesIO()
    picture.convert("RGB").convert(mode).save(data, "JPEG", **{"quality": 85, **options})
    return data.getvalue()


def logo():
    """150 by 80, transparent: the dome under a star."""
    sketch = Sketch(150, 80)
    for radius in (62, 47):
        sketch.fill(sketch.orbit(75, 56, radius, 0.42, -12, 1.2), "#f2b544")
    sketch.ball(17, 47, 6, "#7a1f4e", "#d2438f", "#ffd0e4")
    sketch.ball(120, 64, 5, "#123a8c", "#4f8df5", "#cfe4ff")
    sketch.star(112, 18, 12, "#ffeebc", waist=0.2)
    sketch.fill(sketch.box(50, 48, 100, 72), "#e8efff", "#a9bbec", "#4a5aa8", across=True)
    roof = sketch.disc(75, 48, 28)
    roof.paste(0, (0, 48 * 4, 600, 320))
    sketch.fill(roof, "#ffffff", "#c9d6fb", "#5a68b8", across=True)
    sketch.fill(sketch.polygon([(79, 48), (84, 21), (91, 24), (90, 48)]), "#2a1a5a", "#f2b544")
    sketch.fill(sketch.path([(84, 40), (93, 17)], 3.4), "#3a2a7a")
    sketch.fill(sketch.box(45, 46, 105, 49), "#3a489a")
    sketch.fill(sketch.box(56, 58, 64, 72), "#f2b544")
    return frame(sketch.picture(), "#0b1033", 96)


def rounded(points, rounds=3):
    """The line with its corners cut off again and again."""
    for _ in range(rounds):
        cut = [points[0]]
        for (a, b), (c, d) in zip(points, points[1:]):
            cut += [(a * 0.75 + c * 0.25, b * 0.75 + d * 0.25), (a * 0.25 + c * 0.75, b * 0.25 + d * 0.75)]
        points = cut + [points[-1]]
    return points


def way_map():
    """300 by 200: how to get there, in the almanac's inks."""
    paper, ink, clay, olive, ochre = "#fbf4e0", "#4a2c14", "#c2491d", "#5f7d2b", "#e0a02c"
    sketch = Sketch(300, 200)
    sketch.fill(sketch.box(1, 1, 299, 199, 3), ink)
    sketch.fill(sketch.box(2.5, 2.5, 297.5, 197.5, 2), paper)
    for x, y, radius in ((205, 62, 52), (208, 59, 38), (211, 56, 25), (214, 52, 13)):
        sketch.fill(sketch.orbit(x, y, radius, 0.7, -15, 1), ochre)
    stream = [(3, 62), (40, 74), (72, 66), (98, 92), (92, 128), (118, 158), (112, 197)]
    sketch.fill(sketch.path(rounded(stream), 5), mixed("#3a86a8", paper, 0.35))
    road = [(3, 150), (60, 138), (130, 132), (200, 150), (297, 138)]
    for width, color in ((6, ink), (4, paper)):
        sketch.fill(sketch.path(rounded(road), width), color)
    trail = [(168, 141), (176, 118), (160, 98), (178, 82), (198, 76), (212, 56)]
    sketch.fill(sketch.path(rounded(trail), 3), clay)
    for x, y in ((30, 112), (44, 120), (36, 128), (250, 168), (266, 176), (252, 182), (128, 40), (140, 50), (118, 54)):
        sketch.fill(sketch.disc(x, y, 5.5), olive)
        sketch.fill(sketch.box(x - 0.8, y + 5, x + 0.8, y + 9), ink)
    for x, y in ((148, 118), (184, 128), (196, 164), (150, 160), (222, 130)):
        sketch.fill(sketch.box(x - 5, y - 4, x + 5, y + 4), ochre)
        sketch.fill(sketch.polygon([(x - 6.5, y - 4), (x, y - 9.5), (x + 6.5, y - 4)]), clay)
    sketch.fill(sketch.disc(214, 48, 11), ink)
    sketch.fill(sketch.disc(214, 48, 9.5), clay)
    sketch.star(214, 48, 8, paper, points=5, waist=0.42)
    for turn, color in ((0, ink), (45, ochre)):
        sketch.star(268, 34, 20 if turn == 0 else 11, color, waist=0.24, turn_degrees=turn)
    sketch.fill(sketch.polygon([(268, 14), (268, 34), (263.4, 29.4)]), clay)
    return frame(sketch.picture(), paper, 64, interlaced=True)


def twinkle():
    """A star that twinkles, to stand beside news; the head's palette serves its first picture, the others bring theirs."""
    frames = []
    for step, size in enumerate((8.5, 7, 4.5, 7)):
        sketch = Sketch(18, 18)
        sketch.glow(sketch.disc(9, 9, size * 0.4), "#f2b544", 1.5, 0.8)
        sketch.star(9, 9, size, "#ffeebc", waist=0.24)
        frames.append(frame(sketch.picture(), "#0b1033", 12, local=step > 0, delay=20, disposal=2))
    return frames


def pictures():
    """The files of the web's images folder by name. The JPEGs differ in coding as those of an old web do."""
    return {
        "dome.jpg": jpeg(dome()),
        "moon.jpg": jpeg(moon(), "L"),
        "saturn.jpg": jpeg(saturn(), subsampling="4:4:4", quality=90),
        "aurora.jpg": jpeg(aurora(), progressive=True, subsampling="4:2:2"),
        "logo.gif": gif.encode([logo()]),
        "map.gif": gif.encode([way_map()], comment="Way to Larkfell Observatory"),
        "new.gif": gif.encode(twinkle(), repeats=0),
    }
