# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
"""Poses a model file in Blender, every clip at every frame.

    blender -b --factory-startup --python blender_poses.py -- FILE OUT [PLAN]

OUT and PLAN are files of posed vertices (see poses.py). The clips, frames and rates are those of PLAN; without
it all clips there are, 30 times a second. A clip that PLAN has and Blender does not is left out.
"""
import json
import os
import struct
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import addons  # noqa: E402  before the add-ons that need it

import bpy  # noqa: E402
import mathutils  # noqa: E402
import numpy as np  # noqa: E402

import poses  # noqa: E402

RATE = 30.0


def clear():
    bpy.ops.wm.read_factory_settings(use_empty=True)
    addons.enable()


def load(path, animated):
    clear()
    extension = os.path.splitext(path)[1].lower()
    if extension in (".gltf", ".glb"):
        from io_scene_gltf2.blender.imp.gltf2_blender_scene import BlenderScene

        whole = BlenderScene.create_animations
        if not animated:
            BlenderScene.create_animations = staticmethod(lambda gltf: None)
        try:
            bpy.ops.import_scene.gltf(filepath=path)
        finally:
            BlenderScene.create_animations = staticmethod(whole)
        # What the importer draws bones with.
        for shape in [o for o in bpy.data.objects if o.name.startswith("Icosphere") and not o.users_scene]:
            bpy.data.objects.remove(shape)
    elif extension == ".fbx":
        bpy.ops.import_scene.fbx(filepath=path, use_anim=animated)
    elif extension == ".dae":
        bpy.ops.wm.collada_import(filepath=path)
    elif extension == ".bvh":
        bpy.ops.import_anim.bvh(filepath=path, use_fps_scale=False, update_scene_fps=True)
    elif extension == ".obj":
        bpy.ops.import_scene.obj(filepath=path)
    else:
        raise SystemExit(f"Blender does not read {extension}")


def clip_names(path):
    """The names in a glTF file, in its order; none of other formats."""
    extension = os.path.splitext(path)[1].lower()
    if extension not in (".gltf", ".glb"):
        return []
    with open(path, "rb") as file:
        if extension == ".glb":
            size = struct.unpack("<5I", file.read(20))[3]
            text = file.read(size)
        else:
            text = file.read()
    return [clip.get("name", "") for clip in json.loads(text).get("animations", [])]


def ordered(names, planned):
    """The names in the order of the plan, which has some as "[12]" for "walk [12]"; those of the plan if they fit
    nothing."""
    fitting = [[name for name in names if name == plan] or [name for name in names if plan in name] for plan in planned]
    if all(len(found) == 1 for found in fitting):
        return [found[0] for found in fitting]
    return names if len(names) == len(planned) else planned


def transforms():
    """Location, rotation and scale of every object and bone, by name."""
    found = {}
    for thing in bpy.data.objects:
        found[thing.name, ""] = kept(thing)
        if thing.pose:
            for bone in thing.pose.bones:
                found[thing.name, bone.name] = kept(bone)
    return found


def kept(thing):
    return (thing.rotation_mode, thing.location.copy(), thing.rotation_quaternion.copy(),
            thing.rotation_euler.copy(), thing.scale.copy())


def put(thing, values):
    (thing.rotation_mode, thing.location, thing.rotation_quaternion, thing.rotation_euler,
     thing.scale) = values


def to_rest(rest):
    for thing in bpy.data.objects:
        if (thing.name, "") in rest:
            put(thing, rest[thing.name, ""])
        if thing.pose:
            for bone in thing.pose.bones:
                if (thing.name, bone.name) in rest:
                    put(bone, rest[thing.name, bone.name])


def take_clips(names):
    """Takes every action off its objects. Of each clip its actions: [(object or shape key, action)]. `names` are
    those to be expected."""
    clips = {}

    def add(name, thing, action):
        clips.setdefault(name, []).append((thing, action))

    for thing in [*bpy.data.objects, *bpy.data.shape_keys]:
        data = thing.animation_data
        if not data:
            continue
        if data.nla_tracks:
            for track in data.nla_tracks:
                for strip in track.strips:
                    add(track.name, thing, strip.action)
            while data.nla_tracks:
                data.nla_tracks.remove(data.nla_tracks[0])
        elif data.action and not data.action.name.startswith(thing.name + "|"):
            add(data.action.name, thing, data.action)
        data.action = None
    # The FBX reader leaves one action of each object, stack and, if it has another name, layer; all but the last
    # assigned to nothing.
    for action in bpy.data.actions:
        owner, bar, name = action.name.partition("|")
        if bar and owner in bpy.data.objects:
            add(name if name in names else name.rpartition("|")[0] or name, bpy.data.objects[owner], action)
    return clips


def add_turns(action, frames):
    """Blender takes each number of a quaternion in a straight line from key to key. The formats mean the great
    circle: so each of `frames` gets a key on it."""
    turns = {}
    for curve in action.fcurves:
        if curve.data_path.endswith("rotation_quaternion"):
            turns.setdefault(curve.data_path, []).append(curve)
    for curves in turns.values():
        keys = [[(p.co[0], p.co[1], p.interpolation) for p in curve.keyframe_points] for curve in curves]
        times = [time for time, _, _ in keys[0]]
        if len(curves) != 4 or any([time for time, _, _ in each] != times for each in keys[1:]):
            continue
        curves.sort(key=lambda curve: curve.array_index)
        values = [mathutils.Quaternion([p.co[1] for p in points])
                  for points in zip(*(curve.keyframe_points for curve in curves))]
        added = []
        for frame in frames:
            after = int(np.searchsorted(times, frame))
            if 0 < after < len(times) and frame - times[after - 1] > 1e-4 and times[after] - frame > 1e-4 \
                    and keys[0][after - 1][2] == "LINEAR":
                t = (frame - times[after - 1]) / (times[after] - times[after - 1])
                added.append((frame, values[after - 1].slerp(values[after], t)))
        for i, curve in enumerate(curves):
            for frame, turn in added:
                curve.keyframe_points.insert(frame, turn[i], options={"FAST"}).interpolation = "LINEAR"
            curve.update()


def meshes():
    return sorted((o for o in bpy.context.scene.objects if o.type == "MESH"), key=lambda o: o.name)


def posed(things):
    graph = bpy.context.evaluated_depsgraph_get()
    found = []
    for thing in things:
        evaluated = thing.evaluated_get(graph)
        mesh = evaluated.to_mesh()
        places = np.empty(len(mesh.vertices) * 3, np.float32)
        mesh.vertices.foreach_get("co", places)
        evaluated.to_mesh_clear()
        matrix = np.array(evaluated.matrix_world, np.float64)
        found.append(places.reshape(-1, 3) @ matrix[:3, :3].T + matrix[:3, 3])
    return np.concatenate(found) if found else np.zeros((0, 3))


def joints(armatures):
    return np.array([armature.matrix_world @ bone.head for armature in armatures for bone in armature.pose.bones])


def corners(things):
    """Of every distinct corner its vertex, UV and normal, all in the scene."""
    vertex, uv, normal, first = [], [], [], 0
    for thing in things:
        mesh = thing.data
        mesh.calc_normals_split()
        count = len(mesh.loops)
        indexes = np.empty(count, np.int32)
        mesh.loops.foreach_get("vertex_index", indexes)
        normals = np.empty(count * 3, np.float32)
        mesh.loops.foreach_get("normal", normals)
        places = np.zeros(count * 2, np.float32)
        if mesh.uv_layers:
            mesh.uv_layers[0].data.foreach_get("uv", places)
        turn = np.linalg.inv(np.array(thing.matrix_world, np.float64)[:3, :3])
        normals = normals.reshape(-1, 3) @ turn
        normals /= np.maximum(np.linalg.norm(normals, axis=1, keepdims=True), 1e-12)
        rows = np.column_stack([indexes + first, np.round(places.reshape(-1, 2), 5), np.round(normals, 4)])
        rows = np.unique(rows, axis=0)
        vertex.append(rows[:, 0])
        uv.append(rows[:, 1:3])
        normal.append(rows[:, 3:])
        first += len(mesh.vertices)
    return np.concatenate(vertex), np.concatenate(uv), np.concatenate(normal)


def faces(things):
    found, first = [], 0
    for thing in things:
        thing.data.calc_loop_triangles()
        indexes = np.empty(len(thing.data.loop_triangles) * 3, np.int32)
        thing.data.loop_triangles.foreach_get("vertices", indexes)
        mirrored = thing.matrix_world.determinant() < 0
        indexes = indexes.reshape(-1, 3)[:, [0, 2, 1] if mirrored else [0, 1, 2]]
        found.append(indexes + first)
        first += len(thing.data.vertices)
    return np.concatenate(found)


def moved_by_one(thing):
    armatures = [m.object for m in thing.modifiers if m.type == "ARMATURE" and m.object]
    bones = {bone.name for armature in armatures for bone in armature.pose.bones}
    groups = {group.index for group in thing.vertex_groups if group.name in bones}
    return np.array([sum(g.group in groups and g.weight > 0 for g in vertex.groups) < 2
                     for vertex in thing.data.vertices])


def set_time(frame):
    bpy.context.scene.frame_set(int(np.floor(frame)), subframe=float(frame - np.floor(frame)))


class Model:
    """A model file in the scene, and what its clips do to it; `plan` is a file of posed vertices."""

    def __init__(self, source, plan=None):
        planned = []
        if plan:
            with open(plan, "rb") as file:
                planned = json.loads(file.readline())["clips"]
        self.names = ordered(clip_names(source), [clip["name"] for clip in planned]) if plan else clip_names(source)
        load(source, False)
        self._rest = transforms()
        load(source, True)
        self._clips = take_clips(self.names)
        if len(self.names) == len(self._clips) == 1:  # the readers of some formats name it themselves
            self._clips = dict(zip(self.names, self._clips.values()))
        self.names = self.names or list(self._clips)
        self._plan = dict(zip(self.names, planned))
        if source.lower().endswith((".dae", ".bvh")):
            self._rest = {}
            for thing in bpy.data.objects:
                for bone in thing.pose.bones if thing.pose else []:
                    bone.matrix_basis.identity()
        to_rest(self._rest)
        set_time(0)
        self.things = meshes()
        self.armatures = [o for o in bpy.context.scene.objects if o.type == "ARMATURE"]

    def pose(self):
        """Of a motion without a body its joints."""
        return posed(self.things) if self.things else joints(self.armatures)

    def clips(self):
        """Name, rate, frames and poses of each clip."""
        fps = bpy.context.scene.render.fps / bpy.context.scene.render.fps_base
        for name in self.names:
            actions = [action for _, action in self._clips.get(name, [])]
            if not actions:
                print(f"judge: Blender has no clip {name}; it has {sorted(self._clips)[:80]}")
                continue
            begin = min(action.frame_range[0] for action in actions)
            end = max(action.frame_range[1] for action in actions)
            rate = self._plan[name]["rate"] if self._plan else RATE
            frames = self._plan[name]["frames"] if self._plan else round((end - begin) / fps * rate) + 1
            yield name, rate, frames, self._poses(name, [begin + frame * fps / rate for frame in range(frames)])

    def _poses(self, name, times):
        to_rest(self._rest)
        for thing in [*bpy.data.objects, *bpy.data.shape_keys]:
            if thing.animation_data:
                thing.animation_data.action = None
        for thing, action in self._clips[name]:
            add_turns(action, times)
            thing.animation_data_create().action = action
        for time in times:
            set_time(time)
            yield self.pose()

    def write(self, out):
        rest, things = self.pose(), self.things
        names = [bone.name for armature in self.armatures for bone in armature.pose.bones]
        vertex, uv, normal = np.arange(len(names)), np.zeros((len(names), 2)), np.zeros((len(names), 3))
        solid, triangles = np.ones(len(names)), np.zeros((0, 3))
        counts = [1 for _ in names]
        if things:
            names, counts = [thing.name for thing in things], [len(thing.data.vertices) for thing in things]
            vertex, uv, normal = corners(things)
            solid = np.concatenate([moved_by_one(thing) for thing in things])
            triangles = faces(things)
        parts = [{"name": name, "first": sum(counts[:i]), "count": counts[i]} for i, name in enumerate(names)]
        poses.write(out, parts, rest, vertex, uv, normal, solid, triangles, self.clips())


def arguments():
    return sys.argv[sys.argv.index("--") + 1:]


def main(source, out, plan=None):
    Model(source, plan).write(out)


if __name__ == "__main__":
    main(*arguments())
