// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DamageShow.h"

#include "Fields.h"
#include "KVOpenGLWidget.h"
#include "NumberText.h"
#include "Settings.h"

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QLabel>
#include <QMenu>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <utility>

namespace {
constexpr int LegendMargin = 8;   // from the corner, in pixels
constexpr int MostRows = 12;      // of the legend
constexpr int TintOpacity = 0xcc; // the texture is still seen
constexpr float StrongScale = 10.0f;

constexpr QRgb NoDamageColor = 0xff4d5560;
constexpr QRgb NoNumberColor = 0xffff00ff;

struct RampColor
{
    float place; ///< from -1 for a tenth of the damage to 1 for ten times as much
    QRgb color;
};
constexpr std::array<RampColor, 7> DamageRamp{{{-1.0f, 0xff3a2f9e},
                                               {-0.6f, 0xff3f7fe0},
                                               {-0.3f, 0xff45c8d8},
                                               {0.0f, 0xff6fcf6a},
                                               {0.3f, 0xfff6e05e},
                                               {0.6f, 0xfff6933d},
                                               {1.0f, 0xffd62828}}};

constexpr std::array<QRgb, 10> ImpactColors{0xffe4572e, 0xff4c9be8, 0xff8ac926, 0xffffca3a, 0xff9b5de5,
                                            0xff2ec4b6, 0xffff8fab, 0xffa47148, 0xffbfc5cc, 0xff3a5a98};

QRgb between(QRgb a, QRgb b, float t)
{
    const auto part = [t](int from, int to) { return int(std::lround(float(from) + t * float(to - from))); };
    return qRgb(part(qRed(a), qRed(b)), part(qGreen(a), qGreen(b)), part(qBlue(a), qBlue(b)));
}

QRgb damageColor(float scale)
{
    if (std::isnan(scale))
        return NoNumberColor;
    if (scale <= 0.0f)
        return NoDamageColor;
    const float place = std::clamp(std::log(scale) / std::log(StrongScale), -1.0f, 1.0f);
    for (size_t i = 1; i < DamageRamp.size(); ++i) {
        const RampColor &from = DamageRamp[i - 1], &to = DamageRamp[i];
        if (place <= to.place)
            return between(from.color, to.color, (place - from.place) / (to.place - from.place));
    }
    return DamageRamp.back().color;
}

struct LegendRow
{
    QRgb color = 0;
    QString text;
    int bones = 0;
};
} // namespace

DamageShow::DamageShow(SkinnedMeshDocument &document, KVOpenGLWidget &view, QWidget *window)
    : QObject(window)
    , m_document(document)
    , m_view(view)
    , m_menu(new QMenu(tr("Sho&w Damage"), window))
    , m_choices(new QActionGroup(this))
{
    const auto add = [this, window](const char *name, const QString &text, const QString &tip) {
        auto *action = new QAction(text, window);
        action->setObjectName(QLatin1String(name));
        action->setToolTip(tip);
        action->setStatusTip(tip);
        action->setCheckable(true);
        m_choices->addAction(action);
        m_menu->addAction(action);
    };
    // In the order of the enumeration.
    add("actionDamageOff", tr("&Off"), tr("Show the model in its own colors"));
    add("actionDamageScale", tr("Damage &Scale"),
        tr("Color the model by how much damage its bones take, with a legend"));
    add("actionDamageImpact", tr("&Impact Type"),
        tr("Color the model by the impact types of its bones, with a legend"));
    const QList<QAction *> actions = m_choices->actions();
    actions.value(Settings::ShowDamage.value(), actions.first())->setChecked(true);
    connect(m_choices, &QActionGroup::triggered, this, &DamageShow::OnShowDamageChosen);
    connect(&document, &Document::replaced, this, &DamageShow::update);
    connect(&document, &Document::structuresChanged, this, &DamageShow::update);
    connect(&document, &Document::recordsChanged, this, [this](const QVector<RecordRef> &records) {
        if (std::any_of(records.begin(), records.end(),
                        [](const RecordRef &record) { return record.kind == RecordKind::Bone; }))
            update();
    });
    view.installEventFilter(this);
    update();
}

DamageShow::Shown DamageShow::shown() const
{
    return Shown(m_choices->actions().indexOf(m_choices->checkedAction()));
}

void DamageShow::OnShowDamageChosen(QAction *action)
{
    Settings::ShowDamage.setValue(m_choices->actions().indexOf(action));
    update();
}

void DamageShow::update()
{
    const std::vector<SkinnedMeshNode> &bones = m_document.model().nodes;
    const Shown what = shown();
    if (what == Shown::Nothing || bones.empty()) {
        delete std::exchange(m_legend, nullptr);
        m_view.setBoneColors({});
        return;
    }
    std::vector<QRgb> colors;
    // The most damage first, what is no number last; types in their order.
    std::map<std::pair<bool, float>, LegendRow> rows;
    const QStringList types = Fields::impactTypes();
    for (const SkinnedMeshNode &bone : bones) {
        const bool isScale = what == Shown::DamageScale;
        const QRgb color =
            isScale ? damageColor(bone.damageScale) : ImpactColors[bone.impactType % ImpactColors.size()];
        colors.push_back(qRgba(qRed(color), qGreen(color), qBlue(color), TintOpacity));
        const bool isNumber = !isScale || !std::isnan(bone.damageScale);
        const float key = isScale ? -bone.damageScale : float(bone.impactType);
        LegendRow &row = rows[{!isNumber, isNumber ? key : 0.0f}];
        row.color = color;
        ++row.bones;
        if (row.bones == 1)
            row.text = isScale ? QStringLiteral("× ") + NumberText::text(bone.damageScale)
                               : types.value(bone.impactType, QString::number(bone.impactType));
    }
    QString text = QStringLiteral("<table cellspacing='2'><tr><td colspan='2'><b>%1</b>&nbsp;&nbsp;</td>"
                                  "<td align='right'>%2</td></tr>")
                       .arg(what == Shown::DamageScale ? tr("Damage scale") : tr("Impact type"), tr("Bones"));
    int shownRows = 0;
    for (const auto &[key, row] : rows) {
        if (++shownRows > MostRows)
            break;
        text += QStringLiteral("<tr><td style='background-color:%1'>&nbsp;&nbsp;&nbsp;&nbsp;</td>"
                               "<td>&nbsp;%2&nbsp;&nbsp;</td><td align='right'>%3</td></tr>")
                    .arg(QColor(row.color).name(), row.text.toHtmlEscaped(), QString::number(row.bones));
    }
    text += QStringLiteral("</table>");
    if (int(rows.size()) > MostRows)
        text += tr("and others: %1").arg(int(rows.size()) - MostRows);
    if (!m_legend) {
        m_legend = new QLabel(&m_view);
        m_legend->setObjectName(QStringLiteral("lblDamageLegend"));
        m_legend->setTextFormat(Qt::RichText);
        m_legend->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_legend->setStyleSheet(QStringLiteral(
            "color: white; background-color: rgba(0, 0, 0, 160); border-radius: 3px; padding: 4px 6px;"));
    }
    m_legend->setText(text);
    m_legend->show();
    placeLegend();
    m_view.setBoneColors(std::move(colors));
}

void DamageShow::placeLegend()
{
    m_legend->adjustSize();
    m_legend->move(m_view.width() - m_legend->width() - LegendMargin, LegendMargin);
}

bool DamageShow::eventFilter(QObject *watched, QEvent *event)
{
    if (m_legend && event->type() == QEvent::Resize)
        placeLegend();
    return QObject::eventFilter(watched, event);
}
