"""Pictures of the game's surface: 640 x 480 pixels, from the lower left corner."""
import subprocess

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
    both = enumerate(zip(picture, expected, strict=True))
    return len({i // 3 for i, (a, b) in both if abs(a - b) > tolerance})


def save(picture, path):
    """Writes a PNG file."""
    shape = ["-size", f"{WIDTH}x{HEIGHT}", "-depth", "8"]
    subprocess.run(["convert", *shape, "rgb:-", "-flip", path], input=picture, check=True)
