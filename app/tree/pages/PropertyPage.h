// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "Editors.h"
#include "EventArguments.h"
#include "Expression.h"
#include "FieldName.h"
#include "Fields.h"
#include "IndexTargets.h"
#include "Italics.h"
#include "KVTreeView.h"
#include "NumberText.h"
#include "Questions.h"
#include "RecordFields.h"

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

    /// Says anew what numbers stand for: it may be called otherwise.
    void showNames();

    /// "Bone 3 Properties".
    QString title() const;
    /// The property of an editor that holds the id of its RecordField.
    static constexpr const char *FieldProperty = "field";

    /// Gives up what is typed and not stored, and tells what it was: another record is shown next, or none.
    void leave();

    /// Those of its fields whose numbers stand for something.
    QList<FieldName *> names() const { return findChildren<FieldName *>(); }

signals:
    /// Something for the status bar.
    void told(const QString &text);

protected:
    static QString recordRefusal(const QString &record, const QString &reason);
    static QString tooManyNumbers(int numbers, int fields);

    /// Called after the editors were filled, for what depends on them.
    virtual void recordShown() {}
    /// What the context menu of a number offers to ask; `fitting` is what it stands for, null for nothing.
    virtual QStringList questions(QLatin1String fitting) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

    struct Binding
    {
        QWidget *editor;
        std::function<void()> show;
        std::function<void()> commit;
        /// Marks what in the shown record is not as in all these; gives whether there is any.
        std::function<bool(const QVector<RecordIndex> &)> mark;
        /// Says what the number stands for that is, or is not, the same in all these; null for one that
        /// stands for itself.
        std::function<void(const QVector<RecordIndex> &, bool differs)> name = {};
        bool differs = false;
    };
    void addBinding(Binding binding);
    /// Takes the value of a bound editor to the document. The whole body of a changed slot.
    void commit(const QWidget *editor);

private:
    const RecordKind m_kind;
    const QString m_title;
    RecordIndex m_index{};
    QVector<Binding> m_bindings;
    QVector<RecordIndex> m_selected;
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

    /// One row of the page: the editor, the field that it stands for, one of Fields, and the slot that its
    /// edits go to. The step is a macro over all selected records of the kind; fields of the whole document
    /// have none and take their command's name.
    template <typename Row, typename Editor, typename Page>
    void bind(Editor *editor, const Row &row, void (Page::*slot)())
    {
        using Command = typename Row::Command;
        const auto part = row.part;
        const auto show = [this, editor, part] {
            if (const auto *shown = record())
                Editors::show(editor, part.get(Command::Field::get(*shown)));
        };
        const auto commitEdit = [this, editor, part, step = row.stepText()] {
            commitEditor<Command>(editor, part, step);
        };
        const auto mark = [this, editor, part](const QVector<RecordIndex> &others) {
            return markEditor<Command>(editor, part, others);
        };
        const auto &field = fieldOf(row);
        Binding binding{editor, show, commitEdit, mark};
        if constexpr (std::is_base_of_v<NumberField, Editor>) {
            if (field.naming() != Naming::Nothing)
                binding.name = naming(editor, field);
        }
        addBinding(std::move(binding));
        prepare(editor, row, field);
        Editors::onEdited(editor, static_cast<Page *>(this), slot);
    }

    /// The rows of a vector's components, in their order.
    template <typename Command, int Size, typename Page>
    void bindVector(const VectorRow<Command, Size> &rows,
                    const std::array<QPair<FloatSpinBox *, void (Page::*)()>, Size> &editors)
    {
        for (int i = 0; i < Size; ++i) {
            FloatSpinBox *editor = editors[size_t(i)].first;
            bind(editor, rows[i], editors[size_t(i)].second);
            FieldRecords records = editor->records();
            records.paste = [this, i](const QStringList &numbers) {
                return pasteVector<Command, Size>(numbers, i);
            };
            editor->setRecords(std::move(records));
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

        const auto change = [&](auto &value) { part.set(value, wanted); };
        editAll<Command>(change, macroText);
    }

    /// Changes a field of every selected record of the kind, as one undo step.
    template <typename Command, typename Change>
    void editAll(const Change &change, const QString &macroText)
    {
        // What is highlighted is edited, and nothing else.
        const QVector<RecordIndex> records = m_tree.selectedRecords(RecordType::kind);
        if (records.isEmpty())
            return;
        QUndoStack *stack = m_document.undoStack();
        if (!macroText.isEmpty())
            stack->beginMacro(macroText);
        for (const RecordIndex &target : records) {
            auto value = Command::Field::get(*RecordType::find(m_document.model(), target));
            change(value);
            stack->push(new Command(m_document.editTarget(), target, value));
        }
        if (!macroText.isEmpty())
            stack->endMacro();
    }

    /// Gives every selected record this value.
    template <typename Row>
    void giveAll(const Row &row, const FieldValue &value)
    {
        give(fieldOf(row), value);
    }

private:
    template <typename Command, typename Editor, typename Part>
    bool markEditor(Editor *editor, const Part &part, const QVector<RecordIndex> &others)
    {
        const bool isMarked = differs<Command>(part, others);
        setItalic(editor, isMarked);
        return isMarked;
    }
    template <typename Command, typename Part>
    bool differs(const Part &part, const QVector<RecordIndex> &others) const
    {
        const auto *shown = record();
        return shown && std::any_of(others.begin(), others.end(), [&](const RecordIndex &other) {
                   const auto *record = RecordType::find(m_document.model(), other);
                   return record && !isSame(part.get(Command::Field::get(*record)),
                                            part.get(Command::Field::get(*shown)));
               });
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

    template <typename Row>
    static const ModelField<Model> &fieldOf(const Row &row)
    {
        return static_cast<const ModelField<Model> &>(*RecordFields::find(RecordType::kind, row.id()));
    }

    /// Has what a number stands for said beside its editor, and chosen there.
    std::function<void(const QVector<RecordIndex> &, bool)> naming(NumberField *editor,
                                                                   const ModelField<Model> &field)
    {
        auto *name = new FieldName(
            editor, [this, &field] { return choicesOf(field); },
            [this, &field](double number) {
                return targetOf(field, field.question(model(), index()), number);
            },
            field.namesBones());
        connect(name, &FieldName::chosen, this, [this, &field](int number) { giveNumber(field, number); });
        return [this, editor, &field, name](const QVector<RecordIndex> &others, bool differs) {
            if (!record())
                return;
            const QLatin1String question = field.question(model(), index());
            const QStringList asked = questions(question);
            if (Questions::of(editor) != asked)
                Questions::set(editor, asked);
            const double number = std::get<double>(field.value(model(), index()));
            const IndexTarget target = targetOf(field, question, number);
            const bool differ = differs || std::any_of(others.begin(), others.end(), [&](const auto &other) {
                                    return field.question(model(), other) != question;
                                });
            name->show(number, differ && !target.text.isEmpty() ? IndexTargets::differing(target) : target,
                       field.namesBones() || referenceOf(question));
        };
    }
    FieldChoices choicesOf(const ModelField<Model> &field) const
    {
        if constexpr (!std::is_same_v<Model, StaticMesh>) {
            if (field.namesBones())
                return FieldChoice::bones(field.naming(), model(), index(), m_document.namedMesh());
        }
        return FieldChoice::named(field.question(model(), index()), field.range(), m_document.namedMesh());
    }
    IndexTarget targetOf(const ModelField<Model> &field, QLatin1String question, double number) const
    {
        if constexpr (!std::is_same_v<Model, StaticMesh>) {
            if (field.namesBones())
                return IndexTargets::boneOf(field.naming(), model(), index(), m_document.namedMesh(),
                                            int(number));
        }
        return IndexTargets::named(question, field.name(model(), index(), m_document.namedMesh()), number);
    }

    template <typename Editor, typename Row>
    void prepare(Editor *editor, const Row &row, const ModelField<Model> &field)
    {
        editor->setProperty(FieldProperty, row.id());
        if constexpr (std::is_same_v<Editor, TextField>) {
            editor->setCheck([&field](const QString &text) {
                FieldValue value;
                return field.parse(text, {}, 0, value);
            });
        }
        if constexpr (std::is_base_of_v<NumberField, Editor>) {
            FieldRecords records;
            if (row.step) {
                const auto part = row.part;
                records.differ = [this, part] {
                    return differs<typename Row::Command>(part, m_tree.selectedRecords(RecordType::kind));
                };
                records.setAll = [this, part, step = row.stepText()] {
                    if (const auto *shown = record()) {
                        const auto wanted = part.get(Row::Command::Field::get(*shown));
                        editAll<typename Row::Command>([&](auto &value) { part.set(value, wanted); }, step);
                    }
                };
            }
            if (auto *name = editor->template findChild<FieldName *>()) {
                records.choose = [name] { name->choose(); };
                records.canChoose = [name] { return name->canChoose(); };
            }
            records.calculate = [this, &field](const Expression &expression) {
                return calculate(field, expression);
            };
            editor->setRecords(std::move(records));
            editor->setDegree(field.degree());
        }
        if constexpr (std::is_same_v<Editor, IntSpinBox>) {
            editor->setMinimum(int(field.range().least));
            editor->setMaximum(int(field.range().most));
        }
    }

    /// Changes every selected record by its own number, or none: then it gives the reason.
    QString calculate(const ModelField<Model> &field, const Expression &expression)
    {
        const QVector<RecordIndex> records = m_tree.selectedRecords(RecordType::kind);
        QVector<FieldChange> changes;
        changes.reserve(records.size());
        for (const RecordIndex &index : records) {
            FieldValue value;
            const QString reason =
                field.calculate(expression, field.value(model(), index), changes.size(), value);
            if (!reason.isEmpty())
                return records.size() == 1 ? reason
                                           : recordRefusal(m_tree.label({RecordType::kind, index}), reason);
            changes.append({&field, index, std::move(value)});
        }
        RecordFields::change(changes, field.stepText(), m_document.editTarget(), *m_document.undoStack());
        return {};
    }

    void give(const ModelField<Model> &field, const FieldValue &value)
    {
        QVector<FieldChange> changes;
        for (const RecordIndex &index : m_tree.selectedRecords(RecordType::kind))
            changes.append({&field, index, value});
        RecordFields::change(changes, field.stepText(), m_document.editTarget(), *m_document.undoStack());
    }
    /// The same with a number that was picked, if the field can hold it.
    void giveNumber(const ModelField<Model> &field, int number)
    {
        double value = 0.0;
        const QString reason = field.range().fit(number, value);
        if (reason.isEmpty())
            give(field, value);
        else
            emit told(reason);
    }

    /// Gives a vector of every selected record several numbers at once: all of its components, or as many as
    /// there are from one on.
    template <typename Command, int Size>
    QString pasteVector(const QStringList &numbers, int from)
    {
        const int first = numbers.size() == Size ? 0 : from;
        if (first + numbers.size() > Size)
            return tooManyNumbers(numbers.size(), Size - first);
        if (!record())
            return {};
        const auto change = [&](auto &value) {
            for (int i = 0; i < numbers.size(); ++i) {
                float number = 0.0f;
                if (NumberText::parse(numbers[i], number))
                    Parts::Component{first + i}.set(value, number);
            }
        };
        auto pasted = Command::Field::get(*record());
        change(pasted);
        if (pasted != Command::Field::get(*record()) ||
            differs<Command>(Parts::Whole, m_tree.selectedRecords(RecordType::kind)))
            editAll<Command>(change, QCoreApplication::translate("UndoCommands", Command::undoText));
        return {};
    }

    ModelDocument<Model> &m_document;
    const KVTreeView &m_tree;
};
