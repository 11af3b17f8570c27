// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NoticeBar.h"

#include "Icons.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

NoticeBar::NoticeBar(const QIcon &icon, const QString &objectName, QWidget *parent)
    : QFrame(parent)
    , m_row(new QHBoxLayout(this))
    , m_text(new QLabel)
{
    setObjectName(objectName);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    takeColors();
    connect(qApp, &QGuiApplication::paletteChanged, this, &NoticeBar::takeColors);

    auto *picture = new IconLabel(icon, style()->pixelMetric(QStyle::PM_SmallIconSize));
    m_text->setObjectName(QStringLiteral("lblNotice"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setMinimumWidth(1); // however long a word is
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_row->setContentsMargins(8, 4, 6, 4);
    m_row->addWidget(picture);
    m_row->addWidget(m_text, 1);
    hide();
}

void NoticeBar::takeColors()
{
    // The theme's colours of a tool tip: a notice in any theme, and readable. Buttons are as elsewhere.
    const QPalette theirs = QApplication::palette();
    QPalette colors = theirs;
    colors.setColor(QPalette::Window, theirs.color(QPalette::ToolTipBase));
    colors.setColor(QPalette::WindowText, theirs.color(QPalette::ToolTipText));
    setPalette(colors);
    for (QPushButton *button : findChildren<QPushButton *>())
        button->setPalette(theirs);
}

QPushButton *NoticeBar::addButton(const QString &text, const QString &objectName, const QString &toolTip)
{
    auto *button = new QPushButton(text);
    button->setObjectName(objectName);
    button->setToolTip(toolTip);
    button->setPalette(QApplication::palette());
    m_row->addWidget(button);
    return button;
}

void NoticeBar::addCross(const QString &toolTip)
{
    auto *cross = new QToolButton;
    cross->setObjectName(QStringLiteral("btnNoticeClose"));
    cross->setIcon(namedIcon(QStringLiteral("close")));
    cross->setAutoRaise(true);
    cross->setToolTip(toolTip);
    cross->setAccessibleName(toolTip);
    connect(cross, &QToolButton::clicked, this, &QWidget::hide);
    m_row->addWidget(cross);
}

void NoticeBar::tell(const QString &text)
{
    m_text->setText(text);
    show();
}

QString NoticeBar::text() const
{
    return m_text->text();
}
