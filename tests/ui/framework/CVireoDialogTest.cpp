// CVireoDialog: how it comes up and what it does with messages.
#include "resources/ids.h"
#include "tests/support/Fatal.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/framework/TestDialog.h"

class CVireoDialogTest : public UiTest
{
  protected:
    // Runs a test inside the loop of an empty full-screen dialog.
    static void InDialog(const std::function<void(TestDialog&)>& test)
    {
        InApp([&](TestApp&) {
            TestDialog dialog("dialog");
            dialog.body = [&] {
                TakeEvents();
                test(dialog);
                dialog.End(0);
            };
            dialog.Start();
        });
    }

    // The flags that SHInitDialog gets, or -1 when it is not called.
    static int InitFlags(TestApp& app, Platform platform, bool fullScreen)
    {
        app.platform = platform;
        const SPY(SHInitDialog) init([&](SHINITDLGINFO* info) {
            EXPECT_EQ(info->dwMask, 1U);
            EXPECT_TRUE(IsWindow(info->hDlg));
            Note("flags " + std::to_string(info->dwFlags));
            return init.Real(info);
        });
        TestDialog dialog("dialog");
        dialog.onInit = [&] { dialog.End(0); };
        TakeEvents();
        dialog.StartDialogNoTemplate(0, 0, fullScreen);
        const Events events = TakeEvents();
        EXPECT_FALSE(events.empty());
        return init.calls.empty() ? -1 : std::stoi(events.front().substr(6));
    }
};

TEST_F(CVireoDialogTest, ANewDialogIsAFullScreenOneWithoutAnything)
{
    const TestDialog dialog("dialog");
    EXPECT_TRUE(dialog.fullScreen);
    EXPECT_FALSE(dialog.runsInLoop);
    EXPECT_EQ(dialog.window, nullptr);
    EXPECT_EQ(dialog.menuBar, nullptr);
    EXPECT_EQ(dialog.accelerators, nullptr);
}

TEST_F(CVireoDialogTest, ItIsMadeFromItsTemplateAndOwnedByTheMainWindow)
{
    InApp([](TestApp& app) {
        TestDialog dialog("dialog");
        const SPY(CreateDialogIndirectParamW)
            create([&](HINSTANCE instance, const DLGTEMPLATE* dialogTemplate, HWND owner, DLGPROC procedure,
                       LPARAM parameter) {
                EXPECT_EQ(instance, app.Instance());
                EXPECT_EQ(owner, app.MainWindow());
                EXPECT_EQ(parameter, reinterpret_cast<LPARAM>(static_cast<CVireoDialog*>(&dialog)));
                return create.Real(instance, dialogTemplate, owner, procedure, parameter);
            });
        dialog.body = [&] {
            EXPECT_NE(GetDlgItem(dialog.window, IDC_INFORMATION_TEXT), nullptr);
            EXPECT_EQ(GetWindow(dialog.window, GW_OWNER), app.MainWindow());
            EXPECT_TRUE(dialog.runsInLoop);
            EXPECT_NE(dialog.accelerators, nullptr);
            dialog.End(33);
        };
        EXPECT_EQ(dialog.StartDialog(IDD_INFORMATION, IDB_INFORMATION, IDA_INFORMATION, true), 33);
        EXPECT_EQ(create.calls.size(), 1U);
    });
}

TEST_F(CVireoDialogTest, AMissingTemplateIsFatal)
{
    EXPECT_FATAL(InApp([](TestApp&) { TestDialog("dialog").StartDialog(9999, 0, 0, true); }),
                 L"CVireoDialog::StartDialog", L"Error creating dialog wnd");
}

static void StartWithoutAWindow()
{
    const SPY(CreateDialogIndirectParamW)
        create([](HINSTANCE, const DLGTEMPLATE*, HWND, DLGPROC, LPARAM) { return HWND{nullptr}; });
    TestDialog("dialog").Start();
}

TEST_F(CVireoDialogTest, AFailedCreationIsFatal)
{
    EXPECT_FATAL(InApp([](TestApp&) { StartWithoutAWindow(); }), L"CVireoDialog::StartDialog",
                 L"Error creating dialog wnd");
}

TEST_F(CVireoDialogTest, WithoutATemplateItIsEmptyAndCaptionedUnlessFullScreen)
{
    InApp([](TestApp&) {
        for (const bool fullScreen : {true, false}) {
            DWORD style = 0;
            const SPY(CreateDialogIndirectParamW)
                create([&](HINSTANCE instance, const DLGTEMPLATE* dialogTemplate, HWND owner,
                           DLGPROC procedure, LPARAM parameter) {
                    style = dialogTemplate->style;
                    EXPECT_EQ(dialogTemplate->cdit, 0);
                    for (const short value :
                         {dialogTemplate->x, dialogTemplate->y, dialogTemplate->cx, dialogTemplate->cy}) {
                        EXPECT_EQ(value, 0);
                    }
                    return create.Real(instance, dialogTemplate, owner, procedure, parameter);
                });
            TestDialog dialog("dialog");
            dialog.onInit = [&] {
                EXPECT_EQ(dialog.fullScreen, fullScreen);
                dialog.End(44);
            };
            EXPECT_EQ(dialog.StartDialogNoTemplate(0, 0, fullScreen), 44);
            EXPECT_EQ(style, fullScreen ? 0x90000080 : 0x90C00080);
        }
    });
}

TEST_F(CVireoDialogTest, TheShellSizesFullScreenDialogsByPlatform)
{
    InApp([](TestApp& app) {
        EXPECT_EQ(InitFlags(app, Platform::PocketPC, true), 45);
        EXPECT_EQ(InitFlags(app, Platform::Smartphone, true), 4);
        EXPECT_EQ(InitFlags(app, Platform::Unknown, true), 45);
        EXPECT_EQ(InitFlags(app, Platform::PocketPC, false), -1);
    });
}

TEST_F(CVireoDialogTest, WhenTheShellRefusesToSizeItTheDialogNeverOpens)
{
    InApp([](TestApp& app) {
        HWND refused = nullptr;
        const SPY(SHInitDialog) init([&](SHINITDLGINFO* info) {
            refused = info->hDlg;
            return FALSE;
        });
        const SPY(SHCreateMenuBar) bar;
        TestDialog dialog("dialog");
        EXPECT_EQ(dialog.Start(), 0);
        EXPECT_NE(refused, nullptr);
        EXPECT_FALSE(IsWindow(refused));
        EXPECT_TRUE(bar.calls.empty());
        EXPECT_EQ(app.dialogs->Count(), 0U);
        EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
        const Events events = TakeEvents();
        EXPECT_EQ(std::count(events.begin(), events.end(), "dialog OnInitDialog"), 0);
    });
}

TEST_F(CVireoDialogTest, ItsMenuBarIsMadeFromTheRecordItMayChange)
{
    InApp([](TestApp& app) {
        TestDialog dialog("dialog");
        dialog.onCreateMenuBar = [&](SHMENUBARINFO& info) {
            EXPECT_EQ(info.cbSize, sizeof(SHMENUBARINFO));
            EXPECT_EQ(info.hwndParent, dialog.window);
            EXPECT_EQ(info.nToolBarId, 174U);
            EXPECT_EQ(info.hInstRes, app.Instance());
            EXPECT_EQ(info.dwFlags, 0U);
            info.nToolBarId = IDB_INFORMATION;
        };
        const SPY(SHCreateMenuBar) bar([&](SHMENUBARINFO* info) {
            EXPECT_EQ(info->nToolBarId, static_cast<UINT>(IDB_INFORMATION));
            return bar.Real(info);
        });
        dialog.onInit = [&] {
            EXPECT_TRUE(IsWindow(dialog.menuBar)) << "it exists before OnInitDialog";
            EXPECT_EQ(GetWindow(dialog.menuBar, GW_OWNER), dialog.window);
            EXPECT_NE(dialog.menuBar, app.MenuBar());
            dialog.End(0);
        };
        dialog.StartDialogNoTemplate(IDB_START, 0, true);
        EXPECT_EQ(bar.calls.size(), 1U);
        EXPECT_TRUE(IsWindow(app.MenuBar()));
    });
}

TEST_F(CVireoDialogTest, WithoutAMenuBarItDestroysItselfAndReturnsZero)
{
    InApp([](TestApp& app) {
        HWND refused = nullptr;
        const SPY(SHCreateMenuBar) bar([&](SHMENUBARINFO* info) {
            refused = info->hwndParent;
            info->hwndMB = info->hwndParent; // must not be taken
            return FALSE;
        });
        TestDialog dialog("dialog");
        EXPECT_EQ(dialog.Start(), 0);
        EXPECT_FALSE(IsWindow(refused));
        EXPECT_EQ(dialog.menuBar, nullptr);
        EXPECT_EQ(app.dialogs->Count(), 0U);
        EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
        const Events events = TakeEvents();
        EXPECT_EQ(std::count(events.begin(), events.end(), "dialog OnInitDialog"), 0);
        EXPECT_EQ(std::count(events.begin(), events.end(), "dialog OnDestroy"), 1);
    });
}

TEST_F(CVireoDialogTest, ItCanBeStartedAgainAfterARefusal)
{
    InApp([](TestApp&) {
        TestDialog dialog("dialog");
        {
            const SPY(SHCreateMenuBar) bar([](SHMENUBARINFO*) { return FALSE; });
            EXPECT_EQ(dialog.Start(), 0);
        }
        dialog.onInit = [&] { dialog.End(8); };
        EXPECT_EQ(dialog.Start(), 8);
    });
}

TEST_F(CVireoDialogTest, ItIsOpenFromBeforeOnInitDialogToBeforeOnDestroy)
{
    InApp([](TestApp& app) {
        class Watching : public TestDialog
        {
          public:
            uint32_t openAtEnd = 99;
            using TestDialog::TestDialog;
            void OnDestroy() override { openAtEnd = CVireoAppDialogs(); }
            static uint32_t CVireoAppDialogs()
            {
                return static_cast<TestApp*>(CVireoApp::Current())->dialogs->Count();
            }
        } dialog("dialog");
        dialog.onInit = [&] {
            ASSERT_EQ(app.dialogs->Count(), 1U);
            EXPECT_EQ(app.dialogs->At(0), &dialog);
            dialog.End(0);
        };
        dialog.Start();
        EXPECT_EQ(dialog.openAtEnd, 0U);
        EXPECT_EQ(app.dialogs->Count(), 0U);
    });
}

TEST_F(CVireoDialogTest, TheLastEntryOfAClosedDialogIsRemoved)
{
    TestApp app;
    TestDialog one("one");
    TestDialog two("two");
    for (TestDialog* dialog : {&one, &two, &one}) {
        app.DialogOpened(dialog);
    }
    app.DialogClosed(&one);
    ASSERT_EQ(app.dialogs->Count(), 2U);
    EXPECT_EQ(app.dialogs->At(0), &one);
    EXPECT_EQ(app.dialogs->At(1), &two);
}

TEST_F(CVireoDialogTest, HandledMessagesAreAnsweredWithOne)
{
    InDialog([](TestDialog& dialog) {
        HDC begun = nullptr;
        const SPY(BeginPaint) begin([&](HWND window, PAINTSTRUCT* paint) {
            Note("begin " + NameOf(window));
            begun = begin.Real(window, paint);
            return begun;
        });
        const SPY(EndPaint) end([&](HWND window, const PAINTSTRUCT* paint) {
            Note("end " + NameOf(window));
            return end.Real(window, paint);
        });
        dialog.onPaint = [&](HDC target) {
            EXPECT_EQ(target, begun);
            Note("OnPaint");
        };
        EXPECT_EQ(dialog.Ask(WM_PAINT, 0, 0), 1);
        EXPECT_EQ(dialog.Ask(WM_COMMAND, MAKEWPARAM(40000, 50000), 77), 1);
        EXPECT_EQ(TakeEvents(),
                  (Events{"begin dialog", "OnPaint", "end dialog", "dialog OnCommand 40000,50000,77"}));
        dialog.Ask(WM_INITMENUPOPUP, 291, MAKELPARAM(4, 1));
        EXPECT_EQ(TakeEvents(), (Events{"dialog OnInitMenuPopup 291,4,0"}));
        dialog.onPaint = nullptr;
    });
}

TEST_F(CVireoDialogTest, DestructionIsAnsweredWithOne)
{
    InDialog([](TestDialog& dialog) {
        EXPECT_EQ(dialog.Ask(WM_DESTROY, 0, 0), 1);
        EXPECT_EQ(TakeEvents(), (Events{"dialog OnDestroy"}));
    });
}

TEST_F(CVireoDialogTest, EverythingElseIsAnsweredByDialogProc)
{
    InDialog([](TestDialog& dialog) {
        EXPECT_EQ(dialog.Ask(TestDialog::messageNoted + 6, 7, 8), TestDialog::messageResult);
        EXPECT_EQ(TakeEvents(), (Events{"dialog DialogProc 6,7,8"}));
        EXPECT_EQ(dialog.Ask(WM_SIZE, 0, 0), 0);
    });
}

TEST_F(CVireoDialogTest, MessagesBeforeTheObjectIsKnownAreNotHandled)
{
    InDialog([](TestDialog& dialog) {
        const LONG_PTR object = SetWindowLongPtrW(dialog.window, GWLP_USERDATA, 0);
        EXPECT_EQ(dialog.Ask(TestDialog::messageNoted, 0, 0), 0);
        EXPECT_EQ(dialog.Ask(WM_COMMAND, 1, 0), 0);
        EXPECT_TRUE(TakeEvents().empty());
        SetWindowLongPtrW(dialog.window, GWLP_USERDATA, object);
    });
}
