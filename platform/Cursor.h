// The mouse cursor, as far as dialogs set it: the drag-and-drop feedback.
#pragma once

#include <functional>

enum class CursorShape {
    Arrow,  // no feedback
    Drop,   // the drop is allowed here
    NoDrop, // no drop here
    Remove, // dropping here removes the dragged items
};

using HCURSOR = CursorShape;
using HICON = CursorShape;

// Sets the process's cursor; returns the previous one.
HCURSOR SetCursor(HCURSOR cursor);
HCURSOR GetCursor();

namespace kal {

// A driver's view of the cursor; told every change.
void SetCursorObserver(std::function<void(HCURSOR)> observer);

} // namespace kal
