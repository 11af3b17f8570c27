// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Find.h"
#include "Hand.h"
#include "KVOpenGLWidget.h"
#include "KVTreeView.h"
#include "MainWindow.h"
#include "Playback.h"
#include "StaticMesh.h"
#include "TestSupport.h"

#include <QAction>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QSpinBox>
#include <QStatusBar>
#include <QToolTip>

#include <cmath>

/// What the View menu and its keys do to the viewports, and what clicks in these do to the trees.
class tst_ViewMenu : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void displayIsRemembered();
    void keysBelongToTheView();
    void clicksSelect();
    void selectionIsMarkedAndFramed();
    void cameraLooksFromSides();
    void thePaletteHasEachOnce();
    void picturesAreSaved();
    void picturesThatCannotBeSaved();

private:
    /// A window that shows the man with its skinned view in front, posed.
    std::unique_ptr<MainWindow> open(const QStringList &more = {});
    static void select(const MainWindow &window, const char *tree, const QVector<RecordRef> &records)
    {
        find<KVTreeView>(window, tree)->selectRecords(records, records.last());
    }
    static Hand::Answer pictureOf(int width, bool transparent)
    {
        return [width, transparent](QDialog *dialog) {
            auto *box = dialog->findChild<QSpinBox *>(QStringLiteral("sbPictureWidth"));
            box->setFocus();
            box->selectAll();
            QTest::keyClicks(box, QString::number(width));
            QTest::keyClick(box, Qt::Key_Tab);
            dialog->findChild<QCheckBox *>(QStringLiteral("cbTransparent"))->setChecked(transparent);
            dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
        };
    }
    static Hand::Answer fileName(const QString &path)
    {
        return [path](QDialog *dialog) {
            auto *line = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            line->setText(path);
            QTest::keyClick(line, Qt::Key_Return);
        };
    }

    std::unique_ptr<QTemporaryDir> m_files;
};

void tst_ViewMenu::init()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_files = std::make_unique<QTemporaryDir>();
    TestSupport::useSettingsHome(*m_files);
    Settings::GamePath.setValue(m_files->path());
    Settings::OutputDir.setValue(m_files->path());
    Settings::Updates.setValue(false);
    Settings::AnimationAutoPlay.setValue(false);
    Settings::HideMeshData.setValue(false);
    Settings::HideAnimData.setValue(false);
}

std::unique_ptr<MainWindow> tst_ViewMenu::open(const QStringList &more)
{
    const QString man = m_files->filePath(QStringLiteral("man.skinnedmesh"));
    const QString anim = m_files->filePath(QStringLiteral("man.anim"));
    SkinnedMesh mesh = triangleMan();
    mesh.surfaces.push_back({QStringLiteral("materials/m/_white"), {}});
    mesh.hotPoints.resize(2);
    mesh.hotPoints[1].origin = {0, 0, 150};
    AnimFile file = twoBlocks();
    file.blocks[0].nodes[1].initialPosition = {0, 0, 60};
    if (mesh.write(man) || file.write(anim))
        qFatal("cannot write");
    auto window = std::make_unique<MainWindow>();
    window->show();
    window->openFiles(QStringList{man, anim} + more);
    if (!QTest::qWaitForWindowExposed(window.get()))
        qFatal("no window");
    QApplication::setActiveWindow(window.get());
    auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
    view->setFocus();
    view->grabFramebuffer();
    return window;
}

void tst_ViewMenu::displayIsRemembered()
{
    {
        const auto window = open();
        auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
        QVERIFY(!view->findChild<QLabel *>(QStringLiteral("lblViewStatistics")));
        for (const char *name : {"actionShaded", "actionShadedWireframe", "actionSkeleton", "actionHotPoints",
                                 "actionStatistics", "actionOrbit", "actionFrameAll"}) {
            const auto *action = find<QAction>(*window, name);
            QVERIFY2(!action->toolTip().isEmpty() && !action->text().isEmpty(), name);
        }
        QVERIFY(find<QMenu>(*window, "menuView")
                    ->actions()
                    .contains(find<QAction>(*window, "actionSavePicture")));
        QTest::keyClick(view, Qt::Key_4);
        QTest::keyClick(view, Qt::Key_B);
        QTest::keyClick(view, Qt::Key_H);
        find<QAction>(*window, "actionStatistics")->trigger();
        find<QAction>(*window, "actionOrbit")->trigger();
        QVERIFY(view->findChild<QLabel *>(QStringLiteral("lblViewStatistics")));
    }
    QCOMPARE(Settings::Shading.value(), 1);
    const auto window = open();
    for (const char *name :
         {"actionWireframe", "actionSkeleton", "actionHotPoints", "actionStatistics", "actionOrbit"})
        QVERIFY2(find<QAction>(*window, name)->isChecked(), name);
    QVERIFY(!find<QAction>(*window, "actionShaded")->isChecked());
    QVERIFY(find<KVOpenGLWidget>(*window, "viewStatic")->findChild<QLabel *>());
}

// Letters and digits are typed elsewhere.
void tst_ViewMenu::keysBelongToTheView()
{
    const auto window = open();
    auto *filter = find<KVTreeView>(*window, "treeSkinnedMesh")->parentWidget()->findChild<QLineEdit *>();
    filter->setFocus();
    QTest::keyClicks(filter, QStringLiteral("bone 14f"));
    QCOMPARE(filter->text(), QStringLiteral("bone 14f"));
    QVERIFY(!find<QAction>(*window, "actionWireframe")->isChecked());
    auto *speed = find<QDoubleSpinBox>(*window, "sbAnimTrackSpeed");
    speed->setFocus();
    speed->selectAll();
    QTest::keyClicks(speed, QStringLiteral("3"));
    QCOMPARE(find<KVOpenGLWidget>(*window, "viewSkinned")->camera().yaw(), 180.0f);
}

void tst_ViewMenu::clicksSelect()
{
    StaticMesh wall;
    wall.surfaces = {{QStringLiteral("_white"), {}}, {QStringLiteral("_white"), {0, 1, 2}}};
    wall.vertices = {{{-100, 0, 0}, {}, {}}, {{0, 0, 200}, {}, {}}, {{100, 0, 0}, {}, {}}};
    const QString path = m_files->filePath(QStringLiteral("wall.staticmesh"));
    QVERIFY(!wall.write(path));
    const auto window = open({path});
    auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
    auto *tree = find<KVTreeView>(*window, "treeSkinnedMesh");
    auto *tabs = find<QTabWidget>(*window, "tabTrees");
    const auto click = [](QWidget *where, const QPoint &offset) {
        QTest::mouseClick(where, Qt::LeftButton, {}, where->rect().center() + offset);
    };
    QTest::keyClick(view, Qt::Key_Home);
    view->grabFramebuffer();
    click(view, {0, 30});
    QCOMPARE(tree->currentRecord(), (RecordRef{RecordKind::SkinnedSurface, {0}}));
    QVERIFY(view->hasFocus());
    const RecordRef root{RecordKind::SkinnedMesh, {}};
    select(*window, "treeSkinnedMesh", {root});
    click(view, {-view->width() / 2 + 5, 0});
    QCOMPARE(tree->currentRecord(), root);

    // Bone 0 stands in the middle of the lower edge.
    find<QAction>(*window, "actionSkeleton")->trigger();
    select(*window, "treeSkinnedMesh", {{RecordKind::Bone, {0}}});
    QTest::keyClick(view, Qt::Key_F);
    select(*window, "treeSkinnedMesh", {root});
    view->grabFramebuffer();
    const int step = 6;
    QPoint joint(view->width() / 2, 0);
    for (; joint.y() < view->height() && tree->currentRecord() == root; joint.ry() += step) {
        QMouseEvent move(QEvent::MouseMove, joint, Qt::NoButton, Qt::NoButton, {});
        QApplication::sendEvent(view, &move);
        if (QToolTip::isVisible() && QToolTip::text().startsWith(QStringLiteral("0:")))
            QTest::mouseClick(view, Qt::LeftButton, {}, joint);
    }
    QCOMPARE(tree->currentRecord(), (RecordRef{RecordKind::Bone, {0}}));

    // The animation stays in front, and has the bone too; it has no surfaces.
    tabs->setCurrentIndex(1);
    select(*window, "treeSkinnedMesh", {root});
    joint.ry() -= step;
    QTest::mouseClick(view, Qt::LeftButton, {}, joint);
    const RecordRef bone{RecordKind::AnimBone, {0, 0}};
    QCOMPARE(find<KVTreeView>(*window, "treeAnim")->currentRecord(), bone);
    find<QAction>(*window, "actionSkeleton")->trigger();
    click(view, {0, 30});
    QCOMPARE(find<KVTreeView>(*window, "treeAnim")->currentRecord(), bone);
    QCOMPARE(tree->currentRecord(), root);
    QCOMPARE(tabs->currentIndex(), 1);
    tabs->setCurrentIndex(0);

    // A record that the filter hides is named.
    tree->setFilter(QStringLiteral("bone 0"));
    QTest::keyClick(view, Qt::Key_Home);
    click(view, {0, 30});
    QVERIFY(window->statusBar()->currentMessage().contains(QStringLiteral("filter")));

    find<QTabWidget>(*window, "tabWidget")->setCurrentIndex(1);
    auto *rigid = find<KVOpenGLWidget>(*window, "viewStatic");
    QTRY_VERIFY(rigid->isValid());
    rigid->grabFramebuffer();
    rigid->setFocus();
    QTest::keyClick(rigid, Qt::Key_Home);
    click(rigid, {0, 30});
    QCOMPARE(find<KVTreeView>(*window, "treeStaticMesh")->currentRecord(),
             (RecordRef{RecordKind::StaticSurface, {1}}));
}

void tst_ViewMenu::selectionIsMarkedAndFramed()
{
    const auto window = open();
    auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
    auto *tree = find<KVTreeView>(*window, "treeSkinnedMesh");
    const auto eyeAfter = [&](Qt::Key key, QWidget *where) {
        where->setFocus();
        QTest::keyClick(where, key);
        return view->camera().eye();
    };
    const QVector3D all = eyeAfter(Qt::Key_Home, view);
    const auto framed = [&](const QVector<RecordRef> &records) {
        select(*window, "treeSkinnedMesh", records);
        return eyeAfter(Qt::Key_F, tree);
    };
    // Without anything that has a place it is the whole model.
    QVERIFY((framed({{RecordKind::SkinnedMesh, {}}}) - all).length() < 1.0f);
    QVERIFY((framed({{RecordKind::SkinnedSurface, {1}}}) - all).length() < 1.0f);
    QVERIFY((framed({{RecordKind::SkinnedSurface, {0}}}) - all).length() < 1.0f);
    QVERIFY((framed({{RecordKind::SkinnedTriangleIndex, {0, 1}}}) - all).length() < 1.0f);
    // The view has a model's +x at -x, its y at z and its z at y.
    const QVector3D vertex = framed({{RecordKind::SkinnedVertex, {1}}});
    QVERIFY(std::fabs(vertex.x() + 100.0f) < 1.0f && std::fabs(vertex.y()) < 1.0f && vertex.z() > all.z());
    const QVector3D point = framed({{RecordKind::HotPoint, {1}}});
    QVERIFY(std::fabs(point.y() - 150.0f) < 1.0f && point.z() > all.z());
    const QVector3D bone = framed({{RecordKind::Bone, {1}}}); // with the vertex at its end, 200 above it
    QVERIFY(std::fabs(bone.y() - 160.0f) < 1.0f);
    const QVector3D both = framed({{RecordKind::SkinnedVertex, {0}}, {RecordKind::SkinnedVertex, {1}}});
    QVERIFY(std::fabs(both.x()) < 1.0f && both.z() < vertex.z());

    // Selected bones are orange.
    find<QAction>(*window, "actionSkeleton")->trigger();
    QTest::keyClick(view, Qt::Key_Home);
    const auto orange = [view] {
        const QImage image = view->grabFramebuffer();
        int found = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                found += image.pixel(x, y) == 0xffff8c00 ? 1 : 0;
        }
        return found;
    };
    select(*window, "treeSkinnedMesh", {{RecordKind::SkinnedVertex, {0}}});
    QCOMPARE(orange(), 0);
    select(*window, "treeSkinnedMesh", {{RecordKind::Bone, {1}}});
    const int one = orange();
    QVERIFY(one > 0);
    select(*window, "treeSkinnedMesh", {{RecordKind::Bone, {1}}, {RecordKind::Bone, {0}}});
    QVERIFY(orange() > one);
}

void tst_ViewMenu::cameraLooksFromSides()
{
    const auto window = open();
    auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
    const auto yaw = [&](int key, Qt::KeyboardModifiers keys) {
        view->setFocus();
        QTest::keyClick(view, Qt::Key(key), keys);
        return view->camera().yaw();
    };
    QCOMPARE(yaw(Qt::Key_3, Qt::NoModifier), 270.0f);
    QCOMPARE(yaw(Qt::Key_3, Qt::ControlModifier), 90.0f);
    QCOMPARE(yaw(Qt::Key_1, Qt::KeypadModifier), 180.0f);
    QCOMPARE(yaw(Qt::Key_1, Qt::ControlModifier | Qt::KeypadModifier), 0.0f);
    QCOMPARE(yaw(Qt::Key_7, Qt::KeypadModifier), 180.0f);
    QCOMPARE(view->camera().pitch(), -89.0f);
    QCOMPARE(yaw(Qt::Key_7, Qt::ControlModifier), 180.0f);
    QCOMPARE(view->camera().pitch(), 89.0f);
}

void tst_ViewMenu::thePaletteHasEachOnce()
{
    const auto window = open();
    const Hand hand({[](QDialog *dialog) {
        auto *line = dialog->findChild<QLineEdit *>();
        auto *list = dialog->findChild<QListWidget *>();
        const auto listed = [&](const QString &name) {
            int found = 0;
            for (int row = 0; row < list->count(); ++row)
                found += list->item(row)->text().contains(name) ? 1 : 0;
            return found;
        };
        for (const char *name : {"Shaded Wireframe", "Skeleton", "Frame Selection", "Camera ▸ Top",
                                 "Frame Rate", "Save Picture"}) {
            line->setText(QString::fromUtf8(name));
            QVERIFY2(listed(QString::fromUtf8(name)) == 1, name);
        }
        dialog->reject();
    }});
    find<QAction>(*window, "actionCommands")->trigger();
    QCOMPARE(hand.seen.size(), 1);
}

void tst_ViewMenu::picturesAreSaved()
{
    MainWindow empty;
    QVERIFY(!find<QAction>(empty, "actionSavePicture")->isEnabled());
    const auto window = open();
    auto *action = find<QAction>(*window, "actionSavePicture");
    auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
    QTest::keyClick(view, Qt::Key_Home);
    const QString path = m_files->filePath(QStringLiteral("shots of it.png"));
    {
        const Hand hand({pictureOf(320, true), fileName(path)});
        action->trigger();
        QCOMPARE(hand.seen.size(), 2);
    }
    const QImage clear(path);
    QCOMPARE(clear.width(), 320);
    QCOMPARE(clear.height(), qRound(320.0 * view->height() / view->width()));
    QCOMPARE(clear.pixelColor(1, 1).alpha(), 0);
    QCOMPARE(clear.pixelColor(160, clear.height() / 2 + 20), QColor(Qt::white));
    QVERIFY(window->statusBar()->currentMessage().contains(QStringLiteral("shots of it.png")));

    // Asked again it knows the answers; the view may have had other proportions then.
    Settings::PictureSize.setValue({320, 7});
    {
        const Hand hand(
            {[&clear](QDialog *dialog) {
                 QCOMPARE(dialog->findChild<QSpinBox *>(QStringLiteral("sbPictureWidth"))->value(), 320);
                 QCOMPARE(dialog->findChild<QSpinBox *>(QStringLiteral("sbPictureHeight"))->value(),
                          clear.height());
                 auto *box = dialog->findChild<QCheckBox *>(QStringLiteral("cbTransparent"));
                 QVERIFY(box->isChecked());
                 box->click();
                 dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
             },
             fileName(m_files->filePath(QStringLiteral("second")))});
        action->trigger();
    }
    const QImage whole(m_files->filePath(QStringLiteral("second.png")));
    QVERIFY(!whole.hasAlphaChannel());
    QCOMPARE(whole.pixelColor(1, 1), Settings::BGColor.value());
}

void tst_ViewMenu::picturesThatCannotBeSaved()
{
    const auto window = open();
    const QString path = QStringLiteral("/proc/no.png");
    const Hand hand({pictureOf(64, false), fileName(path), Hand::press(QMessageBox::Ok)});
    find<QAction>(*window, "actionSavePicture")->trigger();
    QCOMPARE(hand.seen.size(), 3);
    QVERIFY2(hand.seen[2].startsWith(QStringLiteral("File error|Failed to save\n/proc/no.png")),
             qPrintable(hand.seen[2]));
}

QTEST_MAIN(tst_ViewMenu)
#include "tst_viewmenu.moc"
