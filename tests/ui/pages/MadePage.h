// Makes a page of any class as the application does, with what it needs from above.
#pragma once

#include "startmenu/CStartPrograms.h"

#include <memory>
#include <type_traits>

template <typename View>
std::unique_ptr<View> MadePage()
{
    if constexpr (std::is_constructible_v<View, CStartPrograms&>) {
        static CStartPrograms programs; // of an empty Start menu
        return std::make_unique<View>(programs);
    } else {
        return std::make_unique<View>();
    }
}
