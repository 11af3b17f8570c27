// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportSteps.h"
#include "ImportWorker.h"
#include "Playback.h"
#include "Pose.h"
#include "RigGltf.h"
#include "TestSupport.h"

#include <random>

namespace {
using Places = std::vector<QVector3D>;

constexpr float Scale = 25.0f;

/// Upright, in game units.
QVector3D ours(const QVector3D &p)
{
    return QVector3D(p.x(), -p.z(), p.y());
}

/// Numbers between -1 and 1, the same on every machine.
class Dice
{
public:
    explicit Dice(unsigned seed)
        : m_dice(seed)
    {}
    float number() { return float(m_dice() % 20001) / 10000.0f - 1.0f; }
    QVector3D place() { return {number(), number(), number()}; }
    QQuaternion turn() { return QQuaternion(number(), number(), number(), number() + 0.1f).normalized(); }

private:
    std::mt19937 m_dice;
};

/// `count` triangles that say by their UVs which vertex is which.
Rig::Mesh triangles(Dice &dice, int mesh, int count)
{
    Rig::Mesh vertices;
    for (int i = 0; i < count; ++i) {
        const std::array<QVector3D, 3> corners{dice.place(), dice.place(), dice.place()};
        for (const QVector3D &corner : corners) {
            Rig::Vertex vertex;
            vertex.place = corner;
            vertex.normal =
                QVector3D::crossProduct(corners[1] - corners[0], corners[2] - corners[0]).normalized();
            vertex.uv = {float(vertices.size()) / 256.0f, float(mesh) / 16.0f};
            vertices.push_back(vertex);
        }
    }
    return vertices;
}

/// Nodes that are turned, scaled and mirrored, a helper among them; a skinned body, bound elsewhere than at
/// rest, whose vertices several joints pull; a part on two nodes, and one below a helper that is stretched.
/// Scales above what moves are the same along all axes: bones cannot follow a shear.
Rig makeRig(unsigned seed)
{
    Dice dice(seed);
    Rig rig;
    const auto add = [&](const char *name, int parent, const QVector3D &scale = {1, 1, 1}) {
        rig.nodes.push_back({name, parent, dice.place(), dice.turn(), scale});
        return int(rig.nodes.size()) - 1;
    };
    const int root = add("root", -1, {2, 2, 2});
    const int hips = add("hips", root);
    const int spine = add("spine", hips, {-0.5f, 0.5f, 0.5f});
    const int between = add("between", spine);
    const int left = add("arm.l", between, {3, 3, 3});
    const int right = add("arm.r", between);
    const int helper = add("hand_$AssimpFbx$_Rotation", right);
    const int hand = add("hand", helper);
    const int glove = add("glove", hand, {0.5f, -2.0f, 1.5f});
    const int shieldLeft = add("shield", left, {1, 1, -1});
    const int shieldRight = add("second shield", right);
    const int body = add("body", root);

    rig.meshes = {triangles(dice, 0, 12), triangles(dice, 1, 4), triangles(dice, 2, 4)};
    rig.nodes[size_t(body)].mesh = 0;
    rig.nodes[size_t(body)].isSkinned = true;
    rig.nodes[size_t(glove)].mesh = 1;
    rig.nodes[size_t(shieldLeft)].mesh = rig.nodes[size_t(shieldRight)].mesh = 2;
    rig.joints = {hips, spine, left, hand};
    // All joints have the body nearly in one place, mirrored or not.
    QMatrix4x4 common;
    common.rotate(dice.turn());
    common.scale(1.0f, seed % 2 == 0 ? 1.0f : -1.0f, 1.0f);
    const std::vector<QMatrix4x4> rest = rig.worlds(nullptr, 0.0f);
    for (int joint : rig.joints) {
        QMatrix4x4 bind = rest[size_t(joint)].inverted() * common;
        bind.translate(0.1f * dice.place());
        bind.rotate(10.0f * dice.number(), dice.place());
        rig.binds.push_back(bind);
    }
    for (size_t v = 0; v < rig.meshes[0].size(); ++v) {
        // One of each triangle's joints, for what all its corners do.
        const size_t triangle = v / 3;
        for (size_t w = 0; w < 4; ++w) {
            rig.meshes[0][v].joints[w] = quint16((triangle + w) % 4);
            rig.meshes[0][v].weights[w] = std::array{0.4f, 0.3f, 0.2f, 0.1f}[w];
        }
    }
    for (const char *name : {"walk [12]", "wave"}) {
        Rig::Clip &clip = rig.clips.emplace_back();
        clip.name = name;
        for (int node : {hips, spine, left, hand}) {
            // Not from zero, at times of their own, and with signs as they come.
            for (int key = 0; key < 6; ++key) {
                const float time = 0.5f + float(key) * 0.2f + (key % 5 != 0 ? dice.number() * 0.05f : 0.0f);
                clip.channels[{node, "rotation"}].push_back({time, dice.turn().toVector4D()});
                if (node != left)
                    clip.channels[{node, "translation"}].push_back({time, QVector4D(dice.place(), 0.0f)});
            }
        }
    }
    return rig;
}

/// An arm of two bones, its elbow blended over the middle half, that bends; or whose lower bone stretches.
Rig makeArm(bool stretches)
{
    Rig rig;
    rig.nodes = {{"arm.L", -1, {}, {}, {1, 1, 1}},
                 {"forearm.L", 0, {0, 1, 0}, {}, {1, 1, 1}},
                 {"skin", 0, {}, {}, {1, 1, 1}, 0, true}};
    rig.joints = {0, 1};
    rig.binds.resize(2);
    rig.binds[1].translate(0, -1, 0);
    Rig::Mesh &mesh = rig.meshes.emplace_back();
    for (int i = 0; i < 60; ++i) {
        const float height = float(i / 3) / 10.0f;
        for (int corner = 0; corner < 3; ++corner) {
            Rig::Vertex &vertex = mesh.emplace_back();
            const float angle = float(i % 3 + corner) * 2.1f;
            vertex.normal = {std::cos(angle), 0, std::sin(angle)};
            vertex.place = 0.2f * vertex.normal + QVector3D(0, height + (corner == 0 ? 0.1f : 0.0f), 0);
            vertex.uv = {float(mesh.size() - 1) / 256.0f, 0};
            const float lower = stretches ? std::round(height / 2.0f) : qBound(0.0f, height - 0.5f, 1.0f);
            vertex.joints = {quint16(lower > 0.5f ? 1 : 0), quint16(lower > 0.5f ? 0 : 1)};
            vertex.weights = {std::max(lower, 1.0f - lower), std::min(lower, 1.0f - lower)};
        }
    }
    Rig::Clip &clip = rig.clips.emplace_back();
    clip.name = "move";
    if (stretches)
        clip.channels[{1, "scale"}] = {{0, {1, 1, 1, 0}}, {0.5f, {1, 2, 1, 0}}, {1, {1, 1, 1, 0}}};
    else
        clip.channels[{1, "rotation"}] = {{0, {0, 0, 0, 1}},
                                          {1, QQuaternion::fromAxisAndAngle(0, 0, 1, 120).toVector4D()}};
    return rig;
}

/// How far two places are apart that should be one, as a share of `size`.
float apart(const QVector3D &a, const QVector3D &b, float size)
{
    return (a - b).length() / size;
}
} // namespace

Q_DECLARE_METATYPE(Rig)

/// A model that arrives ready for the game is posed as its source is.
class tst_readyposes : public QObject
{
    Q_OBJECT

private slots:
    void likeTheTextbook_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 6; ++seed)
            QTest::newRow(QByteArray::number(seed)) << seed;
    }

    void likeTheTextbook()
    {
        QFETCH(unsigned, seed);
        Rig rig = makeRig(seed);
        const QString path = m_folder.filePath(QStringLiteral("rig.gltf"));
        QVERIFY(TestSupport::writeFile(path, rig.file()));
        import(path, Scale);
        QCOMPARE(m_anim.blocks.size(), rig.clips.size());
        QCOMPARE(m_anim.blocks[0].animId, 12);

        const std::vector<QMatrix4x4> rest = rig.worlds(nullptr, 0.0f);
        const Places resting = initialPose();
        const float size = (m_mesh.bbMax - m_mesh.bbMin).length();
        struct Pair
        {
            int node;
            const Rig::Vertex *vertex;
            size_t ours;
        };
        std::vector<Pair> pairs;
        for (int n = 0; n < int(rig.nodes.size()); ++n) {
            if (rig.nodes[size_t(n)].mesh < 0)
                continue;
            for (const Rig::Vertex &vertex : rig.meshes[size_t(rig.nodes[size_t(n)].mesh)]) {
                const QVector3D place = Scale * ours(rig.place(rest, rest, n, vertex));
                Pair pair{n, &vertex, resting.size()};
                for (size_t v = 0; v < resting.size(); ++v) {
                    const QVector2D uv = m_mesh.vertices[v].uv;
                    const bool isIt = qFuzzyCompare(1.0f + uv.x(), 1.0f + vertex.uv.x()) &&
                                      qFuzzyCompare(2.0f - uv.y(), 1.0f + vertex.uv.y());
                    if (isIt && apart(resting[v], place, size) < 1e-5f)
                        pair.ours = v;
                }
                QVERIFY2(pair.ours < resting.size(), rig.nodes[size_t(n)].name);
                pairs.push_back(pair);
            }
        }
        QCOMPARE(pairs.size(), m_mesh.vertices.size());

        // Fronts are clockwise, and normals look out of them.
        const std::vector<quint16> corners = indexes();
        for (const quint16 *corner = corners.data(); corner < corners.data() + corners.size(); corner += 3) {
            const QVector3D out = QVector3D::crossProduct(resting[corner[2]] - resting[corner[0]],
                                                          resting[corner[1]] - resting[corner[0]]);
            const SkinnedMeshVertex &vertex = m_mesh.vertices[corner[0]];
            const QVector3D normal = m_palette[vertex.nodeIndex].mapVector(vertex.normal);
            QVERIFY(QVector3D::dotProduct(out.normalized(), normal) > 0.999f);
        }

        float most = 0.0f;
        for (size_t clip = 0; clip < rig.clips.size(); ++clip) {
            const AnimBlock &block = m_anim.blocks[clip];
            QCOMPARE(block.frameCount(), 31); // of the second from the first key to the last
            for (int frame = 0; frame < block.frameCount(); ++frame) {
                const Places posed = pose(clip, frame);
                const std::vector<QMatrix4x4> worlds =
                    rig.worlds(&rig.clips[clip], 0.5f + float(frame) / 30.0f);
                for (const Pair &pair : pairs) {
                    const QVector3D place = Scale * ours(rig.place(worlds, rest, pair.node, *pair.vertex));
                    most = std::max(most, apart(posed[pair.ours], place, size));
                }
            }
        }
        QVERIFY2(most < 1e-4f, QByteArray::number(double(most)));
    }

    void extraBones_data()
    {
        QTest::addColumn<Rig>("rig");
        QTest::newRow("blended elbow") << makeArm(false);
        QTest::newRow("stretched bone") << makeArm(true);
        QTest::newRow("many") << makeRig(3);
    }

    void extraBones()
    {
        QFETCH(Rig, rig);
        const QString path = m_folder.filePath(QStringLiteral("arm.gltf"));
        QVERIFY(TestSupport::writeFile(path, rig.file()));
        import(path, Scale);
        const SkinnedMesh plain = m_mesh;
        const int bytes = keyBytes();
        const Worst without = worstOfSkin(rig);
        QVERIFY2(without.distance > 0.03f, QByteArray::number(double(without.distance)));
        QVERIFY(!m_said.contains(QLatin1String("xtra")));
        import(path, Scale, true);
        const Worst with = worstOfSkin(rig);
        QVERIFY2(with.distance < 0.01001f, QByteArray::number(double(with.distance)));
        const QString row = QString::fromLatin1(QTest::currentDataTag());
        QVERIFY2(row != QLatin1String("blended elbow") || with.turned < without.turned / 2.0f,
                 QByteArray::number(double(with.turned)));
        const auto percent = [](float share) { return QString::number(double(100.0f * share), 'f', 1); };
        const size_t count = m_mesh.nodes.size() - plain.nodes.size();
        const QString told =
            QStringLiteral("Extra bones: %1, which take %2 kB of the animation file. No vertex "
                           "is farther than %3 % of the model's size from its place in the "
                           "source, instead of %4 %.")
                .arg(QString::number(count), QString::number((keyBytes() - bytes + 999) / 1000),
                     percent(with.distance), percent(without.distance));
        QVERIFY2(m_said.contains(told), qPrintable(m_said + told));

        // The bones of the source are what they were, and the others go with them.
        QVERIFY(count > 0 && m_mesh.nodes.size() <= 128 && m_mesh.refusal().isEmpty());
        QHash<int, int> numbers;
        for (size_t b = 0; b < m_mesh.nodes.size(); ++b) {
            const SkinnedMeshNode &bone = m_mesh.nodes[b];
            if (b < plain.nodes.size()) {
                QCOMPARE(bone.parentNode, plain.nodes[b].parentNode);
                QCOMPARE(bone.symbolFlags, plain.nodes[b].symbolFlags);
                continue;
            }
            const int parent = bone.parentNode;
            QVERIFY(size_t(parent) < plain.nodes.size());
            QCOMPARE(bone.symbolFlags, plain.nodes[size_t(parent)].symbolFlags);
            QCOMPARE(m_names.bones.value(int(b)),
                     QStringLiteral("%1 extra %2").arg(m_names.bones.value(parent)).arg(++numbers[parent]));
        }
        for (size_t v = 0; v < m_mesh.vertices.size(); ++v) {
            const size_t bone = m_mesh.vertices[v].nodeIndex;
            const size_t own = plain.vertices[v].nodeIndex;
            QVERIFY(bone == own || (bone >= plain.nodes.size() && m_mesh.nodes[bone].parentNode == own));
        }
    }

    void likeRealSources_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("extraBones");
        for (const QString &name : QDir(TestSupport::source("tests/import/poses")).entryList({"*.json"})) {
            const QString path = TestSupport::source("tests/import/poses/") + name;
            // Stretched bones have vertices where no bone of their own can have them.
            const bool isStretched = name.startsWith(QLatin1String("stretched"));
            if (!isStretched)
                QTest::newRow(qPrintable(name)) << path << false;
            if (isStretched || name == QLatin1String("fox.json"))
                QTest::newRow(qPrintable(name + QLatin1String(", extra bones"))) << path << true;
        }
    }

    void likeRealSources()
    {
        QFETCH(QString, path);
        QFETCH(bool, extraBones);
        const QJsonObject stored = QJsonDocument::fromJson(TestSupport::readFile(path)).object();
        const QString source = TestSupport::shared(QLatin1String("models/") + stored["source"].toString());
        if (source.isEmpty())
            QSKIP("The real models are not there.");
        import(source, 1.0f, extraBones);
        const QJsonArray frames = stored["frames"].toArray();
        QCOMPARE(int(m_anim.blocks.size()), frames.size());
        // A clip of one pose is held, since a block of one frame would show the pose at rest.
        for (int clip = 0; clip < frames.size(); ++clip) {
            const int count = m_anim.blocks[size_t(clip)].frameCount();
            QCOMPARE(frames[clip].toInt() == 1 ? std::min(count, 1) : count, frames[clip].toInt());
        }
        const QVector3D low = placeOf(stored["low"].toArray());
        const QVector3D high = placeOf(stored["high"].toArray());
        const float size = (high - low).length();

        // Of each vertex of the source ours that are in its place and have its UV, or nearly.
        const QJsonArray vertices = stored["vertices"].toArray();
        const Places resting = initialPose();
        std::vector<std::vector<size_t>> fits;
        for (const QJsonValue &each : vertices) {
            const QVector3D place = placeOf(each["at"].toArray());
            const QVector2D uv(float(each["uv"][0].toDouble()), float(each["uv"][1].toDouble()));
            std::vector<size_t> &fitting = fits.emplace_back();
            float nearest = size;
            for (const QVector3D &ours : resting)
                nearest = std::min(nearest, (ours - place).length());
            for (size_t v = 0; v < resting.size(); ++v) {
                if ((resting[v] - place).length() <= nearest + 1e-4f * size &&
                    (m_mesh.vertices[v].uv - uv).length() < 1e-3f)
                    fitting.push_back(v);
            }
            QVERIFY2(!fitting.empty(), qPrintable(QStringLiteral("%1 apart").arg(double(nearest / size))));
        }
        float solid = 0.0f;
        float most = 0.0f;
        double sum = 0.0;
        const QJsonArray poses = stored["poses"].toArray();
        for (const QJsonValue &each : poses) {
            const Places posed = pose(size_t(each["clip"].toInt()), each["frame"].toInt());
            for (int i = 0; i < vertices.size(); ++i) {
                const QJsonArray at = each["at"].toArray();
                const QVector3D place(float(at[3 * i].toDouble()), float(at[3 * i + 1].toDouble()),
                                      float(at[3 * i + 2].toDouble()));
                float distance = HUGE_VALF;
                for (size_t v : fits[size_t(i)])
                    distance = std::min(distance, apart(posed[v], place, size));
                most = std::max(most, distance);
                sum += double(distance);
                if (vertices[i]["solid"].toBool())
                    solid = std::max(solid, distance);
            }
        }
        const double mean = sum / std::max(1, poses.size() * vertices.size());
        const QByteArray figures = QStringLiteral("mean %1, most %2, on one bone %3")
                                       .arg(mean)
                                       .arg(double(most))
                                       .arg(double(solid))
                                       .toLatin1();
        QVERIFY2(mean < (extraBones ? 0.002 : 0.003) && most < (extraBones ? 0.011f : 0.035f), figures);
        QVERIFY2(extraBones || solid < 1e-5f, figures);
    }

private:
    static QVector3D placeOf(const QJsonArray &array)
    {
        return {float(array[0].toDouble()), float(array[1].toDouble()), float(array[2].toDouble())};
    }

    struct Worst
    {
        float distance = 0.0f; ///< of the model's size
        float turned = 0.0f;   ///< of a normal, in degrees
    };
    /// How far vertices of the skin are from where their joints have them.
    Worst worstOfSkin(const Rig &rig)
    {
        Worst worst;
        const float start = rig.clips.front().channels.begin()->second.front().time;
        const float size = (m_mesh.bbMax - m_mesh.bbMin).length();
        for (size_t clip = 0; clip < rig.clips.size(); ++clip) {
            for (int frame = 0; frame < m_anim.blocks[clip].frameCount(); ++frame) {
                const Places posed = pose(clip, frame);
                const std::vector<QMatrix4x4> worlds =
                    rig.worlds(&rig.clips[clip], start + float(frame) / 30.0f);
                for (size_t v = 0; v < posed.size(); ++v) {
                    const SkinnedMeshVertex &vertex = m_mesh.vertices[v];
                    if (vertex.uv.y() < 1.0f - 1e-4f)
                        continue; // of a part without joints
                    Rig::Vertex source = rig.meshes[0].at(size_t(qRound(vertex.uv.x() * 256.0f)));
                    const QVector3D place = rig.blended(worlds, source);
                    worst.distance = std::max(worst.distance, apart(posed[v], Scale * ours(place), size));
                    source.place += 0.001f * source.normal;
                    const float cosine =
                        QVector3D::dotProduct(ours(rig.blended(worlds, source) - place).normalized(),
                                              m_palette[vertex.nodeIndex].mapVector(vertex.normal));
                    worst.turned =
                        std::max(worst.turned, qRadiansToDegrees(std::acos(qBound(-1.0f, cosine, 1.0f))));
                }
            }
        }
        return worst;
    }

    /// What the tracks take.
    int keyBytes() const
    {
        int bytes = 0;
        for (const AnimBlock &block : m_anim.blocks)
            bytes += block.frameCount() *
                     (12 * block.translations.trackCount() + 16 * block.rotations.trackCount());
        return bytes;
    }

    void import(const QString &path, float scale, bool extraBones = false)
    {
        ImportChoices choices;
        choices.arrival = Arrival::Ready;
        choices.modelPath = path;
        choices.kmatPath = QStringLiteral("materials/mat_rig.kmat");
        choices.ready.scale = scale;
        choices.ready.extraBones = extraBones;
        ImportWorker worker;
        QSignalSpy finished(&worker, &ImportWorker::finished);
        worker.start(importJob(choices));
        QVERIFY(!finished.isEmpty() || finished.wait(120000));
        QVERIFY(!worker.messages().hasError());
        m_said.clear();
        for (const ImportMessage &message : worker.messages().lines)
            m_said += message.text + QLatin1Char('\n');
        m_names = worker.names();
        m_mesh = {};
        m_anim = {};
        QVERIFY(!worker.read(m_mesh, m_anim));
        m_palette.assign(m_mesh.nodes.size(), QMatrix4x4());
    }

    std::vector<quint16> indexes() const
    {
        std::vector<quint16> all;
        for (const SkinnedMeshSurface &surface : m_mesh.surfaces)
            all.insert(all.end(), surface.triangleIndexes.begin(), surface.triangleIndexes.end());
        return all;
    }

    Places initialPose()
    {
        PoseEvaluator().evaluateInitialPose(m_palette, m_mesh, m_anim.blocks.front());
        return posed();
    }

    Places pose(size_t clip, int frame)
    {
        const AnimBlock &block = m_anim.blocks[clip];
        Playback state;
        state.playState = PlayState::Paused;
        state.time = float(frame) / block.speed;
        QQuaternion yaw;
        PoseEvaluator().evaluateAnimatedPose(m_palette, m_mesh, block, state, yaw);
        return posed();
    }

    Places posed() const
    {
        Places places;
        for (const SkinnedMeshVertex &vertex : m_mesh.vertices)
            places.push_back(m_palette.at(vertex.nodeIndex).map(vertex.position));
        return places;
    }

    QTemporaryDir m_folder;
    QString m_said;
    ModelNames m_names;
    SkinnedMesh m_mesh;
    AnimFile m_anim;
    BonePalette m_palette;
};

QTEST_GUILESS_MAIN(tst_readyposes)
#include "tst_readyposes.moc"
