// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "Editors.h"
#include "Italics.h"
#include "KVTreeView.h"

#include <QWidget>

#include <algorithm>
#include <cmath>
#include <functional>

/// The editors of one kind of record. Showing a record pushes nothing; only what the user does in an editor
/// reaches the document.
class PropertyPage : public QWidget
{
    Q_OBJECT

public:
    /// `title`: with the record's indexes as %1 to %3.
    PropertyPage(RecordKind kind, const QString &title, QWidget *parent);

    RecordKind kind() const { return m_kind; }
    const RecordIndex &index() const { return m_index; }

    /// Fills every editor from the record, silently. A value that is not the same in all of `selected`, which
    /// an edit would reach too, is shown in italics.
    void showRecord(const RecordIndex &index, const QVector<RecordIndex> &selected);
    /// Whether any value is shown in italics.
    bool showsDifferences() const { return m_showsDifferences; }

    /// "Bone 3 Properties".
    QString title() const;

    /// Gives up what is typed and not stored, and tells what it was: another record is shown next, or none.
    void leave();

signals:
    /// Something for the status bar.
    void told(const QString &text);

protected:
    /// Prepares an editor of a material path: files hold Latin-1, so nothing else is stored.
    static void setUpMaterialEditor(TextField *editor);

    /// Called after the editors were filled, for what depends on them.
    virtual void recordShown() {}

    bool eventFilter(QObject *watched, QEvent *event) override;

    struct Binding
    {
        QWidget *editor;
        std::function<void()> show;
        std::function<void()> commit;
        /// Marks what in the shown record is not as in all these; gives whether there is any.
        std::function<bool(const QVector<RecordIndex> &)> mark;
    };
    void addBinding(Binding binding);
    /// Takes the value of a bound editor to the document. The whole body of a changed slot.
    void commit(const QWidget *editor);

private:
    const RecordKind m_kind;
    const QString m_title;
    RecordIndex m_index{};
    QVector<Binding> m_bindings;
    bool m_showsDifferences = false;
};

/// A page of the records of one kind (`RecordType` is one of Records).
template <typename RecordType>
class RecordPage : public PropertyPage
{
public:
    using Model = typename RecordType::Model;

    RecordPage(ModelDocument<Model> &document, const KVTreeView &tree, const QString &title, QWidget *parent)
        : PropertyPage(RecordType::kind, title, parent)
        , m_document(document)
        , m_tree(tree)
    {
        // The same indexes may name another record afterwards.
        connect(&document, &Document::aboutToBeReplaced, this, &RecordPage::leave);
        connect(&document, &Document::structuresChanged, this, &RecordPage::leave);
    }

protected:
    const Model &model() const { return m_document.model(); }
    /// The record shown; null while there is none.
    const typename RecordType::Record *record() const
    {
        return RecordType::find(m_document.model(), index());
    }

    /// One row of the page: the editor, the command that stores its field, the part of the field that it
    /// edits, the name of the undo step, and the slot that its edits go to. The step is a macro over all
    /// selected records of the kind; fields of the whole document have none and take their command's name.
    template <typename Command, typename Editor, typename Part, typename Page>
    void bind(Editor *editor, const Part &part, const QString &macroText, void (Page::*slot)())
    {
        const auto show = [this, editor, part] {
            if (const auto *shown = record())
                Editors::show(editor, part.get(Command::Field::get(*shown)));
        };
        const auto commitEdit = [this, editor, part, macroText] {
            commitEditor<Command>(editor, part, macroText);
        };
        const auto mark = [this, editor, part](const QVector<RecordIndex> &others) {
            return markEditor<Command>(editor, part, others);
        };
        addBinding({editor, show, commitEdit, mark});
        Editors::onEdited(editor, static_cast<Page *>(this), slot);
    }

    /// The rows of a vector's components, in their order; the axis is %1 in the name of the undo step.
    template <typename Command, typename Page>
    void bindVector(const QString &macroText, const QVector<QPair<FloatSpinBox *, void (Page::*)()>> &rows)
    {
        for (int i = 0; i < rows.size(); ++i) {
            const QString axis(QLatin1Char("XYZW"[i]));
            bind<Command>(rows[i].first, Parts::Component{i},
                          QString(macroText).replace(QLatin1String("%1"), axis), rows[i].second);
        }
    }

    /// Sets a part of a field in every selected record of the kind, as one undo step, if it differs from
    /// what the shown record holds.
    template <typename Command, typename Part, typename Edited>
    void edit(const Part &part, const Edited &edited, const QString &macroText)
    {
        const auto *shown = record();
        if (!shown)
            return;
        using PartValue = decltype(part.get(Command::Field::get(*shown)));
        const auto wanted = static_cast<PartValue>(edited);
        // A NaN differs from everything, itself included, so that it can be edited away.
        if (part.get(Command::Field::get(*shown)) == wanted)
            return;

        // What is highlighted is edited, and nothing else.
        const QVector<RecordIndex> records = m_tree.selectedRecords(RecordType::kind);
        if (records.isEmpty())
            return;
        QUndoStack *stack = m_document.undoStack();
        if (!macroText.isEmpty())
            stack->beginMacro(macroText);
        for (const RecordIndex &target : records) {
            auto value = Command::Field::get(*RecordType::find(m_document.model(), target));
            part.set(value, wanted);
            stack->push(new Command(m_document.editTarget(), target, value));
        }
        if (!macroText.isEmpty())
            stack->endMacro();
    }

private:
    template <typename Command, typename Editor, typename Part>
    bool markEditor(Editor *editor, const Part &part, const QVector<RecordIndex> &others)
    {
        const auto *shown = record();
        const bool differs =
            shown && std::any_of(others.begin(), others.end(), [&](const RecordIndex &other) {
                const auto *record = RecordType::find(m_document.model(), other);
                return record &&
                       !isSame(part.get(Command::Field::get(*record)), part.get(Command::Field::get(*shown)));
            });
        setItalic(editor, differs);
        return differs;
    }
    /// Each flag by itself.
    template <typename Command, typename Part>
    bool markEditor(FlagsEditor *editor, const Part &part, const QVector<RecordIndex> &others)
    {
        qint32 bits = 0;
        for (const RecordIndex &other : others) {
            if (const auto *record = RecordType::find(m_document.model(), other))
                bits |= part.get(Command::Field::get(*record)) ^ editor->value();
        }
        editor->markBits(bits);
        return bits != 0;
    }

    template <typename Value>
    static bool isSame(const Value &a, const Value &b)
    {
        if constexpr (std::is_floating_point_v<Value>) {
            if (std::isnan(a) && std::isnan(b))
                return true;
        }
        return a == b;
    }

    template <typename Command, typename Editor, typename Part>
    void commitEditor(const Editor *editor, const Part &part, const QString &macroText)
    {
        edit<Command>(part, Editors::value(editor), macroText);
    }
    /// One flag is switched, in every record; the others stay as each record has them.
    template <typename Command, typename Part>
    void commitEditor(const FlagsEditor *editor, const Part &, const QString &macroText)
    {
        const Parts::MaskedBits bits{editor->editedBits()};
        edit<Command>(bits, bits.get(editor->value()), macroText);
    }

    ModelDocument<Model> &m_document;
    const KVTreeView &m_tree;
};
