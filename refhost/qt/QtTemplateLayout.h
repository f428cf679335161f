// Dialogs that can be resized: a layout that places a dialog's (or a tab
// page's) controls where its template puts them, and shares the room the
// window has beyond the template's size out among the controls that hold
// data (lists, grids, tabs; file names across), so that long names and
// many variables get the space. Every other control keeps its size and
// moves with the part of the dialog it sits in; one whose far edge lies at
// the template's edge (Reset, Cancel), or a button beside such a one (OK),
// stays there.
#pragma once

#include "platform/DialogTemplate.h"

#include <QLayout>
#include <QRect>

#include <functional>
#include <vector>

namespace kalhost::qt::detail {

// Where coordinates of one axis of the template land when the axis is
// longer: the extra length goes to the spans that grow, in proportion to
// their share of the axis.
class StretchAxis {
public:
    void AddGrowingSpan(int from, int to);
    // `x` of the template (in pixels) with `extra` pixels shared out.
    int Map(int x, int extra) const;

private:
    // Merged and sorted once the spans are all known.
    const std::vector<std::pair<int, int>>& Spans() const;

    mutable std::vector<std::pair<int, int>> m_spans;
    mutable bool m_merged = true;
};

class TemplateLayout final : public QLayout {
public:
    using Place = std::function<void(const QRect&)>;

    // `size`: the template's size in pixels; `anchorReach`: how close to the
    // template's edge a control's far edge must be to stay at the edge.
    TemplateLayout(QWidget* container, QSize size, int anchorReach);

    // A control of kind `kind` at `rect` (template rectangle in pixels);
    // `place` puts its widget (and what belongs to it) into a rectangle.
    void AddControl(ControlKind kind, const QRect& rect, Place place);

    // A layout of positioned controls, not of QLayoutItems.
    void addItem(QLayoutItem*) override {}
    QLayoutItem* itemAt(int) const override { return nullptr; }
    QLayoutItem* takeAt(int) override { return nullptr; }
    int count() const override { return 0; }
    QSize sizeHint() const override { return m_size; }
    QSize minimumSize() const override { return m_size; }
    void setGeometry(const QRect& rect) override;

private:
    struct Control {
        ControlKind kind;
        QRect rect;
        Place place;
    };
    // The span of one axis of a control at `extra`: both edges mapped when
    // it follows the template, else its length kept, at the far edge when
    // it is anchored there.
    static std::pair<int, int> MapSpan(const StretchAxis& axis, int from, int to, int extra, bool follows,
                                       bool anchored);
    // Which controls keep their distance to the right edge.
    std::vector<bool> AnchoredRight() const;

    QSize m_size;
    int m_anchorReach;
    std::vector<Control> m_controls;
    StretchAxis m_x;
    StretchAxis m_y;
};

} // namespace kalhost::qt::detail
