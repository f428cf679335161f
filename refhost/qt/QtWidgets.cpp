#include "refhost/qt/QtWidgets.h"

#include "refhost/qt/QtText.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>
#include <vector>

namespace kalhost::qt::detail {

void ModelDialog::reject()
{
    if (onReject)
        onReject();
    else
        QDialog::reject();
}

namespace {

// Items as wide as the list: a longer name is elided, never scrolled to.
// The list lays its items out with the first item's size (uniform sizes,
// for lists of many thousand variables), so every item must ask for the
// same width. Icons come from the list, not from each item.
class ListItemDelegate final : public QStyledItemDelegate {
public:
    explicit ListItemDelegate(VariableListWidget* list) : QStyledItemDelegate(list), m_list(list) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QSize size = QStyledItemDelegate::sizeHint(option, index);
        size.setWidth(std::max(1, m_list->viewport()->width()));
        // An icon makes a row no taller than a line of text.
        if (m_list->itemIcon)
            size.setHeight(std::min(size.height(), m_list->fontMetrics().height()));
        return size;
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (!m_list->itemIcon)
            return;
        const QIcon icon = m_list->itemIcon(index.row());
        if (icon.isNull())
            return;
        // No taller than the text, so that the icons cost no rows.
        const int extent = std::min(m_list->style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, m_list),
                                    m_list->fontMetrics().height() - 2);
        option->icon = icon;
        option->decorationSize = QSize(extent, extent);
        option->features |= QStyleOptionViewItem::HasDecoration;
    }

private:
    VariableListWidget* m_list;
};

} // namespace

VariableListWidget::VariableListWidget(QWidget* parent) : QListWidget(parent)
{
    // Qt's drag detection (a press on the selection, then a move beyond the
    // drag distance) ends in startDrag, which runs the model's drag instead
    // of a QDrag.
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragOnly);
    setItemDelegate(new ListItemDelegate(this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideMiddle);
    setResizeMode(QListView::Adjust);
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

bool VariableListWidget::event(QEvent* event)
{
    const bool handled = QListWidget::event(event);
    // The frame itself is drawn here (the items go to the viewport): with
    // the focus it is drawn in the highlight colour, as line edits and
    // combo boxes show theirs, so that an empty list shows it too.
    if (event->type() == QEvent::Paint && hasFocus()) {
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        painter.drawRect(rect().adjusted(1, 1, -2, -2));
    }
    return handled;
}

bool VariableListWidget::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && itemTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        if (QListWidgetItem* item = itemAt(help->pos())) {
            const QString tip = itemTip(row(item));
            if (!tip.isEmpty()) {
                QToolTip::showText(help->globalPos(), tip, viewport(), visualItemRect(item));
                return true;
            }
        }
    }
    return QListWidget::viewportEvent(event);
}

void VariableListWidget::focusInEvent(QFocusEvent* event)
{
    QListWidget::focusInEvent(event);
    update();
}

void VariableListWidget::focusOutEvent(QFocusEvent* event)
{
    QListWidget::focusOutEvent(event);
    update();
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

QIcon VariableKindIcon(kal::framework::VariableKind kind)
{
    using kal::framework::VariableKind;
    // Drawn at twice the size for sharp pictures on high-density screens;
    // the list scales them to its icon size.
    const auto draw = [](VariableKind k) {
        QPixmap pixmap(32, 32);
        pixmap.fill(Qt::transparent);
        QPainter p(&pixmap);
        p.setRenderHint(QPainter::Antialiasing);
        switch (k) {
        case VariableKind::Numeric: {
            // A ruler: a yellow bar with graduation marks.
            p.setPen(QPen(QColor(0x8a, 0x6d, 0x00), 2));
            p.setBrush(QColor(0xf5, 0xc5, 0x18));
            p.drawRoundedRect(QRectF(2, 9, 28, 14), 2, 2);
            for (int x = 7; x <= 25; x += 6)
                p.drawLine(QPointF(x, 10), QPointF(x, x == 13 || x == 19 ? 18 : 15));
            break;
        }
        case VariableKind::String: {
            // "a" on a light plate.
            p.setPen(QPen(QColor(0x5b, 0x5b, 0x5b), 2));
            p.setBrush(QColor(0xf2, 0xf2, 0xf2));
            p.drawRoundedRect(QRectF(2, 3, 28, 26), 4, 4);
            QFont font = QApplication::font();
            font.setPixelSize(22);
            font.setBold(true);
            p.setFont(font);
            p.setPen(QColor(0x1f, 0x4e, 0x99));
            p.drawText(QRectF(2, 1, 28, 26), Qt::AlignCenter, QStringLiteral("a"));
            break;
        }
        case VariableKind::Categorical: {
            // Three dots of different colours: values that are categories.
            const QColor colours[] = {QColor(0xd6, 0x3a, 0x2f), QColor(0x2f, 0x8f, 0x3a), QColor(0x2f, 0x5f, 0xd6)};
            const QPointF centres[] = {QPointF(9, 22), QPointF(23, 22), QPointF(16, 9)};
            p.setPen(QPen(QColor(0x40, 0x40, 0x40), 1.5));
            for (int i = 0; i < 3; ++i) {
                p.setBrush(colours[i]);
                p.drawEllipse(centres[i], 6.5, 6.5);
            }
            break;
        }
        case VariableKind::Unknown: break;
        }
        p.end();
        return QIcon(pixmap);
    };
    static const QIcon icons[] = {draw(VariableKind::Unknown), draw(VariableKind::Numeric), draw(VariableKind::String),
                                  draw(VariableKind::Categorical)};
    return icons[static_cast<int>(kind)];
}

QIcon UnavailableIcon()
{
    static const QIcon icon = [] {
        QPixmap pixmap(32, 32);
        pixmap.fill(Qt::transparent);
        QPainter p(&pixmap);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(QPen(QColor(0x80, 0x80, 0x80), 4));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(QRectF(4, 4, 24, 24));
        p.drawLine(QPointF(8.5, 23.5), QPointF(23.5, 8.5));
        p.end();
        // Shown on a disabled tab as drawn, not paled once more.
        QIcon drawn(pixmap);
        drawn.addPixmap(pixmap, QIcon::Disabled);
        return drawn;
    }();
    return icon;
}

namespace {

// One tab of a tab bar, for readers; it lives as long as its bar's
// interface.
class TabAccessible final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    TabAccessible(QTabBar* bar, int index) : m_bar(bar), m_index(index) {}

    bool isValid() const override { return m_bar && m_index < m_bar->count(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_bar ? m_bar->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_bar.data()); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* focusChild() const override { return nullptr; }
    void setText(QAccessible::Text, const QString&) override {}
    QAccessible::Role role() const override { return QAccessible::PageTab; }

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid())
            return {};
        if (kind == QAccessible::Name)
            return WithoutMnemonic(m_bar->tabText(m_index));
        return kind == QAccessible::Description ? m_bar->tabToolTip(m_index) : QString();
    }

    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect tab = m_bar->tabRect(m_index);
        return QRect(m_bar->mapToGlobal(tab.topLeft()), tab.size());
    }

    QAccessible::State state() const override
    {
        QAccessible::State s;
        if (!isValid()) {
            s.invalid = true;
            return s;
        }
        s.disabled = !m_bar->isEnabled() || !m_bar->isTabEnabled(m_index);
        s.invisible = !m_bar->isVisible() || !m_bar->isTabVisible(m_index);
        s.selectable = !s.disabled;
        s.selected = m_index == m_bar->currentIndex();
        s.focused = s.selected && m_bar->hasFocus();
        return s;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
    void doAction(const QString& name) override
    {
        if (name == pressAction() && isValid() && m_bar->isTabEnabled(m_index))
            m_bar->setCurrentIndex(m_index);
    }

private:
    QPointer<QTabBar> m_bar;
    int m_index;
};

class TabBarAccessible final : public QAccessibleWidget {
public:
    explicit TabBarAccessible(QTabBar* bar) : QAccessibleWidget(bar, QAccessible::PageTabList) {}
    ~TabBarAccessible() override
    {
        for (const QAccessible::Id id : m_tabs)
            QAccessible::deleteAccessibleInterface(id);
    }
    TabBarAccessible(const TabBarAccessible&) = delete;
    TabBarAccessible& operator=(const TabBarAccessible&) = delete;

    int childCount() const override { return Bar()->count(); }
    QAccessibleInterface* child(int index) const override
    {
        if (index < 0 || index >= Bar()->count())
            return nullptr;
        while (m_tabs.size() <= static_cast<std::size_t>(index))
            m_tabs.push_back(
                QAccessible::registerAccessibleInterface(new TabAccessible(Bar(), static_cast<int>(m_tabs.size()))));
        return QAccessible::accessibleInterface(m_tabs[static_cast<std::size_t>(index)]);
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        for (std::size_t i = 0; i < m_tabs.size(); ++i)
            if (QAccessible::accessibleInterface(m_tabs[i]) == child)
                return static_cast<int>(i);
        return -1;
    }
    QAccessibleInterface* focusChild() const override
    {
        return Bar()->hasFocus() ? child(Bar()->currentIndex()) : nullptr;
    }

private:
    QTabBar* Bar() const { return static_cast<QTabBar*>(widget()); }

    mutable std::vector<QAccessible::Id> m_tabs;
};

QAccessibleInterface* TabBarFactory(const QString& className, QObject* object)
{
    if (className == QLatin1String("QTabBar") && qobject_cast<QTabBar*>(object))
        return new TabBarAccessible(static_cast<QTabBar*>(object));
    return nullptr;
}

} // namespace

void InstallTabAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(&TabBarFactory);
        return true;
    }();
    (void)installed;
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
