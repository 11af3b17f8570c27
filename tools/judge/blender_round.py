# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
"""Takes a glTF file through Blender, as somebody does who opens it and exports it.

    blender -b --factory-startup --python blender_round.py -- FILE OUT [FRAMES_A_SECOND] [edit]

With "edit" something is changed in between: the vertices above the middle are lifted by LIFT, and the first clip
moves the root bone by SHIFT along each of its axes.
"""
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import addons  # noqa: E402  before the add-ons that need it

import bpy  # noqa: E402


LIFT, SHIFT = 5.0, 4.0  # game units


def edit():
    mesh = next(thing for thing in bpy.context.scene.objects if thing.type == "MESH").data
    heights = [vertex.co.z for vertex in mesh.vertices]
    for vertex in mesh.vertices:
        if vertex.co.z > (min(heights) + max(heights)) / 2:
            vertex.co.z += LIFT
    armature = next(thing for thing in bpy.context.scene.objects if thing.type == "ARMATURE")
    root = next(bone for bone in armature.pose.bones if not bone.parent).name
    action = armature.animation_data.action
    for curve in action.fcurves:
        if curve.data_path == f'pose.bones["{root}"].location':
            for key in curve.keyframe_points:
                key.co[1] += SHIFT
            curve.update()


def main(source, out, rate="24", *edits):
    bpy.ops.wm.read_factory_settings(use_empty=True)
    addons.enable()
    bpy.context.scene.render.fps = int(rate)
    bpy.ops.import_scene.gltf(filepath=source)
    if edits:
        edit()
    bpy.ops.export_scene.gltf(filepath=out, export_format="GLB" if out.endswith(".glb") else "GLTF_SEPARATE",
                              export_extras=True)


main(*sys.argv[sys.argv.index("--") + 1:])
