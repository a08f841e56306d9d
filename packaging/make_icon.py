"""Writes the icon of the packages in three sizes from the picture of a control: make_icon.py PICTURE.bmp ICON.ico"""
import struct
import sys

BACKGROUND = 7  # the grey around the picture, which shows through


def read_pixels(path):
    data = open(path, "rb").read()
    offset, = struct.unpack_from("<I", data, 10)
    width, height = struct.unpack_from("<ii", data, 18)
    row = (width // 2 + 3) // 4 * 4
    lines = [data[offset + y * row:][:width // 2] for y in range(height)]  # from the bottom up, as an icon's
    return data[54:54 + 64], [[half for byte in line for half in (byte >> 4, byte & 15)] for line in lines]


def image(palette, pixels, scale):
    side = 16 * scale
    pixels = pixels + [[BACKGROUND] * 16] * (16 - len(pixels))
    lines = [[pixel for pixel in line for _ in range(scale)] for line in pixels for _ in range(scale)]
    colours, mask = b"", b""
    for line in lines:
        shown = [0 if pixel == BACKGROUND else pixel for pixel in line]
        colours += bytes(a << 4 | b for a, b in zip(shown[::2], shown[1::2]))
        bits = int("".join("1" if pixel == BACKGROUND else "0" for pixel in line), 2)
        mask += bits.to_bytes(side // 8, "big").ljust((side // 8 + 3) // 4 * 4, b"\0")
    return struct.pack("<IiiHHIIiiII", 40, side, 2 * side, 1, 4, 0, len(colours + mask), 0, 0, 16, 0) + palette + colours + mask


def main(picture, icon):
    palette, pixels = read_pixels(picture)
    images = [image(palette, pixels, scale) for scale in (1, 2, 3)]
    head, offset = struct.pack("<HHH", 0, 1, len(images)), 6 + 16 * len(images)
    for scale, content in enumerate(images, 1):
        head += struct.pack("<BBBBHHII", 16 * scale, 16 * scale, 16, 0, 1, 4, len(content), offset)
        offset += len(content)
    open(icon, "wb").write(head + b"".join(images))


main(*sys.argv[1:])
