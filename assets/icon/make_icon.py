#!/usr/bin/env python3
"""Draws the Stayhold application icon: a blue shield holding two white "pause" bars.

The shape is described once in unit coordinates and rasterised per size with analytic
anti-aliasing from a signed distance, so every image is crisp and the output is byte-for-byte
reproducible. Writes an .ico with 16, 20, 24, 32, 48 (32-bit DIB) and 256 (PNG) images, and
optionally a PNG preview of every size side by side.

usage: make_icon.py OUTPUT.ico [PREVIEW.png]
"""
import math
import struct
import sys
import zlib

SIZES = (16, 20, 24, 32, 48, 256)


def shield_outline():
    """The shield as a closed polygon in unit coordinates (y grows downwards)."""
    pts = []
    top, left, right, r = 0.07, 0.12, 0.88, 0.10
    # rounded top-left corner
    for i in range(9):
        a = math.pi + (math.pi / 2) * i / 8
        pts.append((left + r + r * math.cos(a), top + r + r * math.sin(a)))
    # rounded top-right corner
    for i in range(9):
        a = -math.pi / 2 + (math.pi / 2) * i / 8
        pts.append((right - r + r * math.cos(a), top + r + r * math.sin(a)))
    # right side down, then a curve into the point at the bottom
    shoulder = 0.50
    tip = (0.5, 0.95)
    for i in range(1, 25):
        t = i / 24
        # quadratic Bezier from (right, shoulder) via (right, 0.80) to the tip
        x = (1 - t) ** 2 * right + 2 * (1 - t) * t * right + t * t * tip[0]
        y = (1 - t) ** 2 * shoulder + 2 * (1 - t) * t * 0.80 + t * t * tip[1]
        pts.append((x, y))
    for i in range(1, 24):
        t = i / 24
        x = (1 - t) ** 2 * tip[0] + 2 * (1 - t) * t * left + t * t * left
        y = (1 - t) ** 2 * tip[1] + 2 * (1 - t) * t * 0.80 + t * t * shoulder
        pts.append((x, y))
    return pts


def signed_distance(px, py, poly):
    """Distance to the polygon's edge, negative inside."""
    best = 1e9
    inside = False
    n = len(poly)
    for i in range(n):
        ax, ay = poly[i]
        bx, by = poly[(i + 1) % n]
        dx, dy = bx - ax, by - ay
        t = ((px - ax) * dx + (py - ay) * dy) / (dx * dx + dy * dy)
        t = 0.0 if t < 0 else 1.0 if t > 1 else t
        ex, ey = ax + t * dx - px, ay + t * dy - py
        d = ex * ex + ey * ey
        if d < best:
            best = d
        if (ay > py) != (by > py) and px < ax + (py - ay) * dx / dy:
            inside = not inside
    d = math.sqrt(best)
    return -d if inside else d


def rounded_box_distance(px, py, cx, cy, hw, hh, r):
    qx = abs(px - cx) - hw + r
    qy = abs(py - cy) - hh + r
    outside = math.hypot(max(qx, 0.0), max(qy, 0.0))
    return outside + min(max(qx, qy), 0.0) - r


def bar_boxes(size):
    """The two bars in pixel units, snapped to whole pixels so they stay sharp at 16 px."""
    bar = max(2, round(size * 0.115))
    gap = max(2, round(size * 0.085))
    if (size - (2 * bar + gap)) % 2:
        gap += 1
    left = (size - (2 * bar + gap)) // 2
    top, bottom = round(size * 0.28), round(size * 0.68)
    hh = (bottom - top) / 2
    return [(left + bar / 2, top + hh, bar / 2, hh),
            (left + bar + gap + bar / 2, top + hh, bar / 2, hh)]


def mix(a, b, t):
    return tuple(a[i] + (b[i] - a[i]) * t for i in range(3))


def over(dst, src_rgb, src_a):
    """Source-over of straight-alpha colour onto a straight-alpha pixel."""
    r, g, b, a = dst
    out_a = src_a + a * (1 - src_a)
    if out_a <= 0:
        return (0.0, 0.0, 0.0, 0.0)
    k = a * (1 - src_a)
    return (
        (src_rgb[0] * src_a + r * k) / out_a,
        (src_rgb[1] * src_a + g * k) / out_a,
        (src_rgb[2] * src_a + b * k) / out_a,
        out_a,
    )


def coverage(distance_px):
    return min(1.0, max(0.0, 0.5 - distance_px))


TOP = (0x3B, 0x8B, 0xF0)
BOTTOM = (0x17, 0x3C, 0x8C)
RIM = (0x0C, 0x22, 0x52)
WHITE = (0xFF, 0xFF, 0xFF)


def render(size):
    poly = shield_outline()
    # Small sizes: margin of half a pixel so the outline never touches the cell edge.
    margin = 0.5 / size
    scale = 1.0 - 2 * margin
    rim = max(1.0, size / 32.0)  # outline width in pixels
    bars = bar_boxes(size)
    pixels = []
    for y in range(size):
        for x in range(size):
            ux = ((x + 0.5) / size - margin) / scale
            uy = ((y + 0.5) / size - margin) / scale
            d = signed_distance(ux, uy, poly) * size * scale
            px = (0.0, 0.0, 0.0, 0.0)
            a_shape = coverage(d)
            if a_shape > 0:
                px = over(px, RIM, a_shape)
                body = mix(TOP, BOTTOM, min(1.0, max(0.0, (uy - 0.07) / 0.88)))
                if size >= 32:
                    # a soft sheen across the upper left half
                    sheen = max(0.0, 0.5 - (ux * 0.7 + uy)) * 0.35
                    body = mix(body, WHITE, sheen)
                px = over(px, body, coverage(d + rim))
                for cx, cy, hw, hh in bars:
                    bd = rounded_box_distance(x + 0.5, y + 0.5, cx, cy, hw, hh, min(hw, hh) / 1.5)
                    px = over(px, WHITE, coverage(bd))
            pixels.append(px)
    return pixels


def to_bgra_bytes(pixels):
    out = bytearray()
    for r, g, b, a in pixels:
        out += bytes((round(b), round(g), round(r), round(a * 255)))
    return bytes(out)


def png_bytes(size, pixels):
    raw = bytearray()
    for y in range(size):
        raw.append(0)
        for x in range(size):
            r, g, b, a = pixels[y * size + x]
            raw += bytes((round(r), round(g), round(b), round(a * 255)))

    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(bytes(raw), 9)) + chunk(b"IEND", b""))


def dib_bytes(size, pixels):
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    bgra = to_bgra_bytes(pixels)
    rows = [bgra[y * size * 4:(y + 1) * size * 4] for y in range(size)]
    xor = b"".join(reversed(rows))  # bottom-up
    mask_stride = ((size + 31) // 32) * 4
    mask = bytearray()
    for y in reversed(range(size)):
        row = bytearray(mask_stride)
        for x in range(size):
            if pixels[y * size + x][3] == 0:
                row[x // 8] |= 0x80 >> (x % 8)
        mask += row
    return header + xor + bytes(mask)


def write_ico(path, images):
    count = len(images)
    directory = bytearray(struct.pack("<HHH", 0, 1, count))
    offset = 6 + 16 * count
    blobs = []
    for size, blob in images:
        dim = 0 if size >= 256 else size
        directory += struct.pack("<BBBBHHII", dim, dim, 0, 0, 1, 32, len(blob), offset)
        offset += len(blob)
        blobs.append(blob)
    with open(path, "wb") as f:
        f.write(bytes(directory) + b"".join(blobs))


def write_preview(path, rendered):
    width = sum(s for s, _ in rendered) + 8 * (len(rendered) + 1)
    height = max(s for s, _ in rendered) + 16
    canvas = [(0xF3, 0xF4, 0xF6, 1.0)] * (width * height)
    x0 = 8
    for size, pixels in rendered:
        for y in range(size):
            for x in range(size):
                r, g, b, a = pixels[y * size + x]
                i = (y + 8) * width + x0 + x
                canvas[i] = over(canvas[i], (r, g, b), a)
        x0 += size + 8
    raw = bytearray()
    for y in range(height):
        raw.append(0)
        for x in range(width):
            r, g, b, _ = canvas[y * width + x]
            raw += bytes((round(r), round(g), round(b)))

    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    with open(path, "wb") as f:
        f.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
                + chunk(b"IDAT", zlib.compress(bytes(raw), 9)) + chunk(b"IEND", b""))


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    rendered = [(s, render(s)) for s in SIZES]
    images = [(s, png_bytes(s, p) if s >= 256 else dib_bytes(s, p)) for s, p in rendered]
    write_ico(sys.argv[1], images)
    if len(sys.argv) == 3:
        write_preview(sys.argv[2], rendered)


if __name__ == "__main__":
    main()
