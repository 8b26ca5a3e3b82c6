// Rows of the system information page: a picture, a title, and below it a bar with the used and the free
// amount.
#include "pages/sysinfo/CLB_Memory.h"

#include "framework/Scale.h"
#include "lists/CRowPainter.h"
#include "lists/RowMeasures.h"
#include "pages/sysinfo/Gauge.h"

static constexpr SListTraits listTraits = {L"CLB_Memory::Construct", L"CLB_Memory::RecreateColumns", false};

CLB_Memory::CLB_Memory(const CRowLook& rowLook, const CRecords<SSysInfo>& records,
                       const CGaugePictures& gaugePictures, const MemoryDC& pictureContext)
    : CLB_Base(listTraits), look(rowLook), rows(records), pictures(gaugePictures), memory(pictureContext)
{}

int CLB_Memory::RowHeight() const
{
    // Both lines are as high as the bold one, though the amounts are written in the normal font.
    const int line = LineHeight(look.BoldFont()) + ScaleY(1);
    const int text = line + ScaleY(4) + line;
    const int picture = look.Icons().LargeSize() + ScaleY(6);
    return text < picture ? picture : text;
}

static void DrawBar(HDC target, const RECT& bar, const SSysInfo& info)
{
    Rectangle(target, bar.left, bar.top, bar.right, bar.bottom);
    RECT fill = {bar.left + 1, bar.top + 1, bar.right - 1, bar.bottom - 1};
    fill.right = fill.left + GaugeFill(GaugePercent(info.total, info.free), fill.right - fill.left);
    FillRect(target, &fill, CE_COLOR_BRUSH(COLOR_SCROLLBAR));
}

static void UsedText(const SSysInfo& info, CStr& text)
{
    if (info.kind == MainBattery) {
        text.AppendInt64(info.Used());
        text.Append(L"%");
    } else {
        text.AppendSize(info.Used());
    }
}

// Ends with a blank, which keeps it off the bar's frame.
static void FreeText(const SSysInfo& info, CStr& text)
{
    if (info.kind == MainBattery) {
        text = info.charging != 0 ? L"Charging " : L"";
    } else {
        text.AppendSize(info.free);
        text.Append(L" ");
    }
}

// It looks the same selected or not.
void CLB_Memory::DrawRow(HDC target, const RECT& rect, uint32_t row, bool /*selected*/)
{
    const SSysInfo& info = *rows.At(row);
    const int side = look.Icons().LargeSize();
    const int height = rect.bottom - rect.top;
    CRowPainter painter(target, rect, false);
    pictures.Draw(target, rect.left + ScaleX(4), rect.top + (height - side) / 2, info.kind, memory);

    RECT title = painter.TextArea(side);
    title.bottom = rect.top + height / 2;
    painter.DrawLeft(look.BoldFont(), info.name, title);

    const RECT bar = {title.left, title.bottom, rect.right - ScaleX(4), rect.bottom - ScaleY(2)};
    DrawBar(target, bar, info);
    RECT amounts = bar;
    amounts.left += ScaleX(5);
    CStr text;
    UsedText(info, text);
    painter.DrawLeft(look.NormalFont(), text, amounts);
    text.Empty();
    FreeText(info, text);
    painter.DrawRight(look.BoldFont(), text, amounts);
}
