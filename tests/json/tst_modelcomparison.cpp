// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FormatMutator.h"
#include "ModelComparison.h"
#include "SampleModels.h"
#include "TestSupport.h"
#include "TheirRecords.h"

using ModelComparison::compare;

namespace {
/// "name field mine>theirs; …", those within in brackets.
QString told(const std::vector<RecordDifference> &differences)
{
    QStringList lines;
    for (const RecordDifference &each : differences) {
        QString line = each.name;
        line.prepend(each.state == RecordDifference::State::OnlyMine     ? "-"
                     : each.state == RecordDifference::State::OnlyTheirs ? "+"
                                                                         : "");
        for (const FieldDifference &field : each.fields)
            line += ' ' + field.field + ' ' + field.mine + '>' + field.theirs;
        if (!each.children.empty())
            line += " [" + told(each.children) + ']';
        lines += line;
    }
    return lines.join("; ");
}

/// Takes from the first difference whatever can be taken, a field where `byFields` wants it.
template <typename Model>
bool takeFirst(Model &mine, const Model &theirs, const std::vector<RecordDifference> &differences,
               bool byFields)
{
    for (const RecordDifference &each : differences) {
        if (byFields && takeFirst(mine, theirs, each.children, true))
            return true;
        for (const FieldDifference &field : each.fields) {
            if (byFields && !field.isBound && each.state == RecordDifference::State::Changed)
                return takeTheirs(mine, theirs, each, field.field);
        }
        if (takeTheirs(mine, theirs, each))
            return true;
    }
    return false;
}
} // namespace

class tst_ModelComparison : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatDiffers()
    {
        AnimFile mine = SampleModels::plainAnim();
        for (int i = 0; i < 3; ++i)
            mine.blocks[size_t(i)].animId = 10 * i;
        QCOMPARE(told(compare(mine, mine)), QString());

        // A block goes to the front: the others are found by their ids all the same.
        AnimFile theirs = mine;
        std::rotate(theirs.blocks.begin(), theirs.blocks.begin() + 2, theirs.blocks.end());
        QCOMPARE(told(compare(mine, theirs)), QString("animation file blocks order: 0, 1, 2>order: 1, 2, 0"));
        theirs.blocks[0].animId = 7;
        theirs.blocks[2].speed = 2.0f;
        theirs.blocks[2].actions.resize(4);
        theirs.blocks[2].actions[1].args[7] = SampleModels::oddFloats[1];
        QCOMPARE(
            told(compare(mine, theirs)),
            QString("block 1 (id 10) speed 1>2 [action 1 args [0, 0, 0, 0, 0, 0, 0, 0]>[0, 0, 0, 0, 0, 0, 0, "
                    "\"0xffc12345\"]; +action 3]; -block 2 (id 20); +block 0 (id 7)"));

        // Tracks by the key that is the furthest away.
        theirs = mine;
        theirs.blocks[0].translations.at(1, 0) = {3, 4, 0};
        theirs.blocks[0].translations.at(1, 2) = {0, 0, 6};
        theirs.blocks[0].rotations.at(0, 1) = {1, 0, 0, 0};
        const auto tracks = compare(mine, theirs);
        QCOMPARE(told(tracks), QString("block 0 (id 0) [translation 1 key 2 [0, 0, 0]>[0, 0, 6]; "
                                       "rotation 0 key 1 [0, 0, 0, 1]>[1, 0, 0, 0]]"));
        QCOMPARE(tracks[0].children[0].distance, 6.0);
        QCOMPARE(tracks[0].children[1].distance, 180.0);
        theirs.blocks[0].translations.at(1, 1) = {SampleModels::oddFloats[1], 0, 0};
        QVERIFY(std::isnan(compare(mine, theirs)[0].children[0].distance));

        SkinnedMesh mesh = SampleModels::plainMesh();
        SkinnedMesh other = mesh;
        other.unknownB = 5;
        other.nodes[0].childNodes = {2};
        other.nodes[1].name = "not in the file";
        other.surfaces[1].triangleIndexes.assign(30, 1);
        other.vertices.pop_back();
        other.bbMin = {-0.0f, 0.0f, 0.0f};
        QCOMPARE(
            told(compare(mesh, other)),
            QString(
                "skinned mesh bbMin [0, 0, 0]>[-0.0, 0, 0] unknownB 0>5; bone 0 childBones [1, 2, 3]>[2]; "
                "surface 1 triangles 3 numbers>30 numbers; -vertex 2"));
    }

    /// Whatever differs, taking it all makes one of the other, by records and by fields.
    void takingAllMakesThemTheSame()
    {
        int compared = 0;
        int same = 0;
        for (int seed = 0; seed < 300; ++seed) {
            const QString &suffix = SampleModels::suffixes()[seed % 3];
            SampleModels::withModel(suffix, [&](auto model) {
                using Model = decltype(model);
                model = SampleModels::oddModel<Model>();
                Model theirs;
                const QByteArray bytes =
                    FormatMutator(quint64(seed)).mutated(suffix, SampleModels::bytesOf(model));
                if (SampleModels::readBytes(theirs, bytes) || !theirs.refusal().isEmpty())
                    return;
                ++compared;
                const QByteArray wanted = SampleModels::bytesOf(theirs);
                QCOMPARE(compare(model, theirs).empty(), SampleModels::bytesOf(model) == wanted);
                Model mine = model;
                for (int steps = 0; takeFirst(mine, theirs, compare(mine, theirs), seed % 2 == 0); ++steps)
                    QVERIFY(steps < 1000);
                // Bones and vertices that others name by number come and go with the file only.
                const auto left = compare(mine, theirs);
                for (const RecordDifference &each : left)
                    QVERIFY2(each.isBound, qUtf8Printable(told(left)));
                QVERIFY(!left.empty() || SampleModels::bytesOf(mine) == wanted);
                same += left.empty();
            });
        }
        QVERIFY2(compared > 100 && same > compared / 2, qUtf8Printable(QString::number(same)));
    }
};

QTEST_GUILESS_MAIN(tst_ModelComparison)
#include "tst_modelcomparison.moc"
