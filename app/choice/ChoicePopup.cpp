// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ChoicePopup.h"

#include "EmptyText.h"
#include "Icons.h"
#include "ListKeys.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace {
constexpr int IdMargin = 16; // pixels, of both sides
constexpr int PictureSide = 24;

class ChoiceView : public QTreeView
{
public:
    using QTreeView::QTreeView;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QTreeView::paintEvent(event);
        if (model()->rowCount() == 0)
            paintEmptyText(*viewport(), ChoicePopup::tr("Nothing has these words."));
    }
};
} // namespace

ChoicePopup::ChoicePopup(const QString &title, ChoiceList *list, double current, QWidget *field)
    : QFrame(field, Qt::Popup)
    , m_field(field)
    , m_choices(list)
    , m_current(current)
    , m_line(new QLineEdit(this))
    , m_list(new ChoiceView(this))
    , m_count(new QLabel(this))
{
    setObjectName(QStringLiteral("ChoicePopup"));
    setAttribute(Qt::WA_DeleteOnClose);
    // The button that opened it does not open it again.
    setAttribute(Qt::WA_NoMouseReplay);
    setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Plain));
    setAccessibleName(title);
    list->setParent(this);
    m_line->setObjectName(QStringLiteral("lineChoice"));
    m_line->setPlaceholderText(list->columnCount() > 1 ? tr("Number or words of a name")
                                                       : tr("Parts of a path"));
    m_line->setAccessibleName(title);
    m_line->addAction(namedIcon(QStringLiteral("search")), QLineEdit::LeadingPosition);
    m_list->setObjectName(QStringLiteral("listChoices"));
    m_list->setAccessibleName(title);
    m_list->setModel(list);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setTextElideMode(Qt::ElideMiddle); // paths differ at their ends
    m_list->setHeaderHidden(true);
    if (list->columnCount() > 1)
        m_list->setColumnWidth(0, fontMetrics().horizontalAdvance(list->longestId()) + IdMargin);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    if (list->hasIcons())
        m_list->setIconSize({PictureSide, PictureSide});
    m_count->setObjectName(QStringLiteral("lblChoices"));
    m_count->setForegroundRole(QPalette::PlaceholderText);

    auto *top = new QHBoxLayout;
    top->addWidget(m_line, 1);
    top->addWidget(m_count);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addLayout(top);
    layout->addWidget(m_list, 1);
    setFocusProxy(m_line);

    connect(m_line, &QLineEdit::textChanged, this, &ChoicePopup::filter);
    connect(new ListKeys(m_line, m_list), &ListKeys::accepted, this, &ChoicePopup::choose);
    connect(m_list, &QTreeView::clicked, this, &ChoicePopup::choose);
    filter({});
}

void ChoicePopup::popUp(int width)
{
    constexpr int rows = 14;
    constexpr int least = 44; ///< letters: a name, its number and the bar
    constexpr int most = 76;
    const int letters = std::clamp(m_choices->longestId().size() + 8, least, most);
    const int height = m_list->sizeHintForRow(0);
    const QSize wanted(std::max(width, fontMetrics().averageCharWidth() * letters),
                       m_line->sizeHint().height() + rows * std::max(height, fontMetrics().height()) + 16);
    const QRect room = m_field->screen()->availableGeometry();
    QRect place(m_field->mapToGlobal({0, m_field->height()}), wanted.boundedTo(room.size()));
    if (place.bottom() > room.bottom())
        place.moveBottom(m_field->mapToGlobal({0, 0}).y() - 1);
    place.moveLeft(std::clamp(place.left(), room.left(), room.right() - place.width() + 1));
    place.moveTop(std::max(place.top(), room.top()));
    setGeometry(place);
    show();
}

void ChoicePopup::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    m_line->setFocus(Qt::PopupFocusReason);
    makeCurrent(m_choices->rowOf(m_current)); // its place is known by now
}

void ChoicePopup::filter(const QString &text)
{
    m_choices->setFilter(text);
    const bool isAll = text.trimmed().isEmpty();
    makeCurrent(isAll ? m_choices->rowOf(m_current) : 0);
    m_count->setText(isAll ? QString::number(m_choices->size())
                           : tr("%1 of %2").arg(m_choices->rowCount()).arg(m_choices->size()));
}

void ChoicePopup::makeCurrent(int row)
{
    const QModelIndex index = m_choices->index(row, 0);
    m_list->setCurrentIndex(index);
    if (index.isValid())
        m_list->scrollTo(index, QAbstractItemView::PositionAtCenter);
}

void ChoicePopup::updateIcons()
{
    m_list->viewport()->update();
}

void ChoicePopup::choose()
{
    const QModelIndex index = m_list->currentIndex();
    if (!index.isValid())
        return;
    const int number = m_choices->choice(index.row()).number;
    close();
    emit chosen(number);
}
