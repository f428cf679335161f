#include "platform/Cursor.h"

#include <utility>

namespace {

HCURSOR g_cursor = CursorShape::Arrow;

std::function<void(HCURSOR)>& Observer()
{
    static std::function<void(HCURSOR)> observer;
    return observer;
}

} // namespace

HCURSOR SetCursor(HCURSOR cursor)
{
    const HCURSOR previous = std::exchange(g_cursor, cursor);
    if (previous != cursor && Observer())
        Observer()(cursor);
    return previous;
}

HCURSOR GetCursor()
{
    return g_cursor;
}

namespace kal {

void SetCursorObserver(std::function<void(HCURSOR)> observer)
{
    Observer() = std::move(observer);
}

} // namespace kal
