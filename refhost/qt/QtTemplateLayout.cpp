#include "refhost/qt/QtTemplateLayout.h"

#include <algorithm>

namespace kalhost::qt::detail {

namespace {

bool GrowsAcross(ControlKind kind)
{
    return kind == ControlKind::List || kind == ControlKind::Grid || kind == ControlKind::Tab ||
           kind == ControlKind::FileEdit;
}

bool GrowsDown(ControlKind kind)
{
    return kind == ControlKind::List || kind == ControlKind::Grid || kind == ControlKind::Tab;
}

// Controls whose edges both follow the stretched template without growing
// the dialog's data: frames, and captions (their text may use the room).
bool FollowsAcross(ControlKind kind)
{
    return kind == ControlKind::GroupBox || kind == ControlKind::Static || kind == ControlKind::CheckBox ||
           kind == ControlKind::RadioButton;
}

} // namespace

void StretchAxis::AddGrowingSpan(int from, int to)
{
    if (to > from) {
        m_spans.emplace_back(from, to);
        m_merged = false;
    }
}

const std::vector<std::pair<int, int>>& StretchAxis::Spans() const
{
    if (!m_merged) {
        std::sort(m_spans.begin(), m_spans.end());
        std::vector<std::pair<int, int>> merged;
        for (const auto& span : m_spans)
            if (!merged.empty() && span.first <= merged.back().second)
                merged.back().second = std::max(merged.back().second, span.second);
            else
                merged.push_back(span);
        m_spans = std::move(merged);
        m_merged = true;
    }
    return m_spans;
}

int StretchAxis::Map(int x, int extra) const
{
    const auto& spans = Spans();
    long long total = 0;
    long long before = 0;
    for (const auto& [from, to] : spans) {
        total += to - from;
        before += std::clamp(x, from, to) - from;
    }
    return total == 0 ? x : x + static_cast<int>(extra * before / total);
}

TemplateLayout::TemplateLayout(QWidget* container, QSize size, int anchorReach)
    : QLayout(container), m_size(size), m_anchorReach(anchorReach)
{
    setContentsMargins(0, 0, 0, 0);
    setSizeConstraint(QLayout::SetMinimumSize);
}

void TemplateLayout::AddControl(ControlKind kind, const QRect& rect, Place place)
{
    if (GrowsAcross(kind))
        m_x.AddGrowingSpan(rect.left(), rect.left() + rect.width());
    if (GrowsDown(kind))
        m_y.AddGrowingSpan(rect.top(), rect.top() + rect.height());
    m_controls.push_back({kind, rect, std::move(place)});
    invalidate();
}

std::pair<int, int> TemplateLayout::MapSpan(const StretchAxis& axis, int from, int to, int extra, bool follows,
                                            bool anchored)
{
    if (follows)
        return {axis.Map(from, extra), axis.Map(to, extra)};
    // Neither placement can reach a neighbour: the map never shrinks a gap
    // and never moves a coordinate further than the far edge moves.
    const int length = to - from;
    if (anchored)
        return {to + extra - length, to + extra};
    const int start = axis.Map(from, extra);
    return {start, start + length};
}

std::vector<bool> TemplateLayout::AnchoredRight() const
{
    std::vector<std::size_t> order(m_controls.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    // From the edge inwards, so that a button's right-hand neighbour is
    // decided first.
    std::sort(order.begin(), order.end(),
              [this](std::size_t a, std::size_t b) { return m_controls[a].rect.right() > m_controls[b].rect.right(); });
    std::vector<bool> anchored(m_controls.size(), false);
    const int edge = m_size.width();
    for (const std::size_t i : order) {
        const QRect& r = m_controls[i].rect;
        anchored[i] = r.left() + r.width() >= edge - m_anchorReach;
        if (anchored[i] || m_controls[i].kind != ControlKind::PushButton)
            continue;
        for (std::size_t j = 0; j < m_controls.size() && !anchored[i]; ++j) {
            const QRect& next = m_controls[j].rect;
            const int gap = next.left() - (r.left() + r.width());
            anchored[i] = anchored[j] && m_controls[j].kind == ControlKind::PushButton && gap >= 0 &&
                          gap <= m_anchorReach && next.top() < r.bottom() && next.bottom() > r.top();
        }
    }
    return anchored;
}

void TemplateLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    const int extraX = std::max(0, rect.width() - m_size.width());
    const int extraY = std::max(0, rect.height() - m_size.height());
    const std::vector<bool> anchoredRight = AnchoredRight();
    for (std::size_t i = 0; i < m_controls.size(); ++i) {
        const Control& c = m_controls[i];
        const QRect& t = c.rect;
        const bool acrossFollows = GrowsAcross(c.kind) || FollowsAcross(c.kind);
        const bool downFollows = GrowsDown(c.kind) || c.kind == ControlKind::GroupBox;
        const bool anchoredDown = t.top() + t.height() >= m_size.height() - m_anchorReach;
        const auto [left, right] =
            MapSpan(m_x, t.left(), t.left() + t.width(), extraX, acrossFollows, anchoredRight[i]);
        const auto [top, bottom] = MapSpan(m_y, t.top(), t.top() + t.height(), extraY, downFollows, anchoredDown);
        c.place(QRect(rect.left() + left, rect.top() + top, right - left, bottom - top));
    }
}

} // namespace kalhost::qt::detail
