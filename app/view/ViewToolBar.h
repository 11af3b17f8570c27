// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QToolBar>
#include <QVector>

#include <functional>

class QAction;
class QColor;
class QComboBox;
class QMenu;
class QPushButton;
class QSlider;

/// The actions that both view tool bars share.
struct ViewActions
{
    QAction *ground;
    QAction *axisGizmo;
    QAction *backCull;
    QAction *resetCamera;
    QMenu *shading = nullptr;
    QList<QAction *> marks = {}; ///< what is drawn over the model
};

/// A viewport's tool bar. It shows the stored view preferences and says what the user moved; storing them,
/// and keeping the two tool bars alike, is the owner's part. The setters emit nothing.
class ViewToolBar : public QToolBar
{
    Q_OBJECT

public:
    ViewToolBar(const QString &title, const ViewActions &actions, QWidget *parent = nullptr);

    void setBackgroundColor(const QColor &color);
    /// An index that is none of the items counts as 0.
    void setSurfSelectType(int type);
    void setMoveSpeedPosition(int position);
    void setBrightnessPosition(int position);

    /// Slider positions and what they stand for: 15 to 1000 are hundredths of a unit, 0 to 4 quarters
    /// above 1.
    static int moveSpeedPosition(float speed);
    static float moveSpeed(int position);
    static int brightnessPosition(float brightness);
    static float brightness(int position);

signals:
    void backgroundColorClicked();
    void surfSelectChanged(int type);
    void moveSpeedChanged(int position);
    void brightnessChanged(int position);
    /// The end of moves with the mouse.
    void sliderReleased();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool event(QEvent *event) override;

private:
    using MakeTwin = std::function<QWidget *(QWidget *menu)>;
    /// A control that takes room, and what makes one that does the same in the menu of what has none.
    struct Roomy
    {
        QWidget *control;
        MakeTwin makeTwin;
    };

    void addMenu(QMenu *menu);
    void addRoomy(QWidget *control, const MakeTwin &makeTwin);
    QSlider *addSlider(const char *name, const QString &label, int min, int max, int maxWidth);
    /// Puts twins of the controls that have no room into the menu that the toolkit offers for buttons.
    void fillMore();
    void updateToolTips();

    QPushButton *m_bgColor;
    QComboBox *m_surfSelect;
    QSlider *m_moveSpeed;
    QSlider *m_brightness;
    QVector<Roomy> m_roomy;
};
