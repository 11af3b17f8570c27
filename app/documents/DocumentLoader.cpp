// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DocumentLoader.h"

#include "BinaryFileReader.h"

DocumentLoader::DocumentLoader(Document &document, Permission mayReplace, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_mayReplace(std::move(mayReplace))
    , m_patience(usualPatience())
{
    // What comes from elsewhere is wanted later than what is still being read.
    connect(&document, &Document::aboutToBeReplaced, this, &DocumentLoader::cancel);
}

DocumentLoader::~DocumentLoader()
{
    if (m_progress)
        m_progress->isCancelled = true;
}

int DocumentLoader::usualPatience()
{
    bool isNamed = false;
    const int named = qEnvironmentVariableIntValue("KORVANE_PATIENCE", &isNamed);
    return isNamed ? named : Patience;
}

void DocumentLoader::load(const QString &path, Then then)
{
    drop();
    m_path = path;
    m_then = std::move(then);
    m_progress = std::make_shared<ReadProgress>();
    const auto read = [reader = m_document.reader(path),
                       progress = m_progress](const Background::Cancelled &) { return reader(*progress); };
    m_reading.start(read, [this](std::shared_ptr<LoadedFile> file) {
        m_arrived = std::move(file);
        if (std::exchange(m_isWaitedFor, false))
            replace(true);
        else
            m_free.wait([this] { replace(false); });
    });
    m_isWaitedFor = true;
    m_reading.wait(m_patience);
    m_isWaitedFor = false;
    if (isLoading())
        emit started();
}

double DocumentLoader::progress() const
{
    return m_progress ? m_progress->permille / 1000.0 : 0.0;
}

/// Ends the load, if there is one, without a word.
void DocumentLoader::drop()
{
    if (!isLoading())
        return;
    m_progress->isCancelled = true;
    m_progress.reset();
    m_reading.cancel();
    m_free.forget();
    Background::discard(std::move(m_arrived));
    emit ended();
}

void DocumentLoader::cancel()
{
    if (!isLoading())
        return;
    const Then then = std::exchange(m_then, {});
    drop();
    then(Outcome::GivenUp, {});
}

void DocumentLoader::replace(bool isAtOnce)
{
    const Then then = std::exchange(m_then, {});
    const std::shared_ptr<LoadedFile> file = std::exchange(m_arrived, nullptr);
    m_progress.reset(); // from here on it is no load that could be given up
    if (!isAtOnce)
        emit ended();
    if (file->isFailed)
        return then(Outcome::Failed, file->reason);
    if (!isAtOnce && !m_mayReplace())
        return then(Outcome::GivenUp, {});
    m_document.adopt(*file);
    then(Outcome::Opened, {});
}
