// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfPose.h"
#include "GltfReader.h"
#include "TestSupport.h"

#include <QJsonDocument>
#include <QTemporaryDir>

#include <cstring>

namespace {
/// A triangle on a node with a skin, a second node that moves, and accessors to change at will:
/// 0: positions, 1: joints, 2: weights, 3: times, 4: values of a cubic spline. All bytes are in one data URI.
class File
{
public:
    File()
    {
        floats({0, 0, 0, 1, 0, 0, 0, 2, 0}, "VEC3");
        add(QByteArray::fromHex("000000000100000001000000"), 5121, "VEC4", 3);
        add(QByteArray::fromHex("ff0000007f80000000000000"), 5121, "VEC4", 3);
        root["accessors"] = replaced(root["accessors"].toArray(), 2, "normalized", true);
        floats({0, 1, 3}, "SCALAR");
        floats({0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 4, 0, 0, -2, 0, 0, 0, 0, 0, 8, 0, 0, 0, 0, 0}, "VEC3");
        const QJsonObject more = QJsonDocument::fromJson(R"({
            "asset": {"version": "2.0"},
            "nodes": [{"name": "body", "mesh": 0, "skin": 0}, {"name": "hip", "children": [2]},
                      {"name": "leg", "matrix": [0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 5, 6, 7, 1]}],
            "skins": [{"joints": [1, 2]}],
            "meshes": [{"primitives": [{"attributes": {"POSITION": 0, "JOINTS_0": 1, "WEIGHTS_0": 2}}]}],
            "animations": [{"name": "go", "channels": [{"sampler": 0, "target": {"node": 1, "path": "translation"}}],
                            "samplers": [{"input": 3, "output": 4, "interpolation": "CUBICSPLINE"}]}]
        })")
                                     .object();
        for (auto each = more.begin(); each != more.end(); ++each)
            root[each.key()] = each.value();
    }

    static QJsonArray replaced(QJsonArray list, int index, const char *field, const QJsonValue &value)
    {
        QJsonObject object = list.at(index).toObject();
        object[QLatin1String(field)] = value;
        list[index] = object;
        return list;
    }
    /// Puts a value at a place such as "nodes/1/children".
    void set(const QString &place, const QJsonValue &value)
    {
        root = put(root, place.split('/'), value).toObject();
    }

    int add(const QByteArray &bytes, int component, const char *type, int count)
    {
        while (buffer.size() % 4 != 0)
            buffer.append('\0');
        QJsonArray views = root["bufferViews"].toArray();
        views.append(QJsonObject{{"buffer", 0}, {"byteOffset", buffer.size()}, {"byteLength", bytes.size()}});
        QJsonArray accessors = root["accessors"].toArray();
        accessors.append(QJsonObject{{"bufferView", views.size() - 1},
                                     {"componentType", component},
                                     {"type", type},
                                     {"count", count}});
        root["bufferViews"] = views;
        root["accessors"] = accessors;
        buffer.append(bytes);
        return accessors.size() - 1;
    }
    int floats(const std::vector<float> &values, const char *type)
    {
        const int parts = type[0] == 'S' ? 1 : type[3] - '0';
        return add(
            QByteArray(reinterpret_cast<const char *>(values.data()), int(values.size() * sizeof(float))),
            5126, type, int(values.size()) / parts);
    }

    /// Returns why it failed, "" on success.
    QString read(GltfScene &scene)
    {
        if (!root.contains("buffers"))
            root["buffers"] = QJsonArray{QJsonObject{
                {"byteLength", buffer.size()},
                {"uri", QString::fromLatin1("data:application/octet-stream;base64," + buffer.toBase64())}}};
        QString reason;
        const bool failed = readGltf(
            QJsonDocument(root).toJson(), [](const QString &) { return QByteArray(); }, scene, reason);
        return failed ? reason : QString();
    }
    QByteArray glb() const
    {
        QJsonObject own = root;
        own["buffers"] = QJsonArray{QJsonObject{{"byteLength", buffer.size()}}};
        const QByteArray json = QJsonDocument(own).toJson();
        const auto number = [](int value) {
            QByteArray bytes(4, '\0');
            qToLittleEndian(value, bytes.data());
            return bytes;
        };
        const QByteArray chunks =
            number(json.size()) + "JSON" + json + number(buffer.size()) + QByteArray("BIN\0", 4) + buffer;
        return "glTF" + number(2) + number(12 + chunks.size()) + chunks;
    }

    QJsonObject root;
    QByteArray buffer;

private:
    static QJsonValue put(const QJsonValue &into, QStringList place, const QJsonValue &value)
    {
        if (place.isEmpty())
            return value;
        const QString name = place.takeFirst();
        if (into.isArray()) {
            QJsonArray list = into.toArray();
            list[name.toInt()] = put(list.at(name.toInt()), place, value);
            return list;
        }
        QJsonObject object = into.toObject();
        object[name] = put(object[name], place, value);
        return object;
    }
};
} // namespace

class tst_GltfReader : public QObject
{
    Q_OBJECT

private slots:
    void everything();
    void components_data();
    void components();
    void sparse();
    void modes();
    void refusals_data();
    void refusals();
    void cutAnywhere();
    void otherFiles();
};

void tst_GltfReader::everything()
{
    File file;
    GltfScene scene;
    QCOMPARE(file.read(scene), QString());
    const GltfScene::Primitive &triangle = scene.meshes.at(0).at(0);
    QCOMPARE(triangle.positions.at(2), QVector3D(0.0f, 2.0f, 0.0f));
    QCOMPARE(triangle.indices, (std::vector<quint32>{0, 1, 2}));
    // The strongest joint, of 127 and 128 the second; no weight is no joint.
    QCOMPARE(triangle.joints, (std::vector<int>{0, 0, -1}));
    QCOMPARE(triangle.sharedVertices, 1);

    GltfPose pose(scene);
    QCOMPARE(pose.at(0.0f).at(2).map(QVector3D(1.0f, 0.0f, 0.0f)), QVector3D(5.0f, 7.0f, 7.0f));
    pose.setAnimation(&scene.animations.at(0));
    // Hermite: from 0 to 4 within a second, tangents 1 and 0; from 4 to 8 within two, tangents -2 and 0.
    const std::vector<std::pair<float, float>> expected{
        {-1.0f, 0.0f}, {0.0f, 0.0f}, {0.5f, 2.125f}, {1.0f, 4.0f}, {2.0f, 5.5f}, {3.0f, 8.0f}, {9.0f, 8.0f}};
    for (const auto &[time, x] : expected)
        QCOMPARE(pose.at(time).at(1).column(3).x(), x);
    file.set("animations/0/samplers/0", QJsonObject{{"input", 3}, {"output", 0}, {"interpolation", "STEP"}});
    QCOMPARE(file.read(scene), QString());
    GltfPose steps(scene);
    steps.setAnimation(&scene.animations.at(0));
    QCOMPARE(steps.at(2.9f).at(1).column(3).x(), 1.0f);
    file.set("animations/0/samplers/0/interpolation", "LINEAR");
    QCOMPARE(file.read(scene), QString());
    GltfPose lines(scene);
    lines.setAnimation(&scene.animations.at(0));
    QCOMPARE(lines.at(2.0f).at(1).column(3).toVector3D(), QVector3D(0.5f, 1.0f, 0.0f));
}

void tst_GltfReader::components_data()
{
    QTest::addColumn<int>("component");
    QTest::addColumn<bool>("normalized");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QVector<float>>("expected");
    const auto row = [](const char *name, int component, bool normalized, const char *hex,
                        const QVector<float> &x) {
        QTest::newRow(name) << component << normalized << QByteArray::fromHex(hex) << x;
    };
    row("bytes", 5120, false, "7f80ff0001", {127.0f, -128.0f, -1.0f, 0.0f, 1.0f});
    row("bytes of one", 5120, true, "7f80810000", {1.0f, -1.0f, -1.0f, 0.0f, 0.0f});
    row("unsigned bytes of one", 5121, true, "ff00330000", {1.0f, 0.0f, 0.2f, 0.0f, 0.0f});
    row("shorts", 5122, false, "ff7f0080ffff00000100", {32767.0f, -32768.0f, -1.0f, 0.0f, 1.0f});
    row("shorts of one", 5122, true, "ff7f0080018000000000", {1.0f, -1.0f, -1.0f, 0.0f, 0.0f});
    row("unsigned shorts of one", 5123, true, "ffff0000333300000000", {1.0f, 0.0f, 0.2f, 0.0f, 0.0f});
    row("floats", 5126, false, "0000803f000000c00000000000000000cdcccc3d", {1.0f, -2.0f, 0.0f, 0.0f, 0.1f});
}

void tst_GltfReader::components()
{
    QFETCH(int, component);
    QFETCH(bool, normalized);
    QFETCH(QByteArray, bytes);
    QFETCH(QVector<float>, expected);
    // One after another, and every eleven bytes.
    for (const int stride : {0, 11}) {
        QByteArray laid = bytes;
        if (stride > 0) {
            laid.fill('\x55', stride * 5);
            for (int i = 0; i < 5; ++i)
                laid.replace(i * stride, bytes.size() / 5, bytes.mid(i * bytes.size() / 5, bytes.size() / 5));
        }
        File file;
        const int accessor = file.add(laid, component, "SCALAR", 5);
        file.root["bufferViews"] =
            File::replaced(file.root["bufferViews"].toArray(), accessor, "byteStride", stride);
        file.root["accessors"] =
            File::replaced(file.root["accessors"].toArray(), accessor, "normalized", normalized);
        GltfScene scene;
        QCOMPARE(file.read(scene), QString());
        GltfBytes reader;
        QVERIFY(!reader.open(QJsonDocument(file.root).toJson(), {}));
        const GltfBytes::Floats found = reader.floats(accessor, 1);
        QVERIFY2(found, qPrintable(reader.error()));
        QCOMPARE(QVector<float>(found->begin(), found->end()), expected);
    }
}

void tst_GltfReader::sparse()
{
    File file;
    const int places = file.add(QByteArray::fromHex("0100"), 5123, "SCALAR", 1);
    const int values = file.floats({7, 8, 9}, "VEC3");
    const QJsonObject sparse{{"count", 1},
                             {"indices", QJsonObject{{"bufferView", places}, {"componentType", 5123}}},
                             {"values", QJsonObject{{"bufferView", values}}}};
    file.root["accessors"] = File::replaced(file.root["accessors"].toArray(), 0, "sparse", sparse);
    GltfScene scene;
    QCOMPARE(file.read(scene), QString());
    QCOMPARE(scene.meshes[0][0].positions[1], QVector3D(7.0f, 8.0f, 9.0f));
    QCOMPARE(scene.meshes[0][0].positions[2], QVector3D(0.0f, 2.0f, 0.0f));
    file.buffer[file.buffer.size() - 12 - 4] = 3; // behind the last vertex
    file.root.remove("buffers");
    QVERIFY(file.read(scene).endsWith("accessors/0"));
}

void tst_GltfReader::modes()
{
    const std::vector<std::pair<int, std::vector<quint32>>> expected{
        {4, {3, 2, 1}}, {5, {3, 2, 1, 2, 0, 1}}, {6, {3, 2, 1, 3, 1, 0}}, {1, {}}};
    for (const auto &[mode, triangles] : expected) {
        File file;
        file.floats({0, 0, 0, 1, 0, 0, 0, 2, 0, 3, 3, 3}, "VEC3");
        file.add(QByteArray::fromHex("03000000020000000100000000000000"), 5125, "SCALAR", 4);
        file.set("meshes/0/primitives/0",
                 QJsonObject{{"attributes", QJsonObject{{"POSITION", 5}}}, {"indices", 6}, {"mode", mode}});
        GltfScene scene;
        QCOMPARE(file.read(scene), QString());
        QCOMPARE(scene.meshes[0].empty() ? std::vector<quint32>() : scene.meshes[0][0].indices, triangles);
        QCOMPARE(scene.otherPrimitives, mode == 1 ? 1 : 0);
    }
}

void tst_GltfReader::refusals_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *place, const QJsonValue &value, const char *reason) {
        QTest::newRow(place) << QString(place) << value << QString(reason);
    };
    row("asset/version", "1.0", "asset");
    row("extensionsRequired", QJsonArray{"EXT_squeezed"}, "EXT_squeezed");
    row("nodes/0/mesh", 1, "nodes/0");
    row("nodes/0/skin", -1, "nodes/0");
    row("nodes/1/children", QJsonArray{2, 2}, "nodes/1");
    row("nodes/2/children", QJsonArray{2}, "nodes/2");
    row("nodes/0/children", QJsonArray{9}, "nodes/0");
    row("nodes/0/children", QJsonArray{0}, "nodes/0");
    row("nodes/2/children", QJsonArray{1}, "nodes/1");
    row("nodes/1/translation", QJsonArray{1, "2", 3}, "nodes/1");
    row("nodes/2/matrix/3", 1.0e300, "nodes/2");
    row("scene", 4, "");
    row("scenes", QJsonArray{QJsonObject{{"nodes", QJsonArray{7}}}}, "scene");
    row("skins/0/joints/1", 3, "skins/0");
    row("skins/0/joints", QJsonArray{}, "meshes/0");
    row("skins/0/inverseBindMatrices", 0, "accessors/0");
    row("meshes/0/primitives/0/attributes/POSITION", 77, "accessors/77");
    row("meshes/0/primitives/0/attributes/NORMAL", 1, "accessors/1");
    row("meshes/0/primitives/0/attributes/WEIGHTS_0", 99, "accessors/99");
    row("meshes/0/primitives/0/indices", 0, "accessors/0");
    row("meshes/0/primitives/0/material", 0, "meshes/0");
    row("animations/0/samplers/0/output", 0, "animations/0");
    row("animations/0/samplers/0/interpolation", "GUESS", "animations/0");
    row("animations/0/channels/0/sampler", 3, "animations/0");
    row("animations/0/channels/0/target/node", 12, "animations/0");
    row("accessors/0/count", 4, "accessors/0");
    row("accessors/0/count", 4.0e9, "accessors/0");
    row("accessors/0/count", -1, "accessors/0");
    row("accessors/0/byteOffset", 1, "accessors/0");
    row("accessors/0/byteOffset", 1.0e15, "bufferViews/0");
    row("accessors/0/componentType", 5130, "accessors/0");
    row("accessors/3/type", "VEC3", "accessors/3");
    row("bufferViews/0/buffer", 1, "bufferViews/0");
    row("bufferViews/0/byteOffset", 9007199254740000.0, "bufferViews/0");
    row("bufferViews/0/byteStride", 8, "accessors/0");
    row("bufferViews/0/byteStride", 1.0e12, "accessors/0");
    row("bufferViews/0/byteLength", -5, "bufferViews/0");
    row("buffers", QJsonArray{QJsonObject{{"byteLength", 400}, {"uri", "gone.bin"}}}, "gone.bin");
    row("buffers", QJsonArray{QJsonObject{{"byteLength", 400}, {"uri", "file:///etc/passwd"}}}, "file:");
    row("buffers", QJsonArray{QJsonObject{{"byteLength", 40}, {"uri", "data:x;base64,AAAA"}}}, "buffers/0");
}

void tst_GltfReader::refusals()
{
    QFETCH(QString, place);
    QFETCH(QJsonValue, value);
    QFETCH(QString, reason);
    File file;
    file.set(place, value);
    GltfScene scene;
    const QString found = file.read(scene);
    QVERIFY2(found.contains(reason), qPrintable(found));
    QCOMPARE(found.isEmpty(), reason.isEmpty());
}

// Files of any length, and those that ask for more than they hold.
void tst_GltfReader::cutAnywhere()
{
    const QByteArray whole = File().glb();
    GltfScene scene;
    QString reason;
    const auto fails = [&](const QByteArray &bytes) {
        return readGltf(
            bytes, [](const QString &) { return QByteArray(); }, scene, reason);
    };
    QVERIFY(!fails(whole));
    for (int length = 0; length < whole.size(); ++length) {
        QVERIFY(fails(whole.left(length)));
        QVERIFY(!reason.isEmpty());
    }
    // A thousand lists of the same bytes would be a thousand times as many.
    File file;
    file.buffer.append(QByteArray(1 << 18, '\0'));
    const int view = file.root["bufferViews"].toArray().size();
    file.root["bufferViews"] = [&] {
        QJsonArray views = file.root["bufferViews"].toArray();
        views.append(QJsonObject{{"buffer", 0}, {"byteLength", 1 << 18}});
        return views;
    }();
    QJsonArray accessors = file.root["accessors"].toArray();
    QJsonArray primitives;
    for (int i = 0; i < 1000; ++i) {
        primitives.append(QJsonObject{{"attributes", QJsonObject{{"POSITION", accessors.size()}}}});
        accessors.append(
            QJsonObject{{"bufferView", view}, {"componentType", 5126}, {"type", "VEC3"}, {"count", 21000}});
    }
    file.root["accessors"] = accessors;
    file.set("meshes/0/primitives", primitives);
    QVERIFY(file.read(scene).contains("accessors/"));
    // So would be a thousand uses of one list that make vertices or triangles of it.
    QJsonArray sharers;
    for (int i = 0; i < 10000; ++i)
        sharers.append(primitives.at(0));
    file.set("meshes/0/primitives", sharers);
    QVERIFY(file.read(scene).endsWith("meshes/0"));
}

void tst_GltfReader::otherFiles()
{
    QTemporaryDir folder;
    File file;
    GltfScene scene;
    QString reason;
    file.set("buffers",
             QJsonArray{QJsonObject{{"byteLength", file.buffer.size()}, {"uri", "some%20bytes.bin"}}});
    const QString path = folder.filePath("a.gltf");
    QVERIFY(TestSupport::writeFile(path, QJsonDocument(file.root).toJson()));
    QVERIFY(readGltf(path, scene, reason));
    QVERIFY(TestSupport::writeFile(folder.filePath("some bytes.bin"), file.buffer));
    QVERIFY2(!readGltf(path, scene, reason), qPrintable(reason));
    QCOMPARE(scene.nodes.size(), size_t(3));
    // A file that is named often is read once, and they may not be without end.
    int reads = 0;
    const QByteArray half(600 << 20, Qt::Uninitialized);
    const auto readsAll = [&](const char *second, const QByteArray &content) {
        reads = 0;
        const QJsonObject buffer{{"byteLength", 4}, {"uri", "a.bin"}};
        const QJsonObject other{{"byteLength", 4}, {"uri", second}};
        const QJsonObject root{{"asset", QJsonObject{{"version", "2.0"}}},
                               {"buffers", QJsonArray{buffer, buffer, other}}};
        GltfBytes bytes;
        return !bytes.open(QJsonDocument(root).toJson(), [&](const QString &) {
            ++reads;
            return content;
        });
    };
    QVERIFY(readsAll("a.bin", half) && reads == 1);
    QVERIFY(!readsAll("b.bin", half) && readsAll("b.bin", "1234") && reads == 2);
    QVERIFY(readGltf(folder.path(), scene, reason));
    QVERIFY(readGltf(folder.filePath("none.glb"), scene, reason));
}

QTEST_APPLESS_MAIN(tst_GltfReader)
#include "tst_gltfreader.moc"
