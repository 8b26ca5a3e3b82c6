// Lengths given at 96 dpi in pixels of the screen.
#pragma once

int Scaled(int n, int dpi);
int ScaleX(int n); // widths and x: by the screen's horizontal dpi
int ScaleY(int n); // heights and y: by the vertical
