#!/usr/bin/env python3
"""Expected pixels for tests/tessel/paint/image_file_win32_test.cpp, decoded without Windows: an 8-bit
RGBA, non-interlaced PNG inflated with zlib and unfiltered, then premultiplied as
(c * a + 127) / 255 and printed in B, G, R, A order.

usage: png_pixels.py FILE.png X,Y [X,Y ...]
"""
import struct, sys, zlib

def decode(path):
    data, pos, idat = open(path, 'rb').read(), 8, b''
    assert data[:8] == b'\x89PNG\r\n\x1a\n'
    while pos < len(data):
        length, kind = struct.unpack('>I4s', data[pos:pos + 8])
        body = data[pos + 8:pos + 8 + length]
        if kind == b'IHDR':
            w, h, depth, ctype, _, _, interlace = struct.unpack('>IIBBBBB', body)
            assert (depth, ctype, interlace) == (8, 6, 0)
        idat += body if kind == b'IDAT' else b''
        pos += 12 + length
    raw, rows, prev = zlib.decompress(idat), [], bytearray(w * 4)
    for y in range(h):
        f, line = raw[y * (w * 4 + 1)], bytearray(raw[y * (w * 4 + 1) + 1:(y + 1) * (w * 4 + 1)])
        for x in range(w * 4):
            a, b, c = line[x - 4] if x >= 4 else 0, prev[x], prev[x - 4] if x >= 4 else 0
            p = a + b - c
            predictor = {0: 0, 1: a, 2: b, 3: (a + b) // 2,
                         4: a if abs(p - a) <= abs(p - b) and abs(p - a) <= abs(p - c)
                         else b if abs(p - b) <= abs(p - c) else c}[f]
            line[x] = (line[x] + predictor) & 255
        rows.append(line)
        prev = line
    return w, h, rows

if __name__ == '__main__':
    w, h, rows = decode(sys.argv[1])
    print(w, h)
    for spec in sys.argv[2:]:
        x, y = map(int, spec.split(','))
        r, g, b, a = rows[y][x * 4:x * 4 + 4]
        print(f'({x},{y}) straight rgba=({r},{g},{b},{a}) pbgra={[(c * a + 127) // 255 for c in (b, g, r)] + [a]}')
