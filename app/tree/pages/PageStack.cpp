// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PageStack.h"

#include "AxisRow.h"
#include "LabelDrag.h"
#include "MaterialField.h"
#include "NumberField.h"
#include "Shortcuts.h"

#include <QAction>
#include <QApplication>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace {
/// How many records an edit reaches, in words; empty for one.
QString selectedText(RecordKind kind, int count)
{
    if (count < 2)
        return {};
    switch (kind) {
    case RecordKind::ChildBone:
        return PageStack::tr("%n child bone indexes selected", nullptr, count);
    case RecordKind::HotPoint:
        return PageStack::tr("%n hot points selected", nullptr, count);
    case RecordKind::Bone:
    case RecordKind::AnimBone:
        return PageStack::tr("%n bones selected", nullptr, count);
    case RecordKind::SkinnedSurface:
    case RecordKind::StaticSurface:
        return PageStack::tr("%n surfaces selected", nullptr, count);
    case RecordKind::SkinnedTriangleIndex:
    case RecordKind::StaticTriangleIndex:
        return PageStack::tr("%n triangle indexes selected", nullptr, count);
    case RecordKind::SkinnedVertex:
    case RecordKind::StaticVertex:
        return PageStack::tr("%n vertices selected", nullptr, count);
    case RecordKind::AnimBlock:
        return PageStack::tr("%n animations selected", nullptr, count);
    case RecordKind::AnimFrame:
        return PageStack::tr("%n frames selected", nullptr, count);
    case RecordKind::TranslationKey:
        return PageStack::tr("%n translation keys selected", nullptr, count);
    case RecordKind::RotationKey:
        return PageStack::tr("%n rotation keys selected", nullptr, count);
    case RecordKind::AnimAction:
        return PageStack::tr("%n key frame actions selected", nullptr, count);
    default:
        return {};
    }
}

/// What a form has in a row beside a caption: a field, or a layout with one and what belongs to it.
NumberField *numberIn(QLayoutItem *item)
{
    if (item->layout())
        item = item->layout()->itemAt(0);
    return item ? qobject_cast<NumberField *>(item->widget()) : nullptr;
}

/// Lets the fields of a vector, which the page's form has below one another, stand in a row.
void makeAxisRow(QFormLayout *form, int row)
{
    QLayoutItem *item = form->itemAt(row, QFormLayout::FieldRole);
    auto *lines = item ? qobject_cast<QFormLayout *>(item->layout()) : nullptr;
    if (!lines)
        return;
    auto *axes = new AxisRow;
    while (lines->rowCount() > 0) {
        const QFormLayout::TakeRowResult line = lines->takeRow(0);
        auto *axis = static_cast<QLabel *>(line.labelItem->widget());
        auto *field = static_cast<NumberField *>(line.fieldItem->widget());
        axes->addItem(line.labelItem);
        axes->addItem(line.fieldItem);
        LabelDrag::install(axis, field);
    }
    form->removeItem(item);
    delete item; // the empty layout
    form->setLayout(row, QFormLayout::FieldRole, axes);
}

/// Lets a field that does not fit beside its label go below it, whatever the font and the width. All groups
/// have their labels in one column.
void arrangeForms(const QWidget &page)
{
    QVector<QLabel *> captions;
    int column = 0;
    for (QFormLayout *form : page.findChildren<QFormLayout *>()) {
        form->setRowWrapPolicy(QFormLayout::WrapLongRows);
        form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
        for (int row = 0; row < form->rowCount(); ++row) {
            QLayoutItem *captionItem = form->itemAt(row, QFormLayout::LabelRole);
            auto *caption = captionItem ? qobject_cast<QLabel *>(captionItem->widget()) : nullptr;
            if (!caption)
                continue;
            captions.append(caption);
            // An underlined letter is drawn without kerning, which the label's width leaves out of account.
            const int drawn = caption->buddy() ? caption->fontMetrics().height() / 8 : 0;
            column = std::max(column, caption->sizeHint().width() + drawn);
            QLayoutItem *field = form->itemAt(row, QFormLayout::FieldRole);
            // What captions several lines stands at the first of them.
            if (const auto *axes = qobject_cast<AxisRow *>(field->layout()))
                caption->setMaximumHeight(axes->itemAt(1)->sizeHint().height());
            else if (NumberField *number = numberIn(field))
                LabelDrag::install(caption, number);
        }
    }
    for (QLabel *caption : captions)
        caption->setMinimumWidth(column);
}
} // namespace

PageStack::PageStack(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_count(new QLabel(this))
    , m_pages(new QStackedWidget(this))
    , m_choose(addFieldAction("actionFieldChoose", tr("Choose by Name"), Qt::Key_F2))
    , m_pick(addFieldAction("actionFieldPick", tr("Pick in the View"), int(Qt::SHIFT) | Qt::Key_F2))
{
    connect(m_choose, &QAction::triggered, this, [this] {
        if (FieldName *name = focusedName())
            return name->choose();
        for (MaterialField *material : findChildren<MaterialField *>()) {
            if (material->editor()->hasFocus())
                material->choose();
        }
    });
    connect(m_pick, &QAction::triggered, this, [this] {
        FieldName *name = focusedName();
        if (name && name->canPick())
            setPicking(name);
    });
    m_title->setObjectName(QStringLiteral("lblPageTitle"));
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_title->setWordWrap(true);
    m_count->setObjectName(QStringLiteral("lblPageCount"));
    m_count->setWordWrap(true);
    m_count->hide();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 0);
    layout->addWidget(m_title);
    layout->addWidget(m_count);
    layout->addWidget(m_pages, 1);

    auto *empty = new QLabel(tr("Select a record in the tree to see its properties."), m_pages);
    empty->setObjectName(QStringLiteral("lblEmptyPage"));
    empty->setAlignment(Qt::AlignCenter);
    empty->setWordWrap(true);
    empty->setForegroundRole(QPalette::PlaceholderText);
    m_pages->addWidget(empty);
}

QAction *PageStack::addFieldAction(const char *id, const QString &text, const QKeySequence &keys)
{
    auto *action = new QAction(text, this);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    nameShortcut(action, QLatin1String(id), QCoreApplication::translate("QuestionMenu", "Number Fields"), {});
    addAction(action);
    return action;
}

/// The name beside the field that has the keys; null where there is none.
FieldName *PageStack::focusedName() const
{
    for (FieldName *name : findChildren<FieldName *>()) {
        if (name->editor()->hasFocus())
            return name;
    }
    return nullptr;
}

/// Lets a bone be picked for a field, or, with null, for none.
void PageStack::setPicking(FieldName *name)
{
    if (name == m_picking)
        return;
    const bool picked = m_picking;
    if (m_picking)
        m_picking->setPicking(false);
    m_picking = name;
    if (name) {
        name->editor()->setFocus();
        name->setPicking(true);
        emit told(tr("Click a bone in the view. Esc gives that up."));
    }
    if (picked == bool(name))
        return;
    if (name)
        qApp->installEventFilter(this); // Escape, wherever the keys are
    else
        qApp->removeEventFilter(this);
    emit boneWanted(name);
}

void PageStack::takeBone(int bone)
{
    FieldName *name = m_picking;
    setPicking(nullptr);
    if (!name)
        return;
    name->take(bone);
    name->editor()->setFocus();
}

bool PageStack::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    const bool isElsewhere = QApplication::activePopupWidget() || QApplication::activeModalWidget();
    if (!m_picking || isElsewhere || !isKey || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
        return QWidget::eventFilter(watched, event);
    event->accept();
    if (event->type() == QEvent::KeyPress)
        setPicking(nullptr);
    return true;
}

void PageStack::hideEvent(QHideEvent *event)
{
    setPicking(nullptr);
    QWidget::hideEvent(event);
}

void PageStack::setTree(KVTreeView *tree)
{
    m_tree = tree;
    connect(tree, &KVTreeView::currentRecordChanged, this, &PageStack::showRecord);
}

void PageStack::refresh()
{
    showRecord(m_tree->currentRecord());
}

void PageStack::showNumbers(const QVector<QPair<QString, double>> &numbers)
{
    if (m_pages->currentIndex() <= 0)
        return;
    auto *scroll = static_cast<QScrollArea *>(m_pages->currentWidget());
    const QList<NumberField *> fields = scroll->widget()->findChildren<NumberField *>();
    for (const auto &[id, number] : numbers) {
        for (NumberField *field : fields) {
            if (field->property(PropertyPage::FieldProperty).toString() != id)
                continue;
            if (auto *real = qobject_cast<FloatSpinBox *>(field))
                Editors::show(real, float(number));
            else if (auto *whole = qobject_cast<IntSpinBox *>(field))
                Editors::show(whole, int(number));
            if (auto *name = field->findChild<FieldName *>())
                name->preview(number);
            if (id == numbers.first().first)
                scroll->ensureWidgetVisible(field);
        }
    }
}

void PageStack::addPage(PropertyPage *page)
{
    for (QWidget *group : page->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        auto *form = qobject_cast<QFormLayout *>(group->layout());
        for (int row = 0; form && row < form->rowCount(); ++row)
            makeAxisRow(form, row);
    }
    arrangeForms(*page);
    for (MaterialField *material : page->findChildren<MaterialField *>())
        material->setAction(m_choose);
    for (FieldName *name : page->names()) {
        name->setActions(m_choose, m_pick);
        connect(name, &FieldName::pickWanted, this,
                [this, name](bool on) { setPicking(on ? name : nullptr); });
    }
    auto *scroll = new QScrollArea(m_pages);
    scroll->setFocusPolicy(Qt::NoFocus); // its editors have the keys
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // The area sizes the page; without this it would ask the page for its own size first, which is slow.
    page->setAttribute(Qt::WA_Resized);
    scroll->setWidget(page);
    m_pages->addWidget(scroll);
    connect(page, &PropertyPage::told, this, &PageStack::told);
}

PropertyPage *PageStack::page(int index) const
{
    return static_cast<PropertyPage *>(static_cast<QScrollArea *>(m_pages->widget(index))->widget());
}

QSize PageStack::minimumSizeHint() const
{
    QSize size = QWidget::minimumSizeHint();
    const QMargins margins = layout()->contentsMargins();
    const int beside = margins.left() + margins.right() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    for (int i = 1; i < m_pages->count(); ++i)
        size.setWidth(std::max(size.width(), page(i)->minimumSizeHint().width() + beside));
    return size;
}

void PageStack::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange)
        return;
    for (int i = 1; i < m_pages->count(); ++i)
        arrangeForms(*page(i));
}

void PageStack::showRecord(const RecordRef &record)
{
    for (int i = 1; i < m_pages->count(); ++i) {
        PropertyPage *page = this->page(i);
        if (page->kind() != record.kind)
            continue;
        const QVector<RecordIndex> selected = m_tree->selectedRecords(record.kind);
        page->showRecord(record.index, selected);
        arrangeForms(*page); // captions may say something else
        m_title->setText(page->title());
        const QString count = selectedText(record.kind, selected.size());
        m_count->setText(page->showsDifferences() ? tr("%1; values in italics differ").arg(count) : count);
        m_count->setVisible(!count.isEmpty());
        showPage(i);
        return;
    }
    m_title->clear();
    m_count->hide();
    showPage(0);
}

void PageStack::showPage(int index)
{
    const int before = m_pages->currentIndex();
    if (before > 0 && before != index)
        page(before)->leave();
    m_pages->setCurrentIndex(index);
}
