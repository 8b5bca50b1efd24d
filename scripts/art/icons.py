"""The program's own pictures: icon, notice icons, About picture, toolbar face and colour band."""

import colorsys
import math

from PIL import Image, ImageDraw

SCALE = 8  # pictures are drawn this much larger and scaled down

FACE_GREY = (192, 192, 192)  # the colour of a button's face, which the host takes for transparent

# The application icon: a picture half of which has been recoloured. Coordinates run from 0 to 128.
FRAME = (4, 12, 124, 116)
INNER = (14, 22, 114, 106)
SUN = (90, 44, 10)  # centre and radius
FAR_HILL = [(14, 96), (40, 62), (58, 82), (82, 54), (114, 92), (114, 106), (14, 106)]
NEAR_HILL = [(14, 106), (46, 86), (74, 98), (100, 84), (114, 92), (114, 106)]
GREYS = [(208, 208, 210), (154, 155, 160)]  # from left to the middle
COLOURS = [(28, 160, 170), (52, 116, 206), (126, 82, 190), (224, 76, 118), (250, 156, 56)]  # from there on


def rgb(hue_degrees, saturation, value):
    return tuple(round(255 * c) for c in colorsys.hsv_to_rgb(hue_degrees % 360 / 360, saturation, value))


def between(colours, share):
    """The colour at `share`, 0 to 1, of the way through evenly spaced colours."""
    index = min(int(share * (len(colours) - 1)), len(colours) - 2)
    rest = share * (len(colours) - 1) - index
    return tuple(round(a + (b - a) * rest) for a, b in zip(colours[index], colours[index + 1]))


def sky(share):
    """The colour of the picture's sky at `share` of its width."""
    return between(GREYS, 2 * share) if share < 0.5 else between(COLOURS, 2 * share - 1)


def canvas(width, height, background=(0, 0, 0, 0)):
    return Image.new("RGBA", (width * SCALE, height * SCALE), background)


def reduced(picture):
    return picture.resize((picture.width // SCALE, picture.height // SCALE), Image.BOX)


def veil(picture, draw_shape, colour):
    """Lays a translucent shape over the picture."""
    layer = Image.new("RGBA", picture.size, (0, 0, 0, 0))
    draw_shape(ImageDraw.Draw(layer), colour)
    picture.alpha_composite(layer)


def application(size):
    picture = canvas(size, size)
    unit = size * SCALE / 128
    small = size <= 20  # no room for a wide frame: the picture fills the tile

    def at(points):
        return [(x * unit, y * unit) for x, y in points]

    frame = (0, 0, 128, 128) if small else FRAME
    inner = (8, 8, 120, 120) if small else INNER
    draw = ImageDraw.Draw(picture)
    draw.rounded_rectangle([v * unit for v in frame], 10 * unit, fill=(74, 82, 97, 255))
    if not small:
        edge = [frame[0] + 3, frame[1] + 3, frame[2] - 3, frame[3] - 3]
        draw.rounded_rectangle([v * unit for v in edge], 8 * unit, fill=(252, 252, 253, 255))
    left, right = round(inner[0] * unit), round(inner[2] * unit)
    for x in range(left, right):
        draw.line([(x, inner[1] * unit), (x, inner[3] * unit - 1)], fill=sky((x - left) / (right - left)))
    stretch = [(inner[0] + (x - INNER[0]) * (inner[2] - inner[0]) / (INNER[2] - INNER[0]),
                inner[1] + (y - INNER[1]) * (inner[3] - inner[1]) / (INNER[3] - INNER[1]))
               for x, y in FAR_HILL + NEAR_HILL]
    veil(picture, lambda d, c: d.polygon(at(stretch[:len(FAR_HILL)]), c), (20, 24, 40, 70))
    veil(picture, lambda d, c: d.polygon(at(stretch[len(FAR_HILL):]), c), (20, 24, 40, 105))
    x, y, r = SUN
    veil(picture, lambda d, c: d.ellipse([v * unit for v in (x - r, y - r, x + r, y + r)], c), (255, 255, 255, 235))
    return reduced(picture)


def application_svg():
    def points(shape):
        return " ".join(f"{x},{y}" for x, y in shape)

    def stops(colours):
        last = len(colours) - 1
        return "".join(f'<stop offset="{i / last:.3f}" stop-color="#{"%02x%02x%02x" % colour}"/>'
                       for i, colour in enumerate(colours))

    left, top, right, bottom = INNER
    greys = stops(GREYS)
    hues = stops(COLOURS)
    half = (right - left) / 2
    return f"""\
<svg xmlns="http://www.w3.org/2000/svg" width="128" height="128" viewBox="0 0 128 128">
  <title>Morpho</title>
  <defs>
    <linearGradient id="before">{greys}</linearGradient>
    <linearGradient id="after">{hues}</linearGradient>
  </defs>
  <rect x="{FRAME[0]}" y="{FRAME[1]}" width="{FRAME[2] - FRAME[0]}" height="{FRAME[3] - FRAME[1]}" rx="10" fill="#4a5261"/>
  <rect x="{FRAME[0] + 3}" y="{FRAME[1] + 3}" width="{FRAME[2] - FRAME[0] - 6}" height="{FRAME[3] - FRAME[1] - 6}" rx="8" fill="#fcfcfd"/>
  <rect x="{left}" y="{top}" width="{half:g}" height="{bottom - top}" fill="url(#before)"/>
  <rect x="{left + half:g}" y="{top}" width="{half:g}" height="{bottom - top}" fill="url(#after)"/>
  <polygon points="{points(FAR_HILL)}" fill="#141828" fill-opacity=".275"/>
  <polygon points="{points(NEAR_HILL)}" fill="#141828" fill-opacity=".41"/>
  <circle cx="{SUN[0]}" cy="{SUN[1]}" r="{SUN[2]}" fill="#fff" fill-opacity=".92"/>
</svg>
"""


def stroke(draw, points, width, colour):
    """A line with round ends and joints."""
    draw.line(points, fill=colour, width=round(width))
    for x, y in points:
        draw.ellipse([x - width / 2, y - width / 2, x + width / 2, y + width / 2], fill=colour)


def arc(centre, radius, first_degrees, last_degrees):
    steps = 48
    angles = (math.radians(first_degrees + (last_degrees - first_degrees) * i / steps) for i in range(steps + 1))
    return [(centre[0] + radius * math.cos(a), centre[1] + radius * math.sin(a)) for a in angles]


def notice(kind, size):
    """One of "stop", "question", "information": a disc with a white sign."""
    picture = canvas(size, size)
    draw = ImageDraw.Draw(picture)
    unit = size * SCALE / 64
    body = {"stop": (200, 46, 46), "question": (46, 105, 186), "information": (38, 132, 140)}[kind]
    edge = tuple(round(c * 0.72) for c in body)
    white = (255, 255, 255)

    def signs(lines, width):
        for points in lines:
            stroke(draw, [(x * unit, y * unit) for x, y in points], width * unit, white)

    draw.ellipse([2 * unit, 2 * unit, 62 * unit, 62 * unit], fill=edge)
    draw.ellipse([4 * unit, 4 * unit, 60 * unit, 60 * unit], fill=body)
    if kind == "stop":
        signs([[(22, 22), (42, 42)], [(42, 22), (22, 42)]], 7)
    elif kind == "question":
        signs([arc((32, 24.5), 9.5, 180, 405) + [(32, 37.5), (32, 40)]], 6)
        signs([[(32, 49.2), (32, 49.3)]], 7)
    else:
        signs([[(32, 16.4), (32, 16.5)]], 8)
        signs([[(27.5, 27), (32, 27), (32, 47)], [(26.5, 47), (37.5, 47)]], 6)
    return reduced(picture)


def about_picture():
    """192 by 256: a column of buttons that goes from grey through the hues, as wide as the icon above it."""
    picture = canvas(192, 256)
    draw = ImageDraw.Draw(picture)
    colours = [(164, 165, 170)] + COLOURS[:2] + COLOURS[3:]
    for index, colour in enumerate(colours):
        top = 124 + index * 26
        box = [34 * SCALE, top * SCALE, 158 * SCALE, (top + 20) * SCALE]
        draw.rounded_rectangle(box, 10 * SCALE, fill=tuple(round(c * 0.7) for c in colour))
        box = [box[0] + SCALE, box[1] + SCALE, box[2] - SCALE, box[3] - SCALE]
        draw.rounded_rectangle(box, 9 * SCALE, fill=colour)
        veil(picture, lambda d, c: d.rounded_rectangle([box[0] + 5 * SCALE, box[1] + 2 * SCALE, box[2] - 5 * SCALE,
                                                        box[1] + 8 * SCALE], 3 * SCALE, fill=c), (255, 255, 255, 85))
    picture = reduced(picture)
    picture.alpha_composite(application(128), (32, 0))
    return picture


def toolbar_face():
    """20 by 20, as the command bars take it, 256 colours on the face's grey."""
    picture = Image.new("RGBA", (20, 20), FACE_GREY + (255,))
    picture.alpha_composite(application(16), (2, 2))
    face = picture.convert("RGB").quantize(255, method=Image.MEDIANCUT, dither=Image.NONE)
    palette = face.getpalette()
    background = face.getpixel((0, 0))
    palette[3 * background:3 * background + 3] = FACE_GREY
    face.putpalette(palette)
    return face


def color_band():
    """Every hue once. Not fully saturated: raising the saturation shall show as well as lowering it."""
    band = Image.new("RGB", (397, 7))
    for x in range(band.width):
        band.paste(rgb(360 * x / (band.width - 1), 0.86, 0.96), (x, 0, x + 1, band.height))
    return band
