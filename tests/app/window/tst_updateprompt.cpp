// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UpdatePrompt.h"

#include "Hand.h"
#include "LocalServers.h"

#include <QNetworkProxyFactory>
#include <QNetworkReply>

/// What the user sees of the update check, against a web server on this machine.
class tst_UpdatePrompt : public QObject
{
    Q_OBJECT

public slots:
    void take(const QUrl &url) { m_opened.append(url.toString()); }

private slots:
    void initTestCase()
    {
        QNetworkProxyFactory::setUseSystemConfiguration(false);
        qRegisterMetaType<QNetworkReply *>();
        QCoreApplication::setApplicationVersion(QStringLiteral("0.9.2"));
        for (const char *scheme : {"http", "https", "file"})
            QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "take");
    }

    void init()
    {
        TestSupport::useSettingsHome(m_home);
        m_web = std::make_unique<LocalWeb>();
        m_opened.clear();
        Settings::UpdateUrl.setValue(m_web->address());
        Settings::UpdateDate.setValue(QDateTime::currentDateTime());
    }

    void boxes()
    {
        const auto check = [this](const QByteArray &body, Box::StandardButton answer, const QStringList &seen,
                                  const QStringList &opened = {}) {
            init();
            m_web->serve(body);
            Shown shown;
            Qt::TextFormat format = Qt::AutoText;
            bool yesIsDefault = false;
            Hand hand({[&](QDialog *dialog) {
                           auto *box = static_cast<Box *>(dialog);
                           format = box->textFormat();
                           yesIsDefault =
                               box->button(Box::Yes) && box->defaultButton() == box->button(Box::Yes);
                           box->button(answer)->click();
                       },
                       Hand::press(Box::Ok)});
            shown.action.trigger();
            QTRY_COMPARE(hand.seen, seen);
            QTRY_VERIFY(!QApplication::activeModalWidget());
            QCOMPARE(m_opened, opened);
            QVERIFY(answer == Box::Ok || (format == Qt::PlainText && yesIsDefault));
        };
        const auto offer = [](const QString &version, const QString &message) {
            return "New Version Available|Korvane v" + version +
                   " is now available! Do you want to update?\n\n" + message;
        };
        check(releaseDocument("1", "https://a/b?c=d"), Box::Yes, {offer("1", "News")}, {"https://a/b?c=d"});
        // Markup and place markers stay what they are.
        check(releaseDocument("1.%2", "https://a", "<b>bold</b>\n<img src='file:///x'>%1"), Box::No,
              {offer("1.%2", "<b>bold</b> <img src='file:///x'>%1")});
        check(releaseDocument("1", "file:///bin/sh"), Box::Yes,
              {offer("1", "News"), "Link|This is no web page, so it was not opened:\nfile:///bin/sh"});
        check(releaseDocument("1", "https://a", QByteArray(50000, 'x')), Box::No,
              {offer("1", QString(2000, 'x'))});
        check(releaseDocument("0.9.2", "https://a"), Box::Ok, {"Updates|You are up to date!"});
        Settings::UpdateUrl.setValue(QStringLiteral(" "));
        Shown shown;
        const Hand hand({Hand::press(Box::Ok)});
        shown.action.trigger();
        QCOMPARE(hand.seen, QStringList("Updates|No address is set that tells of new versions."));
    }

    void checksAtStart()
    {
        QSettings().remove(Settings::UpdateDate.name());
        m_web->serve(releaseDocument("1", "https://a"));
        const Shown shown;
        const Hand hand({});
        QTRY_COMPARE(hand.seen.size(), 1);
        QCOMPARE(m_web->requests.size(), 1);
        QVERIFY(m_opened.isEmpty());
    }

    void standsAboveWhatIsOpen()
    {
        Shown shown;
        QDialog open(&shown.window);
        open.open();
        QWidget *parent = nullptr;
        m_web->serve(releaseDocument("1", "https://a"));
        const Hand hand({[](QDialog *) {},
                         [&parent](QDialog *box) {
                             parent = box->parentWidget();
                             box->reject();
                         }});
        QTRY_COMPARE(hand.seen.size(), 1);
        shown.action.trigger();
        QTRY_COMPARE(parent, &open);
    }

    void aClosedWindowIsNotAsked()
    {
        Shown shown;
        m_web->serve(releaseDocument("1", "https://a"));
        shown.action.trigger();
        QSignalSpy finished(shown.window.findChild<QNetworkAccessManager *>(),
                            &QNetworkAccessManager::finished);
        shown.window.close();
        QTRY_COMPARE(finished.size(), 1);
        QCoreApplication::processEvents();
        QVERIFY(!QApplication::activeModalWidget());
    }

private:
    using Box = QMessageBox;
    struct Shown
    {
        Shown() { window.show(); }
        QMainWindow window;
        QAction action;
        UpdatePrompt prompt{&action, &window};
    };

    QTemporaryDir m_home;
    std::unique_ptr<LocalWeb> m_web;
    QStringList m_opened;
};

QTEST_MAIN(tst_UpdatePrompt)
#include "tst_updateprompt.moc"
