// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AboutDialog.h"
#include "CommunityTab.h"
#include "Find.h"
#include "Language.h"
#include "Look.h"
#include "TutorialsTab.h"
#include "WebLink.h"

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
    void guidesAreWhole()
    {
        const std::pair<QString, QString> firsts[] = {{"de", "Erste Schritte"}, {"en", "First steps"}};
        for (const auto &[language, first] : firsts) {
            Language::install(language);
            const QString folder = QString(":/tutorials/") + (language == QLatin1String("de") ? "de/" : "");
            TutorialsTab tab;
            tab.resize(1000, 600);
            tab.show();
            auto *list = find<QListWidget>(tab, "listTutorials");
            auto *page = find<QTextBrowser>(tab, "txtTutorial");
            QCOMPARE(list->count(), 4);
            QCOMPARE(list->item(0)->text(), first);
            QStringList pictures;
            for (int row = 0; row < list->count(); ++row) {
                list->setCurrentRow(row);
                QVERIFY(page->toPlainText().startsWith(list->item(row)->text()));
                for (const char16_t taken : {u'\u00c3', u'\u00e2'}) // UTF-8 taken for Latin-1
                    QVERIFY(!page->toPlainText().contains(QChar(taken)));
                const Page found(page->document());
                for (const QString &link : found.links)
                    QVERIFY2(QFile::exists(folder + link), qPrintable(link));
                for (const QString &picture : found.pictures) {
                    const QUrl address("qrc" + folder + picture);
                    const auto shown = [&](bool dark) {
                        page->setPalette(ourPalette(dark));
                        return page->loadResource(QTextDocument::ImageResource, address);
                    };
                    const QByteArray bytes[] = {shown(false).toByteArray(), shown(true).toByteArray()};
                    for (const QByteArray &looked : bytes)
                        QVERIFY2(QImage::fromData(looked).width() > 500, qPrintable(picture));
                    QVERIFY2(bytes[0] != bytes[1], qPrintable(picture));
                    pictures.append(picture.section('/', -1));
                }
            }
            // Each picture is used, once, and stands there in both looks.
            pictures.sort();
            for (const char *look : {"light", "dark"})
                QCOMPARE(pictures, QDir(folder + "images/" + look).entryList(QDir::Files, QDir::Name));
        }
    }

    void guidesLeadToEachOther()
    {
        TutorialsTab tab;
        tab.show();
        auto *list = find<QListWidget>(tab, "listTutorials");
        auto *page = find<QTextBrowser>(tab, "txtTutorial");
        QCOMPARE(list->currentRow(), 0);
        emit page->anchorClicked(QUrl(Page(page->document()).links.value(0)));
        QCOMPARE(list->currentRow(), 1);
        QVERIFY(page->toPlainText().startsWith(list->currentItem()->text()));
        QVERIFY(m_opened.isEmpty());
    }

    void linksOpenInTheBrowser()
    {
        CommunityTab tab;
        const QStringList links = Page(tab.document()).links;
        QCOMPARE(links.size(), 6);
        for (const QString &link : links) {
            QVERIFY2(isWebLink(link), qPrintable(link));
            emit tab.anchorClicked(QUrl(link));
        }
        QCOMPARE(m_opened, links);
        for (const char *link :
             {"file:///etc", "javascript:1", "https:///x", "ftp://a/b", "qrc:/x", "a.b", ""})
            QVERIFY2(!isWebLink(QLatin1String(link)), link);
    }

    void aboutNamesTheProgram()
    {
        AboutDialog dialog;
        const auto label = [&dialog](const char *name) { return find<QLabel>(dialog, name); };
        QCOMPARE(label("lblVersion")->text(), QStringLiteral("Korvane v7.8.9"));
        QVERIFY(!label("lblIcon")->pixmap(Qt::ReturnByValue).isNull());
        const QString licences = label("lblLicences")->text();
        for (const char *word :
             {"Korvane", "MIT", "Qt 5.", "LGPL", "Assimp", "BSD", "stb_image", "Lucide", "ISC"})
            QVERIFY2(licences.contains(QLatin1String(word)), word);
        emit label("lblLicences")->linkActivated(QStringLiteral("https://lucide.dev"));
        QCOMPARE(m_opened, QStringList("https://lucide.dev"));
        QVERIFY(QFile::exists(QStringLiteral(":/sounds/test.wav")));
        dialog.show(); // where there is no sound, there is no complaint
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    }

private:
    /// Links and pictures that a page holds.
    struct Page
    {
        explicit Page(const QTextDocument *document)
        {
            for (const QTextFormat &format : document->allFormats()) {
                if (format.isCharFormat() && format.toCharFormat().isAnchor())
                    links.append(format.toCharFormat().anchorHref());
                if (format.isImageFormat())
                    pictures.append(format.toImageFormat().name());
            }
            links.removeDuplicates();
        }
        QStringList links;
        QStringList pictures;
    };

    QStringList m_opened;
};

QTEST_MAIN(tst_Reading)
#include "tst_reading.moc"
