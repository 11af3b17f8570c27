// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileComparison.h"

#include "AllCommands.h"
#include "DocumentLoader.h"
#include "TheirRecords.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace {
using State = RecordDifference::State;

RecordKind kindOf(const RecordDifference &difference)
{
    return difference.state == State::OnlyTheirs ? difference.theirs.kind : difference.mine.kind;
}

/// The order in which differences can be taken without a number that another one has becoming wrong: changes
/// first, then what goes, from the last to the first, then what comes; and what is in blocks before the
/// blocks.
std::tuple<int, RecordIndex> turnOf(const RecordDifference &difference)
{
    RecordIndex index = difference.mine.index;
    if (difference.state == State::Changed)
        return {0, index};
    const RecordKind kind = kindOf(difference);
    const bool isInBlock = kind == RecordKind::AnimBone || kind == RecordKind::AnimAction;
    if (difference.state == State::OnlyMine) {
        for (int &number : index)
            number = -number;
        return {isInBlock ? 1 : 3, index};
    }
    return {isInBlock ? 2 : 4, index};
}

} // namespace

FileComparison::FileComparison(SkinnedMeshDocument &skinnedMesh, AnimDocument &anim,
                               StaticMeshDocument &staticMesh, QObject *parent)
    : QObject(parent)
    , m_skinnedMesh(skinnedMesh)
    , m_anim(anim)
    , m_staticMesh(staticMesh)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(DelayMs);
    connect(&m_delay, &QTimer::timeout, this, &FileComparison::check);
    const std::array<Document *, 3> documents{&skinnedMesh, &anim, &staticMesh};
    for (Document *document : documents) {
        const auto follow = [this, document] {
            if (document == m_document)
                m_delay.start();
        };
        connect(document, &Document::recordsChanged, this, follow);
        connect(document, &Document::structuresChanged, this, follow);
        connect(document, &Document::saved, this, [this, document, follow] {
            if (document == m_document)
                m_ownPath = document->path(); // it may be another one now
            follow();
        });
        connect(document, &Document::replaced, this, [this, document] {
            if (document != m_document)
                return;
            // What is read anew is compared anew; another file has nothing to do with it.
            if (document->path() != m_ownPath)
                end();
            else
                check();
        });
    }
}

void FileComparison::start(DocumentType type, const QString &path)
{
    const std::array<Document *, 3> documents{&m_skinnedMesh, &m_anim, &m_staticMesh};
    m_document = documents[size_t(type)];
    m_path = path;
    m_ownPath = m_document->path();
    reload();
}

void FileComparison::reload()
{
    m_theirs = {};
    m_differences.clear();
    m_failure.clear();
    check();
    emit changed();
}

void FileComparison::end()
{
    m_work.cancel();
    m_delay.stop();
    m_document = nullptr;
    m_theirs = {};
    m_differences.clear();
    m_failure.clear();
    emit changed();
}

void FileComparison::check()
{
    m_delay.stop();
    if (m_document == &m_skinnedMesh)
        checkModel(m_skinnedMesh);
    else if (m_document == &m_anim)
        checkModel(m_anim);
    else if (m_document == &m_staticMesh)
        checkModel(m_staticMesh);
}

template <typename Model>
void FileComparison::checkModel(ModelDocument<Model> &document)
{
    using Shared = std::shared_ptr<const Model>;
    const auto *read = std::get_if<Shared>(&m_theirs);
    m_work.start(
        [mine = document.copy(), known = read ? *read : Shared(),
         path = m_path](const Background::Cancelled &) {
            Shared theirs = known;
            Found found;
            if (!theirs) {
                auto fresh = std::make_shared<Model>();
                if (fresh->read(path, &found.failure)) {
                    if (found.failure.isEmpty())
                        found.failure = tr("The file could not be opened.");
                    return found;
                }
                theirs = fresh;
            }
            found.differences = ModelComparison::compare(mine->get(), *theirs);
            found.theirs = theirs;
            return found;
        },
        [this](Found found) {
            m_theirs = std::move(found.theirs);
            m_failure = found.failure;
            m_differences = std::move(found.differences);
            emit changed();
        });
    // Models of the game's size are compared before anybody sees that they are.
    m_work.wait(DocumentLoader::usualPatience());
}

int FileComparison::take(const QVector<Pick> &picks)
{
    if (!m_document || m_document->returnToTyping())
        return 0;
    if (m_document == &m_skinnedMesh)
        return takeInto<UC_SkinnedMeshTakeTheirs>(m_skinnedMesh, picks);
    if (m_document == &m_anim)
        return takeInto<UC_AnimTakeTheirs>(m_anim, picks);
    return takeInto<UC_StaticMeshTakeTheirs>(m_staticMesh, picks);
}

template <typename Command, typename Model>
int FileComparison::takeInto(ModelDocument<Model> &document, const QVector<Pick> &picks)
{
    const auto *theirs = std::get_if<std::shared_ptr<const Model>>(&m_theirs);
    if (!theirs || !*theirs)
        return 0;
    // The list may be a moment behind the model: only what still differs in the same way is taken.
    const std::vector<RecordDifference> now = ModelComparison::compare(document.model(), **theirs);
    QHash<QPair<RecordRef, RecordRef>, const RecordDifference *> all;
    for (const RecordDifference &each : now) {
        all.insert({each.mine, each.theirs}, &each);
        for (const RecordDifference &child : each.children)
            all.insert({child.mine, child.theirs}, &child);
    }
    QVector<Pick> current;
    for (const Pick &pick : picks) {
        if (const RecordDifference *same = all.value({pick.difference->mine, pick.difference->theirs}))
            current += Pick{same, pick.field};
    }
    std::stable_sort(current.begin(), current.end(), [](const Pick &a, const Pick &b) {
        return turnOf(*a.difference) < turnOf(*b.difference);
    });
    Model merged = document.model();
    int taken = 0;
    for (const Pick &pick : qAsConst(current))
        taken += takeTheirs(merged, **theirs, *pick.difference, pick.field);
    if (taken > 0)
        document.undoStack()->push(
            new Command(document.editTarget(), std::move(merged), QFileInfo(m_path).fileName()));
    check();
    return taken;
}
