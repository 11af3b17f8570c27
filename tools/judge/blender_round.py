# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
"""Takes a glTF file through Blender, as somebody does who opens it, changes nothing and exports it.

    blender -b --factory-startup --python blender_round.py -- FILE OUT [FRAMES_A_SECOND]
"""
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import addons  # noqa: E402  before the add-ons that need it

import bpy  # noqa: E402


def main(source, out, rate="24"):
    bpy.ops.wm.read_factory_settings(use_empty=True)
    addons.enable()
    bpy.context.scene.render.fps = int(rate)
    bpy.ops.import_scene.gltf(filepath=source)
    bpy.ops.export_scene.gltf(filepath=out, export_format="GLB" if out.endswith(".glb") else "GLTF_SEPARATE",
                              export_extras=True)


main(*sys.argv[sys.argv.index("--") + 1:])
