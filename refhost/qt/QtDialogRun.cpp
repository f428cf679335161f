#include "refhost/qt/QtDialogRun.h"

#include "platform/UserInput.h"
#include "refhost/qt/QtTemplateLayout.h"
#include "refhost/qt/QtWidgets.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QCursor>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QMetaObject>
#include <QPixmap>
#include <QSettings>
#include <QShortcut>

#include <cmath>
#include <map>

namespace kalhost::qt::detail {

DialogRun::DialogRun(CDialog& dialog, QWidget* parent)
    : m_dialog(dialog), m_window(std::make_unique<ModelDialog>(parent))
{
    m_window->onReject = [this] { OnReject(); };
    m_window->setSizeGripEnabled(true);
    auto* help = new QShortcut(QKeySequence::HelpContents, m_window.get());
    help->setContext(Qt::WindowShortcut);
    QObject::connect(help, &QShortcut::activated, m_window.get(), [this] { OnHelpKey(); });
    // Shift+F10 is the context-menu key of keyboards without a Menu key.
    auto* menuKey = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F10), m_window.get());
    menuKey->setContext(Qt::WindowShortcut);
    QObject::connect(menuKey, &QShortcut::activated, m_window.get(), [this] { OnContextMenuKey(); });

    // Dialog units: a quarter of the font's average character width and an
    // eighth of its height.
    const QFontMetrics metrics(m_window->font());
    const int alphabetWidth =
        metrics.horizontalAdvance(QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"));
    m_baseX = std::max(1, (alphabetWidth / 26 + 1) / 2);
    m_baseY = std::max(1, metrics.height());

    SyncScope sync(*this);
    Register(MakeDialogView(*this, dialog, m_window.get(), true));
    BuildControls(dialog, m_window.get());
    RestoreSize();
}

DialogRun::~DialogRun()
{
    // Whatever the widgets do while they go is not user input, and the
    // model stops telling views that are about to go.
    ++m_syncDepth;
    RememberSize();
    for (const auto& view : m_views)
        view->Detach();
    m_window.reset();
    m_views.clear();
}

void DialogRun::Register(std::unique_ptr<WindowView> view)
{
    WindowView* added = view.get();
    m_byWnd[&added->Wnd()] = added;
    m_byWidget[added->Widget()] = added;
    m_views.push_back(std::move(view));
    added->Wnd().SetView(added);
    added->SyncAll();
}

void DialogRun::Rebind(WindowView& view, CWnd* from, CWnd* to)
{
    if (const auto it = m_byWnd.find(from); it != m_byWnd.end() && it->second == &view)
        m_byWnd.erase(it);
    m_byWnd[to] = &view;
}

void DialogRun::BuildControls(CDialog& dialog, QWidget* container)
{
    const DialogTemplate* t = dialog.GetDialogTemplate();
    // A dialog grows from its template's size, never below it.
    auto* layout = t ? new TemplateLayout(container, Scale(0, 0, t->cx, t->cy).size(), ScaleX(12)) : nullptr;
    for (CWnd* child : dialog.GetChildren()) {
        const ControlTemplate* control = child->GetTemplate();
        if (!control)
            continue;
        // Registering a tab control builds its pages' views too.
        std::unique_ptr<WindowView> made = MakeControlView(*this, *child, container);
        WindowView* view = made.get();
        Register(std::move(made));
        if (layout)
            layout->AddControl(control->kind, Scale(control->x, control->y, control->cx, control->cy),
                               [view](const QRect& rect) { view->Place(rect); });
    }
    ConnectSiblings(*this, dialog);
}

namespace {

// Sizes the user gave dialogs, by dialog class (tab dialogs share their
// template), for the rest of the run; on a desktop they are kept in the
// user's settings for the next run too.
std::map<QString, QSize>& RememberedSizes()
{
    static std::map<QString, QSize> sizes;
    return sizes;
}

QString DialogKey(const CDialog& dialog)
{
    return QStringLiteral("%1-%2")
        .arg(QString::fromLatin1(dialog.GetRuntimeClass()->m_lpszClassName))
        .arg(dialog.GetTemplateID());
}

bool KeepsSizesBetweenRuns()
{
    return QGuiApplication::platformName() != QStringLiteral("offscreen");
}

QString SizeKey(const QString& dialog)
{
    return QStringLiteral("dialogs/%1/size").arg(dialog);
}

} // namespace

void DialogRun::RestoreSize()
{
    const QString key = DialogKey(m_dialog);
    QSize size;
    if (const auto it = RememberedSizes().find(key); it != RememberedSizes().end())
        size = it->second;
    else if (KeepsSizesBetweenRuns())
        size = QSettings().value(SizeKey(key)).toSize();
    m_window->adjustSize();
    if (size.isValid())
        m_window->resize(size.expandedTo(m_window->minimumSizeHint()));
}

void DialogRun::RememberSize() const
{
    // The window may be gone from the screen by now; its size is kept.
    const QSize size = m_window->size();
    if (!size.isValid())
        return;
    const QString key = DialogKey(m_dialog);
    RememberedSizes()[key] = size;
    if (KeepsSizesBetweenRuns())
        QSettings().setValue(SizeKey(key), size);
}

void DialogRun::OnContextMenuKey()
{
    QWidget* focus = QApplication::focusWidget();
    if (Syncing() || !focus || focus->window() != m_window.get())
        return;
    // As the Menu key does: a context menu of the focused control, opened
    // at its current item or its middle.
    QPoint local = focus->rect().center();
    if (const auto* view = qobject_cast<const QAbstractItemView*>(focus); view && view->currentIndex().isValid())
        local = view->viewport()->mapTo(focus, view->visualRect(view->currentIndex()).center());
    QContextMenuEvent event(QContextMenuEvent::Keyboard, local, focus->mapToGlobal(local));
    QApplication::sendEvent(focus, &event);
}

QWidget* DialogRun::BuildPage(CDialog& page)
{
    auto* container = new QWidget;
    Register(MakeDialogView(*this, page, container, false));
    BuildControls(page, container);
    return container;
}

QRect DialogRun::Scale(int x, int y, int cx, int cy) const
{
    const auto scale = [](int value, int base, int units) {
        return static_cast<int>(std::lround(static_cast<double>(value) * base / units));
    };
    return QRect(scale(x, m_baseX, 4), scale(y, m_baseY, 8), scale(cx, m_baseX, 4), scale(cy, m_baseY, 8));
}

int DialogRun::ScaleX(int x) const
{
    return Scale(x, 0, 0, 0).x();
}

bool DialogRun::Input(WindowView* view, const std::function<bool()>& input)
{
    if (Syncing() || m_error)
        return false;
    bool answer = false;
    ++m_inputDepth;
    try {
        answer = input();
    } catch (...) {
        // Nothing may be thrown through Qt's event loop: the run ends and
        // Exec rethrows.
        m_error = std::current_exception();
    }
    --m_inputDepth;
    if (m_error) {
        m_window->done(QDialog::Rejected);
        return false;
    }
    if (m_inputDepth == 0)
        Flush();
    if (view) {
        SyncScope sync(*this);
        view->Resync();
    }
    CloseIfEnded();
    return answer;
}

void DialogRun::Defer(WindowView& view)
{
    if (m_deferredSet.insert(&view).second)
        m_deferred.push_back(&view);
    // Changes that come from anywhere but user input (a script, a timer)
    // are shown once the event loop gets back.
    if (m_inputDepth == 0 && !m_flushPosted) {
        m_flushPosted = true;
        QMetaObject::invokeMethod(
            m_window.get(),
            [this] {
                m_flushPosted = false;
                Flush();
                CloseIfEnded();
            },
            Qt::QueuedConnection);
    }
}

void DialogRun::Flush()
{
    SyncScope sync(*this);
    while (!m_deferred.empty()) {
        const std::vector<WindowView*> views = std::move(m_deferred);
        m_deferred.clear();
        m_deferredSet.clear();
        for (WindowView* view : views)
            view->Flush();
    }
}

void DialogRun::CloseIfEnded()
{
    if (!m_dialog.IsRunning() && m_window->isVisible())
        m_window->done(m_dialog.GetModalResult());
}

void DialogRun::OnReject()
{
    if (Syncing())
        return;
    // Escape and the window's close button are the Cancel button's click;
    // the model may refuse it.
    if (CWnd* cancel = m_dialog.GetDlgItem(static_cast<UINT>(IDCANCEL)))
        Input(ViewOf(cancel), [cancel] { return CUserInput::Click(*cancel); });
    else
        Input(nullptr, [this] {
            m_dialog.OnCancel();
            return true;
        });
}

void DialogRun::OnHelpKey()
{
    if (Syncing())
        return;
    // F1 presses the Help button; a dialog without one still shows the help
    // of its context, if it has one.
    if (CWnd* button = m_dialog.GetDlgItem(static_cast<UINT>(IDHELP)))
        Input(ViewOf(button), [button] { return CUserInput::Click(*button); });
    else if (m_dialog.GetHelpContext() != 0)
        Input(nullptr, [this] {
            m_dialog.OnHelp();
            return true;
        });
}

void DialogRun::Exec()
{
    Flush();
    if (m_dialog.IsRunning())
        m_window->exec();
    if (m_error) {
        if (m_dialog.IsRunning())
            m_dialog.EndDialog(IDCANCEL);
        std::rethrow_exception(m_error);
    }
}

bool DialogRun::Render(const QString& file)
{
    Flush();
    // Shown for Qt to lay the widgets out and polish them, but not on any
    // screen.
    m_window->setAttribute(Qt::WA_DontShowOnScreen, true);
    m_window->show();
    QCoreApplication::processEvents();
    const QPixmap pixmap = m_window->grab();
    m_window->hide();
    m_window->setAttribute(Qt::WA_DontShowOnScreen, false);
    // The format follows the file's extension.
    return !pixmap.isNull() && pixmap.save(file);
}

CWnd* DialogRun::WindowAt(const QPoint& global) const
{
    const QPoint local = m_window->mapFromGlobal(global);
    if (!m_window->rect().contains(local))
        return nullptr;
    for (QWidget* widget = m_window->childAt(local); widget; widget = widget->parentWidget())
        if (const auto it = m_byWidget.find(widget); it != m_byWidget.end())
            return &it->second->Wnd();
    return &m_dialog;
}

WindowView* DialogRun::ViewOf(const CWnd* wnd) const
{
    const auto it = m_byWnd.find(wnd);
    return it == m_byWnd.end() ? nullptr : it->second;
}

QPoint DialogRun::TakeMenuPosition(const CWnd& owner)
{
    if (m_hasMenuPosition) {
        m_hasMenuPosition = false;
        return m_menuPosition;
    }
    if (const WindowView* view = ViewOf(&owner))
        return view->Widget()->mapToGlobal(view->Widget()->rect().center());
    return QCursor::pos();
}

} // namespace kalhost::qt::detail
