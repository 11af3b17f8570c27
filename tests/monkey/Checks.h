// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentKind.h"

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <array>

class Document;
class DocumentFiles;
class KVTreeView;
class MainWindow;

/// What has to hold in a window between two steps, whatever was done in it. Made with the window, since it
/// takes note of what its documents are when they are opened and saved.
class Checks : public QObject
{
    Q_OBJECT

public:
    explicit Checks(MainWindow &window);

    /// What is wrong; empty when all is well. No dialog or menu may be open.
    QStringList findings() const;
    /// Undoes every step of a document and does all of them again; says what is wrong then.
    QStringList undoAndRedo(DocumentType type);
    Document &document(DocumentType type) const;

private:
    struct Track
    {
        QByteArray opened; ///< what the model would be saved as when it came
        QByteArray kept;   ///< when it came or was saved
        /// Changed without an undo step since it came: undo then leads somewhere else.
        bool direct = false;
    };

    static QByteArray bytesOf(Document &document);
    KVTreeView *tree(DocumentType type) const;
    void checkTree(DocumentType type, QStringList &found) const;

    MainWindow &m_window;
    DocumentFiles *m_files;
    std::array<Track, 3> m_tracks;
};
