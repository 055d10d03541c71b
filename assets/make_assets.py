#!/usr/bin/env python3
"""Draws Stayhold's button images: the four title-bar glyphs (minimize, maximize, restore, close)
and the two update-button badges (check for updates, update available), each in the states
normal, _hot, _pressed and _disabled: 24 RGBA PNG files with straight alpha.

Every shape is a signed distance in pixel units, turned into coverage with analytic
anti-aliasing. Straight strokes lie on whole-pixel edges, so they come out fully opaque and sharp
at 100%; only diagonals and curves get soft edges. The output is byte-for-byte reproducible.

usage: make_assets.py OUTPUT_DIR
       make_assets.py --preview SHEET.png    (all 24 at 4x on a dark and a light background)
"""
import math
import os
import struct
import sys
import zlib

# The title bar's default button cell is 46 x 30 and an image is shrunk when it exceeds the cell
# less 10 and 6 pixels; 36 x 22 (the size of the toolkit's own fallback glyphs) is drawn 1:1.
CHROME_SIZE = (36, 22)
# The settings update button is a 28 x 28 bitmap button in the title bar; its image is stretched
# to the button, so it is drawn at exactly that size.
UPDATE_SIZE = (28, 28)

GLYPH = (0xE2, 0xF4, 0xF0)
WHITE = (0xFF, 0xFF, 0xFF)
CLOSE_RED = (0xC4, 0x2B, 0x1C)
CLOSE_RED_PRESSED = (0xA3, 0x23, 0x17)
ACCENT = (0xFF, 0xB4, 0x5A)

STATES = ("", "_hot", "_pressed", "_disabled")
DISABLED_ALPHA = 0.4


# --- Signed distances (pixel units, negative inside) -------------------------------------------

def box(x0, y0, x1, y1, r=0.0):
    """A rectangle from (x0, y0) to (x1, y1), corners rounded by r."""
    cx, cy, hw, hh = (x0 + x1) / 2, (y0 + y1) / 2, (x1 - x0) / 2, (y1 - y0) / 2

    def d(px, py):
        qx = abs(px - cx) - hw + r
        qy = abs(py - cy) - hh + r
        return math.hypot(max(qx, 0.0), max(qy, 0.0)) + min(max(qx, qy), 0.0) - r
    return d


def frame(x0, y0, x1, y1, width, r=0.0):
    """The outline of a rectangle, `width` thick, lying inside the rectangle's edges."""
    h = width / 2
    centre = box(x0 + h, y0 + h, x1 - h, y1 - h, max(r - h, 0.0))
    return lambda px, py: abs(centre(px, py)) - h


def segment(ax, ay, bx, by, width):
    """A straight stroke with flat ends at a and b."""
    length = math.hypot(bx - ax, by - ay)
    ux, uy = (bx - ax) / length, (by - ay) / length
    mx, my = (ax + bx) / 2, (ay + by) / 2

    def d(px, py):
        u = abs((px - mx) * ux + (py - my) * uy) - length / 2
        v = abs(-(px - mx) * uy + (py - my) * ux) - width / 2
        return math.hypot(max(u, 0.0), max(v, 0.0)) + min(max(u, v), 0.0)
    return d


def capsule(ax, ay, bx, by, width):
    """A straight stroke with round ends."""
    dx, dy = bx - ax, by - ay
    ll = dx * dx + dy * dy

    def d(px, py):
        t = min(1.0, max(0.0, ((px - ax) * dx + (py - ay) * dy) / ll))
        return math.hypot(px - ax - t * dx, py - ay - t * dy) - width / 2
    return d


def circle(cx, cy, r):
    return lambda px, py: math.hypot(px - cx, py - cy) - r


def ring(cx, cy, r, width):
    """A circle's outline, centred on radius r."""
    return lambda px, py: abs(math.hypot(px - cx, py - cy) - r) - width / 2


def arc(cx, cy, r, width, start, end):
    """Part of a ring from angle `start` to `end` (degrees, clockwise on screen), flat ends."""
    a0, a1 = math.radians(start), math.radians(end)
    mid = (a0 + a1) / 2
    half = (a1 - a0) / 2
    # The two flat ends as half-planes through the centre, facing out of the arc.
    n0 = (math.sin(a0), -math.cos(a0))
    n1 = (-math.sin(a1), math.cos(a1))

    def d(px, py):
        x, y = px - cx, py - cy
        radial = abs(math.hypot(x, y) - r) - width / 2
        # Angular distance to the arc's middle, folded to [0, pi].
        ang = abs(math.remainder(math.atan2(y, x) - mid, 2 * math.pi))
        if ang <= half:
            cut = max(x * n0[0] + y * n0[1], x * n1[0] + y * n1[1])
            return max(radial, cut)
        # Beyond an end: distance to that end's flat cap.
        a = a0 if math.remainder(math.atan2(y, x) - a0, 2 * math.pi) ** 2 < \
            math.remainder(math.atan2(y, x) - a1, 2 * math.pi) ** 2 else a1
        ex, ey = math.cos(a), math.sin(a)
        t = x * ex + y * ey
        along = abs(t - r) - width / 2
        across = abs(-x * ey + y * ex)
        return math.hypot(max(along, 0.0), across) if along > 0 else across
    return d


def polygon(points):
    """A closed polygon, convex or not."""
    n = len(points)

    def d(px, py):
        best = 1e9
        inside = False
        for i in range(n):
            ax, ay = points[i]
            bx, by = points[(i + 1) % n]
            dx, dy = bx - ax, by - ay
            t = min(1.0, max(0.0, ((px - ax) * dx + (py - ay) * dy) / (dx * dx + dy * dy)))
            best = min(best, math.hypot(ax + t * dx - px, ay + t * dy - py))
            if (ay > py) != (by > py) and px < ax + (py - ay) * dx / dy:
                inside = not inside
        return -best if inside else best
    return d


def union(*shapes):
    return lambda px, py: min(s(px, py) for s in shapes)


def subtract(shape, cut):
    return lambda px, py: max(shape(px, py), -cut(px, py))


def intersect(*shapes):
    return lambda px, py: max(s(px, py) for s in shapes)


# --- Painting ----------------------------------------------------------------------------------

def coverage(distance):
    return min(1.0, max(0.0, 0.5 - distance))


class Canvas:
    """Straight-alpha float pixels, composited source-over."""

    def __init__(self, width, height):
        self.width, self.height = width, height
        self.pixels = [(0.0, 0.0, 0.0, 0.0)] * (width * height)

    def fill(self, shape, rgb, alpha=1.0):
        for y in range(self.height):
            for x in range(self.width):
                a = coverage(shape(x + 0.5, y + 0.5)) * alpha
                if a > 0:
                    i = y * self.width + x
                    self.pixels[i] = over(self.pixels[i], rgb, a)

    def erase(self, shape):
        """Cuts a shape out of what is painted, leaving real transparency."""
        for y in range(self.height):
            for x in range(self.width):
                c = coverage(shape(x + 0.5, y + 0.5))
                if c > 0:
                    i = y * self.width + x
                    r, g, b, a = self.pixels[i]
                    self.pixels[i] = (r, g, b, a * (1 - c))

    def rgba_bytes(self):
        out = bytearray()
        for r, g, b, a in self.pixels:
            a8 = round(a * 255)
            # Fully transparent pixels carry no colour, so the files stay clean and stable.
            out += bytes((round(r), round(g), round(b), a8)) if a8 else b"\0\0\0\0"
        return bytes(out)


def over(dst, rgb, src_a):
    r, g, b, a = dst
    out_a = src_a + a * (1 - src_a)
    if out_a <= 0:
        return (0.0, 0.0, 0.0, 0.0)
    k = a * (1 - src_a)
    return ((rgb[0] * src_a + r * k) / out_a, (rgb[1] * src_a + g * k) / out_a,
            (rgb[2] * src_a + b * k) / out_a, out_a)


def png_bytes(width, height, rgba, colour_type=6):
    """An 8-bit PNG, filter None on every row: RGBA (type 6) or RGB (type 2)."""
    stride = width * (4 if colour_type == 6 else 3)
    raw = bytearray()
    for y in range(height):
        raw.append(0)
        raw += rgba[y * stride:(y + 1) * stride]

    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    return (b"\x89PNG\r\n\x1a\n"
            + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, colour_type, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(bytes(raw), 9)) + chunk(b"IEND", b""))


# --- The title-bar glyphs ----------------------------------------------------------------------
# A 10 x 10 glyph box, centred in 36 x 22, with 1-pixel strokes on whole-pixel edges.
GX0, GY0 = 13, 6
GX1, GY1 = GX0 + 10, GY0 + 10


def glyph_minimize():
    # The box's middle falls between two rows; the upper one is where the eye puts the centre.
    return box(GX0, GY0 + 4, GX1, GY0 + 5)


def glyph_maximize():
    return frame(GX0, GY0, GX1, GY1, 1.0, 1.5)


def glyph_restore():
    front = (GX0, GY0 + 2, GX1 - 2, GY1)
    back = frame(GX0 + 2, GY0, GX1, GY1 - 2, 1.0, 1.5)
    return union(frame(*front, 1.0, 1.0), subtract(back, box(*front, 1.0)))


def glyph_close():
    # Diagonals look thinner than straight strokes of the same width; a touch more evens them.
    w = 1.15
    cross = union(segment(GX0, GY0, GX1, GY1, w), segment(GX1, GY0, GX0, GY1, w))
    return intersect(cross, box(GX0, GY0, GX1, GY1))


CHROME_GLYPHS = {
    "minimize": glyph_minimize,
    "maximize": glyph_maximize,
    "restore": glyph_restore,
    "close": glyph_close,
}


def draw_chrome(name, state):
    w, h = CHROME_SIZE
    canvas = Canvas(w, h)
    glyph = CHROME_GLYPHS[name]()
    plate = box(0, 0, w, h, 5.0)
    colour, alpha = GLYPH, 1.0
    if name == "close" and state in ("_hot", "_pressed"):
        canvas.fill(plate, CLOSE_RED if state == "_hot" else CLOSE_RED_PRESSED)
        colour = WHITE
    elif state == "_hot":
        canvas.fill(plate, GLYPH, 0.12)
    elif state == "_pressed":
        canvas.fill(plate, GLYPH, 0.20)
    elif state == "_disabled":
        alpha = DISABLED_ALPHA
    canvas.fill(glyph, colour, alpha)
    return canvas


# --- The update badges -------------------------------------------------------------------------
CX = CY = 14.0


def badge(canvas, state):
    """The round plate that both update images sit on; it brightens under the pointer."""
    fill, rim = {"": (0.10, 0.30), "_hot": (0.20, 0.45), "_pressed": (0.30, 0.55),
                 "_disabled": (0.10 * DISABLED_ALPHA, 0.30 * DISABLED_ALPHA)}[state]
    canvas.fill(circle(CX, CY, 13.0), GLYPH, fill)
    canvas.fill(ring(CX, CY, 12.5, 1.0), GLYPH, rim)


def arrowhead(cx, cy, r, angle, length, half_width):
    """A filled triangle whose base straddles the ring at `angle` and whose tip lies on the ring
    `length` pixels further clockwise, so the head follows the curve."""
    a = math.radians(angle)
    tip = a + length / r
    return polygon([(cx + (r + half_width) * math.cos(a), cy + (r + half_width) * math.sin(a)),
                    (cx + r * math.cos(tip), cy + r * math.sin(tip)),
                    (cx + (r - half_width) * math.cos(a), cy + (r - half_width) * math.sin(a))])


def glyph_refresh():
    r, w = 6.5, 2.0
    arcs = union(arc(CX, CY, r, w, 190, 308), arc(CX, CY, r, w, 10, 128))
    heads = union(arrowhead(CX, CY, r, 306, 4.6, 3.4), arrowhead(CX, CY, r, 126, 4.6, 3.4))
    return union(arcs, heads)


def glyph_download():
    stem = box(13, 6, 15, 16)
    head = union(capsule(10.0, 13.0, 14.0, 17.0, 2.0), capsule(18.0, 13.0, 14.0, 17.0, 2.0))
    tray = union(box(7, 17, 9, 22, 0.75), box(19, 17, 21, 22, 0.75), box(7, 20, 21, 22, 0.75))
    return union(stem, head, tray)


def draw_update(name, state):
    w, h = UPDATE_SIZE
    canvas = Canvas(w, h)
    badge(canvas, state)
    alpha = DISABLED_ALPHA if state == "_disabled" else 1.0
    if name == "check_updates":
        canvas.fill(glyph_refresh(), GLYPH, alpha)
    else:
        canvas.fill(glyph_download(), GLYPH, alpha)
        # The news dot sits on the badge's rim with a clear gap around it.
        dot = (21.5, 6.5, 4.0)
        canvas.erase(circle(dot[0], dot[1], dot[2] + 1.25))
        canvas.fill(circle(*dot), ACCENT, alpha)
    return canvas


# --- All images --------------------------------------------------------------------------------

def all_images():
    """(file name, Canvas) for all 24 images, in a fixed order."""
    out = []
    for base in ("check_updates", "update_available"):
        for state in STATES:
            out.append((f"stayhold_{base}{state}.png", draw_update(base, state)))
    for base in ("close", "maximize", "minimize", "restore"):
        for state in STATES:
            out.append((f"stayhold_chrome_{base}{state}.png", draw_chrome(base, state)))
    return out


def write_images(directory):
    os.makedirs(directory, exist_ok=True)
    for name, canvas in all_images():
        with open(os.path.join(directory, name), "wb") as f:
            f.write(png_bytes(canvas.width, canvas.height, canvas.rgba_bytes()))


def write_preview(path, scale=4):
    """A contact sheet: one row per image base, one column per state, each at `scale` times,
    with a 1:1 title-bar strip below. Three panels: as drawn on a dark background, as drawn on a
    light one, and on a light one recoloured the way a light skin's one-colour tint would (the
    red close plates excepted, which a skin leaves alone)."""
    images = dict(all_images())
    bases = ["stayhold_check_updates", "stayhold_update_available", "stayhold_chrome_minimize",
             "stayhold_chrome_maximize", "stayhold_chrome_restore", "stayhold_chrome_close"]
    strip = ["stayhold_check_updates", "stayhold_update_available", "stayhold_chrome_minimize",
             "stayhold_chrome_maximize", "stayhold_chrome_close", None,
             "stayhold_update_available_hot", "stayhold_chrome_minimize_hot",
             "stayhold_chrome_restore_pressed", "stayhold_chrome_close_hot", None,
             "stayhold_check_updates_disabled", "stayhold_chrome_maximize_disabled"]
    panels = (((0x1B, 0x24, 0x27), None), ((0xF3, 0xF4, 0xF6), None),
              ((0xF3, 0xF4, 0xF6), (0x22, 0x2E, 0x31)))
    cell_w, cell_h, gap, strip_h = 36 * scale, 28 * scale, 12, 42
    panel_w = gap + len(STATES) * (cell_w + gap)
    width = panel_w * len(panels)
    height = gap + len(bases) * (cell_h + gap) + strip_h + gap
    sheet = []
    for y in range(height):
        for p in range(len(panels)):
            sheet += [panels[p][0]] * panel_w

    def blit(name, ox, oy, k, tint):
        canvas = images[name + ".png"]
        if "close_hot" in name or "close_pressed" in name:
            tint = None
        for y in range(canvas.height * k):
            for x in range(canvas.width * k):
                r, g, b, a = canvas.pixels[(y // k) * canvas.width + x // k]
                src = tint or (r, g, b)
                a = round(a * 255) / 255
                i = (oy + y) * width + ox + x
                d = sheet[i]
                sheet[i] = tuple(d[c] + (src[c] - d[c]) * a for c in range(3))

    for p, (_, tint) in enumerate(panels):
        x0 = p * panel_w
        for row, base in enumerate(bases):
            for col, state in enumerate(STATES):
                w, h = (CHROME_SIZE if "chrome" in base else UPDATE_SIZE)
                ox = x0 + gap + col * (cell_w + gap) + (cell_w - w * scale) // 2
                oy = gap + row * (cell_h + gap) + (cell_h - h * scale) // 2
                blit(base + state, ox, oy, scale, tint)
        # Real size, spaced like a title bar: 46-wide chrome cells, a 36-wide update cell.
        sy = gap + len(bases) * (cell_h + gap)
        x = x0 + gap
        for name in strip:
            if name is None:
                x += 12
                continue
            w, h = (CHROME_SIZE if "chrome" in name else UPDATE_SIZE)
            cell = 46 if "chrome" in name else 36
            blit(name, x + (cell - w) // 2, sy + (strip_h - h) // 2, 1, tint)
            x += cell
    rgb = bytearray()
    for r, g, b in sheet:
        rgb += bytes((round(r), round(g), round(b)))
    with open(path, "wb") as f:
        f.write(png_bytes(width, height, bytes(rgb), colour_type=2))


def main(argv):
    if len(argv) == 3 and argv[1] == "--preview":
        write_preview(argv[2])
    elif len(argv) == 2 and not argv[1].startswith("-"):
        write_images(argv[1])
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main(sys.argv)
