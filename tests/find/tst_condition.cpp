// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordSearch.h"
#include "Replacement.h"
#include "SampleModels.h"

#include <QtTest>

#include <cmath>

/// What is found by conditions, and what they are refused for.
class tst_Condition : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Hips, a left arm of three bones with a knife on its hand, a right arm.
        m_mesh = SampleModels::plainMesh();
        m_mesh.nodes.resize(6);
        const int parents[] = {255, 0, 1, 2, 3, 0};
        const int symbols[] = {0xc0, 0x42, 0x82, 0xc2, 0, 0x46};
        for (size_t i = 0; i < 6; ++i) {
            m_mesh.nodes[i].parentNode = quint8(parents[i]);
            m_mesh.nodes[i].symbolFlags = qint8(symbols[i]);
            m_mesh.nodes[i].damageScale = float(i) * 0.1f;
            m_mesh.nodes[i].childNodes.clear();
        }
        m_mesh.nodes[4].name = QStringLiteral("knife");
        m_mesh.nodes[2].flags = 0x11;
        m_mesh.nodes[2].impactType = 4;
        for (size_t i = 0; i < 3; ++i) {
            m_mesh.hotPoints[i].nodeId = decltype(m_mesh.hotPoints[i].nodeId)(i * 2);
            m_mesh.surfaces[i].materialPath = QStringLiteral("materials/%1 and/b").arg("Tree"[i]);
        }
        m_mesh.hotPoints[1].particleEffect1 = 0xFFFF;
        m_mesh.surfaces[2].materialPath = QStringLiteral("materials/bigTREE/x");
        m_mesh.animationNames.insert(7, QStringLiteral("walk"));

        m_anim = SampleModels::plainAnim();
        m_anim.blocks[1].animId = 7;
        m_anim.blocks[2].frameScale = std::nanf("");
        const int events[] = {0, 2, 23};
        for (size_t block = 0; block < 3; ++block) {
            for (size_t i = 0; i < 3; ++i) {
                AnimAction &action = m_anim.blocks[block].actions[i];
                action.frame = quint16(10 * block + i);
                action.eventType = decltype(action.eventType)(events[i]);
                action.node = quint16(block);
                action.args = {};
                action.args[0] = block == 1 ? 12.0f : 13.0f;
            }
        }
        m_static = SampleModels::plainStatic();
    }

    void found_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("records");
        const auto row = [](const char *text, const char *records) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(records);
        };
        // Numbers: as they are stored, calculated, in ranges.
        row("damage scale > 0.4", "bone 5");
        row("DamageScale >= .4", "bone 4, bone 5");
        row("damage = 1/10", "bone 1");
        row("damage-scale 0,1-0,3", "bone 1, bone 2, bone 3");
        row("damage scale = 0.3 - 0.1, bones", "bone 1, bone 2, bone 3");
        row("damage scale \u2264 0.1", "bone 0, bone 1");
        row("actions frame 10-20", "block 1 action 0, block 1 action 1, block 1 action 2, block 2 action 0");
        row("actions frame 20..10, frame <> 10", "block 1 action 1, block 1 action 2, block 2 action 0");
        row("frame scale = nan", "block 2");
        row("position x = 1, vertices", "vertex 1");
        row("vertices position > 3", "vertex 1");
        row("vertex position.z=2*2", "vertex 1");
        // Numbers of records and of their owners; more than one kind.
        row("bone 2", "bone 2, hot point 1, block 0 bone 2, block 1 bone 2, block 2 bone 2, "
                      "block 2 action 0, block 2 action 1, block 2 action 2");
        row("actions block 2 frame > 20", "block 2 action 1, block 2 action 2");
        row("block 1-2 bone 3", "block 1 bone 3, block 2 bone 3");
        row("block id 7", "block 1");
        row("rotation track 1, anim 1", "block 1 rotation 1, block 1 rotation 1 key 0, "
                                        "block 1 rotation 1 key 1, block 1 rotation 1 key 2");
        row("hot points", "hot point 0, hot point 1, hot point 2");
        // Words of events, arguments by place, names.
        row("sound = 12", "block 1 action 0, block 1 action 2");
        row("Sound ID 12, event != 0", "block 1 action 2");
        row("arg1 = 12, event 2", "block 1 action 1");
        row("arg 1 = 12, radius > 0", "block 1 action 1");
        row("event = play sound on model, sound 12", "block 1 action 2");
        row("event = damage, block 0", "block 0 action 1");
        row("impact = flesh, bones", "bone 2");
        row("impact ~ \"lesh\"", "bone 2");
        row("anim id = walk", "block 1");
        row("name ~ ALK or name = knife", "bone 4, block 1");
        row("flags ~ 0x10", "bone 2");
        row("deals damage", "hot point 1");
        // Bones.
        row("bones bone in left upper arm",
            "bone 1, bone 2, bone 3, bone 4, block 0 bone 1, block 0 bone 2, block 0 bone 3, block 1 bone 1, "
            "block 1 bone 2, block 1 bone 3, block 2 bone 1, block 2 bone 2, block 2 bone 3");
        row("hot points bone in 1", "hot point 1, hot point 2");
        row("hot points bone = knife", "hot point 2");
        row("hot points not bone ~ arm", "hot point 0, hot point 2");
        // Texts.
        row("surfaces material ~ tree", "surface 2");
        row("material = \"materials/T and/b\"", "surface 0");
        row("material ~ 'r and/B' or material ~ BIG", "surface 1, surface 2");
        // Joined. What has no such field neither meets nor fails.
        row("not sound = 12, block 1-2", "block 2 action 0, block 2 action 2");
        row("sound != 13", "block 1 action 0, block 1 action 2");
        row("bones and (damage scale > 0.4 or damage scale < 0.1), flags 0", "bone 0, bone 5");
        row("bones, not (damage scale > 0.1 or flags ~ 0x10)", "bone 0, bone 1");
        row("hot point 1 or bones damage scale 0.5", "bone 5, hot point 1");
    }
    void found()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, records);
        Condition condition;
        const QString reason = condition.read(text, &m_mesh);
        QVERIFY2(reason.isEmpty(), qPrintable(reason));
        QStringList paths;
        look(condition, m_mesh, RecordKind::SkinnedMesh, paths);
        look(condition, m_anim, RecordKind::AnimFile, paths);
        QCOMPARE(paths.join(QStringLiteral(", ")), records);
    }

    void refused_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("reason");
        const auto row = [](const char *text, const char *reason) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(reason);
        };
        row("", "Character 1: Something is missing at the end.");
        row("left arm", "Character 1: 'left' is neither a field nor a kind of records.");
        row("bones speeed > 1", "Character 7: 'speeed' is neither a field nor a kind of records.");
        row("speed", "Character 6: Behind 'speed' a comparison is wanted, such as = 1 or > 1.");
        row("speed >", "Character 8: Something is missing at the end.");
        row("speed = 1 or", "Character 13: Something is missing at the end.");
        row("speed = fast", "Character 9: 'fast' is no number for 'speed'.");
        row("speed = x", "Character 9: 'x' is no number for 'speed'.");
        row("bone = nobody",
            "Character 8: 'nobody' is no number for 'bone', and nothing there is called so.");
        row("frame = 1.5", "Character 9: 'frame' is whole numbers, which 1.5 is not.");
        row("material > tree", "Character 12: 'material' is a text, which is compared by =, != or ~.");
        row("speed ~ 3", "Character 9: ~ finds texts and names, and bits of flags, but no 'speed'.");
        row("(speed = 1", "Character 11: A parenthesis is not closed.");
        row("speed = 1)", "Character 10: ')' is not understood.");
        row("material = 'a", "Character 12: A quotation mark is not closed.");
        QTest::newRow("deep") << QString(100, '(') + "speed = 1"
                              << QStringLiteral("Character 65: That has too many parentheses.");
        QTest::newRow("long") << QString(2000, 'a') << QStringLiteral("That is too long for a condition.");
    }
    void refused()
    {
        QFETCH(const QString, text);
        Condition condition;
        QTEST(condition.read(text, &m_mesh), "reason");
        QVERIFY(condition.isEmpty() && !condition.matches(ModelValues(m_mesh), {RecordKind::Bone, {}}));
    }

    void everyWordOfThePagesIsUnderstood()
    {
        // Whatever is proposed, and whatever fields are called elsewhere.
        for (const RecordKind root :
             {RecordKind::SkinnedMesh, RecordKind::AnimFile, RecordKind::StaticMesh}) {
            for (const QString &word : RecordWords::proposals(KindSet(root))) {
                const RecordWord *found = RecordWords::find(word);
                QVERIFY2(found && (!found->meanings.empty() || !found->kinds.isEmpty()), qPrintable(word));
            }
        }
        for (const SearchedKind &kind : RecordWords::kinds()) {
            for (const RecordField *field : RecordFields::of(kind.kind)) {
                for (const QString &word : {field->id(), field->title()}) {
                    const RecordWord *found = RecordWords::find(word);
                    QVERIFY2(found && std::any_of(found->meanings.begin(), found->meanings.end(),
                                                  [field](const auto &each) { return each.field == field; }),
                             qPrintable(word));
                }
            }
        }
        for (const char *word : {"node", "damage", "particle effect 1", "start bone", "child bones", "keys"})
            QVERIFY2(RecordWords::find(QLatin1String(word)), word);
    }

    void replacements()
    {
        const ModelValues values(m_anim);
        Condition condition;
        QVERIFY(condition.read(QStringLiteral("sound = 12"), &m_mesh).isEmpty());
        QCOMPARE(condition.fieldWord(), QStringLiteral("sound"));
        const auto records = findRecords(condition, values, RecordKind::AnimFile);
        QCOMPARE(condition.fieldOf(values, records.at(1))->id(), QStringLiteral("arg1"));
        const auto made = [&](const char *word, const char *text) {
            return replacementOf(values, records, QLatin1String(word), QLatin1String(text), 5, &m_mesh);
        };
        Replacement replacement = made("sound", "=x+i");
        QCOMPARE(replacement.reason, QString());
        QCOMPARE(replacement.differing, 2);
        QCOMPARE(std::get<double>(replacement.changes[0].value), 17.0);
        QCOMPARE(std::get<double>(replacement.changes[1].value), 18.0);
        QCOMPARE(made("frame", "11").differing, 1 + 1 - int(records[0].index[1] == 1));
        QCOMPARE(std::get<double>(made("bone", "knife").changes[0].value), 4.0);
        replacement = made("bone", "-1");
        QVERIFY(replacement.reason.contains(QLatin1String("-1 is not from 0")) &&
                replacement.changes.isEmpty());
        QCOMPARE(replacement.refusing, records[0]);
        QCOMPARE(made("arg", "1").reason, QStringLiteral("'arg' is several fields: name one of them."));
        QCOMPARE(made("model index", "1").refusing, records[0]); // which plays no sound on a model
        QCOMPARE(made("speeed", "1").reason, QStringLiteral("'speeed' is no field."));
        QVERIFY(made("bone", "arm").reason.startsWith(QLatin1String("Several things")));
        QVERIFY(!made("frame", "soon").reason.isEmpty());
    }

private:
    template <typename Model>
    static void look(const Condition &condition, const Model &model, RecordKind root, QStringList &paths)
    {
        const ModelValues values(model);
        for (const RecordRef &record : findRecords(condition, values, root))
            paths << recordPath(record);
    }

    SkinnedMesh m_mesh;
    AnimFile m_anim;
    StaticMesh m_static;
};

QTEST_GUILESS_MAIN(tst_Condition)
#include "tst_condition.moc"
