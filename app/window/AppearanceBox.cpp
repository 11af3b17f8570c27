// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AppearanceBox.h"

#include "Language.h"
#include "Look.h"
#include "Settings.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

#include <algorithm>

AppearanceBox::AppearanceBox(QWidget *parent)
    : QGroupBox(tr("Appearance"), parent)
    , m_look(new QComboBox(this))
    , m_language(new QComboBox(this))
    , m_hint(new QLabel(tr("Korvane speaks it when it is started the next time."), this))
{
    m_look->setObjectName(QStringLiteral("cbLook"));
    m_look->setToolTip(tr("The colors of all windows; the desktop's change with the desktop"));
    for (const Look look : allLooks)
        m_look->addItem(lookName(look), lookKey(look));
    m_look->setCurrentIndex(int(chosenLook()));

    m_language->setObjectName(QStringLiteral("cbLanguage"));
    m_language->setToolTip(tr("The language of menus, pages and messages"));
    for (const Language::Choice &choice : Language::choices())
        m_language->addItem(choice.code.isEmpty() ? tr("System") : choice.name, choice.code);
    m_language->setCurrentIndex(std::max(0, m_language->findData(Settings::UiLanguage.value())));
    m_hint->setObjectName(QStringLiteral("lblLanguageHint"));
    QSizePolicy room = m_hint->sizePolicy();
    room.setRetainSizeWhenHidden(true); // so that nothing jumps
    m_hint->setSizePolicy(room);

    auto *rows = new QFormLayout(this);
    rows->addRow(tr("&Look:"), m_look);
    rows->addRow(tr("Languag&e:"), m_language);
    rows->addRow(QString(), m_hint);
    for (QComboBox *box : {m_look, m_language})
        box->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    m_look->setMinimumWidth(m_language->sizeHint().width());
    m_language->setMinimumWidth(m_look->sizeHint().width());
    connect(m_language, qOverload<int>(&QComboBox::currentIndexChanged), this, &AppearanceBox::updateHint);
    updateHint();
}

void AppearanceBox::updateHint()
{
    m_hint->setVisible(Language::resolve(m_language->currentData().toString()) != Language::installed());
}

void AppearanceBox::store() const
{
    Settings::UiLanguage.setValue(m_language->currentData().toString());
    if (m_look->currentIndex() != int(chosenLook()))
        chooseLook(allLooks[m_look->currentIndex()]);
}
