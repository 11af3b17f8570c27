// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DatabaseTab.h"
#include "DatabaseTables.h"
#include "EventArguments.h"
#include "FloatSpinBox.h"
#include "Hand.h"
#include "Log.h"
#include "QuestionMenu.h"
#include "Questions.h"
#include "ReferenceIds.h"
#include "ReferenceTables.h"

#include <limits>
#include <memory>

class tst_DatabaseTab : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.path()));
        TestSupport::useSettingsHome(m_home);
        Log::setSink([this](LogSeverity severity, const QString &text) {
            if (severity == LogSeverity::Error)
                m_errors << text;
        });
    }

    void init()
    {
        QDir(referenceOverrideFolder()).removeRecursively();
        m_tab = std::make_unique<DatabaseTab>();
        // Long before anybody could wait for it.
        QCOMPARE(m_tab->findChildren<QTableWidget *>().size(), 0);
        m_tab->reload();
        m_errors.clear();
    }

    void builtInTables()
    {
        const int rows[] = {354, 1266, 973, 115, 383, 10};
        auto *tabs = find<QTabWidget>(*m_tab, "tabWidgetDB");
        QCOMPARE(tabs->count(), int(std::size(rows)));
        for (int i = 0; i < tabs->count(); ++i) {
            QCOMPARE(tabs->widget(i)->findChild<QTableWidget *>(), m_tab->table(ReferenceKind(i)));
            QCOMPARE(m_tab->table(ReferenceKind(i))->rowCount(), rows[i]);
        }
        QVERIFY(m_errors.isEmpty());
    }

    void linesBecomeRows()
    {
        const QString path = m_home.filePath(QStringLiteral("lines.txt"));
        QVERIFY(
            TestSupport::writeFile(path, "7  two \t blanks\r\n\r\n 8\tled\nx9 no number\r\n10\r\n-3 last"));
        ReferenceTable read;
        QVERIFY(!read.read(path));
        QTableWidget table(0, 2);
        table.setSortingEnabled(true);
        loadDatabase(read, &table);
        QVERIFY(table.isSortingEnabled());
        table.sortByColumn(0, Qt::AscendingOrder);
        QStringList rows;
        for (int row = 0; row < table.rowCount(); ++row)
            rows << QStringLiteral("%1|%2|%3")
                        .arg(table.item(row, 0)->text(), table.item(row, 0)->data(Qt::UserRole).toString(),
                             table.item(row, 1)->text());
        QCOMPARE(rows,
                 QStringList({"-3|-3| last", "x9|0| no number", "7|7| two blanks", "8|8| led", "10|10|"}));

        const QString nowhere = m_home.filePath(QStringLiteral("nowhere.txt"));
        QVERIFY(read.read(nowhere));
        QCOMPARE(m_errors, QStringList("Unable to read database file at " + nowhere));
        QCOMPARE(int(read.rows.size()), rows.size());
    }

    void lookup()
    {
        const auto check = [](ReferenceKind kind, double value, const char *text) {
            QCOMPARE(ReferenceTables::shared().answer(kind, value), QString::fromLatin1(text));
        };
        check(ReferenceKind::Sounds, 10.9, "10:  Ambient Explosion 1");
        check(ReferenceKind::Impacts, 10, "10: N/A");
        check(ReferenceKind::Actors, -0.5, "0:  Dummy (Could be used for anything)");
        check(ReferenceKind::Actors, 2147483647.0, "2147483647: N/A");
        check(ReferenceKind::Actors, 2147483648.0, "2.14748e+09: N/A");
        check(ReferenceKind::Actors, -2147483648.0, "-2147483648: N/A");
        check(ReferenceKind::Actors, std::numeric_limits<double>::quiet_NaN(), "nan: N/A");
        check(ReferenceKind::Actors, -std::numeric_limits<double>::infinity(), "-inf: N/A");

        // The first in the order shown.
        auto *sounds = find<QTableWidget>(*m_tab, "tableDBSounds");
        sounds->sortByColumn(1, Qt::DescendingOrder);
        check(ReferenceKind::Sounds, 10, "10:  Unnamed sound 10 variant 3");
        // The same for all who ask, what the arguments of an action are called among them.
        QCOMPARE(argumentName(0, 0, 10.0f), QStringLiteral("Unnamed sound 10 variant 3"));
    }

    void filterStaysOnItsRowsWhenSorted()
    {
        auto *table = find<QTableWidget>(*m_tab, "tableDBImpacts");
        auto *filter = find<QLineEdit>(*m_tab, "txtDBImpactsFilter");
        const auto shown = [table] {
            QStringList names;
            for (int row = 0; row < table->rowCount(); ++row) {
                if (!table->isRowHidden(row))
                    names << table->item(row, 0)->text();
            }
            return names;
        };
        QTest::keyClicks(filter, QStringLiteral("FLESH"));
        QCOMPARE(shown(), QStringList({"4", "5", "6"}));
        QCOMPARE(find<QLabel>(*m_tab, "lblDBImpactsCount")->text(), QStringLiteral("3 of 10 rows"));
        table->sortByColumn(0, Qt::DescendingOrder);
        QCOMPARE(shown(), QStringList({"6", "5", "4"}));
        filter->clear();
        QCOMPARE(shown().size(), 10);
    }

    void doubleClickCopies()
    {
        find<QTabWidget>(*m_tab, "tabWidgetDB")->setCurrentIndex(5);
        m_tab->resize(700, 500);
        m_tab->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_tab.get()));
        auto *table = find<QTableWidget>(*m_tab, "tableDBImpacts");
        QSignalSpy told(m_tab.get(), &DatabaseTab::told);
        const QPoint place = table->visualItemRect(table->item(4, 1)).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("4: Flesh"));
        QCOMPARE(told.size(), 1);
        QTest::keyClick(table, Qt::Key_Up, Qt::ShiftModifier);
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("3: Stone\n4: Flesh"));
    }

    void ownTablesWin()
    {
        const QDir folder(referenceOverrideFolder());
        QVERIFY(folder.mkpath(QStringLiteral(".")));
        QVERIFY(TestSupport::writeFile(folder.filePath(QStringLiteral("actors.txt")),
                                       "5 Raptor\r\n6 Flier\r\n007 Spy"));
        QVERIFY(folder.mkpath(QStringLiteral("voices.txt")));
        QTest::mouseClick(find<QWidget>(*m_tab, "btnDBReload"), Qt::LeftButton);
        QCOMPARE(m_tab->table(ReferenceKind::Actors)->rowCount(), 3);
        // An id is a text: this one names no number, nowhere.
        QCOMPARE(ReferenceTables::shared().answer(ReferenceKind::Actors, 7), QStringLiteral("7: N/A"));
        QVERIFY(!ReferenceIds::load().knows(ReferenceKind::Actors, 7));
        QCOMPARE(ReferenceTables::shared().answer(ReferenceKind::Actors, 6), QStringLiteral("6:  Flier"));
        QCOMPARE(m_tab->table(ReferenceKind::Sounds)->rowCount(), 1266);
        // One that cannot be read is named, and the built-in one stays.
        QCOMPARE(m_errors, QStringList("Unable to read database file at " + folder.filePath("voices.txt")));
        QCOMPARE(m_tab->table(ReferenceKind::Voices)->rowCount(), 115);
    }

    void questions()
    {
        const struct
        {
            const char *key, *question, *title, *text;
        } tables[] = {{"actor", "What Actor is this?", "Actor", "4:  Unnamed actor 4"},
                      {"animation", "What Animation is this?", "Animation", "4:  Unnamed animation 4"},
                      {"sound", "What Sound is this?", "Sound", "4:  Unnamed sound 4"},
                      {"voice", "What Voice is this?", "Voice", "4: N/A"},
                      {"particle", "What Particle is this?", "Particle", "4:  Unnamed_Particle_4.particle"},
                      {"impact", "What Impact Type is this?", "Impact Types", "4:  Flesh"}};
        QWidget window;
        auto *whole = new IntSpinBox(&window);
        auto *real = new FloatSpinBox(&window);
        whole->setValue(4);
        real->setValue(4.25f);
        const QList<QWidget *> editors{whole, real};
        QuestionMenu menu(&window);
        window.show();
        for (const auto &table : tables) {
            for (QWidget *editor : editors) {
                editor->setProperty(Questions::Property, QStringList{table.key, "damage"});
                QCOMPARE(ask(editor, 0), QStringList({table.question, table.title, table.text}));
                QCOMPARE(ask(editor, 1).mid(0, 2),
                         QStringList({"How much damage is this?", "Actual Damage"}));
            }
        }
        QVERIFY(m_errors.isEmpty());
    }

    void questionsOfOtherEditors()
    {
        QWidget window;
        QuestionMenu menu(&window);
        QLineEdit line(&window);
        line.setProperty(Questions::Property, QStringList("actor"));
        QVERIFY(!menu.createMenu(&line));
        QCOMPARE(m_errors, QStringList("QObject is not a spinbox or DoubleSpinbox "));

        // An editor may go while its menu is open.
        m_errors.clear();
        auto whole = std::make_unique<IntSpinBox>();
        auto real = std::make_unique<FloatSpinBox>();
        std::vector<std::unique_ptr<QMenu>> menus;
        for (QWidget *editor : {static_cast<QWidget *>(whole.get()), static_cast<QWidget *>(real.get())}) {
            editor->setProperty(Questions::Property, QStringList("actor"));
            menus.emplace_back(menu.createMenu(editor))->setParent(nullptr);
        }
        whole.reset();
        real.reset();
        for (const auto &each : menus)
            each->actions().at(3)->trigger();
        QTRY_COMPARE(m_errors,
                     QStringList({"Failed to check Spinbox ID", "Failed to check DoubleSpinbox ID"}));
    }

    void damage()
    {
        QCOMPARE(QuestionMenu::damageText(5.0f),
                 QString("5 is 0.0195313 damage (Value is divided by 256)\n\nHead (x10): 0.195313\n"
                         "Neck (x5): 0.0976563\nBody (x1): 0.0195313\nArms and Legs(x0.5): 0.00976563\n"
                         "Hands and Feet(x0.25): 0.00488281"));
        QVERIFY(QuestionMenu::damageText(25600000.0f).startsWith(QLatin1String("2.56e+07 is 100000 damage")));
        QVERIFY(QuestionMenu::damageText(-0.0f).startsWith(QLatin1String("0 is 0 damage")));
    }

private:
    /// Opens an editor's context menu as the right button does, chooses its first or second action, and gives
    /// the action's text with title and text of the message box that answers.
    QStringList ask(QWidget *editor, int question)
    {
        const QPoint centre = editor->rect().center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, centre, editor->mapToGlobal(centre));
        QApplication::sendEvent(editor->findChild<QLineEdit *>(), &event);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        // Copy and Paste come above the questions, what else every number field offers below.
        if (!menu || menu->actions().size() < 12 || !menu->actions().at(2)->isSeparator() ||
            !menu->actions().at(5)->isSeparator())
            return {};
        QAction *action = menu->actions().at(3 + question);
        const QString text = action->text();
        const Hand hand({Hand::press(QMessageBox::Ok)});
        menu->setActiveAction(action);
        QTest::keyClick(menu, Qt::Key_Return);
        if (!QTest::qWaitFor([&hand] { return !hand.seen.isEmpty(); }))
            return {};
        return QStringList(text) + hand.seen.first().split(QLatin1Char('|'));
    }

    QTemporaryDir m_home;
    QStringList m_errors;
    std::unique_ptr<DatabaseTab> m_tab;
};

QTEST_MAIN(tst_DatabaseTab)
#include "tst_databasetab.moc"
