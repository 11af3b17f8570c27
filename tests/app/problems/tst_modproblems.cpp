// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FloatSpinBox.h"
#include "Hand.h"
#include "ModProblems.h"
#include "Problems.h"

/// The list of what is wrong with the whole mod, in the window.
class tst_ModProblems : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        QVERIFY(QDir().mkpath(path("game")) && QDir().mkpath(path("mod/textures")));
        Settings::GamePath.setValue(path("game"));
        Settings::OutputDir.setValue(path("mod"));
        Settings::HideMeshData.setValue(false);
        StaticMesh mesh = wall({{QStringLiteral("materials/m/_white"), {0, 1, 2}}});
        for (StaticMeshVertex &vertex : mesh.vertices)
            vertex.normal = {0, -1, 0};
        m_folder->save("mod/models/good.staticmesh", mesh);
        mesh.vertices[2].normal = {};
        m_folder->save("mod/models/walls/wall.staticmesh", mesh);
        m_folder->put("mod/anims/half.anim", "half");
        QVERIFY(QImage(3, 4, QImage::Format_RGB32).save(path("mod/textures/odd.png")));
        start();
    }

    void cleanup() { m_window.reset(); }

    void listsTheFilesOfTheMod()
    {
        QCOMPARE(list()->accessibleDescription(), QStringLiteral("No file is open."));
        QVERIFY(!find<QToolButton>("btnProblemShowSilenced")->isVisible());
        press("btnProblemWholeMod");
        QTRY_COMPARE(rows(), QStringList({"Error anims/half.anim ",
                                          "Warning models/walls/wall.staticmesh Vertices › 2",
                                          "Warning textures/odd.png "}));
        QCOMPARE(find<QToolButton>("btnProblemWarnings")->text(), QStringLiteral("Warnings: 2"));
        QCOMPARE(find<QToolButton>("btnProblems")->text(), QStringLiteral("Problems: 3"));

        // By double click to the record; then the document's own problem stands in its place.
        doubleClick(1);
        auto *tree = find<KVTreeView>("treeStaticMesh");
        QTRY_VERIFY(tree->hasFocus());
        QCOMPARE(tree->currentRecord(), (RecordRef{RecordKind::StaticVertex, {2, 0, 0}}));
        QTRY_COMPARE(problems().front().document, DocumentType::StaticMesh);
        QCOMPARE(rows().size(), 3);

        // By Enter; what cannot be read says so.
        {
            Hand hand({Hand::press(QMessageBox::Ok)});
            click(0);
            QTest::keyClick(list(), Qt::Key_Return);
            QTRY_COMPARE(hand.seen.size(), 1);
            QVERIFY2(hand.seen[0].contains("half.anim"), qPrintable(hand.seen[0]));
        }

        // The switch is remembered, and stands in a menu: switched on there, it brings the list up.
        start();
        QVERIFY(find<QToolButton>("btnProblemWholeMod")->isChecked());
        QTRY_COMPARE(rows().size(), 3);
        find<QDockWidget>("dockProblems")->hide();
        toggleByPalette();
        QVERIFY(!find<QToolButton>("btnProblemWholeMod")->isChecked());
        QVERIFY(!find<QDockWidget>("dockProblems")->isVisible());
        toggleByPalette();
        QVERIFY(find<QToolButton>("btnProblemWholeMod")->isChecked());
        QTRY_COMPARE(rows().size(), 3);
        QVERIFY(list()->isVisible());
        press("btnProblemWholeMod");
        QTRY_COMPARE(rows(), QStringList());
        QCOMPARE(list()->accessibleDescription(), QStringLiteral("No file is open."));
    }

    void followsTheFolder()
    {
        press("btnProblemWholeMod");
        QTRY_COMPARE(rows().size(), 3);
        QVERIFY(QFile::remove(path("mod/anims/half.anim")));
        emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        QTRY_COMPARE(rows().size(), 2);
        // While a model is edited its problem is the document's; unsaved work is asked for.
        m_window->openFiles({path("mod/models/good.staticmesh")});
        select(*m_window, "treeStaticMesh", {{RecordKind::StaticMesh, {}}});
        auto *field = find<FloatSpinBox>("sbSTBBMinX");
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, "5000");
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(rows().size(), 3);
        QVERIFY(problems().front().document);
        const int wall = rows().indexOf("Warning models/walls/wall.staticmesh Vertices › 2");
        {
            Hand hand({Hand::press(QMessageBox::Cancel)});
            doubleClick(wall);
            QTRY_COMPARE(hand.seen.size(), 1);
        }
        QCOMPARE(rootOf(*m_window, "treeStaticMesh"), QStringLiteral("good.staticmesh"));
        // Once it is saved, it is the file's, and stays when another one is opened.
        QApplication::setActiveWindow(m_window.get()); // which has the keys back where windows are managed
        QTest::keySequence(m_window.get(), QKeySequence::Save);
        doubleClick(wall);
        QTRY_COMPARE(rootOf(*m_window, "treeStaticMesh"), QStringLiteral("wall.staticmesh"));
        QTRY_COMPARE(rows().filter("good.staticmesh").size(), 1);
        QTRY_COMPARE(rows().size(), 3);
        // Without a folder there is nothing to check.
        Settings::OutputDir.setValue(QString());
        emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        QTRY_COMPARE(rows(), QStringList("Warning wall.staticmesh Vertices › 2"));
    }

    void stops()
    {
        press("btnProblemWholeMod"); // which has begun by then
        find<QToolButton>("btnCancelModCheck")->click();
        QVERIFY(list()->accessibleDescription().contains("stopped"));
        QTest::keySequence(m_window.get(), QKeySequence(Qt::Key_F5));
        QTRY_COMPARE(rows().size(), 3);
    }

    void silencesAndHears()
    {
        const QByteArray before = "{ \"check\" : {\"largestTexture\": 64}}\n";
        m_folder->put("mod/.korvane.json", before);
        press("btnProblemWholeMod");
        QTRY_COMPARE(rows().size(), 3);
        // For a file, from the menu.
        choose(2, Qt::Key_I);
        QTRY_COMPARE(rows().size(), 2);
        QVERIFY(m_window->statusBar()->currentMessage().contains("texture-not-power-of-two"));
        QCOMPARE(settings(),
                 QByteArray(
                     "{ \"check\" : {\"largestTexture\": 64, \"silence\": [\n      "
                     "{\"rule\": \"texture-not-power-of-two\", \"files\": \"textures/odd.png\"}\n    ]}}\n"));
        QCOMPARE(find<QToolButton>("btnProblemWarnings")->text(), QStringLiteral("Warnings: 1"));
        QCOMPARE(find<QToolButton>("btnProblemShowSilenced")->text(), QStringLiteral("Silenced: 1"));

        // In the whole mod; of an open document, too, and without the switch.
        choose(1, Qt::Key_E);
        QTRY_COMPARE(rows(), QStringList("Error anims/half.anim "));
        press("btnProblemWholeMod");
        m_window->openFiles({path("mod/models/walls/wall.staticmesh")});
        QTRY_COMPARE(find<QToolButton>("btnProblemShowSilenced")->text(), QStringLiteral("Silenced: 1"));
        QCOMPARE(rows(), QStringList());
        press("btnProblemWholeMod");
        QTRY_COMPARE(rows().size(), 1);

        // Listed on demand, and heard again.
        press("btnProblemShowSilenced");
        QTRY_COMPARE(rows().size(), 3);
        QVERIFY(list()->topLevelItem(2)->text(3).startsWith("Silenced: "));
        choose(2, Qt::Key_H);
        choose(2, Qt::Key_H);
        QTRY_COMPARE(find<QToolButton>("btnProblemShowSilenced")->text(), QStringLiteral("Silenced: 0"));
        QVERIFY(!settings().contains("rule"));
        QVERIFY(settings().startsWith("{ \"check\" : {\"largestTexture\": 64, "));

        // What is damaged stays as it is.
        m_folder->put("mod/.korvane.json", "{");
        Hand hand({Hand::press(QMessageBox::Ok)});
        choose(0, Qt::Key_I);
        QTRY_COMPARE(hand.seen.size(), 1);
        QCOMPARE(settings(), QByteArray("{"));
    }

    /// Thousands stay selected when they are found anew, and many are silenced and heard at once.
    void takesThousands()
    {
        for (int i = 0; i < 1050; ++i)
            m_folder->put(QStringLiteral("mod/anims/%1.anim").arg(i), "half");
        press("btnProblemWholeMod");
        QTRY_COMPARE_WITH_TIMEOUT(list()->topLevelItemCount(), 1053, 60000);
        click(0);
        QTest::keySequence(list(), QKeySequence::SelectAll);
        m_folder->put("mod/anims/more.anim", "half");
        emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        QTRY_COMPARE_WITH_TIMEOUT(list()->topLevelItemCount(), 1054, 60000);
        QCOMPARE(list()->selectedItems().size(), 1053);
        {
            Hand hand({Hand::press(QMessageBox::Ok)});
            find<QAction>("actionProblemSilenceFile")->trigger();
            QTRY_COMPARE(hand.seen.size(), 1);
            QVERIFY2(hand.seen[0].contains("1000 rules for files at most"), qPrintable(hand.seen[0]));
            QVERIFY(!QFile::exists(path("mod/.korvane.json")));
        }
        click(0);
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::ShiftModifier, placeOf(999));
        QCOMPARE(list()->selectedItems().size(), 1000);
        find<QAction>("actionProblemSilenceFile")->trigger();
        QTRY_COMPARE(list()->topLevelItemCount(), 54);
        press("btnProblemShowSilenced");
        QTRY_COMPARE(list()->topLevelItemCount(), 1054);
        QTest::keySequence(list(), QKeySequence::SelectAll);
        find<QAction>("actionProblemHear")->trigger();
        QTRY_COMPARE(find<QToolButton>("btnProblemShowSilenced")->text(), QStringLiteral("Silenced: 0"));
        QVERIFY(!settings().contains("rule"));
    }

private:
    QString path(const char *name) const { return m_folder->path(name); }
    QByteArray settings() const { return TestSupport::readFile(path("mod/.korvane.json")); }
    void start()
    {
        m_window.reset();
        m_window = std::make_unique<ShownWindow>();
        m_window->resize(1400, 1000);
        dock()->show();
        m_window->resizeDocks({dock()}, {400}, Qt::Vertical);
    }

    template <typename Widget>
    Widget *find(const char *name) const
    {
        return ::find<Widget>(*m_window, name);
    }
    QDockWidget *dock() const { return find<QDockWidget>("dockProblems"); }
    QTreeWidget *list() const { return find<QTreeWidget>("listProblems"); }
    const std::vector<Problem> &problems() const { return m_window->findChild<Problems *>()->all(); }
    /// Severity, file and place of each.
    QStringList rows() const
    {
        QStringList texts;
        for (int row = 0; row < list()->topLevelItemCount(); ++row) {
            const QTreeWidgetItem *item = list()->topLevelItem(row);
            texts << QStringList({item->text(0), item->text(1), item->text(2)}).join(' ');
        }
        return texts;
    }
    QPoint placeOf(int row) const
    {
        QTreeWidgetItem *item = list()->topLevelItem(row);
        list()->scrollToItem(item);
        return list()->visualItemRect(item).center();
    }
    void click(int row) const { QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, placeOf(row)); }
    void doubleClick(int row) const
    {
        click(row);
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, placeOf(row));
    }
    /// From the context menu of a row, by its letter.
    void choose(int row, Qt::Key letter) const
    {
        click(row);
        QTimer::singleShot(0, this, [letter] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            if (!menu)
                qFatal("no menu");
            QTest::keyClick(menu, letter);
            menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, placeOf(row),
                                list()->viewport()->mapToGlobal(placeOf(row)));
        QApplication::sendEvent(list()->viewport(), &event);
    }
    void toggleByPalette() const
    {
        const Hand hand({[](QDialog *palette) {
            auto *line = palette->findChild<QLineEdit *>();
            QTest::keyClicks(line, QStringLiteral("check whole mod"));
            QTest::keyClick(line, Qt::Key_Return);
        }});
        const bool was = find<QToolButton>("btnProblemWholeMod")->isChecked();
        find<QAction>("actionCommands")->trigger();
        QTRY_VERIFY(find<QToolButton>("btnProblemWholeMod")->isChecked() != was);
    }
    void press(const char *button) const { QTest::mouseClick(find<QToolButton>(button), Qt::LeftButton); }

    std::optional<ProgramFolder> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(tst_ModProblems)
#include "tst_modproblems.moc"
