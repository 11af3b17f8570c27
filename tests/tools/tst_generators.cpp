// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT

// What the generators make is committed: it must be what they make today, and it must be sound.
#include "AnimFile.h"
#include "Chime.h"
#include "KMat.h"
#include "MarkerSphere.h"
#include "ReferenceTexts.h"
#include "Samples.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "TestSupport.h"
#include "Textures.h"

#include <QDirIterator>
#include <QImage>
#include <QMatrix4x4>
#include <QQuaternion>

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

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    for (const char *room : {"game", "mod"}) {
        QDirIterator walk(folder + '/' + room, QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext())
            files.append(QDir(folder).relativeFilePath(walk.next()));
    }
    files.sort();
    return files;
}

/// Names of all files that the tool's output folder and its committed copy do not have alike.
QStringList differences(const QString &made, const QString &committed)
{
    QStringList names;
    const QStringList files = filesBelow(made) + filesBelow(committed);
    for (const QString &file : std::set<QString>(files.begin(), files.end())) {
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
    QVector2D uv;
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

std::vector<Corner> cornersOf(const StaticMesh &mesh)
{
    std::vector<Corner> corners;
    for (const StaticMeshVertex &vertex : mesh.vertices)
        corners.push_back({vertex.position, vertex.normal, vertex.uv});
    return corners;
}

/// Bone matrices of a block at a frame; -1 is the initial pose.
std::vector<QMatrix4x4> boneMatrices(const SkinnedMesh &mesh, const AnimBlock &block, int frame)
{
    std::vector<QMatrix4x4> matrices(mesh.nodes.size());
    for (size_t bone = 0; bone < mesh.nodes.size(); ++bone) {
        const AnimNode &node = block.nodes[bone];
        QVector3D position = node.initialPosition;
        QVector4D rotation = node.initialRotation;
        if (block.translations.contains(node.translationIndex, frame))
            position = block.translations.at(node.translationIndex, frame);
        if (block.rotations.contains(node.rotationIndex, frame))
            rotation = block.rotations.at(node.rotationIndex, frame);
        // The samples' parents come before their children.
        if (bone > 0)
            matrices[bone] = matrices[mesh.nodes[bone].parentNode];
        matrices[bone].translate(position);
        matrices[bone].rotate(QQuaternion(rotation));
    }
    return matrices;
}

std::vector<Corner> posed(const SkinnedMesh &mesh, const std::vector<QMatrix4x4> &matrices)
{
    std::vector<Corner> corners;
    for (const SkinnedMeshVertex &vertex : mesh.vertices) {
        const QMatrix4x4 &matrix = matrices.at(vertex.nodeIndex);
        corners.push_back({matrix * vertex.position, matrix.mapVector(vertex.normal), vertex.uv});
    }
    return corners;
}

float lowest(const std::vector<Corner> &corners, const SkinnedMesh &mesh, int boneOfFoot)
{
    float z = 1e9f;
    for (size_t i = 0; i < corners.size(); ++i) {
        if (mesh.vertices[i].nodeIndex == boneOfFoot)
            z = std::min(z, corners[i].position.z());
    }
    return z;
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
        QCOMPARE(TestSupport::readFile(":/models/spherewire.staticmesh").size(), 154607);
        QCOMPARE(sphere.version, 2);
        QCOMPARE(sphere.bbMin, QVector3D());
        QCOMPARE(sphere.bbMax, QVector3D());
        QCOMPARE(sphere.surfaces.size(), size_t(1));
        QCOMPARE(sphere.surfaces[0].materialPath, QStringLiteral("_white"));
        QCOMPARE(sphere.surfaces[0].triangleIndexes.size(), size_t(3 * 2208));
        QCOMPARE(sphere.vertices.size(), size_t(4416));
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
                const QString path =
                    QStringLiteral(":/Images/Icons/%1%2.png").arg(name, QLatin1String(suffix));
                QVERIFY2(QImage(path).size() == QSize(size, size), qPrintable(path));
            }
        }
    }

    void samplesAreCurrent()
    {
        QTemporaryDir folder;
        QCOMPARE(makeSamples(folder.path()), QString());
        QCOMPARE(differences(folder.path(), TestSupport::source("samples")), QStringList());
    }

    void unwritableFolderIsReported()
    {
        QTemporaryDir folder;
        QVERIFY(TestSupport::writeFile(folder.filePath("game"), "in the way"));
        QVERIFY(!makeSamples(folder.path()).isEmpty());
    }

    void propsAreSound_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("crate") << QString(Crate);
        QTest::newRow("lantern") << QString(Lantern);
    }

    void propsAreSound()
    {
        QFETCH(QString, path);
        StaticMesh mesh;
        QVERIFY(!mesh.read(sample(path)));
        QVERIFY(wronglyWound(mesh.surfaces, cornersOf(mesh)) < 0.001);
        for (const StaticMeshVertex &vertex : mesh.vertices) {
            for (int axis = 0; axis < 3; ++axis)
                QVERIFY(vertex.position[axis] >= mesh.bbMin[axis] &&
                        vertex.position[axis] <= mesh.bbMax[axis]);
            QVERIFY(vertex.uv.x() >= 0.0f && vertex.uv.x() <= 1.0f && vertex.uv.y() >= 0.0f &&
                    vertex.uv.y() <= 1.0f);
        }
    }

    void tinkerStandsOnTheFloorAtRest()
    {
        QVERIFY(m_tinker.nodes.size() >= 20);
        QVERIFY(!m_tinker.hotPoints.empty());
        const std::vector<Corner> rest = posed(m_tinker, boneMatrices(m_tinker, m_animations.blocks[0], -1));
        QVERIFY(wronglyWound(m_tinker.surfaces, rest) < 0.001);
        QVector3D min = rest[0].position, max = min;
        for (const Corner &corner : rest) {
            QVERIFY(std::abs(corner.normal.length() - 1.0f) < 1e-3f);
            for (int axis = 0; axis < 3; ++axis) {
                min[axis] = std::min(min[axis], corner.position[axis]);
                max[axis] = std::max(max[axis], corner.position[axis]);
            }
        }
        QVERIFY((min - m_tinker.bbMin).length() < 0.01f && (max - m_tinker.bbMax).length() < 0.01f);
        QVERIFY(std::abs(min.z()) < 0.1f);
        QVERIFY(max.z() > 180.0f && max.z() < 220.0f);
    }

    void blocksLoopAndStayOnTheFloor()
    {
        QCOMPARE(m_animations.blocks.size(), size_t(5));
        for (const AnimBlock &block : m_animations.blocks) {
            QCOMPARE(block.nodes.size(), m_tinker.nodes.size());
            QVERIFY(block.loopFrame == 0 || block.loopFrame == 0xFFFF ||
                    block.loopFrame == block.frameCount() - 1);
            for (const AnimAction &action : block.actions)
                QVERIFY(action.frame < block.frameCount() &&
                        (action.node == 0xFFFF || action.node < block.nodes.size()));
            for (int frame = 0; frame < block.frameCount(); frame += 4) {
                const std::vector<Corner> corners = posed(m_tinker, boneMatrices(m_tinker, block, frame));
                for (const Corner &corner : corners)
                    QVERIFY2(corner.position.z() > -3.0f, qPrintable(QStringLiteral("block %1 frame %2: %3")
                                                                         .arg(block.animId)
                                                                         .arg(frame)
                                                                         .arg(double(corner.position.z()))));
            }
            if (block.loopFrame != 0)
                continue;
            // The last frame is the first again, but for the key, which looks the same after half a turn.
            const std::vector<QMatrix4x4> first = boneMatrices(m_tinker, block, 0);
            const std::vector<QMatrix4x4> last = boneMatrices(m_tinker, block, block.frameCount() - 1);
            for (size_t bone = 0; bone < first.size(); ++bone)
                QVERIFY((first[bone].column(3) - last[bone].column(3)).length() < 0.01f);
        }
    }

    void footstepsSoundWhereFeetLand()
    {
        const AnimBlock &walk = m_animations.blocks[0];
        QCOMPARE(walk.actions.size(), size_t(2));
        for (const AnimAction &step : walk.actions) {
            const int before = (step.frame + walk.frameCount() - 3) % (walk.frameCount() - 1);
            const auto height = [&](int frame) {
                return lowest(posed(m_tinker, boneMatrices(m_tinker, walk, frame)), m_tinker, step.node);
            };
            QVERIFY(height(step.frame) < 0.6f);
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
