// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DatabaseTab.h"
#include "DatabaseTables.h"
#include "FloatSpinBox.h"
#include "Log.h"
#include "QuestionMenu.h"
#include "Questions.h"
#include "TestSupport.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>

#include <limits>
#include <memory>

class tst_DatabaseTab : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void builtInTables();
    void idsSortAsNumbers();
    void linesBecomeRows();
    void lookup_data();
    void lookup();
    void lookupFollowsTheOrderShown();
    void filterStaysOnItsRowsWhenSorted();
    void doubleClickCopies();
    void ownTablesWin();
    void questions_data();
    void questions();
    void questionsOfOtherEditors();
    void damage_data();
    void damage();

private:
    template <typename Widget>
    Widget *child(const char *name)
    {
        return m_tab->findChild<Widget *>(QLatin1String(name));
    }
    /// Opens an editor's context menu as the right button does, chooses its first or second action, and gives
    /// the action's text with title and text of the message box that answers.
    QStringList ask(QWidget *editor, int question);

    QTemporaryDir m_home;
    QStringList m_errors;
    std::unique_ptr<DatabaseTab> m_tab;
};

void tst_DatabaseTab::initTestCase()
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.path()));
    TestSupport::useSettingsHome(m_home);
    Log::setSink([this](LogSeverity severity, const QString &text) {
        if (severity == LogSeverity::Error)
            m_errors << text;
    });
}

void tst_DatabaseTab::init()
{
    QDir(referenceOverrideFolder()).removeRecursively();
    m_tab = std::make_unique<DatabaseTab>();
    // Long before anybody could wait for it.
    QCOMPARE(m_tab->findChildren<QTableWidget *>().size(), 0);
    QCOMPARE(m_tab->table(ReferenceKind::Impacts)->rowCount(), 10);
    m_errors.clear();
}

void tst_DatabaseTab::builtInTables()
{
    const struct
    {
        const char *name;
        int rows;
        const char *first;
    } expected[] = {{"Actors", 354, "-1: Dummy (Could be used for anything)"},
                    {"Sounds", 1266, "0: Unnamed sound 0 variant 1"},
                    {"Animations", 973, "0: Unnamed animation 0"},
                    {"Voices", 115, "310: Unnamed voice 310"},
                    {"Particles", 383, "-1: Generic_Teleport.particle"},
                    {"Impacts", 10, "0: Default"}};
    auto *tabs = child<QTabWidget>("tabWidgetDB");
    QCOMPARE(tabs->count(), int(std::size(expected)));
    for (int i = 0; i < tabs->count(); ++i) {
        const QString name = QLatin1String(expected[i].name);
        QCOMPARE(tabs->widget(i)->objectName(), "tabDB" + name);
        const auto *table = tabs->widget(i)->findChild<QTableWidget *>();
        QCOMPARE(table->rowCount(), expected[i].rows);
        QCOMPARE(table->item(0, 0)->text() + ':' + table->item(0, 1)->text(),
                 QLatin1String(expected[i].first));
        QCOMPARE(tabs->widget(i)->findChild<QLabel *>("lblDB" + name + "Count")->text().section(' ', 0, 0),
                 QString::number(expected[i].rows));
    }
    QCOMPARE(m_tab->table(ReferenceKind::Actors)->item(0, 1)->text(),
             QStringLiteral(" Dummy (Could be used for anything)"));
    QVERIFY(m_errors.isEmpty());
}

void tst_DatabaseTab::idsSortAsNumbers()
{
    for (const char *name : {"tableDBActors", "tableDBAnimations"}) {
        auto *table = child<QTableWidget>(name);
        for (const Qt::SortOrder order : {Qt::DescendingOrder, Qt::AscendingOrder}) {
            table->sortByColumn(0, order);
            for (int row = 1; row < table->rowCount(); ++row) {
                const int before = table->item(row - 1, 0)->text().toInt();
                const int here = table->item(row, 0)->text().toInt();
                QVERIFY(order == Qt::AscendingOrder ? before <= here : before >= here);
            }
        }
    }
}

void tst_DatabaseTab::linesBecomeRows()
{
    const QString path = m_home.filePath(QStringLiteral("lines.txt"));
    QVERIFY(TestSupport::writeFile(path, "7  two   blanks\r\n\r\n 8 led\nx9 no number\r\n10\r\n-3 last"));
    QTableWidget table(0, 2);
    table.setSortingEnabled(true);
    QVERIFY(!loadDatabase(path, &table));
    QVERIFY(table.isSortingEnabled());
    table.sortByColumn(0, Qt::AscendingOrder);
    QStringList rows;
    for (int row = 0; row < table.rowCount(); ++row)
        rows << QStringLiteral("%1|%2|%3")
                    .arg(table.item(row, 0)->text(), table.item(row, 0)->data(Qt::UserRole).toString(),
                         table.item(row, 1)->text());
    QCOMPARE(rows, QStringList({"-3|-3| last", "x9|0| no number", "7|7| two blanks", "8|8| led", "10|10|"}));

    const QString nowhere = m_home.filePath(QStringLiteral("nowhere.txt"));
    QVERIFY(loadDatabase(nowhere, &table));
    QCOMPARE(m_errors, QStringList("Unable to read database file at " + nowhere));
    QCOMPARE(table.rowCount(), rows.size());
}

void tst_DatabaseTab::lookup_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    const auto add = [](ReferenceKind kind, double value, const char *text) {
        QTest::addRow("%s", text) << int(kind) << value << QString::fromLatin1(text);
    };
    add(ReferenceKind::Sounds, 10, "10:  Ambient Explosion 1");
    add(ReferenceKind::Sounds, 10.9, "10:  Ambient Explosion 1");
    add(ReferenceKind::Impacts, 4, "4:  Flesh");
    add(ReferenceKind::Impacts, 10, "10: N/A");
    add(ReferenceKind::Actors, -1, "-1:  Dummy (Could be used for anything)");
    add(ReferenceKind::Actors, -0.5, "0:  Dummy (Could be used for anything)");
    add(ReferenceKind::Actors, 3e9, "3e+09: N/A");
    add(ReferenceKind::Actors, 2147483647.0, "2147483647: N/A");
    add(ReferenceKind::Actors, -2147483648.0, "-2147483648: N/A");
    add(ReferenceKind::Actors, std::numeric_limits<double>::quiet_NaN(), "nan: N/A");
    add(ReferenceKind::Actors, -std::numeric_limits<double>::infinity(), "-inf: N/A");
}

void tst_DatabaseTab::lookup()
{
    QFETCH(int, kind);
    QFETCH(double, value);
    QFETCH(QString, text);
    QCOMPARE(lookupDatabaseName(m_tab->table(ReferenceKind(kind)), value), text);
}

void tst_DatabaseTab::lookupFollowsTheOrderShown()
{
    auto *sounds = child<QTableWidget>("tableDBSounds");
    sounds->sortByColumn(1, Qt::DescendingOrder);
    QCOMPARE(lookupDatabaseName(sounds, QStringLiteral("10")),
             QStringLiteral("10:  Unnamed sound 10 variant 3"));
    // Texts are compared, not numbers.
    QCOMPARE(lookupDatabaseName(sounds, QStringLiteral("010")), QStringLiteral("010: N/A"));
    QTableWidget none(0, 2);
    QCOMPARE(lookupDatabaseName(&none, QStringLiteral("1")), QStringLiteral("1: N/A"));
}

void tst_DatabaseTab::filterStaysOnItsRowsWhenSorted()
{
    auto *table = child<QTableWidget>("tableDBImpacts");
    auto *filter = child<QLineEdit>("txtDBImpactsFilter");
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
    QCOMPARE(child<QLabel>("lblDBImpactsCount")->text(), QStringLiteral("3 of 10 rows"));
    table->sortByColumn(0, Qt::DescendingOrder);
    QCOMPARE(shown(), QStringList({"6", "5", "4"}));
    filter->clear();
    QCOMPARE(shown().size(), 10);
}

void tst_DatabaseTab::doubleClickCopies()
{
    child<QTabWidget>("tabWidgetDB")->setCurrentIndex(5);
    m_tab->resize(700, 500);
    m_tab->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_tab.get()));
    auto *table = child<QTableWidget>("tableDBImpacts");
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

void tst_DatabaseTab::ownTablesWin()
{
    const QDir folder(referenceOverrideFolder());
    QVERIFY(folder.mkpath(QStringLiteral(".")));
    QVERIFY(TestSupport::writeFile(folder.filePath(QStringLiteral("actors.txt")), "5 Raptor\r\n6 Flier"));
    QVERIFY(folder.mkpath(QStringLiteral("voices.txt")));
    QTest::mouseClick(child<QWidget>("btnDBReload"), Qt::LeftButton);
    QCOMPARE(m_tab->table(ReferenceKind::Actors)->rowCount(), 2);
    QCOMPARE(lookupDatabaseName(m_tab->table(ReferenceKind::Actors), 6), QStringLiteral("6:  Flier"));
    QCOMPARE(m_tab->table(ReferenceKind::Sounds)->rowCount(), 1266);
    // One that cannot be read is named, and the built-in one stays.
    QCOMPARE(m_errors, QStringList("Unable to read database file at " + folder.filePath("voices.txt")));
    QCOMPARE(m_tab->table(ReferenceKind::Voices)->rowCount(), 115);
}

QStringList tst_DatabaseTab::ask(QWidget *editor, int question)
{
    const QPoint centre = editor->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, centre, editor->mapToGlobal(centre));
    QApplication::sendEvent(editor->findChild<QLineEdit *>(), &event);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    // What every number field offers comes below the questions.
    if (!menu || menu->actions().size() < 9 || !menu->actions().at(2)->isSeparator())
        return {};
    QAction *action = menu->actions().at(question);
    QStringList answer{action->text()};
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&answer] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            answer << box->windowTitle() << box->text();
            box->accept();
        }
    });
    watch.start(1);
    menu->setActiveAction(action);
    QTest::keyClick(menu, Qt::Key_Return);
    return QTest::qWaitFor([&answer] { return answer.size() == 3; }) ? answer : QStringList();
}

void tst_DatabaseTab::questions_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("answer");
    const auto add = [](const char *key, const char *question, const char *title, const char *text) {
        QTest::newRow(key) << key << QStringList({question, title, text});
    };
    add("actor", "What Actor is this?", "Actor", "4:  Unnamed actor 4");
    add("animation", "What Animation is this?", "Animation", "4:  Unnamed animation 4");
    add("sound", "What Sound is this?", "Sound", "4:  Unnamed sound 4");
    add("voice", "What Voice is this?", "Voice", "4: N/A");
    add("particle", "What Particle is this?", "Particle", "4:  Unnamed_Particle_4.particle");
    add("impact", "What Impact Type is this?", "Impact Types", "4:  Flesh");
}

void tst_DatabaseTab::questions()
{
    QFETCH(QString, key);
    QFETCH(QStringList, answer);
    QWidget window;
    auto *whole = new QSpinBox(&window);
    auto *real = new QDoubleSpinBox(&window);
    auto *single = new FloatSpinBox(&window);
    whole->setValue(4);
    real->setValue(4.5);
    single->setValue(4.25f);
    const QList<QWidget *> editors{whole, real, single};
    for (QWidget *editor : editors)
        editor->setProperty(Questions::Property, QStringList{key, "damage"});
    QuestionMenu menu(*m_tab, &window);
    window.show();
    for (QWidget *editor : editors) {
        QCOMPARE(ask(editor, 0), answer);
        QCOMPARE(ask(editor, 1).mid(0, 2), QStringList({"How much damage is this?", "Actual Damage"}));
    }
    QVERIFY(m_errors.isEmpty());
}

void tst_DatabaseTab::questionsOfOtherEditors()
{
    QWidget window;
    QuestionMenu menu(*m_tab, &window);
    QLineEdit line(&window);
    line.setProperty(Questions::Property, QStringList("actor"));
    QVERIFY(!menu.createMenu(&line));
    QCOMPARE(m_errors, QStringList("QObject is not a spinbox or DoubleSpinbox "));

    // An editor may go while its menu is open.
    m_errors.clear();
    auto whole = std::make_unique<QSpinBox>();
    auto real = std::make_unique<FloatSpinBox>();
    std::vector<std::unique_ptr<QMenu>> menus;
    for (QWidget *editor : {static_cast<QWidget *>(whole.get()), static_cast<QWidget *>(real.get())}) {
        editor->setProperty(Questions::Property, QStringList("actor"));
        menus.emplace_back(menu.createMenu(editor))->setParent(nullptr);
    }
    whole.reset();
    real.reset();
    for (const auto &each : menus)
        each->actions().first()->trigger();
    QTRY_COMPARE(m_errors, QStringList({"Failed to check Spinbox ID", "Failed to check DoubleSpinbox ID"}));
}

void tst_DatabaseTab::damage_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<QStringList>("numbers");
    QTest::newRow("64 points") << 16384.0f << QStringList{"16384", "64", "640", "320", "64", "32", "16"};
    QTest::newRow("rounded up") << 5.0f << QStringList{"5",         "0.0195313",  "0.195313",  "0.0976563",
                                                       "0.0195313", "0.00976563", "0.00488281"};
    QTest::newRow("large") << 25600000.0f << QStringList{"2.56e+07", "100000", "1e+06", "500000",
                                                         "100000",   "50000",  "25000"};
    QTest::newRow("-0") << -0.0f << QStringList{"0", "0", "0", "0", "0", "0", "0"};
}

void tst_DatabaseTab::damage()
{
    QFETCH(float, value);
    QFETCH(QStringList, numbers);
    QString expected =
        QStringLiteral("# is # damage (Value is divided by 256)\n\nHead (x10): #\nNeck (x5): #\n"
                       "Body (x1): #\nArms and Legs(x0.5): #\nHands and Feet(x0.25): #");
    for (const QString &number : numbers)
        expected.replace(expected.indexOf('#'), 1, number);
    QCOMPARE(QuestionMenu::damageText(value), expected);
}

QTEST_MAIN(tst_DatabaseTab)
#include "tst_databasetab.moc"
