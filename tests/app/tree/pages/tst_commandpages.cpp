// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT

// Every command and every editor, with the screen: page, tree and selection follow each step.
#include "IndexHint.h"
#include "Panes.h"
#include "RecordItem.h"
#include "SampleCommands.h"

#include <typeinfo>

using namespace SampleCommands;

namespace {
/// Names of animations are the mesh's, and shown by the animation.
template <typename Command>
constexpr bool isShownElsewhere = std::is_same_v<Command, UC_SkinnedMeshAnimationNames>;

/// All that is to be seen of a document: its tree's labels, its page's title and what the page shows.
template <typename Model>
QStringList shownBy(Pane<Model> &pane)
{
    QStringList shown;
    for (QTreeWidgetItemIterator item(&pane.tree); *item; ++item)
        shown << (*item)->text(0);
    QWidget *page = pane.page();
    if (!page)
        return shown;
    shown << page->objectName();
    for (QLabel *label : pane.stack.template findChildren<QLabel *>()) {
        if (label->parent() == &pane.stack || page->isAncestorOf(label))
            shown << label->text();
    }
    for (const IndexHint *hint : page->findChildren<IndexHint *>()) {
        // On a busy machine the editor does not wait until a material's file is found.
        if (QTest::qWaitFor([hint] { return hint->text() != QLatin1String("looking for its file"); }))
            shown << hint->text();
    }
    for (const QWidget *editor : editorsOf(page))
        shown << shownText(editor);
    return shown;
}

/// A step is named, and by the same axis or number as its editor where it has one.
void checkText(const QString &editor, const QString &text)
{
    QVERIFY2(!text.isEmpty(), qPrintable(editor));
    if (text.at(text.size() - 2) != QLatin1Char(' ') || editor == QLatin1String("cbHPDealDamage"))
        return;
    const bool isOdd = editor == QLatin1String("sbAnimNodeInitTransZ"); // as it always was
    QCOMPARE(text.right(1), isOdd ? QStringLiteral("Y") : editor.right(1));
}
} // namespace

class tst_CommandPages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        TestSupport::useSettingsHome(m_home);
        Settings::HideMeshData.setValue(false);
        Settings::HideAnimData.setValue(false);
        m_panes = std::make_unique<Panes>();
        m_fresh = std::make_unique<Panes>();
    }

    void everyCommandIsFollowed()
    {
        forEach([this](auto tag) {
            using Command = typename decltype(tag)::Type;
            checkCommand<Command>();
            QVERIFY2(!QTest::currentTestFailed(), Command::name);
        });
    }

    void everyEditorMakesOneStep()
    {
        for (const int selected : {1, 3}) {
            m_types.clear();
            m_panes->openPlain();
            driveAll(m_panes->mesh, selected);
            driveAll(m_panes->anim, selected);
            driveAll(m_panes->rigid, selected);

            // Every field's command has an editor.
            forEach([this](auto tag) {
                using Command = typename decltype(tag)::Type;
                QVERIFY2(!isField<Command> || m_types.contains(typeid(Command).name()), Command::name);
            });
        }
    }

    void anAnimationsNameIsTheMeshs()
    {
        Panes panes;
        panes.openPlain();
        QUndoStack &steps = panes.mesh.undo();
        QUndoGroup window;
        window.addStack(&steps);
        window.addStack(&panes.anim.undo());
        window.setActiveStack(&panes.anim.undo());
        panes.anim.select({{RecordKind::AnimBlock, {0}}});
        auto *name = panes.anim.child<QLineEdit>("txtAnimName");
        name->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&panes.anim.stack));
        QTest::mouseClick(name, Qt::LeftButton);
        QVERIFY(name->hasFocus());
        QTest::keyClick(name, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(name, QStringLiteral("run"));
        // Whoever saves or replaces the mesh has what is typed there, and the history stays where it was.
        QVERIFY(steps.isClean() && panes.mesh.document.refusedTyping().isEmpty());
        QVERIFY(panes.mesh.document.model().animationNames.values().contains(QStringLiteral("run")));
        QCOMPARE(window.activeStack(), &panes.anim.undo());
        panes.anim.stack.refresh(); // as the window does
        QTest::keyClick(name, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(steps.index(), 0);
        panes.anim.stack.refresh();
        QTest::keyClick(name, Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(steps.index(), 1);
        // Nothing that is selected, nothing to name.
        panes.anim.tree.clearSelection();
        type(name, QStringLiteral("walk"));
        QCOMPARE(steps.count(), 1);
    }

private:
    template <typename Command>
    void checkCommand()
    {
        using Place = typename Command::Place;
        auto &pane = m_panes->of<typename Command::Model>();
        pane.open(SampleModels::plainModel<typename Command::Model>());
        auto &document = pane.document;
        const RecordRef root{document.rootKind(), {}};
        const RecordRef record{Place::kind, someIndex<Place>(document.model())};
        pane.select({record});
        const QStringList shown = shownBy(pane);

        // From wherever the user is.
        pane.select({root});
        pane.undo().push(make<Command>(document.editTarget(), record.index));
        checkScreen(pane, record);
        if (isField<Command> && !isShownElsewhere<Command>)
            QVERIFY(shownBy(pane) != shown);
        pane.select({root});
        pane.undo().undo();
        checkScreen(pane, record);
        QCOMPARE(shownBy(pane), shown);
        pane.select({root});
        pane.undo().redo();
        checkScreen(pane, record);
    }

    /// The record alone is selected, and all is shown as if the model had come from a file like that.
    template <typename Model>
    void checkScreen(Pane<Model> &pane, const RecordRef &record)
    {
        QCOMPARE(pane.tree.currentRecord(), record);
        QCOMPARE(pane.tree.selectedItems().size(), 1);
        QCOMPARE(pane.tree.selectedRecords(record.kind), QVector<RecordIndex>{record.index});
        Pane<Model> &fresh = m_fresh->of<Model>();
        fresh.open(pane.document.model());
        fresh.select({record});
        QCOMPARE(shownBy(pane), shownBy(fresh));
    }

    /// Each editor of each page, with that many records of its kind selected where there are so many.
    template <typename Model>
    void driveAll(Pane<Model> &pane, int selected)
    {
        QVector<RecordKind> seen;
        for (QTreeWidgetItemIterator item(&pane.tree); *item; ++item) {
            const auto *parent = (*item)->parent();
            QVector<RecordRef> records{static_cast<RecordItem *>(*item)->record()};
            pane.select(records);
            const RecordKind kind = records.first().kind;
            if (!pane.page() || seen.contains(kind))
                continue;
            seen.append(kind);
            for (int i = 1; parent && i < selected; ++i)
                records << static_cast<RecordItem *>(parent->child(i))->record();
            pane.select(records);
            for (const IndexHint *hint : pane.page()->template findChildren<IndexHint *>())
                QVERIFY2(hint->isHidden() || !hint->text().isEmpty(), qPrintable(hint->objectName()));
            for (QWidget *editor : editorsOf(pane.page())) {
                const QString name = editor->objectName();
                QVERIFY2(!editor->toolTip().isEmpty(), qPrintable(name));
                const bool isElsewhere = name == QLatin1String("txtAnimName");
                QUndoStack &stack = isElsewhere ? m_panes->mesh.undo() : pane.undo();
                const auto bytes = [&] { return isElsewhere ? m_panes->mesh.bytes() : pane.bytes(); };
                const QByteArray before = bytes();
                const QStringList shown = shownBy(pane);
                enterSame(editor);
                QVERIFY2(stack.count() == 0 && stack.isClean(), qPrintable(name));

                enterOther(editor);
                QVERIFY2(stack.count() == 1, qPrintable(name));
                checkText(name, stack.undoText());
                const QUndoCommand &step = *stack.command(0);
                QCOMPARE(step.childCount(), parent && !isElsewhere ? records.size() : 0);
                const QUndoCommand &first = step.childCount() > 0 ? *step.child(0) : step;
                m_types << typeid(first).name();
                const QByteArray after = bytes();
                QVERIFY2(after != before, qPrintable(name));
                QCOMPARE(pane.tree.selectedItems().size(), records.size());
                const QString text = shownText(editor);
                for (const RecordRef &record : qAsConst(records)) {
                    pane.select({record});
                    QCOMPARE(shownText(editor), text);
                }

                stack.undo();
                QVERIFY2(bytes() == before, qPrintable(name));
                if (!isElsewhere)
                    QCOMPARE(pane.tree.selectedItems().size(), records.size());
                stack.redo();
                QVERIFY2(bytes() == after, qPrintable(name));
                stack.undo();
                pane.select(records);
                pane.stack.refresh(); // as the window does when names change
                QCOMPARE(shownBy(pane), shown);
                stack.clear();
            }
        }
    }

    QTemporaryDir m_home;
    /// One to work in, and one in which the result is opened afresh.
    std::unique_ptr<Panes> m_panes;
    std::unique_ptr<Panes> m_fresh;
    QSet<QByteArray> m_types; ///< of the commands that editors have made
};

QTEST_MAIN(tst_CommandPages)
#include "tst_commandpages.moc"
