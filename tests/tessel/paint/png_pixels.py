#!/usr/bin/env python3
"""Expected pixels for tests/tessel/paint/image_file_win32_test.cpp, decoded without Windows: an 8-bit
RGBA, non-interlaced PNG inflated with zlib and unfiltered, then premultiplied as
(c * a + 127) / 255 and printed in B, G, R, A order.

usage: png_pixels.py FILE.png X,Y [X,Y ...]
"""
import struct, sys, zlib

def decode(path):
    data = open(path, 'rb').read()
    assert data[:8] == b'\x89PNG\r\n\x1a\n'
    pos, idat = 8, b''
    while pos < len(data):
        length, kind = struct.unpack('>I4s', data[pos:pos + 8])
        body = data[pos + 8:pos + 8 + length]
        if kind == b'IHDR':
            w, h, depth, ctype, _, _, interlace = struct.unpack('>IIBBBBB', body)
            assert (depth, ctype, interlace) == (8, 6, 0)
        elif kind == b'IDAT':
            idat += body
        pos += 12 + length
    raw = zlib.decompress(idat)
    stride, rows, prev, i = w * 4, [], bytearray(w * 4), 0
    for _ in range(h):
        f, line = raw[i], bytearray(raw[i + 1:i + 1 + stride]); i += 1 + stride
        for x in range(stride):
            a = line[x - 4] if x >= 4 else 0
            b = prev[x]
            c = prev[x - 4] if x >= 4 else 0
            if f == 1: line[x] = (line[x] + a) & 255
            elif f == 2: line[x] = (line[x] + b) & 255
            elif f == 3: line[x] = (line[x] + (a + b) // 2) & 255
            elif f == 4:
                p = a + b - c; pa, pb, pc = abs(p - a), abs(p - b), abs(p - c)
                line[x] = (line[x] + (a if pa <= pb and pa <= pc else b if pb <= pc else c)) & 255
        rows.append(line); prev = line
    return w, h, rows

if __name__ == '__main__':
    w, h, rows = decode(sys.argv[1])
    print(w, h)
    for spec in sys.argv[2:]:
        x, y = map(int, spec.split(','))
        r, g, b, a = rows[y][x * 4:x * 4 + 4]
        pm = [(c * a + 127) // 255 for c in (b, g, r)]
        print(f'({x},{y}) straight rgba=({r},{g},{b},{a}) pbgra={pm + [a]}')
