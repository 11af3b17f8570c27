// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NameTables.h"
#include "SkinnedMesh.h"
#include "TestSupport.h"

/// Names of bone symbols, impact types and key frame events.
class TestNameTables : public QObject
{
    Q_OBJECT

private slots:
    void boneSymbols();
    void numberedNames();
};

void TestNameTables::boneSymbols()
{
    SkinnedMesh mesh;
    mesh.nodes.resize(1);
    const auto nameOf = [&mesh](int flags) {
        mesh.nodes[0].symbolFlags = qint8(flags);
        return boneSymbolName(mesh, 0);
    };
    QCOMPARE(nameOf(0x00), QStringLiteral("Left Root"));
    QCOMPARE(nameOf(0x46), QStringLiteral("Right Upper Arm"));
    QCOMPARE(nameOf(0x46 | 0x38), QStringLiteral("Right Upper Arm")); // bits 3 to 5 say nothing
    QCOMPARE(nameOf(0x81), QStringLiteral("Left Chin"));              // negative as a signed byte
    QCOMPARE(nameOf(0xFF), QStringLiteral("Right Foot"));
    QCOMPARE(boneSymbolName(mesh, 1), QString());
    QCOMPARE(boneSymbolName(mesh, -1), QString());
}

void TestNameTables::numberedNames()
{
    QCOMPARE(impactTypeNames().size(), 10);
    QCOMPARE(impactTypeNames().at(5), QStringLiteral("Creature Flesh"));
    QCOMPARE(eventTypeNames().size(), 35);
    for (int i = 0; i < 35; ++i)
        QVERIFY(eventTypeNames().at(i).startsWith(QStringLiteral("%1: ").arg(i, 2, 10, QLatin1Char('0'))));
}

QTEST_GUILESS_MAIN(TestNameTables)
#include "tst_nametables.moc"
