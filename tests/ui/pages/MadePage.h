// Makes a page of any class as the application does, with what it needs from above.
#pragma once

#include "framework/CFileUtils.h"
#include "framework/CResources.h"
#include "framework/PathText.h"
#include "startmenu/CStartPrograms.h"

#include <memory>
#include <type_traits>

// The program's own pictures, open until the process ends.
inline CResources& BuiltContainer()
{
    static CResources* const container = [] {
        CoInitializeEx(nullptr, 0);
        CStr path(pathSize);
        CFileUtils::MakeAppFilePath(path, L"Quorvane.zrs");
        return CResources::Open(path);
    }();
    return *container;
}

template <typename View>
std::unique_ptr<View> MadePage()
{
    if constexpr (std::is_constructible_v<View, CStartPrograms&>) {
        static CStartPrograms programs; // of an empty Start menu
        return std::make_unique<View>(programs);
    } else if constexpr (std::is_constructible_v<View, CResources&>) {
        return std::make_unique<View>(BuiltContainer());
    } else {
        return std::make_unique<View>();
    }
}
