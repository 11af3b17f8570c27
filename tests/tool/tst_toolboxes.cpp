// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "ToolRun.h"
#include "Transform.h"

/// Boxes that korvane-tool fits.
class tst_ToolBoxes : public QObject
{
    Q_OBJECT

private slots:
    void fitsBones()
    {
        const SkinnedMesh before = tinker();
        SkinnedMesh wide = before;
        for (SkinnedMeshNode &bone : wide.nodes)
            bone.bbMax += QVector3D(5, 5, 5);
        wide.bbMax = {1000, 1000, 1000};
        const TestFolder folder;
        const QString file = folder.save("tinker.skinnedmesh", wide);
        const QByteArray bytes = TestSupport::readFile(file);

        // Nobody wants it written.
        const ToolRun told("fit-boxes --bones", {file});
        QCOMPARE(told.exitCode, 0);
        QVERIFY2(told.out.contains("boxes change"), qUtf8Printable(told.out));
        QCOMPARE(TestSupport::readFile(file), bytes);

        const QString out = folder.path("out.skinnedmesh");
        QCOMPARE(ToolRun("fit-boxes --bones -o", {out, file}).exitCode, 0);
        SkinnedMesh after;
        QVERIFY(!after.read(out));
        const auto boxes = boneBoxes(wide);
        for (size_t bone = 0; bone < boxes.size(); ++bone) {
            QCOMPARE(after.nodes[bone].bbMin, boxes[bone] ? boxes[bone]->min : wide.nodes[bone].bbMin);
            QCOMPARE(after.nodes[bone].bbMax, boxes[bone] ? boxes[bone]->max : wide.nodes[bone].bbMax);
        }
        QCOMPARE(after.bbMax, wide.bbMax);
        QVERIFY(after.vertices.size() == before.vertices.size());
        // What fits stays as it is, and what is there is not replaced.
        const QByteArray fitted = TestSupport::readFile(out);
        QVERIFY(ToolRun("fit-boxes --bones --in-place", {out}).out.contains(" 0 of "));
        QCOMPARE(TestSupport::readFile(out), fitted);
        const ToolRun taken("fit-boxes -o", {out, file});
        QVERIFY(taken.exitCode == 1 && taken.err.contains("exists already"));
    }

    void keepsWhatItWrote()
    {
        // Files of one name from two folders.
        const TestFolder from, folder;
        StaticMesh wall;
        wall.surfaces = {{"materials/m/_white", {0, 1, 0}}};
        wall.vertices = {{{-1, 2, 3}, {}, {}}, {{4, -5, 6}, {}, {}}};
        const QString one = from.save("wall.staticmesh", wall);
        wall.vertices[0].position.setX(-7);
        QDir().mkpath(from.path("other"));
        const QString other = from.save("other/wall.staticmesh", wall);
        const ToolRun both("fit-boxes --force -o", {folder.path(), one, other});
        QVERIFY2(both.exitCode == 1 && both.err.contains(other + ": "), qUtf8Printable(both.err));
        StaticMesh fitted;
        QVERIFY(!fitted.read(folder.path("wall.staticmesh")));
        QCOMPARE(fitted.bbMin.x(), -1.0f);
    }

    void fitsModels()
    {
        const TestFolder folder;
        StaticMesh wall;
        wall.surfaces = {{"materials/m/_white", {0, 1, 0}}};
        wall.vertices = {{{-1, 2, 3}, {}, {}}, {{4, -5, 6}, {}, {}}};
        const QString rigid = folder.save("wall.staticmesh", wall);
        QCOMPARE(ToolRun("fit-boxes --in-place", {rigid}).exitCode, 0);
        StaticMesh fitted;
        QVERIFY(!fitted.read(rigid));
        QCOMPARE(fitted.bbMin, QVector3D(-1, -5, 3));
        QCOMPARE(fitted.bbMax, QVector3D(4, 2, 6));
        QCOMPARE(ToolRun("fit-boxes --bones", {rigid}).exitCode, 1);

        // The bones of a skinned mesh rest where its animation says.
        SkinnedMesh wide = tinker();
        wide.bbMax = {1000, 1000, 1000};
        const QString file = folder.save("tinker.skinnedmesh", wide);
        const ToolRun alone("fit-boxes --model", {file});
        QVERIFY2(alone.exitCode == 1 && alone.err.contains("needs an animation"), qUtf8Printable(alone.err));
        QCOMPARE(ToolRun("fit-boxes", {file}).exitCode, 0);
        // Who names an animation is told when it is of no use.
        const QByteArray bytes = TestSupport::readFile(file);
        for (const QString &anim : {folder.path("no.anim"), file}) {
            const ToolRun run("fit-boxes --in-place --anim", {anim, file});
            QVERIFY2(run.exitCode == 1 && run.err.contains(anim), qUtf8Printable(run.err));
        }
        QCOMPARE(TestSupport::readFile(file), bytes);
        QCOMPARE(ToolRun("fit-boxes --bones --anim", {file, file}).exitCode, 2);
        QCOMPARE(ToolRun("fit-boxes --model --in-place --anim",
                         {TestSupport::source("samples/game/anims/tinker/tinker.anim"), file})
                     .exitCode,
                 0);
        SkinnedMesh after;
        QVERIFY(!after.read(file));
        QVERIFY(after.bbMax.z() < 1000 && after.bbMax.z() > after.bbMin.z());
        QVERIFY(after.nodes[0].bbMin == wide.nodes[0].bbMin);
        QCOMPARE(
            ToolRun("fit-boxes", {TestSupport::source("samples/game/anims/tinker/tinker.anim")}).exitCode, 1);
    }

private:
    static SkinnedMesh tinker()
    {
        SkinnedMesh mesh;
        if (mesh.read(TestSupport::source("samples/game/models/tinker/tinker.skinnedmesh")))
            qFatal("no sample");
        return mesh;
    }
};

QTEST_GUILESS_MAIN(tst_ToolBoxes)
#include "tst_toolboxes.moc"
