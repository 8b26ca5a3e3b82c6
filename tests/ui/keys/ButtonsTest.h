// KeysTest with buttons of the test's own, which nobody claims.
#pragma once

#include "tests/support/ScriptedButtons.h"
#include "tests/support/ScriptedClaims.h"
#include "tests/ui/keys/KeysTest.h"

class ButtonsTest : public KeysTest
{
  protected:
    ScriptedButtons buttons;
    ScriptedClaims claims;

    ButtonsTest() { buttons.Add(L""); }

    void AddButton(const std::wstring& key, const std::wstring& name, const std::wstring& command)
    {
        buttons.WriteText(key, L"Name", name);
        buttons.WriteText(key, L"Default", command);
    }
};
