# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
"""Compares two files of posed vertices, ours with a source (see poses.py).

    compare.py SOURCE OURS [--clips]

Our vertices are matched with the corners of the source at rest, by place, UV and normal. Where several fit
alike (the same place, UV and normal on two parts), the one stands for our vertex that it follows best. All
distances are in per cent of the diagonal of our model's box at rest.
"""
import argparse
import json

import numpy as np

from poses import Poses

CELL = 2e-3  # of the size; farther apart nothing belongs together
NEAR = 3.5  # per cent; beyond it the nearest vertex is looked for
TIES = 4  # of one place, UV and normal


class Match:
    def __init__(self, source, ours, scale=None):
        box = lambda places: (places.min(axis=0), places.max(axis=0))
        self.low, self.high = box(ours.rest)
        low, high = box(source.rest)
        self.size = float(np.linalg.norm(self.high - self.low))
        self.scale = scale or float(np.linalg.norm(self.high - self.low) / np.linalg.norm(high - low))
        if not scale and len(source.parts) != source.vertices:
            # Boxes tell it nearly: a vertex of several bones need not rest where its source does.
            self._match(source, ours)
            solid = np.asarray(source.solid)[self.candidates[:, 0]] > 0
            mine, theirs = np.asarray(ours.rest, np.float64), np.asarray(source.rest, np.float64)[self.candidates[:, 0]]
            lengths = np.linalg.norm(theirs, axis=1)
            clear = solid & (lengths > np.median(lengths) / 10)
            if clear.any():
                self.scale = float(np.median(np.linalg.norm(mine[clear], axis=1) / lengths[clear]))
        low, high = low * self.scale, high * self.scale
        self.offset = float(max(np.abs(low - self.low).max(), np.abs(high - self.high).max())) / self.size * 100
        if len(ours.parts) == ours.vertices and len(source.parts) == source.vertices:
            self._match_joints(source, ours)
        else:
            self._match(source, ours)

    def _match_joints(self, source, ours):
        numbers = {part["name"]: i for i, part in enumerate(source.parts)}
        self.candidates = np.array([[numbers[part["name"]]] for part in ours.parts])
        self.rest = np.linalg.norm(np.asarray(source.rest)[self.candidates[:, 0]] * self.scale - ours.rest, axis=1)
        self.rest *= 100 / self.size
        self.uv = np.zeros(ours.vertices)
        self.lost = len(set(numbers) - {part["name"] for part in ours.parts})

    def _match(self, source, ours):
        places = np.asarray(source.rest, np.float64)[source.vertex] * self.scale
        normals, uvs = np.asarray(source.normal), np.asarray(source.uv)
        mine = np.asarray(ours.rest, np.float64)
        self.candidates = np.empty((ours.vertices, TIES), np.int64)
        self.rest, self.uv = np.empty(ours.vertices), np.empty(ours.vertices)
        back = np.full(len(places), np.inf)
        for group, near in neighbours(mine, places, CELL * self.size):
            distance = np.linalg.norm(places[near] - mine[group, None], axis=2) / self.size
            back[near] = np.minimum(back[near], distance.min(axis=0))
            uv = np.linalg.norm(uvs[near] - np.asarray(ours.uv)[group, None], axis=2)
            turned = 1 - np.asarray(ours.normal)[group] @ normals[near].T
            fits = distance <= distance.min(axis=1, keepdims=True) + 1e-4
            cost = np.where(fits, distance * 100 + np.minimum(uv, 1) + np.clip(turned, 0, 2) * 0.01, np.inf)
            order = np.argsort(cost, axis=1, kind="stable")[:, :TIES]
            costs = np.take_along_axis(cost, order, axis=1)
            order = np.where(costs <= costs[:, :1] + 1e-3, order, order[:, :1])
            order = np.pad(order, ((0, 0), (0, TIES - order.shape[1])), mode="edge")
            self.candidates[group] = source.vertex[near[order]]
            self.rest[group] = np.take_along_axis(distance, order[:, :1], axis=1)[:, 0] * 100
            self.uv[group] = np.take_along_axis(uv, order[:, :1], axis=1)[:, 0]
        self.lost = int((back > CELL).sum())  # corners of the source without one of ours


def neighbours(mine, places, cell):
    """Groups of ours with all of `places` that are nearer than `cell`, or with all when there are none."""
    def keys(points):
        cells = np.floor(points / cell).astype(np.int64)
        return cells, (cells * [73856093, 19349663, 83492791]).sum(axis=1)

    order = np.argsort(keys(places)[1], kind="stable")
    theirs = keys(places)[1][order]
    cells, numbers = keys(mine)
    steps = np.array([(x, y, z) for x in (-1, 0, 1) for y in (-1, 0, 1) for z in (-1, 0, 1)])
    sorted_mine = np.argsort(numbers, kind="stable")
    starts = np.flatnonzero(np.diff(numbers[sorted_mine], prepend=numbers[sorted_mine[0]] - 1)) if len(mine) else []
    for group in np.split(sorted_mine, starts[1:]):
        around = np.unique(keys((cells[group[0]] + steps + 0.5) * cell)[1])
        first, last = np.searchsorted(theirs, around), np.searchsorted(theirs, around, side="right")
        near = np.concatenate([order[a:b] for a, b in zip(first, last)])
        for part in np.array_split(group, max(1, len(group) * max(len(near), 1) // 4_000_000)):
            yield part, near if len(near) else np.arange(len(places))


def distances(match, source, ours, clips):
    """Of each clip the distances [frames, vertices, ties] in per cent."""
    for theirs, mine in clips:
        for frame in range(ours.clips[mine]["frames"]):
            places = np.asarray(source.poses[theirs][shown(source, theirs, frame)], np.float64)
            pose = places[match.candidates] * match.scale
            apart = np.linalg.norm(pose - np.asarray(ours.poses[mine][frame])[:, None], axis=2)
            yield theirs, mine, frame, apart / match.size * 100


def to_nearest(match, source, ours, theirs, mine, frame, distance):
    """The greatest distance of our vertices, of those that are far from where they belong to the nearest vertex."""
    far = np.flatnonzero(distance > NEAR)
    most = distance[distance <= NEAR].max(initial=0.0)
    if len(far):
        places = np.asarray(source.poses[theirs][shown(source, theirs, frame)], np.float64) * match.scale
        for place in np.asarray(ours.poses[mine][frame])[far]:
            most = max(most, np.linalg.norm(places - place, axis=1).min() / match.size * 100)
    return float(most)


def shown(source, clip, frame):
    """A pose may be held in ours."""
    return min(frame, source.clips[clip]["frames"] - 1)


def pairs(source, ours):
    """Clips by order where the source has all of ours, else by name."""
    if len(source.clips) == len(ours.clips):
        return list(zip(range(len(ours.clips)), range(len(ours.clips))))
    names = {clip["name"]: i for i, clip in enumerate(ours.clips)}
    return [(i, names[clip["name"]]) for i, clip in enumerate(source.clips) if clip["name"] in names]


def compare(source, ours, scale=None):
    match = Match(source, ours, scale)
    clips = pairs(source, ours)
    sums = np.zeros(match.candidates.shape)
    frames = 0
    for _, _, _, distance in distances(match, source, ours, clips):
        sums += distance
        frames += 1
    best = np.argmin(sums, axis=1)[:, None]
    solid = np.asarray(source.solid)[np.take_along_axis(match.candidates, best, axis=1)[:, 0]] > 0
    highest = np.zeros(ours.vertices)
    of_clip = {}
    nearest = 0.0
    for theirs, mine, frame, distance in distances(match, source, ours, clips):
        distance = np.take_along_axis(distance, best, axis=1)[:, 0]
        highest = np.maximum(highest, distance)
        nearest = max(nearest, to_nearest(match, source, ours, theirs, mine, frame, distance))
        mean, most, count = of_clip.get(mine, (0.0, 0.0, 0))
        of_clip[mine] = (mean + distance.mean(), max(most, distance.max()), count + 1)
    mean = sums.min(axis=1) / max(frames, 1)
    return {
        "scale": match.scale,
        "size": match.size,
        "vertices": ours.vertices,
        "clips": len(clips),
        "frames": frames,
        "offset": match.offset,
        "rest": float(match.rest.max()),
        "uv": float(match.uv.max()),
        "uvMean": float(match.uv.mean()),
        "lost": match.lost,
        "mean": float(mean.mean()),
        "max": float(highest.max()),
        "nearest": nearest,
        "maxUnits": float(highest.max()) * match.size / 100,
        "solid": int(solid.sum()),
        "solidMax": float(highest[solid].max()) if solid.any() else 0.0,
        "worst": int(highest.argmax()),
        "ofClip": {ours.clips[i]["name"]: (a / n, b) for i, (a, b, n) in of_clip.items()},
    }


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("source")
    parser.add_argument("ours")
    parser.add_argument("--scale", type=float)
    parser.add_argument("--clips", action="store_true")
    options = parser.parse_args()
    found = compare(Poses(options.source), Poses(options.ours), options.scale)
    clips = found.pop("ofClip")
    print(json.dumps(found, indent=1))
    if options.clips:
        for name, (mean, most) in clips.items():
            print(f"{name:40} mean {mean:9.4f} %  max {most:9.4f} %")


if __name__ == "__main__":
    main()
