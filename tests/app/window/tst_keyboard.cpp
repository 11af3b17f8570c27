// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Hand.h"

/// What keys do where, given to the native window as a keyboard does.
class tst_Keyboard : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_files.emplace(); }

    void lettersOfMenusLeadToTheirItems()
    {
        ShownWindow window({m_files->save("a.skinnedmesh", triangleMan())});
        find<QWidget>(window, "viewSkinned")->setFocus();
        // The menu's letter, the item's, the command, and the one of a view that has the same key.
        const char *const all[][4] = {{"F", "O", "actionOpen", "actionOrbit"},
                                      {"E", "O", "actionRotate", "actionOrbit"},
                                      {"V", "B", "actionCullBack", "actionSkeleton"},
                                      {"V", "H", nullptr, "actionHotPoints"}};
        const Hand hand({});
        for (const auto &[menu, item, wanted, other] : all) {
            const QSignalSpy done(find<QAction>(window, wanted ? wanted : other), &QAction::triggered);
            const QSignalSpy wrong(find<QAction>(window, other), &QAction::triggered);
            press(window, Qt::AltModifier, menu);
            QTRY_VERIFY(QApplication::activePopupWidget());
            press(window, {}, item);
            QTRY_COMPARE(done.count(), wanted ? 1 : 0);
            QCOMPARE(wrong.count(), 0);
            while (QApplication::activePopupWidget())
                QApplication::activePopupWidget()->close();
            QTRY_VERIFY(!QApplication::activePopupWidget());
            for (QDialog *dialog : window.findChildren<QDialog *>())
                dialog->close();
            window.activateWindow();
            QTRY_VERIFY(window.isActiveWindow());
        }
    }

    void altMayBeHeldThroughMenus()
    {
        ShownWindow window({m_files->save("a.staticmesh", wall({{QStringLiteral("_white"), {0, 1, 2}}}))});
        const auto *tabs = find<QTabWidget>(window, "tabWidget");
        find<QWidget>(window, "viewStatic")->setFocus();
        const QSignalSpy looked(find<QAction>(window, "actionLookBack"), &QAction::triggered);
        const auto key = [&window](bool down, int code, Qt::KeyboardModifiers held) {
            const QString text = code == Qt::Key_Alt ? QString() : QString(QChar(code).toLower());
            QTest::simulateEvent(window.windowHandle(), down, code, held, text, false);
        };
        key(true, Qt::Key_Alt, {});
        for (const int each : {Qt::Key_V, Qt::Key_J, Qt::Key_1}) {
            const QWidget *before = QApplication::activePopupWidget();
            key(true, each, Qt::AltModifier);
            key(false, each, Qt::AltModifier);
            QTRY_VERIFY(QApplication::activePopupWidget() != before);
        }
        key(false, Qt::Key_Alt, Qt::AltModifier);
        QTRY_COMPARE(tabs->currentIndex(), 0);
        QCOMPARE(looked.count(), 0);
    }

    void tabGoesRoundInTheOrderOfWork()
    {
        // Without folders, as on a first start, when nothing is to be got stuck in.
        ShownWindow window(
            {m_files->save("a.skinnedmesh", triangleMan()), m_files->save("a.anim", twoBlocks())});
        find<QTabWidget>(window, "tabTrees")->setCurrentIndex(0);
        find<QDockWidget>(window, "dockHistory")->show();
        auto *view = find<QWidget>(window, "viewSkinned");
        view->setFocus();
        const char *const order[] = {"viewSkinned",           "animTrackFrame", "treeSkinnedMesh",
                                     "treeSkinnedMeshFilter", "stackSkinned",   "viewHistory",
                                     "explorerSkinnedMesh",   "explorerAnim",   "viewSkinned"};
        for (const bool forward : {true, false}) {
            QVector<QWidget *> seen{view};
            do {
                QTest::keyClick(window.windowHandle(), forward ? Qt::Key_Tab : Qt::Key_Backtab);
                QWidget *focus = QApplication::focusWidget();
                QVERIFY(focus && focus->isVisible() && !qobject_cast<QScrollArea *>(focus));
                seen.append(focus);
            } while (seen.last() != view && seen.size() < 300);
            if (!forward)
                std::reverse(seen.begin(), seen.end());
            int at = 0;
            for (const char *name : order) {
                const auto *part = find<QWidget>(window, name);
                while (at < seen.size() && part != seen[at] && !part->isAncestorOf(seen[at]))
                    ++at;
                QVERIFY2(at < seen.size(), name);
            }
        }
    }

    void keysLeadToTabsAndPanes()
    {
        ShownWindow window(
            {m_files->save("a.skinnedmesh", triangleMan()), m_files->save("a.anim", twoBlocks())});
        auto *tabs = find<QTabWidget>(window, "tabWidget");
        auto *view = find<QWidget>(window, "viewSkinned");
        view->setFocus();
        for (const int tab : {5, 2, 3, 4, 1}) {
            QTest::keyClick(window.windowHandle(), Qt::Key(Qt::Key_0 + tab), Qt::ControlModifier);
            QCOMPARE(tabs->currentIndex(), tab - 1);
        }
        const auto inPane = [&](const char *name) {
            const auto *pane = find<QWidget>(window, name);
            QWidget *focus = QApplication::focusWidget();
            return pane == focus || pane->isAncestorOf(focus);
        };
        view->setFocus();
        const char *const panes[] = {"animTrackFrame",      "tabTrees",     "stackSkinned",
                                     "explorerSkinnedMesh", "explorerAnim", "viewSkinned"};
        for (const char *pane : panes) {
            QTest::keyClick(window.windowHandle(), Qt::Key_F6);
            QVERIFY2(inPane(pane), pane);
        }
        QTest::keyClick(window.windowHandle(), Qt::Key_F6, Qt::ShiftModifier);
        QVERIFY(inPane("explorerAnim"));
        auto *trees = find<QTabWidget>(window, "tabTrees");
        const int tree = trees->currentIndex();
        QTest::keyClick(window.windowHandle(), Qt::Key_T, Qt::ControlModifier);
        QCOMPARE(trees->currentIndex(), 1 - tree);
        QVERIFY(qobject_cast<KVTreeView *>(QApplication::focusWidget()));
    }

    void dialogsBesideTheModelLeaveItsKeys()
    {
        const QString path = m_files->save("a.skinnedmesh", triangleMan());
        const QByteArray before = TestSupport::readFile(path);
        ShownWindow window({path});
        for (const char *name : {"actionRotate", "actionScale"}) {
            find<QAction>(window, name)->trigger();
            QWidget *dialog = QApplication::activeWindow();
            QTRY_VERIFY((dialog = QApplication::activeWindow()) != &window && dialog);
            const auto *view = find<QWidget>(window, "viewSkinned");
            const QPoint middle = view->mapToGlobal(view->rect().center());
            QVERIFY(!dialog->frameGeometry().contains(middle));
            auto *field = dialog->findChild<QAbstractSpinBox *>();
            field->setFocus();
            field->selectAll();
            QTest::keyClick(dialog->windowHandle(), Qt::Key_2);
            find<QPushButton>(*dialog, "btnApply")->click();
            QVERIFY(window.windowTitle().endsWith(QStringLiteral(" * ")));
            QTest::keyClick(dialog->windowHandle(), Qt::Key_S, Qt::ControlModifier);
            QVERIFY(!window.windowTitle().endsWith(QStringLiteral(" * ")));
            QVERIFY(TestSupport::readFile(path) != before);
            find<QPushButton>(*dialog, "btnApply")->setFocus();
            QTest::keyClick(dialog->windowHandle(), Qt::Key_Z, Qt::ControlModifier);
            QTest::keyClick(dialog->windowHandle(), Qt::Key_S, Qt::ControlModifier);
            QCOMPARE(TestSupport::readFile(path), before);
            dialog->close();
        }
    }

private:
    static void press(MainWindow &window, Qt::KeyboardModifiers modifiers, const char *letter)
    {
        QTest::keyClick(window.windowHandle(), Qt::Key(*letter), modifiers);
    }

    std::optional<ProgramFolder> m_files;
};

QTEST_MAIN(tst_Keyboard)
#include "tst_keyboard.moc"
