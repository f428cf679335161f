// The widgets the Qt view needs beyond Qt's own: a dialog window whose
// closing goes through the model, a list that drags the model's way, and a
// file name field with its browse button.
#pragma once

#include "framework/VariableKind.h"
#include "platform/Cursor.h"

#include <QDialog>
#include <QIcon>
#include <QListWidget>
#include <QWidget>

#include <functional>

class QLineEdit;
class QToolButton;

namespace kalhost::qt::detail {

// Escape, the window's close button and QDialog::reject ask the model
// instead of closing the window; the window closes when the model dialog
// has ended.
class ModelDialog : public QDialog {
public:
    using QDialog::QDialog;
    std::function<void()> onReject;

    void reject() override;
};

// A multi-selection list whose drag is the model's: starting a drag on the
// selection calls onDragStart (false: no drag), every mouse move during it
// onDragMove, the release onDrop; Escape ends the drag over the list
// itself, and so does a move that comes without the button held (the
// release went elsewhere). The widget keeps the implicit mouse grab of the
// press, so the moves arrive here wherever the mouse goes.
//
// Every list looks alike: a name longer than the list is wide is cut in
// the middle with an ellipsis (no sideways scrolling), the item's tool tip
// (itemTip) tells the whole name, and a list with the keyboard focus shows
// it even when it is empty.
class VariableListWidget : public QListWidget {
public:
    explicit VariableListWidget(QWidget* parent);
    ~VariableListWidget() override;

    std::function<bool()> onDragStart;
    std::function<void(const QPoint& global)> onDragMove;
    std::function<void(const QPoint& global)> onDrop;
    std::function<void()> onDragCancel;
    std::function<void()> onDoubleClick;
    // The icon beside the item in `row` (null or a null icon: none) and its
    // tool tip (null or an empty text: the list's).
    std::function<QIcon(int row)> itemIcon;
    std::function<QString(int row)> itemTip;

    bool IsDragging() const { return m_dragging; }
    // Shows the model's drag cursor while a drag is under way.
    void ShowDragCursor(CursorShape shape);

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void startDrag(Qt::DropActions supportedActions) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void EndDrag();

    bool m_dragging = false;
    bool m_cursorShown = false;
};

// The icon a list shows beside a variable of that kind: a ruler for
// numeric, "a" for string, three coloured dots for categorical variables;
// an empty square of the same size for an unknown one, so that names line
// up.
QIcon VariableKindIcon(kal::framework::VariableKind kind);

// The icon of a tab whose page is not available: a grey circle, struck
// through.
QIcon UnavailableIcon();

// Makes screen readers hear a tab that cannot be chosen as disabled, with
// its tip (why) as its description: Qt's own interface reports each tab as
// enabled as the whole bar is. Once per process; later calls do nothing.
void InstallTabAccessibility();

// A line edit with a "..." button beside it.
class FileEditWidget : public QWidget {
public:
    explicit FileEditWidget(QWidget* parent);

    QLineEdit* Edit() const { return m_edit; }
    QToolButton* Browse() const { return m_browse; }

private:
    QLineEdit* m_edit;
    QToolButton* m_browse;
};

} // namespace kalhost::qt::detail
