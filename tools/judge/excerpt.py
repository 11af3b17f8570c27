# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
"""Takes some vertices and frames out of a file of posed vertices, for the tests.

    excerpt.py POSES NAME SCALE OUT

NAME is the source's, SCALE what makes units of the reading library of those in POSES.
"""
import json
import sys

import numpy as np

from poses import Poses

VERTICES = 40
CLIPS = 6
FRAMES = 3


def spread(count, wanted):
    return sorted({round(i * (count - 1) / max(wanted - 1, 1)) for i in range(min(wanted, count))})


def numbers(values, digits=6):
    return [float(f"{value:.{digits}g}") + 0.0 for value in values]


def main(path, name, scale, out):
    poses, scale = Poses(path), float(scale)
    uvs = {}
    for corner, vertex in enumerate(np.asarray(poses.vertex)):
        uvs.setdefault(int(vertex), poses.uv[corner])
    # Half of them ride on a single bone, where there are such.
    solid = np.flatnonzero(np.asarray(poses.solid))
    soft = np.flatnonzero(np.asarray(poses.solid) == 0)
    chosen = [int(group[i]) for group in (solid, soft) for i in spread(len(group), VERTICES // 2)]
    vertices = [{"at": numbers(poses.rest[v] * scale), "uv": numbers(uvs.get(v, (0, 0)), 5),
                 "solid": bool(poses.solid[v])} for v in chosen]
    kept = []
    for c in spread(len(poses.clips), CLIPS):
        for frame in spread(poses.clips[c]["frames"], FRAMES):
            places = np.asarray(poses.poses[c][frame])[chosen] * scale
            kept.append({"clip": c, "frame": frame, "at": numbers(places.flatten())})
    low, high = np.asarray(poses.rest).min(axis=0) * scale, np.asarray(poses.rest).max(axis=0) * scale
    lines = [f'"source": {json.dumps(name)}', f'"low": {numbers(low)}', f'"high": {numbers(high)}',
             f'"frames": {[clip["frames"] for clip in poses.clips]}']
    listed = lambda rows: "[\n" + ",\n".join(json.dumps(row, separators=(",", ":")) for row in rows) + "\n]"
    lines += [f'"vertices": {listed(vertices)}', f'"poses": {listed(kept)}']
    with open(out, "w", encoding="utf-8") as file:
        file.write("{" + ",\n".join(lines) + "}\n")


main(*sys.argv[1:])
