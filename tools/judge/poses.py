# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
"""Files of posed vertices, which the scripts and programs here hand each other.

A line of JSON, then the blocks that it tells of, little-endian and one after the other:

    rest      float32 [vertices, 3]   the positions without any clip
    vertex    int32   [corners]       of each corner its vertex; a corner is a vertex with one UV and one normal
    uv        float32 [corners, 2]
    normal    float32 [corners, 3]
    solid     uint8   [vertices]      1: a single bone or node moves it
    triangles int32   [triangles, 3]  vertices, counter-clockwise seen from outside
    poses     float32 [frames, vertices, 3] of each clip, at (frame / rate) seconds from its first key

The JSON has `vertices`, `corners`, `triangles`, `parts` (name, first, count: ranges of vertices) and `clips` (name,
rate in 1/s, frames).
"""
import json

import numpy as np


def write(path, parts, rest, vertex, uv, normal, solid, triangles, clips):
    """`clips` yields (name, rate, frames, poses), poses yielding one [vertices, 3] a frame."""
    clips = list(clips)
    head = {
        "vertices": len(rest),
        "corners": len(vertex),
        "triangles": len(triangles),
        "parts": parts,
        "clips": [{"name": name, "rate": rate, "frames": frames} for name, rate, frames, _ in clips],
    }
    with open(path, "wb") as file:
        file.write(json.dumps(head).encode() + b"\n")
        for block, kind in ((rest, "<f4"), (vertex, "<i4"), (uv, "<f4"), (normal, "<f4"), (solid, "u1"),
                            (triangles, "<i4")):
            file.write(np.ascontiguousarray(block, dtype=kind).tobytes())
        for _, _, frames, poses in clips:
            count = 0
            for pose in poses:
                file.write(np.ascontiguousarray(pose, dtype="<f4").tobytes())
                count += 1
            assert count == frames


class Poses:
    """What such a file holds; the poses stay on disk until they are looked at."""

    def __init__(self, path):
        with open(path, "rb") as file:
            line = file.readline()
        head = json.loads(line)
        self.parts = head["parts"]
        self.clips = head["clips"]
        self.vertices, self.corners = head["vertices"], head["corners"]
        self._path, self._at = path, len(line)
        self.rest = self._block("<f4", (self.vertices, 3))
        self.vertex = self._block("<i4", (self.corners,))
        self.uv = self._block("<f4", (self.corners, 2))
        self.normal = self._block("<f4", (self.corners, 3))
        self.solid = self._block("u1", (self.vertices,))
        self.triangles = self._block("<i4", (head["triangles"], 3))
        self.poses = [self._block("<f4", (clip["frames"], self.vertices, 3)) for clip in self.clips]

    def _block(self, kind, shape):
        size = int(np.prod(shape, dtype=np.int64))
        if size == 0:
            return np.zeros(shape, kind)
        block = np.memmap(self._path, dtype=kind, mode="r", offset=self._at, shape=shape)
        self._at += size * np.dtype(kind).itemsize
        return block
