// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "EveryWindow.h"
#include "Language.h"
#include "Panes.h"

#include <set>

struct Message
{
    QString context;
    QString source;
    QStringList translations; ///< that are finished; several of what is counted
};

namespace {
QVector<Message> messagesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no %s", qPrintable(path));
    QXmlStreamReader xml(&file);
    QVector<Message> messages;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            messages.append({context, {}, {}});
        } else if (xml.name() == QLatin1String("source")) {
            messages.last().source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const bool isFinished = xml.attributes().value(QLatin1String("type")).isEmpty();
            const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            if (isFinished && !text.trimmed().isEmpty())
                messages.last().translations << text;
        }
    }
    if (xml.hasError())
        qFatal("%s: %s", qPrintable(path), qPrintable(xml.errorString()));
    return messages;
}

/// "%1", "%2", "%n", sorted, as often as they stand there; of a counted text that has all forms, once.
QStringList placesIn(const QString &text)
{
    static const QRegularExpression place(QStringLiteral("%(?:[0-9]+|n)"));
    std::set<QString> found;
    for (auto it = place.globalMatch(text); it.hasNext();)
        found.insert(it.next().captured());
    return QStringList(found.begin(), found.end());
}
} // namespace

/// Writes down what is asked for and answers nothing.
class Listener : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        asked.insert({QString::fromUtf8(context), QString::fromUtf8(source)});
        return {};
    }
    bool isEmpty() const override { return false; }

    mutable std::set<std::pair<QString, QString>> asked;
};

/// The German program. It is German from the start, since tables of texts are made once.
class tst_Translation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_messages = messagesOf(TestSupport::source(QStringLiteral("translations/korvane_de.ts")));
        Language::install(QStringLiteral("de"));
        QCoreApplication::installTranslator(&m_listener);
    }

    void cleanupTestCase() { QCoreApplication::removeTranslator(&m_listener); }
    void theLanguageIsResolved()
    {
        QCOMPARE(Language::installed(), QStringLiteral("de"));
        for (const Language::Choice &choice : Language::choices()) {
            if (!choice.code.isEmpty())
                QCOMPARE(Language::resolve(choice.code), choice.code);
        }
        // The desktop of the tests has no language, and one that is not there stands for the desktop's.
        QCOMPARE(Language::resolve({}), QStringLiteral("en"));
        QCOMPARE(Language::resolve(QStringLiteral("tlh")), QStringLiteral("en"));
    }

    void everyTextIsTranslated()
    {
        QVERIFY(m_messages.size() > 1000);
        QStringList faults;
        for (const Message &message : qAsConst(m_messages)) {
            if (message.translations.isEmpty())
                faults << message.context + QStringLiteral(": ") + message.source;
            for (const QString &text : message.translations) {
                const auto ends = [](const QString &of) { return of.right(1) == QLatin1String("\n"); };
                const bool sameLetter = QKeySequence::mnemonic(text).isEmpty() ==
                                        QKeySequence::mnemonic(message.source).isEmpty();
                if (placesIn(text) != placesIn(message.source) || !sameLetter ||
                    ends(text) != ends(message.source))
                    faults << message.source + QStringLiteral(" -> ") + text;
            }
        }
        checkNone(faults);
    }

    void windowsAreGerman()
    {
        EveryWindow windows(m_home.path());
        QCOMPARE(windows.main.menuBar()->actions().first()->text(), QStringLiteral("&Datei"));
        // Keys stay what they are.
        QCOMPARE(windows.main.findChild<QAction *>(QString("actionSave"))->shortcut(),
                 QKeySequence(QString("Ctrl+S"), QKeySequence::PortableText));
        if (QFile::exists(QLibraryInfo::location(QLibraryInfo::TranslationsPath) + QString("/qtbase_de.qm")))
            QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Abbrechen"));
        checkNone(windows.mnemonicClashes());
    }

    void filtersSpeakGerman()
    {
        Panes panes;
        panes.mesh.open(SampleModels::plainMesh());
        KVTreeView &tree = panes.mesh.tree;
        const auto found = [&tree](const QString &text) {
            tree.setFilter(text);
            tree.selectFirstMatch();
            return tree.currentRecord();
        };
        // Vertices are hidden until a filter asks for them by their noun.
        QCOMPARE(found(QString("Vertex 1")), (RecordRef{RecordKind::SkinnedVertex, {1}}));
        QCOMPARE(found(QString("fläche 0")), (RecordRef{RecordKind::SkinnedSurface, {0}}));
        const QString bone = tree.label({RecordKind::Bone, {0}}).section(QString(": "), 1);
        QVERIFY2(bone.endsWith(QString("links")) || bone.endsWith(QString("rechts")), qPrintable(bone));
        QCOMPARE(found(QString("Knochen ") + bone), (RecordRef{RecordKind::Bone, {0}}));
    }

    /// A text may stand in the file under another class than the one that looks it up; then it stays English.
    void everythingThatIsShownWasLookedUp()
    {
        EveryWindow windows(m_home.path());
        Panes panes;
        panes.mesh.open(SampleModels::skinnedMesh());
        panes.anim.open(SampleModels::animFile());
        panes.rigid.open(SampleModels::staticMesh());
        Settings::HideMeshData.setValue(false);
        Settings::HideAnimData.setValue(false);
        for (KVTreeView *tree : {&panes.mesh.tree, &panes.anim.tree, &panes.rigid.tree}) {
            tree->rebuild();
            for (QTreeWidgetItemIterator item(tree); *item; ++item) {
                (*item)->text(0);
                tree->setCurrentItem(*item);
            }
        }

        QTranslator german;
        QVERIFY(german.load(QStringLiteral(":/translations/korvane_de.qm")));
        static const QRegularExpression toolkit(QStringLiteral("^Q[A-Z]"));
        static const QRegularExpression word(QStringLiteral("[A-Za-z]{2}"));
        QStringList faults;
        for (const auto &[context, source] : m_listener.asked) {
            // The toolkit's own, and patterns without a word.
            if (toolkit.match(context).hasMatch() || !word.match(source).hasMatch())
                continue;
            if (german.translate(qPrintable(context), source.toUtf8().constData()).isEmpty())
                faults << context + QStringLiteral(": ") + source;
        }
        QVERIFY(m_listener.asked.size() > 500);
        checkNone(faults);
    }

private:
    const ProgramFolder m_home{};
    QVector<Message> m_messages;
    Listener m_listener;
};

QTEST_MAIN(tst_Translation)
#include "tst_translation.moc"
