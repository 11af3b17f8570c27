// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ViewportNotice.h"

#include "KVOpenGLWidget.h"

#include <QBoxLayout>
#include <QLabel>

void embedViewport(KVOpenGLWidget *viewport, QBoxLayout *layout)
{
    auto *notice = new QLabel;
    notice->setObjectName(QStringLiteral("lblViewportFailure"));
    notice->setAlignment(Qt::AlignCenter);
    notice->setWordWrap(true);
    notice->setMargin(24);
    notice->setTextInteractionFlags(Qt::TextSelectableByMouse);
    notice->hide();
    layout->insertWidget(layout->indexOf(viewport) + 1, notice, 1);
    QObject::connect(viewport, &KVOpenGLWidget::failed, notice, [viewport, notice] {
        notice->setText(viewport->failure());
        notice->show();
    });
    viewport->embed();
}
