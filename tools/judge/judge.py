# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
"""Judges imports and exports by Blender; `./dev judge` calls it, docs/judge.md tells of it.

    judge.py BUILD SHARED OUT [rigs] [statics] [exports] [trips] [broken] [pictures]
"""
import json
import os
import shutil
import subprocess
import sys
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import numpy as np

import models
from compare import compare
from poses import Poses

HERE = Path(__file__).resolve().parent

# Name, file, and whether Blender reads it. The others are judged by the textbook pose of what the library reads.
RIGS = [
    ("fox", "gltf_fox/Fox.gltf", True),
    ("knight", "glb_knight/Knight.glb", True),
    ("robot", "fbx_bin_robot/Robot.fbx", True),
    ("kenney", "glb_kenney_character/character.glb", True),
    ("figure", "dae_riggedfigure/RiggedFigure.dae", True),
    ("wuson", "x_wuson/Testwuson.X", False),
    ("sausage", "fbx_ascii_sausage/maya_game_sausage_7500_ascii_combined.fbx", False),
    ("man", "mdl_hl1_man/man.mdl", False),
    ("ase", "ase_anim2/anim2.ASE", False),
    ("bvh", "bvh_212bones/benchmark.bvh", False),
]
MOST_BONES = 128  # that a model can be posed with; those beyond go with their parents
CHARACTERS = ["game fox", "game knight", "game trex", "mod mannequin"]
STATICS = ["game avocado", "game barrel", "game boombox", "game chair", "game house", "mod tree"]
# Of their animations. Blender exports at the rate of its scene, which has to be set before the import.
RATES = {"game fox": 30, "game knight": 15, "game trex": 30, "mod mannequin": 30}
ALL = ("rigs", "statics", "exports", "trips", "broken", "pictures")
TIME_LIMIT = 120  # seconds for a broken file


class Judge:
    def __init__(self, build, shared, out):
        self.build, self.shared, self.out = Path(build), Path(shared), Path(out)
        self.tool = self.build / "app/korvane-tool"
        self.poses = self.build / "tools/judge-poses"
        self.failed = False
        self.out.mkdir(parents=True, exist_ok=True)
        # A settings home of its own, and no screen.
        for kind in ("CONFIG", "DATA", "CACHE"):
            os.environ[f"XDG_{kind}_HOME"] = str(self.out / "home" / kind.lower())

    # --- What is called ------------------------------------------------------------------------------------

    def call(self, *command, limit=1800):
        done = subprocess.run([str(word) for word in command], capture_output=True, text=True, errors="replace",
                              stdin=subprocess.DEVNULL, timeout=limit)
        if done.returncode != 0:
            raise Failure(f"{' '.join(map(str, command))}\n{done.stdout[-2000:]}{done.stderr[-2000:]}")
        return done.stdout

    def blender(self, script, *arguments):
        # Blender ends well when a script does not.
        said = self.call("blender", "-b", "--factory-startup", "--python-exit-code", "1", "--python",
                         HERE / f"{script}.py", "--", *arguments)
        for line in said.splitlines():
            if line.startswith("judge: "):
                print(line)

    def verdict(self, good):
        self.failed = self.failed or not good
        return "good" if good else "BAD"

    # --- Imports of rigs -----------------------------------------------------------------------------------

    def import_ready(self, name, source, *options):
        folder = self.fresh_mod(f"rigs/{name}")
        self.call(self.tool, "import", "--ready", "--scale", "auto", "--force", "--create-kmat", "--copy-textures",
                  "--mod-path", folder, "-o", folder, *options, source)
        return folder, folder / Path(source).stem

    def rigs(self):
        rows = [("rig", "judge", "vertices", "bones", "clips", "frames", "mean %", "max %", "nearest %",
                 "solid %", "own %", ".anim kB", "check", "verdict")]
        clips = {}

        def follows(found):
            return found["mean"] <= 0.2 and found["max"] <= 3.5

        def judged(rig):
            name, file, readable = rig
            source = self.shared / "models" / file
            try:
                folder, base = self.import_ready(name, source)
                ours = self.out / f"{name}.ours"
                self.call(self.poses, "model", f"{base}.skinnedmesh", f"{base}.anim", ours)
                scene = self.out / f"{name}.scene"
                self.call(self.poses, "scene", source, scene, ours)
                alone = self.out / f"{name}.onebone"
                self.call(self.poses, "onebone", source, alone, ours)
                found = compare(Poses(scene), Poses(ours))
                found["alone"] = compare(Poses(alone), Poses(ours), found["scale"])["max"]
                found["judge"] = "textbook"
                if readable:
                    blender = self.out / f"{name}.blender"
                    self.blender("blender_poses", source, blender, scene)
                    found = {**compare(Poses(blender), Poses(ours)), "alone": found["alone"], "judge": "Blender"}
                rig = [(name, base, found, self.findings(folder))]
                if not follows(found):
                    # One bone a vertex does not do here.
                    folder, base = self.import_ready(f"{name} extra", source, "--extra-bones")
                    ours = self.out / f"{name} extra.ours"
                    self.call(self.poses, "model", f"{base}.skinnedmesh", f"{base}.anim", ours)
                    extra = compare(Poses(blender if readable else scene), Poses(ours))
                    rig.append((f"{name}, extra bones", base, {**extra, "judge": found["judge"]},
                                self.findings(folder)))
                return rig
            except (Failure, subprocess.TimeoutExpired) as failure:
                return [(name, None, str(failure), None)]

        with ThreadPoolExecutor(os.cpu_count()) as threads:
            for name, base, found, findings in (row for rig in threads.map(judged, RIGS) for row in rig):
                if not base:
                    print(found)
                    rows.append((name, *["-"] * 12, self.verdict(False)))
                    continue
                bones = len(models.skinned_mesh(f"{base}.skinnedmesh").bones)
                # What moves too little for one of the bones may be off by a hundredth of the size.
                limit = 1 if bones == MOST_BONES else 0.01
                good = found["uv"] <= 1e-3 and found["lost"] == 0 and findings == "none"
                if "alone" in found:
                    good = good and found["alone"] <= limit and (found["solidMax"] <= limit or not follows(found))
                else:
                    good = good and follows(found)
                anim_size = os.path.getsize(f"{base}.anim") / 1000
                rows.append((name, found["judge"], found["vertices"], bones, found["clips"], found["frames"],
                             f"{found['mean']:.4f}", f"{found['max']:.3f}", f"{found['nearest']:.3f}",
                             f"{found['solidMax']:.4f}", f"{found['alone']:.4f}" if "alone" in found else "-",
                             f"{anim_size:.1f}", findings,
                             self.verdict(good) + (", as far as one bone does" if not follows(found) else "")))
                clips[name] = found
        table("Imports ready for the game", rows)
        (self.out / "rigs.json").write_text(json.dumps(clips, indent=1))

    def findings(self, folder, mod=None):
        """What the check finds in an import, "none" when nothing."""
        mod = str(mod or folder)
        done = subprocess.run([str(self.tool), "check", "--json", "--game-path", mod, "--mod-path", mod, str(folder)],
                              capture_output=True, text=True)
        rules = {}
        for file in json.loads(done.stdout):
            for finding in file["findings"]:
                rule = f"{finding['severity']} {finding['rule']}"
                rules[rule] = rules.get(rule, 0) + max(finding.get("notListed", 0), 1)
        return ", ".join(f"{count} {rule}" for rule, count in rules.items()) or "none"

    # --- Imports of rigid models -----------------------------------------------------------------------------

    def statics(self):
        rows = [("file", "vertices", "triangles", "most %", "UV", "lost", "outside in %", "outside ours %", "verdict")]

        def judged(file):
            source, name = self.shared / "models" / file, file.replace("/", "_")
            folder = self.fresh_mod(f"statics/{name}")
            out = self.out / "statics" / name
            try:
                self.call(self.tool, "import", "--ready", "--static", "--force", "--create-kmat", "--copy-textures",
                          "--mod-path", folder, "-o", folder, source)
                self.call(self.poses, "static", folder / f"{source.stem}.staticmesh", f"{out}.ours")
                self.call(self.poses, "scene", source, f"{out}.scene")
            except Failure as failure:
                # Some hold more than a model can.
                return (file, str(failure).strip().splitlines()[-1][-90:], *["-"] * 6,
                        self.verdict("can hold no more" in str(failure)))
            ours, theirs = Poses(f"{out}.ours"), Poses(f"{out}.scene")
            theirs.clips = []
            found = compare(theirs, ours)
            shares = [outside(poses) for poses in (theirs, ours)]
            good = (found["rest"] <= 0.01 and found["uv"] <= 1e-3 and found["lost"] == 0
                    and shares[1] > shares[0] - 0.01 and abs(found["scale"] - 1) < 1e-4)
            return (file, ours.vertices, len(ours.triangles), f"{found['rest']:.4f}", f"{found['uv']:.5f}",
                    found["lost"], *(f"{100 * share:.1f}" for share in shares), self.verdict(good))

        with ThreadPoolExecutor(os.cpu_count()) as threads:
            rows += threads.map(judged, self.listed("core"))
        table("Rigid models ready for the game", rows)

    def listed(self, kind):
        """The files of a class in the index of the models."""
        with open(self.shared / "models/index.tsv", encoding="utf-8") as index:
            head = index.readline().rstrip("\n").split("\t")
            entries = [dict(zip(head, line.rstrip("\n").split("\t"))) for line in index]
        return [entry["path"] for entry in entries if entry["class"] == kind]

    # --- Exports -------------------------------------------------------------------------------------------

    def exported(self, place, name, suffix):
        """Exports one of the game's models. Its file, its animation or None, and the glTF file."""
        data = self.shared / "gamedata"
        mesh = data / place / f"models/{name}/{name}.{suffix}"
        anim = data / place / f"anims/{name}/{name}.anim" if suffix == "skinnedmesh" else None
        target = self.out / f"exports/{name}.glb"
        target.parent.mkdir(exist_ok=True)
        self.call(self.tool, "export", "--force", "--game-path", data / "game", "--mod-path", data / "mod",
                  *(["--anim", anim] if anim else []), "-o", target, mesh)
        return mesh, anim, target

    def posed(self, mesh, anim, out):
        if anim:
            self.call(self.poses, "model", mesh, anim, out)
        else:
            self.call(self.poses, "static", mesh, out)
        return Poses(out)

    def exports(self):
        rows = [("model", "vertices", "clips", "frames", "most units", "UV", "normal, degrees", "gltfpack", "verdict")]

        def judged(model):
            suffix = "skinnedmesh" if model in CHARACTERS else "staticmesh"
            mesh, anim, target = self.exported(*model.split(), suffix)
            ours = self.posed(mesh, anim, target.with_suffix(".ours"))
            self.blender("blender_poses", target, target.with_suffix(".blender"), target.with_suffix(".ours"))
            theirs = Poses(target.with_suffix(".blender"))
            packed = self.call("gltfpack", "-i", target, "-o", target.with_suffix(".packed.glb"))
            order = models.export_order(mesh)
            if len(order) != theirs.vertices or len(ours.clips) != len(theirs.clips):
                raise Failure(f"{model}: {len(order)} vertices and {len(ours.clips)} clips, in Blender "
                              f"{theirs.vertices} and {len(theirs.clips)}")
            most = np.linalg.norm(ours.rest[order] - theirs.rest, axis=1).max()
            for mine, blenders in zip(ours.poses, theirs.poses):
                for pose, other in zip(mine, blenders):
                    most = max(most, np.linalg.norm(pose[order] - other, axis=1).max())
            corners = order[theirs.vertex]
            uv = np.abs(ours.uv[corners] - theirs.uv).max()
            # Blender gives none to the corners of triangles without an area.
            shown = np.linalg.norm(theirs.normal, axis=1) > 0.5
            cosine = (ours.normal[corners] * theirs.normal).sum(axis=1)[shown].min()
            good = most <= 0.002 and uv <= 1e-4 and cosine >= 0.999 and "Error" not in packed
            return (model, len(order), len(ours.clips), sum(clip["frames"] for clip in ours.clips), f"{most:.5f}",
                    f"{uv:.6f}", f"{np.degrees(np.arccos(min(cosine, 1))):.2f}", "accepts", self.verdict(good))

        for model in CHARACTERS + STATICS:
            rows.append(self.row(model, len(rows[0]), judged))
        table("Exports posed by Blender", rows)

    def row(self, name, columns, judged):
        try:
            return judged(name)
        except (Failure, subprocess.TimeoutExpired) as failure:
            print(failure)
            return (name, *["-"] * (columns - 2), self.verdict(False))

    # --- There and back ------------------------------------------------------------------------------------

    def trips(self):
        rows = [("model", "frames a second", "most units", "as of a person", "differences", "edited: most units",
                 "verdict")]

        def judged(trip):
            model, rate = trip
            suffix = "skinnedmesh" if model in CHARACTERS else "staticmesh"
            mesh, anim, target = self.exported(*model.split(), suffix)
            back = target.with_suffix(f".back{rate}.glb")
            self.blender("blender_round", target, back, rate)
            folder = self.fresh(f"trips/{target.stem}{rate}")
            self.call(self.tool, "import", "--update", mesh, *(["--anim", anim] if anim else []), "-o", folder, back)
            new_mesh = folder / mesh.name
            new_anim = anim and folder / anim.name
            differences = models.differences(mesh, new_mesh, anim, new_anim)
            before = self.posed(mesh, anim, folder / "before.poses")
            after = self.posed(new_mesh, new_anim, folder / "after.poses")
            scale = 200 / np.ptp(before.rest, axis=0).max()
            most = np.linalg.norm(before.rest - after.rest, axis=1).max()
            for old, new in zip(before.poses, after.poses):
                most = max(most, np.linalg.norm(old - new, axis=2).max())
            good = most * scale <= 0.02 and not differences
            edited = self.edited(mesh, anim, target, rate) if anim else 0.0
            return (model, rate, f"{most:.5f}", f"{most * scale:.5f} of 200", ", ".join(differences) or "none",
                    f"{edited:.5f}" if anim else "-", self.verdict(good and edited <= 0.02))

        for model in CHARACTERS + STATICS:
            for rate in (RATES[model],) if model in RATES else (24,):
                rows.append(self.row((model, rate), len(rows[0]), judged))
        table("Through Blender and back", rows)

    def edited(self, mesh, anim, target, rate):
        """How far what was edited in Blender is in ours from where it is there."""
        back, folder = target.with_suffix(".edited.glb"), self.fresh(f"trips/{target.stem}.edited")
        self.blender("blender_round", target, back, rate, "edit")
        self.call(self.tool, "import", "--update", mesh, "--anim", anim, "-o", folder, back)
        ours = self.posed(folder / mesh.name, folder / anim.name, folder / "after.poses")
        self.blender("blender_poses", back, folder / "blender.poses", folder / "after.poses")
        return compare(Poses(folder / "blender.poses"), ours, 1.0)["maxUnits"]

    # --- Pictures ------------------------------------------------------------------------------------------

    def pictures(self):
        """A sheet of the sources as Blender draws them, and of ours beside them."""
        pairs = []
        for name, file, readable in RIGS:
            source = self.shared / "models" / file
            folder = self.out / f"rigs/{name}"
            ours, mesh = self.out / f"{name}.ours", folder / Path(file).stem
            if not ours.exists():
                raise Failure("pictures are of what the judge of rigs has made; run that first")
            clips = Poses(ours).clips
            clip = min(1, len(clips) - 1)
            frame = clips[clip]["frames"] // 2
            drawn = [self.out / f"{name}.{who}.png" for who in ("source", "ours")]
            scene = self.out / f"{name}.scene"
            self.blender("blender_picture", source if readable else scene, scene, drawn[0], clip, frame)
            self.call(self.tool, "render", "--force", "--anim", f"{mesh}.anim", "--block", clip, "--frame", frame,
                      "--yaw", 30, "--pitch", 15, "--size", 400, "--background", "#6C7E95", "--game-path", folder,
                      "--mod-path", folder, "-o", drawn[1], f"{mesh}.skinnedmesh")
            pairs += [f"{name} {clips[clip]['name']}, {frame}: source", drawn[0], "ours", drawn[1]]
        sheet = self.out / "sheet.png"
        labelled = [word for label, picture in zip(pairs[::2], pairs[1::2]) for word in ("-label", label, picture)]
        self.call("montage", *labelled, "-background", "#6C7E95", "-tile", "4x", "-geometry", "300x300+4+4", sheet)
        print(f"\nPictures of sources and ours: {sheet}")

    # --- Broken files --------------------------------------------------------------------------------------

    def broken(self):
        rows = [("file", "as stored", "ready", "verdict")]
        kinds = ("as stored", "ready")
        files = self.listed("nasty")
        messages = []

        def tried(file):
            return [self.tried(file, kind == "ready") for kind in kinds]

        with ThreadPoolExecutor(os.cpu_count()) as threads:
            for file, results in zip(files, threads.map(tried, files)):
                good = True
                cells = []
                for kind, (code, seconds, said, made, left) in zip(kinds, results):
                    cells.append(f"{'made' if made else 'refused'} {seconds:.1f} s")
                    # Either there is a model that reads, or a message that names the file, and nothing is left.
                    # Beside a model, exit code 1 says that something of it could not be copied.
                    fine = code in (0, 1) and (made or code == 1 and not left and Path(file).name in said)
                    good = good and fine
                    messages.append(f"{file}, {kind}: exit {code}{'' if fine else '  <-- BAD'}\n" +
                                    "".join(f"    {line}\n" for line in said.splitlines()))
                rows.append((file, *cells, self.verdict(good)))
        table("Broken files", rows)
        (self.out / "broken.txt").write_text("".join(messages))

    def tried(self, file, ready):
        folder = self.fresh(f"broken/{'ready' if ready else 'stored'}/{file.replace('/', '_')}")
        mod = self.fresh_mod(f"{folder.relative_to(self.out)}.mod")
        start = time.monotonic()
        try:
            done = subprocess.run([self.tool, "import", *(["--ready"] if ready else []), "--create-kmat",
                                   "--copy-textures", "--mod-path", mod, "-o", folder, self.shared / "models" / file],
                                  capture_output=True, text=True, errors="replace", timeout=TIME_LIMIT)
            code, said = done.returncode, done.stdout + done.stderr
        except subprocess.TimeoutExpired:
            code, said = 124, "hangs"
        seconds = time.monotonic() - start
        meshes = list(folder.glob("*.skinnedmesh"))
        made = bool(meshes) and subprocess.run([self.tool, "info", *meshes], capture_output=True).returncode == 0
        if made and ready:
            errors = [finding for finding in self.findings(folder, mod).split(", ") if " error " in finding]
            said += "".join(f"check: {error}\n" for error in errors)
            code = 3 if errors else code
        left = not made and [p for p in (*folder.rglob("*"), *mod.rglob("*")) if p.is_file()]
        return code, seconds, said, made, left

    def fresh(self, name):
        folder = self.out / name
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
        return folder

    def fresh_mod(self, name):
        folder = self.fresh(name)
        for below in ("materials", "textures"):
            (folder / below).mkdir()
        return folder


class Failure(Exception):
    pass


def outside(poses):
    """The share of the area whose front is on the side where the normals point."""
    corners = np.asarray(poses.rest, np.float64)[poses.triangles]
    fronts = np.cross(corners[:, 1] - corners[:, 0], corners[:, 2] - corners[:, 0])
    normals = np.zeros((poses.vertices, 3))
    normals[poses.vertex] = poses.normal
    sides = (fronts * normals[poses.triangles].sum(axis=1)).sum(axis=1)
    areas = np.linalg.norm(fronts, axis=1)
    return float(areas[sides > 0].sum() / max(areas[sides != 0].sum(), 1e-30))


def table(title, rows):
    widths = [max(len(str(row[i])) for row in rows) for i in range(len(rows[0]))]
    print(f"\n{title}\n")
    for row in rows:
        print("  ".join(f"{str(cell):{width}}" if i == 0 else f"{str(cell):>{width}}"
                        for i, (cell, width) in enumerate(zip(row, widths))).rstrip())
    sys.stdout.flush()


def main():
    build, shared, out, *asked = sys.argv[1:]
    if set(asked) - set(ALL):
        sys.exit(f"The judge is asked for {', '.join(ALL)}, not for '{' '.join(asked)}'.")
    judge = Judge(build, shared, out)
    start = time.monotonic()
    for what in asked or ALL:
        try:
            getattr(judge, what)()
        except Failure as failure:
            print(failure)
            judge.verdict(False)
    print(f"\n{time.monotonic() - start:.0f} s")
    return 1 if judge.failed else 0


if __name__ == "__main__":
    sys.exit(main())
