"""The pictures as other programs see them: the SVG parses as XML with the expected
elements, and Chromium renders it like the PNG the canvas renders (same size, not blank,
the same light and dark regions).

Usage: plot_render_test.py KORNUM"""
import os
import shutil
import struct
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET
import zlib

SVG = "{http://www.w3.org/2000/svg}"


def read_png(path):
    """(width, height, rows of grey levels) of an 8-bit RGB or RGBA PNG, not interlaced."""
    data = open(path, "rb").read()
    assert data[:8] == b"\x89PNG\r\n\x1a\n", path
    at, idat = 8, b""
    while at < len(data):
        length, kind = struct.unpack(">I4s", data[at:at + 8])
        body = data[at + 8:at + 8 + length]
        if kind == b"IHDR":
            width, height, depth, colour, _, _, interlace = struct.unpack(">IIBBBBB", body)
            assert depth == 8 and colour in (2, 6) and interlace == 0, (depth, colour, interlace)
        elif kind == b"IDAT":
            idat += body
        at += 12 + length
    channels = 3 if colour == 2 else 4
    raw, stride = zlib.decompress(idat), width * channels
    rows, above = [], bytearray(stride)
    for y in range(height):
        kind, line = raw[y * (stride + 1)], bytearray(raw[y * (stride + 1) + 1:(y + 1) * (stride + 1)])
        for i in range(stride):
            left = line[i - channels] if i >= channels else 0
            up, corner = above[i], above[i - channels] if i >= channels else 0
            if kind == 1:
                line[i] = (line[i] + left) & 0xFF
            elif kind == 2:
                line[i] = (line[i] + up) & 0xFF
            elif kind == 3:
                line[i] = (line[i] + (left + up) // 2) & 0xFF
            elif kind == 4:
                p = left + up - corner
                pa, pb, pc = abs(p - left), abs(p - up), abs(p - corner)
                line[i] = (line[i] + (left if pa <= pb and pa <= pc else up if pb <= pc else corner)) & 0xFF
        rows.append([sum(line[x * channels:x * channels + 3]) // 3 for x in range(width)])
        above = line
    return width, height, rows


def blocks(rows, width, height, size=20):
    """Mean grey level of each size x size block."""
    return [sum(rows[y][x] for y in range(by, min(by + size, height)) for x in range(bx, min(bx + size, width)))
            / (min(size, height - by) * min(size, width - bx))
            for by in range(0, height, size) for bx in range(0, width, size)]


def main():
    kornum = sys.argv[1]
    chromium = shutil.which("chromium") or shutil.which("chromium-browser")
    if chromium is None:
        sys.exit("chromium is not installed (scripts/install-deps.sh installs it)")
    work = tempfile.mkdtemp(prefix="kornum-plot-")
    try:
        data = os.path.join(work, "data.txt")
        with open(data, "w") as f:
            f.write(" ".join(str(1000 + (i * 7919) % 401 - (i * 104729) % 337) for i in range(500)))
        commands = {
            "describe": [kornum, "describe", data, "--plot"],
            "dist": [kornum, "dist", "binomial", "plot", "0", "30", "30", "0.3", "-o"],
        }
        for name, command in commands.items():
            svg, png, shot = (os.path.join(work, name + ext) for ext in (".svg", ".png", "-chromium.png"))
            for path in (svg, png):
                subprocess.run(command + [path], check=True, stdout=subprocess.DEVNULL)

            root = ET.parse(svg).getroot()
            assert root.tag == SVG + "svg", root.tag
            width, height = int(root.get("width")), int(root.get("height"))
            texts = [t.text for t in root.iter(SVG + "text")]
            assert all(t for t in texts) and len(texts) > 20, texts
            assert root.find(SVG + "clipPath") is not None
            assert len(root.findall(SVG + "rect")) > 5
            if name == "describe":
                assert "\u03bc" in texts and "\u03c3" in texts, texts  # the caption's mu and sigma
                assert root.find(SVG + "polyline") is not None

            subprocess.run([chromium, "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
                            "--force-device-scale-factor=1", f"--window-size={width},{height}",
                            f"--screenshot={shot}", "file://" + svg],
                           check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=120)
            w1, h1, ours = read_png(png)
            w2, h2, theirs = read_png(shot)
            assert (w1, h1) == (w2, h2) == (width, height), ((w1, h1), (w2, h2), (width, height))
            for rows in (ours, theirs):
                dark = sum(1 for row in rows for g in row if g < 200)
                assert dark > 0.02 * width * height, f"{name}: blank picture ({dark} dark pixels)"
            a, b = blocks(ours, width, height), blocks(theirs, width, height)
            worst = max(abs(x - y) for x, y in zip(a, b))
            mean = sum(abs(x - y) for x, y in zip(a, b)) / len(a)
            # Text is hinted differently; shapes must land on the same blocks.
            assert mean < 4 and worst < 60, f"{name}: SVG and PNG differ (mean {mean:.1f}, worst block {worst:.1f})"
            print(f"{name}: {width} x {height}, block difference mean {mean:.2f}, worst {worst:.1f}")
    finally:
        shutil.rmtree(work)


if __name__ == "__main__":
    main()
