// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FullDisk.h"
#include "Log.h"
#include "OwnFolders.h"
#include "Settings.h"
#include "SettingsHold.h"
#include "TestSupport.h"

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QVERIFY(m_home.isValid());
        TestSupport::useSettingsHome(m_home);
    }

    void onlyEnsureWritesTheDefault()
    {
        QCOMPARE(Settings::HideMeshData.value(), true);
        QVERIFY(!Settings::HideMeshData.exists());
        QVERIFY(QSettings().allKeys().isEmpty());
        Settings::HideMeshData.ensure();
        QCOMPARE(QSettings().value(QStringLiteral("HideMeshData")), QVariant(true));

        Settings::HideMeshData.setValue(false);
        Settings::HideMeshData.ensure();
        QCOMPARE(Settings::HideMeshData.value(), false);
    }

    void anOpenStoreKnowsWhatIsWritten()
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

    void whatMovesIsWrittenNowAndThen()
    {
        const auto stored = [](const char *line) {
            return TestSupport::readFile(QSettings().fileName()).replace("\r\n", "\n").contains(line);
        };
        Settings::SurfSelectType.setValueSoon(1);
        QVERIFY(stored("SurfSelectType=1")); // the first at once
        for (int i = 2; i <= 50; ++i)
            Settings::SurfSelectType.setValueSoon(i);
        QCOMPARE(Settings::SurfSelectType.value(), 50);
        QVERIFY(stored("SurfSelectType=1\n"));
        QTRY_VERIFY(stored("SurfSelectType=50"));
        Settings::SurfSelectType.setValueSoon(51);
        SettingsHold::writeWaiting();
        QVERIFY(stored("SurfSelectType=51"));
        // What is stored meanwhile is newer.
        Settings::SurfSelectType.setValueSoon(52);
        Settings::SurfSelectType.setValue(53);
        SettingsHold::writeWaiting();
        QVERIFY(stored("SurfSelectType=53"));
        QCOMPARE(Settings::SurfSelectType.value(), 53);
        Settings::SurfSelectType.remove();
    }

    void everyTypeComesBackFromTheFile()
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
        QCOMPARE(Settings::MainWindowState.value(), state);
    }

    void aCarriedProgramKeepsAllBesideIt()
    {
        const QString beside = QCoreApplication::applicationDirPath();
        const QString data = beside + "/data";
        QSettings::setDefaultFormat(QSettings::NativeFormat);
        OwnFolders::useForSettings();
        QVERIFY(!QSettings().fileName().startsWith(data) && !OwnFolders::local().startsWith(data));
        QVERIFY(QFileInfo(QSettings().fileName()).isAbsolute()); // and no key of a registry

        QVERIFY(TestSupport::writeFile(beside + "/portable.txt", {}));
        OwnFolders::useForSettings();
        Settings::MouseSpeed.setValue(2.0f);
        const QStringList kept{QSettings().fileName(), OwnFolders::local(), OwnFolders::data()};
        QVERIFY(QFile::remove(beside + "/portable.txt"));
        QVERIFY(QFile::exists(data + "/KorvaneTest/Korvane.ini"));
        QVERIFY(QDir(data).removeRecursively());
        for (const QString &each : kept)
            QVERIFY2(each.startsWith(data), qPrintable(each));
    }

    void aStoreThatCannotBeWrittenIsToldOfOnce()
    {
        QStringList log;
        Log::setSink([&log](LogSeverity, const QString &text) { log += text; });
        Settings::GamePath.setValue("/game");
        const QString path = QSettings().fileName();
        const QByteArray before = TestSupport::readFile(path);
        if (FullDisk::IsPossible) {
            const FullDisk disk(before.size());
            Settings::GamePath.setValue("/other");
            Settings::ImportPath.setValue("/import");
            // What is set counts on, and nothing of what was there is lost.
            QCOMPARE(Settings::GamePath.value(), QString("/other"));
            QCOMPARE(TestSupport::readFile(path), before);
        }
        QCOMPARE(log.filter(path).size(), FullDisk::IsPossible ? 1 : 0);
        Settings::GamePath.setValue("/third");
        QCOMPARE(Settings::GamePath.value(), QString("/third"));
        QVERIFY(TestSupport::readFile(path).contains("GamePath=/third"));
        Settings::ImportPath.remove();

        // A folder stands where the store should be.
        QVERIFY(QFile::remove(path) && QDir().mkpath(path + "/x"));
        Settings::GamePath.setValue("/fourth");
        QCOMPARE(Settings::GamePath.value(), QString("/fourth"));
        QVERIFY(QDir(path).removeRecursively());
        Settings::GamePath.setValue("/fifth");
        QVERIFY(TestSupport::readFile(path).contains("GamePath=/fifth"));
        QCOMPARE(log.size(), 1);
        Log::setSink({});
    }

    void handWrittenText()
    {
        writeStore("MouseSpeed=3\nBrightness=1e-3\nSurfSelectType=4\nShowGround=true\nBackCull=1");
        QCOMPARE(Settings::MouseSpeed.value(), 3.0f);
        QCOMPARE(Settings::Brightness.value(), 0.001f);
        QCOMPARE(Settings::SurfSelectType.value(), 4);
        QCOMPARE(Settings::ShowGround.value(), true);
        QCOMPARE(Settings::BackCull.value(), true);
    }

    void unreadableValueGivesTheDefault()
    {
        for (const char *text : {"fast", "", "1, 2", "@Size(3 4)", "@Invalid()", "nan", "-inf", "1e300"}) {
            init();
            writeStore(QByteArray("MouseSpeed=X\nCount=X\nBGColor=X\nMainWindowSize=@Point(1 2)")
                           .replace("X", text));
            QCOMPARE(Settings::MouseSpeed.value(), 0.15f);
            QCOMPARE(SettingKey<int>("Count", 7).value(), 7);
            QCOMPARE(Settings::BGColor.value(), QColor(0, 170, 255, 255));
            QVERIFY(!Settings::MainWindowSize.value().isValid());
        }
    }

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

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
