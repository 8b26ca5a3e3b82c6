// The list of the application picker.
#pragma once

#include "startmenu/CLB_Programs.h"

class CLB_SelectApp : public CLB_Programs
{
  public:
    CLB_SelectApp(const CRowLook& rowLook, const CArray<SAppsList*>& allPrograms);

  protected:
    void EmptyText(CStr& text) const override;
    bool BeforeControl(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
};
