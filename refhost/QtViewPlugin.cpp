#include "refhost/QtViewPlugin.h"

#include "refhost/qt/QtView.h"

#include <QApplication>
#include <QMessageBox>

namespace {

class QtView final : public kalhost::IQtView {
public:
    QtView(int& argc, char** argv, bool offscreen) : m_application(argc, argv, offscreen) {}

    CDialogDriver& Driver() override { return m_driver; }
    void SetScript(std::function<void(CHeadlessSession&)> script) override { m_driver.SetScript(std::move(script)); }
    void SetScreenshotFile(const std::string& file) override { m_driver.SetScreenshotFile(file); }
    bool LastLeftOpen() const override { return m_driver.LastLeftOpen(); }
    void ShowMessage(const CString& text) override
    {
        QMessageBox::warning(QApplication::activeWindow(), QStringLiteral("kalhost"),
                             QString::fromUtf8(text.ToUtf8().c_str()));
    }

    void ShowHelp(const std::string& url, const std::string& description) override
    {
        kalhost::qt::ShowHelpDocument(QApplication::activeWindow(), QString::fromStdString(url),
                                      QString::fromStdString(description));
    }

private:
    kalhost::qt::QtApplication m_application;
    kalhost::qt::QtDialogDriver m_driver;
};

} // namespace

extern "C" kalhost::IQtView* KalCreateQtView(int* argc, char** argv, bool offscreen)
{
    return new QtView(*argc, argv, offscreen);
}
