// The list of the tests.
#include "tests/ui/TestList.h"

#include "framework/CStr.h"

static constexpr const wchar_t* ownerClass = L"ListOwner";

static constexpr SListTraits withSeparators = {L"TestList::Construct", L"TestList::RecreateColumns", true};
static constexpr SListTraits withoutSeparators = {L"TestList::Construct", L"TestList::RecreateColumns",
                                                  false};

TestList::TestList(bool separators) : CLB_Base(separators ? withSeparators : withoutSeparators) {}

void TestList::DrawRow(HDC target, const RECT& rect, uint32_t row, bool selected)
{
    if (drawRow) {
        drawRow(target, rect, row, selected);
        return;
    }
    // The left half only, so that the background and the separators stay to be seen.
    const RECT half = {rect.left, rect.top, (rect.left + rect.right) / 2, rect.bottom};
    HBRUSH brush = CreateSolidBrush(RowColour(row));
    FillRect(target, &half, brush);
    DeleteObject(brush);
}

void TestList::EmptyText(CStr& text) const
{
    text.Append(emptyText.c_str());
}

ListOwner::ListOwner(TestList& ownList) : list(ownList)
{
    HINSTANCE instance = GetModuleHandleW(nullptr);
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = instance;
    windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    windowClass.lpszClassName = ownerClass;
    RegisterClassW(&windowClass);
    window = CreateWindowExW(WS_EX_TOPMOST, ownerClass, nullptr, WS_POPUP | WS_VISIBLE, left, top, width,
                             height, nullptr, nullptr, instance, this);
}

ListOwner::~ListOwner()
{
    DestroyWindow(window);
    UnregisterClassW(ownerClass, GetModuleHandleW(nullptr));
}

std::vector<uint32_t> ListOwner::TakeRows()
{
    std::vector<uint32_t> rows;
    for (const DRAWITEMSTRUCT& request : requests) {
        rows.push_back(request.itemID);
    }
    requests.clear();
    requestControls.clear();
    return rows;
}

LRESULT CALLBACK ListOwner::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCREATE) {
        const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
    }
    auto* owner = reinterpret_cast<ListOwner*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_MEASUREITEM) {
        auto& measure = *reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
        owner->list.MeasureItem(measure);
        owner->measured.push_back(measure);
        return TRUE;
    }
    if (message == WM_DRAWITEM) {
        const auto& draw = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        owner->requests.push_back(draw);
        owner->requestControls.push_back(wParam);
        owner->list.DrawItem(draw);
        return TRUE;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}
