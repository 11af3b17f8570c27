// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileComparison.h"

#include "AllCommands.h"
#include "DocumentLoader.h"
#include "Log.h"
#include "Memory.h"
#include "Patience.h"
#include "TheirRecords.h"

#include <QFileInfo>
#include <QHash>
#include <QMessageBox>

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

/// A model that has taken over what another one has.
template <typename Model>
struct Merged
{
    Model model;
    int taken = 0;
    std::vector<RecordDifference> left; ///< what differs afterwards
    std::any prepared;                  ///< what is made of a model that is read
    QVector<LogLine> lines;             ///< what there is to say of that
    QString lack;                       ///< why nothing could be taken

    void merge(const Model &mine, const Model &theirs, const QVector<FileComparison::Pick> &wanted,
               const typename ModelDocument<Model>::Prepare &prepare, const Background::Cancelled &cancelled,
               std::atomic_int &percent)
    {
        // The list may be a moment behind the model: only what still differs in the same way is taken.
        const std::vector<RecordDifference> now =
            ModelComparison::compare(mine, theirs, FileComparison::MostTold);
        percent = 40;
        QHash<QPair<RecordRef, RecordRef>, const RecordDifference *> all;
        for (const RecordDifference &each : now) {
            all.insert({each.mine, each.theirs}, &each);
            for (const RecordDifference &child : each.children)
                all.insert({child.mine, child.theirs}, &child);
        }
        std::vector<std::pair<const RecordDifference *, QString>> current;
        for (const FileComparison::Pick &pick : wanted) {
            for (const RecordDifference *each = pick.difference; each != pick.difference + pick.count;
                 ++each) {
                if (const RecordDifference *same = all.value({each->mine, each->theirs}))
                    current.emplace_back(same, pick.field);
            }
        }
        std::stable_sort(current.begin(), current.end(),
                         [](const auto &a, const auto &b) { return turnOf(*a.first) < turnOf(*b.first); });
        percent = 50;
        if (cancelled)
            return;
        model = mine;
        for (const auto &[difference, field] : current)
            taken += takeTheirs(model, theirs, *difference, field);
        percent = 60;
        if (!cancelled)
            left = ModelComparison::compare(model, theirs, FileComparison::MostTold);
        percent = 90;
        if (cancelled || !prepare)
            return;
        HeldLog log;
        prepared = prepare(model, ReadProgress());
        lines = log.lines;
    }
};
} // namespace

FileComparison::FileComparison(SkinnedMeshDocument &skinnedMesh, AnimDocument &anim,
                               StaticMeshDocument &staticMesh, QObject *parent)
    : QObject(parent)
    , m_skinnedMesh(skinnedMesh)
    , m_anim(anim)
    , m_staticMesh(staticMesh)
    , m_differences(std::make_shared<const std::vector<RecordDifference>>())
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
    Background::discard(std::exchange(m_theirs, {}));
    m_failure.clear();
    auto old = std::exchange(m_differences, std::make_shared<const std::vector<RecordDifference>>());
    check();
    emit changed();
    Background::discard(std::move(old));
}

void FileComparison::end()
{
    m_work.cancel();
    m_delay.stop();
    m_document = nullptr;
    Background::discard(std::exchange(m_theirs, {}));
    m_failure.clear();
    setDifferences({});
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
    const auto work = [mine = document.copy(), known = read ? *read : Shared(), path = m_path,
                       wanted = &document.kind()](const Background::Cancelled &) {
        Found found;
        found.theirs = known;
        const QString name = QFileInfo(path).fileName();
        const QString lack = withinMemory([&] {
            Shared theirs = known;
            const DocumentKind *kind = documentKindOfFile(path);
            if (kind && kind != wanted) {
                found.failure = tr("%1 is a file of another kind: its name does not end in .%2.")
                                    .arg(name, wanted->extension);
                return;
            }
            if (!theirs) {
                auto fresh = std::make_shared<Model>();
                QString reason;
                if (fresh->read(path, &reason)) {
                    found.failure =
                        tr("%1 cannot be read: %2")
                            .arg(name, reason.isEmpty() ? tr("The file could not be opened.") : reason);
                    return;
                }
                theirs = fresh;
            }
            found.differences = ModelComparison::compare(mine->get(), *theirs, MostTold);
            found.theirs = theirs;
        });
        if (!lack.isEmpty())
            found.failure = tr("%1 cannot be compared: %2").arg(name, lack);
        return found;
    };
    m_work.start(work, [this](Found found) {
        m_theirs = std::move(found.theirs);
        m_failure = found.failure;
        setDifferences(std::move(found.differences));
    });
    // Models of the game's size are compared before anybody sees that they are.
    m_work.wait(DocumentLoader::usualPatience());
}

void FileComparison::setDifferences(std::vector<RecordDifference> differences)
{
    auto old = std::exchange(m_differences,
                             std::make_shared<const std::vector<RecordDifference>>(std::move(differences)));
    emit changed(); // after which nobody points at the old ones
    Background::discard(std::move(old));
}

int FileComparison::take(const QVector<Pick> &picks, QWidget *window)
{
    if (!m_document || m_document->returnToTyping())
        return 0;
    if (m_document == &m_skinnedMesh)
        return takeInto<UC_SkinnedMeshTakeTheirs>(m_skinnedMesh, picks, window);
    if (m_document == &m_anim)
        return takeInto<UC_AnimTakeTheirs>(m_anim, picks, window);
    return takeInto<UC_StaticMeshTakeTheirs>(m_staticMesh, picks, window);
}

template <typename Command, typename Model>
int FileComparison::takeInto(ModelDocument<Model> &document, const QVector<Pick> &picks, QWidget *window)
{
    const auto *known = std::get_if<std::shared_ptr<const Model>>(&m_theirs);
    if (!known || !*known)
        return 0;
    const std::shared_ptr<ModelCopy<Model>> mine = document.copy();
    std::atomic_int percent{0};
    // The picks point into the list as it is now.
    const auto work = [mine, &percent, picks, list = m_differences, prepare = document.preparation(),
                       theirs = *known](const Background::Cancelled &cancelled) {
        Merged<Model> merged;
        merged.lack =
            withinMemory([&] { merged.merge(mine->get(), *theirs, picks, prepare, cancelled, percent); });
        return merged;
    };
    const QString name = QFileInfo(m_path).fileName();
    std::optional<Merged<Model>> merged =
        workWithPatience(work, tr("Taking from '%1'").arg(name), window, &percent);
    if (!merged)
        return 0;
    if (!merged->lack.isEmpty())
        QMessageBox::warning(window, tr("Take Theirs"), tr("Nothing was taken. %1").arg(merged->lack));
    // Another program may have had the document read anew meanwhile.
    const bool isCurrent = m_document == &document && document.copy() == mine;
    if (!isCurrent || merged->taken == 0) {
        check();
        return 0;
    }
    Log::say(merged->lines);
    document.setPrepared(std::move(merged->prepared));
    document.undoStack()->push(new Command(document.editTarget(), std::move(merged->model), name));
    document.setPrepared({});
    m_delay.stop();
    m_work.cancel();
    setDifferences(std::move(merged->left));
    return merged->taken;
}
