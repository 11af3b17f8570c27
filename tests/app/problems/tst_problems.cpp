// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BrokenModels.h"
#include "FloatSpinBox.h"
#include "Hand.h"

using namespace BrokenModels;

enum Column { SeverityColumn, FileColumn, PlaceColumn, TextColumn };

/// The window with sample models in it, and the list of what is wrong with them.
class tst_Problems : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        TestSupport::useSettingsHome(m_home);
        m_base = std::move(bases().front());
        m_files = std::make_unique<QTemporaryDir>();
        Settings::GamePath.setValue(m_base->folders().gamePath);
        Settings::OutputDir.setValue(m_base->folders().outputDir);
        Settings::HideMeshData.setValue(false);
        Settings::HideAnimData.setValue(false);
        Settings::AnimationAutoPlay.setValue(false);
        m_window = std::make_unique<ShownWindow>();
        m_window->resize(1400, 1000);
        find<QDockWidget>("dockProblems")->show();
        m_window->resizeDocks({find<QDockWidget>("dockProblems")}, {400}, Qt::Vertical);
    }

    void cleanup() { m_window.reset(); }

    void countsAndLeadsToTheRecords()
    {
        QCOMPARE(list()->accessibleDescription(), QStringLiteral("No file is open."));
        QCOMPARE(find<QToolButton>("btnProblems")->text(), QStringLiteral("No problems"));
        SkinnedMesh mesh = goodMesh();
        mesh.hotPoints[1].nodeId = 254;
        mesh.vertices[700].normal = {};
        AnimFile file = goodAnim();
        file.blocks[2].rotations.at(3, 7) *= 2.0f;
        open(mesh, file);
        QTRY_COMPARE(column(PlaceColumn), QStringList({"Hot Points › 1", "Vertices › 700",
                                                       "Anim 2 › Rotations › Track 3 › Frame 7"}));
        QCOMPARE(column(SeverityColumn), QStringList({"Error", "Warning", "Warning"}));
        QCOMPARE(column(FileColumn),
                 QStringList({"tinker.skinnedmesh", "tinker.skinnedmesh", "tinker.anim"}));
        QCOMPARE(find<QToolButton>("btnProblems")->text(), QStringLiteral("Problems: 3"));
        QCOMPARE(find<QToolButton>("btnProblemErrors")->text(), QStringLiteral("Errors: 1"));
        QCOMPARE(find<QToolButton>("btnProblemNotes")->text(), QStringLiteral("Notes: 0"));

        auto *dock = find<QDockWidget>("dockProblems");
        dock->close();
        press("btnProblems");
        QVERIFY(dock->isVisible());

        // By double click to the animation, by Enter back to the mesh.
        QTreeWidgetItem *last = click(2);
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, list()->visualItemRect(last).center());
        auto *animTree = find<KVTreeView>("treeAnim");
        QVERIFY(animTree->isVisible() && animTree->hasFocus());
        QCOMPARE(animTree->currentRecord(), (RecordRef{RecordKind::RotationKey, {2, 3, 7}}));
        click(0);
        QTest::keyClick(list(), Qt::Key_Return);
        auto *meshTree = find<KVTreeView>("treeSkinnedMesh");
        QVERIFY(meshTree->isVisible() && meshTree->hasFocus());
        QCOMPARE(meshTree->currentRecord(), (RecordRef{RecordKind::HotPoint, {1, 0, 0}}));
        QCOMPARE(find<IntSpinBox>("sbHPNodeID")->value(), 254);

        click(1, Qt::ShiftModifier);
        trigger("Ctrl+C");
        const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines[1].startsWith(QStringLiteral("Warning\ttinker.skinnedmesh\tVertices › 700\t")));
    }

    void repairsInOneStep()
    {
        SkinnedMesh mesh = goodMesh();
        mesh.nodes[0].childNodes.push_back(900);
        mesh.hotPoints[0].nodeId = 254;
        AnimFile file = goodAnim();
        for (int frame = 0; frame < 40; ++frame)
            file.blocks[3].rotations.at(1, frame) *= 3.0f;
        open(mesh, file);
        QTRY_COMPARE(list()->topLevelItemCount(), 2 + ListedFindings + 1);
        QVERIFY(column(TextColumn).last().contains(QStringLiteral("20 more")));
        auto *fix = find<QToolButton>("btnProblemFix");
        auto *fixAll = find<QToolButton>("btnProblemFixAll");

        // What there is more than one way to repair is left to the user.
        click(1);
        QVERIFY(!fix->isEnabled() && !fixAll->isEnabled());
        click(0);
        QVERIFY(fix->isEnabled() && fixAll->isEnabled());
        trigger("Ctrl+.");
        QCOMPARE(list()->topLevelItemCount(), 1 + ListedFindings + 1);
        // The next row, the whole of it.
        const QItemSelectionModel *selection = list()->selectionModel();
        QCOMPARE(selection->selectedRows().size(), 1);
        QCOMPARE(selection->selectedRows().first().row(), 0);
        QVERIFY(isModified());
        undo();
        QVERIFY(!isModified());
        QTRY_COMPARE(list()->topLevelItemCount(), 2 + ListedFindings + 1);

        // Two of the listed, then all forty that are left or not listed at all, from the closing line.
        click(2);
        click(3, Qt::ShiftModifier);
        find<QToolButton>("btnProblemErrors")->click();
        QCOMPARE(selection->selectedRows().size(), 2);
        find<QToolButton>("btnProblemErrors")->click();
        press("btnProblemFix");
        QCOMPARE(find<QToolButton>("btnProblemWarnings")->text(), QStringLiteral("Warnings: 38"));
        click(list()->topLevelItemCount() - 1);
        QVERIFY(!fix->isEnabled() && fixAll->isEnabled());
        press("btnProblemFixAll");
        QCOMPARE(list()->topLevelItemCount(), 2);
        find<QTabWidget>("tabTrees")->setCurrentIndex(1);
        undo();
        QTRY_COMPARE(find<QToolButton>("btnProblemWarnings")->text(), QStringLiteral("Warnings: 38"));
        undo();
        QTRY_COMPARE(find<QToolButton>("btnProblemWarnings")->text(), QStringLiteral("Warnings: 40"));
        QVERIFY(!isModified());
    }

    void refusedTypingIsNotRepairedAway()
    {
        SkinnedMesh mesh = goodMesh();
        std::swap(mesh.bbMin, mesh.bbMax);
        open(mesh);
        QTRY_COMPARE(list()->topLevelItemCount(), 1);
        select(*m_window, "treeSkinnedMesh", {{RecordKind::SkinnedMesh, {}}});
        auto *field = find<FloatSpinBox>("sbSMBBMinX");
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, "1x");
        click(0);
        for (const char *button : {"btnProblemFix", "btnProblemFixAll"}) {
            press(button);
            QVERIFY(field->hasFocus() && field->isRefused() && !isModified());
        }
        QTest::keyClick(field, Qt::Key_Escape);
        press("btnProblemFix");
        QCOMPARE(list()->topLevelItemCount(), 0);
        QCOMPARE(field->value(), goodMesh().bbMin.x());
    }

    void filtersAndSorts()
    {
        AnimFile file = goodAnim();
        file.blocks[0].setTranslationCount(file.blocks[0].translations.trackCount() + 1);
        file.blocks[1].frames[5].yawOffset = std::numeric_limits<float>::infinity();
        file.blocks[1].loopFrame = 500;
        open(file);
        QTRY_COMPARE(column(SeverityColumn), QStringList({"Error", "Warning", "Note"}));
        press("btnProblemWarnings");
        QCOMPARE(column(SeverityColumn), QStringList({"Error", "Note"}));
        press("btnProblemErrors");
        press("btnProblemNotes");
        QCOMPARE(list()->topLevelItemCount(), 0);
        QCOMPARE(list()->accessibleDescription(), QString("All problems are hidden by the buttons above."));
        for (const char *button : {"btnProblemErrors", "btnProblemWarnings", "btnProblemNotes"})
            press(button);

        const auto clickHeader = [this](int section) {
            QHeaderView *header = list()->header();
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                              {header->sectionViewportPosition(section) + 10, header->height() / 2});
        };
        clickHeader(SeverityColumn);
        QCOMPARE(column(SeverityColumn), QStringList({"Note", "Warning", "Error"}));
        clickHeader(PlaceColumn);
        QCOMPARE(column(PlaceColumn),
                 QStringList({"Anim 1", "Anim 1 › Frames › Frame 5", "Anim 0 › Translations › Track 1"}));
    }

    void followsTheDocument()
    {
        open(goodMesh(), goodAnim());
        QTRY_COMPARE(list()->accessibleDescription(), QStringLiteral("No problems found."));
        auto *tree = find<KVTreeView>("treeSkinnedMesh");
        const RecordRef point{RecordKind::HotPoint, {2, 0, 0}};
        tree->selectRecords({point}, point);
        typeNumber(find<IntSpinBox>("sbHPNodeID"), 200);
        QCOMPARE(list()->topLevelItemCount(), 0); // not while one types
        QTRY_COMPARE(column(PlaceColumn), QStringList(QStringLiteral("Hot Points › 2")));
        undo();
        QTRY_COMPARE(list()->topLevelItemCount(), 0);

        // Animations of another mesh are told of, whichever of the two comes last; and a model that goes
        // takes its problems along at once.
        SkinnedMesh other = goodMesh();
        other.nodes.emplace_back().parentNode = 0;
        other.nodes[0].childNodes.push_back(quint16(other.nodes.size() - 1));
        open(other);
        QTRY_COMPARE(column(FileColumn), QStringList("tinker.anim"));
        open(goodMesh());
        QTRY_COMPARE(list()->topLevelItemCount(), 0);
        other.hotPoints[0].nodeId = 300;
        open(other);
        QTRY_COMPARE(list()->topLevelItemCount(), 2);
        open(goodMesh());
        QCOMPARE(column(FileColumn), QStringList("tinker.anim"));
    }

    void followsTheFolders()
    {
        Settings::HideMeshData.setValue(true);
        SkinnedMesh mesh = goodMesh();
        mesh.surfaces[0].materialPath = materialWithoutPicture;
        mesh.vertices[3].normal = {};
        open(mesh);
        QTRY_COMPARE(column(PlaceColumn), QStringList({"Vertices › 3", "Surfaces › 0"}));
        QVERIFY(column(TextColumn)[1].contains(QStringLiteral("textures/none.png")));
        QVERIFY(QImage(2, 2, QImage::Format_RGB32)
                    .save(m_base->folders().outputDir + QStringLiteral("/textures/none.png")));
        emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        QTRY_COMPARE(list()->topLevelItemCount(), 1);

        // The tree leaves the vertices out.
        click(0);
        QTest::keyClick(list(), Qt::Key_Return);
        QCOMPARE(find<KVTreeView>("treeSkinnedMesh")->currentRecord(),
                 (RecordRef{RecordKind::SkinnedVertices, {}}));
        QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("options")));
    }

    void bytesBehindTheEndAreToldUntilTheyAreDropped()
    {
        const SkinnedMesh mesh = goodMesh();
        open(mesh);
        QCOMPARE(list()->topLevelItemCount(), 0);
        const QString path = m_files->filePath(QStringLiteral("tinker.skinnedmesh"));
        QVERIFY(TestSupport::writeFile(path, SampleModels::bytesOf(mesh) + "more"));
        m_window->openFiles({path});
        QTRY_COMPARE(list()->topLevelItemCount(), 1);
        QVERIFY(column(3)[0].contains("4 bytes"));
        trigger("Ctrl+S");
        QTRY_COMPARE(list()->topLevelItemCount(), 0);
        QCOMPARE(TestSupport::readFile(path), SampleModels::bytesOf(mesh));
    }

private:
    template <typename Widget>
    Widget *find(const char *name) const
    {
        return ::find<Widget>(*m_window, name);
    }
    /// Saves the models beside each other and opens them.
    template <typename... Models>
    void open(const Models &...models)
    {
        QStringList paths;
        const auto write = [&](const auto &model, const char *suffix) {
            paths << m_files->filePath(QStringLiteral("tinker.") + QLatin1String(suffix));
            QVERIFY(!model.write(paths.last()));
        };
        (write(models, suffixOf(models)), ...);
        m_window->openFiles(paths);
        find<QDockWidget>("dockProblems")->raise();
    }
    static const char *suffixOf(const SkinnedMesh &) { return "skinnedmesh"; }
    static const char *suffixOf(const AnimFile &) { return "anim"; }
    static const char *suffixOf(const StaticMesh &) { return "staticmesh"; }

    QTreeWidget *list() const { return find<QTreeWidget>("listProblems"); }
    /// What stands in the column, from the top.
    QStringList column(int number) const
    {
        QStringList texts;
        for (int row = 0; row < list()->topLevelItemCount(); ++row)
            texts << list()->topLevelItem(row)->text(number);
        return texts;
    }
    QTreeWidgetItem *click(int row, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTreeWidgetItem *item = list()->topLevelItem(row);
        list()->scrollToItem(item);
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, modifiers,
                          list()->visualItemRect(item).center());
        return item;
    }
    void press(const char *button) const { QTest::mouseClick(find<QToolButton>(button), Qt::LeftButton); }
    void trigger(const char *keys) const { QTest::keySequence(list(), QKeySequence(QLatin1String(keys))); }

    bool isModified() const { return m_window->windowTitle().endsWith(QStringLiteral(" * ")); }
    void undo() const { QTest::keySequence(m_window.get(), QKeySequence::Undo); }

    SkinnedMesh goodMesh() const { return m_base->model<SkinnedMesh>(); }
    AnimFile goodAnim() const { return m_base->model<AnimFile>(); }

    QTemporaryDir m_home;
    std::unique_ptr<Base> m_base;
    std::unique_ptr<QTemporaryDir> m_files;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(tst_Problems)
#include "tst_problems.moc"
