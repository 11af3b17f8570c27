// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Checks.h"

#include "DocumentFiles.h"
#include "KVTreeView.h"
#include "MainWindow.h"
#include "Playback.h"
#include "RecordItem.h"
#include "RecordTable.h"

#include <QApplication>

namespace {
/// More than one window with a dialog ever has. Each menu counts as a window, each list of a combo box once
/// it was open, and each dock that floats: 57 when the window is new.
constexpr int MostWidgets = 4000;
constexpr int MostWindows = 100;

/// The first difference of two branches; empty when there is none.
QString difference(const QTreeWidgetItem *shown, const QTreeWidgetItem *fresh)
{
    const auto whole = [](const QTreeWidgetItem *item) {
        return QStringLiteral("'%1' with %2 items").arg(item->text(0)).arg(item->childCount());
    };
    if (static_cast<const RecordItem *>(shown)->record() != static_cast<const RecordItem *>(fresh)->record())
        return QStringLiteral("%1 stands for another record than %2").arg(whole(shown), whole(fresh));
    if (whole(shown) != whole(fresh))
        return QStringLiteral("%1 should be %2").arg(whole(shown), whole(fresh));
    QString below;
    for (int i = 0; i < shown->childCount() && below.isEmpty(); ++i)
        below = difference(shown->child(i), fresh->child(i));
    return below;
}

bool hasMeshData(const KVTreeView &tree)
{
    for (QTreeWidgetItemIterator it(const_cast<KVTreeView *>(&tree)); *it; ++it) {
        if (recordRow(static_cast<const RecordItem *>(*it)->record().kind)->meshData)
            return true;
    }
    return false;
}
} // namespace

Checks::Checks(MainWindow &window)
    : m_window(window)
    , m_files(window.findChild<DocumentFiles *>())
{
    for (const DocumentKind &kind : documentKinds()) {
        Document *each = &document(kind.type);
        Track &track = m_tracks[size_t(kind.type)];
        const auto begin = [each, &track] {
            track.opened = track.kept = bytesOf(*each);
            track.direct = false;
        };
        begin();
        connect(each, &Document::replaced, this, begin);
        connect(each, &Document::saved, this, [each, &track] { track.kept = bytesOf(*each); });
        connect(each, &Document::structuresChanged, this, [&track](const QVector<StructureChange> &changes) {
            for (const StructureChange &change : changes)
                track.direct = track.direct || (change.added == 0 && change.select.kind != RecordKind::None);
        });
    }
}

Document &Checks::document(DocumentType type) const
{
    return *m_files->document(type);
}

QByteArray Checks::bytesOf(Document &document)
{
    const std::vector<uchar> bytes = document.drafter()();
    return QByteArray(reinterpret_cast<const char *>(bytes.data()), int(bytes.size()));
}

KVTreeView *Checks::tree(DocumentType type) const
{
    static const char *const names[] = {"treeSkinnedMesh", "treeAnim", "treeStaticMesh"};
    return m_window.findChild<KVTreeView *>(QLatin1String(names[size_t(type)]));
}

QStringList Checks::findings() const
{
    QStringList found;
    QStringList titles{QStringLiteral("Korvane")};
    for (const DocumentKind &kind : documentKinds()) {
        checkTree(kind.type, found);
        Document &each = document(kind.type);
        const Track &track = m_tracks[size_t(kind.type)];
        if (each.isOpen() && !each.differsFromFile() && !track.direct && bytesOf(each) != track.kept)
            found += QStringLiteral("%1 counts as saved and is something else").arg(kind.label);
        if (each.isOpen())
            titles += QString("Korvane - ") + each.fileName() +
                      QLatin1String(each.path().isEmpty() ? " (never saved)" : "") +
                      QLatin1String(each.isModified() ? " * " : "");
    }
    if (!titles.contains(m_window.windowTitle()))
        found += QStringLiteral("the title is '%1'").arg(m_window.windowTitle());
    const int widgets = QApplication::allWidgets().size();
    const int windows = QApplication::topLevelWidgets().size();
    if (widgets > MostWidgets || windows > MostWindows)
        found += QStringLiteral("there are %1 widgets, %2 of them windows").arg(widgets).arg(windows);
    if (QGuiApplication::overrideCursor())
        found += QStringLiteral("the waiting cursor was left");
    const auto &anim = static_cast<AnimDocument &>(document(DocumentType::Anim)).model();
    if (playback().anim && playback().anim != &anim)
        found += QStringLiteral("what plays is not the animation that is open");
    return found;
}

void Checks::checkTree(DocumentType type, QStringList &found) const
{
    const KVTreeView &shown = *tree(type);
    const SettingKey<bool> &key =
        type == DocumentType::Anim ? Settings::HideAnimData : Settings::HideMeshData;
    // The tree is as the option was when it was built.
    const bool option = key.value();
    key.setValue(!hasMeshData(shown));
    KVTreeView fresh;
    fresh.setDocument(&document(type));
    fresh.rebuild();
    key.setValue(option);

    QString wrong;
    if (shown.topLevelItemCount() != fresh.topLevelItemCount())
        wrong = QStringLiteral("it has no root, or one too many");
    else if (shown.topLevelItemCount() > 0)
        wrong = difference(shown.topLevelItem(0), fresh.topLevelItem(0));
    if (!wrong.isEmpty())
        found += QStringLiteral("tree of the %1: %2").arg(documentKind(type).label, wrong);
}

QStringList Checks::undoAndRedo(DocumentType type)
{
    Document &each = document(type);
    const Track &track = m_tracks[size_t(type)];
    QUndoStack &stack = *each.undoStack();
    const int index = stack.index();
    const QByteArray before = bytesOf(each);
    QStringList found;
    while (stack.canUndo())
        stack.undo();
    if (!track.direct && bytesOf(each) != track.opened)
        found += QStringLiteral("undoing all of the %1 does not lead back").arg(each.kind().label);
    while (stack.index() < index)
        stack.redo();
    if (!track.direct && bytesOf(each) != before)
        found += QStringLiteral("doing all of the %1 again does not lead back").arg(each.kind().label);
    return found;
}
