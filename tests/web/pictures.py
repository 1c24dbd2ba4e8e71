"""Pictures of the game's surface: 640 x 480 pixels, from the lower left corner."""
import struct
import zlib

WIDTH = 640
HEIGHT = 480


def without_opacity(pixels):
    """Red, green and blue of pixels that have an opacity as well."""
    parts = bytearray(len(pixels) // 4 * 3)
    for part in range(3):
        parts[part::3] = pixels[part::4]
    return bytes(parts)


def misses(picture, expected, tolerance):
    """How many pixels differ by more than `tolerance` of 255 in one of their colours."""
    wrong = set()
    for i, (a, b) in enumerate(zip(picture, expected, strict=True)):
        if abs(a - b) > tolerance:
            wrong.add(i // 3)
    return len(wrong)


def largest_difference(picture, expected):
    return max(abs(a - b) for a, b in zip(picture, expected, strict=True))


def save(picture, path):
    """Writes a PNG file."""
    rows = [picture[y * WIDTH * 3:(y + 1) * WIDTH * 3] for y in reversed(range(HEIGHT))]
    data = zlib.compress(b"".join(b"\0" + row for row in rows))
    header = struct.pack(">IIBBBBB", WIDTH, HEIGHT, 8, 2, 0, 0, 0)
    with open(path, "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n")
        for kind, content in ((b"IHDR", header), (b"IDAT", data), (b"IEND", b"")):
            file.write(struct.pack(">I", len(content)) + kind + content)
            file.write(struct.pack(">I", zlib.crc32(kind + content)))
