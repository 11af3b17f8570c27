// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ViewToolBar.h"

#include "Settings.h"

#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>
#include <QToolTip>
#include <QWidgetAction>

#include <algorithm>
#include <cmath>

namespace {
constexpr int MinMoveSpeed = 15;
constexpr int MaxMoveSpeed = 1000;
constexpr int MaxBrightness = 4;
constexpr int Gap = 4; ///< between the controls, in pixels

/// A button that is its color, which a style would shade.
class ColorButton : public QPushButton
{
protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QRect inner = rect().adjusted(1, 3, -2, -4);
        painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Shadow));
        painter.setBrush(palette().button());
        painter.drawRect(inner);
        if (hasFocus())
            painter.drawRect(inner.adjusted(1, 1, -1, -1));
    }
};

/// A slider with its label before it, both in a panel.
QSlider *labelledSlider(const QString &text, int min, int max, QWidget *panel)
{
    auto *slider = new QSlider(Qt::Horizontal);
    auto *label = new QLabel(text);
    auto *layout = new QHBoxLayout(panel);
    layout->setContentsMargins(Gap, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(slider);
    label->setBuddy(slider);
    slider->setAccessibleName(text.trimmed());
    slider->setRange(min, max);
    slider->setPageStep(std::max(1, (max - min) / 20));
    slider->setFocusPolicy(Qt::TabFocus);
    return slider;
}

} // namespace

ViewToolBar::ViewToolBar(const QString &title, const ViewActions &actions, QWidget *parent)
    : QToolBar(title, parent)
    , m_bgColor(new ColorButton)
    , m_surfSelect(new QComboBox)
{
    // A click on a control leaves the keys with the viewport, so that one can fly on.
    m_bgColor->setFocusPolicy(Qt::TabFocus);
    m_surfSelect->setFocusPolicy(Qt::TabFocus);
    layout()->setSpacing(Gap);

    addAction(actions.resetCamera);
    addSeparator();
    addAction(actions.ground);
    addAction(actions.axisGizmo);
    addAction(actions.backCull);
    if (actions.shading)
        addMenu(actions.shading);
    addActions(actions.marks);

    m_bgColor->setObjectName(QStringLiteral("btnBGColor"));
    m_bgColor->setFixedWidth(32);
    m_bgColor->setToolTip(tr("Background color of the view"));
    m_bgColor->setAccessibleName(tr("Background color"));
    m_bgColor->installEventFilter(this);
    addWidget(m_bgColor);

    m_surfSelect->setObjectName(QStringLiteral("cbSurfSelect"));
    m_surfSelect->addItems({tr("None"), tr("Lines"), tr("Lines Hidden"), tr("Points"), tr("Points Hidden")});
    m_surfSelect->setToolTip(
        tr("How the selected surface is marked; the hidden kinds show through the model"));
    m_surfSelect->setAccessibleName(tr("Selection display"));
    addRoomy(m_surfSelect, [this](QWidget *menu) {
        auto *twin = new QComboBox(menu);
        twin->setModel(m_surfSelect->model());
        twin->setAccessibleName(m_surfSelect->accessibleName());
        twin->setCurrentIndex(m_surfSelect->currentIndex());
        connect(twin, QOverload<int>::of(&QComboBox::currentIndexChanged), m_surfSelect,
                &QComboBox::setCurrentIndex);
        connect(m_surfSelect, QOverload<int>::of(&QComboBox::currentIndexChanged), twin,
                &QComboBox::setCurrentIndex);
        return twin;
    });
    addSeparator();
    m_moveSpeed = addSlider("sliderMoveSpeed", tr("Move Speed "), MinMoveSpeed, MaxMoveSpeed, 128);
    m_brightness = addSlider("sliderBrightness", tr("Brightness "), 0, MaxBrightness, 32);

    setBackgroundColor(Settings::BGColor.value());
    setSurfSelectType(Settings::SurfSelectType.value());
    setMoveSpeedPosition(moveSpeedPosition(Settings::MouseSpeed.value()));
    setBrightnessPosition(brightnessPosition(Settings::Brightness.value()));

    connect(m_bgColor, &QPushButton::clicked, this, &ViewToolBar::backgroundColorClicked);
    connect(m_surfSelect, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ViewToolBar::surfSelectChanged);
    connect(m_moveSpeed, &QSlider::valueChanged, this, &ViewToolBar::moveSpeedChanged);
    connect(m_brightness, &QSlider::valueChanged, this, &ViewToolBar::brightnessChanged);
    connect(m_moveSpeed, &QSlider::valueChanged, this, &ViewToolBar::updateToolTips);
    connect(m_brightness, &QSlider::valueChanged, this, &ViewToolBar::updateToolTips);
}

void ViewToolBar::addRoomy(QWidget *control, const MakeTwin &makeTwin)
{
    addWidget(control);
    m_roomy.append({control, makeTwin});
}

QSlider *ViewToolBar::addSlider(const char *name, const QString &label, int min, int max, int maxWidth)
{
    auto *panel = new QWidget;
    panel->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    QSlider *shown = labelledSlider(label, min, max, panel);
    shown->setObjectName(QLatin1String(name));
    shown->setMaximumWidth(maxWidth);
    connect(shown, &QSlider::sliderReleased, this, &ViewToolBar::sliderReleased);
    addRoomy(panel, [=](QWidget *menu) {
        auto *twinPanel = new QWidget(menu);
        QSlider *twin = labelledSlider(label, min, max, twinPanel);
        twin->setValue(shown->value());
        connect(twin, &QSlider::valueChanged, shown, &QSlider::setValue);
        connect(twin, &QSlider::sliderReleased, shown, &QSlider::sliderReleased);
        connect(shown, &QSlider::valueChanged, twin, &QSlider::setValue);
        return twinPanel;
    });
    return shown;
}

bool ViewToolBar::event(QEvent *event)
{
    const bool isHandled = QToolBar::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        fillMore();
    return isHandled;
}

void ViewToolBar::fillMore()
{
    auto *more = findChild<QToolButton *>(QStringLiteral("qt_toolbar_ext_button"));
    QMenu *menu = more ? more->menu() : nullptr;
    if (!menu)
        return;
    qDeleteAll(menu->findChildren<QWidgetAction *>(QString(), Qt::FindDirectChildrenOnly));
    for (const Roomy &each : qAsConst(m_roomy)) {
        if (!each.control->isHidden())
            continue;
        auto *action = new QWidgetAction(menu);
        action->setDefaultWidget(each.makeTwin(menu));
        menu->addAction(action);
        more->setEnabled(true); // which the toolkit does for the sake of buttons alone
    }
}

void ViewToolBar::addMenu(QMenu *menu)
{
    addAction(menu->menuAction());
    auto *button = static_cast<QToolButton *>(widgetForAction(menu->menuAction()));
    button->setPopupMode(QToolButton::InstantPopup);
    button->setFocusPolicy(Qt::TabFocus);
}

void ViewToolBar::setBackgroundColor(const QColor &color)
{
    m_bgColor->setStyleSheet(QStringLiteral("background-color: %1").arg(color.name()));
}

void ViewToolBar::setSurfSelectType(int type)
{
    const QSignalBlocker silence(m_surfSelect);
    m_surfSelect->setCurrentIndex(type >= 0 && type < m_surfSelect->count() ? type : 0);
}

void ViewToolBar::setMoveSpeedPosition(int position)
{
    const QSignalBlocker silence(m_moveSpeed);
    m_moveSpeed->setValue(position);
    updateToolTips();
}

void ViewToolBar::setBrightnessPosition(int position)
{
    const QSignalBlocker silence(m_brightness);
    m_brightness->setValue(position);
    updateToolTips();
}

int ViewToolBar::moveSpeedPosition(float speed)
{
    return int(std::clamp(speed * 100.0f, float(MinMoveSpeed), float(MaxMoveSpeed)));
}

float ViewToolBar::moveSpeed(int position)
{
    return float(position) / 100.0f;
}

int ViewToolBar::brightnessPosition(float brightness)
{
    return int(std::lround(std::clamp((brightness - 1.0f) * 4.0f, 0.0f, float(MaxBrightness))));
}

float ViewToolBar::brightness(int position)
{
    return float(position) * 0.25f + 1.0f;
}

bool ViewToolBar::eventFilter(QObject *watched, QEvent *event)
{
    // A tool tip takes over the style sheet of its widget: the button's color would make the text unreadable.
    if (watched == m_bgColor && event->type() == QEvent::ToolTip) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), m_bgColor->toolTip(), this);
        return true;
    }
    return QToolBar::eventFilter(watched, event);
}

void ViewToolBar::updateToolTips()
{
    m_moveSpeed->setToolTip(tr("Speed of the camera: %1").arg(moveSpeed(m_moveSpeed->value())));
    m_brightness->setToolTip(tr("Brightness of the model: %1").arg(brightness(m_brightness->value())));
}
