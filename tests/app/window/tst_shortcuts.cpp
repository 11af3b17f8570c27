// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Shortcuts.h"

#include "Hand.h"
#include "Playback.h"

/// The list of all keys, and the page of the options that changes them.
class tst_Shortcuts : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_files.emplace(); }
    void nothingWithKeysIsLeftOutOrCollides()
    {
        const MainWindow window;
        const auto *shortcuts = window.findChild<Shortcuts *>();
        QSet<const QAction *> listed;
        QSet<QString> ids;
        QSet<QString> titles;
        for (const ShortcutCommand &command : shortcuts->commands()) {
            for (const QAction *action : command.actions)
                listed.insert(action);
            const QString title = command.group + QLatin1Char('|') + command.name;
            QVERIFY2(!command.name.isEmpty() && !titles.contains(title), qPrintable(title));
            titles.insert(title);
            QVERIFY2(command.actions.isEmpty() || !ids.contains(command.id), qPrintable(command.id));
            QVERIFY2(!command.id.contains(QLatin1Char('=')), qPrintable(command.id));
            QVERIFY2(command.group != QLatin1String("Others"), qPrintable(title));
            ids.insert(command.id);
        }
        // Whatever has keys, and whatever the menus offer at all times.
        for (const QAction *action : window.findChildren<QAction *>()) {
            if (!action->shortcuts().isEmpty() && action->shortcuts() != Keys{QKeySequence()})
                QVERIFY2(listed.contains(action), qPrintable(action->objectName() + action->text()));
        }
        const QMenu *recent = find<QMenu>(window, "menuRecent");
        for (const QMenu *menu : find<QMenuBar>(window, "menuBar")->findChildren<QMenu *>()) {
            for (const QAction *action : menu->actions()) {
                if (menu != recent && !action->isSeparator() && !action->menu())
                    QVERIFY2(listed.contains(action), qPrintable(action->text()));
            }
        }
        QVERIFY(window.findChildren<QShortcut *>().isEmpty());

        // By usual keys.
        for (int i = 0; i < shortcuts->commands().size(); ++i) {
            for (const int rival : shortcuts->rivals(i, shortcuts->keys()))
                QFAIL(qPrintable(shortcuts->commands()[i].name + QLatin1Char('|') +
                                 shortcuts->commands()[rival].name));
        }
    }

    void keysAreChangedByHand()
    {
        {
            ShownWindow window;
            QAction *about = find<QAction>(window, "actionAbout");
            QAction *fullScreen = find<QAction>(window, "actionFullScreen");
            const Hand hand({answer([](QDialog *dialog) {
                                 choose(dialog, QStringLiteral("about"));
                                 QCOMPARE(row(dialog), QStringLiteral("About Korvane|"));
                                 typeKeys(dialog, Qt::Key_F9, Qt::ControlModifier);
                                 QCOMPARE(row(dialog), QStringLiteral("About Korvane|Ctrl+F9"));
                                 // A keypad's key is one of its own where such are usual.
                                 choose(dialog, QStringLiteral("num+5"));
                                 typeKeys(dialog, Qt::Key_9, Qt::KeypadModifier);
                                 QVERIFY(row(dialog).endsWith(QStringLiteral("|Num+9")));
                                 find<QPushButton>(*dialog, "btnShortcutReset")->click();
                                 // Shift alone is no key, and another command's keys are its own.
                                 choose(dialog, QStringLiteral("full screen"));
                                 QTest::keyClick(find<QKeySequenceEdit>(*dialog, "editShortcutKeys"),
                                                 Qt::Key_Shift);
                                 choose(dialog, QStringLiteral("f11"));
                                 QCOMPARE(row(dialog), QStringLiteral("Full Screen|F11"));
                                 find<QPushButton>(*dialog, "btnShortcutClear")->click();
                                 press(dialog, QDialogButtonBox::Ok);
                             }),
                             Hand::reject});
            find<QAction>(window, "actionPreferences")->trigger();
            QCOMPARE(about->shortcut(), QKeySequence(QStringLiteral("Ctrl+F9")));
            QCOMPARE(about->toolTip(), QStringLiteral("Version and licenses (Ctrl+F9)"));
            QVERIFY(fullScreen->shortcut().isEmpty());
            QCOMPARE(fullScreen->toolTip(), QStringLiteral("Use the whole screen"));
            QCOMPARE(Settings::Shortcuts.value(), QStringList({"actionFullScreen=", "actionAbout=Ctrl+F9"}));
            // They do what they should.
            QApplication::setActiveWindow(&window);
            QTest::keyClick(&window, Qt::Key_F9, Qt::ControlModifier);
            QTRY_COMPARE(hand.seen.size(), 2);
            QCOMPARE(hand.seen.last(), QStringLiteral("About"));
        }
        const MainWindow window;
        QCOMPARE(find<QAction>(window, "actionAbout")->toolTip(), QString("Version and licenses (Ctrl+F9)"));
        QVERIFY(find<QAction>(window, "actionFullScreen")->shortcut().isEmpty());
    }

    void collidingKeysAreNotTakenSilently()
    {
        ShownWindow window;
        QAction *about = find<QAction>(window, "actionAbout");
        QAction *redo = find<QAction>(window, "actionRedo");
        QString question;
        const Hand hand({answer([&question](QDialog *dialog) {
            choose(dialog, QStringLiteral("about"));
            // One of two that redo has.
            typeKeys(dialog, Qt::Key_Y, Qt::ControlModifier);
            auto *tree = find<QTreeWidget>(*dialog, "treeShortcuts");
            QVERIFY(tree->currentItem()->toolTip(1).contains(QStringLiteral("Edit ▸ Redo")));
            QVERIFY(tree->currentItem()->foreground(1).color().red() > 150);
            const auto *label = find<QLabel>(*dialog, "lblShortcutConflict");
            QVERIFY(label->text().contains(QStringLiteral("Edit ▸ Redo")));
            QTimer::singleShot(0, dialog, [&question] {
                auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                QVERIFY(box);
                question = box->text();
                box->button(QMessageBox::No)->click();
            });
            press(dialog, QDialogButtonBox::Ok);
            QVERIFY(dialog->isVisible());
            QVERIFY(!Settings::Shortcuts.exists());
            choose(dialog, QStringLiteral("about"));
            find<QPushButton>(*dialog, "btnShortcutTake")->click();
            QVERIFY(label->text().isEmpty());
            press(dialog, QDialogButtonBox::Ok);
        })});
        find<QAction>(window, "actionPreferences")->trigger();
        QVERIFY2(question.contains("Ctrl+Y") && question.contains("Help ▸ About Korvane"),
                 qPrintable(question));
        QCOMPARE(about->shortcuts(), Keys{QKeySequence(QStringLiteral("Ctrl+Y"))});
        QCOMPARE(redo->shortcuts(), Keys{QKeySequence(QStringLiteral("Ctrl+Shift+Z"))});
    }

    void whatIsResetIsNotStored()
    {
        Settings::Shortcuts.setValue({"actionSave=F2", "actionOpen=", "actionOfTomorrow=F3"});
        ShownWindow window;
        QCOMPARE(find<QAction>(window, "actionSave")->shortcut(), QKeySequence(Qt::Key_F2));
        const Hand hand({answer([](QDialog *dialog) {
                             choose(dialog, QStringLiteral("f2"));
                             QCOMPARE(row(dialog), QStringLiteral("Save|F2"));
                             find<QPushButton>(*dialog, "btnShortcutReset")->click();
                             QCOMPARE(row(dialog), QStringLiteral("Save|Ctrl+S"));
                             press(dialog, QDialogButtonBox::Ok);
                         }),
                         answer([](QDialog *dialog) {
                             choose(dialog, QStringLiteral("open"));
                             find<QPushButton>(*dialog, "btnShortcutResetAll")->click();
                             QCOMPARE(row(dialog), QStringLiteral("Open|Ctrl+O"));
                             press(dialog, QDialogButtonBox::Cancel);
                         })});
        find<QAction>(window, "actionPreferences")->trigger();
        // What is not known here may be known to another version.
        QCOMPARE(Settings::Shortcuts.value(), QStringList({"actionOfTomorrow=F3", "actionOpen="}));
        find<QAction>(window, "actionPreferences")->trigger();
        QVERIFY(find<QAction>(window, "actionOpen")->shortcut().isEmpty());
    }

    void anyKeysMayBeStored()
    {
        Settings::Shortcuts.setValue(
            {"=", "actionSave", QString(), "actionOpen=no such keys; at all",
             "actionExit=Ctrl+; Ctrl+Hyper; Ctrl+E",
             "actionAbout=Ctrl+K, Ctrl+B; Ctrl+=", QString(100000, QLatin1Char('x')) + QLatin1String("=F2")});
        const MainWindow window;
        QCOMPARE(find<QAction>(window, "actionSave")->shortcut(), QKeySequence(QString("Ctrl+S")));
        QCOMPARE(find<QAction>(window, "actionOpen")->shortcut(), QKeySequence(QString("Ctrl+O")));
        QCOMPARE(find<QAction>(window, "actionExit")->shortcuts(), Keys{QKeySequence(QString("Ctrl+E"))});
        QCOMPARE(find<QAction>(window, "actionAbout")->shortcuts(),
                 (Keys{QKeySequence(QString("Ctrl+K, Ctrl+B")), QKeySequence(QString("Ctrl+="))}));
    }

    void placesDecideWhatCollides()
    {
        const MainWindow window;
        const auto *shortcuts = window.findChild<Shortcuts *>();
        const auto rivals = [shortcuts](const char *first, const char *firstKeys, const char *second,
                                        const char *secondKeys) {
            QVector<Keys> keys(shortcuts->commands().size());
            const int other = indexOf(*shortcuts, second);
            keys[indexOf(*shortcuts, first)] = {QKeySequence(QLatin1String(firstKeys))};
            keys[other] = {QKeySequence(QLatin1String(secondKeys))};
            return shortcuts->rivals(indexOf(*shortcuts, first), keys).contains(other);
        };
        QVERIFY(rivals("actionSave", "F2", "actionOpen", "F2"));
        QVERIFY(rivals("actionSave", "F2", "actionTreeAdd", "F2"));
        QVERIFY(!rivals("actionTreeAdd", "F2", "actionFolderOpen", "F2"));
        QVERIFY(!rivals("actionConsoleCopy", "F2", "actionTreeCopy", "F2"));
        // A key that begins another never lets that one be finished.
        QVERIFY(rivals("actionSave", "Ctrl+K", "actionOpen", "Ctrl+K, S"));
        QVERIFY(!rivals("actionSave", "Ctrl+K, O", "actionOpen", "Ctrl+K, S"));
        // The viewport flies by keys of its own; it is a part of the timeline's panel, not of the trees.
        const auto inTheWayOfFlight = [shortcuts](const char *id) {
            QVector<Keys> keys = shortcuts->keys();
            keys[indexOf(*shortcuts, id)] = {QKeySequence(Qt::Key_W)};
            return !shortcuts->rivals(indexOf(*shortcuts, id), keys).isEmpty();
        };
        QVERIFY(inTheWayOfFlight("actionSave"));
        QVERIFY(inTheWayOfFlight("actionAnimTrackPlay"));
        QVERIFY(!inTheWayOfFlight("actionTreeAdd"));
    }

    void keysOfPanelsAndFields()
    {
        Settings::Shortcuts.setValue({"actionAnimTrackPlayOrPause=P", "actionAsk_damage=Ctrl+D",
                                      "actionTreeExpand=Ctrl+Right", "actionSave=F2",
                                      QString("actionFilter=Ctrl+Shift+F")});
        AnimFile file = twoBlocks();
        file.blocks[0].actions.resize(1);
        Settings::AnimationAutoPlay.setValue(false);
        ShownWindow window({m_files->save("a.skinnedmesh", triangleMan()), m_files->save("a.anim", file)});
        auto *view = find<QWidget>(window, "viewSkinned");
        view->setFocus();
        QTest::keyClick(view, Qt::Key_Space);
        QCOMPARE(playback().playState, PlayState::InitialPose);
        QTest::keyClick(view, Qt::Key_P);
        QCOMPARE(playback().playState, PlayState::Playing);
        QCOMPARE(find<QToolButton>(window, "btnAnimTrackStepBack")->toolTip(),
                 QStringLiteral("Go back one frame (,)"));

        auto *tree = find<KVTreeView>(window, "treeSkinnedMesh");
        find<QTabWidget>(window, "tabTrees")->setCurrentIndex(0);
        tree->setFocus();
        QVERIFY(!tree->topLevelItem(0)->child(0)->isExpanded());
        QTest::keyClick(tree, Qt::Key_Right, Qt::ControlModifier);
        QVERIFY(tree->topLevelItem(0)->child(0)->isExpanded());

        // The question goes to the field with the focus, and to no other.
        find<QTabWidget>(window, "tabTrees")->setCurrentIndex(1);
        tree = find<KVTreeView>(window, "treeAnim");
        select(window, "treeAnim", {{RecordKind::AnimAction, {0, 0}}});
        tree->setFocus();
        QStringList keys;
        const Hand hand({Hand::press(QMessageBox::Ok), [&keys](QDialog *dialog) {
                             for (QTreeWidgetItem *item :
                                  find<QTreeWidget>(*dialog, "treeControls")
                                      ->findItems(QStringLiteral("Save"), Qt::MatchRecursive, 1))
                                 keys << item->text(0);
                             dialog->reject();
                         }});
        QTest::keyClick(tree, Qt::Key_D, Qt::ControlModifier);
        QWidget *damage = nullptr;
        for (auto *box : find<QWidget>(window, "pagesAnim")->findChildren<QAbstractSpinBox *>()) {
            if (box->isVisible() && box->property("questions").toStringList().contains("damage"))
                damage = box;
        }
        QVERIFY(damage);
        damage->setFocus();
        QTest::keyClick(damage, Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(hand.seen.size(), 1);
        QVERIFY2(hand.seen.first().startsWith(QString("Actual Damage|")), qPrintable(hand.seen.first()));

        // What tells of keys follows.
        QVERIFY(find<QLineEdit>(window, "treeAnimFilter")->toolTip().endsWith(" (Ctrl+Shift+F)"));
        find<QAction>(window, "actionControls")->trigger();
        QCOMPARE(keys, QStringList(QStringLiteral("F2")));
    }

private:
    static int indexOf(const Shortcuts &shortcuts, const char *id)
    {
        for (int i = 0; i < shortcuts.commands().size(); ++i) {
            if (shortcuts.commands()[i].id == QLatin1String(id))
                return i;
        }
        qFatal("no command %s", id);
    }
    /// An answer in which something may fail: no dialog is left to wait for another.
    static Hand::Answer answer(const std::function<void(QDialog *)> &body)
    {
        return [body](QDialog *dialog) {
            body(dialog);
            if (dialog->isVisible())
                dialog->reject();
        };
    }
    static void press(QDialog *dialog, QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(find<QDialogButtonBox>(*dialog, "buttonBox")->button(button), Qt::LeftButton);
    }
    /// Opens the page and goes to the first command that fits the filter, as the keyboard does it.
    static void choose(QDialog *dialog, const QString &filter)
    {
        QApplication::setActiveWindow(dialog);
        QTest::keyClick(dialog, Qt::Key_S, Qt::AltModifier);
        auto *line = find<QLineEdit>(*dialog, "txtShortcutFilter");
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, "x");
        QTest::keyClick(line, Qt::Key_Escape);
        QVERIFY(dialog->isVisible() && line->text().isEmpty());
        QTest::keyClicks(line, filter);
        QTest::keyClick(line, Qt::Key_Return);
        QTest::keyClick(find<QTreeWidget>(*dialog, "treeShortcuts"), Qt::Key_Return);
        QVERIFY(find<QKeySequenceEdit>(*dialog, "editShortcutKeys")->hasFocus());
    }
    static void typeKeys(QDialog *dialog, Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        auto *edit = find<QKeySequenceEdit>(*dialog, "editShortcutKeys");
        QTest::keyClick(edit, key, modifiers);
        QTest::keyClick(edit, Qt::Key_Tab);
        QVERIFY(!edit->hasFocus());
    }
    static QString row(QDialog *dialog)
    {
        const QTreeWidgetItem *item = find<QTreeWidget>(*dialog, "treeShortcuts")->currentItem();
        return item->text(0) + QLatin1Char('|') + item->text(1);
    }

    std::optional<ProgramFolder> m_files;
};

QTEST_MAIN(tst_Shortcuts)
#include "tst_shortcuts.moc"
