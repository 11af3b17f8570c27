// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentLoader.h"
#include "DocumentSaver.h"
#include "SaveGuard.h"
#include "SavePath.h"

#include <QEvent>
#include <QObject>

#include <array>

class QWidget;

/// Opening and saving the three documents with the dialogs and message boxes that belong to it.
class DocumentFiles : public QObject
{
    Q_OBJECT

public:
    /// `documents` in the order of documentKinds(); the boxes stand on `window`.
    DocumentFiles(const std::array<Document *, 3> &documents, QWidget *window);

    Document *document(DocumentType type) const { return m_documents[size_t(type)]; }
    /// The document that the current tab shows, which Open, Save and Save As act on; null for none.
    void setCurrent(Document *document) { m_current = document; }
    Document *current() const { return m_current; }

    /// How a load ended, after a failure was said. Is not called when another one takes its place.
    using Outcome = DocumentLoader::Outcome;
    using Then = std::function<void(Outcome outcome)>;
    /// Loads a file without asking about unsaved changes, but for those that are made meanwhile.
    void open(DocumentType type, const QString &path, const Then &then = {});
    /// The same with a file that goes with another one and was not asked for.
    void openAlong(DocumentType type, const QString &path, const Then &then) { load(type, path, then); }
    /// The same with the file that is open.
    void reload(DocumentType type, const Then &then) { load(type, document(type)->path(), then); }
    DocumentLoader &loader(DocumentType type) { return *m_loaders[size_t(type)]; }
    /// See DocumentLoader.
    void setPatience(int milliseconds);
    /// Lets the user choose a file and loads it. Asks about typing that cannot be stored, and nothing else.
    /// A material file is left to others.
    void openChosen(DocumentType type);

    /// Saves to the document's file, or to a chosen one when it has none yet. Returns true when the document
    /// was not saved: after a failure, which was then said, because the user thought better of it, or because
    /// something is typed that cannot be stored, whose field has the keys then. What takes longer is written
    /// beside the window; see finishSaving().
    bool save(DocumentType type);
    bool saveAs(DocumentType type);
    /// Saves a document of the game folder at the same place of the mod folder; others as saveAs().
    bool saveToMod(DocumentType type);
    /// Saves every document with unsaved work, in the order of their kinds. What failed is told at the end.
    void saveAll();

    /// Waits until what is being saved is there. Returns true when the last save of the document has failed,
    /// after saying so.
    bool finishSaving(DocumentType type);
    void finishAllSaving();

    /// Asks whether unsaved work shall be saved before the document is replaced. Returns true when the
    /// replacement may go on; otherwise `event`, if given, is marked ignored.
    [[nodiscard]] bool promptUnsaved(DocumentType type, QEvent *event = nullptr);
    /// Stores what is typed for a document. What cannot be stored is given up, after a question: returns
    /// false when the user goes back to it.
    [[nodiscard]] bool settleTyping(DocumentType type);
    /// Stores what is typed for any document, unasked. What cannot be stored is told in the log.
    void finishAllTyping();

public slots:
    void on_actionOpen_triggered();
    void on_actionSave_triggered();
    void on_actionSaveAs_triggered();
    void on_actionSkinnedSaveAs_triggered() { saveAs(DocumentType::SkinnedMesh); }
    void on_actionAnimSaveAs_triggered() { saveAs(DocumentType::Anim); }
    void on_actionSaveToMod_triggered();
    void on_actionSaveAll_triggered() { saveAll(); }

signals:
    /// The user has opened a file, by whatever way.
    void opened(DocumentType type);
    /// The document was written: its path or its modified mark may be new.
    void saved(DocumentType type);
    /// The user has chosen a material file, which is no document of this.
    void materialsWanted(const QString &path);

private:
    void load(DocumentType type, const QString &path, const Then &then);
    void tellUnread(DocumentType type, const QString &path, const QString &reason);
    bool mayReplace(DocumentType type);
    bool isReadyToSave(DocumentType type);
    bool hasUnsavedWork(DocumentType type) const;
    QString targetOfSave(DocumentType type);
    QString chooseTarget(DocumentType type);
    bool saveTo(DocumentType type, const QString &path);
    /// Saves that are told of together.
    struct Saves
    {
        int pending = 0;
        QVector<FailedSave> failures;
    };
    void write(DocumentType type, const QString &path, const std::shared_ptr<Saves> &saves);
    void endSave(const std::shared_ptr<Saves> &saves);

    std::array<Document *, 3> m_documents;
    std::array<DocumentLoader *, 3> m_loaders;
    std::array<DocumentSaver *, 3> m_savers;
    std::array<bool, 3> m_isChanged{}; ///< since a load began
    std::array<bool, 3> m_hasFailed{}; ///< the last save
    Document *m_current = nullptr;
    QWidget *m_window;
    SaveGuard m_guard;
};
