// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BrokenModels.h"
#include "ReferenceIds.h"

#include <set>

using namespace BrokenModels;
using SampleModels::readBytes;

namespace {
const ReferenceIds &ids()
{
    static const ReferenceIds loaded = ReferenceIds::load();
    return loaded;
}

std::vector<Finding> findings(const SkinnedMesh &mesh, const MaterialFolders &folders, const SkinnedMesh *)
{
    return validate(mesh, folders, ids());
}
std::vector<Finding> findings(const StaticMesh &mesh, const MaterialFolders &folders, const SkinnedMesh *)
{
    return validate(mesh, folders);
}
std::vector<Finding> findings(const AnimFile &file, const MaterialFolders &, const SkinnedMesh *mesh)
{
    return validate(file, mesh, ids());
}

/// "rule kind/i/j/k", a line each.
QStringList told(const std::vector<Finding> &findings)
{
    QStringList lines;
    for (const Finding &finding : findings) {
        const RecordIndex &i = finding.place.index;
        lines << QStringLiteral("%1 %2/%3/%4/%5")
                     .arg(ruleId(finding.rule), QString::number(int(finding.place.kind)),
                          QString::number(i[0]), QString::number(i[1]), QString::number(i[2]));
    }
    return lines;
}

template <typename Model>
void checkAlone(std::set<Rule> &fired)
{
    for (const auto &base : bases()) {
        const auto mesh = base->template model<SkinnedMesh>();
        const auto good = base->template model<Model>();
        QCOMPARE(told(findings(good, base->folders(), &mesh)), QStringList());
        for (const Breakage<Model> &breakage : breakages<Model>()) {
            Model model = good;
            breakage.apply(model);
            const std::vector<Finding> found = findings(model, base->folders(), &mesh);
            const QString all = ruleId(breakage.rule) + QStringLiteral(" expected, found: ") +
                                told(found).join(QLatin1String(", "));
            QVERIFY2(found.size() == 1 && found[0].rule == breakage.rule, qPrintable(all));
            QVERIFY2(found[0].text.size() > 40 &&
                         !found[0].text.contains(QRegularExpression(QStringLiteral("%\\d"))),
                     qPrintable(found[0].text));
            fired.insert(breakage.rule);
        }
    }
}
} // namespace

class tst_Validation : public QObject
{
    Q_OBJECT

private slots:
    void everyRuleFiresAlone()
    {
        std::set<Rule> fired;
        checkAlone<SkinnedMesh>(fired);
        checkAlone<AnimFile>(fired);
        checkAlone<StaticMesh>(fired);
        QSet<QString> names;
        for (const Rule rule : allRules()) {
            QVERIFY2(fired.count(rule) == 1, ruleId(rule).latin1());
            QCOMPARE(int(rule), names.size());
            QVERIFY2(!names.contains(ruleId(rule)), ruleId(rule).latin1());
            names << ruleId(rule);
        }
    }

    void goodModelsGiveNoAlarm()
    {
        QStringList faults;
        for (const QString &path :
             TestSupport::allModelFiles() +
                 QStringList(TestSupport::source("resources/models/spherewire.staticmesh"))) {
            const QString root = path.section(QRegularExpression(QStringLiteral("/(game|mod)/")), 0, 0);
            const MaterialFolders folders{root + QStringLiteral("/game"), root + QStringLiteral("/mod")};
            SkinnedMesh mesh;
            const bool hasMesh =
                path.endsWith(QLatin1String(".anim")) &&
                !mesh.read(QString(path).replace("/anims/", "/models/").replace(".anim", ".skinnedmesh"));
            SampleModels::withModel(QFileInfo(path).suffix(), [&](auto model) {
                QVERIFY2(!model.read(path), qPrintable(path));
                for (const QString &fault : told(findings(model, folders, hasMesh ? &mesh : nullptr)))
                    faults << QFileInfo(path).fileName() + QLatin1Char(' ') + fault;
            });
        }
        // One picture lies in neither folder.
        faults.removeAll(QStringLiteral("barrel.staticmesh texture-not-found 29/2/0/0"));
        QCOMPARE(faults, QStringList());
    }

    void placesAndRepairs()
    {
        const auto base = std::move(bases().front());
        auto mesh = base->model<SkinnedMesh>();
        mesh.nodes[3].childNodes.insert(mesh.nodes[3].childNodes.begin() + 1, {900, 901});
        mesh.hotPoints[2].nodeId = 900;
        std::vector<Finding> found = validate(mesh, base->folders());
        QCOMPARE(told(found),
                 QStringList({"child-bone-out-of-range 2/3/1/0", "child-bone-out-of-range 2/3/2/0",
                              "hot-point-bone-out-of-range 4/2/0/0"}));
        QVERIFY(found[0].repairable && !found[2].repairable);
        QVERIFY(repairablePlaces(Rule::HotPointBoneOutOfRange, mesh, 100).empty());
        QCOMPARE(repairablePlaces(Rule::ChildBoneOutOfRange, mesh, 1).size(), size_t(1));

        // The material's name is told, and both places where it was looked for.
        mesh = base->model<SkinnedMesh>();
        mesh.surfaces[1].materialPath = QStringLiteral("materials/lost/x");
        found = validate(mesh, base->folders());
        QCOMPARE(told(found), QStringList("material-not-found 8/1/0/0"));
        for (const QString &folder : {base->folders().gamePath, base->folders().outputDir})
            QVERIFY2(found[0].text.contains(
                         QDir::toNativeSeparators(folder + QStringLiteral("/materials/lost.kmat"))),
                     qPrintable(found[0].text));
    }

    void circlesAsideOfTheRoot()
    {
        // 0 - 1, and 2 - 3 - 2 with 4 below.
        SkinnedMesh mesh;
        mesh.nodes.resize(5);
        mesh.nodes[0].childNodes = {1};
        mesh.nodes[2].childNodes = {3};
        mesh.nodes[3].childNodes = {2, 4};
        for (const auto &[bone, parent] : {std::pair(1, 0), {2, 3}, {3, 2}, {4, 3}})
            mesh.nodes[size_t(bone)].parentNode = quint8(parent);
        QCOMPARE(told(validate(mesh)), QStringList({"bone-cycle 2/3/0/0", "bone-unreachable 6/2/0/0"}));

        // As deep as a file can make it: no recursion.
        mesh.nodes.clear();
        mesh.nodes.resize(65000);
        for (size_t i = 0; i + 1 < mesh.nodes.size(); ++i) {
            mesh.nodes[i].childNodes = {quint16(i + 1)};
            mesh.nodes[i + 1].parentNode = quint8(i);
        }
        QCOMPARE(told(validate(mesh)), QStringList("too-many-bones 1/0/0/0"));
    }

    void manyAreCounted()
    {
        StaticMesh mesh = SampleModels::plainStatic();
        mesh.surfaces = {{QStringLiteral("_white"), std::vector<quint16>(3000, 9)}};
        for (auto &vertex : mesh.vertices)
            vertex.normal = {0, 0, 1};
        std::vector<Finding> found = validate(mesh);
        QCOMPARE(found.size(), size_t(ListedFindings) + 1);
        QCOMPARE(found.back().notListed, qint64(3000 - ListedFindings));
        QCOMPARE(found.back().place, (RecordRef{RecordKind::StaticTriangleIndex, {0, ListedFindings, 0}}));
        QVERIFY(found.back().text.contains(QString::number(3000 - ListedFindings)));
        QCOMPARE(validate(mesh, {}, 5).size(), size_t(6));
        QCOMPARE(validate(mesh, {}, 3000).size(), size_t(3000));

        // Tracks without keys cost a file nothing.
        AnimFile file;
        file.blocks.resize(3);
        for (AnimBlock &block : file.blocks) {
            block.animId = int(&block - file.blocks.data());
            block.nodes.resize(1);
            block.nodes[0].rotationIndex = 5;
            block.setRotationCount(65536);
        }
        found = validate(file, nullptr, {});
        QCOMPARE(found.size(), size_t(ListedFindings) + 1);
        QCOMPARE(found[5].place, (RecordRef{RecordKind::RotationTrack, {0, 6, 0}}));
        QCOMPARE(found.back().notListed, qint64(3 * 65535 - ListedFindings));
    }

    void whatIsNotGivenIsNotMissed()
    {
        // Neither folders,
        SkinnedMesh mesh = bases().front()->model<SkinnedMesh>();
        mesh.surfaces[0].materialPath.clear();
        QVERIFY(validate(mesh).empty());
        QVERIFY(validate(mesh, {QString(), QStringLiteral("/tmp")}).empty());
        QCOMPARE(validate(mesh, {QStringLiteral("/nowhere"), QString()}).size(), size_t(3));

        // nor the mesh that is animated,
        AnimFile file = bases().front()->model<AnimFile>();
        SkinnedMesh another;
        another.nodes.resize(3);
        QCOMPARE(told(validate(file, &another, ids())), QStringList("bone-count-mismatch 14/0/0/0"));
        QVERIFY(validate(file, nullptr, ids()).empty());

        // nor the tables of what actions name.
        action(0, {9999.0f})(file);
        QCOMPARE(validate(file, nullptr, ids()).size(), size_t(1));
        QVERIFY(validate(file, nullptr, {}).empty());
        ReferenceIds own;
        own.insert(ReferenceKind::Sounds, 9999);
        for (const Finding &finding : validate(file, nullptr, own))
            QVERIFY(finding.place != (RecordRef{RecordKind::AnimAction, {0, 2, 0}}));
    }

    void survivesAnything()
    {
        QRandomGenerator random(7);
        for (const QString &suffix : SampleModels::suffixes()) {
            const QByteArray sample = SampleModels::bytesOfSample(suffix);
            for (int round = 0; round < 3000; ++round) {
                QByteArray bytes = sample;
                for (int i = random.bounded(6); i > 0; --i)
                    bytes[random.bounded(bytes.size())] = char(random.generate());
                SampleModels::withModel(suffix, [&](auto model) {
                    if (readBytes(model, bytes))
                        return;
                    const std::vector<Finding> found =
                        findings(model, {QStringLiteral("/nowhere"), {}}, nullptr);
                    QVERIFY(found.size() <= allRules().size() * (ListedFindings + 1));
                });
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_Validation)
#include "tst_validation.moc"
