// "Hardware keys": the program's command opens the dialog of its handheld.
// profiles: pocketpc smartphone
#include "tests/ui/keys/ButtonsTest.h"

class HardwareKeysCommandTest : public ButtonsTest
{
  protected:
    // Gives the command; the step runs in the dialog's loop.
    static void Command(ProgramApp& app, const Step& step)
    {
        bool ran = false;
        app.Later([&] {
            ran = true;
            ASSERT_EQ(app.dialogs->Count(), 1u);
            Opened opened = {app, app.dialogs->At(0)->Window()};
            step(opened);
            Run(opened, IDCANCEL);
        });
        SendMessageW(app.MainWindow(), WM_COMMAND, 32814, 0);
        EXPECT_TRUE(ran);
        EXPECT_EQ(app.dialogs->Count(), 0u);
    }
    static bool IsPocketPcs(const Opened& opened) { return Control(opened, keyList) != nullptr; }
};

TEST_F(HardwareKeysCommandTest, EveryPageOpensTheDialogOfTheHandheld)
{
    InProgram([](ProgramApp& app) {
        for (const int page : {1, 2, 3, 4}) {
            app.ShowPage(page);
            Command(app, [&](Opened& opened) {
                EXPECT_EQ(Text(opened.dialog), L"Hardware keys");
                EXPECT_NE(Control(opened, pressList), nullptr);
                EXPECT_EQ(IsPocketPcs(opened), app.PlatformKind() != Platform::Smartphone);
                EXPECT_FALSE(IsWindowEnabled(app.MainWindow())) << "it is modal";
            });
            EXPECT_TRUE(IsWindowEnabled(app.MainWindow()));
            EXPECT_EQ(app.ActiveView()->Id(), page);
        }
    });
}

TEST_F(HardwareKeysCommandTest, AHandheldOfAnotherKindHasThePocketPcs)
{
    InProgram([](ProgramApp& app) {
        app.platform = Platform::Unknown;
        Command(app, [](Opened& opened) { EXPECT_TRUE(IsPocketPcs(opened)); });
    });
}

TEST_F(HardwareKeysCommandTest, ItsTemplateItsSoftKeysAndItsKeyAreItsOwn)
{
    InProgram([](ProgramApp& app) {
        std::vector<UINT> templates;
        std::vector<UINT> bars;
        std::vector<UINT> tables;
        const auto number = [](const wchar_t* name) {
            return static_cast<UINT>(reinterpret_cast<UINT_PTR>(name));
        };
        const SPY(FindResourceW) find([&](HMODULE module, const wchar_t* name, const wchar_t* type) {
            if (type == RT_DIALOG) {
                templates.push_back(number(name));
            }
            return find.Real(module, name, type);
        });
        const SPY(SHCreateMenuBar) create([&](SHMENUBARINFO* info) {
            bars.push_back(info->nToolBarId);
            return create.Real(info);
        });
        const SPY(LoadAcceleratorsW) load([&](HINSTANCE instance, const wchar_t* name) {
            tables.push_back(number(name));
            return load.Real(instance, name);
        });
        Command(app, [](Opened&) {});
        const bool isSmartphone = app.PlatformKind() == Platform::Smartphone;
        EXPECT_EQ(templates, std::vector<UINT>{isSmartphone ? 144u : 142u});
        EXPECT_EQ(bars, std::vector<UINT>{169});
        EXPECT_EQ(tables, std::vector<UINT>{143});
    });
}
