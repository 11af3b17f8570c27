// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileSystem.h"
#include "SceneSurvey.h"
#include "SmallGltf.h"
#include "TestSupport.h"
#include "TextureSearch.h"

class tst_scenesurvey : public QObject
{
    Q_OBJECT

private slots:
    void realModels_data()
    {
        QTest::addColumn<QString>("counts");   ///< objects, bones, vertices, triangles
        QTest::addColumn<QVector3D>("size");   ///< x, y, z in the game's axes
        QTest::addColumn<float>("scale");      ///< proposed
        QTest::addColumn<QString>("clips");    ///< their number, then the first
        QTest::addColumn<QString>("textures"); ///< the first, with a mark: inside, beside it, missing
        QTest::addColumn<QString>("loss");     ///< a part of what is said, or nothing
        const QString none;
        // The quadruped is 79 high and 155 long: centimeters. The knight and the mannequin stand in meters.
        QTest::newRow("gltf_fox/Fox.gltf")
            << "1 24 434 576" << QVector3D(25.2f, 154.7f, 79.0f) << 1.1f << "3 Survey 3.42 s @ 1000"
            << "beside Texture.png"
            << "follow several bones: 232 of 434.";
        QTest::newRow("glb_knight/Knight.glb") << "15 41 6976 6952" << QVector3D(2.69f, 2.58f, 2.47f)
                                               << 110.0f << "76 1H_Melee_Attack_Chop 1.07 s @ 1000"
                                               << "inside knight_texture"
                                               << "several bones: 2715 of ";
        QTest::newRow("dae_riggedfigure/RiggedFigure.dae")
            << "1 19 328 256" << QVector3D(1.18f, 0.33f, 1.45f) << 110.0f << "1 animation 1.25 s @ 1000"
            << none << "several bones: 294 of 328";
        // 450 high is neither, so it becomes as tall as a person.
        QTest::newRow("fbx_bin_robot/Robot.fbx")
            << "14 43 7068 3238" << QVector3D(309.9f, 261.7f, 449.7f) << 0.44f
            << "14 RobotArmature|Robot_Dance 3.33 s @ 24" << none << "several bones";
        QTest::newRow("fbx_ascii_sausage/maya_game_sausage_7500_ascii_combined.fbx")
            << "1 3 56 44" << QVector3D(1, 1, 3.33f) << 110.0f << "3 wiggle 0.79 s @ 24" << none
            << "change their size in animations: 3.";
        QTest::newRow("mdl_hl1_man/man.mdl")
            << "4 6 239 190" << QVector3D(6.68f, 1.99f, 7.77f) << 26.0f << "6 reference 0.03 s @ 30"
            << "inside Material2.bmp" << none;
        QTest::newRow("bvh_212bones/benchmark.bvh")
            << "1 212 3408 1236" << QVector3D(10.6f, 16.7f, 4.03f) << 50.0f << "1 Motion 0.00 s @ 23.9998"
            << none << "Bones: 212. The game poses 128";
        // Things without bones are measured by their greatest extent; names come with other slashes.
        QTest::newRow("ms3d_jeep/jeep1.ms3d")
            << "1 0 1948 2032" << QVector3D(11.1f, 16.6f, 7.64f) << 110.0f << "0"
            << "beside .\\jeep1.jpg" << none;
        // Of a format whose z is up.
        QTest::newRow("stl_multibody/multibody.stl")
            << "2 0 73 32" << QVector3D(0.636f, 1.088f, 0.340f) << 110.0f << "0" << none << none;
        QTest::newRow("ogex_example/Example.ogex") // says so
            << "2 0 48 24" << QVector3D(236.6f, 102.1f, 93.1f) << 1.1f << "0" << none << none;
        QTest::newRow("3ds_alpha/cubes_with_alpha.3DS")
            << "5 0 120 60" << QVector3D(955.1f, 1282.2f, 516.6f) << 1.1f << "0"
            << "missing BERETTA_.JPG" << none;
        QTest::newRow("ac_subdiv/sample_subdiv.ac")
            << "1 0 122958 245760" << QVector3D(1.40f, 3.0f, 1.34f) << 110.0f << "0" << none
            << "Vertices: 122958. A model can hold no more than 65535.";
    }

    void realModels()
    {
        SKIP_WITHOUT_SHARED("models");
        QFETCH(QVector3D, size);
        QFETCH(QString, textures);
        QFETCH(QString, loss);
        const SceneSummary seen = survey(
            TestSupport::shared(QStringLiteral("models/") + QString::fromLatin1(QTest::currentDataTag())));
        QCOMPARE(m_errors, QStringList());
        QTEST(QStringLiteral("%1 %2 %3 %4")
                  .arg(seen.objects)
                  .arg(seen.bones)
                  .arg(seen.vertices)
                  .arg(seen.triangles),
              "counts");
        QVERIFY2((seen.size - size).length() < 0.005f * size.length(),
                 qPrintable(QStringLiteral("%1 %2 %3")
                                .arg(double(seen.size.x()))
                                .arg(double(seen.size.y()))
                                .arg(double(seen.size.z())))); // of the expectation, three digits
        QTEST(seen.proposedScale, "scale");
        QString clips = QString::number(seen.clips.size());
        if (!seen.clips.empty())
            clips += QStringLiteral(" %1 %2 s @ %3")
                         .arg(seen.clips[0].name, QString::number(seen.clips[0].seconds, 'f', 2),
                              QString::number(seen.clips[0].rate));
        QTEST(clips, "clips");
        QString texture;
        if (!seen.textures.empty()) {
            const SceneSummary::Texture &first = seen.textures[0];
            texture = first.isEmbedded ? "inside " : first.file.isEmpty() ? "missing " : "beside ";
            texture += first.name;
            QVERIFY(first.file.isEmpty() || QFile::exists(first.file));
        }
        QCOMPARE(texture, textures);
        QVERIFY2(seen.losses.join('\n').contains(loss) && seen.losses.isEmpty() == loss.isEmpty(),
                 qPrintable(seen.losses.join('\n')));
    }

    void whatTheLibraryKeepsToItself()
    {
        const TestFolder folder;
        const QByteArray rig =
            SmallGltf().file({{"turn [3]", {{1, true, {{500, {0, 0, 0, 1}}, {1500, {1, 0, 0, 0}}}}}}});
        const SceneSummary plain = survey(folder.put("rig.gltf", rig));
        QCOMPARE(plain.clips.at(0).seconds, 1.0);
        QVERIFY2(plain.losses.isEmpty(), qPrintable(plain.losses.join('\n')));
        // The nearest round factor that makes 20 units of height a person's 200; but what was exported from
        // here keeps its units.
        QCOMPARE(plain.proposedScale, 10.0f);
        QByteArray ours = rig;
        ours.replace("\"input\"", "\"interpolation\": \"STEP\", \"input\"");
        ours.replace("\"name\": \"body\"", "\"name\": \"body\", \"extras\": {\"korvane\": \"{}\"}");
        const SceneSummary marked = survey(folder.put("ours.GLTF", ours));
        QCOMPARE(marked.proposedScale, 1.0f);
        QVERIFY2(marked.losses.contains("Animations that jump from key to key: 1. They will glide."),
                 qPrintable(marked.losses.join('\n')));
    }

    void asTheReadyImportHasIt()
    {
        // Weights in whole numbers, which the library takes for the bits of others, and a texture that it
        // knows as a base color only.
        const TestFolder folder;
        const SceneSummary whole = survey(folder.put("whole.gltf", SmallGltf().file({}, true)));
        QVERIFY2(whole.losses.contains("Vertices that follow several bones: 1 of 3. Each will follow the one "
                                       "with the greatest weight, unless extra bones are wanted."),
                 qPrintable(whole.losses.join('\n')));
        // The same places: the arm stands where the hips do.
        QVERIFY(qFuzzyCompare(whole.size, survey(folder.put("plain.gltf", SmallGltf().file({}))).size));
        const SceneSummary colored = survey(folder.put("base.fbx", R"(; FBX 7.3.0 project file
FBXHeaderExtension: { FBXVersion: 7300 }
Objects: {
    Geometry: 1, "Geometry::", "Mesh" {
        Vertices: *9 { a: 0,0,0,1,0,0,0,1,0 }
        PolygonVertexIndex: *3 { a: 0,1,-3 }
        LayerElementMaterial: 0 {
            MappingInformationType: "AllSame"
            ReferenceInformationType: "IndexToDirect"
            Materials: *1 { a: 0 }
        }
        Layer: 0 {
            LayerElement: { Type: "LayerElementMaterial" TypedIndex: 0 }
        }
    }
    Model: 2, "Model::wall", "Mesh" { Version: 232 }
    Material: 3, "Material::wall", "" { ShadingModel: "phong" }
    Texture: 4, "Texture::skin", "" { FileName: "skin.png" RelativeFilename: "skin.png" }
}
Connections: {
    C: "OO",2,0
    C: "OO",1,2
    C: "OO",3,2
    C: "OP",4,3, "Maya|baseColor"
}
)"));
        QCOMPARE(colored.textures.size(), size_t(1));
        QCOMPARE(colored.textures[0].name, QStringLiteral("skin.png"));
    }

    void whatIsNoModel()
    {
        const TestFolder folder;
        const QString points = folder.put("points.obj", "v 0 0 0\nv 1 0 0\np 1 2\n");
        for (const QString &path : {points, folder.put("no.gltf", "{"), folder.path("none.obj")}) {
            survey(path);
            QCOMPARE(m_errors.size(), 1);
            QVERIFY2(m_errors[0].startsWith(path), qPrintable(m_errors[0]));
        }
    }

    void texturesAreLookedFor_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("found");
        QTest::newRow("as it says") << "skins/a.png"
                                    << "skins/a.png";
        QTest::newRow("backslashes") << ".\\skins\\a.png"
                                     << "skins/a.png";
        QTest::newRow("another computer") << "C:\\work\\b.tga"
                                          << "b.tga";
        QTest::newRow("made a PNG") << "skins/a.tif"
                                    << "skins/a.png";
        QTest::newRow("other letters") << "B.TGA"
                                       << "b.tga";
        QTest::newRow("the usual folder") << "/home/me/c.png"
                                          << "textures/c.png";
        QTest::newRow("a folder in other letters") << "SKINS/a.png"
                                                   << "skins/a.png";
        QTest::newRow("a link") << "skins/my%20wall.png"
                                << "skins/my wall.png";
        QTest::newRow("not there") << "d.png" << QString();
        QTest::newRow("a folder") << "skins/" << QString();
        QTest::newRow("nothing") << QString() << QString();
    }

    void texturesAreLookedFor()
    {
        const TestFolder folder;
        for (const char *name : {"skins/a.png", "skins/my wall.png", "b.tga", "textures/c.png"})
            folder.put(name, "picture");
        QFETCH(QString, stored);
        QFETCH(QString, found);
        // Where letters' case makes no other file, it is the one that the model names.
        QCOMPARE(FileSystem::comparable(foundTexture(folder.path("model.obj"), stored)),
                 FileSystem::comparable(found.isEmpty() ? found : folder.path(found)));
    }

private:
    SceneSummary survey(const QString &path)
    {
        ImportMessages messages;
        const SceneSummary summary = surveyScene(path, messages);
        m_errors.clear();
        for (const ImportMessage &line : messages.lines)
            m_errors += line.text;
        return summary;
    }

    QStringList m_errors;
};

QTEST_GUILESS_MAIN(tst_scenesurvey)
#include "tst_scenesurvey.moc"
