// What the compiler shall not see through.
#pragma once

template <class T>
[[gnu::noinline]] static T Hidden(T value)
{
    volatile T hidden = value;
    return hidden;
}
