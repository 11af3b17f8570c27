// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UvDock.h"

#include "DockFocus.h"
#include "DocumentLoader.h"
#include "Icons.h"
#include "KVTreeView.h"
#include "Settings.h"
#include "Shortcuts.h"
#include "UvView.h"

#include <QAction>
#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {
constexpr int LeastNameWidth = 16; // characters

QString textureWords(const UvTexture &texture)
{
    if (texture.name.isEmpty())
        return UvDock::tr("no texture");
    if (texture.image.isNull())
        return UvDock::tr("no texture: %1 cannot be read").arg(texture.name);
    return UvDock::tr("%1, %2 × %3")
        .arg(QFileInfo(texture.name).fileName(), QString::number(texture.image.width()),
             QString::number(texture.image.height()));
}

/// A label that gives way to its neighbours.
QLabel *quietLabel(const char *name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return label;
}
} // namespace

UvDock::UvDock(QWidget *parent)
    : QDockWidget(parent)
    , m_view(new UvView(this))
    , m_surfaces(new QComboBox(this))
    , m_words(quietLabel("lblUvWords", this))
    , m_place(quietLabel("lblUvPlace", this))
    , m_hidden(new QLabel(this))
{
    toggleViewAction()->setShortcut(QKeySequence(QStringLiteral("Shift+F4")));
    toggleViewAction()->setToolTip(tr("The triangles of the current surface over its texture"));
    m_view->setObjectName(QStringLiteral("viewUv"));
    m_view->setAccessibleName(tr("Texture coordinates"));
    m_surfaces->setObjectName(QStringLiteral("cbUvSurface"));
    m_surfaces->setAccessibleName(tr("Surface"));
    m_surfaces->setToolTip(tr("The surface that is shown, which the tree selects too"));
    m_surfaces->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_surfaces->setMinimumContentsLength(LeastNameWidth);
    m_place->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_words->setForegroundRole(QPalette::PlaceholderText);
    m_hidden->setObjectName(QStringLiteral("lblUvHidden"));
    m_hidden->setText(tr("The tree leaves vertices out. <a href=\"#\">Show them</a>"));
    m_hidden->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    m_hidden->hide();
    auto *contents = new QWidget(this);
    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(4, 2, 4, 2);
    auto *layout = new QVBoxLayout(contents);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    buttons->addWidget(m_surfaces);
    createActions(contents);
    for (QToolButton *button : contents->findChildren<QToolButton *>())
        buttons->addWidget(button);
    buttons->addWidget(m_words, 3);
    buttons->addWidget(m_hidden);
    buttons->addWidget(m_place, 2);
    layout->addLayout(buttons);
    layout->addWidget(m_view, 1);
    setWidget(contents);
    focusWhenAskedFor(*this, *m_view);
    connect(m_surfaces, QOverload<int>::of(&QComboBox::activated), this, &UvDock::chooseSurface);
    connect(m_view, &UvView::chosen, this, &UvDock::chooseVertices);
    connect(m_view, &UvView::pointed, this, &UvDock::point);
    connect(m_view, &UvView::left, m_place, &QLabel::clear);
    connect(m_hidden, &QLabel::linkActivated, this, &UvDock::showInTree);
}

void UvDock::createActions(QWidget *buttons)
{
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    const auto add = [this](const char *name, const QString &text, const char *icon, const QString &tip,
                            const QKeySequence &keys, void (UvView::*slot)()) {
        auto *action = new QAction(text, m_view);
        action->setObjectName(QLatin1String(name));
        if (icon)
            action->setIcon(namedIcon(QLatin1String(icon)));
        action->setToolTip(tip);
        nameShortcut(action, action->objectName(), tr("Texture Coordinates"),
                     QString(text).remove(QLatin1Char('&')));
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, m_view, slot);
        m_view->addAction(action);
        return action;
    };
    QAction *all = add("actionUvFit", tr("Fit &All"), "frameall",
                       tr("Bring the texture and all triangles into view"), Qt::Key_Home, &UvView::fit);
    QAction *marked = add("actionUvFitSelection", tr("&Fit Selection"), "frameselection",
                          tr("Bring the selected vertices into view"), Qt::Key_F, &UvView::fitMarked);
    add("actionUvSelectAll", tr("&Select All"), nullptr, tr("Select all vertices of the surface"),
        QKeySequence::SelectAll, &UvView::selectAll);
    for (QAction *action : {all, marked}) {
        auto *button = new QToolButton(buttons);
        button->setDefaultAction(action);
        button->setObjectName(QLatin1String("btn") + action->objectName().mid(6));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
    }
}

void UvDock::setDocuments(SkinnedMeshDocument &skinned, KVTreeView &skinnedTree, StaticMeshDocument &rigid,
                          KVTreeView &rigidTree)
{
    m_models = {Model{UvSource::of(skinned, skinnedTree), 0, {}},
                Model{UvSource::of(rigid, rigidTree), 0, {}}};
    for (size_t i = 0; i < m_models.size(); ++i)
        follow(i);
}

void UvDock::follow(size_t which)
{
    const Model &model = m_models[which];
    const auto isShown = [this, which] { return current() == &m_models[which]; };
    connect(model.tree, &KVTreeView::currentRecordChanged, this, [this, isShown] {
        if (isShown() && followTree())
            showSurface(true);
    });
    connect(model.document.data(), &Document::replaced, this, [this, which, isShown] {
        m_models[which].surface = 0;
        if (!isShown())
            return;
        listSurfaces();
        showSurface(true);
    });
    const auto showAnew = [this, isShown] {
        if (!isShown())
            return;
        listSurfaces();
        showSurface(false);
    };
    connect(model.document.data(), &Document::structuresChanged, this, [this, showAnew] {
        showAnew();
        tellReading(); // the map has vertices that the model may have no more
    });
    connect(model.document.data(), &Document::recordsChanged, this,
            [this, which, showAnew](const QVector<RecordRef> &records) {
                if (m_models[which].isShownBy(records))
                    showAnew();
            });
}

void UvDock::setCurrent(const Document *document)
{
    int current = -1;
    for (int i = 0; document && i < int(m_models.size()); ++i) {
        const bool isMoved = document->kind().type == DocumentType::Anim && i == 0;
        if (isMoved || m_models[size_t(i)].document == document)
            current = i;
    }
    if (std::exchange(m_current, current) == current || !isVisible())
        return;
    listSurfaces();
    followTree();
    showSurface(true);
}

void UvDock::reload()
{
    if (current())
        showSurface(false);
}

void UvDock::showEvent(QShowEvent *event)
{
    QDockWidget::showEvent(event);
    listSurfaces();
    followTree();
    showSurface(true);
}

void UvDock::hideEvent(QHideEvent *event)
{
    QDockWidget::hideEvent(event);
    m_maker.cancel();
    m_view->show({}, {}, true);
    for (Model &model : m_models) {
        model.marked.clear();
        if (model.document)
            emit verticesMarked(model.document->kind().type, {});
    }
    m_view->setMarked({});
    m_hidden->hide();
}

// --- The surface -------------------------------------------------------------------------------------------

void UvDock::listSurfaces()
{
    const Model *model = current();
    const QSignalBlocker blocker(m_surfaces);
    m_surfaces->clear();
    const int count = model ? model->surfaceCount() : 0;
    for (int i = 0; i < count; ++i) {
        const QString material = QFileInfo(model->material(i)).fileName();
        const QString name = tr("Surface %1").arg(i);
        m_surfaces->addItem(material.isEmpty() ? name : QStringLiteral("%1: %2").arg(name, material));
    }
    m_surfaces->setEnabled(count > 0);
}

void UvDock::showSurface(bool isOther)
{
    Model *model = current();
    m_maker.cancel();
    const int count = m_surfaces->count();
    if (!model || count == 0) {
        m_view->show({}, {}, true);
        m_view->setEmptyText(model && model->document->isOpen() ? tr("The model has no surfaces.")
                                                                : tr("No mesh is open."));
        m_words->clear();
        m_place->clear();
        return;
    }
    model->surface = std::clamp(model->surface, 0, count - 1);
    m_surfaces->setCurrentIndex(model->surface);
    m_maker.start(
        [uvs = model->uvs(), indexes = *model->indexes(model->surface),
         material = model->material(model->surface), gamePath = Settings::GamePath.value(),
         outputDir = Settings::OutputDir.value()](const Background::Cancelled &) {
            return Made{UvMap(uvs, indexes), UvTexture::of(material, gamePath, outputDir)};
        },
        [this, isOther](Made made) { showMade(std::move(made), isOther); });
    m_maker.wait(DocumentLoader::usualPatience());
    if (isOther && m_maker.isRunning()) {
        m_view->show({}, {}, true);
        m_words->clear();
        m_place->clear();
        tellReading();
    }
}

void UvDock::tellReading()
{
    if (m_maker.isRunning())
        m_view->setEmptyText(tr("The surface is being read…"));
}

void UvDock::showMade(Made made, bool isOther)
{
    m_view->setEmptyText({});
    const UvMap &map = made.map;
    QStringList words{tr("triangles: %1").arg(map.triangles().size()),
                      tr("vertices: %1").arg(map.vertices().size()), textureWords(made.texture)};
    if (map.beyondCount() > 0)
        words.append(tr("triangles beyond its edges: %1").arg(map.beyondCount()));
    if (map.leftOutCount() > 0)
        words.append(tr("triangles left out: %1").arg(map.leftOutCount()));
    m_words->setText(words.join(QStringLiteral(" · ")));
    m_words->setToolTip(m_words->text());
    m_place->clear();
    m_view->show(std::move(made.map), made.texture.image, isOther);
}

void UvDock::chooseSurface(int surface)
{
    Model *model = current();
    if (!model)
        return;
    const RecordRef record{model->surfaces, {surface}};
    if (!model->tree->isShown(record)) {
        model->surface = surface;
        return showSurface(true);
    }
    emit documentWanted(model->document->kind().type);
    model->tree->selectRecords({record}, record);
}

// --- What is selected --------------------------------------------------------------------------------------

bool UvDock::followTree()
{
    Model *model = current();
    if (!model || !model->document->isOpen())
        return false;
    m_hidden->hide();
    mark(model->selectedVertices());
    const int surface = model->selectedSurface(model->surface);
    return std::exchange(model->surface, surface) != surface;
}

void UvDock::mark(std::vector<int> vertices)
{
    Model *model = current();
    m_view->setMarked(vertices);
    if (!model || vertices == model->marked)
        return;
    model->marked = std::move(vertices);
    emit verticesMarked(model->document->kind().type, model->marked);
}

void UvDock::chooseVertices(const std::vector<int> &vertices)
{
    Model *model = current();
    if (!model)
        return;
    QVector<RecordRef> records;
    for (const int vertex : vertices)
        records.append({model->vertices, {vertex}});
    if (records.isEmpty())
        records.append({model->surfaces, {model->surface}});
    if (model->tree->isShown(records.first())) {
        emit documentWanted(model->document->kind().type);
        return model->tree->selectRecords(records, records.first());
    }
    // They are marked here and in the view all the same.
    const bool isHidden = Settings::HideMeshData.value();
    m_hidden->setVisible(isHidden && !vertices.empty());
    if (!isHidden)
        emit told(tr("The filter above the tree hides %1.").arg(model->tree->label(records.first())));
    mark(vertices);
}

void UvDock::showInTree()
{
    Model *model = current();
    if (!model)
        return;
    const std::vector<int> wanted = model->marked;
    Settings::HideMeshData.setValue(false);
    emit hidingChanged();
    chooseVertices(wanted);
}

void UvDock::point(const QPointF &place, int vertex)
{
    const QSize size = m_view->textureSize();
    // Where it is repeated the same texels come again.
    const auto texel = [](double at, int count) {
        return int(std::floor((at - std::floor(at)) * count)) % count;
    };
    QStringList words{
        tr("u %1  v %2").arg(QString::number(place.x(), 'f', 4), QString::number(1.0 - place.y(), 'f', 4))};
    if (m_view->hasTexture())
        words.append(tr("texel %1, %2")
                         .arg(QString::number(texel(place.x(), size.width())),
                              QString::number(texel(place.y(), size.height()))));
    if (vertex >= 0)
        words.append(tr("vertex %1").arg(vertex));
    m_place->setText(words.join(QStringLiteral(" · ")));
}
