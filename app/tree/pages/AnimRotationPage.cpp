// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimRotationPage.h"

#include "AnimCommands.h"
#include "AxisAngle.h"

#include <cmath>

using namespace Parts;

namespace {
/// The angle of a rotation in degrees, its axis kept; the result is of length 1.
struct RotationAngle
{
    float get(const QVector4D &key) const
    {
        // A key's floats hold angles to some millionths of a degree: what is typed is to be read again.
        return float(std::round(double(axisAngle(key).degrees) * 1e4) / 1e4);
    }
    void set(QVector4D &key, float degrees) const { key = quaternion({axisAngle(key).axis, degrees}); }
};
constexpr RotationAngle Angle;
} // namespace

AnimRotationPage::AnimRotationPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent)
    : RecordPage(document, tree, tr("Anim %1 - Rotation Track %2 - Frame %3 Properties"), parent)
{
    m_ui.setupUi(this);
    for (FloatSpinBox *editor :
         {m_ui.sbAnimRotationX, m_ui.sbAnimRotationY, m_ui.sbAnimRotationZ, m_ui.sbAnimRotationW})
        editor->setSingleStep(0.01);

    using Page = AnimRotationPage;
    bindVector<UC_AnimRotation, Page>(tr("Animation Rotation %1"),
                                      {{m_ui.sbAnimRotationX, &Page::OnAnimRotationXChanged},
                                       {m_ui.sbAnimRotationY, &Page::OnAnimRotationYChanged},
                                       {m_ui.sbAnimRotationZ, &Page::OnAnimRotationZChanged},
                                       {m_ui.sbAnimRotationW, &Page::OnAnimRotationWChanged}});
    bind<UC_AnimRotation>(m_ui.sbAnimRotationAngle, Angle, tr("Animation Rotation Angle"),
                          &Page::OnAnimRotationAngleChanged);
}

void AnimRotationPage::recordShown()
{
    if (const QVector4D *key = record())
        m_ui.lblAnimRotationAxis->setText(axisText(axisAngle(*key)));
}
