// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "FrameChoice.h"
#include "GltfExport.h"
#include "GltfExtras.h"
#include "GltfFile.h"
#include "GltfFiles.h"
#include "ImportMessages.h"
#include "KMat.h"
#include "OddRig.h"
#include "PosedMesh.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "TestSupport.h"

#include <QImage>

namespace {
/// Where the format has y up, the game has z.
QVector3D inGame(const QVector3D &v)
{
    return {v.x(), -v.z(), v.y()};
}

std::vector<quint16> usedVertices(const std::vector<quint16> &triangles)
{
    std::vector<quint16> used = triangles;
    std::sort(used.begin(), used.end());
    used.erase(std::unique(used.begin(), used.end()), used.end());
    return used;
}

/// How far the vertices of the file's surfaces stand from those of a mesh at the most.
float distance(const std::vector<GltfFile::Surface> &surfaces, const StaticMesh &expected,
               const std::vector<std::vector<quint16>> &used)
{
    float most = 0.0f;
    for (size_t i = 0; i < surfaces.size(); ++i) {
        if (surfaces[i].vertices.size() != used[i].size())
            return INFINITY;
        for (size_t k = 0; k < used[i].size(); ++k) {
            most = std::max(
                most,
                (inGame(surfaces[i].vertices[k].position) - expected.vertices[used[i][k]].position).length());
        }
    }
    return most;
}

/// Plays every clip, one after another, and says how far the vertices are from where the view has them.
float worstDistance(const GltfFile &file, const SkinnedMesh &mesh, const AnimFile &anim,
                    const std::vector<int> &blocks, const std::vector<std::vector<quint16>> &used,
                    int every = 1)
{
    float worst = 0.0f;
    std::vector<GltfFile::Place> places = file.rest();
    for (size_t clip = 0; clip < blocks.size(); ++clip) {
        Playback state;
        state.mesh = &mesh;
        state.anim = &anim;
        state.blockIndex = blocks[clip];
        state.playState = PlayState::Paused;
        const AnimBlock &block = anim.blocks[size_t(state.blockIndex)];
        for (int frame = 0; frame < block.frameCount(); frame += every) {
            state.time = float(frame) / playRate(block.speed);
            file.play(int(clip), state.time, places);
            worst = std::max(worst, distance(file.posed(places), posedMesh(mesh, state), used));
        }
    }
    return worst;
}
} // namespace

/// What the export writes is what the view shows, for a program that knows nothing but the format.
class tst_gltfexport : public QObject
{
    Q_OBJECT

private slots:
    void poses();
    void surfaces();
    void names();
    void records();
    void withoutAnimation();
    void brokenNumbers();
    void realModels_data();
    void realModels();
    void textures();
    void filesBeside();
};

void tst_gltfexport::poses()
{
    const SkinnedMesh mesh = oddMesh();
    const AnimFile anim = oddAnim();
    const std::vector<std::vector<quint16>> used{{0, 1, 3, 4, 5, 6}, {1, 2, 5}};
    // Also alone, against the rest that all of them have in common; bones which the last block does not have
    // are where the view leaves them, which depends on what it showed before.
    for (const std::vector<int> &blocks : std::vector<std::vector<int>>{{0, 1, 2}, {2}, {1}, {1, 0}}) {
        ImportMessages messages;
        const GltfFile file(exportGltf(mesh, &anim, blocks, named("odd"), messages).glb());
        QCOMPARE(file.list("animations").size(), int(blocks.size()));
        const float worst = worstDistance(file, mesh, anim, blocks, used);
        QVERIFY2(worst < 2e-4f, qPrintable(QString::number(double(worst))));
        QCOMPARE(file.node("yaw") >= 0, blocks.front() == 0 || blocks.back() == 0);
    }
    ImportMessages messages;
    const GltfFile file(exportGltf(mesh, &anim, {0, 1, 3}, named("odd"), messages).glb());
    QVERIFY(qAbs(file.length(0) - 3.0 / 15.0) < 1e-6);
    QVERIFY(qAbs(file.length(1) - 2.0) < 1e-6); // speeds below 1 play at 1
    // Neighbouring quaternions lie near each other, the file's are units.
    for (const QJsonValue &channel : file.at("animations", 0)["channels"].toArray()) {
        if (channel["target"]["path"].toString() != "rotation")
            continue;
        const QJsonValue sampler = file.at("animations", 0)["samplers"].toArray()[channel["sampler"].toInt()];
        const std::vector<double> keys = file.numbers(sampler["output"]);
        for (size_t i = 0; i < keys.size(); i += 4) {
            double dot = 0.0, square = 0.0;
            for (size_t k = i; k < i + 4; ++k) {
                square += keys[k] * keys[k];
                dot += i > 0 ? keys[k] * keys[k - 4] : keys[k] * keys[k];
            }
            QVERIFY(dot >= 0.0 && qAbs(square - 1.0) < 1e-6);
        }
    }
}

void tst_gltfexport::surfaces()
{
    ImportMessages messages;
    const SkinnedMesh mesh = oddMesh();
    const AnimFile anim = oddAnim();
    const GltfFile file(exportGltf(mesh, &anim, allBlocks(anim), named("odd"), messages).glb());
    const std::vector<GltfFile::Surface> surfaces = file.posed(file.rest());
    QCOMPARE(int(surfaces.size()), 2); // the empty one has nothing to show
    // Vertices of their own, triangles turned over; what is no triangle is told of.
    QCOMPARE(surfaces[0].indexes, (std::vector<int>{3, 1, 0, 5, 2, 4}));
    QCOMPARE(surfaces[1].indexes, (std::vector<int>{2, 1, 0}));
    QCOMPARE(messages.lines.size(), 2);
    QVERIFY(messages.lines[1].text.contains(QLatin1String("Surface 2: 2 triangles")));
    QCOMPARE(surfaces[1].material["name"].toString(), QStringLiteral("other"));
    const auto record = GltfExtras::read<GltfExtras::Surface>(surfaces[1].material["extras"].toObject());
    QCOMPARE(record->number, 2);
    QCOMPARE(record->material, QStringLiteral("materials/m/other"));
    QCOMPARE(surfaces[0].vertices[1].uv, QVector2D(0.25f, 1.0f - 0.1f));
    for (const GltfFile::Surface &surface : surfaces) {
        for (const GltfFile::Vertex &vertex : surface.vertices)
            QVERIFY(qAbs(vertex.normal.length() - 1.0f) < 1e-5f);
    }
    // The normal that was none is that of its triangle.
    const std::vector<GltfFile::Vertex> &v = surfaces[0].vertices;
    QVERIFY((v[4].normal - QVector3D::normal(v[5].position, v[2].position, v[4].position)).length() < 1e-4f);

    StaticMesh fixed;
    fixed.vertices = {{{1.0f, 2.0f, 3.0f}, {}, {0.0f, 0.0f, 1.0f}},
                      {{1.0f, 3.0f, 3.0f}, {}, {0.0f, 0.0f, 1.0f}},
                      {{2.0f, 2.0f, 3.0f}, {}, {0.0f, 0.0f, 1.0f}}};
    fixed.surfaces = {{QStringLiteral("a/b/c"), {0, 1, 2}}}; // clockwise, seen from above
    const GltfFile other(exportGltf(fixed, named("table"), messages).glb());
    const GltfFile::Surface top = other.posed(other.rest()).at(0);
    QCOMPARE(inGame(top.vertices[1].position), fixed.vertices[1].position);
    QCOMPARE(top.vertices[0].normal, QVector3D(0.0f, 1.0f, 0.0f));
    QCOMPARE(QVector3D::normal(top.vertices[size_t(top.indexes[0])].position,
                               top.vertices[size_t(top.indexes[1])].position,
                               top.vertices[size_t(top.indexes[2])].position),
             QVector3D(0.0f, 1.0f, 0.0f));
    fixed.surfaces.clear();
    QVERIFY(!messages.hasError());
    (void)exportGltf(fixed, named("table"), messages);
    QVERIFY(messages.hasError());
}

void tst_gltfexport::names()
{
    ImportMessages messages;
    GltfSource source = named("odd");
    // Names that have been through an export do not grow.
    source.names.bones.insert(3, QStringLiteral("bone_003 bone_012 head"));
    source.names.animations.insert(12, QStringLiteral("walk [12] [12]"));
    const AnimFile anim = oddAnim();
    const GltfFile file(exportGltf(oddMesh(), &anim, allBlocks(anim), source, messages).glb());
    QStringList clips;
    for (const QJsonValue &clip : file.list("animations"))
        clips += clip["name"].toString();
    QCOMPARE(clips, QStringList({"walk [12]", "walk [12] (block 1)", "[-3]", "[40]"}));
    const int head = file.node("bone_003 head");
    QVERIFY(head >= 0 && file.node("bone_000") >= 0);
    // A hot point hangs on its bone as a joint without vertices, on the model without one.
    QVERIFY(file.at("nodes", head)["children"].toArray().contains(file.node("hotpoint_000")));
    QVERIFY(file.at("nodes", file.node("yaw"))["children"].toArray().contains(file.node("hotpoint_001")));
    QCOMPARE(file.at("skins", 0)["joints"].toArray().size(), 5 + 2 + 1);
    const QVector3D place =
        inGame(file.worldsOf(file.rest())[size_t(file.node("hotpoint_000"))].map(QVector3D()));
    BonePalette palette(5);
    PoseEvaluator().evaluateInitialPose(palette, oddMesh(), anim.blocks[0]);
    QVERIFY((place - palette[3].map(QVector3D(1.0f, 2.0f, 3.0f))).length() < 1e-4f);
}

void tst_gltfexport::records()
{
    using namespace GltfExtras;
    ImportMessages messages;
    const SkinnedMesh mesh = oddMesh();
    const AnimFile anim = oddAnim();
    const GltfFile file(exportGltf(mesh, &anim, {0, 2}, named("odd"), messages).glb());
    const auto extrasOf = [&](const char *list, int index) {
        return file.at(list, index)["extras"].toObject();
    };
    const auto model = read<Model>(extrasOf("nodes", file.node("odd")));
    QVERIFY(model && !model->isStatic);
    QCOMPARE(model->name, QStringLiteral("odd"));
    QCOMPARE(model->unknownB, -7);
    QCOMPARE(int(model->materials.size()), 3);
    QCOMPARE(int(model->blocks.size()), 4);
    QCOMPARE(model->blocks[2].clip, QStringLiteral("[-3]"));
    QVERIFY(model->blocks[1].clip.isEmpty());
    QCOMPARE(model->blocks[0].record.frames[3].yawOffset, 7.5f);
    QCOMPARE(model->blocks[0].record.actions.at(0).offset, QVector3D(1.0f, 2.0f, 3.0f));
    QCOMPARE(read<Clip>(extrasOf("animations", 1))->number, 2);
    const auto bone = read<Bone>(extrasOf("nodes", file.node("bone_003")));
    BonePalette palette(5);
    PoseEvaluator().evaluateInitialPose(palette, mesh, anim.blocks[0]);
    QCOMPARE(bone->poseParent, 1);
    QVERIFY((bone->restPosition - palette[3].map(QVector3D())).length() < 1e-4f);
    QVERIFY((bone->restRotation.rotatedVector({1.0f, 0.0f, 0.0f}) - palette[3].mapVector({1.0f, 0.0f, 0.0f}))
                .length() < 1e-5f);
    QCOMPARE(read<Bone>(extrasOf("nodes", file.node("bone_001")))->record.childNodes,
             mesh.nodes[1].childNodes);
    QCOMPARE(read<HotPoint>(extrasOf("nodes", file.node("hotpoint_001")))->record.nodeId, quint16(77));
}

void tst_gltfexport::withoutAnimation()
{
    const SkinnedMesh mesh = oddMesh();
    AnimFile anim = oddAnim();
    anim.blocks[0].nodes.pop_back();
    for (const AnimFile *each :
         {static_cast<const AnimFile *>(nullptr), static_cast<const AnimFile *>(&anim)}) {
        ImportMessages messages;
        const GltfFile file(exportGltf(mesh, each, {0, 1}, named("odd"), messages).glb());
        QCOMPARE(messages.lines.first().text.contains(QLatin1String("another number of bones")),
                 each != nullptr);
        QVERIFY(!file.root.contains("animations"));
        QCOMPARE(
            distance(file.posed(file.rest()), posedMesh(mesh, Playback()), {{0, 1, 3, 4, 5, 6}, {1, 2, 5}}),
            0.0f);
    }
    // A mesh without bones is a mesh.
    SkinnedMesh boneless = mesh;
    boneless.nodes.clear();
    ImportMessages messages;
    const GltfFile file(exportGltf(boneless, nullptr, {}, named("odd"), messages).glb());
    QVERIFY(!file.root.contains("skins") && file.list("meshes").size() == 1);
    QCOMPARE(file.posed(file.rest())[0].vertices[0].joint, -1);
}

// JSON and other programs know neither infinity nor what is no number.
void tst_gltfexport::brokenNumbers()
{
    SkinnedMesh mesh = oddMesh();
    AnimFile anim = oddAnim();
    mesh.vertices[0].position = {NAN, INFINITY, 1.0f};
    mesh.vertices[1].normal = {NAN, 0.0f, 1.0f};
    mesh.vertices[1].uv = {NAN, -INFINITY};
    mesh.vertices[2].nodeIndex = 500;
    mesh.hotPoints[0].origin = {NAN, 0.0f, 0.0f};
    AnimBlock &walk = anim.blocks[0];
    walk.speed = INFINITY;
    walk.frames[1].yawOffset = NAN;
    walk.translations.at(0, 1) = {INFINITY, 0.0f, 0.0f};
    walk.rotations.at(0, 1) = {NAN, 0.0f, 0.0f, 1.0f};
    walk.nodes[4].initialPosition = {NAN, 0.0f, 0.0f};
    ImportMessages messages;
    const QByteArray glb = exportGltf(mesh, &anim, allBlocks(anim), named("odd"), messages).glb();
    const GltfFile file(glb);
    QVERIFY(!file.root.isEmpty() && !messages.hasError());
    for (int i = 0; i < file.list("accessors").size(); ++i) {
        const std::vector<double> numbers = file.numbers(i);
        QVERIFY(!numbers.empty());
        QVERIFY(
            std::all_of(numbers.begin(), numbers.end(), [](double number) { return std::isfinite(number); }));
    }
    // Times have to grow.
    QVERIFY(qAbs(file.length(0) - 3.0 / 30.0) < 1e-6);
    QStringList said;
    for (const ImportMessage &line : messages.lines)
        said += line.text;
    for (const char *text : {"vertices belong to bones", "numbers of vertices are none", "too fast"})
        QVERIFY2(!said.filter(QLatin1String(text)).isEmpty(), text);
}

void tst_gltfexport::realModels_data()
{
    QTest::addColumn<QString>("mesh");
    QTest::addColumn<QString>("anim");
    for (const char *each :
         {"game/%1/knight/knight", "game/%1/fox/fox", "game/%1/trex/trex", "mod/%1/mannequin/mannequin"}) {
        const QString path = QStringLiteral("gamedata/") + QLatin1String(each);
        QTest::newRow(each) << TestSupport::shared(path.arg("models") + ".skinnedmesh")
                            << TestSupport::shared(path.arg("anims") + ".anim");
    }
}

void tst_gltfexport::realModels()
{
    QFETCH(QString, mesh);
    QFETCH(QString, anim);
    if (mesh.isEmpty())
        QSKIP("The folder of real models is not there.");
    SkinnedMesh model;
    AnimFile animation;
    QVERIFY(!model.read(mesh) && !animation.read(anim));
    std::vector<std::vector<quint16>> used;
    for (const SkinnedMeshSurface &surface : model.surfaces)
        used.push_back(usedVertices(surface.triangleIndexes));
    ImportMessages messages;
    GltfSource source = named("model");
    source.gamePath = TestSupport::shared("gamedata/game");
    source.outputDir = TestSupport::shared("gamedata/mod");
    const GltfFile file(exportGltf(model, &animation, allBlocks(animation), source, messages).glb());
    QVERIFY(messages.lines.isEmpty());
    QVERIFY(!file.list("images").isEmpty());
    const float worst = worstDistance(file, model, animation, allBlocks(animation), used, 3);
    QVERIFY2(worst < 0.001f, qPrintable(QString::number(double(worst))));
}

namespace {
/// A game folder with a material for each of these textures.
void putMaterials(const TestFolder &game, const QStringList &textures)
{
    MaterialTable table;
    for (int i = 0; i < textures.size(); ++i)
        table[QStringLiteral("m%1").arg(i)] = textures[i];
    game.put("materials/mat.kmat", kmatBytes(table));
}

StaticMesh surfacesOf(int count)
{
    StaticMesh mesh;
    mesh.vertices.resize(3);
    mesh.vertices[1].position = {1.0f, 0.0f, 0.0f};
    mesh.vertices[2].position = {0.0f, 1.0f, 0.0f};
    for (int i = 0; i < count; ++i)
        mesh.surfaces.push_back({QStringLiteral("materials/mat/m%1").arg(i), {0, 1, 2}});
    return mesh;
}

void putPicture(const QString &path, const char *format, int alpha)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QImage picture(4, 4, alpha < 255 ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    picture.fill(QColor(200, 30, 30, alpha));
    QVERIFY(picture.save(path, format));
}
} // namespace

void tst_gltfexport::textures()
{
    const TestFolder game;
    putMaterials(game, {"textures/plain.png", "textures/photo.jpg", "textures/old.bmp", "textures/hole.png",
                        "textures/gone.png", "textures/plain.png", "textures/torn.png"});
    putPicture(game.path("textures/plain.png"), "PNG", 255);
    putPicture(game.path("textures/photo.jpg"), "JPG", 255);
    putPicture(game.path("textures/old.bmp"), "BMP", 255);
    putPicture(game.path("textures/hole.png"), "PNG", 0);
    game.put("textures/torn.png", "\x89PNG\r\n\x1a\n");
    ImportMessages messages;
    GltfSource source = named("wall");
    source.gamePath = game.path();
    const GltfWriter made = exportGltf(surfacesOf(7), source, messages);
    const GltfFile file(made.glb());
    QCOMPARE(int(made.images().size()), 4); // one texture on two surfaces is one picture
    QCOMPARE(messages.lines.size(), 2);
    QVERIFY(!messages.hasError());
    // As they are where the format knows them.
    QCOMPARE(made.images()[0].bytes, TestSupport::readFile(game.path("textures/plain.png")));
    QCOMPARE(made.images()[1].mimeType, QStringLiteral("image/jpeg"));
    QCOMPARE(made.images()[2].fileName, QStringLiteral("old.png"));
    for (int i = 0; i < 4; ++i) {
        const QJsonObject view = file.at("bufferViews", file.at("images", i)["bufferView"].toInt());
        const QByteArray bytes = file.buffer.mid(view["byteOffset"].toInt(), view["byteLength"].toInt());
        QVERIFY(QImage::fromData(bytes, i == 1 ? "JPG" : "PNG").size() == QSize(4, 4));
    }
    QCOMPARE(file.at("materials", 3)["alphaMode"].toString(), QStringLiteral("MASK"));
    QVERIFY(!file.at("materials", 0).contains("alphaMode"));
    const auto textureOf = [&](int material) {
        const QJsonObject shading = file.at("materials", material)["pbrMetallicRoughness"].toObject();
        return shading.value("baseColorTexture")["index"].toInt(-1);
    };
    QCOMPARE(textureOf(5), textureOf(0));
    QCOMPARE(textureOf(4), -1);
}

void tst_gltfexport::filesBeside()
{
    const TestFolder game, out;
    putMaterials(game, {"a/steel.png", "b/Steel.png"});
    putPicture(game.path("a/steel.png"), "PNG", 255);
    putPicture(game.path("b/Steel.png"), "PNG", 128);
    ImportMessages messages;
    GltfSource source = named("wall");
    source.gamePath = game.path();
    const GltfWriter made = exportGltf(surfacesOf(2), source, messages);
    GltfFiles files(made, out.path("big wall.gltf"));
    QVERIFY(files.replaced().isEmpty() && !files.write(messages));
    QCOMPARE(QDir(out.path()).entryList(QDir::Files, QDir::Name),
             QStringList({"Steel_2.png", "big wall.bin", "big wall.gltf", "steel.png"}));
    const auto read = [&](const QString &name) {
        return QJsonDocument::fromJson(TestSupport::readFile(out.path(name))).object();
    };
    QJsonObject root = read("big wall.gltf");
    QCOMPARE(root["buffers"].toArray().at(0)["uri"].toString(), QStringLiteral("big%20wall.bin"));
    QCOMPARE(root["images"].toArray().at(1)["uri"].toString(), QStringLiteral("Steel_2.png"));
    QCOMPARE(root["buffers"].toArray().at(0)["byteLength"].toInt(),
             TestSupport::readFile(out.path("big wall.bin")).size());
    // The same again replaces nothing; another content is asked about, or steps aside.
    QVERIFY(GltfFiles(made, out.path("big wall.gltf")).replaced().isEmpty());
    out.put("steel.png", "mine");
    out.put("big wall.bin", "mine");
    GltfFiles again(made, out.path("big wall.gltf"));
    QCOMPARE(again.replaced(), QStringList({out.path("steel.png"), out.path("big wall.bin")}));
    again.useFreeNames();
    QVERIFY(again.replaced().isEmpty() && !again.write(messages));
    QCOMPARE(TestSupport::readFile(out.path("steel.png")), QByteArray("mine"));
    QCOMPARE(again.path(), out.path("big wall_2.gltf"));
    root = read("big wall_2.gltf");
    QCOMPARE(root["images"].toArray().at(0)["uri"].toString(), QStringLiteral("steel_3.png"));
    QVERIFY(QFile::exists(out.path("steel_3.png")) && QFile::exists(out.path("big wall_2.bin")));
    // A binary file is alone.
    GltfFiles binary(made, out.path("wall.GLB"));
    QVERIFY(!binary.write(messages));
    QVERIFY(TestSupport::readFile(out.path("wall.GLB")).startsWith("glTF"));
    QVERIFY(GltfFiles(made, out.path("gone/wall.glb")).write(messages) && messages.hasError());
}

QTEST_GUILESS_MAIN(tst_gltfexport)
#include "tst_gltfexport.moc"
