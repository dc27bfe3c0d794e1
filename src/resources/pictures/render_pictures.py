#!/usr/bin/env python3
"""Makes the bitmaps, masks and icons of the library from the drawings beside this script.

    render_pictures.py header <Pictures.h>     the numbers for C++
    render_pictures.py resources <directory>   bitmaps, masks, icons, and Pictures.rc that names them
    render_pictures.py sheet <sheet.png>       all pictures on four grounds, to look at

Pictures.txt says what is made. rsvg-convert draws; everything else is the standard library.
"""

import argparse
import collections
import concurrent.futures
import os
import pathlib
import struct
import subprocess
import sys
import zlib

FOLDER = pathlib.Path(__file__).resolve().parent
RSVG_CONVERT = os.environ.get("RSVG_CONVERT", "rsvg-convert")
FREE_NUMBERS = 0x5100  # from here on the numbers are ours to choose
DOUBLE_SIZE_OFFSET = 0x6000
NEUTRAL_GROUND = (0xF0, 0xF0, 0xF0)

# Colours of the drawings, and what stands for them in a state other than the normal one. Selected rows may be dark
# or, in high contrast, bright: there a white page in a dark outline shows on both.
STATES = {
    "": {},
    "disabled": {"#4A7CB0": "#8A9199", "#EAF1F8": "#F2F3F4", "#A9C4DE": "#CDD1D5", "#E0771F": "#ABB1B7"},
    "selected": {"#4A7CB0": "#16304D", "#EAF1F8": "#FFFFFF", "#A9C4DE": "#A9C4DE", "#E0771F": "#B4540A"},
}

# A picture has the list of sizes [size]; an icon has mask None and all its sizes.
Row = collections.namedtuple("Row", "bitmap mask sizes drawing state mirrored")
# Pixels are RGBA, four bytes each, row by row from the top; alpha is not multiplied in.
Image = collections.namedtuple("Image", "width height pixels")


class TableError(Exception):
    pass


def read_table():
    rows = []
    text = (FOLDER / "Pictures.txt").read_text(encoding="ascii")
    for number, line in enumerate(text.splitlines(), start=1):
        fields = line.split("#")[0].split()
        if not fields:
            continue
        try:
            bitmap, mask, sizes, drawing, mirrored = fields
            drawing, _, state = drawing.partition(".")
            rows.append(Row(int(bitmap, 0), None if mask == "icon" else int(mask, 0),
                            [int(size) for size in sizes.split(",")], drawing, state,
                            {"0": False, "1": True}[mirrored]))
        except (ValueError, KeyError) as error:
            raise TableError(f"Pictures.txt:{number}: bad line: {line}") from error
    check_table(rows)
    return rows


def check_table(rows):
    """What can be said without drawing: every number has one meaning, every drawing is there."""
    bitmaps = [row.bitmap for row in rows if row.mask is not None]
    icons = [row.bitmap for row in rows if row.mask is None]
    masks = {row.mask for row in rows} - {None}
    for numbers in (bitmaps, icons):
        twice = sorted({number for number in numbers if numbers.count(number) > 1})
        if twice:
            raise TableError(f"numbers taken twice: {twice}")
    both = sorted(masks & set(bitmaps))
    if both:
        raise TableError(f"numbers of both a bitmap and a mask: {both}")
    for row in rows:
        if row.state not in STATES:
            raise TableError(f"{row.drawing}.{row.state}: no such state")
        if not (FOLDER / f"{row.drawing}.svg").is_file():
            raise TableError(f"{row.drawing}.svg is missing")
        if row.bitmap >= DOUBLE_SIZE_OFFSET or (row.mask or 0) >= DOUBLE_SIZE_OFFSET:
            raise TableError(f"{row.bitmap:#x}: from {DOUBLE_SIZE_OFFSET:#x} up stand the double sizes")
        for other in rows:
            if row.mask is not None and row.mask == other.mask and \
                    (row.sizes, row.mirrored) != (other.sizes, other.mirrored):
                raise TableError(f"mask {row.mask} is shared by pictures of different size or mirroring")


def check_outline(row, size, alpha, outlines):
    """What must be seen: shared masks share their outline, and small pictures leave the outer ring empty."""
    if outlines.setdefault((row.mask, size), alpha) != alpha:
        raise TableError(f"{row.drawing}: its outline differs from another picture's with mask {row.mask}")
    if size == 16:
        ring = alpha[:16] + alpha[-16:] + alpha[::16] + alpha[15::16]
        if any(ring):
            raise TableError(f"{row.drawing}: paints the outer ring of its 16 by 16 pixels")


# Drawing

def decode_png(data):
    """An image from a PNG of 8-bit RGBA without interlacing, which is what rsvg-convert writes."""
    width = height = 0
    packed = b""
    position = 8
    while position < len(data):
        length, kind = struct.unpack_from(">I4s", data, position)
        body = data[position + 8:position + 8 + length]
        position += 12 + length
        if kind == b"IHDR":
            width, height, depth, colour, _, _, interlace = struct.unpack(">IIBBBBB", body)
            if (depth, colour, interlace) != (8, 6, 0):
                raise ValueError("not a plain RGBA PNG")
        elif kind == b"IDAT":
            packed += body
    raw = zlib.decompress(packed)
    stride = 4 * width
    pixels = bytearray()
    above = bytearray(stride)
    for y in range(height):
        start = y * (stride + 1)
        line = unfilter(raw[start], bytearray(raw[start + 1:start + 1 + stride]), above)
        pixels += line
        above = line
    return Image(width, height, bytes(pixels))


def unfilter(kind, line, above):
    for i in range(len(line)):
        left = line[i - 4] if i >= 4 else 0
        corner = above[i - 4] if i >= 4 else 0
        if kind == 1:
            line[i] = (line[i] + left) & 255
        elif kind == 2:
            line[i] = (line[i] + above[i]) & 255
        elif kind == 3:
            line[i] = (line[i] + (left + above[i]) // 2) & 255
        elif kind == 4:
            estimate = left + above[i] - corner
            nearest = min((abs(estimate - value), order, value)
                          for order, value in enumerate((left, above[i], corner)))
            line[i] = (line[i] + nearest[2]) & 255
    return line


def encode_png(image):
    def chunk(kind, body):
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    stride = 4 * image.width
    raw = b"".join(b"\0" + image.pixels[y * stride:(y + 1) * stride] for y in range(image.height))
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", image.width, image.height, 8, 6, 0, 0, 0)) +
            chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b""))


def render_svg(svg, width, height):
    png = subprocess.run([RSVG_CONVERT, "--width", str(width), "--height", str(height)], input=svg.encode(),
                         stdout=subprocess.PIPE, check=True).stdout
    return decode_png(png)


def render(row, size):
    svg = (FOLDER / f"{row.drawing}.svg").read_text(encoding="utf-8")
    for normal, other in STATES[row.state].items():
        svg = svg.replace(normal, other)
    return render_svg(svg, size, size)


def render_all(rows):
    """{(row index, size): image} for all sizes: natural and double of a picture, the listed ones of an icon."""
    jobs = [(index, size) for index, row in enumerate(rows)
            for size in (row.sizes if row.mask is None else (row.sizes[0], 2 * row.sizes[0]))]
    with concurrent.futures.ThreadPoolExecutor() as pool:
        images = dict(zip(jobs, pool.map(lambda job: render(rows[job[0]], job[1]), jobs)))
    outlines = {}
    for (index, size), image in images.items():
        if rows[index].mask is not None:
            check_outline(rows[index], size, image.pixels[3::4], outlines)
    return images


# Files

def bmp_file(width, height, colours):
    """A bitmap file of (blue, green, red) colours, row by row from the top. The few colours of a drawing go into a
    table of 16 or 256, which takes a third of the room and loses nothing."""
    table = sorted(set(colours))
    if len(table) > 256:
        depth, palette = 24, b""
    else:
        depth = 4 if len(table) <= 16 else 8
        palette = b"".join(bytes(colour) + b"\0" for colour in table)
    index = {colour: number for number, colour in enumerate(table)}
    bits = b""
    for y in reversed(range(height)):  # the file has its rows from the bottom, each filled to a multiple of four
        row = colours[y * width:(y + 1) * width]
        if depth == 24:
            line = b"".join(bytes(colour) for colour in row)
        elif depth == 8:
            line = bytes(index[colour] for colour in row)
        else:
            line = bytes(index[left] << 4 | index[right] for left, right in zip(row[::2], row[1::2]))
        bits += line + bytes(-len(line) % 4)
    header = struct.pack("<IiiHHIIiiII", 40, width, height, 1, depth, 0, len(bits), 0, 0, len(palette) // 4, 0)
    offset = 14 + len(header) + len(palette)
    return struct.pack("<2sIHHI", b"BM", offset + len(bits), 0, 0, offset) + header + palette + bits


def colour_bmp(image):
    pixels = zip(*[iter(image.pixels)] * 4)
    return bmp_file(image.width, image.height,
                    [(blue, green, red) if alpha else NEUTRAL_GROUND for red, green, blue, alpha in pixels])


def mask_bmp(image):
    return bmp_file(image.width, image.height, [(alpha, alpha, alpha) for alpha in image.pixels[3::4]])


def ico_file(images):
    directory = struct.pack("<HHH", 0, 1, len(images))
    position = len(directory) + 16 * len(images)
    bodies = []
    for image in images:
        colours = bytearray()
        transparent = bytearray()
        for y in reversed(range(image.height)):
            bits = 0
            for x in range(image.width):
                red, green, blue, alpha = image.pixels[4 * (y * image.width + x):][:4]
                colours += bytes((blue, green, red, alpha))
                bits = bits << 1 | (alpha == 0)
            padding = -image.width % 32
            transparent += (bits << padding).to_bytes((image.width + padding) // 8, "big")
        # The height of the header counts both planes.
        header = struct.pack("<IiiHHIIiiII", 40, image.width, 2 * image.height, 1, 32, 0,
                             len(colours) + len(transparent), 0, 0, 0, 0)
        bodies.append(header + colours + transparent)
        directory += struct.pack("<BBBBHHII", image.width % 256, image.height % 256, 0, 0, 1, 32, len(bodies[-1]),
                                 position)
        position += len(bodies[-1])
    return directory + b"".join(bodies)


# What the script makes

def write_resources(rows, folder):
    folder.mkdir(parents=True, exist_ok=True)
    images = render_all(rows)
    script = ["// Made from Pictures.txt.", "#pragma code_page(65001)", "LANGUAGE 0, 0", ""]

    def add(number, kind, name, content):
        path = folder / name
        path.write_bytes(content)
        script.append(f'{number} {kind} "{path.as_posix()}"')

    masks = set()
    for index, row in enumerate(rows):
        if row.mask is None:
            add(row.bitmap, "ICON", f"icon-{row.bitmap}.ico", ico_file([images[index, size] for size in row.sizes]))
            continue
        for size, offset in ((row.sizes[0], 0), (2 * row.sizes[0], DOUBLE_SIZE_OFFSET)):
            image = images[index, size]
            add(row.bitmap + offset, "BITMAP", f"picture-{row.bitmap}-{size}.bmp", colour_bmp(image))
            if row.mask + offset not in masks:
                masks.add(row.mask + offset)
                add(row.mask + offset, "BITMAP", f"mask-{row.mask}-{size}.bmp", mask_bmp(image))
    (folder / "Pictures.rc").write_text("\n".join(script) + "\n", encoding="utf-8")


def constant_names(rows):
    """k<Drawing><State>, with the size behind it where a drawing comes in several sizes."""
    def key(row):
        return row.drawing, row.state, row.mask is None

    counts = collections.Counter(key(row) for row in rows)
    names = []
    for row in rows:
        words = row.drawing.split("-") + [row.state]
        name = "k" + "".join(word.capitalize() for word in words)
        names.append(name + (str(row.sizes[0]) if counts[key(row)] > 1 else ""))
    return names


def write_header(rows, path):
    names = constant_names(rows)
    pictures = [(name, row) for name, row in zip(names, rows) if row.mask is not None]
    icons = [(name, row) for name, row in zip(names, rows) if row.mask is None]

    def number(value):
        return f"0x{value:04X}" if value >= FREE_NUMBERS else str(value)

    constants = [f"inline constexpr PictureNumbers {name} = {{{number(row.bitmap)}, {number(row.mask)}, "
                 f"{row.sizes[0]}, {'true' if row.mirrored else 'false'}}};" for name, row in pictures]
    icon_constants = [f"inline constexpr std::uint16_t {name}Icon = {row.bitmap};" for name, row in icons]
    text = f"""// The numbers of the pictures and icons in the resources. Made from src/resources/pictures/Pictures.txt.
#pragma once

#include <cstdint>

// A square picture: a colour bitmap and a mask whose brightness is the picture's alpha (white is opaque).
struct PictureNumbers {{
  std::uint16_t bitmap;
  std::uint16_t mask;
  std::uint16_t size;  // edge in pixels at 96 dpi
  bool mirrored;       // flipped in a right-to-left window
}};

// Both numbers plus this are the same picture at twice the size, for 144 dpi and more.
inline constexpr std::uint16_t kDoubleSizeOffset = {DOUBLE_SIZE_OFFSET:#x};

namespace Pictures {{

{chr(10).join(constants)}

{chr(10).join(icon_constants)}

}}  // namespace Pictures

inline constexpr PictureNumbers kPictures[] = {{
    {f",{chr(10)}    ".join("Pictures::" + name for name, _ in pictures)},
}};

// The picture with that bitmap number; null if there is none.
constexpr const PictureNumbers* FindPicture(int bitmap) {{
  for (const PictureNumbers& picture : kPictures) {{
    if (picture.bitmap == bitmap) return &picture;
  }}
  return nullptr;
}}
"""
    # An unchanged header keeps its time, so that nothing is compiled again.
    if not path.is_file() or path.read_text(encoding="ascii") != text:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="ascii")


# Contact sheet

SHEET_GROUNDS = ((0xFF, 0xFF, 0xFF), (0xF0, 0xF0, 0xF0), (0x20, 0x20, 0x20), (0, 0, 0))


class Canvas:
    def __init__(self, width, height, ground):
        self.width, self.height = width, height
        self.pixels = bytearray(bytes(ground + (255,)) * (width * height))

    def fill(self, left, top, width, height, colour):
        for y in range(top, top + height):
            start = 4 * (y * self.width + left)
            self.pixels[start:start + 4 * width] = bytes(colour + (255,)) * width

    def draw(self, image, left, top, zoom=1):
        for y in range(image.height * zoom):
            for x in range(image.width * zoom):
                source = 4 * (y // zoom * image.width + x // zoom)
                alpha = image.pixels[source + 3]
                if alpha == 0:
                    continue
                target = 4 * ((top + y) * self.width + left + x)
                for channel in range(3):
                    ground = self.pixels[target + channel]
                    self.pixels[target + channel] = (image.pixels[source + channel] * alpha +
                                                     ground * (255 - alpha)) // 255


def write_sheet(rows, path):
    """Two columns of pictures: label, then on each ground the natural size, the double, and small ones magnified."""
    images = render_all(rows)
    label_width, ground_width, row_height = 190, 240, 132
    columns = 2
    lines = -(-len(rows) // columns)
    column_width = label_width + len(SHEET_GROUNDS) * ground_width
    canvas = Canvas(columns * column_width, lines * row_height, (0x80, 0x80, 0x80))
    labels = []
    for index, row in enumerate(rows):
        left = index // lines * column_width
        top = index % lines * row_height
        sizes = row.sizes if row.mask is None else [row.sizes[0], 2 * row.sizes[0]]
        labels.append(f'<text x="{left + 6}" y="{top + 60}">{row.drawing}{"." * bool(row.state)}{row.state}</text>'
                      f'<text x="{left + 6}" y="{top + 78}">{row.bitmap:#x} {row.bitmap}, {row.sizes[0]} px</text>')
        for column, ground in enumerate(SHEET_GROUNDS):
            x = left + label_width + column * ground_width
            canvas.fill(x, top, ground_width, row_height, ground)
            x += 8
            if sizes[0] == 16:
                canvas.draw(images[index, 16], x, top + 16, 6)
                x += 104
            for size in sizes if column == 0 or row.mask is not None else sizes[:4]:
                if x + size <= left + label_width + (column + 1) * ground_width:
                    canvas.draw(images[index, size], x, top + (row_height - size) // 2)
                x += size + 8
    svg = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{canvas.width}" height="{canvas.height}" '
           f'font-family="sans-serif" font-size="13" fill="#FFFFFF">{"".join(labels)}</svg>')
    canvas.draw(render_svg(svg, canvas.width, canvas.height), 0, 0)
    path.write_bytes(encode_png(Image(canvas.width, canvas.height, bytes(canvas.pixels))))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("what", choices=("header", "resources", "sheet"))
    parser.add_argument("target", type=pathlib.Path)
    arguments = parser.parse_args()
    make = {"header": write_header, "resources": write_resources, "sheet": write_sheet}[arguments.what]
    try:
        make(read_table(), arguments.target.absolute())
    except (TableError, subprocess.CalledProcessError, FileNotFoundError) as error:
        sys.exit(f"pictures: {error}")


if __name__ == "__main__":
    main()
