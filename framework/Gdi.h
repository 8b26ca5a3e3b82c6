// Guards of device contexts and GDI objects: acquired in the constructor, given back in the destructor.
#pragma once

#include "platform/ce.h"

// The whole screen's device context.
class ScreenDC
{
  private:
    HDC dc;

  public:
    ScreenDC() : dc(GetDC(nullptr)) {}
    ~ScreenDC()
    {
        if (dc) {
            ReleaseDC(nullptr, dc);
        }
    }
    ScreenDC(const ScreenDC&) = delete;
    ScreenDC& operator=(const ScreenDC&) = delete;
    operator HDC() const { return dc; }
};

// A window's client area outside WM_PAINT.
class WindowDC
{
  private:
    HWND window;
    HDC dc;

  public:
    explicit WindowDC(HWND owner) : window(owner), dc(GetDC(owner)) {}
    ~WindowDC()
    {
        if (dc) {
            ReleaseDC(window, dc);
        }
    }
    WindowDC(const WindowDC&) = delete;
    WindowDC& operator=(const WindowDC&) = delete;
    operator HDC() const { return dc; }
};

// A memory device context; the objects selected into it must be out again before it goes: declare them after
// it.
class MemoryDC
{
  private:
    HDC dc;

  public:
    explicit MemoryDC(HDC model) : dc(CreateCompatibleDC(model)) {}
    ~MemoryDC()
    {
        if (dc) {
            DeleteDC(dc);
        }
    }
    MemoryDC(const MemoryDC&) = delete;
    MemoryDC& operator=(const MemoryDC&) = delete;
    operator HDC() const { return dc; }
};

// WM_PAINT's device context. It exists even where BeginPaint failed: draw nothing when it is null.
class PaintDC
{
  private:
    HWND window;
    PAINTSTRUCT paint;
    HDC dc;

  public:
    explicit PaintDC(HWND owner) : window(owner), paint(), dc(BeginPaint(owner, &paint)) {}
    ~PaintDC()
    {
        if (dc) {
            EndPaint(window, &paint);
        }
    }
    PaintDC(const PaintDC&) = delete;
    PaintDC& operator=(const PaintDC&) = delete;
    operator HDC() const { return dc; }
    const RECT& Area() const { return paint.rcPaint; }
};

// An object selected into a device context; the one before comes back.
class Selection
{
  private:
    HDC dc;
    HGDIOBJ previous;

  public:
    Selection(HDC target, HGDIOBJ object) : dc(target), previous(SelectObject(target, object)) {}
    ~Selection()
    {
        if (previous) {
            SelectObject(dc, previous);
        }
    }
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;
    bool Done() const { return previous != nullptr; }
};

// A pen, brush, font or bitmap of one's own. It must not be selected any more when it goes.
template <typename Handle>
class GdiObject
{
  private:
    Handle object;

  public:
    GdiObject() : object(nullptr) {}
    explicit GdiObject(Handle owned) : object(owned) {}
    ~GdiObject() { Reset(nullptr); }
    GdiObject(const GdiObject&) = delete;
    GdiObject& operator=(const GdiObject&) = delete;
    operator Handle() const { return object; }

    void Reset(Handle next)
    {
        if (object) {
            DeleteObject(object);
        }
        object = next;
    }

    // The handle goes to the caller, who deletes it.
    Handle Release()
    {
        Handle const released = object;
        object = nullptr;
        return released;
    }
};
