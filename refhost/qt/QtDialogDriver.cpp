#include "refhost/qt/QtView.h"

#include "refhost/qt/QtDialogRun.h"
#include "refhost/qt/QtText.h"
#include "refhost/qt/QtWidgets.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QFile>
#include <QImageWriter>
#include <QMenu>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QUrl>

#include <stdexcept>
#include <vector>

namespace kalhost::qt {

// --- QtApplication -----------------------------------------------------------------

struct QtApplication::Impl {
    std::unique_ptr<QTemporaryDir> runtimeDir;
    std::unique_ptr<QApplication> app;
};

QtApplication::QtApplication(int& argc, char** argv, bool offscreen) : m_impl(std::make_unique<Impl>())
{
    if (offscreen) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // Without a desktop session Qt wants a private runtime directory and
        // warns on standard error when it has to make one up.
        if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
            m_impl->runtimeDir = std::make_unique<QTemporaryDir>();
            QFile::setPermissions(m_impl->runtimeDir->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            qputenv("XDG_RUNTIME_DIR", m_impl->runtimeDir->path().toUtf8());
        }
    }
    m_impl->app = std::make_unique<QApplication>(argc, argv);
    // Where the user's window sizes are kept between runs.
    QCoreApplication::setOrganizationName(QStringLiteral("KalDlgStat2"));
    QCoreApplication::setApplicationName(QStringLiteral("kalhost"));
}

QtApplication::~QtApplication() = default;

// --- QtDialogDriver ----------------------------------------------------------------

struct QtDialogDriver::Impl {
    Script script;
    std::string screenshot;
    bool lastLeftOpen = false;
    CMenuScript menus;
    // The dialogs open now, innermost last.
    std::vector<detail::DialogRun*> runs;
    int scriptDepth = 0;

    detail::DialogRun* RunOf(const CWnd& wnd) const
    {
        for (auto it = runs.rbegin(); it != runs.rend(); ++it)
            if ((*it)->ViewOf(&wnd))
                return *it;
        return runs.empty() ? nullptr : runs.back();
    }
};

QtDialogDriver::QtDialogDriver() : m_impl(std::make_unique<Impl>()) {}

QtDialogDriver::~QtDialogDriver() = default;

void QtDialogDriver::SetScript(Script script)
{
    m_impl->script = std::move(script);
}

void QtDialogDriver::SetScreenshotFile(std::string file)
{
    m_impl->screenshot = std::move(file);
}

bool QtDialogDriver::LastLeftOpen() const
{
    return m_impl->lastLeftOpen;
}

INT_PTR QtDialogDriver::RunModal(CDialog& dialog)
{
    Impl& impl = *m_impl;
    detail::DialogRun run(dialog, impl.runs.empty() ? nullptr : &impl.runs.back()->Window());
    impl.runs.push_back(&run);
    struct Pop {
        std::vector<detail::DialogRun*>& runs;
        ~Pop() { runs.pop_back(); }
    } pop{impl.runs};

    if (impl.script) {
        // Scripted actions act on the model, as headless; the widgets follow
        // through their views.
        CHeadlessSession session(dialog, impl.menus);
        ++impl.scriptDepth;
        struct Leave {
            int& depth;
            ~Leave() { --depth; }
        } leave{impl.scriptDepth};
        impl.script(session);
    }

    bool written = true;
    if (!impl.screenshot.empty())
        written = run.Render(QString::fromStdString(impl.screenshot));
    else
        run.Exec();

    impl.lastLeftOpen = dialog.IsRunning();
    if (impl.lastLeftOpen)
        dialog.EndDialog(IDCANCEL);
    if (!written) {
        std::string formats;
        for (const QByteArray& format : QImageWriter::supportedImageFormats())
            formats += (formats.empty() ? "" : ", ") + format.toStdString();
        throw std::runtime_error("cannot write the screenshot " + impl.screenshot +
                                 " (the file name's extension chooses the format: " + formats + ")");
    }
    return dialog.GetModalResult();
}

UINT QtDialogDriver::TrackPopupMenu(CWnd& owner, const CMenu& menu)
{
    Impl& impl = *m_impl;
    // A script's menu choice, or no choice while a script acts: the user
    // sees no menu then.
    if (impl.menus.HasChoice() || impl.scriptDepth > 0)
        return impl.menus.Choose(menu);

    detail::DialogRun* run = impl.RunOf(owner);
    const detail::WindowView* view = run ? run->ViewOf(&owner) : nullptr;
    QMenu popup(view ? view->Widget() : nullptr);
    popup.setObjectName(QStringLiteral("kalPopupMenu"));
    for (const CMenuItem& item : menu.Items()) {
        QAction* action = popup.addAction(ToQt(item.caption));
        action->setData(item.id);
        action->setEnabled(item.enabled);
    }
    const QPoint position = run ? run->TakeMenuPosition(owner) : QCursor::pos();
    const QAction* chosen = popup.exec(position);
    return chosen && chosen->isEnabled() ? chosen->data().toUInt() : 0;
}

// --- Help --------------------------------------------------------------------------

void ShowHelpDocument(QWidget* parent, const QString& url, const QString& description)
{
    if (!url.isEmpty() && QDesktopServices::openUrl(QUrl(url)))
        return;
    QMessageBox box(QMessageBox::Information, QStringLiteral("Help"),
                    url.isEmpty() ? QStringLiteral("The help of this analysis cannot be shown.")
                                  : QStringLiteral("No browser could open the help page of this analysis. It is here:"),
                    QMessageBox::Ok, parent);
    box.setObjectName(QStringLiteral("kalHelpMessage"));
    const QUrl page(url);
    box.setInformativeText(url.isEmpty() ? description : page.isLocalFile() ? page.toLocalFile() : url);
    box.exec();
}

} // namespace kalhost::qt
