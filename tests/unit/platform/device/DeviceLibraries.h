// DeviceLibraries: stands in for the device's libraries that functions are looked up in late.
#pragma once

#include "platform/device/LateFunction.h"
#include "tests/support/ImportHook.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

class DeviceLibraries : public testing::Test
{
    ImportHook load;
    ImportHook address;
    ImportHook box;

  protected:
    // "aygshell.dll 84" or "aygshell.dll Name" for a look-up, "box: " and its text, and what a test notes.
    std::vector<std::string> events;
    std::set<std::string> missingLibraries;
    std::map<std::string, void*> functions; // by the text of their look-up; the others are missing

    DeviceLibraries();
    ~DeviceLibraries() override;

    template <class Function>
    void Put(const std::string& lookUp, Function* function)
    {
        functions[lookUp] = reinterpret_cast<void*>(function);
    }
    // The text of its look-up.
    static std::string LookUpOf(const LateExport& wanted);

  public:
    static DeviceLibraries* current;

    static std::string Narrow(const wchar_t* text);
    HMODULE Load(const wchar_t* library);
    FARPROC LookUp(HMODULE module, const wchar_t* name);
    void Note(const std::string& event) { events.push_back(event); }

  private:
    std::vector<std::string> loaded; // a module is its place here, counted from 1
};
