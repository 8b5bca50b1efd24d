"""Drawing with soft edges: everything is drawn four times as large and scaled down at the end."""

import math

from PIL import Image, ImageChops, ImageDraw, ImageFilter

from art import gif

SCALE = 4


def hexed(color):
    """(red, green, blue) of "#rrggbb"."""
    return tuple(int(color[i:i + 2], 16) for i in (1, 3, 5))


def mixed(first, second, share):
    """The colour that lies at `share`, 0 to 1, between two "#rrggbb"."""
    return "#%02x%02x%02x" % tuple(round(a + (b - a) * share) for a, b in zip(hexed(first), hexed(second)))


def gradient(size, colors, across=False):
    """A picture that runs through evenly spaced colours from the top down, or from left to right."""
    length = 512
    line = Image.new("RGB", (1, length))
    for y in range(length):
        place = y / (length - 1) * (len(colors) - 1)
        index = min(int(place), len(colors) - 2)
        line.putpixel((0, y), hexed(mixed(colors[index], colors[index + 1], place - index)))
    return (line.rotate(90, expand=True) if across else line).resize(size, Image.BILINEAR)


class Sketch:
    """A transparent sheet. Lengths are pixels of the finished picture; shapes are masks that `fill` paints through."""

    def __init__(self, width, height):
        self.width, self.height = width, height
        self.sheet = Image.new("RGBA", (width * SCALE, height * SCALE), (0, 0, 0, 0))

    def mask(self, draw_shape):
        mask = Image.new("L", self.sheet.size, 0)
        draw_shape(ImageDraw.Draw(mask))
        return mask

    def box(self, left, top, right, bottom, radius=0):
        edges = [round(v * SCALE) for v in (left, top, right, bottom)]
        edges[2] -= 1
        edges[3] -= 1
        return self.mask(lambda draw: draw.rounded_rectangle(edges, radius * SCALE, fill=255))

    def disc(self, x, y, radius, height=None):
        """A disc, or an upright ellipse where half its height is given too."""
        rise = radius if height is None else height
        edges = [v * SCALE for v in (x - radius, y - rise, x + radius, y + rise)]
        return self.mask(lambda draw: draw.ellipse(edges, fill=255))

    def polygon(self, points):
        return self.mask(lambda draw: draw.polygon([(x * SCALE, y * SCALE) for x, y in points], fill=255))

    def path(self, points, width):
        """A line with round joints."""
        points = [(x * SCALE, y * SCALE) for x, y in points]
        radius = width * SCALE / 2

        def draw_path(draw):
            draw.line(points, fill=255, width=max(1, round(width * SCALE)))
            for x, y in points:
                draw.ellipse([x - radius, y - radius, x + radius, y + radius], fill=255)

        return self.mask(draw_path)

    def orbit(self, x, y, radius, flatness, tilt_degrees, width, first=0, last=360):
        """An ellipse seen from the side, or the part of it between two angles."""
        return self.path(ellipse(x, y, radius, radius * flatness, tilt_degrees, first, last), width)

    def fill(self, mask, *colors, opacity=1.0, across=False):
        """Paints one colour, or a gradient over the mask's extent."""
        extent = mask.getbbox()
        if not extent:
            return
        size = (extent[2] - extent[0], extent[3] - extent[1])
        paint = gradient(size, colors if len(colors) > 1 else colors * 2, across).convert("RGBA")
        paint.putalpha(mask.crop(extent).point(lambda value: round(value * opacity)))
        self.sheet.alpha_composite(paint, extent[:2])

    def glow(self, mask, color, radius, opacity=1.0, within=None):
        """Paints the mask with its edge washed out."""
        soft = mask.filter(ImageFilter.GaussianBlur(radius * SCALE))
        self.fill(ImageChops.multiply(soft, within) if within else soft, color, opacity=opacity)

    def ball(self, x, y, radius, dark, body, light):
        """A globe lit from the upper left."""
        globe = self.disc(x, y, radius)
        self.fill(globe, dark)
        self.glow(self.disc(x - radius * 0.25, y - radius * 0.25, radius * 0.75), body, radius * 0.22, within=globe)
        self.glow(self.disc(x - radius * 0.36, y - radius * 0.38, radius * 0.3), light, radius * 0.2, 0.95, globe)

    def star(self, x, y, radius, color, points=4, waist=0.22, turn_degrees=0.0):
        self.fill(self.polygon(star(x, y, radius, radius * waist, points, turn_degrees)), color)

    def picture(self):
        return self.sheet.resize((self.width, self.height), Image.BOX)


def ellipse(x, y, across, along, tilt_degrees=0.0, first=0, last=360, steps=120):
    tilt = math.radians(tilt_degrees)
    points = []
    for i in range(steps + 1):
        angle = math.radians(first + (last - first) * i / steps)
        u, v = across * math.cos(angle), along * math.sin(angle)
        points.append((x + u * math.cos(tilt) - v * math.sin(tilt), y + u * math.sin(tilt) + v * math.cos(tilt)))
    return points


def star(x, y, outer, inner, points, turn_degrees=0.0):
    corners = []
    for i in range(2 * points):
        angle = math.radians(turn_degrees - 90) + math.pi * i / points
        reach = inner if i % 2 else outer
        corners.append((x + reach * math.cos(angle), y + reach * math.sin(angle)))
    return corners


def frame(picture, matte, colors, dither=False, opaque_from=96, **options):
    """The picture as a GIF frame. Soft edges are blended with the matte; thinner than `opaque_from` becomes transparent."""
    flat = Image.new("RGB", picture.size, hexed(matte))
    flat.paste(picture.convert("RGB"), mask=picture.getchannel("A"))
    holes = picture.getchannel("A").point(lambda value: 255 if value < opaque_from else 0)
    has_holes = holes.getbbox() is not None
    flat.paste(hexed(matte), mask=holes)
    chosen = flat.quantize(colors - has_holes, method=Image.MEDIANCUT, kmeans=1, dither=Image.NONE)
    if dither:
        chosen = flat.quantize(palette=chosen, dither=Image.FLOYDSTEINBERG)
    numbers = chosen.tobytes()
    used = sorted(set(numbers))
    numbers = numbers.translate(bytes(used.index(i) if i in used else 0 for i in range(256)))
    flat_palette = chosen.getpalette()
    palette = [tuple(flat_palette[3 * i:3 * i + 3]) for i in used]
    transparent = None
    if has_holes:
        transparent = len(palette)
        palette.append(hexed(matte))
        numbers = bytes(transparent if hole else number for number, hole in zip(numbers, holes.tobytes()))
    return gif.Frame(*picture.size, numbers, palette, transparent, **options)
