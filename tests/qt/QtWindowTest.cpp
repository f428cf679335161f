// The Qt view of a dialog with a control of every kind: changes made by
// code show without coming back as input, input reaches the model once,
// the keyboard works the dialog, and failures reach the caller.
#include "framework/FileEditCtrl.h"
#include "platform/DataExchange.h"
#include "refhost/qt/QtText.h"
#include "refhost/qt/QtView.h"
#include "tests/qt/QtTestSupport.h"
#include "tests/support/Printers.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace kalqttest;

namespace {

enum : UINT {
    EDIT = 30,
    WEIGHTED = 31,
    GRID = 40,
    COMBO = 50,
    LIST = 60,
    FILE_EDIT = 70,
    HIDDEN = 81,
    RUN = 82,
    FAIL = 90
};

std::shared_ptr<const DialogTemplate> Template(UINT id)
{
    if (id != 900)
        return nullptr;
    const auto control = [](UINT id, ControlKind kind, const char16_t* caption, int x, int y, int cx, int cy,
                            DWORD style = WS_TABSTOP) {
        return ControlTemplate{id, kind, caption, x, y, cx, cy, style, {}, {}};
    };
    auto t = std::make_shared<DialogTemplate>(DialogTemplate{900, u"Every control", 300, 200, {}});
    t->controls = {
        control(0, ControlKind::Static, u"&Name:", 7, 9, 40, 9, 0),
        control(EDIT, ControlKind::Edit, u"", 50, 7, 80, 13),
        control(WEIGHTED, ControlKind::CheckBox, u"&Weighted", 140, 7, 80, 10, WS_TABSTOP | WS_DISABLED),
        control(10, ControlKind::RadioButton, u"&One", 7, 26, 50, 10, WS_TABSTOP | WS_GROUP),
        control(11, ControlKind::RadioButton, u"&Two", 7, 38, 50, 10),
        control(12, ControlKind::RadioButton, u"T&hree", 7, 50, 50, 10),
        control(20, ControlKind::RadioButton, u"&Left", 70, 26, 50, 10, WS_TABSTOP | WS_GROUP),
        control(21, ControlKind::RadioButton, u"&Right", 70, 38, 50, 10),
        control(COMBO, ControlKind::ComboBox, u"", 140, 26, 80, 60),
        control(LIST, ControlKind::List, u"", 7, 64, 100, 60),
        control(GRID, ControlKind::Grid, u"", 115, 64, 180, 60),
        control(FILE_EDIT, ControlKind::FileEdit, u"", 7, 130, 150, 14),
        control(80, ControlKind::GroupBox, u"Options", 165, 128, 130, 30, 0),
        control(HIDDEN, ControlKind::Static, u"hidden", 170, 140, 40, 9, WS_HIDDEN),
        control(RUN, ControlKind::PushButton, u"R&un", 220, 140, 40, 14, WS_TABSTOP | WS_DISABLED),
        control(FAIL, ControlKind::PushButton, u"&Fail", 7, 180, 40, 14),
        control(IDOK, ControlKind::PushButton, u"OK", 190, 180, 50, 14, WS_TABSTOP | BS_DEFPUSHBUTTON),
        control(IDCANCEL, ControlKind::PushButton, u"Cancel", 245, 180, 50, 14),
    };
    t->controls[10].columns = {u"No.", u"Name", u"Value"};
    return t;
}

// Counts notifications; its number field refuses OK until it parses; one
// button throws.
class WidgetDialog : public CDialog {
public:
    WidgetDialog() : CDialog(900) {}

    int number = 7;
    int edits = 0;
    int selections = 0;
    int radioClicks = 0;
    CFileEditCtrl file;

    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        auto* combo = dynamic_cast<CComboBox*>(GetDlgItem(COMBO));
        for (const char16_t* entry : {u"first", u"second", u"third"})
            combo->AddString(entry);
        combo->SetCurSel(0);
        dynamic_cast<CListCtrl*>(GetDlgItem(LIST))->SetItems({u"alpha", u"beta", u"gamma", u"delta"});
        file.SetFileDialogOptions(true, false, false, u".kvd", u"");
        CheckRadioButton(10, 12, 10);
        return TRUE;
    }
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Control(pDX, FILE_EDIT, file);
        DDX_Text(pDX, EDIT, number);
    }
    void OnEdit() { ++edits; }
    void OnSelection(NMHDR*, LRESULT*) { ++selections; }
    void OnRadio() { ++radioClicks; }
    void OnFail() { throw std::runtime_error("the handler failed"); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(WidgetDialog, CDialog)
    ON_EN_CHANGE(EDIT, &WidgetDialog::OnEdit)
    ON_NOTIFY(LVN_ITEMCHANGED, LIST, &WidgetDialog::OnSelection)
    ON_COMMAND_RANGE(10, 21, &WidgetDialog::OnRadio)
    ON_BN_CLICKED(FAIL, &WidgetDialog::OnFail)
END_MESSAGE_MAP()

class QtWindow : public ::testing::Test {
protected:
    QtWindow()
    {
        kal::SetDialogTemplateSource(Template);
        kal::SetMessageBoxSink([this](UINT id, const CString&) { messages.push_back(id); });
        previous = AfxSetDialogDriver(&driver);
    }
    ~QtWindow() override
    {
        AfxSetDialogDriver(previous);
        kal::SetDialogTemplateSource({});
        kal::SetMessageBoxSink({});
    }
    void ExpectMirrored(QDialog& window, const char* when)
    {
        EXPECT_EQ(Differences(DescribeWidgets(window, dialog), DescribeModel(dialog)), "") << when;
    }

    kalhost::qt::QtDialogDriver driver;
    CDialogDriver* previous = nullptr;
    std::vector<UINT> messages;
    WidgetDialog dialog;
};

QLineEdit* EditOf(QWidget* widget)
{
    auto* edit = qobject_cast<QLineEdit*>(widget);
    return edit ? edit : widget->findChild<QLineEdit*>();
}

QPoint ItemCentre(QListWidget* list, int row)
{
    return list->visualItemRect(list->item(row)).center();
}

} // namespace

TEST_F(QtWindow, ChangesByCodeShowAndInputReachesTheModelOnce)
{
    WhenShown([this](QDialog& window) {
        ExpectMirrored(window, "as built");
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Every control"));

        dialog.SetDlgItemText(EDIT, u"17");
        dialog.GetDlgItem(WEIGHTED)->EnableWindow(TRUE);
        dialog.CheckDlgButton(WEIGHTED, BST_CHECKED);
        dialog.GetDlgItem(HIDDEN)->ShowWindow(SW_SHOW);
        dialog.GetDlgItem(RUN)->SetToolTipText(u"Runs it");
        dialog.CheckRadioButton(20, 21, 21);
        dialog.CheckRadioButton(10, 12, 0); // a group with none checked
        dynamic_cast<CComboBox*>(dialog.GetDlgItem(COMBO))->SetCurSel(2);
        auto* list = dynamic_cast<CListCtrl*>(dialog.GetDlgItem(LIST));
        list->InsertItem(4, u"epsilon");
        list->SetSelection({1, 4});
        auto* grid = dynamic_cast<CGridCtrl*>(dialog.GetDlgItem(GRID));
        grid->SetItemText(1, 1, u"first row");
        grid->SetItemText(2, 2, u"2.5");
        QCoreApplication::processEvents();
        ExpectMirrored(window, "after changes by code");
        EXPECT_EQ(dialog.edits + dialog.selections + dialog.radioClicks, 0);

        QLineEdit* edit = EditOf(Control(window, EDIT));
        Click(edit);
        Key(edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(edit, QStringLiteral("abc"));
        EXPECT_EQ(dialog.edits, 3);
        EXPECT_EQ(dialog.GetDlgItemText(EDIT), CString(u"abc"));

        auto* items = qobject_cast<QListWidget*>(Control(window, LIST));
        Click(items->viewport(), ItemCentre(items, 0));
        Click(items->viewport(), ItemCentre(items, 2), Qt::LeftButton, Qt::ControlModifier);
        EXPECT_EQ(dialog.selections, 2);
        EXPECT_EQ(list->GetSelectedItems(), (std::vector<int>{0, 2}));

        // Radio buttons are grouped as the model groups them.
        Click(Control(window, 11), QPoint(6, 8));
        EXPECT_EQ(dialog.radioClicks, 1);
        EXPECT_EQ(dialog.IsDlgButtonChecked(11), 1u);
        EXPECT_TRUE(qobject_cast<QRadioButton*>(Control(window, 21))->isChecked());

        // A control the model disables takes no input.
        dialog.GetDlgItem(LIST)->EnableWindow(FALSE);
        Click(items->viewport(), ItemCentre(items, 3));
        EXPECT_EQ(list->GetSelectedItems(), (std::vector<int>{0, 2}));
        ExpectMirrored(window, "after input");

        Key(edit, Qt::Key_Escape);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_FALSE(driver.LastLeftOpen());
}

TEST_F(QtWindow, KeyboardTabOrderMnemonicsEnterAndRefusedOk)
{
    WhenShown([this](QDialog& window) {
        QStringList order;
        for (QWidget* w = window.nextInFocusChain(); w != &window; w = w->nextInFocusChain()) {
            QWidget* control = w;
            while (control && !control->objectName().startsWith(QStringLiteral("ctl")))
                control = control->parentWidget();
            if ((w->focusPolicy() & Qt::TabFocus) && control &&
                (order.isEmpty() || order.back() != control->objectName()))
                order << control->objectName();
        }
        EXPECT_EQ(order.join(u' '),
                  QStringLiteral("ctl30 ctl31 ctl10 ctl11 ctl12 ctl20 ctl21 ctl50 ctl60 ctl40 ctl70 ctl82 "
                                 "ctl90 ctl1 ctl2"));

        // The label's mnemonic focuses the control after it.
        auto* list = qobject_cast<QListWidget*>(Control(window, LIST));
        Click(list->viewport(), ItemCentre(list, 1));
        QTest::keyClick(&window, Qt::Key_N, Qt::AltModifier);
        QLineEdit* edit = EditOf(Control(window, EDIT));
        EXPECT_EQ(QApplication::focusWidget(), edit);

        QTest::keyClicks(edit, QStringLiteral("x"));
        Key(edit, Qt::Key_Return); // "7x" does not parse: OK refuses
        EXPECT_TRUE(window.isVisible());
        Key(edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(edit, QStringLiteral(" 42 "));
        Key(edit, Qt::Key_Return);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(messages, std::vector<UINT>{AFX_IDP_PARSE_INT});
    EXPECT_EQ(dialog.number, 42);
}

TEST_F(QtWindow, BrowsingPicksASaveNameWithTheDefaultExtension)
{
    QTemporaryDir directory;
    const QString start = QDir(directory.path()).filePath(QStringLiteral("start.kvd"));
    const QString picked = QDir(directory.path()).filePath(QStringLiteral("results.kvd"));
    WhenShown([&](QDialog& window) {
        dialog.SetDlgItemText(FILE_EDIT, kalhost::qt::FromQt(start));
        WhenPopupShown([](QWidget& fileDialog) {
            auto* name = fileDialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            ASSERT_NE(name, nullptr);
            QTest::keyClick(name, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(name, QStringLiteral("results"));
            QTest::keyClick(name, Qt::Key_Return);
        });
        Click(Control(window, FILE_EDIT)->findChild<QToolButton*>());
        EXPECT_EQ(EditOf(Control(window, FILE_EDIT))->text(), picked);
    });
    dialog.DoModal();
    EXPECT_EQ(dialog.file.GetWindowText(), kalhost::qt::FromQt(picked));
}

TEST_F(QtWindow, ScriptsActOnTheModelAndFailuresReachTheCaller)
{
    QTemporaryDir directory;
    const QString picture = QDir(directory.path()).filePath(QStringLiteral("dialog.png"));
    driver.SetScript([](CHeadlessSession& s) {
        s.Type(EDIT, u"12");
        s.Cell(GRID, 1, 1, u"grown");
    });
    driver.SetScreenshotFile(picture.toStdString());
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_TRUE(driver.LastLeftOpen());
    EXPECT_GT(QImage(picture).width(), 300);

    WidgetDialog unwritable;
    driver.SetScreenshotFile(QDir(directory.path()).filePath("missing/dialog.png").toStdString());
    EXPECT_THROW(unwritable.DoModal(), std::runtime_error);

    WidgetDialog badScript;
    driver.SetScreenshotFile({});
    driver.SetScript([](CHeadlessSession& s) { s.Click(999); });
    EXPECT_THROW(badScript.DoModal(), HeadlessError);
    // The run is over: the window is destroyed and the dialog no longer modal.
    EXPECT_FALSE(badScript.IsCreated());
    EXPECT_EQ(badScript.GetDlgItem(EDIT), nullptr);
    EXPECT_FALSE(badScript.IsModal());

    WidgetDialog failing;
    driver.SetScript({});
    WhenShown([](QDialog& window) { Click(Control(window, FAIL)); });
    EXPECT_THROW(failing.DoModal(), std::runtime_error);
    EXPECT_FALSE(failing.IsRunning());
}
