// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CurvesDock.h"

#include "ActionTrack.h"
#include "AnimTrackFrame.h"
#include "ChannelList.h"
#include "CurveEdits.h"
#include "CurveView.h"
#include "DockFocus.h"
#include "FloatSpinBox.h"
#include "Icons.h"
#include "IntSpinBox.h"
#include "KVTreeView.h"
#include "ModelNames.h"
#include "Playback.h"
#include "Settings.h"
#include "Shortcuts.h"

#include <QAction>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {
constexpr int MostSmoothing = 100; ///< frames to either side
} // namespace

CurvesDock::CurvesDock(QWidget *parent)
    : QDockWidget(parent)
    , m_view(new CurveView(this))
    , m_edits(new CurveEdits(*m_view, this))
    , m_channels(new ChannelList(this))
    , m_title(new QLabel(this))
    , m_keep(new QCheckBox(tr("Keep Bones"), this))
    , m_key(new QLabel(this))
    , m_value(new FloatSpinBox(this))
    , m_smoothing(new IntSpinBox(this))
{
    toggleViewAction()->setObjectName(QStringLiteral("actionCurves"));
    toggleViewAction()->setShortcut(QKeySequence(Qt::Key_F7));
    toggleViewAction()->setToolTip(tr("How the selected bones move, as curves over the frames"));
    m_view->setObjectName(QStringLiteral("curveView"));
    m_view->setBoneNames([this](int bone) { return boneName(bone); });
    auto *contents = new QWidget(this);
    auto *bar = new QHBoxLayout;
    bar->setContentsMargins(4, 2, 4, 2);
    createBar(bar);
    auto *parts = new QHBoxLayout;
    parts->setSpacing(0);
    parts->addWidget(m_channels);
    parts->addWidget(m_view, 1);
    auto *layout = new QVBoxLayout(contents);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(bar);
    layout->addLayout(parts, 1);
    setWidget(contents);
    focusWhenAskedFor(*this, *m_view);
    connect(m_channels, &ChannelList::channelsChanged, this, [this] { refresh(false); });
    connect(m_view, &CurveView::selectionChanged, this, &CurvesDock::showSelection);
    connect(m_edits, &CurveEdits::posed, this, &CurvesDock::posed);
    connect(m_edits, &CurveEdits::documentWanted, this, [this] { emit documentWanted(DocumentType::Anim); });
    showSelection();
}

QAction *CurvesDock::addAction(const char *name, const char *icon, const QString &text, const QString &tip,
                               const QKeySequence &keys, std::function<void()> deed)
{
    auto *action = new QAction(*icon ? namedIcon(QLatin1String(icon)) : QIcon(), text, m_view);
    action->setObjectName(QLatin1String(name));
    action->setToolTip(tip);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    nameShortcut(action, action->objectName(), tr("Curves"), QString(text).remove(QLatin1Char('&')));
    connect(action, &QAction::triggered, this, std::move(deed));
    m_view->addAction(action);
    return action;
}

void CurvesDock::createBar(QHBoxLayout *bar)
{
    const auto addButton = [this, bar](QAction *action) {
        auto *button = new QToolButton(this);
        button->setDefaultAction(action);
        button->setObjectName(QLatin1String("btn") + action->objectName().mid(6));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        bar->addWidget(button);
    };
    m_title->setObjectName(QStringLiteral("lblCurvesTitle"));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_keep->setObjectName(QStringLiteral("cbKeepBones"));
    m_keep->setToolTip(tr("Go on showing these bones, whatever is selected"));
    connect(m_keep, &QCheckBox::toggled, this, [this](bool on) {
        if (on || !m_animTree)
            return;
        follow(*m_meshTree);
        follow(*m_animTree);
    });
    bar->addWidget(m_title, 1);
    bar->addWidget(m_keep);
    bar->addSpacing(12);
    createValue(bar);
    bar->addSpacing(12);
    m_smoothing->setObjectName(QStringLiteral("sbCurveSmoothing"));
    m_smoothing->setAccessibleName(tr("Frames to smooth over"));
    m_smoothing->setToolTip(tr("How many frames to either side are smoothed over"));
    m_smoothing->setMinimum(1);
    m_smoothing->setMaximum(MostSmoothing);
    m_smoothing->setValue(std::clamp(Settings::CurveSmoothing.value(), 1, MostSmoothing));
    connect(m_smoothing, &IntSpinBox::valueEdited, this,
            [](int frames) { Settings::CurveSmoothing.setValue(frames); });
    QAction *smooth =
        addAction("actionCurveSmooth", "", tr("S&mooth"),
                  tr("Smooth the selected keys; what is not selected stays, and so do the ends"),
                  QStringLiteral("Alt+S"), [this] { m_edits->smooth(m_smoothing->value()); });
    QAction *straighten = addAction("actionCurveStraighten", "", tr("S&traighten"),
                                    tr("Lead straight from the first to the last of the selected keys"), {},
                                    [this] { m_edits->straighten(); });
    addButton(smooth);
    bar->addWidget(m_smoothing);
    addButton(straighten);
    QAction *all =
        addAction("actionCurveShowAll", "frameall", tr("Show &All"), tr("Show all frames and all values"),
                  Qt::Key_Home, [this] { m_view->showAll(); });
    QAction *near = addAction("actionCurveShowSelected", "frameselection", tr("Show &Selected Keys"),
                              tr("Show the selected keys as large as they can be"), Qt::Key_F,
                              [this] { m_view->showSelected(); });
    addButton(all);
    addButton(near);
    addAction("actionCurveSelectAll", "", tr("Select All &Keys"), {}, QKeySequence::SelectAll,
              [this] { m_view->selectAll(); });
    m_ofSelection = {smooth, straighten};
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void CurvesDock::createValue(QHBoxLayout *bar)
{
    m_key->setObjectName(QStringLiteral("lblCurveKey"));
    m_value->setObjectName(QStringLiteral("sbCurveValue"));
    m_value->setAccessibleName(tr("Value of the selected keys"));
    m_value->setToolTip(
        tr("The value of the key that was selected last; what is entered goes to all selected "
           "keys of its unit, a calculation such as *=2 to each by its own"));
    m_value->setDegree(1.0);
    FieldRecords records;
    records.differ = [this] { return m_view->selection().count() > 1; };
    records.setAll = [this] { m_edits->set(double(m_value->value())); };
    records.calculate = [this](const Expression &expression) { return m_edits->calculate(expression); };
    m_value->setRecords(std::move(records));
    connect(m_value, &FloatSpinBox::valueEdited, this, [this](float value) { m_edits->set(double(value)); });
    bar->addWidget(m_key);
    bar->addSpacing(4);
    bar->addWidget(m_value);
}

void CurvesDock::setSources(AnimDocument &anim, const SkinnedMeshDocument &mesh, const KVTreeView &animTree,
                            const KVTreeView &meshTree, AnimTrackFrame &timeline)
{
    m_anim = &anim;
    m_mesh = &mesh;
    m_animTree = &animTree;
    m_meshTree = &meshTree;
    m_edits->setDocument(anim);
    anim.addField(m_value);
    for (const KVTreeView *tree : {&meshTree, &animTree})
        connect(tree, &KVTreeView::currentRecordChanged, this, [this, tree] { follow(*tree); });
    const auto again = [this] { refresh(false); };
    connect(&timeline, &AnimTrackFrame::blockChanged, this, [this] { refresh(true); });
    connect(&timeline, &AnimTrackFrame::framesReplaced, m_view, &CurveView::clearSelection);
    connect(&anim, &Document::recordsChanged, this, again);
    connect(&anim, &Document::structuresChanged, this, again);
    connect(&anim, &Document::aboutToBeReplaced, this, [this] { m_view->setCurves(nullptr, {}, 0, true); });
    connect(&anim, &Document::replaced, this, [this] { refresh(true); });
    connect(&mesh, &Document::recordsChanged, this, &CurvesDock::showWords);
    connect(&mesh, &Document::replaced, this, &CurvesDock::showWords);
    ActionTrack &track = timeline.actionTrack();
    connect(&track, &ActionTrack::frameShown, m_view, &CurveView::setFrame);
    connect(m_view, &CurveView::frameAsked, &track, &ActionTrack::frameAsked);
    connect(m_view, &CurveView::placeAsked, &track, &ActionTrack::placeAsked);
}

QVector<int> CurvesDock::bonesOf(const KVTreeView &tree) const
{
    QVector<int> bones;
    const RecordRef current = tree.currentRecord();
    const auto take = [&](RecordKind kind, size_t component) {
        for (const RecordIndex &record : tree.selectedRecords(kind))
            bones.append(record[component]);
        const int first = bones.indexOf(current.index[component]);
        if (current.kind == kind && first > 0)
            bones.move(first, 0);
    };
    take(RecordKind::Bone, 0);
    take(RecordKind::AnimBone, 1);
    const bool isTranslation =
        current.kind == RecordKind::TranslationKey || current.kind == RecordKind::TranslationTrack;
    const bool isRotation =
        current.kind == RecordKind::RotationKey || current.kind == RecordKind::RotationTrack;
    const AnimBlock *block = Records::Block::find(m_anim->model(), current.index);
    if (!bones.isEmpty() || !block || !(isTranslation || isRotation))
        return bones;
    // Those that follow the track.
    for (size_t bone = 0; bone < block->nodes.size() && bones.size() < CurveData::MostBones; ++bone) {
        const AnimNode &node = block->nodes[bone];
        if ((isTranslation ? node.translationIndex : node.rotationIndex) == current.index[1])
            bones.append(int(bone));
    }
    return bones;
}

void CurvesDock::follow(const KVTreeView &tree)
{
    if (isVisible() && !m_keep->isChecked())
        showBones(bonesOf(tree));
}

void CurvesDock::showBones(const QVector<int> &bones)
{
    // What has no bones, such as a key frame action, leaves those that are shown.
    if (!isVisible() || m_keep->isChecked() || bones.isEmpty() || bones == m_bones)
        return;
    m_bones = bones;
    refresh(false);
}

void CurvesDock::showEvent(QShowEvent *event)
{
    QDockWidget::showEvent(event);
    if (!m_anim)
        return;
    refresh(true);
    follow(*m_meshTree);
    follow(*m_animTree);
}

void CurvesDock::hideEvent(QHideEvent *event)
{
    QDockWidget::hideEvent(event);
    m_view->setCurves(nullptr, {}, 0, true); // which is not told of changes any more
}

const AnimBlock *CurvesDock::block() const
{
    return m_anim->isOpen() ? Records::Block::find(m_anim->model(), {playback().blockIndex}) : nullptr;
}

void CurvesDock::refresh(bool anew)
{
    if (!m_anim || !isVisible())
        return;
    m_view->setCurves(block(), m_bones, m_channels->channels(), anew);
    showWords();
}

void CurvesDock::showWords()
{
    if (!isVisible())
        return;
    const CurveData &shown = m_view->data();
    QString title;
    QStringList bones;
    for (const CurveData::Source &source : shown.sources())
        bones += boneName(source.bone);
    if (!bones.isEmpty())
        title = tr("Bone %1").arg(bones.mid(0, 3).join(QStringLiteral("; ")));
    if (bones.size() > 3)
        title += QLatin1Char(' ') + tr("and %n more", nullptr, bones.size() - 3);
    const QString shared = sharers();
    if (!shared.isEmpty())
        title += QStringLiteral(" \u2013 ") + shared;
    if (bones.isEmpty() && shown.count() > 0)
        title = tr("Select a bone in a tree or in the view to see its curves.");
    m_title->setText(title);
    m_title->setToolTip(title);
    QString lack;
    if (!shown.block())
        lack = tr("No animation is open.");
    else if (shown.frameCount() == 0)
        lack = tr("The animation has no frames.");
    else if (m_channels->channels() == 0)
        lack = tr("Check the curves that are to be shown in the list at the left.");
    else if (shown.sources().empty())
        lack = tr("Select a bone in a tree or in the view to see its curves.");
    else
        lack = tr("The bone follows no track of these kinds: it stays as it is in the initial pose.");
    m_view->setEmptyText(lack);
}

QString CurvesDock::boneName(int bone) const
{
    const bool isNamed =
        m_mesh && m_mesh->isOpen() && m_mesh->model().nodes.size() == size_t(m_view->data().boneCount());
    const QString title = isNamed ? boneTitle(m_mesh->model(), bone) : QString();
    return title.isEmpty() ? QString::number(bone) : title;
}

QString CurvesDock::sharers() const
{
    const CurveData &shown = m_view->data();
    QStringList others;
    const AnimBlock *block = this->block();
    if (!block || block != shown.block())
        return {};
    const auto isShown = [&shown](int bone) {
        return std::any_of(shown.sources().begin(), shown.sources().end(),
                           [bone](const CurveData::Source &source) { return source.bone == bone; });
    };
    for (int bone = 0; bone < int(block->nodes.size()); ++bone) {
        const AnimNode &node = block->nodes[size_t(bone)];
        const bool follows = std::any_of(shown.sources().begin(), shown.sources().end(),
                                         [&node](const CurveData::Source &source) {
                                             return node.translationIndex == source.translationTrack ||
                                                    node.rotationIndex == source.rotationTrack;
                                         });
        if (follows && !isShown(bone))
            others += boneName(bone);
    }
    if (others.isEmpty())
        return {};
    return others.size() > 3 ? tr("%n other bones follow the same tracks", nullptr, others.size())
                             : tr("also followed by bone %1").arg(others.join(QStringLiteral("; ")));
}

void CurvesDock::showSelection()
{
    const CurveSelection &selection = m_view->selection();
    const CurveKey key = selection.current();
    m_value->setEnabled(!key.isNone());
    for (QAction *action : qAsConst(m_ofSelection))
        action->setEnabled(selection.count() > 1);
    if (key.isNone()) {
        m_key->setText(selection.isEmpty() ? tr("No key selected")
                                           : tr("%n keys selected", nullptr, selection.count()));
        m_value->setValue(0.0f);
        m_value->setSuffix({});
        return;
    }
    const Curve &curve = m_view->data().curves()[size_t(key.curve)];
    QString text = tr("%1, frame %2:").arg(channelName(curve.channel), QString::number(key.frame));
    if (selection.count() > 1)
        text = tr("%n keys, %1", nullptr, selection.count()).arg(text);
    m_key->setText(text);
    m_value->setSuffix(unitOf(curve.channel) == CurveUnit::Degrees ? QString(QChar(0xB0)) : QString());
    // A translation is what the file has; an angle is worked out, and is no more exact than this.
    const double value = m_view->data().value(key.curve, key.frame);
    m_value->setValue(
        float(unitOf(curve.channel) == CurveUnit::Degrees ? std::round(value * 1e4) / 1e4 : value));
}
