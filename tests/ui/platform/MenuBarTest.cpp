// The shell's soft-key bars: what SHCreateMenuBar takes, and whose words a bar shows.
#include "platform/pc/common/SoftKeys.h"
#include "resources/ids.h"
#include "tests/ui/Pixels.h"
#include "tests/ui/UiTest.h"
#include "tests/ui/platform/bars.h"

#include <cstddef>
#include <thread>

class MenuBarTest : public UiTest
{
  protected:
    HWND owner =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 26, 240, 268, nullptr, nullptr, nullptr, nullptr);

    ~MenuBarTest() override { DestroyWindow(owner); }

    SHMENUBARINFO Info(UINT resourceId, DWORD flags = 0) const
    {
        SHMENUBARINFO info = {};
        info.cbSize = sizeof info;
        info.hwndParent = owner;
        info.dwFlags = flags;
        info.nToolBarId = resourceId;
        info.hInstRes = GetModuleHandleW(nullptr);
        return info;
    }

    HWND Bar(UINT resourceId, DWORD flags = 0) const
    {
        SHMENUBARINFO info = Info(resourceId, flags);
        EXPECT_TRUE(SHCreateMenuBar(&info)) << resourceId;
        EXPECT_TRUE(IsWindow(info.hwndMB)) << resourceId;
        return info.hwndMB;
    }

    void ExpectRefused(SHMENUBARINFO info) const
    {
        SetLastError(0);
        EXPECT_FALSE(SHCreateMenuBar(&info)) << "size " << info.cbSize << ", id " << info.nToolBarId;
        EXPECT_EQ(GetLastError(), 87u);
        EXPECT_EQ(info.hwndMB, nullptr);
    }

    // What a bar of the visible owner shows; the bar has gone since.
    Pixels Shown(UINT resourceId, DWORD flags = 0) const
    {
        const HWND bar = Bar(resourceId, flags);
        UpdateWindow(bar);
        Pixels pixels = Pixels::Of(bar);
        DestroyWindow(bar);
        return pixels;
    }

    static bool AreSame(const Pixels& one, const Pixels& other)
    {
        for (int y = 0; y < one.All().bottom; y++) {
            for (int x = 0; x < one.All().right; x++) {
                if (one.At(x, y) != other.At(x, y)) {
                    return false;
                }
            }
        }
        return true;
    }
};

TEST_F(MenuBarTest, StringsBelowOneHundredAreTheShellsOwnWords)
{
    ShowWindow(owner, SW_SHOW);
    const Pixels toolsAndGo = Shown(IDB_OWN_WORDS);
    const Pixels viewAndFile = Shown(IDB_OTHER_OWN_WORDS);
    ASSERT_FALSE(AreSame(toolsAndGo, viewAndFile));
    EXPECT_TRUE(AreSame(Shown(IDB_SHELL_WORDS), toolsAndGo));
    EXPECT_TRUE(AreSame(Shown(IDB_OTHER_SHELL_WORDS), viewAndFile));
}

TEST_F(MenuBarTest, WithoutAResourceOnlyAnEmptyBarCanBeMade)
{
    ExpectRefused(Info(0));
    ShowWindow(owner, SW_SHOW);
    const Pixels empty = Shown(0, SHCMBF_EMPTYBAR);
    for (int y = 0; y < empty.All().bottom; y++) {
        for (int x = 1; x < empty.All().right; x++) {
            ASSERT_EQ(empty.At(x, y), empty.At(0, y)) << x << ", " << y;
        }
    }
}

TEST_F(MenuBarTest, TheRecordIsTakenWithAndWithoutItsColour)
{
    SHMENUBARINFO info = Info(IDB_OWN_WORDS);
    info.cbSize = offsetof(SHMENUBARINFO, clrBk);
    EXPECT_TRUE(SHCreateMenuBar(&info));
    EXPECT_TRUE(IsWindow(info.hwndMB));
    for (const size_t size : {size_t{0}, offsetof(SHMENUBARINFO, hwndMB), offsetof(SHMENUBARINFO, clrBk) - 4,
                              sizeof info - 1, sizeof info + 4}) {
        SHMENUBARINFO wrong = Info(IDB_OWN_WORDS);
        wrong.cbSize = static_cast<DWORD>(size);
        ExpectRefused(wrong);
    }
}

TEST_F(MenuBarTest, AMissingResourceOrOwnerMakesNoBar)
{
    SHMENUBARINFO missing = Info(999);
    EXPECT_FALSE(SHCreateMenuBar(&missing));
    EXPECT_EQ(missing.hwndMB, nullptr);
    SHMENUBARINFO orphan = Info(IDB_OWN_WORDS);
    orphan.hwndParent = nullptr;
    ExpectRefused(orphan);
}

TEST_F(MenuBarTest, ABarIsSeenAndGoesWithItsOwner)
{
    const HWND bar = Bar(IDB_OWN_WORDS);
    EXPECT_FALSE(IsWindowVisible(bar)) << "its owner is hidden";
    ShowWindow(owner, SW_SHOW);
    EXPECT_TRUE(IsWindowVisible(bar));
    ShowWindow(owner, SW_HIDE);
    EXPECT_FALSE(IsWindowVisible(bar));
    ShowWindow(owner, SW_SHOW);
    EXPECT_TRUE(IsWindowVisible(bar));
    DestroyWindow(owner);
    EXPECT_FALSE(IsWindow(bar));
}

TEST_F(MenuBarTest, ABarIsHiddenWhileItsOwnerIsMinimised)
{
    const HWND bar = Bar(IDB_OWN_WORDS);
    ShowWindow(owner, SW_SHOW);
    ASSERT_TRUE(IsWindowVisible(bar));
    ShowWindow(owner, SW_MINIMIZE);
    EXPECT_TRUE(IsWindowVisible(owner)) << "it only goes behind the others";
    EXPECT_FALSE(IsWindowVisible(bar));
    SetForegroundWindow(owner);
    EXPECT_TRUE(PumpUntil([=] { return IsWindowVisible(bar) != FALSE; }));
}

// Has a window closed by another thread once the menu that it opens is there. Then nothing else happens: any
// message of its own would let the menu's loop see that its menu has gone.
class OwnerThatGoes
{
    static constexpr DWORD longest = 5000; // ms that a menu may take to open, or stay open without its owner

    HANDLE closed = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    bool stayed = false;
    std::thread other;

  public:
    explicit OwnerThatGoes(HWND owner)
    {
        other = std::thread([=, this, menuThread = GetCurrentThreadId()] {
            const ULONGLONG begin = GetTickCount64();
            while (FindWindowW(L"#32768", nullptr) == nullptr && GetTickCount64() < begin + longest) {
                Sleep(20);
            }
            SendMessageW(owner, WM_CLOSE, 0, 0);
            if (WaitForSingleObject(closed, longest) != WAIT_OBJECT_0) {
                stayed = true;
                PostThreadMessageW(menuThread, WM_CANCELMODE, 0, 0);
            }
        });
    }
    ~OwnerThatGoes() { CloseHandle(closed); }
    OwnerThatGoes(const OwnerThatGoes&) = delete;
    OwnerThatGoes& operator=(const OwnerThatGoes&) = delete;

    // Asked once, when the menu's loop has ended: whether it has not by itself.
    bool Stayed()
    {
        SetEvent(closed);
        other.join();
        return stayed;
    }
};

TEST_F(MenuBarTest, AMenuWhoseOwnerIsDestroyedCloses)
{
    ShowWindow(owner, SW_SHOW);
    const HWND bar = Bar(IDB_TASKS);
    OwnerThatGoes going(owner);
    SendMessageW(bar, handheld::WM_PRESS_SOFT_KEY, 1, 0);
    EXPECT_FALSE(going.Stayed());
    EXPECT_FALSE(IsWindow(owner));
    EXPECT_FALSE(IsWindow(bar));
}
