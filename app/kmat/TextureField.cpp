// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TextureField.h"

#include "ChoiceList.h"
#include "ChoicePopup.h"
#include "Icons.h"
#include "MaterialCatalog.h"
#include "NameDrop.h"
#include "TextField.h"
#include "TypingUndo.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QHBoxLayout>
#include <QLabel>
#include <QTimer>
#include <QToolButton>

namespace {
constexpr int ShownChoices = 12;
} // namespace

TextureField::TextureField(QWidget *parent)
    : QWidget(parent)
    , m_editor(new TextField(this))
    , m_button(new QToolButton(this))
    , m_completer(new QCompleter(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    auto *label = new QLabel(tr("Texture"), this);
    m_editor->setAccessibleName(label->text());
    m_editor->setObjectName(QStringLiteral("txtMaterialTexture"));
    m_editor->setToolTip(tr("The path of the texture below the game or the mod folder"));
    m_button->setObjectName(QStringLiteral("btnChooseTexture"));
    m_button->setIcon(namedIcon(QStringLiteral("search")));
    m_button->setAccessibleName(tr("Choose a Texture"));
    m_button->setToolTip(tr("Choose one of the textures of game and mod"));
    m_button->setAutoRaise(true);
    connect(m_button, &QToolButton::clicked, this, &TextureField::choose);
    m_completer->setFilterMode(Qt::MatchContains);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_completer->setCompletionRole(Qt::DisplayRole);
    m_completer->setMaxVisibleItems(ShownChoices);
    m_completer->popup()->setTextElideMode(Qt::ElideMiddle); // paths differ at their ends
    m_editor->setCompleter(m_completer);
    connect(m_completer, qOverload<const QString &>(&QCompleter::activated), this,
            [this](const QString &texture) {
                m_editor->discardText();
                emit chosen(texture);
            });
    connect(new NameDrop(m_editor, DraggedFile::Kind::Texture), &NameDrop::dropped, this,
            [this](const QString &texture) {
                m_editor->discardText();
                emit chosen(texture);
            });
    connect(&m_textures, &TextureList::changed, this, [this] {
        if (!m_completer->popup()->isVisible())
            m_completer->setModel(list(m_completer));
    });
    row->addWidget(label);
    row->addWidget(m_editor, 1);
    row->addWidget(m_button);
    m_editor->installEventFilter(this);
}

bool TextureField::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        m_textures.refreshOld();
        // The line connects itself when it gets the keys: what is only looked at in the list is not to be put
        // into it, where leaving the field would store it.
        QTimer::singleShot(
            0, this, [this] { disconnect(m_completer, SIGNAL(highlighted(QString)), m_editor, nullptr); });
    }
    // Without typing of its own, Ctrl+Z is the file's.
    if (isUndoOfDocument(watched, event)) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

ChoiceList *TextureField::list(QObject *parent) const
{
    const QStringList textures = m_textures.textures();
    QVector<Choice> choices;
    for (const QString &texture : textures)
        choices.append({choices.size(), texture, {}});
    auto *made = new ChoiceList(choices, false, parent);
    if (m_catalog)
        made->setIcons([this, textures](int number) { return m_catalog->icon(textures[number]); });
    return made;
}

void TextureField::choose()
{
    m_editor->setFocus(Qt::OtherFocusReason);
    const QStringList textures = m_textures.textures();
    auto *popup =
        new ChoicePopup(tr("Textures"), list(nullptr), double(textures.indexOf(m_editor->value())), m_editor);
    connect(popup, &ChoicePopup::chosen, this, [this, textures](int number) {
        m_editor->discardText();
        emit chosen(textures[number]);
    });
    if (m_catalog)
        connect(m_catalog, &MaterialCatalog::iconsReady, popup, &ChoicePopup::updateIcons);
    popup->popUp(m_button->geometry().right() + 1 - m_editor->x());
}
