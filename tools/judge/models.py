# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
"""Reads the game's files, apart from the program's own reader; the layouts are in docs/file-formats.md."""
import struct
from types import SimpleNamespace as Record

import numpy as np


class _Stream:
    def __init__(self, path):
        with open(path, "rb") as file:
            self.bytes = file.read()
        self.at = 0

    def take(self, form):
        """The values of one struct, a bare value when it is one."""
        values = struct.unpack_from("<" + form, self.bytes, self.at)
        self.at += struct.calcsize("<" + form)
        return values[0] if len(values) == 1 else values

    def many(self, form):
        return [self.take(form) for _ in range(self.take("i"))]

    def text(self):
        end = self.bytes.index(0, self.at)
        text = self.bytes[self.at:end].decode("latin-1")
        self.at = end + 1
        return text

    def surface(self):
        material, indexes = self.text(), []
        while (index := self.take("H")) != 0xFFFF:
            indexes.append(index)
        return Record(material=material, indexes=indexes)


def skinned_mesh(path):
    stream = _Stream(path)
    mesh = Record(version=stream.take("i"), box=stream.take("6f"), head=stream.take("BBb"))
    count = stream.take("i")
    children = [tuple(stream.many("H")) for _ in range(count)]
    bones = [stream.take("6fBbBfi") for _ in range(count)]
    mesh.bones = [Record(children=c, box=b[:6], impact=b[6], symbol=b[7], parent=b[8], damage=b[9], flags=b[10])
                  for c, b in zip(children, bones)]
    mesh.unknown_a = stream.take("i")
    mesh.hot_points = stream.many("3fi3H")
    mesh.unknown_b = stream.take("i")
    mesh.surfaces = [stream.surface() for _ in range(stream.take("i"))]
    mesh.vertices = stream.many("8fH") if mesh.surfaces else []
    return mesh


def animation(path):
    stream = _Stream(path)
    version, count = stream.take("ii")
    return Record(version=version, blocks=[_block(stream) for _ in range(count)])


def _block(stream):
    ident, frames, nodes, _, translations, rotations, actions = stream.take("7i")
    block = Record(id=ident, frames=frames)
    block.scale, *block.blend, block.speed, block.loop = stream.take("fHHHfH")
    block.tracks_of = [stream.take("HH") for _ in range(nodes)]
    block.initial = [stream.take("7f") for _ in range(nodes)]
    block.yaw = [stream.take("f") for _ in range(frames)]
    block.translations = [[stream.take("3f") for _ in range(frames)] for _ in range(translations)]
    block.rotations = [[stream.take("4f") for _ in range(frames)] for _ in range(rotations)]
    block.actions = [stream.take("HHH3f8f") for _ in range(actions)]
    return block


def static_mesh(path):
    stream = _Stream(path)
    mesh = Record(version=stream.take("i"), box=stream.take("6f"), surfaces=[])
    for _ in range(stream.take("i")):
        material, count = stream.text(), stream.take("i")
        mesh.surfaces.append(Record(material=material, indexes=[stream.take("H") for _ in range(3 * count)]))
    mesh.vertices = stream.many("8f")
    return mesh


def mesh(path):
    return static_mesh(path) if str(path).endswith(".staticmesh") else skinned_mesh(path)


def export_order(path):
    """The vertices in the order in which an exported glTF file has them: of each surface those that it uses."""
    used = [np.unique(surface.indexes) for surface in mesh(path).surfaces if surface.indexes]
    return np.concatenate(used).astype(np.int64)


def differences(old_mesh, new_mesh, old_anim=None, new_anim=None):
    """What the records of two models differ in, beside positions, normals and keys."""
    found = []

    def same(what, old, new):
        if old != new:
            count = sum(a != b for a, b in zip(old, new)) if isinstance(old, list) and len(old) == len(new) else 0
            found.append(f"{what} ({count} of {len(old)})" if count else f"{what}: {str(old)[:40]}, {str(new)[:40]}")

    old, new = mesh(old_mesh), mesh(new_mesh)
    for field in ("version", "box", "head", "unknown_a", "unknown_b", "hot_points"):
        same(field, getattr(old, field, None), getattr(new, field, None))
    if hasattr(old, "bones"):
        same("bones", len(old.bones), len(new.bones))
        for field in ("children", "parent", "flags", "symbol", "impact", "damage", "box"):
            same(f"bones' {field}", [getattr(b, field) for b in old.bones], [getattr(b, field) for b in new.bones])
        same("vertices' bones", [v[8] for v in old.vertices], [v[8] for v in new.vertices])
    same("surfaces", [s.material for s in old.surfaces], [s.material for s in new.surfaces])
    for number, (a, b) in enumerate(zip(old.surfaces, new.surfaces)):
        same(f"triangles of surface {number}", a.indexes, b.indexes)
    same("vertices", len(old.vertices), len(new.vertices))
    same("UVs", [v[3:5] for v in old.vertices], [v[3:5] for v in new.vertices])
    if old_anim:
        old, new = animation(old_anim), animation(new_anim)
        same("version of the animation", old.version, new.version)
        same("blocks", len(old.blocks), len(new.blocks))
        for field in ("id", "frames", "scale", "blend", "speed", "loop", "yaw", "actions"):
            same(f"blocks' {field}", [getattr(b, field) for b in old.blocks], [getattr(b, field) for b in new.blocks])
    return found
