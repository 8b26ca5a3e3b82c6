// Measures of single-line rows and title strips.
#include "lists/RowMeasures.h"

#include "framework/Gdi.h"
#include "framework/Scale.h"

int LineHeight(HFONT font)
{
    ScreenDC screen;
    Selection selected(screen, font);
    TEXTMETRICW metrics = {};
    GetTextMetricsW(screen, &metrics);
    return metrics.tmHeight + metrics.tmExternalLeading;
}

int SingleLineRowHeight(HFONT boldFont, int iconHeight)
{
    const int text = LineHeight(boldFont) + ScaleY(1) + ScaleY(2);
    const int icon = iconHeight + ScaleY(4);
    return text < icon ? icon : text;
}

int TitleStripHeight(HFONT boldFont)
{
    return LineHeight(boldFont) + ScaleY(1) + ScaleY(8);
}

HFONT CreateSystemFont(LONG weight, LONG extraHeight, bool underlined)
{
    LOGFONTW font = {};
    GetObjectW(GetStockObject(SYSTEM_FONT), sizeof font, &font);
    font.lfWeight = weight;
    font.lfHeight += extraHeight;
    font.lfUnderline = underlined ? TRUE : FALSE;
    return CreateFontIndirectW(&font);
}
