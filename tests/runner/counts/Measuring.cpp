// All figures of the table.
#include "tests/runner/counts/Measuring.h"

#include "resources/ids.h"
#include "rig/Controls.h"
#include "rig/Desktop.h"
#include "tests/runner/counts/CountedProgram.h"
#include "tests/runner/counts/Scene.h"

#include <array>
#include <stdexcept>

namespace counts {

namespace {

struct Page
{
    int number;
    const char* name;
    UINT showCommand;
};

// One run of the program, on a handheld with the same number of rows on each of its pages.
class MeasuredRun
{
    Scene& scene;
    CountedProgram program;
    int rows;

  public:
    // All throw std::runtime_error when something does not come about.
    MeasuredRun(Scene& handheld, int rowsOfEachPage);
    void MeasurePages() const;
    // The Start menu with so many programs.
    void MeasureSearch(int programs) const;
    void MeasureReading(int programs) const;
    void MeasureGauge() const;
    std::vector<Figure> HandOver();
    std::vector<Figure> Figures() const { return program.Figures(); }

  private:
    HWND Main() const { return program.Rig().MainWindow(); }
    HWND List(const Page& page) const { return program.Rig().List(page.number); }
    void Show(const Page& page, int rowsWanted) const;
};

} // namespace

static constexpr std::array<Page, 4> pages = {{{1, "Running applications", CMD_SHOW_TASKS},
                                               {2, "System information", CMD_SHOW_SYSINFO},
                                               {3, "Start menu", CMD_SHOW_START},
                                               {4, "Processes", CMD_SHOW_PROCS}}};
static constexpr const Page& gauges = pages[1];
static constexpr const Page& launcher = pages[2];
static constexpr int ownTasks = 2;  // the home screen and the program itself
static constexpr int ownGauges = 3; // memory, storage and battery
static constexpr int manyPrograms = 1000;

static void Need(bool done, const std::string& what)
{
    if (!done) {
        throw std::runtime_error(what);
    }
}

static std::string Number(int number)
{
    return number == manyPrograms ? "1,000" : std::to_string(number);
}

MeasuredRun::MeasuredRun(Scene& handheld, int rowsOfEachPage)
    : scene(handheld), program(handheld.Folder()), rows(rowsOfEachPage)
{
    const auto count = static_cast<size_t>(rows);
    Need(scene.HavePrograms(count) && scene.HaveWindows(count - ownTasks),
         "other programs and their windows");
    Need(scene.HaveShortcuts(count) && scene.HaveCards(count - ownGauges), "shortcuts and cards");
    Need(program.Start("Start, " + Number(rows) + " rows on each page"), "the program's start");
}

// It is refreshed first, without being counted, because it has to see what has changed.
void MeasuredRun::Show(const Page& page, int rowsWanted) const
{
    rig::Send(Main(), WM_COMMAND, page.showCommand);
    rig::Send(Main(), WM_COMMAND, CMD_REFRESH);
    Need(program.Rig().VisiblePage() == page.number, page.name);
    const int found = rig::ListCount(List(page));
    Need(found == rowsWanted,
         page.name + (" with " + Number(rowsWanted)) + " rows, there are " + Number(found));
}

void MeasuredRun::MeasurePages() const
{
    for (const Page& page : pages) {
        Show(page, rows);
        const std::string name = page.name + (", " + Number(rows)) + " rows: ";
        Need(program.Do(name + "refresh", Main(), WM_COMMAND, CMD_REFRESH), name + "refresh");
        Need(program.Paint(name + "repaint", List(page)), name + "repaint");
    }
}

void MeasuredRun::MeasureGauge() const
{
    Show(gauges, rows);
    RECT row = rig::ListRowOnScreen(List(gauges), 1).value_or(RECT{});
    MapWindowPoints(nullptr, List(gauges), reinterpret_cast<POINT*>(&row), 2);
    Need(!IsRectEmpty(&row) && program.Paint("System information: one gauge's repaint", List(gauges), row),
         "a gauge");
}

// The key stands in some of the names.
void MeasuredRun::MeasureSearch(int programs) const
{
    Need(scene.HaveShortcuts(static_cast<size_t>(programs)), "shortcuts");
    Show(launcher, programs);
    const HWND box = GetDlgItem(program.Rig().Page(launcher.number), IDC_SEARCH);
    Need(program.Do("Start menu, " + Number(programs) + " programs: a key in the search", box, WM_CHAR, L'7'),
         "a key");
    rig::Send(box, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
}

void MeasuredRun::MeasureReading(int programs) const
{
    Show(launcher, programs);
    Need(program.Do("Start menu, " + Number(programs) + " programs: read anew", Main(), WM_COMMAND,
                    CMD_REFRESH),
         "the Start menu's reading");
}

std::vector<Figure> MeasuredRun::HandOver()
{
    const auto second = program.RunSecond("Hand-over: the second start as a whole", L"193 1*1");
    Need(second && program.End(), "the second start, and the program's end");
    const auto first = program.Part("Hand-over: the running program", "QuorvaneApp 0x004a");
    Need(first.has_value(), "a hand-over");
    return {*second, *first};
}

static void Measure(std::vector<Figure>& figures)
{
    const auto add = [&](const std::vector<Figure>& more) {
        figures.insert(figures.end(), more.begin(), more.end());
    };
    Scene scene;
    for (const int rows : {5, 20, 60}) {
        MeasuredRun run(scene, rows);
        run.MeasurePages();
        if (rows == 20) {
            run.MeasureGauge();
            run.MeasureSearch(rows);
        }
        if (rows == 60) {
            run.MeasureSearch(manyPrograms);
            run.MeasureReading(manyPrograms);
        }
        const std::vector<Figure> handOver = run.HandOver();
        add(run.Figures());
        if (rows == 60) {
            add(handOver);
        }
    }
}

std::vector<Figure> MeasureAll(const std::function<void(const std::string&)>& complain)
{
    std::vector<Figure> figures;
    try {
        Measure(figures);
    } catch (const std::runtime_error& missing) {
        complain(missing.what());
    }
    return figures;
}

} // namespace counts
