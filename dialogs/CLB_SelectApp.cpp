// The list of the application picker.
#include "dialogs/CLB_SelectApp.h"

#include "framework/CStr.h"

static constexpr SListTraits listTraits = {L"CLB_SelectApp::Construct", L"CLB_SelectApp::RecreateColumns",
                                           true};

CLB_SelectApp::CLB_SelectApp(const CRowLook& rowLook, const CArray<SAppsList*>& allPrograms)
    : CLB_Programs(listTraits, rowLook, allPrograms)
{}

void CLB_SelectApp::EmptyText(CStr& text) const
{
    text = L"No applications found";
}

// Enter is the list's: the dialog manager would press the button that only the soft key is to press.
bool CLB_SelectApp::BeforeControl(UINT message, WPARAM /*wParam*/, LPARAM lParam, LRESULT& result)
{
    const auto* pressed = reinterpret_cast<const MSG*>(lParam);
    if (message != WM_GETDLGCODE || pressed == nullptr || pressed->wParam != VK_RETURN) {
        return false;
    }
    result = DLGC_WANTMESSAGE;
    return true;
}
