// GaugeSession: the program on its system information page, on a handheld whose figures the test makes up.
#pragma once

#include "rig/Picture.h"
#include "tests/e2e/ShellSession.h"
#include "tests/e2e/pages/sysinfo/GaugeLook.h"
#include "tests/support/TempFolder.h"

// Figures that most tests do not mind: 48, 37 and 87 percent used.
extern const wchar_t plainFigures[];
extern const Gauge plainMemory, plainStorage, plainBattery;

class GaugeSession : public ShellSession
{
    TempFolder device; // its root, where the folders of the cards are

  protected:
    HWND list = nullptr;
    const GaugeLook look{};

    // The test says first what the handheld has.
    void SetUp() override {}
    void TearDown() override;

    void MakeCard(const wchar_t* name) const;
    void RemoveCard(const wchar_t* name) const;

    // Starts the program on this session's screen, with such cards (as a profile has them) and such sections
    // of a profile, and shows the page.
    void Show(const std::wstring& cards, const std::wstring& figures,
              const std::wstring& folder = rig::ProgramFolder());
    // The same with all figures real.
    void ShowReal();

    bool HasRows(int count) const;
    // Scrolls by keys until a row is wholly on the screen.
    void Reach(int row) const;
    // Scrolls to a row, which looks like this apart from its picture.
    void ExpectGauge(int row, const Gauge& gauge) const;
    // The settled picture beside a gauge.
    rig::Picture PictureOf(int row) const;
    // The settled list.
    rig::Picture ListPicture() const;

  private:
    void ShowWith(const std::wstring& profile, const std::wstring& folder);
};
