"""Writes GIF files block by block, so that a picture can have exactly the parts it shall have."""

import dataclasses
import struct

LARGEST_CODE = 4095  # codes have at most 12 bits


@dataclasses.dataclass
class Frame:
    """A picture in colour numbers, one byte a pixel, rows from the top."""

    width: int
    height: int
    pixels: bytes
    palette: list  # (red, green, blue), at most 256
    transparent: int = None  # colour number
    local: bool = False  # the palette goes before this picture, not to the head of the file
    interlaced: bool = False
    delay: int = 0  # hundredths of a second
    left: int = 0
    top: int = 0
    disposal: int = 0  # 2: the next picture starts from the background


def encode(frames, version=b"89a", comment=None, repeats=None):
    """The file with these pictures. The head's palette is the first frame's, unless that one is local.

    `repeats`: how often an animation runs, 0 for ever.
    """
    first = frames[0]
    width = max(frame.left + frame.width for frame in frames)
    height = max(frame.top + frame.height for frame in frames)
    depth = color_bits(first.palette)
    shared = 0 if first.local else 0x80 | depth - 1
    data = b"GIF" + version + struct.pack("<HHBBB", width, height, shared | (depth - 1) << 4, 0, 0)
    if not first.local:
        data += table(first.palette)
    if repeats is not None:
        data += b"\x21\xFF\x0BNETSCAPE2.0\x03\x01" + struct.pack("<H", repeats) + b"\0"
    if comment:
        data += b"\x21\xFE" + blocks(comment.encode("ascii"))
    return data + b"".join(map(picture, frames)) + b"\x3B"


def picture(frame):
    data = b""
    if frame.transparent is not None or frame.delay or frame.disposal:
        flags = frame.disposal << 2 | (frame.transparent is not None)
        data += b"\x21\xF9\x04" + struct.pack("<BHBB", flags, frame.delay, frame.transparent or 0, 0)
    depth = color_bits(frame.palette)
    flags = (0x80 | depth - 1 if frame.local else 0) | (0x40 if frame.interlaced else 0)
    data += b"\x2C" + struct.pack("<HHHHB", frame.left, frame.top, frame.width, frame.height, flags)
    if frame.local:
        data += table(frame.palette)
    start_bits = max(2, depth)
    return data + bytes([start_bits]) + blocks(lzw(rows(frame), start_bits))


def color_bits(palette):
    return max(1, (len(palette) - 1).bit_length())


def table(palette):
    """The colour table, filled up with black to a power of two."""
    data = b"".join(bytes(color) for color in palette)
    return data.ljust(3 << color_bits(palette), b"\0")


def rows(frame):
    """The pixels in the order of the file."""
    order = range(frame.height)
    if frame.interlaced:
        order = [y for start, step in ((0, 8), (4, 8), (2, 4), (1, 2)) for y in range(start, frame.height, step)]
    return b"".join(frame.pixels[y * frame.width:(y + 1) * frame.width] for y in order)


def blocks(data):
    """The data in blocks of up to 255 bytes, each behind its length, and the empty one that ends them."""
    parts = [data[i:i + 255] for i in range(0, len(data), 255)]
    return b"".join(bytes([len(part)]) + part for part in parts) + b"\0"


def lzw(pixels, start_bits):
    clear, end = 1 << start_bits, (1 << start_bits) + 1
    known = {bytes([i]): i for i in range(clear)}
    codes, following, bits = dict(known), end + 1, start_bits + 1
    value, filled = clear, bits  # the bits that wait, lowest first
    data = bytearray()

    def put(code):
        nonlocal value, filled
        value |= code << filled
        filled += bits
        while filled >= 8:
            data.append(value & 255)
            value >>= 8
            filled -= 8

    run = b""
    for pixel in pixels:
        longer = run + bytes([pixel])
        if longer in codes:
            run = longer
            continue
        put(codes[run])
        if following > LARGEST_CODE:
            put(clear)
            codes, following, bits = dict(known), end + 1, start_bits + 1
        else:
            codes[longer] = following
            bits = max(bits, following.bit_length())
            following += 1
        run = bytes([pixel])
    put(codes[run])
    # The reader has taken one more code into its table than `put` knew of before this last one.
    if following <= LARGEST_CODE:
        bits = max(bits, following.bit_length())
    put(end)
    if filled:
        data.append(value & 255)
    return bytes(data)
