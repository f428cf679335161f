// The Qt view as a plugin: kalhost loads libkalqtview.so only when a dialog
// is to be shown in a window, so headless runs never load Qt.
#pragma once

#include "platform/HeadlessDriver.h"

#include <functional>
#include <string>

namespace kalhost {

class IQtView {
public:
    virtual ~IQtView() = default;
    virtual CDialogDriver& Driver() = 0;
    // See qt::QtDialogDriver.
    virtual void SetScript(std::function<void(CHeadlessSession&)> script) = 0;
    virtual void SetScreenshotFile(const std::string& file) = 0;
    // Whether the last dialog ended with nobody closing it (after a
    // screenshot, say).
    virtual bool LastLeftOpen() const = 0;
    // A message box over the active window; returns when the user closes it.
    virtual void ShowMessage(const CString& text) = 0;
    // Opens the document at `url` in the desktop's viewer; without a URL, or
    // when it cannot be opened, says so with `description`.
    virtual void ShowHelp(const std::string& url, const std::string& description) = 0;
};

} // namespace kalhost

// The plugin's entry: a Qt application (offscreen when asked) and its driver.
extern "C" kalhost::IQtView* KalCreateQtView(int* argc, char** argv, bool offscreen);
using KalCreateQtViewFn = kalhost::IQtView* (*)(int*, char**, bool);
