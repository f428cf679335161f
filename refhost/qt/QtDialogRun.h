// One modal run of a model dialog in Qt widgets: the window built from the
// dialog's template (and its tab pages' templates), one view per model
// window, and the way back from user input to the model.
#pragma once

#include "platform/Dialog.h"

#include <QPoint>
#include <QRect>

#include <exception>
#include <functional>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <vector>

class QWidget;

namespace kalhost::qt::detail {

class DialogRun;
class ModelDialog;

// The widget of one model window. The model tells it every change
// (Refresh); its widget's signals become user input through the run.
class WindowView : public CWndView {
public:
    WindowView(DialogRun& run, CWnd& wnd, QWidget* widget);
    ~WindowView() override;
    WindowView(const WindowView&) = delete;
    WindowView& operator=(const WindowView&) = delete;

    void Refresh(CWnd& wnd, WndAspect aspect) final;
    // Brings every aspect of the widget in line with the model.
    void SyncAll();
    // After input on the widget: puts back in line what the input may have
    // changed in the widget but the model did not take.
    virtual void Resync() {}
    // Work put off until the model is done changing (list contents).
    virtual void Flush() {}
    // The widget that takes the keyboard focus for this window.
    virtual QWidget* FocusWidget() const { return m_widget; }
    // Puts the widget (and what the view adds beside it) into `rect`, the
    // control's rectangle in the laid-out dialog.
    virtual void Place(const QRect& rect);
    // Gives the widgets the view adds beside its own (a browse button, a
    // filter field) names that readers say, after the control's `name`.
    virtual void NameAttachments(const QString& /*name*/) {}

    CWnd& Wnd() const { return *m_wnd; }
    QWidget* Widget() const { return m_widget; }
    DialogRun& Run() const { return m_run; }
    // Stops the model telling this view about changes.
    void Detach();

protected:
    // What one aspect of the model means for the widget; the base handles
    // enable state, visibility, tool tip and invalidation.
    virtual void Apply(WndAspect aspect);

    DialogRun& m_run;
    CWnd* m_wnd;
    QWidget* m_widget;
};

class DialogRun {
public:
    DialogRun(CDialog& dialog, QWidget* parent);
    ~DialogRun();
    DialogRun(const DialogRun&) = delete;
    DialogRun& operator=(const DialogRun&) = delete;

    CDialog& Model() const { return m_dialog; }
    ModelDialog& Window() const { return *m_window; }

    // Model changes are being copied into widgets: the widgets' signals are
    // not user input then.
    bool Syncing() const { return m_syncDepth > 0; }
    class SyncScope {
    public:
        explicit SyncScope(DialogRun& run) : m_run(run) { ++m_run.m_syncDepth; }
        ~SyncScope() { --m_run.m_syncDepth; }
        SyncScope(const SyncScope&) = delete;
        SyncScope& operator=(const SyncScope&) = delete;

    private:
        DialogRun& m_run;
    };

    // Runs one user input that came from `view`'s widget (nullptr: from the
    // window), then puts the widgets in line with the model and closes the
    // window when the model dialog has ended. Returns the input's answer;
    // false, doing nothing, while the model is being copied into widgets.
    bool Input(WindowView* view, const std::function<bool()>& input);
    // Puts `view`'s pending work on the list for Flush.
    void Defer(WindowView& view);
    // Does the pending work of every view now.
    void Flush();

    // Shows the window modally until the model dialog ends or the user
    // leaves it; rethrows what the model threw on the way.
    void Exec();
    // Renders the window to a PNG file; false when it cannot be written.
    bool Render(const QString& file);

    // The model window whose widget is at a global position, nullptr
    // outside the dialog.
    CWnd* WindowAt(const QPoint& global) const;
    WindowView* ViewOf(const CWnd* wnd) const;
    // Where a pop-up menu for `owner` opens: where the user last asked for
    // one (once), else over the owner's widget.
    QPoint TakeMenuPosition(const CWnd& owner);
    void SetMenuPosition(const QPoint& global)
    {
        m_menuPosition = global;
        m_hasMenuPosition = true;
    }

    // Builds the widgets of a page dialog into a new container widget.
    QWidget* BuildPage(CDialog& page);

    // Template geometry in pixels of the dialog's font.
    QRect Scale(int x, int y, int cx, int cy) const;
    int ScaleX(int x) const;

    // Keeps the model's windows and their views in step when a control is
    // replaced by a subclassing one during the run.
    void Rebind(WindowView& view, CWnd* from, CWnd* to);

private:
    void Register(std::unique_ptr<WindowView> view);
    void BuildControls(CDialog& dialog, QWidget* container);
    // The size the user last gave dialogs of this template, if any.
    void RestoreSize();
    void RememberSize() const;
    void OnContextMenuKey();
    void CloseIfEnded();
    void OnReject();
    void OnHelpKey();

    CDialog& m_dialog;
    std::unique_ptr<ModelDialog> m_window;
    std::vector<std::unique_ptr<WindowView>> m_views;
    std::unordered_map<const CWnd*, WindowView*> m_byWnd;
    std::unordered_map<const QWidget*, WindowView*> m_byWidget;
    std::vector<WindowView*> m_deferred;
    std::unordered_set<WindowView*> m_deferredSet;
    bool m_flushPosted = false;
    int m_syncDepth = 0;
    int m_inputDepth = 0;
    int m_baseX = 1;
    int m_baseY = 1;
    QPoint m_menuPosition;
    bool m_hasMenuPosition = false;
    std::exception_ptr m_error;
};

// The views of the control kinds, made for a control of `container`.
std::unique_ptr<WindowView> MakeControlView(DialogRun& run, CWnd& control, QWidget* container);
// The view of a dialog: the top window (`top`) or a tab page's container.
std::unique_ptr<WindowView> MakeDialogView(DialogRun& run, CDialog& dialog, QWidget* widget, bool top);
// Once the controls of `dialog` have their views: labels lend their
// mnemonic and their text (a reader's name for it) to the control they name,
// radio buttons form the model's groups.
void ConnectSiblings(DialogRun& run, CDialog& dialog);

} // namespace kalhost::qt::detail
