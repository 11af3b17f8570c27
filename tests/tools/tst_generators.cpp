// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT

// What the generators make is committed: it must be what they make today, and it must be sound.
#include "AnimFile.h"
#include "Chime.h"
#include "FrameChoice.h"
#include "KMat.h"
#include "MarkerSphere.h"
#include "Pose.h"
#include "ReferenceTexts.h"
#include "Samples.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "TestSupport.h"
#include "Textures.h"

#include <QImage>

#include <set>

namespace {
/// Sample model files, below "samples/".
constexpr const char *TinkerMesh = "game/models/tinker/tinker.skinnedmesh";
constexpr const char *TinkerAnim = "game/anims/tinker/tinker.anim";
constexpr const char *Crate = "game/models/crate/crate.staticmesh";
constexpr const char *Lantern = "mod/models/lantern/lantern.staticmesh";

QString sample(const QString &path)
{
    return TestSupport::source(QStringLiteral("samples/") + path);
}

/// Names of all files that the tool's output folder and its committed copy do not have alike.
QStringList differences(const QString &made, const QString &committed)
{
    std::set<QString> files;
    for (const QString &folder : {made, committed}) {
        for (const char *room : {"/game", "/mod"}) {
            QDirIterator walk(folder + room, QDir::Files, QDirIterator::Subdirectories);
            while (walk.hasNext())
                files.insert(QDir(folder).relativeFilePath(walk.next()));
        }
    }
    QStringList names;
    for (const QString &file : files) {
        const QString a = made + '/' + file, b = committed + '/' + file;
        const bool same = file.endsWith(".png")
                              ? !QImage(a).isNull() && QImage(a) == QImage(b)
                              : QFile::exists(a) && TestSupport::readFile(a) == TestSupport::readFile(b);
        if (!same)
            names.append(file);
    }
    return names;
}

/// Of the vertices in model space, so that triangles can be told inside from outside.
struct Corner
{
    QVector3D position, normal;
};

/// The part of triangles whose winding disagrees with the normals of their corners: clockwise seen from
/// outside.
template <typename Surfaces>
double wronglyWound(const Surfaces &surfaces, const std::vector<Corner> &corners)
{
    int wrong = 0, all = 0;
    for (const auto &surface : surfaces) {
        for (size_t i = 0; i < surface.triangleIndexes.size(); i += 3) {
            const auto at = [&](size_t k) -> const Corner & {
                return corners.at(surface.triangleIndexes[i + k]);
            };
            const QVector3D outward =
                QVector3D::crossProduct(at(2).position - at(0).position, at(1).position - at(0).position);
            ++all;
            if (QVector3D::dotProduct(outward, at(0).normal + at(1).normal + at(2).normal) <= 0.0f)
                ++wrong;
        }
    }
    return double(wrong) / all;
}

/// The right side out, with normals of length 1, within a box that fits.
template <typename Mesh>
void checkShape(const Mesh &mesh, const std::vector<Corner> &corners)
{
    QVERIFY(wronglyWound(mesh.surfaces, corners) < 0.001);
    QVector3D min = corners[0].position, max = min;
    for (const Corner &corner : corners) {
        QVERIFY(std::abs(corner.normal.length() - 1.0f) < 1e-3f);
        for (int axis = 0; axis < 3; ++axis) {
            min[axis] = std::min(min[axis], corner.position[axis]);
            max[axis] = std::max(max[axis], corner.position[axis]);
        }
    }
    QVERIFY((min - mesh.bbMin).length() < 0.01f && (max - mesh.bbMax).length() < 0.01f);
}

std::vector<Corner> cornersOf(const StaticMesh &mesh)
{
    std::vector<Corner> corners;
    for (const StaticMeshVertex &vertex : mesh.vertices)
        corners.push_back({vertex.position, vertex.normal});
    return corners;
}

/// Where the bones stand at a frame of a block; -1 is the initial pose.
BonePalette bonesAt(const SkinnedMesh &mesh, const AnimBlock &block, int frame)
{
    BonePalette bones(mesh.nodes.size());
    PoseEvaluator poses;
    if (frame < 0) {
        poses.evaluateInitialPose(bones, mesh, block);
    } else {
        Playback state;
        state.playState = PlayState::Paused;
        state.time = float(frame) / playRate(block.speed);
        QQuaternion yaw;
        poses.evaluateAnimatedPose(bones, mesh, block, state, yaw);
    }
    return bones;
}

std::vector<Corner> posed(const SkinnedMesh &mesh, const AnimBlock &block, int frame)
{
    const BonePalette bones = bonesAt(mesh, block, frame);
    std::vector<Corner> corners;
    for (const SkinnedMeshVertex &vertex : mesh.vertices) {
        const QMatrix4x4 &matrix = bones.at(vertex.nodeIndex);
        corners.push_back({matrix * vertex.position, matrix.mapVector(vertex.normal)});
    }
    return corners;
}
} // namespace

class TestGenerators : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(!m_tinker.read(sample(TinkerMesh)));
        QVERIFY(!m_animations.read(sample(TinkerAnim)));
    }

    void resourcesAreCurrent()
    {
        QTemporaryDir folder;
        const QString sphere = folder.filePath("sphere.staticmesh");
        QVERIFY(!makeMarkerSphere().write(sphere));
        // Through the resource system, which the program reads them from.
        QCOMPARE(TestSupport::readFile(":/models/spherewire.staticmesh"), TestSupport::readFile(sphere));
        QCOMPARE(TestSupport::readFile(":/sounds/test.wav"), makeChime());
        for (const ReferenceKind kind : referenceKinds)
            QCOMPARE(TestSupport::readFile(builtInReferencePath(kind)), makeReferenceText(kind));
        QCOMPARE(QImage(":/Images/textures/ground.png"), makeGroundTexture());
        QCOMPARE(QImage(":/Images/textures/blank.png"), makePlainTexture(Qt::white));
        for (const char *name : {"red", "green", "blue"})
            QVERIFY2(!QImage(QStringLiteral(":/Images/textures/%1.png").arg(name)).isNull(), name);
    }

    void sphereIsAsTheViewportExpects()
    {
        StaticMesh sphere;
        QVERIFY(!sphere.read(":/models/spherewire.staticmesh"));
        QCOMPARE(wronglyWound(sphere.surfaces, cornersOf(sphere)), 0.0);
        for (const StaticMeshVertex &vertex : sphere.vertices)
            QVERIFY(std::abs(vertex.position.length() - 1.0f) < 0.01f);
    }

    void everyIconIsThereAtEachScale()
    {
        QFile list(TestSupport::source("resources/icons-src/icons.txt"));
        QVERIFY(list.open(QIODevice::ReadOnly));
        QStringList names{"korvane"};
        for (const QByteArray &line : list.readAll().split('\n')) {
            const QByteArray name = line.simplified().split(' ').first();
            if (!name.isEmpty() && !name.startsWith('#'))
                names.append(QString::fromLatin1(name));
        }
        QVERIFY(names.size() > 60);
        for (const QString &name : names) {
            for (const auto &[suffix, size] :
                 {std::pair("", 24), std::pair("@2x", 48), std::pair("@3x", 72)}) {
                const QString path = QString(":/Images/Icons/%1%2.png").arg(name, QLatin1String(suffix));
                QVERIFY2(QImage(path).size() == QSize(size, size), qPrintable(path));
            }
        }
    }

    void samplesAreCurrent()
    {
        QTemporaryDir folder;
        QCOMPARE(makeSamples(folder.path()), QString());
        QCOMPARE(differences(folder.path(), TestSupport::source("samples")), QStringList());
        QVERIFY(!makeSamples(QStringLiteral("/proc")).isEmpty());
    }

    void modelsAreSound()
    {
        for (const char *path : {Crate, Lantern}) {
            StaticMesh mesh;
            QVERIFY(!mesh.read(sample(path)));
            checkShape(mesh, cornersOf(mesh));
            for (const StaticMeshVertex &vertex : mesh.vertices)
                QVERIFY(QRectF(0, 0, 1, 1).contains(vertex.uv.toPointF()));
        }
        checkShape(m_tinker, posed(m_tinker, m_animations.blocks[0], -1));
        QVERIFY(std::abs(m_tinker.bbMin.z()) < 0.1f); // it stands on the floor
    }

    void blocksLoopAndStayOnTheFloor()
    {
        for (const AnimBlock &block : m_animations.blocks) {
            for (int frame = 0; frame < block.frameCount(); frame += 4) {
                for (const Corner &corner : posed(m_tinker, block, frame))
                    QVERIFY2(corner.position.z() > -3.0f,
                             qPrintable(QStringLiteral("block %1 frame %2").arg(block.animId).arg(frame)));
            }
            if (block.loopFrame != 0)
                continue;
            // The last frame is the first again, but for the key, which looks the same after half a turn.
            const BonePalette first = bonesAt(m_tinker, block, 0);
            const BonePalette last = bonesAt(m_tinker, block, block.frameCount() - 1);
            for (size_t bone = 0; bone < first.size(); ++bone)
                QVERIFY((first[bone].column(3) - last[bone].column(3)).length() < 0.01f);
        }
    }

    void footstepsSoundWhereFeetLand()
    {
        const AnimBlock &walk = m_animations.blocks[0];
        QCOMPARE(walk.actions.size(), size_t(2));
        for (const AnimAction &step : walk.actions) {
            const auto height = [&](int frame) {
                const std::vector<Corner> corners = posed(m_tinker, walk, frame);
                float lowest = 1e9f;
                for (size_t i = 0; i < corners.size(); ++i) {
                    if (m_tinker.vertices[i].nodeIndex == step.node)
                        lowest = std::min(lowest, corners[i].position.z());
                }
                return lowest;
            };
            QVERIFY(height(step.frame) < 0.6f);
            const int before = (step.frame + walk.frameCount() - 3) % (walk.frameCount() - 1);
            QVERIFY(height(before) > height(step.frame) + 0.5f);
        }
    }

    /// Both folders take part, and where both have a file the mod folder's differs.
    void lookUpOrderShows()
    {
        MaterialTable game, mod;
        QCOMPARE(readKMat(sample("game/materials/mat_tinker.kmat"), game), QString());
        QCOMPARE(readKMat(sample("mod/materials/mat_tinker_scarf.kmat"), mod), QString());
        QVERIFY(!QFile::exists(sample("game/materials/mat_tinker_scarf.kmat")));
        QVERIFY(!QFile::exists(sample("game/" + game.at("glow"))) &&
                QFile::exists(sample("mod/" + game.at("glow"))));
        const QImage shown(sample("game/" + game.at("body"))), hidden(sample("mod/" + game.at("body")));
        QVERIFY(!shown.isNull() && !hidden.isNull());
        QVERIFY(shown.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation) !=
                hidden.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }

private:
    SkinnedMesh m_tinker;
    AnimFile m_animations;
};

QTEST_GUILESS_MAIN(TestGenerators)
#include "tst_generators.moc"
