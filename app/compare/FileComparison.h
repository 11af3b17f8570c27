// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "Document.h"
#include "ModelComparison.h"

#include <QTimer>

#include <memory>
#include <variant>

/// What differs between an open document and a file of its kind. It follows the document's changes, a moment
/// after the last one; another thread reads the file and compares.
class FileComparison : public QObject
{
    Q_OBJECT

public:
    static constexpr int DelayMs = 300;
    /// So many records of a list are compared field by field; of further ones is only known that they differ.
    static constexpr int MostTold = 500;

    /// The documents outlive this.
    FileComparison(SkinnedMeshDocument &skinnedMesh, AnimDocument &anim, StaticMeshDocument &staticMesh,
                   QObject *parent);

    /// Compares the document of a kind with the file. Another comparison ends.
    void start(DocumentType type, const QString &path);
    /// Reads the file anew.
    void reload();

    /// The document that is compared; null for none.
    Document *document() const { return m_document; }
    /// The file that it is compared with.
    QString path() const { return m_path; }
    bool isRunning() const { return m_work.isRunning(); }
    /// Why the file cannot be compared, for the user; empty when it can.
    QString failure() const { return m_failure; }
    const std::vector<RecordDifference> &differences() const { return *m_differences; }

    /// A difference, and which of its fields; the record whole where it names none. Or so many differences
    /// from one on that stand behind one another.
    struct Pick
    {
        const RecordDifference *difference;
        QString field;
        int count = 1;
    };
    /// Lets the document have what the file has there, as one undo step. Another thread works it out, while
    /// `window` takes no input and soon offers to give up. Returns how many of them could be taken.
    int take(const QVector<Pick> &picks, QWidget *window);

signals:
    void changed();

private:
    using Theirs = std::variant<std::shared_ptr<const SkinnedMesh>, std::shared_ptr<const AnimFile>,
                                std::shared_ptr<const StaticMesh>>;
    struct Found
    {
        Theirs theirs;
        QString failure;
        std::vector<RecordDifference> differences;
    };

    void end();
    void check();
    template <typename Model>
    void checkModel(ModelDocument<Model> &document);
    template <typename Command, typename Model>
    int takeInto(ModelDocument<Model> &document, const QVector<Pick> &picks, QWidget *window);
    void setDifferences(std::vector<RecordDifference> differences);

    SkinnedMeshDocument &m_skinnedMesh;
    AnimDocument &m_anim;
    StaticMeshDocument &m_staticMesh;
    Document *m_document = nullptr;
    QString m_path;
    QString m_ownPath; ///< the document's when the comparison began
    Theirs m_theirs;   ///< null until it was read
    QString m_failure;
    std::shared_ptr<const std::vector<RecordDifference>> m_differences;
    QTimer m_delay;
    Background m_work;
};
