// A list's own part in a message: before and after the control's own handling.
#include "tests/ui/TestList.h"
#include "tests/ui/UiTest.h"

#include <memory>

class HookedList : public TestList
{
  public:
    bool consumes = false;
    LRESULT answer = 0; // of a consumed message

    static constexpr UINT messageOwn = WM_APP + 5;

  protected:
    bool BeforeControl(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override
    {
        if (message == messageOwn || message == WM_SIZE) {
            Note("before " + Numbers(message, wParam, lParam));
        }
        if (consumes) {
            result = answer;
        }
        return consumes;
    }
    void AfterControl(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == messageOwn || message == WM_SIZE) {
            const std::string width = std::to_string(buffer.Width());
            Note("after " + Numbers(message, wParam, lParam) + " buffer " + width);
        }
    }
};

static std::unique_ptr<HookedList> list;
static WNDPROC controlProcedure;
static bool ends; // the list, by what the control tells

static LRESULT CALLBACK StandInForControl(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != HookedList::messageOwn) {
        const LRESULT result = CallWindowProcW(controlProcedure, window, message, wParam, lParam);
        if (message == WM_SIZE) {
            Note("control");
        }
        return result;
    }
    Note("control");
    if (ends) {
        list.reset();
    }
    return 815;
}

class ListHooksTest : public UiTest
{
  protected:
    static constexpr UINT messageOwn = HookedList::messageOwn;
    TestApp app;
    std::unique_ptr<ListOwner> owner;
    HWND control = nullptr;

    ListHooksTest()
    {
        app.instance = GetModuleHandleW(nullptr);
        ends = false;
        list = std::make_unique<HookedList>();
        owner = std::make_unique<ListOwner>(*list);
        list->Construct(owner->window);
        control = list->Window();
        controlProcedure = list->originalProcedure;
        list->originalProcedure = StandInForControl;
        TakeEvents();
    }

    ~ListHooksTest() override
    {
        if (list) {
            list->originalProcedure = controlProcedure;
            list.reset();
        }
        owner.reset();
    }

    static std::string Own(const char* hook) { return hook + Numbers(messageOwn, 7, -8); }
};

TEST_F(ListHooksTest, TheControlHandlesAMessageBetweenTheHooksAndItsResultCounts)
{
    EXPECT_EQ(SendMessageW(control, messageOwn, 7, -8), 815);
    EXPECT_EQ(TakeEvents(), (Events{Own("before "), "control", Own("after ") + " buffer 0"}));
}

TEST_F(ListHooksTest, AConsumedMessageReachesNeitherTheControlNorTheHookAfterIt)
{
    list->consumes = true;
    for (const LRESULT answer : {0, 4711, -1}) {
        list->answer = answer;
        EXPECT_EQ(SendMessageW(control, messageOwn, 7, -8), answer);
        EXPECT_EQ(TakeEvents(), (Events{Own("before ")}));
    }
    list->consumes = false;
}

TEST_F(ListHooksTest, AfterASizeTheBackBufferIsThere)
{
    SendMessageW(control, WM_SIZE, 0, MAKELPARAM(70, 50));
    const std::string size = Numbers(WM_SIZE, 0, MAKELPARAM(70, 50));
    EXPECT_EQ(TakeEvents(), (Events{"before " + size, "control", "after " + size + " buffer 70"}));
}

TEST_F(ListHooksTest, NothingComesAfterAMessageThatEndedTheList)
{
    ends = true;
    EXPECT_EQ(SendMessageW(control, messageOwn, 7, -8), 815);
    EXPECT_EQ(list, nullptr);
    EXPECT_EQ(TakeEvents(), (Events{Own("before "), "control"}));
}
