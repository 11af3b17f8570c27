# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
"""Draws a model file as a clip poses it, or what a file of posed vertices holds (see poses.py), from where
`korvane-tool render` stands.

    blender -b --factory-startup --python blender_picture.py -- FILE PLAN OUT.png CLIP FRAME

CLIP counts the clips of PLAN, a file of posed vertices.
"""
import itertools
import math
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import blender_poses  # noqa: E402

import bpy  # noqa: E402
import mathutils  # noqa: E402
import numpy as np  # noqa: E402

from poses import Poses  # noqa: E402

YAW, PITCH, SIDE = math.radians(30), math.radians(15), 400


def from_poses(poses, clip, frame):
    mesh = bpy.data.meshes.new("poses")
    places = poses.poses[clip][frame] if poses.clips else poses.rest
    mesh.from_pydata(places.tolist(), [], poses.triangles.tolist())
    bpy.context.scene.collection.objects.link(bpy.data.objects.new("poses", mesh))


def draw(places, out):
    scene = bpy.context.scene
    toward = mathutils.Vector((math.sin(YAW) * math.cos(PITCH), -math.cos(YAW) * math.cos(PITCH), math.sin(PITCH)))
    turn = toward.to_track_quat("Z", "Y")
    low, high = places.min(axis=0), places.max(axis=0)
    seen = (places - (low + high) / 2) @ np.array(turn.to_matrix())
    camera = bpy.data.cameras.new("camera")
    camera.type = "ORTHO"
    camera.ortho_scale = 1.15 * float(np.ptp(seen[:, :2], axis=0).max())
    size = float(np.linalg.norm(high - low))
    camera.clip_start, camera.clip_end = size / 100, size * 10
    stand = bpy.data.objects.new("camera", camera)
    middle = (seen.min(axis=0) + seen.max(axis=0)) / 2
    middle = mathutils.Vector((low + high) / 2) + turn @ mathutils.Vector(middle)
    stand.location = middle + toward * size * 3
    stand.rotation_euler = turn.to_euler()
    scene.collection.objects.link(stand)
    scene.camera = stand
    scene.render.engine = "BLENDER_WORKBENCH"
    scene.display.shading.color_type = "TEXTURE"
    scene.display.shading.show_backface_culling = True
    scene.render.resolution_x = scene.render.resolution_y = SIDE
    scene.render.film_transparent = True
    scene.render.filepath = out
    bpy.ops.render.render(write_still=True)


def main(source, plan, out, clip, frame):
    clip, frame = int(clip), int(frame)
    planned = Poses(plan)
    if os.path.splitext(source)[1].lower() in (".gltf", ".glb", ".fbx", ".dae"):
        model = blender_poses.Model(source, plan)
        for number, (_, _, _, frames) in enumerate(model.clips()):
            if number == clip:
                draw(next(itertools.islice(frames, frame, None)), out)
                return
    else:
        blender_poses.clear()
        from_poses(planned if source == plan else Poses(source), clip, frame)
        draw(blender_poses.posed(blender_poses.meshes()), out)


main(*blender_poses.arguments())
