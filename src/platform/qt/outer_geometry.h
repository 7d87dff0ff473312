#pragma once
#include <QWidget>
#include "shell/window_geometry.h"
namespace pelmar {
TwipsRect OuterGeometry(const QWidget& window);
void SetOuterLeft(QWidget& window, int twips);
void SetOuterTop(QWidget& window, int twips);
void SetOuterWidth(QWidget& window, int twips);
void SetOuterHeight(QWidget& window, int twips);
QSize ScreenTwips(const QWidget& window);
void CentreOnScreen(QWidget& window);
void SetAlwaysOnTop(QWidget& window, bool on_top);
}  // namespace pelmar
