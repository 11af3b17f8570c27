// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Settings.h"
#include "TestSupport.h"

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void readingWritesNothing();
    void ensureWritesTheDefaultOnce();
    void anOpenStoreKnowsWhatIsWritten();
    void everyTypeComesBackFromTheFile();
    void handWrittenText_data();
    void handWrittenText();
    void unreadableValueGivesTheDefault_data();
    void unreadableValueGivesTheDefault();

private:
    /// Replaces the store by this text below its [General] line.
    void writeStore(const QByteArray &text)
    {
        const QString path = QSettings().fileName();
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QVERIFY(TestSupport::writeFile(path, "[General]\n" + text + "\n"));
    }

    QTemporaryDir m_home;
};

void TestSettings::init()
{
    QVERIFY(m_home.isValid());
    TestSupport::useSettingsHome(m_home);
}

void TestSettings::readingWritesNothing()
{
    QCOMPARE(Settings::HideMeshData.value(), true);
    QCOMPARE(Settings::MouseSpeed.value(), 0.15f);
    QCOMPARE(Settings::BGColor.value(), QColor(0, 170, 255, 255));
    QVERIFY(!Settings::MainWindowSize.value().isValid());
    QVERIFY(!Settings::HideMeshData.exists());
    QVERIFY(QSettings().allKeys().isEmpty());
}

void TestSettings::anOpenStoreKnowsWhatIsWritten()
{
    Settings::HideMeshData.setValue(false);
    {
        const SettingsHold hold;
        QCOMPARE(Settings::HideMeshData.value(), false);
        Settings::HideMeshData.setValue(true);
        Settings::MouseSpeed.setValue(2.0f);
        QCOMPARE(Settings::HideMeshData.value(), true);
        QCOMPARE(Settings::MouseSpeed.value(), 2.0f);
        Settings::MouseSpeed.remove();
        QVERIFY(!Settings::MouseSpeed.exists());
        // Another process does not wait for the end of it.
        QVERIFY(TestSupport::readFile(QSettings().fileName()).contains("HideMeshData=true"));
    }
    writeStore("HideMeshData=false");
    QCOMPARE(Settings::HideMeshData.value(), false);
}

void TestSettings::ensureWritesTheDefaultOnce()
{
    Settings::HideMeshData.ensure();
    QCOMPARE(QSettings().value(QStringLiteral("HideMeshData")), QVariant(true));

    Settings::HideMeshData.setValue(false);
    Settings::HideMeshData.ensure();
    QCOMPARE(Settings::HideMeshData.value(), false);
}

void TestSettings::everyTypeComesBackFromTheFile()
{
    const QString folder = QStringLiteral("/tmp/mods, \"mine\"; %41 é ü 漢/ending\\");
    const QDateTime date(QDate(2024, 2, 29), QTime(23, 59, 58, 7), Qt::UTC);
    const QByteArray state("\0\xff;,\"@x", 7);
    // Neither has a short decimal form; both must come back bit for bit.
    constexpr float speed = 0.1234567f;
    constexpr float tiny = 1e-7f;

    Settings::GamePath.setValue(folder);
    Settings::UpdateDate.setValue(date);
    Settings::BGColor.setValue(QColor(1, 2, 3));
    Settings::MouseSpeed.setValue(speed);
    Settings::Brightness.setValue(tiny);
    Settings::SurfSelectType.setValue(-4);
    Settings::MainWindowSize.setValue(QSize(1600, 1000));
    Settings::MainWindowPos.setValue(QPoint(-5, 7));
    Settings::MainWindowMaximized.setValue(true);
    Settings::MainWindowState.setValue(state);

    // Read back through the file's text and not through the values that the store may still hold.
    const QString path = QSettings().fileName();
    const QByteArray text = TestSupport::readFile(path);
    QVERIFY(text.contains("SurfSelectType=-4"));
    TestSupport::useSettingsHome(m_home);
    QVERIFY(!Settings::GamePath.exists());
    QVERIFY(TestSupport::writeFile(path, text));

    QCOMPARE(Settings::GamePath.value(), folder);
    QCOMPARE(Settings::UpdateDate.value(), date);
    QCOMPARE(Settings::BGColor.value(), QColor(1, 2, 3));
    QVERIFY(Settings::MouseSpeed.value() == speed);
    QVERIFY(Settings::Brightness.value() == tiny);
    QCOMPARE(Settings::SurfSelectType.value(), -4);
    QCOMPARE(Settings::MainWindowSize.value(), QSize(1600, 1000));
    QCOMPARE(Settings::MainWindowPos.value(), QPoint(-5, 7));
    QCOMPARE(Settings::MainWindowMaximized.value(), true);
    QCOMPARE(Settings::MainWindowState.value(), state);
}

void TestSettings::handWrittenText_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<float>("speed");
    QTest::addColumn<int>("selection");
    QTest::addColumn<bool>("ground");

    QTest::newRow("float") << QByteArray("MouseSpeed=0.5") << 0.5f << 0 << false;
    QTest::newRow("float without a fraction") << QByteArray("MouseSpeed=3") << 3.0f << 0 << false;
    QTest::newRow("exponent") << QByteArray("MouseSpeed=1e-3") << 0.001f << 0 << false;
    QTest::newRow("int") << QByteArray("SurfSelectType=4") << 0.15f << 4 << false;
    QTest::newRow("bool in words") << QByteArray("ShowGround=true") << 0.15f << 0 << true;
    QTest::newRow("bool in digits") << QByteArray("ShowGround=1") << 0.15f << 0 << true;
}

void TestSettings::handWrittenText()
{
    QFETCH(QByteArray, line);
    writeStore(line);
    QTEST(Settings::MouseSpeed.value(), "speed");
    QTEST(Settings::SurfSelectType.value(), "selection");
    QTEST(Settings::ShowGround.value(), "ground");
}

void TestSettings::unreadableValueGivesTheDefault_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("word") << QByteArray("fast");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("list") << QByteArray("1, 2");
    QTest::newRow("size") << QByteArray("@Size(3 4)");
    QTest::newRow("invalid") << QByteArray("@Invalid()");
    QTest::newRow("NaN") << QByteArray("nan");
    QTest::newRow("infinity") << QByteArray("-inf");
    QTest::newRow("beyond a float") << QByteArray("1e300");
}

void TestSettings::unreadableValueGivesTheDefault()
{
    QFETCH(QByteArray, text);
    writeStore("MouseSpeed=" + text + "\nCount=" + text + "\nBGColor=" + text +
               "\nMainWindowSize=@Point(1 2)");
    QCOMPARE(Settings::MouseSpeed.value(), 0.15f);
    QCOMPARE(SettingKey<int>("Count", 7).value(), 7);
    QCOMPARE(Settings::BGColor.value(), QColor(0, 170, 255, 255));
    QVERIFY(!Settings::MainWindowSize.value().isValid());
}

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
