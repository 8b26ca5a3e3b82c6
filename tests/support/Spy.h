// Watches a platform function that the program calls, or takes its place.
#pragma once

#include "platform/ce.h"
#include "tests/support/ImportHook.h"

#include <cstddef>
#include <functional>
#include <tuple>
#include <vector>

template <size_t size>
struct FunctionName
{
    char text[size];
    consteval FunctionName(const char (&name)[size])
    {
        for (size_t i = 0; i < size; i++) {
            text[i] = name[i];
        }
    }
};

// One at a time for each function; it sees the test's own calls too. Text arguments are gone after the call:
// copy them in instead.
template <FunctionName name, typename Function>
class Spy;

template <FunctionName name, typename Result, typename... Arguments>
class Spy<name, Result WINAPI(Arguments...)>
{
  private:
    inline static Spy* current = nullptr;
    ImportHook hook;

    static Result WINAPI Called(Arguments... arguments)
    {
        current->calls.emplace_back(arguments...);
        return current->instead ? current->instead(arguments...) : current->Real(arguments...);
    }

  public:
    std::vector<std::tuple<Arguments...>> calls;
    std::function<Result(Arguments...)> instead; // runs in the function's place

    Spy() : hook(name.text, &Called) { current = this; }
    explicit Spy(std::function<Result(Arguments...)> behaviour) : Spy() { instead = std::move(behaviour); }
    ~Spy() { current = nullptr; }
    Spy(const Spy&) = delete;
    Spy& operator=(const Spy&) = delete;

    Result Real(Arguments... arguments) const
    {
        return hook.template Original<Result WINAPI(Arguments...)>()(arguments...);
    }
};

#define SPY(function) Spy<#function, decltype(function)>
