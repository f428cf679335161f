// The views of the model's control kinds: each makes its widget, copies the
// model's state into it and turns its signals into CUserInput calls.
#include "framework/FileEditCtrl.h"
#include "framework/GUIListCtrl.h"
#include "framework/VariableKind.h"
#include "platform/UserInput.h"
#include "refhost/qt/QtDialogRun.h"
#include "refhost/qt/QtText.h"
#include "refhost/qt/QtWidgets.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QStringList>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolButton>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace kalhost::qt::detail {

namespace {

constexpr WndAspect kAllAspects[] = {WndAspect::Text,    WndAspect::Items,   WndAspect::Selection,
                                     WndAspect::Check,   WndAspect::Cells,   WndAspect::Pages,
                                     WndAspect::Enabled, WndAspect::Visible, WndAspect::ToolTip};

DWORD StyleOf(const CWnd& wnd)
{
    return wnd.GetTemplate() ? wnd.GetTemplate()->style : DWORD{WS_TABSTOP};
}

// --- Buttons ----------------------------------------------------------------------

QWidget* MakeButtonWidget(ControlKind kind, QWidget* container)
{
    switch (kind) {
    case ControlKind::CheckBox: return new QCheckBox(container);
    case ControlKind::RadioButton: return new QRadioButton(container);
    case ControlKind::GroupBox: return new QGroupBox(container);
    default: break;
    }
    return new QPushButton(container);
}

// Push button, check box, radio button and group box.
class ButtonView final : public WindowView {
public:
    ButtonView(DialogRun& run, CWnd& wnd, QWidget* container)
        : WindowView(run, wnd, MakeButtonWidget(wnd.GetKind(), container))
    {
        if (auto* push = qobject_cast<QPushButton*>(m_widget))
            push->setDefault((StyleOf(wnd) & BS_DEFPUSHBUTTON) != 0);
        if (auto* button = qobject_cast<QAbstractButton*>(m_widget)) {
            // Radio buttons are grouped as the model groups them (see
            // ConnectSiblings), not by Qt's sibling-based exclusivity; after
            // a click the widget shows what the model made of it.
            button->setAutoExclusive(false);
            QObject::connect(button, &QAbstractButton::clicked, button,
                             [this] { m_run.Input(this, [this] { return CUserInput::Click(*m_wnd); }); });
        }
    }

    void Resync() override { Apply(WndAspect::Check); }

protected:
    void Apply(WndAspect aspect) override
    {
        switch (aspect) {
        case WndAspect::Text:
            if (auto* box = qobject_cast<QGroupBox*>(m_widget))
                box->setTitle(ToQt(m_wnd->GetWindowText()));
            else if (auto* button = qobject_cast<QAbstractButton*>(m_widget))
                button->setText(ToQt(m_wnd->GetWindowText()));
            break;
        case WndAspect::Check: ApplyCheck(); break;
        default: WindowView::Apply(aspect); break;
        }
    }

private:
    void ApplyCheck()
    {
        auto* button = qobject_cast<QAbstractButton*>(m_widget);
        auto* model = dynamic_cast<CButton*>(m_wnd);
        if (!button || !button->isCheckable() || !model)
            return;
        const bool checked = model->GetCheck() != BST_UNCHECKED;
        if (button->isChecked() == checked)
            return;
        // An exclusive group refuses to uncheck its checked button; the
        // model may leave a group with none checked.
        QButtonGroup* group = button->group();
        if (!checked && group && group->exclusive()) {
            group->setExclusive(false);
            button->setChecked(false);
            group->setExclusive(true);
        } else {
            button->setChecked(checked);
        }
    }
};

// --- Static text ------------------------------------------------------------------

class LabelView final : public WindowView {
public:
    LabelView(DialogRun& run, CWnd& wnd, QWidget* container) : WindowView(run, wnd, new QLabel(container))
    {
        auto* label = static_cast<QLabel*>(m_widget);
        const DWORD style = StyleOf(wnd);
        const bool severalLines = wnd.GetTemplate() && wnd.GetTemplate()->cy >= 16;
        label->setWordWrap(severalLines);
        label->setAlignment(((style & SS_RIGHT) ? Qt::AlignRight : Qt::AlignLeft) |
                            (severalLines ? Qt::AlignTop : Qt::AlignVCenter));
    }

    // The control the label's mnemonic focuses.
    void SetBuddy(QWidget* buddy)
    {
        static_cast<QLabel*>(m_widget)->setBuddy(buddy);
        m_hasBuddy = buddy != nullptr;
        DialogRun::SyncScope sync(m_run);
        Apply(WndAspect::Text);
    }

protected:
    void Apply(WndAspect aspect) override
    {
        if (aspect != WndAspect::Text) {
            WindowView::Apply(aspect);
            return;
        }
        const QString text = ToQt(m_wnd->GetWindowText());
        static_cast<QLabel*>(m_widget)->setText(m_hasBuddy ? text : WithoutMnemonic(text));
    }

private:
    bool m_hasBuddy = false;
};

// --- Edits ------------------------------------------------------------------------

// What edit fields share: the model's text in a QLineEdit, typing sent
// back as the new text.
class LineEditBehaviour {
protected:
    static void Connect(WindowView* view, QLineEdit* edit)
    {
        QObject::connect(edit, &QLineEdit::textEdited, edit, [view](const QString& text) {
            view->Run().Input(view, [view, text] { return CUserInput::TypeText(view->Wnd(), FromQt(text)); });
        });
    }
    static void ShowText(const CWnd& wnd, QLineEdit* edit)
    {
        const QString text = ToQt(wnd.GetWindowText());
        // Setting the same text would move the caret away from where the
        // user types.
        if (edit->text() != text)
            edit->setText(text);
    }
};

class EditView final : public WindowView, LineEditBehaviour {
public:
    EditView(DialogRun& run, CWnd& wnd, QWidget* container) : WindowView(run, wnd, new QLineEdit(container))
    {
        auto* edit = static_cast<QLineEdit*>(m_widget);
        edit->setReadOnly((StyleOf(wnd) & ES_READONLY) != 0);
        Connect(this, edit);
    }

    void Resync() override { ShowText(*m_wnd, static_cast<QLineEdit*>(m_widget)); }

protected:
    void Apply(WndAspect aspect) override
    {
        if (aspect == WndAspect::Text)
            ShowText(*m_wnd, static_cast<QLineEdit*>(m_widget));
        else
            WindowView::Apply(aspect);
    }
};

// "Text files (*.txt)|*.txt|All files (*.*)|*.*||" or a Qt filter as it is;
// with neither, the default extension's files and all files.
QString FileFilter(const CFileEditCtrl* file)
{
    QString filter = file ? ToQt(file->GetFilter()) : QString();
    if (filter.contains(u'|')) {
        const QStringList parts = filter.split(u'|', Qt::SkipEmptyParts);
        QStringList filters;
        for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
            QString patterns = parts[i + 1];
            patterns.replace(u';', u' ');
            filters << (parts[i].contains(u'(') ? parts[i] : parts[i] + QStringLiteral(" (") + patterns + u')');
        }
        return filters.join(QStringLiteral(";;"));
    }
    if (!filter.isEmpty())
        return filter;
    QString extension = file ? ToQt(file->GetDefaultExtension()) : QString();
    if (extension.startsWith(u'.'))
        extension.remove(0, 1);
    if (extension.isEmpty())
        return QStringLiteral("All files (*)");
    return QStringLiteral("%1 files (*.%2);;All files (*)").arg(extension.toUpper(), extension);
}

class FileEditView final : public WindowView, LineEditBehaviour {
public:
    FileEditView(DialogRun& run, CWnd& wnd, QWidget* container) : WindowView(run, wnd, new FileEditWidget(container))
    {
        auto* widget = static_cast<FileEditWidget*>(m_widget);
        widget->Edit()->setReadOnly((StyleOf(wnd) & ES_READONLY) != 0);
        Connect(this, widget->Edit());
        QObject::connect(widget->Browse(), &QToolButton::clicked, widget, [this] { Browse(); });
    }

    QWidget* FocusWidget() const override { return static_cast<FileEditWidget*>(m_widget)->Edit(); }
    void NameAttachments(const QString& name) override
    {
        static_cast<FileEditWidget*>(m_widget)->Browse()->setAccessibleName(QStringLiteral("Choose a file: ") + name);
    }
    void Resync() override { ShowText(*m_wnd, static_cast<FileEditWidget*>(m_widget)->Edit()); }

protected:
    void Apply(WndAspect aspect) override
    {
        if (aspect == WndAspect::Text)
            ShowText(*m_wnd, static_cast<FileEditWidget*>(m_widget)->Edit());
        else
            WindowView::Apply(aspect);
    }

private:
    void Browse()
    {
        if (m_run.Syncing() || !CUserInput::IsReachable(*m_wnd))
            return;
        const auto* file = dynamic_cast<const CFileEditCtrl*>(m_wnd);
        const QString current = ToQt(m_wnd->GetWindowText());
        const QString filter = FileFilter(file);
        QString picked;
        if (!file || file->IsSaveDialog()) {
            const QFileDialog::Options options =
                file && !file->PromptsOverwrite() ? QFileDialog::DontConfirmOverwrite : QFileDialog::Options();
            picked =
                QFileDialog::getSaveFileName(m_widget, QStringLiteral("Save As"), current, filter, nullptr, options);
        } else {
            picked = QFileDialog::getOpenFileName(m_widget, QStringLiteral("Open"), current, filter);
        }
        if (picked.isEmpty())
            return;
        CString name = FromQt(picked);
        if (file)
            name = file->WithDefaultExtension(name);
        m_run.Input(this, [this, &name] { return CUserInput::TypeText(*m_wnd, name); });
    }
};

// --- Combo box --------------------------------------------------------------------

class ComboView final : public WindowView {
public:
    ComboView(DialogRun& run, CWnd& wnd, QWidget* container) : WindowView(run, wnd, new QComboBox(container))
    {
        auto* combo = static_cast<QComboBox*>(m_widget);
        // activated comes from the user only, not from setCurrentIndex.
        QObject::connect(combo, &QComboBox::activated, combo, [this](int index) {
            m_run.Input(this, [this, index] {
                auto* model = dynamic_cast<CComboBox*>(m_wnd);
                return model && CUserInput::ChooseItem(*model, index);
            });
        });
    }

    void Resync() override { Apply(WndAspect::Selection); }

protected:
    void Apply(WndAspect aspect) override
    {
        auto* combo = static_cast<QComboBox*>(m_widget);
        auto* model = dynamic_cast<CComboBox*>(m_wnd);
        if (!model) {
            WindowView::Apply(aspect);
            return;
        }
        switch (aspect) {
        case WndAspect::Items: {
            QStringList texts;
            for (const CString& item : model->Items())
                texts << ToQt(item);
            combo->clear();
            combo->addItems(texts);
            combo->setCurrentIndex(model->GetCurSel());
            break;
        }
        case WndAspect::Selection:
            if (combo->currentIndex() != model->GetCurSel())
                combo->setCurrentIndex(model->GetCurSel());
            break;
        default: WindowView::Apply(aspect); break;
        }
    }
};

// --- List -------------------------------------------------------------------------

// The widget's rows are the model's shown items (see CListCtrl::SetFilter);
// a source list has a filter field above it.
class ListView final : public WindowView {
public:
    ListView(DialogRun& run, CWnd& wnd, QWidget* container) : WindowView(run, wnd, new VariableListWidget(container))
    {
        auto* list = static_cast<VariableListWidget*>(m_widget);
        list->setSelectionMode((StyleOf(wnd) & LVS_SINGLESEL) ? QAbstractItemView::SingleSelection
                                                              : QAbstractItemView::ExtendedSelection);
        list->setUniformItemSizes(true);
        list->setContextMenuPolicy(Qt::CustomContextMenu);
        if (const auto* variables = dynamic_cast<const CGUIListCtrl*>(&wnd); variables && variables->IsSourceList())
            AddFilterField(container);

        QObject::connect(list, &QListWidget::itemSelectionChanged, list, [this] {
            if (m_run.Syncing() || m_itemsDirty)
                return;
            const std::vector<int> rows = WidgetSelection();
            m_run.Input(this, [this, &rows] { return Model() && CUserInput::SelectItems(*Model(), rows); });
        });
        QObject::connect(list, &QWidget::customContextMenuRequested, list, [this, list](const QPoint& pos) {
            if (m_run.Syncing())
                return;
            m_run.SetMenuPosition(list->viewport()->mapToGlobal(pos));
            m_run.Input(this, [this] { return CUserInput::ContextMenu(*m_wnd); });
        });
        list->onDoubleClick = [this] {
            m_run.Input(this, [this] { return Model() && CUserInput::DoubleClick(*Model()); });
        };
        list->onDragStart = [this] {
            return m_run.Input(this, [this] { return Model() && CUserInput::BeginDrag(*Model()); });
        };
        list->itemIcon = [this](int row) {
            const int item = ItemOfRow(row);
            return item >= 0 ? VariableKindIcon(m_kinds[static_cast<std::size_t>(item)]) : QIcon();
        };
        list->itemTip = [this, list](int row) {
            const QString kind = KindText(row);
            const QString name = list->item(row)->text();
            return kind.isEmpty() ? name : name + QStringLiteral(" \u2014 ") + kind;
        };
        list->onDragMove = [this](const QPoint& global) { DragTo(global, false); };
        list->onDrop = [this](const QPoint& global) { DragTo(global, true); };
        list->onDragCancel = [this] {
            m_run.Input(this, [this] {
                if (Model())
                    CUserInput::Drop(*Model(), m_wnd);
                return true;
            });
        };
    }

    void Resync() override
    {
        if (m_itemsDirty)
            Flush();
        else
            ApplySelection();
    }

    void Flush() override
    {
        if (!m_itemsDirty || !Model())
            return;
        auto* list = static_cast<QListWidget*>(m_widget);
        m_rows = Model()->GetShownItems();
        QStringList texts;
        texts.reserve(static_cast<qsizetype>(m_rows.size()));
        for (const int item : m_rows)
            texts << ToQt(Model()->GetItemText(item));
        list->clear();
        list->addItems(texts);
        // Variable lists mark each variable's kind, for the eye by an icon
        // and for readers by the item's description.
        if (const auto* variables = dynamic_cast<const CGUIListCtrl*>(Model()))
            m_kinds = kal::framework::VariableKindsOf(*variables);
        else
            m_kinds.clear();
        if (!m_kinds.empty())
            for (int row = 0; row < list->count(); ++row)
                list->item(row)->setData(Qt::AccessibleDescriptionRole, KindText(row));
        if (m_filter && m_filter->text() != ToQt(Model()->GetFilter()))
            m_filter->setText(ToQt(Model()->GetFilter()));
        m_itemsDirty = false;
        ApplySelection();
    }

    void Place(const QRect& rect) override
    {
        if (!m_filter) {
            WindowView::Place(rect);
            return;
        }
        const int filterHeight = m_filter->sizeHint().height();
        m_filter->setGeometry(rect.left(), rect.top(), rect.width(), filterHeight);
        m_widget->setGeometry(rect.adjusted(0, filterHeight + 2, 0, 0));
    }

    void NameAttachments(const QString& name) override
    {
        if (m_filter)
            m_filter->setAccessibleName(QStringLiteral("Filter ") + name);
    }

protected:
    void Apply(WndAspect aspect) override
    {
        switch (aspect) {
        case WndAspect::Items:
            // Lists change an item at a time; the widget is rebuilt once the
            // model is done.
            m_itemsDirty = true;
            m_run.Defer(*this);
            break;
        case WndAspect::Selection:
            if (!m_itemsDirty)
                ApplySelection();
            break;
        case WndAspect::Enabled:
        case WndAspect::Visible:
            WindowView::Apply(aspect);
            if (m_filter) {
                m_filter->setEnabled(m_widget->isEnabled());
                m_filter->setHidden(m_widget->isHidden());
            }
            break;
        default: WindowView::Apply(aspect); break;
        }
    }

private:
    CListCtrl* Model() const { return dynamic_cast<CListCtrl*>(m_wnd); }

    // Typing narrows the list at once; the model keeps the words typed.
    void AddFilterField(QWidget* container)
    {
        m_filter = new QLineEdit(container);
        m_filter->setObjectName(QStringLiteral("filter%1").arg(m_wnd->GetDlgCtrlID()));
        m_filter->setPlaceholderText(QStringLiteral("Filter"));
        m_filter->setToolTip(QStringLiteral("Shows only the variables whose names hold this text, in any case"));
        m_filter->setClearButtonEnabled(true);
        // Before the list in the Tab order, right after the list's label.
        QWidget::setTabOrder(m_filter, m_widget);
        QObject::connect(m_filter, &QLineEdit::textChanged, m_filter, [this](const QString& text) {
            m_run.Input(this, [this, &text] { return Model() && CUserInput::FilterItems(*Model(), FromQt(text)); });
        });
    }

    // The model's item shown in widget row `row`, or -1.
    int ItemOfRow(int row) const
    {
        if (row < 0 || static_cast<std::size_t>(row) >= m_rows.size())
            return -1;
        const int item = m_rows[static_cast<std::size_t>(row)];
        return static_cast<std::size_t>(item) < m_kinds.size() ? item : -1;
    }

    QString KindText(int row) const
    {
        const int item = ItemOfRow(row);
        return item >= 0 ? ToQt(kal::framework::VariableKindText(m_kinds[static_cast<std::size_t>(item)])) : QString();
    }

    // The model's items selected in the widget.
    std::vector<int> WidgetSelection() const
    {
        std::vector<int> items;
        for (const QModelIndex& index : static_cast<QListWidget*>(m_widget)->selectionModel()->selectedIndexes())
            if (index.row() >= 0 && static_cast<std::size_t>(index.row()) < m_rows.size())
                items.push_back(m_rows[static_cast<std::size_t>(index.row())]);
        std::sort(items.begin(), items.end());
        return items;
    }

    void ApplySelection()
    {
        auto* list = static_cast<QListWidget*>(m_widget);
        if (!Model() || static_cast<std::size_t>(list->count()) != m_rows.size())
            return;
        const std::vector<int> wanted = Model()->GetSelectedItems();
        if (wanted == WidgetSelection())
            return;
        // m_rows ascends, so each selected item's row is found by halving;
        // consecutive rows then go into the selection as one range.
        std::vector<int> rows;
        rows.reserve(wanted.size());
        for (const int item : wanted)
            if (const auto it = std::lower_bound(m_rows.begin(), m_rows.end(), item); it != m_rows.end() && *it == item)
                rows.push_back(static_cast<int>(it - m_rows.begin()));
        QItemSelection selection;
        for (std::size_t i = 0; i < rows.size();) {
            std::size_t j = i;
            while (j + 1 < rows.size() && rows[j + 1] == rows[j] + 1)
                ++j;
            selection.select(list->model()->index(rows[i], 0), list->model()->index(rows[j], 0));
            i = j + 1;
        }
        DialogRun::SyncScope sync(m_run);
        list->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    }

    void DragTo(const QPoint& global, bool drop)
    {
        CWnd* over = m_run.WindowAt(global);
        m_run.Input(this, [this, over, drop] {
            if (!Model())
                return false;
            if (drop)
                CUserInput::Drop(*Model(), over);
            else
                CUserInput::DragOver(*Model(), over);
            return true;
        });
        if (!drop)
            static_cast<VariableListWidget*>(m_widget)->ShowDragCursor(GetCursor());
    }

    bool m_itemsDirty = false;
    std::vector<int> m_rows; // the model's item in each widget row
    std::vector<kal::framework::VariableKind> m_kinds;
    QLineEdit* m_filter = nullptr;
};

// --- Tab control ------------------------------------------------------------------

class TabView final : public WindowView {
public:
    TabView(DialogRun& run, CWnd& wnd, QWidget* container) : WindowView(run, wnd, new QTabWidget(container))
    {
        auto* tabs = static_cast<QTabWidget*>(m_widget);
        InstallTabAccessibility();
        // The icon of an unavailable page fits the tab's text line, so that
        // the tabs keep their height when one becomes unavailable.
        const int extent = tabs->fontMetrics().height() - 3;
        tabs->setIconSize(QSize(extent, extent));
        QObject::connect(tabs, &QTabWidget::currentChanged, tabs, [this](int index) {
            m_run.Input(this, [this, index] {
                auto* model = dynamic_cast<CTabCtrl*>(m_wnd);
                return model && CUserInput::SelectTab(*model, index);
            });
        });
        // The page keys work wherever the focus is in the dialog, OK and
        // Cancel included, not only inside the tab widget.
        const std::pair<QKeySequence, int> pageKeys[] = {{QKeySequence(Qt::CTRL | Qt::Key_Tab), 1},
                                                         {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), -1},
                                                         {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab), -1},
                                                         {QKeySequence(Qt::CTRL | Qt::Key_PageDown), 1},
                                                         {QKeySequence(Qt::CTRL | Qt::Key_PageUp), -1}};
        for (const auto& [keys, step] : pageKeys) {
            auto* shortcut =
                new QShortcut(keys, m_run.Window().isAncestorOf(tabs) ? static_cast<QWidget*>(&m_run.Window()) : tabs);
            shortcut->setContext(Qt::WindowShortcut);
            QObject::connect(shortcut, &QShortcut::activated, tabs, [this, step = step] { StepPage(step); });
        }
    }

    void Resync() override { Apply(WndAspect::Selection); }

    // The next (or previous) available page, and the focus into it: to its
    // first control Tab reaches, or to the tabs when it has none to offer.
    void StepPage(int step)
    {
        auto* tabs = static_cast<QTabWidget*>(m_widget);
        const int count = tabs->count();
        if (m_run.Syncing() || count == 0 || !tabs->isEnabled())
            return;
        int index = tabs->currentIndex();
        for (int tried = 0; tried < count; ++tried) {
            index = (index + step + count) % count;
            if (tabs->isTabEnabled(index))
                break;
        }
        tabs->setCurrentIndex(index);
        QWidget* page = tabs->currentWidget();
        for (QWidget* next = page ? page->nextInFocusChain() : nullptr; next && next != page;
             next = next->nextInFocusChain()) {
            if (!page->isAncestorOf(next))
                break;
            if ((next->focusPolicy() & Qt::TabFocus) && next->isEnabled() && next->isVisibleTo(page)) {
                next->setFocus(Qt::TabFocusReason);
                return;
            }
        }
        tabs->tabBar()->setFocus(Qt::TabFocusReason);
    }

protected:
    void Apply(WndAspect aspect) override
    {
        auto* tabs = static_cast<QTabWidget*>(m_widget);
        auto* model = dynamic_cast<CTabCtrl*>(m_wnd);
        if (!model) {
            WindowView::Apply(aspect);
            return;
        }
        switch (aspect) {
        case WndAspect::Pages:
            // Pages are only ever added; each gets its widgets once.
            for (int i = tabs->count(); i < model->GetItemCount(); ++i) {
                auto* page = dynamic_cast<CDialog*>(model->GetItemPage(i));
                QWidget* widget = page && page->GetDialogTemplate() ? m_run.BuildPage(*page) : new QWidget;
                tabs->addTab(widget, ToQt(model->GetItemText(i)));
            }
            for (int i = 0; i < model->GetItemCount(); ++i) {
                tabs->setTabText(i, ToQt(model->GetItemText(i)));
                // The tab alone: the page widget keeps the enable state of
                // its model page. An unavailable tab is greyed, struck
                // through, and tells why in its tool tip.
                const bool available = model->IsItemAvailable(i);
                tabs->tabBar()->setTabEnabled(i, available);
                tabs->setTabIcon(i, available ? QIcon() : UnavailableIcon());
                tabs->setTabToolTip(i, ToQt(model->GetItemReason(i)));
            }
            Apply(WndAspect::Selection);
            break;
        case WndAspect::Selection:
            if (model->GetCurSel() >= 0 && model->GetCurSel() < tabs->count() &&
                tabs->currentIndex() != model->GetCurSel())
                tabs->setCurrentIndex(model->GetCurSel());
            break;
        default: WindowView::Apply(aspect); break;
        }
    }
};

// --- Grid -------------------------------------------------------------------------

// Row 0 of the model is the header; the widget's rows are the data rows and
// one empty row after them, where typing adds a row.
class GridView final : public WindowView {
public:
    GridView(DialogRun& run, CWnd& wnd, QWidget* container) : WindowView(run, wnd, new QTableWidget(container))
    {
        auto* table = static_cast<QTableWidget*>(m_widget);
        table->verticalHeader()->hide();
        table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
        table->horizontalHeader()->setStretchLastSection(true);
        table->setSelectionMode(QAbstractItemView::SingleSelection);
        // Arrows walk the cells; Tab and Shift+Tab leave the grid, as they
        // leave every other control.
        table->setTabKeyNavigation(false);
        table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                               QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
        QObject::connect(table, &QTableWidget::itemChanged, table, [this](QTableWidgetItem* item) {
            const int row = item->row() + 1;
            const int column = item->column();
            const CString text = FromQt(item->text());
            m_run.Input(this, [this, row, column, &text] {
                auto* model = dynamic_cast<CGridCtrl*>(m_wnd);
                return model && CUserInput::EditCell(*model, row, column, text);
            });
        });
        // The row of the current cell is where the row buttons act.
        QObject::connect(table, &QTableWidget::currentCellChanged, table, [this](int row) {
            if (auto* model = dynamic_cast<CGridCtrl*>(m_wnd); model && !m_run.Syncing())
                model->SetFocusRow(row + 1);
        });
    }

    void Resync() override { Apply(WndAspect::Cells); }

protected:
    void Apply(WndAspect aspect) override
    {
        if (aspect == WndAspect::Cells)
            ShowCells();
        else
            WindowView::Apply(aspect);
    }

private:
    // Updated in place: an edit that adds a row arrives while Qt is still
    // in the edited item's change signal.
    void ShowCells()
    {
        auto* table = static_cast<QTableWidget*>(m_widget);
        auto* model = dynamic_cast<CGridCtrl*>(m_wnd);
        if (!model)
            return;
        const int columns = model->GetColumnCount();
        const int dataRows = std::max(0, model->GetRowCount() - 1);
        table->setColumnCount(columns);
        table->setRowCount(columns > 0 ? dataRows + 1 : 0);
        QStringList headers;
        for (int c = 0; c < columns; ++c) {
            headers << ToQt(model->GetItemText(0, c));
            table->setColumnWidth(c, m_run.ScaleX(model->GetColumnWidth(c)));
        }
        table->setHorizontalHeaderLabels(headers);
        for (int r = 0; r <= dataRows && columns > 0; ++r)
            for (int c = 0; c < columns; ++c)
                SetCell(r, c, r < dataRows ? ToQt(model->GetItemText(r + 1, c)) : QString());
    }

    void SetCell(int row, int column, const QString& text)
    {
        auto* table = static_cast<QTableWidget*>(m_widget);
        QTableWidgetItem* item = table->item(row, column);
        if (!item) {
            item = new QTableWidgetItem;
            table->setItem(row, column, item);
        }
        const Qt::ItemFlags flags =
            column == 0 ? Qt::ItemIsEnabled : Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
        if (item->flags() != flags)
            item->setFlags(flags);
        if (item->text() != text)
            item->setText(text);
    }
};

// --- Dialogs ----------------------------------------------------------------------

// The top window (its title) or a tab page (its enable state; the tab
// widget shows the current page).
class DialogView final : public WindowView {
public:
    DialogView(DialogRun& run, CDialog& dialog, QWidget* widget, bool top) : WindowView(run, dialog, widget), m_top(top)
    {
    }

protected:
    void Apply(WndAspect aspect) override
    {
        switch (aspect) {
        case WndAspect::Text:
            if (m_top)
                m_widget->setWindowTitle(ToQt(m_wnd->GetWindowText()));
            break;
        case WndAspect::Enabled:
            if (!m_top)
                m_widget->setEnabled(m_wnd->IsWindowEnabled());
            break;
        case WndAspect::Visible: break;
        default: WindowView::Apply(aspect); break;
        }
    }

private:
    bool m_top;
};

// Single-line controls get at least their natural height, centred on the
// control's rectangle; a combo box's template height is its drop-down's.
QRect FitNaturalHeight(QRect rect, ControlKind kind, QWidget* widget)
{
    switch (kind) {
    case ControlKind::ComboBox: rect.setHeight(widget->sizeHint().height()); break;
    case ControlKind::PushButton:
    case ControlKind::CheckBox:
    case ControlKind::RadioButton:
    case ControlKind::Edit:
    case ControlKind::FileEdit:
        if (const int natural = widget->sizeHint().height(); natural > rect.height()) {
            rect.moveTop(rect.top() - (natural - rect.height()) / 2);
            rect.setHeight(natural);
        }
        break;
    default: break;
    }
    return rect;
}

} // namespace

std::unique_ptr<WindowView> MakeControlView(DialogRun& run, CWnd& control, QWidget* container)
{
    std::unique_ptr<WindowView> view;
    switch (control.GetKind()) {
    case ControlKind::PushButton:
    case ControlKind::CheckBox:
    case ControlKind::RadioButton:
    case ControlKind::GroupBox: view = std::make_unique<ButtonView>(run, control, container); break;
    case ControlKind::Static: view = std::make_unique<LabelView>(run, control, container); break;
    case ControlKind::Edit: view = std::make_unique<EditView>(run, control, container); break;
    case ControlKind::FileEdit: view = std::make_unique<FileEditView>(run, control, container); break;
    case ControlKind::ComboBox: view = std::make_unique<ComboView>(run, control, container); break;
    case ControlKind::List: view = std::make_unique<ListView>(run, control, container); break;
    case ControlKind::Tab: view = std::make_unique<TabView>(run, control, container); break;
    case ControlKind::Grid: view = std::make_unique<GridView>(run, control, container); break;
    }
    QWidget* widget = view->Widget();
    widget->setObjectName(QStringLiteral("ctl%1").arg(control.GetDlgCtrlID()));
    if (const ControlTemplate* t = control.GetTemplate())
        view->Place(run.Scale(t->x, t->y, t->cx, t->cy));
    // Template order is creation order, which is Qt's tab order; controls
    // without the tab-stop style take the focus by mouse only.
    for (QWidget* focus : {view->FocusWidget(), widget})
        if (focus->focusPolicy() != Qt::NoFocus && control.GetKind() != ControlKind::Tab)
            focus->setFocusPolicy((StyleOf(control) & WS_TABSTOP) ? Qt::StrongFocus : Qt::ClickFocus);
    return view;
}

std::unique_ptr<WindowView> MakeDialogView(DialogRun& run, CDialog& dialog, QWidget* widget, bool top)
{
    widget->setObjectName(QStringLiteral("dlg%1").arg(dialog.GetTemplateID()));
    return std::make_unique<DialogView>(run, dialog, widget, top);
}

void ConnectSiblings(DialogRun& run, CDialog& dialog)
{
    const std::vector<CWnd*>& children = dialog.GetChildren();
    // A static text that names no control (a hint) is no buddy and shows
    // '&' as it is.
    std::unordered_map<const CWnd*, QWidget*> buddies;
    for (CWnd* child : children) {
        WindowView* view = run.ViewOf(child);
        const CWnd* label = dialog.GetLabelOf(*child);
        if (!view || !label)
            continue;
        if (label->GetKind() == ControlKind::Static && !buddies.count(label))
            buddies[label] = view->FocusWidget();
        // Controls without a caption of their own are named by their label.
        const ControlKind kind = child->GetKind();
        if (kind == ControlKind::PushButton || kind == ControlKind::CheckBox || kind == ControlKind::RadioButton ||
            kind == ControlKind::GroupBox || kind == ControlKind::Static)
            continue;
        const QString name = ToQt(dialog.GetLabelText(*child));
        view->Widget()->setAccessibleName(name);
        view->FocusWidget()->setAccessibleName(name);
        view->NameAttachments(name);
    }
    for (CWnd* child : children)
        if (auto* label = dynamic_cast<LabelView*>(run.ViewOf(child))) {
            const auto buddy = buddies.find(child);
            label->SetBuddy(buddy == buddies.end() ? nullptr : buddy->second);
        }

    WindowView* dialogView = run.ViewOf(&dialog);
    std::unordered_set<const CWnd*> grouped;
    for (CWnd* child : children) {
        if (child->GetKind() != ControlKind::RadioButton || grouped.count(child))
            continue;
        auto* group = new QButtonGroup(dialogView ? dialogView->Widget() : nullptr);
        group->setExclusive(true);
        std::vector<WindowView*> views;
        for (CButton* radio : dialog.GetRadioGroup(child)) {
            grouped.insert(radio);
            if (WindowView* view = run.ViewOf(radio))
                if (auto* button = qobject_cast<QAbstractButton*>(view->Widget())) {
                    group->addButton(button);
                    // In a group the group alone decides what is checked;
                    // auto-exclusive, the button is also told to readers as
                    // a radio button, not a check box.
                    button->setAutoExclusive(true);
                    views.push_back(view);
                }
        }
        // Grouped, the buttons show the model's checks again.
        for (WindowView* view : views)
            view->Resync();
    }
}

// --- WindowView -------------------------------------------------------------------

WindowView::WindowView(DialogRun& run, CWnd& wnd, QWidget* widget) : m_run(run), m_wnd(&wnd), m_widget(widget) {}

WindowView::~WindowView()
{
    Detach();
}

void WindowView::Detach()
{
    if (m_wnd && m_wnd->GetView() == this)
        m_wnd->SetView(nullptr);
}

void WindowView::Refresh(CWnd& wnd, WndAspect aspect)
{
    if (&wnd != m_wnd) {
        m_run.Rebind(*this, m_wnd, &wnd);
        m_wnd = &wnd;
    }
    DialogRun::SyncScope sync(m_run);
    Apply(aspect);
}

void WindowView::SyncAll()
{
    DialogRun::SyncScope sync(m_run);
    for (const WndAspect aspect : kAllAspects)
        Apply(aspect);
}

void WindowView::Place(const QRect& rect)
{
    m_widget->setGeometry(FitNaturalHeight(rect, m_wnd->GetKind(), m_widget));
}

void WindowView::Apply(WndAspect aspect)
{
    switch (aspect) {
    case WndAspect::Enabled: m_widget->setEnabled(m_wnd->IsWindowEnabled()); break;
    case WndAspect::Visible: m_widget->setHidden(!m_wnd->IsWindowVisible()); break;
    case WndAspect::ToolTip: m_widget->setToolTip(ToQt(m_wnd->GetToolTipText())); break;
    case WndAspect::Invalidated: m_widget->update(); break;
    case WndAspect::Focus: FocusWidget()->setFocus(Qt::OtherFocusReason); break;
    default: break;
    }
}

} // namespace kalhost::qt::detail
