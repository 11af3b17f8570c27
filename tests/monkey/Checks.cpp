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
/// More than one window with a dialog and menus ever has.
constexpr int MostWidgets = 4000;
constexpr int MostWindows = 60;

template <typename T>
void put(const SettingKey<T> &key, T value)
{
    if (key.value() != value)
        key.setValue(value);
}

/// The first difference of two branches; empty when there is none.
QString difference(const QTreeWidgetItem *shown, const QTreeWidgetItem *fresh)
{
    const auto *item = static_cast<const RecordItem *>(shown);
    const auto *other = static_cast<const RecordItem *>(fresh);
    if (item->record() != other->record())
        return QStringLiteral("'%1' stands for another record than '%2'").arg(shown->text(0), fresh->text(0));
    if (shown->text(0) != fresh->text(0))
        return QStringLiteral("'%1' should be '%2'").arg(shown->text(0), fresh->text(0));
    if (shown->childCount() != fresh->childCount())
        return QStringLiteral("'%1' has %2 items instead of %3")
            .arg(shown->text(0), QString::number(shown->childCount()), QString::number(fresh->childCount()));
    for (int i = 0; i < shown->childCount(); ++i) {
        const QString below = difference(shown->child(i), fresh->child(i));
        if (!below.isEmpty())
            return below;
    }
    return {};
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
        connect(each, &Document::replaced, this, [each, &track] {
            track.opened = bytesOf(*each);
            track.kept = track.opened;
            track.direct = false;
        });
        connect(each, &Document::saved, this, [each, &track] { track.kept = bytesOf(*each); });
        connect(each, &Document::structuresChanged, this, [&track](const QVector<StructureChange> &changes) {
            for (const StructureChange &change : changes)
                track.direct = track.direct || change.added == 0;
        });
    }
}

Document &Checks::document(DocumentType type) const
{
    return *m_files->document(type);
}

QByteArray Checks::bytesOf(const Document &document)
{
    const std::vector<uchar> bytes = document.draft();
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
    for (const DocumentKind &kind : documentKinds()) {
        checkTree(kind.type, found);
        const Document &each = document(kind.type);
        const Track &track = m_tracks[size_t(kind.type)];
        if (each.isOpen() && !each.differsFromFile() && !track.direct && bytesOf(each) != track.kept)
            found += QStringLiteral("%1 counts as saved and is something else").arg(kind.label);
    }
    checkTitle(found);
    checkWidgets(found);
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
    put(key, !hasMeshData(shown));
    KVTreeView fresh;
    fresh.setDocument(&document(type));
    fresh.rebuild();
    put(key, option);

    QString wrong;
    if (shown.topLevelItemCount() != fresh.topLevelItemCount())
        wrong = QStringLiteral("it has no root, or one too many");
    else if (shown.topLevelItemCount() > 0)
        wrong = difference(shown.topLevelItem(0), fresh.topLevelItem(0));
    if (!wrong.isEmpty())
        found += QStringLiteral("tree of the %1: %2").arg(documentKind(type).label, wrong);
}

void Checks::checkTitle(QStringList &found) const
{
    QStringList right{QStringLiteral("Korvane")};
    for (const DocumentKind &kind : documentKinds()) {
        const Document &each = document(kind.type);
        if (each.isOpen())
            right += QStringLiteral("Korvane - ") + each.fileName() +
                     QLatin1String(each.isModified() ? " * " : "");
    }
    if (!right.contains(m_window.windowTitle()))
        found += QStringLiteral("the title is '%1'").arg(m_window.windowTitle());
}

void Checks::checkWidgets(QStringList &found) const
{
    const int widgets = QApplication::allWidgets().size();
    const int windows = QApplication::topLevelWidgets().size();
    if (widgets > MostWidgets || windows > MostWindows)
        found += QStringLiteral("there are %1 widgets, %2 of them windows")
                     .arg(QString::number(widgets), QString::number(windows));
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
