// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileStamp.h"
#include "KMatText.h"

#include <QObject>
#include <QUndoStack>

/// A .kmat file that is open, edited value by value, with an undo stack of its own.
class MaterialDocument : public QObject
{
    Q_OBJECT

public:
    explicit MaterialDocument(QObject *parent = nullptr);

    bool isOpen() const { return m_isOpen; }
    /// Empty for one that was never saved.
    const QString &path() const { return m_path; }
    /// The file as it was read or written last.
    const FileStamp &stamp() const { return m_stamp; }
    const KMatText &text() const { return m_text; }
    QUndoStack *undoStack() { return &m_stack; }
    bool isModified() const { return m_isOpen && !m_stack.isClean(); }

    /// What comes of reading a file.
    struct Read
    {
        QString reason; ///< why that failed; empty when it did not
        KMatText text;
        FileStamp stamp;
    };
    /// Reads a file in a folder or in an archive, in any thread.
    static Read read(const QString &path);
    /// Goes on with what was read of a file.
    void take(const QString &path, Read read);
    /// Begins a file at this path, which is written when it is saved.
    void start(const QString &path);
    /// Goes on with what was kept of a file, which was as `stamp` says then: all of it is unsaved.
    void restore(const QString &path, const QByteArray &bytes, const FileStamp &stamp);
    /// Writes the file whole. Returns why that failed.
    [[nodiscard]] QString save(const QString &path);
    /// The file has gone or was changed, and what is open stays: all of it is unsaved.
    void keep();

    /// As one undo step. Each returns why it cannot be; an empty text means success.
    [[nodiscard]] QString setTexture(int material, int sampler, const QString &texture);
    [[nodiscard]] QString rename(int material, const QString &name);
    [[nodiscard]] QString addMaterial(const QString &name, const QString &texture);

signals:
    void aboutToBeReplaced();
    /// Another file, or none of this path yet.
    void replaced();
    /// The text is another.
    void changed();
    void saved(const QString &path);

private:
    friend class MaterialTextCommand;
    void push(const TextEdit &edit, const QString &words);
    TextEdit apply(const TextEdit &edit);

    bool m_isOpen = false;
    QString m_path;
    FileStamp m_stamp;
    KMatText m_text;
    QUndoStack m_stack;
};
