# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
"""Blender 3.4 beside a numpy and a Python that have dropped what its glTF and BVH add-ons use."""
import builtins

import numpy

for name, kind in (("bool", bool), ("object", object), ("int", int), ("float", float), ("complex", complex)):
    if name not in numpy.__dict__:
        setattr(numpy, name, kind)

_open = builtins.open
builtins.open = lambda file, mode="r", *more, **named: _open(file, mode.replace("U", ""), *more, **named)


def enable():
    import addon_utils

    for module in ("io_scene_gltf2", "io_scene_fbx", "io_anim_bvh", "io_scene_obj"):
        addon_utils.enable(module)
