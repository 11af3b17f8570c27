// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SampleModels.h"
#include "SpecialFiles.h"
#include "ToolRun.h"

#include <QJsonArray>
#include <QJsonObject>

/// What korvane-tool says of who names what.
class tst_ToolUses : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        SkinnedMesh mesh = SampleModels::plainMesh();
        mesh.surfaces.resize(11, {{}, {0, 1, 2}});
        for (SkinnedMeshSurface &surface : mesh.surfaces)
            surface.materialPath = QStringLiteral("Materials/Skins/a");
        m_mesh = m_folder.save("game/models/hero/hero.skinnedmesh", mesh);
        AnimFile anim = SampleModels::plainAnim();
        anim.blocks.resize(1);
        anim.blocks[0].actions.resize(1);
        anim.blocks[0].actions[0].args = {10.0f};
        m_anim = m_folder.save("game/anims/hero/hero.anim", anim);
        m_materials = m_folder.put("game/materials/skins.kmat",
                                   "material a {\n\tsampler \"diffuse\" 0 \"textures/a.png\"\n}\n");
        m_texture = m_folder.put("game/textures/a.png", "any");
        m_spare = m_folder.put("mod/materials/new.kmat", "material spare {\n}\n");
    }

    void whatFilesName()
    {
        const QString surfaces =
            m_mesh +
            ": surface 0, surface 1, surface 2, surface 3, surface 4, surface 5, surface 6, surface 7 "
            "and 3 more: material Materials/Skins/a";
        const ToolRun mesh(run(), {m_mesh});
        QCOMPARE(mesh.exitCode, 0);
        QVERIFY2(mesh.out.contains(surfaces + '\n'), qUtf8Printable(mesh.out));
        QVERIFY2(mesh.out.contains(m_mesh + ": goes with " + m_anim + '\n'), qUtf8Printable(mesh.out));

        const QString names = m_materials + ": material a: texture textures/a.png\n";
        QCOMPARE(ToolRun(run(), {m_materials}).out, names + surfaces + '\n');
        QCOMPARE(ToolRun(run(), {m_texture}).out, names + surfaces + '\n');
        QCOMPARE(ToolRun(run(), {m_folder.put("elsewhere/b.png", "any")}).exitCode, 1);
    }

    void whoNames()
    {
        const ToolRun sound(run() + " --json --of sound:10");
        QCOMPARE(sound.exitCode, 0);
        QCOMPARE(sound.json().size(), 1);
        const QJsonObject use = sound.first();
        QCOMPARE(use["file"].toString(), m_anim);
        QCOMPARE(use["kind"].toString(), QString("sound"));
        QCOMPARE(use["value"].toInt(), 10);
        QCOMPARE(use["records"].toArray(), QJsonArray{"block 0 action 0"});
        QVERIFY(!use["name"].toString().isEmpty());
        QCOMPARE(ToolRun(run() + " --of sound:11").exitCode, 1);
    }

    void whatNobodyNames()
    {
        QCOMPARE(ToolRun(run() + " --unused materials").out, m_spare + ": material materials/new/spare\n");
        const ToolRun impacts(run() + " --unused impacts");
        QVERIFY2(!impacts.out.contains("impact 0 ") && impacts.out.contains("impact 9 "),
                 qUtf8Printable(impacts.out));
    }

    void trouble()
    {
        for (const char *words : {"--of noise:1", "--of sound:loud", "--unused damage", ""})
            QCOMPARE(ToolRun(run() + ' ' + words).exitCode, 2);
        QCOMPARE(ToolRun("uses --game-path= --mod-path= --of sound:1").exitCode, 2);
        const QString broken = m_folder.put("game/models/broken.skinnedmesh", "no model");
        const ToolRun found(run() + " --of sound:10");
        QVERIFY(QFile::remove(broken));
        QCOMPARE(found.exitCode, 2);
        QVERIFY2(found.err.contains(broken) && found.out.contains(m_anim), qUtf8Printable(found.err));
        SpecialFiles::withNameWithoutText(m_folder.path("game/textures"), [this] {
            const ToolRun gaps(run() + " --of sound:10");
            QCOMPARE(gaps.exitCode, 2);
            QVERIFY2(gaps.err.contains(m_folder.path("game/textures") + ": The name of"),
                     qUtf8Printable(gaps.err));
        });
    }

private:
    QString run() const
    {
        return QStringLiteral("uses --game-path %1 --mod-path %2")
            .arg(m_folder.path("game"), m_folder.path("mod"));
    }

    TestFolder m_folder;
    QString m_mesh, m_anim, m_materials, m_texture, m_spare;
};

QTEST_GUILESS_MAIN(tst_ToolUses)
#include "tst_tooluses.moc"
