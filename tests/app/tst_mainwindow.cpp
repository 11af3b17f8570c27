// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DocumentKind.h"
#include "Find.h"
#include "Hand.h"
#include "KVOpenGLWidget.h"
#include "KVTreeView.h"
#include "MainWindow.h"
#include "Playback.h"
#include "Records.h"
#include "TestSupport.h"

#include <QAction>
#include <QComboBox>
#include <QDirIterator>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QSplitter>
#include <QStatusBar>
#include <QSurfaceFormat>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>

#include <sys/resource.h>

#include <csignal>

class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void firstStartAsksForTheFolders();
    void editUndoSave();
    void typingIsSavedToo();
    void aModifiedDocumentGoesWithTheWindow();
    void aFailedOpenKeepsTheDocument();
    void aFailedSaveKeepsFileAndMark();
    void theExplorerAsksAboutUnsavedChanges();
    void theAnimationFollowsTheMesh();
    void playingShowsTheFrame();
    void viewControlsAreStored();
    void everyRealModelOpensAndPlays();
    void theLayoutComesBack();

private:
    template <typename Model>
    QString write(const QString &name, const Model &model)
    {
        const QString path = m_files->filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        return model.write(path) ? QString() : path;
    }
    void useFolders(const QString &game, const QString &mod)
    {
        Settings::GamePath.setValue(game);
        Settings::OutputDir.setValue(mod);
    }
    static void select(MainWindow &window, const char *tree, const RecordRef &record)
    {
        find<KVTreeView>(window, tree)->selectRecords({record}, record);
    }
    static void type(QSpinBox *box, const QString &text)
    {
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, text);
        QTest::keyClick(box, Qt::Key_Return);
    }
    static QString pageTitle(MainWindow &window)
    {
        return find<QWidget>(window, "pagesSkinnedMesh")
            ->findChild<QLabel *>(QStringLiteral("lblPageTitle"))
            ->text();
    }
    static QStringList errors(MainWindow &window)
    {
        QStringList texts;
        const auto *list = find<QListWidget>(window, "listConsole");
        for (int i = 0; i < list->count(); ++i)
            texts.append(list->item(i)->text());
        return texts;
    }

    QTemporaryDir m_home;
    std::unique_ptr<QTemporaryDir> m_files;
};

void tst_MainWindow::init()
{
    TestSupport::useSettingsHome(m_home);
    m_files = std::make_unique<QTemporaryDir>();
    useFolders(m_files->path(), m_files->path());
}

void tst_MainWindow::firstStartAsksForTheFolders()
{
    QSettings().clear();
    MainWindow window;
    window.show();
    Hand hand({Hand::press(QMessageBox::Ok), Hand::reject});
    QTRY_COMPARE(hand.seen,
                 QStringList({"Setup Folder Paths|Please setup your folder paths before using Korvane. "
                              "Thank you!",
                              "Options"}));
    for (const char *key : {"HideMeshData", "HideAnimData", "SkinnedMeshQuickSelect", "AnimationQuickSelect",
                            "StaticMeshQuickSelect", "AnimationSyncSkin", "AnimationAutoPlay"})
        QCOMPARE(QSettings().value(key), QVariant(true));
    for (const char *key : {"BGColor", "ShowGround", "ShowAxisGizmo", "BackCull", "MouseSpeed", "Brightness",
                            "SurfSelectType", "GamePath", "OutputDir", "MainWindowSize"})
        QVERIFY2(!QSettings().contains(key), key);

    window.showMaximized();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.close();
    QCOMPARE(QSettings().value("MainWindowSize").toSize(), QSize(1440, 900));
}

void tst_MainWindow::editUndoSave()
{
    const QString path = write(QStringLiteral("man.skinnedmesh"), triangleMan());
    const QByteArray before = TestSupport::readFile(path);
    MainWindow window;
    window.show();
    window.openFiles({path});
    QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh"));

    select(window, "treeSkinnedMesh", {RecordKind::Bone, {1, 0, 0}});
    QCOMPARE(pageTitle(window), QStringLiteral("Bone 1 Properties"));
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto *parent = find<QSpinBox>(window, "sbNodeParentNode");
    QCOMPARE(parent->value(), 255);
    type(parent, QStringLiteral("0"));
    QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh * "));
    auto *undo = find<QAction>(window, "actionUndo");
    QCOMPARE(undo->text(), QStringLiteral("&Undo Parent Bone Index"));

    // Ctrl+Z in the editor that was just used takes the edit back, not the keys.
    QTest::keyClick(parent, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(parent->value(), 255);
    QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh"));
    select(window, "treeSkinnedMesh", {RecordKind::SkinnedMesh, {}});
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(parent->value(), 0);
    QCOMPARE(pageTitle(window), QStringLiteral("Bone 1 Properties"));

    QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh"));
    QVERIFY(TestSupport::readFile(path) != before);
    undo->trigger();
    QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(TestSupport::readFile(path), before);
}

void tst_MainWindow::typingIsSavedToo()
{
    const QString path = write(QStringLiteral("man.skinnedmesh"), triangleMan());
    MainWindow window;
    window.show();
    window.openFiles({path});
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto *minimum = find<QWidget>(window, "sbSMBBMinX");
    minimum->setFocus();
    auto *line = minimum->findChild<QLineEdit *>();
    line->selectAll();
    QTest::keyClicks(line, QStringLiteral("70.5"));
    QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
    SkinnedMesh saved;
    QVERIFY(!saved.read(path));
    QCOMPARE(saved.bbMin.x(), 70.5f);
    QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh"));
    QVERIFY(minimum->hasFocus());
}

void tst_MainWindow::aModifiedDocumentGoesWithTheWindow()
{
    StaticMesh rigid;
    rigid.surfaces.resize(1);
    MainWindow window;
    window.show();
    window.openFiles({write(QStringLiteral("man.skinnedmesh"), triangleMan()),
                      write(QStringLiteral("man.anim"), twoBlocks()),
                      write(QStringLiteral("box.staticmesh"), rigid)});
    select(window, "treeSkinnedMesh", {RecordKind::Bone, {1, 0, 0}});
    type(find<QSpinBox>(window, "sbNodeParentNode"), QStringLiteral("7"));
    find<QTabWidget>(window, "tabTrees")->setCurrentIndex(1);
    select(window, "treeAnim", {RecordKind::AnimBlock, {1, 0, 0}});
    type(find<QSpinBox>(window, "sbAnimLoopFrame"), QStringLiteral("7"));
    QVERIFY(find<QAction>(window, "actionUndo")->isEnabled());

    // What is typed and not ended, too.
    find<QTabWidget>(window, "tabWidget")->setCurrentIndex(1);
    select(window, "treeStaticMesh", {RecordKind::StaticSurface, {0, 0, 0}});
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto *material = find<QWidget>(window, "pagesStaticMesh")->findChild<QLineEdit *>("txtSurfaceMaterial");
    material->setFocus();
    QTest::keyClicks(material, QStringLiteral("typed"));
}

void tst_MainWindow::aFailedOpenKeepsTheDocument()
{
    const QString good = write(QStringLiteral("man.skinnedmesh"), triangleMan());
    // The name holds what a text's place holders look like.
    const QString bad = m_files->filePath(QStringLiteral("%1 cut.skinnedmesh"));
    QVERIFY(TestSupport::writeFile(bad, TestSupport::readFile(good).left(40)));
    const QString rigid = m_files->filePath(QStringLiteral("cut.staticmesh"));
    QVERIFY(TestSupport::writeFile(rigid, QByteArray(3, 'x')));
    MainWindow window;
    window.show();
    window.openFiles({good});
    Hand hand({Hand::press(QMessageBox::Ok)});
    window.openFiles({bad, rigid});
    // A static mesh that cannot be read is dropped without a box.
    QCOMPARE(hand.seen, QStringList("File error|Failed to open\n" + QDir::toNativeSeparators(bad)));
    QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh"));
    const QStringList lines = errors(window);
    QVERIFY(lines.filter("%1 cut.skinnedmesh").join(QString()).contains("reached end of file."));
    QVERIFY(!lines.filter("cut.staticmesh").isEmpty());
}

void tst_MainWindow::aFailedSaveKeepsFileAndMark()
{
    const QString path = write(QStringLiteral("folder/man.skinnedmesh"), triangleMan());
    MainWindow window;
    window.show();
    window.openFiles({path});
    select(window, "treeSkinnedMesh", {RecordKind::Bone, {1, 0, 0}});
    type(find<QSpinBox>(window, "sbNodeParentNode"), QStringLiteral("7"));

    const QByteArray before = TestSupport::readFile(path);
    const auto save = [&window] { find<QAction>(window, "actionSave")->trigger(); };
    const QString box = "File error|Failed to save\n" + QDir::toNativeSeparators(path);
    {
        // No byte more fits.
        rlimit full{};
        getrlimit(RLIMIT_FSIZE, &full);
        const rlimit none{16, full.rlim_max};
        std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &none);
        Hand hand({Hand::press(QMessageBox::Ok)});
        save();
        setrlimit(RLIMIT_FSIZE, &full);
        QCOMPARE(hand.seen, QStringList(box));
        QCOMPARE(TestSupport::readFile(path), before);
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh * "));
    }
    QVERIFY(QDir(m_files->filePath(QStringLiteral("folder"))).removeRecursively());
    Hand hand({Hand::press(QMessageBox::Ok)});
    save();
    QCOMPARE(hand.seen, QStringList(box));
    QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh * "));
}

void tst_MainWindow::theExplorerAsksAboutUnsavedChanges()
{
    const QString first = write(QStringLiteral("a.skinnedmesh"), triangleMan());
    const QString second = write(QStringLiteral("b.skinnedmesh"), triangleMan());
    Settings::SkinnedMeshExplorePath.setValue(m_files->path());
    MainWindow window;
    window.show();
    auto *tree = find<QTreeWidget>(window, "treeSkinnedMeshFolder");
    const auto pick = [tree](int row) { tree->setCurrentItem(tree->topLevelItem(row)); };
    pick(0);
    QTRY_COMPARE(window.windowTitle(), QStringLiteral("Korvane - a.skinnedmesh"));
    select(window, "treeSkinnedMesh", {RecordKind::Bone, {1, 0, 0}});
    type(find<QSpinBox>(window, "sbNodeParentNode"), QStringLiteral("7"));

    const QString question = "Unsaved changes|Would you like to save the Skinned Mesh?\n\n" + first;
    {
        Hand hand({Hand::press(QMessageBox::Cancel)});
        pick(1);
        QTRY_COMPARE(hand.seen, QStringList(question));
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - a.skinnedmesh * "));
        QCOMPARE(tree->currentItem(), tree->topLevelItem(0));
    }
    Hand hand({Hand::press(QMessageBox::Yes)});
    pick(1);
    QTRY_COMPARE(window.windowTitle(), QStringLiteral("Korvane - b.skinnedmesh"));
    QCOMPARE(hand.seen, QStringList(question));
    QVERIFY(TestSupport::readFile(first) != TestSupport::readFile(second));
}

void tst_MainWindow::theAnimationFollowsTheMesh()
{
    const QString mesh = write(QStringLiteral("models/man/man.skinnedmesh"), triangleMan());
    const QString anim = write(QStringLiteral("anims/man/man.anim"), twoBlocks());
    write(QStringLiteral("anims/other/other.anim"), twoBlocks());
    Settings::SkinnedMeshExplorePath.setValue(m_files->filePath(QStringLiteral("models")));
    Settings::AnimationExplorePath.setValue(m_files->filePath(QStringLiteral("anims")));
    MainWindow window;
    window.show();
    auto *tree = find<QTreeWidget>(window, "treeSkinnedMeshFolder");
    tree->setCurrentItem(tree->topLevelItem(0)->child(0));
    QTRY_COMPARE(find<KVTreeView>(window, "treeAnim")->topLevelItemCount(), 1);
    QCOMPARE(find<KVTreeView>(window, "treeAnim")->topLevelItem(0)->text(0), QStringLiteral("man.anim"));
    QCOMPARE(playback().playState, PlayState::Playing);
    QVERIFY(playback().anim && playback().mesh);
}

void tst_MainWindow::playingShowsTheFrame()
{
    MainWindow window;
    window.show();
    window.openFiles({write(QStringLiteral("man.skinnedmesh"), triangleMan()),
                      write(QStringLiteral("man.anim"), twoBlocks())});
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto *label = find<QLabel>(window, "lblAnimTrackFrames");
    auto *slider = find<QSlider>(window, "sliderAnimTrack");
    QCOMPARE(slider->maximum(), 10);
    QTRY_VERIFY(slider->value() > 0);

    find<QToolButton>(window, "btnAnimTrackStop")->click();
    // It may have played on to the very frame, and a slider that is not moved sets no time.
    slider->setValue(9);
    slider->setValue(4);
    QTRY_COMPARE(label->text(), QStringLiteral("Frame: 4 / 10"));
    QCOMPARE(playback().time, 0.4f);
    find<QToolButton>(window, "btnAnimTrackPose")->click();
    QTRY_COMPARE(label->text(), QStringLiteral("Initial Pose"));
    QCOMPARE(slider->value(), 0);

    // Another block starts anew; looking at the same block again does not.
    select(window, "treeAnim", {RecordKind::AnimBlock, {1, 0, 0}});
    QCOMPARE(playback().blockIndex, 1);
    QCOMPARE(playback().playState, PlayState::Playing);
    find<QToolButton>(window, "btnAnimTrackStop")->click();
    auto *loop = find<QSpinBox>(window, "sbAnimLoopFrame");
    find<QTabWidget>(window, "tabTrees")->setCurrentIndex(1);
    type(loop, QStringLiteral("3"));
    QCOMPARE(playback().playState, PlayState::Paused);
}

void tst_MainWindow::viewControlsAreStored()
{
    {
        MainWindow window;
        window.show();
        for (const char *action : {"actionGround", "actionTransGizmo", "actionCullBack"})
            find<QAction>(window, action)->trigger();
        const auto bars = window.findChildren<QComboBox *>(QStringLiteral("cbSurfSelect"));
        QCOMPARE(bars.size(), 2);
        bars.at(0)->setFocus();
        QTest::keyClick(bars.at(0), Qt::Key_End);
        QCOMPARE(bars.at(1)->currentIndex(), 4);
        const auto speeds = window.findChildren<QSlider *>(QStringLiteral("sliderMoveSpeed"));
        speeds.at(1)->setValue(250);
        QCOMPARE(speeds.at(0)->value(), 250);
        window.findChildren<QSlider *>(QStringLiteral("sliderBrightness")).at(0)->setValue(4);
    }
    QCOMPARE(Settings::MouseSpeed.value(), 2.5f);
    QCOMPARE(Settings::Brightness.value(), 2.0f);
    QCOMPARE(Settings::SurfSelectType.value(), 4);
    MainWindow window;
    for (const char *action : {"actionGround", "actionTransGizmo", "actionCullBack"})
        QVERIFY2(find<QAction>(window, action)->isChecked(), action);
    QCOMPARE(window.findChildren<QSlider *>(QStringLiteral("sliderMoveSpeed")).at(0)->value(), 250);
    QCOMPARE(window.findChildren<QSlider *>(QStringLiteral("sliderBrightness")).at(1)->value(), 4);
    QCOMPARE(window.findChildren<QComboBox *>(QStringLiteral("cbSurfSelect")).at(1)->currentIndex(), 4);
}

void tst_MainWindow::everyRealModelOpensAndPlays()
{
    SKIP_WITHOUT_SHARED("gamedata");
    // Copies, since they are saved.
    const QString original = TestSupport::shared(QStringLiteral("gamedata"));
    const QString root = m_files->path();
    for (QDirIterator it(original, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        const QString copy = root + it.next().mid(original.size());
        QDir().mkpath(QFileInfo(copy).path());
        QVERIFY(QFile::copy(it.filePath(), copy));
    }
    useFolders(root + "/game", root + "/mod");
    Settings::BackCull.setValue(true);
    Settings::HideMeshData.setValue(false);
    Settings::HideAnimData.setValue(false);
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    int opened = 0;
    for (QDirIterator it(root, {"*.skinnedmesh", "*.staticmesh"}, QDir::Files, QDirIterator::Subdirectories);
         it.hasNext(); ++opened) {
        const QString path = it.next();
        window.openFiles({path});
        QCOMPARE(window.windowTitle(), "Korvane - " + QFileInfo(path).fileName());
        auto *view = window.findChild<KVOpenGLWidget *>(
            path.endsWith(QLatin1String("staticmesh")) ? "viewStatic" : "viewSkinned");
        if (path.endsWith(QLatin1String("skinnedmesh"))) {
            const QString name = QFileInfo(path).completeBaseName();
            window.openFiles({QDir(path + "/../../../anims/" + name).absoluteFilePath(name + ".anim")});
            const int blocks = int(playback().anim->blocks.size());
            for (int block = 0; block < blocks; ++block) {
                select(window, "treeAnim", {RecordKind::AnimBlock, {block, 0, 0}});
                playback().time = 0.1f;
                view->grabFramebuffer();
                QTRY_VERIFY(find<QLabel>(window, "lblAnimTrackFrames")->text().startsWith("Frame: "));
            }
        }
        view->grabFramebuffer();

        // Looking at every record changes nothing, and the files are saved as they were.
        QStringList trees("treeStaticMesh");
        if (path.endsWith(QLatin1String("skinnedmesh")))
            trees = QStringList({"treeSkinnedMesh", "treeAnim"});
        for (const QString &name : qAsConst(trees)) {
            auto *tree = find<KVTreeView>(window, qPrintable(name));
            int shown = 0;
            for (QTreeWidgetItemIterator item(tree); *item; ++item) {
                // Each of the few, and some of the very many keys and vertices.
                if ((*item)->childCount() > 0 || shown % 7 == 0)
                    tree->setCurrentItem(*item, 0, QItemSelectionModel::ClearAndSelect);
                ++shown;
            }
            find<QTabWidget>(window, "tabTrees")->setCurrentIndex(name == QLatin1String("treeAnim") ? 1 : 0);
            QVERIFY(!find<QAction>(window, "actionUndo")->isEnabled());
            const QString file =
                name == QLatin1String("treeAnim")
                    ? QString(path).replace("/models/", "/anims/").replace(".skinnedmesh", ".anim")
                    : path;
            const QByteArray before = TestSupport::readFile(file);
            QVERIFY(QFile::remove(file));
            find<QAction>(window, "actionSave")->trigger();
            QVERIFY2(TestSupport::readFile(file) == before, qPrintable(file));
        }
        find<QTabWidget>(window, "tabTrees")->setCurrentIndex(0);
    }
    QCOMPARE(opened, 10);
    // One image of the barrel lies in neither folder.
    QCOMPARE(errors(window), QStringList("[GLMesh From Static Mesh] Failed to load texture '" + root +
                                         "/mod/textures/barrel_metal.png' using blank texture instead"));
}

void tst_MainWindow::theLayoutComesBack()
{
    const auto sizes = [](MainWindow &window) { return find<QSplitter>(window, "splitterSkinned")->sizes(); };
    QList<int> stored;
    {
        MainWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        find<QSplitter>(window, "splitterSkinned")->setSizes({300, 700, 440});
        find<QDockWidget>(window, "dockConsole")->hide();
        QVERIFY(!find<QDockWidget>(window, "dockServers")->isVisible());
        find<QAction>(window, "actionQueryServers")->trigger();
        stored = sizes(window);
        window.close();
    }
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(sizes(window), stored);
    QVERIFY(!find<QDockWidget>(window, "dockConsole")->isVisible());
    QVERIFY(find<QDockWidget>(window, "dockServers")->isVisible());
}

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setProfile(QSurfaceFormat::CoreProfile);
    QSurfaceFormat::setDefaultFormat(format);
    tst_MainWindow test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_mainwindow.moc"
