// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "DocumentFields.h"
#include "DocumentKind.h"
#include "DocumentView.h"
#include "LoadedModel.h"
#include "Memory.h"
#include "ModelCopy.h"
#include "NamesFile.h"
#include "RecordSearch.h"

#include <QPointer>
#include <QUndoStack>
#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

struct ReadProgress;

/// The current document of one kind: its model, its file, its undo stack. The object lives as long as the
/// window; opening a file replaces what it holds.
class Document : public QObject, public DocumentView
{
    Q_OBJECT

public:
    Document(DocumentType type, RecordKind rootKind, QObject *parent = nullptr);
    ~Document() override;

    const DocumentKind &kind() const { return documentKind(m_type); }
    RecordKind rootKind() const { return m_rootKind; }
    /// True once a file was opened (or a model taken over).
    bool isOpen() const { return m_open; }
    bool isModified() const { return !m_undoStack.isClean(); }
    /// Whether the model holds work that is in no file: unsaved undo steps, changes that are none, a model
    /// that was never saved.
    bool differsFromFile() const { return m_open && (isModified() || m_changedDirectly || m_path.isEmpty()); }
    /// The file, with the toolkit's separators; empty for a document that was never saved.
    QString path() const { return m_path; }
    /// The file's name; for a document that was never saved, the name that it would get.
    QString fileName() const;
    QUndoStack *undoStack() { return &m_undoStack; }
    /// The file as it was when the model was read from it or written to it; of a restored one it may be
    /// unknown.
    const FileStamp &fileStamp() const { return m_fileStamp; }

    /// Reads `path` into a new model, which replaces the current one only when that succeeds. Returns true on
    /// failure and gives the reason, empty when the file could not be opened.
    [[nodiscard]] bool open(const QString &path, QString *reason);
    /// The two halves of that. What reads the file knows nothing of the document and may be called in any
    /// thread, once; a failed read is not to be adopted.
    using Reader = std::function<std::shared_ptr<LoadedFile>(ReadProgress &)>;
    virtual Reader reader(const QString &path) const = 0;
    void adopt(LoadedFile &file);
    /// What was made of the model that has just replaced another, while its file was read or an edit of all
    /// was worked out; empty when nothing was. For whoever asked for it, once.
    std::any takePrepared() { return std::exchange(m_prepared, {}); }
    void setPrepared(std::any prepared) { m_prepared = std::move(prepared); }
    /// Why the model as it stands cannot be stored in a file at all; empty when it can.
    virtual QString refusal() const = 0;
    /// Writes the model; on success the document has that path and its undo stack is clean. Returns true on
    /// failure, with nothing changed; `reason`, if given, then says why.
    [[nodiscard]] bool save(const QString &path, QString *reason = nullptr);
    /// The two halves of that. What writes has a copy of the model and may be called in any thread, once; the
    /// document goes on as it is until it is told of a success. What was changed meanwhile stays unsaved.
    using Writer = std::function<std::shared_ptr<SavedFile>()>;
    virtual Writer writer(const QString &path) = 0;
    void noteSaved(const SavedFile &file);
    /// Gives the bytes that save() would write now, or, of a model that cannot be saved as it stands, the
    /// nearest ones that can be read back, in any thread. Names that would go into a file of their own follow
    /// behind.
    using Drafter = std::function<std::vector<uchar>()>;
    virtual Drafter drafter() = 0;
    /// Lets a model that was kept as bytes replace the current one. It counts as modified until it is saved;
    /// `path` is its file, which was as `stamp` says when the model was read from it, `unsavedName` what it
    /// is called without one. Returns true on failure.
    [[nodiscard]] bool restore(const QByteArray &bytes, const QString &path, const QString &unsavedName,
                               const FileStamp &stamp);
    /// Goes on with the model although its file is not the one any more that it was read from: it counts as
    /// modified.
    void keepModel();
    /// The same while the file is away; fileReturned() takes it back when the file is there as it was, unless
    /// something was changed meanwhile.
    void fileWent();
    void fileReturned();

    /// Where its fields are edited.
    void setEditors(QWidget *editors) { m_fields.setEditors(editors); }
    /// A field that stands among those of another document, and edits this one.
    void addField(QWidget *field) { m_fields.add(field); }
    /// Stores what is typed there. Says what cannot be stored, and why.
    QStringList refusedTyping() const { return m_fields.refused(); }
    /// The same for what is not to be done while something is refused: goes back to the first such field,
    /// which tells why, and returns true.
    [[nodiscard]] bool returnToTyping();
    /// Gives up what is typed there.
    void discardTyping() { m_fields.discard(); }

    /// How many records of a list kind stand under the owner named by `index`.
    virtual int recordCount(RecordKind kind, const RecordIndex &index) const = 0;
    /// What a tree says of one record, or finds it by, beside the kind's own label: a bone's name, the index
    /// an entry holds, a surface's material, an action's event.
    virtual QString recordText(const RecordRef &record) const = 0;
    /// What a tree says of one record more quietly, behind its label: what the model's own names call the
    /// bone or the animation that it is, or is about. Empty when nothing does.
    virtual QString recordName(const RecordRef &record) const = 0;
    /// The mesh whose names of bones and animations count for it; null where none does.
    virtual const SkinnedMesh *namedMesh() const = 0;
    /// The fields of its records.
    virtual const RecordValues &values() const = 0;
    /// Gives the records that meet a condition in the model as it is now, in any thread.
    using Searcher = std::function<std::vector<RecordRef>(const std::atomic_bool &cancelled)>;
    virtual Searcher searcher(const Condition &condition) = 0;
    /// See RecordFields::change().
    virtual bool changeFields(const QVector<FieldChange> &changes, const QString &stepText) = 0;
    /// Lets the names of another document's mesh count for this one.
    void setNamingMesh(const SkinnedMesh *mesh) { m_namingMesh = mesh; }
    const SkinnedMesh *namingMesh() const { return m_namingMesh; }

    /// The file that save() would write beside `path` in the place of one that is not the document's; empty
    /// when there is none.
    virtual QString replacedBeside(const QString &path) const = 0;

    void recordChanged(const RecordRef &record) override;
    void structureChanged(const StructureChange &change) override;
    /// Takes note of a change that is not an undo step.
    void changedDirectly(const StructureChange &change);
    /// Hands the changes noted so far to the screen. Undo steps do so by themselves when they are complete.
    void flushChanges();

signals:
    /// Another model is about to take the place of the current one: the one passage for every replacement.
    void aboutToBeReplaced();
    void replaced();
    /// The model that has just replaced another was kept as bytes: its file may be another one meanwhile.
    void restored();
    void saved();
    /// The user is led back to a field that refuses what is typed in it.
    void typingRefused(const QString &refusal);
    /// The records that one undo step has changed, in the order of the changes.
    void recordsChanged(const QVector<RecordRef> &records);
    /// Lists of which one undo step has changed, in the order of the changes; comes before recordsChanged().
    void structuresChanged(const QVector<StructureChange> &changes);

protected:
    /// Lets the model that was read, or handed over, last take the place of the current one.
    void replace(const QString &path, const QString &unsavedName, const FileStamp &stamp = {});
    /// Takes the new model out of what reader() gave.
    virtual void takeModel(LoadedFile &file) = 0;
    /// Reads a new model beside the current one out of what drafter() gave, of a document whose file is
    /// `path`; returns true on failure.
    virtual bool readDraft(const QByteArray &bytes, const QString &path) = 0;
    virtual void adoptModel() = 0;
    /// Takes over what is known of the names beside the model that was written.
    virtual void takeNames(const NamesFile &names) = 0;
    int change() const { return m_change; }

private:
    const DocumentType m_type;
    const RecordKind m_rootKind;
    bool m_open = false;
    bool m_changedDirectly = false;
    int m_change = 0; ///< the number of the last
    FileStamp m_fileStamp;
    bool m_wasClean = false; ///< when the file went, and still was since
    QString m_path;
    QString m_unsavedName;
    QUndoStack m_undoStack;
    DocumentFields m_fields;
    const SkinnedMesh *m_namingMesh = nullptr;
    std::any m_prepared;
    QVector<RecordRef> m_changes;
    QVector<StructureChange> m_structureChanges;
};

template <typename Model>
class ModelDocument : public Document
{
public:
    using Document::Document;

    ~ModelDocument() override { ModelDocument::aboutToChange(); }

    const Model &model() const { return m_model; }
    QString refusal() const override { return m_model.refusal(); }
    Drafter drafter() override;
    EditTarget<Model> editTarget() { return {m_model, *this}; }
    /// Whoever was promised a copy of the model as it is has it afterwards, or finds it lost.
    void aboutToChange() override
    {
        if (const auto promised = m_promised.lock())
            static_cast<void>(withinMemory([&promised] { promised->get(); }));
        m_promised.reset();
    }

    Reader reader(const QString &path) const override;
    Writer writer(const QString &path) override;
    /// What is to be made of each model that is read. Called before, it gives what is then called with the
    /// model in the thread that reads.
    using Prepare = typename LoadedModel<Model>::Prepare;
    using Preparation = std::function<Prepare()>;
    void setPreparation(Preparation preparation) { m_preparation = std::move(preparation); }
    Prepare preparation() const { return m_preparation ? m_preparation() : Prepare(); }

    /// The model as it is now; one for all who ask until it changes.
    std::shared_ptr<ModelCopy<Model>> copy()
    {
        std::shared_ptr<ModelCopy<Model>> promised = m_promised.lock();
        if (!promised || promised->isLost())
            m_promised = promised = std::make_shared<ModelCopy<Model>>(m_model);
        return promised;
    }

    /// Takes over a model that has no file yet; `name`, without extension, is what it would be saved as.
    void take(Model model, const QString &name)
    {
        m_fresh = std::move(model);
        m_names.note({});
        replace({}, name + QLatin1Char('.') + kind().extension);
    }

    int recordCount(RecordKind kind, const RecordIndex &index) const override
    {
        return ::recordCount(m_model, kind, index);
    }
    QString recordText(const RecordRef &record) const override;
    QString recordName(const RecordRef &record) const override;
    QString replacedBeside(const QString &path) const override;
    const SkinnedMesh *namedMesh() const override
    {
        if constexpr (std::is_same_v<Model, SkinnedMesh>)
            return &m_model;
        else
            return namingMesh();
    }
    const RecordValues &values() const override { return m_values; }
    Searcher searcher(const Condition &condition) override;
    bool changeFields(const QVector<FieldChange> &changes, const QString &stepText) override;

protected:
    void takeModel(LoadedFile &file) override;
    bool readDraft(const QByteArray &bytes, const QString &path) override;
    void adoptModel() override
    {
        aboutToChange();
        Background::discard(std::exchange(m_model, std::exchange(m_fresh, Model())));
    }
    void takeNames(const NamesFile &names) override;

private:
    Model m_model;
    Model m_fresh;
    const ModelValues<Model> m_values{m_model};
    std::weak_ptr<ModelCopy<Model>> m_promised; ///< of m_model as it is
    NamesFile m_names;                          ///< of a skinned mesh
    Preparation m_preparation;
};

using SkinnedMeshDocument = ModelDocument<SkinnedMesh>;
using AnimDocument = ModelDocument<AnimFile>;
using StaticMeshDocument = ModelDocument<StaticMesh>;
