// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Files.h"
#include "Hand.h"
#include "MaterialsDock.h"
#include "PackDialog.h"
#include "TextField.h"

/// File > Pack Mod… as a modder uses it.
class tst_ModPacking : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init()
    {
        m_files.emplace();
        QDir(m_files->path()).mkpath("game");
        QDir(m_files->path()).mkpath("mod");
        Settings::GamePath.setValue(m_files->path("game"));
        Settings::OutputDir.setValue(m_files->path("mod"));
        m_target = m_files->path("mod.kpf");
    }

    void packsWhatItShows()
    {
        const QString mesh = m_files->save("mod/models/man.skinnedmesh", triangleMan());
        m_files->put("mod/textures/a.png", "a picture");
        m_files->put("mod/notes.txt", "mine");
        m_files->put("mod/man.blend", "for another program");
        m_files->put("game/textures/A.png", "the game's");
        ShownWindow window({mesh});
        typeParent(window, 0); // unsaved
        QStringList groups, rows;
        const auto leaveNotesOut = [&](QDialog *dialog) {
            const auto *list = find<QTreeWidget>(*dialog, "listPack");
            QCOMPARE(titles(*list),
                     (QStringList{"Replace files of the game (1)", "New files (2)", "Left out (1)"}));
            QCOMPARE(names(*list->topLevelItem(0)), QStringList("textures/a.png"));
            QCOMPARE(names(*list->topLevelItem(1)), (QStringList{"models/man.skinnedmesh", "notes.txt"}));
            QCOMPARE(list->topLevelItem(2)->child(0)->text(1), QString("a source, for other programs"));
            QVERIFY(find<QCheckBox>(*dialog, "cbPackErrors")->isHidden());
            type(dialog, "txtPackLeaveOut", "*.txt; nothing/*"); // Return packs nothing yet
            QVERIFY(dialog->isVisible());
            QCOMPARE(titles(*list).last(), QString("Left out (2)"));
            QTimer::singleShot(0, button(dialog), &QPushButton::click);
        };
        {
            Hand hand({Hand::press(QMessageBox::Yes), orClose(leaveNotesOut)});
            menuAction(window)->trigger();
            QVERIFY(hand.seen.value(0).startsWith("Unsaved changes"));
        }
        QCOMPARE(Files::names(m_target + "/models", Files::Kind::File), QStringList("man.skinnedmesh"));
        QCOMPARE(Files::read(m_target + "/models/man.skinnedmesh", 1 << 20), TestSupport::readFile(mesh));
        QVERIFY(Files::isFile(m_target + "/textures/a.png") && !Files::isFile(m_target + "/notes.txt"));
        QVERIFY(find<QStatusBar>(window, "statusBar")->currentMessage().contains("packed: 2"));

        // The second time: what stays out is known, and what is there is asked about.
        const QByteArray first = TestSupport::readFile(m_target);
        m_files->put("mod/textures/b.png", "another");
        const auto pack = [](QDialog *dialog) { QTimer::singleShot(0, button(dialog), &QPushButton::click); };
        {
            Hand hand({pack, Hand::press(QMessageBox::No)});
            QTimer escape;
            connect(&escape, &QTimer::timeout, [&] {
                auto *dialog = qobject_cast<PackDialog *>(QApplication::activeModalWidget());
                if (dialog && hand.seen.size() == 2)
                    dialog->reject();
            });
            escape.start(20);
            menuAction(window)->trigger();
            QVERIFY(hand.seen.value(1).contains("exists already"));
        }
        QCOMPARE(TestSupport::readFile(m_target), first);
        {
            Hand hand({pack, Hand::press(QMessageBox::Yes)});
            menuAction(window)->trigger();
        }
        QVERIFY(Files::isFile(m_target + "/textures/b.png"));
    }

    void asksAboutMaterials()
    {
        const QString path =
            m_files->put("mod/materials/m.kmat", "material a { sampler \"d\" 0 \"a.png\" }\n");
        ShownWindow window({path});
        QCOMPARE(find<MaterialsDock>(window, "dockMaterials")->document().setTexture(0, 0, "b.png"),
                 QString());
        Hand hand({Hand::press(QMessageBox::Yes), Hand::reject});
        menuAction(window)->trigger();
        QVERIFY(hand.seen.value(0).contains("m.kmat"));
        QVERIFY(TestSupport::readFile(path).contains("b.png"));
    }

    void stopsAtErrors()
    {
        m_files->put("mod/half.anim", "no animation");
        m_files->put("mod/other.kmat", "material a { }\n");
        ShownWindow window;
        const auto refuse = [&](QDialog *dialog) {
            const auto *list = find<QTreeWidget>(*dialog, "listPack");
            QCOMPARE(titles(*list).first(), QString("Errors (1)"));
            QCOMPARE(list->topLevelItem(0)->child(0)->text(0), QString("half.anim"));
            QVERIFY(!button(dialog)->isEnabled());
            // What has none may go without it.
            type(dialog, "txtPackLeaveOut", "half.*");
            QVERIFY(button(dialog)->isEnabled());
            type(dialog, "txtPackLeaveOut", "");
            QVERIFY(!button(dialog)->isEnabled());
            auto *all = find<QCheckBox>(*dialog, "cbPackErrors");
            all->setFocus();
            QTest::keyClick(all, Qt::Key_Space);
            QTimer::singleShot(0, button(dialog), &QPushButton::click);
        };
        Hand hand({orClose(refuse)});
        menuAction(window)->trigger();
        QVERIFY(Files::isFile(m_target + "/half.anim"));
    }

    void staysOutOfTheGame()
    {
        m_files->put("mod/other.kmat", "material a { }\n");
        const QString inGame = m_files->put("game/game.kpf", "the game's");
        ShownWindow window;
        const auto choose = [&](QDialog *dialog) {
            type(dialog, "txtPackTarget", QDir::toNativeSeparators(inGame));
            QVERIFY(dialog->isVisible());
            QVERIFY(find<TextField>(*dialog, "txtPackTarget")->refusal().contains("game folder"));
            dialog->reject();
        };
        {
            Hand hand({orClose(choose)});
            menuAction(window)->trigger();
            QCOMPARE(hand.seen.size(), 1);
        }
        QCOMPARE(TestSupport::readFile(inGame), QByteArray("the game's"));

        Settings::OutputDir.setValue(QString());
        Hand told({Hand::press(QMessageBox::Ok)});
        menuAction(window)->trigger();
        QVERIFY(told.seen.value(0).contains("no mod folder"));
    }

private:
    static QAction *menuAction(const QWidget &window) { return find<QAction>(window, "actionPackMod"); }
    /// A dialog that is not as it should be does not stay open.
    static Hand::Answer orClose(const Hand::Answer &answer)
    {
        return [answer](QDialog *dialog) {
            answer(dialog);
            if (QTest::currentTestFailed())
                dialog->reject();
        };
    }
    static void type(QDialog *dialog, const char *name, const QString &text)
    {
        auto *line = find<QLineEdit>(*dialog, name);
        QApplication::setActiveWindow(dialog);
        line->setFocus();
        QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, text);
        QTest::keyClick(line, Qt::Key_Return);
    }
    static QPushButton *button(QDialog *dialog)
    {
        return find<QDialogButtonBox>(*dialog, "buttonBox")->button(QDialogButtonBox::Ok);
    }
    static QStringList titles(const QTreeWidget &list)
    {
        QStringList all;
        for (int i = 0; i < list.topLevelItemCount(); ++i)
            all += list.topLevelItem(i)->text(0);
        return all;
    }
    static QStringList names(const QTreeWidgetItem &group)
    {
        QStringList all;
        for (int i = 0; i < group.childCount(); ++i)
            all += group.child(i)->text(0);
        return all;
    }

    std::optional<ProgramFolder> m_files;
    QString m_target;
};

QTEST_MAIN(tst_ModPacking)
#include "tst_modpacking.moc"
