// The hardware keys dialog of a Smartphone: what holding the Home key does.
#pragma once

#include "framework/CVireoDialog.h"
#include "keys/CActionChoice.h"
#include "keys/SHomeKey.h"

class CDialogKeys_SP : public CVireoDialog
{
    CStartPrograms& programs;
    SHomeKey& current; // the application's
    SHomeKey chosen;
    CActionChoice choice;

  public:
    CDialogKeys_SP(CStartPrograms& startPrograms, SHomeKey& homeKey);

    void OnInitDialog() override;
    void OnCommand(uint32_t commandId, uint32_t notifyCode, LPARAM control) override;
    INT_PTR DialogProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Runs the dialog until the user closes it. homeKey is what is bound, and after a confirmation what is
    // then.
    static int Show(CStartPrograms& startPrograms, SHomeKey& homeKey);

  private:
    void ShowCommand();
    void ActionChanged();
    void Confirm();
    void Bind();
};
