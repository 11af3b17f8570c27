// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PicturePopup.h"

#include "FilePictures.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QSemaphore>
#include <QThreadPool>

#include <algorithm>
#include <memory>

namespace {
constexpr int PopupPatienceMs = 50;
constexpr int PopupMargin = 8;
constexpr int LeastWidth = 240; ///< of small pictures, pixels
constexpr int LeastSide = 128;  ///< to which these are enlarged
} // namespace

PicturePopup::PicturePopup(const QString &path, QWidget *parent)
    : QFrame(parent, Qt::Popup)
    , m_path(path)
{
    setObjectName(QStringLiteral("PicturePopup"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Plain));
    setAccessibleName(QFileInfo(path).fileName());
}

void PicturePopup::popUp()
{
    tell(tr("The texture is being read."));
    struct Reading
    {
        Picture picture;
        QSemaphore done;
    };
    const auto reading = std::make_shared<Reading>();
    QThreadPool::globalInstance()->start([path = m_path, reading, popup = QPointer<PicturePopup>(this)] {
        reading->picture = Files::readPicture(path);
        reading->done.release();
        const auto deliver = [reading, popup] {
            if (popup)
                popup->take(reading->picture);
        };
        QMetaObject::invokeMethod(qApp, deliver, Qt::QueuedConnection);
    });
    if (reading->done.tryAcquire(1, PopupPatienceMs))
        take(reading->picture);
    place();
    show();
}

void PicturePopup::take(const Picture &picture)
{
    m_image = picture.image;
    tell(m_image.isNull() ? tr("The texture cannot be read.")
                          : tr("%1 × %2, %3")
                                .arg(QString::number(m_image.width()), QString::number(m_image.height()),
                                     QString::fromLatin1(picture.format.toUpper())));
}

void PicturePopup::tell(const QString &words)
{
    m_words = words;
    setAccessibleDescription(words);
    if (isVisible())
        place();
    update();
}

/// What is small is shown larger, in whole steps; what is large fits the window.
void PicturePopup::place()
{
    const QWidget *window = parentWidget()->window();
    const QRect room = window->screen()->availableGeometry();
    const int lines = 2 * fontMetrics().height() + PopupMargin;
    const QSize most = room.size() * 3 / 4 - QSize(2 * PopupMargin, lines + 2 * PopupMargin);
    QSize picture = m_image.size();
    if (!m_image.isNull()) {
        const int side = std::max(picture.width(), picture.height());
        picture *= std::max(LeastSide / std::max(side, 1), 1);
        if (picture.width() > most.width() || picture.height() > most.height())
            picture.scale(most, Qt::KeepAspectRatio);
    }
    const QString name = QFileInfo(m_path).fileName();
    const int words =
        std::max(fontMetrics().horizontalAdvance(name), fontMetrics().horizontalAdvance(m_words));
    const QSize size(std::clamp(std::max(picture.width(), words), LeastWidth, most.width()) + 2 * PopupMargin,
                     picture.height() + lines + 2 * PopupMargin);
    QRect frame(QPoint(), size);
    frame.moveCenter(window->frameGeometry().center());
    frame.moveLeft(std::clamp(frame.left(), room.left(), room.right() - frame.width() + 1));
    frame.moveTop(std::clamp(frame.top(), room.top(), room.bottom() - frame.height() + 1));
    setGeometry(frame);
}

void PicturePopup::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    const int line = fontMetrics().height();
    const QRect inner = rect().adjusted(PopupMargin, PopupMargin, -PopupMargin, -PopupMargin);
    const QRect room = inner.adjusted(0, 0, 0, -2 * line - PopupMargin);
    if (!m_image.isNull() && !room.isEmpty()) {
        QRect place(QPoint(), m_image.size().scaled(room.size(), Qt::KeepAspectRatio));
        place.moveCenter(room.center());
        // What is transparent is seen as such.
        painter.fillRect(place, QBrush(palette().color(QPalette::Mid), Qt::Dense4Pattern));
        painter.setRenderHint(QPainter::SmoothPixmapTransform, place.width() < m_image.width());
        painter.drawImage(place, m_image);
    }
    const QRect lower(inner.left(), inner.bottom() + 1 - line, inner.width(), line);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(lower.translated(0, -line), Qt::AlignCenter,
                     fontMetrics().elidedText(QFileInfo(m_path).fileName(), Qt::ElideMiddle, inner.width()));
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(lower, Qt::AlignCenter,
                     fontMetrics().elidedText(m_words, Qt::ElideRight, inner.width()));
}

void PicturePopup::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    close();
}

void PicturePopup::mousePressEvent(QMouseEvent *)
{
    close();
}
