// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QImage>

struct Picture;

/// A texture as large as it is, or as there is room, and what there is to say about it, until a key is
/// pressed or something else is clicked. It is read in another thread, which nobody waits for. Deletes
/// itself.
class PicturePopup : public QFrame
{
    Q_OBJECT

public:
    PicturePopup(const QString &path, QWidget *parent);

    /// Shows itself in the middle of the window.
    void popUp();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void take(const Picture &picture);
    void tell(const QString &words);
    void place();

    const QString m_path;
    QImage m_image;
    QString m_words;
};
