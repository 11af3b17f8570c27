// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ViewDrags.h"
#include "ViewTool.h"

#include <QPoint>
#include <QSize>

class ViewSight;

/// Drags a handle that is under the mouse; a click does nothing. Ctrl snaps, Escape gives up, as another size
/// of the view does. All other keys wait until the drag is over.
class HandleTool : public ViewTool
{
public:
    /// Null: nothing can be dragged.
    void setReceiver(ViewDrags *receiver) { m_receiver = receiver; }

    bool press(const ViewInput &input) override;
    std::optional<int> move(const ViewInput &input) override;
    bool release(const ViewInput &input) override;
    bool wheel(const ViewInput &) override { return m_isDragging; }
    bool keyPress(const ViewInput &input) override;
    bool keyRelease(const ViewInput &input) override;
    bool takesKeys() const override { return m_isDragging; }
    bool isDragging() const { return m_isDragging; }
    void cancel() override;
    void leave() override { unhover(); }
    ViewCursor cursor() const override;

protected:
    explicit HandleTool(const ViewSight &sight);

    const ViewSight &sight() const { return m_sight; }
    ViewDrags *receiver() const { return m_receiver; }
    bool snaps() const { return m_snaps; }
    const QPoint &mouse() const { return m_mouse; }

private:
    /// Notes the handle that is at a pixel, if one is.
    virtual void hoverAt(const QPoint &pixel) = 0;
    virtual void unhover() = 0;
    virtual bool isHovered() const = 0;
    /// Takes hold of the hovered handle where mouse() is, and says of which kind it is.
    virtual ViewDrags::Handle grab() = 0;
    /// The mouse, a key or what snaps has changed: tells the receiver what becomes of the handle.
    virtual void follow() = 0;
    /// Another key than those that all handles know. Returns whether anything changes by it.
    virtual bool takeKey(int key, bool isDown);

    void drag(const ViewInput &input);

    const ViewSight &m_sight;
    ViewDrags *m_receiver = nullptr;
    bool m_isDragging = false;
    bool m_hasMoved = false; ///< so far that it is no click
    bool m_snaps = false;
    QPoint m_mouse;
    QSize m_size; ///< of the view, when it was pressed
};
