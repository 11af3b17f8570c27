// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "Document.h"
#include "FreeWindow.h"

/// Reads files for one document in another thread, one at a time: who starts another gives up the one before.
/// The document stays as it is, and may be worked with, until a file was read whole. Then it is replaced at
/// once, or as soon as the window is free.
class DocumentLoader : public QObject
{
    Q_OBJECT

public:
    enum class Outcome { Opened, Failed, GivenUp };
    /// Follows each load but one whose place another takes. `reason` is that of Document::open().
    using Then = std::function<void(Outcome outcome, const QString &reason)>;
    /// Asked when a file was read while the window was used: whether it may replace the document.
    using Permission = std::function<bool()>;

    /// So long a load holds the window before it goes on beside it, in milliseconds: most files are opened by
    /// then, as if there was no other thread.
    static constexpr int Patience = 25;
    /// That, or what the environment names: tests look at what they open right after.
    static int usualPatience();

    DocumentLoader(Document &document, Permission mayReplace, QObject *parent);
    ~DocumentLoader() override;

    void load(const QString &path, Then then);
    /// Gives up what is being read.
    void cancel();
    bool isLoading() const { return bool(m_progress); }
    /// What is being read, and how much of it is, from 0 to 1.
    QString path() const { return m_path; }
    double progress() const;
    void setPatience(int milliseconds) { m_patience = milliseconds; }

signals:
    /// A load has begun that takes longer than the patience; or it has ended.
    void started();
    void ended();

private:
    void drop();
    /// `isAtOnce` when nothing was done since the load began.
    void replace(bool isAtOnce);

    Document &m_document;
    Permission m_mayReplace;
    int m_patience;
    bool m_isWaitedFor = false; ///< nothing was done since the load began
    QString m_path;
    Then m_then;
    std::shared_ptr<ReadProgress> m_progress; ///< of the current load; null without one
    std::shared_ptr<LoadedFile> m_arrived;    ///< waits until the window is free
    FreeWindow m_free;
    Background m_reading;
};
