#include "refhost/qt/QtWidgets.h"

#include "refhost/qt/QtText.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QToolButton>

namespace kalhost::qt::detail {

void ModelDialog::reject()
{
    if (onReject)
        onReject();
    else
        QDialog::reject();
}

VariableListWidget::VariableListWidget(QWidget* parent) : QListWidget(parent)
{
    // Qt's drag detection (a press on the selection, then a move beyond the
    // drag distance) ends in startDrag, which runs the model's drag instead
    // of a QDrag.
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragOnly);
}

VariableListWidget::~VariableListWidget()
{
    if (m_cursorShown)
        QApplication::restoreOverrideCursor();
}

void VariableListWidget::ShowDragCursor(CursorShape shape)
{
    if (!m_dragging)
        return;
    const QCursor cursor(ToQtCursor(shape));
    if (m_cursorShown) {
        QApplication::changeOverrideCursor(cursor);
    } else {
        QApplication::setOverrideCursor(cursor);
        m_cursorShown = true;
    }
}

void VariableListWidget::startDrag(Qt::DropActions)
{
    m_dragging = onDragStart && onDragStart();
}

void VariableListWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_dragging) {
        QListWidget::mouseMoveEvent(event);
        return;
    }
    event->accept();
    if (!(event->buttons() & Qt::LeftButton)) {
        EndDrag();
        if (onDragCancel)
            onDragCancel();
        return;
    }
    if (onDragMove)
        onDragMove(event->globalPosition().toPoint());
}

void VariableListWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_dragging) {
        QListWidget::mouseReleaseEvent(event);
        return;
    }
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    EndDrag();
    if (onDrop)
        onDrop(event->globalPosition().toPoint());
}

void VariableListWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    QListWidget::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && onDoubleClick)
        onDoubleClick();
}

void VariableListWidget::keyPressEvent(QKeyEvent* event)
{
    if (m_dragging && event->key() == Qt::Key_Escape) {
        event->accept();
        EndDrag();
        if (onDragCancel)
            onDragCancel();
        return;
    }
    QListWidget::keyPressEvent(event);
}

void VariableListWidget::EndDrag()
{
    m_dragging = false;
    if (m_cursorShown) {
        QApplication::restoreOverrideCursor();
        m_cursorShown = false;
    }
}

FileEditWidget::FileEditWidget(QWidget* parent)
    : QWidget(parent), m_edit(new QLineEdit(this)), m_browse(new QToolButton(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_edit, 1);
    layout->addWidget(m_browse);
    m_browse->setText(QStringLiteral("..."));
    m_browse->setToolTip(QStringLiteral("Choose a file"));
    setFocusProxy(m_edit);
}

} // namespace kalhost::qt::detail
