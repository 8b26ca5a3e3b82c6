// The dialog of the tests.
#include "tests/ui/framework/TestDialog.h"

void TestDialog::NoteOwn(const std::string& event) const
{
    Note(name + " " + event);
}

INT_PTR TestDialog::Ask(UINT message, WPARAM wParam, LPARAM lParam) const
{
    const auto procedure = reinterpret_cast<DLGPROC>(GetWindowLongPtrW(window, DWLP_DLGPROC));
    return procedure(window, message, wParam, lParam);
}

void TestDialog::OnInitDialog()
{
    NameWindow(window, name);
    NoteOwn("OnInitDialog");
    if (onInit) {
        onInit();
    }
    if (body) {
        PostMessageW(window, messageBody, 0, 0);
    }
}

void TestDialog::OnDestroy()
{
    NoteOwn("OnDestroy");
}

void TestDialog::OnPaint(HDC deviceContext)
{
    if (onPaint) {
        onPaint(deviceContext);
    }
}

void TestDialog::OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control)
{
    NoteOwn("OnCommand " + Numbers(commandId, notifyCode, control));
}

void TestDialog::OnInitMenuPopup(HMENU menu, uint32_t index)
{
    NoteOwn("OnInitMenuPopup " + Numbers(reinterpret_cast<UINT_PTR>(menu), index, 0));
}

void TestDialog::OnCreateMenuBar(SHMENUBARINFO& menuBarInfo)
{
    if (onCreateMenuBar) {
        onCreateMenuBar(menuBarInfo);
    }
}

INT_PTR TestDialog::DialogProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == messageBody) {
        body();
        return 1;
    }
    if (message >= messageNoted) {
        NoteOwn("DialogProc " + Numbers(message - messageNoted, wParam, lParam));
        return messageResult;
    }
    return CVireoDialog::DialogProc(message, wParam, lParam);
}
