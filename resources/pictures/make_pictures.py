#!/usr/bin/python3
"""Makes the pictures from their drawings: the icon in its sizes and what is drawn on the pages.

  ./make_pictures.py           writes them to ../icon and beside this file
  ./make_pictures.py --check   makes them in a temporary folder and compares byte for byte

Needs Python 3 and `rsvg-convert` (made with 2.54.7; another version may round
other pixels differently). The drawings: ../icon/*.svg and the *.svg beside this file.
"""
import argparse
import pathlib
import struct
import subprocess
import sys
import tempfile

from png_pixels import rgba_rows

PICTURES = pathlib.Path(__file__).resolve().parent
ICON = PICTURES.parent / "icon"
# Up to here the drawing without details is the clearer one.
LARGEST_SMALL_ICON = 32
ICON_SIZES = (16, 24, 32, 48, 64, 128, 256, 512)
# What the Windows shell asks for; 256 pixels are stored as PNG, the others as bitmaps.
ICO_SIZES = (16, 24, 32, 48, 64, 128, 256)
# What is drawn on the ruled page of a screen; everything else is see-through.
PAGES = {"menu": (1980, 1215), "idle": (1980, 1215), "idle-tall": (1215, 585),
         "settings": (1980, 1215),
         "menu-tall": (1215, 405), "settings-tall": (1215, 405)}


def draw(svg, size, png):
    width, height = size
    subprocess.run(["rsvg-convert", "--format=png", f"--width={width}", f"--height={height}",
                    "--keep-aspect-ratio", f"--output={png}", svg], check=True)


def bitmap(png, size):
    """A PNG's pixels as an icon's bitmap: bottom row first, blue before red, no mask."""
    header = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, 0, 0, 0, 0, 0)
    pixels = bytearray()
    for row in reversed(rgba_rows(png)):
        for x in range(0, len(row), 4):
            red, green, blue, alpha = row[x:x + 4]
            pixels += bytes((blue, green, red, alpha))
    # The transparency says it all; the mask is there for its place only.
    mask = bytes((size + 31) // 32 * 4 * size)
    return header + pixels + mask


def ico(pngs):
    """An .ico file of PNG files by size, small ones first."""
    entries, images = b"", b""
    for size, png in pngs.items():
        image = png if size == 256 else bitmap(png, size)
        offset = 6 + 16 * len(pngs) + len(images)
        entries += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(image), offset)
        images += image
    return struct.pack("<HHH", 0, 1, len(pngs)) + entries + images


def make(icon_folder, picture_folder):
    """Writes all pictures and gives the files."""
    made = []
    for size in ICON_SIZES:
        name = "quillor-small.svg" if size <= LARGEST_SMALL_ICON else "quillor.svg"
        made.append(icon_folder / f"quillor-{size}.png")
        draw(ICON / name, (size, size), made[-1])
    pngs = {size: (icon_folder / f"quillor-{size}.png").read_bytes() for size in ICO_SIZES}
    made.append(icon_folder / "quillor.ico")
    made[-1].write_bytes(ico(pngs))
    for page, size in PAGES.items():
        made.append(picture_folder / f"{page}.png")
        draw(PICTURES / f"{page}.svg", size, made[-1])
    return made


def check():
    """Whether the pictures that lie here are what the drawings give."""
    with tempfile.TemporaryDirectory() as name:
        fresh = pathlib.Path(name)
        changed = [file.name for file in make(fresh, fresh)
                   if file.read_bytes() != (
                       (PICTURES if file.stem in PAGES else ICON) / file.name).read_bytes()]
    for file in changed:
        print(f"{file} is not what make_pictures.py makes", file=sys.stderr)
    return not changed


def main():
    parser = argparse.ArgumentParser(description="Makes the pictures from their drawings.")
    parser.add_argument("--check", action="store_true", help="compare, write nothing")
    if parser.parse_args().check:
        return 0 if check() else 1
    make(ICON, PICTURES)
    return 0


if __name__ == "__main__":
    sys.exit(main())
