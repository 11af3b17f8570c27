// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AboutDialog.h"
#include "CommunityTab.h"
#include "Language.h"
#include "TutorialsTab.h"
#include "WebLink.h"

#include <QDesktopServices>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QListWidget>
#include <QScopeGuard>
#include <QTextBlock>
#include <QtTest>

/// What there is to read: the guides, the links of the community, the about dialog.
class tst_Reading : public QObject
{
    Q_OBJECT

public slots:
    void take(const QUrl &url) { m_opened.append(url.toString()); }

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationVersion(QStringLiteral("7.8.9"));
        for (const char *scheme : {"https", "file"})
            QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "take");
    }
    void init() { m_opened.clear(); }
    void guidesAreWhole_data();
    void guidesAreWhole();
    void guidesLeadToEachOther();
    void linksOpenInTheBrowser();
    void aboutNamesTheProgram();

private:
    /// Links and pictures that a page holds.
    struct Page
    {
        explicit Page(const QTextDocument *document)
        {
            for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
                for (auto it = block.begin(); !it.atEnd(); ++it) {
                    const QTextCharFormat format = it.fragment().charFormat();
                    if (format.isAnchor() && !links.contains(format.anchorHref()))
                        links.append(format.anchorHref());
                    if (format.isImageFormat())
                        pictures.append(format.toImageFormat().name());
                }
            }
        }
        QStringList links;
        QStringList pictures;
    };

    QStringList m_opened;
};

void tst_Reading::guidesAreWhole_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("English") << QStringLiteral("en") << QStringLiteral(":/tutorials/")
                             << QStringList{QStringLiteral("First steps"),
                                            QStringLiteral("Editing bones, hot points and key frame actions"),
                                            QStringLiteral("Importing a model"),
                                            QStringLiteral("Materials and textures")};
    QTest::newRow("German") << QStringLiteral("de") << QStringLiteral(":/tutorials/de/")
                            << QStringList{
                                   QStringLiteral("Erste Schritte"),
                                   QStringLiteral("Knochen, Hotpoints und Keyframe-Aktionen bearbeiten"),
                                   QStringLiteral("Ein Modell importieren"),
                                   QStringLiteral("Materialien und Texturen")};
}

void tst_Reading::guidesAreWhole()
{
    QFETCH(QString, language);
    QFETCH(QString, folder);
    QFETCH(QStringList, expected);
    Language::install(language);
    const auto english = qScopeGuard([] { Language::install(QStringLiteral("en")); });
    TutorialsTab tab;
    tab.resize(1000, 600);
    tab.show();
    auto *list = tab.findChild<QListWidget *>(QStringLiteral("listTutorials"));
    auto *page = tab.findChild<QTextBrowser *>(QStringLiteral("txtTutorial"));
    QStringList titles;
    QStringList pictures;
    for (int row = 0; row < list->count(); ++row) {
        list->setCurrentRow(row);
        titles.append(list->item(row)->text());
        QVERIFY(page->toPlainText().startsWith(titles.last()));
        for (const char16_t taken : {u'\u00c3', u'\u00e2'}) // UTF-8 taken for Latin-1
            QVERIFY(!page->toPlainText().contains(QChar(taken)));
        const Page found(page->document());
        for (const QString &link : found.links)
            QVERIFY2(QFile::exists(folder + link), qPrintable(link));
        for (const QString &picture : found.pictures) {
            const QImage image(QDir::cleanPath(folder + picture));
            QVERIFY2(!image.isNull() && image.width() <= 760, qPrintable(picture));
            pictures.append(picture.section('/', -1));
        }
    }
    QCOMPARE(titles, expected);
    // Each picture is used, once.
    pictures.sort();
    QCOMPARE(pictures, QDir(QStringLiteral(":/tutorials/images")).entryList(QDir::Files, QDir::Name));
}

void tst_Reading::guidesLeadToEachOther()
{
    TutorialsTab tab;
    tab.show();
    auto *list = tab.findChild<QListWidget *>(QStringLiteral("listTutorials"));
    auto *page = tab.findChild<QTextBrowser *>(QStringLiteral("txtTutorial"));
    QCOMPARE(list->currentRow(), 0);
    emit page->anchorClicked(QUrl(Page(page->document()).links.value(0)));
    QCOMPARE(list->currentRow(), 1);
    QVERIFY(page->toPlainText().startsWith(list->currentItem()->text()));
    QVERIFY(m_opened.isEmpty());
}

void tst_Reading::linksOpenInTheBrowser()
{
    CommunityTab tab;
    const QStringList links = Page(tab.document()).links;
    QVERIFY(links.contains(QStringLiteral("https://store.steampowered.com/app/405830")));
    QVERIFY(links.contains(QStringLiteral("https://steamcommunity.com/app/405830")));
    QCOMPARE(links.size(), 5);
    for (const QString &link : links) {
        QVERIFY2(isWebLink(link), qPrintable(link));
        emit tab.anchorClicked(QUrl(link));
    }
    QCOMPARE(m_opened, links);
    for (const char *link : {"file:///etc", "javascript:1", "https:///x", "ftp://a/b", "qrc:/x", "a.b", ""})
        QVERIFY2(!isWebLink(QLatin1String(link)), link);
}

void tst_Reading::aboutNamesTheProgram()
{
    AboutDialog dialog;
    QCOMPARE(dialog.windowTitle(), QStringLiteral("About"));
    const auto label = [&dialog](const char *name) {
        return dialog.findChild<QLabel *>(QLatin1String(name));
    };
    QCOMPARE(label("lblVersion")->text(), QStringLiteral("Korvane v7.8.9"));
    QVERIFY(!label("lblIcon")->pixmap(Qt::ReturnByValue).isNull());
    const QString licences = label("lblLicences")->text();
    for (const char *word : {"Korvane", "MIT", "Qt 5.", "LGPL", "Assimp", "BSD", "Lucide", "ISC"})
        QVERIFY2(licences.contains(QLatin1String(word)), word);
    emit label("lblLicences")->linkActivated(QStringLiteral("https://lucide.dev"));
    QCOMPARE(m_opened, QStringList("https://lucide.dev"));
    QVERIFY(QFile::exists(QStringLiteral(":/sounds/test.wav")));
    dialog.show(); // where there is no sound, there is no complaint
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
}

QTEST_MAIN(tst_Reading)
#include "tst_reading.moc"
