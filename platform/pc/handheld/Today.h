// Today: the home screen, below every program.
#pragma once

#include "platform/pc/handheld/ShellWindow.h"

#include <vector>

class Today final : public ShellWindow
{
  public:
    Today();
    ~Today() override;

    bool Open();

  private:
    struct Line
    {
        std::wstring title;
        std::wstring detail;
        COLORREF badge; // of the mark in front
    };

    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void Paint(handheld::Surface& surface) override;
    void PaintLine(handheld::Surface& surface, const Line& line, int top) const;
    void PaintSoftKeys(handheld::Surface& surface) const;
    RECT SoftKeyBar() const;
    void StartProgram();
    void UpdateDate();

    std::wstring date;
    std::wstring program; // path of the program on the left soft key; empty when it is not there
    std::vector<Line> lines;
    HFONT bold;
    HFONT normal;
    HFONT large;
};
