// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Find.h"
#include "FlagsEditor.h"
#include "FloatSpinBox.h"
#include "IntSpinBox.h"
#include "MaterialCatalog.h"
#include "NamesFile.h"
#include "PageStack.h"
#include "PropertyPages.h"
#include "SampleModels.h"

/// A document with its tree and its pages.
template <typename Model>
struct Pane
{
    Pane(DocumentType type, RecordKind root)
        : document(type, root)
    {
        tree.setDocument(&document);
        stack.setTree(&tree);
        stack.resize(400, 700);
    }

    void open(const Model &model)
    {
        const QString path = home.filePath(QStringLiteral("opened"));
        QVERIFY(!model.write(path));
        if constexpr (std::is_same_v<Model, SkinnedMesh>) {
            QFile::remove(ModelNames::pathFor(path));
            QCOMPARE(NamesFile().write(path, model), QString());
        }
        openFile(path);
    }
    void openFile(const QString &path)
    {
        QString reason;
        QVERIFY2(!document.open(path, &reason), qPrintable(path + reason));
        stack.show();
    }
    void select(const QVector<RecordRef> &records) { tree.selectRecords(records, records.first()); }

    QWidget *page() const
    {
        const auto *scroll = qobject_cast<QScrollArea *>(stack.pages()->currentWidget());
        return scroll ? scroll->widget() : nullptr;
    }
    template <typename Widget>
    Widget *child(const char *name) const
    {
        auto *found = page()->template findChild<Widget *>(QLatin1String(name));
        if (!found)
            qFatal("%s is missing", name);
        return found;
    }
    QByteArray bytes() const { return SampleModels::bytesOf(document.model()); }
    QUndoStack &undo() { return *document.undoStack(); }

    QTemporaryDir home;
    ModelDocument<Model> document;
    KVTreeView tree;
    PageStack stack;
};

struct Panes
{
    Panes()
    {
        addPages(mesh.stack, mesh.document, mesh.tree, materials);
        addPages(anim.stack, anim.document, anim.tree, mesh.document);
        addPages(rigid.stack, rigid.document, rigid.tree, materials);
    }

    void openPlain()
    {
        mesh.open(SampleModels::plainMesh());
        anim.open(SampleModels::plainAnim());
        rigid.open(SampleModels::plainStatic());
    }
    template <typename Model>
    Pane<Model> &of()
    {
        if constexpr (std::is_same_v<Model, SkinnedMesh>)
            return mesh;
        else if constexpr (std::is_same_v<Model, AnimFile>)
            return anim;
        else
            return rigid;
    }

    MaterialCatalog materials;
    Pane<SkinnedMesh> mesh{DocumentType::SkinnedMesh, RecordKind::SkinnedMesh};
    Pane<AnimFile> anim{DocumentType::Anim, RecordKind::AnimFile};
    Pane<StaticMesh> rigid{DocumentType::StaticMesh, RecordKind::StaticMesh};
};

/// Everything on a page that takes input; what another editor is made of belongs to that.
inline QVector<QWidget *> editorsOf(QWidget *page)
{
    QVector<QWidget *> editors;
    for (QWidget *widget : page->findChildren<QWidget *>()) {
        if (widget->parentWidget()->parentWidget() != page || widget->focusPolicy() == Qt::NoFocus ||
            qobject_cast<QLabel *>(widget) || qobject_cast<QPushButton *>(widget))
            continue;
        editors.append(widget);
    }
    for (FlagsEditor *flags : page->findChildren<FlagsEditor *>()) {
        if (!editors.contains(flags))
            editors.append(flags);
    }
    return editors;
}

inline void type(QWidget *editor, const QString &text)
{
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, Qt::Key_Return);
}

inline QString shownText(const QWidget *editor)
{
    if (const auto *flags = qobject_cast<const FlagsEditor *>(editor))
        return QString::number(flags->value());
    if (const auto *box = qobject_cast<const QCheckBox *>(editor))
        return QString::number(box->isChecked());
    if (const auto *choice = qobject_cast<const QComboBox *>(editor))
        return choice->currentText();
    const auto *line = qobject_cast<const QLineEdit *>(editor);
    return (line ? line : editor->findChild<QLineEdit *>())->text();
}

/// Enters what the editor shows already.
inline void enterSame(QWidget *editor)
{
    if (qobject_cast<QComboBox *>(editor))
        QTest::keyClick(editor, Qt::Key_Home);
    else if (qobject_cast<FlagsEditor *>(editor))
        QTest::keyClick(editor->findChild<QPushButton *>(QStringLiteral("btnFlagsNone")), Qt::Key_Space);
    else if (!qobject_cast<QCheckBox *>(editor))
        type(editor, shownText(editor));
}

inline void enterOther(QWidget *editor)
{
    if (qobject_cast<QComboBox *>(editor))
        QTest::keyClick(editor, Qt::Key_Down);
    else if (qobject_cast<FlagsEditor *>(editor))
        QTest::keyClick(editor->findChild<QCheckBox *>(QStringLiteral("cbBit31")), Qt::Key_Space);
    else if (qobject_cast<QCheckBox *>(editor))
        QTest::keyClick(editor, Qt::Key_Space);
    else if (qobject_cast<QLineEdit *>(editor))
        type(editor, shownText(editor) + QLatin1Char('x'));
    else if (qobject_cast<FloatSpinBox *>(editor))
        type(editor, shownText(editor) == QLatin1String("0.25") ? QString("0.5") : QString("0.25"));
    else if (shownText(editor) == QLatin1String("7"))
        type(editor, QStringLiteral("8"));
    else
        type(editor, QStringLiteral("7"));
}
