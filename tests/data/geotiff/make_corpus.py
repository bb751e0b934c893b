#!/usr/bin/env python3
"""Writes seeds for the fuzz target of GeoTIFF tags: the tags of systems.txt, as fuzz/geotiff_fuzz.cpp takes them.

    python3 make_corpus.py ../fuzz/geotiff
"""
import os
import struct
import sys

name, bytes_ = "", b""
seeds = {}
for line in open(os.path.join(os.path.dirname(os.path.abspath(__file__)), "systems.txt")):
    kind, _, rest = line.strip().partition(" ")
    if kind == "system":
        name = "".join(c if c.isalnum() else "_" for c in rest)[:40].strip("_")
        seeds[name] = b""
    elif kind == "tag":
        number, type_, values = (rest + " ").split(" ", 2)
        if type_ == "2":
            data = values.strip()[1:-1].encode() + b"\0"
            count = len(data)
        else:
            numbers = [float(v) if type_ == "12" else int(v) for v in values.split()]
            count = len(numbers)
            data = struct.pack(f"<{count}{'d' if type_ == '12' else 'H'}", *numbers)
        seeds[name] += struct.pack("<HBH", int(number), int(type_), count) + data
os.makedirs(sys.argv[1], exist_ok=True)
for name, bytes_ in list(seeds.items())[::3]:
    open(os.path.join(sys.argv[1], name), "wb").write(bytes_)
