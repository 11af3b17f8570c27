// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileRun.h"
#include "FloatSpinBox.h"
#include "Hand.h"
#include "SampleModels.h"
#include "SpecialFiles.h"

#include <QDialogButtonBox>
#include <QToolButton>
#include <QTreeWidget>

/// Replacements in all files of the mod, from the menu.
class tst_ReplaceFiles : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_home = std::make_unique<ProgramFolder>();
        Settings::AnimationAutoPlay.setValue(false);
        Settings::OutputDir.setValue(m_home->path());
        SkinnedMesh mesh = SampleModels::plainMesh();
        mesh.nodes[2].damageScale = 4.0f;
        for (const char *name : {"a", "b", "c"}) {
            m_files.insert(name, m_home->path() + QStringLiteral("/%1.skinnedmesh").arg(QLatin1String(name)));
            QVERIFY(!mesh.write(m_files[name]));
        }
        for (FileRun &run : FileRun::all(FileRun::defaultRoot()))
            run.forget();
    }
    void cleanup() { m_window.reset(); }

    void listsReplacesAndUndoes()
    {
        // One is open, another one has changes of its own.
        open(m_files["a"]);
        const QByteArray before = TestSupport::readFile(m_files["b"]);
        {
            const Hand hand({[&](QDialog *dialog) {
                const Closing closing(dialog);
                QVERIFY(QTest::qWaitForWindowActive(dialog));
                QTest::keyClicks(find<QLineEdit>(*dialog, "txtReplaceCondition"), "bone in nobody");
                find<QComboBox>(*dialog, "cbReplaceField")->setEditText("name");
                QTest::mouseClick(button(dialog, "btnReplaceList"), Qt::LeftButton);
                QTRY_VERIFY(find<QLabel>(*dialog, "lblReplaceState")->text().contains("nobody"));
                find<QComboBox>(*dialog, "cbReplaceField")->setEditText({});
                find<QLineEdit>(*dialog, "txtReplaceCondition")->setFocus();
                find<QLineEdit>(*dialog, "txtReplaceCondition")->selectAll();
                listChange(dialog, "=x*2");
                auto *tree = find<QTreeWidget>(*dialog, "treeReplacements");
                QTRY_COMPARE(tree->topLevelItemCount(), 3);
                QCOMPARE(find<QLabel>(*dialog, "lblReplaceState")->text(),
                         QString("Values that would change: 3; files: 3."));
                const QTreeWidgetItem *value = tree->topLevelItem(1)->child(0);
                QCOMPARE((QStringList{value->text(0), value->text(1), value->text(2)}),
                         (QStringList{"Bones \u203A 2 \u203A Damage Scale", "4", "8"}));
                QCOMPARE(TestSupport::readFile(m_files["b"]), before);
                // Another value: what was listed is not what would be done.
                QTest::keyClicks(find<QLineEdit>(*dialog, "txtReplaceValue"), "+1");
                QCOMPARE(tree->topLevelItemCount(), 0);
                QVERIFY(!button(dialog, "btnReplaceFiles")->isEnabled());
                QTest::keyClick(find<QLineEdit>(*dialog, "txtReplaceValue"), Qt::Key_Return);
                QTRY_COMPARE(tree->topLevelItemCount(), 3);
                // The last one is not meant.
                tree->setFocus();
                tree->setCurrentItem(tree->topLevelItem(2));
                QTest::keyClick(tree, Qt::Key_Space);
                QTest::mouseClick(button(dialog, "btnReplaceFiles"), Qt::LeftButton);
                QTRY_VERIFY(
                    find<QLabel>(*dialog, "lblReplaceState")->text().startsWith("Replaced. Files: 2."));
            }});
            action("actionReplaceInFiles")->trigger();
            QCOMPARE(hand.seen, QStringList("Replace in Files"));
        }
        QCOMPARE(damage("a"), 9.0f);
        QCOMPARE(damage("b"), 9.0f);
        QCOMPARE(damage("c"), 4.0f);
        // What is open follows.
        const auto shown = [this] {
            selectBone();
            return find<FloatSpinBox>(*m_window, "sbNodeDamageScale")->value();
        };
        QTRY_COMPARE(shown(), 9.0f);

        const Hand undoing({[&](QDialog *dialog) {
            const Closing closing(dialog);
            auto *runs = find<QTreeWidget>(*dialog, "treeRuns");
            QCOMPARE(runs->topLevelItemCount(), 1);
            QCOMPARE(runs->topLevelItem(0)->text(1), QString("damage scale > 3: damage scale = =x*2+1"));
            QVERIFY(!button(dialog, "btnRunFinish")->isEnabled());
            QTest::mouseClick(button(dialog, "btnRunUndo"), Qt::LeftButton);
            QTRY_COMPARE(runs->topLevelItem(0)->text(3), QString("undone"));
            QVERIFY(button(dialog, "btnRunFinish")->isEnabled());
        }});
        action("actionFileRuns")->trigger();
        QCOMPARE(undoing.seen.size(), 1);
        for (const char *name : {"a", "b", "c"})
            QCOMPARE(TestSupport::readFile(m_files[name]), before);
    }

    void whatCannotBeIsLeftOut()
    {
        QVERIFY(TestSupport::writeFile(m_files["c"], "no model"));
        open(m_files["a"]);
        auto *name = find<FloatSpinBox>(*m_window, "sbNodeDamageScale");
        name->setFocus();
        QTest::keyClick(name, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(name, "3.5");
        QTest::keyClick(name, Qt::Key_Return);
        const QByteArray mine = TestSupport::readFile(m_files["a"]);
        const Hand hand({[&](QDialog *dialog) {
            const Closing closing(dialog);
            auto *tree = find<QTreeWidget>(*dialog, "treeReplacements");
            listChange(dialog, "7");
            // A folder in which some files are passed over comes first.
            SpecialFiles::withNameWithoutText(m_home->path(), [&] {
                QTest::mouseClick(button(dialog, "btnReplaceList"), Qt::LeftButton);
                QTRY_COMPARE(tree->topLevelItemCount(), 4);
                QVERIFY(tree->topLevelItem(0)->text(0).startsWith(m_home->path() + ": The name of"));
                QVERIFY(!(tree->topLevelItem(0)->flags() & Qt::ItemIsUserCheckable));
                QCOMPARE(find<QLabel>(*dialog, "lblReplaceState")->text(),
                         QString("Values that would change: 1; files: 1. Left out: 3."));
            });
            QTest::mouseClick(button(dialog, "btnReplaceList"), Qt::LeftButton);
            QTRY_COMPARE(tree->topLevelItemCount(), 3);
            QVERIFY(tree->topLevelItem(0)->text(0).contains("has unsaved changes"));
            QVERIFY(!(tree->topLevelItem(2)->flags() & Qt::ItemIsUserCheckable));
            QTest::mouseClick(button(dialog, "btnReplaceFiles"), Qt::LeftButton);
            QTRY_VERIFY(find<QLabel>(*dialog, "lblReplaceState")->text().startsWith("Replaced. Files: 1."));
        }});
        action("actionReplaceInFiles")->trigger();
        QCOMPARE(hand.seen.size(), 1);
        QCOMPARE(damage("b"), 7.0f);
        QCOMPARE(TestSupport::readFile(m_files["a"]), mine);
        QCOMPARE(TestSupport::readFile(m_files["c"]), QByteArray("no model"));
        find<QAction>(*m_window, "actionUndo")->trigger();
    }

    void aRunThatWasBrokenOffIsOffered()
    {
        const QByteArray before = TestSupport::readFile(m_files["a"]);
        {
            FileRun run(FileRun::defaultRoot(), QStringLiteral("new words"));
            for (const char *name : {"a", "b"})
                QCOMPARE(run.add(m_files[name], before, "after"), QString());
            const std::atomic_bool cancelled{true};
            QVERIFY(!run.apply({&cancelled, nullptr}).isWhole);
        }
        QVERIFY(TestSupport::writeFile(m_files["a"], "after"));
        open(m_files["c"]);
        auto *show = find<QToolButton>(*m_window, "btnRunBrokenOff");
        QTRY_VERIFY(show->isVisible());
        const Hand hand({[&](QDialog *dialog) {
            const Closing closing(dialog);
            QCOMPARE(button(dialog, "btnRunFinish")->text(), QString("&Finish"));
            QTest::mouseClick(button(dialog, "btnRunUndo"), Qt::LeftButton);
            QTRY_COMPARE(TestSupport::readFile(m_files["a"]), before);
        }});
        QTest::mouseClick(show, Qt::LeftButton);
        QCOMPARE(hand.seen, QStringList("Replacements in Files"));
        QTRY_VERIFY(!show->isVisible());
        QCOMPARE(TestSupport::readFile(m_files["b"]), before);
    }

private:
    void open(const QString &path)
    {
        m_window = std::make_unique<ShownWindow>(QStringList{path});
        m_window->resize(1366, 768);
        QTRY_COMPARE(find<KVTreeView>(*m_window, "treeSkinnedMesh")->topLevelItemCount(), 1);
        selectBone();
    }

    void selectBone()
    {
        find<KVTreeView>(*m_window, "treeSkinnedMesh")
            ->selectRecords({{RecordKind::Bone, {2}}}, {RecordKind::Bone, {2}});
    }

    static void listChange(QDialog *dialog, const char *value)
    {
        auto *condition = find<QLineEdit>(*dialog, "txtReplaceCondition");
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        QTRY_VERIFY(condition->hasFocus());
        QTest::keyClicks(condition, "damage scale > 3");
        QTest::keyClick(condition, Qt::Key_Tab);
        QCOMPARE(find<QComboBox>(*dialog, "cbReplaceField")->currentText(), QString("damage scale"));
        auto *line = find<QLineEdit>(*dialog, "txtReplaceValue");
        line->setFocus();
        QTest::keyClicks(line, value);
        QTest::keyClick(line, Qt::Key_Return);
    }

    static QPushButton *button(QDialog *dialog, const char *name) { return find<QPushButton>(*dialog, name); }
    QAction *action(const char *name) { return find<QAction>(*m_window, name); }

    float damage(const char *name)
    {
        SkinnedMesh mesh;
        return mesh.read(m_files[name]) ? -1.0f : mesh.nodes[2].damageScale;
    }

    std::unique_ptr<ProgramFolder> m_home;
    std::unique_ptr<ShownWindow> m_window;
    QHash<QByteArray, QString> m_files;
};

QTEST_MAIN(tst_ReplaceFiles)
#include "tst_replacefiles.moc"
