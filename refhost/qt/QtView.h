// The Qt 6 view of the window model: dialogs in real windows. kalhost uses
// this header only; everything Qt stays behind it.
#pragma once

#include "platform/HeadlessDriver.h"

#include <QString>

#include <functional>
#include <memory>
#include <string>

class QWidget;

namespace kalhost::qt {

// The QApplication of a kalhost run. With `offscreen` Qt's offscreen
// platform is used, so no display is needed (screenshots, tests).
class QtApplication {
public:
    QtApplication(int& argc, char** argv, bool offscreen);
    ~QtApplication();
    QtApplication(const QtApplication&) = delete;
    QtApplication& operator=(const QtApplication&) = delete;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

// The Qt driver: builds a QDialog from the same template the model was
// built from, mirrors every model change into its widgets and turns user
// input into the notifications the dialog class handles (through
// CUserInput).
class QtDialogDriver : public CDialogDriver {
public:
    using Script = std::function<void(CHeadlessSession&)>;

    QtDialogDriver();
    ~QtDialogDriver() override;

    // Actions run on the model once the window is built, before the user
    // (or the screenshot) sees it; the widgets follow every change.
    void SetScript(Script script);
    // With a file, the dialog is rendered to that PNG after the script
    // instead of being shown; a dialog still open then ends left open.
    void SetScreenshotFile(std::string file);
    // Whether the last dialog ended without the user or script closing it.
    bool LastLeftOpen() const;

    INT_PTR RunModal(CDialog& dialog) override;
    UINT TrackPopupMenu(CWnd& owner, const CMenu& menu) override;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

// Opens a help document (a file URL with its section) in the desktop's
// viewer. Without a URL, or when the desktop cannot open it, a message box
// over `parent` says why, with `description` (where it was looked for).
void ShowHelpDocument(QWidget* parent, const QString& url, const QString& description);

} // namespace kalhost::qt
