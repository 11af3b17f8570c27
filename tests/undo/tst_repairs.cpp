// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT

// What the validator calls repairable is repaired in one step, and given back by its undo.
#include "BrokenModels.h"
#include "ReferenceIds.h"
#include "Repairs.h"
#include "SampleCommands.h"

#include <QUndoStack>

#include <set>

using namespace BrokenModels;
using SampleCommands::BlindView;
using SampleModels::bytesOf;

namespace {
std::vector<Finding> findings(const SkinnedMesh &mesh)
{
    return validate(mesh);
}
std::vector<Finding> findings(const StaticMesh &mesh)
{
    return validate(mesh);
}
std::vector<Finding> findings(const AnimFile &file)
{
    return validate(file, nullptr, {});
}

template <typename Model>
void checkEach(std::set<Rule> &repaired)
{
    for (const auto &base : bases()) {
        for (const Breakage<Model> &breakage : breakages<Model>()) {
            auto model = base->template model<Model>();
            breakage.apply(model);
            const std::vector<Finding> found = findings(model);
            if (found.empty() || !found[0].repairable)
                continue;
            BlindView screen;
            QUndoStack stack;
            const QByteArray before = bytesOf(model);
            QVERIFY(!before.isEmpty());
            QCOMPARE(repair(found[0].rule, {found[0].place}, EditTarget<Model>{model, screen}, stack), 1);
            QVERIFY2(findings(model).empty(), ruleId(breakage.rule).latin1());
            QCOMPARE(stack.count(), 1);
            stack.undo();
            QCOMPARE(bytesOf(model), before);
            stack.redo();
            QVERIFY(findings(model).empty());
            repaired.insert(breakage.rule);
        }
    }
}

/// As long as anything can be repaired, it is: that comes to an end.
template <typename Model>
void repairAll(Model model)
{
    const QByteArray before = bytesOf(model);
    BlindView screen;
    QUndoStack stack;
    for (int round = 0; round < 5; ++round) {
        for (const Rule rule : allRules()) {
            const auto places = repairablePlaces(rule, model, 100000);
            QCOMPARE(repair(rule, places, EditTarget<Model>{model, screen}, stack), int(places.size()));
        }
    }
    for (const Finding &finding : findings(model))
        QVERIFY2(!finding.repairable, ruleId(finding.rule).latin1());
    stack.setIndex(0);
    QCOMPARE(bytesOf(model), before);
}
} // namespace

class tst_Repairs : public QObject
{
    Q_OBJECT

private slots:
    void eachGoesInOneStep()
    {
        std::set<Rule> repaired;
        checkEach<SkinnedMesh>(repaired);
        checkEach<AnimFile>(repaired);
        checkEach<StaticMesh>(repaired);
        QCOMPARE(repaired,
                 (std::set<Rule>{Rule::ChildBoneOutOfRange, Rule::BoneCycle, Rule::BoneListedTwice,
                                 Rule::BoneUnreachable, Rule::ParentBoneOutOfRange, Rule::ParentBoneMismatch,
                                 Rule::TranslationTrackOutOfRange, Rule::RotationTrackOutOfRange,
                                 Rule::QuaternionZero, Rule::QuaternionUnnormalised, Rule::LoopFrameBeyondEnd,
                                 Rule::BoxInverted}));
    }

    void manyGoInOneStep()
    {
        // More than are listed, several in one list, and some that nothing is wrong with between them.
        auto mesh = bases().front()->model<SkinnedMesh>();
        for (SkinnedMeshNode &bone : mesh.nodes) {
            bone.childNodes.insert(bone.childNodes.begin(), 500);
            bone.childNodes.push_back(501);
        }
        const QByteArray before = bytesOf(mesh);
        const auto places = repairablePlaces(Rule::ChildBoneOutOfRange, mesh, 1000);
        QCOMPARE(places.size(), 2 * mesh.nodes.size());
        BlindView screen;
        QUndoStack stack;
        QCOMPARE(repair(Rule::ChildBoneOutOfRange, places, {mesh, screen}, stack), int(places.size()));
        QCOMPARE(stack.count(), 1);
        QCOMPARE(bytesOf(mesh), bytesOf(bases().front()->model<SkinnedMesh>()));
        stack.undo();
        QCOMPARE(bytesOf(mesh), before);
        QCOMPARE(repair(Rule::TooManyBones, {{RecordKind::SkinnedMesh, {}}}, {mesh, screen}, stack), 0);
        QCOMPARE(stack.count(), 1);
    }

    void theBoxOfASkinnedMeshIsPutInOrder()
    {
        // Its vertices are in the spaces of their bones and say nothing of it.
        auto mesh = bases().front()->model<SkinnedMesh>();
        mesh.bbMin = {4.0f, -5.0f, 6.0f};
        mesh.bbMax = {-1.0f, 2.0f, -3.0f};
        BlindView screen;
        QUndoStack stack;
        QCOMPARE(repair(Rule::BoxInverted, {{RecordKind::SkinnedMesh, {}}}, {mesh, screen}, stack), 1);
        QCOMPARE(mesh.bbMin, QVector3D(-1.0f, -5.0f, -3.0f));
        QCOMPARE(mesh.bbMax, QVector3D(4.0f, 2.0f, 6.0f));
    }

    void rotationsKeepTheirDirection()
    {
        auto file = bases().front()->model<AnimFile>();
        BlindView screen;
        QUndoStack stack;
        const QVector4D turned(-3.0f, 0.0f, 0.0f, 4.0f);
        // The squares of the second are beyond what a float holds.
        for (const QVector4D &rotation : {turned, turned * 1.0e25f, turned * 1.0e-3f}) {
            file.blocks[0].rotations.at(1, 2) = rotation;
            const RecordRef place{RecordKind::RotationKey, {0, 1, 2}};
            QCOMPARE(repair(Rule::QuaternionUnnormalised, {place}, {file, screen}, stack), 1);
            QVERIFY(qFuzzyCompare(file.blocks[0].rotations.at(1, 2), QVector4D(-0.6f, 0.0f, 0.0f, 0.8f)));
        }
    }

    void anythingIsRepaired()
    {
        repairAll(SampleModels::plainMesh());
        repairAll(SampleModels::skinnedMesh());
        repairAll(SampleModels::plainAnim());
        repairAll(SampleModels::animFile());
        repairAll(SampleModels::staticMesh());
    }
};

QTEST_GUILESS_MAIN(tst_Repairs)
#include "tst_repairs.moc"
