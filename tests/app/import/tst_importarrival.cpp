// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ChoiceBox.h"
#include "FloatSpinBox.h"
#include "ImportDialog.h"
#include "ImportHands.h"
#include "Language.h"
#include "SmallGltf.h"

Q_DECLARE_METATYPE(AnimFile)
Q_DECLARE_METATYPE(SkinnedMesh)

/// The choice how a model arrives, and what the dialog tells of a file before it is imported.
class tst_ImportArrival : public QObject, ImportHands
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        qRegisterMetaType<SkinnedMesh>("SkinnedMesh");
        qRegisterMetaType<AnimFile>("AnimFile");
    }
    void init() { begin(); }
    void cleanup() { Language::install(QStringLiteral("en")); }

    void theChoiceIsRemembered()
    {
        {
            ImportDialog dialog(ImportDialog::SkinnedMeshMode);
            dialog.show();
            QVERIFY(!Settings::ImportReady.exists());
            QCOMPARE(options(dialog), QStringLiteral("pageAsStored"));
            const QSize size = dialog.size();
            const QSize least = dialog.minimumSizeHint();
            QTest::keyClick(find<QRadioButton>(dialog, "rbReady"), Qt::Key_Space);
            QVERIFY(Settings::ImportReady.value());
            QCOMPARE(options(dialog), QStringLiteral("pageReady"));
            QCOMPARE(dialog.size(), size);
            QCOMPARE(dialog.minimumSizeHint(), least);
            // What is written is kept apart: all of it, unless somebody says otherwise.
            auto *kmat = find<QCheckBox>(dialog, "cbCreateKMat");
            QVERIFY(kmat->isChecked() && !Settings::ImportReadyKMat.exists());
            QTest::keyClick(kmat, Qt::Key_Space);
            QVERIFY(!Settings::ImportReadyKMat.value() && !Settings::ImportKMat.exists());
            QTest::keyClick(find<QCheckBox>(dialog, "cbReadyOwnRate"), Qt::Key_Space); // there is no file yet
            QCOMPARE(Settings::ImportReadyRate.value(), 30.0f);
            QTest::keyClick(find<QCheckBox>(dialog, "cbExtraBones"), Qt::Key_Space);
            QVERIFY(!Settings::ImportReadyExtraBones.exists());
        }
        ImportDialog dialog(ImportDialog::StaticMeshMode);
        dialog.show();
        QCOMPARE(options(dialog), QStringLiteral("pageReady"));
        QVERIFY(!find<QCheckBox>(dialog, "cbCreateKMat")->isChecked());
        QVERIFY(find<QCheckBox>(dialog, "cbCopyTextures")->isChecked());
        QVERIFY(find<QWidget>(dialog, "treeClips")->isHidden());
        // What is there stands together at the top.
        const auto *size = find<QLabel>(dialog, "lblReadySize");
        QVERIFY(size->height() < 4 * size->fontMetrics().height());
        QTest::keyClick(find<QRadioButton>(dialog, "rbAsStored"), Qt::Key_Space);
        QVERIFY(!Settings::ImportReady.value());
        QVERIFY(!find<QCheckBox>(dialog, "cbCopyTextures")->isChecked());
    }

    void aFileTellsWhatItHolds()
    {
        Settings::ImportReady.setValue(true);
        ImportDialog dialog(ImportDialog::SkinnedMeshMode);
        dialog.show();
        const auto *text = find<QTextEdit>(dialog, "txtContents");
        auto *tree = find<QTreeWidget>(dialog, "treeClips");
        QVERIFY(text->toPlainText().startsWith(QLatin1String("Choose a model")));
        QVERIFY(!find<QWidget>(dialog, "pageReady")->isEnabled());

        dialog.setModelPath(rig());
        QVERIFY(find<QWidget>(dialog, "barContents")->isVisible());
        QTRY_COMPARE_WITH_TIMEOUT(tree->topLevelItemCount(), 2, 20000);
        QVERIFY(!find<QWidget>(dialog, "barContents")->isVisible());
        QVERIFY2(text->toPlainText().contains(QLatin1String("2: turn <b>[3] (1.00 s), walk (0.50 s)")),
                 qPrintable(text->toPlainText()));
        QCOMPARE(find<FloatSpinBox>(dialog, "sbReadyScale")->value(), 10.0f);
        QVERIFY(find<QLabel>(dialog, "lblReadySize")
                    ->text()
                    .endsWith(QString::fromUtf8("× 200 units; a person is about 200 high")));
        QCOMPARE(tree->topLevelItem(0)->text(1), QStringLiteral("1.00 s"));
        // With the other axis up the height is another, and so is what makes that a person's, unless the
        // scale is somebody's own.
        auto *up = find<ChoiceBox>(dialog, "cbReadyUp");
        auto *scale = find<FloatSpinBox>(dialog, "sbReadyScale");
        const QString standing = text->toPlainText();
        QTest::keyClick(up, Qt::Key_Down);
        const float other = scale->value();
        QVERIFY(other != 10.0f && text->toPlainText() != standing);
        QTest::keyClick(up, Qt::Key_Up);
        QCOMPARE(scale->value(), 10.0f);
        QCOMPARE(text->toPlainText(), standing);
        QTest::keyClick(scale, Qt::Key_Up);
        const float own = scale->value();
        QTest::keyClick(up, Qt::Key_Down);
        QVERIFY(own != 10.0f);
        QCOMPARE(scale->value(), own);

        // One that cannot be read says so before it is imported, and takes the choices of the other along.
        auto *path = find<QLineEdit>(dialog, "txtModelPath");
        const QString broken = m_source->put(QStringLiteral("broken &lt;i&gt;.gltf"), "{");
        QApplication::setActiveWindow(&dialog);
        path->setFocus();
        path->selectAll();
        QTest::keyClicks(path, broken);
        QTest::keyClick(path, Qt::Key_Tab);
        QCOMPARE(tree->topLevelItemCount(), 0);
        QTRY_VERIFY_WITH_TIMEOUT(text->toPlainText().startsWith(QLatin1String("This file cannot be")), 20000);
        QVERIFY2(text->toPlainText().contains(broken), qPrintable(text->toPlainText()));
        QVERIFY(!find<QWidget>(dialog, "pageReady")->isEnabled());
    }

    void animationsAreChosenByKeys()
    {
        Settings::ImportReady.setValue(true);
        ImportDialog dialog(ImportDialog::SkinnedMeshMode);
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        dialog.setModelPath(rig());
        auto *tree = find<QTreeWidget>(dialog, "treeClips");
        QTRY_COMPARE_WITH_TIMEOUT(tree->topLevelItemCount(), 2, 20000);
        const auto marks = [tree] {
            QString text;
            for (int i = 0; i < tree->topLevelItemCount(); ++i)
                text +=
                    tree->topLevelItem(i)->checkState(0) == Qt::Checked ? QLatin1Char('x') : QLatin1Char('-');
            return text;
        };
        tree->setFocus();
        QTest::keyClick(tree, Qt::Key_Home);
        QTest::keyClick(tree, Qt::Key_Space);
        QCOMPARE(marks(), QStringLiteral("-x"));
        QTest::keyClick(tree, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(tree, Qt::Key_Space);
        QCOMPARE(marks(), QStringLiteral("xx"));
        click(dialog, "btnClipsNone");
        QCOMPARE(marks(), QStringLiteral("--"));
        QCOMPARE(imported(dialog).second.blocks.at(0).frameCount(), 1); // the rest pose alone

        click(dialog, "btnClipsAll");
        QCOMPARE(marks(), QStringLiteral("xx"));
        QTest::keyClick(tree, Qt::Key_Down);
        auto *loop = find<ChoiceBox>(dialog, "cbClipLoop");
        QTest::keyClick(loop, Qt::Key_Down);
        QTest::keyClick(tree, Qt::Key_Up);
        QTest::keyClick(tree, Qt::Key_Space);
        QCOMPARE(marks(), QStringLiteral("-x"));
        QCOMPARE(tree->topLevelItem(1)->text(2), QStringLiteral("Always"));
        QCOMPARE(tree->topLevelItem(0)->text(2), QStringLiteral("Where it closes"));
        QTest::keyClick(tree, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(loop, Qt::Key_End);
        QCOMPARE(tree->topLevelItem(0)->text(2), QStringLiteral("Never"));
        QTest::keyClick(loop, Qt::Key_Up);
        QCOMPARE(marks(), QStringLiteral("-x"));
        QTest::keyClick(find<QCheckBox>(dialog, "cbExtraBones"), Qt::Key_Space);
        QVERIFY(Settings::ImportReadyExtraBones.value());
        QTest::keyClick(find<QCheckBox>(dialog, "cbReadyOwnRate"), Qt::Key_Space);
        QCOMPARE(Settings::ImportReadyRate.value(), 0.0f);
        QTest::keyClick(find<QCheckBox>(dialog, "cbReadyOwnRate"), Qt::Key_Space);
        auto *rate = find<FloatSpinBox>(dialog, "sbReadyRate");
        rate->selectAll();
        QTest::keyClicks(rate, QStringLiteral("20\r"));
        QCOMPARE(Settings::ImportReadyRate.value(), 20.0f);
        const AnimFile anim = imported(dialog).second;
        QCOMPARE(anim.blocks.size(), size_t(1));
        QCOMPARE(anim.blocks[0].frameCount(), 11);
        QCOMPARE(anim.blocks[0].loopFrame, quint16(0));
        QVERIFY(m_names.animations.values().contains(QStringLiteral("walk")));
        QVERIFY(!find<QListWidget>(dialog, "listSuccess")
                     ->findItems("No extra bones are needed", Qt::MatchContains)
                     .isEmpty());
    }

    void anImportWaitsForTheProposedScale()
    {
        Settings::ImportReady.setValue(true);
        const QString model = rig();
        const QByteArray worker = qgetenv("KORVANE_IMPORT_WORKER");
        qputenv("KORVANE_IMPORT_WORKER", KORVANE_IDLE);
        ImportDialog dialog(ImportDialog::SkinnedMeshMode);
        dialog.show();
        dialog.setModelPath(model);
        qputenv("KORVANE_IMPORT_WORKER", worker);
        // Who does not want to wait is led back.
        for (const bool byKey : {true, false}) {
            click(dialog, "btnImport");
            QCOMPARE(page(dialog), QStringLiteral("pageProgress"));
            byKey ? QTest::keyClick(&dialog, Qt::Key_Escape) : click(dialog, "btnStop");
            QCOMPARE(page(dialog), QStringLiteral("pageOptions"));
            QVERIFY(dialog.isVisible());
        }
        ImportDialog quick(ImportDialog::SkinnedMeshMode);
        quick.show();
        quick.setModelPath(model);
        const SkinnedMesh mesh = imported(quick).first;
        QCOMPARE(mesh.bbMax.z() - mesh.bbMin.z(), 200.0f);
    }

    void onceMoreReadyForTheGame()
    {
        Settings::ImportKMat.setValue(true);
        ImportDialog dialog(ImportDialog::SkinnedMeshMode);
        dialog.show();
        dialog.setModelPath(rig());
        const SkinnedMesh stored = imported(dialog).first;
        auto *again = find<QPushButton>(dialog, "btnSuccessAgain");
        QVERIFY(again->isVisible());
        const QString kmat = m_mod->path(QStringLiteral("materials/mat_rig.kmat"));
        const QByteArray first = TestSupport::readFile(kmat);
        QVERIFY(!first.isEmpty());
        {
            // What this dialog has written itself it does not ask about.
            Hand hand({});
            const SkinnedMesh ready = imported(dialog, "btnSuccessAgain").first;
            QCOMPARE(hand.seen, QStringList());
            QVERIFY(ready.nodes.size() > 1 && ready.bbMax != stored.bbMax);
            QVERIFY(Settings::ImportReady.value() && !again->isVisible());
        }
        // But it does when somebody else was there meanwhile.
        QVERIFY(TestSupport::writeFile(kmat, "material mine {\n}\n"));
        find<QStackedWidget>(dialog, "stackPages")->setCurrentIndex(0);
        Hand hand({Hand::press(QMessageBox::No)});
        click(dialog, "btnImport");
        QTRY_COMPARE_WITH_TIMEOUT(page(dialog), QStringLiteral("pageOptions"), 20000);
        QCOMPARE(hand.seen.size(), 1);
        QCOMPARE(TestSupport::readFile(kmat), QByteArray("material mine {\n}\n"));
    }

    void onceMoreWhereItHelps_data()
    {
        QTest::addColumn<QByteArray>("model");
        QTest::addColumn<bool>("helps");
        const QByteArray corners = "v 0 0 0\nv 2 0 0\nv 0 4 0\n";
        QTest::newRow("one object") << corners + "o a\nf 1 2 3\n" << false;
        QTest::newRow("several") << corners + "o a\nf 1 2 3\no b\nf 3 2 1\n" << true;
    }

    void onceMoreWhereItHelps()
    {
        QFETCH(QByteArray, model);
        ImportDialog dialog(ImportDialog::StaticMeshMode);
        dialog.show();
        dialog.setModelPath(m_source->put(QStringLiteral("a.obj"), model));
        click(dialog, "btnImport");
        QTRY_COMPARE_WITH_TIMEOUT(page(dialog), QStringLiteral("pageSuccess"), 20000);
        const auto *text = find<QTextEdit>(dialog, "txtContents");
        QTRY_VERIFY_WITH_TIMEOUT(text->toPlainText().contains(QLatin1String("Objects")), 20000);
        QTEST(find<QPushButton>(dialog, "btnSuccessAgain")->isVisible(), "helps");
    }

    void itFitsASmallScreen()
    {
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        for (const char *language : {"en", "de"}) {
            Language::install(QLatin1String(language));
            for (const bool isReady : {false, true}) {
                Settings::ImportReady.setValue(isReady);
                ImportDialog dialog(ImportDialog::SkinnedMeshMode);
                dialog.show();
                dialog.setModelPath(rig());
                QTRY_COMPARE_WITH_TIMEOUT(find<QTreeWidget>(dialog, "treeClips")->topLevelItemCount(), 2,
                                          20000);
                QVERIFY(dialog.width() < screen.width() && dialog.height() < screen.height());
                const auto *scrolled = find<QScrollArea>(dialog, "scrollOptions");
                QCOMPARE(scrolled->horizontalScrollBar()->maximum(), 0);
                QCOMPARE(scrolled->verticalScrollBar()->maximum(), 0);
            }
        }
    }

private:
    static QString options(const QWidget &dialog)
    {
        return find<QStackedWidget>(dialog, "stackArrival")->currentWidget()->objectName();
    }

    /// Two animations, of the root and of the arm, and 20 units of height.
    QString rig()
    {
        return m_source->put(
            QStringLiteral("rig.gltf"),
            SmallGltf().file({{"turn <b>[3]", {{1, true, {{500, {0, 0, 0, 1}}, {1500, {1, 0, 0, 0}}}}}},
                              {"walk", {{2, false, {{0, {0, 0, 0, 0}}, {500, {0, 5, 0, 0}}}}}}}));
    }

    /// Presses the button and waits for what comes of it.
    QPair<SkinnedMesh, AnimFile> imported(ImportDialog &dialog, const char *button = "btnImport")
    {
        QPair<SkinnedMesh, AnimFile> result;
        const auto connection = connect(&dialog, &ImportDialog::skinnedMeshImported, this,
                                        [&](const SkinnedMesh &mesh, const AnimFile &anim) {
                                            result = {mesh, anim};
                                            m_names = ModelNames::of(mesh);
                                        });
        find<QStackedWidget>(dialog, "stackPages")
            ->setCurrentIndex(qstrcmp(button, "btnImport") == 0 ? 0 : 2);
        click(dialog, button);
        [&] { QTRY_COMPARE_WITH_TIMEOUT(page(dialog), QStringLiteral("pageSuccess"), 20000); }();
        disconnect(connection);
        return result;
    }

    ModelNames m_names;
};

QTEST_MAIN(tst_ImportArrival)
#include "tst_importarrival.moc"
