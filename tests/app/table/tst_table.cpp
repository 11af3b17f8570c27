// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CsvPreview.h"
#include "DelimitedText.h"
#include "EventArguments.h"
#include "Hand.h"
#include "RecordTableView.h"
#include "SampleModels.h"

using namespace SampleModels;

/// The window with a model in it, and the table of its records.
class tst_Table : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_home = std::make_unique<ProgramFolder>();
        Settings::HideMeshData.setValue(false);
        Settings::HideAnimData.setValue(false);
        Settings::AnimationAutoPlay.setValue(false);
        const QString mesh = m_home->path() + QStringLiteral("/man.skinnedmesh");
        const QString anim = m_home->path() + QStringLiteral("/man.anim");
        SkinnedMesh model = plainMesh();
        for (size_t i = 0; i < 4; ++i)
            model.nodes[i].damageScale = float(4 - i);
        QVERIFY(!model.write(mesh) && !plainAnim().write(anim));
        m_window = std::make_unique<ShownWindow>(QStringList{mesh, anim});
        m_window->resize(1300, 900);
        auto *tree = find<KVTreeView>(*m_window, "treeSkinnedMesh");
        QTRY_COMPARE(tree->model()->rowCount(), 1);
        find<QTabWidget>(*m_window, "tabTrees")->setCurrentIndex(0);
    }
    void cleanup() { m_window.reset(); }

    void itFollowsTheTree()
    {
        select(*m_window, "treeSkinnedMesh", {{RecordKind::Bone, {2}}});
        openTable();
        QVERIFY(view()->hasFocus());
        QCOMPARE(view()->model()->rowCount(), 4);
        QCOMPARE(view()->model()->columnCount(), RecordFields::of(RecordKind::Bone).size());
        QCOMPARE(column("damageScale"), QStringList({"4", "3", "2", "1"}));
        QCOMPARE(column("symbolSide").first(), QStringLiteral("Left"));
        // A group, one that owners have, and all of these.
        select(*m_window, "treeSkinnedMesh", {{RecordKind::HotPoints, {}}});
        QCOMPARE(view()->model()->rowCount(), 3);
        auto *all = find<QCheckBox>(*m_window, "cbTableAll");
        QVERIFY(!all->isVisible());
        select(*m_window, "treeSkinnedMesh", {{RecordKind::ChildBone, {1, 0}}});
        QVERIFY(all->isVisible() && view()->model()->rowCount() == 3);
        all->click();
        QCOMPARE(view()->model()->rowCount(), 12);
        QCOMPARE(view()->model()->headerData(4, Qt::Vertical).toString(), QStringLiteral("1.1"));
        all->click();
        find<QTabWidget>(*m_window, "tabTrees")->setCurrentIndex(1);
        // What numbers stand for is in their tips: by the mesh that is open, by the event, by nothing.
        select(*m_window, "treeAnim", {{RecordKind::AnimAction, {1, 0}}});
        QCOMPARE(column("bone", Qt::ToolTipRole).first(), QString());
        typeNumber(find<IntSpinBox>(*m_window, "sbAnimActionNode"), 3);
        QCOMPARE(column("bone", Qt::ToolTipRole).first(), QStringLiteral("3: Left Root"));
        QCOMPARE(column("arg1", Qt::ToolTipRole).first(), numberName(Question::Sound, 0));
        QCOMPARE(column("frame", Qt::ToolTipRole).first(), QString());
        select(*m_window, "treeAnim", {{RecordKind::Translations, {1}}});
        const AnimFile file = plainAnim();
        QCOMPARE(view()->model()->rowCount(), 2 * file.blocks[1].frameCount());
        select(*m_window, "treeAnim", {{RecordKind::TranslationTrack, {1, 0}}});
        QCOMPARE(view()->model()->rowCount(), file.blocks[1].frameCount());
        // Nothing to show.
        find<QTabWidget>(*m_window, "tabWidget")->setCurrentIndex(1);
        QVERIFY(!view()->isVisible());
    }

    void whatIsTypedGoesToAllSelectedCells()
    {
        select(*m_window, "treeSkinnedMesh", {{RecordKind::Bone, {0}}});
        openTable();
        const int scale = columnOf("damageScale");
        selectCells({{1, scale}, {2, scale}, {3, scale}});
        typeCell(QStringLiteral("*=2"));
        QCOMPARE(column("damageScale"), QStringList({"4", "6", "4", "2"}));
        QCOMPARE(undo().count(), 1);
        QCOMPARE(undo().undoText(), QStringLiteral("Bone Damage Scale"));
        // Sorted, the places are those that are shown; the file keeps its order, and rows stay where they
        // are.
        view()->sortByColumn(scale, Qt::AscendingOrder);
        QCOMPARE(column("damageScale"), QStringList({"2", "4", "4", "6"}));
        QCOMPARE(undo().count(), 1);
        selectCells({{0, scale}, {1, scale}, {2, scale}, {3, scale}});
        typeCell(QStringLiteral("=10-i"));
        QCOMPARE(column("damageScale"), QStringList({"10", "9", "8", "7"}));
        view()->resetOrder();
        QCOMPARE(column("damageScale").last(), QStringLiteral("10"));
        undo().setIndex(0);
        QCOMPARE(column("damageScale"), QStringList({"4", "3", "2", "1"}));

        // What does not fit one of them stays in its cell, and nothing is changed; Esc gives it up.
        const int parent = columnOf("parent");
        selectCells({{0, parent}, {1, parent}});
        QTest::keyClick(view(), Qt::Key_3);
        auto *cell = view()->findChild<QLineEdit *>(QStringLiteral("txtCell"));
        QVERIFY(cell);
        QTest::keyClicks(cell, QStringLiteral("00"));
        QTest::keyClick(cell, Qt::Key_Return);
        QVERIFY(cell->isVisible() && cell->text() == QLatin1String("300") && QToolTip::isVisible());
        QTest::keyClick(cell, Qt::Key_Escape);
        QTRY_VERIFY(!view()->findChild<QLineEdit *>(QStringLiteral("txtCell")));
        QCOMPARE(undo().index(), 0);
        // Neither looking nor leaving edits.
        selectCells({{0, parent}});
        QTest::keyClick(view(), Qt::Key_F2);
        QTest::keyClick(view()->findChild<QLineEdit *>(QStringLiteral("txtCell")), Qt::Key_Return);
        QCOMPARE(undo().index(), 0);
        // The tree follows when it is asked to.
        QTest::keyClick(view(), Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(find<KVTreeView>(*m_window, "treeSkinnedMesh")->currentRecord(),
                 (RecordRef{RecordKind::Bone, {0}}));
    }

    void animationsAreNamedHereToo()
    {
        find<QTabWidget>(*m_window, "tabTrees")->setCurrentIndex(1);
        openTable();
        const int name = columnOf("name");
        QCOMPARE(view()->model()->headerData(name, Qt::Horizontal).toString(), QString("Name"));
        selectCells({{1, name}, {2, name}});
        typeCell("walk");
        // All three have one id.
        QCOMPARE(column("name"), QStringList({"walk", "walk", "walk"}));
        QVERIFY(m_window->statusBar()->currentMessage().startsWith("The name belongs to the mesh"));
        QVERIFY(!undo().canUndo());
        find<QTabWidget>(*m_window, "tabTrees")->setCurrentIndex(0);
        QTest::keySequence(m_window.get(), QKeySequence::Undo);
        find<QTabWidget>(*m_window, "tabTrees")->setCurrentIndex(1);
        QCOMPARE(column("name"), QStringList({"", "", ""}));
    }

    void cellsTravelThroughTheClipboard()
    {
        select(*m_window, "treeSkinnedMesh", {{RecordKind::Bone, {0}}});
        openTable();
        const int x = columnOf("bbMin.x"), y = columnOf("bbMin.y");
        selectCells({{0, x}, {0, y}, {1, x}, {1, y}});
        QTest::keyClick(view(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("0\t10\n1\t11\n"));
        const auto paste = [this](const QString &text) {
            QApplication::clipboard()->setText(text);
            QTest::keyClick(view(), Qt::Key_V, Qt::ControlModifier);
        };
        selectCells({{2, x}});
        paste(QStringLiteral("5\t*=2\r\n\t7,5\r\n"));
        QCOMPARE(column("bbMin.x"), QStringList({"0", "1", "5", "3"}));
        QCOMPARE(column("bbMin.y"), QStringList({"10", "11", "24", "7.5"}));
        QCOMPARE(undo().count(), 1);
        // One value for all.
        selectCells({{0, x}, {1, x}, {3, y}});
        paste(QStringLiteral("-1"));
        QCOMPARE(column("bbMin.x"), QStringList({"-1", "-1", "5", "3"}));
        QCOMPARE(column("bbMin.y").last(), QStringLiteral("-1"));
        // What does not fit changes nothing.
        for (const char *text : {"1\n2\n3\n4\n5", "1\n2\nthree"}) {
            selectCells({{0, x}});
            paste(QLatin1String(text));
            QCOMPARE(undo().count(), 2);
            QVERIFY(
                find<QStatusBar>(*m_window, "statusBar")->currentMessage().startsWith("Nothing was pasted."));
        }
    }

    void columnsAreChosenAndRemembered()
    {
        select(*m_window, "treeSkinnedMesh", {{RecordKind::HotPoint, {0}}});
        openTable();
        view()->setColumnShown(columnOf("flags"), false);
        select(*m_window, "treeSkinnedMesh", {{RecordKind::Bone, {0}}});
        QVERIFY(!view()->isColumnHidden(columnOf("flags")));
        select(*m_window, "treeSkinnedMesh", {{RecordKind::HotPoint, {0}}});
        QVERIFY(view()->isColumnHidden(columnOf("flags")) && !view()->isColumnHidden(columnOf("bone")));
        QVERIFY(!view()->contents().first().contains(QStringLiteral("flags")));
    }

    void tablesAreFilesToo()
    {
        select(*m_window, "treeSkinnedMesh", {{RecordKind::Bone, {0}}});
        openTable();
        const QString path = m_home->path() + QStringLiteral("/bones.csv");
        {
            const Hand hand({Hand::file(path)});
            find<QAction>(*m_window, "actionTableExport")->trigger();
        }
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        DelimitedText::Rows rows = DelimitedText::read(QString::fromUtf8(file.readAll()), ',');
        file.close();
        QCOMPARE(rows.size(), 5);
        QCOMPARE(rows.first().first(), QStringLiteral("record"));
        const int scale = rows.first().indexOf(QStringLiteral("damageScale"));
        const int name = rows.first().indexOf(QStringLiteral("name"));
        rows[2][scale] = QStringLiteral("*=10");
        rows[4][name] = QStringLiteral("\"up, and\nover\"");
        QVERIFY(writeTable(path, rows));
        const auto read = [&](const Hand::Answer &then) {
            Hand hand({Hand::file(path), then});
            find<QAction>(*m_window, "actionTableImport")->trigger();
            return hand.seen.value(1);
        };
        int shown = 0;
        const auto look = [&](bool take) {
            return [&shown, take](QDialog *dialog) {
                auto *list = dialog->findChild<QTreeWidget *>(QStringLiteral("listCsvChanges"));
                shown = list ? list->topLevelItemCount() : -1;
                take ? dialog->accept() : dialog->reject();
            };
        };
        read(look(false));
        QVERIFY(shown == 2 && undo().count() == 0);
        read(look(true));
        QCOMPARE(undo().count(), 1);
        QCOMPARE(column("damageScale"), QStringList({"4", "30", "2", "1"}));
        QCOMPARE(column("name").last(), QStringLiteral("\"up, and\nover\""));

        // What cannot be names its line.
        const auto refusal = [&](const DelimitedText::Rows &table) {
            return changesOf(table, view()->records()).reason;
        };
        QCOMPARE(refusal({{"record", "speed"}, {"1", "2"}}), QString("These records have no field 'speed'."));
        QCOMPARE(refusal({{"record", "parent"}, {"1", "2"}, {"9", "2"}}),
                 QString("Line 3 is about no record of the table."));
        QCOMPARE(refusal({{"Parent Bone"}, {"256"}}),
                 QString("Line 2, Parent Bone: 256 is not from 0 to 255."));
        QVERIFY(!refusal({{"parent"}}).isEmpty() && !refusal({{"parent"}, {"1", "2"}}).isEmpty());
        QVERIFY(writeTable(path, {{"record", "speed"}, {"1", "2"}}));
        QVERIFY(read(Hand::press(QMessageBox::Ok)).contains(QLatin1String("no field 'speed'")));
        QCOMPARE(undo().count(), 1);
    }

    void delimitedTextComesBack()
    {
        const DelimitedText::Rows rows{{"a", "b;c", ""}, {"\"", "x\ny", "\t"}, {"", "", ""}, {"1,5"}};
        for (const char separator : {',', ';', '\t'})
            QCOMPARE(DelimitedText::read(DelimitedText::write(rows, QLatin1Char(separator)),
                                         QLatin1Char(separator)),
                     rows);
        QCOMPARE(DelimitedText::read(QStringLiteral("a\r\nb"), ','), DelimitedText::Rows({{"a"}, {"b"}}));
        QVERIFY(DelimitedText::read(QString(), ',').isEmpty());
        QCOMPARE(DelimitedText::separatorOf(QStringLiteral("a;b;c,d\n,,,,")), QChar(';'));
    }

private:
    RecordTableView *view() const { return find<RecordTableView>(*m_window, "tableRecords"); }
    QUndoStack &undo() const { return view()->records().document()->undoStack()[0]; }
    void openTable()
    {
        QTest::keyClick(find<KVTreeView>(*m_window, "treeSkinnedMesh"), Qt::Key_F4);
        QTRY_VERIFY(view()->isVisible());
    }
    int columnOf(const char *id) const
    {
        const auto &fields = view()->records().fields();
        return int(std::find_if(fields.begin(), fields.end(),
                                [id](const RecordField *field) { return field->id() == QLatin1String(id); }) -
                   fields.begin());
    }
    QStringList column(const char *id, int role = Qt::DisplayRole) const
    {
        QStringList texts;
        for (int row = 0; row < view()->model()->rowCount(); ++row)
            texts << view()->model()->index(row, columnOf(id)).data(role).toString();
        return texts;
    }
    void selectCells(const QVector<QPair<int, int>> &cells)
    {
        const auto *model = view()->model();
        view()->setFocus();
        view()->selectionModel()->setCurrentIndex(model->index(cells.first().first, cells.first().second),
                                                  QItemSelectionModel::ClearAndSelect);
        for (const auto &[row, column] : cells)
            view()->selectionModel()->select(model->index(row, column), QItemSelectionModel::Select);
    }
    void typeCell(const QString &text)
    {
        QTest::keyClicks(view(), text.left(1));
        auto *cell = view()->findChild<QLineEdit *>(QStringLiteral("txtCell"));
        QVERIFY(cell);
        QTest::keyClicks(cell, text.mid(1));
        QTest::keyClick(cell, Qt::Key_Return);
        QTRY_VERIFY(!view()->findChild<QLineEdit *>(QStringLiteral("txtCell")));
    }
    static bool writeTable(const QString &path, const DelimitedText::Rows &rows)
    {
        QFile file(path);
        const QByteArray text = DelimitedText::write(rows, QLatin1Char(',')).toUtf8();
        return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    }

    std::unique_ptr<ProgramFolder> m_home;
    std::unique_ptr<ShownWindow> m_window;
};

QTEST_MAIN(tst_Table)
#include "tst_table.moc"
