// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT

// What numbers stand for is said beside their editors, and chosen there.
#include "ChoicePopup.h"
#include "EventArguments.h"
#include "IndexHint.h"
#include "MaterialCatalog.h"
#include "Panes.h"

#include <QBuffer>
#include <QCompleter>
#include <QDesktopServices>

#include <limits>
#include <tuple>

using namespace SampleModels;

namespace {
AnimAction actionOf(int event, float first, float second = 0.0f)
{
    AnimAction action;
    action.eventType = quint16(event);
    action.args = {first, second};
    return action;
}

ChoicePopup *popup()
{
    return qobject_cast<ChoicePopup *>(QApplication::activePopupWidget());
}

/// "ID NAME" of the rows of the popup, blanks at their ends left out.
QStringList shownChoices()
{
    QStringList rows;
    const auto *list = find<QTreeView>(*popup(), "listChoices");
    for (int row = 0; row < list->model()->rowCount(); ++row)
        rows << list->model()->index(row, 0).data().toString() + ' ' +
                    list->model()->index(row, 1).data().toString();
    return rows;
}

QString currentChoice()
{
    return find<QTreeView>(*popup(), "listChoices")->currentIndex().siblingAtColumn(0).data().toString();
}
} // namespace

class tst_FieldNames : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TestSupport::useSettingsHome(m_home); }

    void everyIdHasItsName()
    {
        Panes panes;
        SkinnedMesh mesh = plainMesh();
        mesh.animationNames = {{200, QStringLiteral("wave")}};
        mesh.hotPoints.resize(2);
        mesh.hotPoints[0].particleEffect1 = 1;
        mesh.hotPoints[0].particleEffect2 = 60000;
        mesh.hotPoints[1].particleEffect1 = 65535;
        mesh.hotPoints[1].particleEffect2 = 16384;
        panes.mesh.open(mesh);
        AnimFile file = plainAnim();
        file.blocks.resize(2);
        file.blocks[0].animId = 100;
        file.blocks[1].animId = 200;
        file.blocks[0].actions = {
            actionOf(0, 10),        actionOf(8, 1),
            actionOf(2, 30, 16384), actionOf(28, 1),
            actionOf(29, 99999, 4), actionOf(30, 310),
            actionOf(22, 310),      actionOf(0, std::numeric_limits<float>::quiet_NaN())};
        panes.anim.open(file);

        const struct
        {
            RecordRef record;
            const char *hint;
            const char *text; ///< empty: none
            bool quiet;
            bool choosable;
        } rows[] = {
            {{RecordKind::HotPoint, {0}}, "HPEffect1", "Unnamed_Particle_1.particle", false, true},
            {{RecordKind::HotPoint, {0}}, "HPEffect2", "not in the table", true, true},
            {{RecordKind::HotPoint, {1}}, "HPEffect1", "", false, false},
            {{RecordKind::HotPoint, {1}}, "HPEffect2", "64 damage", false, false},
            {{RecordKind::HotPoint, {1}}, "HPNodeID", "0: Left Root", false, true},
            {{RecordKind::AnimBlock, {0}}, "AnimAnimID", "Unnamed animation 100", false, true},
            {{RecordKind::AnimBlock, {1}}, "AnimAnimID", "wave", false, true},
            {{RecordKind::AnimAction, {0, 0}}, "AnimActionArg1", "Ambient Explosion 1", false, true},
            {{RecordKind::AnimAction, {0, 0}}, "AnimActionArg2", "", false, false},
            {{RecordKind::AnimAction, {0, 1}}, "AnimActionArg1", "Unnamed_Particle_1.particle", false, true},
            {{RecordKind::AnimAction, {0, 2}}, "AnimActionArg1", "", false, false},
            {{RecordKind::AnimAction, {0, 2}}, "AnimActionArg2", "64 damage", false, false},
            {{RecordKind::AnimAction, {0, 3}}, "AnimActionArg1", "Unnamed actor 1", false, true},
            {{RecordKind::AnimAction, {0, 4}}, "AnimActionArg1", "not in the table", true, true},
            {{RecordKind::AnimAction, {0, 4}}, "AnimActionArg2", "Flesh", false, true},
            {{RecordKind::AnimAction, {0, 5}}, "AnimActionArg1", "Unnamed voice 310", false, true},
            {{RecordKind::AnimAction, {0, 6}}, "AnimActionArg1", "", false, false},
            {{RecordKind::AnimAction, {0, 7}}, "AnimActionArg1", "not in the table", true, true},
        };
        for (const auto &row : rows) {
            const bool ofMesh = row.record.kind == RecordKind::HotPoint;
            (ofMesh ? panes.mesh.tree : panes.anim.tree).selectRecords({row.record}, row.record);
            const QWidget *page = ofMesh ? panes.mesh.page() : panes.anim.page();
            const auto *hint = find<IndexHint>(*page, QByteArray("hint") + row.hint);
            const auto *button = find<QToolButton>(*page, QByteArray("btnChoose") + row.hint);
            QCOMPARE(hint->isHidden() ? QString() : hint->text(), QString::fromLatin1(row.text));
            QVERIFY2(hint->isHidden() || hint->isQuiet() == row.quiet, row.hint);
            QCOMPARE(!button->isHidden(), row.choosable);
        }

        // Where several are selected: the same number, another one, and the same that means something else.
        const auto says = [&](const QVector<RecordRef> &records, const char *text) {
            panes.anim.select(records);
            const auto *hint = panes.anim.child<IndexHint>("hintAnimActionArg1");
            QCOMPARE(hint->text(), QString::fromLatin1(text));
            QCOMPARE(hint->toolTip(), text == QByteArray("values differ")
                                          ? QString("Unnamed actor 1; not so in all selected records")
                                          : QString::fromLatin1(text));
        };
        const RecordRef actor{RecordKind::AnimAction, {0, 3}};
        says({actor}, "Unnamed actor 1");
        says({actor, {RecordKind::AnimAction, {0, 0}}}, "values differ");
        says({actor, {RecordKind::AnimAction, {0, 1}}}, "values differ");
        // Another event, another table.
        panes.anim.select({actor});
        QTest::keyClick(panes.anim.child<QWidget>("cbAnimActionEventType"), Qt::Key_Home);
        QCOMPARE(panes.anim.child<IndexHint>("hintAnimActionArg1")->text(), numberName(Question::Sound, 1));
        panes.anim.undo().undo();
        says({actor}, "Unnamed actor 1");
    }

    void choosesForAllThatAreSelected()
    {
        Panes panes;
        AnimFile file = plainAnim();
        file.blocks[0].actions = {actionOf(0, 10), actionOf(0, 11), actionOf(0, 11)};
        panes.anim.open(file);
        panes.anim.select({{RecordKind::AnimAction, {0, 0}}, {RecordKind::AnimAction, {0, 1}}});
        auto *field = panes.anim.child<FloatSpinBox>("sbAnimActionArg1");
        enter(panes.anim.stack, field);
        const auto &actions = panes.anim.document.model().blocks[0].actions;

        // Nothing is changed by looking, typing and giving up; what is typed in the field stays.
        QTest::keyClicks(field, QStringLiteral("7"));
        QTest::keyClick(field, Qt::Key_F2);
        QVERIFY(popup());
        QCOMPARE(currentChoice(), QStringLiteral("10"));
        const int all = shownChoices().size();
        QTest::keyClicks(line(), QStringLiteral("explosion"));
        QVERIFY(shownChoices().size() > 0 && shownChoices().size() < all);
        QTest::keyClick(line(), Qt::Key_Escape);
        QVERIFY(!popup() && panes.anim.undo().count() == 0);
        QCOMPARE(shownText(field), QStringLiteral("7"));
        QTest::keyClick(field, Qt::Key_Escape);
        QCOMPARE(shownText(field), QStringLiteral("10"));

        // A number is found by how it begins, names by their words in any order and case.
        QTest::keyClick(field, Qt::Key_F2);
        QTest::keyClicks(line(), QStringLiteral("11"));
        QCOMPARE(currentChoice(), QStringLiteral("11"));
        QTest::keyClick(line(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(line(), QStringLiteral("1 EXPLOSION amb"));
        QCOMPARE(shownChoices().first(), QStringLiteral("10 Ambient Explosion 1"));
        QTest::keyClick(line(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(line(), QStringLiteral("no such sound"));
        QVERIFY(shownChoices().isEmpty());
        QTest::keyClick(line(), Qt::Key_Return);
        QVERIFY(popup());

        // One step for all that are selected, also where the first has that number already.
        QTest::keyClick(line(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(line(), Qt::Key_Delete);
        QCOMPARE(shownChoices().size(), all);
        QCOMPARE(currentChoice(), QStringLiteral("10"));
        QTest::keyClick(line(), Qt::Key_Return);
        QVERIFY(!popup());
        QCOMPARE(panes.anim.undo().count(), 1);
        QCOMPARE(actions[0].args[0] + actions[1].args[0] + actions[2].args[0], 31.0f);
        panes.anim.undo().undo();

        // By the mouse: the button, a row.
        QTest::mouseClick(panes.anim.child<QToolButton>("btnChooseAnimActionArg1"), Qt::LeftButton);
        auto *list = find<QTreeView>(*popup(), "listChoices");
        QTest::keyClicks(line(), QStringLiteral("12"));
        const QModelIndex second = list->model()->index(1, 1);
        const auto number = float(second.siblingAtColumn(0).data().toInt());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(second).center());
        QVERIFY(!popup());
        QCOMPARE(actions[0].args[0], number);
        QCOMPARE(actions[1].args[0], number);
        QCOMPARE(actions[2].args[0], 11.0f);
        QCOMPARE(panes.anim.undo().count(), 1);
        QCOMPARE(panes.anim.stack.focusWidget(), field);

        // Nothing to choose where numbers stand for themselves.
        auto *other = panes.anim.child<FloatSpinBox>("sbAnimActionArg2");
        enter(panes.anim.stack, other);
        QTest::keyClick(other, Qt::Key_F2);
        QVERIFY(!popup());
    }

    void choosesBonesAsTheyHang()
    {
        Panes panes;
        SkinnedMesh mesh = plainMesh();
        mesh.nodes.resize(4);
        for (SkinnedMeshNode &node : mesh.nodes)
            node.childNodes.clear();
        mesh.nodes[0].childNodes = {2};
        mesh.nodes[2].childNodes = {1, 0};
        mesh.nodes[2].name = QStringLiteral("hips");
        panes.mesh.open(mesh);
        AnimFile file = plainAnim();
        file.blocks[0].nodes.resize(4);
        panes.anim.open(file);

        // With the number for none; a bone that hangs from no other stands at the end.
        panes.mesh.select({{RecordKind::Bone, {1}}});
        auto *parent = panes.mesh.child<IntSpinBox>("sbNodeParentNode");
        enter(panes.mesh.stack, parent);
        QTest::keyClick(parent, Qt::Key_F2);
        QCOMPARE(shownChoices(), QStringList({"255 no parent", "0 Left Root", "2    hips",
                                              "1       Left Root", "3 Left Root"}));
        QTest::keyClicks(line(), QStringLiteral("hips"));
        QCOMPARE(shownChoices(), QStringList("2 hips"));
        QTest::keyClick(line(), Qt::Key_Return);
        QCOMPARE(int(panes.mesh.document.model().nodes[1].parentNode), 2);
        QCOMPARE(panes.mesh.child<IndexHint>("hintNodeParentNode")->text(), QStringLiteral("2: hips"));

        panes.anim.select({{RecordKind::AnimAction, {0, 0}}});
        auto *bone = panes.anim.child<IntSpinBox>("sbAnimActionNode");
        enter(panes.anim.stack, bone);
        QTest::keyClick(bone, Qt::Key_F2);
        QCOMPARE(shownChoices().mid(0, 3), QStringList({"65535 no bone", "0 Left Root", "2    hips"}));
        QTest::keyClick(line(), Qt::Key_Home, Qt::ControlModifier);
        // What the popup is about may go.
        panes.anim.open(file);
        QVERIFY(!popup());

        // A mesh of other bones does not name them.
        mesh.nodes.resize(2);
        panes.mesh.open(mesh);
        panes.anim.select({{RecordKind::AnimAction, {0, 0}}});
        enter(panes.anim.stack, bone);
        QTest::keyClick(bone, Qt::Key_F2);
        QCOMPARE(shownChoices(), QStringList({"65535 no bone", "0 ", "1 ", "2 ", "3 "}));
        QTest::keyClick(line(), Qt::Key_Escape);
    }

    void materialsAreListedFromBothFolders()
    {
        setFolders();
        const std::atomic_bool cancelled{false};
        const auto listed = [&](const QString &game, const QString &mod) {
            QStringList paths;
            for (const Material &material : listMaterials(game, mod, cancelled))
                paths << material.path + '=' + material.texture;
            return paths;
        };
        const QString game = m_files.path("game"), mod = m_files.path("mod");
        // A file of the game hides the mod's of its name, a broken one has none, and a model cannot name one
        // in Greek.
        QCOMPARE(listed(game, mod),
                 QStringList({"materials/deep/er/one/x=", "materials/mat_house/roof=textures/red.png",
                              "materials/mat_house/wall=textures/none.png",
                              "mod/mat_tree/leaf=textures/tree.png"}));
        QCOMPARE(listed({}, mod),
                 QStringList({"materials/mat_house/hidden=", "mod/mat_tree/leaf=textures/tree.png"}));
        QCOMPARE(listed({}, {}), QStringList());

        MaterialCatalog catalog;
        QVERIFY(catalog.isEmptyYet());
        catalog.refresh();
        QTRY_VERIFY(!catalog.isEmptyYet());
        QCOMPARE(catalog.materials().size(), 4);
        // Pictures come when they are asked for, and none where there is none.
        const auto colour = [&](const char *texture) {
            const QIcon icon = catalog.icon(QLatin1String(texture));
            return icon.pixmap(MaterialCatalog::IconSide).toImage().pixelColor(16, 16);
        };
        QCOMPARE(colour("textures/red.png").alpha(), 0);
        colour("textures/none.png");
        QTRY_COMPARE(colour("textures/red.png"), QColor(Qt::red));
        QCOMPARE(colour("textures/none.png").alpha(), 0);
        // What changes is read anew.
        putPicture("game/textures/red.png", Qt::blue);
        QVERIFY(QFile::remove(m_files.path("mod/mod/mat_tree.kmat")));
        catalog.reload();
        QTRY_COMPARE(catalog.materials().size(), 3);
        QTRY_COMPARE(colour("textures/red.png"), QColor(Qt::blue));
    }

    void aMaterialSaysItsFile()
    {
        setFolders();
        const std::tuple<const char *, const char *, bool> rows[] = {
            {"materials/mat_house/roof", "materials/mat_house.kmat in the game folder", false},
            {"mod/mat_tree/leaf", "mod/mat_tree.kmat in the mod folder", false},
            {"materials/mat_house/hidden", "not in materials/mat_house.kmat", true},
            {"materials/broken/x", "materials/broken.kmat cannot be read", true},
            {"materials/none/x", "materials/none.kmat not found", true},
            {"materials/none/x_white", "drawn white, without a file", false},
            {"", "no material", false},
        };
        Panes panes;
        StaticMesh mesh = plainStatic();
        mesh.surfaces.resize(std::size(rows));
        for (size_t i = 0; i < std::size(rows); ++i)
            mesh.surfaces[i].materialPath = QLatin1String(std::get<0>(rows[i]));
        panes.rigid.open(mesh);
        m_opened.clear();
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "OnOpened");
        for (size_t i = 0; i < std::size(rows); ++i) {
            panes.rigid.select({{RecordKind::StaticSurface, {int(i)}}});
            const auto *hint = panes.rigid.child<IndexHint>("hintSurfaceMaterial");
            QTRY_COMPARE(hint->text(), QString::fromLatin1(std::get<1>(rows[i])));
            QCOMPARE(hint->isMissing(), std::get<2>(rows[i]));
            QTest::mouseClick(panes.rigid.child<QToolButton>("btnOpenSurfaceMaterial"), Qt::LeftButton);
        }
        QStringList names;
        for (const QUrl &url : qAsConst(m_opened))
            names << url.toLocalFile().mid(m_files.path().size() + 1);
        QCOMPARE(names, QStringList({"game/materials/mat_house.kmat", "mod/mod/mat_tree.kmat",
                                     "game/materials/mat_house.kmat", "game/materials/broken.kmat"}));
        panes.rigid.select({{RecordKind::StaticSurface, {0}}, {RecordKind::StaticSurface, {1}}});
        QTRY_COMPARE(panes.rigid.child<IndexHint>("hintSurfaceMaterial")->text(),
                     QStringLiteral("values differ"));
        panes.rigid.page()->findChild<QAction *>(QStringLiteral("actionOpenMaterialFolder"))->trigger();
        QCOMPARE(m_opened.last().fileName(), QStringLiteral("materials"));
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    }

    void materialsAreCompletedAndChosen()
    {
        setFolders();
        Panes panes;
        StaticMesh mesh = plainStatic();
        mesh.surfaces.resize(2);
        mesh.surfaces[0].materialPath = QStringLiteral("mod/mat_tree/leaf");
        mesh.surfaces[1].materialPath = QStringLiteral("materials/mat_house/roof");
        panes.rigid.open(mesh);
        panes.rigid.select({{RecordKind::StaticSurface, {0}}, {RecordKind::StaticSurface, {1}}});
        auto *field = panes.rigid.child<QLineEdit>("txtSurfaceMaterial");
        const auto &surfaces = panes.rigid.document.model().surfaces;
        enter(panes.rigid.stack, field);

        // A part of the path finds it; nothing is stored before it is chosen, nor put into the line.
        auto *completer = field->findChild<QCompleter *>();
        QTRY_VERIFY(completer->model()->rowCount() == 4);
        QTest::keyClicks(field, QStringLiteral("wall"));
        QTRY_VERIFY(completer->popup()->isVisible());
        QTest::keyClick(completer->popup(), Qt::Key_Down);
        QCOMPARE(field->text(), QStringLiteral("wall"));
        QTest::keyClick(completer->popup(), Qt::Key_Escape);
        QVERIFY(!completer->popup()->isVisible());
        QTest::keyClick(field, Qt::Key_Escape);
        QCOMPARE(field->text(), QStringLiteral("mod/mat_tree/leaf"));
        QCOMPARE(panes.rigid.undo().count(), 0);
        enter(panes.rigid.stack, field);
        QTest::keyClicks(field, QStringLiteral("wall"));
        QTRY_VERIFY(completer->popup()->isVisible());
        QTest::keyClick(completer->popup(), Qt::Key_Down);
        QTest::keyClick(completer->popup(), Qt::Key_Return);
        QTRY_COMPARE(panes.rigid.undo().count(), 1);
        QCOMPARE(surfaces[0].materialPath, QStringLiteral("materials/mat_house/wall"));
        QCOMPARE(surfaces[1].materialPath, QStringLiteral("materials/mat_house/wall"));
        panes.rigid.undo().undo();

        // From the list of all, one that the first of them has already.
        QTest::keyClick(field, Qt::Key_F2);
        QTRY_VERIFY(popup());
        QCOMPARE(currentChoice(), QStringLiteral("mod/mat_tree/leaf"));
        QTest::keyClicks(line(), QStringLiteral("house"));
        QCOMPARE(find<QTreeView>(*popup(), "listChoices")->model()->rowCount(), 2);
        QTest::keyClick(line(), Qt::Key_Escape);
        QVERIFY(panes.rigid.undo().index() == 0);
        enter(panes.rigid.stack, field); // without a window system popups take the activation
        QTest::keyClick(field, Qt::Key_F2);
        QTest::keyClick(line(), Qt::Key_Return);
        QCOMPARE(surfaces[1].materialPath, QStringLiteral("mod/mat_tree/leaf"));
        QCOMPARE(panes.rigid.undo().index(), 1);
    }

public slots:
    void OnOpened(const QUrl &url) { m_opened.append(url); }

private:
    void setFolders()
    {
        m_files.put("game/materials/mat_house.kmat",
                    "material wall {\nsampler \"diffuse\" 0 \"textures/none.png\" {\n}\n}\n"
                    "material roof {\nsampler \"diffuse\" 0 \"textures/red.png\" {\n}\n}\n");
        m_files.put("game/materials/broken.kmat", "sampler \"diffuse\" 0 \"x\"\n");
        m_files.put("game/materials/deep/er/one.kmat", "material x {\n}\n");
        m_files.put("mod/materials/mat_house.kmat", "material hidden {\n}\n");
        m_files.put("mod/mod/mat_tree.kmat",
                    "material \xce\xbb {\n}\n"
                    "material leaf {\nsampler \"diffuse\" 0 \"textures/tree.png\" {\n}\n}\n");
        putPicture("game/textures/red.png", Qt::red);
        Settings::GamePath.setValue(m_files.path("game"));
        Settings::OutputDir.setValue(m_files.path("mod"));
    }
    void putPicture(const char *name, Qt::GlobalColor colour)
    {
        QImage picture(64, 64, QImage::Format_RGB32);
        picture.fill(colour);
        QBuffer buffer;
        QVERIFY(picture.save(&buffer, "PNG"));
        m_files.put(QLatin1String(name), buffer.data());
    }
    static QLineEdit *line() { return find<QLineEdit>(*popup(), "lineChoice"); }
    /// Gives a field the keys.
    static void enter(QWidget &window, QWidget *field)
    {
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("no active window");
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    }

    QTemporaryDir m_home;
    TestFolder m_files;
    QVector<QUrl> m_opened;
};

QTEST_MAIN(tst_FieldNames)
#include "tst_fieldnames.moc"
