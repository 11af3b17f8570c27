// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SampleModels.h"
#include "TestSupport.h"

using namespace SampleModels;

namespace {
bool near(const QVector3D &a, const QVector3D &b)
{
    return (a - b).length() < 1e-5f;
}

/// A mesh with one vertex and, if it has bones, one bone and one hot point.
template <typename Mesh>
Mesh meshOfOne()
{
    Mesh mesh;
    mesh.surfaces.resize(1);
    mesh.vertices.resize(1);
    mesh.vertices[0].position = {1.0f, 2.0f, 3.0f};
    mesh.vertices[0].normal = {0.0f, 1.0f, 0.0f};
    mesh.bbMin = {-1.0f, -2.0f, -3.0f};
    mesh.bbMax = {1.0f, 2.0f, 3.0f};
    if constexpr (std::is_same_v<Mesh, SkinnedMesh>) {
        mesh.nodes.resize(1);
        mesh.nodes[0].bbMin = mesh.bbMin;
        mesh.nodes[0].bbMax = mesh.bbMax;
        mesh.hotPoints.resize(1);
        mesh.hotPoints[0].origin = {5.0f, 6.0f, 7.0f};
    }
    return mesh;
}

template <typename Mesh>
void checkRotation(const QVector3D &angles, const QVector3D &position, const QVector3D &normal)
{
    Mesh mesh = meshOfOne<Mesh>();
    mesh.rotate(angles.x(), angles.y(), angles.z());
    QVERIFY(near(mesh.vertices[0].position, position));
    QVERIFY(near(mesh.vertices[0].normal, normal));
    // Corners are points of their own and not put in order again.
    QVERIFY(near(mesh.bbMin, -position));
    QVERIFY(near(mesh.bbMax, position));
    if constexpr (std::is_same_v<Mesh, SkinnedMesh>) {
        QVERIFY(near(mesh.nodes[0].bbMin, -position));
        QVERIFY(near(mesh.nodes[0].bbMax, position));
        QCOMPARE(mesh.hotPoints[0].origin, QVector3D(5.0f, 6.0f, 7.0f));
    }
}
} // namespace

/// Whole-model operations: turning, scaling, and the sizes of an animation block's tables.
class TestModelEdits : public QObject
{
    Q_OBJECT

private slots:
    void rotate()
    {
        const struct
        {
            QVector3D angles; // pitch about x, yaw about y, roll about z
            QVector3D position, normal;
        } rows[] = {{{90, 0, 0}, {1, -3, 2}, {0, 0, 1}},
                    {{0, 90, 0}, {3, 2, -1}, {0, 1, 0}},
                    {{0, 0, 90}, {-2, 1, 3}, {-1, 0, 0}},
                    // Roll first: (-2, 1, 3); then pitch: (-2, -3, 1); then yaw.
                    {{90, 90, 90}, {1, -3, 2}, {0, 0, 1}},
                    {{90, 0, 90}, {-2, -3, 1}, {-1, 0, 0}}};
        for (const auto &row : rows) {
            checkRotation<SkinnedMesh>(row.angles, row.position, row.normal);
            checkRotation<StaticMesh>(row.angles, row.position, row.normal);
        }
    }

    void scale()
    {
        SkinnedMesh mesh = meshOfOne<SkinnedMesh>();
        mesh.scale(-2.0f);
        QCOMPARE(mesh.vertices[0].position, QVector3D(-2.0f, -4.0f, -6.0f));
        QCOMPARE(mesh.vertices[0].normal, QVector3D(0.0f, 1.0f, 0.0f));
        QCOMPARE(mesh.bbMin, QVector3D(2.0f, 4.0f, 6.0f));
        QCOMPARE(mesh.nodes[0].bbMax, QVector3D(-2.0f, -4.0f, -6.0f));
        QCOMPARE(mesh.hotPoints[0].origin, QVector3D(5.0f, 6.0f, 7.0f));

        StaticMesh rigid = meshOfOne<StaticMesh>();
        rigid.scale(0.5f);
        QCOMPARE(rigid.vertices[0].position, QVector3D(0.5f, 1.0f, 1.5f));
        QCOMPARE(rigid.bbMax, QVector3D(0.5f, 1.0f, 1.5f));
    }

    void frameCount()
    {
        AnimFile file;
        file.blocks.resize(1);
        AnimBlock &block = file.blocks[0];
        block.setTranslationCount(2);
        block.setRotationCount(1);
        block.setFrameCount(10);
        for (int frame = 0; frame < 10; ++frame) {
            // Without a key to repeat.
            QCOMPARE(block.rotations.at(0, frame), QVector4D(0.0f, 0.0f, 0.0f, 1.0f));
            block.frames[size_t(frame)].yawOffset = float(frame);
            block.translations.at(0, frame) = {float(frame), 0.0f, 0.0f};
            block.translations.at(1, frame) = {0.0f, float(frame), 0.0f};
            block.rotations.at(0, frame) = {float(frame), 0.0f, 0.0f, 1.0f};
        }
        const QByteArray before = bytesOf(file);
        block.setFrameCount(12);
        QCOMPARE(block.frameCount(), 12);
        for (int frame : {10, 11}) {
            QCOMPARE(block.frames[size_t(frame)].yawOffset, 0.0f);
            QCOMPARE(block.translations.at(0, frame), QVector3D(9.0f, 0.0f, 0.0f));
            QCOMPARE(block.translations.at(1, frame), QVector3D(0.0f, 9.0f, 0.0f));
            QCOMPARE(block.rotations.at(0, frame), QVector4D(9.0f, 0.0f, 0.0f, 1.0f));
        }
        block.setFrameCount(10);
        QCOMPARE(bytesOf(file).toHex(), before.toHex());

        block.setFrameCount(-5);
        QCOMPARE(block.frameCount(), 0);
        QCOMPARE(block.translations.trackCount(), 2);
    }

    void trackCounts()
    {
        AnimBlock block;
        block.nodes.resize(1);
        block.nodes[0].translationIndex = 3;
        block.setFrameCount(2);
        block.setTranslationCount(2);
        block.setRotationCount(1);
        block.translations.at(0, 1) = {1.0f, 1.0f, 1.0f};
        block.translations.at(1, 1) = {2.0f, 2.0f, 2.0f};
        block.rotations.at(0, 0) = {1.0f, 0.0f, 0.0f, 0.0f};
        block.setTranslationCount(4);
        block.setRotationCount(2);
        for (int track : {1, 2, 3}) {
            QCOMPARE(block.translations.at(track, 0), QVector3D());
            QCOMPARE(block.translations.at(track, 1), QVector3D(2.0f, 2.0f, 2.0f));
        }
        QCOMPARE(block.rotations.at(1, 0), QVector4D(1.0f, 0.0f, 0.0f, 0.0f));
        QCOMPARE(int(block.nodes[0].translationIndex), 3);
        block.setTranslationCount(1);
        QCOMPARE(block.translations.keys(), (std::vector<QVector3D>{{}, {1.0f, 1.0f, 1.0f}}));
        block.setRotationCount(-1);
        QCOMPARE(block.rotations.trackCount(), 0);
        block.setRotationCount(2);
        QCOMPARE(block.rotations.at(1, 1), QVector4D(0.0f, 0.0f, 0.0f, 1.0f));
    }
};

QTEST_GUILESS_MAIN(TestModelEdits)
#include "tst_modeledits.moc"
