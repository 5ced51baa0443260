"""Reads the pixels of the PNG files that rsvg-convert writes: 8-bit RGBA, not interlaced."""
import struct
import zlib


def _chunks(png):
    at = 8
    while at < len(png):
        size, = struct.unpack_from(">I", png, at)
        yield png[at + 4:at + 8], png[at + 8:at + 8 + size]
        at += size + 12


def _paeth(left, up, corner):
    estimate = left + up - corner
    return min((left, up, corner), key=lambda near: abs(estimate - near))


def _unfiltered(kind, row, above):
    """A row of bytes without the prediction it was stored with (PNG filter types 0..4)."""
    out = bytearray(row)
    for i, byte in enumerate(row):
        left = out[i - 4] if i >= 4 else 0
        up, corner = above[i], above[i - 4] if i >= 4 else 0
        guess = (0, left, up, (left + up) // 2, _paeth(left, up, corner))[kind]
        out[i] = (byte + guess) % 256
    return bytes(out)


def rgba_rows(png):
    """The rows from top to bottom, four bytes a pixel."""
    chunks = list(_chunks(png))
    width, height, depth, color, _, _, interlace = struct.unpack(">IIBBBBB", dict(chunks)[b"IHDR"])
    if (depth, color, interlace) != (8, 6, 0):
        raise ValueError("not an 8-bit RGBA picture without interlacing")
    data = zlib.decompress(b"".join(body for name, body in chunks if name == b"IDAT"))
    rows, above = [], bytes(4 * width)
    for y in range(height):
        start = y * (4 * width + 1)
        above = _unfiltered(data[start], data[start + 1:start + 1 + 4 * width], above)
        rows.append(above)
    return rows
