// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportFlags.h"
#include "ImportWorker.h"
#include "MaterialFiles.h"
#include "ObjExport.h"
#include "SceneImport.h"
#include "StaticMeshExport.h"
#include "TestSupport.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {
using Triangle = std::array<StaticMeshVertex, 3>;

StaticMesh threeCorners()
{
    StaticMesh mesh;
    mesh.vertices.resize(3);
    mesh.vertices[1].position = {1, 0, 0};
    mesh.vertices[2].position = {0, 1, 0};
    return mesh;
}

/// With the corners of triangles as the game has them.
StaticMesh readBack(const QString &path,
                    quint32 flags = ImportFlags::StaticMesh | ImportFlags::FlipWindingOrder)
{
    QStringList textures;
    ImportMessages messages;
    StaticMesh mesh = importStaticMesh(path, "m.kmat", flags, textures, messages);
    for (const ImportMessage &line : messages.lines) {
        if (line.severity == LogSeverity::Error)
            qWarning("%s", qUtf8Printable(line.text));
    }
    return mesh;
}

std::vector<Triangle> trianglesOf(const StaticMesh &mesh)
{
    std::vector<Triangle> triangles;
    for (const StaticMeshSurface &surface : mesh.surfaces) {
        for (size_t i = 0; i + 2 < surface.triangleIndexes.size(); i += 3) {
            Triangle triangle;
            for (size_t corner = 0; corner < 3; ++corner)
                triangle[corner] = mesh.vertices[surface.triangleIndexes[i + corner]];
            triangles.push_back(triangle);
        }
    }
    return triangles;
}

/// The library's reading of decimal numbers is off by a unit in the last place now and then.
/// Vertices that differ by less than a hundred thousandth in all they have become one.
template <typename Vector>
bool isClose(const Vector &a, const Vector &b, int size, float absolute = 1e-9f)
{
    for (int i = 0; i < size; ++i) {
        if (std::fabs(a[i] - b[i]) > 2.5e-7f * std::max(std::fabs(a[i]), std::fabs(b[i])) + absolute)
            return false;
    }
    return true;
}

void compare(const StaticMesh &actual, const StaticMesh &expected)
{
    const std::vector<Triangle> before = trianglesOf(expected);
    const std::vector<Triangle> after = trianglesOf(actual);
    QCOMPARE(after.size(), before.size());
    for (size_t i = 0; i < before.size(); ++i) {
        for (size_t corner = 0; corner < 3; ++corner) {
            QVERIFY(isClose(after[i][corner].position, before[i][corner].position, 3));
            QVERIFY(isClose(after[i][corner].uv, before[i][corner].uv, 2));
            QVERIFY(isClose(after[i][corner].normal, before[i][corner].normal, 3, 1e-5f));
        }
    }
}
/// How much of an OBJ file's area has its front, counter-clockwise, where the normals of its corners point.
double shareOfAgreement(const QByteArray &obj)
{
    QHash<QByteArray, std::vector<QVector3D>> vectors; // "v" and "vn"
    double area = 0, agreeing = 0;
    for (const QByteArray &line : obj.split('\n')) {
        const QList<QByteArray> words = line.simplified().split(' ');
        if (words[0] == "v" || words[0] == "vn")
            vectors[words[0]].emplace_back(words[1].toFloat(), words[2].toFloat(), words[3].toFloat());
        if (words[0] != "f")
            continue;
        std::array<QVector3D, 3> corners;
        QVector3D normal;
        for (int i = 0; i < 3; ++i) {
            const QList<QByteArray> indexes = words[i + 1].split('/');
            corners[size_t(i)] = vectors["v"].at(size_t(indexes[0].toInt() - 1));
            normal += vectors["vn"].at(size_t(indexes[2].toInt() - 1));
        }
        const QVector3D face = QVector3D::crossProduct(corners[1] - corners[0], corners[2] - corners[0]);
        area += double(face.length());
        agreeing += QVector3D::dotProduct(face, normal) > 0 ? double(face.length()) : 0;
    }
    return agreeing / area;
}
} // namespace

/// What is exported reads back as it was.
class tst_objexport : public QObject
{
    Q_OBJECT

private slots:
    void roundTrip()
    {
        QStringList paths = TestSupport::modelFiles(QStringLiteral("staticmesh"));
        const QString spider = TestSupport::shared(QStringLiteral("models/obj_spider/spider.obj"));
        if (!spider.isEmpty())
            paths << spider;
        for (const QString &path : qAsConst(paths)) {
            StaticMesh mesh;
            if (path == spider)
                mesh = readBack(path, ImportFlags::StaticMesh);
            else
                QVERIFY(!mesh.read(path));
            QVERIFY(!mesh.vertices.empty());
            QTemporaryDir folder;
            const QString obj = folder.filePath(QStringLiteral("m\u00f6del.obj"));
            ImportMessages messages;
            exportObj(mesh, {}, {}, obj, messages);
            QVERIFY(!messages.hasError());
            compare(readBack(obj), mesh);
            if (path != spider)
                QVERIFY2(shareOfAgreement(TestSupport::readFile(obj)) > 0.999, qPrintable(path));
            QVERIFY2(!QTest::currentTestFailed(), qPrintable(path));
        }
    }

    void badTriangles()
    {
        StaticMesh mesh = threeCorners();
        mesh.surfaces = {{"a/b/c", {0, 1, 2, 0, 1, 3, 65535, 1, 2, 0}}, {"d", {9}}};
        QTemporaryDir folder;
        const QString obj = folder.filePath(QStringLiteral("a.obj"));
        ImportMessages messages;
        exportObj(mesh, {}, {0, 7}, obj, messages);
        QVERIFY(!messages.hasError());
        QCOMPARE(trianglesOf(readBack(obj)).size(), size_t(1));

        mesh.surfaces[0].triangleIndexes = {0, 1};
        exportObj(mesh, {}, {}, folder.filePath(QStringLiteral("b.obj")), messages);
        QCOMPARE(messages.lines.size(), 1);
        QVERIFY(messages.hasError());
    }

    void texturesAndNames()
    {
        const TestFolder game, mod, target;
        const QString kmat = game.put("materials/m.kmat", {});
        mod.put("textures/wall.v2.png", "picture");
        const MaterialTable table{{QStringLiteral("brick"), QStringLiteral("textures/wall.v2.png")},
                                  {QStringLiteral("other"), QStringLiteral("textures/wall.v2.png")},
                                  {QStringLiteral("lost"), QStringLiteral("textures/lost.png")}};
        QCOMPARE(writeKMat(kmat, table), QString());

        StaticMesh mesh = threeCorners();
        for (const char *name : {"brick", "_white", "other", "lost", "none"})
            mesh.surfaces.push_back({QStringLiteral("materials/m/") + QLatin1String(name), {0, 1, 2}});
        ImportMessages messages;
        MaterialFiles materials(game.path(), mod.path());
        const WorkerJob job = staticMeshExport(mesh, QString(), materials, messages);
        QCOMPARE(job.objName, QStringLiteral("untitled.obj"));
        QCOMPARE(job.textureOfSurface, (std::vector<qint32>{0, -1, 0, 1, -1}));
        QCOMPARE(messages.lines.size(), 2);
        QCOMPARE(messages.lines[0].text,
                 QString("[Static Mesh Export] Texture not found '%1'").arg(mod.path("textures/lost.png")));
        QCOMPARE(messages.lines[1].text,
                 QStringLiteral("[Static Mesh Export] No material 'none' in '%1'").arg(kmat));

        ImportWorker worker;
        QSignalSpy finished(&worker, &ImportWorker::finished);
        ExportedFiles files(job, target.path());
        const auto place = [&](int runs) {
            worker.start(files.job(), mesh);
            QTRY_COMPARE_WITH_TIMEOUT(finished.count(), runs, 20000);
            QVERIFY(!worker.messages().hasError());
            QVERIFY(!files.place(worker, messages));
        };
        QCOMPARE(files.replaced(), QStringList());
        place(1);
        QCOMPARE(QDir(target.path()).entryList(QDir::Files),
                 QStringList({QString("untitled.mtl"), QString("untitled.obj"), QString("wall.v2.png")}));
        const QByteArray mtl = TestSupport::readFile(target.path("untitled.mtl"));
        QCOMPARE(mtl.count("newmtl wall.v2\n"), 1);
        QCOMPARE(mtl.count("map_Kd wall.v2.png\n"), 1);
        QCOMPARE(mtl.count("map_Kd"), 2);
        QVERIFY(mtl.contains("Kd 1 1 1\n"));

        // Once more: the texture is the same, another one would be lost.
        QCOMPARE(files.replaced().size(), 2);
        const QString mine = target.put("wall.v2.png", "mine");
        QCOMPARE(files.replaced(),
                 QStringList({target.path("untitled.mtl"), target.path("untitled.obj"), mine}));
        files.useFreeNames();
        QCOMPARE(files.replaced(), QStringList());
        place(2);
        QCOMPARE(TestSupport::readFile(mine), QByteArray("mine"));
        QCOMPARE(TestSupport::readFile(target.path("wall.v2_2.png")), QByteArray("picture"));
        QVERIFY(TestSupport::readFile(target.path("untitled_2.obj")).contains("mtllib untitled_2.mtl"));
        QVERIFY(TestSupport::readFile(target.path("untitled_2.mtl")).contains("map_Kd wall.v2_2.png\n"));

        // Others of its name come along, each once.
        const TestFolder others, parted;
        WorkerJob three = job;
        three.textures =
            QStringList{job.textures[0], others.put("a/wall.v2.png", "another"),
                        others.put("b/wall.v2.png", "picture"), others.put("wall.v2.tga", "third")};
        three.textureOfSurface = {0, 1, 2, 3, -1};
        ImportMessages told;
        const ExportedFiles alike(three, parted.path());
        worker.start(alike.job(), mesh);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 3, 20000);
        QVERIFY(!alike.place(worker, told));
        QCOMPARE(told.lines.size(), 1);
        QCOMPARE(TestSupport::readFile(parted.path("wall.v2_2.png")), QByteArray("another"));
        QStringList used;
        for (const QByteArray &line : TestSupport::readFile(parted.path("untitled.obj")).split('\n')) {
            if (line.startsWith("usemtl "))
                used += line.mid(7);
        }
        QCOMPARE(used.join(' '), QString("wall.v2 wall.v2_2 wall.v2 wall.v2_3 _white"));
        const QByteArray all = TestSupport::readFile(parted.path("untitled.mtl"));
        QVERIFY(all.contains("newmtl wall.v2_3\n") && all.contains("map_Kd wall.v2.tga\n"));
        QCOMPARE(all.count("newmtl wall.v2\n"), 1);

        // A folder that went away in the meantime.
        messages.lines.clear();
        QVERIFY(ExportedFiles(job, target.path("none")).place(worker, messages));
        QVERIFY(messages.hasError());
        messages.lines.clear();
        staticMeshExport(StaticMesh(), QStringLiteral("/a/b.v2.staticmesh"), materials, messages);
        QCOMPARE(messages.lines.size(), 1);
        QCOMPARE(messages.lines[0].text, QStringLiteral("[Static Mesh Export] Mesh has no surfaces"));
    }
};

QTEST_GUILESS_MAIN(tst_objexport)
#include "tst_objexport.moc"
