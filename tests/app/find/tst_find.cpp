// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FoundList.h"
#include "Hand.h"
#include "SampleModels.h"

/// The window with a mesh and its animations, and what is found in them.
class tst_Find : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_home = std::make_unique<ProgramFolder>();
        Settings::AnimationAutoPlay.setValue(false);
        const QString mesh = m_home->path() + QStringLiteral("/man.skinnedmesh");
        const QString anim = m_home->path() + QStringLiteral("/man.anim");
        SkinnedMesh model = SampleModels::plainMesh();
        for (size_t i = 0; i < 4; ++i)
            model.nodes[i].damageScale = float(i);
        for (size_t i = 0; i < 3; ++i)
            model.hotPoints[i].origin = {float(i) + 0.5f, 0.0f, 0.0f};
        AnimFile file = SampleModels::plainAnim();
        for (size_t i = 0; i < 3; ++i) {
            file.blocks[i].speed = 30.0f;
            file.blocks[i].animId = int(i) + 5;
            for (size_t k = 0; k < 3; ++k) {
                AnimAction &action = file.blocks[i].actions[k];
                action = AnimAction();
                action.frame = quint16(k);
                action.args[0] = k == 0 ? 13.0f : 12.0f;
            }
        }
        QVERIFY(!model.write(mesh) && !file.write(anim));
        m_window = std::make_unique<ShownWindow>(QStringList{mesh, anim});
        m_window->resize(1366, 768);
        QTRY_COMPARE(tree("treeSkinnedMesh")->topLevelItemCount(), 1);
        QTRY_COMPARE(tree("treeAnim")->topLevelItemCount(), 1);
        find<QTabWidget>(*m_window, "tabTrees")->setCurrentIndex(0);
        tree("treeSkinnedMesh")->setFocus();
    }
    void cleanup() { m_window.reset(); }

    void keysFindAndLead()
    {
        search("damage scale > 1");
        QCOMPARE(records(), QStringList({"Bones \u203A 2: Left Root", "Bones \u203A 3: Left Root"}));
        QCOMPARE(list()->model()->index(0, FoundRows::FieldColumn).data().toString(),
                 QStringLiteral("Damage Scale"));
        QCOMPARE(list()->model()->index(1, FoundRows::ValueColumn).data().toString(), QStringLiteral("3"));
        QCOMPARE(find<QLabel>(*m_window, "lblFindCount")->text(), QStringLiteral("Hits: 2"));
        // The first is shown, the line keeps the keys; Enter again and F3 goes around, wherever they are.
        QVERIFY(line()->hasFocus());
        const auto current = [this] { return tree("treeSkinnedMesh")->currentRecord().index[0]; };
        QCOMPARE(current(), 2);
        QTest::keyClick(line(), Qt::Key_Return);
        QCOMPARE(current(), 3);
        QTest::keyClick(line(), Qt::Key_F3);
        QCOMPARE(current(), 2);
        QTest::keyClick(line(), Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(current(), 3);
        // A click shows the record, Enter goes to it, Escape leaves.
        const QPoint first = list()->visualRect(list()->model()->index(0, 0)).center();
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, first);
        QCOMPARE(current(), 2);
        QVERIFY(list()->hasFocus());
        QTest::keyClick(list(), Qt::Key_Return);
        QVERIFY(tree("treeSkinnedMesh")->hasFocus());
        QTest::keyClick(tree("treeSkinnedMesh"), Qt::Key_H, Qt::ControlModifier);
        QVERIFY(line()->hasFocus() && line()->selectedText() == QLatin1String("damage scale > 1"));
        QTest::keyClick(line(), Qt::Key_Down);
        QVERIFY(list()->hasFocus());
        QTest::keyClick(list(), Qt::Key_Escape);
        QVERIFY(tree("treeSkinnedMesh")->hasFocus());
        // What is no condition says why; one that nothing meets finds nothing. Neither is kept for later.
        search("damage scale");
        QVERIFY2(state().contains(QLatin1String("comparison is wanted")), qPrintable(state()));
        QCOMPARE(list()->model()->rowCount(), 0);
        search("damage scale > 9");
        QCOMPARE(list()->accessibleDescription(), QStringLiteral("No record meets the condition."));
        QVERIFY(Settings::FindHistory.value().contains(QStringLiteral("damage scale > 1")));
        QVERIFY(!Settings::FindHistory.value().contains(QStringLiteral("damage scale")));
        QCOMPARE(undo(DocumentType::SkinnedMesh).count(), 0);
    }

    void hitsFollowEdits()
    {
        search("hot points position > 0");
        QCOMPARE(records().size(), 3);
        select(*m_window, "treeSkinnedMesh", {{RecordKind::HotPoint, {1}}});
        tree("treeSkinnedMesh")->setFocus();
        QTest::keyClick(tree("treeSkinnedMesh"), Qt::Key_Delete);
        QTRY_COMPARE(records().size(), 2);
        undo(DocumentType::SkinnedMesh).undo();
        QTRY_COMPARE(records().size(), 3);
        auto *field = find<QAbstractSpinBox>(*m_window, "sbHPOriginX");
        select(*m_window, "treeSkinnedMesh", {{RecordKind::HotPoint, {0}}});
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QStringLiteral("-1"));
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(records().size(), 2);
        undo(DocumentType::SkinnedMesh).setIndex(0);
        QTRY_COMPARE(records().size(), 3);
    }

    void whereIsSearched()
    {
        auto *scope = find<QComboBox>(*m_window, "cbFindScope");
        search("bone 1-2 or frame 1");
        const int inMesh = records().size();
        QVERIFY(inMesh >= 2);
        choose(scope, 2);
        QVERIFY(records().size() > inMesh);
        // Below what is selected; the hits that are looked at meanwhile change nothing.
        find<QTabWidget>(*m_window, "tabTrees")->setCurrentIndex(1);
        select(*m_window, "treeAnim", {{RecordKind::AnimActions, {1}}});
        choose(scope, 1);
        search("sound 12");
        QCOMPARE(records().size(), 2);
        QTest::keyClick(line(), Qt::Key_F3);
        search("sound 12-13");
        QCOMPARE(records().size(), 3);
        search("sound 12");
        choose(scope, 0);
        QCOMPARE(records().size(), 6);
        // All of them are selected, and their page edits them.
        find<QPushButton>(*m_window, "btnFindSelectAll")->click();
        QCOMPARE(tree("treeAnim")->selectedRecords(RecordKind::AnimAction).size(), 6);
        QVERIFY(tree("treeAnim")->hasFocus());
        QCOMPARE(undo(DocumentType::Anim).count(), 0);
    }

    void oneStepForEachDocument()
    {
        choose(find<QComboBox>(*m_window, "cbFindScope"), 2);
        search("damage scale > 1 or sound = 12");
        QCOMPARE(records().size(), 8);
        // A field that only some have is refused in all.
        replaceAll("sound", "1");
        QVERIFY2(state().contains(QStringLiteral("Bones \u203A 2")), qPrintable(state()));
        search("bones bone 3 or actions frame 1");
        const int count = records().size();
        replaceAll("bone", "1");
        QVERIFY2(state().contains(QLatin1String("has no 'bone'")), qPrintable(state()));
        QVERIFY(undo(DocumentType::SkinnedMesh).count() == 0 && undo(DocumentType::Anim).count() == 0);
        search("hot points or actions");
        QCOMPARE(records().size(), 12);
        QVERIFY(count > 0);
        replaceAll("bone", "=i");
        QCOMPARE(state(), QStringLiteral("Changed records: 11, in 2 documents")); // bone 0 was there
        QVERIFY(undo(DocumentType::SkinnedMesh).count() == 1 && undo(DocumentType::Anim).count() == 1);
        QCOMPARE(undo(DocumentType::Anim).undoText(), QStringLiteral("Replace bone (9)"));
        replaceAll("bone", "70000");
        QVERIFY2(
            state().startsWith(QStringLiteral("Nothing was changed. Hot Points \u203A 0: 70000 is not from")),
            qPrintable(state()));
        replaceAll("bone", "=x");
        QVERIFY2(state().contains(QLatin1String("there already")), qPrintable(state()));
        QCOMPARE(undo(DocumentType::Anim).count(), 1);
    }

    void oneAfterTheOther()
    {
        find<QTabWidget>(*m_window, "tabTrees")->setCurrentIndex(1);
        search("sound = 12");
        QCOMPARE(records().size(), 6);
        auto *value = find<QLineEdit>(*m_window, "txtFindValue");
        value->setFocus();
        QTest::keyClicks(value, QStringLiteral("77"));
        QTest::keyClick(value, Qt::Key_Return);
        QCOMPARE(records().size(), 5);
        QTest::keyClick(value, Qt::Key_F3); // leaves one out
        QTest::keyClick(value, Qt::Key_Return);
        QCOMPARE(records().size(), 4);
        QCOMPARE(undo(DocumentType::Anim).count(), 2);
        const auto sound = [this](int block, int action) {
            return QString::number(double(anim().blocks[size_t(block)].actions[size_t(action)].args[0]));
        };
        QCOMPARE(sound(0, 1) + ' ' + sound(0, 2) + ' ' + sound(1, 1), QStringLiteral("77 12 77"));
    }

    void whatIsNotFoundYetIsNotReplaced()
    {
        // The search is not waited for.
        const QByteArray patience = qgetenv("KORVANE_PATIENCE");
        search("bones damage scale > 1");
        QCOMPARE(records().size(), 2);
        qputenv("KORVANE_PATIENCE", "0");
        openDock();
        QTest::keyClicks(line(), QStringLiteral("bones damage scale = 0"));
        line()->findChild<QCompleter *>()->popup()->hide();
        replaceAll("damage scale", "9");
        QVERIFY2(mesh().nodes[2].damageScale == 2.0f && mesh().nodes[3].damageScale == 3.0f, "old hits");
        QTRY_COMPARE(records().size(), 1);
        replaceAll("damage scale", "9");
        qputenv("KORVANE_PATIENCE", patience);
        QCOMPARE(mesh().nodes[0].damageScale, 9.0f);
        QCOMPARE(mesh().nodes[3].damageScale, 3.0f);
        // What is refused elsewhere is gone back to, and nothing is replaced or shown.
        search("bones damage scale > 1");
        const RecordRef shown = tree("treeSkinnedMesh")->currentRecord();
        auto *parent = find<QAbstractSpinBox>(*m_window, "sbNodeParentNode");
        parent->setFocus();
        parent->selectAll();
        QTest::keyClicks(parent, QStringLiteral("300"));
        replaceAll("damage scale", "1");
        QVERIFY(parent->hasFocus() && undo(DocumentType::SkinnedMesh).count() == 1);
        QCOMPARE(tree("treeSkinnedMesh")->currentRecord(), shown);
        QTest::keyClick(parent, Qt::Key_Escape);
    }

    void wordsAreProposed()
    {
        openDock();
        QTest::keyClicks(line(), QStringLiteral("bones damage sc"));
        auto *popup = line()->findChild<QCompleter *>()->popup();
        QTRY_VERIFY(popup->isVisible());
        QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, Qt::Key_Return);
        QCOMPARE(line()->text(), QStringLiteral("bones damage scale"));
        QTest::keyClicks(line(), QStringLiteral(" > 1, impact = fle"));
        QTRY_VERIFY(popup->isVisible());
        QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, Qt::Key_Return);
        QVERIFY2(line()->text().startsWith(QLatin1String("bones damage scale > 1, impact = ")) &&
                     line()->text().endsWith(QLatin1String("lesh")),
                 qPrintable(line()->text()));
        QTest::keyClick(line(), Qt::Key_Escape);
        QVERIFY(tree("treeSkinnedMesh")->hasFocus() || popup->isHidden());
    }

    /// What the guide tells to do, by the keys that it names.
    void recipes()
    {
        // Retime a walk.
        find<QTabWidget>(*m_window, "tabTrees")->setCurrentIndex(1);
        search("anim id = 6");
        replaceAll("speed", "*=1.25");
        search("actions block 1");
        replaceAll("frame", "*=2");
        QCOMPARE(anim().blocks[1].speed, 37.5f);
        QCOMPARE(anim().blocks[0].speed, 30.0f);
        QCOMPARE(int(anim().blocks[1].actions[2].frame), 4);
        // Replace a sound in all animations; the field is that of the condition.
        search("sound = 12");
        QCOMPARE(find<QComboBox>(*m_window, "cbFindField")->currentText(), QStringLiteral("sound"));
        replaceAll(nullptr, "77");
        QCOMPARE(state(), QStringLiteral("Changed records: 6"));
        QVERIFY(anim().blocks[2].actions[1].args[0] == 77.0f && anim().blocks[2].actions[0].args[0] == 13.0f);
        // Mirror hot points, scale damage.
        find<QTabWidget>(*m_window, "tabTrees")->setCurrentIndex(0);
        search("hot points");
        replaceAll("position on bone x", "=-x");
        QCOMPARE(mesh().hotPoints[2].origin.x(), -2.5f);
        search("bones damage scale > 1");
        replaceAll(nullptr, "*=1.5");
        QCOMPARE(mesh().nodes[3].damageScale, 4.5f);
        QCOMPARE(mesh().nodes[1].damageScale, 1.0f);
        QCOMPARE(undo(DocumentType::SkinnedMesh).count(), 2);
        QCOMPARE(undo(DocumentType::Anim).count(), 3);
    }

private:
    KVTreeView *tree(const char *name) const { return find<KVTreeView>(*m_window, name); }
    FoundList *list() const { return find<FoundList>(*m_window, "listFound"); }
    QLineEdit *line() const { return find<QLineEdit>(*m_window, "txtFindCondition"); }
    QString state() const { return find<QLabel>(*m_window, "lblFindState")->text(); }
    const RecordFinder &finder() const { return *m_window->findChild<RecordFinder *>(); }
    const SkinnedMesh &mesh() const
    {
        return static_cast<SkinnedMeshDocument &>(finder().document(DocumentType::SkinnedMesh)).model();
    }
    const AnimFile &anim() const
    {
        return static_cast<AnimDocument &>(finder().document(DocumentType::Anim)).model();
    }
    QUndoStack &undo(DocumentType type) const { return *finder().document(type).undoStack(); }
    QStringList records() const
    {
        QStringList texts;
        for (int row = 0; row < list()->model()->rowCount(); ++row)
            texts << list()->model()->index(row, FoundRows::RecordColumn).data().toString();
        return texts;
    }
    void openDock()
    {
        QApplication::setActiveWindow(m_window.get()); // lists of proposals may just have gone
        QWidget *focus = m_window->focusWidget();
        QTest::keyClick(focus ? focus : m_window.get(), Qt::Key_H, Qt::ControlModifier);
        QVERIFY(line()->hasFocus());
    }
    void search(const char *condition)
    {
        openDock();
        QTest::keyClicks(line(), QString::fromUtf8(condition));
        line()->findChild<QCompleter *>()->popup()->hide();
        QTest::keyClick(line(), Qt::Key_Return);
    }
    static void choose(QComboBox *box, int index)
    {
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < index; ++i)
            QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(box->currentIndex(), index);
    }
    void replaceAll(const char *field, const char *value)
    {
        auto *box = find<QComboBox>(*m_window, "cbFindField");
        auto *text = find<QLineEdit>(*m_window, "txtFindValue");
        if (field) {
            box->setFocus();
            QTest::keyClick(box->lineEdit(), Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(box->lineEdit(), QLatin1String(field));
        }
        text->setFocus();
        QTest::keyClick(text, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(text, QLatin1String(value));
        QTest::keyClick(text, Qt::Key_Return, Qt::ControlModifier);
    }

    std::unique_ptr<ProgramFolder> m_home;
    std::unique_ptr<ShownWindow> m_window;
};

QTEST_MAIN(tst_Find)
#include "tst_find.moc"
