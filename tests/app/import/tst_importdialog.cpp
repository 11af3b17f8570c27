// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FloatSpinBox.h"
#include "ImportDialog.h"
#include "ImportFilter.h"
#include "ImportHands.h"
#include "ImportSteps.h"
#include "KMat.h"
#include "SpecialFiles.h"

#include <algorithm>
#include <memory>

Q_DECLARE_METATYPE(StaticMesh)

namespace {
const QByteArray corners = "v 0 0 0\nv 2 0 0\nv 0 4 0\nvt 0 0.25\n";

QString shown(const QString &path)
{
    return QDir::toNativeSeparators(path);
}
} // namespace

class tst_ImportDialog : public QObject, ImportHands
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        qRegisterMetaType<StaticMesh>("StaticMesh");
    }
    void init() { begin(); }

    void optionsAreStoredAtOnce()
    {
        const QVector<QPair<const char *, const SettingKey<bool> *>> options{
            {"cbSwapYZ", &Settings::ImportSwapYZ},
            {"cbGenNormals", &Settings::ImportGenNormals},
            {"cbFlipUV", &Settings::ImportFlipUV},
            {"cbFlipWindingOrder", &Settings::ImportFlipWindingOrder},
            {"cbCreateKMat", &Settings::ImportKMat},
            {"cbCopyTextures", &Settings::ImportTextures},
            {"cbRotatePitch", &Settings::ImportRotPitch}};
        {
            ImportDialog dialog(ImportDialog::StaticMeshMode);
            for (const auto &[name, key] : options) {
                auto *box = find<QCheckBox>(dialog, name);
                const bool before = key->value();
                QCOMPARE(box->isChecked(), before);
                QTest::keyClick(box, Qt::Key_Space);
                QCOMPARE(key->value(), !before);
            }
            auto *scale = find<FloatSpinBox>(dialog, "sbScale");
            scale->selectAll();
            QTest::keyClicks(scale, QStringLiteral("2,5\r"));
            QCOMPARE(Settings::ImportScale.value(), 2.5f);
            type(dialog, "txtT2Dir", m_source->path() + QLatin1Char('/'));
            QCOMPARE(Settings::OutputDir.value(), m_source->path());
        }
        Settings::ImportScale.setValue(-3.0f);
        const ImportDialog again(ImportDialog::SkinnedMeshMode);
        for (const auto &[name, key] : options)
            QCOMPARE(find<QCheckBox>(again, name)->isChecked(), key->value());
        QCOMPARE(find<FloatSpinBox>(again, "sbScale")->value(), 1e-6f);
    }

    void choosingTheModel()
    {
        ImportDialog dialog(ImportDialog::SkinnedMeshMode);
        dialog.show();
        QVERIFY(!find<QPushButton>(dialog, "btnImport")->isEnabled());
        const QString path = write(QStringLiteral("box.v2.obj"), corners);
        // All models first, then what was chosen last.
        const auto browsing = [](QString &shown, const QString &next, const Hand::Answer &answer) {
            return [&shown, next, answer](QDialog *files) {
                auto *filters = find<QComboBox>(*files, "fileTypeCombo");
                shown = filters->currentText();
                filters->setCurrentIndex(filters->findText(next, Qt::MatchStartsWith));
                answer(files);
            };
        };
        QString first, second;
        Hand hand({browsing(first, "Collada", Hand::file(path)), browsing(second, "All (*", Hand::reject)});
        click(dialog, "btnModelBrowse");
        QCOMPARE(hand.seen, QStringList(QStringLiteral("Import Model to Skinned Mesh")));
        QVERIFY(first.contains("*.glb") && first.contains("*.lwo") && first.contains("*.md5*"));
        click(dialog, "btnModelBrowse");
        QCOMPARE(second, QStringLiteral("Collada (*.dae)"));
        QVERIFY(Settings::ImportFilter.value().startsWith("Collada"));
        QCOMPARE(Settings::ImportPath.value(), m_source->path());
        QCOMPARE(find<QLineEdit>(dialog, "txtKMatPath")->text(), QStringLiteral("materials/mat_box.v2.kmat"));
        QVERIFY(find<QPushButton>(dialog, "btnImport")->isEnabled());

        // A typed model takes its material file along, until that was chosen.
        type(dialog, "txtModelPath", QStringLiteral("/x/crate.fbx"));
        QCOMPARE(find<QLineEdit>(dialog, "txtKMatPath")->text(), QStringLiteral("materials/mat_crate.kmat"));
        type(dialog, "txtKMatPath", QStringLiteral("mine"));
        QCOMPARE(find<QLineEdit>(dialog, "txtKMatPath")->text(), QStringLiteral("mine.kmat"));
        type(dialog, "txtModelPath", QStringLiteral("/x/barrel.fbx"));
        QCOMPARE(find<QLineEdit>(dialog, "txtKMatPath")->text(), QStringLiteral("mine.kmat"));
    }

    void pathsStayInTheModFolder()
    {
        ImportDialog dialog(ImportDialog::StaticMeshMode);
        dialog.show();
        dialog.setModelPath(QStringLiteral("/x/crate.fbx"));
        const QString refusal = QStringLiteral("kmat Path Error|Path must be relative to Turok 2 Folder");
        for (const char *edit : {"txtKMatPath", "txtTexPath"}) {
            const QString before = find<QLineEdit>(dialog, edit)->text();
            Hand hand({Hand::press(QMessageBox::Ok)});
            type(dialog, edit, QStringLiteral("../a.kmat"));
            QCOMPARE(hand.seen, QStringList(refusal));
            QCOMPARE(find<QLineEdit>(dialog, edit)->text(), before);
            // Whole or in the system's own way: it is shown as models and material files have it.
            for (const auto &[typed, shownAs] : {std::pair{m_mod->path("sub/a.kmat"), "sub/a.kmat"},
                                                 {shown("other/a.kmat"), "other/a.kmat"}}) {
                type(dialog, edit, typed);
                QCOMPARE(find<QLineEdit>(dialog, edit)->text(), QString(shownAs));
            }
        }
        // Nor does a model name a file that its text cannot; a name of its own is proposed for such a model.
        {
            Hand hand({Hand::press(QMessageBox::Ok)});
            const QString before = find<QLineEdit>(dialog, "txtKMatPath")->text();
            QApplication::clipboard()->setText(QString::fromUtf8("materials/кот.kmat"));
            auto *line = find<QLineEdit>(dialog, "txtKMatPath");
            line->setFocus();
            line->selectAll();
            QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
            QTest::keyClick(line, Qt::Key_Tab);
            QVERIFY(hand.seen.value(0).contains(QString::fromUtf8("'materials/кот.kmat': it holds")));
            QCOMPARE(find<QLineEdit>(dialog, "txtKMatPath")->text(), before);
        }
        // Escape gives up what is typed before it closes the dialog.
        for (const char *edit : {"txtModelPath", "txtT2Dir", "txtKMatPath", "txtTexPath"}) {
            auto *line = find<QLineEdit>(dialog, edit);
            const QString before = line->text();
            line->setFocus();
            QTest::keyClicks(line, QStringLiteral("zz"));
            QVERIFY(line->text() != before);
            QTest::keyClick(line, Qt::Key_Escape);
            QVERIFY(dialog.isVisible() && line->text() == before);
        }
        QTest::keyClick(find<QLineEdit>(dialog, "txtTexPath"), Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        dialog.show();
        QStringList proposed;
        for (const char *model : {"Größe",
                                  "Gro\xcc\x88\xc3\x9f"
                                  "e",
                                  "кот", "пёс", "Кот é2"})
            proposed << defaultKMatPath(QString::fromUtf8(model) + QLatin1String(".obj"));
        QCOMPARE(proposed[0], QString::fromUtf8("materials/mat_Größe.kmat"));
        QCOMPARE(proposed[1], proposed[0]);
        QCOMPARE(proposed[2], QString("materials/mat_9e7f48.kmat"));
        QVERIFY(proposed[3] != proposed[2] && proposed[4].startsWith(QString("materials/mat_e2_")));

        QStringList titles;
        dialog.setFolderChooser([&titles, this](QWidget *, const QString &title, const QString &) {
            titles += title;
            return m_mod->path(QStringLiteral("textures"));
        });
        click(dialog, "btnTextureDirBrowse");
        QCOMPARE(find<QLineEdit>(dialog, "txtTexPath")->text(), QStringLiteral("textures"));
        // That there is such a file is asked about when it would be replaced.
        m_mod->put(QStringLiteral("materials/new.kmat"), "");
        Hand hand({Hand::file(m_mod->path(QStringLiteral("materials/new")))});
        find<QLineEdit>(dialog, "txtKMatPath")->setText(QString());
        click(dialog, "btnkmatPathBrowse");
        QCOMPARE(hand.seen, QStringList(QStringLiteral("Save .kmat")));
        QVERIFY(find<QLineEdit>(dialog, "txtKMatPath")->text().endsWith(QLatin1String("new.kmat")));
        click(dialog, "btnT2DirBrowse");
        QCOMPARE(titles, QStringList({QString("Texture Output Folder"), QString("Turok 2 Output Folder")}));
        QCOMPARE(Settings::OutputDir.value(), m_mod->path(QString("textures")));
    }

    void outputFoldersAreChecked()
    {
        ImportDialog dialog(ImportDialog::StaticMeshMode);
        dialog.show();
        dialog.setModelPath(writeTextured());
        QSignalSpy imported(&dialog, &ImportDialog::staticMeshImported);
        const auto refused = [&dialog] {
            Hand hand({Hand::press(QMessageBox::Ok)});
            click(dialog, "btnImport");
            return hand.seen.value(0);
        };
        // The folder is asked for even when nothing is to be written to it.
        type(dialog, "txtT2Dir", QString());
        QCOMPARE(refused(), QStringLiteral("Output Folder Error|Turok 2 Folder '' doesn't exist."));

        type(dialog, "txtT2Dir", m_mod->path());
        type(dialog, "txtKMatPath", QStringLiteral("none/m.kmat"));
        type(dialog, "txtTexPath", QStringLiteral("nowhere"));
        click(dialog, "btnCancel");
        dialog.show();
        find<QCheckBox>(dialog, "cbCreateKMat")->click();
        find<QCheckBox>(dialog, "cbCopyTextures")->click();
        QCOMPARE(refused(), QStringLiteral("Output Folder Error|"
                                           "Turok 2 Folder + kmat Path '%1' doesn't exist.\n"
                                           "Turok 2 Folder + Texture Folder '%2' doesn't exist.")
                                .arg(shown(m_mod->path("none")), shown(m_mod->path("nowhere"))));
        QCOMPARE(page(dialog), QStringLiteral("pageOptions"));
        QCOMPARE(imported.count(), 0);
    }

    void outcomes_data()
    {
        QTest::addColumn<bool>("changed"); ///< turned and scaled, with textures and a material file
        QTest::addColumn<bool>("failing");
        QTest::addColumn<QString>("outcome");
        QTest::newRow("the model as it is") << false << false << QString();
        QTest::newRow("everything") << true << false
                                    << QStringLiteral("Successfully copied textures\n"
                                                      "Successfully created .kmat file\n");
        QTest::newRow("no folder to write to") << true << true
                                               << QStringLiteral("Failed on copying textures\n"
                                                                 "Failed on creating .kmat file\n");
    }

    void outcomes()
    {
        QFETCH(bool, changed);
        QFETCH(bool, failing);
        QFETCH(QString, outcome);
        for (const auto *key : {&Settings::ImportTextures, &Settings::ImportKMat, &Settings::ImportRotPitch})
            key->setValue(changed);
        Settings::ImportScale.setValue(changed ? 2.5f : 1.0f);
        for (const char *name : {"materials", "textures"}) {
            if (!failing)
                break;
            // A folder in which nobody can make a file, not even the administrator.
            QVERIFY(QDir(m_mod->path()).rmdir(QLatin1String(name)));
            if (!SpecialFiles::link(QStringLiteral("/proc/self"), m_mod->path(QLatin1String(name))))
                QSKIP("needs a folder in which nobody can make a file");
        }
        const QString path = writeTextured();
        SkinnedMesh skinned;
        StaticMesh rigid;
        for (const auto mode : {ImportDialog::SkinnedMeshMode, ImportDialog::StaticMeshMode}) {
            ImportDialog dialog(mode);
            dialog.setVersions(11, 12);
            dialog.show();
            dialog.setModelPath(path);
            QString name;
            connect(&dialog, &ImportDialog::skinnedMeshImported, this,
                    [&](const SkinnedMesh &mesh, const AnimFile &anim, const QString &from) {
                        skinned = mesh;
                        name = from;
                        QCOMPARE(anim.version, 12);
                        QVERIFY(anim.blocks.empty());
                    });
            connect(&dialog, &ImportDialog::staticMeshImported, this,
                    [&](const StaticMesh &mesh, const QString &from) {
                        rigid = mesh;
                        name = from;
                    });
            click(dialog, "btnImport");
            QTRY_COMPARE_WITH_TIMEOUT(page(dialog), QStringLiteral("pageSuccess"), 20000);
            const QString kind = mode == ImportDialog::SkinnedMeshMode ? QStringLiteral("Skinned Mesh")
                                                                       : QStringLiteral("Static Mesh");
            QCOMPARE(find<QLabel>(dialog, "lblSuccess")->text(),
                     QStringLiteral("Successfully imported '%1' to %2\n").arg(shown(path), kind) + outcome);
            QCOMPARE(name, QStringLiteral("box.v2"));
            auto *list = find<QListWidget>(dialog, "listSuccess");
            QVERIFY(list->count() > 0);
            click(dialog, "btnSuccessCopy");
            QCOMPARE(QApplication::clipboard()->text().count(QLatin1Char('\n')), list->count() - 1);
            click(dialog, "btnSuccess");
            QCOMPARE(dialog.result(), int(QDialog::Accepted));
        }
        const auto contains = [](const auto &vertices, const QVector3D &position) {
            return std::any_of(vertices.begin(), vertices.end(), [&position](const auto &vertex) {
                return (vertex.position - position).length() < 1e-4f;
            });
        };
        // Where the corner at (0, 4, 0) goes.
        const QVector3D skinnedCorner = changed ? QVector3D(0, 0, 10) : QVector3D(0, 4, 0);
        const QVector3D rigidCorner = changed ? QVector3D(0, 0, -10) : QVector3D(0, 4, 0);
        QVERIFY(contains(skinned.vertices, skinnedCorner) && contains(rigid.vertices, rigidCorner));
        QCOMPARE(skinned.version, 11);
        QCOMPARE(rigid.version, 11);
        // The box is one around the vertices for the one, the turned corners for the other.
        QCOMPARE(skinned.bbMax.z(), skinnedCorner.z());
        QCOMPARE(rigid.bbMax.z(), rigidCorner.z());
        if (changed && !failing) {
            MaterialTable table;
            QCOMPARE(readKMat(m_mod->path(QString("materials/mat_box.v2.kmat")), table), QString());
            QCOMPARE(table, (MaterialTable{{QString("surf_0"), QString("textures/steel.png")}}));
            QCOMPARE(TestSupport::readFile(m_mod->path(QString("textures/steel.png"))),
                     QByteArray("picture"));
        }
    }

    void nothingIsReplacedUnasked()
    {
        Settings::ImportTextures.setValue(true);
        Settings::ImportKMat.setValue(true);
        const QString model = writeTextured();
        const QByteArray glow = "material glow {\n}\n";
        const QString texture = m_mod->put(QString("textures/steel.png"), "mine");
        const QString kmat = m_mod->put(QString("materials/mat_box.v2.kmat"), glow);
        ImportDialog dialog(ImportDialog::StaticMeshMode);
        dialog.show();
        dialog.setModelPath(model);
        QString material;
        int imported = 0;
        connect(&dialog, &ImportDialog::staticMeshImported, this, [&](const StaticMesh &mesh) {
            material = mesh.surfaces.at(0).materialPath;
            ++imported;
        });
        const auto answer = [&](const Hand::Answer &given, const char *endsOn) {
            Hand hand({given});
            click(dialog, "btnImport");
            QTRY_COMPARE_WITH_TIMEOUT(page(dialog), QString(endsOn), 20000);
            QCOMPARE(hand.seen,
                     QStringList(QStringLiteral("Import model to Static Mesh|These files exist already. "
                                                "Replace them?\n\n%1\n%2")
                                     .arg(shown(kmat), shown(texture))));
            find<QStackedWidget>(dialog, "stackPages")->setCurrentIndex(0);
        };
        // Enter and Escape say no, and lead back to the choices.
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape})
            answer([key](QDialog *box) { QTest::keyClick(box, key); }, "pageOptions");
        QCOMPARE(imported, 0);
        QCOMPARE(TestSupport::readFile(kmat), glow);
        QCOMPARE(TestSupport::readFile(texture), QByteArray("mine"));

        answer(
            [](QDialog *box) {
                for (auto *button : box->findChildren<QPushButton *>()) {
                    if (button->text() == QLatin1String("Use &Free Names"))
                        QTest::mouseClick(button, Qt::LeftButton);
                }
            },
            "pageSuccess");
        QCOMPARE(material, QString("materials/mat_box.v2_2/surf_0"));
        QVERIFY(TestSupport::readFile(m_mod->path(QString("materials/mat_box.v2_2.kmat")))
                    .contains("steel_2.png"));
        QCOMPARE(TestSupport::readFile(m_mod->path(QString("textures/steel_2.png"))), QByteArray("picture"));
        QCOMPARE(TestSupport::readFile(kmat), glow);

        // The other materials stay unless that is taken back.
        for (const bool keeps : {true, false}) {
            answer(
                [keeps](QDialog *box) {
                    if (!keeps)
                        static_cast<QMessageBox *>(box)->checkBox()->click();
                    Hand::press(QMessageBox::Yes)(box);
                },
                "pageSuccess");
            QCOMPARE(material, QString("materials/mat_box.v2/surf_0"));
            QCOMPARE(TestSupport::readFile(kmat).startsWith(glow + "material surf_0 {"), keeps);
            QCOMPARE(TestSupport::readFile(texture), QByteArray("picture"));
            m_mod->put(QString("textures/steel.png"), "mine");
        }
    }

    void enterImports()
    {
        ImportDialog dialog(ImportDialog::StaticMeshMode);
        dialog.show();
        dialog.setModelPath(write(QStringLiteral("b.obj"), corners));
        {
            // Not after a path that is refused; there is nothing to import without one.
            Hand hand({Hand::press(QMessageBox::Ok)});
            type(dialog, "txtTexPath", QStringLiteral("../a"), Qt::Key_Return);
            QCOMPARE(hand.seen.size(), 1);
            type(dialog, "txtModelPath", QString(), Qt::Key_Return);
            QCOMPARE(page(dialog), QStringLiteral("pageOptions"));
        }
        type(dialog, "txtModelPath", write(QStringLiteral("a.obj"), corners + "f 1/1 2/1 3/1\n"),
             Qt::Key_Return);
        QCOMPARE(page(dialog), QStringLiteral("pageProgress"));
        QTRY_COMPARE_WITH_TIMEOUT(page(dialog), QStringLiteral("pageSuccess"), 20000);
    }

    void errorsLeadBack()
    {
        ImportDialog dialog(ImportDialog::StaticMeshMode);
        dialog.show();
        const QString broken = write(QStringLiteral("broken.obj"), "v");
        dialog.setModelPath(broken);
        QSignalSpy imported(&dialog, &ImportDialog::staticMeshImported);
        click(dialog, "btnImport");
        QTRY_COMPARE_WITH_TIMEOUT(page(dialog), QString("pageError"), 20000);
        QCOMPARE(find<QLabel>(dialog, "lblError")->text(),
                 QString("Error importing '%1'").arg(shown(broken)));
        auto *list = find<QListWidget>(dialog, "listError");
        QCOMPARE(list->count(), 1);
        QCOMPARE(list->item(0)->data(Qt::UserRole).toInt(), int(LogSeverity::Error));
        QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), list->item(0)->text());
        QCOMPARE(imported.count(), 0);

        click(dialog, "btnErrorBack");
        QCOMPARE(page(dialog), QStringLiteral("pageOptions"));
        dialog.setModelPath(write(QStringLiteral("good.obj"), corners + "f 1/1 2/1 3/1\n"));
        click(dialog, "btnImport");
        QTRY_COMPARE_WITH_TIMEOUT(page(dialog), QStringLiteral("pageSuccess"), 20000);
        QCOMPARE(imported.count(), 1);
        for (int row = 0; row < find<QListWidget>(dialog, "listSuccess")->count(); ++row)
            QVERIFY(!find<QListWidget>(dialog, "listSuccess")->item(row)->text().contains(broken));
        // The model is in its tab by now: leaving by Escape is no refusal.
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void givingUp()
    {
        const QByteArray worker = qgetenv("KORVANE_IMPORT_WORKER");
        qputenv("KORVANE_IMPORT_WORKER", KORVANE_IDLE);
        ImportDialog dialog(ImportDialog::StaticMeshMode);
        qputenv("KORVANE_IMPORT_WORKER", worker);
        dialog.show();
        dialog.setModelPath(write(QStringLiteral("a.obj"), corners));
        const auto start = [&] {
            click(dialog, "btnImport");
            QCOMPARE(page(dialog), QStringLiteral("pageProgress"));
            auto *elapsed = find<QLabel>(dialog, "lblElapsed");
            const QString first = elapsed->text();
            QTRY_VERIFY(elapsed->text() != first);
            QVERIFY(elapsed->text().endsWith(
                QStringLiteral(" s of at most %1 s").arg(Settings::ImportTimeLimit.value())));
        };
        const auto end = [&] {
            QTRY_COMPARE(page(dialog), QStringLiteral("pageError"));
            QVERIFY(dialog.isVisible());
            click(dialog, "btnErrorBack");
        };
        start();
        click(dialog, "btnStop");
        end();
        start();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        end();
        // The end that the options set, of which the message tells.
        Settings::ImportTimeLimit.setValue(1);
        start();
        end();
        QVERIFY(find<QListWidget>(dialog, "listError")
                    ->item(0)
                    ->text()
                    .endsWith(
                        QString::fromUtf8("It took longer than 1 s. Edit ▸ Options… sets this time limit.")));
    }

    void droppedFilesAreKnownByTheirNames()
    {
        for (const char *name : {"a.obj", "A.FBX", "a.b.gltf", "a.md5mesh"})
            QVERIFY2(isImportable(QLatin1String(name)), name);
        for (const char *name : {"a.skinnedmesh", "a.png", "a", "obj", "a.kmat"})
            QVERIFY2(!isImportable(QLatin1String(name)), name);
    }

private:
    static void type(QWidget &dialog, const char *edit, const QString &text, Qt::Key end = Qt::Key_Tab)
    {
        auto *line = find<QLineEdit>(dialog, edit);
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        line->setFocus();
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, text);
        QTest::keyClick(line, end);
    }
    QString write(const QString &name, const QByteArray &bytes) { return m_source->put(name, bytes); }
    QString writeTextured()
    {
        write(QStringLiteral("m.mtl"), "newmtl a\nmap_Kd steel.jpg\n");
        write(QStringLiteral("steel.png"), "picture");
        return write(QStringLiteral("box.v2.obj"), "mtllib m.mtl\nusemtl a\n" + corners + "f 1/1 2/1 3/1\n");
    }
};

QTEST_MAIN(tst_ImportDialog)
#include "tst_importdialog.moc"
