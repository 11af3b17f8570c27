// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DesktopScheme.h"
#include "Find.h"
#include "Look.h"

#include <QDBusConnection>
#include <QDBusVariant>

/// Stands for the desktop's portal.
class Portal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    QStringList asked;

public slots:
    QDBusVariant Read(const QString &group, const QString &key)
    {
        asked << group + QLatin1Char('/') + key;
        return QDBusVariant(QVariant::fromValue(QDBusVariant(1u)));
    }

signals:
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);
};

/// Whether the desktop's wish for dark windows is heard, on a bus of the test's own.
class tst_DesktopScheme : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        TestSupport::useSettingsHome(m_home);
        if (QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")).isEmpty())
            QSKIP("needs dbus-daemon");
        m_bus.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        QVERIFY(m_bus.waitForReadyRead(10000));
        const QByteArray address = m_bus.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        QDBusConnection desktop = QDBusConnection::connectToBus(QString::fromLatin1(address), "desktop");
        QVERIFY(desktop.isConnected());
        QVERIFY(desktop.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &m_portal,
                                       QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
        QVERIFY(desktop.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }

    void cleanupTestCase()
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("desktop"));
        m_bus.kill();
        m_bus.waitForFinished();
    }

    void theDesktopsLookFollows()
    {
        const auto tell = [this](const char *group, uint scheme) {
            emit m_portal.SettingChanged(QLatin1String(group), "color-scheme", QDBusVariant(scheme));
        };
        const auto dark = [] { return isDark(QApplication::palette()); };
        showChosenLook();
        // Nothing waits for the answer.
        QVERIFY(!dark());
        QTRY_VERIFY(dark());
        QCOMPARE(m_portal.asked, QStringList(QStringLiteral("org.freedesktop.appearance/color-scheme")));

        // Both light and none are no wish for dark.
        for (const uint none : {2u, 0u}) {
            tell("org.freedesktop.appearance", none);
            QTRY_VERIFY(!dark());
            tell("org.freedesktop.appearance", 1);
            QTRY_VERIFY(dark());
        }
        // What the user chose here comes first.
        chooseLook(Look::Light);
        QVERIFY(!dark());
        tell("org.freedesktop.appearance", 0);
        QTRY_VERIFY(!DesktopScheme::instance().prefersDark());
        tell("org.gnome.other", 1);
        tell("org.freedesktop.appearance", 1);
        QTRY_VERIFY(DesktopScheme::instance().prefersDark());
        QVERIFY(!dark());
        chooseLook(Look::Desktop);
        QVERIFY(dark());
    }

private:
    QTemporaryDir m_home;
    QProcess m_bus;
    Portal m_portal;
};

QTEST_MAIN(tst_DesktopScheme)
#include "tst_desktopscheme.moc"
