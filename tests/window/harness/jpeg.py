"""A JPEG of any size in one grey: what no picture tool makes at these widths."""


def _segment(marker, content):
    return bytes([0xFF, marker]) + (len(content) + 2).to_bytes(2, "big") + content


def grey_jpeg(width, height):
    """Width and height in pixels, each a multiple of 8.

    Both code tables know one code of one bit: "the same as before" and "nothing
    more in this block". So a block of 8 x 8 pixels is two bits, all of them 0.
    """
    one_code = bytes([1] + [0] * 15) + b"\0"
    frame = b"\x08" + height.to_bytes(2, "big") + width.to_bytes(2, "big") + b"\1\1\x11\0"
    blocks = (width // 8) * (height // 8)
    return b"".join(
        [
            b"\xff\xd8",
            _segment(0xDB, b"\0" + b"\1" * 64),
            _segment(0xC0, frame),
            _segment(0xC4, b"\x00" + one_code),
            _segment(0xC4, b"\x10" + one_code),
            _segment(0xDA, b"\1\1\0\0\x3f\0"),
            b"\0" * (blocks * 2 // 8),
            b"\xff\xd9",
        ]
    )
