// The names under which the checks of a CArray instantiation report.
#pragma once

// Specialised by QV_ARRAY_NAMES beside the type of the elements: an array without a name does not compile.
template <typename T>
struct ArrayNames;

// QV_ARRAY_NAMES(STaskInfo*, "struct STaskInfo *"): the reports say "CArray<struct STaskInfo *>::At".
#define QV_ARRAY_NAMES(Type, spelling)                                                                       \
    template <>                                                                                              \
    struct ArrayNames<Type>                                                                                  \
    {                                                                                                        \
        static constexpr const wchar_t* construct = L"CArray<" spelling ">::CArray";                         \
        static constexpr const wchar_t* at = L"CArray<" spelling ">::At";                                    \
        static constexpr const wchar_t* append = L"CArray<" spelling ">::Append";                            \
        static constexpr const wchar_t* remove = L"CArray<" spelling ">::Delete";                            \
    }

QV_ARRAY_NAMES(int, "int");
