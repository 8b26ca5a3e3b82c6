// The search box's menu on tap-and-hold.
// profiles: pocketpc pocketpc-vga
#include "tests/ui/pages/start/StartPageTest.h"

class EditMenuTest : public StartPageTest
{
  protected:
    DWORD gesture = 1000;
    BOOL chosen = 0;
    BOOL hasText = TRUE; // in the clipboard
    Names items;         // of the menu that was shown, greyed ones in brackets
    std::vector<UINT> messages;
    POINT shownAt = {};
    SHRGINFO asked = {};
    std::vector<std::tuple<HWND, UINT, WPARAM, LPARAM>> posted;
    SPY(SHRecognizeGesture) recognize;
    SPY(TrackPopupMenuEx) track;
    SPY(IsClipboardFormatAvailable) clipboard;

    EditMenuTest()
    {
        recognize.instead = [this](SHRGINFO* info) {
            asked = *info;
            return gesture;
        };
        clipboard.instead = [this](UINT format) {
            EXPECT_EQ(format, 13u);
            return hasText;
        };
        track.instead = [this](HMENU popup, UINT flags, int x, int y, HWND, TPMPARAMS* exclude) {
            EXPECT_EQ(flags, static_cast<UINT>(TPM_RETURNCMD));
            EXPECT_EQ(exclude, nullptr);
            shownAt = {x, y};
            Describe(popup);
            return chosen;
        };
    }

    void Describe(HMENU popup)
    {
        items.clear();
        messages.clear();
        for (int i = 0; i < GetMenuItemCount(popup); i++) {
            const auto place = static_cast<UINT>(i);
            wchar_t text[50] = {};
            GetMenuStringW(popup, place, text, 50, MF_BYPOSITION);
            const UINT state = GetMenuState(popup, place, MF_BYPOSITION);
            const bool isGrey = (state & (MF_GRAYED | MF_DISABLED)) != 0 && (state & MF_SEPARATOR) == 0;
            items.push_back(isGrey ? L"[" + std::wstring(text) + L"]" : text);
            messages.push_back(GetMenuItemID(popup, i));
        }
    }

    // The stylus goes down at this place of the box.
    void Tap(ProgramApp& app, int x, int y)
    {
        const SPY(PostMessageW) post([&](HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
            if (window == Box(app)) {
                posted.emplace_back(window, message, wParam, lParam);
            }
            return post.Real(window, message, wParam, lParam);
        });
        SendMessageW(Box(app), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        SendMessageW(Box(app), WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }

    static void SelectText(ProgramApp& app, int from, int to)
    {
        SendMessageW(Box(app), EM_SETSEL, static_cast<WPARAM>(from), to);
    }
};

TEST_F(EditMenuTest, TheShellIsAskedWhatTheStylusDoes)
{
    OnPage([&](ProgramApp& app) {
        Tap(app, 7, 3);
        ASSERT_EQ(recognize.calls.size(), 1u);
        EXPECT_EQ(asked.cbSize, sizeof(SHRGINFO));
        EXPECT_EQ(sizeof(SHRGINFO) - sizeof(HWND), sizeof(void*) == 4 ? 16u : 24u);
        EXPECT_EQ(asked.hwndClient, Box(app));
        EXPECT_EQ(asked.ptDown.x, 7);
        EXPECT_EQ(asked.ptDown.y, 3);
        EXPECT_EQ(asked.dwFlags, 1u);
    });
}

TEST_F(EditMenuTest, APlaceLeftOfTheBoxIsNegative)
{
    OnPage([&](ProgramApp& app) {
        Tap(app, -5, -2);
        EXPECT_EQ(asked.ptDown.x, -5);
        EXPECT_EQ(asked.ptDown.y, -2);
    });
}

TEST_F(EditMenuTest, AHeldStylusOpensTheMenuAtItsPlace)
{
    OnPage([&](ProgramApp& app) {
        SelectText(app, 0, 0);
        Tap(app, 7, 3);
        ASSERT_EQ(track.calls.size(), 1u);
        EXPECT_EQ(std::get<4>(track.calls[0]), Box(app));
        POINT place = {7, 3};
        ClientToScreen(Box(app), &place);
        EXPECT_EQ(shownAt.x, place.x);
        EXPECT_EQ(shownAt.y, place.y);
        EXPECT_EQ(items, (Names{L"[Cut]", L"[Copy]", L"Paste", L"", L"[Undo]"}));
        EXPECT_EQ(messages, (std::vector<UINT>{0x300, 0x301, 0x302, 0, 0xC7}));
        EXPECT_TRUE(posted.empty()) << "nothing was chosen";
        EXPECT_FALSE(IsMenu(std::get<0>(track.calls[0])));
    });
}

TEST_F(EditMenuTest, WithASelectionItCanBeCutAndCopied)
{
    OnPage([&](ProgramApp& app) {
        Search(app, L"abc");
        SelectText(app, 1, 2);
        Tap(app, 1, 1);
        EXPECT_EQ(items, (Names{L"Cut", L"Copy", L"Paste", L"", L"[Undo]"}));
        SelectText(app, 2, 2);
        Tap(app, 1, 1);
        EXPECT_EQ(items, (Names{L"[Cut]", L"[Copy]", L"Paste", L"", L"[Undo]"}));
    });
}

TEST_F(EditMenuTest, WithoutATextInTheClipboardNothingCanBePasted)
{
    hasText = FALSE;
    OnPage([&](ProgramApp& app) {
        Tap(app, 1, 1);
        EXPECT_EQ(items, (Names{L"[Cut]", L"[Copy]", L"[Paste]", L"", L"[Undo]"}));
    });
}

TEST_F(EditMenuTest, WhatWasTypedCanBeUndone)
{
    OnPage([&](ProgramApp& app) {
        Type(app, L"abc");
        ASSERT_NE(SendMessageW(Box(app), EM_CANUNDO, 0, 0), 0);
        Tap(app, 1, 1);
        EXPECT_EQ(items, (Names{L"[Cut]", L"[Copy]", L"Paste", L"", L"Undo"}));
    });
}

TEST_F(EditMenuTest, WhatIsChosenIsPostedToTheBox)
{
    OnPage([&](ProgramApp& app) {
        for (const UINT message : {0x300u, 0x301u, 0x302u, 0xC7u}) {
            chosen = static_cast<BOOL>(message);
            posted.clear();
            Tap(app, 1, 1);
            ASSERT_EQ(posted.size(), 1u);
            EXPECT_EQ(posted[0], std::make_tuple(Box(app), message, WPARAM{0}, LPARAM{0}));
        }
    });
}

TEST_F(EditMenuTest, UndoTakesBackWhatWasTyped)
{
    AddPrograms({L"abc", L"x"});
    OnPage([&](ProgramApp& app) {
        Type(app, L"abc");
        ASSERT_EQ(Count(app), 1);
        chosen = EM_UNDO;
        Tap(app, 1, 1);
        EXPECT_TRUE(PumpUntil([&] { return Text(Box(app)).empty(); }));
        EXPECT_EQ(Count(app), 2) << "and is searched";
    });
}

TEST_F(EditMenuTest, AnyOtherGestureIsTheBoxesOwn)
{
    OnPage([&](ProgramApp& app) {
        Search(app, L"abc");
        for (const DWORD answer : {0u, 1u, 999u, 1001u, 0xFFFFFFFFu}) {
            gesture = answer;
            SelectText(app, 0, 3);
            Tap(app, 1000, 2);
            DWORD start = 9;
            DWORD end = 9;
            SendMessageW(Box(app), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                         reinterpret_cast<LPARAM>(&end));
            EXPECT_EQ(start, 3u) << "the caret moved to the tap";
            EXPECT_EQ(end, 3u);
        }
        EXPECT_TRUE(track.calls.empty());
    });
}

TEST_F(EditMenuTest, AHeldStylusDoesNotMoveTheCaret)
{
    OnPage([&](ProgramApp& app) {
        Search(app, L"abc");
        SelectText(app, 0, 2);
        Tap(app, 1000, 2);
        EXPECT_EQ(SendMessageW(Box(app), EM_GETSEL, 0, 0), MAKELONG(0, 2));
    });
}

TEST_F(EditMenuTest, OtherMessagesAskNothing)
{
    OnPage([&](ProgramApp& app) {
        SendMessageW(Box(app), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(1, 1));
        SendMessageW(Box(app), WM_LBUTTONUP, 0, MAKELPARAM(1, 1));
        SendMessageW(Box(app), WM_MOUSEMOVE, 0, MAKELPARAM(1, 1));
        Type(app, L"a");
        EXPECT_TRUE(recognize.calls.empty());
    });
}
