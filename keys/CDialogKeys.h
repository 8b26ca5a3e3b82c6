// The hardware keys dialog of a Pocket PC: what each of the device's buttons does, pressed and held.
#pragma once

#include "framework/CVireoDialog.h"
#include "keys/CActionChoice.h"
#include "keys/CHardwareKeys.h"

class CDialogKeys : public CVireoDialog
{
    CStartPrograms& programs;
    CHardwareKeys keys;
    CActionChoice press;
    CActionChoice hold;

  public:
    explicit CDialogKeys(CStartPrograms& startPrograms) : programs(startPrograms) {}

    void OnInitDialog() override;
    void OnDestroy() override;
    void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control) override;
    INT_PTR DialogProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Runs the dialog until the user closes it.
    static int Show(CStartPrograms& startPrograms);

  private:
    HWND Control(int id) const { return GetDlgItem(window, id); }
    SHardwareKey* SelectedKey();
    void ShowSelectedKey();
    void ControlChanged(uint32_t controlId, uint32_t notifyCode);
    void PassEnterOn();
    void Confirm();
    void Layout();
    void PlaceRow(int labelId, int listId, int top, int labelWidth);
};
